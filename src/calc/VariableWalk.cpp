#include "calc/VariableWalk.h"

#include "core/CoreNumbers.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <vector>

namespace phial
{

namespace
{

bool isWordUnit(char16_t unit)
{
    const char16_t capital = upperCase(unit);
    return (capital >= u'A' && capital <= u'Z') || (unit >= u'0' && unit <= u'9') || unit == u'.';
}

/// Whether a variable's name, as a rule a text and then not copied, is the word.
bool isNamed(const Variant& name, StringView word)
{
    return name.isText() ? equalsIgnoringCase(name.text(), word) : equalsIgnoringCase(name.toText(), word);
}

/// The part of a term that has not been walked: what remains of the term, in front of it what remains of the
/// value put in last, and so on.
class Rest
{
public:
    explicit Rest(StringView term) : term_(term), length_(term.size()) {}

    std::size_t length() const { return length_; }

    char16_t take()
    {
        --length_;
        if (values_.empty()) {
            return term_[termPosition_++];
        }
        Value& value = values_.back();
        const char16_t unit = value.text[value.position++];
        if (value.position == value.text.size()) {
            values_.pop_back();
        }
        return unit;
    }

    /// Puts a text, which must not be empty, in front.
    void putBack(String text)
    {
        length_ += text.size();
        values_.push_back({std::move(text), 0});
    }

private:
    struct Value {
        String text;
        std::size_t position;
    };
    StringView term_;
    std::size_t termPosition_ = 0;
    std::vector<Value> values_;
    std::size_t length_;
};

/// Notices values that put each other in without end: a variable comes up again although the walk has not got
/// beyond the place where it was found.
class EndlessGuard
{
public:
    void check(std::size_t variable, std::size_t restLength)
    {
        while (!open_.empty() && open_.back().restLength > restLength) {
            open_.pop_back();
        }
        if (std::ranges::find(open_, variable, &Found::variable) != open_.end()) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        open_.push_back({variable, restLength});
    }

private:
    struct Found {
        std::size_t variable;
        std::size_t restLength;
    };
    std::vector<Found> open_;
};

class VariableWalk
{
public:
    VariableWalk(StringView term, std::span<const Variant> variables, VariableErrors errors)
        : rest_(term), variables_(variables), errors_(errors)
    {
        walked_.reserve(term.size());
    }

    String run()
    {
        while (rest_.length() > 0) {
            walked_.push_back(rest_.take());
            if (isWordUnit(walked_.back())) {
                ++wordLength_;
            } else if (wordLength_ > 0) {
                endWord();
            }
        }
        return std::move(walked_);
    }

private:
    void endWord()
    {
        if (errors_ == VariableErrors::Ignored) {
            ignoringErrors([this] { putIn(); });
        } else {
            putIn();
        }
        wordLength_ = 0;
    }

    /// Puts the value in for the word in front of the last walked character. The walk stays at its position.
    void putIn()
    {
        const std::size_t position = walked_.size();
        const std::size_t wordBegin = position - 1 - wordLength_;
        const std::size_t name = indexOf(StringView(walked_).substr(wordBegin, wordLength_));
        if (name == variables_.size()) {
            return;
        }
        if (name + 1 == variables_.size()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        String value = CoreNumbers::Invariant().Format(variables_[name + 1].toReal());
        guard_.check(name, rest_.length());

        rest_.putBack(String(1, walked_.back()));
        rest_.putBack(std::move(value));
        walked_.resize(wordBegin);
        while (walked_.size() < position && rest_.length() > 0) {
            walked_.push_back(rest_.take());
        }
    }

    /// The even index of the variable of this name; the number of slots when there is none.
    std::size_t indexOf(StringView word) const
    {
        for (std::size_t name = 0; name < variables_.size(); name += 2) {
            if (isNamed(variables_[name], word)) {
                return name;
            }
        }
        return variables_.size();
    }

    Rest rest_;
    std::span<const Variant> variables_;
    VariableErrors errors_;
    String walked_;
    /// The word being read is the end of walked_.
    std::size_t wordLength_ = 0;
    EndlessGuard guard_;
};

} // namespace

String withVariables(StringView term, std::span<const Variant> variables, VariableErrors errors)
{
    return VariableWalk(term, variables, errors).run();
}

} // namespace phial
