#pragma once

#include "core/RuntimeError.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>

namespace phial::test
{

/// The number of the run-time error that the statement raises; no value when it raises none.
template <typename Statement>
std::optional<std::int32_t> raisedBy(Statement&& statement)
{
    try {
        statement();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return std::nullopt;
}

/// How what the statement raises is described; empty when it raises none.
template <typename Statement>
String describedBy(Statement&& statement)
{
    try {
        statement();
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

} // namespace phial::test

/// Expects that a statement raises the run-time error of that `ErrorNumber`.
#define EXPECT_RAISES(statement, number)                                                                     \
    EXPECT_EQ(phial::test::raisedBy([&] { static_cast<void>(statement); }),                                  \
              static_cast<std::int32_t>(phial::ErrorNumber::number))
