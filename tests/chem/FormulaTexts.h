#pragma once

#include "chem/formula/FormulaReader.h"

#include <gtest/gtest.h>
#include <utility>

namespace phial::test
{

// Trees of texts that can be read.

inline FormulaTree formula(StringView text)
{
    FormulaReading reading = readFormula(text);
    EXPECT_TRUE(reading) << toUtf8(text);
    return std::move(reading.tree);
}

inline FormulaTree equation(StringView text)
{
    FormulaReading reading = readEquation(text);
    EXPECT_TRUE(reading) << toUtf8(text);
    return std::move(reading.tree);
}

} // namespace phial::test
