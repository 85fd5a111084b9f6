#include "qt/desktop/LineEnds.h"

namespace phial::qt
{

namespace
{

constexpr StringView DoubleEnd = u"\r\n";

} // namespace

String withSingleEnds(StringView text)
{
    return replaced(text, DoubleEnd, u"\n");
}

String withDoubleEnds(StringView text)
{
    return replaced(withSingleEnds(text), u"\n", DoubleEnd);
}

std::int32_t toSingleEnds(StringView text, std::int32_t position)
{
    const auto end = static_cast<std::size_t>(position);
    std::int32_t ends = 0;
    for (std::size_t at = text.find(DoubleEnd); at != StringView::npos && at + 1 < end;
         at = text.find(DoubleEnd, at + 1)) {
        ++ends;
    }
    return position - ends;
}

std::int32_t toDoubleEnds(StringView text, std::int32_t position)
{
    std::size_t from = 0;
    std::int32_t result = position;
    for (std::size_t at = text.find(DoubleEnd); at != StringView::npos; at = text.find(DoubleEnd, from)) {
        if (at >= static_cast<std::size_t>(result)) {
            break;
        }
        ++result;
        from = at + DoubleEnd.size();
    }
    return result;
}

} // namespace phial::qt
