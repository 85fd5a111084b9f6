#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreColors.h"
#include "core/Members.h"
#include "core/RuntimeError.h"
#include "results/ctl_Mark.h"
#include "support/AppSession.h"
#include "visual/Form.h"

#include <gmock/gmock-matchers.h>
#include <limits>

namespace phial
{

namespace
{

using ::testing::HasSubstr;

constexpr Colour White = RGB(255, 255, 255);

/// The colour of each whole mark; the first entry is the white that belongs to none.
constexpr auto Colours = std::to_array<Colour>({White, RGB(0, 255, 0), RGB(0, 192, 0), RGB(255, 255, 0),
                                                RGB(255, 128, 0), RGB(255, 0, 0), RGB(128, 0, 0)});

/// What a value looks like.
struct Shown {
    std::int32_t value;
    StringView text;
    std::size_t wholeMark;
    char sign; ///< '+', '-' or ' '
};

constexpr auto Scale = std::to_array<Shown>({
    {15, u"1+", 1, '+'},
    {14, u"1", 1, ' '},
    {13, u"1-", 1, '-'},
    {12, u"2+", 2, '+'},
    {11, u"2", 2, ' '},
    {10, u"2-", 2, '-'},
    {9, u"3+", 3, '+'},
    {8, u"3", 3, ' '},
    {7, u"3-", 3, '-'},
    {6, u"4+", 4, '+'},
    {5, u"4", 4, ' '},
    {4, u"4-", 4, '-'},
    {3, u"5+", 5, '+'},
    {2, u"5", 5, ' '},
    {1, u"5-", 5, '-'},
    {0, u"6+", 6, '+'},
});

class MarkControl : public test::AppSession
{
protected:
    void TearDown() override
    {
        control.reset();
        form->discard();
        AppSession::TearDown();
    }

    /// A label of the row by name, and index for the numbers.
    ctl_Label& label(StringView name, std::int32_t index = -1) const
    {
        for (const ControlPtr& inside : control->container()->controls()) {
            if (inside->NAME() == name && inside->Index() == index) {
                return dynamic_cast<ctl_Label&>(*inside);
            }
        }
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    ctl_Label& number(std::size_t wholeMark) const
    {
        return label(u"NoteAnz", static_cast<std::int32_t>(wholeMark) - 1);
    }
    ctl_Label& plus() const { return label(u"Plus"); }
    ctl_Label& minus() const { return label(u"Minus"); }

    void show(std::int32_t value) { control->MARK(static_cast<enm_Mark>(value)); }
    std::int32_t value() const { return static_cast<std::int32_t>(control->MARK()); }

    static bool isStressed(ctl_Label& shown)
    {
        const bool stressed = shown.Raised();
        EXPECT_EQ(shown.Font()->Bold(), stressed);
        EXPECT_EQ(shown.Flat(), !stressed);
        return stressed;
    }
    /// A sign that does not hold cannot be seen.
    void expectSign(ctl_Label& sign, bool holds) const
    {
        EXPECT_EQ(isStressed(sign), holds);
        EXPECT_EQ(sign.ForeColor() == control->BackColor(), !holds);
    }

    std::string lastPicture()
    {
        const std::string all = outside.visual().drawing(*control);
        return all.substr(all.rfind("clear"));
    }
    static int occurrences(const std::string& text, const std::string& part)
    {
        int count = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
            ++count;
        }
        return count;
    }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_Mark> control = form->add<ctl_Mark>(u"ctl_Mark1");
};

TEST_F(MarkControl, ShowsEachMarkOfTheScale)
{
    for (const Shown& shown : Scale) {
        SCOPED_TRACE(shown.value);
        show(shown.value);
        EXPECT_EQ(value(), shown.value);
        EXPECT_EQ(control->MARKTEXT(), shown.text);
        EXPECT_EQ(number(shown.wholeMark).ForeColor(), Colours[shown.wholeMark]);
        for (std::size_t wholeMark = 1; wholeMark <= 6; ++wholeMark) {
            EXPECT_EQ(isStressed(number(wholeMark)), wholeMark == shown.wholeMark) << wholeMark;
        }
        expectSign(plus(), shown.sign == '+');
        expectSign(minus(), shown.sign == '-');
    }
}

TEST_F(MarkControl, PaintsNoUnseenSignOverTheOneThatHolds)
{
    show(1);
    EXPECT_FALSE(plus().Visible());
    EXPECT_TRUE(minus().Visible());
    show(3);
    EXPECT_TRUE(plus().Visible());
    EXPECT_FALSE(minus().Visible());
    show(2);
    EXPECT_FALSE(plus().Visible());
    EXPECT_FALSE(minus().Visible());
}

TEST_F(MarkControl, GivesTheChosenMarkItsColourAndBlendsTheOthersWithTheBackground)
{
    control->BackColor(RGB(10, 20, 30));
    show(8);
    for (std::size_t wholeMark = 1; wholeMark <= 6; ++wholeMark) {
        const Colour own = Colours[wholeMark];
        EXPECT_EQ(number(wholeMark).ForeColor(),
                  wholeMark == 3 ? own : CoreColors::Blend(RGB(10, 20, 30), 75, own))
            << wholeMark;
    }
}

TEST_F(MarkControl, BlendsTheSignWithTheMarkTowardsWhichItPoints)
{
    for (const Shown& shown : Scale) {
        SCOPED_TRACE(shown.value);
        show(shown.value);
        const Colour own = Colours[shown.wholeMark];
        if (shown.sign == '+') {
            EXPECT_EQ(plus().ForeColor(), CoreColors::Blend(own, 50, Colours[shown.wholeMark - 1]));
        } else if (shown.sign == '-') {
            EXPECT_EQ(minus().ForeColor(), CoreColors::Blend(own, 50, Colours[shown.wholeMark + 1]));
        }
    }
}

TEST_F(MarkControl, BlendsThePlusOfTheBestMarkWithWhite)
{
    control->MARK(enm_Mark::ID_Mark_1P);
    EXPECT_TRUE(isStressed(number(1)));
    EXPECT_EQ(plus().ForeColor(), CoreColors::Blend(RGB(0, 255, 0), 50, White));
}

TEST_F(MarkControl, ShowsTheFiveWithAMinus)
{
    control->MARK(enm_Mark::ID_Mark_5M);
    EXPECT_TRUE(isStressed(number(5)));
    EXPECT_EQ(minus().ForeColor(), CoreColors::Blend(RGB(255, 0, 0), 50, RGB(128, 0, 0)));
}

TEST_F(MarkControl, ReadsMarksFromText)
{
    for (const Shown& shown : Scale) {
        if (shown.value > 0) {
            control->MARKTEXT(shown.text);
            EXPECT_EQ(value(), shown.value);
        }
    }
    control->MARKTEXT(u"6");
    EXPECT_EQ(value(), 0);
    control->MARKTEXT(u"3");
    EXPECT_EQ(value(), 8);
    control->MARKTEXT(u"3+");
    EXPECT_EQ(value(), 9);
    control->MARKTEXT(u"3-");
    EXPECT_EQ(value(), 7);
}

TEST_F(MarkControl, LooksAtTheFirstAndTheLastCharacterOnly)
{
    control->MARKTEXT(u"2 (gut) +");
    EXPECT_EQ(value(), 12);
    for (const StringView none : {u"", u"x", u"0", u"7", u" 1", u"\u0131"}) {
        control->MARKTEXT(none);
        EXPECT_EQ(value(), 0) << toUtf8(none);
    }
    control->MARKTEXT(u"+");
    EXPECT_EQ(value(), 1);
}

TEST_F(MarkControl, DoesNotHoldValuesToTheScale)
{
    control->MARKTEXT(u"6-");
    EXPECT_EQ(value(), -1);
    EXPECT_EQ(control->MARKTEXT(), u"5");
    EXPECT_TRUE(isStressed(number(5)));
    control->MARKTEXT(u"6+");
    EXPECT_EQ(control->MARKTEXT(), u"5-");
    show(16);
    EXPECT_EQ(control->MARKTEXT(), u"0-");
    EXPECT_EQ(minus().ForeColor(), CoreColors::Blend(White, 50, RGB(0, 255, 0)));
}

TEST_F(MarkControl, SurvivesAnyValue)
{
    for (const std::int32_t extreme :
         {std::numeric_limits<std::int32_t>::min(), -7, 17, 1000, std::numeric_limits<std::int32_t>::max()}) {
        show(extreme);
        EXPECT_EQ(value(), extreme);
        EXPECT_THAT(outside.visual().drawing(*control), HasSubstr("\"1\""));
    }
}

TEST_F(MarkControl, PutsTheSignBesideTheChosenNumber)
{
    for (const Shown& shown : Scale) {
        show(shown.value);
        const PixelRectangle cell = number(shown.wholeMark).frame().pixelRectangle();
        for (ctl_Label* sign : {&plus(), &minus()}) {
            const PixelRectangle place = sign->frame().pixelRectangle();
            EXPECT_GT(place.left, cell.left + cell.width / 2);
            EXPECT_LE(place.right(), cell.right());
        }
    }
}

TEST_F(MarkControl, KeepsTheSizeOfItsRow)
{
    const auto expectOwnSize = [this] {
        EXPECT_EQ(control->frame().pixelRectangle().width, number(6).frame().pixelRectangle().right());
        EXPECT_EQ(control->frame().pixelRectangle().height, minus().frame().pixelRectangle().bottom());
    };
    expectOwnSize();
    for (const double side : {0.0, 10.0, 5000.0}) {
        control->Move(30, 45, side * TwipsPerPixel, side * TwipsPerPixel);
        expectOwnSize();
    }
    control->Width(100);
    expectOwnSize();
    control->Height(100);
    expectOwnSize();
    EXPECT_EQ(control->Left(), 30);
    EXPECT_EQ(control->Top(), 45);
}

TEST_F(MarkControl, EdgesEachMarkInAShadeThatStandsOffFromTheGround)
{
    constexpr Colour Yellow = RGB(255, 255, 0);
    constexpr Colour Black = RGB(0, 0, 0);
    show(8);
    for (const auto& [ground, shade] : {std::pair{White, Black}, std::pair{RGB(0, 64, 118), White}}) {
        control->BackColor(ground);
        const std::string chosen = toUtf8(CoreColors::ToHtml(CoreColors::Blend(Yellow, 55, shade)));
        EXPECT_THAT(outside.visual().drawing(*control), HasSubstr("\"3\" Tahoma 17 bold " + chosen));
        const Colour quiet = CoreColors::Blend(ground, 75, RGB(128, 0, 0));
        const std::string other = toUtf8(CoreColors::ToHtml(CoreColors::Blend(quiet, 55, shade)));
        EXPECT_THAT(outside.visual().drawing(*control), HasSubstr("\"6\" Tahoma 17 " + other));
    }
}

TEST_F(MarkControl, TheEdgeIsDarkOnALightGroundAndLightOnADarkOne)
{
    struct Ground {
        Colour colour;
        bool isDark;
    };
    constexpr auto Grounds = std::to_array<Ground>({
        {RGB(127, 127, 127), true},
        {RGB(128, 128, 128), false},
        {RGB(0, 216, 0), true},
        {RGB(0, 217, 0), false},
        {RGB(255, 87, 0), true},
        {RGB(255, 88, 0), false},
        {RGB(100, 160, 0), true},
        {RGB(100, 160, 50), false},
    });
    show(2);
    for (const Ground& ground : Grounds) {
        control->BackColor(ground.colour);
        const Colour edge = CoreColors::Blend(RGB(255, 0, 0), 55, ground.isDark ? White : RGB(0, 0, 0));
        EXPECT_THAT(lastPicture(), HasSubstr("\"5\" Tahoma 17 bold " + toUtf8(CoreColors::ToHtml(edge))))
            << toUtf8(CoreColors::ToHtml(ground.colour));
    }
}

TEST_F(MarkControl, TheChosenMarkStandsInAFrameWithAWiderEdge)
{
    control->BackColor(White);
    show(2);
    const std::string picture = lastPicture();
    EXPECT_THAT(picture, HasSubstr("box 200,0 50x37 line #730000\nbox 201,1 48x35 line #730000\n"));
    // A digit is 9 pixels wide and a line 21 high, so that it stands at (20, 8) of its cell.
    EXPECT_EQ(occurrences(picture, "\"5\""), 25);
    EXPECT_THAT(picture, HasSubstr("text 218.75,5.875 \"5\""));
    EXPECT_THAT(picture, HasSubstr("text 222.75,9.875 \"5\""));
    EXPECT_EQ(occurrences(picture, "\"1\""), 9);
    EXPECT_THAT(picture, HasSubstr("text 21.75,8.875 \"1\""));
    EXPECT_EQ(occurrences(picture, "box "), 2);
}

TEST_F(MarkControl, DrawsNoEdgeOfASignThatDoesNotHold)
{
    show(11);
    const std::string drawn = outside.visual().drawing(*control);
    EXPECT_THAT(drawn, ::testing::Not(HasSubstr("\"+\"")));
    EXPECT_THAT(drawn, ::testing::Not(HasSubstr("\"\u2212\"")));
}

TEST_F(MarkControl, IsReadAsOneTextInTheLanguageInForce)
{
    show(12);
    LNG()->CURRENT(ID_Language_German);
    EXPECT_EQ(control->accessibleText(), u"Note 2 plus");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(control->accessibleText(), u"Mark 2 plus");
    show(7);
    EXPECT_EQ(control->accessibleText(), u"Mark 3 minus");
    show(5);
    EXPECT_EQ(control->accessibleText(), u"Mark 4");
}

TEST_F(MarkControl, IsReachedByName)
{
    std::vector<String> changes;
    const Connection watching =
        control->PropertyChanged.connect([&](const String& name) { changes.push_back(name); });
    setMember(*control, u"marktext", u"2-");
    EXPECT_EQ(getMember(*control, u"Mark"), Variant(10));
    setMember(*control, u"MARK", 3);
    EXPECT_EQ(getMember(*control, u"MarkText"), Variant(u"5+"));
    setMember(*control, u"backcolor", members::toVariant(White));
    EXPECT_EQ(control->BackColor(), White);
    EXPECT_EQ(changes, (std::vector<String>{u"MARK", u"MARK", u"BackColor"}));
}

} // namespace

} // namespace phial
