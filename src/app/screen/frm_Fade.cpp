#include "app/screen/frm_Fade.h"

#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "visual/Form.h"

namespace phial
{

frm_Fade::frm_Fade() : form_(std::make_shared<Form>(u"frm_Fade"))
{
    form_->Caption(u"Form1");
    form_->BackColor(RGB(0, 106, 181));
    form_->backdrop(true);
    onLoad_ = form_->Load.connect([this] { load(); });
}

frm_Fade::~frm_Fade()
{
    form_->discard();
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
