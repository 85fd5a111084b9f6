#include "chem/ElementNames.h"

#include "chem/ElementSymbols.h"
#include "chem/cls_DataElement.h"

namespace phial
{

String englishNameOf(const cls_DataElement& element)
{
    const int atomicNumber = atomicNumberOf(element.SYMBOL());
    const StringView english = atomicNumber > 0 ? elementOf(atomicNumber).english : StringView();
    if (english.empty() || !element.MATCH(english, true)) {
        return element.NAME();
    }
    return upperCase(english.substr(0, 1)) + String(english.substr(1));
}

} // namespace phial
