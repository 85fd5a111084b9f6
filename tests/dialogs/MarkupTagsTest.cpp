#include "dialogs/MarkupTags.h"

#include "support/CaseTable.h"
#include "visual/Markup.h"

#include <gtest/gtest.h>
#include <random>

namespace phial
{

namespace
{

/// A text of the table, with its selection.
struct Selected {
    String text;
    TextRange selection;
};

Selected selected(String text)
{
    const std::size_t start = text.find(u'[');
    text.erase(start, 1);
    const std::size_t end = text.find(u']');
    text.erase(end, 1);
    return {text, {start, end - start}};
}

String shown(String text, TextRange selection)
{
    text.insert(selection.start + selection.length, 1, u']');
    return text.insert(selection.start, 1, u'[');
}

class MarkupTable : public ::testing::TestWithParam<test::CaseRow>
{
};

TEST_P(MarkupTable, ComesOutAsWritten)
{
    const auto& columns = GetParam().columns;
    if (columns[1] == u"repair") {
        EXPECT_EQ(repairedMarkup(columns[0]), columns[2]);
        return;
    }
    const Selected before = selected(columns[0]);
    const MarkupEdit edit = markupEdit(before.text, before.selection, columns[1]);
    EXPECT_EQ(shown(edit.applied(before.text), edit.selection), columns[2]);
}

INSTANTIATE_TEST_SUITE_P(Vectors, MarkupTable, ::testing::ValuesIn(test::readCaseTable("minimarkup.txt", 3)),
                         test::caseName<::testing::TestParamInfo<test::CaseRow>>);

/// A text of some pieces by chance.
String scrambled(std::mt19937& random)
{
    static constexpr StringView Pieces[] = {u"<b>",    u"</b>",  u"<i>",    u"</i>", u"<sub>",
                                            u"</sub>", u"<sup>", u"</sup>", u"<br>", u"<u>",
                                            u"a",      u" ",     u"<",      u"xy"};
    String text;
    for (std::size_t count = random() % 14; count > 0; --count) {
        text += Pieces[random() % std::size(Pieces)];
    }
    return text;
}

/// The looks of each letter, however the runs are cut.
std::vector<MarkupRun> looks(StringView text)
{
    std::vector<MarkupRun> letters;
    for (const MarkupRun& run : parseMarkup(text)) {
        for (const char16_t unit : run.text) {
            letters.push_back({String(1, unit), run.bold, run.italic, run.level, false});
        }
        if (run.lineEnd) {
            letters.push_back({{}, false, false, 0, true});
        }
    }
    return letters;
}

TEST(MarkupTags, ARepairedTextLooksTheSameAndNeedsNoRepair)
{
    std::mt19937 random(7);
    for (int round = 0; round < 5000; ++round) {
        const String text = scrambled(random);
        const String repaired = repairedMarkup(text);
        ASSERT_EQ(looks(repaired), looks(text)) << toUtf8(text) << " -> " << toUtf8(repaired);
        ASSERT_EQ(repairedMarkup(repaired), repaired) << toUtf8(text);
    }
}

TEST(MarkupTags, AFormatPressedTwiceGivesTheTextBack)
{
    std::mt19937 random(11);
    for (int round = 0; round < 5000; ++round) {
        const String text = scrambled(random) + u"x";
        const std::size_t start = random() % text.size();
        const TextRange selection{start, 1 + random() % (text.size() - start)};
        const MarkupEdit once = markupEdit(text, selection, u"EM"); // a tag that the pieces lack
        const String tagged = once.applied(text);
        ASSERT_EQ(tagged.substr(once.selection.start, once.selection.length),
                  text.substr(selection.start, selection.length));
        const MarkupEdit twice = markupEdit(tagged, once.selection, u"em");
        ASSERT_EQ(twice.applied(tagged), text);
        ASSERT_EQ(twice.selection, selection);
    }
}

TEST(MarkupTags, LongTextsOfTagsAreDoneAtOnce)
{
    String text;
    for (int i = 0; i < 20000; ++i) {
        text += i % 2 == 0 ? u"<b>" : u"<i>";
    }
    text += u"x";
    EXPECT_EQ(repairedMarkup(text), u"<b><i>x</i></b>");
    const MarkupEdit edit = markupEdit(text, {text.size() - 1, 1}, u"sub");
    EXPECT_EQ(edit.text, u"<sub>x</sub>");
}

} // namespace

} // namespace phial
