#include "core/Members.h"
#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

enum class Mood : std::int32_t { Calm, Glad };

/// A class with one member of each kind.
class Flask : public Object
{
public:
    StringView typeName() const override { return u"Flask"; }
    MemberTable members() const override { return Table; }

    String Caption() const { return caption_; }
    void Caption(String value) { caption_ = std::move(value); }
    std::int32_t Index() const { return 3; }
    Colour BackColor() const { return colour_; }
    void BackColor(Colour value) { colour_ = value; }
    phial::Mood Mood() const { return mood_; }
    void Mood(phial::Mood value) { mood_ = value; }
    std::shared_ptr<Flask> Content() const { return content_; }
    void Content(std::shared_ptr<Flask> value) { content_ = std::move(value); }
    void CLEAR() { caption_.clear(); }

private:
    static const Member Table[6];

    String caption_ = u"Wasser";
    Colour colour_;
    phial::Mood mood_ = phial::Mood::Calm;
    std::shared_ptr<Flask> content_;
};

constexpr Member Flask::Table[6] = {
    members::property<Flask, String, &Flask::Caption, &Flask::Caption>(u"Caption"),
    members::readOnly<Flask, std::int32_t, &Flask::Index>(u"Index"),
    members::property<Flask, Colour, &Flask::BackColor, &Flask::BackColor>(u"BackColor"),
    members::property<Flask, phial::Mood, &Flask::Mood, &Flask::Mood>(u"Mood"),
    members::property<Flask, std::shared_ptr<Flask>, &Flask::Content, &Flask::Content>(u"Content"),
    members::operation<Flask, &Flask::CLEAR>(u"CLEAR"),
};

/// Another class than Flask.
class Stand : public Object
{
public:
    StringView typeName() const override { return u"Stand"; }
    MemberTable members() const override { return {}; }
};

TEST(ObjectTest, MembersAreFoundWhateverTheirCase)
{
    Flask flask;
    EXPECT_EQ(tryGet(flask, u"CAPTION"), Variant(u"Wasser"));
    EXPECT_TRUE(trySet(flask, u"caption", u"Salz"));
    EXPECT_EQ(getMember(flask, u"Caption"), Variant(u"Salz"));
}

TEST(ObjectTest, MissingMembersAreNoErrorUnlessAskedForStrictly)
{
    Flask flask;
    EXPECT_EQ(tryGet(flask, u"Text"), std::nullopt);
    EXPECT_FALSE(trySet(flask, u"Text", u"a"));
    EXPECT_EQ(tryCall(flask, u"SHOW"), std::nullopt);
    EXPECT_RAISES(getMember(flask, u"Text"), NoSuchMember);
    EXPECT_RAISES(setMember(flask, u"Text", u"a"), NoSuchMember);
    EXPECT_RAISES(callMember(flask, u"SHOW"), NoSuchMember);
}

TEST(ObjectTest, AReadOnlyPropertyIsNotWritten)
{
    Flask flask;
    EXPECT_EQ(getMember(flask, u"Index"), Variant(3));
    EXPECT_FALSE(trySet(flask, u"Index", 4));
}

TEST(ObjectTest, OperationsAreNoProperties)
{
    Flask flask;
    EXPECT_EQ(tryGet(flask, u"CLEAR"), std::nullopt);
    EXPECT_EQ(tryCall(flask, u"Caption"), std::nullopt);
    EXPECT_EQ(callMember(flask, u"clear"), Variant());
    EXPECT_EQ(flask.Caption(), u"");
}

TEST(ObjectTest, ValuesAreConvertedToTheTypeOfTheProperty)
{
    Flask flask;
    setMember(flask, u"Caption", 2.5);
    EXPECT_EQ(flask.Caption(), u"2,5");
    setMember(flask, u"Mood", u"1");
    EXPECT_EQ(flask.Mood(), Mood::Glad);
    setMember(flask, u"BackColor", static_cast<std::int32_t>(SystemColour::Window.value));
    EXPECT_EQ(flask.BackColor(), SystemColour::Window);
    EXPECT_RAISES(setMember(flask, u"Mood", u"froh"), TypeMismatch);
}

TEST(ObjectTest, ObjectsMustBeOfTheRightClass)
{
    Flask flask;
    const auto inner = std::make_shared<Flask>();
    setMember(flask, u"Content", ObjectPtr(inner));
    EXPECT_EQ(flask.Content(), inner);
    EXPECT_RAISES(setMember(flask, u"Content", ObjectPtr(std::make_shared<Stand>())), TypeMismatch);
    setMember(flask, u"Content", ObjectPtr());
    EXPECT_EQ(flask.Content(), nullptr);
}

} // namespace
} // namespace phial
