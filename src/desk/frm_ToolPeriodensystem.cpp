#include "desk/frm_ToolPeriodensystem.h"

#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/RuntimeError.h"
#include "desk/PeriodicSheetDesign.h"
#include "desk/SheetCommands.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/ElementFile.h"
#include "periodic/SheetMode.h"
#include "periodic/ctl_PSE.h"
#include "visual/Forms.h"
#include "visual/Picture.h"
#include "visual/VisualHost.h"

namespace phial
{

frm_ToolPeriodensystem::frm_ToolPeriodensystem()
    : form_(tool_periodic_design::Design), holder_(form_->control<Control>(u"frm_P1Holder")),
      picture_(form_->control<PictureBox>(u"frm_P1")), symbols_(form_->control<ctl_PSE>(u"frm_P2")),
      names_(form_->control<ctl_PSE>(u"frm_P3")), change_(form_->control<ctl_Button>(u"but_Change")),
      namesOrSymbols_(form_->control<ctl_Button>(u"but_NamSymb"))
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    wireSheet(form_, ReferenceSheet::Elements);
    form_.on(change_->CLICK, [this] {
        showsPicture_ = !showsPicture_;
        showParts();
    });
    form_.on(namesOrSymbols_->CLICK, [this] {
        showsNames_ = !showsNames_;
        showParts();
    });
}

void frm_ToolPeriodensystem::Show()
{
    const bool isBlocked = visualHost().forms().innermostModal() && !form_->isModal();
    if (isBlocked) {
        form_->Hide(); // a window that is open already would stay behind the modal one
    }
    form_->Show(isBlocked ? FormShow::Modal : FormShow::Modeless);
}

void frm_ToolPeriodensystem::load()
{
    const PixelRectangle place = holder_->frame().pixelRectangle();
    names_->frame().pixelRectangle(place);
    symbols_->frame().pixelRectangle(place);
    {
        const NamesSheet showsNames;
        names_->LOAD(elementFile());
    }
    symbols_->LOAD(elementFile());
    symbols_->BUBBLE(form_->control<ctl_Bubble>(u"ctl_Bubble1"));
    // Without its picture the button shows an empty place, and the tables serve all the same.
    ignoringErrors(
        [&] { picture_->Picture(LoadPicture(QVAPP()->URL()->RESOURCEGFX() + u"periodensystem.png")); });
    TRANSLATE();
}

void frm_ToolPeriodensystem::TRANSLATE()
{
    translateForm(form_);
    showParts();
}

void frm_ToolPeriodensystem::showParts()
{
    holder_->Visible(showsPicture_);
    symbols_->Visible(!showsPicture_ && !showsNames_);
    names_->Visible(!showsPicture_ && showsNames_);
    namesOrSymbols_->Visible(!showsPicture_);
    // Each says what it shows next.
    change_->Caption(showsPicture_ ? LNG()->TRANSLATE(u"Tabelle", u"Table")
                                   : LNG()->TRANSLATE(u"Bild", u"Picture"));
    namesOrSymbols_->Caption(showsNames_ ? LNG()->TRANSLATE(u"Symbole", u"Symbols")
                                         : LNG()->TRANSLATE(u"Namen", u"Names"));
}

} // namespace phial
