#pragma once

#include "core/Event.h"
#include "qt/desktop/PrintPreview.h"
#include "qt/desktop/QtTextMetrics.h"
#include "visual/ScaledPicture.h"
#include "visual/VisualHost.h"

#include <map>

class QEventLoop;

namespace phial::qt
{

class DesktopLook;
class ModalGate;

/// What is seen, on the toolkit. Needs the application object for as long as it lives.
class QtVisualHost final : public VisualHost, public ScaledDecoder
{
public:
    /// `outlet` takes what is printed: each document when it is finished.
    explicit QtVisualHost(PrintOutlet outlet = previewAndPrint);
    ~QtVisualHost() override;

    TextMetrics& metrics() override { return *metrics_; }
    std::shared_ptr<DrawBackend> createSurface(PixelSize size, double pixelRatio) override;
    double pixelRatio() const override;
    PicturePtr decodePicture(const std::filesystem::path& file, double pixelRatio) override;
    PicturePtr decodeWithin(const std::filesystem::path& file, PixelSize field, double density) override;
    std::optional<ComingPicture> beginWithin(const std::filesystem::path& file, PixelSize field,
                                             double density) override;
    std::unique_ptr<FormPeer> openWindow(Form& form, bool modal) override;
    void runModal(Form& form) override;
    std::vector<PixelRectangle> screens() const override;
    double millimetresPerPixel(PixelPoint point) const override;
    void screenPointerChanged(MousePointer pointer) override;
    void sendKeys(std::span<const KeyStroke> keys, const std::shared_ptr<Form>& form) override;
    void commitComposition() override;
    String clipboardText() const override;
    void clipboardText(const String& value) override;
    String clipboardHtml() const override;
    void clipboard(const String& text, const String& html) override;
    std::shared_ptr<DrawBackend> openPrinter(PageOrientation orientation, const String& title) override;

private:
    class WindowPeer;

    void useTheme();
    void windowClosed(const Form& form);

    std::shared_ptr<QtTextMetrics> metrics_ = std::make_shared<QtTextMetrics>();
    std::unique_ptr<ModalGate> gate_;
    std::map<const Form*, QEventLoop*> loops_;
    PrintOutlet outlet_;
    std::unique_ptr<DesktopLook> desktopLook_;
    Connections themeChanged_;
    bool themed_ = false;
    bool pointerSet_ = false;
};

} // namespace phial::qt
