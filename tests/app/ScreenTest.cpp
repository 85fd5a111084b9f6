#include "app/AppTest.h"
#include "app/cls_AppDialog.h"
#include "app/screen/DebugPos.h"
#include "app/screen/Desktop.h"

namespace phial
{

namespace
{

class ScreenServices : public AppTest
{
};

TEST_F(ScreenServices, CountATextHeightOfSixteenAsSmallAndSeventeenAsLarge)
{
    outside.display().TextHeight(16);
    EXPECT_TRUE(IsSmallFonts());
    outside.display().TextHeight(17);
    EXPECT_FALSE(IsSmallFonts());
}

TEST_F(ScreenServices, CountFontsAsSmallWithoutADesktop)
{
    outside.display().TextHeight(std::nullopt);
    EXPECT_TRUE(IsSmallFonts());
}

TEST_F(ScreenServices, TheDialogsHideAndShowTheTaskbarForTheHost)
{
    QVAPP()->DIALOG()->TASKBARVISIBLE(false);
    QVAPP()->DIALOG()->TASKBARVISIBLE(true);
    EXPECT_EQ(outside.windows().taskbarOrders(), (std::vector<bool>{false, true}));
}

TEST_F(ScreenServices, HideAndShowTheTaskbar)
{
    HideTaskbar();
    HideTaskbar();
    ShowTaskbar();
    EXPECT_EQ(outside.windows().taskbarOrders(), (std::vector<bool>{false, false, true}));
}

TEST_F(ScreenServices, LeaveATraceOfTheLastPosition)
{
    DebugPos(u"PLAYCATEGORY-1");
    DebugPos(u"PLAYCATEGORY-2");
    EXPECT_EQ(userSetting(u"DebugPos"), Variant(u"PLAYCATEGORY-2"));
}

} // namespace

} // namespace phial
