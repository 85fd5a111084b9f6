#pragma once

#include "qt/desktop/InputMethodLink.h"
#include "qt/desktop/TouchPresses.h"
#include "visual/UserControl.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace phial
{
class PaintHints;
class SessionState;
} // namespace phial

namespace phial::qt
{

class ContainerWidgets;

/// The one widget that hosts a painted control, on the system's forms and in windows of plain Qt.
///
/// In a window of its own kind a program places it like any other widget and names it by its object name;
/// controls that look for a sibling by name find the other control widgets of the window. The session must be
/// open, and once it has ended the widget is blank:
///
///     auto label = phial::makeControl<phial::ctl_TermLabel>();
///     label->Term(u"H2SO4");
///     auto* widget = new phial::qt::ControlWidget(label);
///     widget->setObjectName("lab_Term");
///     layout->addWidget(widget);
///
/// What has been set before counts: name, tool tip, whether it is enabled. A layout is asked for the room
/// that the content needs, and the control follows the size that it gets, unless its size is its own; then
/// the layout leaves it that size. Enabling the widget or what holds it enables the control. A control that
/// floats, such as a speech bubble, stands in no layout, takes its parent widget's pixels as places, and is
/// where, as large, and shown or hidden as its frame says; the program may move, resize and hide the widget
/// as well.
///
/// The picture is painted at the screen's pixel ratio. A press where the control lets through what lies below
/// goes there. The named parts of the control are shown to screen readers; the arrow keys go through those
/// with an action, and the space bar does it.
class ControlWidget final : public QWidget
{
    Q_OBJECT

public:
    enum class Placement {
        ByLayout, ///< in a window of plain Qt, whose layout decides on place and size
        Floating, ///< in such a window; the control decides
        OnForm,   ///< on one of the system's forms; the control decides
    };

    /// Raises 5 without a control, and in a window of plain Qt for a control that is shown already.
    explicit ControlWidget(std::shared_ptr<UserControl> control, QWidget* parent = nullptr,
                           Placement placement = Placement::ByLayout);
    ~ControlWidget() override;

    UserControl& control() const { return *control_; }

    /// What the content needs (UserControl::contentSize), or the control's own size; for a control without
    /// either the size that it had when it came.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

    /// The focus has come by the keyboard: shows where it is among the parts.
    void showPartFocus();

    /// The control's named parts, asked for once a change.
    const std::vector<NamedPart>& parts() const;

    /// The part that the keys have reached; none until the keyboard is used.
    std::optional<std::size_t> currentPart() const;

    /// Where the focus is within the widget while it has it: that part, or all of it.
    QRectF focusPlace() const;
    /// Whether that is part of a table, with others close around it.
    bool focusIsInTable() const;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    class Peer;

    void modelChanged(ControlAspect aspect);
    bool paintDirectly();
    void paintPicture(QPainter& painter, const Picture& picture, double ratio);
    void followOpacity();
    void textChanged();
    bool touched(QTouchEvent& event);
    void holdChildren();
    void findParent();
    void orderStops();
    bool isForeign() const { return placement_ != Placement::OnForm; }
    /// The same for what stands within such a control.
    bool isInForeignWindow() const { return control_->frame().Parent() && !control_->frame().form(); }
    /// Whether the session in which the control was made is still open.
    bool isLive() const;
    QSize roomFor(std::optional<double> width) const;
    void followContent();
    void takePlace();
    void followWidget();
    void takePolicy();
    QWidget* widgetBelow(QPoint place) const;
    bool hits(const QMouseEvent& event) const;
    bool passOn(QMouseEvent& event);
    bool isTouched(const QMouseEvent& event) const;
    bool commitBeforePress();
    void press(const QMouseEvent& event, bool second);
    void release(const QMouseEvent& event);
    bool moveToPart(int key);
    bool activateKey(const QKeyEvent& event);
    void followParts();
    void followCurrentPart();
    void beginDrag();

    std::shared_ptr<UserControl> control_;
    const SessionState* session_;
    const PaintHints* hints_; ///< null for a control that gives none
    Placement placement_;
    std::unique_ptr<Peer> peer_;
    InputMethodLink inputMethod_;
    TouchPresses touch_;
    std::unique_ptr<ContainerWidgets> children_;
    QPointer<QWidget> passedTo_; ///< has the press that began on a hole of this one
    std::optional<std::size_t> currentPart_;
    mutable std::optional<std::vector<NamedPart>> parts_; ///< none since they have changed
    mutable std::int32_t partsLanguage_ = 0;
    QRectF ringed_;      ///< the place of the focus, as it was painted last
    TextEntry toldText_; ///< as screen readers know it
    bool pressed_ = false;
    bool secondPress_ = false;
    bool following_ = false; ///< the control is being made to follow the widget
    QSize sizeBefore_;       ///< of the control when it came
    QSize toldRoom_;         ///< for which the layout was last asked
};

} // namespace phial::qt
