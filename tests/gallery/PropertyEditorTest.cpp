#include "gallery/PropertyEditor.h"

#include "core/Members.h"
#include "gallery/PropertyText.h"

#include <gtest/gtest.h>

namespace gallery
{
namespace
{

using phial::String;
using phial::StringView;
using phial::Variant;

/// An object of a class that the gallery cannot know.
class Beaker final : public phial::Object
{
public:
    double Volume() const { return volume_; }
    void Volume(double value)
    {
        if (value < 0) {
            throw phial::RuntimeError(phial::ErrorNumber::InvalidArgument);
        }
        volume_ = value;
    }
    phial::Colour LiquidColor() const { return colour_; }
    void LiquidColor(phial::Colour value) { colour_ = value; }
    std::int32_t Drops() const { return static_cast<std::int32_t>(volume_ * 20); }
    std::shared_ptr<Beaker> Inner() const { return inner; }
    void EMPTY() { volume_ = 0; }
    String Broken() const { throw phial::RuntimeError(phial::ErrorNumber::ObjectNotSet); }

    StringView typeName() const override { return u"Beaker"; }
    phial::MemberTable members() const override
    {
        using namespace phial::members;
        static constexpr phial::Member Table[] = {
            property<Beaker, double, &Beaker::Volume, &Beaker::Volume>(u"Volume"),
            property<Beaker, phial::Colour, &Beaker::LiquidColor, &Beaker::LiquidColor>(u"LiquidColor"),
            readOnly<Beaker, std::int32_t, &Beaker::Drops>(u"Drops"),
            readOnly<Beaker, std::shared_ptr<Beaker>, &Beaker::Inner>(u"Inner"),
            readOnly<Beaker, String, &Beaker::Broken>(u"Broken"),
            operation<Beaker, &Beaker::EMPTY>(u"EMPTY"),
        };
        return Table;
    }

    std::shared_ptr<Beaker> inner;

private:
    double volume_ = 1.5;
    phial::Colour colour_ = phial::RGB(0, 106, 181);
};

class PropertyEditorTest : public ::testing::Test
{
protected:
    PropertyEditorTest() { editor.edit(beaker); }

    const PropertyRow& row(std::size_t at) { return editor.rows().at(at); }

    std::shared_ptr<Beaker> beaker = std::make_shared<Beaker>();
    PropertyEditor editor;
};

TEST_F(PropertyEditorTest, ReadsAnyMemberTable)
{
    using Kind = PropertyRow::Kind;
    EXPECT_EQ(row(0), (PropertyRow{u"Volume", u"1,5", Kind::Writable}));
    EXPECT_EQ(row(1), (PropertyRow{u"LiquidColor", u"#006AB5", Kind::Writable}));
    EXPECT_EQ(row(2), (PropertyRow{u"Drops", u"30", Kind::ReadOnly}));
    EXPECT_EQ(row(3), (PropertyRow{u"Inner", u"\u2013", Kind::ReadOnly}));
    EXPECT_EQ(row(5), (PropertyRow{u"EMPTY", u"", Kind::Operation}));
}

TEST_F(PropertyEditorTest, APropertyThatCannotBeReadTellsWhy)
{
    EXPECT_EQ(row(4), (PropertyRow{u"Broken", u"(Object not set)", PropertyRow::Kind::ReadOnly}));
}

TEST_F(PropertyEditorTest, SettingTellsNothingWhenItGoesWell)
{
    EXPECT_FALSE(editor.set(0, u"2,5"));
    EXPECT_EQ(beaker->Volume(), 2.5);
    EXPECT_FALSE(editor.set(1, u"#102030"));
    EXPECT_EQ(beaker->LiquidColor(), phial::RGB(0x10, 0x20, 0x30));
}

TEST_F(PropertyEditorTest, SettingTellsTheErrorAndKeepsTheValue)
{
    EXPECT_EQ(editor.set(0, u"-1")->Number(), 5);
    EXPECT_EQ(editor.set(0, u"voll")->Number(), 13);
    EXPECT_EQ(editor.set(2, u"7")->Number(), 438);
    EXPECT_EQ(beaker->Volume(), 1.5);
}

TEST_F(PropertyEditorTest, RefreshNamesTheRowsThatDiffer)
{
    beaker->Volume(2);

    EXPECT_EQ(editor.refresh(), (std::vector<std::size_t>{0, 2}));
    EXPECT_EQ(row(0).value, u"2");
    EXPECT_TRUE(editor.refresh().empty());
}

TEST_F(PropertyEditorTest, RunsAnOperation)
{
    EXPECT_FALSE(editor.run(5));
    EXPECT_EQ(beaker->Volume(), 0);
    EXPECT_EQ(editor.run(0)->Number(), 438);
}

TEST_F(PropertyEditorTest, OpensTheObjectsWithinAndComesBack)
{
    beaker->inner = std::make_shared<Beaker>();
    editor.refresh();
    EXPECT_EQ(row(3), (PropertyRow{u"Inner", u"\u2192 Beaker", PropertyRow::Kind::Part}));

    EXPECT_TRUE(editor.open(3));
    EXPECT_EQ(editor.path(), u"Beaker \u203A Inner");
    EXPECT_EQ(editor.object(), beaker->inner);
    EXPECT_FALSE(editor.open(3));
    EXPECT_FALSE(editor.open(0));

    EXPECT_TRUE(editor.back());
    EXPECT_EQ(editor.path(), u"Beaker");
    EXPECT_FALSE(editor.back());
}

TEST_F(PropertyEditorTest, NothingHasNoRows)
{
    editor.edit(nullptr);

    EXPECT_TRUE(editor.rows().empty());
    EXPECT_EQ(editor.path(), u"");
    EXPECT_EQ(editor.object(), nullptr);
}

TEST(PropertyTextTest, LineEndsAreShownAsPilcrows)
{
    EXPECT_EQ(propertyText(u"Text", u"a\r\nb\nc"), u"a\u00B6b\u00B6c");
    EXPECT_EQ(propertyValue(u"Text", u"a\u00B6b"), Variant(u"a\r\nb"));
}

TEST(PropertyTextTest, ColoursGoByTheNameOfTheMember)
{
    const Variant blue(static_cast<std::int32_t>(phial::RGB(0, 106, 181).value));
    EXPECT_EQ(propertyText(u"TEXTCOLOR", blue), u"#006AB5");
    EXPECT_EQ(propertyText(u"Width", blue), blue.toText());
    EXPECT_EQ(propertyValue(u"backcolor", u"#006ab5"), blue);
    EXPECT_EQ(propertyValue(u"BackColor", u"#12345"), Variant(u"#12345"));
    EXPECT_EQ(propertyValue(u"BackColor", u"#12345G"), Variant(u"#12345G"));
    EXPECT_EQ(propertyValue(u"Caption", u"#006AB5"), Variant(u"#006AB5"));
}

TEST(PropertyTextTest, ADesktopColourKeepsItsNumber)
{
    const Variant window(static_cast<std::int32_t>(phial::SystemColour::Window.value));
    EXPECT_EQ(propertyText(u"BackColor", window), window.toText());
}

TEST(PropertyTextTest, ArraysTellTheirLength)
{
    EXPECT_EQ(propertyText(u"List", Variant::Array{1, 2, 3}), u"[3]");
}

} // namespace
} // namespace gallery
