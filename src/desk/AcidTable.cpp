#include "desk/AcidTable.h"

#include "visual/Markup.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace phial
{

namespace
{

constexpr Acid Acids[] = {
    {u"HCl", u"Cl<sup>-</sup>", u"-3.00"},
    {u"H<sub>3</sub>O<sup>+</sup>", u"H<sub>2</sub>O", u"-1.74"},
    {u"H<sub>3</sub>PO<sub>4</sub>", u"H<sub>2</sub>PO<sub>4</sub><sup>-</sup>", u"1.96"},
    {u"HCOOH", u"HCOO<sup>-</sup>", u"3.74"},
    {u"CH<sub>3</sub>COOH", u"CH<sub>3</sub>COO<sup>-</sup>", u"4.76"},
    {u"CO<sub>2</sub>*H<sub>2</sub>O", u"HCO<sub>3</sub><sup>-</sup>", u"6.52"},
    {u"NH<sub>4</sub><sup>+</sup>", u"NH<sub>3</sub>", u"9.24"},
    {u"HCO<sub>3</sub><sup>-</sup>", u"CO<sub>3</sub><sup>2-</sup>", u"10.40"},
    {u"H<sub>2</sub>O", u"OH<sup>-</sup>", u"15.74"},
};

/// Where the second and the third column of the head begin.
std::array<std::size_t, 2> columnsOf(StringView head)
{
    std::array<std::size_t, 2> columns{};
    std::size_t at = 0;
    for (std::size_t& column : columns) {
        at = head.find_first_not_of(u' ', head.find(u"  ", at));
        column = at;
    }
    return columns;
}

double widthOf(StringView markup, const FontSpec& font)
{
    // What stands behind the last sign counts only with another sign behind it.
    constexpr StringView Post = u"|";
    TextMetrics& metrics = visualHost().metrics();
    const auto width = [&](StringView text) { return MarkupLayout(text, font, metrics).size().width; };
    return width(String(markup) + String(Post)) - width(Post);
}

/// The line with blanks behind it up to that place, one at least.
String paddedTo(double place, String line, const FontSpec& font)
{
    constexpr char16_t HairSpace = 0x200A;
    const double blank = widthOf(u" ", font);
    const double hair = widthOf(StringView(&HairSpace, 1), font);
    const bool hasHairs = hair > 0 && hair < blank / 2;
    const double gap = std::max(place - widthOf(line, font), blank);
    const double blanks = hasHairs ? std::floor(gap / blank) : std::round(gap / blank);
    line.append(static_cast<std::size_t>(blanks), u' ');
    if (hasHairs) {
        line.append(static_cast<std::size_t>(std::round((gap - blanks * blank) / hair)), HairSpace);
    }
    return line;
}

} // namespace

std::span<const Acid> acids()
{
    return Acids;
}

String acidTable(StringView head, const FontSpec& font)
{
    constexpr char16_t LineFeed = 10;
    const auto [baseAt, pKsAt] = columnsOf(head);
    const double basePlace = widthOf(head.substr(0, baseAt), font);
    const double pKsPlace = widthOf(head.substr(0, pKsAt), font);
    String text = String(head) + LineFeed;
    for (const Acid& acid : Acids) {
        const String begun = paddedTo(basePlace, String(acid.acid), font) + String(acid.base);
        text += paddedTo(pKsPlace, begun, font) + String(acid.pKs) + LineFeed;
    }
    return text;
}

} // namespace phial
