#include "visual/Menu.h"

#include "support/Raises.h"

#include <gmock/gmock-matchers.h>

namespace phial::test
{

namespace
{

using ::testing::ElementsAre;

class MenuTest : public ::testing::Test
{
protected:
    std::shared_ptr<Menu> bar = std::make_shared<Menu>();
    std::shared_ptr<Menu> file = bar->add(u"mnu_File", u"&Datei|&File");
    std::shared_ptr<Menu> recent = file->add(u"mnu_Recent", u"", 0);
    std::shared_ptr<Menu> quit = file->add(u"mnu_Quit", u"Ende|Quit");
};

std::vector<String> captions(const Menu& menu)
{
    std::vector<String> list;
    for (const auto& entry : menu.entries()) {
        list.push_back(entry->Caption());
    }
    return list;
}

TEST_F(MenuTest, LoadCopiesTheLowestElementHiddenBehindItsArray)
{
    recent->Checked(true);
    file->load(u"mnu_Recent", 1)->Caption(u"a.txt");
    file->load(u"MNU_RECENT", 2)->Caption(u"b.txt");
    EXPECT_THAT(captions(*file), ElementsAre(u"", u"a.txt", u"b.txt", u"Ende|Quit"));
    EXPECT_FALSE(file->entry(u"mnu_Recent", 2)->Visible());
    EXPECT_TRUE(file->entry(u"mnu_Recent", 2)->Checked());
}

TEST_F(MenuTest, RefusesIndicesInUseAndArraysThatAreNotThere)
{
    EXPECT_EQ(raisedBy([this] { file->load(u"mnu_Recent", 0); }), 360);
    EXPECT_RAISES(file->load(u"mnu_None", 1), IndexOutOfBounds);
    EXPECT_RAISES(file->unload(u"mnu_Recent", 3), IndexOutOfBounds);
}

TEST_F(MenuTest, UnloadTakesAnElementAway)
{
    file->load(u"mnu_Recent", 1);
    file->unload(u"mnu_Recent", 1);
    EXPECT_EQ(file->entries().size(), 2U);
}

TEST_F(MenuTest, TellsTheGreatestIndexOfAnArray)
{
    EXPECT_EQ(file->upperBound(u"mnu_Recent"), 0);
    file->load(u"mnu_Recent", 7);
    file->load(u"mnu_Recent", 3);
    EXPECT_EQ(file->upperBound(u"MNU_RECENT"), 7);
    EXPECT_RAISES(file->upperBound(u"mnu_None"), IndexOutOfBounds);
    EXPECT_RAISES(file->upperBound(u"mnu_Quit"), IndexOutOfBounds) << "an entry of no array";
}

TEST_F(MenuTest, ChoiceIsToldAtTheEntryWithItsIndexAndAtTheMenusAbove)
{
    std::vector<String> heard;
    Connections connections;
    connections += recent->Click.connect([&](std::int32_t index) {
        heard.push_back(u"click");
        EXPECT_EQ(index, 0);
    });
    connections += bar->Chosen.connect([&](Menu& entry) { heard.push_back(entry.NAME()); });
    recent->inputClick();
    recent->Enabled(false);
    recent->inputClick();
    EXPECT_THAT(heard, ElementsAre(u"click", u"mnu_Recent"));
}

TEST_F(MenuTest, ChangesBelowAreToldAtTheTop)
{
    int changes = 0;
    const Connection listening = bar->changed.connect([&] { ++changes; });
    quit->Caption(u"Beenden|Quit");
    quit->Caption(u"Beenden|Quit");
    file->add(u"mnu_New", u"Neu|New");
    EXPECT_EQ(changes, 2);
}

TEST_F(MenuTest, AnEntryOutlivesItsMenu)
{
    file.reset();
    bar.reset();
    recent->Caption(u"allein");
    recent->inputClick();
    EXPECT_EQ(recent->above(), nullptr);
}

} // namespace

} // namespace phial::test
