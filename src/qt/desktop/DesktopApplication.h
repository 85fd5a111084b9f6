#pragma once

#include "core/Platform.h"

#include <filesystem>
#include <memory>
#include <optional>

class QApplication;

namespace phial::qt
{

/// The program on a desktop: made first in `main`, before the session, and ended last.
///
///     int main(int argc, char** argv)
///     {
///         const phial::qt::DesktopApplication application(argc, argv, u"Molmasse");
///         const phial::Session session(application.platform());
///         …
///         return application.run();
///     }
///
/// Where the desktop is Wayland, which tells programs neither where their windows are nor where the pointer
/// is, its X11 side is taken if there is one. With "--shots" on the command line no display is needed. A
/// platform that the environment names stays.
class DesktopApplication
{
public:
    /// `title` names the program in its windows and boxes.
    DesktopApplication(int& argc, char** argv, StringView title);
    ~DesktopApplication();
    DesktopApplication(const DesktopApplication&) = delete;
    DesktopApplication& operator=(const DesktopApplication&) = delete;

    /// The whole outside, for one session. Where the program is to draw its windows, settings live in memory
    /// and there is no network.
    Platform platform() const;

    /// What followed the program's name on its command line, as one text, without "--shots" and its folder.
    String commandLine() const;

    /// The folder behind "--shots" on the command line: the program is to draw its windows and end. None
    /// without it.
    std::optional<std::filesystem::path> shotsFolder() const;

    /// Runs events until the last window has closed; gives the program's result.
    int run() const;

private:
    String title_;
    std::unique_ptr<QApplication> application_;
};

} // namespace phial::qt
