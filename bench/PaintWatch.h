#pragma once

#include <QApplication>
#include <QEvent>

#include <stdexcept>

/// Notes that something of a window has been painted.
class PaintWatch final : public QObject
{
public:
    PaintWatch() { qApp->installEventFilter(this); }

    /// Runs events until the window's changes are on the screen in memory.
    void finish()
    {
        painted_ = false;
        for (int round = 0; round < 1000 && !painted_; ++round) {
            QApplication::processEvents();
        }
        if (!painted_) {
            throw std::runtime_error("nothing was painted");
        }
        QApplication::processEvents();
    }

    /// Ends the windows that have been closed, which otherwise stay until the benchmark is over.
    static void endClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    bool painted_ = false;
};
