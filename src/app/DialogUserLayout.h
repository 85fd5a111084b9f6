#pragma once

#include "visual/FormLayout.h"
#include "visual/PictureBox.h"
#include "visual/ScrollBar.h"
#include "visual/Shape.h"
#include "visual/TextBox.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"

/// The design of frm_DialogUser: the name and the latest entries at the left, the avatars at the right.
/// Places are pixels.
namespace phial::dialog_user_layout
{

inline constexpr double Width = 640;
inline constexpr double Height = 508;

/// Side of an avatar's cell, of which the marker leaves an edge free.
inline constexpr std::int32_t Cell = 50;
inline constexpr std::int32_t Columns = 2;
inline constexpr double Marker = 48;

inline constexpr std::int32_t LastPlaces = 6;
inline constexpr StringView NobodyYet = u"Noch Niemand|Nobody yet";

/// Left and top edge of a place among the latest names, which stand in two columns.
inline constexpr double lastLeft(std::int32_t index)
{
    const std::int32_t column = index % 2;
    return 24.0 + column * 218;
}
inline constexpr double lastTop(std::int32_t index)
{
    const std::int32_t row = index / 2;
    return 192.0 + row * 74;
}

inline constexpr LayoutItem lastPicture(std::int32_t index)
{
    return design<PictureBox>(u"pic_Last", {lastLeft(index), lastTop(index), 64, 64}).at(index);
}

inline constexpr LayoutItem lastName(std::int32_t index)
{
    return design<ctl_Label>(u"lab_Last", {lastLeft(index) + 72, lastTop(index), 140, 64}, NobodyYet)
        .at(index);
}

inline constexpr LayoutItem Items[] = {
    design<ctl_Gradient>(u"bar_Header", {0, 0, Width, 64}),
    design<ctl_Label>(u"lab_Title", {24, 0, Width - 48, 64}, u"Wer bist du?|Who are you?")
        .inside(u"bar_Header"),
    design<ctl_Label>(u"Label1", {24, 80, 420, 24}, u"Dein Name:|Your name:"),
    design<TextBox>(u"txt_Screenname", {24, 106, 420, 44}),
    design<ctl_Label>(u"lab_Recent", {24, 164, 420, 24}, u"Schon einmal hier:|Here before:"),
    lastPicture(0),
    lastName(0),
    lastPicture(1),
    lastName(1),
    lastPicture(2),
    lastName(2),
    lastPicture(3),
    lastName(3),
    lastPicture(4),
    lastName(4),
    lastPicture(5),
    lastName(5),
    design<ctl_Label>(u"lab_Avatars", {476, 80, 140, 24}, u"Dein Bild:|Your picture:"),
    design<Shape>(u"shp_AvatarHolder", {475, 105, 102, 302}),
    design<PictureBox>(u"pic_AvatarHolder", {476, 106, 100, 300}),
    design<PictureBox>(u"pic_Avatars", {0, 0, Cell* Columns, 0}).inside(u"pic_AvatarHolder"),
    design<Shape>(u"shp_Avatar", {1, 1, Marker, Marker}).inside(u"pic_Avatars").hidden(),
    design<ScrollBar>(u"srl_Avatars", {584, 105, 32, 302}),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height - 76, Width, 76}),
};

} // namespace phial::dialog_user_layout
