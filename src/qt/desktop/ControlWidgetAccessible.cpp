#include "qt/desktop/ControlWidgetAccessible.h"

#include "qt/base/QtText.h"
#include "qt/desktop/AccessibleChanges.h"
#include "qt/desktop/ControlInterface.h"

#include <QPointer>

namespace phial::qt
{

namespace
{

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* widget = dynamic_cast<ControlWidget*>(object);
    return widget ? new ControlInterface(*widget) : nullptr;
}

/// What is announced: a notification in a window, which nobody sees.
class Announcement final : public QAccessibleInterface
{
public:
    void say(QWidget& widget, const QString& text)
    {
        widget_ = widget.window();
        text_ = text;
    }

    bool isValid() const override { return widget_; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return widget_ ? widget_->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(widget_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override { return widget_ ? widget_->geometry() : QRect(); }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text text) const override
    {
        return text == QAccessible::Name ? text_ : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

private:
    QPointer<QWidget> widget_;
    QString text_;
};

Announcement& announced()
{
    static auto* const only = [] {
        auto* made = new Announcement; // the toolkit ends it
        QAccessible::registerAccessibleInterface(made);
        return made;
    }();
    return *only;
}

} // namespace

void installPartAccessibility()
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    static_cast<void>(installed);
}

void tellAccessibility(ControlWidget& widget)
{
    if (!QAccessible::isActive()) {
        return;
    }
    if (auto* known = dynamic_cast<ControlInterface*>(QAccessible::queryAccessibleInterface(&widget))) {
        known->partsChanged();
    }
}

void tellText(ControlWidget& widget, const TextEntry& before, const TextEntry& now)
{
    if (!QAccessible::isActive()) {
        return;
    }
    const TextChange change = changeOf(toQt(before.text), toQt(now.text));
    if (!change.isNone()) {
        QAccessibleTextUpdateEvent event(&widget, change.place, change.removed, change.inserted);
        QAccessible::updateAccessibility(&event);
    }
    if (before.caret != now.caret) {
        QAccessibleTextCursorEvent event(&widget, now.caret);
        QAccessible::updateAccessibility(&event);
    }
}

void announcePart(ControlWidget& widget, std::size_t part)
{
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(static_cast<int>(part));
    QAccessible::updateAccessibility(&event);
}

void announceText(QWidget& widget, const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    announced().say(widget, text);
    for (const QAccessible::Event type : {QAccessible::NameChanged, QAccessible::ObjectShow}) {
        QAccessibleEvent event(&announced(), type);
        QAccessible::updateAccessibility(&event);
    }
}

QAccessibleInterface& announcement()
{
    return announced();
}

} // namespace phial::qt
