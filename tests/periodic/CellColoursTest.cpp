#include "periodic/CellColours.h"

#include "PeriodicTableTest.h"
#include "core/CoreColors.h"
#include "core/CoreTheme.h"
#include "support/Contrast.h"

#include <array>
#include <gmock/gmock-more-matchers.h>
#include <sstream>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

Colour colourOf(const std::string& html)
{
    return Palette::shade(static_cast<std::uint32_t>(std::stoul(html.substr(1), nullptr, 16)));
}

/// The colours that a line of a drawing names.
std::vector<Colour> coloursIn(const std::string& line)
{
    std::vector<Colour> colours;
    for (std::size_t at = line.find('#'); at != std::string::npos; at = line.find('#', at + 1)) {
        colours.push_back(colourOf(line.substr(at, 7)));
    }
    return colours;
}

class TableColouring : public PeriodicTableTest, public testing::WithParamInterface<TableColours>
{
protected:
    /// Gives how many texts were looked at.
    int expectReadableTexts()
    {
        constexpr double Least = 4.5;
        int texts = 0;
        std::vector<Colour> ground;
        std::istringstream lines(drawn());
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("clip none")) {
                ground.clear();
            } else if (line.starts_with("gradient") || line.starts_with("box")) {
                const auto found =
                    line.find("line") == std::string::npos ? coloursIn(line) : std::vector<Colour>();
                ground.insert(ground.end(), found.begin(), found.end());
            } else if (line.starts_with("text") && !ground.empty()) {
                ++texts;
                for (const Colour each : ground) {
                    EXPECT_GE(test::contrast(coloursIn(line).back(), each, ColourSet::Light), Least) << line;
                }
            }
        }
        return texts;
    }
};

TEST_P(TableColouring, LetsEachTextBeRead)
{
    load();
    table->Colouring(GetParam());
    EXPECT_GE(expectReadableTexts(), 3 * 118);
    table->GONE()->Add(u"Fe");
    table->GONE()->Add(u"Hg");
    table->GONE()->Add(u"O");
    table->REDRAW();
    expectReadableTexts();
}

INSTANTIATE_TEST_SUITE_P(Own, TableColouring,
                         testing::Values(TableColours::HighContrast, TableColours::Distinct),
                         [](const auto& set) {
                             return set.param == TableColours::Distinct ? "Distinct" : "HighContrast";
                         });

class TableColourSets : public TableColouring
{
};

TEST_F(TableColourSets, InHighContrastPaleTextsCanBeReadToo)
{
    load();
    table->Colouring(TableColours::HighContrast);
    table->GONE()->Add(u"Fe");
    table->HIGHLIGHT(u"O");
    EXPECT_GE(expectReadableTexts(), 3 * 118);
}

TEST_F(TableColourSets, TheClassicOneHasNoSigns)
{
    load();
    const std::string classic = cell("O");
    EXPECT_EQ(table->Colouring(), TableColours::Classic);
    table->Colouring(TableColours::ByTheme);
    EXPECT_EQ(cell("O"), classic);
    coreTheme().SetColours(ColourSet::HighContrast);
    EXPECT_NE(cell("O"), classic);
    table->Colouring(TableColours::Classic);
    EXPECT_EQ(cell("O"), classic);
}

TEST_F(TableColourSets, TheClassicOneHasAColourForEachShell)
{
    constexpr std::array<Colour, 7> Shells{RGB(157, 152, 140), RGB(255, 150, 255), RGB(150, 255, 150),
                                           RGB(255, 150, 150), RGB(150, 150, 255), RGB(255, 255, 150),
                                           RGB(200, 100, 200)};
    const CellColours& classic = CellColours::of(TableColours::Classic);
    for (std::size_t shell = 0; shell < Shells.size(); ++shell) {
        EXPECT_EQ(classic.shells[shell], Shells[shell]) << shell + 1;
    }
}

TEST_P(TableColouring, LetsTheHighlightBeSeenOnEachGround)
{
    constexpr double Least = 3; // of what is no text
    const CellColours& colours = CellColours::of(GetParam());
    for (const Colour shell : colours.shells) {
        for (const Colour ground :
             {CoreColors::Lighten(shell, colours.shade), CoreColors::Darken(shell, colours.shade)}) {
            EXPECT_GE(test::contrast(colours.highlight, ground, ColourSet::Light), Least);
        }
    }
}

TEST_F(TableColourSets, ByThemeCaptionsCanBeReadOnAGroundThatFollowsTheTheme)
{
    load();
    table->Colouring(TableColours::ByTheme);
    table->BACKCOLOR(Palette::Surface);
    for (const ColourSet set : {ColourSet::Light, ColourSet::Dark, ColourSet::HighContrast}) {
        coreTheme().SetColours(set);
        const std::string all = drawn();
        const std::size_t caption = all.find("\"Nebengruppen\"");
        ASSERT_NE(caption, std::string::npos);
        const Colour ink = coloursIn(all.substr(caption, all.find('\n', caption) - caption)).front();
        EXPECT_GE(test::contrast(ink, Palette::Surface, set), 4.5);
        table->BACKCOLOR(Palette::Surface);
    }
}

TEST_F(TableColourSets, TheOthersTellTheStateOfMatterByASign)
{
    load();
    for (const TableColours set : {TableColours::HighContrast, TableColours::Distinct}) {
        table->Colouring(set);
        const auto sign = [&](const char* symbol) {
            const std::string drawing = cell(symbol);
            return drawing.substr(drawing.find("\"" + std::string(symbol) + "\" Calibri"));
        };
        EXPECT_THAT(sign("Fe"), HasSubstr("box 280,184 5x5 "));
        EXPECT_THAT(sign("Hg"), HasSubstr("polygon"));
        EXPECT_THAT(sign("O"), HasSubstr("arc "));
        EXPECT_THAT(sign("Fe"), Not(HasSubstr("arc ")));
        EXPECT_THAT(sign("Hg"), Not(HasSubstr("arc ")));
        EXPECT_THAT(sign("O"), Not(HasSubstr("polygon")));
    }
}

TEST_F(TableColourSets, ASignGivesNoEmptyPlaceAway)
{
    load();
    table->Colouring(TableColours::Distinct);
    table->MODE(enm_PSEMode::ID_PSEMode_Place);
    EXPECT_THAT(drawn(), Not(HasSubstr("arc ")));
}

TEST_F(TableColourSets, IsKept)
{
    table->Colouring(TableColours::Distinct);
    PropertyBag bag;
    table->writeProperties(bag);
    const auto other = form->add<ctl_PSE>(u"frm_Q");
    other->readProperties(bag);
    EXPECT_EQ(other->Colouring(), TableColours::Distinct);
}

// What people see who lack one kind of cones: Machado, Oliveira and Fernandes, "A Physiologically-based Model
// for Simulation of Color Vision Deficiency" (2009), severity 1, on linear red, green and blue.

using Vision = std::array<std::array<double, 3>, 3>;

constexpr Vision Visions[] = {
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}},
};

using Triple = std::array<double, 3>;

Triple seen(Colour colour, const Vision& vision)
{
    const auto linear = [](std::uint8_t value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    const Triple light{linear(colour.red()), linear(colour.green()), linear(colour.blue())};
    Triple result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            result[row] += vision[row][column] * light[column];
        }
        result[row] = std::clamp(result[row], 0.0, 1.0);
    }
    return result;
}

/// Lightness, green to red, blue to yellow, as the CIE has defined them in 1976.
Triple labOf(const Triple& light)
{
    const auto bend = [](double value) {
        return value > 216.0 / 24389 ? std::cbrt(value) : (24389.0 / 27 * value + 16) / 116;
    };
    const double x = (0.4124564 * light[0] + 0.3575761 * light[1] + 0.1804375 * light[2]) / 0.95047;
    const double y = 0.2126729 * light[0] + 0.7151522 * light[1] + 0.0721750 * light[2];
    const double z = (0.0193339 * light[0] + 0.1191920 * light[1] + 0.9503041 * light[2]) / 1.08883;
    return {116 * bend(y) - 16, 500 * (bend(x) - bend(y)), 200 * (bend(y) - bend(z))};
}

/// The least of all visions.
double differenceSeen(Colour one, Colour other)
{
    double least = 1000;
    for (const Vision& vision : Visions) {
        const Triple left = labOf(seen(one, vision));
        const Triple right = labOf(seen(other, vision));
        least = std::min(least, std::hypot(left[0] - right[0], left[1] - right[1], left[2] - right[2]));
    }
    return least;
}

/// Of any two shells.
double leastDifference(const CellColours& colours)
{
    double least = 1000;
    for (std::size_t one = 0; one < colours.shells.size(); ++one) {
        for (std::size_t other = one + 1; other < colours.shells.size(); ++other) {
            least = std::min(least, differenceSeen(colours.shells[one], colours.shells[other]));
        }
    }
    return least;
}

TEST(DistinctColours, DifferForEverybody)
{
    EXPECT_GE(leastDifference(CellColours::of(TableColours::Distinct)), 20);
    EXPECT_LT(leastDifference(CellColours::of(TableColours::Classic)), 10) << "which is why there is another";
}

} // namespace

} // namespace phial
