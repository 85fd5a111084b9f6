#include "qt/desktop/Theme.h"

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

constexpr auto AccentProperty = "phialAccent";
constexpr auto BarProperty = "phialBar";

// Neutral colours, light enough that every theme's accent stands out.
constexpr auto Ground = "#f3f5f7";
constexpr auto Field = "#ffffff";
constexpr auto Line = "#b4bcc6";
constexpr auto Ink = "#1d2430";
constexpr auto PaleInk = "#8a94a1";
constexpr auto Hover = "#e6ebf1";
constexpr auto Pressed = "#d5dde6";

constexpr auto Sheet = R"(
QPushButton { background: $field; color: $ink; border: 1px solid $line; border-radius: 6px; padding: 2px 6px; }
QPushButton:hover { background: $hover; }
QPushButton:pressed { background: $pressed; }
QPushButton:focus { border: 2px solid $accent; padding: 1px 5px; }
QDialog QPushButton, QWidget[phialBar="true"] QPushButton { padding: 2px 14px; }
QDialog QPushButton:focus, QWidget[phialBar="true"] QPushButton:focus { padding: 1px 13px; }
QPushButton:disabled { color: $pale; background: $ground; }
QPushButton[phialAccent="true"] { background: $accent; color: #ffffff; border: 1px solid $accent; }
QPushButton[phialAccent="true"]:hover { background: $accentHover; }
QPushButton[phialAccent="true"]:pressed { background: $accentPressed; }
QPushButton[phialAccent="true"]:focus { border: 2px solid $ink; }
QPushButton[phialAccent="true"]:disabled { background: $line; border-color: $line; color: $field; }
QLineEdit, QPlainTextEdit, QListWidget, QTreeWidget, QComboBox {
    background: palette(base); color: palette(text); border: 1px solid $line; border-radius: 4px;
    selection-background-color: $accent; selection-color: #ffffff; }
QLineEdit { padding: 0 5px; }
QLineEdit:focus, QPlainTextEdit:focus, QListWidget:focus, QTreeWidget:focus, QComboBox:focus { border: 2px solid $accent; }
QLineEdit:focus { padding: 0 4px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QListWidget:disabled, QTreeWidget:disabled, QComboBox:disabled {
    background: $ground; color: $pale; }
QListWidget, QTreeWidget { outline: none; }
QListWidget::item, QTreeWidget::item { padding: 4px 6px; background: transparent; }
QListWidget::item:hover, QTreeWidget::item:hover { background: $hover; }
QListWidget::item:selected, QTreeWidget::item:selected { background: $accent; color: #ffffff; }
QHeaderView::section { background: $ground; color: $ink; border: none; border-bottom: 1px solid $line;
    padding: 4px 6px; }
QComboBox { padding: 0 6px; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox::down-arrow { width: 0; height: 0; margin-right: 6px; border-left: 5px solid $field;
    border-right: 5px solid $field; border-top: 6px solid $ink; }
QComboBox QAbstractItemView { background: $field; border: 1px solid $line; selection-background-color: $accent;
    selection-color: #ffffff; outline: none; }
QScrollBar:vertical { background: $ground; border: none; margin: 0; }
QScrollBar:horizontal { background: $ground; border: none; margin: 0; }
QScrollBar::handle { background: $line; border-radius: 5px; margin: 2px; min-height: 28px; min-width: 28px; }
QScrollBar::handle:hover { background: $pale; }
QScrollBar::handle:pressed { background: $accent; }
QScrollBar:focus { background: $pressed; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QMenuBar { background: $ground; color: $ink; border-bottom: 1px solid $line; }
QMenuBar::item { padding: 5px 10px; background: transparent; border-radius: 4px; }
QMenuBar::item:selected { background: $hover; }
QMenu { background: $field; color: $ink; border: 1px solid $line; padding: 4px; }
QMenu::item { padding: 6px 26px; border-radius: 4px; }
QMenu::item:selected { background: $accent; color: #ffffff; }
QMenu::item:disabled { color: $pale; background: transparent; }
QMenu::separator { height: 1px; background: $line; margin: 4px 6px; }
QToolTip { background: $ink; color: #ffffff; border: none; padding: 4px 6px; }
QWidget[phialBar="true"] { background: $frame; }
QWidget[phialBar="true"] QLabel { color: $frameText; }
QWidget[phialBar="true"] QLabel:disabled { color: $pale; }
QWidget[phialBar="true"] QPushButton { background: transparent; color: $frameText; border: 1px solid $frameText; }
QWidget[phialBar="true"] QPushButton:hover, QWidget[phialBar="true"] QPushButton:focus {
    background: $accent; color: #ffffff; border: 2px solid $frameText; }
QWidget[phialBar="true"] QPushButton:pressed { background: $accentPressed; }
QWidget[phialBar="true"] QPushButton:disabled { color: $pale; border-color: $pale; background: transparent; }
)";

QString sheetFor(const CoreTheme& theme)
{
    const QColor accent = toQColor(theme.Colour(ThemeSlot::Accent));
    const std::pair<const char*, QString> colours[] = {
        // Longer names first, since one begins with another.
        {"$accentHover", accent.lighter(120).name()},
        {"$accentPressed", accent.darker(125).name()},
        {"$accent", accent.name()},
        {"$frameText", toQColor(theme.Colour(ThemeSlot::FrameText)).name()},
        {"$frame", toQColor(theme.Colour(ThemeSlot::Frame)).name()},
        {"$field", Field},
        {"$ground", Ground},
        {"$line", Line},
        {"$hover", Hover},
        {"$pressed", Pressed},
        {"$pale", PaleInk},
        {"$ink", Ink},
    };
    QString sheet = QLatin1String(Sheet);
    for (const auto& [name, colour] : colours) {
        sheet.replace(QLatin1String(name), colour);
    }
    return sheet;
}

QPalette paletteFor(const CoreTheme& theme)
{
    QPalette palette;
    palette.setColor(QPalette::Window, Ground);
    palette.setColor(QPalette::WindowText, Ink);
    palette.setColor(QPalette::Base, Field);
    palette.setColor(QPalette::AlternateBase, Ground);
    palette.setColor(QPalette::Text, Ink);
    palette.setColor(QPalette::Button, Field);
    palette.setColor(QPalette::ButtonText, Ink);
    palette.setColor(QPalette::Mid, Line);
    palette.setColor(QPalette::Dark, PaleInk);
    palette.setColor(QPalette::PlaceholderText, PaleInk);
    palette.setColor(QPalette::Highlight, toQColor(theme.Colour(ThemeSlot::Accent)));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, PaleInk);
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

void applyTheme(const CoreTheme& theme)
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setPalette(paletteFor(theme));
    QApplication::setFont(fontCatalogue().font(FontSpec()));
    qApp->setStyleSheet(sheetFor(theme));
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
