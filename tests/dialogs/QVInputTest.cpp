#include "dialogs/QVInputTest.h"

#include "core/CoreText.h"
#include "core/Locale.h"
#include "core/RuntimeError.h"
#include "support/CaseTable.h"
#include "visual/PropertyBag.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

double numberFrom(const String& text)
{
    return Variant(text).toReal();
}

class QVInputRules : public QVInputRun, public ::testing::WithParamInterface<CaseRow>
{
};

String withBlanks(const String& text)
{
    return CoreText::Replace(text, u"·", u" ");
}

TEST_P(QVInputRules, MakeThatOfWhatStandsInTheField)
{
    const auto& columns = GetParam().columns;
    Locale locale;
    locale.decimalSign = columns[0].front();
    const LocaleBinding habits(locale);
    control->MODE(static_cast<enm_InputMode>(Variant(columns[1]).toWhole()));
    control->DIGITS(Variant(columns[2]).toWhole());
    control->MIN(numberFrom(columns[3]));
    control->MAX(numberFrom(columns[4]));
    if (columns[5] == u"set") {
        control->VALUE(withBlanks(columns[6]));
    } else {
        enter(withBlanks(columns[6]));
        leave();
    }
    EXPECT_EQ(toUtf8(shown()), toUtf8(withBlanks(columns[7])));
    const bool isNumber = columns[8].starts_with(u"=");
    EXPECT_EQ(control->VALUE().kind(), isNumber ? Variant::Kind::Real : Variant::Kind::Text);
    EXPECT_EQ(toUtf8(control->VALUE().toText()), toUtf8(withBlanks(columns[8]).substr(isNumber ? 1 : 0)));
    EXPECT_EQ(control->DIGITS(), columns[1] == u"1" ? 0 : Variant(columns[2]).toWhole());
    control->UPDATE();
    EXPECT_EQ(toUtf8(shown()), toUtf8(withBlanks(columns[7]))) << "the second time";
}

INSTANTIATE_TEST_SUITE_P(Table, QVInputRules, ::testing::ValuesIn(readCaseTable("qvinput.txt", 9)),
                         caseName<::testing::TestParamInfo<CaseRow>>);

TEST_F(QVInput, BeginsAsAWholeNumberWithoutBounds)
{
    EXPECT_EQ(control->TEXT(), u"");
    EXPECT_EQ(shown(), u"0");
    EXPECT_EQ(control->VALUE(), Variant(0.0));
    EXPECT_EQ(control->DIGITS(), 0);
    EXPECT_EQ(control->MIN(), 0);
    EXPECT_EQ(control->MAX(), 0);
    EXPECT_EQ(control->MODE(), ID_InputMode_Number);
    EXPECT_FALSE(control->AsTyped());
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_THAT(bag.keys(), IsEmpty());
}

TEST_F(QVInput, KeepsItsPropertiesInABag)
{
    control->TEXT(u"Masse");
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2);
    control->MIN(-1);
    control->MAX(10);
    control->VALUE(2.5);
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"TEXT", u"VALUE", u"DIGITS", u"MIN", u"MAX", u"MODE"));
    EXPECT_EQ(bag.ReadProperty(u"VALUE"), Variant(u"2,50")) << "the text";
    const auto read = makeControl<ctl_QVInput>();
    read->readProperties(bag);
    EXPECT_EQ(read->TEXT(), u"Masse");
    EXPECT_EQ(read->input().Text(), u"2,50");
    EXPECT_EQ(read->DIGITS(), 2);
    EXPECT_EQ(read->MIN(), -1);
    EXPECT_EQ(read->MAX(), 10);
    EXPECT_EQ(read->MODE(), ID_InputMode_Double);
    read->readProperties(PropertyBag());
    EXPECT_EQ(read->input().Text(), u"0");
    EXPECT_EQ(read->MODE(), ID_InputMode_Number);
    EXPECT_EQ(read->TEXT(), u"");
}

TEST_F(QVInput, TheRulesCountForWhatComesOutOfABag)
{
    PropertyBag bag;
    bag.WriteProperty(u"VALUE", u"12.345");
    bag.WriteProperty(u"DIGITS", 1);
    bag.WriteProperty(u"MAX", 10.0);
    bag.WriteProperty(u"MODE", 2);
    control->readProperties(bag);
    EXPECT_EQ(shown(), u"10,0");
    bag.Clear();
    bag.WriteProperty(u"DIGITS", 4);
    control->readProperties(bag);
    EXPECT_EQ(control->DIGITS(), 0);
}

TEST_F(QVInput, AnEmptyTextComesBackEmpty)
{
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"");
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"VALUE", u"MODE"));
    const auto read = makeControl<ctl_QVInput>();
    read->readProperties(bag);
    EXPECT_EQ(read->VALUE(), Variant(u""));
}

TEST_F(QVInput, ATextThatIsZeroIsKept)
{
    control->MODE(ID_InputMode_Text);
    control->VALUE(u"0");
    PropertyBag bag;
    control->writeProperties(bag);
    const auto read = makeControl<ctl_QVInput>();
    read->readProperties(bag);
    EXPECT_EQ(read->VALUE(), Variant(u"0"));
}

TEST_F(QVInput, BecomesEmptyForTextsWhereItShowsZero)
{
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"");
    EXPECT_THAT(told, ElementsAre(u"MODE", u"VALUE"));
    control->MODE(ID_InputMode_Number);
    control->VALUE(10);
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"10");
    control->MODE(ID_InputMode_Double);
    control->DIGITS(1);
    control->VALUE(0);
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"0,0") << "another text";
}

TEST_F(QVInput, StandsAtTheRightOnlyForTexts)
{
    const auto side = [this] { return field().Alignment(); };
    EXPECT_EQ(side(), Alignment::Left);
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(side(), Alignment::Right);
    field().Alignment(Alignment::Centre);
    control->MODE(static_cast<enm_InputMode>(0));
    EXPECT_EQ(side(), Alignment::Centre) << "no mode of its own";
    control->MODE(ID_InputMode_Double);
    EXPECT_EQ(side(), Alignment::Left);
}

TEST_F(QVInput, EachWriterTellsItsChange)
{
    control->TEXT(u"Masse");
    control->DIGITS(2);
    control->MIN(1);
    control->MAX(1);
    control->MODE(ID_InputMode_Double);
    control->VALUE(5);
    EXPECT_THAT(told, ElementsAre(u"TEXT", u"DIGITS", u"MIN", u"MAX", u"MODE", u"VALUE"));
    told.clear();
    control->VALUE(5);
    control->MIN(1);
    EXPECT_THAT(told, ElementsAre(u"VALUE", u"MIN"));
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, BoundsAndTitleLeaveTheTextUntilTheRulesCount)
{
    control->VALUE(50);
    control->MIN(1);
    control->MAX(6);
    control->TEXT(u"Würfel");
    EXPECT_EQ(shown(), u"50");
    callMember(*control, u"Update", {});
    EXPECT_EQ(shown(), u"6");
}

TEST_F(QVInput, DecimalsAndModeCountAtOnce)
{
    control->MODE(ID_InputMode_Double);
    control->VALUE(3);
    control->DIGITS(2);
    EXPECT_EQ(shown(), u"3,00");
    control->MODE(ID_InputMode_Number);
    EXPECT_EQ(shown(), u"3");
    EXPECT_EQ(control->DIGITS(), 0);
    control->DIGITS(3);
    EXPECT_EQ(control->DIGITS(), 0);
}

TEST_F(QVInput, TheSameDecimalsWrittenAgainCountForWhatWasTyped)
{
    enter(u"2,75");
    control->DIGITS(0);
    EXPECT_EQ(shown(), u"3");
}

TEST_F(QVInput, IsReachedByName)
{
    setMember(*control, u"Mode", 2);
    setMember(*control, u"Digits", 1);
    setMember(*control, u"Value", u"2.25");
    EXPECT_EQ(shown(), u"2,2");
    EXPECT_EQ(getMember(*control, u"VALUE"), Variant(2.2));
    setMember(*control, u"Text", u"Masse");
    EXPECT_EQ(getMember(*control, u"TEXT"), Variant(u"Masse"));
    setMember(*control, u"Locked", true);
    setMember(*control, u"MaxLength", 12);
    setMember(*control, u"ForeColor", 255);
    setMember(*control, u"BackColor", 65280);
    const auto font = std::make_shared<Font>(FontSpec{.size = 24});
    setMember(*control, u"Font", Variant(ObjectPtr(font)));
    EXPECT_TRUE(field().Locked());
    EXPECT_EQ(field().MaxLength(), 12);
    EXPECT_EQ(field().ForeColor(), Colour{255});
    EXPECT_EQ(field().BackColor(), Colour{65280});
    EXPECT_EQ(field().Font(), font);
    EXPECT_EQ(control->Font(), font);
    EXPECT_EQ(shown(), u"2,2");
}

TEST_F(QVInput, VariantsOfAllKindsCanBeValues)
{
    control->MODE(ID_InputMode_Double);
    control->DIGITS(1);
    control->VALUE(Variant());
    EXPECT_EQ(shown(), u"0,0");
    control->VALUE(1234567.25);
    EXPECT_EQ(shown(), u"1234567,2");
    control->VALUE(7);
    EXPECT_EQ(shown(), u"7,0");
    EXPECT_THROW(control->VALUE(Variant(ObjectPtr())), RuntimeError);
    EXPECT_EQ(shown(), u"7,0");
}

TEST_F(QVInput, ManyDecimalsAreWrittenAsFarAsTheyMean)
{
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2'000'000'000);
    EXPECT_EQ(shown(), u"0," + String(99, u'0'));
    EXPECT_EQ(control->DIGITS(), 2'000'000'000);
}

TEST_F(QVInput, TheFieldFillsTheControl)
{
    EXPECT_EQ(field().frame().pixelRectangle(), (PixelRectangle{0, 0, 200, 40}));
    EXPECT_TRUE(control->surface().transparent()) << "behind the round corners of the field";
    control->Move(5, 5, 90, 25);
    EXPECT_EQ(field().frame().pixelRectangle(), (PixelRectangle{0, 0, 90, 25}));
}

} // namespace

} // namespace phial::test
