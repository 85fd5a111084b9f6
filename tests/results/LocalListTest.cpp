#include "AppRateTest.h"
#include "core/CoreDataFile.h"
#include "core/CoreValuePacker.h"
#include "headless/Hand.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/ctl_CmdBar.h"

namespace phial
{

namespace
{

/// The list of this computer in its window, which a test plays.
class LocalListTest : public AppRateTest
{
protected:
    void show(std::function<void(Form&)> pupil)
    {
        outside.visual().onModal(u"frm_DialogHighscore", std::move(pupil));
        rate().HIGHSCORELIST(u"Bestenliste", 1);
    }
    static void click(Form& form, StringView command)
    {
        headless::clickButton(*form.control<ctl_CmdBar>(u"bar_Buttons"), command);
    }
    std::int32_t storedCount() { return stored(u"HIGHSCORE.qv-hsr").COUNT(); }
};

TEST_F(LocalListTest, AListThatIsOnlyLookedAtIsSavedAgain)
{
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(storedCount(), 0);
    fill({5, 6});
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(storedCount(), 2);
}

TEST_F(LocalListTest, AResetTakesEffectInTheFile)
{
    fill({5, 6});
    outside.dialogs().expectYesNo(DialogAnswer::Yes);
    show([](Form& form) { click(form, u"DIALOG.RESET();"); });
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(LocalListTest, AResetOfOneEntryTakesEffectInTheFileToo)
{
    fill({5});
    outside.dialogs().expectYesNo(DialogAnswer::Yes);
    show([](Form& form) { click(form, u"DIALOG.RESET();"); });
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(LocalListTest, WhatAnotherProgramEntersWhileTheWindowIsOpenStays)
{
    fill({5, 6});
    show([this](Form& form) {
        fill({5, 6, 7});
        click(form, u"DIALOG.OK();");
    });
    EXPECT_EQ(storedCount(), 3);
}

TEST_F(LocalListTest, NoLockIsHeldWhileTheWindowIsOpen)
{
    fill({5});
    show([this](Form& form) {
        EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr.lock"));
        click(form, u"DIALOG.OK();");
    });
}

TEST_F(LocalListTest, AFailedSaveOfTheListIsNotReported)
{
    fill({5});
    show([this](Form& form) {
        outside.files().failChanges();
        click(form, u"DIALOG.OK();");
    });
    outside.files().repair();
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(LocalListTest, AMasterThatGoesWhileItIsAskedLeavesTheListOfThisComputer)
{
    fill({5, 6, 7});
    logOn(u"");
    outside.network().answerWith([](const String&) -> std::optional<String> {
        QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", true);
        QVAPP()->SERVER()->CONNECT();
        return std::nullopt;
    });
    show([](Form& form) {
        EXPECT_EQ(form.control<Label>(u"lab_Points", 0)->Caption(), u"7");
        click(form, u"DIALOG.OK();");
    });
    EXPECT_EQ(storedCount(), 3);
}

TEST_F(LocalListTest, AListThatCannotBeReadIsNotReplacedByLooking)
{
    fill({5, 6});
    outside.files().fail(headless::FileStep::Read);
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    outside.files().repair();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr.kept"));
}

TEST_F(LocalListTest, AListOfALaterVersionIsNotReplacedByLooking)
{
    CoreDataFile later;
    later.Open(path(u"HIGHSCORE.qv-hsr"), DataFileMode::Write);
    later.Write(u"2.1", u"of a later program");
    later.Close();
    const std::string bytes = folder.read("HIGHSCORE.qv-hsr");
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(folder.read("HIGHSCORE.qv-hsr"), bytes);
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr.kept"));
}

TEST_F(LocalListTest, WithoutTheLockLookingChangesNothingAndAResetCounts)
{
    fill({5, 6});
    outside.files().fail(headless::FileStep::Lock);
    const auto before = std::filesystem::last_write_time(folder.native() / "HIGHSCORE.qv-hsr");
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(std::filesystem::last_write_time(folder.native() / "HIGHSCORE.qv-hsr"), before);
    outside.dialogs().expectYesNo(DialogAnswer::Yes);
    show([](Form& form) { click(form, u"DIALOG.RESET();"); });
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(LocalListTest, AListOfTheMasterIsNotSavedHere)
{
    cls_DataScores scores;
    scores.ADD(5, 10, u"");
    logOn(scores.DATA()->Pack());
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr"));
}

} // namespace

} // namespace phial
