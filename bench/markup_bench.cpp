// Texts with markup: parsed, set and drawn as a label does it, 100 of them, beside QTextDocument with the
// same HTML; a format put on and taken off, and a repair, in a text of a page; the dialog opened with its
// first paint; and a character typed into a page in it.

#include "BenchSession.h"
#include "PaintWatch.h"
#include "dialogs/MarkupTags.h"
#include "dialogs/frm_DialogMiniHTML.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include <benchmark/benchmark.h>
#include <string>

namespace
{

using namespace phial;

constexpr int Labels = 100;
constexpr PixelSize LabelSize{300, 80};
constexpr StringView Sentence =
    u"Das <b>Proton</b> gibt Na<sup>+</sup> und H<sub>2</sub>O in der <i>ersten</i> "
    u"Stufe ab.<br>Danach ist <b><i>alles</i></b> neutral, Versuch ";

String labelText(int number)
{
    return String(Sentence) + fromUtf8(std::to_string(number));
}

void labels(benchmark::State& state)
{
    DrawDevice device(visualHost().createSurface(LabelSize, 1));
    const FontSpec font{.size = 11};
    for (auto _ : state) {
        for (int number = 0; number < Labels; ++number) {
            device.Cls();
            const MarkupLayout layout(labelText(number), font, visualHost().metrics(), LabelSize.width);
            layout.draw(device, {0, 0, LabelSize.width, LabelSize.height}, TextSide::Near, TextSide::Near);
        }
        benchmark::DoNotOptimize(device.Image());
    }
}
BENCHMARK(labels)->Name("MarkupLabels")->Unit(benchmark::kMillisecond);

void documents(benchmark::State& state)
{
    QImage image(static_cast<int>(LabelSize.width), static_cast<int>(LabelSize.height),
                 QImage::Format_ARGB32_Premultiplied);
    const QFont font(QStringLiteral("Tahoma"), 11);
    for (auto _ : state) {
        QPainter painter(&image);
        for (int number = 0; number < Labels; ++number) {
            image.fill(Qt::white);
            QTextDocument document;
            document.setDefaultFont(font);
            document.setDocumentMargin(0);
            document.setTextWidth(LabelSize.width);
            document.setHtml(QString::fromStdU16String(labelText(number)));
            document.drawContents(&painter);
        }
    }
}
BENCHMARK(documents)->Name("TextDocuments")->Unit(benchmark::kMillisecond);

/// Some 10,000 units.
String page()
{
    String text;
    for (int number = 0; text.size() < 10000; ++number) {
        text += labelText(number) + u"\r\n";
    }
    return text;
}

void format(benchmark::State& state)
{
    const String text = page() + u"x";
    for (auto _ : state) {
        const MarkupEdit on = markupEdit(text, {text.size() - 1, 1}, u"B");
        const String tagged = on.applied(text);
        benchmark::DoNotOptimize(markupEdit(tagged, on.selection, u"B").applied(tagged));
    }
}
BENCHMARK(format)->Name("FormatTwice")->Unit(benchmark::kMicrosecond);

void repair(benchmark::State& state)
{
    const String text = page() + u"<b>x<i>y</b>z</i>";
    for (auto _ : state) {
        benchmark::DoNotOptimize(repairedMarkup(text));
    }
}
BENCHMARK(repair)->Name("Repair")->Unit(benchmark::kMicrosecond);

void openDialog(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        frm_DialogMiniHTML dialog;
        dialog.pText(labelText(1));
        dialog.form().Show(); // not modal, so that the benchmark goes on
        watch.finish();
        dialog.form().Unload();
        PaintWatch::endClosed();
    }
}
BENCHMARK(openDialog)->Name("DialogOpen")->Unit(benchmark::kMillisecond);

/// A character at the end of a page, until field and preview are painted.
void typeWithPreview(benchmark::State& state)
{
    PaintWatch watch;
    frm_DialogMiniHTML dialog;
    dialog.pText(page());
    dialog.form().Show();
    watch.finish();
    TextBox& field = dialog.form().control<ctl_MiniHTMLInput>(u"txt_Input")->input();
    for (auto _ : state) {
        field.SelStart(static_cast<std::int32_t>(field.Text().size()));
        field.SelText(u"x");
        watch.finish();
    }
    dialog.form().Unload();
    PaintWatch::endClosed();
}
BENCHMARK(typeWithPreview)->Name("TypeWithPreview")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const BenchSession session(argc, argv);
    return runBenchmarks(argc, argv);
}
