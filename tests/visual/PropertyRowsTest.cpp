#include "visual/PropertyRows.h"

#include "core/Variant.h"
#include "visual/FormTest.h"
#include "visual/ctl_Label.h"

namespace phial::test
{

namespace
{

using Log = std::vector<std::string>;

enum class Side : std::int32_t { Left = 0, Right = 1 };

/// A painted control with a property of each kind that a row can tell.
class Balloon final : public UserControl
{
public:
    explicit Balloon(Log& log);

    bool ZIP() const { return zip_; }
    void ZIP(bool value);
    Side ZIPSIDE() const { return side_; }
    void ZIPSIDE(Side value);
    std::int32_t ZIPSIZE() const { return zipSize_; }
    void ZIPSIZE(std::int32_t value);
    bool SHADOW() const { return shadow_; }
    void SHADOW(bool value);
    bool AUTOSIZE() const { return autoSize_; }
    void AUTOSIZE(bool value);
    double SPEED() const { return speed_; }
    void SPEED(double value);
    std::int32_t EYESIZE() const { return eyeSize_; }
    void EYESIZE(std::int32_t value);
    String TEXT() const { return label_->Caption(); }
    void TEXT(String value);
    FontPtr TEXTFONT() const { return font_.pointer(); }
    void TEXTFONT(FontPtr value);
    std::int32_t MOOD() const { return mood_; }
    void MOOD(std::int32_t value);
    Variant VALUE() const { return value_.size() < 2 ? Variant(value_) : Variant(u"long"); }
    void VALUE(const Variant& value);

    void blink() { eyeSize_ = 0; }
    std::int32_t eyeSizeToKeep() const { return eyeSize_ == 0 ? 4 : eyeSize_; }

    StringView typeName() const override { return u"Balloon"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    void paint() override {}
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void writeAsSaved(PropertyBag& bag) const;

private:
    struct Properties;
    void REDRAW() { log_.emplace_back("redraw"); }
    void fit() { log_.emplace_back("fit"); }

    Log& log_;
    ControlFrame frame_;
    PaintSurface surface_;
    bool zip_{};
    Side side_{};
    std::int32_t zipSize_{};
    bool shadow_{};
    bool autoSize_{};
    double speed_{};
    std::int32_t eyeSize_{};
    std::shared_ptr<ctl_Label> label_ = std::make_shared<ctl_Label>();
    SharedFont font_;
    std::int32_t mood_ = 0;
    String value_;
};

struct Balloon::Properties {
    static constexpr rows::Table Table{
        rows::property<u"ZIP">(&Balloon::zip_, true).kept(),
        rows::property<u"ZIPSIDE">(&Balloon::side_, Side::Right).kept(),
        rows::property<u"ZIPSIZE">(&Balloon::zipSize_, 30).kept().ignoringUnless(rows::isPositive),
        rows::property<u"SHADOW">(&Balloon::shadow_, true).kept().fresh(false),
        rows::property<u"AUTOSIZE">(&Balloon::autoSize_).kept().ifDiffers().untold().then(&Balloon::fit),
        rows::property<u"SPEED">(&Balloon::speed_, 10.0).kept(u"SPPED").still(),
        rows::property<u"EYESIZE">(&Balloon::eyeSize_, 4).kept().keptAs(&Balloon::eyeSizeToKeep),
        rows::property<u"TEXT">(&Balloon::label_, &ctl_Label::Caption, &ctl_Label::Caption, u"Bubble")
            .kept()
            .fresh(u"neu"),
        rows::font<u"TEXTFONT">(&Balloon::font_, {.size = 12, .bold = true}).kept().nullGivesDefault(),
        rows::property<u"MOOD">(&Balloon::MOOD, &Balloon::MOOD),
        rows::property<u"VALUE">(&Balloon::value_, u"0").kept().through(&Balloon::VALUE, &Balloon::VALUE),
        rows::operation<u"REDRAW">(&Balloon::REDRAW),
    };
    static constexpr bool Always = true;
    static constexpr auto Effect = &Balloon::REDRAW;
};

Balloon::Balloon(Log& log) : log_(log), frame_(*this), surface_(*this)
{
    rows::start<Properties>(*this);
}

MemberTable Balloon::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void Balloon::ZIP(bool value) { rows::set<Properties, u"ZIP">(*this, value); }
void Balloon::ZIPSIDE(Side value) { rows::set<Properties, u"ZIPSIDE">(*this, value); }
void Balloon::ZIPSIZE(std::int32_t value) { rows::set<Properties, u"ZIPSIZE">(*this, value); }
void Balloon::SHADOW(bool value) { rows::set<Properties, u"SHADOW">(*this, value); }
void Balloon::AUTOSIZE(bool value) { rows::set<Properties, u"AUTOSIZE">(*this, value); }
void Balloon::SPEED(double value) { rows::set<Properties, u"SPEED">(*this, value); }
void Balloon::EYESIZE(std::int32_t value) { rows::set<Properties, u"EYESIZE">(*this, value); }
void Balloon::TEXT(String value) { rows::set<Properties, u"TEXT">(*this, std::move(value)); }
void Balloon::TEXTFONT(FontPtr value) { rows::set<Properties, u"TEXTFONT">(*this, std::move(value)); }
// clang-format on

void Balloon::MOOD(std::int32_t value)
{
    mood_ = value * 2;
    rows::report<Properties, u"MOOD">(*this);
}

void Balloon::VALUE(const Variant& value)
{
    value_ = u"<" + value.toText() + u">";
}

void Balloon::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
}

void Balloon::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void Balloon::writeAsSaved(PropertyBag& bag) const
{
    rows::writeInOrder<Properties, u"ZIP", u"TEXTFONT", u"TEXT", u"ZIPSIDE", u"ZIPSIZE", u"SHADOW",
                       u"AUTOSIZE", u"SPEED", u"EYESIZE", u"VALUE">(*this, bag);
}

class PropertyRows : public FormTest
{
protected:
    PropertyRows()
    {
        connections += balloon->PropertyChanged.connect(
            [this](const String& name) { log.push_back("told " + toUtf8(name)); });
    }

    std::shared_ptr<Balloon> balloon = std::make_shared<Balloon>(log);
    PropertyBag bag;
};

TEST_F(PropertyRows, AWriteStoresTellsTheNameAndThenTakesEffect)
{
    balloon->ZIP(false);
    EXPECT_FALSE(balloon->ZIP());
    EXPECT_THAT(log, ElementsAre("told ZIP", "redraw"));
}

TEST_F(PropertyRows, WhereItIsSaidAWriteOfThePresentValueCountsAndElseItDoesNot)
{
    balloon->ZIP(true);
    balloon->AUTOSIZE(false);
    EXPECT_THAT(log, ElementsAre("told ZIP", "redraw"));
}

TEST_F(PropertyRows, AnEffectOfItsOwnComesInPlaceOfTheClassesAndMayBeUntold)
{
    balloon->AUTOSIZE(true);
    EXPECT_THAT(log, ElementsAre("fit"));
}

TEST_F(PropertyRows, AStillRowIsStoredAndToldOnly)
{
    balloon->SPEED(-3);
    EXPECT_EQ(balloon->SPEED(), -3);
    EXPECT_THAT(log, ElementsAre("told SPEED"));
}

TEST_F(PropertyRows, AValueThatIsRefusedChangesNothing)
{
    balloon->ZIPSIZE(0);
    setMember(*balloon, u"zipsize", -1);
    EXPECT_EQ(balloon->ZIPSIZE(), 30);
    EXPECT_THAT(log, IsEmpty());
    balloon->ZIPSIZE(1);
    EXPECT_EQ(balloon->ZIPSIZE(), 1);

    TextBox field;
    EXPECT_RAISES(field.MaxLength(-1), InvalidArgument);
    EXPECT_RAISES(setMember(field, u"MaxLength", -1), InvalidArgument);
    EXPECT_EQ(field.MaxLength(), 0);
}

TEST_F(PropertyRows, AFreshControlMayDifferFromWhatAnEmptyBagGives)
{
    EXPECT_TRUE(balloon->ZIP());
    EXPECT_FALSE(balloon->SHADOW());
    EXPECT_EQ(balloon->TEXT(), u"neu");
    balloon->readProperties(bag);
    EXPECT_TRUE(balloon->SHADOW());
    EXPECT_EQ(balloon->TEXT(), u"Bubble");
    EXPECT_EQ(balloon->ZIPSIDE(), Side::Right);
}

TEST_F(PropertyRows, ABagLeavesOutTheDefaultForReadingNotThatOfAFreshControl)
{
    balloon->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"SHADOW", u"TEXT", u"TEXTFONT"));
    EXPECT_EQ(bag.ReadProperty(u"SHADOW"), Variant(false));
}

TEST_F(PropertyRows, PropertiesGoIntoTheBagInTheOrderOfTheRowsOrInOneOfTheirOwn)
{
    balloon->ZIP(false);
    balloon->SPEED(1);
    balloon->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"ZIP", u"SHADOW", u"SPPED", u"TEXT", u"TEXTFONT"));
    bag.Clear();
    balloon->writeAsSaved(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"ZIP", u"TEXTFONT", u"TEXT", u"SHADOW", u"SPPED"));
}

TEST_F(PropertyRows, EveryKeptPropertyComesBack)
{
    balloon->ZIP(false);
    balloon->ZIPSIDE(Side::Left);
    balloon->ZIPSIZE(7);
    balloon->SHADOW(true);
    balloon->AUTOSIZE(true);
    balloon->SPEED(2.5);
    balloon->EYESIZE(6);
    balloon->TEXT(u"Hallo");
    balloon->TEXTFONT()->Size(20);
    balloon->VALUE(Variant(7));
    balloon->writeProperties(bag);

    Balloon other(log);
    other.readProperties(bag);
    EXPECT_FALSE(other.ZIP());
    EXPECT_EQ(other.ZIPSIDE(), Side::Left);
    EXPECT_EQ(other.ZIPSIZE(), 7);
    EXPECT_TRUE(other.SHADOW());
    EXPECT_TRUE(other.AUTOSIZE());
    EXPECT_EQ(other.SPEED(), 2.5);
    EXPECT_EQ(other.EYESIZE(), 6);
    EXPECT_EQ(other.TEXT(), u"Hallo");
    EXPECT_EQ(other.TEXTFONT()->Size(), 20);
    EXPECT_EQ(bag.ReadProperty(u"VALUE"), Variant(u"<7>")) << "kept as it lies, not as it is reached";
}

TEST_F(PropertyRows, ReadingABagStoresAndTellsNothing)
{
    bag.WriteProperty(u"ZIP", false);
    bag.WriteProperty(u"ZIPSIZE", -5);
    balloon->readProperties(bag);
    EXPECT_FALSE(balloon->ZIP());
    EXPECT_EQ(balloon->ZIPSIZE(), -5) << "a bag is not checked";
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(PropertyRows, AnOddKeyIsTheOneReadAndWritten)
{
    bag.WriteProperty(u"SPEED", 1.0);
    bag.WriteProperty(u"SPPED", 3.0);
    balloon->readProperties(bag);
    EXPECT_EQ(balloon->SPEED(), 3);
}

TEST_F(PropertyRows, ANumberOutsideTheNamesOfAnEnumerationIsKept)
{
    setMember(*balloon, u"ZIPSIDE", 99);
    balloon->writeProperties(bag);
    Balloon other(log);
    other.readProperties(bag);
    EXPECT_EQ(static_cast<std::int32_t>(other.ZIPSIDE()), 99);
    EXPECT_EQ(getMember(other, u"ZipSide"), Variant(99));
}

TEST_F(PropertyRows, ARowMaySayWhatIsKeptInPlaceOfItsValue)
{
    balloon->EYESIZE(8);
    balloon->blink();
    balloon->writeProperties(bag);
    EXPECT_FALSE(bag.Exists(u"EYESIZE")) << "4 is the default";
    EXPECT_EQ(balloon->EYESIZE(), 0);
}

TEST_F(PropertyRows, WithoutAFontInTheBagThereIsADefaultOneOfItsOwn)
{
    const FontPtr before = balloon->TEXTFONT();
    before->Size(30);
    log.clear();
    balloon->readProperties(bag);
    EXPECT_NE(balloon->TEXTFONT(), before);
    EXPECT_EQ(balloon->TEXTFONT()->traits(), (FontSpec{.name = u"Tahoma", .size = 12, .bold = true}));
    before->Size(31);
    EXPECT_THAT(log, IsEmpty()) << "the font that is no more shared is not heard";
}

TEST_F(PropertyRows, AFontIsSharedAndItsChangesAreTold)
{
    const auto font = std::make_shared<Font>();
    balloon->TEXTFONT(font);
    EXPECT_EQ(balloon->TEXTFONT(), font);
    font->Bold(true);
    EXPECT_THAT(log, ElementsAre("told TEXTFONT", "redraw", "told TEXTFONT", "redraw"));
}

TEST_F(PropertyRows, NoFontIsTheDefaultOneOrAnErrorAsTheRowSays)
{
    balloon->TEXTFONT(std::make_shared<Font>());
    balloon->TEXTFONT(nullptr);
    EXPECT_EQ(balloon->TEXTFONT()->Size(), 12);
    ctl_Label label;
    const FontPtr before = label.Font();
    EXPECT_RAISES(label.Font(nullptr), ObjectNotSet);
    EXPECT_EQ(label.Font(), before);
}

TEST_F(PropertyRows, ByNameAWriteDoesWhatTheSetterDoes)
{
    setMember(*balloon, u"zip", false);
    setMember(*balloon, u"Mood", 3);
    callMember(*balloon, u"redraw");
    EXPECT_FALSE(balloon->ZIP());
    EXPECT_EQ(getMember(*balloon, u"MOOD"), Variant(6));
    EXPECT_THAT(log, ElementsAre("told ZIP", "redraw", "told MOOD", "redraw", "redraw"));
    EXPECT_RAISES(setMember(*balloon, u"REDRAW", true), NoSuchMember);
}

TEST_F(PropertyRows, ByNameAPropertyMayBeReachedAnotherWayThanItLies)
{
    EXPECT_EQ(getMember(*balloon, u"VALUE"), Variant(u"0"));
    setMember(*balloon, u"VALUE", 5);
    EXPECT_EQ(getMember(*balloon, u"VALUE"), Variant(u"long"));
}

TEST_F(PropertyRows, AHandlerMayTakeTheControlAway)
{
    std::weak_ptr<Balloon> watched = balloon;
    connections += balloon->PropertyChanged.connect([this](const String&) { balloon.reset(); });
    Balloon& present = *balloon;
    present.ZIP(false);
    EXPECT_THAT(log, ElementsAre("told ZIP", "redraw"));
    EXPECT_TRUE(watched.expired());
}

/// Writes down what a model tells its widget.
class AspectLog final : public ControlPeer
{
public:
    explicit AspectLog(ControlFrame& frame) : frame_(frame) { frame_.peer(this); }
    ~AspectLog() override { frame_.peer(nullptr); }
    AspectLog(const AspectLog&) = delete;
    AspectLog& operator=(const AspectLog&) = delete;
    void modelChanged(ControlAspect aspect) override { told.push_back(aspect); }

    std::vector<ControlAspect> told;

private:
    ControlFrame& frame_;
};

TEST_F(PropertyRows, AWidgetHearsThatItsStyleHasChangedUnlessARowSaysOtherwise)
{
    ctl_Button button;
    const AspectLog widget(button.frame());
    button.Accent(true);
    button.Accent(true);
    button.Caption(u"Los");
    button.Font()->Bold(true);
    EXPECT_THAT(widget.told, ElementsAre(ControlAspect::Style, ControlAspect::Text, ControlAspect::Style));
}

TEST_F(PropertyRows, APaintedControlIsPaintedAnewAndSpokenAnewWhereItIsSaid)
{
    ctl_Label label;
    const AspectLog widget(label.frame());
    label.surface().image(1); // what was painted before has been fetched
    label.ForeColor(RGB(1, 2, 3));
    label.surface().image(1);
    label.Caption(u"Los");
    EXPECT_THAT(widget.told,
                ElementsAre(ControlAspect::Picture, ControlAspect::Picture, ControlAspect::Accessibility));
}

TEST_F(PropertyRows, TheFramesSettersReturnWhenNothingHasChanged)
{
    ctl_Button button;
    const AspectLog widget(button.frame());
    const auto icon = std::make_shared<Picture>(PixelSize{16, 16});
    button.frame().MouseIcon(icon);
    button.frame().MouseIcon(icon);
    button.frame().ToolTipText(u"Los");
    button.frame().ToolTipText(u"Los");
    EXPECT_THAT(widget.told, ElementsAre(ControlAspect::Pointer, ControlAspect::ToolTip));
}

TEST_F(PropertyRows, OnlyControlsHaveTheMembersOfTheFrame)
{
    EXPECT_NE(findMember(*balloon, u"Left"), nullptr);
    EXPECT_EQ(findMember(Menu(u"mnu_File"), u"Left"), nullptr);
    EXPECT_NE(findMember(Menu(u"mnu_File"), u"Checked"), nullptr);
}

} // namespace

} // namespace phial::test
