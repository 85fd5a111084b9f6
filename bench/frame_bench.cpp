// The frame on the screen beside the same windows built by hand with the toolkit: the change of language in
// an open form of 200 controls, and the way of the user's dialog with 200 avatars to its first paint. The
// windows are real ones, drawn into memory; each round ends when what has changed is painted.

#include "PaintWatch.h"
#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/frm_DialogUser.h"
#include "app/screen/Avatars.h"
#include "app/sys_Global.h"
#include "core/CoreTokenList.h"
#include "core/MemorySettingsStore.h"
#include "core/NativePath.h"
#include "core/NumberText.h"
#include "qt/base/QtText.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/Theme.h"
#include "visual/Form.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmapCache>
#include <QPushButton>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <stdexcept>
#include <vector>

namespace
{

using namespace phial;

constexpr int Labels = 120;
constexpr int Buttons = 60;
constexpr int Fields = 20;
constexpr int Columns = 10;
constexpr int CellWidth = 96;
constexpr int CellHeight = 32;
constexpr int Avatars = 200;

String germanText(int number)
{
    return u"Aufgabe " + plainText(number);
}

String englishText(int number)
{
    return u"Exercise " + plainText(number);
}

QRect cell(int number)
{
    return {number % Columns * CellWidth, number / Columns * CellHeight, CellWidth - 4, CellHeight - 4};
}

QSize formSize()
{
    return {Columns * CellWidth, (Labels + Buttons + Fields) / Columns * CellHeight};
}

/// A form whose controls all change their texts.
class ManyControls
{
public:
    ManyControls()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({double(formSize().width()), double(formSize().height())});
        int number = 0;
        for (; number < Labels; ++number) {
            place(*form_->add<ctl_Label>(u"lab_" + plainText(number)), number);
        }
        for (; number < Labels + Buttons; ++number) {
            place(*form_->add<ctl_Button>(u"but_" + plainText(number)), number);
        }
        for (; number < Labels + Buttons + Fields; ++number) {
            const auto field = form_->add<TextBox>(u"txt_" + plainText(number));
            placeAt(*field, number);
            field->Text(germanText(number) + u"|" + englishText(number));
        }
        translated_ = form_->TRANSLATE.connect([this] { LNG()->Form(*form_, texts_); });
        LNG()->Form(*form_, texts_);
        form_->Show();
    }
    ~ManyControls() { form_->discard(); }
    ManyControls(const ManyControls&) = delete;
    ManyControls& operator=(const ManyControls&) = delete;

private:
    template <typename Class>
    static void place(Class& control, int number)
    {
        placeAt(control, number);
        control.Caption(germanText(number) + u"|" + englishText(number));
    }
    static void placeAt(Control& control, int number)
    {
        const QRect area = cell(number);
        control.Move(area.left(), area.top(), area.width(), area.height());
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Many");
    CoreTokenList texts_;
    Connection translated_;
};

/// The same by hand.
class ManyWidgets
{
public:
    ManyWidgets()
    {
        window_.setFixedSize(formSize());
        int number = 0;
        for (; number < Labels; ++number) {
            place(labels_.emplace_back(new QLabel(&window_)), number);
        }
        for (; number < Labels + Buttons; ++number) {
            place(buttons_.emplace_back(new QPushButton(&window_)), number);
        }
        for (; number < Labels + Buttons + Fields; ++number) {
            place(fields_.emplace_back(new QLineEdit(&window_)), number);
        }
        show(true);
        window_.show();
    }

    void show(bool german)
    {
        int number = 0;
        const auto next = [&] {
            const QString& text = (german ? german_ : english_).at(static_cast<std::size_t>(number));
            ++number;
            return text;
        };
        for (QLabel* label : labels_) {
            label->setText(next());
        }
        for (QPushButton* button : buttons_) {
            button->setText(next());
        }
        for (QLineEdit* field : fields_) {
            field->setText(next());
        }
    }

private:
    void place(QWidget* widget, int number)
    {
        widget->setGeometry(cell(number));
        german_.push_back(qt::toQt(germanText(number)));
        english_.push_back(qt::toQt(englishText(number)));
    }

    QWidget window_;
    std::vector<QLabel*> labels_;
    std::vector<QPushButton*> buttons_;
    std::vector<QLineEdit*> fields_;
    std::vector<QString> german_;
    std::vector<QString> english_;
};

/// A folder of many avatars: those of the installation, each several times.
class AvatarFolder
{
public:
    AvatarFolder()
    {
        const QDir installed(QStringLiteral(PHIAL_BENCH_TREE "/Resources/avatar"));
        const QStringList names = installed.entryList({QStringLiteral("*.gif")}, QDir::Files);
        if (names.isEmpty()) {
            throw std::runtime_error("the installation tree has no avatars");
        }
        for (int number = 0; number < Avatars; ++number) {
            const QString copy =
                folder_.filePath(QStringLiteral("a%1.gif").arg(number, 3, 10, QLatin1Char('0')));
            QFile::copy(installed.filePath(names[number % names.size()]), copy);
            files.append(copy);
        }
    }

    String path() const { return systemPath(folder_.path().toStdU16String()) + u"\\"; }

    QStringList files;

private:
    QTemporaryDir folder_;
};

/// The user's dialog by hand: the same fields, the avatars as the toolkit's list of icons.
class HandmadeDialog
{
public:
    explicit HandmadeDialog(const QStringList& avatars)
    {
        window_.setFixedSize(640, 508);
        makeHeader();
        label(QStringLiteral("Dein Name:"), {24, 80, 420, 24});
        auto* name = new QLineEdit(QStringLiteral("pupil"), &window_);
        name->setGeometry(24, 106, 420, 44);
        label(QStringLiteral("Schon einmal hier:"), {24, 164, 420, 24});
        for (int place = 0; place < 6; ++place) {
            const int left = 24 + place % 2 * 218;
            const int top = 192 + place / 2 * 74;
            label({}, {left, top, 64, 64})->setFrameShape(QFrame::Box);
            label(QStringLiteral("Noch Niemand"), {left + 72, top, 140, 64});
        }
        label(QStringLiteral("Dein Bild:"), {476, 80, 140, 24});
        makeList(avatars);
        (new QPushButton(QStringLiteral("OK"), &window_))->setGeometry(370, 438, 128, 64);
        (new QPushButton(QStringLiteral("Abbrechen"), &window_))->setGeometry(506, 438, 128, 64);
        window_.show();
    }

private:
    QLabel* label(const QString& text, const QRect& area)
    {
        auto* made = new QLabel(text, &window_);
        made->setGeometry(area);
        return made;
    }
    void makeHeader()
    {
        QLabel* header = label(QStringLiteral("Wer bist du?"), {0, 0, 640, 64});
        QLinearGradient ground(0, 0, 640, 0);
        ground.setColorAt(0, QColor(0, 106, 181));
        ground.setColorAt(1, QColor(0, 64, 118));
        QPalette palette = header->palette();
        palette.setBrush(QPalette::Window, ground);
        header->setPalette(palette);
        header->setAutoFillBackground(true);
    }
    void makeList(const QStringList& avatars)
    {
        auto* list = new QListWidget(&window_);
        list->setGeometry(476, 106, 140, 302);
        list->setViewMode(QListView::IconMode);
        list->setUniformItemSizes(true);
        list->setIconSize({48, 48});
        list->setGridSize({50, 50});
        for (const QString& file : avatars) {
            list->addItem(new QListWidgetItem(QIcon(file), {}));
        }
    }

    QDialog window_;
};

void changeByHand(benchmark::State& state)
{
    PaintWatch watch;
    ManyWidgets widgets;
    watch.finish();
    bool german = true;
    for (auto step : state) {
        german = !german;
        widgets.show(german);
        watch.finish();
    }
}

// What is made by hand goes first, in the toolkit's plain look; the system's look stays from its first use.

void LanguageChangeByHand(benchmark::State& state)
{
    changeByHand(state);
}
BENCHMARK(LanguageChangeByHand)->Unit(benchmark::kMillisecond);

void UserDialogByHand(benchmark::State& state)
{
    const AvatarFolder avatars;
    PaintWatch watch;
    for (auto step : state) {
        state.PauseTiming();
        QPixmapCache::clear();
        state.ResumeTiming();
        auto dialog = std::make_unique<HandmadeDialog>(avatars.files);
        watch.finish();
        state.PauseTiming();
        dialog.reset();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(UserDialogByHand)->Unit(benchmark::kMillisecond);

void LanguageChangeByHandSameLook(benchmark::State& state)
{
    qt::ensureTheme();
    changeByHand(state);
}
BENCHMARK(LanguageChangeByHandSameLook)->Unit(benchmark::kMillisecond);

void LanguageChange(benchmark::State& state)
{
    PaintWatch watch;
    const ManyControls controls;
    watch.finish();
    for (auto step : state) {
        LNG()->CURRENT(LNG()->EFFECTIVE() == ID_Language_German ? ID_Language_English : ID_Language_German);
        watch.finish();
    }
}
BENCHMARK(LanguageChange)->Unit(benchmark::kMillisecond);

void UserDialogFirstPaint(benchmark::State& state)
{
    const AvatarFolder avatars;
    QVAPP()->URL()->RESOURCEAVATARS(avatars.path());
    PaintWatch watch;
    for (auto step : state) {
        state.PauseTiming();
        AvatarImagesLoad(); // as at the start: listed, none decoded
        state.ResumeTiming();
        auto dialog = std::make_unique<frm_DialogUser>();
        dialog->form().Show();
        watch.finish();
        state.PauseTiming();
        dialog.reset();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(UserDialogFirstPaint)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const qt::DesktopApplication application(argc, argv, u"Frame");
    Platform platform = application.platform();
    platform.settings = std::make_shared<MemorySettingsStore>(); // writing to the disk is left out
    const Session session(platform);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
