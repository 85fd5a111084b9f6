#include "app/cls_Language.h"
#include "molmasse/ClassroomTest.h"

namespace molmasse
{
namespace
{

using phial::String;
using phial::headless::Box;

// The choice of another master.
class TrainerMasterChoice : public ClassroomTest
{
protected:
    /// Opens the dialog from the footer; `play` sits before it once the search is over.
    void choose(std::function<void(phial::Form& dialog)> play)
    {
        outside.visual().onModal(u"frm_MasterChoice", [this, play](phial::Form& dialog) {
            outside.advance(0.01);
            play(dialog);
        });
        touch(u"but_Classroom");
    }

    static String found(phial::Form& dialog)
    {
        return dialog.control<phial::ctl_Label>(u"lab_Found")->Caption();
    }
    static String typed(phial::Form& dialog)
    {
        return dialog.control<phial::TextBox>(u"txt_Address")->Text();
    }
};

TEST_F(TrainerMasterChoice, TakesATypedAddressAndKeepsIt)
{
    isThere = false;
    enter();
    isThere = true;
    choose([](phial::Form& dialog) {
        EXPECT_EQ(typed(dialog), u"127.0.0.1");
        EXPECT_EQ(found(dialog), u"Keiner hat geantwortet.");
        phial::headless::type(dialog, u" 10.1.2.3 {enter}");
    });

    EXPECT_EQ(seen(u"lab_Classroom"), u"Im Klassenraum angemeldet (10.1.2.3)");
    EXPECT_EQ(outside.network().requests().back().address, u"10.1.2.3");
    EXPECT_EQ(phial::cls_AppServerConfig().SERVERIP(), u"10.1.2.3");
    EXPECT_TRUE(isSeen(u"pan_Start"));
}

TEST_F(TrainerMasterChoice, TakesAnAddressFromTheKeyboardOfTouchMode)
{
    isThere = false;
    enter();
    isThere = true;
    phial::QVAPP()->CONFIG()->TOUCHMODE(true);
    choose([this](phial::Form& dialog) {
        outside.visual().onModal(u"frm_DialogKeyboard", [](phial::Form& keyboard) {
            EXPECT_EQ(keyboard.control<phial::ctl_Label>(u"lab_Title")->Caption(), u"Adresse des Masters");
            keyboard.control<phial::TextBox>(u"txt_Input")->Text(u"10.1.2.3");
            phial::headless::type(keyboard, u"{enter}");
        });
        const auto address = dialog.control<phial::TextBox>(u"txt_Address");
        phial::headless::click(*address);
        EXPECT_EQ(address->Text(), u"10.1.2.3");
        phial::headless::type(dialog, u"{enter}");
    });
    EXPECT_EQ(outside.network().requests().back().address, u"10.1.2.3");
}

TEST_F(TrainerMasterChoice, OffersTheMastersThatAnswer)
{
    phial::cls_AppServerConfig other;
    other.SETTINGS()->Set(u"WELCOMEMESSAGE", u"Hallo!");
    settings.Set(u"WELCOMEMESSAGE", u"Hallo!");
    isThere = false;
    open({}, [&] { return std::vector<phial::FoundMaster>{{u"10.1.2.3", other.PACK()}, {u"10.1.2.4", {}}}; });
    trainer->welcome();
    isThere = true;

    outside.dialogs().expect(Box::Info, u"Hallo!");
    choose([](phial::Form& dialog) {
        EXPECT_EQ(found(dialog), u"2 haben geantwortet.");
        const auto list = dialog.control<phial::ListBox>(u"lst_Masters");
        ASSERT_EQ(list->ListCount(), 2);
        list->ListIndex(1);
        EXPECT_EQ(typed(dialog), u"10.1.2.4");
        list->ListIndex(0);
        phial::headless::click(*dialog.control<phial::ctl_Button>(u"but_Connect"));
    });
    EXPECT_EQ(outside.network().requests().back().address, u"10.1.2.3");
}

TEST_F(TrainerMasterChoice, LeavesEverythingWhenItIsAborted)
{
    enter();
    const std::size_t before = messages.size();
    choose([](phial::Form& dialog) { phial::headless::type(dialog, u"10.1.2.3{esc}"); });

    EXPECT_EQ(messages.size(), before);
    EXPECT_EQ(phial::cls_AppServerConfig().SERVERIP(), u"127.0.0.1");
}

TEST_F(TrainerMasterChoice, DoesNotConnectToNowhere)
{
    enter();
    choose([](phial::Form& dialog) {
        phial::headless::type(dialog, u"{del}{enter}");
        EXPECT_TRUE(dialog.Visible());
        EXPECT_FALSE(dialog.control<phial::ctl_Button>(u"but_Connect")->Enabled());
        dialog.Unload();
    });
}

TEST_F(TrainerMasterChoice, LogsOffFromTheMasterThatIsLeft)
{
    enter();
    choose([](phial::Form& dialog) { phial::headless::type(dialog, u"10.1.2.3{enter}"); });

    EXPECT_EQ(sent(u"SERVER::LOGOFF::").size(), 1U);
}

TEST_F(TrainerMasterChoice, SearchesAgainAndFollowsTheLanguage)
{
    int searches = 0;
    open({}, [&] {
        ++searches;
        return std::vector<phial::FoundMaster>{{u"10.1.2.3", {}}};
    });
    trainer->welcome();
    choose([&](phial::Form& dialog) {
        phial::headless::click(*dialog.control<phial::ctl_Button>(u"but_Search"));
        EXPECT_EQ(searches, 2);
        EXPECT_EQ(dialog.control<phial::ListBox>(u"lst_Masters")->ListCount(), 1);
        phial::LNG()->CURRENT(phial::ID_Language_English);
        EXPECT_EQ(dialog.Caption(), u"Classroom");
        EXPECT_EQ(found(dialog), u"One has answered.");
        dialog.Unload();
    });
}

TEST_F(TrainerMasterChoice, IsNotOfferedDuringARound)
{
    enter();
    EXPECT_TRUE(isSeen(u"but_Classroom"));
    touch(u"but_Level", 0);
    EXPECT_FALSE(isSeen(u"but_Classroom"));
}

} // namespace
} // namespace molmasse
