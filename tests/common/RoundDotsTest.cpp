#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "common/ctl_RoundDots.h"
#include "support/AppSession.h"
#include "visual/Form.h"

#include <gmock/gmock-matchers.h>

namespace learning
{
namespace
{

using phial::String;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class RoundDots : public phial::test::AppSession
{
protected:
    RoundDots()
    {
        phial::LNG()->CURRENT(phial::ID_Language_German);
        dots = form->add<ctl_RoundDots>(u"dot_Round");
        dots->frame().Move(0, 0, 400 * 15, 40 * 15);
    }
    void TearDown() override
    {
        dots.reset();
        form->discard();
        AppSession::TearDown();
    }

    std::vector<String> spoken()
    {
        std::vector<String> names;
        for (const phial::NamedPart& part : dots->parts()) {
            names.push_back(part.name);
        }
        return names;
    }

    std::shared_ptr<phial::Form> form = std::make_shared<phial::Form>(u"frm_Test");
    std::shared_ptr<ctl_RoundDots> dots;
    Round round{4};
};

TEST_F(RoundDots, SayHowEachTaskStands)
{
    round.count(Judgement::Right);
    round.next();
    round.count(Judgement::Wrong);
    dots->show(round);
    EXPECT_THAT(spoken(), ElementsAre(u"Aufgabe 1: 10 Punkte", u"Aufgabe 2: noch 2 Versuche",
                                      u"Aufgabe 3: kommt noch", u"Aufgabe 4: kommt noch"));
    round.count(Judgement::Wrong);
    round.count(Judgement::Wrong);
    dots->show(round);
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_THAT(spoken(), ElementsAre(u"Task 1: 10 points", u"Task 2: not solved", u"Task 3: to come",
                                      u"Task 4: to come"));
}

TEST_F(RoundDots, OfALongRoundAreTheOnePresentAndABar)
{
    constexpr int Tasks = 37;
    Round longRound(Tasks);
    longRound.count(Judgement::Right);
    longRound.next();
    for (int tries = 0; tries < Round::Tries; ++tries) {
        longRound.count(Judgement::Wrong);
    }
    longRound.next();
    dots->frame().Move(0, 0, 600 * 15, 30 * 15);
    dots->show(longRound);
    EXPECT_THAT(spoken(),
                ElementsAre(u"Aufgabe 3: noch 3 Versuche", u"1 gelöst, 1 nicht gelöst, 35 kommen noch"));
    const auto parts = dots->parts();
    EXPECT_EQ(parts[0].area, (phial::PixelRectangle{0, 0, 30, 30}));
    EXPECT_EQ(parts[1].area, (phial::PixelRectangle{42, 8, 558, 14}));

    const std::string drawn = outside.visual().drawing(*dots);
    EXPECT_THAT(drawn, HasSubstr("box 42,8 15.081x14 fill")) << "solved: as high as the bar";
    EXPECT_THAT(drawn, HasSubstr("box 57.081,17.333 15.081x4.667 fill")) << "missed: a third of it";
}

TEST_F(RoundDots, HaveADiscEachAsLongAsTheirPointsCanBeRead)
{
    dots->frame().Move(0, 0, 560 * 15, 30 * 15);
    dots->show(Round(21));
    EXPECT_EQ(dots->parts().size(), 21U);
    dots->show(Round(22));
    EXPECT_EQ(dots->parts().size(), 2U);
}

TEST_F(RoundDots, StandInARowOfSquares)
{
    dots->show(round);
    const auto parts = dots->parts();
    EXPECT_EQ(parts[0].area, (phial::PixelRectangle{0, 0, 40, 40}));
    EXPECT_EQ(parts[1].area, (phial::PixelRectangle{80, 0, 40, 40}));
    dots->frame().Move(0, 0, 130 * 15, 40 * 15);
    EXPECT_EQ(dots->parts()[3].area, (phial::PixelRectangle{97.5, 3.75, 32.5, 32.5}));
    dots->show(Round(1));
    EXPECT_EQ(dots->parts()[0].area, (phial::PixelRectangle{0, 0, 40, 40}));
}

} // namespace
} // namespace learning
