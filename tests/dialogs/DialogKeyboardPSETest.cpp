#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "chem/cls_DataElement.h"
#include "chem/cls_DataElements.h"
#include "core/NativePath.h"
#include "dialogs/PeriodicKeyLayout.h"
#include "dialogs/TermKeyboardRun.h"
#include "dialogs/frm_DialogKeyboardPSE.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/ctl_PSE.h"
#include "support/Places.h"
#include "visual/Label.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <gmock/gmock-more-matchers.h>
#include <map>
#include <set>

namespace phial::test
{

namespace
{

namespace table_keys = term_test_keys;

class DialogKeyboardPSE : public TermKeyboardRun<frm_DialogKeyboardPSE>
{
protected:
    DialogKeyboardPSE() { QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\"); }

    std::shared_ptr<ctl_PSE> table() { return get<ctl_PSE>(u"ctl_PSE"); }
    void tapElement(StringView symbol)
    {
        const auto element = table()->Elements()->ITEM(String(symbol), false);
        ASSERT_TRUE(element);
        const auto parts = table()->parts();
        const auto part = std::ranges::find_if(parts, [&](const NamedPart& each) {
            return each.name.find(u", " + String(symbol) + u",") != String::npos;
        });
        ASSERT_NE(part, parts.end());
        const PixelRectangle area = part->area;
        touch.press(1, *table(), {area.left + area.width / 2, area.top + area.height / 2});
        touch.release(1);
        outside.runPending();
    }
    void holdElement(StringView symbol)
    {
        const auto parts = table()->parts();
        const auto part = std::ranges::find_if(parts, [&](const NamedPart& each) {
            return each.name.find(u", " + String(symbol) + u",") != String::npos;
        });
        ASSERT_NE(part, parts.end());
        touch.press(1, *table(), {part->area.left + 5, part->area.top + 5});
        outside.advance(0.6);
    }
    void tapElements(std::initializer_list<StringView> symbols)
    {
        for (const StringView symbol : symbols) {
            tapElement(symbol);
        }
    }
};

// Elements.

TEST_F(DialogKeyboardPSE, AnElementTappedTwiceIsCountedUp)
{
    openWith(u"");
    tapElement(u"O");
    EXPECT_EQ(field()->Term(), u"O");
    tapElement(u"O");
    EXPECT_EQ(field()->Term(), u"O2");
    tapElement(u"O");
    EXPECT_EQ(field()->Term(), u"O3");
}

TEST_F(DialogKeyboardPSE, AnotherElementIsTyped)
{
    openWith(u"");
    tapElements({u"H", u"H", u"O"});
    EXPECT_EQ(field()->Term(), u"H2O");
    tapElement(u"H");
    EXPECT_EQ(field()->Term(), u"H2OH");
}

TEST_F(DialogKeyboardPSE, ASymbolIsNoPartOfAnother)
{
    openWith(u"Cl2");
    tapElement(u"C");
    EXPECT_EQ(field()->Term(), u"Cl2C");
}

TEST_F(DialogKeyboardPSE, CountsOnWhatItBeginsWith)
{
    openWith(u"C12");
    tapElement(u"C");
    EXPECT_EQ(field()->Term(), u"C13");
    EXPECT_EQ(field()->CARET(), 3);
    tapElement(u"H");
    EXPECT_EQ(field()->Term(), u"C13H");
}

TEST_F(DialogKeyboardPSE, CountingUpAndClearingAreUndone)
{
    openWith(u"");
    tapElements({u"C", u"C", u"C"});
    EXPECT_EQ(field()->Term(), u"C3");
    type(u"^z");
    EXPECT_EQ(field()->Term(), u"C2");
    type(u"^z");
    EXPECT_EQ(field()->Term(), u"C");
    type(u"^y");
    EXPECT_EQ(field()->Term(), u"C2");
    EXPECT_EQ(field()->CARET(), 2);
    tap(table_keys::Clear);
    EXPECT_EQ(field()->Term(), u"");
    type(u"^z");
    EXPECT_EQ(field()->Term(), u"C2");
}

TEST_F(DialogKeyboardPSE, TheCaretStaysAtTheEndAndNowhereElse)
{
    openWith(u"C9");
    tapElement(u"C");
    EXPECT_EQ(field()->CARET(), 3) << "behind what has grown";
    field()->CARET(1);
    tapElement(u"C");
    EXPECT_EQ(field()->Term(), u"C11");
    EXPECT_EQ(field()->CARET(), 1);
    tapElement(u"N");
    EXPECT_EQ(field()->Term(), u"CN11") << "at the caret";
}

TEST_F(DialogKeyboardPSE, ElementsDoNothingToALockedTerm)
{
    const auto target = termTarget(u"H");
    target->LOCKED(true);
    open(target);
    tapElements({u"H", u"O"});
    EXPECT_EQ(field()->Term(), u"H");
}

TEST_F(DialogKeyboardPSE, ElementsDoNothingBehindOk)
{
    const auto target = termTarget(u"H");
    open(target);
    tap(table_keys::Ok);
    tapElements({u"H", u"O"});
    expectConfirmed();
    EXPECT_EQ(target->Term(), u"H");
}

TEST_F(DialogKeyboardPSE, ABubbleTellsOfElements)
{
    openWith(u"");
    EXPECT_EQ(table()->BUBBLE(), get<ctl_Bubble>(u"ctl_Bubble1"));
    EXPECT_FALSE(get<ctl_Bubble>(u"ctl_Bubble1")->Visible());
}

TEST_F(DialogKeyboardPSE, HasAllElements)
{
    openWith(u"");
    EXPECT_EQ(table()->Elements()->COUNT(), 118);
    EXPECT_TRUE(table()->FIXEDSIZE());
    frm_DialogKeyboardPSE fresh; // at scale 1
    const auto own = fresh.form().control<ctl_PSE>(u"ctl_PSE");
    EXPECT_EQ(own->frame().pixelRectangle().right() * TwipsPerPixel, 8400);
}

TEST_F(DialogKeyboardPSE, WithoutTheElementFileItSaysSoAndHasNoTable)
{
    QVAPP()->URL()->ROOT(u"Z:\\none\\");
    outside.dialogs().expect(headless::Box::Error, u"Die Elemente-Datei des PSE wurde nicht gefunden: "
                                                   u"Z:\\none\\resources\\data\\elements2.dat");
    openWith(u"H");
    EXPECT_FALSE(table()->Visible());
    tapAll({table_keys::Two, table_keys::Ok});
    expectConfirmed();
}

TEST_F(DialogKeyboardPSE, OffersFormulasBelowItsKeys)
{
    openWithOffers(u"");
    EXPECT_TRUE(offers()->frame().Visible());
    tapElements({u"H", u"H", u"S"});
    ASSERT_EQ(offers()->count(), 3U);
    tapOffer(1);
    EXPECT_EQ(field()->Term(), u"H2SO4");
    const PixelRectangle area = offers()->frame().pixelRectangle();
    EXPECT_FALSE(area.meets(table()->frame().pixelRectangle()));
    for (const KeyDesign& key : periodic_key_layout::Keys) {
        PixelRectangle keyArea = keyPad()->areaOf(key.index);
        keyArea.top += keyPad()->frame().pixelRectangle().top;
        keyArea.left += keyPad()->frame().pixelRectangle().left;
        EXPECT_FALSE(area.meets(keyArea)) << key.index;
    }
    EXPECT_LE(area.bottom(), keyboard.form().innerSize().height);
}

// Its keys.

TEST_F(DialogKeyboardPSE, HasItsKeysInSixRows)
{
    using Row = std::vector<std::pair<double, std::int32_t>>;
    std::map<double, Row> rows;
    for (const KeyDesign& key : periodic_key_layout::Keys) {
        rows[key.top].emplace_back(key.left, key.index);
        EXPECT_EQ(key.width, 720);
        EXPECT_EQ(key.height, key.index == table_keys::Ok ? 1440 : 720);
    }
    const std::map<double, Row> expected{
        {660, {{8640, 0}, {9360, 25}, {10080, 13}, {10800, 24}}},
        {1560, {{9300, 7}, {10020, 8}, {10740, 9}, {11520, 12}}},
        {2280, {{9300, 4}, {10020, 5}, {10740, 6}, {11520, 59}}},
        {3000, {{9300, 1}, {10020, 2}, {10740, 3}, {11520, 11}}},
        {3720, {{9300, 49}, {10020, 10}, {10740, 47}}},
        {4680, {{10020, 56}}},
    };
    EXPECT_EQ(rows, expected);
}

TEST_F(DialogKeyboardPSE, NothingLiesOnAnotherPart)
{
    std::vector<PixelRectangle> areas{field()->frame().pixelRectangle(), table()->frame().pixelRectangle(),
                                      get<ctl_Button>(u"but_Close")->frame().pixelRectangle(),
                                      get<ctl_Label>(u"lab_Title")->frame().pixelRectangle()};
    const PixelRectangle keys = keyPad()->frame().pixelRectangle();
    for (const KeyDesign& key : periodic_key_layout::Keys) {
        PixelRectangle area = keyPad()->areaOf(key.index);
        area.left += keys.left;
        area.top += keys.top;
        areas.push_back(area);
    }
    const PixelSize size = keyboard.form().innerSize();
    for (std::size_t at = 0; at < areas.size(); ++at) {
        EXPECT_LE(areas[at].right(), size.width);
        EXPECT_LE(areas[at].bottom(), size.height);
        for (std::size_t other = 0; other < at; ++other) {
            EXPECT_FALSE(areas[at].meets(areas[other])) << at << " and " << other;
        }
    }
}

TEST_F(DialogKeyboardPSE, TypesDigitsAndSignsBetweenElements)
{
    openWith(u"");
    tapElement(u"Ca");
    tap(table_keys::Open);
    tapElements({u"O", u"H"});
    tapAll({table_keys::Close, table_keys::Two, table_keys::Star, table_keys::Plus});
    EXPECT_EQ(field()->Term(), u"Ca(OH)2*+");
}

TEST_F(DialogKeyboardPSE, RightMovesTheCaret)
{
    openWith(u"H2O");
    field()->CARET(0);
    tapAll({table_keys::Right, table_keys::Two});
    EXPECT_EQ(field()->Term(), u"H22O");
}

TEST_F(DialogKeyboardPSE, EachKeyHasANameOfItsOwnInWords)
{
    openWith(u"");
    for (const enm_LanguageC language : {ID_Language_German, ID_Language_English}) {
        LNG()->CURRENT(language);
        std::set<String> names;
        for (const NamedPart& part : keyPad()->parts()) {
            EXPECT_TRUE(part.name.size() > 1 || isDigit(part.name.front())) << toUtf8(part.name);
            EXPECT_TRUE(names.insert(part.name).second) << toUtf8(part.name);
        }
    }
}

TEST_F(DialogKeyboardPSE, FieldAndTableAreReachedByTabAndTapsLeaveTheFocusInTheField)
{
    openWith(u"");
    EXPECT_THAT(keyboard.form().tabOrder(), ::testing::ElementsAre(field(), table()));
    EXPECT_EQ(keyboard.form().ActiveControl(), field());
    tapElements({u"H", u"H"});
    EXPECT_EQ(keyboard.form().ActiveControl(), field());
}

TEST_F(DialogKeyboardPSE, ArrowsGoThroughTheTableAndReturnTypesElements)
{
    openWith(u"2");
    table()->frame().SetFocus();
    type(u"{home}"); // the row of hydrogen
    type(u"{enter}{enter}");
    EXPECT_EQ(field()->Term(), u"2H2");
    type(u"{down} ");
    EXPECT_EQ(field()->Term(), u"2H2Li");
    EXPECT_EQ(keyboard.form().ActiveControl(), table()) << "for the next element";
    EXPECT_TRUE(isOpen());
    EXPECT_FALSE(keyboard.Accepted());
    tapElement(u"O");
    EXPECT_EQ(field()->Term(), u"2H2LiO");
    EXPECT_EQ(keyboard.form().ActiveControl(), field());
}

TEST_F(DialogKeyboardPSE, AHeldElementOffersItsIons)
{
    openWith(u"");
    tapElement(u"Fe");
    holdElement(u"Fe");
    ASSERT_TRUE(keyPad()->showsVariants());
    EXPECT_EQ(keyPad()->frame().announcement(), u"Eisen(II)-Ion");
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(field()->Term(), u"Fe") << "holding types nothing";
    type(u"{right}{enter}");
    EXPECT_EQ(field()->Term(), u"Fe^3+") << "of the iron that stands there";
    field()->edit(5, 0, u" + ");
    holdElement(u"S");
    touch.release(1);
    type(u"{enter}");
    EXPECT_EQ(field()->Term(), u"Fe^3+ + S^2-");
}

TEST_F(DialogKeyboardPSE, AnElementWithoutIonsOffersNone)
{
    openWith(u"");
    holdElement(u"He");
    EXPECT_FALSE(keyPad()->showsVariants());
    touch.release(1);
    field()->LOCKED(true);
    holdElement(u"Fe");
    EXPECT_FALSE(keyPad()->showsVariants());
    touch.release(1);
}

TEST_F(DialogKeyboardPSE, AHeldReturnOffersTheIonsOfTheCursorsElement)
{
    openWith(u"");
    table()->frame().SetFocus();
    type(u"{home}{enter}");
    KeyEvent repeated{static_cast<std::int32_t>(Key::Return)};
    repeated.isRepeat = true;
    for (int times = 0; times < 3; ++times) {
        KeyEvent event = repeated;
        keyboard.form().inputKeyDown(event);
    }
    ASSERT_TRUE(keyPad()->showsVariants()) << "which repeating does not choose";
    type(u"{enter}");
    EXPECT_EQ(field()->Term(), u"H^+");
}

TEST_F(DialogKeyboardPSE, AsksInBothLanguages)
{
    open(nullptr);
    EXPECT_EQ(keyboard.form().Caption(), u"Periodensystem als Tastatur");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(keyboard.form().Caption(), u"Periodic keyboard");
    EXPECT_EQ(field()->frame().AccessibleName(), u"Please enter the value:");
}

// Targets and ends.

TEST_F(DialogKeyboardPSE, WritesTermsAndTextsBack)
{
    const auto box = target<TextBox>();
    box->Text(u"H");
    open(box);
    tapElement(u"H");
    tap(table_keys::Ok);
    EXPECT_EQ(box->Text(), u"H2");
    expectConfirmed();
}

TEST_F(DialogKeyboardPSE, ReturnAndLeavingItConfirm)
{
    const auto target = termTarget(u"O");
    open(target);
    tapElement(u"O");
    type(u"{enter}");
    EXPECT_EQ(target->Term(), u"O2");
    expectConfirmed();
    frm_DialogKeyboardPSE left;
    left.TargetControl(target);
    left.form().Show();
    left.form().control<ctl_Keys>(u"ctl_Keys")->CLICK.raise(table_keys::Three);
    outside.runPending();
    left.form().inputDeactivate();
    EXPECT_TRUE(left.Accepted());
    EXPECT_EQ(target->Term(), u"O23");
    outside.advance(0.11);
}

TEST_F(DialogKeyboardPSE, EscapeGivesUp)
{
    const auto target = termTarget(u"O");
    open(target);
    tapElement(u"O");
    type(u"{esc}");
    outside.advance(0.11);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(keyboard.Accepted());
    EXPECT_EQ(target->Term(), u"O");
}

TEST_F(DialogKeyboardPSE, CellsGrowToNineMillimetres)
{
    outside.visual().millimetresPerPixel(0.25);
    openWith(u"");
    const double cell = table()->frame().pixelRectangle().width / 19;
    EXPECT_NEAR(cell * 0.25, 9, 0.05);
    EXPECT_DOUBLE_EQ(get<ctl_Bubble>(u"ctl_Bubble1")->TEXTFONT()->Size() / 9,
                     table()->frame().pixelRectangle().width / 536);
}

TEST_F(DialogKeyboardPSE, StaysWithinASmallScreen)
{
    outside.display().resize(1024, 600);
    openWith(u"");
    EXPECT_LE(keyboard.form().innerSize().width, 1024);
    EXPECT_LE(keyboard.form().innerSize().height, 600);
}

} // namespace

} // namespace phial::test
