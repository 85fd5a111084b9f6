#include "DesktopRun.h"

using namespace phial;
using namespace phial::qt;

namespace
{

using EmbeddedTest = DesktopRun;

TEST_F(EmbeddedTest, TheProgramEndsWithItsLastWindowBesideTheCover)
{
    start(u"EMBEDDED");
    const auto own = std::make_shared<Form>(u"frm_Own");
    own->Show();
    EXPECT_TRUE(cover().Visible());
    EXPECT_TRUE(endsAfter([&] { widgetOf(*own).close(); }));
    EXPECT_FALSE(cover().Visible());
}

TEST_F(EmbeddedTest, TheProgramGoesOnWhileAnotherOfItsWindowsIsOpen)
{
    start(u"EMBEDDED");
    const auto first = std::make_shared<Form>(u"frm_First");
    const auto second = std::make_shared<Form>(u"frm_Second");
    first->Show();
    second->Show();
    bool wentOn = false;
    EXPECT_TRUE(endsAfter([&] {
        widgetOf(*first).close();
        QTimer::singleShot(50, qApp, [&] {
            wentOn = true;
            widgetOf(*second).close();
        });
    }));
    EXPECT_TRUE(wentOn);
}

TEST_F(EmbeddedTest, TheCoverFillsItsScreen)
{
    start(u"EMBEDDED");
    const QWidget& window = widgetOf(cover());
    EXPECT_TRUE(eventually([&] { return window.geometry() == window.screen()->geometry(); }));
}

} // namespace
