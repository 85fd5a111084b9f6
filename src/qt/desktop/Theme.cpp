#include "qt/desktop/Theme.h"

#include "core/Palette.h"
#include "core/SessionState.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/FocusRing.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/LookStyle.h"

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QToolTip>

namespace phial::qt
{

namespace
{

int themesUnderWay = 0;

QColor roleColour(Colour role)
{
    return toQColor(role);
}

// One role is left to the desktop, so that the toolkit tells when that changes.
QPalette paletteFor(const CoreTheme& theme)
{
    const std::pair<QPalette::ColorRole, Colour> colours[] = {
        {QPalette::Window, Palette::Ground},
        {QPalette::WindowText, Palette::Ink},
        {QPalette::Base, Palette::Surface},
        {QPalette::AlternateBase, Palette::Band},
        {QPalette::Text, Palette::Ink},
        {QPalette::Button, Palette::Surface},
        {QPalette::ButtonText, Palette::Ink},
        {QPalette::BrightText, Palette::Ink},
        {QPalette::Light, Palette::SurfaceHover},
        {QPalette::Midlight, Palette::SurfacePressed},
        {QPalette::Mid, Palette::ControlBorder},
        {QPalette::Dark, Palette::ControlBorder},
        {QPalette::PlaceholderText, Palette::Muted},
        {QPalette::Link, Palette::Accent},
        {QPalette::LinkVisited, Palette::AccentDeep},
        {QPalette::ToolTipBase, Palette::Ink},
        {QPalette::ToolTipText, Palette::Ground},
        {QPalette::HighlightedText, Palette::OnAccent},
    };
    QPalette palette;
    for (const auto& [role, colour] : colours) {
        palette.setColor(role, roleColour(colour));
    }
    palette.setColor(QPalette::Highlight, toQColor(theme.Colour(ThemeSlot::Accent)));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, roleColour(Palette::DisabledText));
    }
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button}) {
        palette.setColor(QPalette::Disabled, role, roleColour(Palette::DisabledGround));
    }
    return palette;
}

QPointer<LookStyle>& programStyle()
{
    static QPointer<LookStyle> style;
    return style;
}

} // namespace

ThemeNews& ThemeNews::instance()
{
    static ThemeNews news;
    return news;
}

ApplyingTheme::ApplyingTheme()
{
    ++themesUnderWay;
}

ApplyingTheme::~ApplyingTheme()
{
    --themesUnderWay;
}

bool ApplyingTheme::isUnderWay()
{
    return themesUnderWay > 0;
}

bool isThemed()
{
    return programStyle() != nullptr;
}

void applyTheme(const CoreTheme& theme)
{
    const ApplyingTheme applying;
    if (!isThemed()) {
        programStyle() = new LookStyle; // belongs to the application
        QApplication::setStyle(programStyle());
        QApplication::setFont(fontCatalogue().font(FontSpec()));
        showFocusByRing();
    }
    const QPalette palette = paletteFor(theme);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    Q_EMIT ThemeNews::instance().changed();
}

void ensureTheme()
{
    if (!isThemed() && SessionState::isOpen()) {
        applyTheme(coreTheme());
    }
}

} // namespace phial::qt
