#include "qt/desktop/TextBoxPeer.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/WidgetAspects.h"

#include <QEvent>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWidget>

namespace phial::qt
{

namespace
{

EditorStyle styleOf(const TextBox& model)
{
    EditorStyle style;
    style.font = model.Font()->traits();
    style.text = toQColor(model.ForeColor());
    style.background = toQColor(model.BackColor());
    style.alignment = model.Alignment();
    style.locked = model.Locked();
    style.password = !model.PasswordChar().empty();
    style.maximumLength = model.MaxLength();
    return style;
}

} // namespace

QWidget* TextBoxPeer::make(std::shared_ptr<TextBox> model, QWidget& holder)
{
    auto* field = new QWidget(&holder);
    auto* layout = new QVBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    new TextBoxPeer(std::move(model), *field); // belongs to the field
    return field;
}

TextBoxPeer::TextBoxPeer(std::shared_ptr<TextBox> model, QWidget& holder)
    : NativePeer(model, holder), model_(std::move(model)), holder_(holder)
{
    makeEditor();
    begin();
}

void TextBoxPeer::makeEditor()
{
    many_ = model_->MultiLine();
    const auto changed = [this] { edited(); };
    editor_ = many_ ? makePageEditor(holder_, changed) : makeLineEditor(holder_, changed);
    holder_.layout()->addWidget(&editor_->widget());
    holder_.setFocusProxy(&editor_->widget());
    watch(editor_->widget());
    if (&editor_->pressed() != &editor_->widget()) {
        watch(editor_->pressed());
    }
}

void TextBoxPeer::edited()
{
    input([this] {
        model_->inputText(editor_->text(), editor_->selectionStart(), editor_->selectionLength());
    });
}

void TextBoxPeer::show(ControlAspect aspect)
{
    if (aspect == ControlAspect::Style) {
        const bool remade = many_ != model_->MultiLine();
        if (remade) {
            makeEditor();
        }
        editor_->style(styleOf(*model_));
        if (remade) {
            show(ControlAspect::Text);
        }
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

bool TextBoxPeer::eventFilter(QObject* watched, QEvent* event)
{
    const bool filtered = NativePeer::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonRelease) {
        input([this] { model_->click(); });
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        input([this] { model_->doubleClick(); });
    }
    return filtered;
}

} // namespace phial::qt
