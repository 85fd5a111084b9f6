#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreText.h"
#include "core/Locale.h"
#include "core/RuntimeError.h"
#include "dialogs/TargetPlace.h"
#include "dialogs/TargetText.h"
#include "dialogs/ctl_QVInput.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "support/CaseTable.h"
#include "visual/Form.h"
#include "visual/PropertyBag.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

double numberFrom(const String& text)
{
    return Variant(text).toReal();
}

class QVInputRun : public AppSession
{
protected:
    QVInputRun()
    {
        LNG()->CURRENT(ID_Language_German);
        form->ScaleMode(ScaleUnit::Pixels);
        before = form->add<TextBox>(u"txt_Before");
        control = form->add<ctl_QVInput>(u"inp_Mass");
        control->Move(10, 10, 200, 40);
        form->Show();
        tellsProperties =
            control->PropertyChanged.connect([this](const String& name) { told.push_back(name); });
        tellsChanges = control->CHANGED.connect([this](const Variant& value) { changes.push_back(value); });
    }
    ~QVInputRun() override { form->discard(); }

    TextBox& field() { return control->input(); }
    String shown() { return field().Text(); }
    void enter(StringView text)
    {
        control->SetFocus();
        field().inputText(String(text), static_cast<std::int32_t>(text.size()), 0);
    }
    void leave() { before->SetFocus(); }
    static void touchMode(bool value) { QVAPP()->CONFIG()->TOUCHMODE(value); }
    /// The next pad, or the next keyboard, is left with that text.
    void playPad(const std::function<void(Form&)>& user) { play(u"frm_DialogNumericTouch", user); }
    void playKeyboard(const std::function<void(Form&)>& user) { play(u"frm_DialogKeyboard", user); }
    void play(StringView dialog, const std::function<void(Form&)>& user)
    {
        outside.visual().onModal(dialog, user);
    }
    static void typeAndConfirm(Form& dialog, StringView text)
    {
        const auto input = dialog.control<TextBox>(u"txt_Input");
        input->inputText(String(text), static_cast<std::int32_t>(text.size()), 0);
        headless::strike(dialog, {.key = Key::Return});
    }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<TextBox> before;
    std::shared_ptr<ctl_QVInput> control;
    std::vector<String> told;
    std::vector<Variant> changes;
    Connection tellsProperties;
    Connection tellsChanges;
};

class QVInputRules : public QVInputRun, public ::testing::WithParamInterface<CaseRow>
{
};

String withBlanks(const String& text)
{
    return CoreText::Replace(text, u"·", u" ");
}

TEST_P(QVInputRules, MakeThatOfWhatStandsInTheField)
{
    const auto& columns = GetParam().columns;
    Locale locale;
    locale.decimalSign = columns[0].front();
    const LocaleBinding habits(locale);
    control->MODE(static_cast<enm_InputMode>(Variant(columns[1]).toWhole()));
    control->DIGITS(Variant(columns[2]).toWhole());
    control->MIN(numberFrom(columns[3]));
    control->MAX(numberFrom(columns[4]));
    if (columns[5] == u"set") {
        control->VALUE(withBlanks(columns[6]));
    } else {
        enter(withBlanks(columns[6]));
        leave();
    }
    EXPECT_EQ(toUtf8(shown()), toUtf8(withBlanks(columns[7])));
    const bool isNumber = columns[8].starts_with(u"=");
    EXPECT_EQ(control->VALUE().kind(), isNumber ? Variant::Kind::Real : Variant::Kind::Text);
    EXPECT_EQ(toUtf8(control->VALUE().toText()), toUtf8(withBlanks(columns[8]).substr(isNumber ? 1 : 0)));
    EXPECT_EQ(control->DIGITS(), columns[1] == u"1" ? 0 : Variant(columns[2]).toWhole());
    control->UPDATE();
    EXPECT_EQ(toUtf8(shown()), toUtf8(withBlanks(columns[7]))) << "the second time";
}

INSTANTIATE_TEST_SUITE_P(Table, QVInputRules, ::testing::ValuesIn(readCaseTable("qvinput.txt", 9)),
                         caseName<::testing::TestParamInfo<CaseRow>>);

class QVInput : public QVInputRun
{
};

TEST_F(QVInput, BeginsAsAWholeNumberWithoutBounds)
{
    EXPECT_EQ(control->TEXT(), u"");
    EXPECT_EQ(shown(), u"0");
    EXPECT_EQ(control->VALUE(), Variant(0.0));
    EXPECT_EQ(control->DIGITS(), 0);
    EXPECT_EQ(control->MIN(), 0);
    EXPECT_EQ(control->MAX(), 0);
    EXPECT_EQ(control->MODE(), ID_InputMode_Number);
    EXPECT_FALSE(control->AsTyped());
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_THAT(bag.keys(), IsEmpty());
}

TEST_F(QVInput, KeepsItsPropertiesInABag)
{
    control->TEXT(u"Masse");
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2);
    control->MIN(-1);
    control->MAX(10);
    control->VALUE(2.5);
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"TEXT", u"VALUE", u"DIGITS", u"MIN", u"MAX", u"MODE"));
    EXPECT_EQ(bag.ReadProperty(u"VALUE"), Variant(u"2,50")) << "the text";
    const auto read = makeControl<ctl_QVInput>();
    read->readProperties(bag);
    EXPECT_EQ(read->TEXT(), u"Masse");
    EXPECT_EQ(read->input().Text(), u"2,50");
    EXPECT_EQ(read->DIGITS(), 2);
    EXPECT_EQ(read->MIN(), -1);
    EXPECT_EQ(read->MAX(), 10);
    EXPECT_EQ(read->MODE(), ID_InputMode_Double);
    read->readProperties(PropertyBag());
    EXPECT_EQ(read->input().Text(), u"0");
    EXPECT_EQ(read->MODE(), ID_InputMode_Number);
    EXPECT_EQ(read->TEXT(), u"");
}

TEST_F(QVInput, TheRulesCountForWhatComesOutOfABag)
{
    PropertyBag bag;
    bag.WriteProperty(u"VALUE", u"12.345");
    bag.WriteProperty(u"DIGITS", 1);
    bag.WriteProperty(u"MAX", 10.0);
    bag.WriteProperty(u"MODE", 2);
    control->readProperties(bag);
    EXPECT_EQ(shown(), u"10,0");
    bag.Clear();
    bag.WriteProperty(u"DIGITS", 4);
    control->readProperties(bag);
    EXPECT_EQ(control->DIGITS(), 0);
}

TEST_F(QVInput, AnEmptyTextComesBackEmpty)
{
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"");
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"VALUE", u"MODE"));
    const auto read = makeControl<ctl_QVInput>();
    read->readProperties(bag);
    EXPECT_EQ(read->VALUE(), Variant(u""));
}

TEST_F(QVInput, ATextThatIsZeroIsKept)
{
    control->MODE(ID_InputMode_Text);
    control->VALUE(u"0");
    PropertyBag bag;
    control->writeProperties(bag);
    const auto read = makeControl<ctl_QVInput>();
    read->readProperties(bag);
    EXPECT_EQ(read->VALUE(), Variant(u"0"));
}

TEST_F(QVInput, BecomesEmptyForTextsWhereItShowsZero)
{
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"");
    EXPECT_THAT(told, ElementsAre(u"MODE", u"VALUE"));
    control->MODE(ID_InputMode_Number);
    control->VALUE(10);
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"10");
    control->MODE(ID_InputMode_Double);
    control->DIGITS(1);
    control->VALUE(0);
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(shown(), u"0,0") << "another text";
}

TEST_F(QVInput, StandsAtTheRightOnlyForTexts)
{
    const auto side = [this] { return field().Alignment(); };
    EXPECT_EQ(side(), Alignment::Left);
    control->MODE(ID_InputMode_Text);
    EXPECT_EQ(side(), Alignment::Right);
    field().Alignment(Alignment::Centre);
    control->MODE(static_cast<enm_InputMode>(0));
    EXPECT_EQ(side(), Alignment::Centre) << "no mode of its own";
    control->MODE(ID_InputMode_Double);
    EXPECT_EQ(side(), Alignment::Left);
}

TEST_F(QVInput, EachWriterTellsItsChange)
{
    control->TEXT(u"Masse");
    control->DIGITS(2);
    control->MIN(1);
    control->MAX(1);
    control->MODE(ID_InputMode_Double);
    control->VALUE(5);
    EXPECT_THAT(told, ElementsAre(u"TEXT", u"DIGITS", u"MIN", u"MAX", u"MODE", u"VALUE"));
    told.clear();
    control->VALUE(5);
    control->MIN(1);
    EXPECT_THAT(told, ElementsAre(u"VALUE", u"MIN"));
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, BoundsAndTitleLeaveTheTextUntilTheRulesCount)
{
    control->VALUE(50);
    control->MIN(1);
    control->MAX(6);
    control->TEXT(u"Würfel");
    EXPECT_EQ(shown(), u"50");
    callMember(*control, u"Update", {});
    EXPECT_EQ(shown(), u"6");
}

TEST_F(QVInput, DecimalsAndModeCountAtOnce)
{
    control->MODE(ID_InputMode_Double);
    control->VALUE(3);
    control->DIGITS(2);
    EXPECT_EQ(shown(), u"3,00");
    control->MODE(ID_InputMode_Number);
    EXPECT_EQ(shown(), u"3");
    EXPECT_EQ(control->DIGITS(), 0);
    control->DIGITS(3);
    EXPECT_EQ(control->DIGITS(), 0);
}

TEST_F(QVInput, TheSameDecimalsWrittenAgainCountForWhatWasTyped)
{
    enter(u"2,75");
    control->DIGITS(0);
    EXPECT_EQ(shown(), u"3");
}

TEST_F(QVInput, IsReachedByName)
{
    setMember(*control, u"Mode", 2);
    setMember(*control, u"Digits", 1);
    setMember(*control, u"Value", u"2.25");
    EXPECT_EQ(shown(), u"2,2");
    EXPECT_EQ(getMember(*control, u"VALUE"), Variant(2.2));
    setMember(*control, u"Text", u"Masse");
    EXPECT_EQ(getMember(*control, u"TEXT"), Variant(u"Masse"));
    setMember(*control, u"Locked", true);
    setMember(*control, u"MaxLength", 12);
    setMember(*control, u"ForeColor", 255);
    setMember(*control, u"BackColor", 65280);
    const auto font = std::make_shared<Font>(FontSpec{.size = 24});
    setMember(*control, u"Font", Variant(ObjectPtr(font)));
    EXPECT_TRUE(field().Locked());
    EXPECT_EQ(field().MaxLength(), 12);
    EXPECT_EQ(field().ForeColor(), Colour{255});
    EXPECT_EQ(field().BackColor(), Colour{65280});
    EXPECT_EQ(field().Font(), font);
    EXPECT_EQ(control->Font(), font);
    EXPECT_EQ(shown(), u"2,2");
}

TEST_F(QVInput, VariantsOfAllKindsCanBeValues)
{
    control->MODE(ID_InputMode_Double);
    control->DIGITS(1);
    control->VALUE(Variant());
    EXPECT_EQ(shown(), u"0,0");
    control->VALUE(1234567.25);
    EXPECT_EQ(shown(), u"1234567,2");
    control->VALUE(7);
    EXPECT_EQ(shown(), u"7,0");
    EXPECT_THROW(control->VALUE(Variant(ObjectPtr())), RuntimeError);
    EXPECT_EQ(shown(), u"7,0");
}

TEST_F(QVInput, ManyDecimalsAreWrittenAsFarAsTheyMean)
{
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2'000'000'000);
    EXPECT_EQ(shown(), u"0," + String(99, u'0'));
    EXPECT_EQ(control->DIGITS(), 2'000'000'000);
}

TEST_F(QVInput, TheFieldFillsTheControl)
{
    EXPECT_EQ(field().frame().pixelRectangle(), (PixelRectangle{0, 0, 200, 40}));
    EXPECT_TRUE(control->surface().transparent()) << "behind the round corners of the field";
    control->Move(5, 5, 90, 25);
    EXPECT_EQ(field().frame().pixelRectangle(), (PixelRectangle{0, 0, 90, 25}));
}

TEST_F(QVInput, FocusSelectsEverything)
{
    control->VALUE(123);
    control->SetFocus();
    EXPECT_TRUE(field().frame().hasFocus());
    EXPECT_EQ(form->ActiveControl(), control);
    EXPECT_EQ(field().SelText(), u"123");
    headless::type(*form, u"7");
    EXPECT_EQ(shown(), u"7");
}

TEST_F(QVInput, TellsAChangeWhenItIsLeft)
{
    enter(u"12,6");
    EXPECT_THAT(changes, IsEmpty());
    leave();
    EXPECT_THAT(changes, ElementsAre(Variant(13.0)));
    control->SetFocus();
    leave();
    EXPECT_EQ(changes.size(), 1U);
}

TEST_F(QVInput, TellsTextsAsTexts)
{
    control->MODE(ID_InputMode_Text);
    enter(u" 7 ");
    leave();
    EXPECT_THAT(changes, ElementsAre(Variant(u"7")));
}

TEST_F(QVInput, WhatTheRulesTakeBackIsNoChange)
{
    control->MIN(1);
    control->MAX(6);
    control->VALUE(6);
    enter(u"99");
    leave();
    EXPECT_EQ(shown(), u"6");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, AChangeIsToldOnceByPressThenByLeaving)
{
    enter(u"5");
    headless::click(field());
    EXPECT_THAT(changes, ElementsAre(Variant(5.0)));
    leave();
    EXPECT_EQ(changes.size(), 1U);
}

TEST_F(QVInput, ReturnSettlesWhatWasTypedBeforeTheDefaultControlIsPressed)
{
    const auto button = form->add<ctl_Button>(u"but_Check");
    form->DefaultControl(button);
    std::vector<String> seen;
    const Connection hears = button->CLICK.connect([&] { seen.push_back(shown()); });
    enter(u"2,6");
    headless::type(*form, u"~");
    EXPECT_THAT(seen, ElementsAre(u"3"));
    EXPECT_THAT(changes, ElementsAre(Variant(3.0)));
    EXPECT_TRUE(field().frame().hasFocus());
    leave();
    EXPECT_EQ(changes.size(), 1U);
}

TEST_F(QVInput, ReturnWithAModifierSettlesNothing)
{
    enter(u"2,6");
    headless::type(*form, u"^~");
    EXPECT_EQ(shown(), u"2,6");
}

TEST_F(QVInput, OutsideOfTouchModeAPressMakesTheFieldReadyForTyping)
{
    control->VALUE(42);
    headless::click(field());
    EXPECT_THAT(outside.textBoxes().prepared(), ElementsAre(&field()));
    EXPECT_EQ(field().SelText(), u"42");
    headless::type(*form, u"{down}");
    headless::type(*form, u"%{down}");
    EXPECT_EQ(outside.textBoxes().prepared().size(), 1U) << "the key is the field's own";
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, InTouchModeAPressOpensThePadForNumbers)
{
    touchMode(true);
    control->TEXT(u"Masse");
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2);
    playPad([](Form& pad) {
        EXPECT_EQ(pad.control<ctl_Label>(u"lab_Title")->Caption(), u"Masse");
        EXPECT_EQ(pad.control<TextBox>(u"txt_Input")->Text(), u"0");
        typeAndConfirm(pad, u"18,015");
    });
    control->AsTyped(true);
    headless::click(field());
    EXPECT_EQ(shown(), u"18,015");
    EXPECT_EQ(field().SelText(), u"18,015") << "what is typed next replaces it";
    control->AsTyped(false);
    EXPECT_EQ(shown(), u"18,02");
    EXPECT_THAT(changes, ElementsAre(Variant(18.015)));
    leave();
    EXPECT_EQ(changes.back(), Variant(18.02));
}

TEST_F(QVInput, InTouchModeAPressOpensTheKeyboardForTexts)
{
    touchMode(true);
    control->TEXT(u"Name");
    control->MODE(ID_InputMode_Text);
    playKeyboard([](Form& keyboard) {
        EXPECT_EQ(keyboard.control<ctl_Label>(u"lab_Title")->Caption(), u"Name");
        typeAndConfirm(keyboard, u" Wasser ");
    });
    headless::click(field());
    EXPECT_EQ(shown(), u"Wasser");
    EXPECT_THAT(changes, ElementsAre(Variant(u"Wasser")));
}

TEST_F(QVInput, APadThatIsGivenUpChangesNothing)
{
    touchMode(true);
    control->VALUE(7);
    playPad([](Form& pad) {
        pad.control<TextBox>(u"txt_Input")->inputText(u"9", 1, 0);
        headless::strike(pad, {.key = Key::Escape});
    });
    headless::click(field());
    EXPECT_EQ(shown(), u"7");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, InTouchModeTheKeyDownOpensThePadToo)
{
    touchMode(true);
    control->SetFocus();
    headless::type(*form, u"~"); // opens nothing
    playPad([](Form& pad) { typeAndConfirm(pad, u"3"); });
    headless::type(*form, u"{down}");
    playPad([](Form& pad) { typeAndConfirm(pad, u"4"); });
    headless::type(*form, u"%{down}");
    headless::type(*form, u"^{down}"); // these open nothing
    headless::type(*form, u"+{down}");
    EXPECT_THAT(changes, ElementsAre(Variant(3.0), Variant(4.0)));
}

TEST_F(QVInput, AProgramCanOpenItsKeyboardWhateverTheMode)
{
    control->TEXT(u"Masse");
    playPad([](Form& pad) {
        EXPECT_EQ(pad.control<ctl_Label>(u"lab_Title")->Caption(), u"Masse");
        typeAndConfirm(pad, u"18");
    });
    control->OpenKeyboard();
    control->MODE(ID_InputMode_Text);
    playKeyboard([](Form& keyboard) { typeAndConfirm(keyboard, u"Wasser"); });
    callMember(*control, u"OpenKeyboard", {});
    EXPECT_THAT(changes, ElementsAre(Variant(18.0), Variant(u"Wasser")));
    control->MODE(static_cast<enm_InputMode>(0));
    control->OpenKeyboard();
    control->MODE(ID_InputMode_Text);
    field().Locked(true);
    control->OpenKeyboard();
    EXPECT_EQ(shown(), u"Wasser");
}

TEST_F(QVInput, ItsPadStandsBesideWhatIsToBeRead)
{
    outside.display().resize(1920, 1080);
    const auto question = form->add<TextBox>(u"txt_Question");
    question->Move(10, 60, 300, 100);
    EXPECT_EQ(control->KeyboardBeside(), nullptr);
    EXPECT_FALSE(placeToKeep(control));
    control->KeyboardBeside(question);
    EXPECT_EQ(control->KeyboardBeside(), question);
    const auto inner = control->container()->controls().front();
    outside.windows().place(inner->hWnd(), {110, 110, 310, 150});
    outside.windows().place(question->hWnd(), {120, 160, 420, 260});
    EXPECT_EQ(placeToKeep(inner), (PixelRectangle{110, 110, 310, 150}));
    outside.windows().place(control->hWnd(), {90, 110, 310, 150});
    EXPECT_EQ(placeToKeep(control), (PixelRectangle{90, 110, 330, 150}));
    playPad([&](Form& pad) {
        EXPECT_EQ(pad.Left() / TwipsPerPixel, 432);
        EXPECT_EQ(pad.Top() / TwipsPerPixel, 110);
        typeAndConfirm(pad, u"18");
    });
    control->OpenKeyboard();
    question->Visible(false);
    EXPECT_FALSE(placeToKeep(control));
}

TEST_F(QVInput, AModeWithoutANameOpensNothing)
{
    touchMode(true);
    control->MODE(static_cast<enm_InputMode>(9));
    headless::click(field());
    enter(u" x");
    leave();
    EXPECT_THAT(changes, ElementsAre(Variant(u" x")));
}

TEST_F(QVInput, ALockedFieldOpensNothing)
{
    touchMode(true);
    setMember(*control, u"Locked", true);
    headless::click(field());
    headless::type(*form, u"{down}");
    headless::type(*form, u"7");
    EXPECT_EQ(shown(), u"0");
}

TEST_F(QVInput, ADisabledControlTakesNeitherPressNorFocus)
{
    touchMode(true);
    control->Enabled(false);
    headless::click(field());
    EXPECT_THROW(control->SetFocus(), RuntimeError);
    EXPECT_EQ(shown(), u"0");
}

TEST_F(QVInput, WhatHappensToTheFocusUnderThePadIsNoChange)
{
    touchMode(true);
    playPad([this](Form& pad) {
        leave();
        control->SetFocus(); // the field has the old text yet
        typeAndConfirm(pad, u"8");
        leave();
        control->SetFocus(); // and the new one now
    });
    headless::click(field());
    EXPECT_THAT(changes, ElementsAre(Variant(8.0)));
}

TEST_F(QVInput, APressUnderThePadOpensNoSecondOne)
{
    touchMode(true);
    playPad([this](Form& pad) {
        field().click();
        typeAndConfirm(pad, u"8");
    });
    headless::click(field());
    playPad([](Form& pad) { typeAndConfirm(pad, u"9"); });
    headless::click(field());
    EXPECT_THAT(changes, ElementsAre(Variant(8.0), Variant(9.0)));
}

TEST_F(QVInput, AHandlerMayTakeItAway)
{
    const Connection takes = control->CHANGED.connect([this](const Variant&) {
        form->remove(*control);
        control.reset();
    });
    enter(u"5");
    leave();
    EXPECT_FALSE(control);
}

TEST_F(QVInput, WhatIsTypedStaysWhereSomebodyElseJudgesIt)
{
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2);
    control->MIN(1);
    control->MAX(6);
    control->AsTyped(true);
    for (const StringView text : {u"", u"viel", u"98,079", u"98.08", u" 7 "}) {
        enter(text);
        headless::type(*form, u"~");
        leave();
        EXPECT_EQ(toUtf8(shown()), toUtf8(text));
    }
    EXPECT_EQ(control->VALUE(), Variant(7.0));
    EXPECT_EQ(field().Alignment(), Alignment::Left);
    told.clear();
    control->AsTyped(false);
    EXPECT_EQ(shown(), u"6,00");
    EXPECT_THAT(told, ElementsAre(u"AsTyped"));
}

TEST_F(QVInput, ItsFieldIsWhatADialogEdits)
{
    control->TEXT(u"Titel");
    control->MAX(10);
    field().MaxLength(5);
    field().Locked(true);
    const TargetText target(control);
    EXPECT_EQ(target.read(), u"0");
    EXPECT_EQ(target.maxLength(), 5);
    EXPECT_TRUE(target.locked());
    EXPECT_FALSE(target.takesLines());
    target.write(u"12");
    EXPECT_EQ(shown(), u"10") << "its rules count";
    EXPECT_EQ(control->TEXT(), u"Titel");
}

TEST_F(QVInput, SaysItsTitleWhereItHasNoNameForScreenReaders)
{
    control->TEXT(u"Masse in g");
    EXPECT_EQ(control->accessibleText(), u"Masse in g");
}

} // namespace

} // namespace phial::test
