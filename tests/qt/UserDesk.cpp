#include "UserDesk.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QScreen>

#include <gtest/gtest.h>
#include <iterator>

namespace phial::qt
{

namespace
{

constexpr int Moment = 15; // milliseconds, in which what was done arrives

template <typename Function>
Function* resolved(QLibrary& library, const char* name)
{
    return reinterpret_cast<Function*>(library.resolve(name));
}

} // namespace

void runFor(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

UserDesk::UserDesk() : testing_(QStringLiteral("Xtst"), 6), server_(QStringLiteral("X11"), 6)
{
    EXPECT_TRUE(testing_.load());
    display_ = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->display();
    EXPECT_EQ(QProcess::execute(QStringLiteral("setxkbmap"), {QStringLiteral("de")}), 0);
    runFor(Moment);
}

void UserDesk::settle()
{
    resolved<int(_XDisplay*, int)>(server_, "XSync")(display_, 0);
    runFor(Moment);
}

void UserDesk::key(unsigned code, bool isDown)
{
    resolved<int(_XDisplay*, unsigned, int, unsigned long)>(testing_, "XTestFakeKeyEvent")(display_, code,
                                                                                           isDown, 0);
    settle();
}

void UserDesk::strike(std::initializer_list<Key> keys)
{
    for (const Key each : keys) {
        key(each, true);
    }
    for (auto each = std::rbegin(keys); each != std::rend(keys); ++each) {
        key(*each, false);
    }
}

void UserDesk::moveTo(QPoint place)
{
    const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    const QPoint pixels = (QPointF(place) * ratio).toPoint();
    resolved<int(_XDisplay*, int, int, int, unsigned long)>(testing_, "XTestFakeMotionEvent")(
        display_, 0, pixels.x(), pixels.y(), 0);
    settle();
}

void UserDesk::press(unsigned button)
{
    resolved<int(_XDisplay*, unsigned, int, unsigned long)>(testing_, "XTestFakeButtonEvent")(display_,
                                                                                              button, 1, 0);
    settle();
}

void UserDesk::release(unsigned button)
{
    resolved<int(_XDisplay*, unsigned, int, unsigned long)>(testing_, "XTestFakeButtonEvent")(display_,
                                                                                              button, 0, 0);
    settle();
}

void UserDesk::click(QPoint place, unsigned button)
{
    moveTo(place);
    press(button);
    release(button);
}

void UserDesk::drag(QPoint from, QPoint to)
{
    constexpr int Steps = 4;
    moveTo(from);
    press();
    moveTo(from + QPoint(0, 12)); // from here on it counts
    runFor(Moment);
    for (int step = 1; step <= Steps; ++step) {
        moveTo(from + QPoint(0, 12) + (to - from) * step / Steps);
    }
    runFor(2 * Moment);
    release();
}

} // namespace phial::qt
