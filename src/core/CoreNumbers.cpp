#include "core/CoreNumbers.h"

#include "core/NumberText.h"
#include "core/RuntimeError.h"

namespace phial
{

double CoreInvariant::Parse(StringView pText)
{
    const NumberAtStart number = numberAtStart(pText);
    if (number.overflow) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number.value;
}

String CoreInvariant::Format(double pValue)
{
    return plainText(pValue, u'.');
}

bool CoreNumbers::ToDouble(StringView pText, double& rValue)
{
    const NumberAtStart number = typedNumberAtStart(pText);
    rValue = number.value;
    const bool readToTheEnd = pText.find_first_not_of(u' ', number.length) == StringView::npos;
    return number.length > 0 && readToTheEnd && !number.overflow;
}

double CoreNumbers::Lerp(double pNow, double pStart, double pEnd, double pFrom, double pTo)
{
    if (pStart == pEnd) {
        return pTo;
    }
    return pFrom + (pTo - pFrom) * (pNow - pStart) / (pEnd - pStart);
}

} // namespace phial
