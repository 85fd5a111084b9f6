#include "desk/OlderNotation.h"

#include "core/ScriptCharacters.h"
#include "visual/DrawDevice.h"

namespace phial
{

namespace
{

constexpr char16_t Lowers = u'@';
constexpr char16_t Raises = u'^';
constexpr char16_t Ends = u'|';

} // namespace

void drawOlderNotation(DrawDevice& device, double height, StringView notation)
{
    const double signHeight = device.TextHeight(u"G");
    const double base = (height - signHeight) / 2;
    double left = 0;
    double top = base;
    for (const char16_t unit : notation) {
        if (unit == Lowers) {
            top = base + signHeight / 2;
        } else if (unit == Raises) {
            top = base - signHeight / 2;
        } else if (unit == Ends) {
            top = base;
        } else {
            const StringView sign(&unit, 1);
            device.CurrentX(left);
            device.CurrentY(top);
            device.Print(sign);
            left += device.TextWidth(sign);
        }
    }
}

String termOfOlderNotation(StringView notation)
{
    String term;
    for (const char16_t unit : notation) {
        if (unit == Raises) {
            term += u'^';
        } else if (unit != Lowers && unit != Ends) {
            term += unit;
        }
    }
    return term;
}

String unicodeOfOlderNotation(StringView notation)
{
    String text;
    ScriptLevel level = ScriptLevel::Normal;
    for (const char16_t unit : notation) {
        if (unit == Lowers) {
            level = ScriptLevel::Subscript;
        } else if (unit == Raises) {
            level = ScriptLevel::Superscript;
        } else if (unit == Ends) {
            level = ScriptLevel::Normal;
        } else {
            text += scriptForm(unit, level).value_or(unit);
        }
    }
    return text;
}

} // namespace phial
