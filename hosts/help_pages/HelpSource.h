#pragma once

#include "core/String.h"

#include <vector>

namespace help_pages
{

/// A part of a page, from above to below.
struct Block {
    enum class Kind : std::uint8_t { Paragraph, Term, Step, Key, Note, Picture };

    Kind kind = Kind::Paragraph;
    phial::String text; ///< with the markup of labels; a term in its notation; what a picture shows
    phial::String key;  ///< what stands on a key
};

struct Page {
    phial::String title;
    std::vector<Block> blocks;

    /// As a screen reader says it.
    phial::String spoken() const;
};

struct Chapter {
    phial::String title;
    std::vector<Page> pages;
};

/// A help book as its author writes it, line by line:
///
///     # Title of the book      once, at the start
///     = Title of a chapter     one to six of them
///     == Title of a page
///     > 2H2 + O2 -> 2H2O       a term, drawn large
///     * Choose a level.        one of several steps, which are numbered
///     [F1] opens the help      a key or button, and what it does
///     ! Keep this in mind.     a note
///     % atoms H H O            a picture beside the text, see HelpPicture.h
///     anything else            a paragraph with the markup of labels; an empty line ends it
struct Book {
    phial::String title;
    std::vector<Chapter> chapters;

    /// The menu, as a screen reader says it.
    phial::String spoken() const;
    /// Raises 5 for a text of another shape.
    static Book read(phial::StringView source);
};

} // namespace help_pages
