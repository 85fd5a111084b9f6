#pragma once

#include <span>
#include <vector>

namespace phial::test
{

/// How alike two sounds of the same length are: 1 when one is the other, louder or softer.
double correlation(std::span<const float> left, std::span<const float> right);

bool isSilent(float sample);

/// What was heard, without silence before, behind and within it. A busy machine makes pauses when the program
/// gets no time to hand on samples; `rPauses` tells how many there were.
std::vector<float> withoutSilence(const std::vector<float>& samples, int& rPauses);

} // namespace phial::test
