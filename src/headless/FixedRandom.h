#pragma once

#include "core/RandomSource.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace phial::headless
{

/// Random numbers by list, over and over; at first always 0.5.
class FixedRandom : public RandomSource
{
public:
    /// Each from 0 up to but without 1, at least one; raises 5 otherwise.
    void numbers(std::vector<double> numbers)
    {
        const auto inRange = [](double number) { return number >= 0 && number < 1; };
        if (numbers.empty() || !std::all_of(numbers.begin(), numbers.end(), inRange)) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        numbers_ = std::move(numbers);
        next_ = 0;
    }

    /// The seeds that were given; the numbers go on as they stand.
    const std::vector<double>& seeds() const { return seeds_; }

    void seed(double value) override { seeds_.push_back(value); }
    double next() override
    {
        const double number = numbers_[next_];
        next_ = (next_ + 1) % numbers_.size();
        return number;
    }

private:
    std::vector<double> numbers_{0.5};
    std::size_t next_ = 0;
    std::vector<double> seeds_;
};

} // namespace phial::headless
