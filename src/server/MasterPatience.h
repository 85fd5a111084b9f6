#pragma once

#include "core/Clock.h"

namespace phial
{

/// How long a client waits for a master that gives no sign of life.
///
/// All waits since the last sign count, together at most a minute: a computer that vanishes without a word
/// would otherwise be waited for anew in each try of each request. From then on the master counts as gone,
/// and each try only knocks, for as long as a connection in a school takes many times over. Waits within
/// waits count once. A sign of life is a connection that is made, or anything that comes over one.
class MasterPatience
{
public:
    /// Seconds.
    struct Limits {
        double silence = 60;
        double knock = 0.25;
    };

    MasterPatience() : MasterPatience(Limits()) {}
    explicit MasterPatience(const Limits& limits) : limits_(limits) {}

    /// How much of the wanted time a wait may take now.
    double allowed(double wanted) const;

    /// A wait begins and ends; times are seconds of a clock that does not run backwards.
    void begins(double now);
    void ends(double now);
    void signOfLife(double now);

    /// A wait for as long as it lives; both must outlive it.
    class Wait
    {
    public:
        Wait(MasterPatience& patience, const Clock& clock) : patience_(patience), clock_(clock)
        {
            patience_.begins(clock_.seconds());
        }
        ~Wait() { patience_.ends(clock_.seconds()); }
        Wait(const Wait&) = delete;
        Wait& operator=(const Wait&) = delete;

    private:
        MasterPatience& patience_;
        const Clock& clock_;
    };

private:
    void count(double now);

    Limits limits_;
    double silence_ = 0;
    double since_ = 0; // what waits have not counted yet
    int waits_ = 0;
};

} // namespace phial
