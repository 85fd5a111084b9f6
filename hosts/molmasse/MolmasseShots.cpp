#include "molmasse/MolmasseShots.h"

#include "app/Settings.h"
#include "app/cls_Language.h"
#include "app/screen/frm_AppAbout.h"
#include "app/sys_Global.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "molmasse/frm_Molmasse.h"

namespace molmasse
{

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

/// The trainer with a user who knows the states he wants to see.
class Tour
{
public:
    Tour(TrainerData data, const Take& take, StringView language)
        : window_(std::move(data)), take_(take), language_(language)
    {
        window_.Show();
    }

    ~Tour() { window_.form().Unload(); }
    Tour(const Tour&) = delete;
    Tour& operator=(const Tour&) = delete;

    void showRound(std::int32_t level)
    {
        take(u"start");
        press(u"but_Level", level);
        take(u"task");
        answer(u"12,3");
        take(u"wrong");
        press(u"but_Hint");
        take(u"hint");
        answer(u"viel");
        take(u"no-number");
        answer(solution());
        take(u"right");
        press(u"but_Check");
        for (int tries = 0; tries < Round::Tries; ++tries) {
            answer(u"1");
        }
        take(u"missed");
        finishRound();
        take(u"summary");
    }

    void take(StringView state)
    {
        take_(String(u"molmasse-").append(state).append(u"-").append(language_), window_.form());
    }

private:
    void press(StringView button, std::int32_t index = -1)
    {
        window_.form().control<phial::ctl_Button>(button, index)->click();
    }

    void answer(StringView text)
    {
        window_.form().control<phial::TextBox>(u"txt_Answer")->Text(String(text));
        press(u"but_Check");
    }

    String solution() const { return massText(window_.round()->solution()); }

    void finishRound()
    {
        while (!window_.round()->finished()) {
            press(u"but_Check");
            answer(solution());
        }
        press(u"but_Check");
    }

    frm_Molmasse window_;
    const Take& take_;
    StringView language_;
};

void showAbout(StringView language, const Take& take)
{
    phial::frm_AppAbout about;
    about.form().Show();
    take(String(u"molmasse-about-").append(language), about.form());
    about.form().Unload();
}

void showIn(phial::enm_LanguageC language, StringView name, const Take& take)
{
    phial::LNG()->CURRENT(language);
    const TrainerData data = loadTrainerData();
    if (data.missing == Missing::Nothing) {
        usersAre({});
        Tour(data, take, name).take(u"nobody");
        usersAre({u"Dorothea Wilhelmina:eule"});
        Tour(data, take, name).take(u"long-name");
        usersAre({u"Maxi:fuchs"});
        Tour(data, take, name).showRound(static_cast<std::int32_t>(data.tasks.levels.size()) - 1);
    }
    TrainerData broken;
    broken.missing = Missing::Elements;
    broken.file = u"Resources\\Data\\elements2.dat";
    Tour(broken, take, name).take(u"missing");
    showAbout(name, take);
}

} // namespace

void showEachState(const Take& take)
{
    const phial::enm_LanguageC before = phial::LNG()->CURRENT();
    showIn(phial::ID_Language_German, u"de", take);
    showIn(phial::ID_Language_English, u"en", take);
    phial::LNG()->CURRENT(before);
}

} // namespace molmasse
