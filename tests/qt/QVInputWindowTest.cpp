#include "DesktopRun.h"
#include "dialogs/ctl_QVInput.h"
#include "visual/TextBox.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>

using namespace phial;
using namespace phial::qt;

namespace
{

/// A field for a number in a real window, pressed and typed into.
class QVInputWindow : public DesktopRun
{
protected:
    QVInputWindow()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 200});
        control_ = form_->add<ctl_QVInput>(u"inp_Mass");
        control_->Move(10, 10, 200, 40);
        control_->MODE(ID_InputMode_Double);
        control_->DIGITS(2);
        other_ = form_->add<TextBox>(u"txt_Other");
        other_->Move(10, 60, 200, 40);
    }
    ~QVInputWindow() override { form_->discard(); }

    void show()
    {
        form_->Show();
        other_->SetFocus();
        EXPECT_TRUE(eventually([this] { return lineOf(*other_).hasFocus(); }));
    }
    static QLineEdit& lineOf(const TextBox& box) { return *widgetOf(box).findChild<QLineEdit*>(); }
    QLineEdit& line() { return lineOf(control_->input()); }
    QString spoken() { return QAccessible::queryAccessibleInterface(&line())->text(QAccessible::Name); }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_QVInput> control_;
    std::shared_ptr<TextBox> other_;
};

TEST_F(QVInputWindow, APressSelectsItsNumberAndTypingReplacesIt)
{
    show();
    QTest::mouseClick(&line(), Qt::LeftButton, {}, {20, 10});
    EXPECT_TRUE(line().hasFocus());
    EXPECT_EQ(line().selectedText(), "0,00");
    QTest::keyClicks(&line(), "18.015");
    QTest::mouseClick(&lineOf(*other_), Qt::LeftButton);
    EXPECT_EQ(line().text(), "18,02");
    EXPECT_EQ(control_->VALUE(), Variant(18.02));
}

TEST_F(QVInputWindow, ItsFieldFillsItWhateverTheZoomRounds)
{
    show();
    for (const double zoom : {0.75, 0.93, 1.0, 1.37}) {
        form_->Zoom(zoom);
        for (int left = 10; left < 20; ++left) {
            control_->Move(left, left, 44, 47);
            EXPECT_EQ(widgetOf(control_->input()).geometry(), widgetOf(*control_).rect())
                << zoom << " at " << left;
        }
    }
}

TEST_F(QVInputWindow, TheTabKeySelectsItsNumberToo)
{
    show();
    QTest::keyClick(&lineOf(*other_), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(eventually([this] { return line().hasFocus(); }));
    EXPECT_EQ(line().selectedText(), "0,00");
    QTest::keyClicks(&line(), "7");
    QTest::keyClick(&line(), Qt::Key_Return);
    EXPECT_EQ(line().text(), "7,00");
}

TEST_F(QVInputWindow, ItFillsTheControlAtEachSize)
{
    show();
    control_->Move(10, 10, 120, 30);
    EXPECT_EQ(line().mapTo(&widgetOf(*control_), QPoint()), QPoint(0, 0));
    EXPECT_EQ(line().size(), QSize(120, 30));
}

TEST_F(QVInputWindow, AScreenReaderSaysTheNameOrElseTheTitle)
{
    show();
    control_->TEXT(u"Masse in g");
    EXPECT_EQ(spoken(), "Masse in g");
    control_->frame().AccessibleName(u"Molare Masse");
    EXPECT_EQ(spoken(), "Molare Masse");
    control_->input().frame().AccessibleName(u"Feld");
    EXPECT_EQ(spoken(), "Feld");
    control_->input().frame().AccessibleName({});
    control_->frame().AccessibleName({});
    EXPECT_EQ(spoken(), "Masse in g");
}

} // namespace
