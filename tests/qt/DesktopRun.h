#pragma once

#include "DesktopSession.h"
#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/screen/frm_Fade.h"
#include "app/sys_Global.h"

#include <QTimer>

namespace phial::qt
{

/// A run of a program with a root and an installation tree of its own.
class DesktopRun : public DesktopTest<Session>
{
protected:
    explicit DesktopRun(std::shared_ptr<CoreDisplay> display = nullptr)
        : DesktopTest(previewAndPrint, std::move(display))
    {
        folder().write("tree/QVStart.exe", "marker");
        folder().write("tree/Resources/gfx/marker", "");
        QVAPP()->URL()->INITROOT(folder().path() + u"tree\\");
    }

    static void start(const String& commandLine) { QVAPP()->INIT(u"NONETWORK " + commandLine); }
    static const Form& cover() { return Session::current().existingSharedForm<frm_Fade>()->form(); }

    /// Runs the program as `main` does, while `act` plays the user; gives whether it has ended by itself.
    static bool endsAfter(const std::function<void()>& act)
    {
        constexpr int Patience = 5000;
        constexpr int StillRunning = 1;
        QTimer::singleShot(0, qApp, act);
        QTimer giveUp;
        QObject::connect(&giveUp, &QTimer::timeout, qApp, [] { QCoreApplication::exit(StillRunning); });
        giveUp.start(Patience);
        return QApplication::exec() != StillRunning;
    }
};

} // namespace phial::qt
