#include "qt/desktop/SymbolSigns.h"

#include <span>

namespace phial::qt
{

namespace
{

struct Sign {
    char16_t code;
    char16_t sign;
};

// Letters first: this font holds the Greek alphabet in the places of the Latin one.
constexpr Sign SymbolTable[] = {
    {u'A', u'Α'}, {u'B', u'Β'}, {u'C', u'Χ'}, {u'D', u'Δ'}, {u'E', u'Ε'}, {u'F', u'Φ'}, {u'G', u'Γ'},
    {u'H', u'Η'}, {u'I', u'Ι'}, {u'J', u'ϑ'}, {u'K', u'Κ'}, {u'L', u'Λ'}, {u'M', u'Μ'}, {u'N', u'Ν'},
    {u'O', u'Ο'}, {u'P', u'Π'}, {u'Q', u'Θ'}, {u'R', u'Ρ'}, {u'S', u'Σ'}, {u'T', u'Τ'}, {u'U', u'Υ'},
    {u'V', u'ς'}, {u'W', u'Ω'}, {u'X', u'Ξ'}, {u'Y', u'Ψ'}, {u'Z', u'Ζ'}, {u'a', u'α'}, {u'b', u'β'},
    {u'c', u'χ'}, {u'd', u'δ'}, {u'e', u'ε'}, {u'f', u'φ'}, {u'g', u'γ'}, {u'h', u'η'}, {u'i', u'ι'},
    {u'j', u'ϕ'}, {u'k', u'κ'}, {u'l', u'λ'}, {u'm', u'μ'}, {u'n', u'ν'}, {u'o', u'ο'}, {u'p', u'π'},
    {u'q', u'θ'}, {u'r', u'ρ'}, {u's', u'σ'}, {u't', u'τ'}, {u'u', u'υ'}, {u'v', u'ϖ'}, {u'w', u'ω'},
    {u'x', u'ξ'}, {u'y', u'ψ'}, {u'z', u'ζ'}, {0xA3, u'≤'}, {0xA5, u'∞'}, {0xAB, u'↔'}, {0xAC, u'←'},
    {0xAD, u'↑'}, {0xAE, u'→'}, {0xAF, u'↓'}, {0xB0, u'°'}, {0xB1, u'±'}, {0xB3, u'≥'}, {0xB4, u'×'},
    {0xB7, u'•'}, {0xB8, u'÷'}, {0xB9, u'≠'}, {0xBA, u'≡'}, {0xBB, u'≈'}, {0xD6, u'√'}, {0xD7, u'⋅'},
    {0xDB, u'⇔'}, {0xDC, u'⇐'}, {0xDE, u'⇒'},
};

constexpr Sign WingdingsTable[] = {
    {u'l', u'●'}, {u'n', u'■'}, {u'o', u'□'}, {u'u', u'◆'}, {0x9F, u'•'}, {0xA7, u'▪'}, {0xA8, u'◻'},
    {0xC3, u'↵'}, {0xDF, u'←'}, {0xE0, u'→'}, {0xE1, u'↑'}, {0xE2, u'↓'}, {0xE3, u'↖'}, {0xE4, u'↗'},
    {0xE5, u'↙'}, {0xE6, u'↘'}, {0xE7, u'⬅'}, {0xE8, u'➡'}, {0xE9, u'⬆'}, {0xEA, u'⬇'}, {0xEF, u'⇦'},
    {0xF0, u'⇨'}, {0xF1, u'⇧'}, {0xF2, u'⇩'}, {0xFB, u'✗'}, {0xFC, u'✓'}, {0xFD, u'☒'}, {0xFE, u'☑'},
};

constexpr Sign MarlettTable[] = {
    {u'3', u'◀'}, {u'4', u'▶'}, {u'5', u'▲'}, {u'6', u'▼'}, {u'a', u'✓'}, {u'b', u'✓'}, {u'i', u'●'},
    {u'h', u'●'}, {u'r', u'✕'}, {u't', u'▲'}, {u'u', u'▼'}, {u'v', u'◀'}, {u'w', u'▶'},
};

struct SymbolFont {
    StringView name;
    std::span<const Sign> signs;
};

constexpr SymbolFont SymbolFonts[] = {
    {u"Symbol", SymbolTable},
    {u"Wingdings", WingdingsTable},
    {u"Marlett", MarlettTable},
};

const SymbolFont* findSymbolFont(StringView name)
{
    for (const SymbolFont& font : SymbolFonts) {
        if (equalsIgnoringCase(font.name, name)) {
            return &font;
        }
    }
    return nullptr;
}

} // namespace

bool isSymbolFont(StringView fontName)
{
    return findSymbolFont(fontName) != nullptr;
}

char16_t symbolSign(StringView fontName, char16_t code)
{
    if (const SymbolFont* font = findSymbolFont(fontName)) {
        for (const Sign& sign : font->signs) {
            if (sign.code == code) {
                return sign.sign;
            }
        }
    }
    return 0;
}

} // namespace phial::qt
