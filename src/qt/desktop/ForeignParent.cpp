#include "qt/desktop/ForeignParent.h"

#include "core/Members.h"
#include "core/RuntimeError.h"
#include "qt/desktop/ControlWidget.h"
#include "visual/Controls.h"

#include <array>

namespace phial::qt
{

namespace
{

// Keeps the stand-in for as long as the window is there.
class Keeper final : public QObject
{
public:
    explicit Keeper(QWidget& window) : QObject(&window), parent(std::make_shared<ForeignParent>(window)) {}
    const std::shared_ptr<ForeignParent> parent;
};

QList<ControlWidget*> controlsOf(const QWidget* window)
{
    return window ? window->findChildren<ControlWidget*>() : QList<ControlWidget*>();
}

} // namespace

std::shared_ptr<ForeignParent> ForeignParent::of(QWidget& window)
{
    for (QObject* child : window.children()) {
        if (auto* keeper = dynamic_cast<Keeper*>(child)) {
            return keeper->parent;
        }
    }
    return (new Keeper(window))->parent;
}

std::size_t ForeignParent::controlCount() const
{
    return static_cast<std::size_t>(controlsOf(window_).size());
}

ObjectPtr ForeignParent::controlAt(std::size_t index) const
{
    const QList<ControlWidget*> controls = controlsOf(window_);
    if (index >= static_cast<std::size_t>(controls.size())) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return controls[static_cast<qsizetype>(index)]->control().shared_from_this();
}

MemberTable ForeignParent::members() const
{
    static constexpr auto Table = std::to_array<Member>({
        {u"Controls",
         [](Object& object) {
             const auto self = static_cast<ForeignParent&>(object).shared_from_this();
             return Variant(ObjectPtr(std::make_shared<phial::Controls>(self)));
         }},
    });
    return Table;
}

} // namespace phial::qt
