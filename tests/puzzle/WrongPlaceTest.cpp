#include "puzzle/WrongPlace.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreNumbers.h"
#include "core/NativePath.h"
#include "support/AppSession.h"
#include "support/CaseTable.h"
#include "support/Places.h"

#include <gtest/gtest.h>

namespace puzzle
{
namespace
{

using phial::String;
using phial::StringView;

constexpr std::pair<PlaceSlip, StringView> SlipNames[] = {
    {PlaceSlip::MassOrder, u"MassOrder"},
    {PlaceSlip::OtherRowBelow, u"OtherRowBelow"},
    {PlaceSlip::BelongsBelow, u"BelongsBelow"},
    {PlaceSlip::BelongsAbove, u"BelongsAbove"},
    {PlaceSlip::SameGroup, u"SameGroup"},
    {PlaceSlip::SamePeriod, u"SamePeriod"},
    {PlaceSlip::SimilarSymbol, u"SimilarSymbol"},
    {PlaceSlip::NonMetal, u"NonMetal"},
    {PlaceSlip::Metal, u"Metal"},
    {PlaceSlip::SubGroup, u"SubGroup"},
    {PlaceSlip::MainGroup, u"MainGroup"},
    {PlaceSlip::Elsewhere, u"Elsewhere"},
};

// The columns of tests/vectors/places.txt behind the name.
struct PlaceCase : phial::test::CaseRow {
    int number(std::size_t column) const
    {
        return static_cast<int>(phial::CoreInvariant::Parse(columns[column]));
    }
    PlaceDiagnosis diagnosis() const
    {
        for (const auto& [slip, word] : SlipNames) {
            if (columns[2] == word) {
                return {slip, number(3), number(4)};
            }
        }
        ADD_FAILURE() << "no slip: " << phial::toUtf8(columns[2]);
        return {};
    }
};

std::vector<PlaceCase> placeCases()
{
    std::vector<PlaceCase> cases;
    for (phial::test::CaseRow& row : phial::test::readCaseTable("places.txt", 6)) {
        cases.push_back({std::move(row)});
    }
    return cases;
}

class WrongPlaces : public phial::test::AppSession
{
protected:
    WrongPlaces() { phial::LNG()->CURRENT(phial::ID_Language_German); }

    const ElementFacts& element(StringView symbol) { return *book.find(symbol); }
    String said(StringView symbol, StringView place)
    {
        return explained(slipOf(element(symbol), element(place)), element(symbol), element(place));
    }

    ElementBook book{phial::systemPath(phial::test::treeFolder()) + u"\\Resources\\data\\elements2.dat"};
};

class PlaceTable : public WrongPlaces, public testing::WithParamInterface<PlaceCase>
{
};

INSTANTIATE_TEST_SUITE_P(Vectors, PlaceTable, testing::ValuesIn(placeCases()),
                         phial::test::caseName<testing::TestParamInfo<PlaceCase>>);

TEST_P(PlaceTable, IsExplained)
{
    const PlaceCase& given = GetParam();
    ASSERT_TRUE(book.find(given.columns[0]) && book.find(given.columns[1]));
    EXPECT_EQ(slipOf(element(given.columns[0]), element(given.columns[1])), given.diagnosis());
    EXPECT_EQ(phial::toUtf8(said(given.columns[0], given.columns[1])), phial::toUtf8(given.columns[5]));
}

// Below the board a line has room for some 75 letters.
TEST_F(WrongPlaces, OfAllElementsAreToldInOneLineInBothLanguages)
{
    for (const auto language : {phial::ID_Language_German, phial::ID_Language_English}) {
        phial::LNG()->CURRENT(language);
        for (const ElementFacts& one : book.all()) {
            for (const ElementFacts& other : book.all()) {
                const PlaceDiagnosis diagnosis = slipOf(one, other);
                const String text = explained(diagnosis, one, other);
                ASSERT_TRUE(text.find(one.symbol) != String::npos && text.size() <= 80)
                    << phial::toUtf8(text);
                ASSERT_TRUE(diagnosis.slip != PlaceSlip::SamePeriod || diagnosis.right != 0 ||
                            one.symbol == other.symbol)
                    << phial::toUtf8(text);
            }
        }
    }
}

TEST_F(WrongPlaces, AreToldInEnglishToo)
{
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(said(u"Br", u"Cl"), u"Br: same group, but one period lower.");
    EXPECT_EQ(said(u"I", u"F"), u"I: same group, but 3 periods lower.");
    EXPECT_EQ(said(u"Mg", u"S"), u"Mg: same period, but 4 groups further left.");
    EXPECT_EQ(said(u"N", u"Na"), u"Easily mixed up: N is nitrogen, Na is sodium.");
    EXPECT_EQ(said(u"Te", u"I"), u"Te and I: here protons count, not the mass.");
}

} // namespace
} // namespace puzzle
