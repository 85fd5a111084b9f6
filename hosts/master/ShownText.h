#pragma once

#include "core/String.h"

#include <cstddef>
#include <vector>

namespace phial::master
{

/// What pupils have written, fit to stand in a line that a teacher reads.
///
/// Signs that cannot be seen, and those that turn the writing direction, stand as their number in angle
/// quotes (`‹202E›`); of marks that pile up above a letter two remain. So no text can hide a part of itself
/// or of its neighbours. Blanks of all kinds become the blank.
///
/// | from outside | `shownSafely` | `isDoubtful` |
/// |---|---|---|
/// | `Zoë` | `Zoë` | no |
/// | `An` U+200B `na` | `An‹200B›na` | yes |
/// | `Аnna` with a Cyrillic `А` | as it is | yes |
/// | `Анна` | as it is | no |
String shownSafely(StringView text);

/// Whether a name may be meant to deceive: hidden signs, signs that are letters in disguise, or letters of
/// several alphabets in one word.
bool isDoubtful(StringView text);

/// What a name looks like: equal for names that people take for one another, such as `Ida` and `lda`.
String lookOf(StringView text);

/// Which of the names in one table are doubtful, by themselves or since another one looks the same.
std::vector<bool> doubtfulOf(const std::vector<String>& names);

/// A shown text that holds writing from right to left, between the signs that keep it to itself; any other
/// text as it is.
String isolated(StringView shown);

/// How many columns of a terminal a shown text takes, and its beginning that takes at most so many.
std::size_t columnsOf(StringView shown);
StringView firstColumns(StringView shown, std::size_t columns);

} // namespace phial::master
