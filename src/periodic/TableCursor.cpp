#include "periodic/TableCursor.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace phial
{

namespace
{

constexpr double FirstFreeRow = 7; // from here on rows do not follow the columns of the periods
constexpr double LastRow = 9;

/// Where a row below the table has its place in a period.
struct RowHinge {
    double row;
    double period;
    double before; ///< the column that its first element follows
    double behind; ///< the column that follows its last element
};

constexpr auto Hinges = std::to_array<RowHinge>({{8, 5, 2, 3}, {9, 6, 2, 3}});

using Stops = std::span<const CursorStop>;

/// The best of the stops that `isCandidate`, the one with the least distance, and of equal ones the left one.
template <typename Candidate, typename Distance>
std::optional<std::size_t> best(Stops stops, const Candidate& isCandidate, const Distance& distance)
{
    std::optional<std::size_t> found;
    const auto isBetter = [&](const CursorStop& stop, const CursorStop& than) {
        const double here = distance(stop);
        const double there = distance(than);
        return here < there || (here == there && stop.column < than.column);
    };
    for (std::size_t at = 0; at < stops.size(); ++at) {
        if (isCandidate(stops[at]) && (!found || isBetter(stops[at], stops[*found]))) {
            found = at;
        }
    }
    return found;
}

std::optional<std::size_t> stopAt(Stops stops, double row, double column)
{
    const auto found = std::ranges::find_if(
        stops, [=](const CursorStop& stop) { return stop.row == row && stop.column == column; });
    return found == stops.end() ? std::nullopt
                                : std::optional(static_cast<std::size_t>(found - stops.begin()));
}

/// Beyond the end of its row, for a row that hangs in a period.
std::optional<std::size_t> beyondRow(Stops stops, double row, bool isRight)
{
    const auto* const hinge = std::ranges::find(Hinges, row, &RowHinge::row);
    return hinge == Hinges.end() ? std::nullopt
                                 : stopAt(stops, hinge->period, isRight ? hinge->behind : hinge->before);
}

std::optional<std::size_t> besides(Stops stops, const CursorStop& from, bool isRight)
{
    const auto way = [&](const CursorStop& stop) {
        return isRight ? stop.column - from.column : from.column - stop.column;
    };
    const auto found = best(
        stops, [&](const CursorStop& stop) { return stop.row == from.row && way(stop) > 0; }, way);
    return found ? found : beyondRow(stops, from.row, isRight);
}

std::optional<std::size_t> inColumn(Stops stops, const CursorStop& from, bool isDown)
{
    const auto aside = [&](const CursorStop& stop) { return std::abs(stop.column - from.column); };
    for (double row = from.row + (isDown ? 1 : -1); row >= 0 && row <= LastRow; row += isDown ? 1 : -1) {
        const bool countsNearest = row >= FirstFreeRow || from.row >= FirstFreeRow;
        const auto found = best(
            stops,
            [&](const CursorStop& stop) { return stop.row == row && (countsNearest || aside(stop) == 0); },
            aside);
        if (found) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> endOfRow(Stops stops, double row, bool isRight)
{
    return best(
        stops, [=](const CursorStop& stop) { return stop.row == row; },
        [=](const CursorStop& stop) { return isRight ? -stop.column : stop.column; });
}

std::optional<std::size_t> lastElement(Stops stops)
{
    for (std::size_t at = stops.size(); at > 0; --at) {
        if (stops[at - 1].isElement) {
            return at - 1;
        }
    }
    return std::nullopt;
}

bool beginsWith(StringView symbol, StringView letters)
{
    return symbol.size() >= letters.size() && equalsIgnoringCase(symbol.substr(0, letters.size()), letters);
}

/// The symbol that the letters are, else the first that begins with them.
std::optional<std::size_t> symbolOf(std::span<const String> symbols, StringView letters)
{
    const auto position = [&](auto found) {
        return found == symbols.end() ? std::nullopt
                                      : std::optional(static_cast<std::size_t>(found - symbols.begin()));
    };
    const auto same = position(std::ranges::find_if(
        symbols, [&](const String& symbol) { return equalsIgnoringCase(symbol, letters); }));
    return same ? same : position(std::ranges::find_if(symbols, [&](const String& symbol) {
        return beginsWith(symbol, letters);
    }));
}

} // namespace

std::optional<CursorStep> cursorStepOf(const KeyEvent& key)
{
    using enum CursorStep;
    if (key.Shift == ShiftMask::Control) {
        return key.is(Key::Home)  ? std::optional(First)
               : key.is(Key::End) ? std::optional(Last)
                                  : std::nullopt;
    }
    if (key.Shift != 0) {
        return std::nullopt;
    }
    switch (static_cast<Key>(key.KeyCode)) {
    case Key::Left:
        return Left;
    case Key::Right:
        return Right;
    case Key::Up:
        return Up;
    case Key::Down:
        return Down;
    case Key::Home:
        return RowStart;
    case Key::End:
        return RowEnd;
    default:
        return std::nullopt;
    }
}

std::size_t stopAfter(std::span<const CursorStop> stops, std::size_t from, CursorStep step)
{
    const CursorStop& here = stops[from];
    const auto reached = [&]() -> std::optional<std::size_t> {
        switch (step) {
        case CursorStep::Left:
        case CursorStep::Right:
            return besides(stops, here, step == CursorStep::Right);
        case CursorStep::Up:
        case CursorStep::Down:
            return inColumn(stops, here, step == CursorStep::Down);
        case CursorStep::RowStart:
        case CursorStep::RowEnd:
            return endOfRow(stops, here.row, step == CursorStep::RowEnd);
        case CursorStep::First:
            return 0;
        case CursorStep::Last:
            return lastElement(stops);
        }
        return std::nullopt;
    }();
    return reached.value_or(from);
}

std::optional<std::size_t> nearestStop(std::span<const CursorStop> stops, const CursorStop& place)
{
    return best(
        stops, [](const CursorStop&) { return true; },
        [&](const CursorStop& stop) { return std::hypot(stop.row - place.row, stop.column - place.column); });
}

std::optional<std::size_t> LetterSearch::find(char16_t letter, double seconds,
                                              std::span<const String> symbols,
                                              std::optional<std::size_t> from)
{
    const bool goesOn = !typed_.empty() && seconds - last_ <= Patience;
    last_ = seconds;
    if (goesOn) {
        if (const auto spelt = symbolOf(symbols, typed_ + letter)) {
            typed_ += letter;
            return spelt;
        }
    }
    typed_ = letter;
    if (from && *from < symbols.size() && beginsWith(symbols[*from], typed_)) {
        for (std::size_t further = 1; further <= symbols.size(); ++further) {
            const std::size_t next = (*from + further) % symbols.size();
            if (beginsWith(symbols[next], typed_)) {
                return next;
            }
        }
    }
    return symbolOf(symbols, typed_);
}

} // namespace phial
