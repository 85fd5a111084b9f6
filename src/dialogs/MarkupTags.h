#pragma once

#include "core/String.h"

namespace phial
{

/// A stretch of a text, in units.
struct TextRange {
    std::size_t start = 0;
    std::size_t length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// One change of a text: what stands at `range` becomes `text`, and then `selection` is selected in the
/// whole.
struct MarkupEdit {
    TextRange range;
    String text;
    TextRange selection;

    String applied(StringView whole) const;

    friend bool operator==(const MarkupEdit&, const MarkupEdit&) = default;
};

/// What a format does to the selected part of a text of markup. The tag is the format's key in lower case,
/// whatever it is.
///
/// The tag is put around the selection, also where it then crosses another tag, and the same part stays
/// selected. Where just this part is in the format already, it is taken off: where an opening tag and the
/// closing one that belongs to it stand around the selection or are its ends, with nothing but tags between.
/// So pressing a format twice changes nothing. An opening tag belongs to a closing one as for labels: the
/// latest one of the name that is still open.
///
///     markupEdit(u"ab", {0, 1}, u"B")        // <b>a</b>b, "a" selected
///     markupEdit(u"<b>a</b>b", {3, 1}, u"B") // ab, "a" selected
MarkupEdit markupEdit(StringView text, TextRange selection, StringView format);

/// The markup with tags that do not cross, looking the same on a label: a tag is closed and opened again
/// where it would cross another one. Of a text that has such faults (a closing tag without an opening one and
/// a tag that stays open are faults too), tags that change nothing are left out. A text without faults stays
/// as it is.
String repairedMarkup(StringView text);

} // namespace phial
