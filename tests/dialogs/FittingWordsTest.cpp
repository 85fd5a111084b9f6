#include "dialogs/FittingWords.h"

#include "support/AppSession.h"

namespace phial::test
{

namespace
{

class FittingWordsTest : public AppSession
{
};

constexpr PixelSize Line{100, 24};

String fitted(const String& text, PixelSize room = Line)
{
    return fittingWords(text, {.size = 12}, room);
}

TEST_F(FittingWordsTest, WhatFitsIsShownAsItIs)
{
    EXPECT_EQ(fitted(u""), u"");
    EXPECT_EQ(fitted(u"Name"), u"Name");
}

TEST_F(FittingWordsTest, WhatDoesNotFitIsCutAndMarked)
{
    const String text = u"abcdefghijklmnopqrstuvwxyz";
    const String shown = fitted(text);
    EXPECT_EQ(shown.back(), u'…');
    EXPECT_LT(shown.size(), text.size());
    EXPECT_EQ(shown.substr(0, shown.size() - 1), text.substr(0, shown.size() - 1));
    EXPECT_GT(fitted(text, {100, 48}).size(), shown.size()) << "another line";
}

TEST_F(FittingWordsTest, ShowsAsMuchAsFits)
{
    const String text = u"abcdefghijklmnopqrstuvwxyz";
    const String shown = fitted(text);
    const String longer = text.substr(0, shown.size()) + u"…";
    EXPECT_EQ(fitted(shown), shown);
    EXPECT_NE(fitted(longer), longer);
}

TEST_F(FittingWordsTest, NoBlankStandsBeforeTheMark)
{
    for (std::size_t length = 2; length < 12; ++length) {
        const String shown = fitted(String(length, u'x') + u"   " + String(20, u'y'));
        EXPECT_NE(shown[shown.size() - 2], u' ') << toUtf8(shown);
    }
}

TEST_F(FittingWordsTest, NoCharacterIsCutInHalf)
{
    for (std::size_t length = 1; length < 12; ++length) {
        String text(length, u'x');
        for (int i = 0; i < 20; ++i) {
            text += u"\U0001F9EA";
        }
        const String shown = fitted(text);
        const char16_t last = shown[shown.size() - 2];
        EXPECT_FALSE(last >= 0xD800 && last <= 0xDBFF) << length;
    }
}

TEST_F(FittingWordsTest, WithoutRoomTheMarkAloneIsLeft)
{
    EXPECT_EQ(fitted(u"Name", {0, 0}), u"…");
}

} // namespace

} // namespace phial::test
