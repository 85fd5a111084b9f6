#include "common/FormerRound.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "support/AppSession.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

class Former : public phial::test::AppSession
{
protected:
    Former() { phial::QVAPP()->CONFIG()->IDENT(u"Molmasse"); }

    static std::optional<int> keep(phial::StringView pupil, phial::StringView exercise, int solved, int tasks)
    {
        return keepRound(pupil, {.exercise = phial::String(exercise), .solved = solved, .tasks = tasks});
    }
};

TEST_F(Former, RoundIsKnownByPupilProgramAndLevel)
{
    EXPECT_EQ(keep(u"Mia", u"Leicht", 3, 10), std::nullopt);
    EXPECT_EQ(keep(u"Mia", u"Schwer", 1, 10), std::nullopt);
    EXPECT_EQ(keep(u"Tom", u"Leicht", 9, 10), std::nullopt);
    EXPECT_EQ(keep(u"Mia", u"Leicht", 5, 10), 3);
    EXPECT_EQ(keep(u"Mia", u"Leicht", 4, 10), 5);
    EXPECT_EQ(keep(u"Mia", u"Schwer", 2, 10), 1);
    phial::QVAPP()->CONFIG()->IDENT(u"Puzzle");
    EXPECT_EQ(keep(u"Mia", u"Leicht", 5, 10), std::nullopt);
}

TEST_F(Former, RoundOfAnotherLengthIsNotCompared)
{
    keep(u"Mia", u"Leicht", 3, 4);
    EXPECT_EQ(keep(u"Mia", u"Leicht", 3, 37), std::nullopt);
    EXPECT_EQ(keep(u"Mia", u"Leicht", 4, 37), 3);
}

TEST_F(Former, RoundsAreBounded)
{
    for (int level = 0; level <= 50; ++level) {
        keep(u"Mia", number(level), 1, 4);
    }
    EXPECT_EQ(keep(u"Mia", u"1", 2, 4), 1);
    EXPECT_EQ(keep(u"Mia", u"0", 2, 4), std::nullopt) << "the oldest";
}

} // namespace
} // namespace learning
