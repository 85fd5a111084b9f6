#include "term/TermEdit.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

/// Whether a place lies between the halves of a pair.
bool partsPair(StringView text, std::size_t place)
{
    return place > 0 && place < text.size() && isHighSurrogate(text[place - 1]) &&
           isLowSurrogate(text[place]);
}

/// The beginning of the text that has room for, without half of a pair.
StringView fitting(StringView text, std::size_t room)
{
    const std::size_t length = std::min(room, text.size());
    return text.substr(0, partsPair(text, length) ? length - 1 : length);
}

} // namespace

void TermEdit::text(String value)
{
    text_ = std::move(value);
    firstHalf_ = 0;
    steps_.clear();
    done_ = 0;
}

void TermEdit::caret(std::int32_t value)
{
    caret_ = heldPlace(value > 0 ? static_cast<std::size_t>(value) : 0);
    firstHalf_ = 0;
}

std::size_t TermEdit::heldPlace(std::size_t index) const
{
    const std::size_t place = std::min(index, text_.size());
    return partsPair(text_, place) ? place - 1 : place;
}

std::size_t TermEdit::before(std::size_t place) const
{
    return place == 0 ? 0 : heldPlace(place - 1);
}

std::size_t TermEdit::behind(std::size_t place) const
{
    const std::size_t next = std::min(place + 1, text_.size());
    return partsPair(text_, next) ? next + 1 : next;
}

bool TermEdit::moveTo(std::size_t place)
{
    firstHalf_ = 0;
    const bool moves = place != this->place();
    caret_ = place;
    return moves;
}

bool TermEdit::type(char16_t unit)
{
    const char16_t first = std::exchange(firstHalf_, u'\0');
    if (isHighSurrogate(unit)) {
        firstHalf_ = unit;
        return false;
    }
    if (!isLowSurrogate(unit)) {
        return insert(StringView(&unit, 1));
    }
    const char16_t pair[] = {first, unit};
    return first != 0 && insert(StringView(pair, 2));
}

bool TermEdit::insert(StringView piece)
{
    const std::size_t at = place();
    const StringView fits = fitting(piece, LongestText - std::min(text_.size(), LongestText));
    return change(at, 0, fits, at + fits.size());
}

bool TermEdit::eraseBefore()
{
    const std::size_t end = place();
    const std::size_t begin = before(end);
    return change(begin, end - begin, {}, begin);
}

bool TermEdit::eraseBehind()
{
    const std::size_t at = place();
    return change(at, behind(at) - at, {}, at);
}

bool TermEdit::replace(std::size_t at, std::size_t length, StringView piece)
{
    const std::size_t begin = heldPlace(at);
    const std::size_t end = std::max(begin, heldPlace(begin + std::min(length, text_.size() - begin)));
    const std::size_t kept = text_.size() - (end - begin);
    const StringView fits = fitting(piece, LongestText - std::min(kept, LongestText));
    return fits != StringView(text_).substr(begin, end - begin) &&
           change(begin, end - begin, fits, begin + fits.size());
}

bool TermEdit::replace(StringView whole)
{
    const StringView fits = fitting(whole, LongestText);
    return fits != text_ && change(0, text_.size(), fits, caret_);
}

bool TermEdit::change(std::size_t at, std::size_t length, StringView inserted, std::size_t caretBehind)
{
    firstHalf_ = 0;
    if (length == 0 && inserted.empty()) {
        return false;
    }
    steps_.resize(done_);
    steps_.push_back({at, text_.substr(at, length), String(inserted), place(), caretBehind});
    if (steps_.size() > StepsKept) {
        steps_.pop_front();
    }
    done_ = steps_.size();
    text_.replace(at, length, inserted);
    caret_ = caretBehind;
    return true;
}

bool TermEdit::undo()
{
    firstHalf_ = 0;
    if (done_ == 0) {
        return false;
    }
    const Step& step = steps_[--done_];
    text_.replace(step.at, step.inserted.size(), step.removed);
    caret_ = step.caretBefore;
    return true;
}

bool TermEdit::redo()
{
    firstHalf_ = 0;
    if (done_ == steps_.size()) {
        return false;
    }
    const Step& step = steps_[done_++];
    text_.replace(step.at, step.removed.size(), step.inserted);
    caret_ = step.caretBehind;
    return true;
}

} // namespace phial
