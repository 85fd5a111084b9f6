#include "app/cls_App.h"
#include "app/cls_AppTools.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/OxidationNumbers.h"
#include "core/NativePath.h"
#include "desk/AcidTable.h"
#include "desk/OxidationExamples.h"
#include "desk/frm_ToolOxValues.h"
#include "desk/frm_ToolPeriodensystem.h"
#include "desk/frm_ToolpHRules.h"
#include "headless/Hand.h"
#include "periodic/SheetMode.h"
#include "periodic/ctl_PSE.h"
#include "support/AppSession.h"
#include "support/Places.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <gtest/gtest.h>

namespace phial::test
{

namespace
{

class Sheets : public AppSession
{
protected:
    Sheets()
    {
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\");
    }

    cls_AppTools& tools() { return *QVAPP()->TOOLS(); }
    static void pressOk(Form& form)
    {
        headless::clickButton(*form.control<Control>(u"bar_Buttons"), u"DIALOG.OK();");
    }
    static bool isSeen(Form& form, StringView name) { return form.control<Control>(name)->Visible(); }
    std::shared_ptr<Form> periodicSheet() { return visualHost().forms().Item(u"frm_ToolPeriodensystem"); }
};

// Acids.

TEST_F(Sheets, TheTableOfAcidsHasItsLinesEndedByLf)
{
    const FontSpec font{.name = u"Tahoma", .size = 12};
    const String text = acidTable(u"Säure               Base           pKs", font);
    const auto lines = split(text, u"\n");
    ASSERT_EQ(lines.size(), 11U) << "the last line is ended, too";
    EXPECT_EQ(lines[0], u"Säure               Base           pKs");
    EXPECT_EQ(lines[10], u"");
    EXPECT_TRUE(lines[1].starts_with(u"HCl "));
    EXPECT_TRUE(lines[1].ends_with(u" -3.00"));
    EXPECT_TRUE(lines[6].starts_with(u"CO<sub>2</sub>*H<sub>2</sub>O "));
    EXPECT_NE(lines[6].find(u" HCO<sub>3</sub><sup>-</sup> "), String::npos);
    EXPECT_TRUE(lines[9].ends_with(u" 15.74"));
}

TEST_F(Sheets, ColumnsOfAcidsBeginBelowTheirHeads)
{
    const FontSpec font{.name = u"Tahoma", .size = 12};
    const String head = u"Säure               Base           pKs";
    const auto width = [&](StringView markup) {
        return MarkupLayout(String(markup) + u"|", font, visualHost().metrics()).size().width;
    };
    const double blank = width(u"x ") - width(u"x");
    const double baseAt = width(head.substr(0, head.find(u"Base")));
    const double pKsAt = width(head.substr(0, head.find(u"pKs")));
    const String text = acidTable(head, font);
    const auto lines = split(text, u"\n");
    for (std::size_t row = 1; row < 10; ++row) {
        const std::size_t at = lines[row].rfind(u' ') + 1;
        EXPECT_NEAR(width(lines[row].substr(0, at)), pKsAt, blank / 2 + 0.01) << toUtf8(lines[row]);
        const std::size_t base = lines[row].find_first_not_of(u' ', lines[row].find(u' '));
        EXPECT_NEAR(width(lines[row].substr(0, base)), baseAt, blank / 2 + 0.01) << toUtf8(lines[row]);
    }
}

TEST_F(Sheets, TheRulesOfPhAreModalAndClosedByOk)
{
    outside.visual().onModal(u"frm_ToolpHRules", [&](Form& form) {
        EXPECT_TRUE(
            form.control<ctl_Label>(u"ctl_Label1")->Caption().starts_with(u"Säure               Base"));
        LNG()->CURRENT(ID_Language_English);
        EXPECT_TRUE(form.control<ctl_Label>(u"ctl_Label1")->Caption().starts_with(u"Acid "));
        pressOk(form);
    });
    tools().pHRules();
}

// Oxidation numbers.

TEST_F(Sheets, EachExampleOfOxidationNumbersIsWhatTheRulesGive)
{
    for (const OxidationLine& line : oxidationLines()) {
        for (const OxidationExample& example : line.examples) {
            const FormulaReading reading = readFormula(example.formula);
            ASSERT_TRUE(reading) << toUtf8(example.formula);
            const auto found = oxidationNumbersOf(reading.tree, reading.tree.species.front());
            bool isThere = false;
            for (const OxidationNumber& number : found.numbers) {
                const SourceSpan span = reading.tree.items[number.item].span;
                const StringView symbol = example.formula.substr(span.start, example.symbol.size());
                if (symbol == example.symbol) {
                    isThere = true;
                    EXPECT_EQ(writtenOxidationNumber(number.number), example.number)
                        << toUtf8(example.formula);
                    EXPECT_EQ(number.rule, line.rule) << toUtf8(example.formula);
                }
            }
            EXPECT_TRUE(isThere) << toUtf8(example.formula);
        }
    }
}

TEST_F(Sheets, TheRulesForOxidationNumbersSpeakBothLanguages)
{
    outside.visual().onModal(u"frm_ToolOxValues", [&](Form& form) {
        EXPECT_EQ(form.control<ctl_Label>(u"lab_Rule", 0)->Caption(),
                  u"Elemente haben die Oxidationszahl 0.");
        EXPECT_EQ(form.control<ctl_Label>(u"lab_Example", 5)->Caption(),
                  u"H<sub>2</sub>O: H +I,   NH<sub>3</sub>: H +I");
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(form.control<ctl_Label>(u"lab_Rule", 9)->Caption(),
                  u"All oxidation numbers add up to the charge.");
        headless::strike(form, {.key = Key::Escape});
    });
    tools().OxValues();
}

TEST_F(Sheets, TheNamesOfGroupsAreModal)
{
    outside.visual().onModal(u"frm_ToolGroupNames", [&](Form& form) { pressOk(form); });
    tools().GROUPNAMES();
}

// The periodic table.

TEST_F(Sheets, ThePeriodicTableIsModelessAndThereOnce)
{
    tools().PERIODICSYSTEM();
    const auto sheet = periodicSheet();
    ASSERT_TRUE(sheet);
    EXPECT_FALSE(sheet->isModal());
    tools().PERIODICSYSTEM();
    EXPECT_EQ(periodicSheet(), sheet);
    pressOk(*sheet);
    outside.runPending();
    EXPECT_FALSE(periodicSheet());
    tools().PERIODICSYSTEM();
    EXPECT_TRUE(periodicSheet()) << "once more";
    periodicSheet()->Unload();
}

TEST_F(Sheets, OverAModalFormThePeriodicTableIsModalToo)
{
    outside.visual().onModal(u"frm_ToolOxValues", [&](Form& form) {
        bool wasModal = false;
        outside.visual().onModal(u"frm_ToolPeriodensystem", [&](Form& table) {
            wasModal = table.isModal();
            pressOk(table);
        });
        tools().PERIODICSYSTEM();
        EXPECT_TRUE(wasModal);
        pressOk(form);
    });
    tools().OxValues();
}

TEST_F(Sheets, AnOpenPeriodicTableBecomesModalOverAModalForm)
{
    tools().PERIODICSYSTEM();
    bool wasModal = false;
    outside.visual().onModal(u"frm_ToolOxValues", [&](Form& form) {
        outside.visual().onModal(u"frm_ToolPeriodensystem", [&](Form& table) {
            wasModal = table.isModal();
            tools().PERIODICSYSTEM();
            EXPECT_TRUE(table.Visible()) << "in front already";
            pressOk(table);
        });
        tools().PERIODICSYSTEM();
        pressOk(form);
    });
    tools().OxValues();
    EXPECT_TRUE(wasModal);
    tools().PERIODICSYSTEM();
    ASSERT_TRUE(periodicSheet());
    EXPECT_FALSE(periodicSheet()->isModal()) << "beside the other windows again";
    periodicSheet()->Unload();
}

TEST_F(Sheets, ButtonsSayWhatTheyShowNext)
{
    tools().PERIODICSYSTEM();
    Form& sheet = *periodicSheet();
    const auto change = sheet.control<ctl_Button>(u"but_Change");
    const auto names = sheet.control<ctl_Button>(u"but_NamSymb");
    EXPECT_TRUE(isSeen(sheet, u"frm_P2"));
    EXPECT_FALSE(isSeen(sheet, u"frm_P3"));
    EXPECT_FALSE(isSeen(sheet, u"frm_P1Holder"));
    EXPECT_EQ(names->Caption(), u"Namen");
    headless::click(*names);
    EXPECT_TRUE(isSeen(sheet, u"frm_P3"));
    EXPECT_FALSE(isSeen(sheet, u"frm_P2"));
    EXPECT_EQ(names->Caption(), u"Symbole");
    EXPECT_EQ(change->Caption(), u"Bild");
    headless::click(*change);
    EXPECT_TRUE(isSeen(sheet, u"frm_P1Holder"));
    EXPECT_FALSE(isSeen(sheet, u"frm_P3"));
    EXPECT_FALSE(names->Visible());
    EXPECT_EQ(change->Caption(), u"Tabelle");
    headless::click(*change);
    EXPECT_TRUE(isSeen(sheet, u"frm_P3")) << "the table that was seen last";
    EXPECT_TRUE(names->Visible());
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(names->Caption(), u"Symbols");
    headless::click(*names);
    EXPECT_TRUE(isSeen(sheet, u"frm_P2"));
    sheet.Unload();
}

TEST_F(Sheets, BothPeriodicTablesHaveTheirElements)
{
    tools().PERIODICSYSTEM();
    for (const StringView table : {u"frm_P2", u"frm_P3"}) {
        EXPECT_GT(periodicSheet()->control<ctl_PSE>(table)->parts().size(), 100U) << toUtf8(table);
    }
    periodicSheet()->Unload();
}

TEST_F(Sheets, NamesAreTheModeOnlyWhileTheirTableLoads)
{
    tools().PERIODICSYSTEM();
    EXPECT_EQ(SheetMode::current()->mode, u"");
    Form& sheet = *periodicSheet();
    EXPECT_TRUE(sheet.control<ctl_PSE>(u"frm_P2")->BUBBLE());
    const PixelRectangle holder = sheet.control<Control>(u"frm_P1Holder")->frame().pixelRectangle();
    EXPECT_EQ(sheet.control<Control>(u"frm_P2")->frame().pixelRectangle(), holder);
    EXPECT_EQ(sheet.control<Control>(u"frm_P3")->frame().pixelRectangle(), holder);
    const auto drawn = [&](StringView table) {
        return outside.visual().drawing(*sheet.control<Control>(table));
    };
    EXPECT_NE(drawn(u"frm_P2").find("\"Na\""), std::string::npos);
    EXPECT_EQ(drawn(u"frm_P2").find("Natrium"), std::string::npos);
    EXPECT_NE(drawn(u"frm_P3").find("Natrium"), std::string::npos);
    sheet.Unload();
}

TEST_F(Sheets, WithoutTheElementFileNothingOpens)
{
    QVAPP()->URL()->ROOT(path(u"nowhere\\"));
    outside.dialogs().expect(headless::Box::Error, u"Die Elemente-Datei des PSE wurde nicht gefunden: " +
                                                       path(u"nowhere\\resources\\data\\elements2.dat"));
    tools().PERIODICSYSTEM();
    EXPECT_FALSE(periodicSheet());
}

} // namespace

} // namespace phial::test
