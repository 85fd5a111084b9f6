#pragma once

#include "core/String.h"

#include <cstdint>
#include <deque>

namespace phial
{

/// A one-line text being edited, and its caret: 0 before the first unit, k behind unit k. A pair of
/// surrogates is one character: the caret passes over it, and it is typed and erased as a whole.
///
/// What the user does can be undone step by step, up to StepsKept of them; a text that the program sets
/// begins anew. The operations below tell whether the text (or, for those that move, the caret) is another
/// than before.
class TermEdit
{
public:
    static constexpr std::size_t StepsKept = 500;
    /// The units that a text can grow to by the user's hand; what would be more is left out.
    static constexpr std::size_t LongestText = 10'000;

    StringView view() const { return text_; }
    String text() const { return text_; }
    /// The program's text. The caret's index stays and is held to the length whenever it is used.
    void text(String value);

    /// Never behind the text or within a pair.
    std::int32_t caret() const { return static_cast<std::int32_t>(place()); }
    /// Any value; it is held as above.
    void caret(std::int32_t value);

    /// A unit as it is typed. The first half of a pair waits for the second; a half alone is dropped.
    bool type(char16_t unit);
    bool insert(StringView piece);
    bool eraseBefore();
    bool eraseBehind();
    /// Another piece for so many units from a place on, all held to the text; the caret comes behind it.
    bool replace(std::size_t at, std::size_t length, StringView piece);
    /// Another whole text. The caret's index stays.
    bool replace(StringView whole);
    /// Takes everything away.
    bool clear() { return replace({}); }

    bool moveLeft() { return moveTo(before(place())); }
    bool moveRight() { return moveTo(behind(place())); }
    bool moveToStart() { return moveTo(0); }
    bool moveToEnd() { return moveTo(text_.size()); }

    bool undo();
    bool redo();

private:
    /// What one step has taken out and put in, and the caret's index before and behind it.
    struct Step {
        std::size_t at;
        String removed;
        String inserted;
        std::size_t caretBefore;
        std::size_t caretBehind;
    };

    std::size_t place() const { return heldPlace(caret_); }
    std::size_t heldPlace(std::size_t index) const;
    std::size_t before(std::size_t place) const;
    std::size_t behind(std::size_t place) const;
    bool moveTo(std::size_t place);
    /// One step of the user's.
    bool change(std::size_t at, std::size_t length, StringView inserted, std::size_t caretBehind);

    String text_;
    std::size_t caret_ = 0; ///< as it was set; may be behind the text
    char16_t firstHalf_ = 0;
    std::deque<Step> steps_;
    std::size_t done_ = 0; ///< steps that have not been undone
};

} // namespace phial
