#include "desk/frm_ToolGroupNames.h"

#include "app/FormTexts.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Palette.h"
#include "desk/GroupNames.h"
#include "desk/GroupNamesDesign.h"
#include "desk/OlderNotation.h"
#include "desk/SheetCommands.h"
#include "term/TermSpeech.h"

namespace phial
{

frm_ToolGroupNames::frm_ToolGroupNames()
    : form_(tool_group_names_design::Design), names_(*form_, u"Gruppe"), formulas_(*form_, u"Formel")
{
    names_.adopt();
    formulas_.adopt();
    form_.on(form_->Load, [this] { TRANSLATE(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    wireSheet(form_, ReferenceSheet::Groups);
    formulas_.connectEach([](PictureBox& box, std::int32_t row) {
        return box.Paint.connect([&box, row] { paint(box, row); });
    });
}

void frm_ToolGroupNames::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_ToolGroupNames::TRANSLATE()
{
    translateForm(form_);
    const auto groups = groupNames();
    names_.each([&](Label& label, std::int32_t row) {
        label.Caption(LNG()->TRANSLATEAUTO(groups[static_cast<std::size_t>(row)].name));
    });
    formulas_.each([&](PictureBox& box, std::int32_t row) {
        const String term = termOfOlderNotation(groups[static_cast<std::size_t>(row)].formula);
        box.frame().AccessibleName(spokenTerm(term));
    });
}

void frm_ToolGroupNames::paint(PictureBox& box, std::int32_t row)
{
    const PixelRectangle area = box.frame().pixelRectangle();
    box.device().ScaleMode(ScaleUnit::Pixels);
    box.device().FontName(u"Tahoma");
    box.device().FontSize(tool_group_names_design::FormulaPoints);
    box.device().ForeColor(Palette::Ink);
    drawOlderNotation(box.device(), area.height, groupNames()[static_cast<std::size_t>(row)].formula);
}

} // namespace phial
