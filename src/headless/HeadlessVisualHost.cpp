#include "headless/HeadlessVisualHost.h"

#include "core/RuntimeError.h"
#include "headless/Hand.h"
#include "headless/PictureHead.h"
#include "visual/Form.h"
#include "visual/PaintSurface.h"
#include "visual/TextEntry.h"

#include <algorithm>
#include <utility>

namespace phial::headless
{

namespace
{

constexpr double ClosingTime = 10; // seconds that a form has for closing by its timers
constexpr double ClosingStep = 0.01;
constexpr PixelSize PortraitPage{794, 1123}; // A4 at 96 pixels to the inch

} // namespace

/// The window of an open form: it is listed as long as it lives.
class HeadlessVisualHost::Window final : public FormPeer
{
public:
    Window(HeadlessVisualHost& host, Form& form) : host_(host), form_(form) {}
    ~Window() override { host_.windowClosed(form_); }
    void modelChanged(FormAspect) override {}

private:
    HeadlessVisualHost& host_;
    Form& form_;
};

HeadlessVisualHost::HeadlessVisualHost(std::shared_ptr<EventPump> pump,
                                       std::shared_ptr<const CoreDisplay> display, FailureHandler onFailure)
    : pump_(std::move(pump)), display_(std::move(display)), onFailure_(std::move(onFailure))
{
}

HeadlessVisualHost::~HeadlessVisualHost()
{
    forms().closeAll();
}

void HeadlessVisualHost::fail(const String& description) const
{
    if (!onFailure_) {
        throw RuntimeError(ErrorNumber::InvalidArgument, description);
    }
    onFailure_(description);
}

void HeadlessVisualHost::onModal(StringView formName, Script script)
{
    scripts_[upperCase(formName)].push_back(std::move(script));
}

void HeadlessVisualHost::checkDone()
{
    for (const auto& [name, scripts] : std::exchange(scripts_, {})) {
        if (!scripts.empty()) {
            fail(u"the form did not come: " + name);
        }
    }
}

HeadlessVisualHost::Script HeadlessVisualHost::takeScript(StringView formName)
{
    const auto found = scripts_.find(upperCase(formName));
    if (found == scripts_.end() || found->second.empty()) {
        return nullptr;
    }
    Script script = std::move(found->second.front());
    found->second.pop_front();
    return script;
}

std::shared_ptr<RecordingBackend> HeadlessVisualHost::recording(const PicturePtr& picture) const
{
    for (const auto& entry : surfaces_) {
        if (auto surface = entry.lock(); surface && surface->picture() == picture) {
            return surface;
        }
    }
    return nullptr;
}

std::string HeadlessVisualHost::drawing(Control& control) const
{
    UserControl* painted = control.painted();
    const auto recorder = painted ? recording(painted->surface().image(pixelRatio_)) : nullptr;
    return recorder ? recorder->text() : std::string();
}

void HeadlessVisualHost::addPicture(const std::filesystem::path& file, PicturePtr picture)
{
    pictures_.insert_or_assign(file, std::move(picture));
}

std::shared_ptr<DrawBackend> HeadlessVisualHost::createSurface(PixelSize size, double)
{
    if (makeSurface_) {
        return makeSurface_(size);
    }
    std::erase_if(surfaces_, [](const auto& entry) { return entry.expired(); });
    auto surface = std::make_shared<RecordingBackend>(size, metrics_);
    surfaces_.push_back(surface);
    return surface;
}

PicturePtr HeadlessVisualHost::decodePicture(const std::filesystem::path& file, double pixelRatio)
{
    if (const auto known = pictures_.find(file); known != pictures_.end()) {
        return known->second;
    }
    const PixelSize held = pictureSize(file);
    return std::make_shared<Picture>(PixelSize{held.width / pixelRatio, held.height / pixelRatio},
                                     pixelRatio);
}

std::unique_ptr<FormPeer> HeadlessVisualHost::openWindow(Form& form, bool)
{
    windows_.push_back(form.weak_from_this());
    return std::make_unique<Window>(*this, form);
}

void HeadlessVisualHost::windowClosed(const Form& form)
{
    std::erase_if(windows_, [&](const auto& entry) {
        const auto open = entry.lock();
        return !open || open.get() == &form;
    });
}

void HeadlessVisualHost::runModal(Form& form)
{
    const Script script = takeScript(form.NAME());
    if (!script) {
        fail(u"unexpected modal form: " + form.NAME());
        form.discard();
        return;
    }
    script(form);
    for (double waited = 0; form.isModal() && waited < ClosingTime; waited += ClosingStep) {
        pump_->pumpFor(ClosingStep);
    }
    if (form.isModal()) {
        fail(u"the script leaves the form open: " + form.NAME());
        form.discard();
    }
}

std::vector<PixelRectangle> HeadlessVisualHost::screens() const
{
    std::vector<PixelRectangle> all{
        {0, 0, static_cast<double>(display_->Width()), static_cast<double>(display_->Height())}};
    all.insert(all.end(), otherScreens_.begin(), otherScreens_.end());
    return all;
}

void HeadlessVisualHost::sendKeys(std::span<const KeyStroke> keys, const std::shared_ptr<Form>& form)
{
    pump_->post([this, strokes = std::vector<KeyStroke>(keys.begin(), keys.end()), isBound = form != nullptr,
                 bound = std::weak_ptr<Form>(form)] {
        commitComposition();
        for (const KeyStroke& stroke : strokes) {
            const auto target = isBound ? bound.lock() : forms().ActiveForm();
            if (target && target->Visible()) {
                send(*target, stroke);
            }
        }
    });
}

void HeadlessVisualHost::commitComposition()
{
    const auto active = forms().ActiveForm();
    const ControlPtr field = active ? active->keyboardFocus()->field() : nullptr;
    if (field && !field->frame().composition().text.empty()) {
        commitText(*field, String(field->frame().composition().text));
    }
}

std::shared_ptr<DrawBackend> HeadlessVisualHost::openPrinter(PageOrientation orientation, const String& title)
{
    if (!hasPrinter_) {
        throw RuntimeError(482, u"Printer error");
    }
    const bool landscape = orientation == PageOrientation::Landscape;
    const PixelSize size = landscape ? PixelSize{PortraitPage.height, PortraitPage.width} : PortraitPage;
    auto page = std::make_shared<RecordingBackend>(size, metrics_);
    printed_.push_back({title, orientation, page});
    return page;
}

} // namespace phial::headless
