#include "dialogs/TargetText.h"

#include "core/Members.h"
#include "support/HeadlessSession.h"
#include "visual/Label.h"
#include "visual/RichText.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"
#include "visual/UserControl.h"
#include "visual/ctl_Label.h"

namespace phial::test
{

namespace
{

/// An object with each of the properties in which a target's text may stand.
class AllTexts : public Object
{
public:
    explicit AllTexts(StringView type) : type_(type) {}

    String Term() const { return u"term"; }
    void Term(String value) { written = u"Term " + value; }
    String Caption() const { return u"caption"; }
    void Caption(String value) { written = u"Caption " + value; }
    String TextRTF() const { return toRichText(u"rich", {}); }
    void TextRTF(String value) { written = u"TextRTF " + value; }
    String Text() const { return u"text"; }
    void Text(String value) { written = u"Text " + value; }

    StringView typeName() const override { return type_; }
    MemberTable members() const override
    {
        using members::property;
        static constexpr auto Table = std::to_array<Member>({
            property<AllTexts, String, &AllTexts::Term, &AllTexts::Term>(u"Term"),
            property<AllTexts, String, &AllTexts::Caption, &AllTexts::Caption>(u"Caption"),
            property<AllTexts, String, &AllTexts::TextRTF, &AllTexts::TextRTF>(u"TextRTF"),
            property<AllTexts, String, &AllTexts::Text, &AllTexts::Text>(u"Text"),
        });
        return Table;
    }

    String written;

private:
    StringView type_;
};

struct Access {
    const char* name;
    StringView type;
    StringView read;
    String written;
};

void PrintTo(const Access& access, std::ostream* stream)
{
    *stream << access.name;
}

class TargetTypes : public ::testing::TestWithParam<Access>
{
};

TEST_P(TargetTypes, SayUnderWhichPropertyTheTextStands)
{
    const auto target = std::make_shared<AllTexts>(GetParam().type);
    const TargetText text(target);
    EXPECT_EQ(text.read(), GetParam().read);
    text.write(u"ä\r\nb");
    EXPECT_EQ(target->written, GetParam().written);
}

String asRichText()
{
    return u"TextRTF " + toRichText(u"ä\r\nb", {});
}

INSTANTIATE_TEST_SUITE_P(Table, TargetTypes,
                         ::testing::Values(Access{"Term", u"clt_TermInput", u"term", u"Term ä\r\nb"},
                                           Access{"Label", u"Label", u"caption", u"Caption ä\r\nb"},
                                           Access{"RichText", u"RichTextbox", u"rich", asRichText()},
                                           Access{"TextBox", u"TextBox", u"text", u"Text ä\r\nb"},
                                           Access{"AnythingElse", u"ctl_Label", u"text", u"Text ä\r\nb"},
                                           Access{"OtherCase", u"LABEL", u"caption", u"Caption ä\r\nb"},
                                           Access{"OfTheRichOne", u"RichTextBox", u"rich", asRichText()},
                                           Access{"AlmostALabel", u"Label1", u"text", u"Text ä\r\nb"}),
                         [](const auto& tested) { return tested.param.name; });

class TargetTextTest : public HeadlessSession
{
};

TEST_F(TargetTextTest, KnowsTheControlsOfTheSystem)
{
    const auto box = makeControl<TextBox>();
    const auto label = makeControl<Label>();
    const auto rich = makeControl<RichTextBox>();
    for (const ControlPtr& control : {ControlPtr(box), ControlPtr(label), ControlPtr(rich)}) {
        const TargetText text(control);
        text.write(u"{\\rtf1 Größe €} & <b>");
        EXPECT_EQ(text.read(), u"{\\rtf1 Größe €} & <b>") << toUtf8(control->typeName());
    }
    EXPECT_EQ(box->Text(), u"{\\rtf1 Größe €} & <b>");
    EXPECT_EQ(label->Caption(), u"{\\rtf1 Größe €} & <b>");
    EXPECT_EQ(rich->Text(), u"{\\rtf1 Größe €} & <b>");
}

TEST_F(TargetTextTest, WritesRichTextInTheFontOfTheTarget)
{
    const auto rich = makeControl<RichTextBox>();
    rich->Font()->Name(u"Arial");
    String document;
    const Connection heard = rich->Change.connect([&] { document = rich->TextRTF(); });
    TargetText(rich).write(u"x");
    EXPECT_EQ(document, toRichText(u"x", rich->Font()->traits()));
    EXPECT_NE(document, toRichText(u"x", {}));
}

TEST_F(TargetTextTest, WhatDoesNotSayOtherwiseTakesAnyText)
{
    const TargetText text(makeControl<Label>());
    EXPECT_FALSE(text.locked());
    EXPECT_EQ(text.maxLength(), 0);
    EXPECT_EQ(text.passwordChar(), u"");
}

TEST_F(TargetTextTest, IsSilentWhereThereIsNoSuchProperty)
{
    const auto label = makeControl<ctl_Label>(); // it has a Caption, but its type says TEXT
    label->Caption(u"before");
    const TargetText text(label);
    EXPECT_EQ(text.read(), u"");
    text.write(u"after");
    EXPECT_EQ(label->Caption(), u"before");
}

TEST_F(TargetTextTest, IsSilentWhereTheTargetRefuses)
{
    const auto box = makeControl<TextBox>();
    const Connection refuses = box->Change.connect([] { throw RuntimeError(ErrorNumber::InvalidArgument); });
    TargetText(box).write(u"x");
    EXPECT_EQ(box->Text(), u"x");
}

TEST_F(TargetTextTest, IsSilentWithoutATarget)
{
    auto box = makeControl<TextBox>();
    const TargetText gone(box);
    box.reset();
    for (const TargetText& text : {gone, TargetText()}) {
        text.write(u"x");
        EXPECT_EQ(text.target(), nullptr);
        EXPECT_EQ(text.read(), u"");
        EXPECT_TRUE(text.takesLines());
        EXPECT_EQ(text.maxLength(), 0);
        EXPECT_FALSE(text.locked());
        EXPECT_EQ(text.passwordChar(), u"");
    }
}

TEST_F(TargetTextTest, TakesOverWhatATextFieldSays)
{
    const auto box = makeControl<TextBox>();
    const TargetText text(box);
    EXPECT_FALSE(text.takesLines());
    EXPECT_FALSE(text.locked());
    box->MultiLine(true);
    box->MaxLength(12);
    box->Locked(true);
    EXPECT_TRUE(text.takesLines());
    EXPECT_EQ(text.maxLength(), 12);
    EXPECT_TRUE(text.locked());
    box->PasswordChar(u"*");
    EXPECT_EQ(text.passwordChar(), u"*");
    EXPECT_FALSE(text.takesLines());
}

TEST_F(TargetTextTest, KnowsWhichTargetsHaveOneLine)
{
    const auto label = makeControl<Label>();
    const auto rich = makeControl<RichTextBox>();
    const auto term = std::make_shared<AllTexts>(u"clt_TermInput");
    const auto other = std::make_shared<AllTexts>(u"ctl_Anything");
    EXPECT_TRUE(TargetText(label).takesLines());
    EXPECT_TRUE(TargetText(rich).takesLines());
    EXPECT_FALSE(TargetText(term).takesLines());
    EXPECT_TRUE(TargetText(other).takesLines());
}

} // namespace

} // namespace phial::test
