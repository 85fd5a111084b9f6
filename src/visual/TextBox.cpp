#include "visual/TextBox.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"
#include "visual/TextSelection.h"

namespace phial
{

namespace
{

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<TextBox, String, &TextBox::Text, &TextBox::Text>(u"Text"),
        members::property<TextBox, std::int32_t, &TextBox::SelStart, &TextBox::SelStart>(u"SelStart"),
        members::property<TextBox, std::int32_t, &TextBox::SelLength, &TextBox::SelLength>(u"SelLength"),
        members::property<TextBox, bool, &TextBox::Locked, &TextBox::Locked>(u"Locked"),
        members::property<TextBox, std::int32_t, &TextBox::MaxLength, &TextBox::MaxLength>(u"MaxLength"),
        members::property<TextBox, bool, &TextBox::MultiLine, &TextBox::MultiLine>(u"MultiLine"),
        members::property<TextBox, String, &TextBox::PasswordChar, &TextBox::PasswordChar>(u"PasswordChar"),
        members::property<TextBox, Alignment, &TextBox::Alignment, &TextBox::Alignment>(u"Alignment"),
        members::property<TextBox, FontPtr, &TextBox::Font, &TextBox::Font>(u"Font"),
        members::property<TextBox, Colour, &TextBox::ForeColor, &TextBox::ForeColor>(u"ForeColor"),
        members::property<TextBox, Colour, &TextBox::BackColor, &TextBox::BackColor>(u"BackColor"),
    }));

} // namespace

TextBox::TextBox() : frame_(*this), font_(std::make_shared<phial::Font>())
{
    frame_.canFocus(true);
    listenToFont();
}

MemberTable TextBox::members() const
{
    return Table;
}

void TextBox::listenToFont()
{
    fontChanged_ = font_->changed.connect([this] { frame_.report(ControlAspect::Style); });
}

void TextBox::Text(String value)
{
    if (!change(text_, std::move(value))) {
        return;
    }
    selStart_ = 0;
    selLength_ = 0;
    frame_.report(ControlAspect::Text);
    Change.emit();
}

void TextBox::SelStart(std::int32_t value)
{
    const auto selection = TextSelection::limited(value, 0, text_);
    selStart_ = selection.start;
    selLength_ = 0;
    frame_.report(ControlAspect::Selection);
}

void TextBox::SelLength(std::int32_t value)
{
    selLength_ = TextSelection::limited(selStart_, value, text_).length;
    frame_.report(ControlAspect::Selection);
}

String TextBox::SelText() const
{
    return text_.substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_));
}

void TextBox::SelText(StringView value)
{
    String text = text_;
    text.replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), value);
    selStart_ += static_cast<std::int32_t>(value.size());
    selLength_ = 0;
    const bool differs = change(text_, std::move(text));
    frame_.report(differs ? ControlAspect::Text : ControlAspect::Selection);
    if (differs) {
        Change.emit();
    }
}

void TextBox::Locked(bool value)
{
    if (change(locked_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void TextBox::MaxLength(std::int32_t value)
{
    if (value < 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    if (change(maxLength_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void TextBox::MultiLine(bool value)
{
    if (change(multiLine_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void TextBox::PasswordChar(String value)
{
    if (change(passwordChar_, std::move(value))) {
        frame_.report(ControlAspect::Style);
    }
}

void TextBox::Alignment(phial::Alignment value)
{
    if (change(alignment_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void TextBox::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { frame_.report(ControlAspect::Style); });
}

void TextBox::ForeColor(Colour value)
{
    if (change(foreColor_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void TextBox::BackColor(Colour value)
{
    if (change(backColor_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void TextBox::inputText(const String& text, std::int32_t selStart, std::int32_t selLength)
{
    const bool differs = change(text_, text);
    const auto selection = TextSelection::limited(selStart, selLength, text_);
    selStart_ = selection.start;
    selLength_ = selection.length;
    if (differs) {
        Change.emit();
    }
}

} // namespace phial
