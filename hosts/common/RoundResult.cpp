#include "common/RoundResult.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "results/cls_AppRate.h"

#include <array>

namespace learning
{

using phial::QVAPP;
using phial::String;
using phial::StringView;

namespace
{

/// The words of the school's marks, from 1.
constexpr auto EnglishMarks = std::to_array<StringView>(
    {u"very good", u"good", u"satisfactory", u"sufficient", u"poor", u"insufficient"});

/// Of a mark such as "2+".
String englishOf(const String& mark)
{
    const String words(EnglishMarks.at(static_cast<std::size_t>(mark.front() - u'1')));
    return mark.ends_with(u'+') ? words + u" plus" : mark.ends_with(u'-') ? words + u" minus" : words;
}

} // namespace

phial::CoreParameters additionalValues(const RoundResult& result)
{
    phial::CoreParameters values;
    values.Set(u"AUFGABEN", static_cast<std::int32_t>(result.tasks));
    values.Set(u"GELOEST", static_cast<std::int32_t>(result.solved));
    return values;
}

String certificateText(StringView sentence, const RoundResult& result, StringView exercise)
{
    return translate(sentence, {number(result.solved), number(result.tasks), String(exercise),
                                number(result.points), number(result.maximum), markText(result)});
}

String markText(const RoundResult& result)
{
    const auto& rate = QVAPP()->RATE();
    const String mark = rate->MARKSCHOOL(result.points, result.maximum, result.exercise);
    return mark + u" (" +
           translate(rate->MARKTEXT(result.points, result.maximum, result.exercise), englishOf(mark)) + u")";
}

} // namespace learning
