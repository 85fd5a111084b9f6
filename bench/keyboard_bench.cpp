// The text keyboard in a real window drawn into memory: opened with the first paint, all faces changed by
// SHIFT, a tap until its character is painted, and a step of a drag; beside a QLineEdit with 60 QPushButtons
// in the same look, and beside the same keyboard made of a picture and a label for each key. The pad for
// numbers opened, beside a QDialog with a QLineEdit and its 15 QPushButtons.

#include "BenchSession.h"
#include "PaintWatch.h"
#include "dialogs/KeyPainter.h"
#include "dialogs/NumberLayout.h"
#include "dialogs/TextLayout.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "dialogs/frm_DialogNumericTouch.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"

#include <QApplication>
#include <QDialog>
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
    return runBenchmarks(argc, argv);
}
