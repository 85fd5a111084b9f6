#include "results/ctl_Mark.h"

#include "core/CoreColors.h"
#include "core/Locale.h"
#include "core/Variant.h"
#include "visual/Markup.h"
#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr std::int32_t Best = 1;
constexpr std::int32_t Worst = 6;

/// By whole mark. No mark has the number 0; the plus of the best one blends with its white.
constexpr auto MarkColours = std::to_array<Colour>({
    RGB(255, 255, 255),
    RGB(0, 255, 0),
    RGB(0, 192, 0),
    RGB(255, 255, 0),
    RGB(255, 128, 0),
    RGB(255, 0, 0),
    RGB(128, 0, 0),
});

constexpr double QuietShare = 75; // of its colour that a mark has which is not the chosen one
constexpr double SignShare = 50;  // of the neighbour's colour in that of a sign
constexpr double EdgeShare = 55;  // of black, or white on dark ground, in the edge of a sign or number
constexpr Colour BlackEdge = RGB(0, 0, 0);
constexpr Colour WhiteEdge = RGB(255, 255, 255);

// In pixels.
constexpr double CellWidth = 50;
constexpr double CellHeight = 37;
constexpr double SignLeft = 33; // from the cell's left edge
constexpr double SignWidth = 16;

constexpr double NumberPoints = 17;
constexpr double SignPoints = 11;

enum class MarkSign : std::uint8_t { None, Plus, Minus };

// Wider than a mark's value, since any value can be set.
std::int64_t valueOf(enm_Mark mark)
{
    return static_cast<std::int32_t>(mark);
}

std::int64_t wholeMarkOf(enm_Mark mark)
{
    const std::int64_t value = valueOf(mark);
    return value == 0 ? Worst : 5 - (value - 1) / 3;
}

MarkSign signOf(enm_Mark mark)
{
    const std::int64_t place = (valueOf(mark) + 1) % 3;
    return place == 1 ? MarkSign::Plus : place == 2 ? MarkSign::Minus : MarkSign::None;
}

Colour markColour(std::int64_t wholeMark)
{
    return MarkColours[static_cast<std::size_t>(std::clamp<std::int64_t>(wholeMark, 0, Worst))];
}

/// The value of a whole mark's first character.
std::int32_t baseValue(char16_t wholeMark)
{
    constexpr auto Values = std::to_array<std::int32_t>({14, 11, 8, 5, 2});
    const auto place = static_cast<std::size_t>(wholeMark - u'1');
    return place < Values.size() ? Values[place] : 0;
}

std::shared_ptr<ctl_Label> makeLabel(StringView name, StringView text, double points)
{
    auto label = makeControl<ctl_Label>();
    label->frame().NAME(String(name));
    label->Font(std::make_shared<Font>(FontSpec{.name = u"Tahoma", .size = points}));
    label->Alignment(TEXTALIGN::MiddleCentre);
    label->Caption(String(text));
    return label;
}

void stress(ctl_Label& label, bool stressed, Colour colour)
{
    label.Flat(!stressed);
    label.Raised(stressed);
    label.Font()->Bold(stressed);
    label.ForeColor(colour);
}

bool isDark(Colour colour)
{
    const Colour ground = defaultColour(colour);
    constexpr int Middle = 128;
    return (ground.red() * 30 + ground.green() * 59 + ground.blue() * 11) / 100 < Middle;
}

/// The label's text this far to each side, in pixels, so that the label's own text gets an edge.
void paintEdge(DrawDevice& device, ctl_Label& label, std::int32_t reach)
{
    const PixelRectangle place = label.frame().pixelRectangle();
    const MarkupLayout text(label.Caption(), label.Font()->traits(), visualHost().metrics(), place.width);
    for (std::int32_t down = -reach; down <= reach; ++down) {
        for (std::int32_t right = -reach; right <= reach; ++right) {
            text.draw(device, {place.left + right, place.top + down, place.width, place.height},
                      TextSide::Middle, TextSide::Middle);
        }
    }
}

} // namespace

struct ctl_Mark::Properties {
    static constexpr rows::Table Table{
        rows::property<u"MARK">(&ctl_Mark::mark_).always().then(&ctl_Mark::draw).spoken(),
        rows::property<u"MARKTEXT">(&ctl_Mark::MARKTEXT, &ctl_Mark::MARKTEXT),
        rows::property<u"BackColor">(&ctl_Mark::surface_, &PaintSurface::BackColor, &PaintSurface::BackColor,
                                     SystemColour::ButtonFace)
            .then(&ctl_Mark::draw),
    };
};

ctl_Mark::ctl_Mark() : frame_(*this), surface_(*this)
{
    rows::start<Properties>(*this);
    build();
    draw();
}

MemberTable ctl_Mark::members() const
{
    return rows::membersOf<Properties>();
}

void ctl_Mark::build()
{
    Container& inside = surface_.children();
    for (std::int32_t wholeMark = Best; wholeMark <= Worst; ++wholeMark) {
        const std::int32_t index = wholeMark - Best;
        const auto label = makeLabel(u"NoteAnz", Variant(wholeMark).toText(), NumberPoints);
        label->frame().Index(index);
        inside.add(label);
        label->Move(index * CellWidth, 0, CellWidth, CellHeight);
        wholeMarks_[static_cast<std::size_t>(index)] = label;
    }
    plus_ = makeLabel(u"Plus", u"+", SignPoints);
    minus_ = makeLabel(u"Minus", u"\u2212", SignPoints);
    for (const auto& sign : {plus_, minus_}) {
        inside.add(sign);
        sign->Move(SignLeft, 0, SignWidth, CellHeight);
    }
}

void ctl_Mark::MARK(enm_Mark value)
{
    rows::set<Properties, u"MARK">(*this, value);
}

String ctl_Mark::MARKTEXT() const
{
    const MarkSign sign = signOf(mark_);
    const StringView signText = sign == MarkSign::Plus ? u"+" : sign == MarkSign::Minus ? u"-" : u"";
    return Variant(static_cast<std::int32_t>(wholeMarkOf(mark_))).toText() + String(signText);
}

void ctl_Mark::MARKTEXT(StringView value)
{
    const char16_t first = value.empty() ? u'\0' : value.front();
    const char16_t last = value.empty() ? u'\0' : value.back();
    const std::int32_t sign = last == u'+' ? 1 : last == u'-' ? -1 : 0;
    MARK(static_cast<enm_Mark>(baseValue(first) + sign));
}

void ctl_Mark::BackColor(Colour value)
{
    rows::set<Properties, u"BackColor">(*this, value);
}

String ctl_Mark::accessibleText() const
{
    const bool english = currentLocale().language == LanguageEnglish;
    const MarkSign sign = signOf(mark_);
    const StringView signText = sign == MarkSign::Plus ? u" plus" : sign == MarkSign::Minus ? u" minus" : u"";
    return String(english ? u"Mark " : u"Note ") +
           Variant(static_cast<std::int32_t>(wholeMarkOf(mark_))).toText() + String(signText);
}

void ctl_Mark::draw()
{
    for (std::int32_t wholeMark = Best; wholeMark <= Worst; ++wholeMark) {
        drawWholeMark(wholeMark);
    }
    const std::int64_t chosen = wholeMarkOf(mark_);
    const MarkSign sign = signOf(mark_);
    drawSign(*plus_, sign == MarkSign::Plus, chosen - 1);
    drawSign(*minus_, sign == MarkSign::Minus, chosen + 1);
    surface_.invalidate();
}

void ctl_Mark::drawWholeMark(std::int32_t wholeMark)
{
    const bool chosen = wholeMark == wholeMarkOf(mark_);
    const Colour colour = markColour(wholeMark);
    stress(*wholeMarks_[static_cast<std::size_t>(wholeMark - Best)], chosen,
           chosen ? colour : CoreColors::Blend(BackColor(), QuietShare, colour));
}

/// `neighbour` is the whole mark towards which the sign points.
void ctl_Mark::drawSign(ctl_Label& sign, bool holds, std::int64_t neighbour)
{
    const std::int64_t chosen = wholeMarkOf(mark_);
    stress(sign, holds,
           holds ? CoreColors::Blend(markColour(chosen), SignShare, markColour(neighbour)) : BackColor());
    sign.Visible(holds); // the background's colour would erase what it crosses of the other sign
    const auto cell = static_cast<double>(std::clamp<std::int64_t>(chosen, Best, Worst) - Best);
    sign.Move(cell * CellWidth + SignLeft, sign.Top());
}

void ctl_Mark::resized()
{
    surface_.resized();
    const PixelRectangle place = frame_.pixelRectangle();
    const double width = wholeMarks_.back()->frame().pixelRectangle().right();
    const double height = minus_->frame().pixelRectangle().bottom();
    if (place.width != width || place.height != height) {
        ignoringErrors([&] { frame_.pixelRectangle({place.left, place.top, width, height}); });
    }
}

void ctl_Mark::paint()
{
    surface_.device().Cls();
    for (const auto& label : wholeMarks_) {
        paintBehind(*label);
        if (label->Raised()) {
            paintFrame(*label);
        }
    }
    for (const auto& sign : {plus_, minus_}) {
        if (sign->Raised()) {
            paintBehind(*sign);
        }
    }
}

/// The edge of a number or sign, in a shade of its colour that stands off from the ground: with it even
/// yellow can be read on white.
void ctl_Mark::paintBehind(ctl_Label& label)
{
    DrawDevice& device = surface_.device();
    device.ForeColor(edgeColour(label));
    paintEdge(device, label, label.Raised() ? 2 : 1);
}

/// What the chosen mark and its sign stand in.
void ctl_Mark::paintFrame(ctl_Label& label)
{
    DrawDevice& device = surface_.device();
    const PixelRectangle place = label.frame().pixelRectangle();
    for (const double inset : {0, 1}) {
        device.Line(place.left + inset, place.top + inset, place.right() - 1 - inset,
                    place.bottom() - 1 - inset, edgeColour(label), LineShape::Box);
    }
}

Colour ctl_Mark::edgeColour(const ctl_Label& label) const
{
    return CoreColors::Blend(label.ForeColor(), EdgeShare, isDark(BackColor()) ? WhiteEdge : BlackEdge);
}

} // namespace phial
