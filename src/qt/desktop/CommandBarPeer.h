#pragma once

#include "qt/desktop/NativePeer.h"
#include "visual/CommandBar.h"

#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace phial::qt
{

/// A command bar: its panels at the left, then the toolkit's push buttons in a row. The bar is one stop of
/// the Tab key; the arrow keys go from button to button.
class CommandBarPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<CommandBar> model, QWidget& holder);

private:
    CommandBarPeer(std::shared_ptr<CommandBar> model, QWidget& bar);
    void showPlace() override;
    void showItems() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showPanels();
    void makeButtons();
    void sizeButtons();
    void chooseFirst();
    void moveFocus(const QObject* from, int step);

    std::shared_ptr<CommandBar> model_;
    QWidget& bar_;
    QHBoxLayout* row_;
    std::vector<QLabel*> panels_;
    std::vector<QPushButton*> buttons_;
};

} // namespace phial::qt
