#include "molmasse/TrainerTest.h"

#include <algorithm>

namespace molmasse
{
namespace
{

using phial::String;

TEST_F(TrainerTest, TellsThatTheInstallationIsMissing)
{
    // The search is made twice, and each one tells that it found nothing.
    outside.dialogs().expect(phial::headless::Box::Error);
    outside.dialogs().expect(phial::headless::Box::Error);
    open();

    EXPECT_TRUE(isSeen(u"pan_Missing"));
    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"Die Installation von QV Phial wurde nicht gefunden."));
    type(u"{enter}");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, NamesAMissingElementFile)
{
    install({});
    open();

    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"Die Datei mit den Elementen fehlt"));
    EXPECT_TRUE(contains(seen(u"lab_Missing"), path(u"installed\\resources\\data\\elements2.dat")));
    touch(u"but_Leave");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, NamesAMissingTaskFile)
{
    install(Elements, {});
    open();

    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"Die Datei mit den Formeln fehlt"));
    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"formeln.txt"));
}

TEST_F(TrainerTest, ATaskFileWithoutTasksCountsAsMissing)
{
    install(Elements, "\x01\xff\x02 nothing of use [\n]\n|||\n");
    open();

    EXPECT_TRUE(isSeen(u"pan_Missing"));
}

/// A list of that many levels, whose titles have 60 letters in six words.
std::string levels(int count)
{
    std::string tasks;
    for (int level = 1; level <= count; ++level) {
        tasks += "[" + std::to_string(level) +
                 "] Organische Stoffe mit Sauerstoff & Stickstoff im Molekuel " + std::to_string(level) +
                 "\nH2O\n";
    }
    return tasks;
}

TEST_F(TrainerTest, EachLevelOfATeachersListIsSeenWithItsWholeTitleAndCanBeTouched)
{
    constexpr double Touchable = 44;
    install();
    open();
    for (int count = 1; count <= 8; ++count) {
        SCOPED_TRACE(count);
        trainer.reset();
        install(Elements, levels(count));
        trainer = newWindow();
        trainer->Show();
        for (int level = 0; level < count; ++level) {
            const auto button = form().control<phial::ctl_Button>(u"but_Level", level);
            const phial::PixelRectangle place = button->frame().pixelRectangle();
            ASSERT_TRUE(button->frame().isReachable());
            EXPECT_GE(place.left, 60);
            EXPECT_LE(place.right(), 840 + 1e-6);
            EXPECT_LE(place.bottom(), 360);
            EXPECT_GE(std::min(place.width, place.height), Touchable);
            String title = button->Caption();
            std::ranges::replace(title, u'\n', u' ');
            EXPECT_EQ(title, button->frame().AccessibleName());
            EXPECT_EQ(title.size(), 59U);
        }
        touch(u"but_Level", count - 1);
        EXPECT_EQ(formula(), u"H2O");
    }
}

TEST_F(TrainerTest, ANameFromAListIsShownAsItStands)
{
    install(Elements, "[a] A\nH2O | a <b>bold</b> name\n");
    open();
    type(u"{enter}");
    EXPECT_EQ(form().control<phial::ctl_Label>(u"lab_Name")->accessibleText(), u"a <b>bold</b> name");
}

TEST_F(TrainerTest, TellsTheTeacherOfALevelThatHasNoRoom)
{
    install(Elements, levels(9));
    open();
    EXPECT_TRUE(contains(seen(u"lab_Complaint"), u"Zeile 17")) << phial::toUtf8(seen(u"lab_Complaint"));
    EXPECT_TRUE(contains(seen(u"lab_Complaint"), u"auf der Startseite keinen Platz"));
}

TEST_F(TrainerTest, ATitleThatHasNoRoomAtAllEndsInDots)
{
    const std::string title(300, 'm');
    install(Elements, "[a] " + title + "\nH2O\n");
    open();
    const auto button = form().control<phial::ctl_Button>(u"but_Level", 0);
    EXPECT_LT(button->Caption().size(), 60U);
    EXPECT_EQ(button->Caption().back(), u'…');
    EXPECT_EQ(phial::toUtf8(button->frame().ToolTipText()), title);
}

TEST_F(TrainerTest, ARoundIsAsLongAsTheTeachersListTells)
{
    std::string tasks = "[lang] Lang | Long | 37\n";
    for (int count = 1; count <= 40; ++count) {
        tasks += "NaCl" + std::to_string(count) + "\n";
    }
    install(Elements, tasks + "[kurz] Kurz | Short\nH2O\n");
    open();
    EXPECT_FALSE(contains(seen(u"lab_Intro"), u"zehn"));
    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 37");
    answerLeaving(u"but_Leave");
    type(u"{esc}");
    touch(u"but_Level", 1);
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 1");
}

TEST_F(TrainerTest, ALongFormulaIsSmallerAndFits)
{
    install(Elements, "[lang] Lang\n" + std::string(40, 'H') + "\nH2O\n");
    open();
    type(u"{enter}");
    const auto label = form().control<phial::ctl_TermLabel>(u"trm_Formula");
    EXPECT_EQ(label->TEXTFONT()->Size(), 24);
    type(u"40{enter}{enter}");
    EXPECT_EQ(formula(), u"H2O");
    EXPECT_EQ(label->TEXTFONT()->Size(), 39);
}

TEST_F(TrainerTest, AFormulaThatHasNoRoomIsLeftOutAndTheTeacherToldItsLine)
{
    install(Elements, "[lang] Lang\nH2O\n" + std::string(45, 'H') + "\nXx2\n");
    open();
    EXPECT_EQ(seen(u"lab_Complaint"),
              u"Für die Lehrkraft: formeln.txt, Zeile 3: „" + String(39, u'H') +
                  u"…“ ist zu lang für die Seite und wurde ausgelassen. Noch eine Zeile ist fehlerhaft.");
    touch(u"but_Language");
    EXPECT_TRUE(contains(seen(u"lab_Complaint"), u"formeln.txt, line 3"));
    touch(u"but_Level", 0);
    EXPECT_EQ(seen(u"lab_Progress"), u"Task 1 of 1");
}

TEST_F(TrainerTest, AnElementThatThereIsNotIsNeverAskedFor)
{
    install(Elements, "[a] A\nH2O\nXx2\n");
    open();
    EXPECT_TRUE(contains(seen(u"lab_Complaint"), u"Zeile 3: „Xx2“ enthält ein unbekanntes Element"));
}

TEST_F(TrainerTest, AWholeTaskFileHasNoComplaint)
{
    openInstalled();
    EXPECT_EQ(seen(u"lab_Complaint"), u"");
}

TEST_F(TrainerTest, ADamagedTaskFileServesWithWhatIsWhole)
{
    install(Elements, "\xff\xfe junk\n[leicht\nH2O | Wasser\n||\nwasser\n[mittel] Mittel\n");
    open();

    EXPECT_TRUE(isSeen(u"pan_Start"));
    type(u"{enter}");
    EXPECT_EQ(formula(), u"H2O");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 1");
}

} // namespace
} // namespace molmasse
