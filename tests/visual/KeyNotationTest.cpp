#include "visual/KeyNotation.h"

#include "support/Raises.h"

namespace phial
{

void PrintTo(const KeyStroke& stroke, std::ostream* out)
{
    *out << toUtf8(StringView(&stroke.character, 1)) << " key " << static_cast<int>(stroke.key) << " shift "
         << stroke.Shift;
}

} // namespace phial

namespace phial::test
{

namespace
{

using Strokes = std::vector<KeyStroke>;

KeyStroke sign(char16_t character, std::int32_t shift = 0)
{
    return {character, Key::None, shift};
}

KeyStroke named(Key key, std::int32_t shift = 0)
{
    return {0, key, shift};
}

TEST(KeyNotation, SignsStandForThemselves)
{
    EXPECT_EQ(parseKeyNotation(u"aß"), (Strokes{sign(u'a'), sign(u'ß')}));
    EXPECT_EQ(parseKeyNotation(u""), Strokes{});
}

TEST(KeyNotation, ModifiersHoldForTheNextKey)
{
    EXPECT_EQ(parseKeyNotation(u"+ab"), (Strokes{sign(u'a', ShiftMask::Shift), sign(u'b')}));
    EXPECT_EQ(parseKeyNotation(u"^%q"), Strokes{sign(u'q', ShiftMask::Control | ShiftMask::Alt)});
}

TEST(KeyNotation, ModifiersInFrontOfAGroupHoldForAllOfIt)
{
    EXPECT_EQ(parseKeyNotation(u"+(ab)c"),
              (Strokes{sign(u'a', ShiftMask::Shift), sign(u'b', ShiftMask::Shift), sign(u'c')}));
    EXPECT_EQ(parseKeyNotation(u"^(+(a)b)"),
              (Strokes{sign(u'a', ShiftMask::Control | ShiftMask::Shift), sign(u'b', ShiftMask::Control)}));
}

TEST(KeyNotation, BracesQuoteSigns)
{
    EXPECT_EQ(parseKeyNotation(u"{+}{*}{^}{%}{{}{}}{(}{)}"),
              (Strokes{sign(u'+'), sign(u'*'), sign(u'^'), sign(u'%'), sign(u'{'), sign(u'}'), sign(u'('),
                       sign(u')')}));
}

TEST(KeyNotation, BracesNameKeysWithoutRegardToCase)
{
    EXPECT_EQ(parseKeyNotation(u"{tab}{bs}{UP}{PgDn}{F12}"),
              (Strokes{named(Key::Tab), named(Key::Backspace), named(Key::Up), named(Key::PageDown),
                       named(Key::F12)}));
    EXPECT_EQ(parseKeyNotation(u"+{tab}"), Strokes{named(Key::Tab, ShiftMask::Shift)});
}

TEST(KeyNotation, CountRepeatsAKeyWithItsModifiers)
{
    EXPECT_EQ(parseKeyNotation(u"+{left 2}{x 3}"),
              (Strokes{named(Key::Left, ShiftMask::Shift), named(Key::Left, ShiftMask::Shift), sign(u'x'),
                       sign(u'x'), sign(u'x')}));
}

TEST(KeyNotation, LineEndsAndTheTildeAreReturn)
{
    EXPECT_EQ(parseKeyNotation(u"~\r\n"), (Strokes{named(Key::Return), named(Key::Return)}));
}

TEST(KeyNotation, IllFormedNotationIsRefused)
{
    for (const StringView notation :
         {u"{tab", u"{nokey}", u"{}", u"(a", u"a)", u"}", u"{a 1001}", u"{a x}", u"{F13}"}) {
        EXPECT_RAISES(parseKeyNotation(notation), InvalidArgument) << toUtf8(notation);
    }
}

} // namespace

} // namespace phial::test
