#include "qt/desktop/ListBoxPeer.h"

#include "qt/base/QtText.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/WidgetAspects.h"

#include <QApplication>
#include <QListWidget>

namespace phial::qt
{

QWidget* ListBoxPeer::make(std::shared_ptr<ListBox> model, QWidget& holder)
{
    auto* list = new QListWidget(&holder);
    new ListBoxPeer(std::move(model), *list); // belongs to the list
    return list;
}

ListBoxPeer::ListBoxPeer(std::shared_ptr<ListBox> model, QListWidget& list)
    : NativePeer(model, list), model_(std::move(model)), list_(list)
{
    connect(&list_, &QListWidget::currentRowChanged, this, [this](int row) {
        chosenByPress_ = QApplication::mouseButtons() != Qt::NoButton;
        choose(row);
    });
    // The toolkit marks the pressed line after a handler has chosen another one.
    connect(&list_, &QListWidget::itemPressed, this, [this](QListWidgetItem* item) {
        if (list_.row(item) != model_->ListIndex()) {
            modelChanged(ControlAspect::Selection);
        }
    });
    // So it does after a key, but tells nobody; the line is set right when the toolkit has finished.
    connect(
        &list_, &QListWidget::itemSelectionChanged, this,
        [this] {
            const QListWidgetItem* current = list_.currentItem();
            if (current != nullptr && !current->isSelected()) {
                modelChanged(ControlAspect::Selection);
            }
        },
        Qt::QueuedConnection);
    // A press on the line that is chosen already changes no row, but counts.
    connect(&list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (!std::exchange(chosenByPress_, false)) {
            choose(list_.row(item));
        }
    });
    connect(&list_, &QListWidget::itemDoubleClicked, this,
            [this] { input([this] { model_->doubleClick(); }); });
    watch(list_);
    begin();
}

void ListBoxPeer::choose(int row)
{
    if (row >= 0) {
        input([&] { model_->inputChoice(row); });
    }
}

void ListBoxPeer::showStyle()
{
    list_.setFont(fontCatalogue().font(zoomed(model_->Font()->traits(), *model_)));
}

void ListBoxPeer::showSelection()
{
    list_.setCurrentRow(model_->ListIndex());
}

// Lines that stay are left alone, so that the list does not lose its place.
void ListBoxPeer::showItems()
{
    while (list_.count() > model_->ListCount()) {
        delete list_.takeItem(list_.count() - 1);
    }
    for (std::int32_t line = 0; line < model_->ListCount(); ++line) {
        const QString text = toQt(model_->List(line));
        if (line == list_.count()) {
            list_.addItem(text);
        } else if (list_.item(line)->text() != text) {
            list_.item(line)->setText(text);
        }
    }
    showSelection();
}

} // namespace phial::qt
