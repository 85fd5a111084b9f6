#pragma once

#include <random>
#include <string>

namespace phial::test
{

/// Writes terms at random, the same ones for the same seed.
class RandomTerms
{
public:
    explicit RandomTerms(unsigned seed) : random_(seed) {}

    /// A well-formed term in which none of the solver's oddities shows: one sign at most in front of a value
    /// and none behind "%", no "--", no capital E in front of a sign, no value beside a value. Numbers have
    /// comma or point or an exponent, names of functions any case of letters, blanks stand between tokens,
    /// and A, B and C are variables.
    std::string orderly();

    /// Pieces of terms in any order, mostly nonsense. Its letters bear values of no particular length.
    std::string disorderly();

    std::size_t below(std::size_t bound)
    {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_);
    }

private:
    std::string value(int depth, bool signAllowed);
    std::string operation(int depth);
    std::string unsignedValue(int depth);
    std::string number();
    std::string functionCall(int depth);
    std::string spaced(std::string text);
    bool oneIn(std::size_t count) { return below(count) == 0; }

    std::mt19937 random_;
};

} // namespace phial::test
