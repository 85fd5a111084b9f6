#pragma once

#include "visual/Form.h"

#include <QImage>
#include <QWidget>

namespace phial::qt
{

class FormWindow;

/// The inside of a form's window: its colour and picture, and presses that meet no control. Where the window
/// is to have holes it is see-through.
class FormArea final : public QWidget
{
    Q_OBJECT

public:
    FormArea(std::shared_ptr<Form> form, FormWindow& window);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void paintGround(QPainter& painter);
    void paintHard(QPainter& painter, const PicturePtr& picture);

    std::shared_ptr<Form> form_;
    const FormWindow& window_;
    PicturePtr hardOf_; ///< whose hardened picture is kept
    QImage hard_;
    bool pressed_ = false;
    bool secondPress_ = false;
};

} // namespace phial::qt
