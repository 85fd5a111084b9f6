#include "qt/desktop/RichTextBoxPeer.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/WidgetAspects.h"

#include <QEvent>
#include <QVBoxLayout>
#include <QWidget>

namespace phial::qt
{

QWidget* RichTextBoxPeer::make(std::shared_ptr<RichTextBox> model, QWidget& holder)
{
    auto* field = new QWidget(&holder);
    auto* layout = new QVBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    new RichTextBoxPeer(std::move(model), *field); // belongs to the field
    return field;
}

RichTextBoxPeer::RichTextBoxPeer(std::shared_ptr<RichTextBox> model, QWidget& holder)
    : NativePeer(model, holder), model_(std::move(model)), holder_(holder),
      editor_(makePageEditor(holder, [this] { edited(); }))
{
    holder_.layout()->addWidget(&editor_->widget());
    holder_.setFocusProxy(&editor_->widget());
    watch(editor_->widget());
    watch(editor_->pressed());
    begin();
}

void RichTextBoxPeer::edited()
{
    input([this] {
        model_->inputText(editor_->text(), editor_->selectionStart(), editor_->selectionLength());
    });
}

void RichTextBoxPeer::show(ControlAspect aspect)
{
    if (aspect == ControlAspect::Style) {
        EditorStyle style;
        style.font = model_->Font()->traits();
        style.text = toQColor(SystemColour::WindowText);
        style.background = toQColor(model_->BackColor());
        style.locked = model_->Locked();
        editor_->style(style);
    } else if (aspect == ControlAspect::Text) {
        if (editor_->text() != model_->Text()) {
            editor_->text(model_->Text());
        }
        editor_->select(model_->SelStart(), model_->SelLength());
    } else if (aspect == ControlAspect::Selection) {
        editor_->select(model_->SelStart(), model_->SelLength());
    } else if (aspect == ControlAspect::Accessibility) {
        passNames(holder_, editor_->widget());
    }
}

bool RichTextBoxPeer::eventFilter(QObject* watched, QEvent* event)
{
    const bool filtered = NativePeer::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonRelease) {
        input([this] { model_->click(); });
    }
    return filtered;
}

} // namespace phial::qt
