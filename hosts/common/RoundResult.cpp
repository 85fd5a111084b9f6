#include "common/RoundResult.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "results/cls_AppRate.h"

namespace learning
{

using phial::QVAPP;
using phial::String;
using phial::StringView;

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
    return rate->MARKSCHOOL(result.points, result.maximum, result.exercise) + u" (" +
           rate->MARKTEXT(result.points, result.maximum, result.exercise) + u")";
}

} // namespace learning
