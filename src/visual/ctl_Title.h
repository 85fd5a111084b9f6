#pragma once

#include "visual/PaintSurface.h"
#include "visual/SharedFont.h"
#include "visual/UserControl.h"

namespace phial
{

/// The head of a dialog: icon, title and a sign to close it with, on the theme's frame colour.
class ctl_Title final : public UserControl
{
public:
    ctl_Title();

    /// Persisted under "TITLE".
    String Title() const { return title_; }
    void Title(String value);
    /// Smaller ones behind the title and at the right edge, such as which page it is of how many. Persisted
    /// under "TEXTLEFT" and "TEXTRIGHT".
    String TextLeft() const { return textLeft_; }
    void TextLeft(String value);
    String TextRight() const { return textRight_; }
    void TextRight(String value);
    PicturePtr Icon() const { return icon_; }
    void Icon(PicturePtr value);
    /// Whether the sign to close with is there; it is at first. Persisted under "CLOSABLE".
    bool Closable() const { return closable_; }
    void Closable(bool value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);

    /// The close sign was pressed.
    Event<> CLOSE;

    StringView typeName() const override { return u"ctl_Title"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::Grouping; }
    String accessibleText() const override;
    std::vector<NamedPart> parts() const override;
    void activatePart(std::size_t part) override;
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void paint() override;
    void resized() override { surface_.resized(); }
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLeave() override;

private:
    struct Properties;

    PixelRectangle closeArea() const;
    double paintIcon();
    void paintTexts(double left);
    void paintCross();
    void hover(bool value);

    ControlFrame frame_;
    PaintSurface surface_;
    String title_;
    String textLeft_;
    String textRight_;
    PicturePtr icon_;
    bool closable_{};
    SharedFont font_;
    bool hovered_ = false;
    bool pressed_ = false;
};

} // namespace phial
