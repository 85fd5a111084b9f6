#include "DesktopRun.h"
#include "common/FrameDesign.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "puzzle/Neighbours.h"
#include "puzzle/PuzzleTasks.h"
#include "support/Places.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr double LeastPuzzleText = 10; // points

/// The texts of the puzzle in the font in which they are shown.
class PuzzleFit : public DesktopRun
{
protected:
    PuzzleFit()
    {
        const String tree = systemPath(test::treeFolder());
        book_ = puzzle::ElementBook(tree + u"\\Resources\\data\\elements2.dat");
        list_ = learning::readTaskFile(
            coreRoot().CoreFiles().ReadText(tree + u"\\apps\\Puzzle\\data\\kaertchen.txt"),
            [&](const String& task) { return puzzle::faultOf(task, book_); });
    }

    static const ControlDesign::Rectangle& placeOf(StringView name)
    {
        for (const auto& [control, place] : learning::frame_design::BesideBoard) {
            if (control == name) {
                return place;
            }
        }
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    static double heightOf(StringView text, double width, bool bold = false)
    {
        FontSpec font = FontDesign{}.traits();
        font.size = LeastPuzzleText;
        font.bold = bold;
        return MarkupLayout(text, font, visualHost().metrics(), width).size().height;
    }

    puzzle::ElementBook book_;
    learning::TaskFile list_;
};

TEST_F(PuzzleFit, EachHintAndSolutionHasRoomBesideTheBoardAndInTheSummary)
{
    const auto& help = placeOf(u"lab_Hint");
    const auto* const review =
        std::find_if(std::begin(learning::frame_design::Tail), std::end(learning::frame_design::Tail),
                     [](const ControlDesign& row) { return row.name == u"lab_Working"; });
    for (const learning::TaskLevel& level : list_.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            SCOPED_TRACE(toUtf8(task.text));
            const auto elements = puzzle::elementsOf(task.text, book_);
            const String places = puzzle::placesText(elements);
            EXPECT_LE(heightOf(puzzle::trendsText(elements, book_), help.width), help.height);
            EXPECT_LE(heightOf(places, help.width), help.height);
            EXPECT_LE(heightOf(task.text + u":<br>" + places, review->place.width), review->place.height);
        }
    }
    const auto longest = puzzle::placesText(puzzle::elementsOf(u"Rf Db Sg Bh Hs Mt", book_));
    EXPECT_LE(heightOf(longest, help.width), help.height);
    EXPECT_LE(heightOf(u"Rf, Db, Sg, Bh, Hs, Mt:<br>" + longest, review->place.width), review->place.height);
}

TEST_F(PuzzleFit, EachNameHasRoomAboveTheButtons)
{
    const auto& title = learning::frame_design::BoardPlaces::Title;
    for (const learning::TaskLevel& level : list_.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            EXPECT_LE(heightOf(task.germanName, title.width, true), title.height) << toUtf8(task.text);
            EXPECT_LE(heightOf(task.englishName, title.width, true), title.height) << toUtf8(task.text);
        }
    }
}

} // namespace
