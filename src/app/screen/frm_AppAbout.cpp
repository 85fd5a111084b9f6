#include "app/screen/frm_AppAbout.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/screen/AppAboutLayout.h"
#include "app/sys_Global.h"
#include "core/CoreCursors.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CurrentFolder.h"
#include "core/SessionState.h"

#include <array>

namespace phial
{

namespace layout = app_about_layout;

namespace
{

constexpr StringView HandUp = u"hand up.ico";
constexpr StringView HandClosed = u"hand closed.ico";

constexpr Colour Blue = RGB(0, 106, 181);
constexpr Colour DarkBlue = RGB(0, 64, 118);
constexpr Colour Paper = RGB(246, 249, 252);
constexpr Colour White = RGB(255, 255, 255);
constexpr Colour Liquid = RGB(120, 190, 235);
constexpr Colour TextColour = RGB(28, 40, 54);
constexpr Colour QuietColour = RGB(84, 100, 118);

constexpr int EmblemBands = 48;
constexpr double WordGap = 5; // between a text and the link that goes on with it

void disc(DrawDevice& device, double x, double y, double radius, Colour colour)
{
    device.FillStyle(FillStyle::Solid);
    device.FillColor(colour);
    device.Circle(x, y, radius, colour);
}

} // namespace

frm_AppAbout::frm_AppAbout() : form_(std::make_shared<Form>(u"frm_AppAbout"))
{
    build();
    style();
    connect();
}

frm_AppAbout::~frm_AppAbout()
{
    form_->discard();
}

void frm_AppAbout::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_AppAbout::build()
{
    form_->ScaleMode(ScaleUnit::Pixels);
    form_->BorderStyle(BorderStyle::FixedDialog);
    form_->innerSize({layout::Width, layout::Height});
    form_->centred(true);
    form_->KeyPreview(true);
    applyLayout(*form_, layout::Items);
    form_->control<PictureBox>(u"Picture1")->AutoRedraw(false);
    form_->control<ctl_CmdBar>(u"ctl_CmdBar1")->BUTTONS()->Add(u"DIALOG.OK();", u"Schließen|Close");
}

void frm_AppAbout::style()
{
    form_->BackColor(Paper);
    const auto show = [this](StringView name, std::int32_t index, const FontSpec& font, Colour colour) {
        const auto styled = label(name, index);
        styled->Font(std::make_shared<Font>(font));
        styled->ForeColor(colour);
    };
    show(u"lab_Product", -1, {.size = 18, .bold = true}, DarkBlue);
    show(u"lab_Version", -1, {.size = 11}, TextColour);
    show(u"lab_Copyright", -1, {.size = 9}, QuietColour);
    show(u"Descript", 0, {.size = 10}, TextColour);
    show(u"lab_TDR", -1, {.size = 10, .underline = true}, Blue);
    show(u"Descript", 1, {.size = 10}, TextColour);
    show(u"lab_Hyperlink", -1, {.size = 10, .underline = true}, Blue);
    show(u"Descript", 2, {.size = 10, .bold = true}, TextColour);
    show(u"lab_Ident", -1, {.size = 10}, QuietColour);
    show(u"lab_Base", -1, {.size = 10}, QuietColour);
    // Texts that a link goes on with, and the links, are as wide as what they say.
    for (const auto& text :
         {label(u"Descript", 0), label(u"lab_TDR"), label(u"Descript", 1), label(u"lab_Hyperlink")}) {
        text->WordWrap(false);
        text->AutoSize(true);
    }
    showLinks();
}

// Without an address the maker's name is plain text, and the line about the product falls away.
void frm_AppAbout::showLinks()
{
    const auto& config = *QVAPP()->CONFIG();
    const bool hasMaker = !config.makerAddress().empty();
    const bool hasProduct = !config.productAddress().empty();
    const auto maker = label(u"lab_TDR");
    maker->Font()->Underline(hasMaker);
    maker->ForeColor(hasMaker ? Blue : TextColour);
    maker->frame().canFocus(hasMaker);
    label(u"lab_Hyperlink")->frame().canFocus(hasProduct);
    label(u"lab_Hyperlink")->Visible(hasProduct);
    label(u"Descript", 1)->Visible(hasProduct);
}

void frm_AppAbout::connect()
{
    const auto hyperlink = label(u"lab_Hyperlink");
    connections_ += form_->Load.connect([this] { load(); });
    connections_ += form_->TRANSLATE.connect([this] { TRANSLATE(); });
    connections_ += form_->KeyDown.connect([this](KeyEvent& event) { keyDown(event); });
    connections_ += form_->control<PictureBox>(u"Picture1")->Paint.connect([this] { paintEmblem(); });
    connections_ +=
        form_->control<ctl_CmdBar>(u"ctl_CmdBar1")->BUTTON.connect([this](std::int32_t, const String&) {
            form_->Unload();
        });
    connections_ += label(u"lab_TDR")->Click.connect([this] { open(QVAPP()->CONFIG()->makerAddress()); });
    connections_ += hyperlink->Click.connect([this] { open(QVAPP()->CONFIG()->productAddress()); });
    connections_ +=
        hyperlink->MouseDown.connect([this](const PointerEvent&) { hyperlinkCursor(HandClosed); });
    connections_ += hyperlink->MouseUp.connect([this](const PointerEvent&) { hyperlinkCursor(HandUp); });
}

// The design texts are gathered by the first walk, so it comes before the texts that stand as they are.
void frm_AppAbout::load()
{
    TRANSLATE();
    const auto& config = *QVAPP()->CONFIG();
    caption(u"lab_Product", config.NAME());
    caption(u"lab_Version", u"Version " + config.VERSION());
    caption(u"lab_Copyright", config.COPYRIGHT());
    caption(u"lab_Ident", config.IDENT());
    const String current = CorePathText::WithBackslash(SessionState::current().currentFolder().path());
    caption(u"lab_Base", CorePathText::Relative(current, QVAPP()->URL()->ROOT()));
    hyperlinkCursor(HandUp);
}

void frm_AppAbout::TRANSLATE()
{
    LNG()->Form(*form_, texts_);
    form_->Caption(LNG()->TRANSLATE(u"Info über {1}", u"About {1}", {QVAPP()->CONFIG()->NAME()}));
    placeLinks();
}

void frm_AppAbout::placeLinks()
{
    const auto place = [this](StringView link, std::int32_t text) {
        const auto before = label(u"Descript", text);
        label(link)->Left(before->Left() + before->Width() + WordGap);
    };
    place(u"lab_TDR", 0);
    place(u"lab_Hyperlink", 1);
}

/// A phial with its liquid.
void frm_AppAbout::paintEmblem()
{
    DrawDevice& device = form_->control<PictureBox>(u"Picture1")->device();
    device.ScaleMode(ScaleUnit::Pixels);
    device.Gradient(0, 0, layout::Emblem, layout::Emblem, Blue, DarkBlue, 0, EmblemBands);
    device.FillStyle(FillStyle::Solid);
    device.FillColor(White);
    device.ForeColor(White);
    constexpr auto Rim = std::to_array<PixelPoint>({{36, 14}, {60, 14}, {60, 19}, {36, 19}});
    constexpr auto Neck = std::to_array<PixelPoint>({{40, 19}, {56, 19}, {56, 44}, {40, 44}});
    device.Polygon(Rim);
    device.Polygon(Neck);
    disc(device, 48, 58, 24, White);
    disc(device, 48, 58, 19, Liquid);
    disc(device, 42, 62, 4, White);
    disc(device, 54, 55, 3, White);
    disc(device, 49, 47, 2, White);
}

void frm_AppAbout::hyperlinkCursor(StringView file)
{
    ControlFrame& frame = label(u"lab_Hyperlink")->frame();
    frame.MouseIcon(coreRoot().CoreCursors().Load(QVAPP()->URL()->RESOURCEGFX() + u"cur\\" + String(file)));
    frame.MousePointer(MousePointer::Custom);
}

void frm_AppAbout::open(StringView address)
{
    if (address.empty()) {
        return;
    }
    coreRoot().CoreSystem().ShellOpen(form_->hWnd(), address);
}

void frm_AppAbout::keyDown(KeyEvent& event)
{
    if (event.is(Key::Escape)) {
        event.KeyCode = 0;
        form_->Unload();
    }
}

void frm_AppAbout::caption(StringView name, String text)
{
    label(name)->Caption(std::move(text));
}

std::shared_ptr<Label> frm_AppAbout::label(StringView name, std::int32_t index) const
{
    return form_->control<Label>(name, index);
}

} // namespace phial
