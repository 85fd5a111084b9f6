#pragma once

#include "term/ctl_TermLabel.h"

#include <optional>

namespace learning
{

/// The size in points, from 39 (52 pixels) down to 24 (32 pixels) in steps, in which a formula is no wider
/// than that many pixels; none when even the smallest is too large.
std::optional<double> fittingTermSize(phial::StringView term, double width);

/// Shows the formula as large as it fits.
void showFitting(phial::ctl_TermLabel& label, phial::StringView term);

} // namespace learning
