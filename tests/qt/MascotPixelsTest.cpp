#include "DesktopSession.h"
#include "Eventually.h"
#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "support/Places.h"
#include "visual/PictureBox.h"

#include <QtTest/QTest>

#include <cmath>
#include <numbers>
#include <set>

using namespace phial;
using namespace phial::qt;

namespace
{

/// A mascot with its installed pictures, and a balloon without tail and with square corners.
class MascotPixels : public DesktopTest<Session>
{
protected:
    MascotPixels()
    {
        std::string gfx = (test::sourceFolder() / "resources" / "gfx").string();
        std::ranges::replace(gfx, '/', '\\');
        QVAPP()->URL()->RESOURCEGFX(fromUtf8(gfx) + u"\\");
        form = std::make_shared<Form>(u"frm_Test");
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize({400, 200});
        bubble = form->add<ctl_Bubble>(u"bub_Host");
        bubble->Move(150, 20, 121, 80);
        bubble->BORDERROUND(0);
        bubble->ZIP(false);
        atom = form->add<ctl_DrAtom>(u"dra_Host");
        atom->Move(20, 20, 100, 100);
    }

    struct Rgba {
        int red;
        int green;
        int blue;
        int alpha;
    };
    /// Of the pixel that covers that place, in logical pixels; colours without their alpha.
    static Rgba at(const Picture& picture, double x, double y)
    {
        const auto column = static_cast<std::size_t>(x * picture.pixelRatio());
        const auto row = static_cast<std::size_t>(y * picture.pixelRatio());
        return parts(picture.at(column, row));
    }
    static Rgba parts(std::uint32_t pixel)
    {
        const QRgb plain = qUnpremultiply(pixel);
        return {qRed(plain), qGreen(plain), qBlue(plain), qAlpha(plain)};
    }
    static bool isMagenta(Rgba pixel)
    {
        constexpr int Tinge = 40;
        return pixel.alpha > 0 && pixel.red > pixel.green + Tinge && pixel.blue > pixel.green + Tinge;
    }
    static int magentaPixels(const Picture& picture)
    {
        return static_cast<int>(std::ranges::count_if(std::as_const(picture).pixels(),
                                                      [](auto pixel) { return isMagenta(parts(pixel)); }));
    }
    /// The share of holes in an area.
    static double holes(const Picture& picture, const PixelRectangle& area)
    {
        const double ratio = picture.pixelRatio();
        int all = 0;
        int open = 0;
        for (auto row = std::lround(area.top * ratio); row < std::lround(area.bottom() * ratio); ++row) {
            for (auto column = std::lround(area.left * ratio); column < std::lround(area.right() * ratio);
                 ++column) {
                ++all;
                open += picture.at(static_cast<std::size_t>(column), static_cast<std::size_t>(row)) >> 24 == 0
                            ? 1
                            : 0;
            }
        }
        return static_cast<double>(open) / all;
    }

    std::shared_ptr<Form> form;
    std::shared_ptr<ctl_Bubble> bubble;
    std::shared_ptr<ctl_DrAtom> atom;
};

constexpr double MascotRatios[] = {1, 1.25, 1.5, 2, 3};

TEST_F(MascotPixels, HalfOfTheShadowIsHoles)
{
    for (const bool isOther : {false, true}) {
        bubble->SHADOWALT(isOther);
        for (const double ratio : MascotRatios) {
            const PicturePtr picture = bubble->surface().image(ratio);
            EXPECT_NEAR(holes(*picture, {117, 8, 3, 70}), 0.5, 0.03) << ratio;
            EXPECT_NEAR(holes(*picture, {8, 76, 100, 3}), 0.5, 0.03) << ratio;
            EXPECT_EQ(holes(*picture, {0, 0, 115, 74}), 0) << ratio << ": the balloon itself is solid";
        }
    }
}

TEST_F(MascotPixels, NoEdgeKeepsTheColourThatStandsForHoles)
{
    bubble->BORDERROUND(12);
    bubble->ZIP(true);
    for (std::int32_t side = 0; side < 8; ++side) {
        bubble->ZIPSIDE(static_cast<enm_BallonZipSide>(side));
        for (const double ratio : MascotRatios) {
            EXPECT_EQ(magentaPixels(*bubble->surface().image(ratio)), 0) << side << " at " << ratio;
        }
    }
    for (const double ratio : MascotRatios) {
        EXPECT_EQ(magentaPixels(*atom->surface().image(ratio)), 0) << ratio;
    }
}

TEST_F(MascotPixels, CornersAreSeeThrough)
{
    bubble->BORDERROUND(12);
    bubble->SHADOWOFFX(0);
    bubble->SHADOWOFFY(0);
    for (const double ratio : MascotRatios) {
        for (UserControl* const control :
             {static_cast<UserControl*>(&*atom), static_cast<UserControl*>(&*bubble)}) {
            const PicturePtr picture = control->surface().image(ratio);
            for (const double x : {0.0, picture->Width() - 1}) {
                for (const double y : {0.0, picture->Height() - 1}) {
                    EXPECT_EQ(at(*picture, x, y).alpha, 0) << ratio << ": " << x << ", " << y;
                }
            }
        }
    }
}

TEST_F(MascotPixels, AnElectronIsSeenAtEachOfItsEightPlaces)
{
    for (const double ratio : MascotRatios) {
        atom->ORBS(0);
        const PicturePtr without = atom->surface().image(ratio)->copy();
        atom->ORBS(8);
        const PicturePtr with = atom->surface().image(ratio);
        for (int place = 0; place < 8; ++place) {
            const double angle = place * std::numbers::pi / 4;
            const double x = 50 + 40 * std::cos(angle);
            const double y = 45 + 40 * std::sin(angle);
            const Rgba pixel = at(*with, x, y);
            EXPECT_EQ(pixel.alpha, 255) << place << " at " << ratio;
            EXPECT_GT(pixel.blue, pixel.red + 50) << place << " at " << ratio;
            const Rgba before = at(*without, x, y);
            EXPECT_FALSE(before.alpha == 255 && before.blue > before.red + 50) << place << " at " << ratio;
        }
    }
}

TEST_F(MascotPixels, TheFaceIsWhereItsEyesAndMouthAre)
{
    atom->EYEDIRECTION(EyesAhead);
    for (const double ratio : MascotRatios) {
        const PicturePtr picture = atom->surface().image(ratio);
        for (const PixelPoint eye : {AtomGaze::LeftEye, AtomGaze::RightEye}) {
            EXPECT_LT(at(*picture, eye.x + 0.5, eye.y + 0.5).green, 20) << ratio;
            EXPECT_GT(at(*picture, eye.x + 0.5, eye.y + 7.5).green, 230) << ratio;
        }
        EXPECT_LT(at(*picture, 51.5, 64.5).green, 60) << ratio;
    }
}

TEST_F(MascotPixels, FinerPicturesAreFiner)
{
    atom->ORBS(0);
    const auto shades = [&](double ratio) {
        const PicturePtr picture = atom->surface().image(ratio);
        std::set<std::uint32_t> all;
        const auto row = static_cast<std::size_t>(80 * ratio);
        for (std::size_t column = 0; column < picture->columns(); ++column) {
            all.insert(picture->at(column, row));
        }
        return all.size();
    };
    EXPECT_GT(shades(3), shades(1) * 2);
}

TEST_F(MascotPixels, APressOnAHoleReachesWhatLiesBelow)
{
    const auto below = form->add<PictureBox>(u"pic_Below");
    below->Move(0, 0, 400, 200);
    below->frame().ZOrder(1);
    bubble->BORDERROUND(12);
    std::vector<String> clicked;
    Connections connections;
    connections += below->Click.connect([&] { clicked.push_back(u"below"); });
    connections += atom->CLICK.connect([&] { clicked.push_back(u"mascot"); });
    connections += bubble->CLICK.connect([&] { clicked.push_back(u"balloon"); });
    form->Show();
    atom->surface().image(1);
    bubble->surface().image(1);
    const auto press = [](const Control& control, QPoint place) {
        QTest::mouseClick(&widgetOf(control), Qt::LeftButton, Qt::NoModifier, place);
    };
    press(*atom, {2, 2});
    press(*atom, {50, 47});
    press(*bubble, {1, 1});
    press(*bubble, {30, 3});
    EXPECT_EQ(clicked, (std::vector<String>{u"below", u"mascot", u"below", u"balloon"}));
}

/// Counts the paint events of a widget.
class PaintCount final : public QObject
{
public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

TEST_F(MascotPixels, ATextIsPaintedOnceHoweverMuchItChanges)
{
    bubble->AUTOSIZE(true);
    bubble->Visible(false);
    atom->BUBBLE(bubble->NAME());
    form->Show();
    PaintCount first(widgetOf(*atom));
    ASSERT_TRUE(test::eventually([&] { return first.count > 0; }));
    for (const bool isError : {false, true}) { // hidden before, then shown
        PaintCount painted(widgetOf(*bubble));
        atom->BUBBLESAY(nullptr, u"Natrium und Chlor geben Salz, das sich in Wasser l\u00F6st.", isError);
        EXPECT_EQ(painted.count, 0);
        EXPECT_TRUE(test::eventually([&] { return painted.count > 0; }));
        QApplication::processEvents();
        EXPECT_EQ(painted.count, 1) << isError;
    }
}

TEST_F(MascotPixels, APressOnTheTextIsOneClickOfTheBalloon)
{
    int clicks = 0;
    int doubleClicks = 0;
    Connections connections;
    connections += bubble->CLICK.connect([&] { ++clicks; });
    connections += bubble->DBLCLICK.connect([&] { ++doubleClicks; });
    bubble->TEXT(u"Wasser");
    form->Show();
    QWidget& text = widgetOf(*bubble->container()->controls().front());
    ASSERT_NE(&text, &widgetOf(*bubble));
    const auto presses = [&](QWidget& widget, QPoint place) {
        clicks = doubleClicks = 0;
        QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
        EXPECT_EQ(clicks, 1);
        EXPECT_EQ(doubleClicks, 0);
        QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, place); // the second press alone
        QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, place);
        EXPECT_EQ(clicks, 2) << "each press counts";
        EXPECT_EQ(doubleClicks, 1);
    };
    presses(text, text.rect().center());
    presses(widgetOf(*bubble), {3, 3}); // beside the text
}

} // namespace
