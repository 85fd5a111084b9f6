#include "visual/Typing.h"

#include "visual/FormTest.h"

namespace phial::test
{

namespace
{

constexpr std::int32_t Shift = ShiftMask::Shift;
constexpr std::int32_t Control = ShiftMask::Control;
constexpr std::int32_t Alt = ShiftMask::Alt;

TEST(Typing, PrintableCharactersAreTyped)
{
    for (const char16_t character : StringView(u" a~ß\u00A0€{@")) {
        EXPECT_EQ(typedCharacter({character, Key::None, 0}), character);
        EXPECT_EQ(typedCharacter({character, Key::None, Shift}), character);
        EXPECT_EQ(typedCharacter({character, Key::None, Control | Alt}), character);
        EXPECT_EQ(typedCharacter({character, Key::None, Control | Alt | Shift}), character);
        EXPECT_EQ(typedCharacter({character, Key::None, Control}), 0);
        EXPECT_EQ(typedCharacter({character, Key::None, Alt}), 0);
        EXPECT_EQ(typedCharacter({character, Key::None, Alt | Shift}), 0);
    }
    for (const char16_t character : {u'\x01', u'\x1F', u'\x7F', u'\x80', u'\x9F'}) {
        EXPECT_EQ(typedCharacter({character, Key::None, 0}), 0) << int(character);
    }
}

TEST(Typing, OfTheOtherKeysFourAreTypedAndTheSpaceBar)
{
    const Key typed[] = {Key::Backspace, Key::Tab, Key::Return, Key::Escape, Key::Space};
    for (std::int32_t code = 1; code <= static_cast<std::int32_t>(Key::F12); ++code) {
        const Key key = static_cast<Key>(code);
        const bool isTyped = std::ranges::find(typed, key) != std::end(typed);
        EXPECT_EQ(typedCharacter({0, key, 0}), isTyped ? code : 0) << code;
        EXPECT_EQ(typedCharacter({0, key, Shift}), isTyped ? code : 0) << code;
        EXPECT_EQ(typedCharacter({0, key, Control}), 0) << code;
        EXPECT_EQ(typedCharacter({0, key, Alt}), 0) << code;
        EXPECT_EQ(typedCharacter({0, key, Control | Alt}), 0) << code;
    }
    EXPECT_EQ(typedCharacter({u'\t', Key::None, 0}), u'\t');
}

TEST(Typing, NoSignIsTakenForAKeyWithAName)
{
    const auto isWithin = [](std::int32_t code, Key first, Key last) {
        return code >= static_cast<std::int32_t>(first) && code <= static_cast<std::int32_t>(last);
    };
    for (const char16_t sign : StringView(u"!\"#$%&'()*+,-./:;<=>?@[]^_`{|}~§µ€")) {
        const std::int32_t code = keyCodeOf(sign);
        EXPECT_FALSE(isWithin(code, Key::PageUp, Key::Delete)) << int(sign);
        EXPECT_FALSE(isWithin(code, Key::F1, Key::F12)) << int(sign);
    }
    EXPECT_NE(keyCodeOf(u'.'), keyCodeOf(u'\''));
    EXPECT_EQ(keyCodeOf(u'a'), u'A');
    EXPECT_EQ(keyCodeOf(u'p'), u'P');
    EXPECT_EQ(keyCodeOf(u'7'), u'7');
    EXPECT_EQ(keyCodeOf(u'ä'), u'Ä');
    EXPECT_EQ(keyCodeOf(u' '), static_cast<std::int32_t>(Key::Space));
    EXPECT_EQ(keyCodeOf(u'\t'), static_cast<std::int32_t>(Key::Tab));
}

TEST(Typing, SentCharactersAreCapitalsWithShift)
{
    EXPECT_EQ(sentCharacter({u'ä', Key::None, Shift}), u'Ä');
    EXPECT_EQ(sentCharacter({u'ä', Key::None, Control | Alt}), u'ä');
}

class TypedByHand : public FormTest
{
protected:
    void SetUp() override
    {
        form->Show();
        connections += box->KeyPress.connect(
            [this](KeyPressEvent& typed) { log.push_back(std::to_string(typed.KeyAscii)); });
    }

    std::shared_ptr<TextBox> box = form->add<TextBox>(u"txt_Input");
};

TEST_F(TypedByHand, ControlAndAltTogetherTypeACharacter)
{
    SendKeys(u"^%@%^€^%{{}^%a");
    outside.runPending();
    EXPECT_EQ(box->Text(), u"@€{a");
    EXPECT_THAT(log, ElementsAre("64", "8364", "123", "97"));
}

TEST_F(TypedByHand, ControlAloneAndAltAloneTypeNothing)
{
    box->Text(u"x");
    headless::type(*form, u"%b^c%{bs}");
    EXPECT_THAT(log, IsEmpty());
    headless::type(*form, u"^aY");
    EXPECT_EQ(box->Text(), u"Y") << "Ctrl and A select all";
}

TEST_F(TypedByHand, KeysThatEditAreNotTyped)
{
    box->Text(u"xy");
    headless::type(*form, u"{del}{left}{home}{end}{f1}{up}{ins}");
    EXPECT_EQ(box->Text(), u"y");
    EXPECT_THAT(log, IsEmpty());
    headless::type(*form, u"{bs}~{esc}");
    EXPECT_THAT(log, ElementsAre("8", "13", "27"));
}

} // namespace

} // namespace phial::test
