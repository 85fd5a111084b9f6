#include "dialogs/ctl_Keys.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Palette.h"
#include "dialogs/KeySpeech.h"
#include "dialogs/KeyVariants.h"
#include "visual/PropertyRows.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial
{

namespace
{

constexpr KeyLayout NoKeys{};

bool repeats(StringView name)
{
    constexpr auto Repeating = std::to_array<StringView>({u"BACKSPACE", u"UP", u"LEFT", u"DOWN", u"RIGHT"});
    return std::ranges::find(Repeating, name) != Repeating.end();
}

KeyKind kindOf(const KeyBoard& board, const KeyDesign& key)
{
    const String& base = board.base(key.index);
    if (base == u"ENTER" || base == u"OK") {
        return KeyKind::Accept;
    }
    const bool isCharacter = key.tag.empty() || key.tag.size() == 1 || key.tag.starts_with(u'{');
    return isCharacter ? KeyKind::Character : KeyKind::Function;
}

PixelRectangle areaOfAll(std::span<const KeyDesign> keys)
{
    if (keys.empty()) {
        return {};
    }
    double left = keys.front().left;
    double top = keys.front().top;
    double right = left;
    double bottom = top;
    for (const KeyDesign& key : keys) {
        left = std::min(left, key.left);
        top = std::min(top, key.top);
        right = std::max(right, key.left + key.width);
        bottom = std::max(bottom, key.top + key.height);
    }
    return {left, top, right - left, bottom - top};
}

bool meet(const PixelRectangle& one, const PixelRectangle& other)
{
    return one.left < other.right() && other.left < one.right() && one.top < other.bottom() &&
           other.top < one.bottom();
}

/// Where the key is itself and no notch.
bool covers(const KeyLook& look, PixelPoint point)
{
    const bool isInNotch =
        point.x < look.area.left + look.notch && point.y >= look.area.top + look.area.height / 2;
    return look.area.contains(point) && !isInNotch;
}

} // namespace

struct ctl_Keys::Properties {
    static constexpr rows::Table Table{
        rows::property<u"BackColor">(&ctl_Keys::surface_, &PaintSurface::BackColor, &PaintSurface::BackColor,
                                     Palette::Ground),
    };
};

ctl_Keys::ctl_Keys()
    : frame_(*this), surface_(*this), timer_(u"tmr_Hold", HoldInterval), scanTimer_(u"tmr_Scan")
{
    frame_.takesTouch(true);
    ticking_ += timer_.Tick.connect([this] { hold(); });
    ticking_ += scanTimer_.Tick.connect([this] { stepScan(); });
    rows::start<Properties>(*this);
    layout(NoKeys);
}

MemberTable ctl_Keys::members() const
{
    return rows::membersOf<Properties>();
}

void ctl_Keys::layout(const KeyLayout& value)
{
    board_ = std::make_unique<KeyBoard>(value);
    hand_ = std::make_unique<KeyHand>(*board_);
    design_ = areaOfAll(value.keys);
    closeStrip();
    place();
    isPainted_ = false;
    runScan();
    surface_.invalidate();
}

// Places and looks.

double ctl_Keys::scale() const
{
    return design_.isEmpty() ? 1 : surface_.size().width / (design_.width / TwipsPerPixel);
}

/// Where a key stands. Edges are those of the device's pixels, so that neighbours meet and caps are not
/// blurred.
KeyLook ctl_Keys::placed(const KeyDesign& key) const
{
    const double pixels = scale() / TwipsPerPixel;
    const auto edge = [&](double twips) { return std::round(twips * pixels * ratio_) / ratio_; };
    KeyLook look;
    const double left = edge(key.left - design_.left);
    const double top = edge(key.top - design_.top);
    look.area = {left, top, edge(key.left + key.width - design_.left) - left,
                 edge(key.top + key.height - design_.top) - top};
    look.notch = key.notch * pixels;
    look.scale = scale();
    look.kind = kindOf(*board_, key);
    return look;
}

/// What changes of a look while one types.
void ctl_Keys::take(KeyLook& look, const KeyDesign& key) const
{
    look.face = board_->face(key.index);
    if (look.face.text.find(u'|') != String::npos) {
        look.face.text = LNG()->TRANSLATEAUTO(look.face.text);
    }
    look.state = board_->state(key.index);
    look.isPressed = hand_->isDown(key.index) && !board_->modifier(key.index);
}

void ctl_Keys::place()
{
    looks_.clear();
    for (const KeyDesign& key : board_->keys()) {
        looks_.push_back(placed(key));
    }
}

std::size_t ctl_Keys::positionOf(std::int32_t index) const
{
    const auto keys = board_->keys();
    const auto key = std::ranges::find(keys, index, &KeyDesign::index);
    if (key == keys.end()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return static_cast<std::size_t>(key - keys.begin());
}

PixelRectangle ctl_Keys::areaOf(std::int32_t index) const
{
    return looks_[positionOf(index)].area;
}

std::optional<std::int32_t> ctl_Keys::keyAt(PixelPoint point) const
{
    const auto look = std::ranges::find_if(looks_, [&](const KeyLook& each) { return covers(each, point); });
    return look == looks_.end()
               ? std::nullopt
               : std::optional(board_->keys()[static_cast<std::size_t>(look - looks_.begin())].index);
}

// Fingers.

void ctl_Keys::pointerDown(const PointerEvent& event)
{
    if (event.Button != PointerButton::Left || pressStrip(event)) {
        return;
    }
    const auto self = weak_from_this().lock();
    PRESSED.emit();
    if (scan_) {
        switchFinger_ = event.Touch;
        waitForHold();
        return;
    }
    const auto key = keyAt({event.X, event.Y});
    if (!key) {
        return;
    }
    const auto struck = hand_->press(event.Touch, *key);
    waitForHold();
    refresh();
    if (struck) {
        strike(*struck);
    }
}

/// What is held counts as such after its whole time.
void ctl_Keys::waitForHold()
{
    timer_.Enabled(false);
    timer_.Interval(HoldInterval);
    timer_.Enabled(true);
}

/// Whether the press is that of a character in the strip. One beside it closes the strip and is a press like
/// any other.
bool ctl_Keys::pressStrip(const PointerEvent& event)
{
    if (!strip_ || scan_) {
        return false;
    }
    const auto cell = strip_->cellAt({event.X, event.Y});
    if (!cell) {
        closeStrip();
        return false;
    }
    strip_->chosen(*cell);
    stripFinger_ = event.Touch;
    surface_.invalidate();
    return true;
}

void ctl_Keys::pointerMove(const PointerEvent& event)
{
    if (!strip_ || stripFinger_ != event.Touch) {
        return;
    }
    const auto cell = strip_->cellAt({event.X, event.Y});
    if (cell && *cell != strip_->chosen()) {
        strip_->chosen(*cell);
        surface_.invalidate();
    }
}

void ctl_Keys::pointerUp(const PointerEvent& event)
{
    if (event.Button != PointerButton::Left) {
        return;
    }
    const auto self = weak_from_this().lock();
    if (event.isCancelled) {
        hand_->drop(event.Touch);
    }
    const bool isSwitch = switchFinger_ == event.Touch && !event.isCancelled;
    const auto struck = hand_->release(event.Touch);
    if (switchFinger_ == event.Touch) {
        switchFinger_.reset();
    }
    timer_.Enabled(false);
    if (hand_->held()) { // by another finger
        waitForHold();
    }
    refresh();
    RELEASED.emit();
    if (struck) {
        strike(*struck);
    }
    if (isSwitch) {
        pressSwitch();
    }
    if (strip_ && stripFinger_ == event.Touch) {
        stripFinger_.reset();
        const auto cell = strip_->cellAt({event.X, event.Y});
        if (cell && !event.isCancelled) {
            chooseVariant(*cell);
        }
    }
}

void ctl_Keys::strike(std::int32_t index)
{
    const auto self = weak_from_this().lock();
    CLICK.emit(index);
    refresh();
}

void ctl_Keys::cancelPresses()
{
    hand_->cancel();
    switchFinger_.reset();
    timer_.Enabled(false);
    closeStrip();
    refresh();
}

/// What has been held for a while is struck again and again, or shows its variants.
void ctl_Keys::hold()
{
    const auto self = weak_from_this().lock();
    const auto held = hand_->held();
    if (held && repeats(board_->base(held->index))) {
        hand_->use();
        RELEASED.emit();
        timer_.Interval(RepeatInterval);
        strike(held->index);
        return;
    }
    timer_.Enabled(false);
    if (scan_ && switchFinger_) {
        holdSwitch();
    } else if (held && !held->isUsed && openVariantsOf(held->index)) {
        hand_->use();
        stripFinger_ = held->finger;
        RELEASED.emit();
    }
}

/// Gives whether the key has some.
bool ctl_Keys::openVariantsOf(std::int32_t index)
{
    const bool isCharacter = looks_[positionOf(index)].kind == KeyKind::Character;
    const String variants = offersVariants_ && isCharacter ? variantsOf(board_->face(index).text) : String();
    if (!variants.empty()) {
        openStrip(variants, index);
    }
    return !variants.empty();
}

// Variants.

void ctl_Keys::openStrip(const String& variants, std::int32_t index)
{
    strip_.emplace(variants, areaOf(index), surface_.size());
    frame_.report(ControlAspect::Accessibility);
    frame_.announce(spokenCharacter(String(1, strip_->character(0))));
    surface_.invalidate();
}

void ctl_Keys::closeStrip()
{
    if (strip_) {
        strip_.reset();
        stripFinger_.reset();
        frame_.report(ControlAspect::Accessibility);
        surface_.invalidate();
    }
}

void ctl_Keys::chooseVariant(std::size_t at)
{
    const auto self = weak_from_this().lock();
    const String character(1, strip_->character(at));
    closeStrip();
    VARIANT.emit(character);
    refresh();
}

void ctl_Keys::previewKey(KeyEvent& event)
{
    const bool isSwitch = scan_ && !event.isSent && (event.is(Key::Return) || event.is(Key::Space));
    if (isSwitch) {
        strikeSwitch(event);
    } else if (strip_ && !event.isSent) {
        goThroughStrip(event);
    }
}

void ctl_Keys::goThroughStrip(KeyEvent& event)
{
    const bool isStep = event.is(Key::Left) || event.is(Key::Right);
    const bool isChoice = event.is(Key::Return) || event.is(Key::Space);
    const bool isEnd = event.is(Key::Escape);
    if (isStep) {
        stepStrip(event.is(Key::Right));
    } else if (isChoice) {
        chooseVariant(strip_->chosen());
    } else {
        closeStrip();
    }
    if (isStep || isChoice || isEnd) {
        event.KeyCode = 0;
    }
}

void ctl_Keys::stepStrip(bool isForward)
{
    strip_->step(isForward);
    frame_.announce(spokenCharacter(String(1, strip_->character(strip_->chosen()))));
    surface_.invalidate();
}

// The scan.

void ctl_Keys::scanInterval(std::int32_t value)
{
    scanTimer_.Interval(value);
    runScan();
    surface_.invalidate();
}

/// From its beginning, as long as the keys are seen.
void ctl_Keys::runScan()
{
    const bool isRunning = isShown_ && scanTimer_.Interval() > 0;
    scan_ = isRunning ? std::optional<KeyScan>(board_->keys()) : std::nullopt;
    scanTimer_.Enabled(isRunning);
}

void ctl_Keys::shown()
{
    isShown_ = true;
    runScan();
}

void ctl_Keys::hidden()
{
    isShown_ = false;
    runScan();
    cancelPresses();
}

/// Variants light up instead of keys while they are shown, for two rounds.
void ctl_Keys::stepScan()
{
    if (!scan_) {
        return;
    }
    if (!strip_) {
        scan_->step();
        surface_.invalidate();
    } else if (++stripSteps_ < KeyScan::Rounds * strip_->count()) {
        stepStrip(true);
    } else {
        closeStrip();
    }
}

/// What lights up next has its whole time.
void ctl_Keys::restartScan()
{
    scanTimer_.Enabled(false);
    scanTimer_.Enabled(true);
    surface_.invalidate();
}

void ctl_Keys::strikeSwitch(KeyEvent& event)
{
    event.KeyCode = 0;
    if (!event.isRepeat) {
        pressSwitch();
    }
}

void ctl_Keys::pressSwitch()
{
    if (!scan_) {
        return;
    }
    const auto self = weak_from_this().lock();
    restartScan();
    if (strip_) {
        chooseVariant(strip_->chosen());
    } else if (const auto index = scan_->press()) {
        board_->press(*index);
        strike(*index);
    }
}

/// A held switch has been used: letting it go does nothing more.
void ctl_Keys::holdSwitch()
{
    const auto lit = scan_->lit();
    if (!strip_ && lit.size() == 1 && openVariantsOf(lit.front())) {
        switchFinger_.reset();
        stripSteps_ = 0;
        scan_->press();
        restartScan();
        RELEASED.emit();
    }
}

/// A frame around what the switch would choose.
void ctl_Keys::paintLight()
{
    constexpr double Width = 4;
    const auto lit = scan_ ? scan_->lit() : std::vector<std::int32_t>();
    if (lit.empty()) {
        return;
    }
    const PixelRectangle first = areaOf(lit.front());
    const PixelRectangle last = areaOf(lit.back());
    const double inset = Width / 2;
    DrawDevice& device = surface_.device();
    device.DrawWidth(Width);
    device.Line(first.left + inset, first.top + inset, last.right() - 1 - inset, first.bottom() - 1 - inset,
                Palette::FocusRing, LineShape::Box);
    device.DrawWidth(1);
}

// What is seen and told.

void ctl_Keys::resized()
{
    closeStrip();
    place();
    isPainted_ = false;
    surface_.resized();
}

void ctl_Keys::paint()
{
    DrawDevice& device = surface_.device();
    const PicturePtr image = device.Image();
    ratio_ = image ? image->pixelRatio() : 1;
    place();
    device.Cls();
    const auto keys = board_->keys();
    for (std::size_t at = 0; at < keys.size(); ++at) {
        take(looks_[at], keys[at]);
        painter_.paint(device, looks_[at]);
    }
    paintLight();
    paintStrip();
    isPainted_ = true;
}

void ctl_Keys::refresh()
{
    if (!isPainted_) {
        return;
    }
    const auto keys = board_->keys();
    std::vector<std::size_t> stale;
    for (std::size_t at = 0; at < keys.size(); ++at) {
        KeyLook look = looks_[at];
        take(look, keys[at]);
        if (!(look == looks_[at])) {
            looks_[at] = std::move(look);
            stale.push_back(at);
        }
    }
    if (!stale.empty()) {
        frame_.report(ControlAspect::Accessibility);
        repaint(stale);
    }
}

/// Keys whose boxes meet an erased one are painted again with it.
void ctl_Keys::repaint(const std::vector<std::size_t>& stale)
{
    if (strip_ || scan_) {
        surface_.invalidate();
        return;
    }
    DrawDevice& device = surface_.device();
    for (const std::size_t at : stale) {
        const PixelRectangle& area = looks_[at].area;
        device.Line(area.left, area.top, area.right() - 1, area.bottom() - 1, surface_.BackColor(),
                    LineShape::Filled);
    }
    for (const KeyLook& look : looks_) {
        if (std::ranges::any_of(stale, [&](std::size_t at) { return meet(look.area, looks_[at].area); })) {
            painter_.paint(device, look);
        }
    }
}

void ctl_Keys::paintStrip()
{
    if (!strip_) {
        return;
    }
    DrawDevice& device = surface_.device();
    const PixelRectangle& all = strip_->area();
    device.Line(all.left, all.top, all.right() - 1, all.bottom() - 1, Palette::AccentSoft, LineShape::Filled);
    device.Line(all.left, all.top, all.right() - 1, all.bottom() - 1, Palette::Accent, LineShape::Box);
    for (std::size_t at = 0; at < strip_->count(); ++at) {
        KeyLook look;
        look.area = strip_->cell(at);
        look.scale = scale();
        look.face.text = String(1, strip_->character(at));
        look.isPressed = at == strip_->chosen();
        painter_.paint(device, look);
    }
}

std::vector<NamedPart> ctl_Keys::parts() const
{
    std::vector<NamedPart> all;
    const String press = LNG()->TRANSLATE(u"Drücken", u"Press");
    for (const KeyDesign& key : board_->keys()) {
        const KeyState state = board_->state(key.index);
        all.push_back({.area = looks_[all.size()].area,
                       .role = PartRole::Button,
                       .name = spokenKey(*board_, key.index),
                       .action = press,
                       .state = {.pressed = state == KeyState::Once,
                                 .checkable = board_->modifier(key.index).has_value(),
                                 .checked = state == KeyState::Locked}});
    }
    for (std::size_t at = 0; strip_ && at < strip_->count(); ++at) {
        all.push_back({.area = strip_->cell(at),
                       .role = PartRole::Button,
                       .name = spokenCharacter(String(1, strip_->character(at))),
                       .action = press,
                       .state = {.pressed = at == strip_->chosen()}});
    }
    return all;
}

void ctl_Keys::activatePart(std::size_t part)
{
    const auto keys = board_->keys();
    if (part < keys.size()) {
        const std::int32_t index = keys[part].index;
        board_->press(index);
        refresh();
        strike(index);
    } else if (strip_ && part - keys.size() < strip_->count()) {
        chooseVariant(part - keys.size());
    }
}

} // namespace phial
