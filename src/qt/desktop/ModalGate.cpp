#include "qt/desktop/ModalGate.h"

#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FormWindow.h"
#include "qt/desktop/SystemBox.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWidget>

namespace phial::qt
{

namespace
{

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
           type == QEvent::TouchBegin;
}

bool isBlockedInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

// The widget's form, also from a list that drops down or a menu that pops up.
const FormWindow* formWindowOf(const QWidget* widget)
{
    for (const QWidget* at = widget; at; at = at->parentWidget()) {
        if (const auto* window = qobject_cast<const FormWindow*>(at)) {
            return window;
        }
    }
    return nullptr;
}

bool isBlocked(const QWidget& widget, const Forms& forms)
{
    const std::shared_ptr<Form> modal = forms.innermostModal();
    if (SystemBox::isOpen() || !modal || !modal->Visible() || widget.window()->windowType() == Qt::Popup) {
        return false;
    }
    const FormWindow* window = formWindowOf(&widget);
    return !window || &window->form() != modal.get();
}

} // namespace

ModalGate::ModalGate(Forms& forms) : forms_(forms)
{
    qApp->installEventFilter(this);
}

bool ModalGate::eventFilter(QObject* watched, QEvent* event)
{
    if (!isBlockedInput(event->type()) || !watched->isWidgetType() ||
        !isBlocked(static_cast<QWidget&>(*watched), forms_)) {
        return false;
    }
    if (isPress(event->type())) {
        pressedOutside();
    }
    if (event->type() == QEvent::Close) {
        event->ignore();
    }
    return true;
}

void ModalGate::pressedOutside()
{
    if (telling_) {
        return;
    }
    const QScopedValueRollback<bool> telling(telling_, true);
    const std::shared_ptr<Form> modal = forms_.innermostModal();
    dispatch([&] {
        modal->inputDeactivate();
        if (modal->Visible()) {
            modal->SetFocus();
        }
    });
}

bool isBlockedByDialog(const QWidget& widget)
{
    return isBlocked(widget, visualHost().forms());
}

} // namespace phial::qt
