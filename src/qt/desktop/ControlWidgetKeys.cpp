#include "core/Locale.h"
#include "qt/desktop/Composing.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/ControlWidgetAccessible.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FocusRing.h"
#include "qt/desktop/FormKeys.h"
#include "qt/desktop/PartNavigation.h"
#include "qt/desktop/WidgetAspects.h"
#include "visual/PaintHints.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

/// Which part of a painted control has the focus, and what its keys do.
namespace phial::qt
{

std::optional<std::size_t> ControlWidget::currentPart() const
{
    return control_->movesThroughParts() ? control_->currentPart() : currentPart_;
}

QRectF ControlWidget::focusPlace() const
{
    if (hints_ && control_->movesThroughParts()) {
        const auto area = hints_->currentPartArea();
        return area ? zoomed(*area, *control_) : QRectF(rect());
    }
    const auto part = currentPart();
    return part && *part < parts().size() ? zoomed(parts()[*part].area, *control_) : QRectF(rect());
}

bool ControlWidget::focusIsInTable() const
{
    return control_->role() == PartRole::Table && currentPart();
}

const std::vector<NamedPart>& ControlWidget::parts() const
{
    const std::int32_t language = currentLocale().language;
    if (!parts_ || partsLanguage_ != language) {
        parts_ = control_->parts();
        partsLanguage_ = language;
    }
    return *parts_;
}

// What has changed the picture may have moved the part that has the focus.
void ControlWidget::followParts()
{
    if (hasFocus() && focusPlace() != ringed_) {
        ringed_ = focusPlace();
        QTimer::singleShot(0, this, moveFocusRing);
    }
}

// The control has moved to another part.
void ControlWidget::followCurrentPart()
{
    const auto part = currentPart();
    if (!hasFocus() || !part) {
        return;
    }
    announcePart(*this, *part);
    moveFocusRing();
}

void ControlWidget::showPartFocus()
{
    if (control_->movesThroughParts()) {
        followCurrentPart();
    } else if (!currentPart_) {
        currentPart_ = nextPart(parts(), std::nullopt, Qt::Key_Right);
        moveFocusRing();
    }
}

bool ControlWidget::moveToPart(int key)
{
    const auto next = nextPart(parts(), currentPart_, key);
    if (!next) {
        return false;
    }
    currentPart_ = next;
    announcePart(*this, *next);
    moveFocusRing();
    return true;
}

bool ControlWidget::activateKey(const QKeyEvent& event)
{
    const bool isPress =
        event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!isPress || !currentPart_ || *currentPart_ >= parts().size()) {
        return false;
    }
    control_->activatePart(*currentPart_);
    return true;
}

// Keys and the focus itself.

void ControlWidget::keyPressEvent(QKeyEvent* event)
{
    if (isKeyForInner(*control_)) {
        event->ignore();
        return;
    }
    const QPointer<ControlWidget> self(this);
    dispatch([&] {
        if (inputMethod_.filter(*event)) {
            return;
        }
        const bool consumed = !keyPressed(*control_, *event);
        const bool isForPart = self && !consumed && !control_->movesThroughParts() &&
                               (moveToPart(event->key()) || activateKey(*event));
        if (self && !consumed && !isForPart) {
            event->ignore();
        }
    });
}

void ControlWidget::keyReleaseEvent(QKeyEvent* event)
{
    if (isKeyForInner(*control_)) {
        event->ignore();
        return;
    }
    dispatch([&] {
        if (!inputMethod_.filter(*event)) {
            keyReleased(*control_, *event);
        }
    });
}

void ControlWidget::inputMethodEvent(QInputMethodEvent* event)
{
    noteComposition(*this, *event);
    dispatch([&] { inputMethod_.take(*event); });
}

QVariant ControlWidget::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const QVariant answer = inputMethod_.answer(query);
    return answer.isValid() ? answer : QWidget::inputMethodQuery(query);
}

void ControlWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    dispatch([&] {
        focusEntered(*control_);
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
            showPartFocus();
        }
    });
    update();
}

void ControlWidget::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    inputMethod_.left();
    dispatch([&] { focusLeft(*control_); });
    update();
}

} // namespace phial::qt
