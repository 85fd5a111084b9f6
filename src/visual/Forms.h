#pragma once

#include "core/String.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace phial
{

class Form;

/// The loaded forms of the program, in the order in which they were loaded, and the stack of modal ones.
class Forms
{
public:
    std::size_t Count() const { return loaded_.size(); }
    /// Counted from 0; raises 9 outside.
    std::shared_ptr<Form> Item(std::size_t index) const;
    /// The first loaded form of that name, without regard to case; null when there is none.
    std::shared_ptr<Form> Item(StringView name) const;

    /// The form that is active, that is, in which input ends; null when none is.
    std::shared_ptr<Form> ActiveForm() const { return active_.lock(); }
    /// The modal form in front, which blocks all others; null when none is shown.
    std::shared_ptr<Form> innermostModal() const;

    /// Unloads all, the innermost modal one first and the earliest loaded last. A form that refuses stays.
    void unloadAll();
    /// Closes all without asking and without any event; for the end of the host.
    void closeAll();

private:
    friend class Form;
    void loaded(const std::shared_ptr<Form>& form);
    void unloaded(const Form& form);
    void activated(const std::shared_ptr<Form>& form) { active_ = latest_ = form; }
    /// Puts all shown forms in front of the backdrops, and the focus where it was last.
    void bringBack() const;
    void deactivated(const Form& form);
    void modalBegun(const std::shared_ptr<Form>& form);
    void modalEnded(const Form& form);

    std::vector<std::shared_ptr<Form>> loaded_;
    std::vector<std::weak_ptr<Form>> modal_;
    std::weak_ptr<Form> active_;
    std::weak_ptr<Form> latest_; ///< the one that was active last, or still is
};

} // namespace phial
