#include "dialogs/ScanChoice.h"

#include "app/Settings.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "support/AppSession.h"

namespace phial
{

namespace
{

class ScanChoiceTest : public test::AppSession
{
protected:
    static void keep(std::int32_t value)
    {
        coreRoot().CoreRegistry().CoreRegistryWrite().WriteLong(
            SettingsHive::CurrentUser, settings::path(u"Config\\KeyboardScan"), value);
    }
};

} // namespace

TEST_F(ScanChoiceTest, ThereIsNoneAtFirst)
{
    EXPECT_EQ(rememberedScan(), 0);
}

TEST_F(ScanChoiceTest, IsRemembered)
{
    chooseScan(1200);
    EXPECT_EQ(rememberedScan(), 1200);
    chooseScan(0);
    EXPECT_EQ(rememberedScan(), 0);
}

TEST_F(ScanChoiceTest, WhatNobodyCouldFollowCountsAsNone)
{
    for (const std::int32_t kept : {-1, 1, 199, 10'001}) {
        keep(kept);
        EXPECT_EQ(rememberedScan(), 0) << kept;
        chooseScan(kept);
        EXPECT_EQ(rememberedScan(), 0) << kept;
    }
    keep(200);
    EXPECT_EQ(rememberedScan(), 200);
    chooseScan(10'000);
    EXPECT_EQ(rememberedScan(), 10'000);
}

} // namespace phial
