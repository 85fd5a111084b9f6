#include "mascot/ctl_DrAtom.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/CoreDisplay.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/RandomSource.h"
#include "core/SessionState.h"
#include "mascot/ctl_Bubble.h"
#include "media/cls_AppMedia.h"
#include "visual/Form.h"
#include "visual/PointerPlace.h"
#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace phial
{

namespace
{

using AtomMood = enm_DrAtomMood;
using BubbleMode = enm_DrAtomBubbleMode;
using EyeMove = enm_DrAtomEyeMove;

constexpr double AtomEdge = 100;                   // pixels
constexpr std::int32_t FrameTime = 50;             // milliseconds
constexpr std::int32_t RestTime = 500;             // between looks whether there is something to do again
constexpr double OrbitTurn = 6.28318;              // radians
constexpr double PhaseStep = OrbitTurn / 100 / 10; // by the orbit's speed
constexpr double OrbitRadius = 40;
constexpr double OrbitRise = 5; // of the orbit's middle over the control's
constexpr std::int32_t MostElectrons = 360;

constexpr double TickTime = 0.1; // in units of a text's time
constexpr double LettersPerUnit = 5.5;
constexpr double ShortTime = 30; // below which a text gets half as much again
constexpr double ShortTimeFactor = 1.5;
constexpr double LeastTime = 4;

/// What a mood sets.
struct MoodLook {
    double orbSpeed;
    std::int32_t eyeBlinking;
    EyeMove eyeMove;
    std::int32_t eyeSize;
    double mouthOpen;
    std::int32_t mouthSize;
    Colour eyeColour;
};

/// From Neutral on.
constexpr auto MoodLooks = std::to_array<MoodLook>({
    {10, 3, EyeMove::ID_DrAtomEyeMove_MouseTracking, 4, 1, 8, RGB(0, 0, 0)},
    {10, 1, EyeMove::ID_DrAtomEyeMove_None, 4, 0, 15, RGB(0, 0, 0)},
    {30, 10, EyeMove::ID_DrAtomEyeMove_Smooth, 7, -2, 12, QBColor(12)},
    {-20, 30, EyeMove::ID_DrAtomEyeMove_Insane, 6, 8, 8, QBColor(0)},
    {10, 10, EyeMove::ID_DrAtomEyeMove_Smooth, 8, 20, 8, QBColor(9)},
    {30, 10, EyeMove::ID_DrAtomEyeMove_RollingRight, 5, 0.2, 6, QBColor(0)},
});

struct BalloonColours {
    Colour text;
    bool isBold;
    Colour border;
    Colour fill;
};
constexpr BalloonColours SayColours{QBColor(0), false, QBColor(6), RGB(255, 255, 150)};
constexpr BalloonColours ErrorColours{QBColor(15), true, QBColor(4), QBColor(12)};

RandomSource& chance()
{
    return *SessionState::current().platform().random;
}

double readingTime(std::size_t letters, double speedFactor)
{
    double time = checkedDivide(static_cast<double>(letters), speedFactor * LettersPerUnit);
    if (time < ShortTime) {
        time = ShortTimeFactor / speedFactor * time;
    }
    return std::max(time, LeastTime / speedFactor);
}

} // namespace

struct ctl_DrAtom::Properties {
    static constexpr rows::Table Table{
        rows::property<u"DEAD">(&ctl_DrAtom::dead_).kept(),
        rows::property<u"EYEBLINKING">(&ctl_DrAtom::eyeBlinking_, 3).kept(),
        rows::property<u"EYECOLOR">(&ctl_DrAtom::eyeColor_, Colour{}).kept(),
        rows::property<u"EYEDIRECTION">(&ctl_DrAtom::eyeDirection_, EyesAhead).kept().fresh(0),
        rows::property<u"EYEMOVE">(&ctl_DrAtom::eyeMove_).kept(),
        rows::property<u"EYESIZE">(&ctl_DrAtom::eyeSize_, 4)
            .kept()
            .keptAs(&ctl_DrAtom::eyeSizeWithoutBlink)
            .then(&ctl_DrAtom::eyeSizeChanged),
        rows::property<u"BUBBLE">(&ctl_DrAtom::bubble_).kept(u"BUBLE"),
        rows::property<u"BUBBLEKEEP">(&ctl_DrAtom::bubbleKeep_).kept(),
        rows::property<u"MOOD">(&ctl_DrAtom::mood_).kept().through(&ctl_DrAtom::MOOD, &ctl_DrAtom::MOOD),
        rows::property<u"MOUTHOPEN">(&ctl_DrAtom::mouthOpen_, 0.2).kept().fresh(0),
        rows::property<u"MOUTHSIZE">(&ctl_DrAtom::mouthSize_, 10).kept(),
        rows::property<u"ORBS">(&ctl_DrAtom::orbs_, 8).kept(),
        rows::property<u"ORBSPEED">(&ctl_DrAtom::orbSpeed_, 10.0).kept(u"ORBSPPED"),
        rows::readOnly<u"CTRLID">(&ctl_DrAtom::CTRLID),
        rows::operation<u"REDRAW">(&ctl_DrAtom::REDRAW),
        rows::operation<u"DEINIT">(&ctl_DrAtom::DEINIT),
    };
    static constexpr bool Always = true;
    static constexpr auto Effect = &ctl_DrAtom::REDRAW;
};

ctl_DrAtom::ctl_DrAtom() : frame_(*this), surface_(*this), animation_(u"tmr_Animation", FrameTime)
{
    surface_.transparent(true);
    surface_.device().MaskColor(AtomPictures::Key);
    ticking_ = animation_.Tick.connect([this] { tick(); });
    rows::start<Properties>(*this);
    gaze_ = {eyeDirection_, eyeDirection_};
    keepFrame();
}

MemberTable ctl_DrAtom::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_DrAtom::DEAD(bool value) { rows::set<Properties, u"DEAD">(*this, value); }
void ctl_DrAtom::EYEBLINKING(std::int32_t value) { rows::set<Properties, u"EYEBLINKING">(*this, value); }
void ctl_DrAtom::EYECOLOR(Colour value) { rows::set<Properties, u"EYECOLOR">(*this, value); }
void ctl_DrAtom::EYEDIRECTION(std::int32_t value) { rows::set<Properties, u"EYEDIRECTION">(*this, value); }
void ctl_DrAtom::EYEMOVE(enm_DrAtomEyeMove value) { rows::set<Properties, u"EYEMOVE">(*this, value); }
void ctl_DrAtom::EYESIZE(std::int32_t value) { rows::set<Properties, u"EYESIZE">(*this, value); }
void ctl_DrAtom::BUBBLE(String value) { rows::set<Properties, u"BUBBLE">(*this, std::move(value)); }
void ctl_DrAtom::BUBBLEKEEP(bool value) { rows::set<Properties, u"BUBBLEKEEP">(*this, value); }
void ctl_DrAtom::MOUTHOPEN(double value) { rows::set<Properties, u"MOUTHOPEN">(*this, value); }
void ctl_DrAtom::MOUTHSIZE(std::int32_t value) { rows::set<Properties, u"MOUTHSIZE">(*this, value); }
void ctl_DrAtom::ORBS(std::int32_t value) { rows::set<Properties, u"ORBS">(*this, value); }
void ctl_DrAtom::ORBSPEED(double value) { rows::set<Properties, u"ORBSPEED">(*this, value); }
// clang-format on

String ctl_DrAtom::CTRLID() const
{
    if (id_.empty()) {
        id_ = NAME() + u"_" + coreRoot().CoreSystem().CoreMachine().NewUniqueID();
    }
    return id_;
}

/// A look that is read during a talk is the one that comes back at its end.
void ctl_DrAtom::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    eyeSizeRemembered_ = eyeSize_;
    moodState_.reset();
    if (lastBubbleMode_ != BubbleMode::ID_DrAtomBubbleMode_Idle) {
        saveLook();
    }
    keepFrame();
}

void ctl_DrAtom::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_DrAtom::eyeSizeChanged()
{
    eyeSizeRemembered_ = eyeSize_;
    REDRAW();
}

std::int32_t ctl_DrAtom::eyeSizeWithoutBlink() const
{
    return eyeSize_ == 0 && eyeSizeRemembered_ != 0 ? eyeSizeRemembered_ : eyeSize_;
}

void ctl_DrAtom::MOOD(enm_DrAtomMood value)
{
    if (value != mood_) {
        changeMood(value, value);
    }
}

/// `stored` differs from the look where that of a designer who chose a mood comes back.
void ctl_DrAtom::changeMood(enm_DrAtomMood look, enm_DrAtomMood stored)
{
    if (look == AtomMood::ID_DrAtomMood_Custom) {
        restoreLook();
    } else {
        saveLook();
        takeMoodLook(look);
    }
    eyeSizeRemembered_ = eyeSize_;
    mood_ = stored;
    rows::report<Properties, u"MOOD">(*this);
}

void ctl_DrAtom::takeMoodLook(enm_DrAtomMood mood)
{
    const std::int64_t row = std::int64_t{static_cast<std::int32_t>(mood)} - 1;
    if (row < 0 || row >= std::ssize(MoodLooks)) {
        return;
    }
    const MoodLook& look = MoodLooks.at(static_cast<std::size_t>(row));
    orbSpeed_ = look.orbSpeed;
    eyeBlinking_ = look.eyeBlinking;
    eyeMove_ = look.eyeMove;
    eyeSize_ = look.eyeSize;
    mouthOpen_ = look.mouthOpen;
    mouthSize_ = look.mouthSize;
    eyeColor_ = look.eyeColour;
    eyeDirection_ = EyesAhead;
}

/// From one mood to the next the designer's look stays the one that was saved.
void ctl_DrAtom::saveLook()
{
    if (!moodState_) {
        moodState_.emplace();
        writeProperties(*moodState_);
    }
}

/// What the host has said meanwhile of the animation and the balloon stays. A talk that goes on needs the
/// look again at its end.
void ctl_DrAtom::restoreLook()
{
    if (!moodState_) {
        return;
    }
    const bool dead = dead_;
    const bool bubbleKeep = bubbleKeep_;
    const String bubble = bubble_;
    rows::read<Properties>(*this, *moodState_);
    dead_ = dead;
    bubbleKeep_ = bubbleKeep;
    bubble_ = bubble;
    if (!BUSY()) {
        moodState_.reset();
    }
}

void ctl_DrAtom::tick()
{
    const auto self = weak_from_this().lock(); // a handler may take the control away
    if (dead_) {
        animation_.Enabled(false);
        return;
    }
    if (isBehind()) {
        return;
    }
    const bool wasResting = std::exchange(resting_, !mayMove());
    tickBubble();
    animation_.Interval(resting_ && !BUSY() ? RestTime : FrameTime);
    if (resting_) {
        if (!wasResting) {
            rest();
        }
        return;
    }
    orbitPhase_ += PhaseStep * orbSpeed_;
    blink();
    REDRAW();
    if (!blinking_ && eyeSizeRemembered_ != 0) {
        eyeSize_ = eyeSizeRemembered_;
    }
}

void ctl_DrAtom::moves(bool value)
{
    moves_ = value;
    animation_.Interval(FrameTime);
}

bool ctl_DrAtom::mayMove() const
{
    return moves_ && QVAPP()->CONFIG()->EFFECTS() && !coreRoot().CoreDisplay().ReducesMotion();
}

/// Whether another window than its own is active, or none of the program's.
bool ctl_DrAtom::isBehind() const
{
    const auto form = frame_.form();
    return form && visualHost().screen().ActiveForm() != form;
}

void ctl_DrAtom::rest()
{
    if (blinking_) {
        blinking_ = false;
        eyeSize_ = eyeSizeRemembered_;
    }
    REDRAW();
}

/// A blink is two frames: the one in which it begins and the next.
void ctl_DrAtom::blink()
{
    if (blinking_) {
        blinking_ = false;
        eyeSize_ = 0;
    } else if (chance().next() * 100 < eyeBlinking_) {
        eyeSizeRemembered_ = eyeSize_;
        eyeSize_ = 0;
        blinking_ = true;
    }
}

void ctl_DrAtom::tickBubble()
{
    if (BUSY()) {
        countDown();
    }
    if (BUBBLEMODE != lastBubbleMode_) {
        changeMoodForTalk();
    }
    if (BUSY() && !resting_) {
        mouthOpen_ = chance().next() * 3 + 1;
        mouthSize_ = toWhole(chance().next() * 8 + 5);
    }
    lastBubbleMode_ = BUBBLEMODE;
}

void ctl_DrAtom::countDown()
{
    BUBBLETIME -= TickTime;
    if (BUBBLETIME > 0 && !BUBBLECANCEL) {
        return;
    }
    BUBBLETIME = 0;
    BUBBLECANCEL = false;
    BUBBLEMODE = BubbleMode::ID_DrAtomBubbleMode_Idle;
    if (const auto shown = bubbleKeep_ ? nullptr : balloon()) {
        shown->Visible(false);
    }
}

void ctl_DrAtom::changeMoodForTalk()
{
    if (BUSY()) {
        saveLook();
        MOOD(BUBBLEMODE == BubbleMode::ID_DrAtomBubbleMode_Error ? AtomMood::ID_DrAtomMood_Angry
                                                                 : AtomMood::ID_DrAtomMood_Happy);
    } else if (moodState_) {
        const Variant designed = moodState_->ReadProperty(u"MOOD", 0);
        changeMood(AtomMood::ID_DrAtomMood_Custom, static_cast<AtomMood>(designed.toWhole()));
    }
}

void ctl_DrAtom::BUBBLESAY(cls_App* pGame, StringView pText, bool pError)
{
    BUBBLESAYSPEED(pGame, pText, pError);
}

void ctl_DrAtom::BUBBLEERROR(cls_App* pGame, StringView pText)
{
    BUBBLESAY(pGame, pText, true);
}

void ctl_DrAtom::BUBBLESAYSPEED(cls_App* /*pGame*/, StringView pText, bool pError, double pSpeedFactor)
{
    if (visualHost().screen().MousePointer() == MousePointer::Hourglass) {
        return;
    }
    const auto self = weak_from_this().lock(); // a handler may take the control away
    BUBBLECANCEL = false;
    BUBBLEMODELAST = pError ? BubbleMode::ID_DrAtomBubbleMode_Error : BubbleMode::ID_DrAtomBubbleMode_Say;
    QVAPP()->MEDIA()->PLAYCATEGORY(pError ? u"wrong" : u"say", false);
    BUBBLETEXTLAST = BUBBLETEXT = pText;
    BUBBLEMODE = BUBBLEMODELAST;
    BUBBLETIME = readingTime(pText.size(), pSpeedFactor);
    animation_.Interval(FrameTime);
    showBalloon(pError);
}

void ctl_DrAtom::showBalloon(bool isError)
{
    const auto shown = balloon();
    if (!shown) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    const BalloonColours& colours = isError ? ErrorColours : SayColours;
    shown->TEXTCOLOR(colours.text);
    shown->TEXTFONT()->Bold(colours.isBold);
    shown->BORDERCOLOR(colours.border);
    shown->FILLCOLOR(colours.fill);
    shown->TEXT(BUBBLETEXT);
    shown->Visible(true);
    if (announces_) {
        frame_.announce(shown->accessibleText());
    }
}

std::shared_ptr<ctl_Bubble> ctl_DrAtom::balloon() const
{
    const String name = trimmed(bubble_);
    const auto parent = frame_.Parent();
    for (std::size_t at = 0; parent && at < parent->controlCount(); ++at) {
        const auto found = std::dynamic_pointer_cast<ctl_Bubble>(parent->controlAt(at));
        if (found && equalsIgnoringCase(found->NAME(), name)) {
            return found;
        }
    }
    return nullptr;
}

void ctl_DrAtom::REDRAW()
{
    animation_.Enabled(!dead_);
    turnOrbit();
    holdDirection();
    turnEyes();
    holdMouth();
    keepFrame();
    surface_.invalidate();
}

/// One turn at most is taken off or added, so that speeds of any size do no harm but to the order.
void ctl_DrAtom::turnOrbit()
{
    if (!std::isfinite(orbitPhase_)) {
        orbitPhase_ = 0;
    } else if (orbitPhase_ < 0) {
        orbitPhase_ += OrbitTurn;
    } else if (orbitPhase_ > OrbitTurn) {
        orbitPhase_ -= OrbitTurn;
    }
}

void ctl_DrAtom::holdDirection()
{
    constexpr std::int32_t Circle = 360;
    if (eyeDirection_ == EyesAhead) {
        return;
    }
    eyeDirection_ -= eyeDirection_ >= Circle ? Circle : 0;
    eyeDirection_ += eyeDirection_ < 0 ? Circle : 0;
}

void ctl_DrAtom::turnEyes()
{
    if (eyeMove_ == EyeMove::ID_DrAtomEyeMove_MouseTracking && !resting_) {
        gaze_.follow(pointer());
    } else {
        gaze_.step(resting_ ? EyeMove::ID_DrAtomEyeMove_None : eyeMove_, eyeDirection_, chance());
    }
}

std::optional<PixelPoint> ctl_DrAtom::pointer() const
{
    return pointerFrom(frame_);
}

void ctl_DrAtom::holdMouth()
{
    mouthOpen_ = std::clamp(mouthOpen_, -3.0, 5.0);
    mouthSize_ = std::clamp(mouthSize_, 1, 15);
}

void ctl_DrAtom::keepFrame()
{
    shown_ = {{eyeColor_, eyeSize_, gaze_, mouthOpen_, mouthSize_}, orbitPhase_, orbs_};
}

void ctl_DrAtom::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const PixelSize size = surface_.size();
    pictures_.paintHead(device, {double{1} * toWhole(size.width), double{1} * toWhole(size.height)});
    paintElectrons();
    shown_.face.paint(device);
    surface_.MaskPicture(device.Image());
}

void ctl_DrAtom::paintElectrons()
{
    if (shown_.electrons <= 0) {
        return;
    }
    const PixelSize all = surface_.size();
    const PixelSize one = pictures_.electronSize();
    const double left = all.width / 2 - one.width / 2;
    const double top = all.height / 2 - one.height / 2 - OrbitRise;
    const double step = OrbitTurn / std::min(shown_.electrons, MostElectrons);
    for (double angle = 0; angle <= OrbitTurn; angle += step) {
        const double at = angle + shown_.orbitPhase;
        pictures_.paintElectron(surface_.device(), {double{1} * toWhole(std::cos(at) * OrbitRadius + left),
                                                    double{1} * toWhole(std::sin(at) * OrbitRadius + top)});
    }
}

void ctl_DrAtom::DEINIT()
{
    animation_.Enabled(false);
}

/// Nothing that goes wrong here is told.
void ctl_DrAtom::resized()
{
    surface_.resized();
    const PixelRectangle place = frame_.pixelRectangle();
    if (place.width != AtomEdge || place.height != AtomEdge) {
        ignoringErrors([&] { frame_.pixelRectangle({place.left, place.top, AtomEdge, AtomEdge}); });
    }
}

void ctl_DrAtom::click()
{
    BUBBLECANCEL = true;
    CLICK.raise();
}

} // namespace phial
