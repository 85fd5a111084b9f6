#pragma once

#include "core/Palette.h"
#include "visual/Alignment.h"
#include "visual/Font.h"
#include "visual/Form.h"

#include <array>
#include <optional>
#include <span>

namespace phial
{

enum class FontWeight : std::uint8_t { Regular, Bold };

/// A property of a control as its design sets it: a member by name, and a flag, number, enumeration or
/// colour.
struct DesignSetting {
    enum class Kind : std::uint8_t { Boolean, Whole, Real };

    StringView member{};
    Kind kind = Kind::Whole;
    std::int32_t whole = 0;
    double real = 0;

    template <typename Value>
    static constexpr DesignSetting of(StringView member, Value value)
    {
        if constexpr (std::is_same_v<Value, bool>) {
            return {member, Kind::Boolean, value ? 1 : 0, 0};
        } else if constexpr (std::is_floating_point_v<Value>) {
            return {member, Kind::Real, 0, value};
        } else if constexpr (std::is_same_v<Value, Colour>) {
            return {member, Kind::Whole, static_cast<std::int32_t>(value.value), 0};
        } else {
            return {member, Kind::Whole, static_cast<std::int32_t>(value), 0};
        }
    }
};

/// A button of a command bar: its key text, and what it says, "German|English".
struct ButtonDesign {
    StringView key;
    StringView caption;
    bool isDefault = false; ///< the keyboard begins with it
};

/// A control of a form: a row of the form's design, with its place and its look.
///
///     constexpr ControlDesign Controls[] = {
///         design<ctl_Gradient>(u"bar_Header", {0, 0, 640, 64})
///             .gradient(Palette::Accent, Palette::AccentDeep, 0),
///         design<ctl_Label>(u"lab_Title", {24, 0, 592, 64}, u"Wer bist du?|Who are you?")
///             .inside(u"bar_Header").font(18, FontWeight::Bold).ink(Palette::OnAccent),
///         design<TextBox>(u"txt_Name", {24, 106, 420, 44}).font(15).spoken(u"Dein Name|Your name"),
///         design<PictureBox>(u"pic_Place", {24, 192, 64, 64}).repeated(6, 2, 218, 74).focusable(),
///         design<ctl_CmdBar>(u"bar_Buttons", {0, 432, 640, 76}).buttons(Commands),
///     };
struct ControlDesign {
    struct Rectangle {
        double left;
        double top;
        double width;
        double height;
    };
    /// How often the row stands on the form, as a control array: row by row from the first place.
    struct Repetition {
        std::int32_t count = 1;
        std::int32_t columns = 1;
        double stepX = 0;
        double stepY = 0;
    };
    /// Which key of the form clicks it.
    enum class Role : std::uint8_t { Plain, Default, Cancel };

    using Make = ControlPtr (*)(StringView name, std::int32_t index);
    static constexpr std::size_t MostSettings = 6;

    Make make = nullptr;
    StringView name{};
    Rectangle place{}; ///< in the form's unit, within what holds it
    StringView text{}; ///< "German|English", goes to Caption, Title, Text or Term
    std::int32_t index = -1;
    StringView holder{}; ///< name of a control listed before; empty: the form
    bool isVisible = true;
    Repetition repetition{};
    std::optional<FontDesign> textFont{};
    std::array<DesignSetting, MostSettings> settings{};
    std::size_t settingCount = 0;
    std::optional<bool> takesFocus{};
    bool takesTouch = false;
    bool ownKeyboard = false;
    StringView spokenName{}; ///< "German|English", what a screen reader says
    std::span<const ButtonDesign> bar{};
    Role role = Role::Plain;

private:
    // The templates come first: what follows makes use of them in constants.
    template <typename Value>
    constexpr ControlDesign with(Value ControlDesign::*field, std::type_identity_t<Value> value) const
    {
        auto row = *this;
        row.*field = value;
        return row;
    }

public:
    /// Any member that no function below has: a flag, number, enumeration or colour.
    template <typename Value>
    constexpr ControlDesign set(StringView member, Value value) const
    {
        auto row = *this;
        row.settings.at(row.settingCount++) = DesignSetting::of(member, value);
        return row;
    }

    /// Of an element of the row, counted from 0; -1 outside an array.
    constexpr std::int32_t indexOf(std::int32_t number) const { return index < 0 ? -1 : index + number; }

    constexpr ControlDesign at(std::int32_t arrayIndex) const
    {
        return with(&ControlDesign::index, arrayIndex);
    }
    /// As an array of `count` elements from 0 on, in so many columns, each a step from the last one.
    constexpr ControlDesign repeated(std::int32_t count, std::int32_t columns, double stepX,
                                     double stepY) const
    {
        return at(0).with(&ControlDesign::repetition, {count, columns, stepX, stepY});
    }
    constexpr ControlDesign inside(StringView control) const { return with(&ControlDesign::holder, control); }
    constexpr ControlDesign hidden() const { return with(&ControlDesign::isVisible, false); }

    /// In points, in Tahoma.
    constexpr ControlDesign font(double size, FontWeight weight = FontWeight::Regular) const
    {
        return font({.size = size, .bold = weight == FontWeight::Bold});
    }
    constexpr ControlDesign font(FontDesign value) const { return with(&ControlDesign::textFont, value); }
    /// Of the text, of the ground behind it, of the line around it.
    constexpr ControlDesign ink(Colour colour) const { return set(u"ForeColor", colour); }
    constexpr ControlDesign ground(Colour colour) const { return set(u"BackColor", colour); }
    constexpr ControlDesign edge(Colour colour) const { return set(u"BorderColor", colour); }
    constexpr ControlDesign gradient(Colour from, Colour to, double angle) const
    {
        return set(u"Color1", from).set(u"Color2", to).set(u"Angle", angle);
    }
    constexpr ControlDesign align(Alignment alignment) const { return set(u"Alignment", alignment); }
    constexpr ControlDesign align(TEXTALIGN alignment) const { return set(u"Alignment", alignment); }

    constexpr ControlDesign focusable() const { return with(&ControlDesign::takesFocus, true); }
    constexpr ControlDesign unfocusable() const { return with(&ControlDesign::takesFocus, false); }
    /// Each touch point on it is a press of its own.
    constexpr ControlDesign touchable() const { return with(&ControlDesign::takesTouch, true); }
    /// The form is its keyboard.
    constexpr ControlDesign keyboarded() const { return with(&ControlDesign::ownKeyboard, true); }
    constexpr ControlDesign spoken(StringView both) const { return with(&ControlDesign::spokenName, both); }
    constexpr ControlDesign buttons(std::span<const ButtonDesign> row) const
    {
        return with(&ControlDesign::bar, row);
    }
    /// Return or Escape clicks it.
    constexpr ControlDesign defaultButton() const { return with(&ControlDesign::role, Role::Default); }
    constexpr ControlDesign cancelButton() const { return with(&ControlDesign::role, Role::Cancel); }
};

template <typename Class>
constexpr ControlDesign design(StringView name, ControlDesign::Rectangle place, StringView text = {})
{
    return {.make = [](StringView made, std::int32_t index) -> ControlPtr {
                return makeNamed<Class>(made, index);
            },
            .name = name,
            .place = place,
            .text = text};
}

/// A form: its frame, and what stands on it.
///
///     constexpr FormDesign Design{.name = u"frm_DialogUser",
///                                 .caption = u"Name und Bild|Name and picture",
///                                 .size = {640, 508},
///                                 .border = BorderStyle::FixedDialog,
///                                 .controls = Controls};
struct FormDesign {
    StringView name;
    StringView caption{}; ///< "German|English"
    PixelSize size{};     ///< of the inside; empty leaves the usual one
    BorderStyle border = BorderStyle::Sizable;
    Colour ground = Palette::Ground;
    /// The unit of all places: those on the form, and those within its controls.
    ScaleUnit unit = ScaleUnit::Pixels;
    bool isCentred = true;
    bool hearsKeysFirst = false; ///< KeyPreview
    bool closesByEscape = false; ///< Escape unloads it, whatever has the focus
    std::span<const ControlDesign> controls{};
};

/// Makes the form with its controls.
std::shared_ptr<Form> makeForm(const FormDesign& design);

/// Puts the controls of a table on a form, in the order of the table. That is the order of the Tab key too,
/// and goes on behind the controls that stand there already. What controls stand in takes the form's unit.
/// Raises 438 for a holder that is not there and for a member that a control does not have.
void addControls(Form& form, std::span<const ControlDesign> controls);

} // namespace phial
