#include "qt/desktop/ButtonFace.h"

#include "core/Palette.h"
#include "core/SessionState.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/Theme.h"

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

#include <cstdlib>

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

/// Whether all that is well seen of the picture has that colour.
bool isDrawnIn(const QImage& picture, const QColor& colour)
{
    constexpr int Tolerance = 6; // of a colour that was multiplied by its share and divided again
    constexpr int WellSeen = 128;
    const auto isNear = [](int one, int other) { return std::abs(one - other) <= Tolerance; };
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (qAlpha(pixel) >= WellSeen &&
                !(isNear(qRed(pixel), colour.red()) && isNear(qGreen(pixel), colour.green()) &&
                  isNear(qBlue(pixel), colour.blue()))) {
                return false;
            }
        }
    }
    return true;
}

/// The colour of the button's text while it is enabled and nothing touches it.
QColor textAtRest(const QWidget* button)
{
    QStyleOption option;
    option.state = QStyle::State_Enabled;
    return buttonFace(option, button).text;
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

QIcon buttonIcon(const QStyleOptionButton& option, const QWidget* button, const ButtonFace& face)
{
    if (option.icon.isNull()) {
        return option.icon;
    }
    const QColor rest = textAtRest(button);
    if (rest == face.text) {
        return option.icon;
    }
    QPixmap sign = option.icon.pixmap(option.iconSize, button ? button->devicePixelRatioF() : 1);
    if (!isDrawnIn(sign.toImage().convertToFormat(QImage::Format_ARGB32), rest)) {
        return option.icon;
    }
    QPainter painter(&sign);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(), sign.deviceIndependentSize()), face.text);
    painter.end();
    QIcon inked(sign);
    inked.addPixmap(sign, QIcon::Disabled);
    return inked;
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
