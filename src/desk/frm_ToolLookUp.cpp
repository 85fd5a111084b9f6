#include "desk/frm_ToolLookUp.h"

#include "app/FormTexts.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "desk/LookUpDesign.h"
#include "desk/SheetDesign.h"
#include "desk/SheetPrint.h"
#include "desk/SheetQuiz.h"
#include "desk/frm_ToolQuiz.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

constexpr std::int32_t ContentColumn = 2;
constexpr std::int32_t SheetColumn = 3;

String say(StringView both)
{
    return LNG()->TRANSLATEAUTO(both);
}

} // namespace

frm_ToolLookUp::frm_ToolLookUp(std::optional<ReferenceSheet> sheet)
    : form_(tool_look_up_design::Design), sought_(form_->control<TextBox>(u"txt_Sought")),
      sheets_(form_->control<ComboBox>(u"cbo_Sheets")), list_(form_->control<ListView>(u"lst_Found")),
      state_(form_->control<Label>(u"lab_State"))
{
    list_->COLUMNHEADERS()->Add(String(), tool_look_up_design::SubjectColumn);
    list_->COLUMNHEADERS()->Add(String(), 0);
    list_->COLUMNHEADERS()->Add(String(), tool_look_up_design::SheetColumn);
    showSheets(sheet ? static_cast<std::int32_t>(*sheet) + 1 : 0);
    form_.on(form_->Load, [this] { TRANSLATE(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(sought_->Change, [this] { find(); });
    form_.on(sheets_->Click, [this] { find(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) { keyDown(event); });
    form_.command(u"bar_Buttons", tool_look_up_design::Copies, [this] { copy(); });
    form_.command(u"bar_Buttons", tool_look_up_design::Prints, [this] { print(); });
    form_.command(u"bar_Buttons", tool_look_up_design::Asks, [this] { practise(); });
    form_.command(u"bar_Buttons", sheet_design::Confirm, [this] { form_->Unload(); });
}

void frm_ToolLookUp::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_ToolLookUp::TRANSLATE()
{
    translateForm(form_);
    const auto heads = list_->COLUMNHEADERS();
    heads->Item(1)->Text(say(u"Eintrag|Entry"));
    heads->Item(ContentColumn)->Text(say(u"Angabe|Details"));
    heads->Item(SheetColumn)->Text(say(u"Blatt|Sheet"));
    entries_ = sheetEntries();
    showSheets(sheets_->ListIndex());
    find();
}

/// The names of the sheets below that of all, of which one is chosen.
void frm_ToolLookUp::showSheets(std::int32_t chosen)
{
    sheets_->Clear();
    sheets_->AddItem(say(u"Alle Blätter|All sheets"));
    for (std::int32_t sheet = 0; sheet < ReferenceSheets; ++sheet) {
        sheets_->AddItem(sheetName(static_cast<ReferenceSheet>(sheet)));
    }
    sheets_->ListIndex(chosen);
}

std::optional<ReferenceSheet> frm_ToolLookUp::chosenSheet() const
{
    const std::int32_t line = sheets_->ListIndex();
    return line > 0 ? std::optional(static_cast<ReferenceSheet>(line - 1)) : std::nullopt;
}

void frm_ToolLookUp::find()
{
    found_ = entriesFound(entries_, sought_->Text(), chosenSheet());
    list_->ListIndex(0);
    list_->ITEMS()->Clear();
    for (const SheetEntry& entry : found_) {
        const auto row = list_->ITEMS()->Add(entry.subject);
        row->Cell(ContentColumn, entry.content);
        row->Cell(SheetColumn, sheetName(entry.sheet));
        row->Spoken(ContentColumn, entry.spoken);
    }
    const auto count = static_cast<std::int32_t>(found_.size());
    tell(count == 1 ? say(u"1 Eintrag|1 entry") : plainText(count) + say(u" Einträge| entries"));
}

void frm_ToolLookUp::tell(const String& text)
{
    state_->Caption(text);
    state_->frame().announce(text);
}

void frm_ToolLookUp::keyDown(KeyEvent& event)
{
    const bool isInList = list_->frame().hasFocus();
    if (event.is(Key::Down) && sought_->frame().hasFocus() && !found_.empty()) {
        event.KeyCode = 0;
        list_->frame().SetFocus();
        list_->ListIndex(1);
    } else if (event.KeyCode == u'F' && event.Shift == ShiftMask::Control) {
        event.KeyCode = 0;
        sought_->prepare();
    } else if (isInList && event.KeyCode == u'C' && event.Shift == ShiftMask::Control) {
        event.KeyCode = 0;
        copy();
    }
}

/// What copying and printing take: the chosen entry, or all that is found.
std::vector<SheetEntry> frm_ToolLookUp::taken() const
{
    const std::int32_t row = list_->ListIndex();
    return row > 0 ? std::vector{found_[static_cast<std::size_t>(row - 1)]} : found_;
}

void frm_ToolLookUp::copy()
{
    const std::vector<SheetEntry> entries = taken();
    if (entries.empty()) {
        return;
    }
    visualHost().clipboardText(entriesAsText(entries));
    const auto count = static_cast<std::int32_t>(entries.size());
    tell(count == 1 ? say(u"Kopiert: |Copied: ") + entries.front().subject
                    : plainText(count) + say(u" Einträge kopiert| entries copied"));
}

void frm_ToolLookUp::print()
{
    const auto sheet = chosenSheet();
    const String title = sheet ? sheetName(*sheet) : say(u"Nachschlagen|Look up");
    try {
        printEntries(title, found_);
    } catch (const RuntimeError&) {
        tell(say(u"Es konnte nicht gedruckt werden.|It could not be printed."));
    }
}

void frm_ToolLookUp::practise()
{
    std::vector<QuizQuestion> questions = makeQuiz(found_, entries_);
    if (questions.empty()) {
        tell(say(u"Dazu gibt es keine Fragen.|There are no questions about this."));
        return;
    }
    frm_ToolQuiz quiz([this] { return makeQuiz(found_, entries_); });
    quiz.Show();
}

} // namespace phial
