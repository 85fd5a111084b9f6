#pragma once

#include "visual/PictureBox.h"

#include <memory>

namespace phial::test
{

/// A picture box as a painted field of one line, each character 10 pixels wide: what a control that takes
/// text does at least.
class PaintedField
{
public:
    static constexpr double CharacterWidth = 10;

    explicit PaintedField(std::shared_ptr<PictureBox> box) : box_(std::move(box))
    {
        box_->frame().canFocus(true);
        connections_ += box_->KeyPress.connect([this](KeyPressEvent& event) { typed(event.KeyAscii); });
        connections_ += box_->KeyDown.connect([this](KeyEvent& event) { struck(event); });
        connections_ += box_->Composing.connect([this] { composed_ = box_->frame().composition().text; });
        tell();
    }

    PictureBox& box() { return *box_; }
    const String& text() const { return text_; }
    /// As the user sees it: what is being composed at the caret, in brackets.
    String shown() const
    {
        String shown = text_;
        return composed_.empty() ? shown : shown.insert(caret_, u"[" + composed_ + u"]");
    }
    void locked(bool value)
    {
        locked_ = value;
        tell();
    }

private:
    void typed(char16_t unit)
    {
        if (isPrintable(unit)) {
            text_.insert(caret_++, 1, unit);
            tell();
        }
    }
    void struck(const KeyEvent& event)
    {
        if (event.is(Key::Left) && caret_ > 0) {
            --caret_;
        } else if (event.is(Key::Right) && caret_ < text_.size()) {
            ++caret_;
        } else if (event.is(Key::Backspace) && caret_ > 0) {
            text_.erase(--caret_, 1);
        }
        tell();
    }
    void tell()
    {
        const auto caret = static_cast<std::int32_t>(caret_);
        box_->frame().textEntry(TextEntry{text_, caret, {caret * CharacterWidth, 2, 1, 16}, locked_});
    }

    std::shared_ptr<PictureBox> box_;
    Connections connections_;
    String text_;
    String composed_;
    std::size_t caret_ = 0;
    bool locked_ = false;
};

} // namespace phial::test
