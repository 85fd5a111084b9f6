#include "term/TermScripts.h"

namespace phial
{

namespace
{

struct ScriptRow {
    TermLevel level;
    StringView plain;
    StringView forms; ///< of each of them
};

constexpr ScriptRow ScriptRows[] = {
    {TermLevel::Superscript, u"0123456789+-=()in", u"⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻⁼⁽⁾ⁱⁿ"},
    {TermLevel::Subscript, u"0123456789+-=()aehijklmnoprstuvx", u"₀₁₂₃₄₅₆₇₈₉₊₋₌₍₎ₐₑₕᵢⱼₖₗₘₙₒₚᵣₛₜᵤᵥₓ"},
};

static_assert(ScriptRows[0].plain.size() == ScriptRows[0].forms.size());
static_assert(ScriptRows[1].plain.size() == ScriptRows[1].forms.size());

} // namespace

std::optional<TermScript> scriptOf(char16_t character)
{
    for (const ScriptRow& row : ScriptRows) {
        if (const std::size_t at = row.forms.find(character); at != StringView::npos) {
            return TermScript{row.plain[at], row.level};
        }
    }
    return std::nullopt;
}

std::optional<char16_t> scriptForm(char16_t plain, TermLevel level)
{
    for (const ScriptRow& row : ScriptRows) {
        const std::size_t at = row.plain.find(plain);
        if (row.level == level && at != StringView::npos) {
            return row.forms[at];
        }
    }
    return std::nullopt;
}

} // namespace phial
