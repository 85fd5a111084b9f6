#pragma once

#include "core/CoreCursors.h"
#include "core/CoreDisplay.h"
#include "core/CoreTextBoxOps.h"
#include "core/CoreWindowOps.h"
#include "core/Shell.h"

#include <map>

/// The smaller services of the desktop; each does what its interface says.
namespace phial::qt
{

class DesktopDisplay final : public CoreDisplay
{
public:
    std::int32_t CursorX() const override;
    std::int32_t CursorY() const override;
    /// False under Wayland, which tells of the pointer over the program's own windows alone.
    bool TellsCursor() const override;
    std::int32_t Width() const override;
    std::int32_t Height() const override;
    /// Of the desktop's own text as the user has set it: by its font, by dots to an inch, or by a zoom.
    std::optional<std::int32_t> TextHeight() const override;
    /// By the style, which has no time for animations where the user wants none.
    bool ReducesMotion() const override;
    bool BlinksCaret() const override;
};

/// What CoreDisplay::TextHeight gives for text of that size. The largest text with which desktops come, 11
/// points at 96 dots to an inch, counts as 16, so that whatever is larger has been made so.
std::int32_t textHeightOf(double points, double dotsPerInch);

class DesktopWindowOps final : public CoreWindowOps
{
public:
    std::int32_t ScreenTop(WindowHandle pWindow) const override;
    std::int32_t ScreenLeft(WindowHandle pWindow) const override;
    std::int32_t ScreenBottom(WindowHandle pWindow) const override;
    std::int32_t ScreenRight(WindowHandle pWindow) const override;
    /// For handles of loaded forms, shown or not.
    void SetTranslucent(WindowHandle pWindow, std::int32_t pOpacity, TranslucentMode pMode,
                        Colour pColourKey) override;
    /// Nothing: the desktops give no way to it.
    void TaskbarVisible(bool) override {}
};

class DesktopCursors final : public CoreCursors
{
public:
    std::shared_ptr<Picture> Load(StringView pPath, std::int32_t pSize, bool pShared, bool pQuiet) override;

private:
    std::map<String, std::shared_ptr<Picture>> shared_;
};

class DesktopTextBoxes final : public CoreTextBoxOps
{
public:
    void Prepare(TextBox& pTextBox) override;
};

class DesktopShell final : public Shell
{
public:
    bool open(WindowHandle window, StringView address) override;
    std::int64_t start(const ProgramCall& call) override;
    std::unique_ptr<RunningProgram> startWatched(const ProgramCall& call) override;
};

} // namespace phial::qt
