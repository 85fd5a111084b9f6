#include "term/TermSigns.h"

#include "core/Colour.h"
#include "visual/DrawDevice.h"

namespace phial
{

namespace
{

constexpr int Red = 12;            // of the classic table of colours
constexpr double IndexSize = 0.9;  // of the line's font size
constexpr double IndexShift = 0.3; // of the line's height, down or up

constexpr char16_t End = u'\uFFFF'; // no neighbour: no character has this code

bool isIndexSign(char16_t unit)
{
    return StringView(u"0123456789,.").find(unit) != StringView::npos;
}

} // namespace

/// Applies the first rule that fits; gives the number of characters used.
std::size_t TermSigns::write(TermWalk& walk, const TermLine& line)
{
    const char16_t c = term_[walk.position];
    const char16_t next = neighbour(walk, line, 1);
    switch (c) {
    case u'§':
        device_.ForeColor(QBColor(Red));
        return 1;
    case u' ':
        walk.mode = TermLevel::Normal;
        return printPlain(walk, c);
    case u'^':
        return jumpToAnchor(walk, TermLevel::Superscript);
    case u'µ':
        return jumpToAnchor(walk, TermLevel::Subscript);
    case u'#':
        walk.mode = TermLevel::Normal;
        walk.anchor = device_.CurrentX();
        return 1;
    case u'|':
        return next == End ? printPlain(walk, c) : startStroke(walk);
    case u'~':
        return next == u'~' ? drawApproximately(walk, line) : drawIndexed(walk, line, c);
    case u'*':
        return drawMiddleDot(walk, line);
    case u',':
    case u'(':
    case u'/':
        return printPlain(walk, c);
    case u'+':
        return walk.mode != TermLevel::Superscript && next != End && next != u')'
                   ? printPlain(walk, c)
                   : drawIndexed(walk, line, c);
    case u')':
        walk.plain = false;
        put(walk, c);
        return 1;
    case u'=':
        return next == u'^' ? drawCorrespondence(walk, line) : drawIndexed(walk, line, c);
    case u'-':
        return next == u'>' ? drawArrow(walk, line, u'\u00E0') : drawIndexed(walk, line, c);
    case u'<':
        return next == u'-' ? drawArrow(walk, line, u'\u00DF') : drawIndexed(walk, line, c);
    default:
        return drawIndexed(walk, line, c);
    }
}

/// The character `offset` places on within the part; End outside of it.
char16_t TermSigns::neighbour(const TermWalk& walk, const TermLine& line, std::ptrdiff_t offset) const
{
    const auto place = static_cast<std::ptrdiff_t>(walk.position) + offset;
    const bool inside = place >= static_cast<std::ptrdiff_t>(line.part.begin) &&
                        place < static_cast<std::ptrdiff_t>(line.part.end);
    return inside ? term_[static_cast<std::size_t>(place)] : End;
}

void TermSigns::put(const TermWalk& walk, StringView text)
{
    if (walk.drawing && isSeen_) {
        device_.Print(text);
    } else {
        device_.CurrentX(device_.CurrentX() + device_.TextWidth(text));
    }
}

std::size_t TermSigns::printPlain(TermWalk& walk, char16_t c)
{
    walk.plain = true;
    put(walk, c);
    return 1;
}

std::size_t TermSigns::jumpToAnchor(TermWalk& walk, TermLevel mode)
{
    device_.CurrentX(walk.anchor);
    walk.mode = mode;
    walk.forced = true;
    return 1;
}

std::size_t TermSigns::startStroke(TermWalk& walk)
{
    walk.stroke = PixelPoint{device_.CurrentX(), device_.CurrentY() + device_.TextHeight(u"|")};
    return 1;
}

void TermSigns::moveX(double distance)
{
    device_.CurrentX(device_.CurrentX() + distance);
}

std::size_t TermSigns::drawApproximately(TermWalk& walk, const TermLine& line)
{
    device_.FontName(u"Symbol");
    device_.CurrentY(walk.base + line.height / 2 - 0.6 * device_.TextHeight(u"i"));
    printPlain(walk, u'\u00BB');
    moveX(-2);
    device_.FontName(line.fontName);
    return 2;
}

std::size_t TermSigns::drawMiddleDot(TermWalk& walk, const TermLine& line)
{
    device_.FontName(u"Marlett");
    device_.FontSize(0.6 * line.fontSize);
    moveX(-2);
    device_.CurrentY(walk.base + line.height / 2 - device_.TextHeight(u"i") / 2);
    printPlain(walk, u'i');
    device_.FontSize(line.fontSize);
    moveX(-2);
    device_.FontName(line.fontName);
    return 1;
}

std::size_t TermSigns::drawArrow(TermWalk& walk, const TermLine& line, char16_t arrow)
{
    device_.FontName(u"Wingdings");
    moveX(10);
    device_.CurrentY(walk.base + 0.1 * line.height);
    device_.FontSize(0.8 * line.fontSize);
    printPlain(walk, arrow);
    device_.FontSize(line.fontSize);
    moveX(10);
    device_.FontName(line.fontName);
    return 2;
}

std::size_t TermSigns::drawCorrespondence(TermWalk& walk, const TermLine& line)
{
    const double startX = device_.CurrentX();
    printPlain(walk, u'=');
    device_.CurrentY(device_.CurrentY() + line.height / 10);
    device_.FontSize(0.5 * line.fontSize);
    device_.CurrentX((device_.CurrentX() + startX) / 2 - device_.TextWidth(u"^") / 2);
    put(walk, u'^');
    device_.FontSize(line.fontSize);
    device_.CurrentY(device_.CurrentY() - line.height / 10);
    device_.CurrentX(startX + device_.TextWidth(u"="));
    return 2;
}

/// A sign is a charge when nothing of the formula follows it, and never behind a blank.
bool TermSigns::isCharge(const TermWalk& walk, const TermLine& line) const
{
    const char16_t next = neighbour(walk, line, 1);
    const bool formulaFollows =
        next != End && next != u' ' && next != u'|' && next != u')' && !isIndexSign(next);
    return !formulaFollows && neighbour(walk, line, -1) != u' ';
}

std::size_t TermSigns::drawIndexed(TermWalk& walk, const TermLine& line, char16_t c)
{
    bool isIndex = isIndexSign(c);
    if (!isIndex) {
        walk.plain = false;
    }
    if (walk.plain) {
        isIndex = false;
    }
    if ((c == u'+' || c == u'-') && isCharge(walk, line)) {
        walk.mode = TermLevel::Superscript;
        isIndex = true;
    }
    if (walk.forced) {
        walk.forced = false;
    } else if (walk.mode == TermLevel::Normal && isIndex) {
        walk.mode = TermLevel::Subscript;
    } else if (walk.mode != TermLevel::Normal && !isIndex) {
        walk.mode = TermLevel::Normal;
    }
    if (walk.mode != TermLevel::Normal) {
        device_.FontSize(IndexSize * line.fontSize);
        device_.CurrentY(walk.base + static_cast<int>(walk.mode) * IndexShift * line.height);
    }
    const char16_t next = neighbour(walk, line, 1);
    const bool isPair = isHighSurrogate(c) && isLowSurrogate(next);
    put(walk, term_.substr(walk.position, isPair ? 2 : 1));
    if (walk.mode == TermLevel::Normal) {
        walk.anchor = device_.CurrentX();
    }
    return isPair ? 2 : 1;
}

} // namespace phial
