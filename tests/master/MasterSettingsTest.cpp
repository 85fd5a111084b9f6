#include "master/MasterSettings.h"

#include "core/NumberText.h"

#include <gtest/gtest.h>

using namespace phial;
using namespace phial::master;

namespace
{

using Problem = MasterSettings::Problem;

Problem problemOf(const MasterSettings& settings, StringView name, StringView value)
{
    return settings.changeTo(name, value).problem;
}

TEST(MasterSettings, NamesAreKeptInCapitalsAndTextsOnOneLine)
{
    const auto change = MasterSettings().changeTo(u" tempo ", u" sehr\nschnell ");
    EXPECT_EQ(change.name, u"TEMPO");
    EXPECT_EQ(change.text, u"sehr schnell");
    EXPECT_EQ(change.problem, Problem::None);
    EXPECT_EQ(MasterSettings().changeTo(u"x", u"").text, u"");
}

TEST(MasterSettings, NamesHaveALength)
{
    const MasterSettings settings;
    EXPECT_EQ(problemOf(settings, String(MasterSettings::MaxNameLength, u'x'), u"1"), Problem::None);
    EXPECT_EQ(problemOf(settings, String(MasterSettings::MaxNameLength + 1, u'x'), u"1"), Problem::Name);
    EXPECT_EQ(problemOf(settings, u" ", u"1"), Problem::Name);
    EXPECT_EQ(problemOf(settings, u"", u""), Problem::Name);
}

TEST(MasterSettings, ValuesHaveALength)
{
    const MasterSettings settings;
    EXPECT_EQ(problemOf(settings, u"x", String(MasterSettings::MaxValueLength, u'x')), Problem::None);
    EXPECT_EQ(problemOf(settings, u"x", String(MasterSettings::MaxValueLength + 1, u'x')), Problem::TooLong);
}

TEST(MasterSettings, WhatGoesOutFitsPacked)
{
    const MasterSettings settings;
    EXPECT_EQ(problemOf(settings, u"WELCOMEMESSAGE", String(500, u'x')), Problem::None);
    EXPECT_EQ(problemOf(settings, u"welcomemessage", String(400, u':')), Problem::TooLong);
    EXPECT_EQ(problemOf(settings, u"OTHER", String(400, u':')), Problem::None);
    for (std::size_t signs = 180; signs < 200; ++signs) { // each takes five packed
        const auto change = settings.changeTo(u"WELCOMEMESSAGE", String(signs, u':'));
        const MasterSettings set(MasterSettings::Texts{{u"SCREENNAMES", u"1"}, {change.name, change.text}});
        EXPECT_EQ(change.problem == Problem::None,
                  set.handedOut()->Pack().size() <= MasterSettings::MaxHandedOut)
            << signs;
    }
}

TEST(MasterSettings, SomeValuesAreYesOrNo)
{
    for (const StringView name : {u"SCREENNAMES", u"SALZE.ONCE"}) {
        for (const StringView yes : {u"true", u"1", u"-1", u"JA", u"yes", u"wahr", u"an", u"on"}) {
            EXPECT_EQ(problemOf({}, name, yes), Problem::None);
            const MasterSettings set(MasterSettings::Texts{{String(name), String(yes)}});
            EXPECT_EQ(set.value(name), Variant(true)) << toUtf8(yes);
        }
        for (const StringView no : {u"false", u"0", u"nein", u"No", u"falsch", u"aus", u"off"}) {
            EXPECT_EQ(problemOf({}, name, no), Problem::None);
            const MasterSettings set(MasterSettings::Texts{{String(name), String(no)}});
            EXPECT_EQ(set.value(name), Variant(false)) << toUtf8(no);
        }
        EXPECT_EQ(problemOf({}, name, u"2"), Problem::NoBoolean);
        EXPECT_EQ(problemOf({}, name, u""), Problem::None) << "takes it away";
    }
    EXPECT_EQ(problemOf({}, u".ONCE", u"2"), Problem::None) << "of no module";
    EXPECT_EQ(problemOf({}, u"ONCE", u"2"), Problem::None);
}

TEST(MasterSettings, ListsHaveALength)
{
    for (const StringView length : {u"1", u"1000"}) {
        EXPECT_EQ(problemOf({}, u"SALZE.MAX", length), Problem::None);
    }
    for (const StringView length : {u"0", u"1001", u"2.5", u"5x", u"many"}) {
        EXPECT_EQ(problemOf({}, u"SALZE.MAX", length), Problem::NoListLength) << toUtf8(length);
    }
}

TEST(MasterSettings, AreBoundedInNumber)
{
    MasterSettings::Texts texts;
    for (std::int32_t number = 1; number < MasterSettings::MaxCount; ++number) {
        texts.emplace_back(u"N" + plainText(number), u"1");
    }
    EXPECT_EQ(problemOf(MasterSettings(texts), u"NEW", u"1"), Problem::None);
    texts.emplace_back(u"LAST", u"1");
    EXPECT_EQ(problemOf(MasterSettings(texts), u"NEW", u"1"), Problem::TooMany);
    EXPECT_EQ(problemOf(MasterSettings(texts), u"last", u"2"), Problem::None);
    EXPECT_EQ(problemOf(MasterSettings(texts), u"NEW", u""), Problem::None);
}

TEST(MasterSettings, GuideTheLists)
{
    const MasterSettings settings(MasterSettings::Texts{
        {u"SALZE.MAX", u"5"}, {u"ALKANE.ONCE", u"ja"}, {u"OLD.MAX", u"5000"}, {u"BAD.MAX", u"x"}});
    EXPECT_EQ(settings.listLength(u"SALZE"), 5);
    EXPECT_EQ(settings.listLength(u"ALKANE"), MasterSettings::UsualListLength);
    EXPECT_EQ(settings.listLength(u"OLD"), MasterSettings::MaxListLength);
    EXPECT_EQ(settings.listLength(u"BAD"), MasterSettings::UsualListLength);
    EXPECT_FALSE(settings.keepsBestOnly(u"SALZE"));
    EXPECT_TRUE(settings.keepsBestOnly(u"ALKANE"));
    EXPECT_TRUE(settings.hasListRules(u"SALZE") && settings.hasListRules(u"alkane"));
    EXPECT_FALSE(settings.hasListRules(u"OTHER"));
}

TEST(MasterSettings, HandOutTwoOfThem)
{
    const MasterSettings settings(
        MasterSettings::Texts{{u"SCREENNAMES", u"nein"}, {u"TEMPO", u"1"}, {u"WELCOMEMESSAGE", u"Hallo"}});
    EXPECT_EQ(settings.handedOut()->TextLine(), u"SCREENNAMES = false; WELCOMEMESSAGE = \"Hallo\"");
    EXPECT_EQ(settings.value(u"tempo"), Variant(u"1"));
    EXPECT_FALSE(settings.value(u"other"));
    EXPECT_EQ(MasterSettings().handedOut()->Count(), 0);
}

TEST(MasterSettings, AreEqualWhenAllValuesAre)
{
    const MasterSettings one(MasterSettings::Texts{{u"A", u"1"}});
    EXPECT_EQ(one, MasterSettings(MasterSettings::Texts{{u"A", u"1"}}));
    EXPECT_NE(one, MasterSettings(MasterSettings::Texts{{u"A", u"2"}}));
    EXPECT_NE(one, MasterSettings());
}

} // namespace
