#pragma once

#include "core/Variant.h"

#include <cmath>
#include <cstdint>
#include <random>

namespace phial::test
{

/// Makes values of every kind, nested, from one seed.
class RandomValues
{
public:
    explicit RandomValues(unsigned seed) : random_(seed) {}

    /// A text of any 16-bit units, lone surrogate halves and NUL included; half of them are ASCII.
    String text()
    {
        String text;
        for (unsigned length = number(30); length > 0; --length) {
            text +=
                number(1) == 0 ? static_cast<char16_t>(number(0x7F)) : static_cast<char16_t>(number(0xFFFF));
        }
        return text;
    }

    /// Objects are not set, and numbers are finite, so that equal values compare equal.
    Variant value(int depth = 0)
    {
        switch (number(depth < 4 ? 7 : 6)) {
        case 0:
            return {};
        case 1:
            return Variant(number(2) == 1);
        case 2:
            return static_cast<std::int32_t>(random_());
        case 3:
            return std::ldexp(static_cast<double>(random_()), static_cast<int>(number(200)) - 100);
        case 4:
            return Moment{static_cast<double>(number(100000)) / 7};
        case 5:
            return text();
        case 6:
            return ObjectPtr();
        default:
            return array(depth);
        }
    }

private:
    unsigned number(unsigned greatest)
    {
        return std::uniform_int_distribution<unsigned>(0, greatest)(random_);
    }

    Variant array(int depth)
    {
        Variant::Array items;
        for (unsigned count = number(5); count > 0; --count) {
            items.push_back(value(depth + 1));
        }
        return items;
    }

    std::mt19937 random_;
};

} // namespace phial::test
