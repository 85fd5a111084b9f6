#include "visual/ControlArray.h"

#include "visual/FormDesign.h"
#include "visual/FormTest.h"
#include "visual/PictureBox.h"

namespace phial::test
{

namespace
{

class ControlArrayTest : public FormTest
{
protected:
    void SetUp() override
    {
        const auto first = labels.add(0, std::make_shared<Label>());
        first->Move(15, 30, 150, 300);
        first->Caption(u"eins");
        first->Font()->Size(12);
        first->ForeColor(QBColor(12));
    }

    ControlArray<Label> labels{*form, u"lab_Rank"};
};

TEST_F(ControlArrayTest, LoadCopiesTheTemplateHidden)
{
    const auto copy = labels.load(7);
    EXPECT_EQ(copy->NAME(), u"lab_Rank");
    EXPECT_EQ(copy->Index(), 7);
    EXPECT_FALSE(copy->Visible());
    EXPECT_EQ(copy->Caption(), u"eins");
    EXPECT_EQ(copy->ForeColor(), QBColor(12));
    EXPECT_EQ(copy->Width(), 150);
    EXPECT_EQ(form->find(u"lab_Rank", 7), copy);
}

TEST_F(ControlArrayTest, ACopyHasAFontOfItsOwn)
{
    const auto copy = labels.load(1);
    copy->Font()->Size(20);
    EXPECT_EQ(labels(0)->Font()->Size(), 12);
}

TEST_F(ControlArrayTest, IndicesAreSparse)
{
    labels.load(7);
    EXPECT_EQ(labels.Count(), 2U);
    EXPECT_EQ(labels.LBound(), 0);
    EXPECT_EQ(labels.UBound(), 7);
    EXPECT_RAISES(labels(3), IndexOutOfBounds);
    EXPECT_EQ(raisedBy([this] { labels.load(7); }), 360);
    EXPECT_RAISES(labels.load(-1), InvalidArgument);
}

TEST_F(ControlArrayTest, UnloadTakesTheElementAwayFromTheForm)
{
    labels.load(1);
    labels.unload(1);
    EXPECT_EQ(form->find(u"lab_Rank", 1), nullptr);
    EXPECT_EQ(labels.UBound(), 0);
    EXPECT_RAISES(labels.unload(1), IndexOutOfBounds);
}

TEST_F(ControlArrayTest, EventsBringTheIndexAlsoOfElementsLoadedLater)
{
    labels.connectEach([this](Label& label, std::int32_t index) {
        return label.Click.connect([this, index] { log.push_back("click " + std::to_string(index)); });
    });
    const auto later = labels.load(4);
    later->Visible(true);
    headless::click(*labels(0));
    headless::click(*later);
    labels.unload(4);
    later->click();
    EXPECT_THAT(log, ElementsAre("click 0", "click 4"));
}

TEST_F(ControlArrayTest, AnElementMayUnloadItselfInItsEvent)
{
    labels.connectEach([this](Label& label, std::int32_t index) {
        return label.Click.connect([this, index] { labels.unload(index); });
    });
    headless::click(*labels(0));
    EXPECT_EQ(labels.Count(), 0U);
    EXPECT_RAISES(labels.UBound(), IndexOutOfBounds);
}

TEST_F(ControlArrayTest, AdoptsWhatTheDesignHasPutOnTheForm)
{
    constexpr ControlDesign Design[] = {
        design<PictureBox>(u"pic_Key", {0, 0, 720, 720}).at(0),
        design<PictureBox>(u"pic_Key", {720, 0, 720, 720}).at(12),
    };
    addControls(*form, Design);
    ControlArray<PictureBox> keys(*form, u"pic_Key");
    keys.adopt();
    EXPECT_EQ(keys.UBound(), 12);
    std::vector<std::int32_t> indices;
    keys.each([&](PictureBox& key, std::int32_t index) {
        indices.push_back(index);
        EXPECT_EQ(key.Index(), index);
    });
    EXPECT_THAT(indices, ElementsAre(0, 12));
}

TEST_F(ControlArrayTest, LoadedElementStandsInItsTemplatesContainer)
{
    const auto holder = form->add<PictureBox>(u"pic_Holder");
    ControlArray<Label> inner(*form, u"lab_Inner");
    inner.add(0, std::make_shared<Label>(), holder->container());
    EXPECT_EQ(inner.load(1)->frame().container(), holder->container());
}

} // namespace

} // namespace phial::test
