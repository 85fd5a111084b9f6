#pragma once

#include "core/Object.h"
#include "core/String.h"
#include "gallery/Stage.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace gallery
{

/// The sections of the gallery, in the order in which it lists them.
enum class Group : std::uint8_t {
    Shown,
    Input,
    Bars,
    Parts,
    Windows,
    Results,
    Formulas,
    Sounds,
    Mascot,
    Periodic
};

/// The section's title in the language in force.
phial::String groupTitle(Group group);

/// The language's part of "German|English".
phial::String say(phial::StringView both);

/// A state in which an exhibit can be seen; the text of its button, and what makes the state of the exhibit
/// as it is built.
struct Sample {
    phial::StringView name; ///< "German|English"
    std::function<void(phial::Object&)> apply;
    /// Whether it opens a modal window, and so ends only when the user has closed that.
    bool waits = false;
    /// Whether it prints; a tour leaves it out.
    bool prints = false;
};

/// One thing shown.
struct Exhibit {
    Group group = Group::Shown;
    phial::StringView title; ///< the name in code
    phial::StringView about; ///< what it is for, "German|English"
    /// Puts it on the empty stage; gives the object whose properties are edited, and on which samples work.
    std::function<phial::ObjectPtr(Stage&)> build;
    /// Never empty. The first state is that in which it is first seen.
    std::vector<Sample> samples;
    /// False when only the samples are of interest, and no property.
    bool editable = true;
    /// Whether a tour shows each of its states in both languages and in all colours.
    bool everyLook = false;
};

/// A state of an exhibit of that class.
template <typename Class, typename Action>
Sample sample(phial::StringView name, Action action)
{
    return {name, [action](phial::Object& object) { action(static_cast<Class&>(object)); }};
}
template <typename Class, typename Action>
Sample waitingSample(phial::StringView name, Action action)
{
    Sample made = sample<Class>(name, action);
    made.waits = true;
    return made;
}

/// An exhibit that is one control, in the middle of the stage.
template <typename Class>
Exhibit control(Group group, phial::StringView title, phial::StringView about, phial::PixelSize size,
                std::vector<Sample> samples)
{
    return {group, title, about, [size](Stage& stage) { return stage.putMiddle<Class>(size); },
            std::move(samples)};
}

} // namespace gallery
