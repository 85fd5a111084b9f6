#include "core/ScriptCharacters.h"

#include <gtest/gtest.h>

namespace phial::test
{

namespace
{

TEST(ScriptCharacters, StandForACharacterAndItsLevel)
{
    const auto raised = scriptOf(u'⁻');
    ASSERT_TRUE(raised);
    EXPECT_EQ(raised->plain, u'-');
    EXPECT_EQ(raised->level, ScriptLevel::Superscript);
    const auto lowered = scriptOf(u'ₓ');
    ASSERT_TRUE(lowered);
    EXPECT_EQ(lowered->plain, u'x');
    EXPECT_EQ(lowered->level, ScriptLevel::Subscript);
    EXPECT_FALSE(scriptOf(u'2'));
}

TEST(ScriptCharacters, OfEachDigitComeBack)
{
    for (const char16_t digit : StringView(u"0123456789+-=()")) {
        for (const ScriptLevel level : {ScriptLevel::Superscript, ScriptLevel::Subscript}) {
            const auto form = scriptForm(digit, level);
            ASSERT_TRUE(form);
            EXPECT_EQ(scriptOf(*form)->plain, digit);
            EXPECT_EQ(scriptOf(*form)->level, level);
        }
        EXPECT_FALSE(scriptForm(digit, ScriptLevel::Normal));
    }
}

TEST(ScriptCharacters, AreMissingForMostLetters)
{
    EXPECT_FALSE(scriptForm(u'b', ScriptLevel::Subscript));
    EXPECT_FALSE(scriptForm(u'a', ScriptLevel::Superscript)) << "though it can be lowered";
    EXPECT_EQ(scriptForms(u"2b-", ScriptLevel::Superscript), u"²b⁻");
}

TEST(ScriptCharacters, OfTypesetTextAreTypedWithAKeyboard)
{
    EXPECT_EQ(typedForm(u'⟶'), u"->");
    EXPECT_EQ(typedForm(u'←'), u"<-");
    EXPECT_EQ(typedForm(u'•'), u"*");
    EXPECT_EQ(typedForm(u'−'), u"-");
    EXPECT_EQ(typedForm(u'\u2011'), u"-") << "a hyphen that holds a line together";
    EXPECT_EQ(typedForm(u'\n'), u" ");
    EXPECT_EQ(typedForm(u'\u2029'), u" ");
    EXPECT_EQ(typedForm(u'\u200B'), u"") << "has no width";
    for (const char16_t sign : StringView(u"- *H⇌½§")) {
        EXPECT_FALSE(typedForm(sign)) << static_cast<int>(sign);
    }
}

} // namespace

} // namespace phial::test
