#include "qt/desktop/MenuBar.h"

#include "qt/DesktopSession.h"
#include "qt/base/QtText.h"
#include "visual/Menu.h"

#include <QMenuBar>

#include <gmock/gmock-matchers.h>

namespace phial::qt
{

namespace
{

using ::testing::ElementsAre;

/// A menu bar with a File menu of three entries.
class MenuBarTest : public DesktopSession
{
protected:
    MenuBarTest() { show(); }

    void show()
    {
        showMenu(bar, *root);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    static QList<QAction*> actionsOf(const QWidget& holder) { return holder.actions(); }
    static std::vector<String> texts(const QWidget& holder)
    {
        std::vector<String> found;
        for (const QAction* action : holder.actions()) {
            found.push_back(fromQt(action->text()));
        }
        return found;
    }
    QMenu& fileMenu() { return *bar.actions().constFirst()->menu(); }
    qsizetype menuCount() { return bar.findChildren<QMenu*>().size(); }
    qsizetype actionCount() { return bar.findChildren<QAction*>().size(); }

    std::shared_ptr<Menu> root = std::make_shared<Menu>();
    std::shared_ptr<Menu> file = root->add(u"mnu_File", u"&Datei");
    std::shared_ptr<Menu> open = file->add(u"mnu_Open", u"Öffnen");
    std::shared_ptr<Menu> recent = file->add(u"mnu_FileMRU", u"leer", 0);
    std::shared_ptr<Menu> quit = file->add(u"mnu_Quit", u"Beenden");
    QMenuBar bar;
};

TEST_F(MenuBarTest, NothingPilesUpWhenTheModelChanges)
{
    const qsizetype menus = menuCount();
    const qsizetype actions = actionCount();
    for (int round = 0; round < 50; ++round) {
        file->load(u"mnu_FileMRU", 1)->Visible(true);
        root->add(u"mnu_More", u"Mehr")->add(u"mnu_Inner", u"Innen");
        open->Caption(round % 2 == 0 ? u"Open" : u"Öffnen");
        show();
        file->unload(u"mnu_FileMRU", 1);
        root->remove(*root->entry(u"mnu_More"));
        show();
    }
    EXPECT_EQ(menuCount(), menus);
    EXPECT_EQ(actionCount(), actions);
}

TEST_F(MenuBarTest, AnEntryThatOnlyLooksDifferentKeepsItsAction)
{
    const QList<QAction*> before = actionsOf(fileMenu());
    file->Caption(u"&File");
    quit->Caption(u"Quit");
    quit->Enabled(false);
    show();
    EXPECT_EQ(actionsOf(fileMenu()), before);
    EXPECT_THAT(texts(bar), ElementsAre(u"&File"));
    EXPECT_THAT(texts(fileMenu()), ElementsAre(u"Öffnen", u"leer", u"Quit"));
    EXPECT_FALSE(before.constLast()->isEnabled());
}

TEST_F(MenuBarTest, EntriesComeAndGoAtTheirPlace)
{
    recent->Visible(false);
    show();
    EXPECT_THAT(texts(fileMenu()), ElementsAre(u"Öffnen", u"Beenden"));
    recent->Visible(true);
    show();
    EXPECT_THAT(texts(fileMenu()), ElementsAre(u"Öffnen", u"leer", u"Beenden"));
    file->remove(*open);
    show();
    EXPECT_THAT(texts(fileMenu()), ElementsAre(u"leer", u"Beenden"));
}

TEST_F(MenuBarTest, AnEntryBecomesAMenuWhenItGetsEntries)
{
    open->add(u"mnu_Inner", u"Innen");
    show();
    const QAction* action = actionsOf(fileMenu()).constFirst();
    ASSERT_NE(action->menu(), nullptr);
    EXPECT_THAT(texts(*action->menu()), ElementsAre(u"Innen"));
    open->remove(*open->entry(u"mnu_Inner"));
    show();
    EXPECT_EQ(actionsOf(fileMenu()).constFirst()->menu(), nullptr);
    EXPECT_EQ(menuCount(), 1);
}

TEST_F(MenuBarTest, AnEntryMayTakeItselfAwayWhenItIsChosen)
{
    const auto connection = open->Click.connect([this](std::int32_t) {
        file->remove(*open);
        show();
    });
    actionsOf(fileMenu()).constFirst()->trigger();
    EXPECT_THAT(texts(fileMenu()), ElementsAre(u"leer", u"Beenden"));
}

TEST_F(MenuBarTest, AMarkStaysWhenTheModelKeepsIt)
{
    open->Checked(true);
    show();
    QAction* action = actionsOf(fileMenu()).constFirst();
    action->trigger();
    EXPECT_TRUE(action->isChecked());
}

TEST_F(MenuBarTest, ABarWithoutEntriesIsHidden)
{
    EXPECT_FALSE(bar.isHidden());
    file->Visible(false);
    show();
    EXPECT_TRUE(bar.isHidden());
}

} // namespace

} // namespace phial::qt
