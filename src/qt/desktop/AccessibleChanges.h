#pragma once

#include "visual/UserControl.h"

#include <QAccessible>

#include <vector>

namespace phial::qt
{

/// What screen readers hear when a painted control has changed.

/// One thing that is different of a part, or of the control as a whole.
struct PartChange {
    std::size_t part = 0;
    QAccessible::Event type = QAccessible::NameChanged; ///< that, LocationChanged or StateChanged
    QAccessible::State state{};                         ///< for StateChanged: what is different
};

/// The changes from parts to as many others.
std::vector<PartChange> changesOf(const std::vector<NamedPart>& before, const std::vector<NamedPart>& now);

/// Which states differ.
QAccessible::State differenceOf(const PartState& before, const PartState& now);

/// A piece of a text that another one has taken the place of.
struct TextChange {
    int place = 0;
    QString removed;
    QString inserted;

    bool isNone() const { return removed.isEmpty() && inserted.isEmpty(); }
};

TextChange changeOf(const QString& before, const QString& now);

} // namespace phial::qt
