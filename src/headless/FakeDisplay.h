#pragma once

#include "core/CoreDisplay.h"

namespace phial::headless
{

/// A display of 1024 by 768 pixels with small fonts, all motion, blinking carets, and a pointer that a test
/// moves.
class FakeDisplay : public CoreDisplay
{
public:
    void moveCursor(std::int32_t x, std::int32_t y)
    {
        cursorX_ = x;
        cursorY_ = y;
    }
    /// From now on the desktop does not tell where the pointer is, or tells it again.
    void tellsCursor(bool value) { tellsCursor_ = value; }
    void reducesMotion(bool value) { reducesMotion_ = value; }
    void blinksCaret(bool value) { blinksCaret_ = value; }
    void resize(std::int32_t width, std::int32_t height)
    {
        width_ = width;
        height_ = height;
    }
    /// No value is a display without a desktop.
    void TextHeight(std::optional<std::int32_t> value) { textHeight_ = value; }

    std::int32_t CursorX() const override { return cursorX_; }
    std::int32_t CursorY() const override { return cursorY_; }
    bool TellsCursor() const override { return tellsCursor_; }
    std::int32_t Width() const override { return width_; }
    std::int32_t Height() const override { return height_; }
    std::optional<std::int32_t> TextHeight() const override { return textHeight_; }
    bool ReducesMotion() const override { return reducesMotion_; }
    bool BlinksCaret() const override { return blinksCaret_; }

private:
    std::int32_t cursorX_ = 0;
    std::int32_t cursorY_ = 0;
    bool tellsCursor_ = true;
    bool reducesMotion_ = false;
    bool blinksCaret_ = true;
    std::int32_t width_ = 1024;
    std::int32_t height_ = 768;
    std::optional<std::int32_t> textHeight_ = 16;
};

} // namespace phial::headless
