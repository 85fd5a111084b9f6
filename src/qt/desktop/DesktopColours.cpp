#include "qt/desktop/DesktopColours.h"

#include <QGuiApplication>
#include <QPalette>

#include <optional>

namespace phial::qt
{

namespace
{

struct Slot {
    Colour colour;
    QPalette::ColorRole role;
};

constexpr Slot Slots[] = {
    {SystemColour::Desktop, QPalette::Dark},
    {SystemColour::Window, QPalette::Base},
    {SystemColour::WindowText, QPalette::Text},
    {SystemColour::Highlight, QPalette::Highlight},
    {SystemColour::HighlightText, QPalette::HighlightedText},
    {SystemColour::ButtonFace, QPalette::Window},
    {SystemColour::ButtonShadow, QPalette::Mid},
    {SystemColour::ButtonText, QPalette::ButtonText},
};

std::optional<QPalette::ColorRole> roleOf(Colour colour)
{
    for (const Slot& slot : Slots) {
        if (slot.colour == colour) {
            return slot.role;
        }
    }
    return std::nullopt;
}

} // namespace

QColor toQColor(Colour colour)
{
    if (colour.isSystem()) {
        if (colour == SystemColour::GrayText) {
            return QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text);
        }
        if (const auto role = roleOf(colour)) {
            return QGuiApplication::palette().color(*role);
        }
        colour = defaultColour(colour);
    }
    return {colour.red(), colour.green(), colour.blue()};
}

Colour fromQColor(const QColor& colour)
{
    return RGB(colour.red(), colour.green(), colour.blue());
}

} // namespace phial::qt
