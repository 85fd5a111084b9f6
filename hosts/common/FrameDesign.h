#pragma once

#include "app/ctl_Avatar.h"
#include "common/ctl_Reference.h"
#include "common/ctl_RoundDots.h"
#include "results/ctl_Mark.h"
#include "visual/FormDesign.h"
#include "visual/ListView.h"
#include "visual/Shape.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

/// The design of an app's window: pages of which one is seen, between a header and a footer. Colours are
/// roles, places are pixels.
namespace learning::frame_design
{

using phial::ControlDesign;
using phial::ctl_Avatar;
using phial::ctl_Button;
using phial::ctl_Gradient;
using phial::ctl_Label;
using phial::ctl_Mark;
using phial::ctl_Pannel;
using phial::design;
using phial::FontWeight;
using phial::ListView;
using phial::Shape;
using phial::StringView;
namespace Palette = phial::Palette;
using enum phial::TEXTALIGN;

/// The design's size; FrameLayout fits it into the window.
inline constexpr double Width = 900;
inline constexpr double Height = 640;
inline constexpr double Header = 64;
inline constexpr double Footer = 40;
inline constexpr double PageHeight = Height - Header - Footer;
/// Of header and footer in windows that are too low for the design.
inline constexpr double LeastHeader = 52;
inline constexpr double LeastFooter = 36; // its buttons are no lower
/// What a finger meets is never lower, however small the design is shown: pixels of the window, 9 mm.
inline constexpr double LeastTarget = 36;
/// How much smaller and larger the design is shown.
inline constexpr double LeastZoom = 0.75;
/// Of the window at first where the screen has room: with room for the mascot beside a page that leaves
/// PageMargin empty.
inline constexpr double WideWidth = 1080;
inline constexpr double MostZoom = 4;

/// What the pages leave empty at the left and right.
inline constexpr double PageMargin = 32;

/// Room for the buttons of the levels, of which the app tells how many there are: between those of a row,
/// and between two rows. A single row is lower than its room.
inline constexpr ControlDesign::Rectangle LevelsPlace{60, 220, 780, 132};
inline constexpr double LevelHeight = 104;
inline constexpr double LevelGap = 21;
inline constexpr double LevelRowGap = 12;

/// Of what explains a task, in points, where it is not so long that it needs smaller letters.
inline constexpr double HelpSize = 12;

inline constexpr ControlDesign panel(StringView name, ControlDesign::Rectangle place, phial::Colour ground,
                                     phial::Colour edge)
{
    return design<ctl_Pannel>(name, place).ground(ground).edge(edge);
}

inline constexpr ControlDesign page(StringView name)
{
    return panel(name, {0, Header, Width, PageHeight}, Palette::Ground, Palette::Ground).hidden();
}

/// The header's buttons from left to right.
inline constexpr double HeaderTop = (Header - 44) / 2;
inline constexpr ControlDesign::Rectangle ColoursPlace{652, HeaderTop, 48, 44};
inline constexpr ControlDesign::Rectangle LanguagePlace{708, HeaderTop, 48, 44};
inline constexpr ControlDesign::Rectangle ScreenPlace{764, HeaderTop, 48, 44};
inline constexpr ControlDesign::Rectangle HelpPlace{820, HeaderTop, 48, 44};

inline constexpr ControlDesign headerButton(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Button>(name, place, text).inside(u"bar_Header").font(12, FontWeight::Bold);
}

/// What the frame leaves to the app on its page of tasks, `pan_Task`: the card with the task, the place of
/// the answer beside the button that checks it, and those of the buttons that open a pad to type it with and
/// the pocket calculator. The pad has room above that, beside the card.
namespace TaskPlaces
{
inline constexpr ControlDesign::Rectangle Card{32, 80, 560, 172};
inline constexpr ControlDesign::Rectangle Answer{32, 272, 328, 64};
inline constexpr ControlDesign::Rectangle Pad{640, 272, 228, 64};
inline constexpr ControlDesign::Rectangle Calculator{640, 352, 228, 56};
} // namespace TaskPlaces

/// The same for an app whose task is one large board: the board, and a title beside it. The board leaves
/// so little margin that the cells of a table of 19 by 12.5 have 32 pixels in a window of 1024 by 600 with a
/// title bar.
namespace BoardPlaces
{
inline constexpr ControlDesign::Rectangle Board{6, 6, 688, 453};
inline constexpr ControlDesign::Rectangle Title{704, 66, 186, 50};
} // namespace BoardPlaces

/// Where a control of the frame stands on the page of tasks.
struct Placed {
    StringView control;
    ControlDesign::Rectangle place;
};

/// Beside and below a board.
inline constexpr Placed BesideBoard[] = {
    {u"lab_Progress", {704, 8, 186, 24}},  {u"dot_Round", {704, 34, 186, 30}},
    {u"but_Check", {704, 122, 186, 56}},   {u"but_Hint", {704, 186, 186, 48}},
    {u"lab_Hint", {704, 240, 186, 184}},   {u"but_Reference", {704, 430, 186, 44}},
    {u"but_Stop", {704, 482, 186, 48}},    {u"lab_Verdict", {16, 463, 28, 70}},
    {u"lab_Feedback", {48, 463, 640, 70}}, {u"ref_Drawer", {48, 463, 640, 70}},
};

/// The card that holds the task.
inline constexpr ControlDesign card(StringView name)
{
    return panel(name, TaskPlaces::Card, Palette::Surface, Palette::Divider).inside(u"pan_Task");
}

/// The large text that a page begins with, and a longer one below it.
inline constexpr ControlDesign heading(StringView name, ControlDesign::Rectangle place, StringView text = {})
{
    return design<ctl_Label>(name, place, text)
        .font(22, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(MiddleLeft);
}
inline constexpr ControlDesign paragraph(StringView name, ControlDesign::Rectangle place,
                                         StringView text = {})
{
    return design<ctl_Label>(name, place, text).font(13).ink(Palette::Ink).align(TopLeft);
}

/// A line in the middle of the page.
inline constexpr ControlDesign centred(StringView name, ControlDesign::Rectangle place, double size,
                                       FontWeight weight = FontWeight::Regular)
{
    return design<ctl_Label>(name, place).font(size, weight).ink(Palette::Ink).align(MiddleCentre);
}

/// The button to press next, one beside it that leaves, and one that does something in between.
inline constexpr ControlDesign mainButton(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Button>(name, place, text).font(15, FontWeight::Bold).set(u"Accent", true);
}
inline constexpr ControlDesign leavingButton(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Button>(name, place, text).font(15, FontWeight::Bold);
}
inline constexpr ControlDesign sideButton(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Button>(name, place, text).font(12);
}

/// Up to the app's own controls.
inline constexpr ControlDesign Head[] = {
    design<ctl_Gradient>(u"bar_Header", {0, 0, Width, Header})
        .gradient(Palette::Header, Palette::HeaderDeep, 0),
    page(u"pan_Start"),
    page(u"pan_Task"),
    page(u"pan_Summary"),
    page(u"pan_Waiting"),
    page(u"pan_Missing"),
    panel(u"pan_Footer", {0, Height - Footer, Width, Footer}, Palette::Footer, Palette::Divider),

    // All but the title keep their distance from the right edge.
    design<ctl_Label>(u"lab_Title", {32, 0, 304, Header})
        .inside(u"bar_Header")
        .font(18, FontWeight::Bold)
        .ink(Palette::OnHeader)
        .align(MiddleLeft),
    design<ctl_Label>(u"lab_Points", {346, 0, 106, Header})
        .inside(u"bar_Header")
        .font(14)
        .ink(Palette::OnHeader)
        .align(MiddleRight),
    design<ctl_Avatar>(u"ctl_User", {464, 6, 176, 52}).inside(u"bar_Header"),
    headerButton(u"but_Colours", ColoursPlace, {}),
    headerButton(u"but_Language", LanguagePlace, u"EN|DE").spoken(u"Auf Englisch|In German"),
    headerButton(u"but_Screen", ScreenPlace, u"\u2922").spoken(u"Ganzer Bildschirm (F11)|Full screen (F11)"),
    headerButton(u"but_Help", HelpPlace, u"?").spoken(u"Hilfe (F1)|Help (F1)"),

    heading(u"lab_Question", {60, 60, 780, 44}).inside(u"pan_Start"),
    // No line of what is read has more than 66 letters.
    paragraph(u"lab_Intro", {60, 112, 520, 96}).inside(u"pan_Start"),
    design<ctl_Button>(u"but_Level", {LevelsPlace.left, LevelsPlace.top, 246, LevelHeight})
        .at(0)
        .inside(u"pan_Start")
        .font(16, FontWeight::Bold),
    design<ctl_Label>(u"lab_Note", {60, 360, 480, 64})
        .inside(u"pan_Start")
        .font(11)
        .ink(Palette::Muted)
        .align(TopLeft),

    sideButton(u"but_About", {594, 364, 246, 48}, u"Über das Programm …|About the program …")
        .inside(u"pan_Start"),

    design<ctl_Label>(u"lab_Remembered", {60, 428, 513, 48})
        .inside(u"pan_Start")
        .font(12)
        .ink(Palette::Ink)
        .align(MiddleLeft),
    sideButton(u"but_Forget", {594, 428, 246, 48}, u"Vergessen …|Forget them …")
        .inside(u"pan_Start")
        .hidden(),
    design<ctl_Label>(u"lab_Complaint", {60, 488, 780, 44})
        .inside(u"pan_Start")
        .font(10)
        .ink(Palette::TryAgain)
        .align(MiddleLeft)
        .set(u"PlainText", true),

    design<ctl_Label>(u"lab_Progress", {32, 12, 400, 28})
        .inside(u"pan_Task")
        .font(12)
        .ink(Palette::Muted)
        .align(MiddleLeft),
    design<ctl_RoundDots>(u"dot_Round", {32, 42, 560, 30}).inside(u"pan_Task"),
    sideButton(u"but_Reference", {640, 18, 228, 48}, {}).inside(u"pan_Task").unfocusable(),
    design<ctl_Reference>(u"ref_Drawer", {32, 4, 560, 72}).inside(u"pan_Task").hidden(),
};

/// Behind the app's own controls: what is pressed when an answer stands there, and the pages that follow.
inline constexpr ControlDesign Tail[] = {
    mainButton(u"but_Check", {372, 272, 220, 64}, u"Prüfen|Check").inside(u"pan_Task"),
    centred(u"lab_Verdict", {32, 352, 28, 60}, 18, FontWeight::Bold).inside(u"pan_Task"),
    design<ctl_Label>(u"lab_Feedback", {68, 352, 524, 60})
        .inside(u"pan_Task")
        .font(14, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(MiddleLeft),
    sideButton(u"but_Hint", {32, 424, 220, 56}, {}).inside(u"pan_Task"),
    design<ctl_Label>(u"lab_Hint", {268, 416, 324, 120})
        .inside(u"pan_Task")
        .font(HelpSize)
        .ink(Palette::Ink)
        .align(TopLeft),
    sideButton(u"but_Stop", {640, 424, 228, 56}, u"Beenden|Quit").inside(u"pan_Task"),

    centred(u"lab_Praise", {32, 12, 836, 44}, 20, FontWeight::Bold).inside(u"pan_Summary"),
    centred(u"lab_Result", {32, 64, 308, 36}, 18).inside(u"pan_Summary"),
    panel(u"pan_ResultBack", {32, 108, 308, 14}, Palette::Surface, Palette::Track).inside(u"pan_Summary"),
    panel(u"pan_ResultDone", {32, 108, 308, 14}, Palette::Accent, Palette::Accent).inside(u"pan_Summary"),
    design<ctl_Label>(u"lab_Solved", {32, 130, 308, 48})
        .inside(u"pan_Summary")
        .font(13)
        .ink(Palette::Muted)
        .align(MiddleCentre),
    design<ctl_Mark>(u"ctl_Mark1", {36, 192, 300, 37}).inside(u"pan_Summary").ground(Palette::Ground),
    centred(u"lab_Mark", {32, 236, 308, 32}, 14, FontWeight::Bold).inside(u"pan_Summary"),
    centred(u"lab_Rank", {32, 276, 308, 84}, 13).inside(u"pan_Summary"),
    design<ListView>(u"lst_Review", {364, 64, 504, 220})
        .inside(u"pan_Summary")
        .font(12)
        .ground(Palette::Surface)
        .ink(Palette::Ink)
        .spoken(u"Die Aufgaben der Runde|The tasks of the round"),
    design<ctl_Label>(u"lab_Working", {364, 292, 504, 72})
        .inside(u"pan_Summary")
        .font(HelpSize)
        .ink(Palette::Ink)
        .align(TopLeft),
    sideButton(u"but_List", {32, 376, 268, 52}, u"Bestenliste|Best rounds").inside(u"pan_Summary"),
    sideButton(u"but_Certificate", {316, 376, 268, 52}, u"Urkunde drucken|Print certificate")
        .inside(u"pan_Summary"),
    sideButton(u"but_Export", {600, 376, 268, 52}, u"Liste als Text|List as text").inside(u"pan_Summary"),
    mainButton(u"but_Again", {32, 444, 268, 72}, u"Noch einmal|Again").inside(u"pan_Summary"),
    leavingButton(u"but_Missed", {316, 444, 268, 72},
                  u"Nur die falschen\nnoch einmal|Only the missed ones\nonce more")
        .spoken(u"Nur die falschen noch einmal|Only the missed ones once more")
        .inside(u"pan_Summary"),
    leavingButton(u"but_Quit", {600, 444, 268, 72}, u"Beenden|Quit").inside(u"pan_Summary"),

    heading(u"lab_WaitingTitle", {60, 60, 780, 48}, u"Gleich geht es los|It will begin soon")
        .inside(u"pan_Waiting"),
    paragraph(u"lab_Waiting", {60, 116, 780, 60}).inside(u"pan_Waiting"),
    mainButton(u"but_Ask", {60, 208, 513, 80}, u"Noch einmal fragen|Ask again").inside(u"pan_Waiting"),
    leavingButton(u"but_GiveUp", {594, 208, 246, 80}, u"Beenden|Quit").inside(u"pan_Waiting"),

    heading(u"lab_MissingTitle", {60, 60, 780, 48}, u"Da fehlt noch etwas|Something is missing")
        .inside(u"pan_Missing"),
    paragraph(u"lab_Missing", {60, 124, 780, 200}).inside(u"pan_Missing"),
    mainButton(u"but_Leave", {60, 360, 240, 80}, u"Beenden|Quit").inside(u"pan_Missing"),

    design<Shape>(u"shp_Classroom", {32, 14, 12, 12})
        .inside(u"pan_Footer")
        .set(u"Shape", phial::ShapeKind::Circle)
        .set(u"BorderWidth", 0)
        .set(u"FillStyle", phial::FillStyle::Solid),
    design<ctl_Label>(u"lab_Classroom", {56, 0, 276, Footer})
        .inside(u"pan_Footer")
        .font(10)
        .ink(Palette::Muted)
        .align(MiddleLeft),
    design<ctl_Button>(u"but_Classroom", {340, 2, 184, 36}, u"Klassenraum …|Classroom …")
        .inside(u"pan_Footer")
        .font(10),
    design<ctl_Button>(u"but_Mascot", {536, 2, 164, 36}).inside(u"pan_Footer").font(10),
    design<ctl_Button>(u"but_Sound", {712, 2, 156, 36}).inside(u"pan_Footer").font(10),
};

} // namespace learning::frame_design
