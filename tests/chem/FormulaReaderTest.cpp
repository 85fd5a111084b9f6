#include "chem/formula/FormulaReader.h"

#include "chem/ElementSymbols.h"
#include "chem/formula/FormulaComposition.h"
#include "chem/formula/FormulaNames.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaText.h"
#include "support/CaseTable.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace phial
{
namespace
{

constexpr auto FaultNames = std::to_array<StringView>(
    {u"Empty", u"UnknownSymbol", u"SmallLetter", u"CapitalPair", u"ZeroCount", u"NumberTooLarge",
     u"NumberMisplaced", u"EmptyBracket", u"BracketNotClosed", u"BracketNotOpened", u"BracketsMixed",
     u"ChargeAmbiguous", u"ChargeWithoutSign", u"ChargeNotAtEnd", u"SignUnexpected", u"SpeciesMissing",
     u"NotOneFormula", u"ArrowMissing", u"ArrowTwice"});

String decimal(std::uint32_t number)
{
    return fromUtf8(std::to_string(number));
}

/// As the table writes it.
String written(const FormulaRefusal& refusal)
{
    return u"! " + String(FaultNames[static_cast<std::size_t>(refusal.fault)]) + u" " +
           decimal(refusal.span.start) + u"+" + decimal(refusal.span.length);
}
String written(const std::vector<String>& suggestions)
{
    String all;
    for (const String& each : suggestions) {
        all += (all.empty() ? u"" : u", ") + each;
    }
    return all.empty() ? String(u"-") : all;
}

using Printing = String (*)(const FormulaTree&);
constexpr auto Printings =
    std::to_array<Printing>({plainFormula, unicodeFormula, formulaMarkup, formulaTerm});

class FormulaReaderTest : public testing::TestWithParam<test::CaseRow>
{
};

TEST_P(FormulaReaderTest, ReadsWhatTheTableSays)
{
    const String& text = GetParam().columns[0];
    const bool isEquation = GetParam().name.starts_with("Equation");
    const auto read = isEquation ? readEquation : readFormula;
    const FormulaReading reading = read(text);
    if (!reading) {
        EXPECT_EQ(written(*reading.refusal), GetParam().columns[1]) << toUtf8(text);
        EXPECT_EQ(written(reading.refusal->suggestions), GetParam().columns[2]);
        EXPECT_FALSE(germanSentence(*reading.refusal).empty());
        EXPECT_NE(germanSentence(*reading.refusal), englishSentence(*reading.refusal));
        return;
    }
    EXPECT_EQ(plainFormula(reading.tree), GetParam().columns[1]);
    for (const Printing print : Printings) {
        const FormulaReading again = read(print(reading.tree));
        EXPECT_TRUE(again && again.tree == reading.tree) << toUtf8(print(reading.tree));
    }
    if (!isEquation && GetParam().columns[2] != u"-") {
        EXPECT_EQ(hillFormula(reading.tree, reading.tree.species.front()), GetParam().columns[2]);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, FormulaReaderTest,
                         testing::ValuesIn(test::readCaseTable("formula_reading.txt", 3)),
                         test::caseName<testing::TestParamInfo<test::CaseRow>>);

TEST(FormulaReading, TellsWhereEachAtomAndGroupStood)
{
    const FormulaReading reading = readFormula(u"Ca(OH)₂");
    ASSERT_TRUE(reading);
    const auto span = [&](std::size_t item) {
        return std::pair(reading.tree.items[item].span.start, reading.tree.items[item].span.length);
    };
    EXPECT_EQ(span(0), std::pair(0U, 2U));
    EXPECT_EQ(span(1), std::pair(2U, 5U)) << "with its number";
    EXPECT_EQ(span(2), std::pair(3U, 1U));
    EXPECT_EQ(reading.tree.items[1].end, 4U);
}

TEST(FormulaReading, PlacesAreThoseOfTheTextAsItWasWritten)
{
    const FormulaReading reading = readFormula(u"H<sub>2</sub>Ox");
    ASSERT_FALSE(reading);
    EXPECT_EQ(reading.refusal->span.start, 14U);
}

TEST(FormulaReading, TellsBracketsApart)
{
    EXPECT_TRUE(readFormula(u"(CN)2").tree == readFormula(u"(CN)₂").tree);
    EXPECT_FALSE(readFormula(u"(CN)2").tree == readFormula(u"[CN]2").tree);
}

TEST(FormulaPrinting, ATermSaysWhereIndicesAndChargesBegin)
{
    const auto term = [](StringView text) { return formulaTerm(readFormula(text).tree); };
    EXPECT_EQ(term(u"Fe(OH)2^+"), u"Fe(OH)#2^+") << "else the charge would go back over the bracket";
    EXPECT_EQ(term(u"[Fe(CN)6]^4-"), u"[Fe(CN)#6]^4-");
    EXPECT_EQ(term(u"Fe(OH)2"), u"Fe(OH)2");
    EXPECT_EQ(term(u"{FeO}2^2-"), u"{FeO}2^2-");
    EXPECT_EQ(term(u"^14C"), u"^1#^4C") << "each digit is raised by itself";
    EXPECT_EQ(term(u"C^18O"), u"C#^1#^8O") << "and stands behind the carbon";
}

TEST(FormulaReading, ReadsDeepBracketsWithoutRecursion)
{
    constexpr std::size_t Depth = 100'000;
    const String text = String(Depth, u'(') + u"H" + String(Depth, u')');
    const FormulaReading reading = readFormula(text);
    ASSERT_TRUE(reading);
    EXPECT_EQ(plainFormula(reading.tree), text);
    EXPECT_EQ(hillFormula(reading.tree, reading.tree.species.front()), u"H");
}

TEST(FormulaReading, RefusesNumbersThatGrowTooLargeInBrackets)
{
    const FormulaReading reading = readFormula(u"(((H999999999)999999999)999999999)");
    ASSERT_TRUE(reading);
    EXPECT_EQ(atomsIn(reading.tree, reading.tree.species.front()), std::nullopt);
    EXPECT_EQ(hillFormula(reading.tree, reading.tree.species.front()), u"");
}

TEST(FormulaReading, SaysWhatIsWrongAndWhatCouldBeMeant)
{
    const auto german = [](StringView text) { return germanSentence(*readFormula(text).refusal); };
    EXPECT_EQ(german(u"CU"), u"CU gibt es nicht. Cu ist Kupfer.");
    EXPECT_EQ(englishSentence(*readFormula(u"CU").refusal), u"There is no CU. Cu is copper.");
    EXPECT_EQ(german(u"h2o"),
              u"Ein Elementsymbol beginnt mit einem großen Buchstaben, nicht mit „h“. Meinst du H2O?");
    EXPECT_EQ(german(u"SO42-"),
              u"„42-“ lässt sich auf zwei Arten lesen. Schreibe ^ vor die Ladung. Meinst du "
              u"SO4^2- oder SO42^-?");
}

/// Random trees, by their texts.
class RandomFormula
{
public:
    explicit RandomFormula(unsigned seed) : random_(seed) {}

    String equation()
    {
        String text = species();
        for (int more = below(3); more > 0; --more) {
            text += u" + " + species();
        }
        text += below(2) == 0 ? u" -> " : u" <-> ";
        return text + species();
    }

private:
    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
    String number(int most) { return decimal(static_cast<std::uint32_t>(2 + below(most - 1))); }

    String atoms(int depth)
    {
        constexpr auto Symbols =
            std::to_array<StringView>({u"H", u"C", u"O", u"Na", u"Cl", u"Fe", u"D", u"S"});
        String text;
        for (int count = 1 + below(3); count > 0; --count) {
            if (depth < 3 && below(4) == 0) {
                const auto bracket = static_cast<std::size_t>(below(3));
                text += StringView(u"([{")[bracket] + atoms(depth + 1) + StringView(u")]}")[bracket];
            } else {
                text += below(8) == 0 ? u"^" + number(90) + u"C"
                                      : String(Symbols[static_cast<std::size_t>(below(8))]);
            }
            text += below(2) == 0 ? number(30) : String();
        }
        return text;
    }

    String species()
    {
        String text = below(3) == 0 ? number(12) : below(8) == 0 ? u"1/" + number(5) + u" " : String();
        text += atoms(0);
        for (int parts = below(5) == 0 ? 1 : 0; parts > 0; --parts) {
            text += u"*" + (below(2) == 0 ? number(12) : String()) + atoms(0);
        }
        if (below(3) == 0) {
            text += u"^" + (below(2) == 0 ? number(9) : String()) + (below(2) == 0 ? u"+" : u"-");
        }
        text += below(9) == 0 ? u"*" : u"";
        constexpr auto States = std::to_array<StringView>({u"(s)", u"(l)", u"(g)", u"(aq)"});
        return below(4) == 0 ? text + String(States[static_cast<std::size_t>(below(4))]) : text;
    }

    std::mt19937 random_;
};

TEST(FormulaReading, EveryFormOfEveryTreeReadsAsTheSameTree)
{
    constexpr int Trees = 3000;
    RandomFormula random(7);
    for (int tree = 0; tree < Trees; ++tree) {
        const String text = random.equation();
        const FormulaReading reading = readEquation(text);
        ASSERT_TRUE(reading) << toUtf8(text) << toUtf8(englishSentence(*reading.refusal));
        for (const Printing print : Printings) {
            const String form = print(reading.tree);
            const FormulaReading again = readEquation(form);
            ASSERT_TRUE(again) << toUtf8(text) << " as " << toUtf8(form);
            ASSERT_TRUE(again.tree == reading.tree) << toUtf8(text) << " as " << toUtf8(form);
        }
    }
}

TEST(FormulaNames, StandUnderTheFormulaAsItIsPrinted)
{
    for (const auto* formula : {u"SO4^2-", u"H2O", u"CuSO4*5H2O", u"CH3COO^-", u"(NH4)2SO4"}) {
        const FormulaReading reading = readFormula(formula);
        ASSERT_TRUE(reading);
        EXPECT_NE(nameOfFormula(plainFormula(reading.tree)), nullptr) << toUtf8(formula);
    }
    EXPECT_EQ(nameOfFormula(u"SO4^2-")->german, u"Sulfat");
    EXPECT_EQ(nameOfFormula(u"XeF6"), nullptr);
}

TEST(FormulaNames, AreFormulasThatReadEachWithNamesOfItsOwn)
{
    std::set<StringView> german;
    std::set<StringView> english;
    EXPECT_LE(formulaNames().size(), 300U);
    for (const FormulaName& each : formulaNames()) {
        SCOPED_TRACE(toUtf8(each.formula));
        const FormulaReading reading = readFormula(each.formula);
        ASSERT_TRUE(reading);
        EXPECT_EQ(plainFormula(reading.tree), each.formula);
        EXPECT_TRUE(german.insert(each.german).second) << toUtf8(each.german);
        EXPECT_TRUE(english.insert(each.english).second) << toUtf8(each.english);
    }
}

/// A salt's cation and anion by the names of both: the charges of so many of them make nothing.
TEST(FormulaNames, TheChargesOfSaltsAreBalanced)
{
    const auto chargeOf = [](StringView formula) { return readFormula(formula).tree.species.front().charge; };
    int salts = 0;
    for (const FormulaName& salt : formulaNames()) {
        for (const FormulaName& cation : formulaNames()) {
            const StringView metal = cation.formula.substr(0, cation.formula.find(u'^'));
            if (chargeOf(cation.formula) <= 0 || atomicNumberOf(metal) == 0 ||
                !salt.formula.starts_with(metal)) {
                continue;
            }
            for (const FormulaName& anion : formulaNames()) {
                const StringView rest = anion.formula.substr(0, anion.formula.find(u'^'));
                if (chargeOf(anion.formula) >= 0 || salt.formula != String(metal).append(rest)) {
                    continue;
                }
                // One of each, such as CaCO3; several cations of a metal are told apart by its number.
                const bool isBalanced = std::ranges::any_of(formulaNames(), [&](const FormulaName& other) {
                    return other.formula.starts_with(String(metal) + u"^") &&
                           chargeOf(other.formula) + chargeOf(anion.formula) == 0;
                });
                EXPECT_TRUE(isBalanced) << toUtf8(salt.formula);
                ++salts;
            }
        }
    }
    EXPECT_GT(salts, 15);
}

} // namespace
} // namespace phial
