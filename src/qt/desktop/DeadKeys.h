#pragma once

#include <QString>

class QKeyEvent;
class QWidget;

namespace phial::qt
{

struct DeadKey;

/// The dead keys of the keyboard on the desk, for a field that has no input method since it has a keyboard of
/// its own: such a key and the letter behind it make one character, as a circumflex and an "a" make "â".
/// Otherwise the key counts as its sign, before whatever comes then; a blank is used up by it.
class DeadKeys
{
public:
    /// Gives whether the key is dealt with. What has been made of it comes to the widget as keys of their
    /// own.
    bool filter(QWidget& widget, const QKeyEvent& event);
    /// The sign of the dead key that waits for the next key; empty for none.
    QString waiting() const;
    /// The next key is for another field.
    void forget() { waiting_ = nullptr; }

private:
    bool press(QWidget& widget, const QKeyEvent& event);

    const DeadKey* waiting_ = nullptr;
};

} // namespace phial::qt
