#include "visual/FormTest.h"

namespace phial::test
{

namespace
{

/// A desktop of two screens: 1000 by 800 pixels on the left, and a larger one beside it that begins 200
/// pixels higher.
class Screens : public FormTest
{
protected:
    static constexpr PixelRectangle Left{0, 0, 1000, 800};
    static constexpr PixelRectangle Right{1000, -200, 1920, 1080};

    Screens()
    {
        outside.display().resize(1000, 800);
        outside.visual().addScreen(Right);
    }

    static const Screen& screen() { return visualHost().screen(); }
};

TEST_F(Screens, TheFirstOneIsTheScreenOfProgramsThatKnowOneOnly)
{
    EXPECT_EQ(screen().first(), Left);
    EXPECT_EQ(screen().Width(), 15000);
    EXPECT_EQ(screen().Height(), 12000);
}

TEST_F(Screens, EachPointLiesOnOneOfThem)
{
    EXPECT_EQ(screen().at({0, 0}), Left);
    EXPECT_EQ(screen().at({999, 799}), Left);
    EXPECT_EQ(screen().at({1000, 0}), Right) << "a right edge is the neighbour's";
    EXPECT_EQ(screen().at({1000, -200}), Right);
    EXPECT_EQ(screen().at({2919, 879}), Right);
}

TEST_F(Screens, APointBesideThemBelongsToTheNearest)
{
    EXPECT_EQ(screen().at({-50, 5000}), Left);
    EXPECT_EQ(screen().at({999, -10}), Right) << "1 pixel beside it, 10 above the other one";
    EXPECT_EQ(screen().at({990, -10.5}), Right);
    EXPECT_EQ(screen().at({980, -10}), Left);
    EXPECT_EQ(screen().at({1e9, 0}), Right);
}

TEST_F(Screens, TheLowerEdgeIsTheNeighboursToo)
{
    outside.visual().addScreen({0, 800, 1000, 300});
    EXPECT_EQ(screen().at({10, 800}).top, 800);
    EXPECT_EQ(screen().at({10, 799.5}), Left);
}

TEST_F(Screens, AFormIsOnTheScreenThatShowsItsMiddle)
{
    form->Move(900 * 15, 0, 300 * 15, 300 * 15);
    EXPECT_EQ(screen().of(*form), Right);
    form->Left(840 * 15);
    EXPECT_EQ(screen().of(*form), Left);
    form->Top(-400 * 15);
    form->Height(100 * 15);
    EXPECT_EQ(screen().of(*form), Right) << "its middle is 350 above the left one";
}

TEST_F(Screens, ACentredFormStandsOnTheScreenOfTheFormThatIsActive)
{
    const auto dialog = std::make_shared<Form>(u"frm_Dialog");
    dialog->Width(300 * 15);
    dialog->Height(200 * 15);
    dialog->centred(true);
    dialog->Show();
    EXPECT_EQ(dialog->Left(), 350 * 15);
    EXPECT_EQ(dialog->Top(), 300 * 15);
    dialog->Unload();

    form->Move(1500 * 15, 100 * 15);
    form->Show();
    dialog->Show();
    EXPECT_EQ(dialog->Left(), (1000 + 810) * 15);
    EXPECT_EQ(dialog->Top(), (-200 + 440) * 15);
    dialog->Unload();
}

TEST_F(Screens, ACentredFormLargerThanTheScreenBeginsAtItsCorner)
{
    form->Width(300 * 15);
    form->Height(1000 * 15);
    form->centred(true);
    form->Show();
    EXPECT_EQ(form->Left(), 350 * 15);
    EXPECT_EQ(form->Top(), 0);
    form->Unload();
}

} // namespace

} // namespace phial::test
