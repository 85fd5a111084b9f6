#include "desk/SheetEntries.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "core/Platform.h"
#include "desk/SheetPrint.h"
#include "desk/SheetQuiz.h"
#include "headless/Hand.h"
#include "headless/RecordingBackend.h"
#include "support/AppSession.h"
#include "support/Places.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace phial::test
{

namespace
{

class SheetEntries : public AppSession
{
protected:
    SheetEntries()
    {
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\");
    }

    static std::vector<SheetEntry> found(StringView sought, std::optional<ReferenceSheet> sheet = {})
    {
        return entriesFound(sheetEntries(), sought, sheet);
    }
};

TEST_F(SheetEntries, HaveEachLineOfEachSheet)
{
    EXPECT_EQ(found(u"", ReferenceSheet::Elements).size(), 118U);
    EXPECT_EQ(found(u"", ReferenceSheet::Groups).size(), 49U);
    EXPECT_EQ(found(u"", ReferenceSheet::OxidationNumbers).size(), 20U);
    EXPECT_EQ(found(u"", ReferenceSheet::Acids).size(), 14U) << "acids and rules";
    EXPECT_EQ(found(u"").size(), 118U + 49U + 20U + 14U);
    EXPECT_EQ(found(u"").front().subject, u"Wasserstoff");
    EXPECT_EQ(found(u"").back().subject, u"Puffer") << "in the order of the sheets";
}

TEST_F(SheetEntries, LackTheElementsWithoutTheirFile)
{
    QVAPP()->URL()->ROOT(u"C:\\nowhere\\");
    EXPECT_TRUE(found(u"", ReferenceSheet::Elements).empty());
    EXPECT_EQ(found(u"").size(), 49U + 20U + 14U);
}

TEST_F(SheetEntries, AreWrittenAsOneReadsThem)
{
    const auto sulphate = found(u"sulfat", ReferenceSheet::Groups).front();
    EXPECT_EQ(sulphate.subject, u"-sulfat");
    EXPECT_EQ(sulphate.content, u"SO₄²⁻");
    EXPECT_EQ(sulphate.spoken, u"Sulfat: S O vier, zweifach negativ geladen");
    const auto sodium = found(u"Natrium", ReferenceSheet::Elements).front();
    EXPECT_EQ(sodium.content, u"Na, Ordnungszahl 11, 23 g/mol");
    const auto phosphoric = found(u"H3PO4", ReferenceSheet::Acids).front();
    EXPECT_EQ(phosphoric.subject, u"H₃PO₄");
    EXPECT_EQ(phosphoric.content, u"Base H₂PO₄⁻, pKs 1.96");
    const auto water = found(u"h in h₂o").front();
    EXPECT_EQ(water.content, u"+I   Wasserstoff hat meist +I.");
    const auto buffer = found(u"puffer").front();
    EXPECT_EQ(buffer.subject, u"Puffer");
    EXPECT_EQ(buffer.content, u"pH = pKs + log(c(Base) : c(Säure))");
}

TEST_F(SheetEntries, SpeakEnglish)
{
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(found(u"sulfate", ReferenceSheet::Groups).front().subject, u"-sulfate");
    EXPECT_EQ(found(u"sodium", ReferenceSheet::Elements).front().question, u"What is the symbol of sodium?");
    EXPECT_EQ(sheetName(ReferenceSheet::Acids), u"Acids and pH");
}

TEST_F(SheetEntries, AreFoundByNameSymbolFormulaAndSheet)
{
    EXPECT_EQ(found(u"na").front().subject, u"Natrium") << "the symbol comes before names with these letters";
    EXPECT_EQ(found(u"SO42-").front().subject, u"-sulfat");
    EXPECT_EQ(found(u"SO₄²⁻").front().subject, u"-sulfat");
    EXPECT_EQ(found(u"hydroxid").front().content, u"OH⁻");
    EXPECT_EQ(found(u"  SULFAT ").front().subject, u"-sulfat");
    EXPECT_EQ(found(u"puffer ph").size(), 1U) << "each word anywhere";
    EXPECT_TRUE(found(u"gibt es nicht").empty());
    EXPECT_TRUE(found(u"natrium", ReferenceSheet::Groups).empty());
}

TEST_F(SheetEntries, WhatIsSoughtStandsFirstThenWhatBeginsWithIt)
{
    const auto entries = found(u"sulf", ReferenceSheet::Groups);
    ASSERT_GE(entries.size(), 3U);
    EXPECT_EQ(entries[0].subject, u"-sulfid");
    EXPECT_EQ(entries[1].subject, u"-sulfit");
    EXPECT_EQ(entries[2].subject, u"-sulfat");
    EXPECT_EQ(entries[3].subject, u"-thiosulfat") << "has it within";
    EXPECT_EQ(found(u"oxid", ReferenceSheet::Groups).front().subject, u"-oxid");
    EXPECT_EQ(found(u"s").front().subject, u"Schwefel") << "oxygen, which comes first, begins with it only";
    EXPECT_EQ(found(u"ch").front().subject, u"Chlor") << "sulphur, which comes first, has it within";
}

TEST_F(SheetEntries, AreCopiedAsLinesOfATable)
{
    EXPECT_EQ(entriesAsText(found(u"sulfit", ReferenceSheet::Groups)),
              u"-sulfit\tSO₃²⁻\tNamen von Gruppen\r\n");
}

// Printing.

TEST_F(SheetEntries, ArePrintedOnAsManyPagesAsTheyNeed)
{
    printEntries(u"Alles", sheetEntries());
    const auto& printed = outside.visual().printed();
    ASSERT_EQ(printed.size(), 1U);
    EXPECT_EQ(printed[0].title, u"Alles");
    const std::string page = printed[0].page->text();
    EXPECT_NE(page.find("Natrium"), std::string::npos);
    EXPECT_NE(page.find("Puffer"), std::string::npos);
    EXPECT_NE(page.find("\npage\n"), std::string::npos);
}

TEST_F(SheetEntries, ArePrintedInTwoColumnsBelowTheirTitle)
{
    printEntries(u"Sulfit", found(u"sulfit", ReferenceSheet::Groups));
    EXPECT_EQ(outside.visual().printed()[0].page->text(), "text 56,56 \"Sulfit\" Tahoma 16 bold #000000\n"
                                                          "line 56,92 - 738,92 #C4D4E2\n"
                                                          "text 56,96 \"-sulfit\" Tahoma 11 #000000\n"
                                                          "text 317.52,96 \"SO₃²⁻\" Tahoma 11 #000000\n"
                                                          "text 394.25,1067 \"1\" Tahoma 11 #000000\n"
                                                          "end\n");
}

TEST_F(SheetEntries, APageIsFullBeforeItsNumber)
{
    printEntries(u"Alles", sheetEntries());
    std::istringstream lines(outside.visual().printed()[0].page->text());
    constexpr double Top = 56;
    constexpr double LastLine = 1067 - 28 - 24; // of a row of one line
    int pages = 1;
    double lowest = 0;
    for (std::string line; std::getline(lines, line);) {
        double left = 0;
        double top = 0;
        if (line == "page") {
            ++pages;
            std::getline(lines, line);
            ASSERT_EQ(std::sscanf(line.c_str(), "line %lf,%lf", &left, &top), 2) << line;
            EXPECT_EQ(top, Top);
            EXPECT_GT(lowest, LastLine - 24 * 3) << "no more than a long row would have had room";
            lowest = 0;
        } else if (std::sscanf(line.c_str(), "line %lf,%lf", &left, &top) == 2) {
            EXPECT_LE(top, LastLine);
            lowest = top;
        } else if (line.find("\"" + std::to_string(pages) + "\"") != std::string::npos) {
            EXPECT_NE(line.find(",1067 "), std::string::npos) << line;
        }
    }
    EXPECT_GE(pages, 5);
}

TEST_F(SheetEntries, NothingIsPrintedOfNothing)
{
    printEntries(u"Leer", {});
    EXPECT_TRUE(outside.visual().printed().empty());
}

// Practice.

TEST_F(SheetEntries, EachQuestionHasFourDifferentChoicesAndItsAnswer)
{
    const auto entries = sheetEntries();
    for (int round = 0; round < 20; ++round) {
        const auto questions = makeQuiz(entries, entries);
        ASSERT_EQ(questions.size(), QuizQuestions);
        std::set<String> asked;
        for (const QuizQuestion& question : questions) {
            EXPECT_TRUE(asked.insert(question.question).second) << toUtf8(question.question);
            std::set<String> texts;
            for (const auto& choice : question.choices) {
                texts.insert(choice.text);
            }
            EXPECT_EQ(texts.size(), QuizChoices) << toUtf8(question.question);
            const auto entry = std::ranges::find(entries, question.question, &SheetEntry::question);
            ASSERT_NE(entry, entries.end());
            EXPECT_EQ(question.answer().text, entry->answer);
        }
    }
}

TEST_F(SheetEntries, NobodyIsAskedForWhatThePrintHasWrong)
{
    std::vector<String> asked;
    for (const SheetEntry& entry : found(u"", ReferenceSheet::Groups)) {
        if (!entry.question.empty()) {
            asked.push_back(entry.subject);
        }
    }
    EXPECT_EQ(asked.size(), 49U - 4U) << "methane once";
    for (const StringView wrong : {u"-dichromat", u"-hexacynoferrat", u"-hydrogen- !!!"}) {
        EXPECT_EQ(std::ranges::count(asked, String(wrong)), 0) << toUtf8(wrong);
    }
    EXPECT_EQ(std::ranges::count(asked, u"Methan"), 1);
}

TEST_F(SheetEntries, ElementsOfWhichLessonsDoNotSpeakAreNotAsked)
{
    EXPECT_FALSE(found(u"natrium", ReferenceSheet::Elements).front().question.empty());
    EXPECT_FALSE(found(u"quecksilber", ReferenceSheet::Elements).front().question.empty());
    EXPECT_FALSE(found(u"strontium", ReferenceSheet::Elements).front().question.empty());
    EXPECT_TRUE(found(u"yttrium", ReferenceSheet::Elements).front().question.empty());
    EXPECT_TRUE(found(u"livermorium", ReferenceSheet::Elements).front().question.empty());
}

TEST_F(SheetEntries, OtherChoicesAreThoseThatLookAlike)
{
    const auto entries = sheetEntries();
    const auto sulphate = found(u"sulfat", ReferenceSheet::Groups);
    const auto questions = makeQuiz({sulphate.data(), 1}, entries);
    ASSERT_EQ(questions.size(), 1U);
    std::set<String> texts;
    for (const auto& choice : questions[0].choices) {
        texts.insert(choice.text);
    }
    EXPECT_TRUE(texts.contains(u"SO₃²⁻"));
    EXPECT_TRUE(texts.contains(u"SO₄²⁻"));
}

TEST_F(SheetEntries, QuestionsAndChoicesComeInRandomOrder)
{
    std::vector<SheetEntry> entries;
    for (const StringView answer : {u"a", u"b", u"c", u"d"}) {
        entries.push_back({.sheet = ReferenceSheet::Groups,
                           .subject = String(answer),
                           .content = {},
                           .spoken = {},
                           .otherwise = {},
                           .question = String(answer) + u"?",
                           .answer = String(answer),
                           .spokenAnswer = {}});
    }
    const auto orderBy = [&](double random) {
        outside.random().numbers({random});
        String order;
        for (const QuizQuestion& question : makeQuiz(entries, entries)) {
            order += question.question;
        }
        const QuizQuestion first = makeQuiz({entries.data(), 1}, entries).front();
        for (const auto& choice : first.choices) {
            order += choice.text;
        }
        EXPECT_EQ(first.answer().text, u"a");
        return order;
    };
    EXPECT_EQ(orderBy(0.99), u"a?b?c?d?bcda") << "each stays where it is, the answer is the last choice";
    EXPECT_EQ(orderBy(0), u"b?c?d?a?dbac");
}

TEST_F(SheetEntries, NothingIsAskedWhereThereAreTooFewAnswers)
{
    const auto few = found(u"sulf", ReferenceSheet::Groups);
    EXPECT_FALSE(makeQuiz(few, few).empty());
    EXPECT_TRUE(makeQuiz({few.data(), 3}, {few.data(), 3}).empty());
    EXPECT_EQ(makeQuiz({few.data(), 4}, {few.data(), 4}).size(), 4U);
    EXPECT_TRUE(makeQuiz({}, sheetEntries()).empty());
}

} // namespace

} // namespace phial::test
