#include "periodic/TableSpeech.h"

#include "PeriodicTableTest.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "support/EnglishElementNames.h"

namespace phial
{

namespace
{

/// What is said of each element in both languages.
class TableSpeech : public PeriodicTableTest
{
protected:
    TableSpeech() { load(); }

    static String massWith(char16_t sign, double mass)
    {
        Locale locale;
        locale.decimalSign = sign;
        return formatPattern(mass, u"#0.0", locale);
    }
    /// The part of that many protons in each language, and what the file tells of it.
    void expectNames(StringView german, StringView english, std::int32_t protons)
    {
        const auto element = table->Elements()->ITEM(protons);
        const auto part = static_cast<std::size_t>(protons - 1);
        const bool isGas = element->GAS();
        const bool isLiquid = element->LIQUID();
        const String facts = u", " + element->SYMBOL() + u", " + plainText(protons) + u", ";
        LNG()->CURRENT(ID_Language_German);
        EXPECT_EQ(table->parts()[part].name, String(german) + facts + massWith(u',', element->MOL()) +
                                                 u" Gramm pro Mol, " +
                                                 (isGas      ? u"Gas"
                                                  : isLiquid ? u"Flüssigkeit"
                                                             : u"Feststoff"));
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(table->parts()[part].name, String(english) + facts + massWith(u'.', element->MOL()) +
                                                 u" grams per mole, " +
                                                 (isGas      ? u"gas"
                                                  : isLiquid ? u"liquid"
                                                             : u"solid"));
    }
};

TEST_F(TableSpeech, NamesEachElementInBothLanguages)
{
    const auto names = split(test::EnglishElementNames, u" ");
    ASSERT_EQ(names.size(), 118U);
    for (std::int32_t protons = 1; protons <= 118; ++protons) {
        String english(names[static_cast<std::size_t>(protons - 1)]);
        english.front() = upperCase(english.front());
        expectNames(table->Elements()->ITEM(protons)->NAME(), english, protons);
    }
}

TEST_F(TableSpeech, TellsMassesAsTheLanguageWritesThem)
{
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(table->parts()[7].name, u"Oxygen, O, 8, 16.0 grams per mole, gas");
    EXPECT_EQ(table->parts()[79].name, u"Mercury, Hg, 80, 200.6 grams per mole, liquid");
    EXPECT_EQ(table->parts()[12].name, u"Aluminium, Al, 13, 27.0 grams per mole, solid");
}

TEST_F(TableSpeech, KeepsTheNamesThatAHostHasGivenItsElements)
{
    const auto own = std::make_shared<cls_DataElements>();
    own->CREATE(u"H", u"Protium", 1, 1);
    own->CREATE(u"D", u"Deuterium", 1, 2);
    own->CREATE(u"Li", u"Li-Ion*LITHIUM", 3, 6.9);
    table->Elements(own);
    LNG()->CURRENT(ID_Language_English);
    const auto parts = table->parts();
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_EQ(parts[0].name, u"Protium, H, 1, 1.0 grams per mole, gas");
    EXPECT_EQ(parts[1].name, u"Deuterium, D, 1, 2.0 grams per mole, solid");
    EXPECT_EQ(parts[2].name, u"Lithium, Li, 3, 6.9 grams per mole, solid");
}

} // namespace

} // namespace phial
