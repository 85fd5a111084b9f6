#include "app/frm_DialogUser.h"

#include "app/RecentNames.h"
#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/screen/Avatars.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/RuntimeError.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace layout = dialog_user_layout;

namespace
{

constexpr StringView Confirm = u"DIALOG.OK();";
constexpr StringView Abort = u"DIALOG.ABORT();";

constexpr std::size_t ShortestName = 3;
constexpr std::size_t LongestName = 20;
constexpr StringView NoName = u"Ohne Namen geht's leider nicht!";
constexpr StringView NameTooShort = u"Das iss aber 'n bisschen kurz! (Bitte mindestens 3 Zeichen eingeben!)";
constexpr StringView NameTooLong = u"Iss das nich 'n bisschen viel? (Bitte maximal 20 Zeichen eingeben!)";

constexpr Colour Blue = RGB(0, 106, 181);
constexpr Colour DarkBlue = RGB(0, 64, 118);
constexpr Colour Paper = RGB(246, 249, 252);
constexpr Colour White = RGB(255, 255, 255);
constexpr Colour Line = RGB(196, 212, 226);
constexpr Colour Dark = RGB(28, 40, 54);
constexpr Colour Quiet = RGB(84, 100, 118);

constexpr double LastInset = 4; // between the edge of a place and its picture

/// What is wrong with a name; empty for nothing.
StringView objection(const String& name)
{
    return name.empty()                 ? NoName
           : name.size() < ShortestName ? NameTooShort
           : name.size() > LongestName  ? NameTooLong
                                        : StringView();
}

FontPtr font(double size, bool bold = false)
{
    return std::make_shared<Font>(FontSpec{.name = u"Tahoma", .size = size, .bold = bold});
}

/// The picture of a place: a tile, with the avatar when there is one. It shows whether it has the focus.
PicturePtr tile(PixelSize size, const PicturePtr& avatar, bool focused)
{
    DrawDevice device(visualHost().createSurface(size, visualHost().pixelRatio()));
    device.Line(0, 0, size.width - 1, size.height - 1, focused ? Blue : Line, LineShape::Filled);
    const double edge = focused ? 3 : 1;
    device.Line(edge, edge, size.width - 1 - edge, size.height - 1 - edge, White, LineShape::Filled);
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
    : form_(std::make_shared<Form>(u"frm_DialogUser")), lastPictures_(*form_, u"pic_Last"),
      lastNames_(*form_, u"lab_Last")
{
    build();
    style();
    connect();
    TRANSLATE();
}

frm_DialogUser::~frm_DialogUser()
{
    form_->discard();
}

void frm_DialogUser::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogUser::build()
{
    form_->Caption(u"Name und Bild|Name and picture");
    form_->ScaleMode(ScaleUnit::Pixels);
    form_->BorderStyle(BorderStyle::FixedDialog);
    form_->innerSize({layout::Width, layout::Height});
    form_->centred(true);
    form_->KeyPreview(true);
    for (const LayoutItem& item : layout::Items) {
        applyLayout(*form_, {&item, 1});
        const auto control = form_->control<Control>(item.name, item.index);
        if (Container* inner = control->container()) {
            inner->ScaleMode(ScaleUnit::Pixels);
        }
        control->frame().TabIndex(static_cast<std::int32_t>(&item - std::begin(layout::Items)));
    }
    screenName_ = form_->control<TextBox>(u"txt_Screenname");
    lastPictures_.adopt();
    lastNames_.adopt();
    const auto buttons = form_->control<ctl_CmdBar>(u"bar_Buttons")->BUTTONS();
    buttons->Add(String(Confirm), u"OK|OK");
    buttons->Add(String(Abort), u"Abbrechen|Cancel");
}

void frm_DialogUser::style()
{
    form_->BackColor(Paper);
    const auto header = form_->control<ctl_Gradient>(u"bar_Header");
    header->Color1(Blue);
    header->Color2(DarkBlue);
    const auto title = form_->control<ctl_Label>(u"lab_Title");
    title->Font(font(18, true));
    title->ForeColor(White);
    for (const auto* name : {u"Label1", u"lab_Recent", u"lab_Avatars"}) {
        const auto label = form_->control<ctl_Label>(name);
        label->Font(font(11));
        label->ForeColor(Dark);
    }
    screenName_->Font(font(15));
    lastNames_.each([](ctl_Label& label, std::int32_t) {
        label.Font(font(11));
        label.ForeColor(Quiet);
        label.PlainText(true);
    });
    for (const auto* name : {u"pic_AvatarHolder", u"pic_Avatars"}) {
        form_->control<PictureBox>(name)->BackColor(White);
    }
    form_->control<Shape>(u"shp_AvatarHolder")->BorderColor(Line);
    const auto marker = form_->control<Shape>(u"shp_Avatar");
    marker->Kind(ShapeKind::RoundedRectangle);
    marker->BorderColor(Blue);
    marker->BorderWidth(3);
    form_->control<PictureBox>(u"pic_Avatars")->frame().canFocus(true);
    lastPictures_.each([](PictureBox& picture, std::int32_t) { picture.frame().canFocus(true); });
}

void frm_DialogUser::connect()
{
    connections_ += form_->Load.connect([this] { load(); });
    connections_ += form_->TRANSLATE.connect([this] { TRANSLATE(); });
    connections_ += form_->KeyDown.connect([this](KeyEvent& event) { keyDown(event); });
    connections_ += screenName_->Click.connect([this] { openKeyboard(); });
    connections_ +=
        form_->control<ctl_CmdBar>(u"bar_Buttons")->BUTTON.connect([this](std::int32_t, const String& key) {
            command(key);
        });
    const auto confirmLast = [this](std::int32_t place) {
        if (!lastPictures_(place)->Tag().empty()) {
            takeLast(place);
            confirm();
        }
    };
    const auto wire = [this, confirmLast](auto& control, std::int32_t place) {
        connections_ += control.Click.connect([this, place] { takeLast(place); });
        return control.DblClick.connect([confirmLast, place] { confirmLast(place); });
    };
    lastPictures_.connectEach(wire);
    lastNames_.connectEach(wire);
    lastPictures_.each([this](PictureBox& picture, std::int32_t place) {
        connections_ += picture.GotFocus.connect([this, place] { drawPlace(place); });
        connections_ += picture.LostFocus.connect([this, place] { drawPlace(place); });
    });
    const auto avatars = form_->control<PictureBox>(u"pic_Avatars");
    const auto edge = form_->control<Shape>(u"shp_AvatarHolder");
    connections_ += avatars->GotFocus.connect([edge = edge.get()] { edge->BorderColor(Blue); });
    connections_ += avatars->LostFocus.connect([edge = edge.get()] { edge->BorderColor(Line); });
}

// The design texts are gathered by the first walk, before any field shows what is no text of the form.
void frm_DialogUser::TRANSLATE()
{
    LNG()->Form(*form_, texts_);
    for (std::int32_t place = 0; place < layout::LastPlaces; ++place) {
        if (const auto& name = lastShown_[static_cast<std::size_t>(place)]) {
            lastNames_(place)->Caption(*name);
        }
    }
    screenName_->frame().AccessibleName(LNG()->TRANSLATE(u"Dein Name", u"Your name"));
    form_->control<PictureBox>(u"pic_Avatars")
        ->frame()
        .AccessibleName(LNG()->TRANSLATE(u"Dein Bild", u"Your picture"));
}

void frm_DialogUser::load()
{
    picker_ = std::make_unique<AvatarPicker>(AvatarPicker::Parts{
        form_->control<PictureBox>(u"pic_AvatarHolder"), form_->control<PictureBox>(u"pic_Avatars"),
        form_->control<Shape>(u"shp_Avatar"), form_->control<ScrollBar>(u"srl_Avatars")});
    connections_ +=
        picker_->Selected.connect([this] { userAvatar_ = QVAPP()->USER()->AVATARID(picker_->selected()); });
    picker_->select(1);
    screenName_->Text(login());
    fillLast();
    screenName_->SelStart(0);
    screenName_->SelLength(static_cast<std::int32_t>(screenName_->Text().size()));
}

void frm_DialogUser::fillLast()
{
    const std::vector<RecentName> names = recentNames();
    for (std::int32_t place = 0; place < layout::LastPlaces; ++place) {
        const auto at = static_cast<std::size_t>(place);
        if (at < names.size()) {
            fillPlace(place, names[at].name, names[at].avatar);
        }
        drawPlace(place);
    }
    if (!names.empty()) {
        screenName_->Text(names.front().name);
        selectAvatar(names.front().avatar);
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
    label->ForeColor(Dark);
    lastShown_[static_cast<std::size_t>(place)] = name;
}

void frm_DialogUser::drawPlace(std::int32_t place)
{
    const auto picture = lastPictures_(place);
    const bool taken = lastShown_[static_cast<std::size_t>(place)].has_value();
    picture->frame().TabStop(!picture->Tag().empty());
    picture->Picture(tile(picture->surface().size(),
                          taken ? QVAPP()->USER()->AVATARICON(picture->Tag()) : nullptr,
                          picture->frame().hasFocus()));
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
    if (const auto& open = QVAPP()->dialogAids().textInput) {
        open(*screenName_, LNG()->TRANSLATE(u"Dein Name", u"Your name"));
    }
}

void frm_DialogUser::command(const String& key)
{
    if (key == Confirm) {
        confirm();
    } else if (key == Abort) {
        abort();
    }
}

void frm_DialogUser::confirm()
{
    const String name = trimmed(screenName_->Text());
    screenName_->Text(name);
    if (const StringView warning = objection(name); !warning.empty()) {
        if (const auto& play = QVAPP()->dialogAids().playCategory) {
            play(u"wrong", false);
        }
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
    for (std::int32_t place = 0; place < layout::LastPlaces; ++place) {
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
