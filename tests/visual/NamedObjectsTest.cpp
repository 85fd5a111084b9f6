#include "visual/NamedObjects.h"

#include "visual/ControlArray.h"
#include "visual/FormTest.h"
#include "visual/ImageList.h"

namespace phial::test
{

namespace
{

/// A form finds its controls by what they are called now.
using FormNames = FormTest;

TEST_F(FormNames, AreFoundWhenAddedAndLostWhenRemoved)
{
    EXPECT_EQ(form->find(u"lab_One"), nullptr);
    const auto one = form->add<Label>(u"lab_One");
    const auto two = form->add<Label>(u"lab_Two");
    EXPECT_EQ(form->find(u"LAB_one"), one);
    form->remove(*one);
    EXPECT_EQ(form->find(u"lab_One"), nullptr);
    EXPECT_EQ(form->find(u"lab_Two"), two) << "those behind move up";
}

TEST_F(FormNames, AreFoundUnderTheirNewNameWhenRenamed)
{
    const auto one = form->add<Label>(u"lab_One");
    one->frame().NAME(u"lab_Other");
    EXPECT_EQ(form->find(u"lab_One"), nullptr);
    EXPECT_EQ(form->find(u"lab_Other"), one);
    setMember(*one, u"NAME", u"lab_Third");
    EXPECT_EQ(form->find(u"lab_Third"), one);
}

TEST_F(FormNames, AreFoundByTheirIndexWhenPutIntoAnArray)
{
    const auto one = form->add<Label>(u"lab_One");
    EXPECT_EQ(form->find(u"lab_One", 0), nullptr);
    one->frame().Index(0);
    EXPECT_EQ(form->find(u"lab_One"), nullptr);
    EXPECT_EQ(form->find(u"lab_One", 0), one);
    ControlArray<Label> array(*form, u"lab_One");
    array.adopt();
    const auto second = array.load(7);
    EXPECT_EQ(form->find(u"lab_One", 7), second);
    array.unload(7);
    EXPECT_EQ(form->find(u"lab_One", 7), nullptr);
}

TEST_F(FormNames, TheFirstOfOneNameCounts)
{
    const auto first = form->add<Label>(u"lab_Same");
    const auto second = form->add<TextBox>(u"lab_Other");
    second->frame().NAME(u"lab_Same");
    EXPECT_EQ(form->find(u"lab_Same"), first);
    form->remove(*first);
    EXPECT_EQ(form->find(u"lab_Same"), second);
}

TEST_F(FormNames, ComponentsAreFoundByTheirPresentNameToo)
{
    const auto timer = std::make_shared<Timer>(u"tmr_One");
    form->addComponent(timer);
    EXPECT_EQ(form->find(u"TMR_ONE"), timer);
    EXPECT_EQ(form->find(u"tmr_One", 0), nullptr);
    timer->NAME(u"tmr_Two");
    EXPECT_EQ(form->find(u"tmr_One"), nullptr);
    EXPECT_EQ(form->find(u"tmr_Two"), timer);
    form->remove(*timer);
    EXPECT_EQ(form->find(u"tmr_Two"), nullptr);
}

TEST_F(FormNames, MenuEntriesAreFoundAtAnyDepthBehindTheControls)
{
    const auto file = form->menu().add(u"mnu_File", u"Datei");
    const auto recent = file->add(u"mnu_Recent", u"", 2);
    const auto deep = recent->add(u"mnu_Deep", u"");
    EXPECT_EQ(form->find(u"mnu_recent", 2), recent);
    EXPECT_EQ(form->find(u"mnu_Recent"), nullptr);
    EXPECT_EQ(form->find(u"mnu_Deep"), deep);
    const auto label = form->add<Label>(u"mnu_Deep");
    EXPECT_EQ(form->find(u"mnu_Deep"), label);
}

TEST_F(FormNames, WhatHasNoNameIsNeverFound)
{
    const auto nameless = form->add(std::make_shared<Label>());
    EXPECT_EQ(form->find(u""), nameless) << "an empty name is one, too";
    form->remove(*nameless);
    form->addComponent(std::make_shared<Picture>(PixelSize{1, 1}));
    EXPECT_EQ(form->find(u""), nullptr);
}

} // namespace

} // namespace phial::test
