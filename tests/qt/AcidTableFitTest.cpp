#include "DesktopRun.h"
#include "desk/AcidTable.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

namespace phial::qt
{

namespace
{

/// The table of acids in the fonts of the desktop, which have hair spaces.
class AcidTableFit : public DesktopRun
{
};

TEST_F(AcidTableFit, ColumnsBeginWithinAHairSpaceOfTheirHeads)
{
    const String head = u"Säure               Base           pKs";
    for (const double size : {10.0, 12.0, 18.0}) {
        const FontSpec font{.name = u"Tahoma", .size = size};
        const auto width = [&](StringView markup) {
            return MarkupLayout(String(markup) + u"|", font, visualHost().metrics()).size().width;
        };
        const double hair = width(u"\u200A") - width(u"");
        const double blank = width(u" ") - width(u"");
        ASSERT_GT(hair, 0);
        ASSERT_LT(hair, blank / 2);
        const double baseAt = width(head.substr(0, head.find(u"Base")));
        const double pKsAt = width(head.substr(0, head.find(u"pKs")));
        const String text = acidTable(head, font);
        const auto lines = split(text, u"\n");
        for (std::size_t row = 0; row < acids().size(); ++row) {
            const Acid& acid = acids()[row];
            const StringView line = lines[row + 1];
            const std::size_t base = line.find(acid.base, acid.acid.size() + 1);
            EXPECT_NEAR(width(line.substr(0, base)), baseAt, hair / 2 + 0.01) << toUtf8(line);
            EXPECT_NEAR(width(line.substr(0, line.size() - acid.pKs.size())), pKsAt, hair / 2 + 0.01)
                << toUtf8(line);
        }
    }
}

} // namespace

} // namespace phial::qt
