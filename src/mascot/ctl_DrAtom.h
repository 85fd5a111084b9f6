#pragma once

#include "mascot/AtomFace.h"
#include "mascot/AtomPictures.h"
#include "visual/PaintSurface.h"
#include "visual/Timer.h"
#include "visual/UserControl.h"

#include <memory>
#include <optional>

namespace phial
{

class cls_App;
class ctl_Bubble;

enum class enm_DrAtomMood : std::int32_t {
    ID_DrAtomMood_Custom = 0, ///< the look that the designer gave
    ID_DrAtomMood_Neutral = 1,
    ID_DrAtomMood_Happy = 2,
    ID_DrAtomMood_Angry = 3,
    ID_DrAtomMood_Upset = 4,
    ID_DrAtomMood_Surprised = 5,
    ID_DrAtomMood_Impatient = 6,
};

enum class enm_DrAtomBubbleMode : std::int32_t {
    ID_DrAtomBubbleMode_Idle = 0,
    ID_DrAtomBubbleMode_Say = 1,
    ID_DrAtomBubbleMode_Error = 2,
};

/// The mascot: a small atom with a face, 100 by 100 pixels whatever size it is given. Electrons circle it,
/// its eyes blink and look about, and it says things by a ctl_Bubble on the same form. One timer of 50
/// milliseconds drives it while it is seen and not DEAD, a slow one while it rests in silence; while another
/// window than its own is active it pauses, its text too.
///
/// A mood sets a whole look. A talk brings the happy or the angry one, and at its end the look from before
/// comes back, down to MOOD; what was set meanwhile of DEAD, BUBBLE and BUBBLEKEEP stays.
///
/// Random numbers are drawn in this order: at each tick two for the opening and the size of a talking mouth,
/// one for a blink unless one is on, then those of the eyes, see AtomGaze. REDRAW and whatever writes a
/// property draw those of the eyes. Painting draws none.
class ctl_DrAtom final : public UserControl
{
public:
    ctl_DrAtom();

    /// The animation is stopped for good.
    bool DEAD() const { return dead_; }
    void DEAD(bool value);
    /// Chance of a blink at each tick, in percent; 3 at first.
    std::int32_t EYEBLINKING() const { return eyeBlinking_; }
    void EYEBLINKING(std::int32_t value);
    /// Black at first.
    Colour EYECOLOR() const { return eyeColor_; }
    void EYECOLOR(Colour value);
    /// Degrees, 0 to the right and clockwise; EyesAhead for straight ahead. 0 at first; a bag without one
    /// gives EyesAhead. One turn too much or too little is taken off in the next frame.
    std::int32_t EYEDIRECTION() const { return eyeDirection_; }
    void EYEDIRECTION(std::int32_t value);
    enm_DrAtomEyeMove EYEMOVE() const { return eyeMove_; }
    void EYEMOVE(enm_DrAtomEyeMove value);
    /// Radius in pixels, 4 at first; 0 is a closed eye. A bag gets no size of a blink.
    std::int32_t EYESIZE() const { return eyeSize_; }
    void EYESIZE(std::int32_t value);
    /// The name of the balloon on the same form, without regard to case and blanks around it.
    String BUBBLE() const { return bubble_; }
    void BUBBLE(String value);
    /// The balloon stays when its text's time is over.
    bool BUBBLEKEEP() const { return bubbleKeep_; }
    void BUBBLEKEEP(bool value);
    /// The present mood sets nothing; a value without a name sets no look.
    enm_DrAtomMood MOOD() const { return mood_; }
    void MOOD(enm_DrAtomMood value);
    /// Positive open, near 0 a smile, negative a frown; held to -3 to 5 by the next frame. 0 at first; a bag
    /// without one gives 0.2.
    double MOUTHOPEN() const { return mouthOpen_; }
    void MOUTHOPEN(double value);
    /// Half of the mouth's width in pixels, 10 at first; held to 1 to 15 by the next frame.
    std::int32_t MOUTHSIZE() const { return mouthSize_; }
    void MOUTHSIZE(std::int32_t value);
    /// How many electrons, 8 at first; none from 0 down, and at most 360 are drawn.
    std::int32_t ORBS() const { return orbs_; }
    void ORBS(std::int32_t value);
    /// How fast they circle, 10 at first; negative the other way round.
    double ORBSPEED() const { return orbSpeed_; }
    void ORBSPEED(double value);

    /// The control's name, "_" and an identifier of its own, made when it is first read.
    String CTRLID() const;

    String BUBBLETEXT;         ///< what is said now
    double BUBBLETIME = 0;     ///< what is left of its time, in units of ten ticks
    double BUBBLESTART = 0;    ///< not used
    bool BUBBLECANCEL = false; ///< the text ends at the next tick; a click on the mascot sets it
    enm_DrAtomBubbleMode BUBBLEMODELAST{};
    enm_DrAtomBubbleMode BUBBLEMODE{};
    String BUBBLETEXTLAST;

    /// Says a text, with the sound of "say" or "wrong", for as long as it takes to read it: at least four
    /// units of ten ticks, less with a speed factor above 1. Nothing happens under the hourglass. Raises 91
    /// where BUBBLE names no balloon, and 11 for a speed factor of 0. `pGame` does not count.
    void BUBBLESAY(cls_App* pGame, StringView pText, bool pError = false);
    void BUBBLESAYSPEED(cls_App* pGame, StringView pText, bool pError = false, double pSpeedFactor = 1.0);
    void BUBBLEERROR(cls_App* pGame, StringView pText);
    /// Whether a text is being said.
    bool BUSY() const { return BUBBLEMODE != enm_DrAtomBubbleMode::ID_DrAtomBubbleMode_Idle; }
    /// Steps the look by one frame and marks it for painting.
    void REDRAW();
    /// Stops the timer.
    void DEINIT();

    /// Whether it may move; true at first. Where it may not, or CONFIG.EFFECTS or the desktop are against
    /// motion, electrons, eyes and mouth rest and only texts and moods change what is seen.
    bool moves() const { return moves_; }
    void moves(bool value);
    /// Whether screen readers are told what it says; true at first. For a program that tells them itself.
    bool announces() const { return announces_; }
    void announces(bool value) { announces_ = value; }

    Event<> CLICK;
    Event<> DBLCLICK;
    Event<> MouseDown;
    Event<> MouseUp;

    StringView typeName() const override { return u"ctl_DrAtom"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    bool keepsOwnSize() const override { return true; }
    void initProperties() override { resized(); }
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void shown() override { REDRAW(); }
    void hidden() override { animation_.Enabled(false); }
    void ended() override { animation_.Enabled(false); }
    void resized() override;
    void paint() override;
    void pointerDown(const PointerEvent&) override { MouseDown.raise(); }
    void pointerUp(const PointerEvent&) override { MouseUp.raise(); }
    void click() override;
    void doubleClick() override { DBLCLICK.raise(); }

private:
    struct Properties;

    /// What is painted: stepped by REDRAW alone.
    struct Frame {
        AtomFace face;
        double orbitPhase = 0; ///< radians
        std::int32_t electrons = 0;
    };

    void tick();
    bool mayMove() const;
    bool isBehind() const;
    void rest();
    void tickBubble();
    void countDown();
    void changeMoodForTalk();
    void blink();
    void eyeSizeChanged();
    std::int32_t eyeSizeWithoutBlink() const;

    void changeMood(enm_DrAtomMood look, enm_DrAtomMood stored);
    void takeMoodLook(enm_DrAtomMood mood);
    void saveLook();
    void restoreLook();

    void turnOrbit();
    void holdDirection();
    void turnEyes();
    std::optional<PixelPoint> pointer() const;
    void holdMouth();
    void keepFrame();
    void paintElectrons();
    std::shared_ptr<ctl_Bubble> balloon() const;
    void showBalloon(bool isError);

    ControlFrame frame_;
    PaintSurface surface_;
    Timer animation_;
    Connection ticking_;
    AtomPictures pictures_;
    mutable String id_;
    bool moves_ = true;
    bool announces_ = true;

    bool dead_ = false;
    std::int32_t eyeBlinking_ = 0;
    Colour eyeColor_;
    std::int32_t eyeDirection_ = 0;
    enm_DrAtomEyeMove eyeMove_{};
    std::int32_t eyeSize_ = 0;
    String bubble_;
    bool bubbleKeep_ = false;
    enm_DrAtomMood mood_{};
    double mouthOpen_ = 0;
    std::int32_t mouthSize_ = 0;
    std::int32_t orbs_ = 0;
    double orbSpeed_ = 0;

    double orbitPhase_ = 0; ///< radians
    AtomGaze gaze_;
    std::int32_t eyeSizeRemembered_ = 0; ///< to return to after a blink
    bool blinking_ = false;
    bool resting_ = false;
    enm_DrAtomBubbleMode lastBubbleMode_{};
    std::optional<PropertyBag> moodState_; ///< the look before the mood
    Frame shown_;
};

} // namespace phial
