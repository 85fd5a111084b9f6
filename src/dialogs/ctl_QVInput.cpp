#include "dialogs/ctl_QVInput.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppDialog.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/CoreNumbers.h"
#include "core/Format.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "dialogs/frm_DialogNumericTouch.h"
#include "visual/OneLine.h"
#include "visual/PropertyRows.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

constexpr std::int32_t MostDigitsWritten = 99; // more than a double has to show
constexpr StringView NoNumber = u"0";

double typedNumber(const String& text)
{
    double value = 0;
    CoreNumbers::ToDouble(text, value); // of what is no number its beginning counts
    return value;
}

/// Opens a keyboard for the field, touch mode or not.
template <typename Keyboard>
void open(const ObjectPtr& field, const String& title)
{
    Keyboard keyboard;
    keyboard.TargetControl(field);
    keyboard.TitleText(title);
    keyboard.Show();
}

/// Sets a flag until the end of the block.
class FlagSet
{
public:
    explicit FlagSet(bool& flag) : flag_(flag) { flag_ = true; }
    ~FlagSet() { flag_ = false; }
    FlagSet(const FlagSet&) = delete;
    FlagSet& operator=(const FlagSet&) = delete;

private:
    bool& flag_;
};

} // namespace

struct ctl_QVInput::Properties {
    static constexpr rows::Table Table{
        rows::property<u"TEXT">(&ctl_QVInput::text_, {}).kept().then(&ctl_QVInput::nameField).spoken(),
        rows::property<u"VALUE">(&ctl_QVInput::input_, &TextBox::Text, &TextBox::Text, NoNumber)
            .kept()
            .through(&ctl_QVInput::VALUE, &ctl_QVInput::VALUE),
        rows::property<u"DIGITS">(&ctl_QVInput::digits_, 0).kept().then(&ctl_QVInput::UPDATE),
        rows::property<u"MIN">(&ctl_QVInput::min_, 0.0).kept().still(),
        rows::property<u"MAX">(&ctl_QVInput::max_, 0.0).kept().still(),
        rows::property<u"MODE">(&ctl_QVInput::mode_, ID_InputMode_Number)
            .kept()
            .then(&ctl_QVInput::modeChanged),
        rows::property<u"AsTyped">(&ctl_QVInput::asTyped_, false).then(&ctl_QVInput::UPDATE),
        rows::readOnly<u"KeyboardBeside">(&ctl_QVInput::KeyboardBeside),
        rows::property<u"Font">(&ctl_QVInput::Font, &ctl_QVInput::Font),
        rows::property<u"ForeColor">(&ctl_QVInput::input_, &TextBox::ForeColor, &TextBox::ForeColor).still(),
        rows::property<u"BackColor">(&ctl_QVInput::input_, &TextBox::BackColor, &TextBox::BackColor).still(),
        rows::property<u"Locked">(&ctl_QVInput::input_, &TextBox::Locked, &TextBox::Locked).still(),
        rows::property<u"MaxLength">(&ctl_QVInput::input_, &TextBox::MaxLength, &TextBox::MaxLength).still(),
        rows::operation<u"UPDATE">(&ctl_QVInput::UPDATE),
        rows::operation<u"OpenKeyboard">(&ctl_QVInput::OpenKeyboard),
    };
    static constexpr bool Always = true;
};

ctl_QVInput::ctl_QVInput() : frame_(*this), surface_(*this), input_(makeNamed<TextBox>(u"txt_Input"))
{
    surface_.transparent(true);
    surface_.children().add(input_);
    connect();
    rows::start<Properties>(*this);
}

void ctl_QVInput::connect()
{
    connections_ += input_->GotFocus.connect([this] { begin(); });
    connections_ += input_->LostFocus.connect([this] { settle(); });
    connections_ += input_->Click.connect([this] { pressed(); });
    connections_ += input_->KeyDown.connect([this](KeyEvent& event) { previewKey(event); });
}

PixelSize ctl_QVInput::contentSize(std::optional<double> /*width*/) const
{
    return fieldSize(Font()->traits());
}

MemberTable ctl_QVInput::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_QVInput::TEXT(String value) { rows::set<Properties, u"TEXT">(*this, std::move(value)); }
void ctl_QVInput::DIGITS(std::int32_t value) { rows::set<Properties, u"DIGITS">(*this, value); }
void ctl_QVInput::MIN(double value) { rows::set<Properties, u"MIN">(*this, value); }
void ctl_QVInput::MAX(double value) { rows::set<Properties, u"MAX">(*this, value); }
void ctl_QVInput::MODE(enm_InputMode value) { rows::set<Properties, u"MODE">(*this, value); }
void ctl_QVInput::AsTyped(bool value) { rows::set<Properties, u"AsTyped">(*this, value); }
// clang-format on

Variant ctl_QVInput::VALUE() const
{
    return isNumber() ? Variant(typedNumber(input_->Text())) : Variant(input_->Text());
}

void ctl_QVInput::VALUE(const Variant& value)
{
    const auto self = weak_from_this().lock(); // handlers run
    const String text = value.toText();
    if (isNumber()) {
        input_->Text(written(typedNumber(text)));
        UPDATE();
    } else {
        input_->Text(text);
    }
    PropertyChanged.raise(u"VALUE");
}

void ctl_QVInput::modeChanged()
{
    if (mode_ == ID_InputMode_Text && input_->Text() == NoNumber) {
        VALUE(u"");
    }
    UPDATE();
}

void ctl_QVInput::nameField()
{
    input_->frame().report(ControlAspect::Accessibility);
}

void ctl_QVInput::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    nameField();
    UPDATE();
}

void ctl_QVInput::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_QVInput::resized()
{
    surface_.resized();
    const PixelSize size = surface_.size();
    input_->frame().pixelRectangle({0, 0, size.width, size.height});
}

void ctl_QVInput::UPDATE()
{
    align();
    if (mode_ == ID_InputMode_Number) {
        digits_ = 0;
    }
    if (!asTyped_) {
        input_->Text(inOrder(input_->Text()));
    }
}

void ctl_QVInput::align()
{
    if (!isNumber() && mode_ != ID_InputMode_Text) {
        return;
    }
    const Alignment side = isNumber() ? Alignment::Left : Alignment::Right;
    if (input_->Alignment() != side) {
        input_->Alignment(side);
    }
}

/// What the rules of the mode make of a text.
String ctl_QVInput::inOrder(const String& text) const
{
    if (!isNumber()) {
        return mode_ == ID_InputMode_Text ? trimmed(text) : text;
    }
    double value = typedNumber(text);
    if (mode_ == ID_InputMode_Number) {
        value = roundToDecimals(value, 0);
    }
    if (min_ != max_) {
        value = value < min_ ? min_ : value;
        value = value > max_ ? max_ : value;
    }
    return written(value);
}

String ctl_QVInput::written(double value) const
{
    const auto decimals = static_cast<std::size_t>(std::clamp(digits_, 0, MostDigitsWritten));
    return formatPattern(value, decimals > 0 ? u"#0." + String(decimals, u'0') : String(u"#0"));
}

void ctl_QVInput::begin()
{
    if (isAsking_) {
        return; // it comes back from the keyboard
    }
    lastText_ = input_->Text();
    selectAll();
}

void ctl_QVInput::selectAll()
{
    input_->SelStart(0);
    input_->SelLength(static_cast<std::int32_t>(input_->Text().size()));
}

/// A keyboard of the system's own opens in touch mode alone.
bool ctl_QVInput::hasKeyboard() const
{
    return QVAPP()->CONFIG()->TOUCHMODE() && !input_->Locked();
}

/// Return settles what was typed before the form's default control hears of it.
void ctl_QVInput::previewKey(KeyEvent& event)
{
    if (event.is(Key::Return) && event.Shift == 0) {
        settle();
    } else if (event.is(Key::Down) && (event.Shift == 0 || event.Shift == ShiftMask::Alt) && hasKeyboard()) {
        event.KeyCode = 0;
        pressed();
    }
}

void ctl_QVInput::pressed()
{
    ask([this] {
        if (isNumber()) {
            QVAPP()->DIALOG()->NUMBERINPUT(input_, text_);
        } else if (mode_ == ID_InputMode_Text) {
            QVAPP()->DIALOG()->TEXTINPUT(input_, text_);
        }
    });
}

void ctl_QVInput::OpenKeyboard()
{
    ask([this] {
        if (isNumber()) {
            open<frm_DialogNumericTouch>(input_, text_);
        } else if (mode_ == ID_InputMode_Text) {
            open<frm_DialogKeyboard>(input_, text_);
        }
    });
}

void ctl_QVInput::ask(const std::function<void()>& dialog)
{
    if (isAsking_ || input_->Locked()) {
        return;
    }
    const auto self = shared_from_this(); // the keyboard runs events
    const String before = input_->Text();
    {
        const FlagSet asking(isAsking_);
        dialog();
    }
    if (input_->Text() != before) {
        selectAll();
    }
    settle();
}

void ctl_QVInput::settle()
{
    if (isAsking_) {
        return;
    }
    const auto self = weak_from_this().lock(); // handlers run
    UPDATE();
    if (input_->Text() != lastText_) {
        lastText_ = input_->Text();
        CHANGED.raise(VALUE());
    }
}

} // namespace phial
