#pragma once

#include "qt/desktop/NativePeer.h"
#include "visual/ComboBox.h"

class QComboBox;
class QFont;

namespace phial::qt
{

/// A combo box as the toolkit's own.
class ComboBoxPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<ComboBox> model, QWidget& holder);

private:
    ComboBoxPeer(std::shared_ptr<ComboBox> model, QComboBox& box);
    void showStyle() override;
    void makeEditable(bool editable, const QFont& font);
    void showItems() override;
    void showText() override;
    void showSelection() override;

    std::shared_ptr<ComboBox> model_;
    QComboBox& box_;
};

} // namespace phial::qt
