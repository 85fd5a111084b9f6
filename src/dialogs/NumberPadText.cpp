#include "dialogs/NumberPadText.h"

#include "core/Arithmetic.h"
#include "core/CoreNumbers.h"
#include "core/NumberText.h"

namespace phial
{

namespace
{

constexpr int DecimalsAtFirst = 4;

double numberIn(StringView text)
{
    double value = 0;
    CoreNumbers::ToDouble(text, value); // of what is no number its beginning counts
    return value;
}

} // namespace

NumberPadText::NumberPadText(StringView text, char16_t decimalSign)
    : text_(plainText(roundToDecimals(numberIn(text), DecimalsAtFirst), decimalSign)),
      decimalSign_(decimalSign)
{
}

String NumberPadText::number() const
{
    return plainText(numberIn(text_), decimalSign_);
}

void NumberPadText::press(StringView key, Selection selection)
{
    if (key == u"CLEAR") {
        text_.clear();
    } else if (key == u"BACKSPACE") {
        dropLast();
    } else if (key == u"SWAP") {
        swapSign();
    } else if (!isTouched_) {
        text_ = upperCase(key);
    } else if (selection.length > 0) {
        text_.replace(selection.start, selection.length, upperCase(key));
    } else {
        text_ += upperCase(key);
    }
    isTouched_ = true;
}

void NumberPadText::typed(const String& text)
{
    text_ = text;
    isTouched_ = true;
}

void NumberPadText::dropLast()
{
    if (text_.empty()) {
        return;
    }
    text_.pop_back();
    if (text_.ends_with(u'-') || text_.ends_with(decimalSign_)) {
        text_.pop_back();
    }
}

void NumberPadText::swapSign()
{
    if (text_.empty() || text_ == u"0") {
        text_ = u"-";
    } else if (text_ == u"-") {
        text_.clear();
    } else {
        text_ = plainText(-numberIn(text_), decimalSign_);
    }
}

} // namespace phial
