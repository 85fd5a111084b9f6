#include "qt/desktop/MenuBar.h"

#include "qt/base/QtText.h"
#include "qt/desktop/Dispatch.h"

#include <QMenuBar>
#include <QPointer>

#include <algorithm>

namespace phial::qt
{

namespace
{

using MenuPtr = std::shared_ptr<Menu>;

MenuPtr modelOf(const QAction& action)
{
    return action.data().value<MenuPtr>();
}

/// Whether the action can go on to show the entry, which may have become a menu, or none.
bool shows(const QAction& action, const MenuPtr& entry)
{
    return modelOf(action) == entry && (action.menu() != nullptr) == !entry->entries().empty();
}

/// Ends an entry of the toolkit, perhaps in the middle of its own signal.
void drop(QWidget& holder, QAction& action)
{
    holder.removeAction(&action);
    if (QMenu* menu = action.menu()) {
        menu->deleteLater();
    } else {
        action.deleteLater();
    }
}

/// The toolkit turns a mark by itself at a click; the model decides.
void choose(const QPointer<QAction>& action, const MenuPtr& entry)
{
    dispatch([&] { entry->inputClick(); });
    if (action) {
        action->setChecked(entry->Checked());
    }
}

QAction* make(QWidget& holder, const MenuPtr& entry)
{
    QAction* action = nullptr;
    if (entry->entries().empty()) {
        action = new QAction(&holder);
        QObject::connect(action, &QAction::triggered, action, [action, entry] { choose(action, entry); });
    } else {
        action = (new QMenu(&holder))->menuAction();
    }
    action->setData(QVariant::fromValue(entry));
    return action;
}

void synchronise(QWidget& holder, const Menu& model);

void update(QAction& action, const Menu& entry)
{
    action.setText(toQt(entry.Caption()));
    action.setEnabled(entry.Enabled());
    if (QMenu* menu = action.menu()) {
        synchronise(*menu, entry);
        return;
    }
    action.setSeparator(entry.Caption() == u"-");
    action.setCheckable(entry.Checked());
    action.setChecked(entry.Checked());
}

/// Makes the holder's actions those of the model's visible entries. What stands before the next entry's
/// action, and has none of the model any more, goes.
void synchronise(QWidget& holder, const Menu& model)
{
    QList<QAction*> old = holder.actions();
    for (const MenuPtr& entry : model.entries()) {
        if (!entry->Visible()) {
            continue;
        }
        const auto found = std::find_if(old.begin(), old.end(),
                                        [&](const QAction* action) { return shows(*action, entry); });
        QAction* action = nullptr;
        if (found != old.end()) {
            action = *found;
            std::for_each(old.begin(), found, [&](QAction* gone) { drop(holder, *gone); });
            old.erase(old.begin(), found + 1);
        } else {
            action = make(holder, entry);
            holder.insertAction(old.isEmpty() ? nullptr : old.constFirst(), action);
        }
        update(*action, *entry);
    }
    for (QAction* gone : old) {
        drop(holder, *gone);
    }
}

} // namespace

void showMenu(QMenuBar& bar, const Menu& root)
{
    synchronise(bar, root);
    bar.setVisible(!bar.actions().isEmpty());
}

} // namespace phial::qt
