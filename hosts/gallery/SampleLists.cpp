#include "gallery/SampleLists.h"

#include "core/NumberText.h"
#include "gallery/Exhibit.h"
#include "results/cls_DataEvents.h"
#include "results/cls_DataScores.h"

#include <array>
#include <cmath>

namespace gallery
{

using namespace phial;

namespace
{

constexpr auto Pupils = std::to_array<StringView>({u"Anna", u"Jürgen", u"Şebnem", u"Łukasz", u"Chloé",
                                                   u"Maximilian von Weidenbach", u"Änne",
                                                   u"WWWWWWWWWWWWWWWWWWWW", u"<b>Tim</b>", u"Zoë", u"Björn"});

constexpr auto Exercises = std::to_array<StringView>(
    {u"Molare Masse|Molar mass", u"Summenformeln aufstellen und benennen|Writing and naming formulas",
     u"Säuren und Basen|Acids and bases"});

constexpr auto Actions =
    std::to_array<StringView>({u"Programm gestartet|Program started", u"Übung begonnen|Exercise begun",
                               u"Übung beendet|Exercise finished", u"Hilfe geöffnet|Help opened"});

constexpr double FirstDay = 46000;
constexpr double Step = 0.371; // days between two entries

template <std::size_t Size>
StringView nth(const std::array<StringView, Size>& texts, std::int32_t number)
{
    return texts[static_cast<std::size_t>(number) % Size];
}

/// The pupils one after the other; from the second round on with a number behind.
String pupil(std::int32_t number)
{
    const std::int32_t round = number / static_cast<std::int32_t>(Pupils.size());
    return String(nth(Pupils, number)) + (round > 0 ? u" " + plainText(round + 1) : String());
}

Moment moment(std::int32_t number)
{
    return {FirstDay + number * Step};
}

} // namespace

std::shared_ptr<cls_DataScores> sampleScores(std::int32_t count)
{
    constexpr double Reachable = 1000;
    auto list = std::make_shared<cls_DataScores>();
    list->MAXIMUM(count);
    for (std::int32_t number = 0; number < count; ++number) {
        const double points = std::floor(Reachable * (count - number) / (count + 1));
        list->ADD(points, Reachable, say(nth(Exercises, number)), nullptr, u"login" + plainText(number + 1),
                  u"CHEMIE-" + plainText(number % 16 + 1), pupil(number), moment(number));
    }
    return list;
}

std::shared_ptr<cls_DataEvents> sampleEvents(std::int32_t count)
{
    auto log = std::make_shared<cls_DataEvents>();
    for (std::int32_t number = 0; number < count; ++number) {
        log->ADD(say(nth(Actions, number)), nullptr, u"login" + plainText(number + 1),
                 u"CHEMIE-" + plainText(number % 16 + 1), pupil(number));
    }
    return log;
}

} // namespace gallery
