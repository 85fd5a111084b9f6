#include "core/Variant.h"
#include "visual/FormTest.h"
#include "visual/ctl_Label.h"

namespace phial::test
{

namespace
{

class LabelTest : public FormTest
{
protected:
    std::string drawn(Control& control) { return outside.visual().drawing(control); }

    std::shared_ptr<Label> label = form->add<Label>(u"lab_Test");
    std::shared_ptr<ctl_Label> styled = form->add<ctl_Label>(u"lab_Styled");
};

TEST_F(LabelTest, IsSeeThroughAndShowsItsMarkup)
{
    label->Move(0, 0, 1500, 300);
    label->Caption(u"H<sub>2</sub>O");
    EXPECT_EQ(drawn(*label), "clear cut\n"
                             "text 0,0 \"H\" Tahoma 8 #000000\n"
                             "text 4,3 \"2\" Tahoma 6 #000000\n"
                             "text 7,0 \"O\" Tahoma 8 #000000\n");
}

TEST_F(LabelTest, OpaqueLabelHasItsBackground)
{
    label->Move(0, 0, 300, 150);
    label->BackColor(QBColor(15));
    label->BackStyle(BackStyle::Opaque);
    label->Alignment(Alignment::Right);
    label->Caption(u"ab");
    EXPECT_EQ(drawn(*label), "clear #FFFFFF\n"
                             "text 12,0 \"ab\" Tahoma 8 #000000\n");
}

TEST_F(LabelTest, AutoSizeFollowsTheTextWithinTheSetter)
{
    label->WordWrap(false);
    label->AutoSize(true);
    label->Caption(u"abc");
    EXPECT_EQ(label->Width(), 12 * 15);
    EXPECT_EQ(label->Height(), 10 * 15);
    label->Font()->Size(16);
    EXPECT_EQ(label->Width(), 24 * 15);
}

TEST_F(LabelTest, WithWordWrapTheHeightFollowsTheWidth)
{
    label->AutoSize(true);
    label->Width(28 * 15);
    label->Caption(u"aaa bbb ccc");
    EXPECT_EQ(label->Height(), 20 * 15);
    label->Width(12 * 15);
    EXPECT_EQ(label->Height(), 30 * 15);
}

TEST_F(LabelTest, SingleLineShowsWhatUsersTypedAsItStands)
{
    label->Move(0, 0, 100 * 15, 20 * 15);
    label->SingleLine(true);
    label->Caption(u"a<b>c\r\nd");
    EXPECT_EQ(drawn(*label), "clear cut\n"
                             "text 0,5 \"a<b>c  d\" Tahoma 8 #000000\n");
    EXPECT_EQ(label->accessibleText(), u"a<b>c  d");
    EXPECT_EQ(label->Caption(), u"a<b>c\r\nd");
}

TEST_F(LabelTest, SingleLineEndsInThreeDotsWhereItHasNoRoom)
{
    label->Move(0, 0, 18 * 15, 10 * 15);
    label->SingleLine(true);
    label->Caption(u"abcdefg");
    EXPECT_THAT(drawn(*label), ::testing::HasSubstr("\"abc\u2026\""));
    label->Caption(u"ab\U0001F600d");
    EXPECT_THAT(drawn(*label), ::testing::HasSubstr("\"ab\u2026\""));
    label->Caption(u"abcd");
    EXPECT_THAT(drawn(*label), ::testing::HasSubstr("\"abcd\""));
    label->Caption(String(10'000, u'x'));
    EXPECT_THAT(drawn(*label), ::testing::HasSubstr("\"xxx\u2026\""));
}

TEST_F(LabelTest, SingleLineIsAligned)
{
    label->Move(0, 0, 20 * 15, 10 * 15);
    label->SingleLine(true);
    label->Caption(u"ab");
    label->Alignment(Alignment::Right);
    EXPECT_THAT(drawn(*label), ::testing::HasSubstr("text 12,0"));
    label->Alignment(Alignment::Centre);
    EXPECT_THAT(drawn(*label), ::testing::HasSubstr("text 6,0"));
}

TEST_F(LabelTest, SingleLineKeepsItsSize)
{
    label->Move(0, 0, 300, 150);
    label->SingleLine(true);
    label->AutoSize(true);
    label->Caption(u"abcd efgh ijkl");
    EXPECT_EQ(label->Width(), 300);
    label->SingleLine(false);
    EXPECT_EQ(label->Height(), 30 * 15);
}

TEST_F(LabelTest, FontIsSharedByReference)
{
    const auto font = std::make_shared<Font>();
    label->Font(font);
    styled->Font(font);
    styled->Move(0, 0, 300, 150);
    styled->Alignment(TEXTALIGN::TopLeft);
    styled->Caption(u"a");
    drawn(*styled);
    font->Bold(true);
    EXPECT_THAT(drawn(*styled), ::testing::HasSubstr("Tahoma 8 bold"));
    EXPECT_RAISES(label->Font(nullptr), ObjectNotSet);
}

TEST_F(LabelTest, OneThatCanTakeTheFocusIsALink)
{
    int clicks = 0;
    const Connection listening = label->Click.connect([&] { ++clicks; });
    EXPECT_TRUE(label->parts().empty());
    label->frame().canFocus(true);
    label->Caption(u"<b>Mehr</b>");
    label->Move(0, 0, 600, 150);
    ASSERT_EQ(label->parts().size(), 1U);
    EXPECT_EQ(label->parts().front().name, u"Mehr");
    label->activatePart(0);
    EXPECT_EQ(clicks, 1);

    form->Show();
    label->SetFocus();
    headless::type(*form, u"{enter} a");
    EXPECT_EQ(clicks, 3) << "Return and Space click it, other keys do not";
    headless::hold(*form, {0, Key::Return, 0});
    EXPECT_EQ(clicks, 4);
    EXPECT_THAT(drawn(*label), ::testing::Not(::testing::HasSubstr("box"))) << "the ring is not its own";
}

TEST_F(LabelTest, StyledLabelIsAlignedInBothDirections)
{
    styled->Move(0, 0, 300, 300);
    styled->Caption(u"ab");
    styled->Alignment(TEXTALIGN::MiddleLeft);
    EXPECT_EQ(drawn(*styled), "clear cut\ntext 0,5 \"ab\" Tahoma 8 #000000\n");
    styled->Alignment(TEXTALIGN::TopCentre);
    EXPECT_THAT(drawn(*styled), ::testing::HasSubstr("text 6,0 "));
    styled->Alignment(TEXTALIGN::BottomRight);
    EXPECT_THAT(drawn(*styled), ::testing::HasSubstr("text 12,10 "));
    styled->Alignment(static_cast<TEXTALIGN>(7));
    EXPECT_THAT(drawn(*styled), ::testing::EndsWith("text 0,0 \"ab\" Tahoma 8 #000000\n"));
}

TEST_F(LabelTest, RaisedLabelStandsOffAndFlatWins)
{
    styled->Move(0, 0, 300, 300);
    styled->Caption(u"1");
    styled->Alignment(TEXTALIGN::TopLeft);
    styled->Flat(false);
    const std::string plain = drawn(*styled);
    styled->Raised(true);
    EXPECT_NE(drawn(*styled), plain + plain);
    EXPECT_THAT(drawn(*styled), ::testing::HasSubstr("text -1,-1 "));
    styled->Flat(true);
    EXPECT_THAT(drawn(*styled), ::testing::EndsWith(plain));
}

TEST_F(LabelTest, StyledLabelPersistsItsText)
{
    styled->Caption(u"Gut!<br>Weiter");
    PropertyBag bag;
    styled->writeProperties(bag);
    EXPECT_EQ(bag.ReadProperty(u"TEXT").toText(), u"Gut!<br>Weiter");
    const auto other = makeControl<ctl_Label>();
    other->readProperties(bag);
    EXPECT_EQ(other->Caption(), styled->Caption());
}

TEST_F(LabelTest, ScreenReaderHearsThePlainText)
{
    label->Caption(u"<b>H<sub>2</sub>O</b>");
    EXPECT_EQ(label->accessibleText(), u"H2O");
    EXPECT_EQ(label->role(), PartRole::StaticText);
}

TEST_F(LabelTest, ClicksBecomeEvents)
{
    logs(styled->Click, "click");
    logs(styled->DblClick, "double");
    headless::doubleClick(*styled);
    EXPECT_THAT(log, ElementsAre("click", "double"));
}

} // namespace

} // namespace phial::test
