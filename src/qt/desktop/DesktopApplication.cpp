#include "qt/desktop/DesktopApplication.h"

#include "qt/base/BasePlatform.h"
#include "qt/base/QtText.h"
#include "qt/desktop/DesktopDialogs.h"
#include "qt/desktop/DesktopServices.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/QtVisualHost.h"
#include "qt/desktop/ShotDialogs.h"
#include "qt/desktop/SvgFormDocument.h"
#include "qt/sound/QtAudioOutput.h"
#include "server/frm_NetMonitor.h"

#include <QApplication>

#include <algorithm>
#include <span>
#include <string_view>

namespace phial::qt
{

namespace
{

void preferX11()
{
    const bool isWayland = qEnvironmentVariable("XDG_SESSION_TYPE") == QLatin1String("wayland") ||
                           qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (isWayland && qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
}

constexpr auto ShotsOption = "--shots"; // followed by a folder

/// Who draws pictures needs no display.
void drawOffscreen(std::span<char* const> arguments)
{
    if (std::ranges::find(arguments, std::string_view(ShotsOption)) != arguments.end() &&
        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

std::unique_ptr<QApplication> makeApplication(int& argc, char** argv)
{
    drawOffscreen({argv, static_cast<std::size_t>(argc)});
    preferX11();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    return std::make_unique<QApplication>(argc, argv);
}

QStringList argumentsWithoutShots()
{
    QStringList arguments = QApplication::arguments().mid(1);
    const auto option = arguments.indexOf(QLatin1String(ShotsOption));
    if (option >= 0 && option + 1 < arguments.size()) {
        arguments.remove(option, 2);
    }
    return arguments;
}

std::shared_ptr<CoreDialogs> makeDialogs(bool forShots)
{
    if (forShots) {
        return std::make_shared<ShotDialogs>();
    }
    return std::make_shared<DesktopDialogs>();
}

/// Where pictures are taken nothing is printed; the preview appears only to be taken itself.
PrintOutlet makePrintOutlet(bool forShots)
{
    if (!forShots) {
        return previewAndPrint;
    }
    return [](const PrintJob& job) {
        if (ShotBook::isTakingModal()) {
            previewAndPrint(job);
        }
    };
}

// Words with blanks get their quotes back, which the shell has taken.
QString quoted(const QString& word)
{
    return word.contains(QLatin1Char(' ')) && !word.contains(QLatin1Char('"')) ? u'"' + word + u'"' : word;
}

} // namespace

DesktopApplication::DesktopApplication(int& argc, char** argv, StringView title)
    : title_(title), application_(makeApplication(argc, argv))
{
}

DesktopApplication::~DesktopApplication()
{
    dispatchGuard()->setReporter([](const String& text) { qWarning("%s", toUtf8(text).c_str()); });
}

Platform DesktopApplication::platform() const
{
    Platform platform = basePlatform(dispatchGuard(), netMonitorWindow);
    platform.dialogs = makeDialogs(shotsFolder().has_value());
    if (shotsFolder()) {
        platform.settings.reset();       // pictures show nothing of the user's settings, and change none
        platform.newNetClient = nullptr; // nor do they depend on who is on the network
    } else {
        platform.audio = std::make_shared<QtAudioOutput>(platform.clock);
    }
    dispatchGuard()->setReporter([dialogs = platform.dialogs](const String& text) { dialogs->Error(text); });
    platform.display = std::make_shared<DesktopDisplay>();
    platform.windows = std::make_shared<DesktopWindowOps>();
    platform.cursors = std::make_shared<DesktopCursors>();
    platform.textBoxes = std::make_shared<DesktopTextBoxes>();
    platform.shell = std::make_shared<DesktopShell>();
    platform.visual = std::make_shared<QtVisualHost>(makePrintOutlet(shotsFolder().has_value()));
    platform.newFormDocument = [] { return newSvgFormDocument(); };
    platform.programTitle = title_;
    return platform;
}

String DesktopApplication::commandLine() const
{
    QStringList words;
    for (const QString& word : argumentsWithoutShots()) {
        words += quoted(word);
    }
    return fromQt(words.join(QLatin1Char(' ')));
}

std::optional<std::filesystem::path> DesktopApplication::shotsFolder() const
{
    const QStringList arguments = QApplication::arguments();
    const auto option = arguments.indexOf(QLatin1String(ShotsOption));
    if (option < 0 || option + 1 >= arguments.size()) {
        return std::nullopt;
    }
    return arguments[option + 1].toStdU16String();
}

int DesktopApplication::run() const
{
    return QApplication::exec();
}

} // namespace phial::qt
