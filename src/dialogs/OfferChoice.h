#pragma once

#include <memory>

namespace phial
{

/// Whether the keyboards for terms may offer formulas of lessons, for keyboards that are opened from then on.
/// A program allows it where formulas are no answers, and as its teacher wishes; false at first.
struct OfferLeave {
    bool isGiven = false;

    /// That of the open session.
    static std::shared_ptr<OfferLeave> current();
};

/// Whether this user wants them, in all programs that give leave; true at first.
bool wantsOffers();
void wantOffers(bool value);

} // namespace phial
