#include "qt/desktop/AccessibleChanges.h"

#include <algorithm>

namespace phial::qt
{

std::vector<PartChange> changesOf(const std::vector<NamedPart>& before, const std::vector<NamedPart>& now)
{
    std::vector<PartChange> changes;
    for (std::size_t part = 0; part < std::min(before.size(), now.size()); ++part) {
        const NamedPart& was = before[part];
        const NamedPart& is = now[part];
        if (was.name != is.name) {
            changes.push_back({part, QAccessible::NameChanged});
        }
        if (was.area != is.area) {
            changes.push_back({part, QAccessible::LocationChanged});
        }
        if (was.state != is.state) {
            changes.push_back({part, QAccessible::StateChanged, differenceOf(was.state, is.state)});
        }
    }
    return changes;
}

QAccessible::State differenceOf(const PartState& before, const PartState& now)
{
    QAccessible::State changed;
    changed.pressed = before.pressed != now.pressed;
    changed.checkable = before.checkable != now.checkable;
    changed.checked = before.checked != now.checked;
    return changed;
}

TextChange changeOf(const QString& before, const QString& now)
{
    const auto shorter = std::min(before.size(), now.size());
    qsizetype front = 0;
    while (front < shorter && before[front] == now[front]) {
        ++front;
    }
    qsizetype back = 0;
    while (back < shorter - front && before[before.size() - 1 - back] == now[now.size() - 1 - back]) {
        ++back;
    }
    return {static_cast<int>(front), before.mid(front, before.size() - front - back),
            now.mid(front, now.size() - front - back)};
}

} // namespace phial::qt
