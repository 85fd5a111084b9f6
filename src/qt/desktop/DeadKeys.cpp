#include "qt/desktop/DeadKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace phial::qt
{

struct DeadKey {
    Qt::Key key;
    char16_t sign;
    char16_t mark; ///< that joins the letter before it
};

namespace
{

constexpr DeadKey KnownDeadKeys[] = {
    {Qt::Key_Dead_Circumflex, u'^', u'\u0302'},     {Qt::Key_Dead_Grave, u'`', u'\u0300'},
    {Qt::Key_Dead_Acute, u'\u00B4', u'\u0301'},     {Qt::Key_Dead_Tilde, u'~', u'\u0303'},
    {Qt::Key_Dead_Diaeresis, u'\u00A8', u'\u0308'}, {Qt::Key_Dead_Abovering, u'\u00B0', u'\u030A'},
    {Qt::Key_Dead_Caron, u'\u02C7', u'\u030C'},     {Qt::Key_Dead_Cedilla, u'\u00B8', u'\u0327'},
};

const DeadKey* deadKeyOf(const QKeyEvent& event)
{
    const auto* const found = std::ranges::find(KnownDeadKeys, event.key(), &DeadKey::key);
    return found == std::end(KnownDeadKeys) ? nullptr : found;
}

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

/// The letter with the mark as one character; empty where there is none.
QString joined(const QString& letter, const DeadKey& key)
{
    if (letter.size() != 1 || !letter.front().isLetter()) {
        return {};
    }
    const QString one = (letter + QChar(key.mark)).normalized(QString::NormalizationForm_C);
    return one.size() == 1 ? one : QString();
}

/// A key that types the text; gives whether the widget is still there.
bool typeText(QWidget& widget, const QString& text)
{
    const QPointer<QWidget> alive(&widget);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (alive) {
            QKeyEvent event(type, text.front().toUpper().unicode(), Qt::NoModifier, text);
            QApplication::sendEvent(&widget, &event);
        }
    }
    return alive;
}

} // namespace

QString DeadKeys::waiting() const
{
    return waiting_ ? QString(QChar(waiting_->sign)) : QString();
}

bool DeadKeys::filter(QWidget& widget, const QKeyEvent& event)
{
    if (event.type() == QEvent::KeyRelease) {
        return deadKeyOf(event) != nullptr;
    }
    return !isModifier(event.key()) && press(widget, event);
}

bool DeadKeys::press(QWidget& widget, const QKeyEvent& event)
{
    const DeadKey* key = deadKeyOf(event);
    const DeadKey* before = std::exchange(waiting_, nullptr);
    if (!before) {
        waiting_ = key;
        return key;
    }
    if (const QString one = joined(event.text(), *before); !one.isEmpty()) {
        typeText(widget, one);
        return true;
    }
    if (!typeText(widget, QChar(before->sign))) {
        return true;
    }
    if (key != before) {
        waiting_ = key;
    }
    return key || event.key() == Qt::Key_Space;
}

} // namespace phial::qt
