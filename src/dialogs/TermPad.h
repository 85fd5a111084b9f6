#pragma once

#include "dialogs/KeyboardWindow.h"
#include "dialogs/ctl_Keys.h"

#include <memory>

namespace phial
{

class clt_TermInput;

/// What the keyboards for terms have in common: a field for the term, keys that type into it, and how both
/// end. OK, Return and leaving the window write the term back (see TermTarget.h); Escape and the cross give
/// up.
class TermPad
{
public:
    /// The form has a clt_TermInput "txt_Input" and a ctl_Keys "ctl_Keys"; form and window outlive the pad.
    TermPad(DesignedForm& form, KeyboardWindow& window, const KeyLayout& layout);

    /// The whole of the form's Load: the window, the texts, the term of the target.
    void open();
    /// Puts all texts in the language in force.
    void translate();

    /// Types into the field, in the notation of KeyNotation.h.
    void send(StringView strokes);
    /// The user's change of so many units from a place on, which can be undone.
    void replace(std::size_t at, std::size_t length, StringView piece);
    clt_TermInput& field() { return *input_; }
    ctl_Keys& keys() { return *keys_; }

private:
    void connect();
    void placeKeys();
    void sizeText();
    void readTarget();
    void perform(const KeyDeed& deed);
    void typeVariant(StringView variant);
    void clear();
    void accept();
    void writeBack();

    DesignedForm& form_;
    KeyboardWindow& window_;
    std::shared_ptr<clt_TermInput> input_;
    std::shared_ptr<ctl_Keys> keys_;
    String written_;
};

} // namespace phial
