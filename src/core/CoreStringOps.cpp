#include "core/CoreStringOps.h"

#include "core/RuntimeError.h"

#include <cstddef>

namespace phial
{

namespace
{

std::size_t findDelimiter(StringView text, StringView delimiter)
{
    return delimiter.empty() ? StringView::npos : text.find(delimiter);
}

/// The greatest length up to `length` at which a cut parts no pair of surrogates.
std::size_t unpairedCut(StringView text, std::size_t length)
{
    const bool insidePair = length > 0 && length < text.size() && isHighSurrogate(text[length - 1]) &&
                            isLowSurrogate(text[length]);
    return insidePair ? length - 1 : length;
}

} // namespace

String CoreStringOps::Before(StringView pText, StringView pDelimiter, bool pEmptyIfMissing)
{
    const std::size_t at = findDelimiter(pText, pDelimiter);
    if (at == StringView::npos) {
        return pEmptyIfMissing ? String() : String(pText);
    }
    return String(pText.substr(0, at));
}

String CoreStringOps::After(StringView pText, StringView pDelimiter, bool pEmptyIfMissing)
{
    const std::size_t at = findDelimiter(pText, pDelimiter);
    if (at == StringView::npos) {
        return pEmptyIfMissing ? String() : String(pText);
    }
    return String(pText.substr(at + pDelimiter.size()));
}

bool CoreStringOps::Field(StringView pText, StringView pSeparator, std::int32_t pIndex, String& rField)
{
    const auto fields = split(pText, pSeparator);
    if (pIndex < 1 || static_cast<std::size_t>(pIndex) > fields.size()) {
        rField.clear();
        return false;
    }
    rField = String(fields[static_cast<std::size_t>(pIndex - 1)]);
    return true;
}

String CoreStringOps::Shorten(StringView pText, std::int32_t pLength, StringView pBreak,
                              std::int32_t pMinimum, bool pCutAnyway)
{
    if (pLength < 0 || pMinimum < 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const auto length = static_cast<std::size_t>(pLength);
    if (pText.size() <= length) {
        return String(pText);
    }
    // A break may begin right behind the part that is kept.
    const std::size_t lastBreak = pBreak.empty() ? StringView::npos : pText.rfind(pBreak, length);
    if (lastBreak != StringView::npos && lastBreak > 0 && lastBreak >= static_cast<std::size_t>(pMinimum)) {
        return String(pText.substr(0, lastBreak));
    }
    return String(pCutAnyway ? pText.substr(0, unpairedCut(pText, length)) : pText);
}

} // namespace phial
