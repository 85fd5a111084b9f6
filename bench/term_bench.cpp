// Drawing school formulas onto a picture: TermDraw beside the toolkit's text document with the HTML of the
// same formulas. Parsing, layout and drawing count on both sides.

#include "qt/desktop/PictureBackend.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/QtTextMetrics.h"
#include "term/TermDraw.h"
#include "term/TermHtml.h"
#include "visual/DrawDevice.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QTextDocument>

#include <benchmark/benchmark.h>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using namespace phial;

constexpr double Size = 14; // points
constexpr PixelSize PictureSize{480, 60};

std::vector<String> schoolTerms()
{
    std::ifstream file(PHIAL_BENCH_DATA "/school_terms.txt");
    std::vector<String> terms;
    for (std::string line; std::getline(file, line);) {
        terms.push_back(fromUtf8(line));
    }
    if (terms.empty()) {
        throw std::runtime_error("school_terms.txt is missing");
    }
    return terms;
}

void countTerms(benchmark::State& state, std::size_t terms)
{
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(terms));
}

void TermOnPicture(benchmark::State& state)
{
    const auto terms = schoolTerms();
    const auto picture = std::make_shared<Picture>(PictureSize);
    DrawDevice device(std::make_shared<qt::PictureBackend>(picture, std::make_shared<qt::QtTextMetrics>()));
    device.FontSize(Size);
    for (auto step : state) {
        for (const String& term : terms) {
            device.Cls();
            benchmark::DoNotOptimize(TermDraw(device, term, 4, 20, TEXTALIGN::TopLeft));
        }
    }
    countTerms(state, terms.size());
}
BENCHMARK(TermOnPicture);

void TextDocumentOnPicture(benchmark::State& state)
{
    const auto terms = schoolTerms();
    QImage image(static_cast<int>(PictureSize.width), static_cast<int>(PictureSize.height),
                 QImage::Format_ARGB32_Premultiplied);
    QFont font(QStringLiteral("Tahoma"));
    font.setPointSizeF(Size);
    for (auto step : state) {
        for (const String& term : terms) {
            image.fill(Qt::white);
            QTextDocument document;
            document.setDefaultFont(font);
            document.setHtml(QString::fromStdU16String(termToHtml(term)));
            QPainter painter(&image);
            painter.translate(4, 20);
            document.documentLayout()->draw(&painter, QAbstractTextDocumentLayout::PaintContext());
        }
    }
    countTerms(state, terms.size());
}
BENCHMARK(TextDocumentOnPicture);

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
