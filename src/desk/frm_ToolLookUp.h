#pragma once

#include "desk/SheetEntries.h"
#include "visual/ComboBox.h"
#include "visual/DesignedForm.h"
#include "visual/Label.h"
#include "visual/ListView.h"
#include "visual/TextBox.h"

#include <memory>

namespace phial
{

/// All reference sheets as one table to search: what is typed narrows it, a sheet is chosen beside it. A row,
/// or all that is found where none is chosen, is copied (Ctrl+C in the table, too); all that is found is
/// printed, and of it one can practise.
class frm_ToolLookUp
{
public:
    /// Begins with that sheet, or with all.
    explicit frm_ToolLookUp(std::optional<ReferenceSheet> sheet = std::nullopt);

    /// Modal: returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    void keyDown(KeyEvent& event);
    void showSheets(std::int32_t chosen);
    std::optional<ReferenceSheet> chosenSheet() const;
    void find();
    void tell(const String& text);
    std::vector<SheetEntry> taken() const;
    void copy();
    void print();
    void practise();

    std::vector<SheetEntry> entries_;
    std::vector<SheetEntry> found_;

    DesignedForm form_;
    std::shared_ptr<TextBox> sought_;
    std::shared_ptr<ComboBox> sheets_;
    std::shared_ptr<ListView> list_;
    std::shared_ptr<Label> state_;
};

} // namespace phial
