#include "term/TermSpeech.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/FormulaSpeech.h"
#include "core/RuntimeError.h"

#include <optional>

namespace phial
{

namespace
{

/// None of what is neither a formula nor an equation.
std::optional<String> inWords(StringView term)
{
    FormulaReading reading = readFormula(term);
    if (!reading) {
        reading = readEquation(term);
    }
    if (!reading) {
        return std::nullopt;
    }
    bool isEnglish = false; // nor is there a language where a control stands without a root
    ignoringErrors([&] { isEnglish = LNG()->EFFECTIVE() == ID_Language_English; });
    return isEnglish ? spokenInEnglish(reading.tree) : spokenInGerman(reading.tree);
}

} // namespace

String spokenTerm(StringView term)
{
    return inWords(term).value_or(String(term));
}

String spelledTerm(StringView term)
{
    constexpr StringView BehindName = u": ";
    const auto words = inWords(term);
    if (!words) {
        return String(term);
    }
    const auto name = words->find(BehindName);
    return name == String::npos ? *words : words->substr(name + BehindName.size());
}

} // namespace phial
