#include "core/FileSystem.h"
#include "core/Platform.h"
#include "core/RecordFiles.h"
#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <random>

namespace phial
{
namespace
{

/// Lets the program save for a while that differs from time to time, without sleeping.
void letItSave(std::mt19937& random)
{
    const auto time = std::chrono::microseconds(std::uniform_int_distribution(0, 20000)(random));
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
    }
}

TEST(KilledSaver, LeavesAWholeListWheneverItIsKilled)
{
    constexpr int Kills = 40;
    const test::TemporaryFolder folder;
    Platform platform;
    platform.files = std::make_shared<NativeFileSystem>();
    std::mt19937 random(4711);
    for (int kill = 0; kill < Kills; ++kill) {
        test::ChildProgram saver(PHIAL_RECORD_SAVER, {toUtf8(folder.path() + u"list.qv-hsr")});
        ASSERT_EQ(saver.readLine(), "saved");
        letItSave(random);
        saver.kill();

        const std::vector<Variant> values = RecordFiles(platform).read(folder.native() / "list.qv-hsr", {});
        ASSERT_GE(values.size(), 202U);
        ASSERT_EQ(values[0], Variant(u"2.0"));
        const auto isSame = [&](const Variant& value) { return value == values[1]; };
        EXPECT_TRUE(std::all_of(values.begin() + 2, values.end(), isSame)) << "kill " << kill;
        EXPECT_EQ(static_cast<std::int32_t>(values.size()), 202 + values[1].toWhole() % 800);
    }
    EXPECT_LE(folder.names().size(), 2U); // the list, and what the last one had not finished
}

} // namespace
} // namespace phial
