#include "qt/desktop/ComboBoxPeer.h"

#include "qt/base/QtText.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/WidgetAspects.h"

#include <QComboBox>
#include <QLineEdit>

namespace phial::qt
{

QWidget* ComboBoxPeer::make(std::shared_ptr<ComboBox> model, QWidget& holder)
{
    auto* box = new QComboBox(&holder);
    new ComboBoxPeer(std::move(model), *box); // belongs to the box
    return box;
}

ComboBoxPeer::ComboBoxPeer(std::shared_ptr<ComboBox> model, QComboBox& box)
    : NativePeer(model, box), model_(std::move(model)), box_(box)
{
    box_.setInsertPolicy(QComboBox::NoInsert);
    connect(&box_, &QComboBox::activated, this,
            [this](int row) { input([&] { model_->inputChoice(row); }); });
    watch(box_);
    begin();
}

void ComboBoxPeer::showStyle()
{
    const QFont font = fontCatalogue().font(zoomed(model_->Font()->traits(), *model_));
    box_.setFont(font);
    if (QLineEdit* line = box_.lineEdit()) {
        line->setFont(font);
    }
    const bool editable = model_->Style() == ComboStyle::Editable;
    if (editable != box_.isEditable()) {
        makeEditable(editable, font);
    }
    // The box has the focus for its line.
    const bool isServed = editable && !model_->frame().ownKeyboard();
    box_.setAttribute(Qt::WA_InputMethodEnabled, isServed);
    if (QLineEdit* line = box_.lineEdit()) {
        line->setAttribute(Qt::WA_InputMethodEnabled, isServed);
    }
}

void ComboBoxPeer::makeEditable(bool editable, const QFont& font)
{
    box_.setEditable(editable);
    if (QLineEdit* line = box_.lineEdit()) {
        line->setFont(font);
        line->setCompleter(nullptr); // what is typed stays as typed
        connect(line, &QLineEdit::textEdited, this,
                [this](const QString& text) { input([&] { model_->inputText(fromQt(text)); }); });
        watch(*line);
    }
    showSelection();
}

void ComboBoxPeer::showItems()
{
    box_.clear();
    for (std::int32_t line = 0; line < model_->ListCount(); ++line) {
        box_.addItem(toQt(model_->List(line)));
    }
    showSelection();
}

void ComboBoxPeer::showText()
{
    showSelection();
}

void ComboBoxPeer::showSelection()
{
    box_.setCurrentIndex(model_->ListIndex());
    if (box_.isEditable() && fromQt(box_.currentText()) != model_->Text()) {
        box_.setEditText(toQt(model_->Text()));
    }
}

} // namespace phial::qt
