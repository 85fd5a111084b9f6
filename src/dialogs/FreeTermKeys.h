#pragma once

#include "core/String.h"

#include <memory>

namespace phial
{

/// The two keys of the keyboard for terms whose meaning a program chooses, for keyboards that open from then
/// on. At first both show and type "xx". Texts outlive the session.
struct FreeTermKeys {
    struct Choice {
        StringView caption = u"xx";
        StringView tag{}; ///< what it types, see KeyBoard; empty: what it shows
    };

    Choice first;
    Choice second;

    /// Those of the open session.
    static std::shared_ptr<FreeTermKeys> current();
    /// The arrow of a reaction, and a fraction, whose numerator is typed next.
    void showArrowAndFraction();
};

} // namespace phial
