#include "app/RecentNames.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "molmasse/TrainerTest.h"
#include "results/cls_DataScores.h"
#include "visual/ctl_CmdBar.h"

namespace molmasse
{
namespace
{

using phial::String;
using phial::StringView;
using phial::headless::Box;

constexpr StringView OwnFolder = u"Die gemeinsamen Listen dieses Computers nehmen von dir nichts an. Deine "
                                 u"Ergebnisse liegen in deinem eigenen Ordner.";

// What pupils are told about the lists on their computer.
class TrainerLists : public TrainerTest
{
protected:
    TrainerLists()
    {
        phial::rememberName({u"Maxi", u"fox"});
        install();
    }

    void enter()
    {
        trainer.reset();
        open();
        trainer->welcome();
    }
    std::filesystem::path lists() const
    {
        return folder.native() / "public/Documents/QV Phial/Highscores/Molmasse";
    }
    String lastBox() { return outside.dialogs().shown().back().text; }
};

TEST_F(TrainerLists, AreSharedWithoutAWord)
{
    enter();
    EXPECT_FALSE(phial::QVAPP()->URL()->usesOwnFolder());
}

TEST_F(TrainerLists, AreThePupilsOwnWhereTheSharedOnesRefuseAndThatIsToldOnce)
{
    outside.files().protect(folder.native() / "public");
    outside.dialogs().expect(Box::Info, String(OwnFolder));
    enter();
    expectRankBox();
    playRound();
    EXPECT_TRUE(folder.has("UserDocuments/QV Phial/Highscores/Molmasse/HIGHSCORE.qv-hsr"));
    enter();
    EXPECT_TRUE(phial::QVAPP()->URL()->usesOwnFolder());

    outside.files().repair();
    enter();
    outside.files().protect(folder.native() / "public");
    outside.dialogs().expect(Box::Info, String(OwnFolder));
    enter();
}

TEST_F(TrainerLists, ThatWereDamagedAreToldOnceBehindTheResult)
{
    enter();
    folder.write(lists() / "HIGHSCORE.qv-hsr", "half a fi");
    expectRankBox();
    outside.dialogs().expect(Box::Info);
    playRound();
    EXPECT_TRUE(lastBox().starts_with(
        u"Die Liste „HIGHSCORE.qv-hsr“ war beschädigt. Sie ist als „HIGHSCORE.qv-hsr.damaged“ aufgehoben.\r"))
        << phial::toUtf8(lastBox());
    EXPECT_TRUE(isSeen(u"but_Again"));

    touch(u"but_Again");
    expectRankBox();
    playRound();
}

TEST_F(TrainerLists, AreToldOfInTheLanguageInForce)
{
    enter();
    phial::LNG()->CURRENT(phial::ID_Language_English);
    folder.write(lists() / "results.qv-rsl", "half a fi");
    expectRankBox();
    outside.dialogs().expect(Box::Info);
    playRound();
    EXPECT_TRUE(lastBox().starts_with(u"The list “results.qv-rsl” was damaged.")) << phial::toUtf8(lastBox());
}

TEST_F(TrainerLists, AreToldOfBehindTheRoundWhereItsEventCannotJoinTheLog)
{
    enter();
    expectRankBox();
    outside.dialogs().expect(Box::Info);
    touch(u"but_Level", 0);
    type(u"18,0{enter}{enter}58,4{enter}");
    folder.write(lists() / "event.qv-log", "half a fi");
    type(u"{enter}");
    EXPECT_TRUE(lastBox().starts_with(u"Die Liste „event.qv-log“ war beschädigt."))
        << phial::toUtf8(lastBox());
}

TEST_F(TrainerLists, AreToldOfWhenAResetKeepsWhatAnotherProgramHasWritten)
{
    enter();
    expectRankBox();
    playRound();
    outside.visual().onModal(u"frm_DialogHighscore", [](phial::Form& dialog) {
        phial::cls_DataScores other;
        EXPECT_TRUE(other.SAVE(phial::QVAPP()->URL()->DATAHIGHSCORES() + u"HIGHSCORE.qv-hsr"));
        phial::headless::clickButton(*dialog.control<phial::ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.RESET();");
    });
    outside.dialogs().expectYesNo(phial::DialogAnswer::Yes);
    outside.dialogs().expect(Box::Info);
    touch(u"but_List");
    EXPECT_TRUE(folder.has(lists() / "HIGHSCORE.qv-hsr.kept"));
}

TEST_F(TrainerLists, ThatTakeNothingAreTold)
{
    enter();
    outside.files().failChanges();
    expectRankBox();
    outside.dialogs().expect(
        Box::Error, u"Dein Ergebnis konnte nicht gespeichert werden. Bitte sage deiner Lehrkraft Bescheid.");
    playRound();
}

} // namespace
} // namespace molmasse
