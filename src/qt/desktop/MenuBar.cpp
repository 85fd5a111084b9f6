#include "qt/desktop/MenuBar.h"

#include "qt/base/QtText.h"
#include "qt/desktop/Dispatch.h"

#include <QMenuBar>

namespace phial::qt
{

namespace
{

void fill(QMenu& menu, const Menu& model);

template <typename Holder>
void addEntry(Holder& holder, const std::shared_ptr<Menu>& entry)
{
    if (!entry->Visible()) {
        return;
    }
    QAction* action = nullptr;
    if (!entry->entries().empty()) {
        QMenu* menu = holder.addMenu(toQt(entry->Caption()));
        fill(*menu, *entry);
        action = menu->menuAction();
    } else {
        action = holder.addAction(toQt(entry->Caption()));
        action->setSeparator(entry->Caption() == u"-");
        action->setCheckable(entry->Checked());
        action->setChecked(entry->Checked());
        QObject::connect(action, &QAction::triggered, action,
                         [entry] { dispatch([&] { entry->inputClick(); }); });
    }
    action->setEnabled(entry->Enabled());
}

void fill(QMenu& menu, const Menu& model)
{
    for (const std::shared_ptr<Menu>& entry : model.entries()) {
        addEntry(menu, entry);
    }
}

} // namespace

void showMenu(QMenuBar& bar, const Menu& root)
{
    bar.clear();
    for (const std::shared_ptr<Menu>& entry : root.entries()) {
        addEntry(bar, entry);
    }
    bar.setVisible(!bar.actions().isEmpty());
}

} // namespace phial::qt
