#include "qt/desktop/FormArea.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/PictureImage.h"

#include <QPainter>

namespace phial::qt
{

FormArea::FormArea(std::shared_ptr<Form> form, QWidget& window) : QWidget(&window), form_(std::move(form))
{
    setMouseTracking(true);
}

void FormArea::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(form_->BackColor()));
    if (const PicturePtr picture = form_->Picture()) {
        painter.drawImage(QPointF(0, 0), imageForPainting(*picture));
    }
}

void FormArea::mousePressEvent(QMouseEvent* event)
{
    pressed_ = true;
    secondPress_ = event->type() == QEvent::MouseButtonDblClick;
    dispatch([&] { form_->inputPointerDown(pointerEvent(*event)); });
}

void FormArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void FormArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (!pressed_) {
        return; // the press went elsewhere
    }
    const bool click = event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    const bool second = secondPress_;
    const auto form = form_; // a handler may close the window
    pressed_ = false;
    dispatch([&] {
        form->inputPointerUp(pointerEvent(*event));
        if (click) {
            form->inputClick();
        }
        if (click && second) {
            form->inputDoubleClick();
        }
    });
}

void FormArea::mouseMoveEvent(QMouseEvent* event)
{
    dispatch([&] { form_->inputPointerMove(pointerEvent(*event)); });
}

} // namespace phial::qt
