#include "qt/desktop/LookStyle.h"

#include "core/Palette.h"
#include "qt/desktop/BoxSigns.h"
#include "qt/desktop/ButtonFace.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/FormArea.h"
#include "qt/desktop/FormWindow.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace phial::qt
{

namespace
{

// Pixels of a form.
constexpr double LeastTarget = 36;
constexpr double FieldRadius = 6;
constexpr double FieldPadding = 6;
constexpr double ButtonPadding = 28; // left and right of a text together
constexpr int LeastButtonWidth = 84; // in boxes
constexpr double RowPadding = 6;
constexpr double ArrowRoom = 32;
constexpr double HandleInset = 8;
constexpr double FocusLine = 2;
constexpr int BoxSignSize = 48;

int zoomedLength(double length, const QWidget* widget)
{
    return static_cast<int>(std::ceil(length * zoomOf(widget)));
}

/// Never less than a finger needs, however small the form is shown.
int leastTarget(const QWidget* widget)
{
    return static_cast<int>(std::ceil(LeastTarget * std::max(1.0, zoomOf(widget))));
}

QPen edgePen(Colour colour, double zoom)
{
    return {toQColor(colour), EdgeWidth * zoom, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
}

/// Whether only what lies inside the edge is painted now, as when a character is typed into a field.
bool isPaintedWithin(const QPainter& painter, const QRectF& area)
{
    const QRect painted = painter.paintEngine()->systemClip().boundingRect();
    return !painted.isEmpty() && area.contains(painter.deviceTransform().inverted().mapRect(QRectF(painted)));
}

/// A field or the like: its ground, with the edge of controls around it.
void paintBox(QPainter& painter, const QRect& area, const QColor& ground, bool enabled, double zoom)
{
    const double rim = (EdgeWidth + FieldRadius) * zoom;
    if (isPaintedWithin(painter, QRectF(area).adjusted(rim, rim, -rim, -rim))) {
        painter.fillRect(area, ground);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(ground);
    painter.setPen(edgePen(enabled ? Palette::ControlBorder : Palette::Divider, zoom));
    const double inset = EdgeWidth * zoom / 2;
    painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset), FieldRadius * zoom,
                            FieldRadius * zoom);
    painter.restore();
}

void paintFrame(QPainter& painter, const QRect& area, bool enabled, double zoom)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(edgePen(enabled ? Palette::ControlBorder : Palette::Divider, zoom));
    const double inset = EdgeWidth * zoom / 2;
    painter.drawRect(QRectF(area).adjusted(inset, inset, -inset, -inset));
    painter.restore();
}

void paintDownArrow(QPainter& painter, const QRect& area, const QColor& ink, double zoom)
{
    const QPointF middle = QRectF(area).center();
    const double reach = 5 * zoom;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF({middle + QPointF(-reach, -reach / 2), middle + QPointF(reach, -reach / 2),
                                   middle + QPointF(0, reach * 0.7)}));
    painter.restore();
}

void paintComboBox(const QStyleOptionComboBox& box, QPainter& painter, const QRect& arrow, double zoom)
{
    const bool enabled = (box.state & QStyle::State_Enabled) != 0;
    const bool hover = enabled && !box.editable && (box.state & QStyle::State_MouseOver) != 0;
    paintBox(painter, box.rect, hover ? toQColor(Palette::SurfaceHover) : box.palette.color(QPalette::Base),
             enabled, zoom);
    paintDownArrow(painter, arrow, box.palette.color(QPalette::Text), zoom);
}

/// No arrows at the ends: the whole length takes presses.
void paintScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QRect& handle, double zoom)
{
    painter.fillRect(bar.rect, toQColor(Palette::Ground));
    if ((bar.state & QStyle::State_Enabled) == 0 || bar.minimum >= bar.maximum) {
        return;
    }
    const bool held = bar.activeSubControls == QStyle::SC_ScrollBarSlider;
    const Colour colour = held && (bar.state & QStyle::State_Sunken) != 0      ? Palette::Accent
                          : held && (bar.state & QStyle::State_MouseOver) != 0 ? Palette::ControlBorder
                                                                               : Palette::Track;
    const bool upright = bar.orientation == Qt::Vertical;
    const double across = upright ? handle.width() : handle.height();
    const double aside = std::min(HandleInset * zoom, across / 4);
    const double along = 2 * zoom;
    const QRectF shape = upright ? QRectF(handle).adjusted(aside, along, -aside, -along)
                                 : QRectF(handle).adjusted(along, aside, -along, -aside);
    const double radius = std::min(shape.width(), shape.height()) / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(colour));
    painter.drawRoundedRect(shape, radius, radius);
    painter.restore();
}

QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part, int leastHandle)
{
    const bool upright = bar.orientation == Qt::Vertical;
    const int length = upright ? bar.rect.height() : bar.rect.width();
    const qint64 range = static_cast<qint64>(bar.maximum) - bar.minimum;
    const qint64 pages = range + bar.pageStep;
    const int handle = range <= 0 ? length
                                  : std::max(std::min(length, leastHandle),
                                             static_cast<int>(length * qint64{bar.pageStep} / pages));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - handle, bar.upsideDown);
    const auto piece = [&](int from, int extent) {
        return upright ? QRect(bar.rect.x(), bar.rect.y() + from, bar.rect.width(), extent)
                       : QRect(bar.rect.x() + from, bar.rect.y(), extent, bar.rect.height());
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return piece(start, handle);
    case QStyle::SC_ScrollBarSubPage:
        return piece(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return piece(start + handle, length - start - handle);
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    default:
        return {};
    }
}

void paintRow(const QStyleOptionViewItem& row, QPainter& painter)
{
    if ((row.state & QStyle::State_Selected) != 0) {
        painter.fillRect(row.rect, row.palette.color(QPalette::Highlight));
    } else if ((row.state & QStyle::State_MouseOver) != 0 && (row.state & QStyle::State_Enabled) != 0) {
        painter.fillRect(row.rect, toQColor(Palette::SurfaceHover));
    }
}

void paintRowFocus(QPainter& painter, const QRect& area, double zoom)
{
    const double inset = FocusLine * zoom / 2;
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(toQColor(Palette::FocusRing), FocusLine * zoom));
    painter.drawRect(QRectF(area).adjusted(inset, inset, -inset, -inset));
    painter.restore();
}

void paintHeaderSection(const QStyleOption& section, QPainter& painter, double zoom)
{
    painter.fillRect(section.rect, toQColor(Palette::Ground));
    painter.fillRect(QRectF(section.rect.x(), section.rect.bottom() + 1 - EdgeWidth * zoom,
                            section.rect.width(), EdgeWidth * zoom),
                     toQColor(Palette::ControlBorder));
}

} // namespace

double zoomOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qobject_cast<const FormArea*>(widget)) {
            return static_cast<const FormWindow*>(widget->window())->form().Zoom();
        }
        if (widget->isWindow() && widget->windowType() != Qt::Popup) { // which is what it drops down from
            break;
        }
    }
    return 1;
}

LookStyle::LookStyle() : QProxyStyle(QStringLiteral("fusion")) {}

// The program's palette is whole; nothing of the base style's is to come in between.
void LookStyle::polish(QPalette& /*palette*/) {}

// Rows show where the pointer is. Those of combo boxes ask the style how high they are only when they have
// the toolkit's newer delegate.
void LookStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* list = qobject_cast<QAbstractItemView*>(widget)) {
        list->viewport()->setAttribute(Qt::WA_Hover);
    } else if (auto* box = qobject_cast<QComboBox*>(widget);
               box && !qobject_cast<QStyledItemDelegate*>(box->itemDelegate())) {
        box->setItemDelegate(new QStyledItemDelegate(box));
    }
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        return zoomedLength(EdgeWidth, widget);
    case PM_ScrollBarExtent:
    case PM_ScrollBarSliderMin:
        return leastTarget(widget);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_MessageBoxIconSize:
        return BoxSignSize;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const
{
    switch (hint) {
    case SH_ComboBox_Popup: // a list below the field, not a menu over it
        return 0;
    case SH_ScrollBar_Transient:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    const int least = leastTarget(widget);
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton: {
        const int width = contents.width() + zoomedLength(ButtonPadding, widget);
        const bool isAlone = widget && qobject_cast<const QDialog*>(widget->window());
        return {isAlone ? std::max(width, LeastButtonWidth) : width, std::max(size.height(), least)};
    }
    case CT_ItemViewItem:
        return {size.width() + 2 * zoomedLength(RowPadding, widget), std::max(size.height(), least)};
    case CT_MenuItem: {
        const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        const bool isLine = entry && entry->menuItemType == QStyleOptionMenuItem::Separator;
        return isLine ? size : QSize(size.width(), std::max(size.height(), least));
    }
    case CT_MenuBarItem:
    case CT_HeaderSection:
    case CT_ComboBox:
    case CT_LineEdit:
        return {size.width(), std::max(size.height(), least)};
    default:
        return size;
    }
}

QRect LookStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        const int aside = frame && frame->lineWidth > 0 ? zoomedLength(FieldPadding, widget) : 0;
        const int edge = frame && frame->lineWidth > 0 ? zoomedLength(EdgeWidth, widget) : 0;
        return option->rect.adjusted(aside, edge, -aside, -edge);
    }
    const QRect base = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_ItemViewItemText) {
        const int aside = zoomedLength(RowPadding, widget) - 2; // the base has some of its own
        return base.adjusted(aside, 0, -aside, 0);
    }
    return base;
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar) {
        return scrollBarPart(*bar, part, leastTarget(widget));
    }
    if (control == CC_ComboBox && (part == SC_ComboBoxArrow || part == SC_ComboBoxEditField)) {
        const int room = zoomedLength(ArrowRoom, widget);
        const int edge = zoomedLength(EdgeWidth, widget);
        const int aside = zoomedLength(FieldPadding, widget);
        return part == SC_ComboBoxArrow
                   ? QRect(option->rect.right() + 1 - room, option->rect.y(), room, option->rect.height())
                   : option->rect.adjusted(aside, edge, -room, -edge);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const double zoom = zoomOf(widget);
    const bool enabled = (option->state & State_Enabled) != 0;
    switch (element) {
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame && frame->lineWidth > 0) {
            paintBox(*painter, option->rect, option->palette.color(QPalette::Base), enabled, zoom);
        }
        return;
    case PE_Frame:
        paintFrame(*painter, option->rect, enabled, zoom);
        return;
    case PE_PanelMenu:
        painter->fillRect(option->rect, toQColor(Palette::Surface));
        return;
    case PE_FrameMenu:
        paintFrame(*painter, option->rect, true, 1);
        return;
    case PE_PanelItemViewItem:
        if (const auto* row = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
            paintRow(*row, *painter);
        }
        return;
    case PE_PanelItemViewRow:
        return;
    case PE_FrameFocusRect: // the ring tells the widget; within a list its row is the chosen one, or has a
                            // line
        if (qobject_cast<const QAbstractItemView*>(widget) && (option->state & State_Selected) == 0) {
            paintRowFocus(*painter, option->rect, zoom);
        }
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    switch (element) {
    case CE_PushButtonBevel:
        paintButton(*option, *painter, buttonFace(*option, widget), zoomOf(widget));
        return;
    case CE_PushButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            QStyleOptionButton inked = *button;
            const ButtonFace face = buttonFace(*option, widget);
            inked.palette.setColor(QPalette::ButtonText, face.text);
            inked.icon = buttonIcon(*button, widget, face);
            QProxyStyle::drawControl(element, &inked, painter, widget);
        }
        return;
    case CE_HeaderLabel:
        if (const auto* title = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
            QStyleOptionHeader placed = *title; // in line with the rows
            const int aside = zoomedLength(RowPadding, widget);
            placed.rect = option->rect.adjusted(aside, 0, -aside, 0);
            placed.textAlignment |= Qt::AlignVCenter;
            QProxyStyle::drawControl(element, &placed, painter, widget);
        }
        return;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        paintHeaderSection(*option, *painter, zoomOf(widget));
        return;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar) {
        const QRect handle = subControlRect(control, option, SC_ScrollBarSlider, widget);
        paintScrollBar(*bar, *painter, handle, zoomOf(widget));
        return;
    }
    if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        box && control == CC_ComboBox) {
        paintComboBox(*box, *painter, subControlRect(control, option, SC_ComboBoxArrow, widget),
                      zoomOf(widget));
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QIcon LookStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    const QIcon sign = boxSign(icon);
    return sign.isNull() ? QProxyStyle::standardIcon(icon, option, widget) : sign;
}

} // namespace phial::qt
