#include "common/ctl_Reference.h"
#include "core/NumberText.h"
#include "support/AppSession.h"
#include "visual/Form.h"

#include <gmock/gmock-matchers.h>

namespace learning
{
namespace
{

using phial::String;
using ::testing::HasSubstr;

// A sign is half its size in points wide here, a line one and a quarter of it high.
class Reference : public phial::test::AppSession
{
protected:
    Reference() { drawer->frame().pixelRectangle({0, 0, 560, 72}); }
    void TearDown() override
    {
        drawer.reset();
        form->discard();
        AppSession::TearDown();
    }

    void show(std::int32_t count)
    {
        std::vector<ReferenceEntry> entries;
        for (std::int32_t at = 1; at <= count; ++at) {
            entries.push_back({u"Mn", u"54,9", phial::plainText(at)});
        }
        drawer->show(std::move(entries));
    }

    std::shared_ptr<phial::Form> form = std::make_shared<phial::Form>(u"frm_Test");
    std::shared_ptr<ctl_Reference> drawer = form->add<ctl_Reference>(u"ref_Drawer");
};

TEST_F(Reference, NamesItsEntries)
{
    show(16);
    ASSERT_EQ(drawer->parts().size(), 16U);
    EXPECT_EQ(drawer->parts()[1].name, u"2");
    EXPECT_THAT(outside.visual().drawing(*drawer), HasSubstr("\"Mn\" Tahoma 13.5 bold"));
    EXPECT_FALSE(drawer->nextPage());
}

TEST_F(Reference, EntriesStandWithinItSideBySide)
{
    for (const std::int32_t count : {1, 3, 16, 24, 36}) {
        show(count);
        const auto parts = drawer->parts();
        EXPECT_EQ(parts.size(), static_cast<std::size_t>(count));
        for (std::size_t at = 0; at < parts.size(); ++at) {
            EXPECT_LE(parts[at].area.right(), 560);
            EXPECT_LE(parts[at].area.bottom(), 72);
            EXPECT_GE(parts[at].area.width, at == 0 ? 0 : parts[0].area.width - 1e-6);
        }
    }
}

TEST_F(Reference, TurnsPagesWhereThereAreTooMany)
{
    show(200);
    std::size_t seen = drawer->parts().size();
    EXPECT_THAT(outside.visual().drawing(*drawer), HasSubstr("Tahoma 9.75"));
    int pages = 1;
    while (drawer->nextPage()) {
        EXPECT_EQ(drawer->parts().front().name, phial::plainText(static_cast<std::int32_t>(seen + 1)));
        seen += drawer->parts().size();
        ++pages;
    }
    EXPECT_EQ(seen, 200U);
    EXPECT_GT(pages, 1);
    drawer->firstPage();
    EXPECT_EQ(drawer->parts().front().name, u"1");
}

TEST_F(Reference, WithoutEntriesIsEmpty)
{
    EXPECT_TRUE(drawer->isEmpty());
    EXPECT_TRUE(drawer->parts().empty());
    EXPECT_FALSE(drawer->nextPage());
}

} // namespace
} // namespace learning
