#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FormWindow.h"

#include <QMenuBar>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QScreen>

#include <algorithm>
#include <cmath>

/// The part of a form's window that deals with its frame, its place and whether it fills the screen.
namespace phial::qt
{

namespace
{

// Milliseconds in which what a desktop says of a window's state can be about an earlier wish of the program.
constexpr int SettlingTime = 1000;

int toPixels(double twips)
{
    return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

QSize innerSize(const Form& form)
{
    const PixelSize size = form.innerSize();
    return QSizeF(size.width * form.Zoom(), size.height * form.Zoom()).toSize();
}

} // namespace

// Desktops maximize no window that has no button for it.
Qt::WindowFlags FormWindow::flagsFor(const Form& form)
{
    const Qt::WindowFlags maximize = form.WindowState() == phial::WindowState::Maximized
                                         ? Qt::WindowMaximizeButtonHint
                                         : Qt::WindowFlags();
    switch (form.BorderStyle()) {
    case BorderStyle::None: // desktops keep dialogs alone above the window that they stand on
        return (form.isModal() ? Qt::Dialog : Qt::Window) | Qt::FramelessWindowHint;
    case BorderStyle::FixedDialog:
        return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
               maximize;
    case BorderStyle::FixedSingle:
        return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
               Qt::WindowMinimizeButtonHint | maximize;
    case BorderStyle::Sizable:
        break;
    }
    return Qt::Window;
}

bool FormWindow::fillsScreen() const
{
    return form_->WindowState() == phial::WindowState::Maximized;
}

// Another frame takes the window off the screen, so a button that it has got to be maximized stays.
void FormWindow::showFrame()
{
    const Qt::WindowFlags wanted = flagsFor(*form_);
    const bool sameBorder = border_ == form_->BorderStyle();
    if (sameBorder && (wanted == flags_ || !wanted.testFlag(Qt::WindowMaximizeButtonHint))) {
        return;
    }
    border_ = form_->BorderStyle();
    flags_ = wanted;
    setWindowFlags(flags_);
    showGeometry();
    showState();
}

QSize FormWindow::menuSize() const
{
    return {0, !menuBar_ || menuBar_->isHidden() ? 0 : menuBar_->sizeHint().height()};
}

void FormWindow::showGeometry()
{
    const QSize size = innerSize(*form_) + menuSize();
    if (isVisible() && fillsScreen()) {
        return; // it keeps the screen's
    }
    normal_ = QRect(QPoint(toPixels(form_->Left()), toPixels(form_->Top())), size);
    takeNormalPlace();
    arrange();
}

// The size comes first: limits would resize the window where it stands.
void FormWindow::takeNormalPlace()
{
    const QRect place = normal_;
    resize(place.size());
    if (form_->hasPlace() || form_->BorderStyle() == BorderStyle::None) {
        move(place.topLeft());
    }
    limitSize(place.size());
}

// A window that the user cannot resize has its size as its limits, but not while it fills the screen:
// desktops keep the limits.
void FormWindow::limitSize(QSize size)
{
    const bool fixed = form_->BorderStyle() != BorderStyle::Sizable && !fillsScreen();
    const QSize least =
        fixed ? size : QSizeF(form_->leastSize().width, form_->leastSize().height).toSize() + menuSize();
    const QSize most = fixed ? size : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (minimumSize() != least || maximumSize() != most) {
        setMinimumSize(least);
        setMaximumSize(most);
    }
}

void FormWindow::arrange()
{
    const int menuHeight = menuSize().height();
    if (menuBar_) {
        menuBar_->setGeometry(0, 0, width(), menuHeight);
    }
    area_->setGeometry(0, menuHeight, width(), height() - menuHeight);
}

void FormWindow::showState()
{
    if (!open_) {
        return;
    }
    settling_.start(SettlingTime);
    switch (form_->WindowState()) {
    case phial::WindowState::Normal:
        showNormal();
        takeNormalPlace(); // not every desktop knows where a window was that began as large as the screen
        break;
    case phial::WindowState::Minimized:
        showMinimized();
        break;
    case phial::WindowState::Maximized:
        limitSize(size());
        form_->BorderStyle() == BorderStyle::None ? showFullScreen() : showMaximized();
        break;
    }
}

// What title and borders take is known when the desktop has put them around the window.
void FormWindow::tellGeometry()
{
    if (!open_ || showing_ || isMinimized()) {
        return;
    }
    const QSize around = frameGeometry().size() - geometry().size() + menuSize();
    const QRect frame = frameGeometry();
    if (!isMaximized() && !isFullScreen()) {
        normal_ = QRect(frame.topLeft(), size());
    }
    dispatch([&] {
        form_->decoration({static_cast<double>(around.width()), static_cast<double>(around.height())});
        form_->inputGeometry(frame.left() * TwipsPerPixel, frame.top() * TwipsPerPixel,
                             frame.width() * TwipsPerPixel, frame.height() * TwipsPerPixel);
    });
    if (!isFrameKnown_ && frame.size() != size()) {
        isFrameKnown_ = true;
        keepOnScreen();
    }
}

// One that was put into the middle before its frame was known may reach out of a low screen by that. Where
// there is no room for all of it, its title is seen.
void FormWindow::keepOnScreen()
{
    const QRect frame = frameGeometry();
    const QRect room = screen()->geometry();
    const auto within = [](int start, int length, int from, int most) {
        return std::max(from, std::min(start, from + most - length));
    };
    const QPoint corner(within(frame.x(), frame.width(), room.x(), room.width()),
                        within(frame.y(), frame.height(), room.y(), room.height()));
    if (form_->centred() && !isMaximized() && !isFullScreen() && corner != frame.topLeft()) {
        move(corner);
    }
}

void FormWindow::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    tellGeometry();
}

void FormWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
    tellGeometry();
    scheduleShape(); // of the new size
}

void FormWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && !showing_ && !settling_.isActive()) {
        tellState();
    }
}

void FormWindow::tellState()
{
    const bool maximized = isMaximized() || isFullScreen();
    const phial::WindowState told = isMinimized() ? phial::WindowState::Minimized
                                    : maximized   ? phial::WindowState::Maximized
                                                  : phial::WindowState::Normal;
    if (!open_ || told == form_->WindowState()) {
        return;
    }
    form_->inputWindowState(told);
    if (told == phial::WindowState::Normal && form_->BorderStyle() != BorderStyle::Sizable) {
        takeNormalPlace();
    }
}

} // namespace phial::qt
