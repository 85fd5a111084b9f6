#include "puzzle/Neighbours.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "support/AppSession.h"
#include "support/EnglishElementNames.h"
#include "support/Places.h"

#include <gmock/gmock-matchers.h>
#include <set>

namespace puzzle
{
namespace
{

using phial::String;
using phial::StringView;

class Neighbours : public phial::test::AppSession
{
protected:
    Neighbours() { phial::LNG()->CURRENT(phial::ID_Language_German); }

    const ElementFacts& element(StringView symbol) { return *book.find(symbol); }
    String trend(StringView symbol) { return trendOf(element(symbol), book); }
    std::vector<const ElementFacts*> elements(std::initializer_list<StringView> symbols)
    {
        std::vector<const ElementFacts*> found;
        for (const StringView symbol : symbols) {
            found.push_back(&element(symbol));
        }
        return found;
    }
    StringView praise(std::initializer_list<StringView> symbols)
    {
        return masteredIn(elements(symbols)).front();
    }
    static std::size_t lines(const String& text) { return phial::split(text, u"<br>").size(); }

    ElementBook book{phial::systemPath(phial::test::treeFolder()) + u"\\Resources\\data\\elements2.dat"};
};

TEST_F(Neighbours, KnowTheOuterElectronsOfTheMainGroups)
{
    EXPECT_EQ(element(u"H").outerElectrons(), 1);
    EXPECT_EQ(element(u"He").outerElectrons(), 2);
    EXPECT_EQ(element(u"Ca").outerElectrons(), 2);
    EXPECT_EQ(element(u"Al").outerElectrons(), 3);
    EXPECT_EQ(element(u"Cl").outerElectrons(), 7);
    EXPECT_EQ(element(u"Rn").outerElectrons(), 8);
    EXPECT_EQ(element(u"Fe").outerElectrons(), 0);
    EXPECT_EQ(element(u"U").outerElectrons(), 0);
}

// Period and group of the file and the places of the drawn table are two sources.
TEST_F(Neighbours, StandWhereTheElementFileHasThem)
{
    ASSERT_EQ(book.all().size(), 118U);
    EXPECT_EQ(element(u"Ce").period(), 6);
    EXPECT_EQ(element(u"U").period(), 7);
    EXPECT_EQ(element(u"Ce").group(), 0);
    EXPECT_EQ(element(u"La").group(), 3);
    EXPECT_EQ(element(u"Cl").group(), 17);
    EXPECT_EQ(element(u"Cl").period(), 3);
}

TEST_F(Neighbours, AboveTellOfGroupAndShells)
{
    EXPECT_EQ(trend(u"Cl"), u"Cl: steht unter Fluor, also auch 7 Außenelektronen, aber eine Schale mehr.");
    EXPECT_EQ(trend(u"Na"), u"Na: steht unter Lithium, also auch ein Außenelektron, aber eine Schale mehr.");
    EXPECT_EQ(trend(u"Ag"), u"Ag: steht unter Kupfer und ist ihm ähnlich.");
    EXPECT_EQ(trend(u"U"), u"U: steht unter Neodym und ist ihm ähnlich.");
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(trend(u"Cl"), u"Cl: stands below fluorine, so 7 outer electrons too, but one shell more.");
}

// Neon has eight outer electrons, helium above it two.
TEST_F(Neighbours, BeforeTellWhereThereIsNoneAlikeAbove)
{
    EXPECT_EQ(trend(u"Ne"), u"Ne: folgt auf Fluor, mit einem Proton mehr.");
    EXPECT_EQ(trend(u"B"), u"B: folgt auf Beryllium, mit einem Proton mehr.");
    EXPECT_EQ(trend(u"Fe"), u"Fe: folgt auf Mangan, mit einem Proton mehr.");
    EXPECT_EQ(trend(u"Gd"), u"Gd: folgt auf Europium, mit einem Proton mehr.");
    EXPECT_EQ(trend(u"H"), u"H: hat die leichtesten Atome von allen.");
}

TEST_F(Neighbours, TellThePlaceByPeriodAndGroup)
{
    EXPECT_EQ(placeText(element(u"Cl")), u"Cl\u00A0(17): Periode\u00A03, Hauptgruppe\u00A0VII");
    EXPECT_EQ(placeText(element(u"Fe")), u"Fe\u00A0(26): Periode\u00A04, Nebengruppe\u00A0VIIIa");
    EXPECT_EQ(placeText(element(u"Cu")), u"Cu\u00A0(29): Periode\u00A04, Nebengruppe\u00A0Ia");
    EXPECT_EQ(placeText(element(u"U")), u"U\u00A0(92): Periode\u00A07, Actinide");
    EXPECT_EQ(placeText(element(u"Lu")), u"Lu\u00A0(71): Periode\u00A06, Lanthanide");
    EXPECT_EQ(placeText(element(u"H")), u"H\u00A0(1): Periode\u00A01, Hauptgruppe\u00A0I");
}

TEST_F(Neighbours, ArePraisedForWhatWasHard)
{
    EXPECT_EQ(praise({u"I", u"Te"}), u"Von der Masse nicht täuschen lassen.|Not misled by the mass.");
    EXPECT_EQ(praise({u"Ce", u"U"}), u"Auch unter der Tabelle findest du dich zurecht.|You find your way "
                                     u"below the table too.");
    EXPECT_EQ(praise({u"F", u"Cl"}), u"Die Gruppe von oben nach unten richtig.|The group is right from top "
                                     u"to bottom.");
    EXPECT_EQ(praise({u"B", u"C"}), u"Die Periode der Reihe nach richtig.|The period is right from left to "
                                    u"right.");
    EXPECT_EQ(praise({u"Fe", u"Ag"}), u"Auch in den Nebengruppen sicher.|Sure of the subgroups too.");
    EXPECT_EQ(praise({u"Pb", u"Na"}), u"Auch das Symbol erkannt, das anders klingt als der Name.|The symbol "
                                      u"that sounds unlike the name was known as well.");
    EXPECT_EQ(praise({u"Na", u"K"}), u"Die Gruppe von oben nach unten richtig.|The group is right from top "
                                     u"to bottom.");
    EXPECT_EQ(masteredIn(elements({u"Ce", u"Eu"})).at(1),
              u"Die Periode der Reihe nach richtig.|The period is right from left to right.")
        << "there are no groups below the table";
    EXPECT_EQ(praise({u"Mg"}), u"Jedes Kärtchen am richtigen Platz.|Each tile in its right place.");
    EXPECT_EQ(praise({u"Na"}), u"Jedes Kärtchen am richtigen Platz.|Each tile in its right place.");
}

// Sodium and tungsten sound unlike their symbols, Natrium and Wolfram do not.
TEST_F(Neighbours, ArePraisedForASymbolByTheNameThatThePupilReads)
{
    constexpr StringView Unlike = u"Auch das Symbol erkannt, das anders klingt als der Name.|The symbol "
                                  u"that sounds unlike the name was known as well.";
    EXPECT_NE(praise({u"Na"}), Unlike);
    EXPECT_EQ(praise({u"N"}), Unlike) << "Stickstoff";
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(praise({u"Na"}), Unlike);
    EXPECT_NE(praise({u"N"}), Unlike);
}

TEST_F(Neighbours, HaveTheirEnglishNames)
{
    const auto names = phial::split(phial::test::EnglishElementNames, u" ");
    ASSERT_EQ(names.size(), book.all().size());
    for (std::size_t at = 0; at < names.size(); ++at) {
        EXPECT_EQ(book.all()[at].english, names[at]);
    }
}

TEST_F(Neighbours, HaveALineEachWhileThereIsRoom)
{
    EXPECT_EQ(lines(trendsText(elements({u"C", u"N", u"O"}), book)), 3U);
    EXPECT_EQ(trendsText(elements({u"C", u"N", u"O", u"F"}), book),
              trendsText(elements({u"C", u"N", u"O"}), book));
    EXPECT_EQ(lines(placesText(elements({u"C", u"N", u"O"}))), 3U);
    EXPECT_EQ(
        placesText(elements({u"C", u"N", u"O", u"F"})),
        u"C\u00A0(6): Periode\u00A02, Hauptgruppe\u00A0IV; N\u00A0(7): Periode\u00A02, Hauptgruppe\u00A0V; "
        u"O\u00A0(8): Periode\u00A02, Hauptgruppe\u00A0VI; F\u00A0(9): Periode\u00A02, Hauptgruppe\u00A0VII");
}

} // namespace
} // namespace puzzle
