#include "dialogs/HelpBook.h"

#include "app/cls_App.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CorePathText.h"
#include "dialogs/PageSlide.h"
#include "dialogs/PageStrip.h"
#include "dialogs/PageZoom.h"
#include "support/AppSession.h"
#include "support/CaseTable.h"
#include "visual/ScaledPicture.h"

#include <filesystem>
#include <gmock/gmock-more-matchers.h>
#include <sstream>

namespace phial
{

namespace
{

using test::caseName;
using test::CaseRow;
using test::readCaseTable;

class HelpBookTable : public ::testing::TestWithParam<CaseRow>
{
};

std::vector<double> numbersOf(const String& text)
{
    std::istringstream stream(toUtf8(text));
    std::vector<double> numbers;
    for (double number = 0; stream >> number;) {
        numbers.push_back(number);
    }
    return numbers;
}

std::vector<String> wordsOf(const String& text, char separator = ' ')
{
    std::istringstream stream(toUtf8(text));
    std::vector<String> words;
    for (std::string word; std::getline(stream, word, separator);) {
        words.push_back(fromUtf8(word));
    }
    return words;
}

/// The whole numbers of a row.
struct Whole {
    std::vector<double> numbers;

    std::int32_t operator()(std::size_t index) const { return static_cast<std::int32_t>(numbers.at(index)); }
    bool isSet(std::size_t index) const { return numbers.at(index) != 0; }
};

String pressable(const HelpPlace& place)
{
    String words;
    const auto add = [&words](bool isOn, StringView word) {
        if (isOn) {
            words += (words.empty() ? u"" : u" ") + String(word);
        }
    };
    add(place.mayGoBack(), u"back");
    add(place.mayGoNext(), u"next");
    add(place.hasMenuToGoTo(), u"menu");
    return words;
}

String languageFolder(const String& given)
{
    const auto words = wordsOf(given);
    const auto folders = wordsOf(words.at(3), ',');
    return helpFolderFor(words.at(0), words.at(1), words.at(2) == u"1", [&](const String& folder) {
        return std::ranges::find(folders, folder) != folders.end();
    });
}

std::vector<double> numbersFound(const String& what, const std::vector<double>& given)
{
    const Whole whole{given};
    if (what == u"drag") {
        PageSlide slide;
        slide.grab(1000);
        slide.drag(1000 + given.at(3), given.at(0), whole.isSet(1), whole.isSet(2));
        return {slide.offset()};
    }
    if (what == u"release") {
        PageSlide slide;
        slide.grab(0);
        slide.drag(given.at(1), given.at(0), true, true);
        return {static_cast<double>(slide.release(given.at(0)))};
    }
    if (what == u"slide") {
        PageSlide slide;
        slide.grab(0);
        slide.drag(given.at(2), given.at(1), true, true);
        slide.slide(static_cast<PageTurn>(whole(0)), given.at(1), 100);
        const bool isOver = slide.isOverAt(100 + given.at(3));
        return {slide.offset(), isOver ? 1.0 : 0.0};
    }
    if (what == u"strip") {
        const PageStrip strip(whole(0), given.at(1));
        return {double{1} * strip.segments(), strip.pitch()};
    }
    if (what == u"segment") {
        const PageStrip strip(whole(0), given.at(1));
        const std::int32_t segment = strip.segmentOf(whole(2));
        return {double{1} * segment, double{1} * strip.pageOf(segment)};
    }
    const auto shown =
        ShownScale::within({given.at(0), given.at(1)}, {given.at(2), given.at(3)}, given.at(4));
    return {shown.size.width, shown.size.height, shown.density};
}

TEST_P(HelpBookTable, Holds)
{
    const auto& columns = GetParam().columns;
    const String& what = columns.at(0);
    const String& given = columns.at(1);
    const String& expected = columns.at(2);
    if (what == u"colour") {
        EXPECT_EQ(helpChapterOf(given), expected);
    } else if (what == u"language") {
        EXPECT_EQ(languageFolder(given), expected);
    } else if (what == u"place") {
        const Whole whole{numbersOf(given)};
        EXPECT_EQ(pressable({whole(0), whole(1), whole.isSet(2), whole.isSet(3)}), expected);
    } else {
        EXPECT_THAT(numbersFound(what, numbersOf(given)),
                    ::testing::Pointwise(::testing::DoubleNear(1e-9), numbersOf(expected)));
    }
}

INSTANTIATE_TEST_SUITE_P(Table, HelpBookTable, ::testing::ValuesIn(readCaseTable("help_book.txt", 3)),
                         caseName<::testing::TestParamInfo<CaseRow>>);

TEST(PageStripSegments, EachPageIsInTheSegmentWhosePagesBeginBeforeIt)
{
    for (const std::int32_t pages : {1, 2, 319, 320, 321, 500, 1000, 10000}) {
        const PageStrip strip(pages, 960);
        for (std::int32_t segment = 1; segment <= strip.segments(); ++segment) {
            EXPECT_EQ(strip.segmentOf(strip.pageOf(segment)), segment) << pages;
            if (strip.pageOf(segment) > 1) {
                EXPECT_EQ(strip.segmentOf(strip.pageOf(segment) - 1), segment - 1) << pages;
            }
        }
    }
}

TEST(PageStripSegments, AreDarkBeforeThePageWhiteOnItAndLightBehind)
{
    const PageStrip strip(3, 300);
    EXPECT_EQ(strip.colourOf(1, 2), QBColor(8));
    EXPECT_EQ(strip.colourOf(2, 2), QBColor(15));
    EXPECT_EQ(strip.colourOf(3, 2), QBColor(7));
}

TEST(PageSlideHand, IsTakenUpInTheMiddleOfASlideWhereThePageIs)
{
    PageSlide slide;
    slide.slide(PageTurn::Next, 1600, 0);
    EXPECT_FALSE(slide.isOverAt(0.25));
    slide.grab(500);
    EXPECT_FALSE(slide.isRunning());
    EXPECT_EQ(slide.offset(), -800);
    slide.drag(510, 1600, true, true);
    EXPECT_EQ(slide.offset(), -790);
    EXPECT_EQ(slide.release(1600), PageTurn::Next);
}

TEST(PageSlideHand, DoesNothingWithoutAPress)
{
    PageSlide slide;
    slide.drag(510, 1600, true, true);
    EXPECT_EQ(slide.offset(), 0);
    EXPECT_EQ(slide.finish(), PageTurn::Stay);
}

TEST(PageSlideHand, HoldsThePageNoMoreWhenItLetsGo)
{
    PageSlide slide;
    slide.grab(500);
    slide.drag(510, 1600, true, true);
    EXPECT_EQ(slide.release(1600), PageTurn::Stay);
    slide.drag(700, 1600, true, true);
    EXPECT_EQ(slide.offset(), 10);
}

TEST(PageSlideHand, HoldsThePageNoMoreWhenAKeyTurnsIt)
{
    PageSlide slide;
    slide.grab(500);
    slide.slide(PageTurn::Next, 1600, 0);
    slide.drag(700, 1600, true, true);
    EXPECT_EQ(slide.offset(), 0);
    EXPECT_TRUE(slide.isRunning());
}

TEST(PageSlideHand, EndsASlideAtOnceWithItsTurn)
{
    PageSlide slide;
    slide.slide(PageTurn::Back, 1600, 0);
    EXPECT_TRUE(slide.isRunning());
    EXPECT_EQ(slide.finish(), PageTurn::Back);
    EXPECT_EQ(slide.offset(), 0);
    EXPECT_FALSE(slide.isRunning());
}

constexpr PixelSize ZoomedPage{800, 400};
constexpr PixelSize ZoomView{1000, 400};

TEST(PageZoomPlace, IsTheMiddleAtFirst)
{
    PageZoom zoom;
    zoom.reset(ZoomedPage, ZoomView);
    EXPECT_EQ(zoom.place(), (PixelRectangle{100, 0, 800, 400}));
    EXPECT_FALSE(zoom.isEnlarged());
    EXPECT_EQ(zoom.seenPart(), (PixelRectangle{0, 0, 800, 400}));
}

TEST(PageZoomPlace, KeepsThePointThatItIsEnlargedAbout)
{
    PageZoom zoom;
    zoom.reset(ZoomedPage, ZoomView);
    zoom.enlarge(2, {500, 300});
    EXPECT_EQ(zoom.place(), (PixelRectangle{-300, -300, 1600, 800}));
    EXPECT_EQ(zoom.seenPart(), (PixelRectangle{300, 300, 1000, 400}));
}

TEST(PageZoomPlace, LeavesNoGapAtAnEdge)
{
    PageZoom zoom;
    zoom.reset(ZoomedPage, ZoomView);
    zoom.enlarge(2, {100, 0});
    EXPECT_EQ(zoom.place(), (PixelRectangle{0, 0, 1600, 800}));
    zoom.move(5000, -5000);
    EXPECT_EQ(zoom.place(), (PixelRectangle{0, -400, 1600, 800}));
    zoom.move(-5000, 0);
    EXPECT_EQ(zoom.place(), (PixelRectangle{-600, -400, 1600, 800}));
}

TEST(PageZoomPlace, GoesFromWholeToFourTimesAndBack)
{
    PageZoom zoom;
    zoom.reset(ZoomedPage, ZoomView);
    zoom.enlarge(100, {500, 200});
    EXPECT_EQ(zoom.factor(), 4);
    zoom.enlarge(0, {500, 200});
    EXPECT_EQ(zoom.factor(), 4);
    zoom.enlarge(0.001, {900, 10});
    EXPECT_EQ(zoom.place(), (PixelRectangle{100, 0, 800, 400}));
}

class HelpBookFolder : public test::AppSession
{
protected:
    HelpBookFolder() { LNG()->CURRENT(ID_Language_German); }

    void put(const std::string& file, std::string_view bytes = "x") const
    {
        folder.write("Hilfe/" + file, bytes);
    }
    void openBook() { book.openBook(path(u"Hilfe\\")); }
    String at(StringView relative) const { return path(u"Hilfe\\") + String(relative); }

    HelpBook book;
};

TEST_F(HelpBookFolder, HasThreeKindsOfPicturesInOneOrder)
{
    for (const auto* name : {"b.jpg", "a.bmp", "C.GIF", "d.png", "e.txt"}) {
        put(name);
    }
    openBook();
    EXPECT_EQ(book.Files(), (CoreStringList{at(u"a.bmp"), at(u"b.jpg"), at(u"C.GIF")}));
    EXPECT_FALSE(book.HasMenu());
    EXPECT_EQ(book.MenuFolder(), u"");
    EXPECT_EQ(book.Page(), 1);
}

TEST_F(HelpBookFolder, GetsTheBackslashThatItLacks)
{
    put("a.gif");
    book.openBook(path(u"Hilfe"));
    EXPECT_EQ(book.Files(), (CoreStringList{at(u"a.gif")}));
    EXPECT_EQ(book.Folder(), at(u""));
}

TEST_F(HelpBookFolder, KeepsTheMenusMapOutOfThePages)
{
    put("menu.gif");
    put("Menu_Choice.GIF");
    openBook();
    EXPECT_TRUE(book.HasMenu());
    EXPECT_EQ(book.Files(), (CoreStringList{at(u"menu.gif")}));
    EXPECT_EQ(book.MenuFolder(), at(u""));
}

TEST_F(HelpBookFolder, MayBeAMenuAlone)
{
    put("menu_choice.gif");
    openBook();
    EXPECT_TRUE(book.HasMenu());
    EXPECT_EQ(book.Files().Count(), 0);
    EXPECT_EQ(book.Page(), 1);
    EXPECT_EQ(book.mapFile(), at(u"menu_choice.gif"));
    EXPECT_FALSE(book.place().mayGoNext());
}

TEST_F(HelpBookFolder, MayBeMissing)
{
    openBook();
    EXPECT_EQ(book.Files().Count(), 0);
    EXPECT_EQ(book.Page(), 1);
    EXPECT_EQ(book.fileOf(1), u"");
    EXPECT_EQ(book.textOf(1), u"");
}

TEST_F(HelpBookFolder, HoldsThePageToWhatThereIs)
{
    put("a.gif");
    put("b.gif");
    openBook();
    book.Page(7);
    EXPECT_EQ(book.Page(), 2);
    book.Page(-1);
    EXPECT_EQ(book.Page(), 1);
}

TEST_F(HelpBookFolder, ComesBackFromAChapterToItsMenu)
{
    put("menu.gif");
    put("menu_choice.gif");
    put("K2/a.gif");
    openBook();
    EXPECT_FALSE(book.follow(u"#FFFFFF"));
    EXPECT_TRUE(book.follow(u"#00FFFF"));
    EXPECT_EQ(book.Folder(), at(u"K2\\"));
    EXPECT_EQ(book.MenuFolder(), at(u""));
    EXPECT_TRUE(book.place().mayGoBack());
    book.goToMenu();
    EXPECT_EQ(book.Folder(), at(u""));
    EXPECT_FALSE(book.place().hasMenuToGoTo());
    book.goToMenu();
    EXPECT_EQ(book.Folder(), at(u""));
}

TEST_F(HelpBookFolder, GoesUpLevelByLevel)
{
    put("menu_choice.gif");
    put("K1/menu_choice.gif");
    put("K1/K6/a.gif");
    openBook();
    book.follow(u"#0000FF");
    EXPECT_EQ(book.MenuFolder(), at(u"K1\\"));
    book.follow(u"#FF00FF");
    EXPECT_EQ(book.Folder(), at(u"K1\\K6\\"));
    book.goToMenu();
    EXPECT_EQ(book.Folder(), at(u"K1\\"));
    book.goToMenu();
    EXPECT_EQ(book.Folder(), at(u""));
}

TEST_F(HelpBookFolder, ReturnsFromAMenusLaterPagesToTheMenu)
{
    put("menu_choice.gif");
    put("a.gif");
    put("b.gif");
    openBook();
    book.Page(2);
    EXPECT_TRUE(book.place().mayGoNext());
    book.goToMenu();
    EXPECT_EQ(book.Page(), 1);
    EXPECT_EQ(book.Folder(), at(u""));
}

TEST_F(HelpBookFolder, IsReadInEnglishWhereThereIsSuchAFolder)
{
    put("menu_choice.gif");
    put("K1/a.gif");
    put("en/menu_choice.gif");
    put("en/K1/b.gif");
    LNG()->CURRENT(ID_Language_English);
    openBook();
    EXPECT_EQ(book.shownFolder(), at(u"en\\"));
    EXPECT_EQ(book.Folder(), at(u""));
    book.follow(u"#0000FF");
    EXPECT_EQ(book.Files(), (CoreStringList{at(u"en\\K1\\b.gif")}));
    LNG()->CURRENT(ID_Language_German);
    book.reload();
    EXPECT_EQ(book.Files(), (CoreStringList{at(u"K1\\a.gif")}));
}

TEST_F(HelpBookFolder, TellsWhatAPageSays)
{
    put("01.gif");
    put("01.txt", "Wasser ist H2O.\r\n");
    put("02.gif");
    openBook();
    EXPECT_EQ(book.textOf(1), u"Wasser ist H2O.");
    EXPECT_EQ(book.textOf(2), u"");
}

TEST_F(HelpBookFolder, LeavesATextAloneThatIsTooLongForAPage)
{
    constexpr std::size_t Longest = 65536;
    put("01.gif");
    put("01.txt", std::string(Longest, 'x'));
    put("02.gif");
    put("02.txt", std::string(Longest + 1, 'x'));
    openBook();
    EXPECT_EQ(book.textOf(1).size(), Longest);
    EXPECT_EQ(book.textOf(2), u"");
}

TEST_F(HelpBookFolder, IsOnItsLastPageWhenOthersHaveTakenPagesAway)
{
    for (const auto* name : {"a.gif", "b.gif", "c.gif"}) {
        put(name);
    }
    openBook();
    book.Page(3);
    std::filesystem::remove(folder.native() / "Hilfe/b.gif");
    std::filesystem::remove(folder.native() / "Hilfe/c.gif");
    book.reload();
    EXPECT_EQ(book.Page(), 1);
}

TEST_F(HelpBookFolder, DropsAPageAndStaysWithTheOneBefore)
{
    for (const auto* name : {"a.gif", "b.gif", "c.gif"}) {
        put(name);
    }
    openBook();
    book.Page(3);
    book.drop(at(u"c.gif"));
    EXPECT_EQ(book.Page(), 2);
    book.Page(1);
    book.drop(at(u"a.gif"));
    EXPECT_EQ(book.Page(), 1);
    EXPECT_EQ(book.Files(), (CoreStringList{at(u"b.gif")}));
}

} // namespace

} // namespace phial
