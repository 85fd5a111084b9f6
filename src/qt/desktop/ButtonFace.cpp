#include "qt/desktop/ButtonFace.h"

#include "core/Palette.h"
#include "core/SessionState.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/Theme.h"

#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace phial::qt
{

namespace
{

constexpr auto AccentProperty = "phialAccent";
constexpr auto BarProperty = "phialBar";
constexpr double ButtonRadius = 8;

bool isMarked(const QWidget* widget, const char* property)
{
    return widget && widget->property(property).toBool();
}

enum class Touched { No, Hover, Pressed };

Touched touchedBy(const QStyleOption& option)
{
    return (option.state & (QStyle::State_Sunken | QStyle::State_On)) != 0 ? Touched::Pressed
           : (option.state & QStyle::State_MouseOver) != 0                 ? Touched::Hover
                                                                           : Touched::No;
}

QColor themeColour(ThemeSlot slot)
{
    return SessionState::isOpen() ? toQColor(coreTheme().Colour(slot)) : toQColor(Palette::Ground);
}

// An accent that is not the palette's has no roles for its states.
QColor accentGround(Touched touched)
{
    const Colour accent = SessionState::isOpen() ? coreTheme().Colour(ThemeSlot::Accent) : Palette::Accent;
    const bool isRole = accent == Palette::Accent;
    switch (touched) {
    case Touched::No:
        break;
    case Touched::Hover:
        return isRole ? toQColor(Palette::AccentHover) : toQColor(accent).darker(112);
    case Touched::Pressed:
        return isRole ? toQColor(Palette::AccentPressed) : toQColor(accent).darker(125);
    }
    return toQColor(accent);
}

QColor onAccent()
{
    const bool isRole = !SessionState::isOpen() || coreTheme().Colour(ThemeSlot::Accent) == Palette::Accent;
    return isRole ? toQColor(Palette::OnAccent) : QColor(Qt::white);
}

ButtonFace plainFace(Touched touched)
{
    const Colour ground = touched == Touched::Pressed ? Palette::SurfacePressed
                          : touched == Touched::Hover ? Palette::SurfaceHover
                                                      : Palette::Surface;
    return {toQColor(ground), toQColor(Palette::Ink), toQColor(Palette::ControlBorder)};
}

ButtonFace accentFace(Touched touched)
{
    const QColor ground = accentGround(touched);
    return {ground, onAccent(), ground};
}

ButtonFace barFace(Touched touched)
{
    const QColor text = themeColour(ThemeSlot::FrameText);
    if (touched == Touched::No) {
        return {themeColour(ThemeSlot::Frame), text, text};
    }
    return {accentGround(touched), onAccent(), text};
}

void colourBar(QWidget& bar)
{
    QPalette palette = bar.palette();
    palette.setColor(QPalette::Window, themeColour(ThemeSlot::Frame));
    palette.setColor(QPalette::WindowText, themeColour(ThemeSlot::FrameText));
    bar.setPalette(palette);
}

} // namespace

ButtonFace buttonFace(const QStyleOption& option, const QWidget* button)
{
    if ((option.state & QStyle::State_Enabled) == 0) {
        return {toQColor(Palette::DisabledGround), toQColor(Palette::DisabledText),
                toQColor(Palette::Divider)};
    }
    const Touched touched = touchedBy(option);
    if (isMarked(button, AccentProperty)) {
        return accentFace(touched);
    }
    return button && isMarked(button->parentWidget(), BarProperty) ? barFace(touched) : plainFace(touched);
}

void paintButton(const QStyleOption& option, QPainter& painter, const ButtonFace& face, double zoom)
{
    const double inset = EdgeWidth * zoom / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(face.ground);
    painter.setPen(QPen(face.edge, EdgeWidth * zoom));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), ButtonRadius * zoom,
                            ButtonRadius * zoom);
    painter.restore();
}

void markAccent(QPushButton& button, bool accent)
{
    if (isMarked(&button, AccentProperty) != accent) {
        button.setProperty(AccentProperty, accent);
        button.update();
    }
}

void markBar(QWidget& bar)
{
    bar.setProperty(BarProperty, true);
    bar.setAutoFillBackground(true);
    colourBar(bar);
    QObject::connect(&ThemeNews::instance(), &ThemeNews::changed, &bar, [&bar] { colourBar(bar); });
}

} // namespace phial::qt
