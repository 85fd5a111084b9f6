// The text keyboard in a real window drawn into memory: opened with the first paint, all faces changed by
// SHIFT, a tap until its character is painted, and a step of a drag; beside a QLineEdit with 60 QPushButtons
// in the same look, and beside the same keyboard made of a picture and a label for each key. The pad for
// numbers opened, beside a QDialog with a QLineEdit and its 15 QPushButtons. The keyboard for terms opened,
// and the echo of a key struck there, beside buttons and a bare term field; the periodic keyboard opened,
// beside a QGraphicsScene of 118 items with its buttons.

#include "BenchSession.h"
#include "PaintWatch.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "dialogs/FormulaOffers.h"
#include "dialogs/KeyPainter.h"
#include "dialogs/NumberLayout.h"
#include "dialogs/OfferChoice.h"
#include "dialogs/PeriodicKeyLayout.h"
#include "dialogs/TermKeyLayout.h"
#include "dialogs/TextLayout.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "dialogs/frm_DialogKeyboardPSE.h"
#include "dialogs/frm_DialogKeyboardTerm.h"
#include "dialogs/frm_DialogNumericTouch.h"
#include "periodic/PeriodicPlaces.h"
#include "term/clt_TermInput.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"
#include "visual/VisualHost.h"

#include <QApplication>
#include <QDialog>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <benchmark/benchmark.h>
#include <memory>
#include <span>
#include <vector>

namespace
{

using namespace phial;

constexpr PixelSize WindowSize{750, 340};
constexpr double FieldTop = 12;
constexpr double FieldHeight = 44;
constexpr std::int32_t KeyShift = 37;
constexpr std::int32_t KeyQ = 14;
constexpr std::int32_t KeyC = 40;

/// The keyboard as the facade opens it, for a target that is not to be seen.
class ShownKeyboard
{
public:
    ShownKeyboard()
    {
        keyboard.TargetControl(target);
        keyboard.form().Show(); // not modal, so that the benchmark goes on
    }
    ~ShownKeyboard()
    {
        keyboard.form().Unload();
        PaintWatch::endClosed();
    }
    ShownKeyboard(const ShownKeyboard&) = delete;
    ShownKeyboard& operator=(const ShownKeyboard&) = delete;

    void press(std::int32_t index) { keys->pointerDown(at(index)); }
    void release(std::int32_t index) { keys->pointerUp(at(index)); }

    frm_DialogKeyboard keyboard;
    std::shared_ptr<TextBox> target = std::make_shared<TextBox>();
    std::shared_ptr<TextBox> field = keyboard.form().control<TextBox>(u"txt_Input");
    std::shared_ptr<ctl_Keys> keys = keyboard.form().control<ctl_Keys>(u"ctl_Keys");

private:
    PointerEvent at(std::int32_t index) const
    {
        const PixelRectangle area = keys->areaOf(index);
        return {PointerButton::Left, 0, area.left + area.width / 2, area.top + area.height / 2, 1};
    }
};

/// The same with two controls for each key.
class KeysAsControls
{
public:
    KeysAsControls()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize(WindowSize);
        form->add<TextBox>(u"txt_Input")->Move(15, FieldTop, 720, FieldHeight);
        for (const KeyDesign& key : text_layout::Keys) {
            const PixelRectangle area{key.left / TwipsPerPixel, key.top / TwipsPerPixel,
                                      key.width / TwipsPerPixel, key.height / TwipsPerPixel};
            const auto picture = form->add<PictureBox>(u"pic_Key");
            picture->frame().Index(key.index);
            picture->AutoRedraw(true);
            picture->transparent(true);
            picture->frame().pixelRectangle(area);
            paintCap(picture->device(), {.area = {0, 0, area.width, area.height}, .face = {}});
            const auto label = form->add<Label>(u"lab_Key");
            label->frame().Index(key.index);
            label->Alignment(Alignment::Centre);
            label->Caption(String(key.caption));
            label->frame().pixelRectangle(
                {area.left, area.top + area.height / 4, area.width, area.height / 2});
            labels.push_back(label);
        }
    }
    ~KeysAsControls()
    {
        form->discard();
        PaintWatch::endClosed();
    }
    KeysAsControls(const KeysAsControls&) = delete;
    KeysAsControls& operator=(const KeysAsControls&) = delete;

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Bench");
    std::vector<std::shared_ptr<Label>> labels;
};

/// A push button for each key, on the window.
std::vector<QPushButton*> pushButtons(std::span<const KeyDesign> keys, QWidget& window)
{
    std::vector<QPushButton*> buttons;
    for (const KeyDesign& key : keys) {
        auto* button = new QPushButton(QString::fromStdU16String(String(key.caption)), &window);
        button->setFocusPolicy(Qt::NoFocus);
        button->setGeometry(static_cast<int>(key.left / TwipsPerPixel),
                            static_cast<int>(key.top / TwipsPerPixel),
                            static_cast<int>(key.width / TwipsPerPixel) - 4,
                            static_cast<int>(key.height / TwipsPerPixel) - 4);
        buttons.push_back(button);
    }
    return buttons;
}

/// The same as one would make it of the toolkit's widgets.
class ButtonWindow
{
public:
    ButtonWindow()
    {
        window.resize(static_cast<int>(WindowSize.width), static_cast<int>(WindowSize.height));
        field->setGeometry(15, static_cast<int>(FieldTop), 720, static_cast<int>(FieldHeight));
        buttons = pushButtons(text_layout::Keys, window);
        window.show();
    }

    QWidget window;
    QLineEdit* field = new QLineEdit(&window);
    std::vector<QPushButton*> buttons;
};

void keyboardOpen(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        const ShownKeyboard keyboard;
        watch.finish();
    }
}
BENCHMARK(keyboardOpen)->Name("KeyboardOpen")->Unit(benchmark::kMillisecond);

void keyboardOpenAsControls(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        KeysAsControls keyboard;
        keyboard.form->Show();
        watch.finish();
    }
}
BENCHMARK(keyboardOpenAsControls)->Name("KeyboardOpenAsControls")->Unit(benchmark::kMillisecond);

void buttonsOpen(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        const ButtonWindow buttons;
        watch.finish();
    }
}
BENCHMARK(buttonsOpen)->Name("ButtonsOpen")->Unit(benchmark::kMillisecond);

void padOpen(benchmark::State& state)
{
    PaintWatch watch;
    const auto target = std::make_shared<TextBox>();
    for (auto _ : state) {
        {
            frm_DialogNumericTouch pad;
            pad.TargetControl(target);
            pad.form().Show(); // not modal, so that the benchmark goes on
            watch.finish();
            pad.form().Unload();
        }
        PaintWatch::endClosed();
    }
}
BENCHMARK(padOpen)->Name("PadOpen")->Unit(benchmark::kMillisecond);

void padButtonsOpen(benchmark::State& state)
{
    constexpr PixelSize PadSize{222, 340};
    PaintWatch watch;
    for (auto _ : state) {
        QDialog window;
        window.resize(static_cast<int>(PadSize.width), static_cast<int>(PadSize.height));
        auto* const field = new QLineEdit(&window);
        field->setGeometry(17, 67, 188, 42);
        pushButtons(number_layout::Keys, window);
        window.show();
        watch.finish();
    }
}
BENCHMARK(padButtonsOpen)->Name("PadButtonsOpen")->Unit(benchmark::kMillisecond);

template <typename TermForm>
void termOpen(benchmark::State& state)
{
    PaintWatch watch;
    const auto target = std::make_shared<clt_TermInput>();
    for (auto _ : state) {
        {
            TermForm keyboard;
            keyboard.TargetControl(target);
            keyboard.form().Show(); // not modal, so that the benchmark goes on
            watch.finish();
            keyboard.form().Unload();
        }
        PaintWatch::endClosed();
    }
}
BENCHMARK(termOpen<frm_DialogKeyboardTerm>)->Name("TermKeyboardOpen")->Unit(benchmark::kMillisecond);
BENCHMARK(termOpen<frm_DialogKeyboardPSE>)->Name("PeriodicKeyboardOpen")->Unit(benchmark::kMillisecond);

void termButtonsOpen(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        QDialog window;
        window.resize(static_cast<int>(WindowSize.width), static_cast<int>(WindowSize.height));
        auto* const field = new QLineEdit(&window);
        field->setGeometry(156, 46, 328, 68);
        pushButtons(term_key_layout::Keys, window);
        window.show();
        watch.finish();
    }
}
BENCHMARK(termButtonsOpen)->Name("TermButtonsOpen")->Unit(benchmark::kMillisecond);

/// 118 cells with three texts each, as one would make them of the toolkit's scene, and buttons beside it.
void periodicSceneOpen(benchmark::State& state)
{
    constexpr double Cell = 28;
    constexpr PixelSize FormSize{840, 472};
    PaintWatch watch;
    for (auto _ : state) {
        QDialog window;
        window.resize(static_cast<int>(FormSize.width), static_cast<int>(FormSize.height));
        auto* const field = new QLineEdit(&window);
        field->setGeometry(24, 44, 536, 54);
        auto* const view = new QGraphicsView(&window);
        view->setGeometry(24, 104, 536, 353);
        auto* const scene = new QGraphicsScene(view);
        for (int element = 1; element <= 118; ++element) {
            const auto place = placeOf(element);
            auto* const cell = scene->addRect(place->column * Cell, place->row * Cell, Cell, Cell, QPen(),
                                              QColor(150, 255, 150));
            const auto text = [&](const QString& what, double x, double y) {
                auto* const item = new QGraphicsSimpleTextItem(what, cell);
                item->setPos(place->column * Cell + x, place->row * Cell + y);
            };
            text(QStringLiteral("Xy"), 8, 8);
            text(QString::number(element), 2, 16);
            text(QString::number(element * 2), 2, 0);
        }
        view->setScene(scene);
        pushButtons(periodic_key_layout::Keys, window);
        window.show();
        watch.finish();
    }
}
BENCHMARK(periodicSceneOpen)->Name("PeriodicSceneOpen")->Unit(benchmark::kMillisecond);

/// Struck, typed, and painted in the field.
void strikeTermKey(benchmark::State& state, std::int32_t index)
{
    PaintWatch watch;
    frm_DialogKeyboardTerm keyboard;
    keyboard.TargetControl(std::make_shared<clt_TermInput>());
    keyboard.form().Show();
    watch.finish();
    const auto keys = keyboard.form().control<ctl_Keys>(u"ctl_Keys");
    const auto field = keyboard.form().control<clt_TermInput>(u"txt_Input");
    for (auto _ : state) {
        keys->CLICK.raise(index);
        while (field->Term().empty()) {
            QApplication::processEvents();
        }
        QApplication::processEvents();
        state.PauseTiming();
        field->Term(u"");
        watch.finish();
        state.ResumeTiming();
    }
    keyboard.form().Unload();
    PaintWatch::endClosed();
}

void termTap(benchmark::State& state)
{
    strikeTermKey(state, KeyQ);
}
BENCHMARK(termTap)->Name("TermKeyboardEcho")->Unit(benchmark::kMicrosecond);

/// The same with formulas that begin with the letter.
void termTapWithOffers(benchmark::State& state)
{
    OfferLeave::current()->isGiven = true;
    strikeTermKey(state, KeyC);
    OfferLeave::current()->isGiven = false;
}
BENCHMARK(termTapWithOffers)->Name("TermKeyboardEchoOffers")->Unit(benchmark::kMicrosecond);

void offers(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(offersBehind(u"2NaOH + H2S", 5));
    }
}
BENCHMARK(offers)->Name("FormulaOffers")->Unit(benchmark::kMicrosecond);

/// The same field on a form of its own, into which a program types.
void bareTermTap(benchmark::State& state)
{
    PaintWatch watch;
    const auto form = std::make_shared<Form>(u"frm_Bench");
    form->ScaleMode(ScaleUnit::Pixels);
    form->innerSize(WindowSize);
    const auto field = form->add<clt_TermInput>(u"txt_Input");
    field->Move(156, 46, 328, 68);
    field->Term(u"");
    form->Show();
    field->frame().SetFocus();
    watch.finish();
    for (auto _ : state) {
        SendKeys(u"+q", form);
        while (field->Term().empty()) {
            QApplication::processEvents();
        }
        QApplication::processEvents();
        state.PauseTiming();
        field->Term(u"");
        watch.finish();
        state.ResumeTiming();
    }
    form->discard();
    PaintWatch::endClosed();
}
BENCHMARK(bareTermTap)->Name("BareTermEcho")->Unit(benchmark::kMicrosecond);

void keyboardFaces(benchmark::State& state)
{
    PaintWatch watch;
    ShownKeyboard keyboard;
    watch.finish();
    for (auto _ : state) {
        keyboard.press(KeyShift);
        keyboard.release(KeyShift);
        watch.finish();
    }
}
BENCHMARK(keyboardFaces)->Name("KeyboardFaces")->Unit(benchmark::kMillisecond);

void buttonFaces(benchmark::State& state)
{
    PaintWatch watch;
    const ButtonWindow window;
    watch.finish();
    bool isShifted = false;
    for (auto _ : state) {
        isShifted = !isShifted;
        for (QPushButton* button : window.buttons) {
            button->setText(isShifted ? button->text().toUpper() : button->text().toLower());
        }
        watch.finish();
    }
}
BENCHMARK(buttonFaces)->Name("ButtonFaces")->Unit(benchmark::kMillisecond);

void keyboardTap(benchmark::State& state)
{
    PaintWatch watch;
    ShownKeyboard keyboard;
    watch.finish();
    for (auto _ : state) {
        keyboard.press(KeyQ);
        keyboard.release(KeyQ);
        while (keyboard.field->Text().empty()) {
            QApplication::processEvents();
        }
        QApplication::processEvents();
        state.PauseTiming();
        keyboard.field->Text(u"");
        watch.finish();
        state.ResumeTiming();
    }
}
BENCHMARK(keyboardTap)->Name("KeyboardTap")->Unit(benchmark::kMicrosecond);

/// A button that types into the field: pressed, let go, the character in the field painted.
void buttonTap(benchmark::State& state)
{
    PaintWatch watch;
    ButtonWindow window;
    window.field->setFocus();
    watch.finish();
    QPushButton* button = window.buttons.front();
    QObject::connect(button, &QPushButton::clicked, window.field, [field = window.field] {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Q, Qt::NoModifier, QStringLiteral("q"));
        QApplication::sendEvent(field, &down);
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_Q, Qt::NoModifier, QStringLiteral("q"));
        QApplication::sendEvent(field, &up);
    });
    for (auto _ : state) {
        button->setDown(true);
        button->click();
        watch.finish();
        state.PauseTiming();
        window.field->clear();
        watch.finish();
        state.ResumeTiming();
    }
}
BENCHMARK(buttonTap)->Name("ButtonTap")->Unit(benchmark::kMicrosecond);

void keyboardDragStep(benchmark::State& state)
{
    PaintWatch watch;
    ShownKeyboard keyboard;
    watch.finish();
    Form& form = keyboard.keyboard.form();
    double step = 0;
    for (auto _ : state) {
        step = step > 0 ? 0 : TwipsPerPixel;
        form.Move(form.Left() + (step > 0 ? step : -TwipsPerPixel), form.Top());
        QApplication::processEvents();
    }
}
BENCHMARK(keyboardDragStep)->Name("KeyboardDragStep")->Unit(benchmark::kMicrosecond);

void widgetMove(benchmark::State& state)
{
    PaintWatch watch;
    ButtonWindow window;
    watch.finish();
    int step = 0;
    for (auto _ : state) {
        step = 1 - step;
        window.window.move(step, 0);
        QApplication::processEvents();
    }
}
BENCHMARK(widgetMove)->Name("WidgetMove")->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    const BenchSession session(argc, argv);
    QVAPP()->URL()->ROOT(systemPath(PHIAL_BENCH_TREE) + u"\\");
    return runBenchmarks(argc, argv);
}
