#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NumberText.h"
#include "headless/Hand.h"
#include "results/cls_DataScores.h"
#include "results/frm_DialogHighscore.h"
#include "support/AppSession.h"
#include "support/Raises.h"
#include "visual/Shape.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Pannel.h"
#include "visual/ctl_Title.h"

#include <gmock/gmock-matchers.h>
#include <limits>

namespace phial
{

namespace
{

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr StringView ResetQuestion = u"Bist Du sicher, daß Du die Highscore-Liste zurücksetzen möchtest?";
constexpr StringView Reset = u"DIALOG.RESET();";
constexpr StringView Confirm = u"DIALOG.OK();";
const Colour LightRed = QBColor(12);

class HighscoreWindow : public test::AppSession
{
protected:
    HighscoreWindow()
    {
        list.MAXIMUM(1000);
        LNG()->CURRENT(ID_Language_German);
    }

    /// Adds entries "P01", "P02" and so on with falling points, each a day after the one before.
    void addEntries(std::int32_t count)
    {
        for (std::int32_t number = 1; number <= count; ++number) {
            add(nameOf(number), 1000 - number, number);
        }
    }
    void add(const String& name, double points, double day = 1)
    {
        list.ADD(points, 1000, u"Wasser", nullptr, u"login", u"pc", name, Moment{45000 + day});
    }
    static String nameOf(std::int32_t number) { return (number < 10 ? u"P0" : u"P") + plainText(number); }
    static std::vector<String> namesOf(std::int32_t first, std::int32_t last)
    {
        std::vector<String> names;
        for (std::int32_t number = first; number <= last; ++number) {
            names.push_back(nameOf(number));
        }
        return names;
    }

    /// Shows the list with the user before it.
    void show(const std::function<void()>& user, std::int32_t rank = 0)
    {
        await(user);
        list.SHOW(u"", rank);
    }
    void showLocal(const std::function<void()>& user)
    {
        await(user);
        list.SHOWLOCAL();
    }
    void await(const std::function<void()>& user)
    {
        outside.visual().onModal(u"frm_DialogHighscore", [this, user](Form& form) {
            window = form.shared_from_this();
            user();
            window->Unload();
        });
    }

    template <typename Class>
    std::shared_ptr<Class> get(StringView name, std::int32_t index = -1)
    {
        return window->control<Class>(name, index);
    }
    String text(StringView column, std::int32_t row) { return get<Label>(column, row)->Caption(); }
    /// The rows that show something.
    std::vector<String> column(StringView name)
    {
        std::vector<String> texts;
        for (std::int32_t row = 0; row < 10; ++row) {
            if (const String shown = text(name, row); !shown.empty()) {
                texts.push_back(shown);
            }
        }
        return texts;
    }
    std::vector<String> names() { return column(u"lab_Name"); }
    std::vector<Colour> colours(std::int32_t row)
    {
        std::vector<Colour> found;
        for (const auto* name : {u"lab_Rank", u"lab_Name", u"lab_Points", u"lab_Ueb", u"lab_time"}) {
            found.push_back(get<Label>(name, row)->ForeColor());
        }
        return found;
    }
    bool isStressed(std::int32_t row) { return get<Label>(u"lab_Name", row)->ForeColor() == LightRed; }

    std::shared_ptr<ctl_Button> more() { return get<ctl_Button>(u"but_mehr"); }
    std::shared_ptr<ctl_Button> less() { return get<ctl_Button>(u"but_weniger"); }
    std::shared_ptr<ctl_CmdBar> bar() { return get<ctl_CmdBar>(u"bar_Buttons"); }
    bool isEmptyShown() { return get<ctl_Pannel>(u"bar_Empty")->Visible(); }
    void press(ctl_Button& button) { headless::click(button); }
    void command(StringView key) { headless::clickButton(*bar(), key); }

    cls_DataScores list;
    std::shared_ptr<Form> window;
};

TEST_F(HighscoreWindow, AMomentOrPointsThatAreNoneDisturbNoOtherRow)
{
    addEntries(2);
    list.ITEM(1)->TIMESTAMP(Moment{std::numeric_limits<double>::quiet_NaN()});
    list.ITEM(2)->POINTS(std::numeric_limits<double>::quiet_NaN());
    show([this] {
        EXPECT_EQ(names(), namesOf(1, 2));
        EXPECT_EQ(text(u"lab_time", 0), u"");
        EXPECT_NE(text(u"lab_time", 1), u"");
    });
}

TEST_F(HighscoreWindow, SaysThatAListCannotBeRead)
{
    folder.write("list.qv-hsr", "half a fi");
    EXPECT_FALSE(list.LOAD(path(u"list.qv-hsr")));
    showLocal([this] {
        EXPECT_TRUE(isEmptyShown());
        EXPECT_EQ(get<ctl_Pannel>(u"bar_Empty")->Caption(),
                  u"Diese Liste lässt sich nicht lesen. Sie bleibt, wie sie ist.");
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(get<ctl_Pannel>(u"bar_Empty")->Caption(), u"This list cannot be read. It stays as it is.");
    });
}

TEST_F(HighscoreWindow, ShowsAnEntryInItsRow)
{
    list.ADD(7.5, 10, u"Säuren", nullptr, u"login", u"pc", u"Jürgen", Moment{45292.375});
    show([&] {
        EXPECT_EQ(text(u"lab_Rank", 0), u"1");
        EXPECT_EQ(text(u"lab_Name", 0), u"Jürgen");
        EXPECT_EQ(text(u"lab_Ueb", 0), u"Säuren");
        EXPECT_EQ(text(u"lab_Points", 0), u"8");
        EXPECT_EQ(text(u"lab_time", 0), u"01.01.2024 09:00");
        EXPECT_THAT(names(), SizeIs(1));
        EXPECT_FALSE(isEmptyShown());
    });
}

TEST_F(HighscoreWindow, RoundsPointsHalvesToEven)
{
    add(u"a", 8.5);
    add(u"b", 7.5);
    add(u"c", 0.4);
    add(u"d", -3.6);
    show([&] { EXPECT_THAT(column(u"lab_Points"), ElementsAre(u"8", u"8", u"0", u"-4")); });
}

TEST_F(HighscoreWindow, SaysThatAListIsEmpty)
{
    show([&] {
        EXPECT_TRUE(isEmptyShown());
        EXPECT_EQ(get<ctl_Pannel>(u"bar_Empty")->Caption(), u"Hier steht noch niemand.");
        EXPECT_THAT(names(), SizeIs(0));
        EXPECT_FALSE(more()->Enabled());
        EXPECT_FALSE(less()->Enabled());
    });
}

TEST_F(HighscoreWindow, TenEntriesHaveNoSecondPage)
{
    addEntries(10);
    show([&] {
        EXPECT_EQ(names(), namesOf(1, 10));
        EXPECT_FALSE(more()->Enabled());
        EXPECT_FALSE(less()->Enabled());
    });
}

TEST_F(HighscoreWindow, EleventhEntryComesFirstOnTheSecondPageWhichIsTheLast)
{
    addEntries(11);
    show([&] {
        EXPECT_TRUE(more()->Enabled());
        press(*more());
        EXPECT_EQ(names(), namesOf(11, 11));
        EXPECT_EQ(text(u"lab_Rank", 0), u"11");
        EXPECT_FALSE(more()->Enabled());
        EXPECT_TRUE(less()->Enabled());
    });
}

TEST_F(HighscoreWindow, TwentyEntriesEndWithAnEmptyPage)
{
    addEntries(20);
    show([&] {
        press(*more());
        EXPECT_EQ(names(), namesOf(11, 20));
        EXPECT_TRUE(more()->Enabled());
        press(*more());
        EXPECT_THAT(names(), SizeIs(0));
        EXPECT_FALSE(more()->Enabled());
        EXPECT_FALSE(isEmptyShown());
        press(*less());
        EXPECT_EQ(names(), namesOf(11, 20));
        EXPECT_TRUE(more()->Enabled());
    });
}

TEST_F(HighscoreWindow, TheWayBackStaysOpenOnTheFirstPageUntilItIsPressedOnceMore)
{
    addEntries(15);
    show([&] {
        press(*more());
        press(*less());
        EXPECT_EQ(names(), namesOf(1, 10));
        EXPECT_TRUE(less()->Enabled());
        press(*less());
        EXPECT_EQ(names(), namesOf(1, 10));
        EXPECT_FALSE(less()->Enabled());
        EXPECT_TRUE(more()->Enabled());
    });
}

TEST_F(HighscoreWindow, PagesThroughFiveHundredEntriesAndBack)
{
    addEntries(500);
    show([&] {
        for (std::int32_t page = 1; page < 50; ++page) {
            press(*more());
            EXPECT_EQ(text(u"lab_Rank", 0), plainText(page * 10 + 1));
        }
        EXPECT_EQ(text(u"lab_Rank", 9), u"500");
        for (std::int32_t page = 48; page >= 0; --page) {
            press(*less());
            EXPECT_EQ(text(u"lab_Rank", 9), plainText(page * 10 + 10));
        }
        EXPECT_EQ(names().front(), u"P01");
    });
}

TEST_F(HighscoreWindow, OpensInTheOrderOfAHighscoreAndPagesInTheOrderOfTheList)
{
    list.MODE(enm_ScoreListMode::ID_ScoreList_ResultList);
    addEntries(12); // the latest, with the least points, stands first
    ASSERT_EQ(list.ITEM(1)->SCREENNAME(), u"P12");
    show([&] {
        EXPECT_EQ(names(), namesOf(1, 10));
        press(*more());
        EXPECT_THAT(names(), ElementsAre(u"P02", u"P01"));
        press(*less());
        EXPECT_THAT(names().front(), u"P12");
    });
    EXPECT_EQ(list.MODE(), enm_ScoreListMode::ID_ScoreList_ResultList);
    EXPECT_EQ(list.ITEM(1)->SCREENNAME(), u"P12");
}

TEST_F(HighscoreWindow, StressesNameRankAndPointsOfTheRank)
{
    addEntries(3);
    show(
        [&] {
            const Colour plain = colours(0).front();
            EXPECT_NE(plain, LightRed);
            EXPECT_THAT(colours(0), Each(plain));
            EXPECT_THAT(colours(1), ElementsAre(LightRed, LightRed, LightRed, plain, plain));
            EXPECT_THAT(colours(2), Each(plain));
            EXPECT_TRUE(get<Label>(u"lab_Name", 1)->Font()->Bold());
        },
        2);
}

TEST_F(HighscoreWindow, NoRankStressesNoRow)
{
    addEntries(11);
    for (const std::int32_t rank : {-1, 0, 12}) {
        show(
            [&] {
                for (std::int32_t row = 0; row < 10; ++row) {
                    EXPECT_FALSE(isStressed(row));
                }
                press(*more());
                EXPECT_FALSE(isStressed(0));
            },
            rank);
    }
}

TEST_F(HighscoreWindow, TheStressStaysWithItsPage)
{
    addEntries(25);
    show(
        [&] {
            EXPECT_FALSE(isStressed(2));
            press(*more());
            EXPECT_TRUE(isStressed(2));
            press(*more());
            EXPECT_FALSE(isStressed(2));
            EXPECT_FALSE(get<Label>(u"lab_Name", 2)->Font()->Bold());
        },
        13);
}

TEST_F(HighscoreWindow, ShowsTheTitleThatItIsGiven)
{
    show([&] { EXPECT_EQ(get<ctl_Title>(u"bar_Header")->Title(), u"Bestenliste"); });
    await([&] {
        EXPECT_EQ(get<ctl_Title>(u"bar_Header")->Title(), u"Klasse 9b");
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(get<ctl_Title>(u"bar_Header")->Title(), u"Klasse 9b");
    });
    list.SHOW(u"Klasse 9b");
}

TEST_F(HighscoreWindow, ChangesItsLanguageWhileItIsOpen)
{
    add(u"Rang|Rank", 10);
    show([&] {
        EXPECT_EQ(get<Label>(u"lab_Title", 2)->Caption(), u"Übung");
        press(*more());
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(window->Caption(), u"High scores");
        EXPECT_EQ(get<Label>(u"lab_Title", 2)->Caption(), u"Exercise");
        EXPECT_THAT(toUtf8(more()->Caption()), HasSubstr("Next"));
        EXPECT_THAT(toUtf8(bar()->BUTTONS()->Item(1)->Caption()), HasSubstr("Reset"));
        EXPECT_EQ(get<ctl_Pannel>(u"bar_Empty")->Caption(), u"Nobody is in this list yet.");
        EXPECT_EQ(text(u"lab_Name", 0), u"Rang|Rank");
        LNG()->CURRENT(ID_Language_German);
        EXPECT_EQ(get<Label>(u"lab_Title", 2)->Caption(), u"Übung");
        EXPECT_EQ(text(u"lab_Name", 0), u"Rang|Rank");
    });
}

TEST_F(HighscoreWindow, ShowsNamesAsTheyWereTyped)
{
    add(u"<b>Max</b><br>", 10);
    show([&] {
        EXPECT_THAT(outside.visual().drawing(*get<Label>(u"lab_Name", 0)), HasSubstr("\"<b>Max</b><br>\""));
    });
}

TEST_F(HighscoreWindow, ShortensANameThatHasNoRoom)
{
    const String name(300, u'W');
    add(name, 10);
    show([&] {
        EXPECT_EQ(text(u"lab_Name", 0), name);
        EXPECT_THAT(outside.visual().drawing(*get<Label>(u"lab_Name", 0)), HasSubstr("WWW\u2026\""));
    });
}

TEST_F(HighscoreWindow, KeepsItsColumnsApart)
{
    show([&] {
        const auto edges = [this](StringView name) { return get<Label>(name, 0)->frame().pixelRectangle(); };
        double end = edges(u"lab_Rank").left;
        for (const auto* name : {u"lab_Rank", u"lab_Name", u"lab_Ueb", u"lab_Points", u"lab_time"}) {
            EXPECT_GE(edges(name).left, end);
            end = edges(name).right() + 8;
        }
        EXPECT_LE(edges(u"lab_time").right(), get<Shape>(u"shp_Row", 0)->frame().pixelRectangle().right());
    });
}

TEST_F(HighscoreWindow, OffersTheResetOfAFilledListOfThisComputerOnly)
{
    const auto isOffered = [this] { return bar()->BUTTONS()->Item(1)->Enabled(); };
    showLocal([&] { EXPECT_FALSE(isOffered()); });
    addEntries(1);
    showLocal([&] { EXPECT_TRUE(isOffered()); });
    show([&] {
        EXPECT_FALSE(isOffered());
        command(Reset);
        EXPECT_TRUE(window->isLoaded());
    });
}

TEST_F(HighscoreWindow, ResetsAfterAQuestion)
{
    addEntries(3);
    outside.dialogs().expectYesNo(DialogAnswer::Yes, String(ResetQuestion));
    showLocal([&] {
        command(Reset);
        EXPECT_FALSE(window->isLoaded());
        EXPECT_EQ(list.COUNT(), 3);
    });
    EXPECT_EQ(list.COUNT(), 0);
}

TEST_F(HighscoreWindow, KeepsTheListWhenTheUserThinksBetterOfIt)
{
    addEntries(3);
    outside.dialogs().expectYesNo(DialogAnswer::No);
    showLocal([&] {
        command(Reset);
        EXPECT_TRUE(window->isLoaded());
    });
    EXPECT_EQ(list.COUNT(), 3);
}

TEST_F(HighscoreWindow, UnderstandsItsCommandsInAnyCase)
{
    for (const auto* key : {u"dialog.ok();", u"Dialog.Accept();", u"DIALOG.ACCEPT();"}) {
        show([&] {
            bar()->BUTTON.raise(-1, key);
            EXPECT_FALSE(window->isLoaded());
        });
    }
    show([&] {
        bar()->BUTTON.raise(-1, u"DIALOG.OTHER();");
        EXPECT_TRUE(window->isLoaded());
    });
}

TEST_F(HighscoreWindow, AcceptsByItsButtonByEscapeAndByItsFrame)
{
    addEntries(2);
    for (const std::function<void()>& accept : {std::function<void()>([&] { command(Confirm); }),
                                                {[&] { headless::type(*window, u"{ESC}"); }},
                                                {[&] { window->inputClose(); }}}) {
        showLocal([&] {
            accept();
            EXPECT_FALSE(window->isLoaded());
        });
        EXPECT_EQ(list.COUNT(), 2);
    }
}

TEST_F(HighscoreWindow, TurnsPagesByKeys)
{
    addEntries(11);
    show([&] {
        headless::type(*window, u"{PGUP}");
        EXPECT_EQ(names(), namesOf(1, 10));
        headless::type(*window, u"{PGDN}");
        EXPECT_EQ(names(), namesOf(11, 11));
        headless::type(*window, u"{PGDN}");
        EXPECT_EQ(names(), namesOf(11, 11));
        headless::type(*window, u"{PGUP}");
        EXPECT_EQ(names(), namesOf(1, 10));
    });
}

TEST_F(HighscoreWindow, KeepsTheFocusWhenAButtonHasNothingMoreToDo)
{
    addEntries(11);
    show([&] {
        EXPECT_EQ(window->ActiveControl(), more());
        press(*more());
        EXPECT_EQ(window->ActiveControl(), less());
        press(*less());
        press(*less());
        EXPECT_EQ(window->ActiveControl(), more());
    });
}

TEST_F(HighscoreWindow, TabReachesTheButtonsThatCanBePressed)
{
    addEntries(11);
    show([&] {
        EXPECT_THAT(window->tabOrder(), ElementsAre(more(), bar()));
        press(*more());
        EXPECT_THAT(window->tabOrder(), ElementsAre(less(), bar()));
    });
}

TEST_F(HighscoreWindow, SeesWhatIsAddedWhileItIsOpen)
{
    addEntries(11);
    show([&] {
        addEntries(5);
        press(*more());
        EXPECT_THAT(names(), SizeIs(6));
    });
}

TEST_F(HighscoreWindow, RaisesWhatIsMissingOnThePageBefore)
{
    addEntries(11);
    show([&] {
        press(*more());
        list.CLEAR();
        EXPECT_RAISES(less()->CLICK.raise(), IndexOutOfBounds);
    });
}

TEST_F(HighscoreWindow, CannotBeShownWithoutAList)
{
    frm_DialogHighscore dialog;
    EXPECT_RAISES(dialog.Show(), ObjectNotSet);
}

} // namespace

} // namespace phial
