// The work on score lists: order, ranks and marks, and printing a list into a PDF file beside the same rows
// in a table of the toolkit's text document.

#include "core/Process.h"
#include "core/SessionState.h"
#include "qt/base/BasePlatform.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/PrinterChoice.h"
#include "qt/desktop/QtVisualHost.h"
#include "results/Mark.h"
#include "results/cls_DataScores.h"

#include <QGuiApplication>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <array>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{

using namespace phial;

using Scores = std::vector<std::shared_ptr<cls_DataScore>>;

constexpr int Rows = 1000;

Scores makeScores(int count)
{
    std::mt19937 random(20260302);
    Scores scores;
    for (int number = 1; number <= count; ++number) {
        const String text = Variant(number).toText();
        auto score = std::make_shared<cls_DataScore>();
        score->SCREENNAME(u"Schüler " + text);
        score->USERNAME(u"klasse9b." + text);
        score->COMPUTER(u"CHEMIE-PC-" + text);
        // Points of a list of a thousand and more are often the same.
        score->POINTS(std::uniform_int_distribution<int>(0, 400)(random) / 4.0);
        score->POINTSMAX(100);
        score->TIMESTAMP(Moment{46000.25 + number / 1440.0});
        score->ADDITIONAL()->Set(u"ZEIT", number % 300);
        scores.push_back(std::move(score));
    }
    return scores;
}

void import(cls_DataScores& list, const Scores& scores)
{
    list.CLEAR();
    for (const auto& score : scores) {
        list.DATABASE()->Import(score);
    }
}

void sortUnordered(benchmark::State& state, int count)
{
    const Scores scores = makeScores(count);
    cls_DataScores list;
    for (auto step : state) {
        state.PauseTiming();
        import(list, scores);
        state.ResumeTiming();
        list.SORT();
    }
}
BENCHMARK_CAPTURE(sortUnordered, 5000, 5'000)->Name("SORT, 5000 unordered");
BENCHMARK_CAPTURE(sortUnordered, 100000, 100'000)->Name("SORT, 100000 unordered");

/// The exchange sort word for word, which leaves the same order.
void exchangeUnordered(benchmark::State& state)
{
    const Scores scores = makeScores(5'000);
    for (auto step : state) {
        Scores list = scores;
        for (std::size_t i = 0; i < list.size(); ++i) {
            for (std::size_t j = i + 1; j < list.size(); ++j) {
                if (list[j]->POINTS() > list[i]->POINTS()) {
                    std::swap(list[i], list[j]);
                }
            }
        }
        benchmark::DoNotOptimize(list);
    }
}
BENCHMARK(exchangeUnordered)->Name("exchange sort, 5000 unordered");

void sortOrdered(benchmark::State& state)
{
    cls_DataScores list;
    import(list, makeScores(5'000));
    list.SORT();
    for (auto step : state) {
        list.SORT();
    }
}
BENCHMARK(sortOrdered)->Name("SORT, 5000 in order");

void rank(benchmark::State& state, int count)
{
    cls_DataScores list;
    import(list, makeScores(count));
    list.SORT();
    for (auto step : state) {
        benchmark::DoNotOptimize(list.RANK(50));
    }
}
BENCHMARK_CAPTURE(rank, 10, 10)->Name("RANK, 10 entries");
BENCHMARK_CAPTURE(rank, 5000, 5'000)->Name("RANK, 5000 entries");

void mark(benchmark::State& state)
{
    constexpr int Most = 100;
    for (auto step : state) {
        for (int points = 0; points <= Most; ++points) {
            benchmark::DoNotOptimize(markFor(points, Most));
        }
    }
    state.SetItemsProcessed(state.iterations() * (Most + 1));
}
BENCHMARK(mark)->Name("MARK");

/// A folder for the time of a benchmark, with a file in it.
class PdfFile
{
public:
    PdfFile() { std::filesystem::create_directories(folder_); }
    ~PdfFile() { std::filesystem::remove_all(folder_); }
    PdfFile(const PdfFile&) = delete;
    PdfFile& operator=(const PdfFile&) = delete;

    QString path() const { return QString::fromStdU16String((folder_ / "list.pdf").u16string()); }

private:
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("phial-lists-bench-" + std::to_string(currentProcess()));
};

void printList(benchmark::State& state)
{
    const PdfFile file;
    Platform platform = qt::basePlatform(qt::dispatchGuard());
    platform.visual = std::make_shared<qt::QtVisualHost>([&](const qt::PrintJob& job) {
        const auto printer = qt::pdfFile(file.path(), job.title);
        qt::printOn(*printer, job);
    });
    const SessionState session(platform);
    cls_DataScores list;
    import(list, makeScores(Rows));
    for (auto step : state) {
        list.PRINTOUT(u"Bestenliste");
    }
}
BENCHMARK(printList)->Name("PRINTOUT, 1000 rows to PDF")->Unit(benchmark::kMillisecond);

std::array<String, 9> rowTexts(cls_DataScore& score)
{
    const std::vector<StringView> fields = split(score.TEXTLINE(), u"\t");
    std::array<String, 9> texts;
    for (std::size_t field = 0; field < texts.size(); ++field) {
        texts[field] = fields[field];
    }
    return texts;
}

void printTextDocument(benchmark::State& state)
{
    const PdfFile file;
    const Scores scores = makeScores(Rows);
    for (auto step : state) {
        QTextDocument document;
        document.setDefaultFont(QFont(QStringLiteral("Arial"), 10));
        QTextCursor cursor(&document);
        QTextTableFormat format;
        format.setHeaderRowCount(1);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        QTextTable* table = cursor.insertTable(Rows + 1, 9, format);
        for (int row = 0; row < Rows; ++row) {
            const auto texts = rowTexts(*scores[static_cast<std::size_t>(row)]);
            for (int column = 0; column < 9; ++column) {
                const String& text = texts[static_cast<std::size_t>(column)];
                table->cellAt(row + 1, column)
                    .firstCursorPosition()
                    .insertText(QString::fromStdU16String(text));
            }
        }
        const auto printer = qt::pdfFile(file.path(), QStringLiteral("Bestenliste"));
        printer->setPageOrientation(QPageLayout::Landscape);
        document.print(printer.get());
    }
}
BENCHMARK(printTextDocument)->Name("QTextDocument table, 1000 rows to PDF")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
