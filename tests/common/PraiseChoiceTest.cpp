#include "common/PraiseChoice.h"

#include "support/AppSession.h"

#include <gtest/gtest.h>
#include <set>

namespace learning
{
namespace
{

using phial::StringView;

class Praises : public phial::test::AppSession
{
protected:
    Praises() { outside.random().numbers({0.0, 0.3, 0.99, 0.5, 0.7}); }

    PraiseChoice praises;
};

TEST_F(Praises, AreNeverTheSameTwiceInARow)
{
    StringView last;
    std::set<StringView> said;
    for (int task = 0; task < 50; ++task) {
        const StringView praise =
            praises.choose({u"Eins.|One.", u"Zwei.|Two."}, task % 3 == 0 ? Outcome::Later : Outcome::AtOnce);
        EXPECT_FALSE(praise.empty());
        EXPECT_NE(praise, last);
        said.insert(last = praise);
    }
    EXPECT_GE(said.size(), 4U) << "they vary";
}

TEST_F(Praises, FitHowTheTaskWasSolved)
{
    EXPECT_EQ(praises.choose({}, Outcome::AtOnce),
              u"Gleich beim ersten Versuch richtig.|Right at the first try.");
    EXPECT_EQ(praises.choose({}, Outcome::AtOnce),
              u"Gleich beim ersten Versuch richtig.|Right at the first try.")
        << "there is no other one";
    for (int task = 0; task < 10; ++task) {
        EXPECT_EQ(praises.choose({}, Outcome::Later).find(u"ersten Versuch"), StringView::npos);
    }
}

TEST_F(Praises, AreNotForWhatBroughtNoPoints)
{
    EXPECT_EQ(praises.choose({u"Eins.|One."}, Outcome::Missed), u"");
}

} // namespace
} // namespace learning
