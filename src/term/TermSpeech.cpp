#include "term/TermSpeech.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/FormulaSpeech.h"
#include "core/RuntimeError.h"

namespace phial
{

String spokenTerm(StringView term)
{
    FormulaReading reading = readFormula(term);
    if (!reading) {
        reading = readEquation(term);
    }
    if (!reading) {
        return String(term);
    }
    bool isEnglish = false; // nor is there a language where a control stands without a root
    ignoringErrors([&] { isEnglish = LNG()->CURRENT() == ID_Language_English; });
    return isEnglish ? spokenInEnglish(reading.tree) : spokenInGerman(reading.tree);
}

} // namespace phial
