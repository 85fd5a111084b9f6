#include "molmasse/RoundResult.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "molmasse/TrainerTexts.h"
#include "results/cls_AppRate.h"

namespace molmasse
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

String certificateText(const RoundResult& result, StringView exercise)
{
    return translate(
        u"hat zu {1} von {2} Formeln (Schwierigkeit: {3}) die molare Masse bestimmt und dabei "
        u"{4} von {5} Punkten erreicht.\r\nNote: {6}",
        u"has worked out the molar mass of {1} of {2} formulas (difficulty: {3}) and reached {4} of "
        u"{5} points.\r\nMark: {6}",
        {number(result.solved), number(result.tasks), String(exercise), number(result.points),
         number(result.maximum), markText(result)});
}

String markText(const RoundResult& result)
{
    const auto& rate = QVAPP()->RATE();
    return rate->MARKSCHOOL(result.points, result.maximum, result.exercise) + u" (" +
           rate->MARKTEXT(result.points, result.maximum, result.exercise) + u")";
}

} // namespace molmasse
