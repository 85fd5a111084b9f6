#include "qt/desktop/FormWindow.h"

#include "qt/base/QtText.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/Cursors.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FocusRing.h"
#include "qt/desktop/FormArea.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/MenuBar.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/SystemBox.h"
#include "qt/desktop/WindowHandles.h"
#include "qt/desktop/WindowShape.h"
#include "visual/VisualHost.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QWindow>

#include <algorithm>

namespace phial::qt
{

namespace
{

constexpr double SolidOpacity = 255;

bool keepsProgram(const QWidget* window)
{
    const auto* own = qobject_cast<const FormWindow*>(window);
    return window->isVisible() && !(own && own->form().backdrop());
}

/// Ends the program when its last window has gone. The toolkit would see that by the close events, which
/// these windows leave to their models.
void endWithoutWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    if (std::none_of(windows.begin(), windows.end(), keepsProgram)) {
        QCoreApplication::quit();
    }
}

/// The models go on alone while their widgets end.
void partFromWidgets(const Container& container)
{
    for (const ControlPtr& control : container.controls()) {
        control->frame().peer(nullptr);
        if (const Container* within = control->containerInUse()) {
            partFromWidgets(*within);
        }
    }
}

} // namespace

FormWindow::FormWindow(const std::shared_ptr<Form>& form)
    : QWidget(nullptr, flagsFor(*form)), form_(form), area_(new FormArea(form, *this)),
      border_(form->BorderStyle()), flags_(flagsFor(*form)),
      soft_(hasHoles(form->translucency()) && desktopComposes())
{
    setAttribute(Qt::WA_TranslucentBackground, soft_); // before the desktop's window is made
    settling_.setSingleShot(true);
    connect(&settling_, &QTimer::timeout, this, &FormWindow::tellState);
    registerWindow(form_->hWnd(), *this);
    controls_ = std::make_unique<ContainerWidgets>(form_->container(), *area_);
}

FormWindow::~FormWindow() = default;

void FormWindow::standOn(const QWidget& below)
{
    winId(); // makes the desktop's window
    windowHandle()->setTransientParent(below.window()->windowHandle());
}

void FormWindow::open()
{
    open_ = true;
    showAll();
    showState(); // puts it on the screen
    tellGeometry();
}

void FormWindow::leave()
{
    open_ = false;
    partFromWidgets(form_->container());
    hide();
    deleteLater();
    QTimer::singleShot(0, QCoreApplication::instance(), endWithoutWindows);
}

void FormWindow::showAll()
{
    const QScopedValueRollback<bool> showing(showing_, true);
    setWindowTitle(toQt(form_->Caption()));
    setEnabled(form_->Enabled());
    showMenuBar();
    showStyle();
    showGeometry();
}

// A menu bar takes longer to make than many a whole form, and most forms have none.
void FormWindow::showMenuBar()
{
    if (!menuBar_ &&
        std::ranges::any_of(form_->menu().entries(), [](const auto& entry) { return entry->Visible(); })) {
        menuBar_ = new QMenuBar(this);
    }
    if (menuBar_) {
        showMenu(*menuBar_, form_->menu());
    }
}

void FormWindow::modelChanged(FormAspect aspect)
{
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        show(aspect);
    }
    if (aspect == FormAspect::WindowState || (aspect == FormAspect::Geometry && fillsScreen())) {
        tellGeometry(); // what the desktop has made of it
    }
}

void FormWindow::show(FormAspect aspect)
{
    switch (aspect) {
    case FormAspect::Caption:
        setWindowTitle(toQt(form_->Caption()));
        break;
    case FormAspect::Geometry:
        showGeometry();
        break;
    case FormAspect::Zoom:
        showZoom(form_->container());
        restyleLists();
        area_->update();
        moveFocusRing();
        break;
    case FormAspect::WindowState:
        showFrame();
        showState();
        break;
    case FormAspect::Visibility:
        showState();
        break;
    case FormAspect::Enabled:
        setEnabled(form_->Enabled());
        break;
    case FormAspect::Style:
        showStyle();
        break;
    case FormAspect::Children:
        controls_->synchronise();
        scheduleShape();
        break;
    case FormAspect::Menu:
        showMenuBar();
        showGeometry();
        scheduleShape();
        break;
    case FormAspect::Focus:
        showFocus();
        break;
    case FormAspect::ZOrder:
        controls_->synchronise();
        raise();
        scheduleShape();
        break;
    }
}

void FormWindow::showStyle()
{
    showFrame();
    setWindowIcon(form_->Icon() ? iconOf(form_->Icon()) : QApplication::windowIcon());
    setWindowOpacity(std::clamp(form_->translucency().opacity / SolidOpacity, 0.0, 1.0));
    setCursor(cursorFor(form_->MousePointer(), nullptr));
    area_->update();
    if (hasHoles(form_->translucency())) {
        scheduleShape();
    } else {
        clearMask();
    }
}

// What depends on the zoom is told anew to each control's widget.
void FormWindow::showZoom(const Container& container)
{
    for (const ControlPtr& control : container.controls()) {
        for (const ControlAspect aspect :
             {ControlAspect::Geometry, ControlAspect::Style, ControlAspect::Items, ControlAspect::Selection,
              ControlAspect::Picture}) {
            control->frame().report(aspect);
        }
        if (const Container* within = control->containerInUse()) {
            showZoom(*within);
        }
    }
}

// Lists keep the width of their frames and bars until they hear that the style has others.
void FormWindow::restyleLists()
{
    QEvent restyled(QEvent::StyleChange);
    for (QAbstractScrollArea* list : area_->findChildren<QAbstractScrollArea*>()) {
        QApplication::sendEvent(list, &restyled);
    }
}

void FormWindow::showFocus()
{
    raise();
    activateWindow();
}

void FormWindow::scheduleShape()
{
    if (shapeScheduled_ || !hasHoles(form_->translucency())) {
        return;
    }
    shapeScheduled_ = true;
    QTimer::singleShot(0, this, [this] {
        shapeScheduled_ = false;
        showShape();
    });
}

void FormWindow::showShape()
{
    if (open_) {
        applyShape(*this, *area_, form_->translucency(), soft_);
    }
}

/// Whether the form waits for a dialog that the desktop has not brought to the front yet. When one dialog
/// follows another, the desktop puts the form below in front for a moment, and tells it late.
bool FormWindow::isBehindFreshDialog(const Form& form)
{
    const auto modal = visualHost().forms().innermostModal();
    const auto* dialog = modal ? qobject_cast<const FormWindow*>(widgetOf(modal->hWnd())) : nullptr;
    return dialog && modal.get() != &form && dialog->open_ && !dialog->wasActive_;
}

bool FormWindow::event(QEvent* event)
{
    const auto self = form_; // handlers may close the window
    if (event->type() == QEvent::WindowActivate && open_) {
        wasActive_ = true;
        if (!isBehindFreshDialog(*self)) {
            dispatch([&] { self->inputActivate(); });
        }
    } else if (event->type() == QEvent::WindowDeactivate && open_ && !SystemBox::isOpen()) {
        dispatch([&] { self->inputDeactivate(); });
    }
    return QWidget::event(event);
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the model closes the window if it agrees
    if (open_) {
        const auto form = form_;
        dispatch([&] { form->inputClose(); });
    }
}

// Keys that no control has taken, or that were struck while none has the focus.
void FormWindow::keyPressEvent(QKeyEvent* event)
{
    if (!open_ || form_->ActiveControl()) {
        return;
    }
    dispatch([&] {
        const auto form = form_;
        KeyEvent key = keyEvent(*event);
        KeyPressEvent typed{typedCharacter(*event)};
        if (form->inputKeyDown(key) && typed.KeyAscii != 0 && form->Visible()) {
            form->inputKeyPress(typed);
        }
    });
}

void FormWindow::keyReleaseEvent(QKeyEvent* event)
{
    if (!open_ || form_->ActiveControl() || event->isAutoRepeat()) {
        return;
    }
    dispatch([&] {
        KeyEvent key = keyEvent(*event);
        form_->inputKeyUp(key);
    });
}

bool FormWindow::focusNextPrevChild(bool next)
{
    const std::vector<ControlPtr> order = form_->tabOrder();
    if (!open_ || order.empty()) {
        return false;
    }
    const auto current = std::find(order.begin(), order.end(), form_->keyboardFocus()->field());
    const auto count = static_cast<std::ptrdiff_t>(order.size());
    std::ptrdiff_t at = next ? 0 : count - 1;
    if (current != order.end()) {
        at = (current - order.begin() + (next ? 1 : count - 1)) % count;
    }
    const auto form = form_;
    const ControlPtr target = order[static_cast<std::size_t>(at)];
    return dispatch([&] {
        form->focus(target);
        if (auto* painted = qobject_cast<ControlWidget*>(widgetOf(target->hWnd()))) {
            painted->showPartFocus();
        }
    });
}

} // namespace phial::qt
