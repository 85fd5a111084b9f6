#include "term/TermEdit.h"

#include <gtest/gtest.h>
#include <random>

namespace phial::test
{
namespace
{

/// The text with "|" at the caret.
String shown(const TermEdit& edit)
{
    return edit.text().insert(static_cast<std::size_t>(edit.caret()), u"|");
}

/// With "|" at the caret.
TermEdit editOf(StringView text)
{
    const std::size_t caret = text.find(u'|');
    TermEdit edit;
    edit.text(replaced(text, u"|", u""));
    edit.caret(static_cast<std::int32_t>(caret));
    return edit;
}

bool type(TermEdit& edit, StringView text)
{
    bool changed = false;
    for (const char16_t unit : text) {
        changed = edit.type(unit);
    }
    return changed;
}

TEST(TermEditTest, TypesAtTheCaret)
{
    TermEdit edit = editOf(u"H|O");
    EXPECT_TRUE(edit.type(u'2'));
    EXPECT_EQ(shown(edit), u"H2|O");
}

TEST(TermEditTest, ErasesBeforeAndBehindTheCaret)
{
    TermEdit edit = editOf(u"H2|O");
    EXPECT_TRUE(edit.eraseBefore());
    EXPECT_EQ(shown(edit), u"H|O");
    EXPECT_TRUE(edit.eraseBehind());
    EXPECT_EQ(shown(edit), u"H|");
    EXPECT_FALSE(edit.eraseBehind());
    EXPECT_TRUE(edit.eraseBefore());
    EXPECT_FALSE(edit.eraseBefore());
    EXPECT_EQ(shown(edit), u"|");
}

TEST(TermEditTest, MovesWithinTheText)
{
    TermEdit edit = editOf(u"A|B");
    EXPECT_TRUE(edit.moveLeft());
    EXPECT_EQ(shown(edit), u"|AB");
    EXPECT_FALSE(edit.moveLeft());
    EXPECT_FALSE(edit.moveToStart());
    EXPECT_TRUE(edit.moveToEnd());
    EXPECT_EQ(shown(edit), u"AB|");
    EXPECT_FALSE(edit.moveRight());
    EXPECT_FALSE(edit.moveToEnd());
    EXPECT_TRUE(edit.moveToStart());
    EXPECT_TRUE(edit.moveRight());
    EXPECT_EQ(shown(edit), u"A|B");
}

TEST(TermEditTest, TheCaretIsHeldToTheLengthWheneverItIsUsed)
{
    TermEdit edit = editOf(u"C6H12O6|");
    edit.text(u"CO");
    EXPECT_EQ(edit.caret(), 2);
    edit.type(u'2');
    EXPECT_EQ(shown(edit), u"CO2|");
    edit.text(u"C6H12O6");
    EXPECT_EQ(edit.caret(), 3);
    edit.caret(99);
    EXPECT_EQ(edit.caret(), 7);
    edit.caret(-1);
    EXPECT_EQ(edit.caret(), 0);
}

TEST(TermEditTest, TheTextThatTheProgramSetsLeavesTheIndexAlone)
{
    TermEdit edit = editOf(u"C6|H12O6");
    edit.text(u"C");
    EXPECT_EQ(edit.caret(), 1);
    edit.text(u"NaCl");
    EXPECT_EQ(edit.caret(), 2);
}

TEST(TermEditTest, APairIsOneCharacter)
{
    TermEdit edit;
    EXPECT_FALSE(edit.type(u'\xD83D')) << "half of it changes nothing yet";
    EXPECT_EQ(edit.text(), u"");
    EXPECT_TRUE(edit.type(u'\xDE00'));
    EXPECT_EQ(shown(edit), u"\U0001F600|");
    EXPECT_TRUE(edit.moveLeft());
    EXPECT_EQ(edit.caret(), 0);
    EXPECT_TRUE(edit.moveRight());
    EXPECT_EQ(edit.caret(), 2);
    EXPECT_TRUE(edit.eraseBefore());
    EXPECT_EQ(edit.text(), u"");
    edit.text(u"a\U0001F600b");
    edit.caret(2);
    EXPECT_EQ(edit.caret(), 1) << "never between the halves";
    EXPECT_TRUE(edit.eraseBehind());
    EXPECT_EQ(shown(edit), u"a|b");
}

TEST(TermEditTest, HalfAPairAloneIsDropped)
{
    TermEdit edit;
    EXPECT_FALSE(edit.type(u'\xDE00'));
    EXPECT_FALSE(edit.type(u'\xD83D'));
    EXPECT_TRUE(edit.type(u'a'));
    EXPECT_FALSE(edit.type(u'\xDE00'));
    EXPECT_EQ(edit.text(), u"a");
    EXPECT_FALSE(edit.type(u'\xD83D'));
    edit.moveLeft();
    EXPECT_FALSE(edit.type(u'\xDE00')) << "something else came between";
    EXPECT_EQ(edit.text(), u"a");
}

TEST(TermEditTest, StepsAreUndoneAndDoneAgain)
{
    TermEdit edit = editOf(u"H2O|");
    EXPECT_FALSE(edit.undo());
    EXPECT_FALSE(edit.redo());
    edit.type(u'2');
    edit.moveToStart();
    edit.insert(u"Na");
    EXPECT_EQ(shown(edit), u"Na|H2O2");
    EXPECT_TRUE(edit.undo());
    EXPECT_EQ(shown(edit), u"|H2O2");
    EXPECT_TRUE(edit.undo());
    EXPECT_EQ(shown(edit), u"H2O|");
    EXPECT_FALSE(edit.undo());
    EXPECT_TRUE(edit.redo());
    EXPECT_EQ(shown(edit), u"H2O2|");
    EXPECT_TRUE(edit.redo());
    EXPECT_EQ(shown(edit), u"Na|H2O2");
    EXPECT_FALSE(edit.redo());
}

TEST(TermEditTest, AnEditEndsWhatCouldBeDoneAgain)
{
    TermEdit edit;
    type(edit, u"ab");
    edit.undo();
    edit.type(u'c');
    EXPECT_FALSE(edit.redo());
    EXPECT_EQ(shown(edit), u"ac|");
    edit.undo();
    EXPECT_EQ(shown(edit), u"a|");
}

TEST(TermEditTest, TheProgramsTextBeginsAnew)
{
    TermEdit edit;
    type(edit, u"ab");
    edit.undo();
    edit.text(u"H2O");
    EXPECT_FALSE(edit.undo());
    EXPECT_FALSE(edit.redo());
    EXPECT_EQ(edit.text(), u"H2O");
}

TEST(TermEditTest, AWholeTextIsOneStepAndTheSameOneNone)
{
    TermEdit edit = editOf(u"H|2O");
    EXPECT_TRUE(edit.replace(u"NaCl"));
    EXPECT_EQ(shown(edit), u"N|aCl");
    EXPECT_FALSE(edit.replace(u"NaCl"));
    EXPECT_TRUE(edit.clear());
    EXPECT_FALSE(edit.clear());
    edit.undo();
    edit.undo();
    EXPECT_EQ(shown(edit), u"H|2O");
}

TEST(TermEditTest, APieceTakesThePlaceOfUnitsInOneStep)
{
    TermEdit edit = editOf(u"H|2S + O2");
    EXPECT_TRUE(edit.replace(0, 3, u"H2SO4"));
    EXPECT_EQ(shown(edit), u"H2SO4| + O2");
    EXPECT_TRUE(edit.replace(8, 100, u"SO2")) << "held to the text";
    EXPECT_EQ(shown(edit), u"H2SO4 + SO2|");
    EXPECT_TRUE(edit.replace(100, 1, u"!"));
    EXPECT_EQ(shown(edit), u"H2SO4 + SO2!|");
    EXPECT_FALSE(edit.replace(0, 2, u"H2")) << "the same";
    EXPECT_FALSE(edit.replace(3, 0, u""));
    EXPECT_TRUE(edit.replace(1, 1, u""));
    EXPECT_EQ(shown(edit), u"H|SO4 + SO2!");
    for (int step = 0; step < 4; ++step) {
        EXPECT_TRUE(edit.undo());
    }
    EXPECT_EQ(shown(edit), u"H|2S + O2");
    EXPECT_FALSE(edit.undo());
}

TEST(TermEditTest, APieceNeitherPartsAPairNorOutgrowsTheText)
{
    TermEdit edit;
    edit.text(u"a\U0001F600b");
    EXPECT_TRUE(edit.replace(2, 1, u"c"));
    EXPECT_EQ(edit.text(), u"ac\U0001F600b") << "before the pair whose middle was named";
    edit.text(String(TermEdit::LongestText, u'a'));
    EXPECT_TRUE(edit.replace(0, 1, u"bc"));
    EXPECT_EQ(edit.text().size(), TermEdit::LongestText);
    EXPECT_EQ(edit.text().substr(0, 2), u"ba");
}

TEST(TermEditTest, GrowsToItsLimitAndPartsNoPair)
{
    TermEdit edit;
    edit.insert(String(TermEdit::LongestText - 1, u'a'));
    EXPECT_FALSE(edit.insert(u"\U0001F600")) << "there is room for half of it";
    EXPECT_TRUE(edit.insert(u"bc"));
    EXPECT_EQ(edit.text().size(), TermEdit::LongestText);
    EXPECT_EQ(edit.text().back(), u'b');
    EXPECT_FALSE(edit.type(u'd'));
    edit.text(String(TermEdit::LongestText + 5, u'a'));
    EXPECT_FALSE(edit.type(u'd'));
    EXPECT_TRUE(edit.eraseBehind()) << "the program may set a longer one";
    EXPECT_TRUE(edit.replace(String(TermEdit::LongestText + 1, u'b')));
    EXPECT_EQ(edit.text().size(), TermEdit::LongestText);
}

TEST(TermEditTest, KeepsSoManySteps)
{
    TermEdit edit;
    for (std::size_t step = 0; step < TermEdit::StepsKept + 7; ++step) {
        edit.type(u'a');
    }
    std::size_t undone = 0;
    while (edit.undo()) {
        ++undone;
    }
    EXPECT_EQ(undone, TermEdit::StepsKept);
    EXPECT_EQ(edit.text().size(), 7U);
}

bool doSomething(TermEdit& edit, std::mt19937& random)
{
    switch (random() % 8) {
    case 0:
        return edit.eraseBefore();
    case 1:
        return edit.eraseBehind();
    case 2:
        edit.caret(static_cast<std::int32_t>(random() % 12));
        return false;
    case 3:
        return edit.insert(u"x\U0001F600y");
    case 4:
        return edit.replace(random() % 2 == 0 ? u"Na" : u"\U0001F600");
    default:
        return edit.type(static_cast<char16_t>(u'a' + random() % 26));
    }
}

TEST(TermEditTest, AllThatWasDoneComesBackStepByStep)
{
    std::mt19937 random(15); // NOLINT(cert-msc51-cpp): the same edits every time
    for (int round = 0; round < 200; ++round) {
        TermEdit edit = editOf(u"H2|O");
        std::vector<String> texts{edit.text()};
        for (int step = 0; step < 40; ++step) {
            const String before = edit.text();
            const bool changed = doSomething(edit, random);
            EXPECT_EQ(changed, edit.text() != before);
            if (changed) {
                texts.push_back(edit.text());
            }
        }
        for (std::size_t at = texts.size() - 1; at > 0; --at) {
            EXPECT_EQ(edit.text(), texts[at]);
            EXPECT_TRUE(edit.undo());
        }
        EXPECT_EQ(edit.text(), texts.front());
        EXPECT_FALSE(edit.undo());
        while (edit.redo()) {
        }
        EXPECT_EQ(edit.text(), texts.back());
    }
}

} // namespace
} // namespace phial::test
