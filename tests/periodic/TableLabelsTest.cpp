#include "periodic/TableLabels.h"

#include "core/NumberText.h"
#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "media/MediaTest.h"
#include "periodic/CellPainting.h"
#include "visual/DrawDevice.h"

#include <cstdio>
#include <gmock/gmock-matchers.h>
#include <string>
#include <vector>

namespace phial
{

namespace
{

constexpr double Edge = 40; ///< of a cell

/// A text with the middle of its box in cells, and its size.
struct Caption {
    std::string text;
    double column;
    double row;
    double size;
};

void PrintTo(const Caption& caption, std::ostream* stream)
{
    *stream << caption.text << " at " << caption.column << ", " << caption.row << " in " << caption.size;
}

bool operator==(const Caption& left, const Caption& right)
{
    constexpr double Near = 0.05;
    return left.text == right.text && std::abs(left.column - right.column) < Near &&
           std::abs(left.row - right.row) < Near && std::abs(left.size - right.size) < Near;
}

class Captions : public MediaTest
{
protected:
    Captions()
    {
        style.fontName = u"Calibri";
        style.scale = grid.scale();
    }

    /// Lines of "text x,y "word" Calibri size colour", by the metrics that are half a point a letter wide.
    std::vector<Caption> drawn() const
    {
        std::vector<Caption> all;
        for (const std::string& line : recorder->lines()) {
            char word[40];
            double x = 0;
            double y = 0;
            double size = 0;
            if (std::sscanf(line.c_str(), "text %lf,%lf \"%39[^\"]\" Calibri %lf #000000", &x, &y, word,
                            &size) == 4) {
                const std::string text = word;
                all.push_back({text, (x + 0.25 * size * static_cast<double>(text.size())) / Edge,
                               (y + 0.625 * size) / Edge, size});
            }
        }
        return all;
    }

    TableGrid grid{Edge, Edge};
    CellStyle style;
    std::shared_ptr<headless::RecordingBackend> recorder = std::make_shared<headless::RecordingBackend>(
        PixelSize{100, 100}, std::make_shared<headless::FixedTextMetrics>());
    DrawDevice device{recorder};
};

TEST_F(Captions, StandInTheMiddleOfTheirPlaces)
{
    paintTableLabels(device, grid, style);
    constexpr double Size = 12.5;
    std::vector<Caption> expected = {
        {"I", 1.5, 1.5, Size},           {"II", 2.5, 1.5, Size},
        {"IIIa", 3.5, 4.5, Size},        {"IVa", 4.5, 4.5, Size},
        {"Va", 5.5, 4.5, Size},          {"VIa", 6.5, 4.5, Size},
        {"VIIa", 7.5, 4.5, Size},        {"VIIIa", 9.5, 4.5, Size},
        {"Ia", 11.5, 4.5, Size},         {"IIa", 12.5, 4.5, Size},
        {"III", 13.5, 1.5, Size},        {"IV", 14.5, 1.5, Size},
        {"V", 15.5, 1.5, Size},          {"VI", 16.5, 1.5, Size},
        {"VII", 17.5, 1.5, Size},        {"VIII", 18.5, 1.5, Size},
        {"Haupt-", 2, 0.5, Size},        {"Gruppen", 17.5, 0.5, Size},
        {"Nebengruppen", 10, 3.5, Size}, {"Lanthanide", 4, 10.5, Size},
        {"Actinide", 4, 11.5, Size},     {"Periode", 0.5, 1.5, 0.9 * Size}, // set smaller, to fit
    };
    for (int period = 1; period <= 7; ++period) {
        expected.push_back({std::to_string(period), 0.5, period + 1.5, Size});
    }
    EXPECT_THAT(drawn(), ::testing::UnorderedElementsAreArray(expected));
}

TEST_F(Captions, TakeNoTraitOfTheDevicesFont)
{
    paintTableLabels(device, grid, style);
    const std::string plain = recorder->text();
    recorder->forget();
    device.FontName(u"Tahoma");
    device.FontSize(20);
    device.FontBold(true);
    device.FontItalic(true);
    device.ForeColor(QBColor(12));
    paintTableLabels(device, grid, style);
    EXPECT_EQ(recorder->text(), plain);
}

TEST_F(Captions, TellWhichOrbitalEachColumnFills)
{
    paintElectronStates(device, grid, style);
    std::vector<std::string> expected;
    const auto run = [&](const char* sign, int count, int column, int row) {
        for (int number = 1; number <= count; ++number) {
            expected.push_back(sign + std::to_string(number) + " " + std::to_string(column + number - 1) +
                               "," + std::to_string(row));
        }
    };
    run("s", 2, 1, 9);
    run("d", 10, 3, 9);
    run("p", 6, 13, 9);
    run("f", 14, 5, 12);
    const std::vector<Caption> pieces = drawn();
    ASSERT_EQ(pieces.size(), 2 * expected.size());
    std::vector<std::string> found;
    for (std::size_t at = 0; at + 1 < pieces.size(); at += 2) {
        const Caption& sign = pieces[at];
        const Caption& number = pieces[at + 1];
        EXPECT_LT(number.size, sign.size);
        EXPECT_LT(number.row, sign.row);
        EXPECT_GT(number.column, sign.column);
        EXPECT_LT(sign.row - std::floor(sign.row), 0.5); // half as high as a cell
        found.push_back(sign.text + number.text + " " + std::to_string(static_cast<int>(sign.column)) + "," +
                        std::to_string(static_cast<int>(sign.row)));
    }
    EXPECT_EQ(found, expected);
}

} // namespace

} // namespace phial
