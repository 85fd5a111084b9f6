#include "qt/desktop/ControlWidget.h"

#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "qt/base/QtText.h"
#include "qt/desktop/Composing.h"
#include "qt/desktop/ContainerWidgets.h"
#include "qt/desktop/ControlWidgetAccessible.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/FocusRing.h"
#include "qt/desktop/ForeignParent.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/PixelRatio.h"
#include "qt/desktop/Theme.h"
#include "qt/desktop/WidgetAspects.h"
#include "qt/desktop/WidgetBackend.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/KeyboardFocus.h"
#include "visual/PaintHints.h"
#include "visual/PaintSurface.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTouchEvent>
#include <QWheelEvent>

namespace phial::qt
{

namespace
{

/// What the toolkit knows of where a drag has come from. It lives as long as the drag, which the widget need
/// not: the program runs meanwhile and may take the control away.
class DragSource final : public QObject
{
public:
    explicit DragSource(ControlWidget& widget) : widget_(&widget) {}
    /// Null where the drag comes from elsewhere, or from a control that has gone.
    static ControlWidget* widgetOf(const QObject* source)
    {
        const auto* from = dynamic_cast<const DragSource*>(source);
        return from ? from->widget_.data() : nullptr;
    }

private:
    QPointer<ControlWidget> widget_;
};

} // namespace

namespace
{

/// The control, which a window of plain Qt shows once.
std::shared_ptr<UserControl> checked(std::shared_ptr<UserControl> control, ControlWidget::Placement placement)
{
    if (!control) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"A ControlWidget needs a control.");
    }
    const ControlFrame& frame = control->frame();
    if (placement != ControlWidget::Placement::OnForm && (frame.peer() || frame.form())) {
        throw RuntimeError(ErrorNumber::InvalidArgument,
                           u"A control is shown once: this " + String(control->typeName()) +
                               u" stands on a form or in another ControlWidget.");
    }
    return control;
}

} // namespace

/// The model's link to the widget, which goes when either does.
class ControlWidget::Peer final : public ControlPeer
{
public:
    explicit Peer(ControlWidget& widget) : widget_(widget), frame_(widget.control_->frame())
    {
        frame_.peer(this);
    }
    ~Peer() override
    {
        if (frame_.peer() == this) {
            frame_.peer(nullptr);
        }
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    bool isLinked() const { return frame_.peer() == this; }
    void modelChanged(ControlAspect aspect) override { widget_.modelChanged(aspect); }

private:
    ControlWidget& widget_;
    ControlFrame& frame_;
};

ControlWidget::ControlWidget(std::shared_ptr<UserControl> control, QWidget* parent, Placement placement)
    : QWidget(parent), control_(checked(std::move(control), placement)), session_(&SessionState::current()),
      hints_(dynamic_cast<const PaintHints*>(control_.get())), placement_(placement),
      inputMethod_(*this, *control_), touch_(*this, *control_)
{
    installPartAccessibility();
    showFocusByRing();
    setMouseTracking(true);
    setAcceptDrops(true);
    setAttribute(Qt::WA_AcceptTouchEvents, control_->frame().takesTouch());
    followOpacity();
    peer_ = std::make_unique<Peer>(*this);
    registerWindow(control_->hWnd(), *this);
    connect(&ThemeNews::instance(), &ThemeNews::changed, this, [this] { update(); });
    holdChildren();
    if (placement_ == Placement::ByLayout) {
        const PixelRectangle place = control_->frame().pixelRectangle();
        sizeBefore_ = QSizeF(place.width, place.height).toSize();
        applyLook(*this, *control_);
        takePolicy();
        toldRoom_ = sizeHint();
    } else {
        applyFrame(*this, *control_);
    }
    if (!isForeign()) {
        return;
    }
    setObjectName(toQt(control_->NAME()));
    connect(this, &QObject::objectNameChanged, this,
            [this](const QString& name) { control_->frame().NAME(fromQt(name)); });
    findParent();
    orderStops();
}

ControlWidget::~ControlWidget()
{
    if (isForeign() && peer_->isLinked() && isLive()) {
        dispatch([&] { control_->frame().tellEnded(); });
    }
}

bool ControlWidget::isLive() const
{
    return SessionState::isOpen() && &SessionState::current() == session_;
}

QSize ControlWidget::sizeHint() const
{
    return roomFor(std::nullopt);
}

QSize ControlWidget::minimumSizeHint() const
{
    constexpr double Narrow = 1; // so that all lines break that can
    const bool isOwn = isLive() && (control_->keepsOwnSize() || !control_->contentSize().isEmpty());
    return isOwn ? roomFor(Narrow) : QSize();
}

int ControlWidget::heightForWidth(int width) const
{
    return roomFor(width).height();
}

// What a layout is asked for; of lines that break at that width, if any is given.
QSize ControlWidget::roomFor(std::optional<double> width) const
{
    if (!isLive()) {
        return size();
    }
    const PixelRectangle place = control_->frame().pixelRectangle();
    const PixelSize own{place.width, place.height};
    const PixelSize room = control_->keepsOwnSize() ? own : control_->contentSize(width);
    return room.isEmpty() ? sizeBefore_ : QSizeF(room.width, room.height).toSize();
}

// The content may need another room than before.
void ControlWidget::followContent()
{
    if (placement_ != Placement::ByLayout) {
        return;
    }
    if (const QSize room = sizeHint(); room != toldRoom_) {
        toldRoom_ = room;
        takePolicy();
        updateGeometry();
    }
}

// The controls within this one have widgets, which are made when the first one comes.
void ControlWidget::holdChildren()
{
    if (children_) {
        children_->synchronise();
        orderStops();
    } else if (Container* inner = control_->containerInUse(); inner && !(hints_ && hints_->showsChildren())) {
        children_ = std::make_unique<ContainerWidgets>(*inner, *this);
        orderStops();
    }
}

void ControlWidget::findParent()
{
    control_->frame().Parent(ForeignParent::of(*window()));
}

// In a window of plain Qt the toolkit moves the focus: the control's fields follow its own place there.
void ControlWidget::orderStops()
{
    if (!isForeign()) {
        return;
    }
    QWidget* before = this;
    for (const ControlPtr& stop : tabStops({control_})) {
        if (QWidget* next = widgetOf(stop->hWnd()); next && next != this) {
            setTabOrder(before, next);
            before = next;
        }
    }
}

void ControlWidget::modelChanged(ControlAspect aspect)
{
    if (aspect != ControlAspect::CurrentPart) {
        parts_.reset();
    }
    switch (aspect) {
    case ControlAspect::Picture:
        followOpacity();
        update(zoomed(control_->surface().changedPart(), *control_).toAlignedRect());
        if (control_->surface().MaskPicture()) {
            tellShape(*this);
        }
        followContent();
        break;
    case ControlAspect::Children:
    case ControlAspect::ZOrder:
        holdChildren();
        break;
    case ControlAspect::Drag:
        beginDrag();
        break;
    case ControlAspect::TextEntry:
        textChanged();
        break;
    case ControlAspect::Touch:
        setAttribute(Qt::WA_AcceptTouchEvents, control_->frame().takesTouch());
        touch_.cancel();
        break;
    case ControlAspect::Geometry:
        if (!following_) {
            takePlace();
        }
        break;
    case ControlAspect::Accessibility:
        applyFrameAspect(*this, *control_, aspect);
        tellAccessibility(*this);
        followContent();
        break;
    case ControlAspect::CurrentPart:
        followCurrentPart();
        break;
    case ControlAspect::Enabled:
        if (following_) {
            applyFocusPolicy(*this, control_->frame()); // the widget is on or off already
            break;
        }
        [[fallthrough]];
    case ControlAspect::Visibility:
    case ControlAspect::Focus:
    case ControlAspect::Pointer:
    case ControlAspect::ToolTip:
    case ControlAspect::Text:
    case ControlAspect::Announcement:
        applyFrameAspect(*this, *control_, aspect);
        break;
    case ControlAspect::Selection: // of the toolkit's own widgets
    case ControlAspect::Style:
    case ControlAspect::Items:
    case ControlAspect::Range:
    case ControlAspect::Value:
        break;
    }
}

void ControlWidget::textChanged()
{
    inputMethod_.update();
    const TextEntry before = std::exchange(toldText_, control_->frame().textEntry().value_or(TextEntry()));
    tellText(*this, before, toldText_);
}

bool ControlWidget::event(QEvent* event)
{
    // The control has left its window and this widget ends when its events are over, or the session has
    // ended.
    const bool isLeft = peer_ && (!peer_->isLinked() || !isLive());
    if (isLeft && event->type() != QEvent::DeferredDelete) {
        setAttribute(Qt::WA_OpaquePaintEvent, false); // nothing is painted any more
        event->ignore();
        return false;
    }
    switch (event->type()) {
    case QEvent::ParentChange:
        if (isForeign()) {
            findParent();
        }
        return QWidget::event(event);
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return touched(static_cast<QTouchEvent&>(*event));
    default:
        return QWidget::event(event);
    }
}

// In a window of plain Qt the control is as its widget is, which goes by what holds it, too.
void ControlWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && placement_ == Placement::ByLayout) {
        const QScopedValueRollback<bool> following(following_, true);
        dispatch([&] { control_->Enabled(isEnabled()); });
    }
}

bool ControlWidget::touched(QTouchEvent& event)
{
    const bool begins = event.type() == QEvent::TouchBegin;
    if (begins && (!isEnabled() || !control_->frame().takesTouch() || !commitBeforePress())) {
        event.ignore();
        return false;
    }
    event.setAccepted(touch_.take(event));
    return true;
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/)
{
    dispatch([&] {
        if (paintDirectly()) {
            return;
        }
        QPainter painter(this);
        const double ratio = paintRatio(painter);
        const PicturePtr picture = control_->surface().image(ratio * zoomOf(*control_));
        painter.scale(1 / ratio, 1 / ratio); // pixels of the device are copied, which is faster than scaling
        paintPicture(painter, *picture, ratio);
        followParts();
    });
}

// Gives whether the control is one that is painted without an image.
bool ControlWidget::paintDirectly()
{
    PaintSurface& surface = control_->surface();
    if (!surface.isPaintedDirectly()) {
        return false;
    }
    surface.paintOn(std::make_shared<WidgetBackend>(*this, surface.size(), zoomOf(*control_)));
    followParts();
    return true;
}

void ControlWidget::paintPicture(QPainter& painter, const Picture& picture, double ratio)
{
    const PaintSurface& surface = control_->surface();
    if (testAttribute(Qt::WA_OpaquePaintEvent)) {
        // A widget's edges are rounded to larger pixels than those of the picture.
        const QSizeF all = QSizeF(size()) * ratio;
        const auto columns = static_cast<double>(picture.columns());
        const auto rows = static_cast<double>(picture.rows());
        const QColor ground = toQColor(surface.BackColor());
        painter.fillRect(QRectF(columns, 0, all.width() - columns, all.height()), ground);
        painter.fillRect(QRectF(0, rows, all.width(), all.height() - rows), ground);
        painter.drawImage(0, 0, opaqueImageOf(picture));
    } else {
        const QPointF corner(surface.imagedPart().left, surface.imagedPart().top);
        painter.drawImage(corner * zoomOf(*control_) * ratio, imageOf(picture));
    }
}

// Where the control covers what lies below, that need not be painted.
void ControlWidget::followOpacity()
{
    const PaintSurface& surface = control_->surface();
    const PixelSize size = surface.size();
    setAttribute(Qt::WA_OpaquePaintEvent,
                 hints_ && hints_->coversAll() && !surface.transparent() && !surface.device().MaskColor() &&
                     surface.imagedPart() == PixelRectangle{0, 0, size.width, size.height});
}

// The control's place has changed by itself.
void ControlWidget::takePlace()
{
    if (placement_ == Placement::ByLayout) {
        takePolicy();
        updateGeometry();
    } else {
        applyFrameAspect(*this, *control_, ControlAspect::Geometry);
    }
}

// A layout leaves a control its size where that is its own; otherwise the policy is the program's.
void ControlWidget::takePolicy()
{
    QSizePolicy policy = sizePolicy();
    if (control_->keepsOwnSize()) {
        policy = {QSizePolicy::Fixed, QSizePolicy::Fixed};
    }
    policy.setHeightForWidth(control_->contentSize(1) != control_->contentSize());
    setSizePolicy(policy);
}

// The widget's place has changed by the layout's or the program's hand.
void ControlWidget::followWidget()
{
    if (!isForeign() || following_ || pixelPlace(*control_) == geometry()) {
        return;
    }
    {
        const QScopedValueRollback<bool> following(following_, true);
        dispatch([&] {
            control_->frame().pixelRectangle({double(x()), double(y()), double(width()), double(height())});
        });
    }
    if (placement_ == Placement::Floating) {
        applyGeometry(*this, *control_); // which may have taken another size
    }
}

void ControlWidget::moveEvent(QMoveEvent* /*event*/)
{
    followWidget();
}

void ControlWidget::resizeEvent(QResizeEvent* /*event*/)
{
    followWidget();
}

void ControlWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (isForeign()) {
        findParent();
    }
    if (isInForeignWindow()) {
        dispatch([&] {
            control_->frame().Visible(true);
            control_->shown();
        });
    }
}

void ControlWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    touch_.cancel();
    if (isInForeignWindow()) {
        dispatch([&] {
            control_->frame().Visible(!isHidden()); // not when the window alone has gone
            control_->hidden();
        });
    }
}

// What a press at this place is for, when the control itself lets it through: the next widget below among its
// siblings, or what holds them.
QWidget* ControlWidget::widgetBelow(QPoint place) const
{
    QWidget* holder = parentWidget();
    if (!holder || isWindow()) {
        return nullptr;
    }
    const QPoint inHolder = mapTo(holder, place);
    bool below = false;
    const QObjectList& siblings = holder->children();
    for (auto sibling = siblings.rbegin(); sibling != siblings.rend(); ++sibling) {
        auto* widget = qobject_cast<QWidget*>(*sibling);
        if (widget == this) {
            below = true;
        } else if (below && widget && widget->isVisible() && widget->geometry().contains(inHolder)) {
            QWidget* inner = widget->childAt(widget->mapFrom(holder, inHolder));
            return inner ? inner : widget;
        }
    }
    return holder;
}

bool ControlWidget::hits(const QMouseEvent& event) const
{
    const QPointF place = event.position() / zoomOf(*control_);
    return control_->surface().hits({place.x(), place.y()});
}

// Gives whether the event was for something below. A press takes its moves and its release along.
bool ControlWidget::passOn(QMouseEvent& event)
{
    QWidget* target = passedTo_;
    if (!target && !pressed_ && !hits(event)) {
        target = widgetBelow(event.position().toPoint());
        if (target && event.type() != QEvent::MouseMove) {
            passedTo_ = target;
        }
    }
    if (!target) {
        return false;
    }
    if (event.type() == QEvent::MouseButtonRelease) {
        passedTo_.clear();
    }
    const QPointF place = target->mapFromGlobal(event.globalPosition());
    QMouseEvent passed(event.type(), place, event.globalPosition(), event.button(), event.buttons(),
                       event.modifiers());
    QApplication::sendEvent(target, &passed);
    return true;
}

// Some desktops make a mouse of a finger even where the finger has been taken.
bool ControlWidget::isTouched(const QMouseEvent& event) const
{
    return control_->frame().takesTouch() && event.deviceType() == QInputDevice::DeviceType::TouchScreen;
}

// What is being composed goes in before; gives whether the control is still there.
bool ControlWidget::commitBeforePress()
{
    const QPointer<ControlWidget> self(this);
    commitComposition();
    return self && peer_->isLinked();
}

void ControlWidget::press(const QMouseEvent& event, bool second)
{
    if (!commitBeforePress()) {
        return;
    }
    pressed_ = true;
    secondPress_ = second;
    const auto control = control_; // a handler may close the window
    dispatch([&] { control->pointerDown(pointerEvent(event, zoomOf(*control))); });
}

// Each press counts as a click, the second one of a double click as well, so that no tap of a quick hand is
// lost.
void ControlWidget::release(const QMouseEvent& event)
{
    if (!pressed_) {
        return; // the press went elsewhere
    }
    const bool click = event.button() == Qt::LeftButton && hits(event);
    const bool second = secondPress_;
    pressed_ = event.buttons() != Qt::NoButton;
    const auto control = control_; // a handler may close the window
    const QPointer<ControlWidget> self(this);
    const auto isLive = [&] { return self && peer_->isLinked(); };
    dispatch([&] {
        control->pointerUp(pointerEvent(event, zoomOf(*control_)));
        if (click && isLive()) {
            inputMethod_.tapped(event);
        }
        if (click && isLive()) {
            control->click();
        }
        if (click && second && isLive()) {
            control->doubleClick();
        }
    });
}

void ControlWidget::mousePressEvent(QMouseEvent* event)
{
    if (!passOn(*event) && !isTouched(*event)) {
        press(*event, false);
    }
}

void ControlWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!passOn(*event) && !isTouched(*event)) {
        press(*event, true);
    }
}

void ControlWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!passOn(*event)) {
        release(*event);
    }
}

void ControlWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!passOn(*event) && !isTouched(*event)) {
        const auto control = control_; // a handler may close the window
        dispatch([&] { control->pointerMove(pointerEvent(*event, zoomOf(*control))); });
    }
}

void ControlWidget::leaveEvent(QEvent* /*event*/)
{
    dispatch([&] { control_->pointerLeave(); });
}

// A turn that the control has no use for goes on to what holds it.
void ControlWidget::wheelEvent(QWheelEvent* event)
{
    constexpr double OneNotch = 120;
    WheelEvent turn{event->angleDelta().y() / OneNotch};
    dispatch([&] { control_->wheel(turn); });
    event->setAccepted(turn.used);
}

void ControlWidget::beginDrag()
{
    const std::optional<String> text = control_->dragText();
    auto* content = new QMimeData;
    if (text) {
        content->setText(toQt(*text));
    }
    auto* source = new DragSource(*this);
    auto* drag = new QDrag(source); // the toolkit ends it, and it what it carries
    connect(drag, &QObject::destroyed, source, &QObject::deleteLater);
    drag->setMimeData(content);
    pressed_ = false;
    drag->exec(Qt::CopyAction);
}

// A field whose text is locked takes nothing, and what holds it does not take it instead.
void ControlWidget::dragEnterEvent(QDragEnterEvent* event)
{
    const std::optional<TextEntry>& entry = control_->frame().textEntry();
    if (entry && entry->locked) {
        event->setDropAction(Qt::IgnoreAction);
        event->accept();
    } else if (DragSource::widgetOf(event->source()) || event->mimeData()->hasText()) {
        event->acceptProposedAction();
    }
}

void ControlWidget::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    dispatch([&] {
        if (const ControlWidget* source = DragSource::widgetOf(event->source())) {
            const QPointF place = event->position() / zoomOf(*control_);
            control_->dragDrop(source->control(), place.x(), place.y());
        } else if (event->mimeData()->hasText()) {
            control_->textDropped(fromQt(event->mimeData()->text()));
        }
    });
}

} // namespace phial::qt
