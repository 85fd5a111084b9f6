#pragma once

#include "visual/Alignment.h"
#include "visual/PaintSurface.h"
#include "visual/SharedFont.h"
#include "visual/UserControl.h"

namespace phial
{

enum class BackStyle : std::int32_t { Transparent = 0, Opaque = 1 };

/// Shows a text, with the markup of Markup.h, from its top. A click where nothing is painted counts too.
/// A label whose frame can take the focus is a link: Return and Space click it, and it shows that it has the
/// focus.
class Label final : public UserControl
{
public:
    Label();

    String Caption() const { return caption_; }
    void Caption(String value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour value);
    Colour BackColor() const { return surface_.BackColor(); }
    void BackColor(Colour value);
    phial::BackStyle BackStyle() const { return backStyle_; }
    void BackStyle(phial::BackStyle value);
    phial::Alignment Alignment() const { return alignment_; }
    void Alignment(phial::Alignment value);
    /// The label takes the size of its text; with WordWrap the width stays and the height follows.
    bool AutoSize() const { return autoSize_; }
    void AutoSize(bool value);
    bool WordWrap() const { return wordWrap_; }
    void WordWrap(bool value);
    /// The caption is shown as it stands, without markup, on one line in the middle of the height; where it
    /// has no room three dots stand for the rest. AutoSize does not apply. For what users have typed.
    bool SingleLine() const { return singleLine_; }
    void SingleLine(bool value);

    Event<> Click;
    Event<> DblClick;
    Event<const PointerEvent&> MouseDown;
    Event<const PointerEvent&> MouseMove;
    Event<const PointerEvent&> MouseUp;

    StringView typeName() const override { return u"Label"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::StaticText; }
    String accessibleText() const override;
    bool keepsOwnSize() const override { return autoSize_ && !wordWrap_ && !singleLine_; }
    PixelSize contentSize(std::optional<double> width = std::nullopt) const override;
    std::vector<NamedPart> parts() const override;
    void activatePart(std::size_t part) override;
    void paint() override;
    void resized() override;
    void pointerDown(const PointerEvent& event) override { MouseDown.raise(event); }
    void pointerMove(const PointerEvent& event) override { MouseMove.raise(event); }
    void pointerUp(const PointerEvent& event) override { MouseUp.raise(event); }
    void click() override { Click.raise(); }
    void doubleClick() override { DblClick.raise(); }
    void keyDown(KeyEvent& event) override;
    bool wantsKey(Key key) const override { return key == Key::Return; }
    void gotFocus() override { surface_.invalidate(); }
    void lostFocus() override { surface_.invalidate(); }

private:
    struct Properties;

    void refresh();
    void fitToText();
    void showGround();
    void paintMarkup(DrawDevice& device);
    void paintLine(DrawDevice& device);

    ControlFrame frame_;
    PaintSurface surface_;
    String caption_;
    SharedFont font_;
    Colour foreColor_ = SystemColour::WindowText;
    phial::BackStyle backStyle_ = phial::BackStyle::Transparent;
    phial::Alignment alignment_ = phial::Alignment::Left;
    bool autoSize_ = false;
    bool wordWrap_ = true;
    bool singleLine_ = false;
};

} // namespace phial
