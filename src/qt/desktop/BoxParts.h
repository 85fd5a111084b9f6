#pragma once

#include "core/String.h"

#include <QString>

class QDialog;
class QPushButton;

namespace phial::qt
{

/// What the system's own boxes are made of.

/// A text of a box in both languages.
struct BoxText {
    const char16_t* german;
    const char16_t* english;
};

inline constexpr BoxText CloseText{u"Schließen", u"Close"};

/// The text in the session's language.
QString inLanguage(const BoxText& text);

/// The title of a box; the program's name in place of an empty one.
QString titleOr(StringView title);

/// Makes a button high enough for fingers.
void enlarge(QPushButton& button);
/// A button that ends the dialog by its slot `end`.
QPushButton* closingButton(QDialog& dialog, const BoxText& text, void (QDialog::*end)());

/// Runs the box, with larger text than forms have, until the user ends it; gives its result.
int runBox(QDialog& box);

} // namespace phial::qt
