#include "app/RecentNames.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/ctl_Avatar.h"
#include "molmasse/TrainerTest.h"

#include <gmock/gmock-matchers.h>

namespace molmasse
{
namespace
{

using phial::RecentName;
using phial::String;
using phial::StringView;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// Who works with the trainer: asked for at the first start, shown in the header, changed there.
class TrainerUser : public TrainerTest
{
protected:
    TrainerUser() { installAvatars(); }

    /// The dialog comes once; the pupil types the name and confirms.
    void expectName(StringView name)
    {
        outside.visual().onModal(u"frm_DialogUser", [name](phial::Form& dialog) {
            dialog.control<phial::TextBox>(u"txt_Screenname")->Text(String(name));
            phial::headless::type(dialog, u"{enter}");
        });
    }
    void expectAbort()
    {
        outside.visual().onModal(u"frm_DialogUser",
                                 [](phial::Form& dialog) { phial::headless::type(dialog, u"{esc}"); });
    }

    std::shared_ptr<phial::ctl_Avatar> avatar() { return form().control<phial::ctl_Avatar>(u"ctl_User"); }
    std::string drawn() { return outside.visual().drawing(*avatar()); }
};

TEST_F(TrainerUser, IsAskedForAtTheFirstStartAndShown)
{
    openInstalled();
    expectName(u"Maxi");
    trainer->welcome();

    EXPECT_EQ(phial::QVAPP()->USER()->SCREENNAME(), u"Maxi");
    EXPECT_THAT(phial::recentNames(), ElementsAre(RecentName{u"Maxi", u"fox"}));
    EXPECT_THAT(drawn(), HasSubstr("\"Maxi\""));
    EXPECT_EQ(focused(), u"but_Level");
}

TEST_F(TrainerUser, IsNotAskedForWhenANameIsKnown)
{
    phial::rememberName({u"Uli", u"owl"});
    openInstalled();
    trainer->welcome();

    EXPECT_THAT(drawn(), HasSubstr("\"Uli\""));
}

TEST_F(TrainerUser, WhoDoesNotSayGoesOnAndIsAskedAgainAtTheNextStart)
{
    openInstalled();
    expectAbort();
    trainer->welcome();
    type(u"{enter}");
    EXPECT_EQ(formula(), u"H2O");

    answerLeaving(u"but_Leave");
    trainer->form().Unload();
    trainer = newWindow();
    trainer->Show();
    expectName(u"Maxi");
    trainer->welcome();
    EXPECT_THAT(drawn(), HasSubstr("\"Maxi\""));
}

TEST_F(TrainerUser, IsNotAskedForWhileTheTrainerCannotRun)
{
    install({});
    open();
    trainer->welcome();

    EXPECT_TRUE(isSeen(u"pan_Missing"));
    EXPECT_FALSE(isSeen(u"ctl_User"));
}

TEST_F(TrainerUser, IsChangedByATouch)
{
    phial::rememberName({u"Uli", u"owl"});
    openInstalled();
    expectName(u"Maxi");
    phial::headless::click(*avatar());

    EXPECT_THAT(drawn(), HasSubstr("\"Maxi\""));
    EXPECT_EQ(phial::QVAPP()->USER()->SCREENNAME(), u"Maxi");
}

TEST_F(TrainerUser, StaysTheSameThroughoutARound)
{
    phial::rememberName({u"Uli", u"owl"});
    openInstalled();
    type(u"{enter}1");
    phial::headless::click(*avatar());
    EXPECT_EQ(phial::QVAPP()->USER()->SCREENNAME(), u"Uli");
    EXPECT_FALSE(avatar()->frame().Enabled());

    answerLeaving(u"but_Leave");
    type(u"{esc}");
    EXPECT_TRUE(avatar()->frame().Enabled());
}

TEST_F(TrainerUser, OwnsTheCertificateOfTheRound)
{
    phial::rememberName({u"Uli", u"owl"});
    openInstalled();
    expectRankBox();
    playRound();
    EXPECT_FALSE(avatar()->frame().Enabled());
    phial::headless::click(*avatar());
    EXPECT_EQ(phial::QVAPP()->USER()->SCREENNAME(), u"Uli");

    touch(u"but_Again");
    EXPECT_TRUE(avatar()->frame().Enabled());
}

TEST_F(TrainerUser, IsChangedByKeysAlone)
{
    phial::rememberName({u"Uli", u"owl"});
    openInstalled();
    avatar()->frame().SetFocus();
    expectName(u"Maxi");
    type(u"{enter}");

    EXPECT_THAT(drawn(), HasSubstr("\"Maxi\""));
    EXPECT_TRUE(isSeen(u"pan_Start"));
}

TEST_F(TrainerUser, IsReachedByTab)
{
    openInstalled();
    for (const auto* stop : {u"but_Help", u"but_Screen", u"but_Language", u"but_Colours", u"ctl_User"}) {
        phial::headless::tab(form(), true);
        EXPECT_EQ(focused(), stop);
    }
}

TEST_F(TrainerUser, IsToldToAScreenReaderWithWhatAPressDoes)
{
    openInstalled();
    EXPECT_EQ(avatar()->frame().AccessibleName(), u"Name und Bild ändern");
    EXPECT_EQ(avatar()->frame().ToolTipText(), u"Name und Bild ändern");

    expectName(u"Maxi");
    trainer->welcome();
    EXPECT_EQ(avatar()->frame().AccessibleName(), u"Maxi, Name und Bild ändern");

    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(avatar()->frame().AccessibleName(), u"Maxi, Change name and picture");
}

} // namespace
} // namespace molmasse
