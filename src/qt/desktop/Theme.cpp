#include "qt/desktop/Theme.h"

#include "core/Palette.h"
#include "core/SessionState.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/FontCatalogue.h"

#include <QApplication>
#include <QPalette>
#include <QPushButton>
#include <QStyle>

namespace phial::qt
{

namespace
{

int themesUnderWay = 0;

constexpr auto AccentProperty = "phialAccent";
constexpr auto BarProperty = "phialBar";

constexpr auto Sheet = R"(
QPushButton { background: $field; color: $ink; border: 1px solid $border; border-radius: 6px; padding: 2px 6px; }
QPushButton:hover { background: $hover; }
QPushButton:pressed { background: $pressed; }
QPushButton:focus { border: 2px solid $accent; padding: 1px 5px; }
QDialog QPushButton, QWidget[phialBar="true"] QPushButton { padding: 2px 14px; }
QDialog QPushButton:focus, QWidget[phialBar="true"] QPushButton:focus { padding: 1px 13px; }
QPushButton:disabled { color: $off; background: $offGround; border-color: $line; }
QPushButton[phialAccent="true"] { background: $accent; color: $onAccent; border: 1px solid $accent; }
QPushButton[phialAccent="true"]:hover { background: $accentHover; }
QPushButton[phialAccent="true"]:pressed { background: $accentPressed; }
QPushButton[phialAccent="true"]:focus { border: 2px solid $ink; }
QPushButton[phialAccent="true"]:disabled { background: $offGround; border-color: $line; color: $off; }
QLineEdit, QPlainTextEdit, QListWidget, QTreeWidget, QComboBox {
    background: palette(base); color: palette(text); border: 1px solid $border; border-radius: 4px;
    selection-background-color: $accent; selection-color: $onAccent; }
QLineEdit { padding: 0 5px; }
QLineEdit:focus, QPlainTextEdit:focus, QListWidget:focus, QTreeWidget:focus, QComboBox:focus { border: 2px solid $accent; }
QLineEdit:focus { padding: 0 4px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QListWidget:disabled, QTreeWidget:disabled, QComboBox:disabled {
    background: $offGround; color: $off; }
QListWidget, QTreeWidget { outline: none; }
QListWidget::item, QTreeWidget::item { padding: 4px 6px; background: transparent; }
QListWidget::item:hover, QTreeWidget::item:hover { background: $hover; }
QListWidget::item:selected, QTreeWidget::item:selected { background: $accent; color: $onAccent; }
QHeaderView::section { background: $ground; color: $ink; border: none; border-bottom: 1px solid $border;
    padding: 4px 6px; }
QComboBox { padding: 0 6px; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox::down-arrow { width: 0; height: 0; margin-right: 6px; border-left: 5px solid $field;
    border-right: 5px solid $field; border-top: 6px solid $ink; }
QComboBox QAbstractItemView { background: $field; border: 1px solid $border; selection-background-color: $accent;
    selection-color: $onAccent; outline: none; }
QScrollBar:vertical { background: $ground; border: none; margin: 0; }
QScrollBar:horizontal { background: $ground; border: none; margin: 0; }
QScrollBar::handle { background: $track; border-radius: 5px; margin: 2px; min-height: 28px; min-width: 28px; }
QScrollBar::handle:hover { background: $border; }
QScrollBar::handle:pressed { background: $accent; }
QScrollBar:focus { background: $pressed; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QMenuBar { background: $ground; color: $ink; border-bottom: 1px solid $border; }
QMenuBar::item { padding: 5px 10px; background: transparent; border-radius: 4px; }
QMenuBar::item:selected { background: $hover; }
QMenu { background: $field; color: $ink; border: 1px solid $border; padding: 4px; }
QMenu::item { padding: 6px 26px; border-radius: 4px; }
QMenu::item:selected { background: $accent; color: $onAccent; }
QMenu::item:disabled { color: $off; background: transparent; }
QMenu::separator { height: 1px; background: $line; margin: 4px 6px; }
QToolTip { background: $ink; color: $ground; border: none; padding: 4px 6px; }
QWidget[phialBar="true"] { background: $frame; }
QWidget[phialBar="true"] QLabel { color: $frameText; }
QWidget[phialBar="true"] QLabel:disabled { color: $off; }
QWidget[phialBar="true"] QPushButton { background: transparent; color: $frameText; border: 1px solid $frameText; }
QWidget[phialBar="true"] QPushButton:hover, QWidget[phialBar="true"] QPushButton:focus {
    background: $accent; color: $onAccent; border: 2px solid $frameText; }
QWidget[phialBar="true"] QPushButton:pressed { background: $accentPressed; }
QWidget[phialBar="true"] QPushButton:disabled { color: $off; border-color: $off; background: $offGround; }
)";

QColor roleColour(Colour role)
{
    return toQColor(role);
}

QString sheetFor(const CoreTheme& theme)
{
    // An accent that is not the palette's has no roles for its states.
    const Colour accent = theme.Colour(ThemeSlot::Accent);
    const bool isRole = accent == Palette::Accent;
    const QColor own = toQColor(accent);
    const std::pair<const char*, QColor> colours[] = {
        // Longer names first, since one begins with another.
        {"$accentHover", isRole ? roleColour(Palette::AccentHover) : own.darker(112)},
        {"$accentPressed", isRole ? roleColour(Palette::AccentPressed) : own.darker(125)},
        {"$onAccent", isRole ? roleColour(Palette::OnAccent) : QColor(Qt::white)},
        {"$accent", own},
        {"$frameText", toQColor(theme.Colour(ThemeSlot::FrameText))},
        {"$frame", toQColor(theme.Colour(ThemeSlot::Frame))},
        {"$field", roleColour(Palette::Surface)},
        {"$ground", roleColour(Palette::Ground)},
        {"$border", roleColour(Palette::ControlBorder)},
        {"$line", roleColour(Palette::Divider)},
        {"$hover", roleColour(Palette::SurfaceHover)},
        {"$pressed", roleColour(Palette::SurfacePressed)},
        {"$track", roleColour(Palette::Track)},
        {"$offGround", roleColour(Palette::DisabledGround)},
        {"$off", roleColour(Palette::DisabledText)},
        {"$ink", roleColour(Palette::Ink)},
    };
    QString sheet = QLatin1String(Sheet);
    for (const auto& [name, colour] : colours) {
        sheet.replace(QLatin1String(name), colour.name());
    }
    return sheet;
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

void mark(QWidget& widget, const char* property, bool value)
{
    if (widget.property(property).toBool() != value) {
        widget.setProperty(property, value);
        widget.style()->unpolish(&widget);
        widget.style()->polish(&widget);
    }
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

void applyTheme(const CoreTheme& theme)
{
    const ApplyingTheme applying;
    if (qApp->styleSheet().isEmpty()) {
        QApplication::setStyle(QStringLiteral("fusion"));
    }
    QApplication::setPalette(paletteFor(theme));
    QApplication::setFont(fontCatalogue().font(FontSpec()));
    qApp->setStyleSheet(sheetFor(theme));
    Q_EMIT ThemeNews::instance().changed();
}

void ensureTheme()
{
    if (qApp->styleSheet().isEmpty() && SessionState::isOpen()) {
        applyTheme(coreTheme());
    }
}

void markAccent(QPushButton& button, bool accent)
{
    mark(button, AccentProperty, accent);
}

void markBar(QWidget& bar)
{
    mark(bar, BarProperty, true);
}

} // namespace phial::qt
