#include "DesktopRun.h"
#include "chem/cls_DataElements.h"
#include "common/TermFit.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "molmasse/SaltParts.h"
#include "molmasse/Trainer.h"
#include "support/Places.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr double Unbounded = 1e6; // pixels

/// The texts of the trainer in the fonts in which they are shown.
class TrainerFit : public DesktopRun
{
protected:
    TrainerFit()
    {
        const String tree = systemPath(test::treeFolder());
        const String elementFile = tree + u"\\Resources\\data\\elements2.dat";
        elements_.IMPORT2(elementFile);
        list_ = learning::readTaskFile(
            coreRoot().CoreFiles().ReadText(tree + u"\\apps\\Molmasse\\data\\formeln.txt"),
            [&](const String& formula) { return molmasse::faultOf(elements_, formula); });
    }

    static FontSpec font(double size, bool bold = false)
    {
        FontSpec font = FontDesign{}.traits();
        font.size = size;
        font.bold = bold;
        return font;
    }
    /// A control of the frame's design.
    static const ControlDesign& designOf(StringView name)
    {
        for (const std::span<const ControlDesign> rows :
             {std::span<const ControlDesign>(learning::frame_design::Head),
              std::span<const ControlDesign>(learning::frame_design::Tail)}) {
            for (const ControlDesign& row : rows) {
                if (row.name == name) {
                    return row;
                }
            }
        }
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    static double heightOf(StringView text, double size, double width)
    {
        return MarkupLayout(text, font(size), visualHost().metrics(), width).size().height;
    }

    cls_DataElements elements_;
    learning::TaskFile list_;
};

TEST_F(TrainerFit, EachInstalledFormulaHasRoomOnItsCard)
{
    EXPECT_TRUE(list_.complaints.empty());
    EXPECT_TRUE(learning::holds(list_, u"CH3(CH2)7CHCH(CH2)7COOH")) << "oleic acid, the longest";
    int formulas = 0;
    for (const learning::TaskLevel& level : list_.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            ++formulas;
            EXPECT_TRUE(learning::fittingTermSize(task.text, learning::FormulaCard::formula().place.width))
                << toUtf8(task.text);
        }
    }
    EXPECT_EQ(formulas, 90);
}

TEST_F(TrainerFit, EachWorkingAndTableOfAtomsHasRoomInLettersOfThirteenPixels)
{
    constexpr double LeastSize = 10; // points
    const auto& help = designOf(u"lab_Hint").place;
    const auto& review = designOf(u"lab_Working").place;
    for (const learning::TaskLevel& level : list_.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            SCOPED_TRACE(toUtf8(task.text));
            const String working = molmasse::workedLine(elements_, task.text);
            const String atoms = molmasse::atomsCounted(elements_, molmasse::withoutDots(task.text),
                                                        molmasse::AtomMasses::Shown);
            EXPECT_LE(heightOf(working, LeastSize, help.width), help.height);
            EXPECT_LE(heightOf(atoms, learning::frame_design::HelpSize, help.width), help.height);
            EXPECT_LE(
                heightOf(learning::formulaLine(task.text) + u":<br>" + working, LeastSize, review.width),
                review.height);
        }
    }
    const String six =
        u"1 x H (1,0)<br>1 x H (1,0)<br>1 x H (1,0)<br>1 x H (1,0)<br>1 x H (1,0)<br>1 x H (1,0)";
    EXPECT_LE(heightOf(six, learning::frame_design::HelpSize, help.width), help.height);
}

TEST_F(TrainerFit, NoLineOfTheStartPageIsLongerThanOneReadsAtAGlance)
{
    constexpr std::size_t MostLetters = 66;
    const molmasse::Trainer trainer{molmasse::TrainerData{}};
    const std::pair<StringView, StringView> texts[] = {{u"lab_Intro", trainer.texts().introduction},
                                                       {u"lab_Note", trainer.texts().note}};
    for (const auto& [name, both] : texts) {
        const ControlDesign& label = designOf(name);
        for (const StringView text : split(both, u"|")) {
            const auto lines = learning::brokenLines(text, label.textFont->traits(),
                                                     {label.place.width, label.place.height});
            ASSERT_TRUE(lines) << toUtf8(text);
            for (const String& line : *lines) {
                EXPECT_LE(line.size(), MostLetters) << toUtf8(line);
            }
        }
    }
}

TEST_F(TrainerFit, TheButtonsOfTheSummaryHaveRoomForTheirTexts)
{
    constexpr double Padding = 8; // pixels, within a button's edge
    for (const auto* name :
         {u"but_Again", u"but_Missed", u"but_Quit", u"but_List", u"but_Certificate", u"but_Export"}) {
        const ControlDesign& button = designOf(name);
        for (const StringView text : split(button.text, u"|")) {
            for (const StringView line : split(text, u"\n")) {
                const auto lines = learning::brokenLines(line, button.textFont->traits(),
                                                         {button.place.width - 2 * Padding, Unbounded});
                ASSERT_TRUE(lines);
                EXPECT_EQ(lines->size(), 1U) << toUtf8(line);
            }
        }
    }
}

} // namespace
