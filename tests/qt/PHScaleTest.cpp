#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppTools.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "headless/HeadlessPlatform.h"
#include "qt/desktop/QtVisualHost.h"
#include "support/Places.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace phial::qt
{
namespace
{

TEST(PHScale, TheInstalledPictureIsTheIndicatorsScale)
{
    const test::TemporaryFolder folder;
    Platform platform = headless::HeadlessPlatform(folder.path()).platform();
    platform.visual = std::make_shared<QtVisualHost>();
    const Session session(platform);
    QVAPP()->URL()->RESOURCEGFX(systemPath(test::treeFolder()) + u"\\Resources\\gfx\\");
    cls_AppTools& tools = *QVAPP()->TOOLS();

    EXPECT_EQ(tools.PHCOLOR(0), RGB(190, 20, 45));
    EXPECT_EQ(tools.PHCOLOR(6.94), tools.PHCOLOR(6.9));
    EXPECT_EQ(tools.PHCOLOR(7), RGB(96, 176, 72));
    EXPECT_EQ(tools.PHCOLOR(10), RGB(30, 98, 178));
    EXPECT_EQ(tools.PHCOLOR(14), RGB(108, 36, 134));
}

} // namespace
} // namespace phial::qt
