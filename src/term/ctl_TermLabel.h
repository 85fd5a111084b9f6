#pragma once

#include "term/TermDraw.h"
#include "visual/PaintSurface.h"
#include "visual/SharedFont.h"
#include "visual/UserControl.h"

namespace phial
{

/// A label that shows one term. Only the term covers what lies behind it: the rest of the control is
/// see-through, and a click there goes to what lies below.
///
/// Every writer stores its value, tells the change and calls REDRAW. Persisted: "TERM" (default "H2O"),
/// "TEXTALIGN" (0), "AUTOSIZE" (False), "TEXTCOLOR" (0), and the font under "TEXTFONT" (Tahoma 8 when none is
/// stored).
class ctl_TermLabel final : public UserControl
{
public:
    ctl_TermLabel();

    /// Unique in the installation; empty before UserControl_Initialize.
    String CTRLID() const { return id_; }
    /// The control takes the width of its term and the height of a line.
    bool AUTOSIZE() const { return autoSize_; }
    void AUTOSIZE(bool value);
    String Term() const { return term_; }
    void Term(String value);
    phial::TEXTALIGN TEXTALIGN() const { return align_; }
    void TEXTALIGN(phial::TEXTALIGN value);
    /// A change of its attributes shows at once; null brings back the font of a fresh label.
    FontPtr TEXTFONT() const { return font_.pointer(); }
    void TEXTFONT(FontPtr value);
    Colour TEXTCOLOR() const { return textColour_; }
    void TEXTCOLOR(Colour value);

    void UserControl_Initialize();
    /// Draws the term anew; nothing that fails while drawing is told.
    void REDRAW();

    Event<> CLICK;

    StringView typeName() const override { return u"ctl_TermLabel"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::StaticText; }
    String accessibleText() const override;
    bool keepsOwnSize() const override { return autoSize_; }
    PixelSize contentSize(std::optional<double> width = std::nullopt) const override;
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void shown() override { REDRAW(); }
    void resized() override;
    void paint() override { REDRAW(); }
    void click() override { CLICK.raise(); }

private:
    struct Properties;

    Colour maskColour() const;
    void fitToTerm(std::int32_t width);

    ControlFrame frame_;
    PaintSurface surface_;
    String id_;
    String term_;
    phial::TEXTALIGN align_{};
    bool autoSize_{};
    Colour textColour_;
    SharedFont font_;
};

} // namespace phial
