#pragma once

#include "core/String.h"

#include <cstdint>
#include <vector>

namespace phial
{

class KeyBoard;

/// What a held key offers beside what it types.
struct KeyVariant {
    String text;         ///< what is typed
    String shown;        ///< what is seen of it
    String spoken;       ///< what screen readers say, in the language in force
    bool isTerm = false; ///< it is drawn as a term, see TermDraw

    friend bool operator==(const KeyVariant&, const KeyVariant&) = default;
};

/// Gives the variants of a key as it stands; none where it offers nothing.
using VariantSource = std::vector<KeyVariant> (*)(const KeyBoard& board, std::int32_t index);

/// The characters that a key offers when it is held, in the case of its face: such as "ßšśş" for "s". Empty
/// where there are none.
String variantsOf(StringView face);

/// Likewise for a key of a keyboard for texts.
std::vector<KeyVariant> textVariants(const KeyBoard& board, std::int32_t index);

} // namespace phial
