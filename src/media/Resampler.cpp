#include "media/Resampler.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace phial
{

namespace
{

constexpr double ZeroCrossings = 16; // to either side
/// Rates in use meet in fewer places between two frames; odd ones take, of so many, the one below.
constexpr std::size_t MostPhases = 2048;
/// How much of the band below half the rate passes; the window needs the rest for its slope.
constexpr double PassBand = 0.95;

double sinc(double x)
{
    return x == 0 ? 1 : std::sin(std::numbers::pi * x) / (std::numbers::pi * x);
}

/// The sum of the products of `count` weights with samples that lie `stride` apart. In four parts, which do
/// not wait for each other.
float weighted(const float* weights, const float* samples, std::size_t stride, std::size_t count)
{
    constexpr std::size_t Parts = 4;
    float sums[Parts] = {};
    std::size_t at = 0;
    for (; at + Parts <= count; at += Parts) {
        for (std::size_t part = 0; part < Parts; ++part) {
            sums[part] += weights[at + part] * samples[(at + part) * stride];
        }
    }
    for (; at < count; ++at) {
        sums[0] += weights[at] * samples[at * stride];
    }
    return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

/// Blackman's window: 1 in the middle, 0 at -1 and 1.
double blackman(double x)
{
    return 0.42 + 0.5 * std::cos(std::numbers::pi * x) + 0.08 * std::cos(2 * std::numbers::pi * x);
}

} // namespace

Resampler::Resampler(std::int32_t from, std::int32_t to)
{
    const std::int32_t common = std::gcd(from, to);
    step_ = static_cast<std::uint64_t>(from / common);
    newFrames_ = static_cast<std::uint64_t>(to / common);
    if (step_ == newFrames_) {
        return;
    }
    const double widening = std::max(1.0, static_cast<double>(from) / to);
    reach_ = static_cast<std::size_t>(std::ceil(ZeroCrossings * widening));
    phases_ = static_cast<std::size_t>(std::min<std::uint64_t>(newFrames_, MostPhases));
    weights_.resize(phases_ * 2 * reach_);
    for (std::size_t phase = 0; phase < phases_; ++phase) {
        fillPhase(phase, widening);
    }
}

/// The weights of the old frames around a place between two of them. They add up to 1, so that a steady level
/// stays as it is.
void Resampler::fillPhase(std::size_t phase, double widening)
{
    const std::span weights = std::span(weights_).subspan(phase * 2 * reach_, 2 * reach_);
    const double place = static_cast<double>(phase) / static_cast<double>(phases_);
    double sum = 0;
    for (std::size_t at = 0; at < weights.size(); ++at) {
        const double distance = static_cast<double>(at) + 1 - static_cast<double>(reach_) - place;
        const double weight = sinc(distance * PassBand / widening) *
                              blackman(std::clamp(distance / static_cast<double>(reach_), -1.0, 1.0));
        weights[at] = static_cast<float>(weight);
        sum += weight;
    }
    for (float& weight : weights) {
        weight = static_cast<float>(weight / sum);
    }
}

std::size_t Resampler::frames(std::size_t oldFrames) const
{
    return static_cast<std::size_t>((oldFrames * newFrames_ + step_ - 1) / step_);
}

float Resampler::sample(std::span<const float> samples, std::size_t channels, std::size_t channel,
                        std::size_t frame) const
{
    const std::uint64_t place = frame * step_;
    const auto before = static_cast<std::size_t>(place / newFrames_);
    if (weights_.empty()) {
        return samples[before * channels + channel];
    }
    const auto phase = static_cast<std::size_t>(place % newFrames_ * phases_ / newFrames_);
    const float* const weights = weights_.data() + phase * 2 * reach_;
    // The weight number w belongs to the old frame before + 1 - reach + w.
    const std::size_t first = before + 1 < reach_ ? reach_ - before - 1 : 0;
    const std::size_t last = std::min(2 * reach_, samples.size() / channels + reach_ - before - 1);
    return weighted(weights + first, samples.data() + (before + 1 + first - reach_) * channels + channel,
                    channels, last - std::min(first, last));
}

} // namespace phial
