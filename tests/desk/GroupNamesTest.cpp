#include "desk/GroupNames.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "desk/OlderNotation.h"
#include "desk/frm_ToolGroupNames.h"
#include "headless/FixedTextMetrics.h"
#include "headless/Hand.h"
#include "headless/RecordingBackend.h"
#include "support/AppSession.h"
#include "support/HeadlessSession.h"
#include "visual/VisualHost.h"

#include <cstdio>
#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

class GroupNamesSheet : public AppSession
{
protected:
    GroupNamesSheet() { LNG()->CURRENT(ID_Language_German); }
    ~GroupNamesSheet() override { sheet.form().discard(); }

    String name(std::int32_t row) { return sheet.form().control<Label>(u"Gruppe", row)->Caption(); }

    frm_ToolGroupNames sheet;
};

TEST_F(GroupNamesSheet, HasTheLinesOfThePrintInItsOrder)
{
    sheet.form().Show();
    EXPECT_EQ(groupNames().size(), 49U);
    EXPECT_EQ(name(0), u" Ammonium-");
    EXPECT_EQ(name(16), u" -hexacynoferrat") << "with its missing letter";
    EXPECT_EQ(name(32), u" Methan ");
    EXPECT_EQ(name(42), u" Methan ") << "twice";
    EXPECT_EQ(name(48), u" Oxonium");
    EXPECT_EQ(groupNames()[14].formula, u"Cr@2|O@7|^7-|") << "with its charge";
    EXPECT_FALSE(sheet.form().find(u"Gruppe", 49));
}

TEST_F(GroupNamesSheet, SpeaksEnglish)
{
    sheet.form().Show();
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(name(33), u" Hydrochloric acid ");
}

TEST_F(GroupNamesSheet, EachFormulaIsDrawnAndSpoken)
{
    sheet.form().Show();
    for (std::int32_t row = 0; row < 49; ++row) {
        const auto box = sheet.form().control<PictureBox>(u"Formel", row);
        EXPECT_NE(outside.visual().drawing(*box).find("text"), std::string::npos) << row;
        EXPECT_NE(box->frame().AccessibleName(), u"") << row;
    }
    EXPECT_NE(sheet.form().control<PictureBox>(u"Formel", 28)->frame().AccessibleName().find(u"Sulfat"),
              String::npos);
}

TEST_F(GroupNamesSheet, OkClosesIt)
{
    sheet.form().Show();
    headless::clickButton(*sheet.form().control<Control>(u"bar_Buttons"), u"DIALOG.OK();");
    outside.runPending();
    EXPECT_FALSE(sheet.form().isLoaded());
}

class OlderNotation : public HeadlessSession
{
};

TEST_F(OlderNotation, MarksShiftAndAreNotDrawn)
{
    const auto backend = std::make_shared<headless::RecordingBackend>(
        PixelSize{200, 40}, std::make_shared<headless::FixedTextMetrics>());
    DrawDevice device(backend);
    device.ScaleMode(ScaleUnit::Pixels);
    const double height = device.TextHeight(u"G");
    const double base = (40 - height) / 2;
    backend->forget();
    drawOlderNotation(device, 40, u"N@4|^+|H");
    std::vector<double> tops;
    std::vector<double> lefts;
    std::string signs;
    for (const std::string& line : backend->lines()) {
        double left = 0;
        double top = 0;
        char sign = 0;
        if (std::sscanf(line.c_str(), "text %lf,%lf \"%c", &left, &top, &sign) == 3) {
            lefts.push_back(left);
            tops.push_back(top);
            signs += sign;
        }
    }
    EXPECT_EQ(signs, "N4+H");
    const double width = device.TextWidth(u"N");
    EXPECT_THAT(lefts, ::testing::ElementsAre(0, width, 2 * width, 3 * width));
    EXPECT_THAT(tops, ::testing::Pointwise(::testing::DoubleNear(0.01),
                                           {base, base + height / 2, base - height / 2, base}));
}

TEST_F(OlderNotation, ReadsAsAFormula)
{
    EXPECT_EQ(termOfOlderNotation(u"NH@4|^+|"), u"NH4^+");
    EXPECT_EQ(termOfOlderNotation(u"Fe(CN)@6|^3-|"), u"Fe(CN)6^3-");
    EXPECT_EQ(termOfOlderNotation(u"HCl in H@2|O"), u"HCl in H2O");
}

} // namespace

} // namespace phial::test
