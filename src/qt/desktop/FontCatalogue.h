#pragma once

#include "visual/FontSpec.h"

#include <QFont>
#include <QStringList>

#include <optional>

namespace phial::qt
{

/// Where the lines of a font end, above and below the base line, in parts of its size.
struct LineMetrics {
    double ascent;
    double descent;
};

/// The lines for which layouts in a font of that name are made: with them texts and signs stand at their
/// places whatever font is taken instead. None for a font whose substitutes have the same.
std::optional<LineMetrics> designedLines(StringView name);

/// The table from the names by which the system asks for fonts to families that are installed.
///
/// Fonts of the names Tahoma, Marlett and Wingdings that the computer holds as files but does not
/// offer to programs are registered for this one when they are first asked for. Needs a graphical application
/// object.
class FontCatalogue
{
public:
    /// The family for a name: the name itself where it is installed, else the first installed substitute,
    /// else a hidden file of that name, else the program's general family.
    QString family(StringView name);
    /// Whether the name can be had without a substitute of another look: itself or its twin, which was made
    /// to have the same widths.
    bool has(StringView name);

    /// A toolkit font of that look, for the toolkit's own widgets: in points, so that it follows their zoom.
    QFont font(const FontSpec& traits);

private:
    bool isInstalled(const QString& family);
    void registerFile(const QString& family);

    QStringList families_;
    bool listed_ = false;
};

/// The one of this program.
FontCatalogue& fontCatalogue();

} // namespace phial::qt
