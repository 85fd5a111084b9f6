#pragma once

#include "core/String.h"
#include "visual/ControlPeer.h"
#include "visual/DrawBackend.h"
#include "visual/Forms.h"
#include "visual/Geometry.h"
#include "visual/Input.h"
#include "visual/KeyNotation.h"
#include "visual/Screen.h"

#include <filesystem>
#include <memory>
#include <span>
#include <vector>

namespace phial
{

class Form;

/// How a printed page lies.
enum class PageOrientation : std::int32_t { Portrait = 1, Landscape = 2 };

/// The outside of all that is seen: windows, surfaces, text measuring, pictures, keyboard, clipboard,
/// printer. Also keeps the open forms and the screen's state, so that both end with the session.
class VisualHost
{
public:
    VisualHost() = default;
    VisualHost(const VisualHost&) = delete;
    VisualHost& operator=(const VisualHost&) = delete;
    virtual ~VisualHost() = default;

    phial::Forms& forms() { return forms_; }
    phial::Screen& screen() { return screen_; }

    virtual TextMetrics& metrics() = 0;

    /// A surface to draw on, see-through at first; a size of 0 gives one of a single pixel.
    virtual std::shared_ptr<DrawBackend> createSurface(PixelSize size, double pixelRatio) = 0;
    /// The pixel ratio of the screen on which new windows appear.
    virtual double pixelRatio() const = 0;

    /// Decodes a picture that holds its pixels at that ratio; raises 53 for a missing file and 481 for one
    /// that is no picture.
    virtual PicturePtr decodePicture(const std::filesystem::path& file, double pixelRatio) = 0;

    /// Opens a window for the form's model, in its present state; the peer's end closes the window. A modal
    /// form's window blocks the program's other windows.
    virtual std::unique_ptr<FormPeer> openWindow(Form& form, bool modal) = 0;
    /// Runs events until `form.isModal()` is false. Loops nest; the innermost ends first.
    virtual void runModal(Form& form) = 0;

    /// The screens, in pixels of the desktop that they make up; the one on which programs begin comes first.
    /// Empty without any.
    virtual std::vector<PixelRectangle> screens() const = 0;
    /// How large a pixel is on the screen that shows the point, in millimetres; that of 96 to an inch where
    /// none shows it and where the desktop does not tell it or tells what cannot be.
    virtual double millimetresPerPixel(PixelPoint point) const = 0;
    /// The pointer has got another shape for all windows.
    virtual void screenPointerChanged(MousePointer pointer) = 0;

    /// Types the keys one after the other, behind what is pending, into the control of that form that then
    /// has the focus; without a form into that of whichever is active. What is being composed goes in before
    /// them. Keys for a form whose window has closed are dropped.
    virtual void sendKeys(std::span<const KeyStroke> keys, const std::shared_ptr<Form>& form) = 0;
    /// Ends what the user is composing by dead keys or an input method: the text made so far is typed.
    virtual void commitComposition() = 0;

    virtual String clipboardText() const = 0;
    virtual void clipboardText(const String& value) = 0;
    /// The same contents as HTML; empty where the clipboard has no such form of them.
    virtual String clipboardHtml() const = 0;
    /// A text in both forms.
    virtual void clipboard(const String& text, const String& html) = 0;

    /// Begins a document on the printer; raises 482 when there is none. `title` names the job. Ending the
    /// document may show it to the user first, who may then do without it.
    virtual std::shared_ptr<DrawBackend> openPrinter(PageOrientation orientation, const String& title) = 0;

private:
    phial::Forms forms_;
    phial::Screen screen_;
};

/// The open session's; raises 91 when no session is open or its platform has none.
VisualHost& visualHost();

/// Keyboard emulation: parses the notation (see KeyNotation.h) and types the keys. Raises 5 for a notation
/// that is ill-formed, without typing anything. With a form they go to that one alone.
void SendKeys(StringView notation, const std::shared_ptr<Form>& form = nullptr);

} // namespace phial
