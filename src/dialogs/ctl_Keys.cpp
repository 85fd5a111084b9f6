#include "dialogs/ctl_Keys.h"

#include "core/Palette.h"
#include "dialogs/KeyParts.h"
#include "visual/PropertyRows.h"

#include <algorithm>
#include <array>
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

} // namespace

struct ctl_Keys::Properties {
    static constexpr rows::Table Table{
        rows::property<u"BackColor">(&ctl_Keys::surface_, &PaintSurface::BackColor, &PaintSurface::BackColor,
                                     Palette::Ground),
    };
};

ctl_Keys::ctl_Keys()
    : frame_(*this), surface_(*this), sheet_(surface_), timer_(u"tmr_Hold", HoldInterval),
      scanTimer_(u"tmr_Scan")
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
    closeStrip();
    sheet_.layout(*board_, *hand_);
    runScan();
    surface_.invalidate();
}

// Fingers.

void ctl_Keys::pointerDown(const PointerEvent& event)
{
    if (event.Button != PointerButton::Left || pressStrip(event)) {
        return;
    }
    const auto self = weak_from_this().lock();
    isPressTaken_ = true;
    PRESSED.raise(event);
    if (!isPressTaken_) {
        return;
    }
    if (scan_) {
        switchFinger_ = event.Touch;
        waitForHold();
        return;
    }
    const auto key = sheet_.keyAt({event.X, event.Y});
    if (!key) {
        return;
    }
    if (const auto struck = hand_->strikeBefore(event.Touch)) {
        strike(*struck);
    }
    if (isShown_) { // the key may have closed the window
        hand_->press(event.Touch, *key);
        waitForHold();
        refresh();
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
    const auto self = weak_from_this().lock();
    MOVED.raise(event);
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
    RELEASED.raise(event.Touch);
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
    CLICK.raise(index);
    refresh();
}

void ctl_Keys::cancelPresses()
{
    isPressTaken_ = false;
    hand_->cancel();
    switchFinger_.reset();
    switchKey_.reset();
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
        RELEASED.raise(held->finger);
        timer_.Interval(RepeatInterval);
        strike(held->index);
        return;
    }
    timer_.Enabled(false);
    if (scan_ && (switchFinger_ || switchKey_)) {
        holdSwitch();
    } else if (held && !held->isUsed && showVariants(held->index)) {
        hand_->use();
        stripFinger_ = held->finger;
        RELEASED.raise(held->finger);
    }
}

bool ctl_Keys::showVariants(std::int32_t index)
{
    const bool isCharacter = sheet_.kindOf(index) == KeyKind::Character;
    return offersVariants_ && isCharacter && showVariants(source_(*board_, index), index);
}

// Variants.

bool ctl_Keys::showVariants(std::vector<KeyVariant> variants, std::int32_t index)
{
    if (variants.empty()) {
        return false;
    }
    stripFinger_.reset();
    stripSteps_ = 0;
    strip_.emplace(std::move(variants), areaOf(index), surface_.size());
    frame_.report(ControlAspect::Accessibility);
    tellChosen();
    return true;
}

/// What keys, fingers or the scan have reached in the strip.
void ctl_Keys::tellChosen()
{
    frame_.announce(strip_->variant(strip_->chosen()).spoken);
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
    const String text = strip_->variant(at).text;
    closeStrip();
    VARIANT.raise(text);
    refresh();
}

void ctl_Keys::previewKey(KeyEvent& event)
{
    const bool isSwitch = scan_ && !event.isSent && (event.is(Key::Return) || event.is(Key::Space));
    if (isSwitch) {
        if (!event.isRepeat) {
            switchKey_ = event.KeyCode;
            waitForHold();
        }
        event.KeyCode = 0;
    } else if (strip_ && !event.isSent) {
        goThroughStrip(event);
    }
}

void ctl_Keys::previewKeyUp(KeyEvent& event)
{
    if (switchKey_ == event.KeyCode) {
        switchKey_.reset();
        timer_.Enabled(false);
        event.KeyCode = 0;
        pressSwitch();
    }
}

void ctl_Keys::goThroughStrip(KeyEvent& event)
{
    const bool isStep = event.is(Key::Left) || event.is(Key::Right);
    const bool isRowStep = strip_->rows() > 1 && (event.is(Key::Up) || event.is(Key::Down));
    const bool isChoice = event.is(Key::Return) || event.is(Key::Space);
    const bool isEnd = event.is(Key::Escape);
    if (isStep) {
        stepStrip(event.is(Key::Right));
    } else if (isRowStep) {
        strip_->stepRow(event.is(Key::Down));
        tellChosen();
    } else if (isChoice) {
        if (!event.isRepeat) { // the key may have opened the strip
            chooseVariant(strip_->chosen());
        }
    } else {
        closeStrip();
    }
    if (isStep || isRowStep || isChoice || isEnd) {
        event.KeyCode = 0;
    }
}

void ctl_Keys::stepStrip(bool isForward)
{
    strip_->step(isForward);
    tellChosen();
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
    if (strip_ || lit.size() != 1 || !showVariants(lit.front())) {
        return;
    }
    const auto finger = std::exchange(switchFinger_, std::nullopt);
    switchKey_.reset();
    stripSteps_ = 0;
    scan_->press();
    restartScan();
    if (finger) {
        RELEASED.raise(*finger);
    }
}

// What is seen and told.

void ctl_Keys::resized()
{
    closeStrip();
    sheet_.resized();
    surface_.resized();
}

void ctl_Keys::paint()
{
    sheet_.paint();
    if (scan_) {
        sheet_.paintLight(scan_->lit());
    }
    if (strip_) {
        sheet_.paintStrip(*strip_);
    }
}

void ctl_Keys::refresh()
{
    if (!sheet_.refresh()) {
        return;
    }
    frame_.report(ControlAspect::Accessibility);
    if (strip_ || scan_) { // they lie on keys
        surface_.invalidate();
    }
}

std::vector<NamedPart> ctl_Keys::parts() const
{
    return keyParts(*board_, sheet_, strip_);
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
