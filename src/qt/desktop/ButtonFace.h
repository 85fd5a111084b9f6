#pragma once

#include <QColor>

class QIcon;
class QPainter;
class QPushButton;
class QStyleOption;
class QStyleOptionButton;
class QWidget;

namespace phial::qt
{

/// Of the edge of controls, in pixels of a form.
inline constexpr double EdgeWidth = 1.5;

/// The colours of a button as it is now.
struct ButtonFace {
    QColor ground;
    QColor text;
    QColor edge;
};

/// By its state, by whether it is the one to press, and by whether it stands on a command bar.
ButtonFace buttonFace(const QStyleOption& option, const QWidget* button);

/// The button's icon as it is now. A sign in the colour that the text has while nothing touches the button is
/// in the text's colour always, so that it can be seen as well as the text; other pictures stay as they are.
QIcon buttonIcon(const QStyleOptionButton& option, const QWidget* button, const ButtonFace& face);

void paintButton(const QStyleOption& option, QPainter& painter, const ButtonFace& face, double zoom);

/// The button stands out as the one to press, or does so no longer.
void markAccent(QPushButton& button, bool accent);

/// The widget is the ground of a command bar, in the theme's colours for it, whichever they become.
void markBar(QWidget& bar);

} // namespace phial::qt
