#include "qt/desktop/ControlFactory.h"

#include "qt/desktop/ButtonPeer.h"
#include "qt/desktop/ComboBoxPeer.h"
#include "qt/desktop/CommandBarPeer.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/EditorPeer.h"
#include "qt/desktop/ListBoxPeer.h"
#include "qt/desktop/ListViewPeer.h"
#include "qt/desktop/ScrollBarPeer.h"

namespace phial::qt
{

namespace
{

template <typename Model, typename Peer>
QWidget* makeIf(const ControlPtr& control, QWidget& holder)
{
    auto model = std::dynamic_pointer_cast<Model>(control);
    return model ? Peer::make(std::move(model), holder) : nullptr;
}

using Maker = QWidget* (*)(const ControlPtr&, QWidget&);

constexpr Maker NativeMakers[] = {
    makeIf<TextBox, EditorPeer<TextBox>>, makeIf<ctl_Button, ButtonPeer>,
    makeIf<CommandBar, CommandBarPeer>,   makeIf<ScrollBar, ScrollBarPeer>,
    makeIf<ListBox, ListBoxPeer>,         makeIf<ComboBox, ComboBoxPeer>,
    makeIf<ListView, ListViewPeer>,       makeIf<RichTextBox, EditorPeer<RichTextBox>>,
};

} // namespace

QWidget* makeControlWidget(const ControlPtr& control, QWidget& holder)
{
    if (auto painted = std::dynamic_pointer_cast<UserControl>(control)) {
        return new ControlWidget(std::move(painted), &holder, ControlWidget::Placement::OnForm);
    }
    for (const Maker make : NativeMakers) {
        if (QWidget* widget = make(control, holder)) {
            return widget;
        }
    }
    return nullptr; // a control without a look of its own
}

} // namespace phial::qt
