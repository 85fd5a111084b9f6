#include "visual/RichTextBox.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"
#include "visual/RichText.h"
#include "visual/TextSelection.h"

namespace phial
{

namespace
{

constexpr Member RichTextMember = {
    u"TextRTF", [](Object& object) { return Variant(static_cast<RichTextBox&>(object).TextRTF()); },
    [](Object& object, const Variant& value) { static_cast<RichTextBox&>(object).TextRTF(value.toText()); }};

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<RichTextBox, String, &RichTextBox::Text, &RichTextBox::Text>(u"Text"),
        RichTextMember,
        members::property<RichTextBox, std::int32_t, &RichTextBox::SelStart, &RichTextBox::SelStart>(
            u"SelStart"),
        members::property<RichTextBox, std::int32_t, &RichTextBox::SelLength, &RichTextBox::SelLength>(
            u"SelLength"),
        members::property<RichTextBox, bool, &RichTextBox::Locked, &RichTextBox::Locked>(u"Locked"),
        members::property<RichTextBox, FontPtr, &RichTextBox::Font, &RichTextBox::Font>(u"Font"),
        members::property<RichTextBox, Colour, &RichTextBox::BackColor, &RichTextBox::BackColor>(
            u"BackColor"),
    }));

} // namespace

RichTextBox::RichTextBox() : frame_(*this), font_(std::make_shared<phial::Font>())
{
    frame_.canFocus(true);
    listenToFont();
}

MemberTable RichTextBox::members() const
{
    return Table;
}

void RichTextBox::listenToFont()
{
    fontChanged_ = font_->changed.connect([this] { frame_.report(ControlAspect::Style); });
}

void RichTextBox::Text(String value)
{
    if (!change(text_, std::move(value))) {
        return;
    }
    selStart_ = 0;
    selLength_ = 0;
    frame_.report(ControlAspect::Text);
    Change.emit();
}

String RichTextBox::TextRTF() const
{
    return toRichText(text_, font_->traits());
}

void RichTextBox::TextRTF(StringView value)
{
    Text(isRichText(value) ? richTextToPlain(value) : String(value));
}

void RichTextBox::SelStart(std::int32_t value)
{
    selStart_ = TextSelection::limited(value, 0, text_).start;
    selLength_ = 0;
    frame_.report(ControlAspect::Selection);
}

void RichTextBox::SelLength(std::int32_t value)
{
    selLength_ = TextSelection::limited(selStart_, value, text_).length;
    frame_.report(ControlAspect::Selection);
}

void RichTextBox::Locked(bool value)
{
    if (change(locked_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void RichTextBox::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { frame_.report(ControlAspect::Style); });
}

void RichTextBox::BackColor(Colour value)
{
    if (change(backColor_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void RichTextBox::inputText(const String& text, std::int32_t selStart, std::int32_t selLength)
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
