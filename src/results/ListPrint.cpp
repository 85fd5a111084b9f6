#include "results/ListPrint.h"

#include "core/Arithmetic.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "results/ListRecord.h"
#include "visual/OneLine.h"
#include "visual/Printer.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

// Millimetres on the page.
constexpr double PageMargin = 10;
constexpr double RuleBelowTitle = 20;
constexpr double TopOfColumns = 30;
constexpr double LowerMargin = 20;
constexpr double GapOfRows = 2;
constexpr double GapOfColumns = 1;

constexpr double TitleSize = 14; // points
constexpr double TextSize = 10;

/// One list on its way to the printer.
class ListPrinter
{
public:
    ListPrinter(StringView title, std::span<const PrintedColumn> columns) : columns_(columns)
    {
        printer_.Title(String(title));
        page_.FontName(u"Arial");
        page_.FontSize(TitleSize);
        printer_.Orientation(PageOrientation::Landscape);
        page_.ScaleMode(ScaleUnit::Millimetres);
        width_ = toWhole(page_.ScaleWidth());
        height_ = toWhole(page_.ScaleHeight());

        page_.CurrentX(PageMargin);
        page_.CurrentY(PageMargin);
        page_.PrintLine(title);
        rule(RuleBelowTitle);
        page_.FontSize(TextSize);
    }

    void addRow(std::vector<String> texts)
    {
        if (!begun_ || page_.CurrentY() > height_ - LowerMargin) {
            beginColumns();
        }
        std::ranges::transform(texts, texts.begin(), oneLine);
        printCells({texts.begin(), texts.end()}, {});
        page_.PrintLine();
        page_.CurrentY(page_.CurrentY() + GapOfRows);
    }

    void end()
    {
        page_.PrintLine();
        rule(page_.CurrentY());
        page_.PrintLine();
        page_.CurrentX(PageMargin);
        page_.PrintLine(footer());
        printer_.EndDoc();
    }

private:
    /// The left edges of a row's texts.
    std::vector<double> lefts(const std::vector<StringView>& measured)
    {
        std::vector<double> edges;
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            const double place = PageMargin + (width_ - 2 * PageMargin) * columns_[column].place;
            edges.push_back(place - along(page_.TextWidth(measured[column]), sideOf(columns_[column].align)));
        }
        edges.push_back(width_ - PageMargin + GapOfColumns);
        return edges;
    }

    /// Prints a text in each column; another one can take its place in measuring.
    void printCells(const std::vector<StringView>& texts, const std::vector<StringView>& measured)
    {
        const std::vector<double> edges = lefts(measured.empty() ? texts : measured);
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            const double left = edges[column];
            const double right = std::max(left, edges[column + 1] - GapOfColumns);
            page_.clip(left, 0, right, height_);
            page_.CurrentX(left);
            page_.Print(texts[column]);
        }
        page_.unclip();
    }

    void beginColumns()
    {
        if (std::exchange(begun_, true)) {
            printer_.NewPage();
            page_.CurrentY(PageMargin);
        }
        std::vector<StringView> titles;
        std::vector<StringView> measured;
        for (const PrintedColumn& column : columns_) {
            titles.push_back(column.title);
            measured.push_back(column.titleMeasure.empty() ? column.title : column.titleMeasure);
        }
        page_.FontBold(true);
        page_.CurrentY(TopOfColumns);
        printCells(titles, measured);
        page_.FontBold(false);
        page_.PrintLine();
        page_.PrintLine();
    }

    void rule(double y) { page_.Line(PageMargin, y, width_ - PageMargin, y); }

    static String footer()
    {
        const Moment now = presentMoment();
        const CoreMachine& machine = coreRoot().CoreSystem().CoreMachine();
        return u"Gedruckt am " + dayText(now) + u" um " + timeText(now) + u" von " + machine.UserName() +
               u" an Rechner " + machine.ComputerName();
    }

    std::span<const PrintedColumn> columns_;
    Printer printer_;
    DrawDevice& page_ = printer_.device();
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    bool begun_ = false;
};

} // namespace

void printList(StringView title, std::span<const PrintedColumn> columns, std::int32_t rows,
               const PrintedRow& row)
{
    ListPrinter printer(title, columns);
    for (std::int32_t position = 1; position <= rows; ++position) {
        printer.addRow(row(position));
    }
    printer.end();
}

String printedMoment(Moment moment)
{
    return momentText(moment, u"HH:MM:SS dd.mm.yyyy");
}

} // namespace phial
