#include "DesktopRun.h"
#include "media/frm_DialogSound.h"
#include "qt/desktop/WindowShape.h"
#include "visual/TextBox.h"

#include <QLibrary>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include <cstdio>
#include <functional>

using namespace phial;
using namespace phial::qt;

/// What only a real desktop with a window manager shows; with_desktop.py gives one of two screens, 1024x600
/// and 1920x1080 beside it.
namespace
{

constexpr QRect FirstScreen(0, 0, 1024, 600);
constexpr QRect SecondScreen(1024, 0, 1920, 1080);
constexpr auto TellTextHeight = "--text-height";
constexpr auto TellColour = "--colour-at"; // followed by x and y

/// What a fresh program of this file says, with further variables of the environment.
QByteArray toldBy(const QStringList& arguments, const QMap<QString, QString>& variables = {})
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto entry = variables.begin(); entry != variables.end(); ++entry) {
        environment.insert(entry.key(), entry.value());
    }
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), arguments);
    EXPECT_TRUE(program.waitForFinished());
    return program.readAllStandardOutput().trimmed();
}

/// The part of such a program; gives whether it was asked.
bool tell(const QStringList& arguments)
{
    if (arguments.contains(QLatin1String(TellTextHeight))) {
        std::printf("%d\n", DesktopDisplay().TextHeight().value_or(0));
        return true;
    }
    if (arguments.size() == 4 && arguments[1] == QLatin1String(TellColour)) {
        QScreen* screen = QGuiApplication::primaryScreen();
        const QImage seen = screen->grabWindow(0, arguments[2].toInt(), arguments[3].toInt(), 1, 1).toImage();
        std::printf("%s\n", qPrintable(seen.pixelColor(0, 0).name()));
        return true;
    }
    return false;
}

class RealDesktop : public DesktopRun
{
protected:
    static std::shared_ptr<Form> makeForm(String name = u"frm_Test")
    {
        auto form = std::make_shared<Form>(std::move(name));
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize({400, 300});
        form->BackColor(RGB(200, 30, 30));
        return form;
    }

    static QRect frameOf(const Form& form) { return widgetOf(form).frameGeometry(); }

    /// The colour that the user sees at a place of the desktop. Another program looks, since one that copies
    /// the screen can miss what the server tells it meanwhile.
    static QColor seenAt(QPoint place)
    {
        const QByteArray colour =
            toldBy({QLatin1String(TellColour), QString::number(place.x()), QString::number(place.y())});
        QApplication::processEvents(); // what is seen is known
        return QColor(QString::fromLatin1(colour));
    }
    static bool isSeen(const QColor& colour, QPoint place)
    {
        return eventually([&] { return seenAt(place) == colour; });
    }

    /// Whether the form's inside is seen all over the first screen but for title, borders and a taskbar.
    static bool fillsScreen(const Form& form)
    {
        const QColor colour(200, 30, 30);
        const int reach = form.BorderStyle() == BorderStyle::None ? 0 : 60;
        const QRect inside = FirstScreen.adjusted(reach / 10, reach, -reach / 10, -reach);
        return isSeen(colour, inside.topLeft()) && isSeen(colour, inside.bottomRight()) &&
               isSeen(colour, inside.topRight()) && isSeen(colour, inside.bottomLeft());
    }

    static constexpr QRgb CoverColour = 0xFF006AB5U;
};

TEST_F(RealDesktop, TheCoverCoversItsScreenToTheCorners)
{
    start(u"EMBEDDED");
    EXPECT_TRUE(eventually([] { return frameOf(cover()) == FirstScreen; }));
    for (const QPoint corner : {FirstScreen.topLeft(), FirstScreen.topRight(), FirstScreen.bottomLeft(),
                                FirstScreen.bottomRight()}) {
        EXPECT_TRUE(isSeen(QColor(CoverColour), corner)) << corner.x() << " " << corner.y();
    }
}

TEST_F(RealDesktop, AnEmbeddedProgramStaysInFrontOfItsCoverAndEndsWithItsWindow)
{
    const auto own = makeForm(u"frm_Own");
    own->centred(true);
    own->Show();
    start(u"EMBEDDED");
    const QPoint middle = FirstScreen.center();
    EXPECT_TRUE(isSeen(QColor(CoverColour), QPoint(5, 5)));
    EXPECT_TRUE(isSeen(QColor(200, 30, 30), middle));

    bool left = false;
    const auto leaving = own->Deactivate.connect([&] { left = true; });
    QWidget& covering = widgetOf(cover());
    covering.raise();
    covering.activateWindow(); // as a press on it does
    EXPECT_TRUE(eventually([&] { return left && widgetOf(*own).isActiveWindow(); }));
    EXPECT_TRUE(isSeen(QColor(200, 30, 30), middle));
    EXPECT_TRUE(endsAfter([&] { widgetOf(*own).close(); }));
}

TEST_F(RealDesktop, AMaximizedFormFillsTheScreenAndComesBackWhateverItsBorder)
{
    for (const BorderStyle border :
         {BorderStyle::None, BorderStyle::FixedSingle, BorderStyle::Sizable, BorderStyle::FixedDialog}) {
        SCOPED_TRACE(static_cast<int>(border));
        const auto form = makeForm();
        form->BorderStyle(border);
        form->Move(1500, 900);
        form->WindowState(phial::WindowState::Maximized);
        form->Show();
        EXPECT_TRUE(fillsScreen(*form));
        EXPECT_TRUE(eventually([&] { return form->innerSize().width >= 1000; }));
        form->WindowState(phial::WindowState::Normal);
        EXPECT_TRUE(eventually([&] { return form->innerSize() == PixelSize{400, 300}; }));
        EXPECT_EQ(widgetOf(*form).maximumWidth() == 400, border != BorderStyle::Sizable);
        EXPECT_TRUE(eventually([&] { return seenAt({700, 450}) != QColor(200, 30, 30); }));
        EXPECT_TRUE(isSeen(QColor(200, 30, 30), {130, 110})) << "where it was";
        form->WindowState(phial::WindowState::Maximized);
        EXPECT_TRUE(fillsScreen(*form)) << "and again";
        form->Unload();
    }
}

TEST_F(RealDesktop, AFormMovedToTheCornerStandsThere)
{
    const auto form = makeForm();
    form->Move(0, 0);
    form->Show();
    EXPECT_TRUE(eventually([&] { return frameOf(*form).topLeft() == QPoint(0, 0); }));
    // The desktop has had its last word when the form is seen, the frame around it.
    EXPECT_TRUE(isSeen(QColor(200, 30, 30), {50, 100}));
    EXPECT_EQ(frameOf(*form).topLeft(), QPoint(0, 0));
    form->Move(100 * 15, 50 * 15);
    EXPECT_TRUE(eventually([&] { return frameOf(*form).topLeft() == QPoint(100, 50); }));
    form->Move(0, 0);
    EXPECT_TRUE(eventually([&] { return frameOf(*form).topLeft() == QPoint(0, 0); }));
}

TEST_F(RealDesktop, ADialogStandsInTheMiddleOfItsFormsScreen)
{
    const auto pixels = [](const QRect& screen) {
        return PixelRectangle{double(screen.x()), double(screen.y()), double(screen.width()),
                              double(screen.height())};
    };
    EXPECT_EQ(visualHost().screens(), (std::vector{pixels(FirstScreen), pixels(SecondScreen)}));
    const auto form = makeForm();
    form->Move(1100 * 15, 600 * 15);
    form->Show();
    EXPECT_TRUE(eventually([&] { return frameOf(*form).topLeft() == QPoint(1100, 600); }));
    const auto dialog = makeForm(u"frm_Dialog");
    dialog->centred(true);
    dialog->BorderStyle(BorderStyle::FixedDialog);
    dialog->Show();
    const QPoint middle = SecondScreen.center();
    EXPECT_TRUE(eventually([&] { return (frameOf(*dialog).center() - middle).manhattanLength() < 40; }))
        << frameOf(*dialog).x() << " " << frameOf(*dialog).y();
}

/// How a praise window may go away.
struct PraiseEnd {
    const char* name;
    std::function<void(QWidget& praise, QWidget& behind)> act;
};

TEST_F(RealDesktop, FocusAndCaretAreWhereTheyWereBehindAPraiseWindow)
{
    const auto form = makeForm();
    form->add<TextBox>(u"txt_Other");
    const auto text = form->add<TextBox>(u"txt_Answer");
    text->Text(u"58,44 g/mol");
    form->Show();
    ASSERT_TRUE(eventually([&] { return widgetOf(*form).isActiveWindow(); }));
    text->SetFocus();
    text->SelStart(3);
    text->SelLength(2);
    const auto* const caret = QApplication::focusWidget();
    ASSERT_NE(caret, nullptr);

    const PraiseEnd ends[] = {
        {"by itself", [](QWidget&, QWidget&) {}},
        {"Escape", [](QWidget& praise, QWidget&) { QTest::keyClick(&praise, Qt::Key_Escape); }},
        {"a press outside",
         [](QWidget&, QWidget& behind) {
             QTest::mouseClick(behind.windowHandle(), Qt::LeftButton, {}, QPoint(200, 250));
         }},
    };
    for (const PraiseEnd& end : ends) {
        SCOPED_TRACE(end.name);
        frm_DialogSound praise;
        praise.SoundText(u"Bravo!");
        bool wasActive = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            QWidget* const window = QApplication::activeWindow();
            if (window != nullptr && window != &widgetOf(*form) && !wasActive) {
                wasActive = true;
                end.act(*window, widgetOf(*form));
            }
        });
        watch.start(20);
        praise.Show();
        EXPECT_TRUE(wasActive);
        EXPECT_TRUE(eventually([&] { return QApplication::focusWidget() == caret; }));
        EXPECT_EQ(text->SelStart(), 3);
        EXPECT_EQ(text->SelLength(), 2);
    }
}

TEST_F(RealDesktop, AWindowIsSoftWhereACompositorRuns)
{
    EXPECT_FALSE(desktopComposes());
    QLibrary x11(QStringLiteral("X11"), 6);
    const auto intern =
        reinterpret_cast<unsigned long (*)(Display*, const char*, int)>(x11.resolve("XInternAtom"));
    const auto own = reinterpret_cast<int (*)(Display*, unsigned long, unsigned long, unsigned long)>(
        x11.resolve("XSetSelectionOwner"));
    Display* display = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->display();
    const unsigned long compositor = intern(display, "_NET_WM_CM_S0", 0);
    QWidget owner;
    own(display, compositor, owner.winId(), 0);
    EXPECT_TRUE(desktopComposes());
    own(display, compositor, 0, 0);
    EXPECT_FALSE(desktopComposes());
}

class TextHeight : public testing::Test
{
protected:
    /// What a fresh program with these variables measures.
    static int measured(const QMap<QString, QString>& variables)
    {
        return toldBy({QLatin1String(TellTextHeight)}, variables).toInt();
    }
};

TEST_F(TextHeight, IsSmallOnADesktopAsItComes)
{
    const int usual = measured({});
    EXPECT_GT(usual, 8);
    EXPECT_LE(usual, 16);
}

TEST_F(TextHeight, IsLargeWhereTheUserHasSetMoreDotsToAnInch)
{
    const QString dots = QStringLiteral("QT_FONT_DPI");
    EXPECT_LE(measured({{dots, QStringLiteral("96")}}), 16);
    EXPECT_GE(measured({{dots, QStringLiteral("144")}}), 17);
    EXPECT_GE(measured({{QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2")}}), 17);
}

TEST_F(TextHeight, IsLargeWithALargeDesktopFont)
{
    const test::TemporaryFolder folder;
    folder.write("kdeglobals", "[General]\nfont=DejaVu Sans,20,-1,5,50,0,0,0,0,0\n");
    EXPECT_GE(measured({{QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("KDE")},
                        {QStringLiteral("KDE_SESSION_VERSION"), QStringLiteral("5")},
                        {QStringLiteral("XDG_CONFIG_HOME"),
                         QString::fromStdU16String(folder.native().u16string())}}),
              17);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (tell(QCoreApplication::arguments())) {
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
