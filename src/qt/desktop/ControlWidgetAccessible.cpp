#include "qt/desktop/ControlWidgetAccessible.h"

#include "qt/base/QtText.h"
#include "qt/desktop/AccessibleChanges.h"
#include "qt/desktop/ControlInterface.h"

#include <QApplication>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <utility>

namespace phial::qt
{

namespace
{

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* widget = dynamic_cast<ControlWidget*>(object);
    return widget ? new ControlInterface(*widget) : nullptr;
}

/// What is announced: a notification in a window, which nobody sees. A screen reader cuts off what it is
/// saying when another notification comes, so what is announced in one turn of the event loop is one.
class Announcement final : public QAccessibleInterface
{
public:
    void say(QWidget& widget, const QString& text)
    {
        if (!waiting_.isEmpty() && next_ != widget.window()) {
            tell();
        }
        next_ = widget.window();
        if (!waiting_.contains(text)) {
            waiting_.append(text);
            QTimer::singleShot(0, qApp, [this] { tell(); });
        }
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
    void tell()
    {
        const QStringList texts = std::exchange(waiting_, {});
        if (texts.isEmpty() || !next_) {
            return;
        }
        widget_ = next_;
        text_ = texts.join(QLatin1Char('\n'));
        for (const QAccessible::Event type : {QAccessible::NameChanged, QAccessible::ObjectShow}) {
            QAccessibleEvent event(this, type);
            QAccessible::updateAccessibility(&event);
        }
    }

    QPointer<QWidget> widget_;
    QString text_;
    QPointer<QWidget> next_;
    QStringList waiting_; ///< to be told together
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
    if (!text.isEmpty()) {
        announced().say(widget, text);
    }
}

QAccessibleInterface& announcement()
{
    return announced();
}

} // namespace phial::qt
