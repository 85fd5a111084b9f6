#include "visual/TextBox.h"

#include "visual/Change.h"
#include "visual/PropertyRows.h"
#include "visual/TextSelection.h"

namespace phial
{

struct TextBox::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Text">(&TextBox::Text, &TextBox::Text),
        rows::property<u"SelStart">(&TextBox::SelStart, &TextBox::SelStart),
        rows::property<u"SelLength">(&TextBox::SelLength, &TextBox::SelLength),
        rows::property<u"Locked">(&TextBox::locked_),
        rows::property<u"MaxLength">(&TextBox::maxLength_).raisingUnless(rows::isNotNegative),
        rows::property<u"MultiLine">(&TextBox::multiLine_),
        rows::property<u"AcceptsReturn">(&TextBox::acceptsReturn_),
        rows::property<u"PasswordChar">(&TextBox::passwordChar_),
        rows::property<u"Alignment">(&TextBox::alignment_),
        rows::font<u"Font">(&TextBox::font_),
        rows::property<u"ForeColor">(&TextBox::foreColor_),
        rows::property<u"BackColor">(&TextBox::backColor_),
    };
};

TextBox::TextBox() : frame_(*this)
{
    frame_.canFocus(true);
    rows::start<Properties>(*this);
}

MemberTable TextBox::members() const
{
    return rows::membersOf<Properties>();
}

void TextBox::Text(String value)
{
    if (!change(text_, std::move(value))) {
        return;
    }
    selStart_ = 0;
    selLength_ = 0;
    frame_.report(ControlAspect::Text);
    Change.raise();
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

void TextBox::prepare()
{
    SetFocus();
    if (preparedIn_ != frame_.focusTurn()) {
        preparedIn_ = frame_.focusTurn();
        SelStart(0);
        SelLength(static_cast<std::int32_t>(text_.size()));
    }
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
        Change.raise();
    }
}

// One line a setter.
// clang-format off
void TextBox::Locked(bool value) { rows::set<Properties, u"Locked">(*this, value); }
void TextBox::MaxLength(std::int32_t value) { rows::set<Properties, u"MaxLength">(*this, value); }
void TextBox::MultiLine(bool value) { rows::set<Properties, u"MultiLine">(*this, value); }
void TextBox::AcceptsReturn(bool value) { rows::set<Properties, u"AcceptsReturn">(*this, value); }
void TextBox::PasswordChar(String value) { rows::set<Properties, u"PasswordChar">(*this, std::move(value)); }
void TextBox::Alignment(phial::Alignment value) { rows::set<Properties, u"Alignment">(*this, value); }
void TextBox::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void TextBox::ForeColor(Colour value) { rows::set<Properties, u"ForeColor">(*this, value); }
void TextBox::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
// clang-format on

void TextBox::inputText(const String& text, std::int32_t selStart, std::int32_t selLength)
{
    const bool differs = change(text_, text);
    const auto selection = TextSelection::limited(selStart, selLength, text_);
    selStart_ = selection.start;
    selLength_ = selection.length;
    if (differs) {
        Change.raise();
    }
}

} // namespace phial
