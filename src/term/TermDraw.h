#pragma once

#include "core/String.h"
#include "term/TermLayout.h"
#include "visual/Alignment.h"

#include <cstdint>

namespace phial
{

class DrawDevice;

/// Draws a term: a formula in the one-line notation, such as `SO4^2-` or `2H2 + O2 -> 2H2O`. What becomes a
/// subscript or a superscript is decided from the text:
///
///     digits behind a symbol or ")"   lowered      H2O, Ca(OH)2
///     a sign that nothing follows     raised       Na+, Fe3+
///     ^ and µ                         raise and lower what follows, from behind the last letter, digit or
///                                     "]" in the line: back over an index, but over a ")" too
///     #                               ends raising and lowering; #^ raises from here: c(NH3)#^2, 10^2#^3
///     (a)/(b)                         a fraction, numerator and denominator left-aligned
///     -> <- ~~ * =^                   arrows, approximation sign, middle dot, sign for correspondence
///     §                               all that follows is red
///     |                               strikes through what follows it
///     2 H2O                           a number and a blank at the start make the term bold
///
/// The term is walked twice: once to measure, once to draw at the aligned place. A fraction has no width
/// while measuring, so a term with one stands off a centred or right anchor by the fraction's width. Font
/// size, colour, bold and CurrentY are restored; CurrentX stays behind the term. Time and memory grow with
/// the length of the term, however deep its brackets are. Arrows and signs ask the device for the fonts
/// Symbol, Marlett and Wingdings.
///
/// @param pDevice    where to draw; all places are in its scale
/// @param pText      the term; no text is refused
/// @param pX, pY     the anchor point; -1 stands for the device's current position
/// @param pAlign     where the anchor point is: left of the term, above its middle, its lower right corner, …
/// @param pCalcOnly  ends the call at once: nothing drawn, width 0, all out values -1
/// @param pCaret     caret index: 0 before the first character, k behind character k, -1 for no caret. A
/// place inside
///                   a two-character sign or a fraction has no caret.
/// @param rCaretX    X of the caret; -1 when it is not drawn
/// @param rPrevIndex index before the caret; -1 when the caret is not drawn (and before the first character)
/// @param rNextIndex index behind the caret; -1 when the caret is not drawn
/// @return the width in the measuring walk, rounded to a whole number
std::int32_t TermDraw(DrawDevice& pDevice, StringView pText, std::int32_t pX, std::int32_t pY,
                      TEXTALIGN pAlign, bool pCalcOnly, std::int32_t pCaret, std::int32_t& rCaretX,
                      std::int32_t& rPrevIndex, std::int32_t& rNextIndex);

/// The same without a caret.
std::int32_t TermDraw(DrawDevice& pDevice, StringView pText, std::int32_t pX = -1, std::int32_t pY = -1,
                      TEXTALIGN pAlign = TEXTALIGN::MiddleLeft);

/// Sets the term out as the same arguments of TermDraw would draw it, with all places of the caret as
/// TermDraw would give them one by one. The first place is that before the term, the last one that behind it.
/// Nothing is drawn, and the device is left as it was.
TermLayout layOutTerm(DrawDevice& device, StringView term, std::int32_t x, std::int32_t y, TEXTALIGN align);

/// How much room a term takes in that font, in pixels: from its first to behind its last sign, and from
/// raised signs to lowered ones, or to the end of a fraction's denominator.
PixelSize termSize(StringView term, const FontSpec& font);

} // namespace phial
