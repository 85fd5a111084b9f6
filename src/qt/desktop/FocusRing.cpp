#include "qt/desktop/FocusRing.h"

#include "core/Palette.h"
#include "core/SessionState.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/LookStyle.h"
#include "qt/desktop/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QMenu>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace phial::qt
{

namespace
{

// Pixels of a form.
constexpr double RingWidth = 3;
constexpr double RingWidthOfHighContrast = 4;
constexpr double RingGap = 2;
constexpr double RingRadius = 8; // of the gap's inner edge, as buttons have it
constexpr double GapInTable = 1;
constexpr double RoomyCell = 48;
constexpr double ThinnerInSmallCells = 1; // by which the ring is

double ringWidth()
{
    const bool high = SessionState::isOpen() && coreTheme().Colours() == ColourSet::HighContrast;
    return high ? RingWidthOfHighContrast : RingWidth;
}

/// A line of that width along the inside of an area whose corners have that radius.
void strokeInside(QPainter& painter, const QRectF& area, double width, const QColor& colour, double radius)
{
    const double middle = width / 2;
    painter.setPen(QPen(colour, width));
    const double bend = std::max(0.0, radius - middle);
    painter.drawRoundedRect(area.adjusted(middle, middle, -middle, -middle), bend, bend);
}

/// Lies over the window, where presses go through it and screen readers do not see it.
class Ring final : public QFocusFrame
{
public:
    explicit Ring(QWidget* window) : QFocusFrame(window) {}

    /// The area is the window's. What is in a table has neighbours: there the ring lies on their edges and
    /// the gap on that of the area, so that all that the area tells can be read.
    void surround(const QRectF& area, double zoom, bool isInTable)
    {
        gap_ = (isInTable ? GapInTable : RingGap) * zoom;
        const bool isSmallCell = isInTable && area.height() < RoomyCell * zoom;
        line_ = (ringWidth() - (isSmallCell ? ThinnerInSmallCells : 0)) * zoom;
        radius_ = isInTable ? 0 : RingRadius * zoom;
        const double reach = line_ + (isInTable ? 0 : gap_);
        outer_ = area.adjusted(-reach, -reach, reach, reach).intersected(parentWidget()->rect());
        setGeometry(outer_.toAlignedRect());
        raise();
        show();
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        const QRectF outer = outer_.translated(-pos());
        const double rim = line_ + gap_ + radius_;
        if (outer.adjusted(rim, rim, -rim, -rim).contains(event->rect())) {
            return; // what the ring surrounds has been painted, as when a character is typed
        }
        const double gapRadius = radius_ > 0 ? radius_ + gap_ : 0;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        strokeInside(painter, outer.adjusted(line_, line_, -line_, -line_), gap_, toQColor(Palette::FocusGap),
                     gapRadius);
        strokeInside(painter, outer, line_, toQColor(Palette::FocusRing),
                     radius_ > 0 ? gapRadius + line_ : 0);
    }

private:
    QRectF outer_;
    double gap_ = 0;
    double line_ = 0;
    double radius_ = 0; ///< of the gap's inner edge
};

bool hasRing(const QWidget& widget)
{
    const bool showsItself = widget.window()->windowType() == Qt::Popup ||
                             qobject_cast<const QMenuBar*>(&widget) || qobject_cast<const QMenu*>(&widget);
    return !widget.isWindow() && !showsItself && (qobject_cast<const ControlWidget*>(&widget) || isThemed());
}

/// The part of the widget with the focus that its holders let be seen, in the window.
QRectF visiblePlace(const QWidget& target)
{
    const auto* painted = qobject_cast<const ControlWidget*>(&target);
    QRectF place = painted ? painted->focusPlace() : QRectF(target.rect());
    for (const QWidget* widget = &target; !widget->isWindow(); widget = widget->parentWidget()) {
        place = place.intersected(widget->rect()).translated(widget->pos());
    }
    return place.intersected(target.window()->rect());
}

bool isInTable(const QWidget& target)
{
    const auto* painted = qobject_cast<const ControlWidget*>(&target);
    return painted && painted->focusIsInTable();
}

/// Keeps the ring around whatever has the focus.
class RingKeeper final : public QObject
{
public:
    RingKeeper() : QObject(qApp)
    {
        connect(qApp, &QApplication::focusChanged, this,
                [this](QWidget* /*before*/, QWidget* now) { follow(now); });
        connect(&ThemeNews::instance(), &ThemeNews::changed, this, [this] { place(); });
        follow(QApplication::focusWidget());
    }

    void place()
    {
        const QRectF place = target_ && target_->isVisible() ? visiblePlace(*target_) : QRectF();
        if (place.isEmpty()) {
            if (ring_) {
                ring_->hide();
            }
            return;
        }
        if (!ring_ || ring_->parentWidget() != target_->window()) {
            delete ring_;
            ring_ = new Ring(target_->window());
        }
        ring_->surround(place, zoomOf(target_), isInTable(*target_));
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            place();
            break;
        case QEvent::ParentChange:
            follow(target_);
            break;
        default:
            break;
        }
        return false;
    }

private:
    void follow(QWidget* target)
    {
        for (const QPointer<QWidget>& watched : watched_) {
            if (watched) {
                watched->removeEventFilter(this);
            }
        }
        watched_.clear();
        target_ = target && hasRing(*target) ? target : nullptr;
        for (QWidget* widget = target_; widget;
             widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
            widget->installEventFilter(this);
            watched_.emplace_back(widget);
        }
        place();
    }

    QPointer<QWidget> target_;
    std::vector<QPointer<QWidget>> watched_; ///< the target and what holds it
    QPointer<Ring> ring_;
};

QPointer<RingKeeper>& ringKeeper()
{
    static QPointer<RingKeeper> keeper;
    return keeper;
}

} // namespace

void showFocusByRing()
{
    if (!ringKeeper()) {
        ringKeeper() = new RingKeeper; // belongs to the application
    }
}

void moveFocusRing()
{
    if (ringKeeper()) {
        ringKeeper()->place();
    }
}

} // namespace phial::qt
