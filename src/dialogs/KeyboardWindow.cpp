#include "dialogs/KeyboardWindow.h"

#include "app/Settings.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/CoreDisplay.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/SessionState.h"
#include "dialogs/FittingWords.h"
#include "dialogs/KeyPictures.h"
#include "dialogs/KeyboardPlace.h"
#include "dialogs/TargetPlace.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace phial
{

namespace place = keyboard_place;

namespace
{

constexpr std::int32_t DraggingInterval = 10; // milliseconds
constexpr std::int32_t UnloadInterval = 100;
constexpr double QuitBeyond = 100 / TwipsPerPixel;

constexpr double Margin = 15;
constexpr double HeadTop = 12;
constexpr double HeadHeight = 48;
constexpr ControlDesign::Rectangle Words{24, HeadTop, 196, HeadHeight};

constexpr ControlDesign WindowControls[] = {
    design<ctl_Label>(u"lab_Title", Words)
        .font(12, FontWeight::Bold)
        .ink(Palette::Ink)
        .set(u"PlainText", true),
    design<ctl_Label>(u"lab_Description", Words).font(12).ink(Palette::Ink).set(u"PlainText", true),
    design<ctl_Button>(u"but_Close", {0, HeadTop, HeadHeight, HeadHeight}, u"✕")
        .font(17)
        .unfocusable()
        .spoken(u"Abbrechen|Cancel"),
    design<ctl_Button>(u"but_Enter", {0, HeadTop, 0, 0}, u"OK|OK").hidden().unfocusable().defaultButton(),
    design<ctl_Button>(u"but_Quit", {0, HeadTop, HeadHeight, HeadHeight}, u"Abbrechen|Cancel")
        .unfocusable()
        .cancelButton(),
};

// Where the user has left the last keyboard.
constexpr StringView LeftAtX = u"Config\\KeyboardPlace\\Left";
constexpr StringView LeftAtY = u"Config\\KeyboardPlace\\Top";
constexpr std::int32_t Nowhere = std::numeric_limits<std::int32_t>::min();

std::optional<PixelPoint> placeLeft()
{
    const CoreRegistryRead& settings = coreRoot().CoreRegistry().CoreRegistryRead();
    const auto read = [&](StringView name) {
        return settings.ReadLong(SettingsHive::CurrentUser, settings::path(name), Nowhere);
    };
    const std::int32_t x = read(LeftAtX);
    const std::int32_t y = read(LeftAtY);
    return x == Nowhere || y == Nowhere ? std::nullopt
                                        : std::optional(PixelPoint{double{1} * x, double{1} * y});
}

void keepPlace(PixelPoint corner)
{
    CoreRegistryWrite& settings = coreRoot().CoreRegistry().CoreRegistryWrite();
    settings.WriteLong(SettingsHive::CurrentUser, settings::path(LeftAtX), toWhole(corner.x));
    settings.WriteLong(SettingsHive::CurrentUser, settings::path(LeftAtY), toWhole(corner.y));
}

PixelPoint cornerOf(const Form& form)
{
    return {form.Left() / TwipsPerPixel, form.Top() / TwipsPerPixel};
}

PixelSize sizeOf(const Form& form)
{
    return {form.Width() / TwipsPerPixel, form.Height() / TwipsPerPixel};
}

PixelRectangle areaOf(const Form& form)
{
    const PixelPoint corner = cornerOf(form);
    const PixelSize size = sizeOf(form);
    return {corner.x, corner.y, size.width, size.height};
}

PixelPoint middleOf(const PixelRectangle& area)
{
    return {area.left + area.width / 2, area.top + area.height / 2};
}

/// None where the desktop does not tell.
std::optional<PixelPoint> pointer()
{
    const CoreDisplay& display = coreRoot().CoreDisplay();
    if (!display.TellsCursor()) {
        return std::nullopt;
    }
    return PixelPoint{double{1} * display.CursorX(), double{1} * display.CursorY()};
}

PixelRectangle scaled(const PixelRectangle& area, double scale)
{
    return {area.left * scale, area.top * scale, area.width * scale, area.height * scale};
}

FontPtr fontOf(Object& control)
{
    const auto value = tryGet(control, u"Font");
    return value ? std::dynamic_pointer_cast<Font>(value->object()) : nullptr;
}

/// A font of its own, since others may share the one that it has.
void sizeFont(Object& control, double size)
{
    if (const FontPtr font = fontOf(control)) {
        const FontPtr own = font->clone();
        own->Size(size);
        trySet(control, u"Font", Variant(ObjectPtr(own)));
    }
}

} // namespace

KeyboardWindow::KeyboardWindow(DesignedForm& form, Leaving leaving, double pitch)
    : form_(form), pitch_(pitch), dragging_(std::make_shared<Timer>(u"tmr_Dragging", DraggingInterval)),
      unload_(std::make_shared<Timer>(u"tmr_Unload", UnloadInterval))
{
    form_.add(WindowControls);
    form_->addComponent(dragging_);
    form_->addComponent(unload_);
    const double width = form_->innerSize().width;
    const double close = width - Margin - HeadHeight;
    form_->control<ctl_Button>(u"but_Close")->Left(close);
    for (const StringView words : {u"lab_Title", u"lab_Description"}) {
        const auto label = form_->control<ctl_Label>(words);
        label->Width(std::min(Words.width, close - Words.left));
    }
    form_->control<ctl_Button>(u"but_Quit")->Left(width + QuitBeyond);
    connect();
    connectGround();
    if (leaving == Leaving::Confirms) {
        form_.on(form_->Deactivate, [this] { confirm(); });
    }
}

void KeyboardWindow::placeWords(const PixelRectangle& area)
{
    for (const StringView words : {u"lab_Title", u"lab_Description"}) {
        form_->control<ctl_Label>(words)->frame().pixelRectangle(area);
    }
}

void KeyboardWindow::connect()
{
    form_.press(u"but_Close", [this] { abort(); });
    form_.press(u"but_Quit", [this] { abort(); });
    form_.press(u"but_Enter", [this] { confirm(); });
    form_.on(form_->Deactivate, [this] { release(touch_); });
    form_.on(dragging_->Tick, [this] { followPointer(); });
    form_.on(unload_->Tick, [this] {
        unload_->Enabled(false);
        form_->Unload();
    });
    form_.on(coreTheme().COLOURSCHANGED, [this](ColourSet) {
        if (form_->isLoaded()) {
            paintGround();
        }
    });
}

/// What is no key: the plate itself and the words on it.
void KeyboardWindow::connectGround()
{
    const auto draggedBy = [this](auto& part) {
        form_.on(part.MouseDown, [this](const PointerEvent&) { press(0, pointer()); });
        form_.on(part.MouseUp, [this](const PointerEvent&) { release(); });
    };
    draggedBy(*form_);
    draggedBy(*form_->control<ctl_Label>(u"lab_Title"));
    draggedBy(*form_->control<ctl_Label>(u"lab_Description"));
}

void KeyboardWindow::open()
{
    VisualHost& host = visualHost();
    const auto opener = host.forms().ActiveForm();
    const auto target = placeSeen(target_.target());
    const PixelRectangle below = opener ? host.screen().of(*opener) : host.screen().first();
    const PixelPoint point = pointer().value_or(middleOf(below));
    const PixelRectangle screen = host.screen().at(target ? middleOf(*target) : point);
    openerZoom_ = opener ? opener->Zoom() : 1;
    noteDesign();
    scaleTo(scaleOn(screen));
    paintGround();
    const auto kept = placeToKeep(target_.target());
    moveTo(place::openingPlace({target, point, placeLeft(), kept}, sizeOf(*form_), screen));
}

void KeyboardWindow::noteDesign()
{
    if (!design_.empty()) {
        return; // it has been open before
    }
    designSize_ = form_->innerSize();
    for (const ControlPtr& control : form_->container().controls()) {
        const FontPtr font = fontOf(*control);
        design_.push_back({control, control->frame().pixelRectangle(), font ? font->Size() : 0});
    }
}

double KeyboardWindow::scaleOn(const PixelRectangle& screen) const
{
    const double millimetres = visualHost().millimetresPerPixel(middleOf(screen));
    return place::scaleFor({designSize_, pitch_}, {screen, millimetres, openerZoom_});
}

/// A window with holes has no zoom, so all that stands on it grows by itself.
void KeyboardWindow::scaleTo(double scale)
{
    if (scale == scale_) {
        return;
    }
    scale_ = scale;
    form_->innerSize({std::floor(designSize_.width * scale), std::floor(designSize_.height * scale)});
    for (const Designed& each : design_) {
        each.control->frame().pixelRectangle(scaled(each.area, scale));
        sizeFont(*each.control, each.fontSize * scale);
    }
    SCALED.raise();
}

void KeyboardWindow::paintGround()
{
    const PicturePtr ground = KeyPictures::current()->ground(form_->innerSize(), scale_);
    form_->Picture(ground);
    form_->translucency({.opacity = 255, .colourKey = std::nullopt, .mask = ground});
}

void KeyboardWindow::moveTo(PixelPoint corner)
{
    form_->Move(corner.x * TwipsPerPixel, corner.y * TwipsPerPixel);
}

String KeyboardWindow::question() const
{
    return title_.empty() ? LNG()->TRANSLATE(u"Bitte geben Sie den Wert ein:", u"Please enter the value:")
                          : title_;
}

void KeyboardWindow::translate()
{
    const auto title = form_->control<ctl_Label>(u"lab_Title");
    const auto description = form_->control<ctl_Label>(u"lab_Description");
    title->Caption(fittingWords(title_, title->Font()->traits(), title->surface().size()));
    title->frame().AccessibleName(title_);
    title->frame().ToolTipText(title->Caption() == title_ ? String() : title_);
    title->Visible(!title_.empty());
    description->Caption(title_.empty() ? question() : String());
    description->Visible(title_.empty());
}

void KeyboardWindow::press(const Control& part, const PointerEvent& event)
{
    press(event.Touch, event.Touch == 0 ? pointer() : onDesktop(part, event));
}

void KeyboardWindow::press(std::int32_t touch, std::optional<PixelPoint> at)
{
    if (isDragged()) {
        DRAGGED.raise();
        return;
    }
    if (!at) {
        return;
    }
    touch_ = touch;
    touchPlace_ = touch == 0 ? std::nullopt : at;
    dragStart_ = *at;
    dragging_->Enabled(true);
}

void KeyboardWindow::move(const Control& part, const PointerEvent& event)
{
    if (event.Touch != 0 && event.Touch == touch_) {
        touchPlace_ = onDesktop(part, event);
    }
}

PixelPoint KeyboardWindow::onDesktop(const Control& part, const PointerEvent& event) const
{
    const PixelPoint corner = cornerOf(*form_);
    const PixelPoint origin = part.frame().originOnForm();
    return {corner.x + origin.x + event.X, corner.y + origin.y + event.Y};
}

/// The pointer goes with the finger that has come last, which need not be the one that drags.
std::optional<PixelPoint> KeyboardWindow::pressedAt() const
{
    return touchPlace_ ? touchPlace_ : pointer();
}

void KeyboardWindow::release(std::int32_t touch)
{
    if (touch != touch_) {
        return;
    }
    dragging_->Enabled(false);
    if (isDragged()) {
        fitToScreen();
        cornerAtStart_.reset();
        keepPlace(cornerOf(*form_));
    }
}

void KeyboardWindow::followPointer()
{
    const auto at = pressedAt();
    if (!at) {
        return;
    }
    if (!isDragged() && place::isDrag(dragStart_, *at)) {
        dragStart_ = *at;
        cornerAtStart_ = cornerOf(*form_);
        DRAGGED.raise();
    }
    if (isDragged()) {
        const PixelPoint corner{at->x - dragStart_.x + cornerAtStart_->x,
                                at->y - dragStart_.y + cornerAtStart_->y};
        moveTo(place::draggedTo(corner, sizeOf(*form_), visualHost().screen().at(*at)));
    }
}

/// The screen to which it was dragged may be smaller, or its pixels. What was taken hold of stays where it
/// is.
void KeyboardWindow::fitToScreen()
{
    const PixelPoint at = pressedAt().value_or(middleOf(areaOf(*form_)));
    const PixelRectangle screen = visualHost().screen().at(at);
    const double before = scale_;
    scaleTo(scaleOn(screen));
    if (scale_ != before) {
        const double growth = scale_ / before;
        const PixelPoint corner = cornerOf(*form_);
        translate();
        paintGround();
        moveTo(place::draggedTo({at.x - (at.x - corner.x) * growth, at.y - (at.y - corner.y) * growth},
                                sizeOf(*form_), screen));
    }
}

void KeyboardWindow::confirm()
{
    if (!isEnding()) {
        CONFIRMED.raise();
    }
}

void KeyboardWindow::end(Ending ending)
{
    if (isEnding()) {
        return;
    }
    ending_ = ending;
    form_->abortBegun(); // leaving it does nothing any more
    unload_->Enabled(true);
}

void KeyboardWindow::abortAtOnce()
{
    if (!isEnding()) {
        ending_ = Ending::Aborted;
    }
    form_->Unload();
}

} // namespace phial
