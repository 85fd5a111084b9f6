#pragma once

#include "dialogs/KeyBoard.h"

#include <optional>
#include <vector>

namespace phial
{

/// What fingers make of keys: which are down, and when one is struck. The mouse is a finger as well.
///
/// A key is struck when it is let go, or when the next one goes down before that: who types with several
/// fingers presses the second key before the first is up, and the letters come in the order in which they
/// were pressed.
class KeyHand
{
public:
    /// The keyboard outlives it; modifiers pass on when they are pressed.
    explicit KeyHand(KeyBoard& board) : board_(board) {}

    /// A finger is about to go down. Gives the key that this strikes, if another one is down and not struck
    /// yet; it is struck before `press`, since that may be of a modifier, which is not for it.
    std::optional<std::int32_t> strikeBefore(std::int32_t finger);
    /// A finger has gone down on a key; behind `strikeBefore`.
    void press(std::int32_t finger, std::int32_t index);
    /// A finger goes up. Gives the key that this strikes.
    std::optional<std::int32_t> release(std::int32_t finger);
    /// The same for one that was no press; a modifier goes back.
    void drop(std::int32_t finger);
    /// No key that is down will be struck any more, and modifiers go back: a drag was meant.
    void cancel();

    bool isDown(std::int32_t index) const;
    struct Held {
        std::int32_t finger;
        std::int32_t index;
        bool isUsed; ///< it has had its effect
    };
    /// The key that went down last, as long as it is held.
    std::optional<Held> held() const;
    /// What is held has had its effect: letting it go strikes it no more.
    void use();

private:
    struct Press {
        std::int32_t finger;
        std::int32_t index;
        KeyState before; ///< of a modifier
        bool isUsed;
    };

    std::optional<Press> lift(std::int32_t finger);
    void setBack(const Press& press);

    KeyBoard& board_;
    std::vector<Press> down_; ///< the latest comes last
};

} // namespace phial
