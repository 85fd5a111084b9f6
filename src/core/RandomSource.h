#pragma once

namespace phial
{

/// Where random numbers come from.
class RandomSource
{
public:
    virtual ~RandomSource() = default;

    /// The next number, from 0 up to but without 1.
    virtual double next() = 0;

    /// Goes on from that number, so that equal seeds are followed by equal numbers. A source that draws from
    /// nature goes on as before.
    virtual void seed(double value) = 0;
};

} // namespace phial
