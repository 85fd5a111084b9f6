#pragma once

#include "visual/Alignment.h"

#include <QByteArray>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

namespace phial::qt
{

/// How the text of a field looks, in the words of the drawing. Lengths are in the drawing's units.
struct SvgTextStyle {
    QString families = QStringLiteral("sans-serif"); ///< as written: names divided by commas
    double size = 16;
    double lineHeight = 1.25; ///< in parts of the size
    double letterSpacing = 0;
    int weight = 400;
    bool italic = false;
    QString fill = QStringLiteral("#000000");
    double opacity = 1;                 ///< 0 where the drawing hides the text
    TextSide align = TextSide::Near;    ///< along the line
    TextSide vertical = TextSide::Near; ///< within a box, from its upper edge
};

/// A field of a form: a text that begins at a point, or one that fills a box and wraps there.
struct SvgField {
    QString name;
    QString text; ///< lines divided by LF
    SvgTextStyle style;
    double x = 0; ///< where lines begin, are centred or end
    double y = 0; ///< the base line of the first
    std::optional<QRectF> box;
    /// The element in `SvgForm::drawing` that stands in its place, for its transformation.
    QString placeholder;
};

/// A form file taken apart: the drawing without its texts, and the texts as fields.
///
/// A form is an SVG drawing. Each text element is a field. It is named by its label, else by its id. A text
/// that says `shape-inside:url(#name)` fills the rectangle of that name.
struct SvgForm {
    QByteArray drawing;
    std::vector<SvgField> fields; ///< in the order of the drawing
    QSizeF pageSize;              ///< in millimetres, when the drawing tells; else empty
};

/// Reads a form. No value for anything but a well-formed SVG drawing of at most 8 MB, 20,000 elements and 64
/// levels, without entities of its own.
std::optional<SvgForm> readSvgForm(const QByteArray& bytes);

} // namespace phial::qt
