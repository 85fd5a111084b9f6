#include "visual/ComboBox.h"
#include "visual/FormTest.h"
#include "visual/ListBox.h"
#include "visual/RichText.h"
#include "visual/RichTextBox.h"
#include "visual/ScrollBar.h"

namespace phial::test
{

namespace
{

class FieldsTest : public FormTest
{
protected:
    std::shared_ptr<TextBox> box = form->add<TextBox>(u"txt_Test");
};

using TextBoxes = FieldsTest;
using Lists = FieldsTest;
using ScrollBars = FieldsTest;

TEST_F(TextBoxes, ChangeIsRaisedWithinTheSetterWhenTheTextDiffers)
{
    logs(box->Change, "change");
    box->Text(u"12");
    box->Text(u"12");
    EXPECT_THAT(log, ElementsAre("change"));
}

TEST_F(TextBoxes, TheWidgetsEchoRaisesNothing)
{
    box->Text(u"12");
    logs(box->Change, "change");
    box->inputText(u"12", 2, 0);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(box->SelStart(), 2);
    box->inputText(u"123", 3, 0);
    EXPECT_THAT(log, ElementsAre("change"));
}

TEST_F(TextBoxes, SelectionStaysWithinTheText)
{
    box->Text(u"Wasser");
    box->SelStart(4);
    box->SelLength(100);
    EXPECT_EQ(box->SelText(), u"er");
    box->SelStart(100);
    EXPECT_EQ(box->SelStart(), 6);
    EXPECT_EQ(box->SelLength(), 0);
    EXPECT_RAISES(box->SelStart(-1), InvalidArgument);
    EXPECT_RAISES(box->SelLength(-1), InvalidArgument);
}

TEST_F(TextBoxes, SelTextReplacesTheSelectionAndPutsTheCaretBehind)
{
    box->Text(u"Wasser");
    box->SelStart(1);
    box->SelLength(2);
    box->SelText(u"eiss");
    EXPECT_EQ(box->Text(), u"Weissser");
    EXPECT_EQ(box->SelStart(), 5);
}

TEST_F(TextBoxes, TypingRespectsLockAndGreatestLength)
{
    form->Show();
    box->MaxLength(3);
    headless::type(*form, u"abcd");
    EXPECT_EQ(box->Text(), u"abc");
    box->Locked(true);
    headless::type(*form, u"{bs}x");
    EXPECT_EQ(box->Text(), u"abc");
}

TEST_F(TextBoxes, KeysEditAndMoveTheCaret)
{
    form->Show();
    headless::type(*form, u"Wsser{home}{right}a{end}!{left}{del}");
    EXPECT_EQ(box->Text(), u"Wasser");
    headless::type(*form, u"^aX");
    EXPECT_EQ(box->Text(), u"X");
}

TEST_F(TextBoxes, AHandlerMayCorrectTheTextWhileItChanges)
{
    connections += box->Change.connect([this] {
        const std::int32_t caret = box->SelStart();
        box->Text(upperCase(box->Text()));
        box->SelStart(caret);
    });
    form->Show();
    headless::type(*form, u"abc");
    EXPECT_EQ(box->Text(), u"ABC");
}

TEST_F(TextBoxes, RichTextComesBackAsItWas)
{
    const auto rich = form->add<RichTextBox>(u"txt_Rich");
    for (const StringView text :
         {u"", u"Wasser {H2O} \\ ß µ €\r\nzweite\r\n\r\nvierte", u"\t1", u"\U0001F9EA"}) {
        rich->TextRTF(toRichText(text, {}));
        EXPECT_EQ(rich->Text(), text);
        EXPECT_EQ(richTextToPlain(rich->TextRTF()), text);
    }
    EXPECT_EQ(rich->typeName(), u"RichTextbox");
}

TEST_F(TextBoxes, ForeignRichTextGivesItsText)
{
    EXPECT_EQ(richTextToPlain(
                  u"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\*\\generator X;}\\b H\\b0\\sub 2\\nosupersub O"
                  u"\\par \\u8594?\\'e4}"),
              u"H2O\r\n→ä");
    EXPECT_EQ(richTextToPlain(u"{\\rtf1 Ende fehlt"), u"Ende fehlt");
    EXPECT_EQ(richTextToPlain(u"{\\rtf1 {{{ offen \\"), u" offen ");
}

TEST_F(Lists, ChoosingTellsWhenTheChoiceDiffers)
{
    const auto list = form->add<ListBox>(u"lst_Test");
    logs(list->Click, "click");
    list->AddItem(u"b");
    list->AddItem(u"a", 0);
    list->ListIndex(1);
    list->ListIndex(1);
    EXPECT_EQ(list->Text(), u"b");
    EXPECT_THAT(log, ElementsAre("click"));
    list->inputChoice(1);
    EXPECT_EQ(log.size(), 2U) << "the user's click counts each time";
}

TEST_F(Lists, TheChoiceStaysOnItsLine)
{
    const auto list = form->add<ListBox>(u"lst_Test");
    for (const StringView line : {u"a", u"b", u"c"}) {
        list->AddItem(String(line));
    }
    list->ListIndex(1);
    list->AddItem(u"first", 0);
    EXPECT_EQ(list->Text(), u"b");
    list->RemoveItem(0);
    EXPECT_EQ(list->Text(), u"b");
    list->RemoveItem(1);
    EXPECT_EQ(list->ListIndex(), -1);
    EXPECT_EQ(list->Text(), u"");
}

TEST_F(Lists, LinesAreAddedByNameToo)
{
    const auto list = form->add<ListBox>(u"lst_Test");
    const auto combo = form->add<ComboBox>(u"cmb_Test");
    const Variant atTheEnd[] = {Variant(u"b")};
    const Variant inFront[] = {Variant(u"a"), Variant(0)};
    const Variant number[] = {Variant(7)};
    for (Object* target : {static_cast<Object*>(list.get()), static_cast<Object*>(combo.get())}) {
        callMember(*target, u"ADDITEM", atTheEnd);
        callMember(*target, u"AddItem", inFront);
        callMember(*target, u"AddItem", number);
        EXPECT_EQ(getMember(*target, u"ListCount"), Variant(3));
        EXPECT_RAISES(callMember(*target, u"AddItem"), InvalidArgument);
        const Variant three[] = {Variant(u"a"), Variant(0), Variant(0)};
        EXPECT_RAISES(callMember(*target, u"AddItem", three), InvalidArgument);
        const Variant beyond[] = {Variant(u"x"), Variant(9)};
        EXPECT_RAISES(callMember(*target, u"AddItem", beyond), IndexOutOfBounds);
    }
    EXPECT_EQ(list->List(0) + list->List(1) + list->List(2), u"ab7");
    EXPECT_EQ(combo->List(0) + combo->List(1) + combo->List(2), u"ab7");
}

TEST_F(Lists, RefuseLinesThatAreNotThere)
{
    const auto list = form->add<ListBox>(u"lst_Test");
    EXPECT_RAISES(list->List(0), IndexOutOfBounds);
    EXPECT_RAISES(list->RemoveItem(0), IndexOutOfBounds);
    EXPECT_RAISES(list->AddItem(u"x", 1), IndexOutOfBounds);
    EXPECT_EQ(raisedBy([&] { list->ListIndex(0); }), 380);
}

TEST_F(Lists, ComboBoxTakesAnyTextOrALineOfItsList)
{
    const auto combo = form->add<ComboBox>(u"cbo_Test");
    combo->AddItem(u"leicht");
    combo->AddItem(u"schwer");
    logs(combo->Change, "change");
    logs(combo->Click, "click");
    combo->ListIndex(1);
    EXPECT_EQ(combo->Text(), u"schwer");
    combo->inputText(u"anders");
    EXPECT_EQ(combo->ListIndex(), -1);
    combo->Style(ComboStyle::ListOnly);
    combo->Text(u"leicht");
    EXPECT_EQ(combo->ListIndex(), 0);
    EXPECT_EQ(raisedBy([&] { combo->Text(u"mittel"); }), 383);
    EXPECT_THAT(log, ElementsAre("click", "change", "click"));
}

TEST_F(ScrollBars, ValueStaysWithinTheRange)
{
    const auto bar = form->add<ScrollBar>(u"srl_Test");
    logs(bar->Change, "change");
    bar->Max(100);
    bar->Value(80);
    bar->Value(80);
    EXPECT_EQ(raisedBy([&] { bar->Value(101); }), 380);
    bar->Max(50);
    EXPECT_EQ(bar->Value(), 50);
    EXPECT_THAT(log, ElementsAre("change", "change"));
    EXPECT_RAISES(bar->LargeChange(0), InvalidArgument);
}

TEST_F(ScrollBars, MinimumMayBeAboveTheMaximum)
{
    const auto bar = form->add<ScrollBar>(u"srl_Test");
    bar->Min(10);
    bar->Max(-10);
    bar->Value(-5);
    EXPECT_EQ(bar->Value(), -5);
}

TEST_F(ScrollBars, HoldingTheThumbScrollsAndLettingItGoChanges)
{
    const auto bar = form->add<ScrollBar>(u"srl_Test");
    bar->Max(100);
    logs(bar->Scroll, "scroll");
    logs(bar->Change, "change");
    bar->inputScroll(40);
    bar->inputScroll(400);
    bar->inputValue(100);
    EXPECT_EQ(bar->Value(), 100);
    EXPECT_THAT(log, ElementsAre("scroll", "scroll", "change"));
}

} // namespace

} // namespace phial::test
