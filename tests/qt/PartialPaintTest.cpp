#include "DesktopSession.h"
#include "app/Session.h"
#include "core/NativePath.h"
#include "dialogs/TextLayout.h"
#include "dialogs/ctl_Keys.h"
#include "periodic/ctl_PSE.h"
#include "support/Places.h"

#include <QScreen>
#include <QTest>
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

    QImage onScreen()
    {
        QTest::qWait(1); // the focus ring follows what has been painted
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

TEST_F(PartialPaint, ATableUnderThePointerAndItsDraggedTile)
{
    constexpr double Cell = 32;
    const auto table = form_->add<ctl_PSE>(u"frm_P");
    table->LOAD(systemPath(test::sourceFolder() / "resources" / "data" / "elements2.dat"));
    table->MODE(enm_PSEMode::ID_PSEMode_Place);
    table->DRAGADD(u"Cl");
    form_->Show();
    const QImage before = onScreen();
    Control& hand = *table;
    for (const double column : {1.5, 2.5, 2.6, 13.5}) {
        hand.pointerMove({PointerButton::None, 0, column * Cell, 3.5 * Cell});
        expectWhole(*table);
    }
    const PixelPoint tile{3.5 * Cell, 9.5 * Cell};
    hand.pointerDown({PointerButton::Left, 0, tile.x, tile.y});
    expectWhole(*table);
    for (int step = 1; step < 12; ++step) {
        hand.pointerMove({PointerButton::Left, 0, tile.x + 19.7 * step, tile.y - 21.3 * step});
        expectWhole(*table);
    }
    EXPECT_NE(onScreen(), before);
}

TEST_F(PartialPaint, KeysThatArePressedAndLetGo)
{
    constexpr std::int32_t Enter = 49;
    const auto keys = form_->add<ctl_Keys>(u"ctl_Keys");
    keys->layout(text_layout::Layout);
    keys->Move(0, 0, 640, 250);
    form_->Show();
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
