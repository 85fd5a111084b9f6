#pragma once

#include "dialogs/KeyHand.h"
#include "dialogs/KeyScan.h"
#include "dialogs/KeySheet.h"
#include "dialogs/VariantStrip.h"
#include "visual/PaintHints.h"
#include "visual/PaintSurface.h"
#include "visual/Timer.h"
#include "visual/UserControl.h"

#include <memory>
#include <optional>
#include <vector>

namespace phial
{

/// The keys of a keyboard as one painted control, each a named part. It takes each finger for itself, scales
/// its keys to the size that it is given, and never takes the focus.
///
/// A key that is held shows its variants, if it has some: the finger slides onto one or a further tap takes
/// it, and so do arrows and Enter of a keyboard on the desk. Held keys that move the caret or delete are
/// struck again and again.
///
/// With a scan, rows and then keys light up by themselves, and a single switch strikes them when it is let
/// go: a press anywhere on the keys, or Space or Enter of the desk. Held, the switch shows the variants of
/// the key that lights up, which then light up in turn.
class ctl_Keys final : public UserControl, public PaintHints
{
public:
    static constexpr std::int32_t HoldInterval = 500;  ///< milliseconds until a key counts as held
    static constexpr std::int32_t RepeatInterval = 50; ///< between the strokes of one that is held

    ctl_Keys();

    /// The keys and their rules; without any at first. The layout's tables outlive the control.
    void layout(const KeyLayout& value);
    KeyBoard& board() { return *board_; }
    const KeyBoard& board() const { return *board_; }
    /// The area of all keys on the keyboard's form, in twips at scale 1.
    PixelRectangle designArea() const { return sheet_.designArea(); }
    /// Of a key, in pixels of the control; raises 9 for one that is not there.
    PixelRectangle areaOf(std::int32_t index) const { return sheet_.areaOf(index); }
    /// Whether keys can be held for variants; true at first.
    bool offersVariants() const { return offersVariants_; }
    void offersVariants(bool value) { offersVariants_ = value; }
    /// Which variants they offer; those of texts at first.
    void variants(VariantSource source) { source_ = source; }

    /// How long each row or key lights up, in milliseconds; 0 without a scan, as at first. A negative one
    /// raises 5.
    std::int32_t scanInterval() const { return scanTimer_.Interval(); }
    void scanInterval(std::int32_t value);

    /// Something has gone down, on a key or between keys; it moves; it has gone up again, or cannot become a
    /// drag any more. Whoever hears of a press may cancel it.
    Event<const PointerEvent&> PRESSED;
    Event<const PointerEvent&> MOVED;
    Event<std::int32_t> RELEASED;
    /// A key was struck; whoever hears it asks `board().click`. Modifiers have passed on when they went down.
    Event<std::int32_t> CLICK;
    /// A variant was chosen: what it types.
    Event<const String&> VARIANT;

    /// The press has become a drag, or belongs to one: what is down strikes nothing, and modifiers go back.
    void cancelPresses();
    /// Paints what has changed: after names, states or the language were changed from outside.
    void refresh();
    /// A key of the keyboard on the desk, before it goes to the field. While variants are shown the arrows,
    /// Enter and Escape are theirs, and with a scan Space and Enter are the switch: such a key has the code 0
    /// afterwards.
    void previewKey(KeyEvent& event);
    /// Likewise when it goes up: the switch strikes, unless it was held.
    void previewKeyUp(KeyEvent& event);
    /// Shows the variants of a key, as holding it does. Gives whether it has some.
    bool showVariants(std::int32_t index);
    /// The same for what is no key: beside that key. Shows nothing where there are none.
    bool showVariants(std::vector<KeyVariant> variants, std::int32_t index);
    bool showsVariants() const { return strip_.has_value(); }

    StringView typeName() const override { return u"ctl_Keys"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::Grouping; }
    bool coversAll() const override { return true; }
    std::optional<PixelRectangle> currentPartArea() const override { return std::nullopt; }
    std::vector<NamedPart> parts() const override;
    void activatePart(std::size_t part) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void shown() override;
    void hidden() override;
    void resized() override;
    void paint() override;

private:
    struct Properties;

    void strike(std::int32_t index);
    void hold();
    void closeStrip();
    void chooseVariant(std::size_t at);
    bool pressStrip(const PointerEvent& event);
    void runScan();
    void restartScan();
    void stepScan();
    void pressSwitch();
    void holdSwitch();
    void goThroughStrip(KeyEvent& event);
    void stepStrip(bool isForward);
    void tellChosen();
    void waitForHold();

    ControlFrame frame_;
    PaintSurface surface_;
    std::unique_ptr<KeyBoard> board_;
    std::unique_ptr<KeyHand> hand_;
    KeySheet sheet_;
    std::optional<VariantStrip> strip_;
    std::optional<std::int32_t> stripFinger_; ///< the one that has opened it, or presses it
    bool offersVariants_ = true;
    VariantSource source_ = textVariants;
    Timer timer_;
    std::optional<KeyScan> scan_;
    Timer scanTimer_;
    std::optional<std::int32_t> switchFinger_; ///< the one that presses the switch
    std::optional<std::int32_t> switchKey_;    ///< likewise, a key's code
    std::size_t stripSteps_ = 0;               ///< that the scan has gone through the variants
    bool isShown_ = false;
    bool isPressTaken_ = false; ///< the last one; false since it was cancelled
    Connections ticking_;
};

} // namespace phial
