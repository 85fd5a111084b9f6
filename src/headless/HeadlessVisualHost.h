#pragma once

#include "core/CoreDisplay.h"
#include "core/EventPump.h"
#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "visual/VisualHost.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace phial
{
class Control;
}

namespace phial::headless
{

/// A document sent to the printer.
struct PrintedDocument {
    String title;
    PageOrientation orientation = PageOrientation::Portrait;
    std::shared_ptr<RecordingBackend> page;
};

/// Forms without windows. What is drawn is recorded; a modal form is played by the script that a test has
/// given for its name; keys that are sent go to the control that has the focus. An unexpected modal form, and
/// one that its script leaves open, is a failure.
class HeadlessVisualHost final : public VisualHost
{
public:
    using FailureHandler = std::function<void(const String&)>;
    /// Plays the user before a modal form; it or what it sets going must close the form.
    using Script = std::function<void(Form&)>;

    HeadlessVisualHost(std::shared_ptr<EventPump> pump, std::shared_ptr<const CoreDisplay> display,
                       FailureHandler onFailure);
    ~HeadlessVisualHost() override;

    /// The next modal form of that name runs the script. Scripts of one name are used up in order. When a
    /// script has run, the form may take some time to close by its timers; it is given ten seconds.
    void onModal(StringView formName, Script script);
    /// Reports the scripts that have not been used, and forgets them.
    void checkDone();

    /// The forms whose windows are open, in the order in which they were opened.
    const std::vector<std::weak_ptr<Form>>& windows() const { return windows_; }
    /// The recorder behind a painted picture, such as that of `control.surface().image(1)`; null for another
    /// one.
    std::shared_ptr<RecordingBackend> recording(const PicturePtr& picture) const;
    /// What the control has drawn since its image was made, one line a primitive; the control is painted
    /// first if it has to be.
    std::string drawing(Control& control) const;

    /// Further surfaces come from there in place of the recorder's.
    using SurfaceMaker = std::function<std::shared_ptr<DrawBackend>(PixelSize size)>;
    void surfacesFrom(SurfaceMaker make) { makeSurface_ = std::move(make); }

    /// The pictures of files, by native path; others are looked at in the file system, see decodePicture.
    void addPicture(const std::filesystem::path& file, PicturePtr picture);
    void pixelRatio(double value) { pixelRatio_ = value; }
    /// Further screens of the desktop, beside the display's own, which begins at (0, 0).
    void addScreen(const PixelRectangle& screen) { otherScreens_.push_back(screen); }
    /// On all screens; as 96 pixels to an inch at first.
    void millimetresPerPixel(double value) { millimetresPerPixel_ = value; }
    const std::vector<PrintedDocument>& printed() const { return printed_; }
    /// From now on there is no printer, or one again.
    void hasPrinter(bool value) { hasPrinter_ = value; }
    MousePointer screenPointer() const { return screenPointer_; }

    FixedTextMetrics& metrics() override { return *metrics_; }
    std::shared_ptr<DrawBackend> createSurface(PixelSize size, double pixelRatio) override;
    double pixelRatio() const override { return pixelRatio_; }
    /// A picture that was added; otherwise a see-through one of the size that the file's head tells (PNG,
    /// GIF, BMP).
    PicturePtr decodePicture(const std::filesystem::path& file, double pixelRatio) override;
    std::unique_ptr<FormPeer> openWindow(Form& form, bool modal) override;
    void runModal(Form& form) override;
    std::vector<PixelRectangle> screens() const override;
    double millimetresPerPixel(PixelPoint /*point*/) const override { return millimetresPerPixel_; }
    void screenPointerChanged(MousePointer pointer) override { screenPointer_ = pointer; }
    void sendKeys(std::span<const KeyStroke> keys, const std::shared_ptr<Form>& form) override;
    void commitComposition() override;
    String clipboardText() const override { return clipboard_; }
    void clipboardText(const String& value) override { clipboard(value, {}); }
    String clipboardHtml() const override { return clipboardHtml_; }
    void clipboard(const String& text, const String& html) override
    {
        clipboard_ = text;
        clipboardHtml_ = html;
    }
    std::shared_ptr<DrawBackend> openPrinter(PageOrientation orientation, const String& title) override;

private:
    class Window;

    void fail(const String& description) const;
    Script takeScript(StringView formName);
    void windowClosed(const Form& form);

    std::shared_ptr<EventPump> pump_;
    std::shared_ptr<const CoreDisplay> display_;
    FailureHandler onFailure_;
    std::shared_ptr<FixedTextMetrics> metrics_ = std::make_shared<FixedTextMetrics>();
    SurfaceMaker makeSurface_;
    std::map<String, std::deque<Script>> scripts_; ///< by upper-case name
    std::vector<std::weak_ptr<Form>> windows_;
    std::vector<std::weak_ptr<RecordingBackend>> surfaces_;
    std::map<std::filesystem::path, PicturePtr> pictures_;
    std::vector<PrintedDocument> printed_;
    std::vector<PixelRectangle> otherScreens_;
    double pixelRatio_ = 1;
    double millimetresPerPixel_ = 25.4 / 96;
    bool hasPrinter_ = true;
    MousePointer screenPointer_ = MousePointer::Default;
    String clipboard_;
    String clipboardHtml_;
};

} // namespace phial::headless
