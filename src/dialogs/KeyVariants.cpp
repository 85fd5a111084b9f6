#include "dialogs/KeyVariants.h"

#include "dialogs/KeySpeech.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

struct Variants {
    char16_t face;
    StringView offered;
};
/// What German texts, names from neighbouring languages and notes on chemistry have need of.
constexpr auto Offered = std::to_array<Variants>({
    {u'a', u"äàâáåæ"}, {u'c', u"çć"},     {u'e', u"éèêë€"}, {u'g', u"ğ"},    {u'i', u"íìîï"}, {u'l', u"ł"},
    {u'n', u"ñń"},     {u'o', u"öòôóœø"}, {u's', u"ßšśş"},  {u'u', u"üùûú"}, {u'y', u"ÿý"},   {u'z', u"žźż"},
    {u'1', u"¹₁½"},    {u'2', u"²₂"},     {u'3', u"³₃"},    {u'4', u"⁴₄"},   {u'5', u"⁵₅"},   {u'6', u"⁶₆"},
    {u'7', u"⁷₇"},     {u'8', u"⁸₈"},     {u'9', u"⁹₉"},    {u'0', u"⁰₀°"},  {u'+', u"⁺±"},   {u'-', u"–⁻→"},
    {u'.', u"…·"},     {u'/', u"÷"},      {u'*', u"×·"},    {u'=', u"≈≠"},   {u'"', u"„“"},   {u',', u"‚‘"},
    {u'?', u"¿"},      {u'!', u"¡"},      {u'%', u"‰"},     {u'$', u"€£"},
});

} // namespace

String variantsOf(StringView face)
{
    if (face.size() != 1) {
        return {};
    }
    const char16_t small = lowerCase(face.front());
    const auto row = std::ranges::find(Offered, small, &Variants::face);
    if (row == Offered.end()) {
        return {};
    }
    // Signs have no capitals, and those that do not change stand once as well.
    return small == face.front() ? String(row->offered) : upperCase(row->offered);
}

std::vector<KeyVariant> textVariants(const KeyBoard& board, std::int32_t index)
{
    std::vector<KeyVariant> all;
    for (const char16_t character : variantsOf(board.face(index).text)) {
        const String text(1, character);
        all.push_back({text, text, spokenCharacter(text)});
    }
    return all;
}

} // namespace phial
