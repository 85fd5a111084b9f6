#include "headless/TextTyping.h"

#include "visual/RichTextBox.h"
#include "visual/TextBox.h"
#include "visual/Typing.h"

#include <algorithm>

namespace phial::headless
{

namespace
{

/// A text with its selection while a key is at work on it.
class EditedText
{
public:
    EditedText(String text, std::int32_t start, std::int32_t length)
        : text_(std::move(text)), start_(static_cast<std::size_t>(start)),
          length_(static_cast<std::size_t>(length))
    {
    }

    void insert(StringView piece)
    {
        text_.replace(start_, length_, piece);
        start_ += piece.size();
        length_ = 0;
    }
    void eraseBack()
    {
        if (length_ == 0 && start_ > 0) {
            length_ = lineEndBefore() ? 2 : 1;
            start_ -= length_;
        }
        insert({});
    }
    void eraseForward()
    {
        if (length_ == 0 && start_ < text_.size()) {
            length_ = text_.compare(start_, 2, u"\r\n") == 0 ? 2 : 1;
        }
        insert({});
    }
    void moveTo(std::size_t place)
    {
        start_ = std::min(place, text_.size());
        length_ = 0;
    }
    void selectAll()
    {
        start_ = 0;
        length_ = text_.size();
    }
    void left()
    {
        moveTo(length_ > 0 ? start_ : start_ - std::min<std::size_t>(start_, lineEndBefore() ? 2 : 1));
    }
    void right() { moveTo(length_ > 0 ? start_ + length_ : start_ + 1); }
    void lineStart()
    {
        const auto end = start_ == 0 ? String::npos : text_.rfind(u'\n', start_ - 1);
        moveTo(end == String::npos ? 0 : end + 1);
    }
    void lineEnd() { moveTo(std::min(text_.find(u"\r\n", start_), text_.size())); }

    const String& text() const { return text_; }
    std::size_t roomLeft(std::int32_t maxLength) const
    {
        const auto used = text_.size() - length_;
        const auto limit = static_cast<std::size_t>(maxLength);
        return maxLength == 0 ? String::npos : limit - std::min(limit, used);
    }
    template <typename Field>
    void giveTo(Field& field) const
    {
        field.inputText(text_, static_cast<std::int32_t>(start_), static_cast<std::int32_t>(length_));
    }

private:
    bool lineEndBefore() const { return start_ >= 2 && text_.compare(start_ - 2, 2, u"\r\n") == 0; }

    String text_;
    std::size_t start_;
    std::size_t length_;
};

void moveCaret(EditedText& edited, const KeyStroke& stroke)
{
    switch (stroke.key) {
    case Key::Left:
        edited.left();
        break;
    case Key::Right:
        edited.right();
        break;
    case Key::Home:
        edited.lineStart();
        break;
    case Key::End:
        edited.lineEnd();
        break;
    default:
        if (isCommand(stroke.Shift) && (stroke.Shift & ShiftMask::Control) != 0 &&
            upperCase(stroke.character) == u'A') {
            edited.selectAll();
        }
    }
}

void edit(EditedText& edited, const KeyStroke& stroke, char16_t character, bool multiLine,
          std::int32_t maxLength)
{
    if (stroke.key == Key::Backspace) {
        edited.eraseBack();
    } else if (stroke.key == Key::Delete) {
        edited.eraseForward();
    } else if (stroke.key == Key::Return) {
        if (multiLine) {
            edited.insert(u"\r\n");
        }
    } else if (character >= u' ' && edited.roomLeft(maxLength) > 0) {
        edited.insert(StringView(&character, 1));
    }
}

template <typename Field>
void typeIntoField(Field& field, const KeyStroke& stroke, char16_t character, bool multiLine,
                   std::int32_t maxLength)
{
    EditedText edited(field.Text(), field.SelStart(), field.SelLength());
    moveCaret(edited, stroke);
    if (!field.Locked()) {
        edit(edited, stroke, character, multiLine, maxLength);
    }
    edited.giveTo(field);
}

} // namespace

void typeInto(Control& control, const KeyStroke& stroke, char16_t character)
{
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        typeIntoField(*box, stroke, character, box->MultiLine(), box->MaxLength());
    } else if (auto* rich = dynamic_cast<RichTextBox*>(&control)) {
        typeIntoField(*rich, stroke, character, true, 0);
    }
}

} // namespace phial::headless
