#pragma once

#include "core/SessionState.h"
#include "headless/HeadlessPlatform.h"
#include "qt/base/QtEventPump.h"
#include "qt/desktop/DesktopServices.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/QtVisualHost.h"
#include "qt/desktop/WindowHandles.h"
#include "support/TemporaryFolder.h"
#include "visual/Form.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QWidget>

#include <gtest/gtest.h>

namespace phial::qt
{

/// A fresh session for each test, with real windows on the display in memory and the rest of the outside
/// scripted. An error that ends at the dispatch fails the test unless it takes it over. `State` is the
/// session's class: SessionState, or Session for a run with a root.
template <typename State>
class DesktopTest : public testing::Test
{
public:
    static void fail(const String& description) { ADD_FAILURE() << toUtf8(description); }

    ~DesktopTest() override
    {
        visualHost().forms().unloadAll();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        dispatchGuard()->setReporter(fail);
    }

protected:
    DesktopTest() : DesktopTest(previewAndPrint) {}
    /// `outlet` takes what the test prints.
    /// The display counts instead of the scripted one, where it is given.
    explicit DesktopTest(PrintOutlet outlet, std::shared_ptr<CoreDisplay> display = nullptr)
        : outlet_(std::move(outlet)), display_(std::move(display))
    {
        dispatchGuard()->setReporter(fail);
    }

    /// The scripted part of the outside.
    headless::HeadlessPlatform& outside() { return outside_; }
    /// A folder for the test's files.
    const test::TemporaryFolder& folder() const { return folder_; }

    static QWidget& widgetOf(const Form& form) { return *qt::widgetOf(form.hWnd()); }
    static QWidget& widgetOf(const Control& control) { return *qt::widgetOf(control.hWnd()); }

    /// Runs events until the condition holds, for some seconds at most.
    template <typename Condition>
    static bool eventually(Condition condition)
    {
        QElapsedTimer timer;
        timer.start();
        while (!condition()) {
            if (timer.elapsed() >= 5000) {
                return false;
            }
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return true;
    }

private:
    phial::Platform platform()
    {
        phial::Platform platform = outside_.platform();
        platform.visual = std::make_shared<QtVisualHost>(outlet_);
        platform.pump = std::make_shared<QtEventPump>(dispatchGuard());
        platform.windows = std::make_shared<DesktopWindowOps>();
        if (display_) {
            platform.display = display_;
        }
        return platform;
    }

    PrintOutlet outlet_;
    std::shared_ptr<CoreDisplay> display_;
    test::TemporaryFolder folder_;
    headless::HeadlessPlatform outside_{folder_.path(), fail};
    State session_{platform()};
};

using DesktopSession = DesktopTest<SessionState>;

} // namespace phial::qt
