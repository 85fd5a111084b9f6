#pragma once

#include "core/String.h"

#include <memory>

namespace phial
{

/// What periodic tables take from the session while they load: with "Namen" they show names from then on, and
/// symbols otherwise. Empty at first.
struct SheetMode {
    static constexpr StringView Names = u"Namen";

    String mode;

    /// That of the open session.
    static std::shared_ptr<SheetMode> current();
    bool showsNames() const { return mode == Names; }
};

/// Lets tables that load within its scope show names; its end resets the mode, also where loading fails.
class NamesSheet
{
public:
    NamesSheet() : mode_(SheetMode::current()) { mode_->mode = SheetMode::Names; }
    ~NamesSheet() { mode_->mode.clear(); }
    NamesSheet(const NamesSheet&) = delete;
    NamesSheet& operator=(const NamesSheet&) = delete;

private:
    std::shared_ptr<SheetMode> mode_;
};

} // namespace phial
