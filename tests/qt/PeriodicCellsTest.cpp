#include "DesktopSession.h"
#include "app/Session.h"
#include "chem/cls_DataElement.h"
#include "chem/cls_DataElements.h"
#include "core/NativePath.h"
#include "periodic/NameLines.h"
#include "periodic/PeriodicSheet.h"
#include "periodic/TableLabels.h"
#include "support/Places.h"
#include "visual/DrawDevice.h"

#include <cmath>
#include <ranges>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr double TableRatios[] = {1, 1.25, 1.5, 2};

/// The sheet of all elements with the fonts of a desktop.
class PeriodicCells : public DesktopTest<Session>
{
protected:
    PeriodicCells()
    {
        elements.IMPORT(systemPath(test::sourceFolder() / "resources" / "data" / "elements2.dat"));
        sheet.style.fontName = u"Calibri";
    }

    void fill(double edge)
    {
        sheet.grid = {edge, edge};
        sheet.fill(elements);
    }

    static std::shared_ptr<DrawBackend> surface(double edge, double ratio)
    {
        return visualHost().createSurface({edge * TableGrid::Columns + 1, edge * TableGrid::Rows + 1}, ratio);
    }

    static bool same(const DrawBackend& left, const DrawBackend& right)
    {
        const PicturePtr one = left.picture();
        const PicturePtr other = right.picture();
        return std::ranges::equal(std::as_const(*one).pixels(), std::as_const(*other).pixels());
    }

    cls_DataElements elements;
    PeriodicSheet sheet;
};

TEST_F(PeriodicCells, HaveRoomForEachNameNearlyAsLargeAsItShouldBe)
{
    constexpr double LeastShare = 0.75; // of its size
    sheet.style.showsNames = true;
    for (const double edge : {32.0, 48.0, 64.0}) {
        fill(edge);
        for (const double ratio : TableRatios) {
            DrawDevice device(surface(edge, ratio));
            device.ScaleMode(ScaleUnit::Pixels);
            device.FontName(sheet.style.fontName);
            device.FontSize(sheet.style.textSize() * LeastShare);
            for (const PeriodicSheet::Cell& cell : sheet.cells()) {
                const NameLines lines = linesOf(cell.painted.element->NAME());
                for (const String& line : {lines.first, lines.second}) {
                    EXPECT_LE(device.TextWidth(line), cell.painted.area.width - 4)
                        << toUtf8(line) << ' ' << edge << ' ' << ratio;
                }
            }
        }
    }
}

TEST_F(PeriodicCells, LeaveTheOutlineOfEachCellWithoutAnyName)
{
    sheet.style.showsNames = true;
    for (const double edge : {32.0, 48.0, 64.0}) {
        fill(edge);
        const auto named = surface(edge, 1);
        DrawDevice device(named);
        device.ScaleMode(ScaleUnit::Pixels);
        device.Cls();
        sheet.paint(device, nullptr);
        for (const PeriodicSheet::Cell& cell : sheet.cells()) {
            const PixelRectangle& area = cell.painted.area;
            const double middle = area.top + std::floor(area.height / 2);
            EXPECT_EQ(device.Point(area.left, middle), QBColor(0)) << toUtf8(cell.painted.symbol);
            EXPECT_EQ(device.Point(area.right() - 1, middle), QBColor(0)) << toUtf8(cell.painted.symbol);
        }
    }
}

TEST_F(PeriodicCells, ArePaintedAloneAsTheyAreAllAtOnce)
{
    sheet.marks.highlight = u"Cl";
    sheet.marks.frames->Add(u"Br", 0x0000FF);
    sheet.marks.gone->Add(u"I");
    for (const double edge : {24.0, 33.4, 64.0}) {
        fill(edge);
        for (const double ratio : TableRatios) {
            const auto whole = surface(edge, ratio);
            DrawDevice device(whole);
            device.ScaleMode(ScaleUnit::Pixels);
            device.Cls();
            sheet.paint(device, nullptr);

            const auto piecewise = surface(edge, ratio);
            DrawDevice other(piecewise);
            other.ScaleMode(ScaleUnit::Pixels);
            other.Cls();
            paintTableLabels(other, sheet.grid, sheet.style);
            for (std::size_t cell = sheet.cells().size(); cell-- > 0;) {
                sheet.paintCell(other, cell, true);
                sheet.paintCell(other, cell, false);
            }
            EXPECT_TRUE(same(*whole, *piecewise)) << edge << ' ' << ratio;
        }
    }
}

} // namespace
