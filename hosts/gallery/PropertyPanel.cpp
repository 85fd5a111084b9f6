#include "gallery/PropertyPanel.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Palette.h"
#include "gallery/Exhibit.h"

namespace gallery
{

using phial::String;

namespace
{

/// What the list shows of a long value; the text box has all of it.
constexpr std::size_t LongestValue = 36;

String shortened(const String& value)
{
    return value.size() <= LongestValue ? value : value.substr(0, LongestValue - 1) + u'\u2026';
}

String lineOf(const PropertyRow& row)
{
    return row.kind == PropertyRow::Kind::Operation ? row.name + u"( )"
                                                    : row.name + u" = " + shortened(row.value);
}

String reasonOf(const phial::RuntimeError& error)
{
    constexpr std::int32_t InvalidPropertyValue = 380;
    switch (error.Number()) {
    case static_cast<std::int32_t>(phial::ErrorNumber::TypeMismatch):
        return say(u"Dieser Wert passt nicht zu der Eigenschaft.|This value does not fit the property.");
    case static_cast<std::int32_t>(phial::ErrorNumber::InvalidArgument):
    case InvalidPropertyValue:
        return say(u"Dieser Wert ist hier nicht erlaubt.|This value is not allowed here.");
    case static_cast<std::int32_t>(phial::ErrorNumber::Overflow):
        return say(u"Diese Zahl ist zu groß.|This number is too large.");
    default:
        return phial::LNG()->TRANSLATE(u"Das geht nicht: {1}", u"That does not work: {1}",
                                       {error.Description()});
    }
}

} // namespace

PropertyPanel::PropertyPanel(phial::Form& form)
    : list_(form.control<phial::ListBox>(u"lst_Properties")),
      value_(form.control<phial::TextBox>(u"txt_Value")),
      name_(form.control<phial::ctl_Label>(u"lab_Property")),
      path_(form.control<phial::ctl_Label>(u"lab_Path")),
      message_(form.control<phial::ctl_Label>(u"lab_Message")),
      set_(form.control<phial::ctl_Button>(u"but_Set")), back_(form.control<phial::ctl_Button>(u"but_Back"))
{
    connections_ += list_->Click.connect([this] { showChosen(); });
    connections_ += list_->DblClick.connect([this] { act(); });
    connections_ += set_->CLICK.connect([this] { act(); });
    connections_ += back_->CLICK.connect([this] { back(); });
}

void PropertyPanel::edit(phial::ObjectPtr object)
{
    editor_.edit(std::move(object));
    fill();
}

void PropertyPanel::fill()
{
    list_->Clear();
    for (const PropertyRow& row : editor_.rows()) {
        list_->AddItem(lineOf(row));
    }
    path_->Caption(editor_.object() ? editor_.path() : say(u"Hier gibt es keine.|There are none here."));
    const bool within = editor_.object() && editor_.path().find(u'\u203A') != String::npos;
    back_->Visible(within);
    back_->Enabled(within);
    message_->Caption({});
    showChosen();
}

const PropertyRow* PropertyPanel::chosen() const
{
    const std::int32_t line = list_->ListIndex();
    return line < 0 ? nullptr : &editor_.rows()[static_cast<std::size_t>(line)];
}

void PropertyPanel::showChosen()
{
    const PropertyRow* row = chosen();
    name_->Caption(row                ? row->name
                   : editor_.object() ? say(u"Bitte eine Eigenschaft wählen|Please choose a property")
                                      : String());
    shownValue_ = row ? row->value : String();
    value_->Text(shownValue_);
    message_->Caption({});
    showButtons();
}

void PropertyPanel::showButtons()
{
    const PropertyRow* row = chosen();
    const auto kind = row ? row->kind : PropertyRow::Kind::ReadOnly;
    value_->Enabled(kind == PropertyRow::Kind::Writable);
    set_->Enabled(kind != PropertyRow::Kind::ReadOnly);
    set_->Caption(kind == PropertyRow::Kind::Part        ? say(u"Öffnen|Open")
                  : kind == PropertyRow::Kind::Operation ? say(u"Ausführen|Run")
                                                         : say(u"Setzen|Set"));
}

void PropertyPanel::showMessage(const std::optional<phial::RuntimeError>& error)
{
    message_->ForeColor(error ? phial::Palette::Failure : phial::Palette::Right);
    message_->Caption(error ? reasonOf(*error) : say(u"Erledigt.|Done."));
}

void PropertyPanel::act()
{
    const PropertyRow* row = chosen();
    if (!row || row->kind == PropertyRow::Kind::ReadOnly) {
        return;
    }
    const auto line = static_cast<std::size_t>(list_->ListIndex());
    if (row->kind == PropertyRow::Kind::Part) {
        editor_.open(line);
        fill();
        return;
    }
    const auto error =
        row->kind == PropertyRow::Kind::Operation ? editor_.run(line) : editor_.set(line, value_->Text());
    if (!error) {
        shownValue_ = value_->Text(); // what was typed is now the value, as the property writes it
    }
    refresh();
    showMessage(error);
}

void PropertyPanel::back()
{
    if (editor_.back()) {
        fill();
        list_->SetFocus();
    }
}

void PropertyPanel::refresh()
{
    for (const std::size_t row : editor_.refresh()) {
        list_->List(static_cast<std::int32_t>(row), lineOf(editor_.rows()[row]));
    }
    const PropertyRow* row = chosen();
    if (row && value_->Text() == shownValue_ && row->value != shownValue_) {
        shownValue_ = row->value;
        value_->Text(shownValue_);
    }
    showButtons();
}

void PropertyPanel::TRANSLATE()
{
    fill();
}

} // namespace gallery
