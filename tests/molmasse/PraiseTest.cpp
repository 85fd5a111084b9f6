#include "molmasse/Praise.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace molmasse
{
namespace
{

using phial::String;
using phial::StringView;

bool praises(StringView formula, StringView german)
{
    const auto texts = masteredIn(formula);
    return std::ranges::any_of(texts, [&](StringView text) { return text.starts_with(german); });
}

TEST(PraiseTest, TellsWhatWasMastered)
{
    EXPECT_TRUE(praises(u"Ca(OH)2", u"Klammer richtig mitgezählt."));
    EXPECT_FALSE(praises(u"CaO", u"Klammer"));
    EXPECT_TRUE(praises(u"CH3(CH2)7CHCH(CH2)7COOH", u"Jede Klammer richtig mitgezählt."));
    EXPECT_TRUE(praises(u"Fe4(Fe(CN)6)3", u"Klammer in der Klammer"));
    EXPECT_TRUE(praises(u"CuSO4*5H2O", u"Auch hinter dem Punkt"));
    EXPECT_TRUE(praises(u"CuSO4*5H2O", u"Bei so vielen Atomen"));
    EXPECT_FALSE(praises(u"CuSO4*2H2O", u"Bei so vielen Atomen")) << "12 atoms";
    EXPECT_TRUE(praises(u"C12H22O11", u"Bei so vielen Atomen"));
    EXPECT_TRUE(praises(u"C8H18", u"Auch die großen Zahlen"));
    EXPECT_FALSE(praises(u"CH4", u"Auch die großen Zahlen"));
    EXPECT_TRUE(praises(u"CH3COOH", u"Gleiche Atome"));
    EXPECT_TRUE(praises(u"NaHCO3", u"Alle Elemente"));
    EXPECT_TRUE(praises(u"O2", u"Die kleine Zahl"));
    EXPECT_TRUE(praises(u"NaCl", u"Die Atommassen richtig zusammengezählt."));
    EXPECT_FALSE(praises(u"NaCl", u"Alle kleinen Zahlen"));
}

TEST(PraiseTest, IsOneShortLineInBothLanguages)
{
    for (const StringView formula : {u"Fe", u"O2", u"NaCl", u"C12H22O11", u"CH3COOH", u"Ca(OH)2",
                                     u"(NH4)2HPO4", u"Fe4(Fe(CN)6)3", u"CuSO4*5H2O"}) {
        const auto texts = masteredIn(formula);
        ASSERT_FALSE(texts.empty());
        for (const StringView text : texts) {
            const auto middle = text.find(u'|');
            ASSERT_NE(middle, StringView::npos);
            EXPECT_LE(middle, 50U);
            EXPECT_LE(text.size() - middle, 50U);
        }
    }
}

} // namespace
} // namespace molmasse
