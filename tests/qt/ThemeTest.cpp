#include "DesktopSession.h"
#include "core/Palette.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/DesktopLook.h"
#include "qt/desktop/ShotBook.h"
#include "visual/ListView.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

#include <QLineEdit>
#include <QTreeWidget>

using namespace phial;
using namespace phial::qt;

namespace
{

/// A window of 200 by 100 pixels with a card, a button and fields.
class ThemeTest : public DesktopSession
{
protected:
    ThemeTest()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize({200, 100});
        form->BackColor(Palette::Ground);
        card->Move(10, 10, 40, 40);
        card->BackColor(Palette::AccentSoft);
        card->BorderColor(Palette::AccentSoft);
        fixed->Move(60, 10, 40, 40);
        fixed->BackColor(RGB(200, 30, 30));
        fixed->BorderColor(RGB(200, 30, 30));
        button->Move(110, 10, 80, 40);
        field->Move(10, 60, 80, 30);
        tinted->Move(100, 60, 80, 30);
        tinted->BackColor(RGB(204, 225, 240));
        form->Show();
    }

    Colour at(std::size_t x, std::size_t y)
    {
        const std::uint32_t bits = grabForm(*form, 1)->at(x, y);
        return RGB(static_cast<int>((bits >> 16U) & 0xFFU), static_cast<int>((bits >> 8U) & 0xFFU),
                   static_cast<int>(bits & 0xFFU));
    }

    QLineEdit& editorOf(const TextBox& box) { return *qobject_cast<QLineEdit*>(widgetOf(box).focusProxy()); }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_Pannel> card = form->add<ctl_Pannel>(u"pan_Card");
    std::shared_ptr<ctl_Pannel> fixed = form->add<ctl_Pannel>(u"pan_Fixed");
    std::shared_ptr<ctl_Button> button = form->add<ctl_Button>(u"but_Go");
    std::shared_ptr<TextBox> field = form->add<TextBox>(u"txt_Field");
    std::shared_ptr<TextBox> tinted = form->add<TextBox>(u"txt_Tinted");
};

TEST_F(ThemeTest, AnotherSetRepaintsWhatIsOpenWithTheSameWidgets)
{
    const QWidget* const widget = &widgetOf(*button);
    EXPECT_EQ(at(5, 5), RGB(0xF6, 0xF9, 0xFC));
    EXPECT_EQ(at(30, 30), RGB(0xE1, 0xEF, 0xFA));
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_EQ(at(5, 5), RGB(0x0F, 0x1C, 0x29));
    EXPECT_EQ(at(30, 30), RGB(0x15, 0x39, 0x5A));
    EXPECT_EQ(at(120, 30), RGB(0x18, 0x29, 0x38)) << "the button";
    coreTheme().SetColours(ColourSet::HighContrast);
    EXPECT_EQ(at(5, 5), RGB(0, 0, 0));
    EXPECT_EQ(&widgetOf(*button), widget);
}

TEST_F(ThemeTest, FixedColoursStay)
{
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_EQ(at(80, 30), RGB(200, 30, 30));
}

TEST_F(ThemeTest, FieldsHaveTheInkThatCanBeReadOnTheirGround)
{
    const auto ink = [this](const TextBox& box) { return editorOf(box).palette().color(QPalette::Text); };
    const auto ground = [this](const TextBox& box) { return editorOf(box).palette().color(QPalette::Base); };
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_EQ(ground(*field), toQColor(Palette::Surface));
    EXPECT_EQ(ink(*field), toQColor(Palette::Ink));
    EXPECT_EQ(ground(*tinted), QColor(204, 225, 240)) << "a colour of its own";
    EXPECT_LT(ink(*tinted).lightness(), 60);
    coreTheme().SetColours(ColourSet::Light);
    EXPECT_EQ(ground(*field), QColor(Qt::white));
}

TEST_F(ThemeTest, RowsWithAColourOfTheirOwnFollowAndKeepTheChoice)
{
    const auto list = form->add<ListView>(u"lst_Rows");
    list->COLUMNHEADERS()->Add(u"a", 100);
    list->ITEMS()->Add(u"1");
    list->ITEMS()->Add(u"2");
    list->ITEMS()->Item(2)->ForeColor(Palette::Failure);
    list->ListIndex(2);
    const auto& rows = *qobject_cast<QTreeWidget*>(&widgetOf(*list));
    EXPECT_EQ(rows.topLevelItem(1)->foreground(0).color(), QColor(0xB0, 0x20, 0x20));
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_EQ(rows.topLevelItem(1)->foreground(0).color(), QColor(0xFF, 0x9C, 0x96));
    EXPECT_EQ(list->ListIndex(), 2);
}

TEST_F(ThemeTest, AWindowThatOpensLaterIsInTheSetToo)
{
    coreTheme().SetColours(ColourSet::Dark);
    const auto later = std::make_shared<Form>(u"frm_Later");
    later->BackColor(Palette::Ground);
    later->Show();
    EXPECT_EQ(fromQColor(QColor(grabForm(*later, 1)->at(5, 5))), RGB(0x0F, 0x1C, 0x29));
    later->discard();
}

QPalette windows(const QColor& ground, const QColor& text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

TEST(DesktopLookTest, ThePaletteTellsTheSet)
{
    EXPECT_EQ(colourSetOf(windows(QColor(0xEF, 0xEF, 0xEF), Qt::black)), ColourSet::Light);
    EXPECT_EQ(colourSetOf(windows(QColor(0xFF, 0xFF, 0xFF), QColor(0x33, 0x33, 0x33))), ColourSet::Light);
    EXPECT_EQ(colourSetOf(windows(QColor(0x2A, 0x2E, 0x32), QColor(0xFC, 0xFC, 0xFC))), ColourSet::Dark);
    EXPECT_EQ(colourSetOf(windows(Qt::black, QColor(0x99, 0x99, 0x99))), ColourSet::Dark);
    EXPECT_EQ(colourSetOf(windows(Qt::black, Qt::white)), ColourSet::HighContrast);
    EXPECT_EQ(colourSetOf(windows(Qt::black, Qt::yellow)), ColourSet::HighContrast);
    EXPECT_EQ(colourSetOf(windows(Qt::white, Qt::black)), ColourSet::HighContrast);
}

using DesktopChoice = DesktopSession;

TEST_F(DesktopChoice, IsFollowedWhenItChanges)
{
    QPalette desktop = windows(QColor(0xEF, 0xEF, 0xEF), Qt::black);
    const DesktopLook look([&] { return desktop; });
    EXPECT_EQ(coreTheme().Colours(), ColourSet::Light);
    desktop = windows(QColor(0x20, 0x20, 0x20), Qt::white);
    QEvent changed(QEvent::ThemeChange);
    QWidget window;
    QApplication::sendEvent(&window, &changed);
    EXPECT_TRUE(eventually([] { return coreTheme().Colours() == ColourSet::Dark; }));
}

/// The program asks by changing its palette for a moment, which must not make it ask again.
TEST_F(ThemeTest, TheDesktopIsNotAskedAgainAndAgain)
{
    coreTheme().SetColours(ColourSet::Dark);
    int asked = 0;
    const DesktopLook look([&] {
        ++asked;
        return askDesktop();
    });
    for (int turn = 0; turn < 20; ++turn) {
        QApplication::processEvents();
    }
    EXPECT_LE(asked, 2);
    coreTheme().SetColours(std::nullopt);
}

TEST_F(ThemeTest, TheProgramsOwnPaletteIsNotTakenForTheDesktops)
{
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_EQ(colourSetOf(QApplication::palette()), ColourSet::Dark);
    EXPECT_EQ(colourSetOf(askDesktop()), ColourSet::Light);
    EXPECT_EQ(colourSetOf(QApplication::palette()), ColourSet::Dark) << "is back";
    coreTheme().SetColours(std::nullopt);
    EXPECT_EQ(coreTheme().Colours(), ColourSet::Light);
}

} // namespace
