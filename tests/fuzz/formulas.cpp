// Any text is a formula: the analysis raises nothing but an overflow, lists the symbols in order of first
// appearance, and counts short formulas as the simple reference does.

#include "chem/cls_DataElements.h"
#include "core/RuntimeError.h"
#include "support/FormulaReference.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace
{

using namespace phial;
using test::FormulaReference;

constexpr std::size_t LongestForReference = 200;
constexpr double LargestExact = 9007199254740992.0; // 2^53

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// No value for an overflow; any other error is a fault.
template <typename Work>
auto unlessOverflow(Work&& work) -> std::optional<decltype(work())>
{
    try {
        return work();
    } catch (const RuntimeError& error) {
        require(error.Number() == static_cast<std::int32_t>(ErrorNumber::Overflow));
        return std::nullopt;
    }
}

void compareSymbols(const CoreTokenList& tokens, const CoreStringList& symbols)
{
    std::int32_t distinct = 0;
    for (std::int32_t index = 1; index <= symbols.Count(); ++index) {
        const std::int32_t position = tokens.IndexOf(symbols.Item(index));
        require(position >= 1 && position <= distinct + 1);
        distinct = std::max(distinct, position);
    }
    require(distinct == tokens.Count());
}

void compareCounts(const CoreTokenList& tokens, const FormulaReference::Counts& expected)
{
    require(static_cast<std::size_t>(tokens.Count()) == expected.size());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        const CoreToken& token = tokens.Item(static_cast<std::int32_t>(index) + 1);
        const double count = token.Values().Item(1).toReal();
        require(token.Name() == expected[index].first);
        require(!std::isnan(count) && count >= 0);
        require(expected[index].second < LargestExact ? count == expected[index].second
                                                      : count >= LargestExact / 2);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const String formula = fromUtf8({reinterpret_cast<const char*>(data), size});
    const cls_DataElements table;
    const auto tokens = unlessOverflow([&] { return table.ELEMENTSCOUNT(formula); });
    if (tokens) {
        compareSymbols(*tokens, table.ELEMENTS(formula));
    }
    if (formula.size() <= LongestForReference) {
        const auto expected = unlessOverflow([&] { return FormulaReference::count(formula); });
        require(expected.has_value() == tokens.has_value());
        if (expected) {
            compareCounts(*tokens, *expected);
        }
    }
    return 0;
}
