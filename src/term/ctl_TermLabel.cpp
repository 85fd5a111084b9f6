#include "term/ctl_TermLabel.h"

#include "core/Arithmetic.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "term/TermSpeech.h"
#include "visual/Container.h"
#include "visual/PropertyRows.h"

namespace phial
{

namespace
{

constexpr int GreySlot = 8; // of the classic table of colours
constexpr int BlackIndex = 0;

} // namespace

struct ctl_TermLabel::Properties {
    static constexpr rows::Table Table{
        rows::readOnly<u"CTRLID">(&ctl_TermLabel::CTRLID),
        rows::property<u"AUTOSIZE">(&ctl_TermLabel::autoSize_).kept(),
        rows::property<u"Term">(&ctl_TermLabel::term_, u"H2O").kept().spoken(),
        rows::property<u"TEXTALIGN">(&ctl_TermLabel::align_).kept(),
        rows::font<u"TEXTFONT">(&ctl_TermLabel::font_).kept().nullGivesDefault(),
        rows::property<u"TEXTCOLOR">(&ctl_TermLabel::textColour_).kept(),
        rows::operation<u"UserControl_Initialize">(&ctl_TermLabel::UserControl_Initialize),
        rows::operation<u"REDRAW">(&ctl_TermLabel::REDRAW),
    };
    static constexpr bool Always = true;
    static constexpr auto Effect = &ctl_TermLabel::REDRAW;
};

ctl_TermLabel::ctl_TermLabel() : frame_(*this), surface_(*this)
{
    rows::start<Properties>(*this);
    UserControl_Initialize();
}

MemberTable ctl_TermLabel::members() const
{
    return rows::membersOf<Properties>();
}

void ctl_TermLabel::UserControl_Initialize()
{
    ignoringErrors([this] { id_ = coreRoot().CoreSystem().CoreMachine().NewUniqueID(); });
}

// One line a setter.
// clang-format off
void ctl_TermLabel::AUTOSIZE(bool value) { rows::set<Properties, u"AUTOSIZE">(*this, value); }
void ctl_TermLabel::Term(String value) { rows::set<Properties, u"Term">(*this, std::move(value)); }
void ctl_TermLabel::TEXTALIGN(phial::TEXTALIGN value) { rows::set<Properties, u"TEXTALIGN">(*this, value); }
void ctl_TermLabel::TEXTFONT(FontPtr value) { rows::set<Properties, u"TEXTFONT">(*this, std::move(value)); }
void ctl_TermLabel::TEXTCOLOR(Colour value) { rows::set<Properties, u"TEXTCOLOR">(*this, value); }
// clang-format on

String ctl_TermLabel::accessibleText() const
{
    return spokenTerm(term_);
}

PixelSize ctl_TermLabel::contentSize(std::optional<double> /*width*/) const
{
    return termSize(term_, font_->traits());
}

void ctl_TermLabel::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    REDRAW();
}

void ctl_TermLabel::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

Colour ctl_TermLabel::maskColour() const
{
    const Colour grey = QBColor(GreySlot);
    return textColour_ == grey ? QBColor(BlackIndex) : grey;
}

void ctl_TermLabel::resized()
{
    surface_.resized();
    if (autoSize_) {
        REDRAW(); // which gives it back its own size; else it is drawn when it is seen
    }
}

void ctl_TermLabel::REDRAW()
{
    DrawDevice& device = surface_.device();
    const Colour mask = maskColour();
    surface_.BackColor(mask);
    device.MaskColor(mask);
    device.font(font_->traits());
    device.Cls();
    device.ForeColor(textColour_);
    std::int32_t width = 0;
    ignoringErrors([&] {
        const TextPlace anchor = placeOf(align_);
        width = TermDraw(device, term_, toWhole(along(device.ScaleWidth(), anchor.horizontal)),
                         toWhole(along(device.ScaleHeight(), anchor.vertical)), align_);
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
