#pragma once

#include "visual/ComboBox.h"
#include "visual/FormDesign.h"
#include "visual/PictureBox.h"
#include "visual/ScrollBar.h"
#include "visual/Shape.h"
#include "visual/TextBox.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"

/// The design of frm_DialogUser: the name and the latest entries at the left, the avatars at the right.
namespace phial::dialog_user_design
{

inline constexpr double Width = 640;
inline constexpr double Height = 508;

/// Side of an avatar's cell, of which the marker leaves an edge free.
inline constexpr std::int32_t Cell = 50;
inline constexpr std::int32_t Columns = 2;
inline constexpr double Marker = 48;

/// The places of the latest names stand in two columns.
inline constexpr std::int32_t LastPlaces = 6;
inline constexpr std::int32_t LastColumns = 2;
inline constexpr double LastStepX = 218;
inline constexpr double LastStepY = 74;
inline constexpr StringView NobodyYet = u"Noch Niemand|Nobody yet";

/// Where nobody has been here yet, the name's field leaves room for a choice of names.
inline constexpr double NameBesideChoice = 236;
inline constexpr StringView NamesTitle = u"Oder wähle einen:|Or choose one:";
/// For whoever cannot type, and for whoever would rather not tell: "German|English", each a name that the
/// dialog takes.
inline constexpr StringView FriendlyNames[] = {
    u"Schlauer Fuchs|Clever Fox",   u"Flinke Biene|Busy Bee",          u"Kluge Eule|Wise Owl",
    u"Mutiger Bär|Brave Bear",      u"Leiser Luchs|Quiet Lynx",        u"Bunter Falter|Bright Butterfly",
    u"Ruhiger Wal|Calm Whale",      u"Froher Otter|Happy Otter",       u"Schneller Hase|Swift Hare",
    u"Sanfter Delfin|Kind Dolphin", u"Neugieriger Rabe|Curious Raven", u"Starker Elch|Strong Moose",
};

inline constexpr StringView Confirm = u"DIALOG.OK();";
inline constexpr StringView Abort = u"DIALOG.ABORT();";
inline constexpr ButtonDesign Commands[] = {{Confirm, u"OK|OK"}, {Abort, u"Abbrechen|Cancel"}};

inline constexpr ControlDesign Controls[] = {
    design<ctl_Gradient>(u"bar_Header", {0, 0, Width, 64}).gradient(Palette::Header, Palette::HeaderDeep, 0),
    design<ctl_Label>(u"lab_Title", {24, 0, Width - 48, 64}, u"Wer bist du?|Who are you?")
        .inside(u"bar_Header")
        .font(18, FontWeight::Bold)
        .ink(Palette::OnHeader),
    design<ctl_Label>(u"Label1", {24, 80, 420, 24}, u"Dein Name:|Your name:").font(11).ink(Palette::Ink),
    design<TextBox>(u"txt_Screenname", {24, 106, 420, 44})
        .font(15)
        .ground(Palette::Field)
        .spoken(u"Dein Name|Your name"),
    design<ctl_Label>(u"lab_Names", {276, 80, 168, 24}).font(11).ink(Palette::Ink).hidden(),
    design<ComboBox>(u"cbo_Names", {276, 106, 168, 44})
        .font(11)
        .set(u"Style", ComboStyle::ListOnly)
        .spoken(u"Namen zum Aussuchen|Names to choose from")
        .hidden(),
    design<ctl_Label>(u"lab_Recent", {24, 164, 420, 24}, u"Schon einmal hier:|Here before:")
        .font(11)
        .ink(Palette::Ink),
    design<PictureBox>(u"pic_Last", {24, 192, 64, 64})
        .repeated(LastPlaces, LastColumns, LastStepX, LastStepY)
        .focusable(),
    design<ctl_Label>(u"lab_Last", {96, 192, 140, 64}, NobodyYet)
        .repeated(LastPlaces, LastColumns, LastStepX, LastStepY)
        .font(11)
        .ink(Palette::Muted)
        .set(u"PlainText", true),
    design<ctl_Label>(u"lab_Avatars", {476, 80, 140, 24}, u"Dein Bild:|Your picture:")
        .font(11)
        .ink(Palette::Ink),
    design<Shape>(u"shp_AvatarHolder", {475, 105, 102, 302}).edge(Palette::Divider),
    design<PictureBox>(u"pic_AvatarHolder", {476, 106, 100, 300}).ground(Palette::Surface),
    design<PictureBox>(u"pic_Avatars", {0, 0, Cell* Columns, 0})
        .inside(u"pic_AvatarHolder")
        .ground(Palette::Surface)
        .focusable()
        .spoken(u"Dein Bild|Your picture"),
    design<Shape>(u"shp_Avatar", {1, 1, Marker, Marker})
        .inside(u"pic_Avatars")
        .set(u"Shape", ShapeKind::RoundedRectangle)
        .edge(Palette::Accent)
        .set(u"BorderWidth", 3)
        .hidden(),
    design<ScrollBar>(u"srl_Avatars", {584, 105, 36, 302}),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height - 76, Width, 76}).buttons(Commands),
};

inline constexpr FormDesign Design{.name = u"frm_DialogUser",
                                   .caption = u"Name und Bild|Name and picture",
                                   .size = {Width, Height},
                                   .border = BorderStyle::FixedDialog,
                                   .hearsKeysFirst = true,
                                   .controls = Controls};

} // namespace phial::dialog_user_design
