#include "term/ctl_TermLabel.h"

#include "core/Arithmetic.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "visual/Container.h"
#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr int Grey = 8; // of the classic table of colours
constexpr int Black = 0;

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::readOnly<ctl_TermLabel, String, &ctl_TermLabel::CTRLID>(u"CTRLID"),
        members::property<ctl_TermLabel, bool, &ctl_TermLabel::AUTOSIZE, &ctl_TermLabel::AUTOSIZE>(
            u"AUTOSIZE"),
        members::property<ctl_TermLabel, String, &ctl_TermLabel::Term, &ctl_TermLabel::Term>(u"Term"),
        members::property<ctl_TermLabel, TEXTALIGN, &ctl_TermLabel::TEXTALIGN, &ctl_TermLabel::TEXTALIGN>(
            u"TEXTALIGN"),
        members::lazyProperty<ctl_TermLabel, FontPtr, &ctl_TermLabel::TEXTFONT, &ctl_TermLabel::TEXTFONT>(
            u"TEXTFONT"),
        members::property<ctl_TermLabel, Colour, &ctl_TermLabel::TEXTCOLOR, &ctl_TermLabel::TEXTCOLOR>(
            u"TEXTCOLOR"),
        members::operation<ctl_TermLabel, &ctl_TermLabel::UserControl_Initialize>(u"UserControl_Initialize"),
        members::operation<ctl_TermLabel, &ctl_TermLabel::REDRAW>(u"REDRAW"),
    }));

/// The anchor point of an alignment on a surface of that width or height: its start, middle or end.
double anchorX(TEXTALIGN align, double width)
{
    switch (align) {
    case TEXTALIGN::MiddleCentre:
    case TEXTALIGN::TopCentre:
    case TEXTALIGN::BottomCentre:
        return width / 2;
    case TEXTALIGN::MiddleRight:
    case TEXTALIGN::TopRight:
    case TEXTALIGN::BottomRight:
        return width;
    default:
        return 0;
    }
}

double anchorY(TEXTALIGN align, double height)
{
    switch (align) {
    case TEXTALIGN::MiddleLeft:
    case TEXTALIGN::MiddleCentre:
    case TEXTALIGN::MiddleRight:
        return height / 2;
    case TEXTALIGN::BottomLeft:
    case TEXTALIGN::BottomCentre:
    case TEXTALIGN::BottomRight:
        return height;
    default:
        return 0;
    }
}

} // namespace

ctl_TermLabel::ctl_TermLabel() : frame_(*this), surface_(*this)
{
    UserControl_Initialize();
}

MemberTable ctl_TermLabel::members() const
{
    return Table;
}

void ctl_TermLabel::UserControl_Initialize()
{
    ignoringErrors([this] { id_ = coreRoot().CoreSystem().CoreMachine().NewUniqueID(); });
}

void ctl_TermLabel::changed(StringView property)
{
    PropertyChanged.emit(String(property));
    REDRAW();
}

void ctl_TermLabel::AUTOSIZE(bool value)
{
    autoSize_ = value;
    changed(u"AUTOSIZE");
}

void ctl_TermLabel::Term(String value)
{
    term_ = std::move(value);
    frame_.report(ControlAspect::Accessibility);
    changed(u"Term");
}

void ctl_TermLabel::TEXTALIGN(phial::TEXTALIGN value)
{
    align_ = value;
    changed(u"TEXTALIGN");
}

FontPtr ctl_TermLabel::TEXTFONT()
{
    if (!font_) {
        font_ = std::make_shared<Font>(FontSpec{.name = u"Tahoma", .size = 8});
        fontChanged_ = font_->changed.connect([this] { changed(u"TEXTFONT"); });
    }
    return font_;
}

void ctl_TermLabel::TEXTFONT(FontPtr value)
{
    font_ = std::move(value);
    fontChanged_ = font_ ? font_->changed.connect([this] { changed(u"TEXTFONT"); }) : Connection();
    changed(u"TEXTFONT");
}

void ctl_TermLabel::TEXTCOLOR(Colour value)
{
    textColour_ = value;
    changed(u"TEXTCOLOR");
}

void ctl_TermLabel::initProperties()
{
    TEXTFONT();
}

void ctl_TermLabel::readProperties(const PropertyBag& bag)
{
    term_ = bag.ReadProperty(u"TERM", u"H2O").toText();
    align_ = static_cast<phial::TEXTALIGN>(bag.ReadProperty(u"TEXTALIGN", 0).toWhole());
    autoSize_ = bag.ReadProperty(u"AUTOSIZE", false).toBoolean();
    textColour_ = members::fromVariant<Colour>(bag.ReadProperty(u"TEXTCOLOR", 0));
    const Variant font = bag.ReadProperty(u"TEXTFONT");
    font_ = nullptr;
    if (!font.isEmpty()) {
        TEXTFONT()->assign(members::fromVariant<FontPtr>(font)->traits());
    }
    REDRAW();
}

void ctl_TermLabel::writeProperties(PropertyBag& bag)
{
    bag.WriteProperty(u"TERM", term_, u"H2O");
    bag.WriteProperty(u"TEXTALIGN", members::toVariant(align_), 0);
    bag.WriteProperty(u"AUTOSIZE", autoSize_, false);
    bag.WriteProperty(u"TEXTCOLOR", members::toVariant(textColour_), 0);
    bag.WriteProperty(u"TEXTFONT", ObjectPtr(TEXTFONT()->clone()));
}

Colour ctl_TermLabel::maskColour() const
{
    const Colour grey = QBColor(Grey);
    return textColour_ == grey ? QBColor(Black) : grey;
}

void ctl_TermLabel::REDRAW()
{
    DrawDevice& device = surface_.device();
    const Colour mask = maskColour();
    surface_.BackColor(mask);
    device.MaskColor(mask);
    device.font(TEXTFONT()->traits());
    device.Cls();
    device.ForeColor(textColour_);
    std::int32_t width = 0;
    ignoringErrors([&] {
        width = TermDraw(device, term_, toWhole(anchorX(align_, device.ScaleWidth())),
                         toWhole(anchorY(align_, device.ScaleHeight())), align_);
    });
    surface_.MaskPicture(device.Image());
    if (autoSize_) {
        ignoringErrors([&] { fitToTerm(width); });
    }
}

void ctl_TermLabel::fitToTerm(std::int32_t width)
{
    const Container* host = frame_.container();
    const ScaleUnit unit = host ? host->ScaleMode() : ScaleUnit::Pixels;
    DrawDevice& device = surface_.device();
    const double hostWidth = device.ScaleX(width, ScaleUnit::Pixels, unit);
    const double hostHeight = device.ScaleY(device.TextHeight(u"A"), ScaleUnit::Pixels, unit);
    if (hostWidth != frame_.Width() || hostHeight != frame_.Height()) {
        frame_.Move(frame_.Left(), frame_.Top(), hostWidth, hostHeight);
    }
}

} // namespace phial
