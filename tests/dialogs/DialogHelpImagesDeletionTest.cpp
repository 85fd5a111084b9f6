#include "DialogHelpImagesTest.h"
#include "support/LimitedDisk.h"

namespace phial
{

namespace
{

TEST_F(DialogHelpImages, DeletesOnlyWhereItIsAllowed)
{
    putPages(1);
    dialog.More().Set(u"DELETE", 1);
    open();
    EXPECT_FALSE(button(u"but_Delete").Visible());
}

TEST_F(DialogHelpImages, DeletesNothingWithoutAYes)
{
    putPages(2);
    allowDeletion();
    open();
    EXPECT_TRUE(button(u"but_Delete").Visible());
    answer(DialogAnswer::No);
    press(u"but_Delete");
    EXPECT_EQ(dialog.Files().Count(), 2);
    EXPECT_TRUE(folder.has("Hilfe/01.gif"));
}

TEST_F(DialogHelpImages, ShowsThePageBeforeTheDeletedOne)
{
    putPages(3);
    allowDeletion();
    open();
    strike(Key::End);
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_FALSE(folder.has("Hilfe/03.gif"));
    EXPECT_EQ(shownPage(), u"2 / 2");
    EXPECT_FALSE(form.find(u"bar_Progress", 3));
    strike(Key::Home);
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_EQ(dialog.Files(), (CoreStringList{at(u"02.gif")}));
    EXPECT_EQ(dialog.Page(), 1);
}

TEST_F(DialogHelpImages, ClosesWhenTheLastPageIsDeleted)
{
    putPages(1);
    allowDeletion();
    open();
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(folder.has("Hilfe/01.gif"));
}

TEST_F(DialogHelpImages, DeletesThePageThatARunningSlideGoesTo)
{
    putPages(3);
    allowDeletion();
    open();
    headless::click(button(u"but_Next"));
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_EQ(dialog.Files(), (CoreStringList{at(u"01.gif"), at(u"03.gif")}));
}

TEST_F(DialogHelpImages, TellsOfAFolderThatIsReadOnlyAndLosesNothing)
{
    putPages(2);
    allowDeletion();
    folder.write("Hilfe/01.txt", "Wasser");
    const std::vector<std::string> before = folder.names("Hilfe");
    const auto disk = test::LimitedDisk::readOnly(folder.native() / "Hilfe");
    if (!disk.isInForce()) {
        outside.files().protect(folder.native() / "Hilfe");
    }
    open();
    for (const std::int32_t shown : {1, 2}) {
        answer(DialogAnswer::Yes);
        outside.dialogs().expect(headless::Box::Error,
                                 u"Die Lösung lässt sich nicht löschen. Die Datei ist geschützt.");
        press(u"but_Delete");
        EXPECT_EQ(dialog.Files(), (CoreStringList{at(u"01.gif"), at(u"02.gif")}));
        EXPECT_EQ(dialog.Page(), shown);
        EXPECT_TRUE(page(1).Picture());
        EXPECT_EQ(folder.names("Hilfe"), before);
        strikeAndWait(Key::Right);
    }
}

TEST_F(DialogHelpImages, AsksInEnglish)
{
    LNG()->CURRENT(ID_Language_English);
    putPages(1);
    allowDeletion();
    open();
    outside.dialogs().expectYesNo(DialogAnswer::No, u"Do you really want to delete this solution?");
    press(u"but_Delete");
}

} // namespace

} // namespace phial
