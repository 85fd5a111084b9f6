#pragma once

#include "visual/Form.h"

#include <QWidget>

namespace phial::qt
{

/// The inside of a form's window: its colour and picture, and presses that meet no control.
class FormArea final : public QWidget
{
    Q_OBJECT

public:
    FormArea(std::shared_ptr<Form> form, QWidget& window);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    std::shared_ptr<Form> form_;
    bool pressed_ = false;
    bool secondPress_ = false;
};

} // namespace phial::qt
