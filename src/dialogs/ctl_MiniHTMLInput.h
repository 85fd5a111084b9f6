#pragma once

#include "core/Event.h"
#include "visual/PaintSurface.h"
#include "visual/TextBox.h"
#include "visual/UserControl.h"
#include "visual/ctl_CmdBar.h"

#include <array>
#include <memory>

namespace phial
{

/// A field for a text with markup (see visual/Markup.h) below a bar of formats: what is selected gets the
/// format that one presses, or loses it (see MarkupTags.h). Ctrl with the letter of a format does the same.
/// Where nothing is selected a box says so. The field shows the tags as they are.
///
/// It has a field of one line and one of several, `txt_Input` 0 and 1, each below the `bar_Format` of its
/// index; one field and its bar are in use. For one line the control is twice as high as its bar, for several
/// as high as it was made.
class ctl_MiniHTMLInput final : public UserControl
{
public:
    ctl_MiniHTMLInput();

    /// Whether the field of several lines is in use; false at first. Each field keeps a text of its own.
    /// Persisted under "MULTILINE".
    bool MULTILINE() const { return multiLine_; }
    void MULTILINE(bool value);
    /// Of the field in use.
    String TEXT() const { return input().Text(); }
    void TEXT(String value) { input().Text(std::move(value)); }
    /// Parts tags that cross (see repairedMarkup); where there are none the text stays as it is.
    void REPAIR();
    /// Puts the formats' names in the language in force.
    void TRANSLATE();

    /// The text in use is another one: it was edited, or the other field came into use.
    Event<> CHANGED;

    /// The field in use.
    TextBox& input() const { return *fields_[multiLine_ ? 1 : 0]; }

    StringView typeName() const override { return u"ctl_MiniHTMLInput"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    PartRole role() const override { return PartRole::Grouping; }
    void initProperties() override { TRANSLATE(); }
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void shown() override;
    void hidden() override { themeChanges_.clear(); }
    void paint() override { surface_.device().Cls(); }
    void resized() override;

private:
    struct Properties;

    void makeItem(std::int32_t index);
    void linesChanged();
    void layOut();
    void takeGivenHeight();
    void forceHeight(double height);
    void format(std::int32_t index, const String& key);
    void pressByKey(std::int32_t index, KeyEvent& event);
    void drawSigns();

    static constexpr std::int32_t Items = 2; ///< of one line, of several

    ControlFrame frame_;
    PaintSurface surface_;
    bool multiLine_ = false;
    double givenHeight_ = 0; ///< in pixels, before one line forced another one
    bool isForcing_ = false;
    std::array<std::shared_ptr<TextBox>, Items> fields_;
    std::array<std::shared_ptr<ctl_CmdBar>, Items> bars_;
    Connections connections_;
    Connections themeChanges_;
};

} // namespace phial
