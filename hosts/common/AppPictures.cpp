#include "common/AppPictures.h"

#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/screen/frm_AppAbout.h"
#include "app/sys_Global.h"
#include "common/FrameDesign.h"
#include "common/PicturedMaster.h"
#include "common/frm_LearningApp.h"
#include "common/frm_MasterChoice.h"
#include "core/CoreMachine.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "core/CoreSystem.h"
#include "core/NativePath.h"
#include "core/SessionState.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "results/cls_DataScores.h"
#include "server/cls_AppServer.h"
#include "visual/ListView.h"

#include <algorithm>
#include <filesystem>

namespace learning
{

using phial::QVAPP;
using phial::String;
using phial::StringView;

namespace
{

using Take = std::function<void(StringView name, const phial::Form& form)>;

/// From here on these have worked here before, the latest first; each is a name, ":" and an avatar's ID.
void usersAre(std::initializer_list<StringView> users)
{
    phial::coreRoot().CoreRegistry().CoreRegistryWrite().WriteList(
        phial::SettingsHive::CurrentUser, phial::settings::path(u"Config\\ScreenNameMRU"),
        phial::CoreStringList(users));
}

/// A folder for the lists of the pictured rounds, which goes with the object.
class ScratchLists
{
public:
    ScratchLists()
        : before_(QVAPP()->URL()->DATAHIGHSCORES()),
          folder_(std::filesystem::temp_directory_path() /
                  phial::toUtf8(phial::coreRoot().CoreSystem().CoreMachine().NewUniqueID()))
    {
        std::filesystem::create_directories(folder_);
        QVAPP()->URL()->DATAHIGHSCORES(phial::systemPath(folder_) + u"\\");
        fill();
    }
    ~ScratchLists()
    {
        QVAPP()->URL()->DATAHIGHSCORES(before_);
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    ScratchLists(const ScratchLists&) = delete;
    ScratchLists& operator=(const ScratchLists&) = delete;

private:
    /// Some have been here before.
    static void fill()
    {
        phial::cls_DataScores list;
        list.ADD(94, 100, u"Leicht", nullptr, {}, {}, u"Uli");
        list.ADD(91, 100, u"Mittel", nullptr, {}, {}, u"Dorothea");
        list.ADD(70, 100, u"Schwer", nullptr, {}, {}, u"Jannis");
        list.SAVE(QVAPP()->URL()->DATAHIGHSCORES() + u"HIGHSCORE.qv-hsr");
    }

    String before_;
    std::filesystem::path folder_;
};

/// What the names of this app's pictures begin with.
String pictureName()
{
    return phial::lowerCase(QVAPP()->CONFIG()->IDENT()) + u"-";
}

/// A classroom of its own for the pictures.
std::shared_ptr<PicturedMaster> newClassroom()
{
    auto master = std::make_shared<PicturedMaster>();
    QVAPP()->SERVER(std::make_shared<phial::cls_AppServer>());
    QVAPP()->SERVER()->CLIENT(master);
    return master;
}

struct PictureSize {
    double width;
    double height;
    StringView name;
};

/// The app with a user who knows the states he wants to see.
class Tour
{
public:
    Tour(std::unique_ptr<LearningApp> app, const Take& take, StringView language)
        : window_(std::move(app)), take_(take), language_(language)
    {
        window_.deafFor(0);
        window_.Show();
    }

    ~Tour() { window_.form().discard(); }
    Tour(const Tour&) = delete;
    Tour& operator=(const Tour&) = delete;

    /// Of the window's inside, where it is not to be the usual one.
    void size(phial::PixelSize size) { size_ = size; }

    void showRound()
    {
        makeRoomForMascot();
        take(u"start");
        press(u"but_Level",
              static_cast<std::int32_t>(std::min(window_.app().levels().size(), MostLevelsShown)) - 1);
        take(u"task");
        press(u"but_Reference");
        take(u"reference");
        press(u"but_Reference");
        answer(Judgement::Wrong);
        take(u"wrong");
        press(u"but_Hint");
        take(u"hint");
        answer(Judgement::Unreadable);
        take(u"unreadable");
        answer(Judgement::Right);
        take(u"right");
        press(u"but_Check");
        for (int tries = 0; tries < Round::Tries; ++tries) {
            answer(Judgement::Wrong);
        }
        take(u"missed");
        finishRound();
        take(u"summary");
        const auto review = window_.form().control<phial::ListView>(u"lst_Review");
        review->inputChoice(std::min(2, review->ITEMS()->Count()));
        take(u"working");
    }

    /// The pages with most of the colours.
    void showColours()
    {
        makeRoomForMascot();
        take(u"start");
        press(u"but_Level", 0);
        answer(Judgement::Wrong);
        take(u"wrong");
        answer(Judgement::Right);
        take(u"right");
        finishRound();
        take(u"summary");
    }

    /// The insides of windows on the screens that schools have; the second one at 125 %.
    void showSizes()
    {
        makeRoomForMascot();
        press(u"but_Level", 0);
        answer(Judgement::Wrong);
        answer(Judgement::Wrong); // the mascot has something to say
        constexpr PictureSize Sizes[] = {{1024, 572, u"1024x600"},
                                         {1093, 580, u"1366x768"},
                                         {1920, 1050, u"1920x1080"},
                                         {3840, 2130, u"3840x2160"}};
        for (const PictureSize& size : Sizes) {
            window_.form().Width(size.width * phial::TwipsPerPixel);
            window_.form().Height(size.height * phial::TwipsPerPixel);
            take(size.name);
        }
    }

    void showClassroom(PicturedMaster& master)
    {
        master.mood(PicturedMaster::Mood::Waiting);
        window_.welcome();
        take(u"waiting");
        master.mood(PicturedMaster::Mood::Open);
        press(u"but_Ask");
        take(u"classroom");
    }

    void take(StringView state)
    {
        take_(String(pictureName()).append(state).append(u"-").append(language_), window_.form());
    }

private:
    void makeRoomForMascot()
    {
        window_.form().innerSize(size_.value_or(phial::PixelSize{window_.wideWidth(), frame_design::Height}));
        window_.welcome();
    }
    void press(StringView button, std::int32_t index = -1)
    {
        window_.form().control<phial::ctl_Button>(button, index)->click();
    }

    void answer(LearningApp::Sample sample)
    {
        window_.app().fill(sample);
        press(u"but_Check");
    }

    void finishRound()
    {
        while (!window_.round()->finished()) {
            press(u"but_Check");
            answer(Judgement::Right);
        }
        press(u"but_Check");
    }

    frm_LearningApp window_;
    const Take& take_;
    StringView language_;
    std::optional<phial::PixelSize> size_;
};

void showMasterChoice(StringView language, const Take& take)
{
    frm_MasterChoice dialog(u"192.168.10.5", [] {
        return std::vector<phial::FoundMaster>{{u"192.168.10.5", {}}, {u"192.168.10.20", {}}};
    });
    dialog.form().Show();
    dialog.form().control<phial::ctl_Button>(u"but_Search")->click();
    take(pictureName() + u"master-choice-" + String(language), dialog.form());
    dialog.form().Unload();
}

void showAbout(StringView language, const Take& take)
{
    phial::frm_AppAbout about;
    about.form().Show();
    take(pictureName() + u"about-" + String(language), about.form());
    about.form().Unload();
}

/// The help book's menu, and the first page of the chapter that belongs to a task.
void showHelp(StringView language, const Take& take)
{
    const auto show = [&](StringView name, StringView chapter) {
        phial::frm_DialogHelpImages help;
        help.More().Set(u"CHAPTER", String(chapter));
        help.form().Show();
        take(pictureName() + String(name) + String(language), help.form());
        help.form().Unload();
    };
    show(u"help-", {});
    show(u"help-chapter-", u"K1");
}

/// The app without the data that it needs.
void showMissing(const MakeApp& makeApp, const Take& take, StringView language)
{
    const auto& folders = QVAPP()->URL();
    const String shared = folders->DATASHARED();
    const String own = folders->DATAAPP();
    folders->DATASHARED(u"Resources\\Data\\");
    folders->DATAAPP(u"apps\\data\\");
    auto app = makeApp();
    folders->DATASHARED(shared);
    folders->DATAAPP(own);
    Tour(std::move(app), take, language).take(u"missing");
}

void showInOtherColours(StringView language, const MakeApp& makeApp, const Take& take)
{
    constexpr std::pair<phial::ColourSet, StringView> Sets[] = {
        {phial::ColourSet::Dark, u"dark"}, {phial::ColourSet::HighContrast, u"contrast"}};
    const auto before = phial::coreTheme().chosenColours();
    for (const auto& [set, name] : Sets) {
        phial::coreTheme().SetColours(set);
        const String where = String(language) + u"-" + String(name);
        Tour(makeApp(), take, where).showColours();
        showMasterChoice(where, take);
        showAbout(where, take);
        showHelp(where, take);
    }
    phial::coreTheme().SetColours(before);
}

/// Else it says what is missing, in its window.
bool canWork(const MakeApp& makeApp)
{
    return !QVAPP()->URL()->ROOT().empty() && makeApp()->missing().empty();
}

void showIn(phial::enm_LanguageC language, StringView name, const MakeApp& makeApp, const Take& take)
{
    phial::LNG()->CURRENT(language);
    if (canWork(makeApp)) {
        const ScratchLists lists;
        newClassroom();
        usersAre({});
        Tour(makeApp(), take, name).take(u"nobody");
        usersAre({u"Dorothea Wilhelmina:eule"});
        Tour(makeApp(), take, name).take(u"long-name");
        usersAre({u"Maxi:fuchs"});
        QVAPP()->USER()->SCREENNAME(u"Maxi");
        Tour(makeApp(), take, name).showRound();
        if (language == phial::ID_Language_German) {
            Tour(makeApp(), take, name).showSizes();
        }
        showInOtherColours(name, makeApp, take);
        Tour(makeApp(), take, name).showClassroom(*newClassroom());
        showMasterChoice(name, take);
        showHelp(name, take);
    }
    showMissing(makeApp, take, name);
    showAbout(name, take);
}

/// A round alone.
void showRoundIn(phial::enm_LanguageC language, StringView name, const MakeApp& makeApp, const Take& take)
{
    constexpr StringView States[] = {u"start", u"task", u"wrong", u"hint", u"right", u"summary"};
    const Take takeSome = [&](StringView picture, const phial::Form& form) {
        if (std::ranges::any_of(States, [&](StringView state) {
                return picture == String(pictureName()).append(state).append(u"-").append(name);
            })) {
            take(picture, form);
        }
    };
    phial::LNG()->CURRENT(language);
    if (!canWork(makeApp)) {
        showMissing(makeApp, take, name);
        return;
    }
    const ScratchLists lists;
    newClassroom();
    usersAre({u"Maxi:fuchs"});
    QVAPP()->USER()->SCREENNAME(u"Maxi");
    Tour tour(makeApp(), takeSome, name);
    if (language == phial::ID_Language_German) {
        tour.size({1024, 572});
    }
    tour.showRound();
}

} // namespace

void showEachState(const MakeApp& makeApp, PictureTour tour, const Take& take)
{
    const auto show = tour == PictureTour::Whole ? showIn : showRoundIn;
    const phial::enm_LanguageC before = phial::LNG()->CURRENT();
    show(phial::ID_Language_German, u"de", makeApp, take);
    show(phial::ID_Language_English, u"en", makeApp, take);
    phial::LNG()->CURRENT(before);
}

} // namespace learning
