#pragma once

#include "dialogs/TargetText.h"
#include "visual/DesignedForm.h"
#include "visual/Timer.h"

#include <memory>
#include <optional>
#include <vector>

namespace phial
{

/// What the windows of all keyboards have in common; each keyboard's form holds one. It knows nothing of
/// keys.
///
/// The window has round corners and no frame. It opens beside the target, or around the pointer; it is
/// dragged by whatever lies on it, keys included, and where the user has left it the next keyboard opens. Its
/// size follows the screen (see KeyboardPlace.h), that to which it is dragged too. It ends a moment after OK
/// or abort, so that no key ends the form in which it is being handled.
///
/// The form's design is in pixels at scale 1, and the head, 68 pixels high, is free from 228 pixels at the
/// left to 66 pixels at the right for what one types into. In a narrow window the words end before the cross,
/// and what one types into stands below the head. The controls of the window are added to it.
class KeyboardWindow
{
public:
    /// What happens when the user goes to another window.
    enum class Leaving : std::uint8_t {
        Stays,    ///< nothing
        Confirms, ///< as if OK had been pressed
    };

    static constexpr double KeyPitch = 48;

    /// The form outlives the window. The pitch is from one to the next of the least parts that are tapped, in
    /// pixels at scale 1: keys, where nothing is smaller.
    KeyboardWindow(DesignedForm& form, Leaving leaving, double pitch = KeyPitch);

    /// Where the words stand, in pixels at scale 1, on a form whose head is another one. Before it opens.
    void placeWords(const PixelRectangle& area);

    // The contract of all dialogs for input.
    /// The control whose text is edited, held weakly; none at first.
    const TargetText& target() const { return target_; }
    void target(const ObjectPtr& value) { target_ = TargetText(value); }
    /// What is asked for; the usual words where it is empty.
    const String& title() const { return title_; }
    void title(String value) { title_ = std::move(value); }
    /// Whether the user has confirmed.
    bool isAccepted() const { return ending_ == Ending::Accepted; }
    /// Whether the user has confirmed or given up.
    bool isEnding() const { return ending_ != Ending::Open; }

    /// For the form's Load: gives the window its size, its ground and its place.
    void open();
    /// How much larger than designed all is shown; 1 until it opens. A drag to another screen can change it.
    double scale() const { return scale_; }
    /// All that stands on the window has another size, its fonts among it.
    Event<> SCALED;
    /// Puts the words of the window in the language in force, behind the translation of the form.
    void translate();
    /// What is asked for, as it is shown.
    String question() const;

    // Something on the window, such as a key, is pressed: that may become a drag. The press is followed that
    // has come last, until a drag has begun; while one is on no other press counts. Presses are told by their
    // number, which is 0 for the pointer and for what goes with it.
    void press(const Control& part, const PointerEvent& event);
    void move(const Control& part, const PointerEvent& event);
    /// It has ended, or cannot become a drag any more.
    void release(std::int32_t touch = 0);
    bool isDragged() const { return cornerAtStart_.has_value(); }

    /// The user has confirmed without a key, by Return or by leaving the window.
    Event<> CONFIRMED;
    /// A press has turned out to be a drag, and is to do nothing else; nor is one that has come while a drag
    /// is on.
    Event<> DRAGGED;

    /// The user has confirmed, or given up: the window closes in a moment. The first of these counts.
    void accept() { end(Ending::Accepted); }
    void abort() { end(Ending::Aborted); }
    /// Gives up and closes at once.
    void abortAtOnce();

private:
    enum class Ending : std::uint8_t { Open, Accepted, Aborted };

    /// A control of the window as it was designed.
    struct Designed {
        ControlPtr control;
        PixelRectangle area;
        double fontSize = 0; ///< 0 for one without a font
    };

    void connect();
    void connectGround();
    void noteDesign();
    double scaleOn(const PixelRectangle& screen) const;
    void scaleTo(double scale);
    void press(std::int32_t touch, std::optional<PixelPoint> at);
    std::optional<PixelPoint> pressedAt() const;
    PixelPoint onDesktop(const Control& part, const PointerEvent& event) const;
    void fitToScreen();
    void paintGround();
    void moveTo(PixelPoint corner);
    void followPointer();
    void confirm();
    void end(Ending ending);

    DesignedForm& form_;
    double pitch_;
    std::shared_ptr<Timer> dragging_;
    std::shared_ptr<Timer> unload_;
    TargetText target_;
    String title_;
    Ending ending_ = Ending::Open;
    double scale_ = 1;
    double openerZoom_ = 1; ///< of the form over which it has opened
    PixelSize designSize_;
    std::vector<Designed> design_;
    std::int32_t touch_ = 0;               ///< the press that is followed
    std::optional<PixelPoint> touchPlace_; ///< none where that is the pointer
    PixelPoint dragStart_;
    std::optional<PixelPoint> cornerAtStart_; ///< while it is dragged
};

} // namespace phial
