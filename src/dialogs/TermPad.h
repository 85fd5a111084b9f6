#pragma once

#include "dialogs/KeyboardWindow.h"
#include "dialogs/ctl_Keys.h"
#include "dialogs/ctl_Offers.h"

#include <memory>

namespace phial
{

class clt_TermInput;

/// What the keyboards for terms have in common: a field for the term, keys that type into it, and how both
/// end. OK, Return and leaving the window write the term back (see TermTarget.h); Escape and the cross give
/// up. Where the session gives leave and the user wants it (see OfferChoice.h) formulas that go on as the one
/// before the caret are offered, and none is typed by itself.
class TermPad
{
public:
    /// How many formulas are offered at a time, and how much room what stands below them makes for them, in
    /// pixels at scale 1; none where they have a place of their own.
    struct OfferPlace {
        std::size_t columns = 1;
        std::size_t rows = 1;
        double room = 0;
    };

    /// The form has a clt_TermInput "txt_Input", a ctl_Keys "ctl_Keys" and a hidden ctl_Offers "ctl_Offers";
    /// form and window outlive the pad.
    TermPad(DesignedForm& form, KeyboardWindow& window, const KeyLayout& layout, const OfferPlace& offers);

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
    bool mayOffer() const;
    void makeRoom();
    void followCaret();
    void refreshOffers();
    void takeOffer(std::size_t at);
    void clear();
    void accept();
    void writeBack();

    DesignedForm& form_;
    KeyboardWindow& window_;
    std::shared_ptr<clt_TermInput> input_;
    std::shared_ptr<ctl_Keys> keys_;
    std::shared_ptr<ctl_Offers> offers_;
    double room_;                ///< that is still to be made
    std::int32_t offeredAt_ = 0; ///< the caret's place for which it was
    String written_;
};

} // namespace phial
