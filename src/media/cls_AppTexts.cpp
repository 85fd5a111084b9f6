#include "media/cls_AppTexts.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreStringList.h"

namespace phial
{

namespace
{

/// "German|English".
CoreStringList praiseOf(std::int32_t reinforcement)
{
    constexpr std::int32_t Strong = 2;
    constexpr std::int32_t Strongest = 5;
    if (reinforcement < 0) {
        return {};
    }
    if (reinforcement < Strong) {
        return {u"Gut!|Good!", u"Fein fein!|Fine, fine!", u"Bravo!|Bravo!", u"Nicht schlecht!|Not bad!"};
    }
    if (reinforcement < Strongest) {
        return {u"Cool|Cool", u"Stark!|Strong!", u"Weiter so!|Keep it up!", u"Das war gut!|That was good!",
                u"Klasse!|Great!"};
    }
    return {u"Der Hammer!|Amazing!", u"Geile Sache!|Awesome!", u"Super stark!|Super strong!",
            u"Besser geht's nich!|It doesn't get better!", u"Mega gut!|Mega good!"};
}

} // namespace

String cls_AppTexts::CORRECT(std::int32_t pReinforcement) const
{
    return LNG()->TRANSLATEAUTO(praiseOf(pReinforcement).RandomItem());
}

} // namespace phial
