#pragma once

#include "dialogs/KeyboardRun.h"
#include "dialogs/OfferChoice.h"
#include "dialogs/ctl_Offers.h"
#include "headless/Hand.h"
#include "term/clt_TermInput.h"

#include <gtest/gtest.h>

namespace phial::test
{

/// Indices of the keys that tests of the keyboards for terms press.
namespace term_test_keys
{
inline constexpr std::int32_t Open = 0;
inline constexpr std::int32_t Two = 2;
inline constexpr std::int32_t Three = 3;
inline constexpr std::int32_t Ok = 11;
inline constexpr std::int32_t Backspace = 12;
inline constexpr std::int32_t Star = 13;
inline constexpr std::int32_t Close = 24;
inline constexpr std::int32_t Raise = 25;
inline constexpr std::int32_t LetterA = 26;
inline constexpr std::int32_t LetterN = 43;
inline constexpr std::int32_t Shift = 37;
inline constexpr std::int32_t Plus = 49;
inline constexpr std::int32_t Right = 56;
inline constexpr std::int32_t Clear = 59;
} // namespace term_test_keys

/// A keyboard for terms over a form.
template <typename Dialog>
class TermKeyboardRun : public KeyboardRun<Dialog>
{
protected:
    using KeyboardRun<Dialog>::keyboard;

    std::shared_ptr<clt_TermInput> field() { return this->template get<clt_TermInput>(u"txt_Input"); }
    std::shared_ptr<clt_TermInput> termTarget(StringView term, StringView name = u"target")
    {
        const auto made = this->template target<clt_TermInput>(name);
        made->Term(String(term));
        return made;
    }
    void openWith(StringView term) { this->open(termTarget(term)); }
    void openWithOffers(StringView term)
    {
        OfferLeave::current()->isGiven = true;
        openWith(term);
    }
    std::shared_ptr<ctl_Offers> offers() { return this->template get<ctl_Offers>(u"ctl_Offers"); }
    void tapOffer(std::size_t at)
    {
        const PixelRectangle area = offers()->parts().at(at).area;
        this->touch.press(1, *offers(), {area.left + area.width / 2, area.top + area.height / 2});
        this->touch.release(1);
        this->outside.runPending();
    }
    /// Until it shows what it offers; the finger stays down.
    void hold(std::int32_t index)
    {
        this->touch.press(1, *this->keyPad(), this->middle(index));
        this->outside.advance(0.6);
    }
    void type(StringView notation) { headless::type(keyboard.form(), notation); }
    void expectConfirmed()
    {
        EXPECT_TRUE(this->isOpen()) << "never from within a handler";
        this->outside.advance(0.11);
        EXPECT_FALSE(this->isOpen());
        EXPECT_TRUE(keyboard.Accepted());
    }
};

} // namespace phial::test
