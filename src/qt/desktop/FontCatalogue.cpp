#include "qt/desktop/FontCatalogue.h"

#include "qt/base/QtText.h"

#include <QFileInfo>
#include <QFontDatabase>

#include <algorithm>

namespace phial::qt
{

namespace
{

// Where a Linux desktop keeps fonts of these names out of sight of its programs.
constexpr auto HiddenFontFolder = "/usr/share/wine/fonts/";

struct HiddenFont {
    const char* family;
    const char* file;
};

// This Tahoma is a makeshift: spaced too tightly, and its bold face is no bolder than the plain one. It comes
// after the substitutes.
constexpr HiddenFont HiddenFonts[] = {
    {"Tahoma", "tahoma.ttf"},
    // No Symbol: the one that lies there files its signs under the numbers of others.
    {"Marlett", "marlett.ttf"},
    {"Wingdings", "wingding.ttf"},
};

struct Substitute {
    const char* name;
    const char* families[3];
    bool hasTwin = false; ///< the first family
};

// Of like width, so that layouts keep their lines.
constexpr Substitute Substitutes[] = {
    {"Tahoma", {"DejaVu Sans Condensed", "Carlito", "Liberation Sans"}},
    {"MS Sans Serif", {"Liberation Sans", "Arial", "DejaVu Sans Condensed"}},
    {"Arial", {"Liberation Sans", "Helvetica", "DejaVu Sans"}, true},
    {"Verdana", {"DejaVu Sans", "Liberation Sans", "Arial"}},
    {"Calibri", {"Carlito", "Liberation Sans", "Arial"}, true},
    {"Times New Roman", {"Liberation Serif", "Times", "DejaVu Serif"}, true},
    {"Symbol", {"Liberation Serif", "Times", "DejaVu Serif"}},
    {"Courier New", {"Liberation Mono", "Courier", "DejaVu Sans Mono"}, true},
};

struct DesignedLines {
    StringView name;
    LineMetrics lines;
};

constexpr DesignedLines LinesOfFonts[] = {
    {u"Tahoma", {1.000, 0.207}},    {u"Verdana", {1.005, 0.210}}, {u"Symbol", {1.005, 0.220}},
    {u"Wingdings", {0.898, 0.211}}, {u"Marlett", {1.000, 0.000}}, {u"Calibri", {0.952, 0.269}},
};

constexpr const char* GeneralFamily = "DejaVu Sans Condensed";

bool sameName(const QString& left, const char* right)
{
    return left.compare(QLatin1String(right), Qt::CaseInsensitive) == 0;
}

// Empty when the computer holds no file for the family.
QString hiddenFile(const QString& family)
{
    for (const HiddenFont& font : HiddenFonts) {
        const QString path = QLatin1String(HiddenFontFolder) + QLatin1String(font.file);
        if (sameName(family, font.family) && QFileInfo::exists(path)) {
            return path;
        }
    }
    return {};
}

} // namespace

std::optional<LineMetrics> designedLines(StringView name)
{
    for (const DesignedLines& font : LinesOfFonts) {
        if (equalsIgnoringCase(font.name, name)) {
            return font.lines;
        }
    }
    return std::nullopt;
}

bool FontCatalogue::isInstalled(const QString& family)
{
    if (!listed_) {
        families_ = QFontDatabase::families();
        listed_ = true;
    }
    return families_.contains(family, Qt::CaseInsensitive);
}

void FontCatalogue::registerFile(const QString& family)
{
    const QString path = hiddenFile(family);
    if (!path.isEmpty() && QFontDatabase::addApplicationFont(path) >= 0) {
        families_ += family;
    }
}

bool FontCatalogue::has(StringView name)
{
    const QString asked = toQt(name);
    const auto isTwin = [&](const Substitute& substitute) {
        return substitute.hasTwin && sameName(asked, substitute.name) &&
               isInstalled(QLatin1String(substitute.families[0]));
    };
    return isInstalled(asked) || !hiddenFile(asked).isEmpty() || std::ranges::any_of(Substitutes, isTwin);
}

QString FontCatalogue::family(StringView name)
{
    const QString asked = toQt(name);
    if (isInstalled(asked)) {
        return asked;
    }
    for (const Substitute& substitute : Substitutes) {
        if (!sameName(asked, substitute.name)) {
            continue;
        }
        for (const char* family : substitute.families) {
            if (isInstalled(QLatin1String(family))) {
                return QLatin1String(family);
            }
        }
    }
    registerFile(asked);
    return isInstalled(asked) ? asked : QLatin1String(GeneralFamily);
}

QFont FontCatalogue::font(const FontSpec& traits)
{
    QFont font(family(traits.name));
    font.setPointSizeF(traits.size);
    font.setBold(traits.bold);
    font.setItalic(traits.italic);
    font.setUnderline(traits.underline);
    font.setStrikeOut(traits.strikethrough);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

FontCatalogue& fontCatalogue()
{
    static FontCatalogue catalogue;
    return catalogue;
}

} // namespace phial::qt
