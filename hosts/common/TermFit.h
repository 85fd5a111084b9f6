#pragma once

#include "term/ctl_TermLabel.h"
#include "visual/ctl_Label.h"

#include <optional>
#include <vector>

namespace learning
{

/// How wide a formula is in that size, in pixels.
double termWidth(phial::StringView term, double points);

/// The size in points, from 39 (52 pixels) down to 24 (32 pixels) in steps, in which a formula is no wider
/// than that many pixels; none when even the smallest is too large.
std::optional<double> fittingTermSize(phial::StringView term, double width);

/// Shows the formula as large as it fits.
void showFitting(phial::ctl_TermLabel& label, phial::StringView term);

/// Shows the text in that size, or in smaller ones down to 10 points (13 pixels) until all its lines have
/// room.
void showFitting(phial::ctl_Label& label, phial::StringView text, double size);

/// The text in lines no wider than the room, broken between words; none where a word is wider, or all of them
/// are higher.
std::optional<std::vector<phial::String>> brokenLines(phial::StringView text, const phial::FontSpec& font,
                                                      phial::PixelSize room);

} // namespace learning
