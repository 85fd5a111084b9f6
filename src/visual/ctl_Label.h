#pragma once

#include "visual/Markup.h"
#include "visual/PaintSurface.h"
#include "visual/SharedFont.h"
#include "visual/UserControl.h"

namespace phial
{

/// The styled label: a text with the markup of Markup.h that can stand flat or raised.
///
/// Width and Height are in the container's unit. With AutoSize the text is wrapped at Width and the height
/// follows.
class ctl_Label final : public UserControl
{
public:
    ctl_Label();

    /// Persisted under "text".
    String Caption() const { return caption_; }
    void Caption(String value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour value);
    TEXTALIGN Alignment() const { return alignment_; }
    void Alignment(TEXTALIGN value);
    bool AutoSize() const { return autoSize_; }
    void AutoSize(bool value);
    /// The caption is shown as it is, tags included, and words wider than the label are broken: for texts
    /// that users have typed. False at first.
    bool PlainText() const { return plain_; }
    void PlainText(bool value);
    /// Words wider than the label are broken, as in a plain text. False at first.
    bool BreaksWords() const { return breaksWords_; }
    void BreaksWords(bool value);
    /// Raised: the text carries a light edge and a shadow. Flat wins over raised.
    bool Raised() const { return raised_; }
    void Raised(bool value);
    bool Flat() const { return flat_; }
    void Flat(bool value);

    Event<> Click;
    Event<> DblClick;
    Event<const PointerEvent&> MouseDown;
    Event<const PointerEvent&> MouseMove;
    Event<const PointerEvent&> MouseUp;

    StringView typeName() const override { return u"ctl_Label"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::StaticText; }
    String accessibleText() const override;
    PixelSize contentSize(std::optional<double> width = std::nullopt) const override;
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void paint() override;
    void resized() override;
    void pointerDown(const PointerEvent& event) override { MouseDown.raise(event); }
    void pointerMove(const PointerEvent& event) override { MouseMove.raise(event); }
    void pointerUp(const PointerEvent& event) override { MouseUp.raise(event); }
    void click() override { Click.raise(); }
    void doubleClick() override { DblClick.raise(); }

private:
    struct Properties;

    void refresh();
    void fitToText();
    MarkupLayout layOut(std::optional<double> width) const;

    ControlFrame frame_;
    PaintSurface surface_;
    String caption_;
    SharedFont font_;
    Colour foreColor_ = SystemColour::WindowText;
    TEXTALIGN alignment_ = TEXTALIGN::MiddleLeft;
    bool autoSize_ = false;
    PixelSize fitted_; ///< the size that the text has been given last
    bool plain_ = false;
    bool breaksWords_ = false;
    bool raised_ = false;
    bool flat_ = true;
};

} // namespace phial
