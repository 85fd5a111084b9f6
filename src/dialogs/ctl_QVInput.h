#pragma once

#include "core/Event.h"
#include "visual/PaintSurface.h"
#include "visual/TextBox.h"
#include "visual/UserControl.h"

#include <functional>
#include <memory>

namespace phial
{

/// What is typed into a ctl_QVInput.
enum enm_InputMode : std::int32_t {
    ID_InputMode_Number = 1, ///< a whole number
    ID_InputMode_Double = 2,
    ID_InputMode_Text = 3,
};

/// A field for a number or a text, the text box `txt_Input` over the whole control. A number is held to its
/// bounds and written with its decimals when the field is left, pressed or confirmed by Return; what is no
/// number counts as the number at its beginning, or 0. A text loses the blanks around it. In touch mode a
/// press opens the pad for numbers or the keyboard for texts, and so does the key Down.
///
/// The decimal sign that is written is that of the locale; comma and point are read. A mode without a name
/// has no rule and no keyboard.
///
/// Every writer tells its change. Persisted: "TEXT", "VALUE" as the text of the field, "DIGITS", "MIN", "MAX"
/// and "MODE". `Font`, `ForeColor`, `BackColor`, `Locked` and `MaxLength` are, by name, those of the field.
class ctl_QVInput final : public UserControl
{
public:
    ctl_QVInput();

    /// What the keyboard asks for, and what a screen reader says where the control has no name for it. It is
    /// not what is typed.
    String TEXT() const { return text_; }
    void TEXT(String value);
    /// A double, or in the mode for texts the text as it stands. A number is written with its decimals and
    /// then held to its bounds.
    Variant VALUE() const;
    void VALUE(const Variant& value);
    /// Decimals that are written; 0, whatever is set, in the mode for whole numbers.
    std::int32_t DIGITS() const { return digits_; }
    void DIGITS(std::int32_t value);
    /// No bounds when both are the same; with the lower one above the upper one the upper one is the value.
    /// Both count the next time the rules do.
    double MIN() const { return min_; }
    void MIN(double value);
    double MAX() const { return max_; }
    void MAX(double value);
    /// A field that shows 0 is empty once it is for texts.
    enm_InputMode MODE() const { return mode_; }
    void MODE(enm_InputMode value);
    /// Whether what is typed stays as it is, bounds or not, and nothing typed stays nothing: for an answer of
    /// which somebody else says what it is worth. False at first; not persisted.
    bool AsTyped() const { return asTyped_; }
    void AsTyped(bool value);

    /// What a keyboard that the field opens stands beside and does not hide, such as the question; held
    /// weakly. None at first: it stands under the field or above it. Not persisted.
    ObjectPtr KeyboardBeside() const { return keyboardBeside_.lock(); }
    void KeyboardBeside(const ObjectPtr& value) { keyboardBeside_ = value; }
    FontPtr Font() const { return input_->Font(); }
    void Font(FontPtr value) { input_->Font(std::move(value)); }

    /// Lets the rules count for what stands in the field.
    void UPDATE();

    /// Opens the pad or the keyboard as a press in touch mode does, whatever the mode; not for a field that
    /// is locked.
    void OpenKeyboard();

    /// The user has left another text than there was: VALUE. Each change is told once.
    Event<const Variant& /*pValue*/> CHANGED;

    TextBox& input() const { return *input_; }

    StringView typeName() const override { return u"ctl_QVInput"; }
    MemberTable members() const override;
    PixelSize contentSize(std::optional<double> width = std::nullopt) const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    PartRole role() const override { return PartRole::Grouping; }
    String accessibleText() const override { return text_; }
    void initProperties() override { readProperties(PropertyBag()); }
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void paint() override { surface_.device().Cls(); }
    void resized() override;

private:
    struct Properties;

    bool isNumber() const { return mode_ == ID_InputMode_Number || mode_ == ID_InputMode_Double; }
    bool hasKeyboard() const;
    void connect();
    void align();
    String inOrder(const String& text) const;
    String written(double value) const;
    void modeChanged();
    void nameField();
    void begin();
    void selectAll();
    void previewKey(KeyEvent& event);
    void pressed();
    void ask(const std::function<void()>& dialog);
    void settle();

    ControlFrame frame_;
    PaintSurface surface_;
    std::shared_ptr<TextBox> input_;
    String text_;
    std::int32_t digits_ = 0;
    double min_ = 0;
    double max_ = 0;
    enm_InputMode mode_ = ID_InputMode_Number;
    bool asTyped_ = false;
    std::weak_ptr<Object> keyboardBeside_;
    String lastText_;       ///< when the field got the focus, or as CHANGED has told it since
    bool isAsking_ = false; ///< a keyboard is open
    Connections connections_;
};

} // namespace phial
