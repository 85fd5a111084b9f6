#include "app/AppTest.h"
#include "app/cls_Language.h"
#include "media/cls_AppTexts.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;

class Texts : public AppTest
{
protected:
    /// All words for a number, in the order of their list.
    std::vector<String> words(std::int32_t reinforcement, std::size_t count)
    {
        std::vector<double> numbers;
        for (std::size_t place = 0; place < count; ++place) {
            numbers.push_back((static_cast<double>(place) + 0.5) / static_cast<double>(count));
        }
        outside.random().numbers(numbers);
        std::vector<String> all;
        for (std::size_t place = 0; place < count; ++place) {
            all.push_back(QVAPP()->TEXTS()->CORRECT(reinforcement));
        }
        return all;
    }
};

TEST_F(Texts, PraiseGrowsWithTheNumber)
{
    LNG()->CURRENT(ID_Language_German);
    for (const std::int32_t number : {0, 1}) {
        EXPECT_THAT(words(number, 4), ElementsAre(u"Gut!", u"Fein fein!", u"Bravo!", u"Nicht schlecht!"));
    }
    for (const std::int32_t number : {2, 3, 4}) {
        EXPECT_THAT(words(number, 5),
                    ElementsAre(u"Cool", u"Stark!", u"Weiter so!", u"Das war gut!", u"Klasse!"));
    }
    for (const std::int32_t number : {5, 100, 2147483647}) {
        EXPECT_THAT(words(number, 5), ElementsAre(u"Der Hammer!", u"Geile Sache!", u"Super stark!",
                                                  u"Besser geht's nich!", u"Mega gut!"));
    }
}

TEST_F(Texts, NoPraiseForANegativeNumber)
{
    EXPECT_EQ(QVAPP()->TEXTS()->CORRECT(-1), u"");
    EXPECT_EQ(QVAPP()->TEXTS()->CORRECT(-2147483647 - 1), u"");
}

TEST_F(Texts, PraiseInEnglish)
{
    LNG()->CURRENT(ID_Language_English);
    EXPECT_THAT(words(0, 4), ElementsAre(u"Good!", u"Fine, fine!", u"Bravo!", u"Not bad!"));
    EXPECT_THAT(words(2, 5), ElementsAre(u"Cool", u"Strong!", u"Keep it up!", u"That was good!", u"Great!"));
    EXPECT_THAT(words(5, 5), ElementsAre(u"Amazing!", u"Awesome!", u"Super strong!",
                                         u"It doesn't get better!", u"Mega good!"));
}

TEST_F(Texts, ItCanBeReplaced)
{
    const auto other = std::make_shared<cls_AppTexts>();
    QVAPP()->TEXTS(other);
    EXPECT_EQ(QVAPP()->TEXTS(), other);
}

} // namespace
} // namespace phial
