#include "DesktopSession.h"
#include "app/Session.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "visual/ScaledPicture.h"

#include <QImage>
#include <QPointingDevice>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace phial;
using namespace phial::qt;

namespace
{

/// A help book of real pictures in a real window.
class HelpWindowTest : public DesktopTest<Session>
{
protected:
    String put(const char* name, QSize size, const char* format = "BMP", QColor colour = Qt::white)
    {
        const auto file = folder().native() / name;
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        EXPECT_TRUE(image.save(QString::fromStdU16String(file.u16string()), format));
        return folder().path() + fromUtf8(name);
    }
    void open()
    {
        dialog_.Folder(folder().path());
        form_.Show();
        form_.innerSize({1000, 564}); // the screen in memory is smaller
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widgetOf(form_)));
    }
    QWidget& view() { return widgetOf(*form_.control<PictureBox>(u"pic_ViewHolder")); }
    PictureBox& page() { return *form_.control<PictureBox>(u"pic_Viewer", 1); }
    /// The slide's time is up.
    bool turnsTo(std::int32_t page)
    {
        outside().clock().advance(1);
        return eventually([this, page] { return dialog_.Page() == page; });
    }
    bool mayPrint() { return form_.control<ctl_CmdBar>(u"ctl_CmdBar1")->BUTTONS()->Item(1)->Enabled(); }
    auto touch() { return QTest::touchEvent(view().window(), device_.get()); }
    QPoint inWindow(int x, int y) { return view().mapTo(view().window(), QPoint(x, y)); }

    frm_DialogHelpImages dialog_;
    Form& form_ = dialog_.form();
    std::unique_ptr<QPointingDevice> device_{QTest::createTouchDevice()};
};

TEST_F(HelpWindowTest, ALargePictureIsReadNoFinerThanItIsShown)
{
    const String file = put("photo.jpg", {2000, 1000}, "JPG");
    const PicturePtr coarse = LoadPictureWithin(file, {500, 500}, 1);
    EXPECT_EQ(coarse->columns(), 500U);
    EXPECT_EQ(coarse->rows(), 250U);
    const PicturePtr fine = LoadPictureWithin(file, {500, 500}, 2);
    EXPECT_EQ(fine->columns(), 1000U);
    EXPECT_EQ(fine->size(), (PixelSize{500, 250}));
    const PicturePtr finest = LoadPictureWithin(file, {500, 500}, 16);
    EXPECT_EQ(finest->columns(), 2000U);
    EXPECT_EQ(finest->size(), (PixelSize{500, 250}));
}

TEST_F(HelpWindowTest, APictureIsAsLargeAsItIsShownHoweverItIsRead)
{
    for (const QSize size :
         {QSize(901, 601), QSize(1000, 600), QSize(2000, 1200), QSize(2001, 1201), QSize(4000, 2400)}) {
        for (const char* format : {"JPG", "PNG"}) {
            const PicturePtr picture =
                LoadPictureWithin(put("photo.jpg", size, format, QColor(200, 0, 0)), {500, 300}, 1);
            const double width = std::min(500.0, std::round(300.0 * size.width() / size.height()));
            EXPECT_EQ(picture->columns(), static_cast<std::size_t>(width)) << size.width() << format;
            EXPECT_LE(picture->rows(), 300U);
            EXPECT_GE(picture->rows(), 299U);
            EXPECT_NEAR(qRed(picture->at(picture->columns() - 1, picture->rows() - 1)), 200, 3);
        }
    }
}

TEST_F(HelpWindowTest, APictureIsReadInTheBackgroundAsItIsReadAtOnce)
{
    const String file = put("photo.jpg", {1000, 600}, "JPG", QColor(10, 120, 230));
    auto coming = BeginPictureWithin(file, {500, 500}, 1);
    ASSERT_TRUE(coming);
    const PicturePtr read = LoadPictureWithin(file, {500, 500}, 1);
    EXPECT_EQ(coming->size, read->size());
    const PicturePtr come = coming->picture.get();
    EXPECT_EQ(come->size(), read->size());
    EXPECT_TRUE(std::ranges::equal(come->pixels(), read->pixels()));
}

TEST_F(HelpWindowTest, NothingIsReadInTheBackgroundThatIsShownInItsOwnSizeOrIsNoPicture)
{
    folder().write("broken.gif", "GIF89a");
    EXPECT_FALSE(BeginPictureWithin(put("small.bmp", {60, 40}), {500, 500}, 1));
    EXPECT_FALSE(BeginPictureWithin(folder().path() + u"broken.gif", {500, 500}, 1));
    EXPECT_FALSE(BeginPictureWithin(folder().path() + u"missing.gif", {500, 500}, 1));
}

TEST_F(HelpWindowTest, ALargePageIsThereWhenTheWindowIsPainted)
{
    put("1.jpg", {2000, 1000}, "JPG", QColor(200, 0, 0));
    open();
    const QImage seen = view().grab().toImage();
    EXPECT_NEAR(seen.pixelColor(seen.width() / 2, seen.height() / 2).red(), 200, 3);
    ASSERT_TRUE(page().Picture());
    EXPECT_EQ(page().Picture()->size(), (PixelSize{page().Width(), page().Height()}));
    EXPECT_TRUE(mayPrint());
}

TEST_F(HelpWindowTest, APageThatFailsBehindItsBeginningLeavesItsPlaceEmpty)
{
    put("1.jpg", {2000, 1000}, "PNG");
    std::filesystem::resize_file(folder().native() / "1.jpg", 60);
    open();
    outside().clock().advance(1);
    EXPECT_TRUE(eventually([this] { return !page().Visible(); }));
    EXPECT_FALSE(mayPrint());
}

TEST_F(HelpWindowTest, ABookClosesWhileItsPageIsBeingRead)
{
    put("1.jpg", {4000, 3000}, "JPG");
    dialog_.Folder(folder().path());
    form_.Show();
    form_.Unload();
    EXPECT_FALSE(form_.Visible());
}

TEST_F(HelpWindowTest, ASmallPictureIsReadAsItIs)
{
    const PicturePtr picture = LoadPictureWithin(put("small.bmp", {60, 40}), {500, 500}, 2);
    EXPECT_EQ(picture->size(), (PixelSize{60, 40}));
    EXPECT_EQ(picture->pixelRatio(), 1);
}

TEST_F(HelpWindowTest, WhatIsNoPictureRaisesItsError)
{
    folder().write("broken.gif", "GIF89a");
    folder().write("empty.jpg", "");
    for (const StringView name : {u"broken.gif", u"empty.jpg", u"missing.bmp"}) {
        EXPECT_THROW(LoadPictureWithin(folder().path() + String(name), {500, 500}, 1), RuntimeError)
            << toUtf8(name);
    }
}

TEST_F(HelpWindowTest, PagesAreSwipedByTheMouse)
{
    put("1.bmp", {600, 300});
    put("2.jpg", {4000, 3000}, "JPG");
    folder().write("3.gif", "no picture");
    open();
    QTest::mousePress(&view(), Qt::LeftButton, {}, {800, 100});
    for (int x = 750; x >= 300; x -= 50) {
        QTest::mouseMove(&view(), {x, 100});
    }
    EXPECT_EQ(page().Left(), 200 - 500);
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, {300, 100});
    EXPECT_TRUE(turnsTo(2));
    EXPECT_TRUE(page().Visible());
    EXPECT_FALSE(form_.control<PictureBox>(u"pic_Viewer", 2)->Visible());
}

TEST_F(HelpWindowTest, PagesAreSwipedByAFingerOnThePage)
{
    put("1.bmp", {900, 400});
    put("2.bmp", {900, 400});
    open();
    touch().press(1, inWindow(700, 200));
    for (int x = 650; x >= 200; x -= 50) {
        touch().move(1, inWindow(x, 200));
    }
    EXPECT_EQ(page().Left(), 50 - 500);
    touch().release(1, inWindow(200, 200));
    EXPECT_TRUE(turnsTo(2));
}

TEST_F(HelpWindowTest, TwoFingersEnlargeThePage)
{
    put("1.bmp", {900, 400});
    put("2.bmp", {900, 400});
    open();
    touch().press(1, inWindow(450, 200)).press(2, inWindow(550, 200));
    touch().move(1, inWindow(400, 200)).move(2, inWindow(600, 200));
    touch().release(1, inWindow(400, 200)).release(2, inWindow(600, 200));
    EXPECT_TRUE(eventually([this] { return page().Width() > 900; }));
    EXPECT_NEAR(page().Width(), 1800, 1);
    EXPECT_EQ(dialog_.Page(), 1);
    const QImage seen = view().grab().toImage();
    EXPECT_EQ(seen.pixelColor(5, 5), QColor(Qt::white)) << "the page fills the view";
}

TEST_F(HelpWindowTest, ATapOnTheMenuOpensItsChapter)
{
    put("menu.bmp", {400, 200});
    put("menu_choice.bmp", {100, 50}, "PNG", QColor(0, 255, 0));
    std::filesystem::rename(folder().native() / "menu_choice.bmp", folder().native() / "menu_choice.gif");
    folder().write("K3/1.gif", "no picture");
    open();
    QTest::mouseClick(&widgetOf(page()), Qt::LeftButton, {}, {390, 190});
    EXPECT_EQ(dialog_.Folder(), folder().path() + u"K3\\");
}

TEST_F(HelpWindowTest, ASegmentOfTheStripLeadsToItsPage)
{
    for (const char* page : {"1.bmp", "2.bmp", "3.bmp"}) {
        put(page, {400, 200});
    }
    open();
    QWidget& strip = widgetOf(*form_.control<Control>(u"pic_Strip"));
    const auto middleOf = [&](std::int32_t page) {
        const PixelRectangle area = form_.control<Label>(u"bar_Progress", page)->frame().pixelRectangle();
        return QPointF(area.left + area.width / 2, area.top + area.height / 2).toPoint();
    };
    EXPECT_TRUE(strip.findChildren<QWidget*>().isEmpty()) << "one widget does for all";
    const QImage seen = strip.grab().toImage();
    EXPECT_EQ(seen.pixelColor(middleOf(1)), QColor(255, 255, 255));
    EXPECT_EQ(seen.pixelColor(middleOf(2)), QColor(192, 192, 192));
    QTest::mouseClick(&strip, Qt::LeftButton, {}, middleOf(3));
    EXPECT_EQ(dialog_.Page(), 3);
    EXPECT_EQ(strip.grab().toImage().pixelColor(middleOf(3)), QColor(255, 255, 255));
}

TEST_F(HelpWindowTest, KeysTurnThePages)
{
    put("1.bmp", {400, 200});
    put("2.bmp", {400, 200});
    open();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_EQ(dialog_.Page(), 2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(turnsTo(1));
}

} // namespace
