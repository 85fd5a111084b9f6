#include "qt/desktop/NativePeer.h"

#include "qt/desktop/Composing.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FormKeys.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/Theme.h"
#include "qt/desktop/WidgetAspects.h"
#include "qt/desktop/WindowHandles.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QWidget>

namespace phial::qt
{

NativePeer::NativePeer(ControlPtr control, QWidget& widget)
    : QObject(&widget), control_(std::move(control)), widget_(widget)
{
    control_->frame().peer(this);
    registerWindow(control_->hWnd(), widget_);
    connect(&ThemeNews::instance(), &ThemeNews::changed, this, [this] {
        if (isLinked()) {
            modelChanged(ControlAspect::Style);
            modelChanged(ControlAspect::Items); // which may have colours of their own
        }
    });
}

NativePeer::~NativePeer()
{
    if (isLinked()) {
        control_->frame().peer(nullptr);
    }
}

bool NativePeer::isLinked() const
{
    return control_->frame().peer() == this;
}

void NativePeer::begin()
{
    applyFrame(widget_, *control_);
    for (const ControlAspect aspect :
         {ControlAspect::Style, ControlAspect::Accessibility, ControlAspect::Items, ControlAspect::Range,
          ControlAspect::Picture, ControlAspect::Text, ControlAspect::Value, ControlAspect::Selection}) {
        modelChanged(aspect);
    }
}

void NativePeer::watch(QWidget& widget)
{
    widget.installEventFilter(this);
    std::erase_if(watched_, [](const Watched& entry) { return !entry.widget; });
    watched_.push_back({&widget, widget.focusPolicy()});
    showReach();
}

// What the focus cannot come to has no part that takes it; otherwise each part takes it in its own way.
void NativePeer::showReach()
{
    for (const Watched& entry : watched_) {
        if (entry.widget && entry.widget != &widget_) {
            entry.widget->setFocusPolicy(control_->frame().canFocus() ? entry.ownPolicy : Qt::NoFocus);
        }
    }
}

void NativePeer::modelChanged(ControlAspect aspect)
{
    const QScopedValueRollback<bool> showing(showing_, true);
    applyFrameAspect(widget_, *control_, aspect);
    show(aspect);
}

void NativePeer::show(ControlAspect aspect)
{
    switch (aspect) {
    case ControlAspect::Style:
    case ControlAspect::TextEntry:
        showStyle();
        break;
    case ControlAspect::Text:
        showText();
        break;
    case ControlAspect::Selection:
        showSelection();
        break;
    case ControlAspect::Items:
        showItems();
        break;
    case ControlAspect::Range:
    case ControlAspect::Value:
        showRange();
        break;
    case ControlAspect::Picture:
        showPicture();
        break;
    case ControlAspect::Accessibility:
        showNames();
        break;
    case ControlAspect::Geometry:
        showPlace();
        break;
    case ControlAspect::Enabled:
        showReach();
        break;
    case ControlAspect::Visibility: // the frame's alone
    case ControlAspect::ZOrder:
    case ControlAspect::Focus:
    case ControlAspect::Pointer:
    case ControlAspect::ToolTip:
    case ControlAspect::Children: // of painted controls
    case ControlAspect::Touch:
    case ControlAspect::Announcement:
    case ControlAspect::CurrentPart:
    case ControlAspect::Drag:
        break;
    }
}

void NativePeer::run(const std::function<void()>& handler)
{
    const ControlPtr control = control_; // a handler may take the control away
    dispatch(handler);
}

bool NativePeer::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || resending_ || !isLinked()) {
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        return filterKey(*widget, static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease: {
        bool goesOn = true;
        run([&] { goesOn = keyReleased(*control_, static_cast<QKeyEvent&>(*event)); });
        return !goesOn;
    }
    case QEvent::InputMethod:
        noteComposition(*widget, static_cast<QInputMethodEvent&>(*event));
        return false;
    case QEvent::FocusIn:
        run([&] { focusEntered(*control_); });
        return false;
    case QEvent::FocusOut:
        run([&] { focusLeft(*control_); });
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        filterPress(*event);
        return false;
    default:
        return false;
    }
}

// The form and the control hear the key before the widget does, and may change the character or keep it.
bool NativePeer::filterKey(QWidget& widget, QKeyEvent& event)
{
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
        return false; // moves the focus
    }
    const QPointer<QWidget> self(&widget);
    bool goesOn = false;
    char16_t character = 0;
    run([&] { goesOn = keyPressed(*control_, event, character); });
    if (!self || !isLinked() || !goesOn) {
        return true;
    }
    const bool isKept = character == typedCharacter(event) && event.key() != Qt::Key_Dead_Circumflex;
    const bool isSign = event.text().size() == 1 && event.text().front().isPrint();
    if (isKept && (character != 0 || !isSign)) {
        return false;
    }
    const int key = character == 0 ? event.key() : QChar(character).toUpper().unicode();
    const QString text =
        character == 0 ? QString() : QString(QChar(character)); // a command's sign is not typed
    QKeyEvent changed(event.type(), key, event.modifiers(), text, event.isAutoRepeat());
    const QScopedValueRollback<bool> resending(resending_, true);
    QApplication::sendEvent(&widget, &changed);
    return true;
}

// The widget deals with the press itself; the control only hears of it. Widgets that are pressed for what
// they do tell so by signals of their own.
void NativePeer::filterPress(const QEvent& event)
{
    const auto& press = static_cast<const QMouseEvent&>(event);
    const PointerEvent pointer = pointerEvent(press, zoomOf(*control_));
    run([&] {
        if (event.type() == QEvent::MouseButtonRelease) {
            control_->pointerUp(pointer);
        } else {
            control_->pointerDown(pointer);
        }
    });
}

} // namespace phial::qt
