#pragma once

#include <cstdint>

namespace phial
{

/// How the lines of fields and plain labels stand.
enum class Alignment : std::int32_t { Left = 0, Right = 1, Centre = 2 };

/// How terms and the texts of styled labels stand in both directions: the first word tells the place in the
/// height. For a term it is the place of its anchor point. A value without a name stands at the left of the
/// top.
enum class TEXTALIGN : std::int32_t {
    MiddleLeft = 0,
    MiddleCentre = 1,
    MiddleRight = 2,
    TopLeftPlain = 3,
    TopLeft = 4,
    TopCentre = 5,
    TopRight = 6,
    BottomLeft = 8,
    BottomCentre = 9,
    BottomRight = 10,
};

/// A side of a line or of the height, whichever way it is counted.
enum class TextSide : std::int32_t { Near, Middle, Far };

struct TextPlace {
    TextSide horizontal = TextSide::Near;
    TextSide vertical = TextSide::Near;

    friend constexpr bool operator==(const TextPlace&, const TextPlace&) = default;
};

constexpr TextSide sideOf(Alignment alignment)
{
    switch (alignment) {
    case Alignment::Right:
        return TextSide::Far;
    case Alignment::Centre:
        return TextSide::Middle;
    case Alignment::Left:
        break;
    }
    return TextSide::Near;
}

constexpr TextPlace placeOf(TEXTALIGN alignment)
{
    constexpr std::int32_t CodesPerRow = 4; // the last one of each row has no name
    constexpr TextSide Sides[] = {TextSide::Near, TextSide::Middle, TextSide::Far};
    constexpr TextSide Rows[] = {TextSide::Middle, TextSide::Near, TextSide::Far};
    const auto code = static_cast<std::int32_t>(alignment);
    if (code < 0 || code / CodesPerRow > 2 || code % CodesPerRow > 2) {
        return {};
    }
    return {Sides[code % CodesPerRow], Rows[code / CodesPerRow]};
}

/// How far a side lies from the beginning of a length.
constexpr double along(double length, TextSide side)
{
    return side == TextSide::Near ? 0 : side == TextSide::Middle ? length / 2 : length;
}

} // namespace phial
