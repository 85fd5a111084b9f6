#include "visual/RichTextBox.h"

#include "visual/Change.h"
#include "visual/PropertyRows.h"
#include "visual/RichText.h"
#include "visual/TextSelection.h"

namespace phial
{

struct RichTextBox::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Text">(&RichTextBox::Text, &RichTextBox::Text),
        rows::property<u"TextRTF">(&RichTextBox::TextRTF, &RichTextBox::TextRTF),
        rows::property<u"SelStart">(&RichTextBox::SelStart, &RichTextBox::SelStart),
        rows::property<u"SelLength">(&RichTextBox::SelLength, &RichTextBox::SelLength),
        rows::property<u"Locked">(&RichTextBox::locked_),
        rows::font<u"Font">(&RichTextBox::font_),
        rows::property<u"BackColor">(&RichTextBox::backColor_),
    };
};

RichTextBox::RichTextBox() : frame_(*this)
{
    frame_.canFocus(true);
    rows::start<Properties>(*this);
}

MemberTable RichTextBox::members() const
{
    return rows::membersOf<Properties>();
}

void RichTextBox::Text(String value)
{
    if (!change(text_, std::move(value))) {
        return;
    }
    selStart_ = 0;
    selLength_ = 0;
    frame_.report(ControlAspect::Text);
    Change.raise();
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

// One line a setter.
// clang-format off
void RichTextBox::Locked(bool value) { rows::set<Properties, u"Locked">(*this, value); }
void RichTextBox::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void RichTextBox::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
// clang-format on

void RichTextBox::inputText(const String& text, std::int32_t selStart, std::int32_t selLength)
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
