#include "results/ListPrint.h"

#include "results/ResultsTest.h"
#include "results/cls_DataEvents.h"
#include "support/Raises.h"

#include <cstdio>
#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

constexpr double PixelsPerMillimetre = 96 / 25.4;
constexpr double Rounding = 0.01; // millimetres

// A page of the headless printer in landscape, in whole millimetres.
constexpr double Width = 297;
constexpr double Height = 210;

// Fixed metrics: half the size of the font in pixels for each unit, five quarters of it for each line.
constexpr double UnitWidth = 5 / PixelsPerMillimetre;
constexpr double LineHeight = 12.5 / PixelsPerMillimetre;

double column(double factor)
{
    return 10 + (Width - 20) * factor;
}

/// A text as it stands on the page, in millimetres.
struct PrintedText {
    double x = 0;
    double y = 0;
    std::string text;
    bool bold = false;
    double clipLeft = 0;
    double clipRight = 0;
};

/// What goes to the printer, read from the recorded primitives.
class ListPrint : public ResultsTest
{
protected:
    const std::vector<std::string>& lines() { return outside.visual().printed().back().page->lines(); }

    std::vector<PrintedText> texts()
    {
        std::vector<PrintedText> result;
        PrintedText next;
        for (const std::string& line : lines()) {
            double width = 0;
            if (std::sscanf(line.c_str(), "clip %lf,%*f %lf", &next.clipLeft, &width) == 2) {
                next.clipLeft /= PixelsPerMillimetre;
                next.clipRight = next.clipLeft + width / PixelsPerMillimetre;
            } else if (std::sscanf(line.c_str(), "text %lf,%lf", &next.x, &next.y) == 2) {
                next.x /= PixelsPerMillimetre;
                next.y /= PixelsPerMillimetre;
                const auto begin = line.find('"') + 1;
                const auto end = line.rfind('"');
                next.text = line.substr(begin, end - begin);
                next.bold = line.find(" bold", end) != std::string::npos;
                result.push_back(next);
            }
        }
        return result;
    }

    /// The first text of that wording.
    PrintedText text(const std::string& wording)
    {
        for (const PrintedText& each : texts()) {
            if (each.text == wording) {
                return each;
            }
        }
        ADD_FAILURE() << "not printed: " << wording;
        return {};
    }

    /// Words with the places at which they begin, of the texts that are bold or not.
    std::vector<std::pair<std::string, double>> placed(bool bold)
    {
        std::vector<std::pair<std::string, double>> result;
        for (const PrintedText& each : texts()) {
            if (each.bold == bold) {
                result.emplace_back(each.text, each.x);
            }
        }
        return result;
    }

    auto count(const std::string& line) { return std::ranges::count(lines(), line); }

    /// An open list with as many entries.
    void fillOpen(int entries)
    {
        list.MODE(enm_ScoreListMode::ID_ScoreList_ResultList);
        for (int number = 1; number <= entries; ++number) {
            add(list, u"Name " + Variant(number).toText(), number, Moment{46000.0 - number});
        }
    }

    cls_DataScores list;
};

testing::Matcher<std::pair<std::string, double>> at(double place, const std::string& word)
{
    return Pair(word, DoubleNear(place, Rounding));
}

TEST_F(ListPrint, IsOneDocumentInLandscapeNamedAfterTheList)
{
    list.PRINTOUT(u"Bestenliste");
    ASSERT_EQ(outside.visual().printed().size(), 1U);
    EXPECT_EQ(outside.visual().printed().front().title, u"Bestenliste");
    EXPECT_EQ(outside.visual().printed().front().orientation, PageOrientation::Landscape);
    EXPECT_EQ(lines().back(), "end");
}

TEST_F(ListPrint, OfAnEmptyListHasTitleRulesAndFooterWithoutColumns)
{
    list.PRINTOUT(u"Bestenliste");
    EXPECT_THAT(lines(),
                ElementsAre("text 37.795,37.795 \"Bestenliste\" Arial 14 #000000",
                            "line 37.795,75.591 - 1084.724,75.591 #000000",
                            "line 37.795,88.091 - 1084.724,88.091 #000000",
                            "text 37.795,100.591 \"Gedruckt am 02.03.2026 um 08:00:00 von pupil an Rechner "
                            "DESK-1\" Arial 10 #000000",
                            "end"));
}

TEST_F(ListPrint, HasBoldTitlesOverItsColumns)
{
    add(list, u"Änne", 7.5);
    list.PRINTOUT(u"Bestenliste");
    EXPECT_THAT(placed(true),
                ElementsAre(at(column(0), "Rang"), at(column(0.05), "Name"), at(column(0.25), "Login"),
                            at(column(0.35), "Computer"), at(column(0.55) - 6 * UnitWidth, "Score"),
                            at(column(0.65) - 10 * UnitWidth, "Erreichbar"), at(column(0.67), "Note"),
                            at(column(0.75), "Datum"), at(column(0.9), "Zusatz")));
    EXPECT_NEAR(text("Rang").y, 30, Rounding);
    EXPECT_NEAR(text("Zusatz").y, 30, Rounding);
}

TEST_F(ListPrint, LineEndsAndTabsInNamesAreBlanks)
{
    add(list, u"An\r\nna\tB", 7.5);
    list.ITEM(1)->TIMESTAMP(Moment{1e12});
    list.PRINTOUT(u"Bestenliste");
    EXPECT_EQ(text("An  na B").text, "An  na B");
    EXPECT_EQ(printedMoment(list.ITEM(1)->TIMESTAMP()), u"");
}

TEST_F(ListPrint, HasARowForEachEntry)
{
    CoreParameters more;
    more.Set(u"Fehler", 2);
    list.ADD(7.5, 10, u"Salze", &more, u"a.meier", u"PC-07", u"Änne");
    list.PRINTOUT(u"");
    auto row = placed(false);
    ASSERT_EQ(row.size(), 10U);
    row.pop_back(); // the footer
    EXPECT_THAT(row, ElementsAre(at(column(0), "1"), at(column(0.05), "Änne"), at(column(0.25), "a.meier"),
                                 at(column(0.35), "PC-07"), at(column(0.55) - 3 * UnitWidth, "7,5"),
                                 at(column(0.65) - 2 * UnitWidth, "10"), at(column(0.67), "Gut"),
                                 at(column(0.75), "08:00:00 02.03.2026"), at(column(0.9), "Fehler = 2")));
}

TEST_F(ListPrint, LeavesTwoLinesBehindTheTitlesAndAGapBehindEachRow)
{
    add(list, u"Anna", 2);
    add(list, u"Ben", 1);
    list.PRINTOUT(u"Liste");
    EXPECT_NEAR(text("Anna").y, 30 + 2 * LineHeight, Rounding);
    EXPECT_NEAR(text("Ben").y, 30 + 3 * LineHeight + 2, Rounding);
    EXPECT_NEAR(texts().back().y, 30 + 6 * LineHeight + 4, Rounding);
    EXPECT_NEAR(texts().back().x, 10, Rounding);
}

TEST_F(ListPrint, ClipsAColumnWhereTheNextTextBeginsAndKeepsTheWholeText)
{
    list.ADD(12345, 10, u"", nullptr, u"login", u"Rechner im Chemieraum, zweite Reihe, Fenster", u"Anna");
    list.PRINTOUT(u"Liste");
    const PrintedText computer = text("Rechner im Chemieraum, zweite Reihe, Fenster");
    const PrintedText points = text("12345");
    EXPECT_LT(computer.clipRight, points.x);
    EXPECT_GT(computer.clipRight, points.x - 1.5);
    EXPECT_NEAR(computer.clipLeft, computer.x, Rounding);
    EXPECT_GE(points.clipRight, column(0.55));
    EXPECT_LT(text("login").clipRight, column(0.35));
    EXPECT_LT(text("Login").clipRight, column(0.35));
}

TEST_F(ListPrint, ClipsTheLastColumnAtTheMarginAndTheFooterNowhere)
{
    CoreParameters more;
    more.Set(u"Bemerkung", String(80, u'x'));
    list.ADD(1, 1, u"", &more);
    list.PRINTOUT(u"Liste");
    EXPECT_NEAR(text("Bemerkung = \"" + std::string(80, 'x') + "\"").clipRight, Width - 10, 0.3);
    EXPECT_EQ(lines().at(lines().size() - 4), "clip none");
}

TEST_F(ListPrint, BeginsAPageWhereARowWouldReachIntoTheLowerMargin)
{
    fillOpen(60);
    list.PRINTOUT(u"Ergebnisse");
    const int rowsBeforeTheMargin =
        1 + static_cast<int>((Height - 20 - 30 - 2 * LineHeight) / (LineHeight + 2));
    const auto page = std::ranges::find(lines(), "page");
    ASSERT_NE(page, lines().end());
    const auto rowsOnTheFirst = std::count_if(lines().begin(), page, [](const std::string& line) {
        return line.find("\"Name ") != std::string::npos;
    });
    EXPECT_EQ(rowsOnTheFirst, rowsBeforeTheMargin);
    for (const PrintedText& each : texts()) {
        EXPECT_LT(each.y, Height - 20 + LineHeight) << each.text;
    }
}

TEST_F(ListPrint, RepeatsTheTitlesOfTheColumnsOnEachPageButNotThatOfTheList)
{
    fillOpen(60);
    list.PRINTOUT(u"Ergebnisse");
    const auto pages = count("page");
    EXPECT_GE(pages, 1);
    std::ptrdiff_t titles = 0;
    std::ptrdiff_t listTitles = 0;
    for (const PrintedText& each : texts()) {
        titles += each.text == "Erreichbar" && each.bold && std::abs(each.y - 30) < Rounding ? 1 : 0;
        listTitles += each.text == "Ergebnisse" ? 1 : 0;
    }
    EXPECT_EQ(titles, pages + 1);
    EXPECT_EQ(listTitles, 1);
    EXPECT_EQ(text("Name 60").text, "Name 60");
}

TEST_F(ListPrint, OfALogHasItsOwnColumns)
{
    cls_DataEvents log;
    CoreParameters more;
    more.Set(u"Aufgabe", 3);
    log.ADD(u"Start", &more, u"a.meier", u"PC-07", u"Anna");
    log.ADD(u"Ende", nullptr, u"a.meier", u"PC-07", u"Anna");
    log.PRINTOUT(u"Ereignisse");
    EXPECT_THAT(placed(true),
                ElementsAre(at(column(0), "Lfd.Nr."), at(column(0.05), "Name"), at(column(0.25), "Login"),
                            at(column(0.35), "Computer"), at(column(0.55), "Aktion"),
                            at(column(0.75), "Datum"), at(column(0.9), "Zusatz")));
    EXPECT_NEAR(text("2").x, column(0), Rounding);
    EXPECT_NEAR(text("Start").x, column(0.55), Rounding);
    EXPECT_NEAR(text("08:00:00 02.03.2026").x, column(0.75), Rounding);
    EXPECT_NEAR(text("Aufgabe = 3").x, column(0.9), Rounding);
    EXPECT_THAT(lines().at(lines().size() - 2), HasSubstr("Gedruckt am"));
}

TEST_F(ListPrint, RaisesThePrintersError)
{
    outside.visual().hasPrinter(false);
    EXPECT_EQ(test::raisedBy([&] { list.PRINTOUT(u"Liste"); }), 482);
}

} // namespace

} // namespace phial
