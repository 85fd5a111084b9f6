#pragma once

#include "core/Variant.h"

namespace phial
{
class Form;
}

namespace learning
{

/// The text in the language in force, with the values in place of {1}, {2}, …
phial::String translate(phial::StringView german, phial::StringView english,
                        const phial::Variant::Array& values = {});

/// The same of one text, "German|English".
phial::String translate(phial::StringView both, const phial::Variant::Array& values = {});

/// A whole number as it is read.
phial::String number(int value);

/// The decimal sign of the language in force, whatever the computer's settings say.
char16_t decimalSign();

/// Gives a label its text.
void caption(const phial::Form& form, phial::StringView label, phial::String text);

} // namespace learning
