#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "gallery/GalleryDesign.h"
#include "gallery/GalleryShots.h"
#include "gallery/GalleryTest.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "support/MarkedWaves.h"
#include "visual/ScrollBar.h"
#include "visual/TextBox.h"
#include "visual/ctl_Pannel.h"

#include <set>

namespace gallery
{
namespace
{

using phial::String;
using phial::StringView;

/// A user who answers whatever the exhibits open.
class CatalogueTest : public GalleryTest
{
protected:
    void awaitModal(StringView title, const Sample& sample);
    void awaitListAction(const Sample& sample);
};

void CatalogueTest::awaitListAction(const Sample& sample)
{
    using phial::headless::Box;
    auto& dialogs = outside.dialogs();
    if (sample.name == u"Text|Text") {
        dialogs.expect(Box::Text);
    } else if (sample.name == u"Text sichern|Save text") {
        dialogs.expectSaveFile(path(u"list.txt"));
        dialogs.expect(Box::Done);
    }
}

void CatalogueTest::awaitModal(StringView title, const Sample& sample)
{
    using phial::headless::Box;
    auto& dialogs = outside.dialogs();
    if (title == u"Form") {
        outside.visual().onModal(u"frm_Sample", [](phial::Form& window) { window.Unload(); });
    } else if (title == u"CoreDialogs.YesNo") {
        dialogs.expectYesNo(phial::DialogAnswer::No);
    } else if (title == u"CoreDialogs.Input") {
        dialogs.expectInput(u"Änne");
    } else if (title == u"CoreDialogs.SaveFile") {
        dialogs.expectSaveFile(u"C:\\Ergebnisse.txt");
    } else if (title == u"CoreDialogs.Info") {
        dialogs.expect(Box::Info);
    } else if (title == u"CoreDialogs.Error") {
        dialogs.expect(Box::Error);
    } else if (title == u"CoreDialogs.Text") {
        dialogs.expect(Box::Text);
    } else if (title == u"CoreDialogs.Done") {
        dialogs.expect(Box::Done);
    } else if (title == u"cls_DataScores" || title == u"cls_DataEvents") {
        awaitListAction(sample);
    } else if (title == u"frm_DialogSound") {
        outside.visual().onModal(u"frm_DialogSound", [](phial::Form&) {}); // it goes by itself
    } else if (title == u"cls_AppRate") {
        dialogs.expect(Box::Error); // there is no form to print in
    }
}

TEST_F(CatalogueTest, EveryStateOfEveryExhibitIsShownInBothLanguages)
{
    installElements();
    open();
    for (const auto language : {phial::ID_Language_German, phial::ID_Language_English}) {
        phial::LNG()->CURRENT(language);
        for (std::size_t at = 0; at < gallery->exhibits().size(); ++at) {
            const Exhibit& exhibit = gallery->exhibits()[at];
            SCOPED_TRACE(phial::toUtf8(exhibit.title));
            for (std::size_t state = 0; state < exhibit.samples.size(); ++state) {
                if (exhibit.samples[state].waits) {
                    awaitModal(exhibit.title, exhibit.samples[state]);
                }
                gallery->show(at, state);
                EXPECT_EQ(caption(u"lab_Name"), exhibit.title);
                EXPECT_EQ(get<phial::ListBox>(u"lst_Properties")->ListCount() > 0, exhibit.editable);
            }
        }
    }
    EXPECT_TRUE(outside.dialogs().isDone());
}

TEST_F(CatalogueTest, NothingStaysOnTheStageOfAnExhibitBefore)
{
    installElements();
    open();
    show(u"Label");
    const std::size_t own = form().controlCount() - 1;
    for (std::size_t at = 0; at < gallery->exhibits().size(); ++at) {
        gallery->show(at);
        gallery->show(exhibit(u"Label"));
        EXPECT_EQ(form().controlCount(), own + 1) << phial::toUtf8(gallery->exhibits()[at].title);
    }
}

TEST_F(CatalogueTest, ShowsEveryControlOfTheSystem)
{
    std::set<String> shown;
    for (const Exhibit& exhibit : catalogue()) {
        shown.insert(String(exhibit.title));
    }
    for (const StringView name :
         {u"Label",           u"TextBox",       u"RichTextBox", u"PictureBox",   u"Shape",
          u"ScrollBar",       u"ListBox",       u"ComboBox",    u"ImageList",    u"Menu",
          u"Timer",           u"Form",          u"ctl_Button",  u"ctl_CmdBar",   u"ctl_UICommandbar",
          u"ctl_Title",       u"ctl_Frame",     u"ctl_Pannel",  u"ctl_Gradient", u"ctl_Label",
          u"ctl_ReEvent",     u"ctl_TermLabel", u"ctl_Mark",    u"frm_Fade",     u"ListView",
          u"frm_DialogSound", u"ctl_Bubble",    u"ctl_DrAtom",  u"ctl_QVInput"}) {
        const bool scrollBar = name == u"ScrollBar";
        EXPECT_TRUE(shown.contains(String(name)) || (scrollBar && shown.contains(u"VScrollBar")))
            << phial::toUtf8(name);
    }
}

TEST_F(CatalogueTest, EveryTextIsThereInBothLanguages)
{
    for (const Exhibit& exhibit : catalogue()) {
        SCOPED_TRACE(phial::toUtf8(exhibit.title));
        EXPECT_NE(exhibit.about.find(u'|'), StringView::npos);
        EXPECT_LE(exhibit.samples.size(), static_cast<std::size_t>(layout::MostStates));
        EXPECT_FALSE(exhibit.samples.empty());
        for (const Sample& sample : exhibit.samples) {
            EXPECT_NE(sample.name.find(u'|'), StringView::npos) << phial::toUtf8(sample.name);
        }
    }
}

TEST_F(CatalogueTest, ASliderSetsItsPropertyAndFollowsIt)
{
    open();
    gallery->show(exhibit(u"ctl_DrAtom"));
    const auto mascot = get<phial::ctl_DrAtom>(u"ctl_DrAtom1");
    const auto eyes = get<phial::ScrollBar>(u"HScrollBar1");
    EXPECT_EQ(eyes->Value(), 4);
    eyes->inputValue(9);
    EXPECT_EQ(mascot->EYESIZE(), 9);
    mascot->EYESIZE(2);
    EXPECT_EQ(eyes->Value(), 2);
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"EYESIZE = 2");
    const auto opening = get<phial::ScrollBar>(u"HScrollBar5");
    opening->inputScroll(opening->Max());
    EXPECT_EQ(mascot->MOUTHOPEN(), 5);
}

TEST_F(CatalogueTest, TheMascotSaysWhatIsTyped)
{
    open();
    gallery->show(exhibit(u"ctl_DrAtom"));
    get<phial::TextBox>(u"TextBox1")->Text(u"Wasser");
    get<phial::ctl_Button>(u"ctl_Button2")->click();
    EXPECT_EQ(get<phial::ctl_Bubble>(u"ctl_Bubble1")->TEXT(), u"Wasser");
    EXPECT_EQ(get<phial::ctl_DrAtom>(u"ctl_DrAtom1")->BUBBLEMODE,
              phial::enm_DrAtomBubbleMode::ID_DrAtomBubbleMode_Error);
}

TEST_F(CatalogueTest, AnotherLanguageOpensNoWindowAgain)
{
    open();
    outside.visual().onModal(u"frm_DialogSound", [](phial::Form&) {});
    gallery->show(exhibit(u"frm_DialogSound"), 1);
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"A button below shows the window.");
}

TEST_F(CatalogueTest, TheChoiceOfSoundsIsHeardAndGoesWithItsExhibit)
{
    folder.write("sfx/click/a.wav", phial::test::markedWave(0.1, 64));
    folder.write("sfx/reward/a.wav", phial::test::markedWave(0.1, 64));
    phial::QVAPP()->URL()->RESOURCESFX(path(u"sfx\\"));
    open();
    const auto config = phial::QVAPP()->CONFIG();
    config->SOUND(true);
    const auto heardBy = [&](std::size_t sample) {
        const std::size_t before = outside.audio().heard().size();
        gallery->show(exhibit(u"enm_SoundMode"), sample);
        outside.advance(1);
        return outside.audio().heard().size() - before;
    };
    EXPECT_EQ(heardBy(1), 2U);
    EXPECT_EQ(heardBy(2), 1U);
    EXPECT_EQ(heardBy(3), 0U);
    EXPECT_FALSE(config->SOUND());
    gallery->show(exhibit(u"ctl_Label"));
    EXPECT_TRUE(config->SOUND());
    EXPECT_EQ(config->SOUNDMODE(), phial::ID_SoundMode_User);
}

TEST_F(CatalogueTest, TheMeterIsAsLongAsTheSoundIsLoud)
{
    folder.write("sfx/click/a.wav", phial::test::markedWave(1, 64)); // half of what is possible
    phial::QVAPP()->URL()->RESOURCESFX(path(u"sfx\\"));
    open();
    gallery->show(exhibit(u"cls_AppMedia"));
    const auto back = get<phial::ctl_Pannel>(u"ctl_Pannel1");
    const auto bar = get<phial::ctl_Pannel>(u"ctl_Pannel2");
    EXPECT_FALSE(bar->frame().Visible());

    gallery->show(exhibit(u"cls_AppMedia"), 1);
    outside.advance(0.5);
    const auto playing = get<phial::ctl_Pannel>(u"ctl_Pannel2");
    EXPECT_TRUE(playing->frame().Visible());
    EXPECT_NEAR(playing->Width(), back->Width() * 0.25, 0.01); // each sound sets half of the volume
    outside.advance(1);
    EXPECT_FALSE(playing->frame().Visible());
}

TEST_F(CatalogueTest, AQuietHymnIsQuietUntilTheExhibitGoes)
{
    folder.write("sfx/reward/a.wav", phial::test::markedWave(1, 64));
    phial::QVAPP()->URL()->RESOURCESFX(path(u"sfx\\"));
    open();
    gallery->show(exhibit(u"cls_AppMedia"), 5);
    outside.advance(0.5);
    EXPECT_NEAR(outside.audio().gain(), 0.2, 0.001);
    show(u"Label");
    EXPECT_NEAR(outside.audio().gain(), 0.5, 0.001);
}

TEST_F(CatalogueTest, SaysSoWhereNothingCanBeHeard)
{
    outside.audio().available(false);
    phial::LNG()->CURRENT(phial::ID_Language_English);
    open();
    gallery->show(exhibit(u"cls_AppMedia"));
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(),
              u"This computer cannot play sounds at present.");
}

TEST_F(CatalogueTest, ATourTakesEachStateOnceUnderItsOwnName)
{
    installElements();
    std::set<String> names;
    const auto note = [&](StringView name) {
        EXPECT_TRUE(names.insert(String(name)).second) << phial::toUtf8(name);
    };

    showEachState({[&](StringView name, const phial::Form& window) {
                       EXPECT_TRUE(window.Visible());
                       note(name);
                   },
                   [&](StringView name, const std::function<void()>&) { note(name); }});

    EXPECT_TRUE(names.contains(u"ctl_TermLabel-9-de"));
    EXPECT_TRUE(names.contains(u"Label-1-en"));
    EXPECT_FALSE(names.contains(u"Label-2-en"));
    EXPECT_TRUE(names.contains(u"frm_DialogHighscore-7-de-window"));
    EXPECT_TRUE(names.contains(u"frm_DialogHighscore-2-en-window"));
    EXPECT_TRUE(names.contains(u"cls_DataScores-4-de"));
    EXPECT_FALSE(names.contains(u"cls_AppRate-2-de"));
    EXPECT_TRUE(outside.visual().printed().empty());
    EXPECT_TRUE(names.contains(u"Properties-refused-de"));
    EXPECT_TRUE(names.contains(u"frm_DialogSound-3-de"));
    EXPECT_TRUE(names.contains(u"Form-2-de-window"));
    EXPECT_TRUE(names.contains(u"CoreDialogs.Error-2-de"));
    EXPECT_EQ(phial::LNG()->CURRENT(), phial::ID_Language_System);
}

} // namespace
} // namespace gallery
