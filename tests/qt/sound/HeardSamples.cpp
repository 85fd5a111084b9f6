#include "HeardSamples.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace phial::test
{

double correlation(std::span<const float> left, std::span<const float> right)
{
    const auto product = [](std::span<const float> one, std::span<const float> other) {
        return std::inner_product(one.begin(), one.end(), other.begin(), 0.0);
    };
    return product(left, right) / std::sqrt(product(left, left) * product(right, right));
}

bool isSilent(float sample)
{
    return sample == 0;
}

std::vector<float> withoutSilence(const std::vector<float>& samples, int& rPauses)
{
    constexpr std::ptrdiff_t ShortestPause = 64; // a sound may go through 0
    std::vector<float> sounding;
    rPauses = 0;
    for (auto at = std::find_if_not(samples.begin(), samples.end(), isSilent); at != samples.end();) {
        const auto end = std::find_if(at, samples.end(), isSilent);
        sounding.insert(sounding.end(), at, end);
        at = std::find_if_not(end, samples.end(), isSilent);
        if (at - end < ShortestPause) {
            sounding.insert(sounding.end(), end, at);
        } else if (at != samples.end()) {
            ++rPauses;
        }
    }
    while (!sounding.empty() && isSilent(sounding.back())) {
        sounding.pop_back();
    }
    return sounding;
}

} // namespace phial::test
