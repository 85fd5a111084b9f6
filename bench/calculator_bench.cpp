// The pocket calculator in a real window drawn into memory: opened with the first paint and a key struck
// until its sign is painted, beside a QDialog with a QLineEdit, a list and as many QPushButtons in the same
// look; the font of the line fitted; and "=" of 20 signs without a window, beside muParser. The sheet of
// groups opened, beside a QTextBrowser with a table of the same lines.

#include "BenchSession.h"
#include "PaintWatch.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "calc/CalculatorDisplay.h"
#include "core/NativePath.h"
#include "core/NumberText.h"
#include "desk/CalculatorDesign.h"
#include "desk/GroupNames.h"
#include "desk/frm_ToolCalc.h"
#include "desk/frm_ToolGroupNames.h"
#include "visual/Form.h"
#include "visual/ctl_Button.h"

#include <QApplication>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <muParser.h>
#include <vector>

namespace
{

using namespace phial;
namespace design = tool_calc_design;

constexpr std::int32_t KeySeven = 7;
/// 20 signs as a pupil adds up a molar mass.
constexpr StringView Term = u"12,011+4*1,008+15,99";
constexpr const char* MuTerm = "12.011+4*1.008+15.99";

/// The same as one would make it of the toolkit's widgets: what is seen, what a screen reader is told, and
/// what hears the keys.
class CalculatorByHand
{
public:
    CalculatorByHand()
    {
        window.setWindowTitle(QStringLiteral("Taschenrechner"));
        window.resize(632, 456);
        auto* const pad = new QFrame(&window);
        pad->setGeometry(0, 0, 384, 456);
        field->setParent(pad);
        field->setGeometry(16, 16, 352, 64);
        field->setAlignment(Qt::AlignRight);
        field->setFont(QFont(QStringLiteral("Courier New"), 26));
        label(QStringLiteral("RAD"), QStringLiteral("Winkel im Bogenmaß"), {22, 20, 60, 16}, pad);
        label({}, QStringLiteral("0"), {16, 84, 352, 38}, pad);
        label(QStringLiteral("Bisher gerechnet"), {}, {384, 16, 232, 24}, &window);
        auto* const list = new QListWidget(&window);
        list->setGeometry(384, 40, 232, 210);
        list->setAccessibleName(QStringLiteral("Bisher gerechnet"));
        for (int at = 0; at < design::Rows * design::Columns; ++at) {
            button(QString::number(at),
                   {16 + at % design::Columns * 72, 126 + at / design::Columns * 54, 64, 46}, pad);
        }
        for (int memory = 0; memory < 4; ++memory) {
            button(QStringLiteral("STO%1").arg(memory), {384, 260 + memory * 48, 64, 40}, &window);
            button(QStringLiteral("M%1").arg(memory), {452, 260 + memory * 48, 164, 40}, &window);
            key->setEnabled(false);
        }
        key = buttons.front();
        key->setFocus();
        window.show();
    }

    QDialog window;
    QLineEdit* field = new QLineEdit;
    QPushButton* key = nullptr;
    std::vector<QPushButton*> buttons;

private:
    static void label(const QString& text, const QString& name, const QRect& place, QWidget* parent)
    {
        auto* const made = new QLabel(text, parent);
        made->setGeometry(place);
        made->setAccessibleName(name);
    }
    void button(const QString& face, const QRect& place, QWidget* parent)
    {
        key = new QPushButton(face, parent);
        key->setAccessibleName(face);
        key->setFont(QFont(QStringLiteral("Tahoma"), 14));
        key->setGeometry(place);
        QObject::connect(key, &QPushButton::clicked, field, [this, face] { field->insert(face); });
        buttons.push_back(key);
    }
};

void open(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        {
            frm_ToolCalc calculator;
            calculator.form().Show(); // not modal, so that the benchmark goes on
            watch.finish();
            calculator.form().Unload();
        }
        PaintWatch::endClosed();
    }
}
BENCHMARK(open)->Name("CalculatorOpen")->Unit(benchmark::kMillisecond);

void openByHand(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        const CalculatorByHand window;
        watch.finish();
    }
}
BENCHMARK(openByHand)->Name("CalculatorByHand")->Unit(benchmark::kMillisecond);

void key(benchmark::State& state)
{
    PaintWatch watch;
    frm_ToolCalc calculator;
    calculator.form().Show();
    const auto seven = calculator.form().control<ctl_Button>(u"but_Key", KeySeven);
    watch.finish();
    for (auto _ : state) {
        seven->click();
        watch.finish();
        state.PauseTiming();
        calculator.hShow(u"0");
        watch.finish();
        state.ResumeTiming();
    }
    calculator.form().Unload();
    PaintWatch::endClosed();
}
BENCHMARK(key)->Name("CalculatorKey")->Unit(benchmark::kMicrosecond);

void keyByHand(benchmark::State& state)
{
    PaintWatch watch;
    CalculatorByHand window;
    watch.finish();
    for (auto _ : state) {
        window.key->click();
        watch.finish();
        state.PauseTiming();
        window.field->clear();
        watch.finish();
        state.ResumeTiming();
    }
}
BENCHMARK(keyByHand)->Name("CalculatorKeyByHand")->Unit(benchmark::kMicrosecond);

/// A line of 20 signs, then one of a single sign.
void fit(benchmark::State& state)
{
    frm_ToolCalc calculator;
    for (auto _ : state) {
        calculator.hShow(Term);
        calculator.hShow(u"1");
    }
    calculator.form().discard();
}
BENCHMARK(fit)->Name("CalculatorLineFitted")->Unit(benchmark::kMicrosecond);

void groupSheet(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        {
            frm_ToolGroupNames sheet;
            sheet.form().Show(); // not modal, so that the benchmark goes on
            watch.finish();
            sheet.form().Unload();
        }
        PaintWatch::endClosed();
    }
}
BENCHMARK(groupSheet)->Name("GroupSheetOpen")->Unit(benchmark::kMillisecond);

/// The formula as the toolkit's markup.
QString htmlOf(StringView notation)
{
    QString html;
    QString end;
    for (const char16_t unit : notation) {
        if (unit == u'@' || unit == u'^' || unit == u'|') {
            html += end;
            end = unit == u'@'   ? QStringLiteral("</sub>")
                  : unit == u'^' ? QStringLiteral("</sup>")
                                 : QString();
            html += unit == u'@'   ? QStringLiteral("<sub>")
                    : unit == u'^' ? QStringLiteral("<sup>")
                                   : QString();
        } else {
            html += QChar(unit);
        }
    }
    return html + end;
}

void groupSheetAsDocument(benchmark::State& state)
{
    constexpr std::size_t Rows = 13;
    const auto groups = groupNames();
    PaintWatch watch;
    for (auto _ : state) {
        QString html = QStringLiteral("<table cellpadding=\"6\">");
        for (std::size_t row = 0; row < Rows; ++row) {
            html += row % 2 == 0 ? QStringLiteral("<tr bgcolor=\"#eaf1f7\">") : QStringLiteral("<tr>");
            for (std::size_t at = row; at < groups.size(); at += Rows) {
                const StringView name = groups[at].name.substr(0, groups[at].name.find(u'|'));
                html += QStringLiteral("<td>") + QString::fromStdU16String(String(name)) +
                        QStringLiteral("</td><td>") + htmlOf(groups[at].formula) + QStringLiteral("</td>");
            }
            html += QStringLiteral("</tr>");
        }
        QDialog window;
        window.resize(976, 547);
        auto* const view = new QTextBrowser(&window);
        view->setGeometry(0, 0, 976, 471);
        view->setHtml(html + QStringLiteral("</table>"));
        auto* const button = new QPushButton(QStringLiteral("OK"), &window);
        button->setGeometry(840, 480, 128, 60);
        window.show();
        watch.finish();
    }
}
BENCHMARK(groupSheetAsDocument)->Name("GroupSheetAsDocument")->Unit(benchmark::kMillisecond);

void equals(benchmark::State& state)
{
    CalculatorDisplay display;
    for (auto _ : state) {
        display.show(Term);
        display.press(u"=");
        benchmark::DoNotOptimize(display.value());
    }
}
BENCHMARK(equals)->Name("CalculatorEquals");

void muParserEquals(benchmark::State& state)
{
    mu::Parser parser;
    for (auto _ : state) {
        parser.SetExpr(MuTerm);
        benchmark::DoNotOptimize(parser.Eval());
    }
}
BENCHMARK(muParserEquals)->Name("MuParserEquals");

} // namespace

int main(int argc, char** argv)
{
    const BenchSession session(argc, argv);
    QVAPP()->URL()->ROOT(systemPath(PHIAL_BENCH_TREE) + u"\\");
    return runBenchmarks(argc, argv);
}
