#include "core/RecordSeal.h"
#include "qt/base/BasePlatform.h"
#include "qt/base/DispatchGuard.h"

#include <gtest/gtest.h>

namespace phial::qt
{
namespace
{

TEST(BasePlatform, SealsRecordFilesWithPasswords)
{
    const std::shared_ptr<RecordSeal> seal = basePlatform(std::make_shared<DispatchGuard>()).seal;
    ASSERT_NE(seal, nullptr);
    EXPECT_EQ(seal->open(seal->seal("Anna", u"geheim"), u"geheim"), "Anna");
}

} // namespace
} // namespace phial::qt
