#include "molmasse/MolmasseStyle.h"

#include "core/CoreTheme.h"
#include "core/SessionState.h"
#include "results/ctl_Mark.h"
#include "term/ctl_TermLabel.h"
#include "visual/Form.h"
#include "visual/ListBox.h"
#include "visual/Shape.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

#include <span>

namespace molmasse::style
{

namespace
{

using phial::Colour;
using phial::RGB;
using phial::StringView;

constexpr Colour Blue = RGB(0, 106, 181);
constexpr Colour DarkBlue = RGB(0, 64, 118);
constexpr Colour White = RGB(255, 255, 255);
constexpr Colour Foot = RGB(234, 241, 247);
constexpr Colour Line = RGB(196, 212, 226);
constexpr Colour Ink = RGB(28, 40, 54);
constexpr Colour Quiet = RGB(84, 100, 118);

// Alignment codes of labels.
constexpr std::int32_t MiddleLeft = 0;
constexpr std::int32_t MiddleCentre = 1;
constexpr std::int32_t MiddleRight = 2;
constexpr std::int32_t TopLeft = 4;

struct PanelStyle {
    StringView name;
    Colour ground;
    Colour border;
};

constexpr PanelStyle Panels[] = {
    {u"pan_Start", Paper, Paper},    {u"pan_Task", Paper, Paper},       {u"pan_Summary", Paper, Paper},
    {u"pan_Missing", Paper, Paper},  {u"pan_Waiting", Paper, Paper},    {u"pan_Footer", Foot, Line},
    {u"pan_Formula", White, Line},   {u"pan_ProgressBack", Line, Line}, {u"pan_ProgressDone", Blue, Blue},
    {u"pan_ResultBack", Line, Line}, {u"pan_ResultDone", Blue, Blue},
};

struct LabelStyle {
    StringView name;
    double size;
    bool bold;
    std::int32_t align;
    Colour colour;
};

constexpr LabelStyle Labels[] = {
    {u"lab_Title", 18, true, MiddleLeft, White},     {u"lab_Points", 14, false, MiddleRight, White},
    {u"lab_Question", 22, true, MiddleLeft, Ink},    {u"lab_Intro", 13, false, TopLeft, Ink},
    {u"lab_Tolerance", 11, false, TopLeft, Quiet},   {u"lab_Progress", 12, false, MiddleLeft, Quiet},
    {u"lab_Name", 13, false, MiddleCentre, Quiet},   {u"lab_Unit", 18, false, MiddleLeft, Ink},
    {u"lab_Feedback", 14, true, MiddleLeft, Ink},    {u"lab_Hint", 12, false, TopLeft, Ink},
    {u"lab_Praise", 24, true, MiddleCentre, Ink},    {u"lab_Result", 18, false, MiddleCentre, Ink},
    {u"lab_Solved", 13, false, MiddleCentre, Quiet}, {u"lab_MissingTitle", 22, true, MiddleLeft, Ink},
    {u"lab_Missing", 13, false, TopLeft, Ink},       {u"lab_WaitingTitle", 22, true, MiddleLeft, Ink},
    {u"lab_Waiting", 13, false, TopLeft, Ink},       {u"lab_Mark", 14, true, MiddleCentre, Ink},
    {u"lab_Rank", 13, false, MiddleCentre, Ink},     {u"lab_Classroom", 10, false, MiddleLeft, Quiet},
};

struct ButtonStyle {
    StringView name; ///< of a button or of a whole array
    double size;
    bool bold;
    bool accent;
};

constexpr ButtonStyle Buttons[] = {
    {u"but_Level", 16, true, false},     {u"but_Check", 15, true, true},
    {u"but_Again", 15, true, true},      {u"but_Leave", 15, true, true},
    {u"but_Quit", 15, true, false},      {u"but_Hint", 12, false, false},
    {u"but_List", 12, false, false},     {u"but_Certificate", 12, false, false},
    {u"but_Export", 12, false, false},   {u"but_Ask", 15, true, true},
    {u"but_GiveUp", 15, true, false},    {u"but_Classroom", 10, false, false},
    {u"but_Stop", 12, false, false},     {u"but_Key", 18, false, false},
    {u"but_Language", 10, false, false},
};

constexpr LabelStyle MasterChoiceLabels[] = {
    {u"lab_Title", 18, true, MiddleLeft, White},
    {u"lab_Masters", 11, false, MiddleLeft, Ink},
    {u"lab_Found", 11, false, MiddleLeft, Quiet},
    {u"lab_Address", 11, false, MiddleLeft, Ink},
};

constexpr ButtonStyle MasterChoiceButtons[] = {
    {u"but_Search", 12, false, false},
    {u"but_Connect", 14, true, true},
    {u"but_Cancel", 14, true, false},
};

phial::FontPtr font(double size, bool bold = false)
{
    return std::make_shared<phial::Font>(phial::FontSpec{.name = u"Tahoma", .size = size, .bold = bold});
}

void dressButton(phial::Form& form, const ButtonStyle& style)
{
    for (std::size_t i = 0; i < form.controlCount(); ++i) {
        const auto button = std::dynamic_pointer_cast<phial::ctl_Button>(form.controlAt(i));
        if (button && button->NAME() == style.name) {
            button->Font(font(style.size, style.bold));
            button->Accent(style.accent);
        }
    }
}

void dressHeader(phial::ctl_Gradient& header)
{
    header.Color1(Blue);
    header.Color2(DarkBlue);
    header.Angle(0);
}

void dressFormula(phial::ctl_TermLabel& term)
{
    term.TEXTALIGN(phial::TEXTALIGN::MiddleCentre);
    term.TEXTFONT()->assign({.name = u"Tahoma", .size = 38});
    term.TEXTCOLOR(Ink);
}

void dressSign(phial::Shape& sign)
{
    sign.Kind(phial::ShapeKind::Circle);
    sign.BorderWidth(0);
    sign.FillStyle(phial::FillStyle::Solid);
}

void dressLabels(const phial::Form& form, std::span<const LabelStyle> styles)
{
    for (const LabelStyle& style : styles) {
        const auto label = form.control<phial::ctl_Label>(style.name);
        label->ForeColor(style.colour);
        label->Alignment(style.align);
        label->Font(font(style.size, style.bold));
    }
}

} // namespace

void apply(phial::Form& form)
{
    phial::coreTheme().SetColour(phial::ThemeSlot::Accent, Blue);
    form.BackColor(Paper);
    dressHeader(*form.control<phial::ctl_Gradient>(u"bar_Header"));
    for (const PanelStyle& style : Panels) {
        const auto panel = form.control<phial::ctl_Pannel>(style.name);
        panel->BackColor(style.ground);
        panel->BorderColor(style.border);
    }
    dressLabels(form, Labels);
    for (const ButtonStyle& style : Buttons) {
        dressButton(form, style);
    }
    form.control<phial::ctl_Mark>(u"ctl_Mark1")->BackColor(Paper);
    dressSign(*form.control<phial::Shape>(u"shp_Classroom"));
    dressFormula(*form.control<phial::ctl_TermLabel>(u"trm_Formula"));
    const auto answer = form.control<phial::TextBox>(u"txt_Answer");
    answer->Font(font(24));
    answer->Alignment(phial::Alignment::Right);
}

void applyToMasterChoice(phial::Form& form)
{
    form.BackColor(Paper);
    dressHeader(*form.control<phial::ctl_Gradient>(u"bar_Header"));
    dressLabels(form, MasterChoiceLabels);
    for (const ButtonStyle& style : MasterChoiceButtons) {
        dressButton(form, style);
    }
    form.control<phial::ListBox>(u"lst_Masters")->Font(font(12));
    form.control<phial::TextBox>(u"txt_Address")->Font(font(14));
}

} // namespace molmasse::style
