#pragma once

#include "mascot/BalloonPainting.h"
#include "visual/PaintSurface.h"
#include "visual/SharedFont.h"
#include "visual/UserControl.h"
#include "visual/ctl_Label.h"

#include <memory>

namespace phial
{

/// A speech balloon: a bordered box with a tail at one of eight places, a text in it, and a hatched shadow.
/// What lies outside, and every second diagonal of the shadow, shows and lets through what lies behind.
///
/// Places and sizes are pixels. A change lays the balloon out at once and marks it for painting. A box
/// without room for its body paints nothing.
class ctl_Bubble final : public UserControl
{
public:
    ctl_Bubble();

    /// Whether the tail is drawn; True at first.
    bool ZIP() const { return zip_; }
    void ZIP(bool value);
    /// 0 at first. Another side than the eight draws no tail.
    enm_BallonZipSide ZIPSIDE() const { return zipSide_; }
    void ZIPSIDE(enm_BallonZipSide value);
    /// How far the tip stands out from the box; 20 at first. A negative value is ignored.
    std::int32_t ZIPDISTANCE() const { return zipDistance_; }
    void ZIPDISTANCE(std::int32_t value);
    /// Width of the tail's base; 30 at first. 0 and below are ignored.
    std::int32_t ZIPSIZE() const { return zipSize_; }
    void ZIPSIZE(std::int32_t value);
    /// The control takes the size that its text needs, about twice as wide as high; False at first.
    bool AUTOSIZE() const { return autoSize_; }
    void AUTOSIZE(bool value);
    /// Black at first.
    Colour TEXTCOLOR() const { return textColor_; }
    void TEXTCOLOR(Colour value);
    /// With the markup of Markup.h; words wider than the balloon are broken. Empty at first; a bag without a
    /// text gives "Bubble".
    String TEXT() const { return label_->Caption(); }
    void TEXT(String value);
    /// How a text of one line stands; centred at first. More lines always stand at the left.
    phial::TEXTALIGN TEXTALIGN() const { return textAlign_; }
    void TEXTALIGN(phial::TEXTALIGN value);
    /// Between box and text; 5 at first.
    std::int32_t TEXTMARGIN() const { return textMargin_; }
    void TEXTMARGIN(std::int32_t value);
    /// Radius of the corners; 5 at first, 0 for square ones. A negative value is ignored.
    std::int32_t BORDERROUND() const { return borderRound_; }
    void BORDERROUND(std::int32_t value);
    Colour BORDERCOLOR() const { return borderColor_; }
    void BORDERCOLOR(Colour value);
    Colour SHADOWCOLOR() const { return shadowColor_; }
    void SHADOWCOLOR(Colour value);
    /// Kept, without effect: the shadow is always painted.
    bool SHADOW() const { return shadow_; }
    void SHADOW(bool value);
    /// To the right and downward; 5 at first. Negative: to the left and upward.
    std::int32_t SHADOWOFFX() const { return shadowOffX_; }
    void SHADOWOFFX(std::int32_t value);
    std::int32_t SHADOWOFFY() const { return shadowOffY_; }
    void SHADOWOFFY(std::int32_t value);
    /// The hatch takes the other diagonals.
    bool SHADOWALT() const { return shadowAlt_; }
    void SHADOWALT(bool value);
    Colour FILLCOLOR() const { return fillColor_; }
    void FILLCOLOR(Colour value);
    /// Tahoma 8 at first, an object of the control's own. Null raises 91.
    FontPtr TEXTFONT() const { return textFont_.pointer(); }
    void TEXTFONT(FontPtr value);

    /// The control's name, "_" and an identifier of its own; empty for one that was read from a bag.
    String CTRLID() const { return id_; }

    /// Lays the balloon out anew and marks it for painting. Raises 6 where its geometry leaves 32 bits.
    void REDRAW();

    /// A press on the balloon or on its text.
    Event<> CLICK;
    Event<> DBLCLICK;

    StringView typeName() const override { return u"ctl_Bubble"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    PartRole role() const override { return PartRole::StaticText; }
    String accessibleText() const override { return label_->accessibleText(); }
    void initProperties() override;
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void paint() override;
    void resized() override;
    void click() override { CLICK.raise(); }
    void doubleClick() override { DBLCLICK.raise(); }

private:
    struct Properties;

    void textChanged();
    void layOut();
    BalloonBox bodyWithin(PixelSize all) const;
    std::optional<BalloonTail> tail() const;
    BalloonLook look(Colour fill) const;
    HatchStart hatchStart() const;
    bool hasSeveralLines() const;
    void fit();
    bool widen();
    bool narrow();
    bool changeTextWidth(double by);
    void takeSizeOfText();

    ControlFrame frame_;
    PaintSurface surface_;
    std::shared_ptr<ctl_Label> label_;
    Connections connections_;
    BalloonBox body_;
    String id_;

    bool zip_ = true;
    enm_BallonZipSide zipSide_{};
    std::int32_t zipDistance_ = 0;
    std::int32_t zipSize_ = 0;
    bool autoSize_ = false;
    Colour textColor_;
    phial::TEXTALIGN textAlign_{};
    std::int32_t textMargin_ = 0;
    std::int32_t borderRound_ = 0;
    Colour borderColor_;
    Colour shadowColor_;
    bool shadow_ = false;
    std::int32_t shadowOffX_ = 0;
    std::int32_t shadowOffY_ = 0;
    bool shadowAlt_ = false;
    Colour fillColor_;
    SharedFont textFont_;
};

} // namespace phial
