#include "term/TermSigns.h"

#include "core/Colour.h"
#include "term/TermLayout.h"
#include "visual/DrawDevice.h"

namespace phial
{

namespace
{

constexpr int Red = 12;            // of the classic table of colours
constexpr double IndexSize = 0.9;  // of the line's font size
constexpr double IndexShift = 0.3; // of the line's height, down or up

} // namespace

std::size_t TermSigns::write(TermWalk& walk, const TermLine& line)
{
    const StringView part = term_.substr(line.part.begin, line.part.end - line.part.begin);
    const TermSign sign = walk.rules.read(part, walk.position - line.part.begin);
    switch (sign.kind) {
    case TermSign::Kind::Character:
        drawCharacter(walk, line, sign);
        break;
    case TermSign::Kind::Red:
        device_.ForeColor(QBColor(Red));
        break;
    case TermSign::Kind::Raise:
    case TermSign::Kind::Lower:
        device_.CurrentX(walk.anchor);
        break;
    case TermSign::Kind::EndLevel:
        walk.anchor = device_.CurrentX();
        break;
    case TermSign::Kind::Stroke:
        startStroke(walk);
        break;
    case TermSign::Kind::Approximately:
        drawApproximately(walk, line);
        break;
    case TermSign::Kind::MiddleDot:
        drawMiddleDot(walk, line);
        break;
    case TermSign::Kind::RightArrow:
        drawArrow(walk, line, u"\u00E0");
        break;
    case TermSign::Kind::LeftArrow:
        drawArrow(walk, line, u"\u00DF");
        break;
    case TermSign::Kind::Correspondence:
        drawCorrespondence(walk, line);
        break;
    }
    return sign.length;
}

void TermSigns::put(const TermWalk& walk, StringView text)
{
    if (walk.drawing && !layout_) {
        device_.Print(text);
        return;
    }
    const double width = device_.TextWidth(text);
    if (walk.drawing) {
        layout_->addText(device_, text, width);
    }
    moveX(width);
}

void TermSigns::moveX(double distance)
{
    device_.CurrentX(device_.CurrentX() + distance);
}

void TermSigns::startStroke(TermWalk& walk)
{
    walk.stroke = PixelPoint{device_.CurrentX(), device_.CurrentY() + device_.TextHeight(u"|")};
}

void TermSigns::drawCharacter(TermWalk& walk, const TermLine& line, const TermSign& sign)
{
    if (sign.level != ScriptLevel::Normal) {
        device_.FontSize(IndexSize * line.fontSize);
        device_.CurrentY(walk.base + static_cast<int>(sign.level) * IndexShift * line.height);
    }
    put(walk, term_.substr(walk.position, sign.length));
    if (sign.isAnchor) {
        walk.anchor = device_.CurrentX();
    }
}

void TermSigns::drawApproximately(const TermWalk& walk, const TermLine& line)
{
    device_.FontName(u"Symbol");
    device_.CurrentY(walk.base + line.height / 2 - 0.6 * device_.TextHeight(u"i"));
    put(walk, u"\u00BB");
    moveX(-2);
    device_.FontName(line.fontName);
}

void TermSigns::drawMiddleDot(const TermWalk& walk, const TermLine& line)
{
    device_.FontName(u"Marlett");
    device_.FontSize(0.6 * line.fontSize);
    moveX(-2);
    device_.CurrentY(walk.base + line.height / 2 - device_.TextHeight(u"i") / 2);
    put(walk, u"i");
    device_.FontSize(line.fontSize);
    moveX(-2);
    device_.FontName(line.fontName);
}

void TermSigns::drawArrow(const TermWalk& walk, const TermLine& line, StringView arrow)
{
    device_.FontName(u"Wingdings");
    moveX(10);
    device_.CurrentY(walk.base + 0.1 * line.height);
    device_.FontSize(0.8 * line.fontSize);
    put(walk, arrow);
    device_.FontSize(line.fontSize);
    moveX(10);
    device_.FontName(line.fontName);
}

void TermSigns::drawCorrespondence(const TermWalk& walk, const TermLine& line)
{
    const double startX = device_.CurrentX();
    put(walk, u"=");
    device_.CurrentY(device_.CurrentY() + line.height / 10);
    device_.FontSize(0.5 * line.fontSize);
    device_.CurrentX((device_.CurrentX() + startX) / 2 - device_.TextWidth(u"^") / 2);
    put(walk, u"^");
    device_.FontSize(line.fontSize);
    device_.CurrentY(device_.CurrentY() - line.height / 10);
    device_.CurrentX(startX + device_.TextWidth(u"="));
}

} // namespace phial
