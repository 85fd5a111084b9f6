#include "DesktopRun.h"
#include "core/CoreTheme.h"
#include "dialogs/ctl_MiniHTMLInput.h"
#include "qt/desktop/ControlWidget.h"
#include "support/Contrast.h"
#include "visual/TextBox.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace phial;
using namespace phial::qt;

namespace
{

/// A field for texts with markup in a real window, pressed and typed into.
class MiniHTMLWindow : public DesktopRun
{
protected:
    MiniHTMLWindow()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({500, 300});
        control_ = form_->add<ctl_MiniHTMLInput>(u"txt_Input");
        control_->Move(10, 10, 440, 240);
    }
    ~MiniHTMLWindow() override { form_->discard(); }

    void show(bool several)
    {
        control_->MULTILINE(several);
        form_->Show();
        control_->SetFocus();
        QWidget* editor = widgetOf(control_->input()).focusProxy();
        EXPECT_TRUE(eventually([=] { return editor->hasFocus(); }));
    }
    template <typename Widget>
    Widget& field()
    {
        return *widgetOf(control_->input()).findChild<Widget*>();
    }
    /// The buttons of the bar in use.
    QList<QPushButton*> buttons()
    {
        QList<QPushButton*> seen;
        for (QPushButton* button : widgetOf(*control_).findChildren<QPushButton*>()) {
            if (button->isVisible()) {
                seen.append(button);
            }
        }
        return seen;
    }
    /// Of the sign to the button's ground, without the text.
    static double contrastOfSign(QPushButton& button)
    {
        constexpr int Edge = 8;
        const QString text = button.text();
        button.setText({});
        const QImage picture = button.grab().toImage();
        button.setText(text);
        const auto luminanceAt = [&](int x, int y) {
            const QColor colour = picture.pixelColor(x, y);
            return test::luminance(RGB(colour.red(), colour.green(), colour.blue())) + 0.05;
        };
        const double ground = luminanceAt(Edge, picture.height() / 2);
        double best = 1;
        for (int y = Edge; y < picture.height() - Edge; ++y) {
            for (int x = Edge; x < picture.width() - Edge; ++x) {
                const double sign = luminanceAt(x, y);
                best = std::max({best, sign / ground, ground / sign});
            }
        }
        return best;
    }
    void press(int number) { QTest::mouseClick(buttons().at(number), Qt::LeftButton); }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_MiniHTMLInput> control_;
};

TEST_F(MiniHTMLWindow, AFormatIsPressedUndoneAndPressedAgain)
{
    show(false);
    auto& line = field<QLineEdit>();
    QTest::keyClicks(&line, "H2O");
    line.setSelection(1, 1);
    press(2);
    EXPECT_EQ(line.text(), "H<sub>2</sub>O");
    EXPECT_EQ(line.selectedText(), "2");
    EXPECT_TRUE(line.hasFocus());
    QTest::keyClick(&line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line.text(), "H2O");
    EXPECT_EQ(control_->TEXT(), u"H2O");
    line.setSelection(1, 1);
    press(2);
    press(2);
    EXPECT_EQ(line.text(), "H2O");
    EXPECT_EQ(line.selectedText(), "2");
}

TEST_F(MiniHTMLWindow, SoItIsInSeveralLines)
{
    show(true);
    auto& page = field<QPlainTextEdit>();
    QTest::keyClicks(&page, "eins");
    QTest::keyClick(&page, Qt::Key_Return);
    QTest::keyClicks(&page, "zwei");
    QTest::keyClick(&page, Qt::Key_Home, Qt::ShiftModifier);
    QTest::keyClick(&page, Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(page.toPlainText(), "eins\n<b>zwei</b>");
    EXPECT_EQ(page.textCursor().selectedText(), "zwei");
    EXPECT_EQ(control_->TEXT(), u"eins\r\n<b>zwei</b>");
    QTest::keyClick(&page, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(page.toPlainText(), "eins\nzwei");
    QTest::keyClick(&page, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(page.toPlainText(), "eins\n<b>zwei</b>");
}

TEST_F(MiniHTMLWindow, TheFormatsHavePicturesNamesAndRoom)
{
    for (const bool several : {false, true}) {
        show(several);
        ASSERT_EQ(buttons().size(), 4);
        QCoreApplication::sendPostedEvents(); // the layout's
        for (const QPushButton* button : buttons()) {
            EXPECT_FALSE(button->icon().isNull());
            EXPECT_FALSE(button->text().isEmpty());
            EXPECT_GE(button->height(), 36);
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
        }
    }
}

TEST_F(MiniHTMLWindow, TheirSignsAreSeenOnWhateverGround)
{
    coreTheme().SetColour(ThemeSlot::Frame, Palette::Header);
    coreTheme().SetColour(ThemeSlot::FrameText, Palette::OnHeader);
    show(false);
    for (const ColourSet set : {ColourSet::Light, ColourSet::Dark, ColourSet::HighContrast}) {
        coreTheme().SetColours(set);
        QCoreApplication::sendPostedEvents();
        for (const bool enabled : {true, false}) {
            control_->Enabled(enabled);
            for (QPushButton* button : buttons()) {
                for (const bool down : {false, true}) {
                    button->setDown(down);
                    EXPECT_GE(contrastOfSign(*button), 3)
                        << button->text().toStdString() << static_cast<int>(set) << enabled << down;
                }
                button->setDown(false);
            }
        }
    }
}

TEST_F(MiniHTMLWindow, ALayoutThatGivesItAnotherHeightIsNoQuarrel)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const auto control = makeControl<ctl_MiniHTMLInput>();
    layout->addWidget(new ControlWidget(control));
    window.resize(400, 300);
    window.show();
    for (const int height : {300, 180, 260}) {
        window.resize(400, height);
        for (int turn = 0; turn < 10; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        const PixelRectangle field = control->input().frame().pixelRectangle();
        EXPECT_GE(field.height, 40);
        EXPECT_LE(field.bottom(), control->frame().pixelRectangle().height);
    }
}

TEST_F(MiniHTMLWindow, TheFormatsAreReachedByTabAndPressedByTheSpaceBar)
{
    show(false);
    auto& line = field<QLineEdit>();
    QTest::keyClicks(&line, "x");
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Tab);
    EXPECT_TRUE(buttons().at(0)->hasFocus()) << QApplication::focusWidget();
    QTest::keyClick(buttons().at(0), Qt::Key_Space);
    EXPECT_EQ(line.text(), "<b>x</b>");
    EXPECT_TRUE(line.hasFocus());
}

} // namespace
