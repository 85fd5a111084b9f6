#include "qt/desktop/FormWindow.h"

#include "DesktopSession.h"
#include "qt/desktop/ShotBook.h"
#include "qt/desktop/WindowShape.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"

#include <QMenuBar>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <random>
#include <vector>

using namespace phial;
using namespace phial::qt;

namespace
{

class FormWindowTest : public DesktopSession
{
protected:
    static std::shared_ptr<Form> makeForm(String name = u"frm_Test")
    {
        auto form = std::make_shared<Form>(std::move(name));
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize({400, 300});
        return form;
    }

    template <typename Class>
    static std::shared_ptr<Class> place(Form& form, StringView name, double left, double top)
    {
        auto control = form.add<Class>(name);
        control->Move(left, top, 120, 40);
        return control;
    }
};

TEST_F(FormWindowTest, ShowsTheModelsState)
{
    const auto form = makeForm();
    form->Caption(u"Molmasse");
    form->Show();
    EXPECT_TRUE(widgetOf(*form).isVisible());
    EXPECT_EQ(widgetOf(*form).windowTitle(), QStringLiteral("Molmasse"));
    EXPECT_EQ(widgetOf(*form).size(), QSize(400, 300));
    form->Caption(u"Anders");
    EXPECT_EQ(widgetOf(*form).windowTitle(), QStringLiteral("Anders"));
}

TEST_F(FormWindowTest, TellsTheModelWhatTheUserDoesToTheWindow)
{
    const auto form = makeForm();
    form->Show();
    int resized = 0;
    const auto connection = form->Resize.connect([&] { ++resized; });
    widgetOf(*form).resize(500, 320);
    EXPECT_TRUE(eventually([&] { return form->ScaleWidth() == 500; }));
    EXPECT_EQ(form->ScaleHeight(), 320);
    EXPECT_GT(resized, 0);
}

TEST_F(FormWindowTest, AskingToCloseUnloadsUnlessTheModelRefuses)
{
    const auto form = makeForm();
    form->Show();
    bool refuse = true;
    const auto connection = form->QueryUnload.connect([&](bool& cancel) { cancel = refuse; });
    widgetOf(*form).close();
    EXPECT_TRUE(form->Visible());
    refuse = false;
    widgetOf(*form).close();
    EXPECT_FALSE(form->Visible());
    EXPECT_FALSE(form->isLoaded());
}

TEST_F(FormWindowTest, AFormCanBeShownAgainWithWhatItHeld)
{
    const auto form = makeForm();
    const auto field = place<TextBox>(*form, u"txt_Input", 10, 10);
    form->Show();
    QTest::keyClicks(widgetOf(*field).focusProxy(), QStringLiteral("abc"));
    form->Hide();
    EXPECT_EQ(field->Text(), u"abc");
    form->Show();
    EXPECT_EQ(field->Text(), u"abc");
    QTest::keyClicks(widgetOf(*field).focusProxy(), QStringLiteral("d"));
    EXPECT_EQ(field->Text().size(), 4U);
}

TEST_F(FormWindowTest, AHandlerMayCloseItsOwnWindow)
{
    const auto form = makeForm();
    const auto button = place<ctl_Button>(*form, u"but_Close", 10, 10);
    const auto connection = button->CLICK.connect([&] { form->Unload(); });
    form->Show();
    QTest::mouseClick(&widgetOf(*button), Qt::LeftButton);
    EXPECT_FALSE(form->Visible());
}

TEST_F(FormWindowTest, TabGoesInTheModelsOrder)
{
    const auto form = makeForm();
    const auto last = place<TextBox>(*form, u"txt_Last", 10, 10);
    const auto first = place<TextBox>(*form, u"txt_First", 10, 60);
    last->frame().TabIndex(2);
    first->frame().TabIndex(1);
    form->Show();
    EXPECT_EQ(form->ActiveControl(), first);
    QTest::keyClick(widgetOf(*first).focusProxy(), Qt::Key_Tab);
    EXPECT_EQ(form->ActiveControl(), last);
    QTest::keyClick(widgetOf(*last).focusProxy(), Qt::Key_Tab);
    EXPECT_EQ(form->ActiveControl(), first);
    QTest::keyClick(widgetOf(*first).focusProxy(), Qt::Key_Backtab);
    EXPECT_EQ(form->ActiveControl(), last);
}

TEST_F(FormWindowTest, TheFocusIsToldOnceEachWay)
{
    const auto form = makeForm();
    const auto first = place<TextBox>(*form, u"txt_First", 10, 10);
    const auto second = place<TextBox>(*form, u"txt_Second", 10, 60);
    form->Show();
    std::vector<String> told;
    Connections connections;
    connections += first->LostFocus.connect([&] { told.push_back(u"first lost"); });
    connections += second->GotFocus.connect([&] { told.push_back(u"second got"); });
    second->SetFocus();
    QApplication::processEvents();
    EXPECT_EQ(told, (std::vector<String>{u"first lost", u"second got"}));
}

TEST_F(FormWindowTest, ReturnPressesTheDefaultAndEscapeTheCancelButton)
{
    const auto form = makeForm();
    const auto field = place<TextBox>(*form, u"txt_Input", 10, 10);
    const auto ok = place<ctl_Button>(*form, u"but_Ok", 10, 60);
    const auto cancel = place<ctl_Button>(*form, u"but_Cancel", 10, 110);
    form->DefaultControl(ok);
    form->CancelControl(cancel);
    std::vector<String> pressed;
    Connections connections;
    connections += ok->CLICK.connect([&] { pressed.push_back(u"ok"); });
    connections += cancel->CLICK.connect([&] { pressed.push_back(u"cancel"); });
    form->Show();
    field->SetFocus();
    QTest::keyClick(widgetOf(*field).focusProxy(), Qt::Key_Return);
    QTest::keyClick(widgetOf(*field).focusProxy(), Qt::Key_Escape);
    EXPECT_EQ(pressed, (std::vector<String>{u"ok", u"cancel"}));
}

TEST_F(FormWindowTest, TheToolkitTellsRepeatsOfAHeldKey)
{
    const auto form = makeForm();
    const auto button = place<ctl_Button>(*form, u"but_Ok", 10, 10);
    form->KeyPreview(true);
    std::vector<bool> repeats;
    int presses = 0;
    Connections connections;
    connections += form->KeyDown.connect([&](KeyEvent& event) { repeats.push_back(event.isRepeat); });
    connections += button->CLICK.connect([&] { ++presses; });
    form->Show();
    button->SetFocus();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Return}) {
        for (const bool isRepeat : {false, true, true}) {
            QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, {}, isRepeat);
            QApplication::sendEvent(
                widgetOf(*button).focusProxy() ? widgetOf(*button).focusProxy() : &widgetOf(*button), &down);
        }
    }
    EXPECT_EQ(repeats, (std::vector<bool>{false, true, true, false}));
    EXPECT_EQ(presses, 1);
}

TEST_F(FormWindowTest, ThePreviewCanKeepAndChangeKeys)
{
    const auto form = makeForm();
    const auto field = place<TextBox>(*form, u"txt_Input", 10, 10);
    form->KeyPreview(true);
    Connections connections;
    connections += form->KeyDown.connect([](KeyEvent& event) {
        if (event.KeyCode == 'X') {
            event.KeyCode = 0;
        }
    });
    connections += form->KeyPress.connect([](KeyPressEvent& event) {
        if (event.KeyAscii == u'.') {
            event.KeyAscii = u',';
        }
    });
    form->Show();
    QTest::keyClicks(widgetOf(*field).focusProxy(), QStringLiteral("1.x5"));
    EXPECT_EQ(field->Text(), u"1,5");
}

TEST_F(FormWindowTest, SentKeysAreTypedIntoTheFocus)
{
    const auto form = makeForm();
    const auto field = place<TextBox>(*form, u"txt_Input", 10, 10);
    form->Show();
    SendKeys(u"Wasser{bs}{left}+x");
    EXPECT_TRUE(eventually([&] { return field->Text() == u"WassXe"; })) << toUtf8(field->Text());
}

TEST_F(FormWindowTest, ModalFormsEndInnermostFirst)
{
    const auto outer = makeForm(u"frm_Outer");
    const auto inner = makeForm(u"frm_Inner");
    std::vector<String> order;
    EventPump& events = *SessionState::current().platform().pump;
    events.post([&] {
        events.post([&] {
            outer->Hide(); // the outer one is hidden first, but its Show returns last
            inner->Hide();
        });
        inner->Show(FormShow::Modal);
        order.push_back(u"inner");
    });
    outer->Show(FormShow::Modal);
    order.push_back(u"outer");
    EXPECT_EQ(order, (std::vector<String>{u"inner", u"outer"}));
}

TEST_F(FormWindowTest, AModalFormBlocksOtherWindowsAndHearsPressesThere)
{
    const auto below = makeForm(u"frm_Below");
    const auto button = place<ctl_Button>(*below, u"but_Below", 10, 10);
    int clicked = 0;
    Connections connections;
    connections += button->CLICK.connect([&] { ++clicked; });
    below->Show();

    const auto dialog = makeForm(u"frm_Dialog");
    int deactivated = 0;
    connections += dialog->Deactivate.connect([&] {
        ++deactivated;
        dialog->Hide();
    });
    SessionState::current().platform().pump->post(
        [&] { QTest::mouseClick(&widgetOf(*button), Qt::LeftButton); });
    dialog->Show(FormShow::Modal);
    EXPECT_EQ(clicked, 0);
    EXPECT_EQ(deactivated, 1);
    QTest::mouseClick(&widgetOf(*button), Qt::LeftButton);
    EXPECT_EQ(clicked, 1);
}

TEST_F(FormWindowTest, ADialogOutlivesTheWindowThatAskedForIt)
{
    const auto opener = makeForm(u"frm_Opener");
    opener->Show();
    QApplication::processEvents();
    const auto dialog = makeForm(u"frm_Dialog");
    bool shown = false;
    EventPump& events = *SessionState::current().platform().pump;
    events.post([&] {
        opener->Unload();
        events.post([&] {
            shown = widgetOf(*dialog).isVisible();
            dialog->Hide();
        });
    });
    dialog->Show(FormShow::Modal);
    EXPECT_TRUE(shown);
}

TEST_F(FormWindowTest, AModalWindowWithoutBorderIsADialogForTheDesktop)
{
    const auto plain = makeForm(u"frm_Plain");
    plain->BorderStyle(BorderStyle::None);
    plain->Show();
    EXPECT_EQ(widgetOf(*plain).windowType(), Qt::Window);
    const auto keyboard = makeForm(u"frm_Keyboard");
    keyboard->BorderStyle(BorderStyle::None);
    Qt::WindowType type = Qt::Widget;
    SessionState::current().platform().pump->post([&] {
        type = widgetOf(*keyboard).windowType();
        keyboard->Hide();
    });
    keyboard->Show(FormShow::Modal);
    EXPECT_EQ(type, Qt::Dialog);
}

TEST_F(FormWindowTest, ScreenReadersComeToTheNameOfAField)
{
    const auto form = makeForm();
    const auto field = place<TextBox>(*form, u"txt_Input", 10, 10);
    field->frame().AccessibleName(u"Antwort");
    form->Show();
    EXPECT_EQ(widgetOf(*field).focusProxy()->accessibleName(), QStringLiteral("Antwort"));
    field->frame().AccessibleName(u"Ergebnis");
    EXPECT_EQ(widgetOf(*field).focusProxy()->accessibleName(), QStringLiteral("Ergebnis"));
}

TEST_F(FormWindowTest, WhatAHandlerRaisesEndsAtTheDispatch)
{
    const auto form = makeForm();
    const auto button = place<ctl_Button>(*form, u"but_Fail", 10, 10);
    const auto connection =
        button->CLICK.connect([] { throw RuntimeError(ErrorNumber::InvalidArgument, u"No"); });
    std::vector<String> told;
    dispatchGuard()->setReporter([&](const String& text) { told.push_back(text); });
    form->Show();
    QTest::mouseClick(&widgetOf(*button), Qt::LeftButton);
    EXPECT_EQ(told, std::vector<String>{u"No (5)"});
    EXPECT_TRUE(form->Visible());
}

TEST_F(FormWindowTest, MenusAreShownAndChosen)
{
    const auto form = makeForm();
    const auto file = form->menu().add(u"mnu_File", u"&Datei");
    const auto quit = file->add(u"mnu_Quit", u"&Beenden");
    int chosen = 0;
    const auto connection = quit->Click.connect([&](std::int32_t) { ++chosen; });
    form->Show();
    const auto actions = widgetOf(*form).findChildren<QAction*>();
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [](const QAction* action) { return action->text() == u"&Beenden"; });
    ASSERT_NE(found, actions.end());
    (*found)->trigger();
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(form->ScaleHeight(), 300); // the bar takes nothing from the inside
}

TEST_F(FormWindowTest, AMenuBarComesWithItsFirstEntry)
{
    const auto form = makeForm();
    form->menu().add(u"mnu_Hidden", u"Später")->Visible(false);
    form->Show();
    EXPECT_EQ(widgetOf(*form).findChild<QMenuBar*>(), nullptr);
    form->menu().add(u"mnu_File", u"&Datei");
    const auto* bar = widgetOf(*form).findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(form->ScaleHeight(), 300);
    EXPECT_EQ(widgetOf(*form).height(), 300 + bar->height());
    form->menu().entry(u"mnu_File")->Visible(false);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(widgetOf(*form).height(), 300);
}

TEST_F(FormWindowTest, TheColourKeyMakesHolesInTheWindow)
{
    const auto form = makeForm();
    form->BorderStyle(BorderStyle::None);
    form->BackColor(RGB(255, 0, 255));
    const auto field = place<PictureBox>(*form, u"pic_Shown", 100, 100);
    field->BackColor(QBColor(15));
    form->load();
    SessionState::current().platform().windows->SetTranslucent(form->hWnd(), 100, TranslucentMode::ColourKey,
                                                               RGB(255, 0, 255));
    form->Show();
    EXPECT_TRUE(eventually([&] { return !widgetOf(*form).mask().isEmpty(); }));
    EXPECT_FALSE(widgetOf(*form).mask().contains(QPoint(10, 10)));
    EXPECT_TRUE(widgetOf(*form).mask().contains(QPoint(110, 110)));
}

/// A form that is a hole but for a box in its middle.
class ShapedWindowTest : public FormWindowTest
{
protected:
    ShapedWindowTest()
    {
        form_->BorderStyle(BorderStyle::None);
        form_->BackColor(Key);
        form_->translucency({255, Key, nullptr});
        box_->BackColor(QBColor(15));
        form_->Show();
        EXPECT_TRUE(shapeIs(QRect(100, 100, 120, 40)));
    }

    bool shapeIs(const QRegion& expected) const
    {
        return eventually([&] { return widgetOf(*form_).mask().xored(expected).isEmpty(); });
    }
    /// Whether the window has looked for its holes again since the test put a mask of its own.
    bool isShapedAnew() const
    {
        QApplication::processEvents();
        return widgetOf(*form_).mask() != QRegion(Marker);
    }
    void mark() const
    {
        QApplication::processEvents();
        widgetOf(*form_).setMask(Marker);
    }

    static constexpr Colour Key = RGB(255, 0, 255);
    static constexpr QRect Marker{0, 0, 7, 7};
    const std::shared_ptr<Form> form_ = makeForm();
    const std::shared_ptr<PictureBox> box_ = place<PictureBox>(*form_, u"pic_Shown", 100, 100);
};

TEST_F(ShapedWindowTest, IsNotShapedAnewWhileItMoves)
{
    mark();
    for (int step = 0; step < 10; ++step) {
        form_->Move(step * 150, step * 30);
    }
    EXPECT_FALSE(isShapedAnew());
    EXPECT_EQ(widgetOf(*form_).pos(), QPoint(90, 18));
}

TEST_F(ShapedWindowTest, IsShapedAnewWhenItsHolesMayHaveChanged)
{
    const auto change = [&](const char* what, const std::function<void()>& act) {
        mark();
        act();
        EXPECT_TRUE(isShapedAnew()) << what;
    };
    change("size", [&] { form_->innerSize({500, 350}); });
    change("picture", [&] { form_->Picture(std::make_shared<Picture>(PixelSize{10, 10})); });
    change("key colour", [&] { form_->translucency({255, Key, nullptr}); });
    change("a control moves", [&] { box_->Left(120); });
    change("a control goes out of sight", [&] { box_->Visible(false); });
    change("and comes back", [&] { box_->Visible(true); });
    change("a control comes", [&] { place<TextBox>(*form_, u"txt_New", 10, 10); });
    change("a shaped control is drawn", [&] {
        box_->transparent(true);
        box_->Cls();
        box_->MaskPicture(box_->Image());
    });
}

TEST_F(ShapedWindowTest, AControlIsPaintedWithoutALookForHoles)
{
    mark();
    box_->device().Line(0, 0, 9, 9, QBColor(12), LineShape::Filled);
    EXPECT_FALSE(isShapedAnew());
}

TEST_F(ShapedWindowTest, HasNoHolesWithoutAKeyColour)
{
    form_->translucency({});
    EXPECT_TRUE(eventually([&] { return widgetOf(*form_).mask().isEmpty(); }));
}

TEST_F(ShapedWindowTest, ItsPictureHasSoftEdges)
{
    ASSERT_TRUE(widgetOf(*form_).testAttribute(Qt::WA_TranslucentBackground));
    const auto picture = std::make_shared<Picture>(PixelSize{20, 10});
    std::ranges::fill(picture->pixels(), 0x40400000U); // a quarter of red
    form_->Picture(picture);
    EXPECT_TRUE(shapeIs(QRegion(100, 100, 120, 40).united(QRect(0, 0, 20, 10))));
    const PicturePtr shown = grabForm(*form_, 1);
    EXPECT_EQ(shown->at(5, 5), 0x40400000U) << "nothing of the key colour in it";
    EXPECT_EQ(shown->at(50, 50), 0U);
}

TEST_F(ShapedWindowTest, AMaskPictureSoftensTheGround)
{
    const auto mask = std::make_shared<Picture>(PixelSize{400, 300});
    std::ranges::fill(mask->pixels().subspan(0, 400 * 20), 0xFF000000U);
    std::ranges::fill(mask->pixels().subspan(400 * 20, 400 * 10), 0x80000000U);
    form_->BackColor(RGB(255, 0, 0));
    form_->translucency({255, std::nullopt, mask});
    EXPECT_TRUE(shapeIs(QRect(0, 0, 400, 30)));
    const PicturePtr shown = grabForm(*form_, 1);
    EXPECT_EQ(shown->at(5, 5), 0xFFFF0000U);
    EXPECT_EQ(shown->at(5, 25), 0x80800000U);
    EXPECT_EQ(shown->at(5, 60), 0U);
}

TEST_F(ShapedWindowTest, APictureThatIsItsOwnMaskIsTheGround)
{
    const auto picture = std::make_shared<Picture>(PixelSize{400, 30});
    std::ranges::fill(picture->pixels().subspan(0, 400 * 20), 0xFF00FF00U);
    std::ranges::fill(picture->pixels().subspan(400 * 20, 400 * 10), 0x80008000U);
    form_->BackColor(RGB(255, 0, 0));
    form_->Picture(picture);
    form_->translucency({255, std::nullopt, picture});
    EXPECT_TRUE(shapeIs(QRect(0, 0, 400, 30)));
    const PicturePtr shown = grabForm(*form_, 1);
    EXPECT_EQ(shown->at(5, 5), 0xFF00FF00U);
    EXPECT_EQ(shown->at(5, 25), 0x80008000U) << "nothing of the ground's colour at soft edges";
    EXPECT_EQ(shown->at(5, 60), 0U);
}

/// Pixel by pixel, for rows of a few solid runs each, of which many are like the one above.
QRegion solidOf(const Picture& mask, const QRect& inside)
{
    QRegion solid;
    for (std::size_t row = 0; row < mask.rows(); ++row) {
        for (std::size_t column = 0; column < mask.columns(); ++column) {
            if (mask.at(column, row) != 0) {
                solid += QRect(static_cast<int>(column), static_cast<int>(row), 1, 1) & inside;
            }
        }
    }
    return solid;
}

PicturePtr maskOfRuns(PixelSize size, unsigned seed)
{
    std::mt19937 random(seed);
    auto mask = std::make_shared<Picture>(size);
    for (std::size_t row = 0; row < mask->rows(); ++row) {
        auto pixels = mask->pixels().subspan(row * mask->columns(), mask->columns());
        const bool isLikeAbove = row > 0 && random() % 3 != 0;
        bool isSolid = random() % 2 == 0;
        for (std::size_t column = 0; column < pixels.size(); ++column) {
            isSolid = isSolid != (random() % 9 == 0);
            pixels[column] = isLikeAbove ? mask->at(column, row - 1) : (isSolid ? 0x01000000U : 0U);
        }
    }
    return mask;
}

TEST_F(ShapedWindowTest, TheShapeOfAMaskIsThatOfItsPixels)
{
    const QRect inside(0, 0, 400, 300);
    const PixelSize sizes[] = {{400, 300}, {90, 33}, {1, 1}, {430, 310}};
    unsigned seed = 1;
    for (const PixelSize& size : sizes) {
        const PicturePtr mask = maskOfRuns(size, seed++);
        form_->translucency({255, std::nullopt, mask});
        const QRegion expected = solidOf(*mask, inside);
        if (!expected.isEmpty()) {
            EXPECT_TRUE(shapeIs(expected)) << size.width << "x" << size.height;
        }
    }
}

TEST_F(ShapedWindowTest, AFinerMaskIsScaledToTheWindow)
{
    const auto mask = std::make_shared<Picture>(PixelSize{400, 300}, 2);
    std::ranges::fill(mask->pixels().subspan(0, 800 * 40), 0xFF000000U);
    form_->translucency({255, std::nullopt, mask});
    EXPECT_TRUE(shapeIs(QRect(0, 0, 400, 20)));
}

TEST(WindowShape, APictureIsHardenedWhereTheDesktopKnowsNoSoftEdges)
{
    Picture picture({4, 1});
    const std::uint32_t soft[] = {0x00000000, 0x7F7F0000, 0x80800000, 0xFF112233};
    std::ranges::copy(soft, picture.pixels().begin());
    const QImage hard = hardened(picture);
    EXPECT_EQ(qAlpha(hard.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(hard.pixel(1, 0)), 0);
    EXPECT_EQ(hard.pixel(2, 0), 0xFFFF0000U);
    EXPECT_EQ(hard.pixel(3, 0), 0xFF112233U);
}

TEST_F(FormWindowTest, AFormMovedToTheCornerStandsThere)
{
    const auto form = makeForm();
    form->Show();
    widgetOf(*form).move(300, 200);
    EXPECT_TRUE(eventually([&] { return form->Left() == 4500; }));
    form->Move(0, 0);
    EXPECT_TRUE(eventually([&] { return widgetOf(*form).pos() == QPoint(0, 0); }));
    EXPECT_EQ(form->Left(), 0);
}

TEST_F(FormWindowTest, AMaximizedFormFillsItsScreenWhateverItsBorder)
{
    for (const BorderStyle border :
         {BorderStyle::None, BorderStyle::FixedSingle, BorderStyle::Sizable, BorderStyle::FixedDialog}) {
        const auto form = makeForm();
        form->BorderStyle(border);
        form->WindowState(phial::WindowState::Maximized);
        form->Show();
        const QWidget& window = widgetOf(*form);
        EXPECT_TRUE(eventually([&] { return form->innerSize().width >= 700; })) << window.width();
        form->WindowState(phial::WindowState::Normal);
        EXPECT_TRUE(eventually([&] {
            return form->innerSize() == PixelSize{400, 300};
        })) << form->innerSize().width;
        const bool fixed = border != BorderStyle::Sizable;
        EXPECT_EQ(window.maximumSize() == QSize(400, 300), fixed);
        form->WindowState(phial::WindowState::Maximized);
        EXPECT_TRUE(eventually([&] { return form->innerSize().width >= 700; })) << "and again";
        form->innerSize({200, 100});
        EXPECT_TRUE(eventually([&] { return form->innerSize().width >= 700; })) << "it stays that large";
    }
}

TEST_F(FormWindowTest, AnotherBorderLeavesTheWindowOpen)
{
    const auto form = makeForm();
    form->Show();
    for (const BorderStyle border : {BorderStyle::FixedDialog, BorderStyle::None, BorderStyle::Sizable}) {
        form->BorderStyle(border);
        EXPECT_TRUE(widgetOf(*form).isVisible());
        EXPECT_EQ(widgetOf(*form).windowFlags().testFlag(Qt::FramelessWindowHint),
                  border == BorderStyle::None);
        EXPECT_EQ(widgetOf(*form).maximumSize() == QSize(400, 300), border != BorderStyle::Sizable);
    }
}

TEST_F(FormWindowTest, TheScreensAreThoseOfTheDesktop)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const PixelRectangle first = visualHost().screen().first();
    EXPECT_EQ(QRectF(first.left, first.top, first.width, first.height), QRectF(screen));
}

TEST_F(FormWindowTest, PicturesOfAFormHaveTheirScale)
{
    const auto form = makeForm();
    form->BackColor(RGB(10, 20, 30));
    form->Show();
    const PicturePtr once = grabForm(*form, 1);
    const PicturePtr twice = grabForm(*form, 2);
    EXPECT_EQ(once->columns(), 400U);
    EXPECT_EQ(twice->columns(), 800U);
    EXPECT_EQ(twice->size(), once->size());
    EXPECT_EQ(twice->at(700, 500), 0xFF0A141EU);
}

} // namespace
