#include "qt/desktop/InputMethodLink.h"

#include "qt/base/QtText.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/WidgetAspects.h"

#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QWidget>

#include <cstdlib>

namespace phial::qt
{

namespace
{

// X11 desktops compose a circumflex and a digit or sign to a raised one. All others type both, and formulas
// need both.
QString takenApart(const QString& text)
{
    constexpr char16_t RaisedMinus = 0x2212;
    if (text.size() != 1 || text.front().decompositionTag() != QChar::Super) {
        return text;
    }
    const QString sign = text.front().decomposition().replace(QChar(RaisedMinus), QLatin1Char('-'));
    const bool isTyped = sign.size() == 1 && sign.front().unicode() < 128 && !sign.front().isLetter();
    return isTyped ? QLatin1Char('^') + sign : text;
}

// Where the caret stands in what is being composed: behind it unless the input method says otherwise.
std::int32_t caretIn(const QInputMethodEvent& event)
{
    for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor) {
            return attribute.start;
        }
    }
    return static_cast<std::int32_t>(event.preeditString().size());
}

} // namespace

InputMethodLink::InputMethodLink(QWidget& widget, Control& control) : widget_(widget), control_(control)
{
    update();
}

bool InputMethodLink::isServed() const
{
    return control_.frame().takesText() && !control_.frame().ownKeyboard();
}

void InputMethodLink::update()
{
    widget_.setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    widget_.setAttribute(Qt::WA_InputMethodEnabled, isServed());
    if (widget_.hasFocus() && isServed()) {
        QGuiApplication::inputMethod()->update(Qt::ImQueryInput);
    }
}

QVariant InputMethodLink::answer(Qt::InputMethodQuery query) const
{
    const auto& entry = control_.frame().textEntry();
    if (!entry) {
        return {};
    }
    const QString text = toQt(entry->text);
    switch (query) {
    case Qt::ImEnabled:
        return isServed();
    case Qt::ImCursorRectangle:
    case Qt::ImAnchorRectangle:
        return zoomed(entry->caretArea, control_);
    case Qt::ImSurroundingText:
        return text;
    case Qt::ImCursorPosition:
    case Qt::ImAnchorPosition:
    case Qt::ImAbsolutePosition:
        return entry->caret;
    case Qt::ImTextBeforeCursor:
        return text.left(entry->caret);
    case Qt::ImTextAfterCursor:
        return text.mid(entry->caret);
    case Qt::ImCurrentSelection:
        return QString();
    default:
        return {};
    }
}

void InputMethodLink::take(const QInputMethodEvent& event)
{
    const auto control = control_.shared_from_this(); // a handler may close the window
    const QPointer<QWidget> widget(&widget_);
    if (!control->frame().takesText()) {
        return;
    }
    if (event.replacementLength() > 0) {
        replace(event.replacementStart(), event.replacementLength());
    }
    if (!event.commitString().isEmpty()) {
        commitText(*control, fromQt(takenApart(event.commitString())));
    }
    if (widget) {
        control->frame().inputComposition({fromQt(event.preeditString()), caretIn(event)});
    }
}

bool InputMethodLink::filter(const QKeyEvent& event)
{
    if (!control_.frame().takesText() || !control_.frame().ownKeyboard()) {
        return false;
    }
    const auto control = control_.shared_from_this(); // a handler may close the window
    const QPointer<QWidget> widget(&widget_);
    const bool isDone = deadKeys_.filter(widget_, event);
    if (widget) {
        const String sign = fromQt(deadKeys_.waiting());
        control->frame().inputComposition({sign, static_cast<std::int32_t>(sign.size())});
    }
    return isDone;
}

// What the input method replaces goes as by hand, so that the control hears of it as of any other key.
void InputMethodLink::replace(int start, int length)
{
    const int end = start + length; // from the caret
    strike(end < 0 ? Key::Left : Key::Right, std::abs(end));
    strike(Key::Backspace, length);
}

void InputMethodLink::strike(Key key, int times)
{
    const QPointer<QWidget> widget(&widget_);
    for (int time = 0; time < times; ++time) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (widget) {
                QKeyEvent event = toolkitKey(type, {0, key, 0});
                QApplication::sendEvent(widget, &event);
            }
        }
    }
}

void InputMethodLink::tapped(const QMouseEvent& event) const
{
    if (event.button() == Qt::LeftButton && isServed() && qApp->autoSipEnabled()) {
        QGuiApplication::inputMethod()->show();
    }
}

} // namespace phial::qt
