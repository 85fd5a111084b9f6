// Draws any text as a term and as HTML; the first byte chooses alignment and caret.

#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "term/TermDraw.h"
#include "term/TermHtml.h"
#include "visual/DrawDevice.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    if (size == 0) {
        return 0;
    }
    const auto align = static_cast<TEXTALIGN>(data[0] % 12);
    const std::int32_t caret = data[0] / 12;
    const String term = fromUtf8({reinterpret_cast<const char*>(data) + 1, size - 1});

    const auto backend = std::make_shared<headless::RecordingBackend>(
        PixelSize{200, 40}, std::make_shared<headless::FixedTextMetrics>());
    DrawDevice device(backend);
    device.CurrentY(5);
    std::int32_t caretX = 0;
    std::int32_t previous = 0;
    std::int32_t next = 0;
    TermDraw(device, term, 10, 20, align, false, caret, caretX, previous, next);
    if (device.FontName() != u"Tahoma" || device.FontSize() != 8 || device.FontBold() ||
        device.CurrentY() != 5 || (next == -1 && caretX != -1)) {
        std::abort();
    }
    if (termToHtml(term).size() < term.size()) {
        std::abort();
    }
    return 0;
}
