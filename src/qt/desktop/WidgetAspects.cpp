#include "qt/desktop/WidgetAspects.h"

#include "core/Palette.h"
#include "qt/base/QtText.h"
#include "qt/desktop/ControlWidgetAccessible.h"
#include "qt/desktop/Cursors.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/FormWindow.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/Container.h"

#include <QPalette>
#include <QWidget>

#include <cmath>

namespace phial::qt
{

namespace
{

String ownName(const Control& control)
{
    const String given = control.frame().AccessibleName();
    const bool isEntry = control.frame().textEntry().has_value(); // what is in it is not what it is called
    return given.empty() && !isEntry ? control.accessibleText() : given;
}

/// A text field that another control holds for itself is called as that one where it has no name of its own.
String spokenName(const Control& control)
{
    const String own = ownName(control);
    const Control* holder = control.frame().privateHolder();
    const bool isField = control.typeName() == u"TextBox";
    return own.empty() && holder && isField ? ownName(*holder) : own;
}

void applyNames(QWidget& widget, const Control& control)
{
    // Each change makes the toolkit ask for the widget's interface, even when nobody listens.
    if (const QString name = toQt(spokenName(control)); name != widget.accessibleName()) {
        widget.setAccessibleName(name);
    }
    if (const QString help = toQt(control.frame().HelpText()); help != widget.accessibleDescription()) {
        widget.setAccessibleDescription(help);
    }
}

void applyPointer(QWidget& widget, const ControlFrame& frame)
{
    if (frame.MousePointer() == MousePointer::Default) {
        widget.unsetCursor();
    } else {
        widget.setCursor(cursorFor(frame.MousePointer(), frame.MouseIcon()));
    }
}

} // namespace

void applyFocusPolicy(QWidget& widget, const ControlFrame& frame)
{
    widget.setFocusPolicy(!frame.canFocus() ? Qt::NoFocus
                          : frame.TabStop() ? Qt::StrongFocus
                                            : Qt::ClickFocus);
}

double zoomOf(const Control& control)
{
    const auto form = control.frame().form();
    return form ? form->Zoom() : 1;
}

FontSpec zoomed(FontSpec font, const Control& control)
{
    font.size *= zoomOf(control);
    return font;
}

QRectF zoomed(const PixelRectangle& area, const Control& control)
{
    const double zoom = zoomOf(control);
    return {area.left * zoom, area.top * zoom, area.width * zoom, area.height * zoom};
}

QRect pixelPlace(const Control& control)
{
    const double zoom = zoomOf(control);
    const PixelRectangle place = control.frame().pixelRectangle();
    const auto pixel = [zoom](double value) { return static_cast<int>(std::lround(value * zoom)); };
    const QPoint corner(pixel(place.left), pixel(place.top));
    const QPoint end(pixel(place.right()), pixel(place.bottom()));
    return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

namespace
{

/// A field that fills the control that holds it ends where that one does: rounded by itself it might reach a
/// pixel further, and its border would not be seen.
QRect placeWithin(const QWidget* parent, const Control& control)
{
    QRect place = pixelPlace(control);
    const Control* holder = control.frame().privateHolder();
    if (!holder || !parent) {
        return place;
    }
    const PixelRectangle room = holder->frame().pixelRectangle();
    const PixelRectangle area = control.frame().pixelRectangle();
    if (area.right() == room.width) {
        place.setWidth(parent->width() - place.left());
    }
    if (area.bottom() == room.height) {
        place.setHeight(parent->height() - place.top());
    }
    return place;
}

} // namespace

void applyGeometry(QWidget& widget, Control& control)
{
    const QSize before = widget.size();
    widget.setGeometry(placeWithin(widget.parentWidget(), control));
    const Container* const inner = control.containerInUse();
    if (!inner || widget.size() == before) {
        return;
    }
    for (const ControlPtr& child : inner->controls()) {
        QWidget* const shown = widgetOf(child->hWnd());
        if (shown && child->frame().privateHolder() == &control) {
            applyGeometry(*shown, *child);
        }
    }
}

void applyFrameAspect(QWidget& widget, Control& control, ControlAspect aspect)
{
    const ControlFrame& frame = control.frame();
    switch (aspect) {
    case ControlAspect::Geometry:
        applyGeometry(widget, control);
        tellShape(widget);
        break;
    case ControlAspect::Visibility:
        widget.setVisible(frame.Visible());
        tellShape(widget);
        break;
    case ControlAspect::Enabled:
        widget.setEnabled(frame.Enabled());
        applyFocusPolicy(widget, frame);
        break;
    case ControlAspect::Focus:
        widget.setFocus(Qt::OtherFocusReason);
        break;
    case ControlAspect::Pointer:
        applyPointer(widget, frame);
        break;
    case ControlAspect::ToolTip:
        widget.setToolTip(toQt(frame.ToolTipText()));
        break;
    case ControlAspect::Accessibility:
    case ControlAspect::Text:
        applyNames(widget, control);
        break;
    case ControlAspect::Announcement:
        announceText(widget, toQt(frame.announcement()));
        break;
    case ControlAspect::ZOrder: // the container puts its widgets in order
    case ControlAspect::Children:
    case ControlAspect::Selection:
    case ControlAspect::Style:
    case ControlAspect::Items:
    case ControlAspect::Range:
    case ControlAspect::Value:
    case ControlAspect::Picture:
    case ControlAspect::CurrentPart:
    case ControlAspect::TextEntry:
    case ControlAspect::Touch:
    case ControlAspect::Drag:
        break;
    }
}

void tellShape(QWidget& widget)
{
    if (auto* window = qobject_cast<FormWindow*>(widget.window())) {
        window->scheduleShape();
    }
}

void applyFrame(QWidget& widget, Control& control)
{
    applyFrameAspect(widget, control, ControlAspect::Geometry);
    applyLook(widget, control);
    applyFrameAspect(widget, control, ControlAspect::Visibility);
}

void applyLook(QWidget& widget, Control& control)
{
    for (const ControlAspect aspect : {ControlAspect::Enabled, ControlAspect::Pointer, ControlAspect::ToolTip,
                                       ControlAspect::Accessibility}) {
        applyFrameAspect(widget, control, aspect);
    }
}

QString buttonText(StringView text)
{
    return toQt(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void passNames(const QWidget& holder, QWidget& field)
{
    field.setAccessibleName(holder.accessibleName());
    field.setAccessibleDescription(holder.accessibleDescription());
}

void showColours(QWidget& widget, const QColor& text, const QColor& ground)
{
    QPalette palette = widget.palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Text, text);
        palette.setColor(group, QPalette::Base, ground);
    }
    palette.setColor(QPalette::Disabled, QPalette::Text, toQColor(Palette::DisabledText));
    palette.setColor(QPalette::Disabled, QPalette::Base, toQColor(Palette::DisabledGround));
    widget.setPalette(palette);
}

Qt::Alignment lineAlignment(Alignment alignment)
{
    switch (sideOf(alignment)) {
    case TextSide::Far:
        return Qt::AlignRight | Qt::AlignVCenter;
    case TextSide::Middle:
        return Qt::AlignCenter;
    case TextSide::Near:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace phial::qt
