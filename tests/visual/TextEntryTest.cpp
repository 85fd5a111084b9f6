#include "visual/TextEntry.h"

#include "FormTest.h"
#include "support/PaintedField.h"

using namespace phial;
using namespace phial::test;

namespace
{

class TextEntryTest : public FormTest
{
protected:
    TextEntryTest() { field.box().SetFocus(); }

    PaintedField field{form->add<PictureBox>(u"pic_Input")};
    std::shared_ptr<TextBox> box = form->add<TextBox>(u"txt_Other");

    void SetUp() override { form->Show(); }
};

TEST_F(TextEntryTest, WhatIsComposedIsShownUntilItIsCommitted)
{
    headless::type(*form, u"SO");
    headless::compose(*form, u"^");
    EXPECT_EQ(field.shown(), u"SO[^]");
    EXPECT_EQ(field.text(), u"SO");
    headless::commit(*form, u"^");
    EXPECT_EQ(field.shown(), u"SO^");
}

TEST_F(TextEntryTest, CommittedTextComesUnitByUnitThroughTheForm)
{
    form->KeyPreview(true);
    std::vector<char16_t> heard;
    connections += form->KeyPress.connect([&](KeyPressEvent& event) {
        heard.push_back(event.KeyAscii);
        event.KeyAscii = event.KeyAscii == u'b' ? 0 : event.KeyAscii;
    });
    connections += form->KeyDown.connect([&](KeyEvent&) { heard.push_back(u'!'); });
    headless::commit(*form, u"ab\u00E2\U0001F600");
    EXPECT_THAT(heard, ElementsAre(u'a', u'b', u'\u00E2', char16_t{0xD83D}, char16_t{0xDE00}));
    EXPECT_EQ(field.text(), u"a\u00E2\U0001F600");
}

TEST_F(TextEntryTest, ControlCharactersInCommittedTextAreNoKeys)
{
    headless::commit(*form, u"a\tb\r\n\u007F\u0085c ");
    EXPECT_EQ(field.text(), u"abc ");
}

TEST_F(TextEntryTest, ACompositionEndsWithTheFocus)
{
    headless::compose(*form, u"^");
    box->SetFocus();
    EXPECT_EQ(field.shown(), u"");
    EXPECT_EQ(field.box().frame().composition(), Composition());
}

TEST_F(TextEntryTest, ALockedFieldTakesNeitherCompositionNorText)
{
    headless::compose(*form, u"^");
    field.locked(true);
    EXPECT_EQ(field.shown(), u"") << "what was being composed ends";
    headless::compose(*form, u"^");
    headless::commit(*form, u"^");
    EXPECT_EQ(field.shown(), u"");
    EXPECT_FALSE(field.box().frame().takesText());
}

TEST_F(TextEntryTest, AControlWithoutTextHearsNothingOfIt)
{
    field.box().frame().textEntry(std::nullopt);
    headless::compose(*form, u"^");
    headless::commit(*form, u"^");
    EXPECT_EQ(field.shown(), u"");
    EXPECT_EQ(field.text(), u"");
}

TEST_F(TextEntryTest, AHandlerThatTakesTheFocusEndsTheText)
{
    connections += field.box().KeyPress.connect([&](KeyPressEvent& event) {
        if (event.KeyAscii == u'b') {
            box->SetFocus();
        }
    });
    headless::commit(*form, u"abc");
    EXPECT_EQ(field.text(), u"ab");
    EXPECT_EQ(box->Text(), u"");
}

TEST_F(TextEntryTest, AHandlerThatClosesTheFormEndsTheText)
{
    connections += field.box().KeyPress.connect([&](KeyPressEvent&) { form->Unload(); });
    headless::commit(*form, u"abc");
    EXPECT_EQ(field.text(), u"a");
}

TEST_F(TextEntryTest, TheToolkitsFieldsTakeCommittedTextAsItIs)
{
    box->SetFocus();
    headless::compose(*form, u"^");
    headless::commit(*form, u"\u00E2b");
    EXPECT_EQ(box->Text(), u"\u00E2b");
}

TEST_F(TextEntryTest, TellsItsWidgetOfEachChangeOnce)
{
    class Peer final : public ControlPeer
    {
    public:
        void modelChanged(ControlAspect aspect) override { told += aspect == ControlAspect::TextEntry; }
        int told = 0;
    } peer;
    ControlFrame& frame = field.box().frame();
    frame.peer(&peer);
    headless::type(*form, u"a");
    frame.textEntry(frame.textEntry());
    EXPECT_EQ(peer.told, 1);
    frame.textEntry(std::nullopt);
    EXPECT_EQ(peer.told, 2);
    frame.peer(nullptr);
}

} // namespace
