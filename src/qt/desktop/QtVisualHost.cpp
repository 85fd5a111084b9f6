#include "qt/desktop/QtVisualHost.h"

#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "qt/base/QtText.h"
#include "qt/desktop/Composing.h"
#include "qt/desktop/Cursors.h"
#include "qt/desktop/DesktopLook.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FormWindow.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/ModalGate.h"
#include "qt/desktop/PageRecorder.h"
#include "qt/desktop/PictureBackend.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/PixelRatio.h"
#include "qt/desktop/ScaledReading.h"
#include "qt/desktop/Theme.h"
#include "qt/desktop/ToolkitLanguage.h"
#include "qt/desktop/WindowHandles.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QImageReader>
#include <QMimeData>
#include <QPageLayout>
#include <QPageSize>
#include <QPointer>
#include <QScreen>
#include <QThreadPool>

namespace phial::qt
{

namespace
{

constexpr std::int32_t InvalidPicture = 481;

// Millimetres; what common printers leave blank at least.
constexpr QMarginsF PageMargins(5, 5, 5, 5);

QWidget* innermost(QWidget* widget)
{
    while (widget && widget->focusProxy()) {
        widget = widget->focusProxy();
    }
    return widget;
}

// The focus of the active form, which need not be the desktop's active window.
QWidget* typingTarget(const Forms& forms)
{
    if (QWidget* focused = QApplication::focusWidget()) {
        return focused;
    }
    const std::shared_ptr<Form> form = forms.ActiveForm();
    QWidget* window = form ? widgetOf(form->hWnd()) : QApplication::activeWindow();
    return window && window->focusWidget() ? window->focusWidget() : window;
}

// Of that form, wherever the desktop's focus is; null when its window has closed.
QWidget* typingTarget(Form& form)
{
    QWidget* window = form.Visible() ? widgetOf(form.hWnd()) : nullptr;
    const ControlPtr field = form.keyboardFocus()->field();
    QWidget* widget = window && field ? widgetOf(field->hWnd()) : nullptr;
    if (!widget) {
        return window;
    }
    QWidget* part = window->focusWidget(); // one of several within
    return part && widget->isAncestorOf(part) ? part : innermost(widget);
}

} // namespace

/// The model's hold on its window.
class QtVisualHost::WindowPeer final : public FormPeer
{
public:
    WindowPeer(QtVisualHost& host, FormWindow& window, const Form& form)
        : host_(host), window_(&window), form_(form)
    {
    }
    ~WindowPeer() override
    {
        if (window_) {
            window_->leave();
        }
        host_.windowClosed(form_);
    }
    WindowPeer(const WindowPeer&) = delete;
    WindowPeer& operator=(const WindowPeer&) = delete;

    void modelChanged(FormAspect aspect) override
    {
        if (window_) {
            window_->modelChanged(aspect);
        }
    }

private:
    QtVisualHost& host_;
    QPointer<FormWindow> window_;
    const Form& form_;
};

QtVisualHost::QtVisualHost(PrintOutlet outlet)
    : gate_(std::make_unique<ModalGate>(forms())), outlet_(std::move(outlet))
{
}

QtVisualHost::~QtVisualHost() = default;

std::shared_ptr<DrawBackend> QtVisualHost::createSurface(PixelSize size, double pixelRatio)
{
    return std::make_shared<PictureBackend>(std::make_shared<Picture>(size, pixelRatio), metrics_);
}

double QtVisualHost::pixelRatio() const
{
    return screenRatio();
}

PicturePtr QtVisualHost::decodePicture(const std::filesystem::path& file, double pixelRatio)
{
    QImageReader reader(toQt(file.u16string()));
    reader.setAutoTransform(true);
    if (!std::filesystem::is_regular_file(file)) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    const QSize size = reader.size();
    const bool tooLarge =
        size.isValid() && static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()) >
                              Picture::MaximumPixels;
    const QImage image = tooLarge ? QImage() : reader.read();
    if (image.isNull()) {
        throw RuntimeError(InvalidPicture, u"Invalid picture");
    }
    return pictureOf(image, pixelRatio);
}

PicturePtr QtVisualHost::decodeWithin(const std::filesystem::path& file, PixelSize field, double density)
{
    if (!std::filesystem::is_regular_file(file)) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    const auto reading = ScaledReading::of(file, field, density);
    return reading ? reading->read() : nullptr;
}

std::optional<ComingPicture> QtVisualHost::beginWithin(const std::filesystem::path& file, PixelSize field,
                                                       double density)
{
    const auto reading = ScaledReading::of(file, field, density);
    if (!reading) {
        return std::nullopt;
    }
    const auto promise = std::make_shared<std::promise<PicturePtr>>();
    ComingPicture coming{reading->size(), promise->get_future()};
    QThreadPool::globalInstance()->start([promise, reading] {
        try {
            promise->set_value(reading->read());
        } catch (...) {
            promise->set_exception(std::current_exception());
        }
    });
    return coming;
}

// The theme gets its colours when the session starts, so that windows are the first to need it.
void QtVisualHost::useTheme()
{
    if (!themed_) {
        themed_ = true;
        desktopLook_ = std::make_unique<DesktopLook>();
        CoreTheme& theme = coreTheme();
        themeChanged_ += theme.CHANGED.connect([&theme](ThemeSlot) { applyTheme(theme); });
        themeChanged_ += theme.COLOURSCHANGED.connect([&theme](ColourSet) { applyTheme(theme); });
        applyTheme(theme);
    }
}

std::unique_ptr<FormPeer> QtVisualHost::openWindow(Form& form, bool modal)
{
    useTheme();
    useSessionLanguage();
    const QWidget* below = modal ? QApplication::activeWindow() : nullptr;
    auto* window = new FormWindow(form.shared_from_this()); // ends itself when the peer lets go
    if (below) {
        window->standOn(*below);
    }
    auto peer = std::make_unique<WindowPeer>(*this, *window, form);
    window->open();
    return peer;
}

void QtVisualHost::runModal(Form& form)
{
    if (!form.isModal()) {
        return;
    }
    QEventLoop loop;
    loops_[&form] = &loop;
    loop.exec();
    loops_.erase(&form);
}

void QtVisualHost::windowClosed(const Form& form)
{
    if (const auto running = loops_.find(&form); running != loops_.end()) {
        running->second->quit();
    }
}

std::vector<PixelRectangle> QtVisualHost::screens() const
{
    std::vector<PixelRectangle> all;
    for (const QScreen* screen : QGuiApplication::screens()) { // the primary one comes first
        const QRectF place = screen->geometry();
        all.push_back({place.x(), place.y(), place.width(), place.height()});
    }
    return all;
}

double QtVisualHost::millimetresPerPixel(PixelPoint point) const
{
    const QScreen* shown = QGuiApplication::screenAt(QPointF(point.x, point.y).toPoint());
    return qt::millimetresPerPixel(shown ? shown->physicalDotsPerInch() : 0);
}

void QtVisualHost::screenPointerChanged(MousePointer pointer)
{
    if (pointerSet_) {
        QGuiApplication::restoreOverrideCursor();
    }
    pointerSet_ = pointer != MousePointer::Default;
    if (pointerSet_) {
        QGuiApplication::setOverrideCursor(cursorFor(pointer, nullptr));
    }
}

void QtVisualHost::sendKeys(std::span<const KeyStroke> keys, const std::shared_ptr<Form>& form)
{
    const auto target = [this, isBound = form != nullptr, bound = std::weak_ptr<Form>(form)]() -> QWidget* {
        const std::shared_ptr<Form> open = bound.lock();
        return !isBound ? typingTarget(forms()) : open ? typingTarget(*open) : nullptr;
    };
    const auto post = [this](auto act) {
        QMetaObject::invokeMethod(gate_.get(), std::move(act), Qt::QueuedConnection);
    };
    post([] { phial::qt::commitComposition(); });
    for (const KeyStroke& stroke : keys) {
        post([target, stroke] {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                if (QWidget* widget = target()) {
                    QKeyEvent event = toolkitKey(type, stroke);
                    QApplication::sendEvent(widget, &event);
                }
            }
        });
    }
}

void QtVisualHost::commitComposition()
{
    phial::qt::commitComposition();
}

String QtVisualHost::clipboardText() const
{
    return fromQt(QGuiApplication::clipboard()->text());
}

void QtVisualHost::clipboardText(const String& value)
{
    QGuiApplication::clipboard()->setText(toQt(value));
}

String QtVisualHost::clipboardHtml() const
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content && content->hasHtml() ? fromQt(content->html()) : String();
}

void QtVisualHost::clipboard(const String& text, const String& html)
{
    auto* content = new QMimeData; // the clipboard's
    content->setText(toQt(text));
    content->setHtml(toQt(html));
    QGuiApplication::clipboard()->setMimeData(content);
}

std::shared_ptr<DrawBackend> QtVisualHost::openPrinter(PageOrientation orientation, const String& title)
{
    const QPageLayout layout(QPageSize(QPageSize::A4),
                             orientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                       : QPageLayout::Portrait,
                             PageMargins, QPageLayout::Millimeter);
    return std::make_shared<PageRecorder>(toQt(title), layout, metrics_, outlet_);
}

} // namespace phial::qt
