#include "DesktopSession.h"
#include "app/Session.h"
#include "core/NativePath.h"
#include "dialogs/TextLayout.h"
#include "dialogs/ctl_Keys.h"
#include "periodic/ctl_PSE.h"
#include "support/Places.h"
#include "visual/ctl_Button.h"

#include <QScreen>
#include <QWindow>

using namespace phial;
using namespace phial::qt;

namespace
{

/// Controls that tell which part of them they have drawn in: piece by piece the window comes to show what it
/// shows when all of it is painted.
class PartialPaint : public DesktopTest<Session>
{
protected:
    PartialPaint()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({640, 440});
    }
    ~PartialPaint() override { form_->discard(); }

    /// The focus is elsewhere: its ring would have what lies below painted again.
    void show()
    {
        const auto elsewhere = form_->add<ctl_Button>(u"but_Elsewhere");
        elsewhere->Move(0, 400, 100, 36);
        form_->Show();
        elsewhere->SetFocus();
    }
    QImage onScreen()
    {
        QApplication::processEvents();
        const QWidget& window = widgetOf(*form_);
        return window.screen()->grabWindow(window.winId()).toImage();
    }
    void expectWhole(const Control& control)
    {
        const QImage inPieces = onScreen();
        widgetOf(*form_).update();
        widgetOf(control).update();
        EXPECT_EQ(inPieces, onScreen());
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

constexpr double Cell = 32;

class PaintedTable : public PartialPaint
{
protected:
    PaintedTable()
    {
        table_->LOAD(systemPath(test::sourceFolder() / "resources" / "data" / "elements2.dat"));
    }

    std::shared_ptr<ctl_PSE> table_ = form_->add<ctl_PSE>(u"frm_P");
    Control& hand_ = *table_;
};

TEST_F(PaintedTable, UnderThePointer)
{
    show();
    const QImage before = onScreen();
    for (const double column : {1.5, 2.5, 2.6, 13.5}) {
        hand_.pointerMove({PointerButton::None, 0, column * Cell, 3.5 * Cell});
        EXPECT_NE(onScreen(), before);
        expectWhole(*table_);
    }
}

TEST_F(PaintedTable, BelowADraggedTile)
{
    table_->MODE(enm_PSEMode::ID_PSEMode_Place);
    table_->DRAGADD(u"Cl");
    show();
    const QImage before = onScreen();
    const PixelPoint tile{3.5 * Cell, 9.5 * Cell};
    hand_.pointerDown({PointerButton::Left, 0, tile.x, tile.y});
    expectWhole(*table_);
    for (int step = 1; step < 12; ++step) {
        hand_.pointerMove({PointerButton::Left, 0, tile.x + 19.7 * step, tile.y - 21.3 * step});
        EXPECT_NE(onScreen(), before);
        expectWhole(*table_);
    }
}

TEST_F(PartialPaint, KeysThatArePressedAndLetGo)
{
    constexpr std::int32_t Enter = 49;
    const auto keys = form_->add<ctl_Keys>(u"ctl_Keys");
    keys->layout(text_layout::Layout);
    keys->Move(0, 0, 640, 250);
    show();
    const QImage before = onScreen();
    Control& hand = *keys;
    for (const KeyDesign& key : text_layout::Keys) {
        const PixelRectangle area = keys->areaOf(key.index);
        const PointerEvent finger{PointerButton::Left, 0, area.left + area.width / 2,
                                  area.top + area.height / 4};
        hand.pointerDown(finger);
        expectWhole(*keys);
        if (key.index == Enter) {
            EXPECT_NE(onScreen(), before);
        }
        hand.pointerUp(finger);
        expectWhole(*keys);
    }
}

} // namespace
