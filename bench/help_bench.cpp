// Help books: a folder of 200 pictures opened with its first page and painted, beside QTextBrowser and
// QLabels with the same three pictures in a window of the same size, all of which they read; a step of a
// slide between pages of 1024 by 768; and the memory that a book of so many pages takes.

#include "BenchSession.h"
#include "PaintWatch.h"
#include "core/NativePath.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "visual/Form.h"

#include <QApplication>
#include <QBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QTextBrowser>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace
{

using namespace phial;

constexpr QSize PageSize{1024, 768};
constexpr QSize WindowSize{784, 560}; // of the dialog on a screen of 800 by 800, as that in memory
constexpr int BookPages = 200;
constexpr int Held = 3;

QString numbered(const QString& folder, int page)
{
    return QStringLiteral("%1/%2.jpg").arg(folder).arg(page, 5, 10, QLatin1Char('0'));
}

/// Something that is drawn on each page alike, with a number.
void paintPage(const QString& file, int page)
{
    QImage image(PageSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QFont(QStringLiteral("Tahoma"), 16));
    for (int line = 0; line < 24; ++line) {
        painter.fillRect(40, 30 * line + 20, 18, 18, QColor::fromHsv(line * 14, 160, 200));
        painter.drawText(80, 30 * line + 36,
                         QStringLiteral("Seite %1, Zeile %2: 2 H2 + O2").arg(page).arg(line));
    }
    painter.end();
    image.save(file);
}

/// A folder with so many pages, which stays until the program ends.
QString book(int pages)
{
    static std::map<int, std::unique_ptr<QTemporaryDir>> folders;
    auto& folder = folders[pages];
    if (!folder) {
        folder = std::make_unique<QTemporaryDir>();
        paintPage(numbered(folder->path(), 1), 1);
        for (int page = 2; page <= pages; ++page) {
            QFile::copy(numbered(folder->path(), 1), numbered(folder->path(), page));
        }
    }
    return folder->path();
}

class OpenBook
{
public:
    explicit OpenBook(int pages)
    {
        dialog.Folder(systemPath(std::filesystem::path(book(pages).toStdU16String()) / ""));
        dialog.form().Show();
    }
    ~OpenBook()
    {
        dialog.form().discard();
        PaintWatch::endClosed();
    }
    OpenBook(const OpenBook&) = delete;
    OpenBook& operator=(const OpenBook&) = delete;

    frm_DialogHelpImages dialog;
};

/// Which is not measured.
template <typename Window>
void close(benchmark::State& state, std::optional<Window>& window)
{
    state.PauseTiming();
    window.reset();
    state.ResumeTiming();
}

void bookOpen(benchmark::State& state)
{
    book(BookPages);
    PaintWatch watch;
    std::optional<OpenBook> open;
    for (auto _ : state) {
        open.emplace(BookPages);
        watch.finish();
        close(state, open);
    }
}
BENCHMARK(bookOpen)->Name("HelpBookOpen")->Unit(benchmark::kMillisecond);

void browserOpen(benchmark::State& state)
{
    const QString folder = book(BookPages);
    QString html;
    for (int page = 1; page <= Held; ++page) {
        html += QStringLiteral("<p><img src=\"%1\"></p>").arg(numbered(folder, page));
    }
    PaintWatch watch;
    std::optional<QTextBrowser> browser;
    for (auto _ : state) {
        QPixmapCache::clear();
        browser.emplace();
        browser->resize(WindowSize);
        browser->setHtml(html);
        browser->show();
        watch.finish();
        close(state, browser);
    }
}
BENCHMARK(browserOpen)->Name("TextBrowserOpen")->Unit(benchmark::kMillisecond);

void labelsOpen(benchmark::State& state)
{
    const QString folder = book(BookPages);
    PaintWatch watch;
    std::optional<QWidget> window;
    for (auto _ : state) {
        QPixmapCache::clear();
        window.emplace();
        window->resize(WindowSize);
        for (int page = 1; page <= Held; ++page) {
            auto* label = new QLabel(&*window);
            label->setPixmap(QPixmap(numbered(folder, page)));
            label->move((page - 1) * WindowSize.width(), 0);
        }
        window->show();
        watch.finish();
        close(state, window);
    }
}
BENCHMARK(labelsOpen)->Name("LabelsOpen")->Unit(benchmark::kMillisecond);

/// Frames of slides from the first page to the last and back, each from its tick until it is painted.
void slideFrame(benchmark::State& state)
{
    constexpr int Pages = 3;
    constexpr double P99 = 0.99;
    PaintWatch watch;
    OpenBook open(Pages);
    open.dialog.form().Width(1100 * TwipsPerPixel);
    open.dialog.form().Height(920 * TwipsPerPixel);
    watch.finish();
    Control& view = *open.dialog.form().control<PictureBox>(u"pic_ViewHolder");
    view.pointerDown({.X = 600, .Y = 100});
    std::vector<double> frames;
    double x = 600;
    double step = -7;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        x += step;
        if (x < 110 || x > 590) {
            step = -step;
        }
        view.pointerMove({.X = x, .Y = 100});
        watch.finish();
        frames.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    }
    std::ranges::sort(frames);
    state.counters["p99_ms"] = frames[static_cast<std::size_t>(P99 * static_cast<double>(frames.size() - 1))];
}
BENCHMARK(slideFrame)->Name("HelpSlideFrame")->Unit(benchmark::kMillisecond)->Iterations(1000);

/// The largest resident size so far, in kilobytes.
double peakMemory()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with("VmHWM:")) {
            return std::stod(line.substr(6));
        }
    }
    return 0;
}

/// From here on the peak counts anew.
void forgetPeak()
{
    std::ofstream("/proc/self/clear_refs") << 5;
}

void bookMemory(benchmark::State& state)
{
    const int pages = static_cast<int>(state.range(0));
    book(pages);
    PaintWatch watch;
    double peak = 0;
    for (auto _ : state) {
        forgetPeak();
        OpenBook open(pages);
        watch.finish();
        for (int turn = 1; turn <= 9; ++turn) {
            open.dialog.form().control<ctl_Button>(u"but_Next")->click();
            open.dialog.form().control<ctl_Button>(u"but_Next")->click();
            QApplication::processEvents();
        }
        peak = peakMemory();
    }
    state.counters["peak_kB"] = peak;
}
BENCHMARK(bookMemory)
    ->Name("HelpBookMemory")
    ->Arg(10)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);

} // namespace

int main(int argc, char** argv)
{
    const BenchSession session(argc, argv);
    return runBenchmarks(argc, argv);
}
