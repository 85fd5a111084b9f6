#pragma once

#include "core/SessionState.h"
#include "headless/HeadlessPlatform.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace phial::test
{

/// A fresh session for each test, on a scripted outside whose special folders lie below a temporary one. A
/// box or modal form that the test did not expect, one that it expected in vain, and an error that ends at a
/// dispatch fail the test.
class HeadlessSession : public ::testing::Test
{
public:
    static void fail(const String& description) { ADD_FAILURE() << toUtf8(description); }

    ~HeadlessSession() override
    {
        outside.dialogs().checkDone();
        outside.visual().checkDone();
    }

protected:
    TemporaryFolder folder;
    headless::HeadlessPlatform outside{folder.path(), fail};
    SessionState session{outside.platform()};
};

} // namespace phial::test
