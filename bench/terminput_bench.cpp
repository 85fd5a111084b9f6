// The term field in a real window drawn into memory: a key until its character is painted, beside a
// QTextEdit that is given the same formula as HTML anew with each key, and one that takes the key by itself;
// and a press in terms of growing length.

#include "BenchSession.h"
#include "PaintWatch.h"
#include "qt/desktop/WindowHandles.h"
#include "term/TermCopy.h"
#include "term/clt_TermInput.h"
#include "visual/Form.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextEdit>

#include <benchmark/benchmark.h>
#include <memory>

namespace
{

using namespace phial;

constexpr PixelSize FieldSize{480, 60};
constexpr double Size = 24;
constexpr StringView Formula = u"2KMnO4 + 5SO3^2- + 6H^+ -> 2Mn^2+ + 5SO4^2-";

/// A form with a term field, which has the focus.
class TermWindow
{
public:
    explicit TermWindow(StringView term)
    {
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize(FieldSize);
        field->Move(0, 0, FieldSize.width, FieldSize.height);
        field->TEXTFONT()->Size(Size);
        field->Term(String(term));
        field->CARET(static_cast<std::int32_t>(term.size()));
        form->Show();
        field->SetFocus();
    }
    ~TermWindow() { form->discard(); }
    TermWindow(const TermWindow&) = delete;
    TermWindow& operator=(const TermWindow&) = delete;

    QWidget& widget() { return *qt::widgetOf(field->hWnd()); }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Bench");
    std::shared_ptr<clt_TermInput> field = form->add<clt_TermInput>(u"trm_Bench");
};

void strike(QWidget& widget, int key, const QString& text)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &up);
}

/// Types a 2 and takes it back, so that the formula stays as long as it is.
void termKey(benchmark::State& state)
{
    PaintWatch watch;
    TermWindow window(Formula);
    watch.finish();
    bool types = true;
    for (auto _ : state) {
        strike(window.widget(), types ? Qt::Key_2 : Qt::Key_Backspace,
               types ? QStringLiteral("2") : QString());
        types = !types;
        watch.finish();
    }
}
BENCHMARK(termKey)->Name("TermFieldKey")->Unit(benchmark::kMicrosecond);

class TextWindow
{
public:
    TextWindow()
    {
        edit.resize(static_cast<int>(FieldSize.width), static_cast<int>(FieldSize.height));
        QFont font(QStringLiteral("Tahoma"));
        font.setPointSizeF(Size);
        edit.setFont(font);
        edit.setLineWrapMode(QTextEdit::NoWrap);
        show(String(Formula));
        edit.show();
        edit.setFocus();
    }

    void show(const String& term)
    {
        edit.setHtml(QString::fromStdU16String(htmlOfTerm(term)));
        edit.moveCursor(QTextCursor::End);
    }

    QTextEdit edit;
};

/// What raises and lowers by the term's rules has to be worked out again with each key.
void textEditFormulaAnew(benchmark::State& state)
{
    PaintWatch watch;
    TextWindow window;
    watch.finish();
    bool types = true;
    for (auto _ : state) {
        window.show(String(Formula) + (types ? u"2" : u""));
        types = !types;
        watch.finish();
    }
}
BENCHMARK(textEditFormulaAnew)->Name("TextEditKeyAsHtml")->Unit(benchmark::kMicrosecond);

/// Without such rules: the toolkit alone.
void textEditKey(benchmark::State& state)
{
    PaintWatch watch;
    TextWindow window;
    watch.finish();
    bool types = true;
    for (auto _ : state) {
        strike(window.edit, types ? Qt::Key_2 : Qt::Key_Backspace, types ? QStringLiteral("2") : QString());
        types = !types;
        watch.finish();
    }
}
BENCHMARK(textEditKey)->Name("TextEditKey")->Unit(benchmark::kMicrosecond);

/// The same without windows: the model's work for a key, and its picture.
void termKeyAndPicture(benchmark::State& state)
{
    TermWindow window(Formula);
    bool types = true;
    for (auto _ : state) {
        KeyEvent erase{static_cast<std::int32_t>(Key::Backspace), 0};
        KeyPressEvent typed{u'2'};
        types ? window.field->keyPress(typed) : window.field->keyDown(erase);
        types = !types;
        benchmark::DoNotOptimize(window.field->surface().image(1));
    }
}
BENCHMARK(termKeyAndPicture)->Name("TermFieldPicture")->Unit(benchmark::kMicrosecond);

void textEditAndPicture(benchmark::State& state)
{
    TextWindow window;
    QImage image(window.edit.size(), QImage::Format_ARGB32_Premultiplied);
    bool types = true;
    for (auto _ : state) {
        window.show(String(Formula) + (types ? u"2" : u""));
        types = !types;
        window.edit.viewport()->render(&image);
    }
}
BENCHMARK(textEditAndPicture)->Name("TextEditPictureAsHtml")->Unit(benchmark::kMicrosecond);

/// A press in the middle of the field.
void termPress(benchmark::State& state)
{
    String term;
    while (term.size() < static_cast<std::size_t>(state.range(0))) {
        term += u"H2O + (a)/(b) -> Na^+ ";
    }
    term.resize(static_cast<std::size_t>(state.range(0)));
    TermWindow window(term);
    const PointerEvent event{PointerButton::Left, 0, FieldSize.width / 2, FieldSize.height / 2};
    for (auto _ : state) {
        window.field->pointerDown(event);
        window.field->pointerUp(event);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(termPress)
    ->Name("TermFieldPress")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    const BenchSession session(argc, argv);
    return runBenchmarks(argc, argv);
}
