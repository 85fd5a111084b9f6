#pragma once

#include "core/String.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace phial
{

/// The reference sheets, in the order in which they are named.
enum class ReferenceSheet : std::uint8_t { Elements, Groups, OxidationNumbers, Acids };
inline constexpr std::int32_t ReferenceSheets = 4;

/// Its name in the language in force.
String sheetName(ReferenceSheet sheet);

/// A line of a sheet in the language in force, for finding it, reading it aloud, taking it along and
/// practising.
struct SheetEntry {
    ReferenceSheet sheet = ReferenceSheet::Elements;
    String subject;   ///< what one looks for: a name, a formula, a rule
    String content;   ///< what the sheet says of it
    String spoken;    ///< the content in words, where it has a formula
    String otherwise; ///< further spellings, such as "SO42-"
    String question;  ///< empty for a line that nobody is asked for
    String answer;    ///< a part of the content
    String spokenAnswer;
};

/// All lines of all sheets. Those of the elements are missing where their file cannot be read.
std::vector<SheetEntry> sheetEntries();

/// The entries of that sheet, or of all, that have each of the words somewhere, in capitals or small letters.
/// Those whose subject is what is sought come first, then those whose subject or other spelling begins with
/// it; otherwise in the order of the sheets.
std::vector<SheetEntry> entriesFound(std::span<const SheetEntry> entries, StringView sought,
                                     std::optional<ReferenceSheet> sheet);

/// The entries as lines to paste: subject, content and sheet, with tabulators between them, ended by CR LF.
String entriesAsText(std::span<const SheetEntry> entries);

} // namespace phial
