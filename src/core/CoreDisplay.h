#pragma once

#include <cstdint>
#include <optional>

namespace phial
{

/// The display and the pointer on it, in logical pixels.
class CoreDisplay
{
public:
    virtual ~CoreDisplay() = default;

    virtual std::int32_t CursorX() const = 0;
    virtual std::int32_t CursorY() const = 0;
    /// Whether there is a pointer whose place the desktop tells; where it does not, the place means nothing.
    virtual bool TellsCursor() const = 0;
    void CursorPos(std::int32_t& rX, std::int32_t& rY) const
    {
        rX = CursorX();
        rY = CursorY();
    }

    /// Size of the screen on which the program stands.
    virtual std::int32_t Width() const = 0;
    virtual std::int32_t Height() const = 0;

    /// The desktop's text height, scaled so that up to 16 means small fonts and from 17 on large ones; no
    /// value without a desktop.
    virtual std::optional<std::int32_t> TextHeight() const = 0;

    /// Whether the user has asked the desktop for less motion; false where it does not tell.
    virtual bool ReducesMotion() const = 0;

    /// Whether the carets of text fields blink; true where the desktop does not tell.
    virtual bool BlinksCaret() const = 0;
};

} // namespace phial
