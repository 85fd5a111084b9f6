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
};

} // namespace phial
