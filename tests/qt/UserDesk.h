#pragma once

#include <QLibrary>
#include <QPoint>

#include <initializer_list>

struct _XDisplay;

namespace phial::qt
{

/// The mouse and the German keyboard in front of a real desktop: what they do goes through the server, as a
/// user's does. Places are those of the toolkit on the first screen.
class UserDesk
{
public:
    /// Keys by their place, as the server numbers them.
    enum Key : unsigned {
        Escape = 9,
        One = 10,
        Two = 11,
        Three = 12,
        Four = 13,
        Five = 14,
        SharpS = 20,
        BackSpace = 22,
        Tab = 23,
        Q = 24,
        E = 26,
        R = 27,
        T = 28,
        Z = 29,
        U = 30,
        I = 31,
        O = 32,
        Return = 36,
        Ctrl = 37,
        A = 38,
        S = 39,
        D = 40,
        F = 41,
        G = 42,
        L = 46,
        OUmlaut = 47,
        Shift = 50,
        C = 54,
        V = 55,
        B = 56,
        Alt = 64,
        Blank = 65,
        F4 = 70,
        F5 = 71,
        AltGr = 108,
        Home = 110,
        Left = 113,
        Right = 114,
        End = 115,
        Down = 116,
    };

    UserDesk();

    /// Strikes the last key while the others are held.
    void strike(std::initializer_list<Key> keys);
    void moveTo(QPoint place);
    void press(unsigned button = 1);
    void release(unsigned button = 1);
    void click(QPoint place, unsigned button = 1);
    /// Presses at one place, goes to the other in steps and lets go.
    void drag(QPoint from, QPoint to);

private:
    void key(unsigned code, bool isDown);
    void settle();

    QLibrary testing_;
    QLibrary server_;
    _XDisplay* display_ = nullptr;
};

/// Lets the program run for so many milliseconds.
void runFor(int milliseconds);

} // namespace phial::qt
