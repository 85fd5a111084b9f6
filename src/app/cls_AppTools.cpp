#include "app/cls_AppTools.h"

#include "term/TermDraw.h"
#include "term/TermHtml.h"

namespace phial
{

void cls_AppTools::TERMPRINT(DrawDevice& pDevice, StringView pText, std::int32_t pX, std::int32_t pY,
                             TEXTALIGN pAlign) const
{
    TermDraw(pDevice, pText, pX, pY, pAlign);
}

String cls_AppTools::TERM2HTML(StringView pFormula) const
{
    return termToHtml(pFormula);
}

} // namespace phial
