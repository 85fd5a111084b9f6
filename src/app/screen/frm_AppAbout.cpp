#include "app/screen/frm_AppAbout.h"

#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
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

namespace about_design = app_about_design;

namespace
{

constexpr StringView HandUp = u"hand up.ico";
constexpr StringView HandClosed = u"hand closed.ico";

constexpr Colour Liquid = RGB(120, 190, 235);

constexpr int EmblemBands = 48;
constexpr double WordGap = 5; // between a text and the link that goes on with it

void disc(DrawDevice& device, double x, double y, double radius, Colour colour)
{
    device.FillStyle(FillStyle::Solid);
    device.FillColor(colour);
    device.Circle(x, y, radius, colour);
}

} // namespace

frm_AppAbout::frm_AppAbout() : form_(about_design::Design)
{
    showLinks();
    connect();
}

void frm_AppAbout::Show()
{
    form_->Show(FormShow::Modal);
}

// Without an address the maker's name is plain text, and the line about the product falls away.
void frm_AppAbout::showLinks()
{
    const auto& config = *QVAPP()->CONFIG();
    const bool hasMaker = !config.makerAddress().empty();
    const bool hasProduct = !config.productAddress().empty();
    const auto maker = label(u"lab_TDR");
    maker->Font()->Underline(hasMaker);
    maker->ForeColor(hasMaker ? Palette::Accent : Palette::Ink);
    maker->frame().canFocus(hasMaker);
    label(u"lab_Hyperlink")->frame().canFocus(hasProduct);
    label(u"lab_Hyperlink")->Visible(hasProduct);
    label(u"Descript", 1)->Visible(hasProduct);
}

void frm_AppAbout::connect()
{
    const auto hyperlink = label(u"lab_Hyperlink");
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->control<PictureBox>(u"Picture1")->Paint, [this] { paintEmblem(); });
    form_.command(u"ctl_CmdBar1", about_design::Close, [this] { form_->Unload(); });
    form_.on(label(u"lab_TDR")->Click, [this] { open(QVAPP()->CONFIG()->makerAddress()); });
    form_.on(hyperlink->Click, [this] { open(QVAPP()->CONFIG()->productAddress()); });
    form_.on(hyperlink->MouseDown, [this](const PointerEvent&) { hyperlinkCursor(HandClosed); });
    form_.on(hyperlink->MouseUp, [this](const PointerEvent&) { hyperlinkCursor(HandUp); });
}

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
    translateForm(form_);
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
    device.Gradient(0, 0, about_design::Emblem, about_design::Emblem, Palette::Header, Palette::HeaderDeep, 0,
                    EmblemBands);
    device.FillStyle(FillStyle::Solid);
    device.FillColor(Palette::OnHeader);
    device.ForeColor(Palette::OnHeader);
    constexpr auto Rim = std::to_array<PixelPoint>({{36, 14}, {60, 14}, {60, 19}, {36, 19}});
    constexpr auto Neck = std::to_array<PixelPoint>({{40, 19}, {56, 19}, {56, 44}, {40, 44}});
    device.Polygon(Rim);
    device.Polygon(Neck);
    disc(device, 48, 58, 24, Palette::OnHeader);
    disc(device, 48, 58, 19, Liquid);
    disc(device, 42, 62, 4, Palette::OnHeader);
    disc(device, 54, 55, 3, Palette::OnHeader);
    disc(device, 49, 47, 2, Palette::OnHeader);
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

void frm_AppAbout::caption(StringView name, String text)
{
    label(name)->Caption(std::move(text));
}

std::shared_ptr<Label> frm_AppAbout::label(StringView name, std::int32_t index) const
{
    return form_->control<Label>(name, index);
}

} // namespace phial
