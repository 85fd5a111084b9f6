#include "DesktopRun.h"
#include "FinerScreen.h"
#include "UserDesk.h"
#include "app/cls_Language.h"
#include "core/NativePath.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "support/Places.h"
#include "visual/ctl_Title.h"

#include <QScreen>

/// A learning app's help book on a real desktop, with a window manager, a mouse and a keyboard.
namespace phial::qt
{

namespace
{

class RealHelpBook : public DesktopRun
{
protected:
    RealHelpBook() : DesktopRun(std::make_shared<DesktopDisplay>())
    {
        LNG()->CURRENT(ID_Language_German);
        book_->TRANSLATE();
        desk_.moveTo({2, 2});
    }
    ~RealHelpBook() override { form().discard(); }

    void open()
    {
        book().Folder(systemPath(test::treeFolder()) + u"\\apps\\Molmasse\\data\\Hilfe\\");
        form().Show();
        ASSERT_TRUE(eventually([&] { return window().isActiveWindow() && window().isVisible(); }));
        runFor(100); // the window manager has had its last word
    }
    frm_DialogHelpImages& book() { return *book_; }
    Form& form() { return book_->form(); }
    QWidget& window() { return widgetOf(form()); }
    QWidget& view() { return widgetOf(*form().control<PictureBox>(u"pic_ViewHolder")); }
    /// A place of the view, by shares of its width and height.
    QPoint inView(double across, double down)
    {
        return view().mapToGlobal(QPointF(view().width() * across, view().height() * down).toPoint());
    }
    void press(StringView button)
    {
        QWidget& widget = widgetOf(*form().control<ctl_Button>(button));
        desk_.click(widget.mapToGlobal(widget.rect().center()));
    }
    bool isIn(StringView chapter)
    {
        return eventually([&] { return book().Folder().ends_with(String(chapter) + u"\\"); });
    }
    /// What a screen reader says of the page.
    String spoken() { return form().control<PictureBox>(u"pic_Viewer", 1)->frame().AccessibleName(); }
    /// The slide's time goes on.
    bool turnsTo(std::int32_t page)
    {
        return eventually([&] {
            outside().clock().advance(1);
            return book_->Page() == page;
        });
    }

    UserDesk desk_;
    std::unique_ptr<frm_DialogHelpImages> book_ = std::make_unique<frm_DialogHelpImages>();
};

TEST_F(RealHelpBook, FitsTheScreenAndIsReadByTheMouse)
{
    open();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(window().frameGeometry()));
    desk_.click(inView(0.2, 0.35));
    ASSERT_TRUE(isIn(u"K1"));
    desk_.drag(inView(0.8, 0.4), inView(0.2, 0.4));
    EXPECT_TRUE(turnsTo(2));
    desk_.drag(inView(0.2, 0.4), inView(0.8, 0.4));
    EXPECT_TRUE(turnsTo(1));
    press(u"but_Next");
    EXPECT_TRUE(turnsTo(2));
    press(u"but_Menu");
    EXPECT_TRUE(isIn(u"Hilfe"));
}

TEST_F(RealHelpBook, IsReadByKeys)
{
    open();
    desk_.strike({UserDesk::One});
    ASSERT_TRUE(isIn(u"K1"));
    desk_.strike({UserDesk::Right});
    EXPECT_TRUE(turnsTo(2));
    desk_.strike({UserDesk::End});
    EXPECT_TRUE(turnsTo(5));
    desk_.strike({UserDesk::Home});
    EXPECT_TRUE(turnsTo(1));
    desk_.strike({UserDesk::Escape});
    EXPECT_TRUE(eventually([&] { return !form().isLoaded(); }));
}

TEST_F(RealHelpBook, SpeaksEnglishToo)
{
    open();
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(form().control<ctl_Button>(u"but_Next")->Caption(), u"Next");
    EXPECT_TRUE(eventually([&] { return spoken().find(u"How to practise") != String::npos; }))
        << toUtf8(spoken());
    desk_.click(inView(0.2, 0.35));
    ASSERT_TRUE(isIn(u"K1"));
    EXPECT_TRUE(eventually([&] { return spoken().find(u"Choose a level") != String::npos; }))
        << toUtf8(spoken());
}

TEST_F(RealHelpBook, DoesAllThisOnFinerScreensToo)
{
    if (isOnFinerScreen()) {
        return; // this is one
    }
    EXPECT_TRUE(passOnFinerScreen("RealHelpBook.*", "1.25"));
}

} // namespace

} // namespace phial::qt
