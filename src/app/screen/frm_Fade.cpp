#include "app/screen/frm_Fade.h"

#include "core/CoreRoot.h"
#include "core/CoreSystem.h"

namespace phial
{

namespace
{

constexpr FormDesign Design{.name = u"frm_Fade",
                            .caption = u"Form1",
                            .ground = RGB(0, 106, 181), // of the cover in every set
                            .unit = ScaleUnit::Twips,
                            .isCentred = false};

} // namespace

frm_Fade::frm_Fade() : form_(Design)
{
    form_->backdrop(true);
    form_.on(form_->Load, [this] { load(); });
}

void frm_Fade::Show()
{
    form_->Show();
}

void frm_Fade::Unload()
{
    form_->Unload();
}

void frm_Fade::load()
{
    constexpr std::int32_t AlmostSolid = 250;
    form_->WindowState(WindowState::Maximized);
    form_->BorderStyle(BorderStyle::None);
    coreRoot().CoreSystem().CoreWindowOps().SetTranslucent(form_->hWnd(), AlmostSolid,
                                                           TranslucentMode::Opacity, Colour{0xFF00FFU});
}

} // namespace phial
