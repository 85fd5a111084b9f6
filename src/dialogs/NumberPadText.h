#pragma once

#include "core/String.h"

#include <cstddef>

namespace phial
{

/// The text on the pad for numbers, and what its keys make of it; it knows no form. The caret stands behind
/// the text after each key.
///
/// The first key that types replaces the number with which the pad began; every other key, and what is typed
/// on the desk, works on that number. The text need not be a number while one types ("-", ",5", "1,,2"); what
/// is read in the end is the number at its beginning, or 0.
class NumberPadText
{
public:
    struct Selection {
        std::size_t start = 0;
        std::size_t length = 0;
    };

    /// Begins with the number that is read from a text, rounded to four decimals. The decimal sign is that of
    /// the texts that are made; comma and point are read.
    NumberPadText(StringView text, char16_t decimalSign);

    const String& text() const { return text_; }
    /// Whether a key has been pressed, or something typed on the desk.
    bool isTouched() const { return isTouched_; }
    /// The number that is read from the text, as a plain one.
    String number() const;

    /// A key by its name. One that types goes over what is selected, or else behind the text:
    ///
    ///     CLEAR       nothing is left
    ///     BACKSPACE   the last character goes, and a minus or decimal sign that then stands last
    ///     SWAP        "" and "0" become "-", "-" becomes "", any other number gets the other sign
    ///     another     its name in capitals is typed
    void press(StringView key, Selection selection);
    /// The user has changed the text without a key of the pad.
    void typed(const String& text);

private:
    void dropLast();
    void swapSign();

    String text_;
    char16_t decimalSign_;
    bool isTouched_ = false;
};

} // namespace phial
