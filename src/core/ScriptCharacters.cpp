#include "core/ScriptCharacters.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

struct ScriptRow {
    ScriptLevel level;
    StringView plain;
    StringView forms; ///< of each of them
};

constexpr auto ScriptRows = std::to_array<ScriptRow>({
    {ScriptLevel::Superscript, u"0123456789+-=()in", u"⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻⁼⁽⁾ⁱⁿ"},
    {ScriptLevel::Subscript, u"0123456789+-=()aehijklmnoprstuvx", u"₀₁₂₃₄₅₆₇₈₉₊₋₌₍₎ₐₑₕᵢⱼₖₗₘₙₒₚᵣₛₜᵤᵥₓ"},
});
static_assert(std::ranges::all_of(ScriptRows,
                                  [](const ScriptRow& row) { return row.plain.size() == row.forms.size(); }));

/// Signs that mean the same on a keyboard.
struct TypedRow {
    StringView typed;
    StringView signs;
};
constexpr auto TypedRows = std::to_array<TypedRow>({
    {u"->", u"\u2192\u27F6"},
    {u"<-", u"\u2190\u27F5"},
    {u"*", u"\u00B7\u2022\u22C5\u2219"},
    {u"-", u"\u2212\u2013\u2010\u2011"},
    {u" ", u"\u00A0\u2009\u202F\t\n\v\f\r\u0085\u2028\u2029"},
    {u"", u"\u00AD\u200B\uFEFF"},
});

} // namespace

std::optional<ScriptCharacter> scriptOf(char16_t character)
{
    for (const ScriptRow& row : ScriptRows) {
        if (const std::size_t at = row.forms.find(character); at != StringView::npos) {
            return ScriptCharacter{row.plain[at], row.level};
        }
    }
    return std::nullopt;
}

std::optional<char16_t> scriptForm(char16_t plain, ScriptLevel level)
{
    for (const ScriptRow& row : ScriptRows) {
        const std::size_t at = row.plain.find(plain);
        if (row.level == level && at != StringView::npos) {
            return row.forms[at];
        }
    }
    return std::nullopt;
}

String scriptForms(StringView plain, ScriptLevel level)
{
    String forms(plain);
    std::ranges::transform(forms, forms.begin(),
                           [&](char16_t sign) { return scriptForm(sign, level).value_or(sign); });
    return forms;
}

std::optional<StringView> typedForm(char16_t sign)
{
    if (sign >= u' ' && sign < 0x7F) {
        return std::nullopt; // is on a keyboard
    }
    const auto* const row = std::ranges::find_if(
        TypedRows, [&](const TypedRow& each) { return each.signs.find(sign) != StringView::npos; });
    return row == TypedRows.end() ? std::nullopt : std::optional(row->typed);
}

} // namespace phial
