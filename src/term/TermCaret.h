#pragma once

#include "term/TermDraw.h"

#include <span>
#include <vector>

namespace phial
{

/// The places at which a caret can stand in a drawn term. Within a sign of two characters, a fraction or a
/// pair of surrogates there is none, so an index can be without a place of its own.
class TermCaret
{
public:
    /// Of an empty term at 0.
    TermCaret() : places_{{}} {}
    explicit TermCaret(const TermLayout& layout) : places_(layout.places()) {}
    /// The places that TermDraw has with these arguments. Nothing is drawn; the time grows with the term.
    TermCaret(DrawDevice& device, StringView term, std::int32_t x, std::int32_t y, TEXTALIGN align)
        : TermCaret(layOutTerm(device, term, x, y, align))
    {
    }

    /// By rising index, at least one; the X of an index behind it can be the smaller one, as a charge begins
    /// above the index.
    std::span<const TermCaretPlace> places() const { return places_; }

    /// The index whose place lies nearest to that X; the first of those that lie equally near.
    std::int32_t indexAt(double x) const;

    /// Where a caret with that index is shown: at its place or, where it has none, at the nearest before.
    TermCaretPlace shownAt(std::int32_t index) const;

    /// How far the places reach.
    std::int32_t left() const;
    std::int32_t right() const;

private:
    std::vector<TermCaretPlace> places_;
};

} // namespace phial
