#include "mascot/ctl_Bubble.h"

#include "core/Arithmetic.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "visual/PropertyRows.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

constexpr Colour BalloonKey = QBColor(13); ///< what is painted in it is see-through
constexpr double FirstTextWidth = 300;     // pixels, from which a fitting one is looked for
constexpr double TextWidthStep = 50;
constexpr double LeastTextWidth = 100;
constexpr double NarrowingSlack = 20;
constexpr double TailsRoom = 2.5; // least edge of a fitted control, by the tail's length

} // namespace

struct ctl_Bubble::Properties {
    static constexpr rows::Table Table{
        rows::property<u"ZIP">(&ctl_Bubble::zip_, true).kept(),
        rows::property<u"ZIPSIDE">(&ctl_Bubble::zipSide_).kept(),
        rows::property<u"ZIPDISTANCE">(&ctl_Bubble::zipDistance_, 20)
            .kept()
            .ignoringUnless(rows::isNotNegative),
        rows::property<u"ZIPSIZE">(&ctl_Bubble::zipSize_, 30).kept().ignoringUnless(rows::isPositive),
        rows::property<u"AUTOSIZE">(&ctl_Bubble::autoSize_)
            .kept()
            .ifDiffers()
            .untold()
            .then(&ctl_Bubble::fit),
        rows::property<u"TEXTCOLOR">(&ctl_Bubble::textColor_, Colour{}).kept(),
        rows::property<u"TEXT">(&ctl_Bubble::label_, &ctl_Label::Caption, &ctl_Label::Caption, u"Bubble")
            .kept()
            .fresh(u"")
            .then(&ctl_Bubble::textChanged)
            .spoken(),
        rows::property<u"TEXTALIGN">(&ctl_Bubble::textAlign_, phial::TEXTALIGN::MiddleCentre).kept(),
        rows::property<u"TEXTMARGIN">(&ctl_Bubble::textMargin_, 5).kept(),
        rows::property<u"BORDERROUND">(&ctl_Bubble::borderRound_, 5)
            .kept()
            .ignoringUnless(rows::isNotNegative),
        rows::property<u"BORDERCOLOR">(&ctl_Bubble::borderColor_, QBColor(6)).kept(),
        rows::property<u"SHADOWCOLOR">(&ctl_Bubble::shadowColor_, Colour{}).kept(),
        rows::property<u"SHADOW">(&ctl_Bubble::shadow_, true).kept().fresh(false),
        rows::property<u"SHADOWOFFX">(&ctl_Bubble::shadowOffX_, 5).kept(),
        rows::property<u"SHADOWOFFY">(&ctl_Bubble::shadowOffY_, 5).kept(),
        rows::property<u"SHADOWALT">(&ctl_Bubble::shadowAlt_).kept(),
        rows::property<u"FILLCOLOR">(&ctl_Bubble::fillColor_, RGB(255, 255, 150)).kept(),
        rows::font<u"TEXTFONT">(&ctl_Bubble::textFont_).kept(),
        rows::readOnly<u"CTRLID">(&ctl_Bubble::CTRLID),
        rows::operation<u"REDRAW">(&ctl_Bubble::REDRAW),
    };
    static constexpr bool Always = true;
    static constexpr auto Effect = &ctl_Bubble::REDRAW;
};

ctl_Bubble::ctl_Bubble() : frame_(*this), surface_(*this), label_(makeNamed<ctl_Label>(u"lab_Text"))
{
    surface_.BackColor(BalloonKey);
    surface_.device().MaskColor(BalloonKey);
    label_->BreaksWords(true);
    surface_.children().add(label_);
    connections_ += label_->Click.connect([this] { CLICK.raise(); });
    connections_ += label_->DblClick.connect([this] { DBLCLICK.raise(); });
    rows::start<Properties>(*this);
}

MemberTable ctl_Bubble::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_Bubble::ZIP(bool value) { rows::set<Properties, u"ZIP">(*this, value); }
void ctl_Bubble::ZIPSIDE(enm_BallonZipSide value) { rows::set<Properties, u"ZIPSIDE">(*this, value); }
void ctl_Bubble::ZIPDISTANCE(std::int32_t value) { rows::set<Properties, u"ZIPDISTANCE">(*this, value); }
void ctl_Bubble::ZIPSIZE(std::int32_t value) { rows::set<Properties, u"ZIPSIZE">(*this, value); }
void ctl_Bubble::AUTOSIZE(bool value) { rows::set<Properties, u"AUTOSIZE">(*this, value); }
void ctl_Bubble::TEXTCOLOR(Colour value) { rows::set<Properties, u"TEXTCOLOR">(*this, value); }
void ctl_Bubble::TEXT(String value) { rows::set<Properties, u"TEXT">(*this, std::move(value)); }
void ctl_Bubble::TEXTALIGN(phial::TEXTALIGN value) { rows::set<Properties, u"TEXTALIGN">(*this, value); }
void ctl_Bubble::TEXTMARGIN(std::int32_t value) { rows::set<Properties, u"TEXTMARGIN">(*this, value); }
void ctl_Bubble::BORDERROUND(std::int32_t value) { rows::set<Properties, u"BORDERROUND">(*this, value); }
void ctl_Bubble::BORDERCOLOR(Colour value) { rows::set<Properties, u"BORDERCOLOR">(*this, value); }
void ctl_Bubble::SHADOWCOLOR(Colour value) { rows::set<Properties, u"SHADOWCOLOR">(*this, value); }
void ctl_Bubble::SHADOW(bool value) { rows::set<Properties, u"SHADOW">(*this, value); }
void ctl_Bubble::SHADOWOFFX(std::int32_t value) { rows::set<Properties, u"SHADOWOFFX">(*this, value); }
void ctl_Bubble::SHADOWOFFY(std::int32_t value) { rows::set<Properties, u"SHADOWOFFY">(*this, value); }
void ctl_Bubble::SHADOWALT(bool value) { rows::set<Properties, u"SHADOWALT">(*this, value); }
void ctl_Bubble::FILLCOLOR(Colour value) { rows::set<Properties, u"FILLCOLOR">(*this, value); }
void ctl_Bubble::TEXTFONT(FontPtr value) { rows::set<Properties, u"TEXTFONT">(*this, std::move(value)); }
// clang-format on

void ctl_Bubble::initProperties()
{
    id_ = NAME() + u"_" + coreRoot().CoreSystem().CoreMachine().NewUniqueID();
}

void ctl_Bubble::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    id_.clear();
}

void ctl_Bubble::writeProperties(PropertyBag& bag)
{
    rows::writeInOrder<Properties, u"ZIP", u"ZIPSIDE", u"ZIPDISTANCE", u"ZIPSIZE", u"AUTOSIZE", u"TEXTCOLOR",
                       u"TEXTFONT", u"TEXT", u"TEXTALIGN", u"TEXTMARGIN", u"BORDERROUND", u"BORDERCOLOR",
                       u"SHADOWCOLOR", u"SHADOW", u"SHADOWOFFX", u"SHADOWOFFY", u"SHADOWALT", u"FILLCOLOR">(
        *this, bag);
}

void ctl_Bubble::textChanged()
{
    REDRAW();
    fit();
}

void ctl_Bubble::REDRAW()
{
    layOut();
    surface_.invalidate();
}

void ctl_Bubble::resized()
{
    surface_.resized();
    ignoringErrors([this] { REDRAW(); });
}

void ctl_Bubble::layOut()
{
    body_ = bodyWithin(surface_.size());
    label_->ForeColor(textColor_);
    label_->Font()->assign(textFont_->traits());
    const double margins = 2.0 * textMargin_;
    label_->Move(double{1} * body_.left + textMargin_, double{1} * body_.top + textMargin_,
                 std::max(0.0, body_.width - margins), std::max(0.0, body_.height - margins));
    label_->Alignment(hasSeveralLines() ? phial::TEXTALIGN::MiddleLeft : textAlign_);
}

/// The body, with its shadow's offset and its tail left out.
BalloonBox ctl_Bubble::bodyWithin(PixelSize all) const
{
    const BalloonBox withTail{
        toWhole(std::max(0.0, -1.0 * shadowOffX_)), toWhole(std::max(0.0, -1.0 * shadowOffY_)),
        toWhole(all.width - std::abs(1.0 * shadowOffX_)), toWhole(all.height - std::abs(1.0 * shadowOffY_))};
    return zip_ ? tail()->bodyWithin(withTail) : withTail;
}

std::optional<BalloonTail> ctl_Bubble::tail() const
{
    return zip_ ? std::optional<BalloonTail>({zipSide_, zipDistance_, zipSize_}) : std::nullopt;
}

BalloonLook ctl_Bubble::look(Colour fill) const
{
    return {tail(), borderRound_, borderColor_, fill};
}

/// Which diagonals are cut out of the shadow follows from the height, since they are counted from its foot.
HatchStart ctl_Bubble::hatchStart() const
{
    const bool isOdd = wholeRemainder(toWhole(surface_.size().height), 2) != 0;
    return isOdd == shadowAlt_ ? HatchStart::AtCorner : HatchStart::BesideCorner;
}

void ctl_Bubble::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    layOut();
    if (body_.hasRoom()) {
        const PixelSize all = surface_.size();
        look(shadowColor_).paintShadow(device, body_.movedBy(shadowOffX_, shadowOffY_));
        device.Hatch(0, 0, all.width, all.height, BalloonKey, hatchStart());
        look(fillColor_).paint(device, body_);
    }
    surface_.MaskPicture(device.Image());
}

bool ctl_Bubble::hasSeveralLines() const
{
    const String text = TEXT();
    return text.find(u"<br>") != String::npos || text.find(u'\r') != String::npos;
}

/// Looks for a text about twice as wide as high, and takes the size that the balloon then has.
void ctl_Bubble::fit()
{
    if (!autoSize_) {
        return;
    }
    label_->Width(FirstTextWidth);
    label_->Visible(false);
    label_->AutoSize(true);
    if (!widen() || (!hasSeveralLines() && !narrow())) {
        return; // the label takes no other width, and stays as it is
    }
    label_->AutoSize(false);
    takeSizeOfText();
    layOut(); // also where the size is the same
    label_->Visible(true);
}

/// False: the label does not take another width.
bool ctl_Bubble::widen()
{
    while (label_->Width() / 2 < label_->Height()) {
        if (!changeTextWidth(TextWidthStep)) {
            return false;
        }
    }
    return true;
}

bool ctl_Bubble::narrow()
{
    while (label_->Width() / 2 - NarrowingSlack > label_->Height() && label_->Width() > LeastTextWidth) {
        if (!changeTextWidth(-TextWidthStep)) {
            return false;
        }
    }
    return true;
}

bool ctl_Bubble::changeTextWidth(double by)
{
    const std::int32_t before = toWhole(label_->Width());
    label_->Width(label_->Width() + by);
    return label_->Width() != before;
}

void ctl_Bubble::takeSizeOfText()
{
    double width = toWhole(label_->Width() + 2.0 * textMargin_);
    double height = toWhole(label_->Height() + 2.0 * textMargin_);
    if (const auto sits = zip_ ? tail()->place() : std::nullopt) {
        double& along = sits->isBeside ? width : height;
        double& across = sits->isBeside ? height : width;
        along += zipDistance_;
        if (across < 2.0 * zipDistance_) {
            across = toWhole(TailsRoom * zipDistance_);
        }
    }
    width += std::abs(1.0 * shadowOffX_);
    height += std::abs(1.0 * shadowOffY_);
    const PixelRectangle place = frame_.pixelRectangle();
    frame_.pixelRectangle({place.left, place.top, std::max(0.0, width), std::max(0.0, height)});
}

} // namespace phial
