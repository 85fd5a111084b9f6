#include "dialogs/ctl_MiniHTMLInput.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/CoreTheme.h"
#include "core/Palette.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "dialogs/MarkupTags.h"
#include "visual/Markup.h"
#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

constexpr double FormatBarHeight = 48; // pixels
constexpr double InputSize = 12;       // points
constexpr PixelSize SignSize{20, 20};
constexpr double SignTextSize = 11;

/// A button of the bars: its key, what it says, and the markup of its sign.
struct FormatButton {
    StringView key;
    StringView german;
    StringView english;
    StringView sign;
};
constexpr auto FormatButtons = std::to_array<FormatButton>({
    {u"B", u"Fett", u"Bold", u"<b>B</b>"},
    {u"I", u"Kursiv", u"Italic", u"<i>I</i>"},
    {u"SUB", u"Tief", u"Lower", u"x<sub>2</sub>"},
    {u"SUP", u"Hoch", u"Raise", u"x<sup>2</sup>"},
});

PicturePtr signOf(const FormatButton& button)
{
    DrawDevice device(visualHost().createSurface(SignSize, visualHost().pixelRatio()));
    device.ForeColor(coreTheme().Colour(ThemeSlot::FrameText));
    const MarkupLayout sign(button.sign, FontSpec{.size = SignTextSize}, visualHost().metrics());
    sign.draw(device, {0, 0, SignSize.width, SignSize.height}, TextSide::Middle, TextSide::Middle);
    return device.Image();
}

TextRange selectionOf(const TextBox& field)
{
    return {static_cast<std::size_t>(field.SelStart()), static_cast<std::size_t>(field.SelLength())};
}

void select(TextBox& field, TextRange range)
{
    field.SelStart(static_cast<std::int32_t>(range.start));
    field.SelLength(static_cast<std::int32_t>(range.length));
}

} // namespace

struct ctl_MiniHTMLInput::Properties {
    static constexpr rows::Table Table{
        rows::property<u"MULTILINE">(&ctl_MiniHTMLInput::multiLine_, false)
            .kept()
            .then(&ctl_MiniHTMLInput::linesChanged),
        rows::property<u"TEXT">(&ctl_MiniHTMLInput::TEXT, &ctl_MiniHTMLInput::TEXT),
        rows::operation<u"REPAIR">(&ctl_MiniHTMLInput::REPAIR),
        rows::operation<u"TRANSLATE">(&ctl_MiniHTMLInput::TRANSLATE),
    };
};

ctl_MiniHTMLInput::ctl_MiniHTMLInput() : frame_(*this), surface_(*this)
{
    surface_.transparent(true);
    for (std::int32_t index = 0; index < Items; ++index) {
        makeItem(index);
    }
    rows::start<Properties>(*this);
    layOut();
}

/// The field comes before its bar in the order of the Tab key.
void ctl_MiniHTMLInput::makeItem(std::int32_t index)
{
    const auto at = static_cast<std::size_t>(index);
    const auto field = fields_[at] = makeNamed<TextBox>(u"txt_Input", index);
    const auto bar = bars_[at] = makeNamed<ctl_CmdBar>(u"bar_Format", index);
    field->MultiLine(index == 1);
    field->Font(std::make_shared<Font>(FontSpec{.size = InputSize}));
    field->ForeColor(Palette::Ink);
    field->BackColor(Palette::Field);
    for (const FormatButton& button : FormatButtons) {
        bar->BUTTONS()->Add(String(button.key), String(button.german));
    }
    surface_.children().add(field);
    surface_.children().add(bar);
    connections_ +=
        bar->BUTTON.connect([this](std::int32_t barIndex, const String& key) { format(barIndex, key); });
    connections_ += field->KeyDown.connect([this, index](KeyEvent& event) { pressByKey(index, event); });
    connections_ += field->Change.connect([this, index] {
        if (multiLine_ == (index == 1)) {
            CHANGED.raise();
        }
    });
}

MemberTable ctl_MiniHTMLInput::members() const
{
    return rows::membersOf<Properties>();
}

void ctl_MiniHTMLInput::MULTILINE(bool value)
{
    rows::set<Properties, u"MULTILINE">(*this, value);
}

void ctl_MiniHTMLInput::linesChanged()
{
    takeGivenHeight();
    layOut();
    CHANGED.raise();
}

void ctl_MiniHTMLInput::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    TRANSLATE();
    takeGivenHeight();
    layOut();
}

void ctl_MiniHTMLInput::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_MiniHTMLInput::shown()
{
    drawSigns();
    themeChanges_ += coreTheme().COLOURSCHANGED.connect([this](ColourSet) { drawSigns(); });
    themeChanges_ += coreTheme().CHANGED.connect([this](ThemeSlot) { drawSigns(); });
}

void ctl_MiniHTMLInput::drawSigns()
{
    for (const auto& bar : bars_) {
        for (std::size_t at = 0; at < FormatButtons.size(); ++at) {
            bar->BUTTONS()->Item(static_cast<std::int32_t>(at) + 1)->Picture(signOf(FormatButtons[at]));
        }
    }
}

void ctl_MiniHTMLInput::TRANSLATE()
{
    for (const auto& bar : bars_) {
        for (std::size_t at = 0; at < FormatButtons.size(); ++at) {
            const FormatButton& design = FormatButtons[at];
            bar->BUTTONS()
                ->Item(static_cast<std::int32_t>(at) + 1)
                ->Caption(LNG()->TRANSLATE(design.german, design.english));
        }
    }
}

void ctl_MiniHTMLInput::resized()
{
    surface_.resized();
    if (!isForcing_) {
        givenHeight_ = surface_.size().height;
    }
    layOut();
}

void ctl_MiniHTMLInput::layOut()
{
    const double height = 2 * FormatBarHeight;
    if (!multiLine_ && surface_.size().height != height && !isForcing_) {
        forceHeight(height);
    }
    const PixelSize size = surface_.size();
    for (std::size_t at = 0; at < fields_.size(); ++at) {
        const bool isUsed = (at == 1) == multiLine_;
        bars_[at]->frame().pixelRectangle({0, 0, size.width, FormatBarHeight});
        fields_[at]->frame().pixelRectangle(
            {0, FormatBarHeight, size.width, std::max(0.0, size.height - FormatBarHeight)});
        fields_[at]->Visible(isUsed);
        bars_[at]->Visible(isUsed);
    }
}

/// A field of several lines is as high as whoever placed the control said, be it before it got them.
void ctl_MiniHTMLInput::takeGivenHeight()
{
    if (multiLine_ && givenHeight_ > 0) {
        forceHeight(givenHeight_);
    }
}

/// The layout runs again within, and does not force the height once more where that is refused.
void ctl_MiniHTMLInput::forceHeight(double height)
{
    isForcing_ = true;
    PixelRectangle place = frame_.pixelRectangle();
    place.height = height;
    frame_.pixelRectangle(place);
    isForcing_ = false;
}

void ctl_MiniHTMLInput::format(std::int32_t index, const String& key)
{
    const auto self = shared_from_this(); // the box runs events
    const auto field = fields_[static_cast<std::size_t>(index)];
    if (field->SelLength() == 0) {
        coreRoot().CoreDialogs().Info(
            LNG()->TRANSLATE(u"Markieren Sie erst den Text, den Sie formatieren möchten!",
                             u"First select the text that you want to format!"));
        return;
    }
    const MarkupEdit edit = markupEdit(field->Text(), selectionOf(*field), key);
    select(*field, edit.range);
    field->SelText(edit.text);
    select(*field, edit.selection);
    ignoringErrors([&] { input().SetFocus(); });
}

/// Ctrl and a letter, where the bar has a format of that key.
void ctl_MiniHTMLInput::pressByKey(std::int32_t index, KeyEvent& event)
{
    if (event.Shift != ShiftMask::Control) {
        return;
    }
    const auto& bar = bars_[static_cast<std::size_t>(index)];
    const String letter(1, static_cast<char16_t>(event.KeyCode));
    for (std::int32_t number = 1; number <= bar->BUTTONS()->Count(); ++number) {
        if (equalsIgnoringCase(bar->BUTTONS()->Item(number)->Key(), letter)) {
            event.KeyCode = 0;
            bar->inputButton(number);
            return;
        }
    }
}

void ctl_MiniHTMLInput::REPAIR()
{
    TextBox& field = input();
    const String before = field.Text();
    const String repaired = repairedMarkup(before);
    if (repaired != before) {
        select(field, {0, before.size()});
        field.SelText(repaired);
    }
}

} // namespace phial
