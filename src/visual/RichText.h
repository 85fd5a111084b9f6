#pragma once

#include "core/String.h"
#include "visual/FontSpec.h"

namespace phial
{

/// Plain text as a rich-text document in one font. Lines, parted by CR LF or LF, become paragraphs; signs
/// outside ASCII are written as code units, so any reader gets the same text.
String toRichText(StringView plain, const FontSpec& font);

/// Whether a text begins as a rich-text document.
bool isRichText(StringView text);

/// The text of a rich-text document: paragraphs and line breaks become CR LF, formats, tables of fonts and
/// colours and pictures fall away. A document that ends early gives what was read until then. Nesting has no
/// limit but the length.
String richTextToPlain(StringView document);

} // namespace phial
