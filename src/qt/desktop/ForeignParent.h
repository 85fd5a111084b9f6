#pragma once

#include "visual/KeyboardFocus.h"

#include <QPointer>
#include <QWidget>

namespace phial::qt
{

/// What stands for the form in a window of plain Qt: its control widgets, under their object names, in the
/// order in which the window holds them.
class ForeignParent final : public ControlParent, public std::enable_shared_from_this<ForeignParent>
{
public:
    /// The window's, made when first asked for; it lives as long as the window.
    static std::shared_ptr<ForeignParent> of(QWidget& window);

    explicit ForeignParent(QWidget& window) : window_(&window) {}

    ScaleUnit ScaleMode() const override { return ScaleUnit::Pixels; }
    std::size_t controlCount() const override;
    ObjectPtr controlAt(std::size_t index) const override;
    KeyboardFocus* keyboardFocus() override { return &focus_; }

    StringView typeName() const override { return u"Window"; }
    MemberTable members() const override;

private:
    QPointer<QWidget> window_;
    KeyboardFocus focus_;
};

} // namespace phial::qt
