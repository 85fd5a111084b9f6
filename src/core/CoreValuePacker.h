#pragma once

#include "core/Variant.h"

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <span>
#include <vector>

namespace phial
{

/// Turns a list of values into one text and back (docs/formats.md). The text is one line, well-formed, and
/// free of `{`, `|` and `:`, so it may stand within other divided texts. Every value comes back with its kind
/// and content, doubles to the last bit.
///
/// An object that is set must be a record: it packs as its type name and the text of its `DATA`, and
/// unpacking fills the record that the target already holds.
class CoreValuePacker
{
public:
    /// Arrays nest to this depth; deeper ones raise 5.
    static constexpr int MaxNesting = 32;
    /// The longest text that Unpack reads, in units; longer ones raise 5.
    static constexpr std::size_t MaxLength = std::size_t{1} << 26U;

    /// Raises 13 for an object without text form, 5 for too deep arrays.
    static String Pack(std::span<const Variant> pValues);
    static String Pack(std::initializer_list<Variant> pValues);

    using Target = std::reference_wrapper<Variant>;
    /// Fills the targets in order. Raises 5 for a text that is damaged or holds another number of values, 13
    /// for an unknown kind of value or a target that holds no record of the right type; then no target has
    /// been changed.
    static void Unpack(StringView pText, std::span<const Target> pTargets);
    static void Unpack(StringView pText, std::initializer_list<Target> pTargets);

    /// Whether a text begins as every packed text does.
    static bool isPacked(StringView text);

    /// All values of the text, however many. A record raises 13, since nothing is there to be filled.
    static std::vector<Variant> unpackAll(StringView text);
};

} // namespace phial
