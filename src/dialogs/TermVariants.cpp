#include "dialogs/TermVariants.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/ElementSymbols.h"
#include "chem/formula/FormulaNames.h"
#include "dialogs/KeyBoard.h"
#include "dialogs/KeySpeech.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

constexpr char16_t RaisingSign = u'^';
constexpr char16_t LoweringSign = u'µ';
constexpr StringView EmptyFraction = u"()/()";

/// The elements of lessons, which are looked for most.
constexpr auto SchoolElements = std::to_array<StringView>({
    u"H",  u"He", u"Li", u"C",  u"N", u"O",  u"F",  u"Ne", u"Na", u"Mg", u"Al", u"Si",
    u"P",  u"S",  u"Cl", u"Ar", u"K", u"Ca", u"Cr", u"Mn", u"Fe", u"Co", u"Ni", u"Cu",
    u"Zn", u"Br", u"Ag", u"Sn", u"I", u"Ba", u"Au", u"Pt", u"Hg", u"Pb", u"U",
});

bool isOfLessons(StringView symbol)
{
    return std::ranges::find(SchoolElements, symbol) != SchoolElements.end();
}

/// By name, those of lessons first.
std::vector<const ElementSymbol*> elementsWith(char16_t initial)
{
    std::vector<const ElementSymbol*> all;
    for (int number = 1; number <= LastElement; ++number) {
        const ElementSymbol& element = elementOf(number);
        if (element.symbol.front() == initial) {
            all.push_back(&element);
        }
    }
    std::ranges::sort(all, {}, [](const ElementSymbol* element) {
        return std::pair(!isOfLessons(element->symbol), element->symbol);
    });
    return all;
}

std::vector<KeyVariant> elementVariants(char16_t initial)
{
    std::vector<KeyVariant> all;
    for (const ElementSymbol* element : elementsWith(initial)) {
        const String symbol(element->symbol);
        all.push_back({symbol, symbol, LNG()->TRANSLATE(element->german, element->english)});
    }
    const bool isKeyItself = all.size() == 1 && all.front().text.size() == 1;
    return isKeyItself ? std::vector<KeyVariant>() : all;
}

/// In front of a sign that is no digit of the text's own.
std::vector<KeyVariant> digitVariants(char16_t digit)
{
    const String raised{RaisingSign, digit};
    const String lowered{LoweringSign, digit};
    return {{raised, raised, LNG()->TRANSLATE(u"Hoch {1}", u"Raised {1}", {String(1, digit)}), true},
            {lowered, lowered, LNG()->TRANSLATE(u"Tief {1}", u"Lowered {1}", {String(1, digit)}), true}};
}

std::vector<KeyVariant> arrowVariants()
{
    return {{u"->", u"->", LNG()->TRANSLATE(u"Reaktionspfeil", u"Reaction arrow"), true},
            {u" ⇌ ", u"⇌", LNG()->TRANSLATE(u"Gleichgewichtspfeil", u"Equilibrium arrow")},
            {u"<-", u"<-", LNG()->TRANSLATE(u"Pfeil nach links", u"Arrow to the left"), true}};
}

/// Whether the text ends in a digit that a sign has moved out of the line.
bool endsMoved(StringView text, char16_t sign)
{
    return text.size() >= 2 && isDigit(text.back()) && text[text.size() - 2] == sign;
}

} // namespace

std::vector<KeyVariant> termVariants(const KeyBoard& board, std::int32_t index)
{
    const String name = board.name(index);
    if (name == u"{(}") {
        return {{String(EmptyFraction), u"(a)/(b)", LNG()->TRANSLATE(u"Bruch", u"Fraction"), true}};
    }
    if (name.size() != 1) {
        return {};
    }
    const char16_t sign = name.front();
    if (isDigit(sign)) {
        return digitVariants(sign);
    }
    return sign == u'-' ? arrowVariants() : elementVariants(upperCase(sign));
}

std::vector<KeyVariant> ionVariants(StringView symbol)
{
    std::vector<KeyVariant> all;
    const String begin = String(symbol) + RaisingSign;
    for (const FormulaName& each : formulaNames()) {
        if (each.formula.starts_with(begin)) {
            const String ion(each.formula);
            all.push_back({ion, ion, LNG()->TRANSLATE(each.german, each.english), true});
        }
    }
    return all;
}

String variantBehind(StringView before, StringView variant)
{
    const bool isMoved =
        !variant.empty() && (variant.front() == RaisingSign || variant.front() == LoweringSign);
    if (isMoved && endsMoved(before, variant.front())) {
        return u"#" + String(variant);
    }
    const StringView symbol = variant.substr(0, variant.find(RaisingSign));
    if (atomicNumberOf(symbol) != 0 && symbol != variant && before.ends_with(symbol)) {
        return String(variant.substr(symbol.size()));
    }
    const bool hasBlank = before.empty() || before.back() == u' ';
    return String(hasBlank && variant.starts_with(u' ') ? variant.substr(1) : variant);
}

std::size_t caretInVariant(StringView typed)
{
    return typed == EmptyFraction ? 1 : typed.size();
}

} // namespace phial
