#pragma once

#include "qt/desktop/NativePeer.h"
#include "visual/ListBox.h"

class QListWidget;

namespace phial::qt
{

/// A list as the toolkit's own.
class ListBoxPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<ListBox> model, QWidget& holder);

private:
    ListBoxPeer(std::shared_ptr<ListBox> model, QListWidget& list);
    void showStyle() override;
    void showItems() override;
    void showSelection() override;
    void choose(int row);

    std::shared_ptr<ListBox> model_;
    QListWidget& list_;
    bool chosenByPress_ = false;
};

} // namespace phial::qt
