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

// The bold face of this Tahoma is no bolder than the plain one, so it is not in the table.
constexpr HiddenFont HiddenFonts[] = {
    {"Tahoma", "tahoma.ttf"},
    {"Symbol", "symbol.ttf"},
    {"Marlett", "marlett.ttf"},
    {"Wingdings", "wingding.ttf"},
};

struct Substitute {
    const char* name;
    const char* families[3];
};

// Of like width, so that layouts keep their lines.
constexpr Substitute Substitutes[] = {
    {"Tahoma", {"DejaVu Sans Condensed", "Carlito", "Liberation Sans"}},
    {"MS Sans Serif", {"Liberation Sans", "Arial", "DejaVu Sans Condensed"}},
    {"Arial", {"Liberation Sans", "Helvetica", "DejaVu Sans"}},
    {"Verdana", {"DejaVu Sans", "Liberation Sans", "Arial"}},
    {"Calibri", {"Carlito", "Liberation Sans", "Arial"}},
    {"Times New Roman", {"Liberation Serif", "Times", "DejaVu Serif"}},
    {"Courier New", {"Liberation Mono", "Courier", "DejaVu Sans Mono"}},
};

constexpr const char* GeneralFamily = "DejaVu Sans Condensed";

bool sameName(const QString& left, const char* right)
{
    return left.compare(QLatin1String(right), Qt::CaseInsensitive) == 0;
}

} // namespace

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
    for (const HiddenFont& font : HiddenFonts) {
        const QString path = QLatin1String(HiddenFontFolder) + QLatin1String(font.file);
        if (sameName(family, font.family) && !isInstalled(family) && QFileInfo::exists(path)) {
            QFontDatabase::addApplicationFont(path);
            families_ += QLatin1String(font.family);
            registered_ += QLatin1String(font.family);
        }
    }
}

bool FontCatalogue::has(StringView name)
{
    const QString family = toQt(name);
    registerFile(family);
    return isInstalled(family);
}

QString FontCatalogue::family(StringView name, bool bold)
{
    const QString asked = toQt(name);
    const bool installed = has(name);
    const bool plainOnly = registered_.contains(asked, Qt::CaseInsensitive);
    if (installed && !(bold && plainOnly)) {
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
    return installed ? asked : QLatin1String(GeneralFamily);
}

QFont FontCatalogue::font(const FontSpec& traits)
{
    QFont font(family(traits.name, traits.bold));
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
