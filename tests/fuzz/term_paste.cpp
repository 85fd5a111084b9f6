// Reads any clipboard contents as a term, and copies it again; the first byte tells where the text ends and
// the HTML begins.

#include "term/TermCopy.h"
#include "term/TermPaste.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace
{

bool isOneLine(phial::StringView term)
{
    for (std::size_t at = 0; at < term.size(); ++at) {
        const bool isPair =
            phial::isHighSurrogate(term[at]) && at + 1 < term.size() && phial::isLowSurrogate(term[at + 1]);
        const bool isHalf = phial::isHighSurrogate(term[at]) || phial::isLowSurrogate(term[at]);
        if (term[at] < u' ' || (isHalf && !isPair)) {
            return false;
        }
        at += isPair ? 1 : 0;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    if (size == 0) {
        return 0;
    }
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::size_t split = bytes.size() * data[0] / 255;
    const String text = fromUtf8(bytes.substr(0, split));
    const String html = fromUtf8(bytes.substr(split));

    const String term = termOfClipboard(text, html);
    constexpr std::size_t MostUnitsEach = 4; // "#^" and the sign, which can be two
    if (!isOneLine(term) || term.size() > MostUnitsEach * (text.size() + html.size()) ||
        !isOneLine(termOfText(html))) {
        std::abort();
    }
    if (termOfClipboard(textOfTerm(term), htmlOfTerm(term)) != term) {
        std::abort();
    }
    return 0;
}
