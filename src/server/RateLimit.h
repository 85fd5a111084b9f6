#pragma once

#include <algorithm>

namespace phial
{

/// Lets things pass at a steady rate, and some at once after a quiet time. Whoever asks brings the time.
class RateLimit
{
public:
    /// `perSecond` things pass in the long run, `atOnce` (at least 1) of them together.
    RateLimit(double perSecond, double atOnce) : perSecond_(perSecond), atOnce_(atOnce), left_(atOnce) {}

    /// Whether one more may pass at that time, in seconds of any clock that does not run backwards.
    bool pass(double now)
    {
        left_ = std::min(atOnce_, left_ + std::max(0.0, now - asked_) * perSecond_);
        asked_ = now;
        if (left_ < 1) {
            return false;
        }
        left_ -= 1;
        return true;
    }

private:
    double perSecond_;
    double atOnce_;
    double left_;
    double asked_ = 0;
};

} // namespace phial
