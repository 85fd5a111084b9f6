#include "periodic/TableFont.h"

#include "visual/TextMetrics.h"

#include <algorithm>
#include <array>

namespace phial
{

StringView tableFont(const TextMetrics& metrics)
{
    constexpr std::array<StringView, 3> Names{u"Calibri", u"Tahoma", u"Arial"};
    const auto found = std::ranges::find_if(Names, [&](StringView name) { return metrics.hasFont(name); });
    return found == Names.end() ? Names.front() : *found;
}

} // namespace phial
