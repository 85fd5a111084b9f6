#include "app/frm_DialogUser.h"

#include "app/FormTexts.h"
#include "app/RecentNames.h"
#include "app/cls_App.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/screen/Avatars.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "media/cls_AppMedia.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace user_design = dialog_user_design;

namespace
{

constexpr std::size_t ShortestName = 3;
constexpr std::size_t LongestName = 20;
constexpr StringView NoName = u"Ohne Namen geht's leider nicht!";
constexpr StringView NameTooShort = u"Das iss aber 'n bisschen kurz! (Bitte mindestens 3 Zeichen eingeben!)";
constexpr StringView NameTooLong = u"Iss das nich 'n bisschen viel? (Bitte maximal 20 Zeichen eingeben!)";

constexpr double LastInset = 4; // between the edge of a place and its picture

/// What is wrong with a name; empty for nothing.
StringView objection(const String& name)
{
    return name.empty()                 ? NoName
           : name.size() < ShortestName ? NameTooShort
           : name.size() > LongestName  ? NameTooLong
                                        : StringView();
}

/// The picture of a place: a tile, with the avatar when there is one.
PicturePtr tile(PixelSize size, const PicturePtr& avatar)
{
    DrawDevice device(visualHost().createSurface(size, visualHost().pixelRatio()));
    device.Line(0, 0, size.width - 1, size.height - 1, Palette::Divider, LineShape::Box);
    device.Line(1, 1, size.width - 2, size.height - 2, Palette::Surface, LineShape::Filled);
    if (avatar) {
        paintAvatar(device, avatar,
                    {LastInset, LastInset, size.width - 2 * LastInset, size.height - 2 * LastInset});
    }
    return device.Image();
}

String login()
{
    return coreRoot().CoreSystem().CoreMachine().UserName();
}

} // namespace

frm_DialogUser::frm_DialogUser()
    : form_(user_design::Design), screenName_(form_->control<TextBox>(u"txt_Screenname")),
      names_(form_->control<ComboBox>(u"cbo_Names")), lastPictures_(*form_, u"pic_Last"),
      lastNames_(*form_, u"lab_Last")
{
    lastPictures_.adopt();
    lastNames_.adopt();
    connect();
    connectLast();
    TRANSLATE();
}

void frm_DialogUser::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogUser::connect()
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) { keyDown(event); });
    form_.on(coreTheme().COLOURSCHANGED, [this](ColourSet) {
        lastPictures_.each([this](auto&, std::int32_t place) { drawPlace(place); });
    });
    form_.on(screenName_->Click, [this] { openKeyboard(); });
    form_.on(names_->Click, [this] { takeName(); });
    form_.command(u"bar_Buttons", user_design::Confirm, [this] { confirm(); });
    form_.command(u"bar_Buttons", user_design::Abort, [this] { abort(); });
    const auto avatars = form_->control<PictureBox>(u"pic_Avatars");
    const auto edge = form_->control<Shape>(u"shp_AvatarHolder");
    form_.on(avatars->GotFocus, [edge = edge.get()] { edge->BorderColor(Palette::Accent); });
    form_.on(avatars->LostFocus, [edge = edge.get()] { edge->BorderColor(Palette::Divider); });
}

void frm_DialogUser::connectLast()
{
    const auto confirmLast = [this](std::int32_t place) {
        if (!lastPictures_(place)->Tag().empty()) {
            takeLast(place);
            confirm();
        }
    };
    const auto wire = [this, confirmLast](auto& control, std::int32_t place) {
        form_.on(control.Click, [this, place] { takeLast(place); });
        form_.on(control.DblClick, [confirmLast, place] { confirmLast(place); });
    };
    lastPictures_.each(wire);
    lastNames_.each(wire);
}

void frm_DialogUser::TRANSLATE()
{
    translateForm(form_);
    for (std::int32_t place = 0; place < user_design::LastPlaces; ++place) {
        if (const auto& name = lastShown_[static_cast<std::size_t>(place)]) {
            lastNames_(place)->Caption(*name);
        }
    }
    fillNames();
}

void frm_DialogUser::load()
{
    picker_ = std::make_unique<AvatarPicker>(AvatarPicker::Parts{
        form_->control<PictureBox>(u"pic_AvatarHolder"), form_->control<PictureBox>(u"pic_Avatars"),
        form_->control<Shape>(u"shp_Avatar"), form_->control<ScrollBar>(u"srl_Avatars")});
    form_.on(picker_->Selected, [this] { userAvatar_ = QVAPP()->USER()->AVATARID(picker_->selected()); });
    picker_->select(1);
    screenName_->Text(login());
    fillLast();
    screenName_->SelStart(0);
    screenName_->SelLength(static_cast<std::int32_t>(screenName_->Text().size()));
}

void frm_DialogUser::fillLast()
{
    const std::vector<RecentName> names = recentNames();
    for (std::int32_t place = 0; place < user_design::LastPlaces; ++place) {
        const auto at = static_cast<std::size_t>(place);
        if (at < names.size()) {
            fillPlace(place, names[at].name, names[at].avatar);
        }
        drawPlace(place);
    }
    if (names.empty()) {
        offerNames();
        return;
    }
    screenName_->Text(names.front().name);
    selectAvatar(names.front().avatar);
}

/// Where nobody has been here yet.
void frm_DialogUser::offerNames()
{
    screenName_->Width(user_design::NameBesideChoice);
    form_->control<ctl_Label>(u"lab_Names")->Visible(true);
    names_->Visible(true);
}

/// In the language in force; the name that was taken stays in its field.
void frm_DialogUser::fillNames()
{
    form_->control<ctl_Label>(u"lab_Names")->Caption(LNG()->TRANSLATEAUTO(user_design::NamesTitle));
    names_->Clear();
    for (const StringView name : user_design::FriendlyNames) {
        names_->AddItem(LNG()->TRANSLATEAUTO(name));
    }
}

void frm_DialogUser::takeName()
{
    if (names_->ListIndex() >= 0) {
        screenName_->Text(names_->List(names_->ListIndex()));
    }
}

void frm_DialogUser::fillPlace(std::int32_t place, const String& name, const String& avatar)
{
    const auto picture = lastPictures_(place);
    picture->Tag(avatar);
    picture->frame().AccessibleName(name);
    const auto label = lastNames_(place);
    label->Caption(name);
    label->Tag(avatar);
    label->ForeColor(Palette::Ink);
    lastShown_[static_cast<std::size_t>(place)] = name;
}

void frm_DialogUser::drawPlace(std::int32_t place)
{
    const auto picture = lastPictures_(place);
    const bool taken = lastShown_[static_cast<std::size_t>(place)].has_value();
    picture->frame().TabStop(!picture->Tag().empty());
    picture->Picture(
        tile(picture->surface().size(), taken ? QVAPP()->USER()->AVATARICON(picture->Tag()) : nullptr));
}

void frm_DialogUser::takeLast(std::int32_t place)
{
    const String avatar = lastPictures_(place)->Tag();
    if (!avatar.empty()) {
        screenName_->Text(lastNames_(place)->Caption());
        selectAvatar(avatar);
    }
}

/// An avatar that is not in the store any more leaves the present one selected.
void frm_DialogUser::selectAvatar(const String& avatar)
{
    ignoringErrors([&] { picker_->select(QVAPP()->USER()->AVATARINDEX(avatar)); });
}

void frm_DialogUser::openKeyboard()
{
    QVAPP()->DIALOG()->TEXTINPUT(screenName_, LNG()->TRANSLATE(u"Dein Name", u"Your name"));
}

void frm_DialogUser::confirm()
{
    const String name = trimmed(screenName_->Text());
    screenName_->Text(name);
    if (const StringView warning = objection(name); !warning.empty()) {
        QVAPP()->MEDIA()->PLAYCATEGORY(u"wrong", false);
        coreRoot().CoreDialogs().Error(warning);
        return;
    }
    userResult_ = u"True";
    const auto user = QVAPP()->USER();
    user->SCREENNAME(name);
    user->AVATAR(userAvatar_);
    rememberName({name, userAvatar_});
    form_->Unload();
}

void frm_DialogUser::abort()
{
    userResult_ = u"False";
    form_->Unload();
}

std::optional<std::int32_t> frm_DialogUser::focusedPlace() const
{
    const ControlPtr active = form_->ActiveControl();
    for (std::int32_t place = 0; place < user_design::LastPlaces; ++place) {
        if (active == lastPictures_(place)) {
            return place;
        }
    }
    return std::nullopt;
}

/// The space bar takes the entry that has the focus, Return takes it and confirms. A button of the bar hears
/// Return itself.
void frm_DialogUser::keyDown(KeyEvent& event)
{
    const std::optional<std::int32_t> place = focusedPlace();
    if (event.is(Key::Escape)) {
        event.KeyCode = 0;
        abort();
    } else if (event.is(Key::Space) && place) {
        event.KeyCode = 0;
        takeLast(*place);
    } else if (event.is(Key::Return) && form_->ActiveControl() != form_->find(u"bar_Buttons")) {
        event.KeyCode = 0;
        if (place) {
            takeLast(*place);
        }
        confirm();
    }
}

} // namespace phial
