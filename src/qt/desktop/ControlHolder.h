#pragma once

#include <QWidget>

#include <memory>

namespace phial
{
class UserControl;
}

namespace phial::qt
{

class ControlWidget;

/// The place of a control in a window that Qt Designer lays out: promote a widget to this class
/// (`phial::qt::ControlHolder`, header `qt/desktop/ControlHolder.h`), and give it the control when the
/// session is open:
///
///     ui.lab_Term->control(label);
///
/// The control's widget fills it, asks for the room that the control needs, has its object name, and gets the
/// focus that comes to it.
class ControlHolder final : public QWidget
{
    Q_OBJECT

public:
    explicit ControlHolder(QWidget* parent = nullptr);

    /// Shows the control in place of the one before; null shows none. Raises 5 for one that is shown already.
    void control(std::shared_ptr<UserControl> value);
    /// Null without a control.
    ControlWidget* widget() const { return widget_; }

private:
    ControlWidget* widget_ = nullptr;
};

} // namespace phial::qt
