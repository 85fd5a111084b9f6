#include "qt/desktop/SvgFormPainter.h"

#include "qt/base/QtText.h"
#include "qt/desktop/FontCatalogue.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <vector>

namespace phial::qt
{

namespace
{

// Fonts have whole pixel sizes, so texts are laid out this many times larger and drawn smaller.
constexpr double Enlargement = 32;
constexpr double SmallestShare = 0.5;
constexpr double Shrinking = 0.96;
constexpr double EdgeShare =
    0.06; ///< of the page's width, which a line without a box keeps free on each side

bool isGeneric(const QString& name)
{
    return name == QLatin1String("serif") || name == QLatin1String("sans-serif") ||
           name == QLatin1String("monospace");
}

/// The named families that can be had, or substitutes for them, in the drawing's order of preference.
QStringList familiesOf(const SvgTextStyle& style)
{
    const QString general = fontCatalogue().family(u"");
    QStringList families;
    for (QString name : style.families.split(QChar(u','))) {
        name = name.remove(QChar(u'"')).remove(QChar(u'\'')).trimmed();
        const QString family = isGeneric(name) ? name : fontCatalogue().family(fromQt(name));
        if (family != general || fontCatalogue().has(fromQt(name))) {
            families.append(family);
        }
    }
    families.append(general);
    return families;
}

/// "rgb(20, 83, 45)"; no valid colour for anything else.
QColor rgbColour(const QString& text)
{
    static const QRegularExpression Form(
        QStringLiteral(R"(^rgb\(\s*(\d{1,3})\s*,\s*(\d{1,3})\s*,\s*(\d{1,3})\s*\)$)"));
    const QRegularExpressionMatch parts = Form.match(text);
    return parts.hasMatch()
               ? QColor(parts.captured(1).toInt(), parts.captured(2).toInt(), parts.captured(3).toInt())
               : QColor();
}

/// The colour of a text; none for one that is not to be seen, which is not drawn into a PDF file either. What
/// is no single colour, such as a gradient, is black, so that no text is lost.
std::optional<QColor> colourOf(const SvgTextStyle& style)
{
    if (style.fill == QLatin1String("none") || style.opacity <= 0) {
        return std::nullopt;
    }
    const QColor rgb = rgbColour(style.fill);
    QColor colour = rgb.isValid() ? rgb : QColor(style.fill);
    if (!colour.isValid()) {
        colour = Qt::black;
    }
    colour.setAlphaF(static_cast<float>(colour.alphaF() * style.opacity));
    return colour;
}

QFont fontOf(const SvgTextStyle& style, double share)
{
    QFont font(familiesOf(style));
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.size * share * Enlargement))));
    font.setWeight(static_cast<QFont::Weight>(style.weight));
    font.setItalic(style.italic);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.letterSpacing * share * Enlargement);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Qt::Alignment alignmentOf(TextSide side)
{
    switch (side) {
    case TextSide::Near:
        break;
    case TextSide::Middle:
        return Qt::AlignHCenter;
    case TextSide::Far:
        return Qt::AlignRight;
    }
    return Qt::AlignLeft;
}

/// The text of a field laid out at one size, in enlarged units.
class FieldText
{
public:
    /// Lines end at `width`; without one they go on to their end.
    FieldText(const SvgField& field, std::optional<double> width, double share)
        : font_(fontOf(field.style, share)),
          lineHeight_(field.style.size * share * field.style.lineHeight * Enlargement)
    {
        // Without a width the place of a line is the drawing's business, not the layout's.
        QTextOption option(width ? alignmentOf(field.style.align) : Qt::AlignLeft);
        option.setWrapMode(width ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        for (const QString& paragraph : field.text.split(QChar(u'\n'))) {
            layOut(paragraph, option, width ? *width * Enlargement : 0);
        }
    }

    int lines() const { return lines_; }
    double lineHeight() const { return lineHeight_; }
    double height() const { return lines_ * lineHeight_; }
    double widest() const { return widest_; }

    /// Draws the first lines, the first with its base line at that place.
    void draw(QPainter& painter, QPointF start, int count, TextSide align, bool boxed) const
    {
        int number = 0;
        for (const auto& paragraph : paragraphs_) {
            for (int index = 0; index < paragraph->lineCount() && number + index < count; ++index) {
                const QTextLine line = paragraph->lineAt(index);
                const double shift = boxed ? 0 : along(line.naturalTextWidth(), align);
                line.draw(&painter,
                          {start.x() - shift, start.y() + (number + index) * lineHeight_ - line.ascent()});
            }
            number += std::max(1, paragraph->lineCount());
        }
    }

    /// From the upper edge of a line's room to its base line, the font standing in the middle of the room.
    double baseLine() const
    {
        const QFontMetricsF metrics(font_);
        return (lineHeight_ + metrics.ascent() - metrics.descent()) / 2;
    }

private:
    void layOut(const QString& text, const QTextOption& option, double width)
    {
        auto paragraph = std::make_unique<QTextLayout>(text, font_);
        paragraph->setTextOption(option);
        paragraph->beginLayout();
        for (QTextLine line = paragraph->createLine(); line.isValid(); line = paragraph->createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, 0});
            widest_ = std::max(widest_, line.naturalTextWidth());
        }
        paragraph->endLayout();
        // An empty paragraph takes the room of a line.
        lines_ += std::max(1, paragraph->lineCount());
        paragraphs_.push_back(std::move(paragraph));
    }

    QFont font_;
    double lineHeight_;
    std::vector<std::unique_ptr<QTextLayout>> paragraphs_;
    int lines_ = 0;
    double widest_ = 0;
};

/// The text at the largest size, down to the smallest share, at which it fits.
template <typename Fits>
FieldText fittingText(const SvgField& field, std::optional<double> width, const Fits& fits)
{
    double share = 1;
    FieldText text(field, width, share);
    while (!fits(text) && share > SmallestShare) {
        share *= Shrinking;
        text = FieldText(field, width, share);
    }
    return text;
}

void drawInBox(QPainter& painter, const SvgField& field, const QRectF& box)
{
    const double room = box.height() * Enlargement;
    const FieldText text = fittingText(
        field, box.width(), [room](const FieldText& candidate) { return candidate.height() <= room; });
    const int lines = std::clamp(static_cast<int>(room / text.lineHeight()), 1, text.lines());
    const double free = room - lines * text.lineHeight();
    const double top = box.top() * Enlargement + along(free, field.style.vertical);
    text.draw(painter, {box.left() * Enlargement, top + text.baseLine()}, lines, field.style.align, true);
}

/// How long a line may be that begins, is centred or ends at that place across the page.
double roomForLine(TextSide align, double x, const QRectF& page)
{
    const double left = x - page.left() - page.width() * EdgeShare;
    const double right = page.right() - page.width() * EdgeShare - x;
    switch (align) {
    case TextSide::Near:
        break;
    case TextSide::Middle:
        return 2 * std::min(left, right);
    case TextSide::Far:
        return left;
    }
    return right;
}

void drawAtPoint(QPainter& painter, const SvgField& field, double room)
{
    const FieldText text = fittingText(field, std::nullopt, [room](const FieldText& candidate) {
        return candidate.widest() <= room * Enlargement;
    });
    text.draw(painter, QPointF(field.x, field.y) * Enlargement, text.lines(), field.style.align, false);
}

void drawField(QPainter& painter, const SvgField& field, const QTransform& toPage, const QRectF& page)
{
    const std::optional<QColor> colour = colourOf(field.style);
    if (!colour) {
        return;
    }
    painter.save();
    painter.setPen(*colour);
    painter.setTransform(QTransform::fromScale(1 / Enlargement, 1 / Enlargement) * toPage *
                         painter.transform());
    if (field.box) {
        drawInBox(painter, field, *field.box);
    } else {
        const double scale = std::hypot(toPage.m11(), toPage.m12());
        const double x = toPage.map(QPointF(field.x, field.y)).x();
        drawAtPoint(painter, field, scale > 0 ? roomForLine(field.style.align, x, page) / scale : 0);
    }
    painter.restore();
}

/// The largest area of the drawing's shape in the middle of the given one.
QRectF fitted(const QRectF& area, const QSizeF& drawing)
{
    const QSizeF size = drawing.scaled(area.size(), Qt::KeepAspectRatio);
    return {area.center() - QPointF(size.width(), size.height()) / 2, size};
}

} // namespace

bool drawSvgForm(QPainter& painter, const SvgForm& form, const QRectF& area)
{
    QSvgRenderer renderer(form.drawing);
    const QRectF view = renderer.viewBoxF();
    if (!renderer.isValid() || view.isEmpty()) {
        return false;
    }
    const QRectF target = fitted(area, view.size());
    const double scale = target.width() / view.width();
    const QTransform viewToPage = QTransform::fromTranslate(-view.left(), -view.top()) *
                                  QTransform::fromScale(scale, scale) *
                                  QTransform::fromTranslate(target.left(), target.top());
    renderer.render(&painter, target);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const SvgField& field : form.fields) {
        drawField(painter, field, renderer.transformForElement(field.placeholder) * viewToPage, target);
    }
    return true;
}

} // namespace phial::qt
