#include "qt/desktop/FormArea.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FormWindow.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/Theme.h"
#include "qt/desktop/WindowShape.h"

#include <QPainter>

namespace phial::qt
{

FormArea::FormArea(std::shared_ptr<Form> form, FormWindow& window)
    : QWidget(&window), form_(std::move(form)), window_(window)
{
    setMouseTracking(true);
    connect(&ThemeNews::instance(), &ThemeNews::changed, this, [this] { update(); });
}

void FormArea::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const PicturePtr mask = form_->translucency().mask;
    if (window_.isSoft() && mask && mask == form_->Picture()) {
        painter.setCompositionMode(QPainter::CompositionMode_Source); // all in one, as it is
        painter.drawImage(QPointF(0, 0), imageForPainting(*mask));
        return;
    }
    paintGround(painter);
    if (window_.isSoft() && mask) {
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.drawImage(QPointF(0, 0), imageForPainting(*mask));
    }
}

void FormArea::paintGround(QPainter& painter)
{
    const bool isHole = form_->translucency().colourKey == form_->BackColor();
    if (!(isHole && window_.isSoft())) {
        painter.fillRect(rect(), toQColor(form_->BackColor()));
    }
    const PicturePtr picture = form_->Picture();
    painter.scale(form_->Zoom(), form_->Zoom());
    if (picture && isHole && !window_.isSoft()) {
        paintHard(painter, picture); // no edge may mix with the key colour
    } else if (picture) {
        painter.drawImage(QPointF(0, 0), imageForPainting(*picture));
    }
}

void FormArea::paintHard(QPainter& painter, const PicturePtr& picture)
{
    if (hardOf_ != picture) {
        hardOf_ = picture;
        hard_ = hardened(*picture);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(QPointF(0, 0), hard_);
}

void FormArea::mousePressEvent(QMouseEvent* event)
{
    pressed_ = true;
    secondPress_ = event->type() == QEvent::MouseButtonDblClick;
    dispatch([&] { form_->inputPointerDown(pointerEvent(*event, form_->Zoom())); });
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
        form->inputPointerUp(pointerEvent(*event, form_->Zoom()));
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
    dispatch([&] { form_->inputPointerMove(pointerEvent(*event, form_->Zoom())); });
}

} // namespace phial::qt
