#include "core/CoreText.h"

namespace phial
{

String CoreText::Replace(StringView pText, StringView pFind, StringView pWith, bool pIgnoreCase)
{
    if (!pIgnoreCase || pFind.empty()) {
        return replaced(pText, pFind, pWith);
    }
    // Case mapping keeps the length, so places in the capitals are places in the text.
    const String capitals = upperCase(pText);
    const String find = upperCase(pFind);
    String result;
    std::size_t from = 0;
    for (std::size_t hit; (hit = capitals.find(find, from)) != String::npos; from = hit + find.size()) {
        result += pText.substr(from, hit - from);
        result += pWith;
    }
    return result += pText.substr(from);
}

} // namespace phial
