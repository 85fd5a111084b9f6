#include "qt/desktop/SvgForm.h"

#include <QDomDocument>
#include <QHash>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cmath>

namespace phial::qt
{

namespace
{

constexpr qsizetype MaxBytes = 8 * 1024 * 1024;
constexpr int MaxElements = 20'000;
constexpr int MaxDepth = 64;
constexpr double MaxLength = 1e6;

/// Whether the bytes are XML of bounded size and depth, so that what recurses into it stays within its stack.
bool isHarmless(const QByteArray& bytes)
{
    if (bytes.size() > MaxBytes) {
        return false;
    }
    QXmlStreamReader reader(bytes);
    int depth = 0;
    int elements = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && (++depth > MaxDepth || ++elements > MaxElements)) {
            return false;
        }
        if (reader.isEndElement()) {
            --depth;
        }
        if (reader.isDTD() && !reader.entityDeclarations().isEmpty()) {
            return false;
        }
    }
    return !reader.hasError() && elements > 0;
}

struct Unit {
    const char* name;
    double pixels;
};
constexpr std::array<Unit, 7> Units{
    {{"px", 1}, {"pt", 96 / 72.0}, {"pc", 16}, {"mm", 96 / 25.4}, {"cm", 96 / 2.54}, {"in", 96}, {"", 1}}};

std::optional<double> number(const QString& text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber && std::isfinite(value) && std::abs(value) <= MaxLength ? std::optional(value)
                                                                            : std::nullopt;
}

/// A length such as "12", "12px" or "4.5mm" in pixels of 96 to an inch; of a list the first.
std::optional<double> length(const QString& text)
{
    const QString first = text.simplified().section(QChar(u' '), 0, 0).section(QChar(u','), 0, 0);
    for (const Unit& unit : Units) {
        if (!first.endsWith(QLatin1String(unit.name))) {
            continue;
        }
        if (const auto value = number(first.chopped(static_cast<qsizetype>(qstrlen(unit.name))))) {
            return *value * unit.pixels;
        }
    }
    return std::nullopt;
}

using Properties = QHash<QString, QString>;

/// The properties that an element states itself: its attributes, and its style, which counts more.
Properties statedProperties(const QDomElement& element)
{
    Properties properties;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int index = 0; index < attributes.count(); ++index) {
        const QDomAttr attribute = attributes.item(index).toAttr();
        properties.insert(attribute.name(), attribute.value());
    }
    for (const QString& declaration : element.attribute(QStringLiteral("style")).split(QChar(u';'))) {
        const qsizetype colon = declaration.indexOf(QChar(u':'));
        if (colon > 0) {
            properties.insert(declaration.left(colon).trimmed(), declaration.mid(colon + 1).trimmed());
        }
    }
    return properties;
}

int weightOf(const QString& text)
{
    if (text == QLatin1String("bold") || text == QLatin1String("bolder")) {
        return 700;
    }
    bool isNumber = false;
    const int weight = text.toInt(&isNumber);
    return isNumber ? std::clamp(weight, 100, 900) : 400;
}

TextSide alignOf(const QString& text)
{
    if (text == QLatin1String("middle") || text == QLatin1String("center")) {
        return TextSide::Middle;
    }
    return text == QLatin1String("end") ? TextSide::Far : TextSide::Near;
}

TextSide verticalOf(const QString& text)
{
    if (text == QLatin1String("center")) {
        return TextSide::Middle;
    }
    return text == QLatin1String("after") ? TextSide::Far : TextSide::Near;
}

double lineHeightOf(const QString& text, const SvgTextStyle& style)
{
    const auto bounded = [](double factor) { return std::clamp(factor, 0.5, 4.0); };
    if (text.endsWith(QChar(u'%'))) {
        const auto percent = number(text.chopped(1));
        return percent ? bounded(*percent / 100) : style.lineHeight;
    }
    if (const auto factor = number(text)) {
        return bounded(*factor);
    }
    const auto pixels = length(text);
    return pixels ? bounded(*pixels / style.size) : style.lineHeight;
}

/// Takes over what an element states of a text's look.
void applyProperties(SvgTextStyle& style, const Properties& stated)
{
    const auto with = [&stated](const char* name, const auto& take) {
        const auto found = stated.constFind(QLatin1String(name));
        if (found != stated.constEnd() && *found != QLatin1String("inherit")) {
            take(*found);
        }
    };
    with("font-family", [&](const QString& value) { style.families = value; });
    with("font-size", [&](const QString& value) {
        style.size = std::clamp(length(value).value_or(style.size), 0.1, 10'000.0);
    });
    with("line-height", [&](const QString& value) { style.lineHeight = lineHeightOf(value, style); });
    with("letter-spacing", [&](const QString& value) { style.letterSpacing = length(value).value_or(0); });
    with("font-weight", [&](const QString& value) { style.weight = weightOf(value); });
    with("font-style", [&](const QString& value) {
        style.italic = value == QLatin1String("italic") || value == QLatin1String("oblique");
    });
    with("fill", [&](const QString& value) { style.fill = value; });
    with("fill-opacity",
         [&](const QString& value) { style.opacity = std::clamp(number(value).value_or(1), 0.0, 1.0); });
    with("text-align", [&](const QString& value) { style.align = alignOf(value); });
    with("text-anchor", [&](const QString& value) { style.align = alignOf(value); });
    with("display-align", [&](const QString& value) { style.vertical = verticalOf(value); });
}

/// The look that an element has from all that surround it.
SvgTextStyle styleOf(const QDomElement& element)
{
    std::vector<QDomElement> outward;
    for (QDomElement at = element; !at.isNull(); at = at.parentNode().toElement()) {
        outward.push_back(at);
    }
    SvgTextStyle style;
    std::for_each(outward.rbegin(), outward.rend(),
                  [&style](const QDomElement& at) { applyProperties(style, statedProperties(at)); });
    return style;
}

/// Whether the element holds parts that are drawn elsewhere or not at all.
bool isStore(const QDomElement& element)
{
    constexpr std::array Stores = {"defs", "symbol", "clipPath", "mask", "pattern", "marker"};
    return std::ranges::any_of(Stores,
                               [&](const char* name) { return element.tagName() == QLatin1String(name); });
}

/// How much of the element shines through all that surrounds it: 0 where the drawing hides it, as editors do
/// with layers that are switched off.
double opacityOf(const QDomElement& element)
{
    double opacity = 1;
    for (QDomElement at = element; !at.isNull(); at = at.parentNode().toElement()) {
        const Properties stated = statedProperties(at);
        if (isStore(at) || stated.value(QStringLiteral("display")) == QLatin1String("none")) {
            return 0;
        }
        opacity *= std::clamp(number(stated.value(QStringLiteral("opacity"))).value_or(1), 0.0, 1.0);
    }
    return opacity;
}

/// Whether the element begins a line of its own, as editors mark it.
bool isLine(const QDomElement& span)
{
    return span.attribute(QStringLiteral("sodipodi:role")) == QLatin1String("line");
}

/// The text within an element, its lines divided by LF. Line ends of the file are blanks, as in any SVG.
void collectText(const QDomNode& node, QString& text)
{
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText()) {
            QString piece = child.nodeValue();
            piece.replace(QChar(u'\n'), QChar(u' '));
            text += piece;
        } else if (child.toElement().tagName() == QLatin1String("tspan")) {
            if (isLine(child.toElement()) && !text.trimmed().isEmpty()) {
                text += QChar(u'\n');
            }
            collectText(child, text);
        }
    }
}

QString textOf(const QDomElement& element)
{
    QString text;
    collectText(element, text);
    QStringList lines = text.split(QChar(u'\n'));
    for (QString& line : lines) {
        line = line.simplified();
    }
    return lines.join(QChar(u'\n'));
}

QString nameOf(const QDomElement& element)
{
    const QString label = element.attribute(QStringLiteral("inkscape:label"));
    return label.isEmpty() ? element.attribute(QStringLiteral("id")) : label;
}

/// An attribute of the text or, where editors put it, of its first line.
double place(const QDomElement& text, const QString& attribute)
{
    const auto own = length(text.attribute(attribute));
    if (own) {
        return *own;
    }
    return length(text.firstChildElement(QStringLiteral("tspan")).attribute(attribute)).value_or(0);
}

using Elements = QHash<QString, QDomElement>;

std::optional<QRectF> rectangle(const QDomElement& element)
{
    if (element.isNull() || element.tagName() != QLatin1String("rect")) {
        return std::nullopt;
    }
    const auto value = [&element](const char* name) {
        return length(element.attribute(QLatin1String(name))).value_or(0);
    };
    const QRectF area(value("x"), value("y"), value("width"), value("height"));
    return area.isValid() ? std::optional(area) : std::nullopt;
}

/// The rectangle that a text says it fills.
std::optional<QRectF> boxOf(const QDomElement& text, const Elements& byId)
{
    const QString shape = statedProperties(text).value(QStringLiteral("shape-inside"));
    const qsizetype hash = shape.indexOf(QChar(u'#'));
    const qsizetype end = shape.indexOf(QChar(u')'), hash);
    if (hash < 0 || end < 0) {
        return std::nullopt;
    }
    QString id = shape.mid(hash + 1, end - hash - 1);
    id.remove(QChar(u'"')).remove(QChar(u'\''));
    return rectangle(byId.value(id));
}

void collectElements(const QDomElement& element, Elements& rById, std::vector<QDomElement>& rTexts)
{
    rById.insert(element.attribute(QStringLiteral("id")), element);
    if (element.tagName() == QLatin1String("text")) {
        rTexts.push_back(element);
        return;
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        collectElements(child, rById, rTexts);
    }
}

/// Puts an empty shape in the place of a text, under the same transformations.
void replaceByPlaceholder(QDomDocument& document, const QDomElement& text, const QString& id)
{
    QDomElement group = document.createElement(QStringLiteral("g"));
    if (text.hasAttribute(QStringLiteral("transform"))) {
        group.setAttribute(QStringLiteral("transform"), text.attribute(QStringLiteral("transform")));
    }
    QDomElement shape = document.createElement(QStringLiteral("rect"));
    shape.setAttribute(QStringLiteral("id"), id);
    shape.setAttribute(QStringLiteral("width"), 1);
    shape.setAttribute(QStringLiteral("height"), 1);
    shape.setAttribute(QStringLiteral("style"), QStringLiteral("fill:none;stroke:none"));
    group.appendChild(shape);
    text.parentNode().replaceChild(group, text);
}

SvgField fieldOf(const QDomElement& text, const Elements& byId)
{
    SvgField field;
    field.name = nameOf(text);
    field.text = textOf(text);
    field.style = styleOf(text);
    // Editors give a line's look to the line, not to the text around it.
    const QDomElement line = text.firstChildElement(QStringLiteral("tspan"));
    if (!line.isNull()) {
        applyProperties(field.style, statedProperties(line));
    }
    field.style.opacity *= opacityOf(text);
    field.x = place(text, QStringLiteral("x"));
    field.y = place(text, QStringLiteral("y"));
    field.box = boxOf(text, byId);
    return field;
}

QSizeF pageSizeOf(const QDomElement& root)
{
    constexpr double MillimetresPerPixel = 25.4 / 96;
    const auto width = length(root.attribute(QStringLiteral("width")));
    const auto height = length(root.attribute(QStringLiteral("height")));
    if (!width || !height || *width <= 0 || *height <= 0) {
        return {};
    }
    return QSizeF(*width, *height) * MillimetresPerPixel;
}

} // namespace

std::optional<SvgForm> readSvgForm(const QByteArray& bytes)
{
    QDomDocument document;
    if (!isHarmless(bytes) || !document.setContent(bytes)) {
        return std::nullopt;
    }
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("svg")) {
        return std::nullopt;
    }
    Elements byId;
    std::vector<QDomElement> texts;
    collectElements(root, byId, texts);

    SvgForm form;
    form.pageSize = pageSizeOf(root);
    for (const QDomElement& text : texts) {
        SvgField field = fieldOf(text, byId);
        field.placeholder = QStringLiteral("form-field-%1").arg(form.fields.size() + 1);
        replaceByPlaceholder(document, text, field.placeholder);
        form.fields.push_back(std::move(field));
    }
    form.drawing = document.toByteArray(-1);
    return form;
}

} // namespace phial::qt
