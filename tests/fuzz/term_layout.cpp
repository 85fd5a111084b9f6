// Sets any text out as a term; the first bytes choose alignment and size of the font. Each place of the caret
// is where drawing with that caret has it, and what is drawn from the layout is what is drawn at once.

#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "term/TermCaret.h"
#include "term/TermDraw.h"
#include "visual/DrawDevice.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace
{

using namespace phial;

constexpr std::int32_t X = 150;
constexpr std::int32_t Y = 50;
constexpr std::size_t LongestTrial = 64; // units; each place is drawn by itself

/// A device of its own, so that nothing is left over from what was drawn before.
struct Surface {
    explicit Surface(double fontSize) { device.FontSize(fontSize); }

    /// The characters alone, and the lines.
    std::string drawn() const
    {
        std::string all;
        for (const std::string& line : backend->lines()) {
            if (line.starts_with("text ")) {
                const auto from = line.find('"') + 1;
                all += line.substr(from, line.rfind('"') - from);
            } else {
                all += '\n' + line + '\n';
            }
        }
        return all;
    }

    std::shared_ptr<headless::RecordingBackend> backend = std::make_shared<headless::RecordingBackend>(
        PixelSize{400, 100}, std::make_shared<headless::FixedTextMetrics>());
    DrawDevice device{backend};
};

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// A field holds one line.
String oneLine(std::string_view bytes)
{
    String term = fromUtf8(bytes);
    std::ranges::replace_if(
        term, [](char16_t unit) { return unit < u' '; }, u' ');
    return term;
}

std::int32_t drawnCaret(const String& term, double size, TEXTALIGN align, std::int32_t index)
{
    Surface surface(size);
    std::int32_t x = 0;
    std::int32_t previous = 0;
    std::int32_t next = 0;
    TermDraw(surface.device, term, X, Y, align, false, index, x, previous, next);
    return next == -1 ? -1 : x;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t Choices = 2;
    if (size < Choices) {
        return 0;
    }
    const auto align = static_cast<TEXTALIGN>(data[0] % 12);
    const double fontSize = 1 + data[1] / 4.0;
    const String term = oneLine({reinterpret_cast<const char*>(data) + Choices, size - Choices});

    Surface surface(fontSize);
    const TermLayout layout = layOutTerm(surface.device, term, X, Y, align);
    require(surface.backend->lines().empty());
    const TermCaret caret(layout);
    require(caret.places().front().index == 0 &&
            caret.places().back().index == static_cast<std::int32_t>(term.size()));

    Surface atOnce(fontSize);
    TermDraw(atOnce.device, term, X, Y, align);
    layout.draw(surface.device, 0, -1);
    require(surface.drawn() == atOnce.drawn());

    if (term.size() <= LongestTrial) {
        for (std::int32_t index = 0; index <= static_cast<std::int32_t>(term.size()); ++index) {
            const TermCaretPlace shown = caret.shownAt(index);
            const std::int32_t x = drawnCaret(term, fontSize, align, index);
            require(shown.index == index ? x == shown.x : x == -1);
        }
    }
    return 0;
}
