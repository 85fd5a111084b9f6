#pragma once

#include "qt/desktop/ContainerWidgets.h"
#include "visual/Form.h"

#include <QTimer>
#include <QWidget>

class QMenuBar;

namespace phial::qt
{

/// The window of a form. It reads the model and tells it what the user and the desktop do with the window;
/// the model decides. The controls stand in an area below the menu bar.
///
/// The window is modal by the host's ModalGate, not by the toolkit, so that a press on a window that is
/// blocked can be told to the form as a deactivation.
class FormWindow final : public QWidget
{
    Q_OBJECT

public:
    explicit FormWindow(const std::shared_ptr<Form>& form);
    ~FormWindow() override;

    /// Keeps the window in front of that one on the desktop; both may end in any order.
    void standOn(const QWidget& below);
    /// Puts the window on the screen, in the model's present state.
    void open();
    /// Takes it off the screen and leaves the model alone from now on; the window ends when its events are
    /// over.
    void leave();

    void modelChanged(FormAspect aspect);
    Form& form() const { return *form_; }
    /// Where the controls stand.
    QWidget& area() { return *area_; }
    /// A control on it has come, gone, moved, or got another shape: the window's holes may have changed.
    void scheduleShape();
    /// Whether the desktop lets the window be partly see-through, so that its holes have soft edges.
    bool isSoft() const { return soft_; }

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    static Qt::WindowFlags flagsFor(const Form& form);
    static bool isBehindFreshDialog(const Form& form);

    void showAll();
    void showMenuBar();
    void show(FormAspect aspect);
    void showStyle();
    void showFrame();
    void showGeometry();
    void takeNormalPlace();
    void limitSize(QSize size);
    void showState();
    void showShape();
    void showZoom(const Container& container);
    void restyleLists();
    void showFocus();
    void tellGeometry();
    void keepOnScreen();
    void tellState();
    void arrange();
    bool fillsScreen() const;
    QSize menuSize() const;

    std::shared_ptr<Form> form_;
    QMenuBar* menuBar_ = nullptr; ///< none as long as there is no entry to show
    QWidget* area_;
    std::unique_ptr<ContainerWidgets> controls_;
    BorderStyle border_; ///< as shown
    Qt::WindowFlags flags_;
    QRect normal_;    ///< corner of the frame and size of the inside while it does not fill the screen
    QTimer settling_; ///< runs while what the desktop says of the state may be late
    bool soft_;
    bool open_ = false;
    bool wasActive_ = false; ///< since it was opened
    bool showing_ = false;   ///< the model is being shown; what the window says of itself is an echo
    bool shapeScheduled_ = false;
    bool isFrameKnown_ = false; ///< since the desktop has put one around the window
};

} // namespace phial::qt
