#include "master/Notices.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>

using namespace phial;
using namespace phial::master;
using testing::ElementsAre;

namespace
{

class NoticesTest : public phial::test::AppSession
{
protected:
    void wait(double seconds)
    {
        outside.clock().advance(seconds);
        notices_.tick();
    }

    std::vector<String> said_;
    Notices notices_{outside.clock(), [this](const String& line) { said_.push_back(line); }};
};

TEST_F(NoticesTest, SaysOneLineAMinuteOfEachKindAndCountsTheRest)
{
    notices_.tell({Notice::NoRequest, {u"10.0.0.1"}});
    notices_.tell({Notice::NoRequest, {u"10.0.0.2"}});
    notices_.tell({Notice::NoRequest, {u"10.0.0.3"}});
    notices_.tell({Notice::StoreBack});
    EXPECT_THAT(said_, ElementsAre(u"10.0.0.1 sent what no learning app sends, and was cut off.",
                                   u"The database answers again."));
    said_.clear();
    wait(59);
    EXPECT_TRUE(said_.empty());
    wait(1);
    EXPECT_THAT(
        said_, ElementsAre(u"10.0.0.3 sent what no learning app sends, and was cut off. (and 1 times more)"));
    wait(60);
    EXPECT_EQ(said_.size(), 1U) << "nothing new";
}

TEST_F(NoticesTest, OneThatWasHeldBackIsSaidAsItIs)
{
    notices_.tell({Notice::NoRequest, {u"10.0.0.1"}});
    notices_.tell({Notice::NoRequest, {u"10.0.0.2"}});
    wait(60);
    EXPECT_THAT(said_, ElementsAre(u"10.0.0.1 sent what no learning app sends, and was cut off.",
                                   u"10.0.0.2 sent what no learning app sends, and was cut off."));
    notices_.tell({Notice::NoRequest, {u"10.0.0.3"}});
    EXPECT_EQ(said_.size(), 2U);
    outside.clock().advance(60);
    notices_.tell({Notice::NoRequest, {u"10.0.0.4"}});
    EXPECT_EQ(said_.back(), u"10.0.0.4 sent what no learning app sends, and was cut off. (and 1 times more)");
}

TEST_F(NoticesTest, SpeaksTheLanguageInForceAndShowsNamesSafely)
{
    LNG()->CURRENT(ID_Language_German);
    notices_.tell({Notice::ListBegun, {u"10.0.0.1", u"A\u202EB"}});
    EXPECT_THAT(said_, ElementsAre(u"10.0.0.1 hat eine neue Bestenliste begonnen: (!) A\u2039202E\u203AB."));
}

TEST_F(NoticesTest, HasATextForEveryKind)
{
    for (int kind = 0; kind <= static_cast<int>(Notice::StoreBack); ++kind) {
        notices_.tell({static_cast<Notice>(kind), {u"one", u"two", u"three"}});
        EXPECT_FALSE(said_.back().empty());
    }
    EXPECT_EQ(said_.size(), static_cast<std::size_t>(Notice::StoreBack) + 1);
}

} // namespace
