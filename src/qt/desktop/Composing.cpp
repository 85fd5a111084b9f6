#include "qt/desktop/Composing.h"

#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace phial::qt
{

namespace
{

struct Composed {
    QPointer<QWidget> widget;
    QString text;
};

Composed& composed()
{
    static Composed one;
    return one;
}

} // namespace

void noteComposition(QWidget& widget, const QInputMethodEvent& event)
{
    composed() = {&widget, event.preeditString()};
}

void commitComposition()
{
    QGuiApplication::inputMethod()->commit();
    const Composed left = std::exchange(composed(), {});
    if (left.widget && left.widget->hasFocus() && !left.text.isEmpty()) {
        QInputMethodEvent typed;
        typed.setCommitString(left.text);
        QApplication::sendEvent(left.widget, &typed);
        QGuiApplication::inputMethod()->reset();
    }
}

} // namespace phial::qt
