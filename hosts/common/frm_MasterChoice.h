#pragma once

#include "server/FoundMaster.h"
#include "visual/DesignedForm.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/Timer.h"

#include <functional>
#include <optional>
#include <vector>

namespace learning
{

/// Gives the masters that are there now; events may run meanwhile.
using MasterSearch = std::function<std::vector<phial::FoundMaster>()>;

/// The dialog in which the pupil or the teacher says where the classroom's master is: one of those that
/// answer, or a typed address. Return connects, Escape and closing the frame leave everything as it is. An
/// object serves for one dialog.
class frm_MasterChoice
{
public:
    /// Begins with that address. An empty search finds nobody.
    frm_MasterChoice(const phial::String& address, MasterSearch search);

    /// Modal: returns when a master is chosen, or none is to be. It looks for masters as soon as it stands.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    /// The master that was chosen; its settings are empty when the address was typed. No value when the
    /// dialog was left otherwise.
    const std::optional<phial::FoundMaster>& chosen() const { return chosen_; }

    phial::Form& form() { return *form_; }

private:
    void connect();
    void search();
    void showFound();
    void connectTo();
    phial::String typedAddress() const;

    MasterSearch search_;
    phial::DesignedForm form_;
    std::shared_ptr<phial::TextBox> address_;
    std::shared_ptr<phial::ListBox> masters_;
    phial::Timer starting_; ///< begins the search when the window stands
    std::vector<phial::FoundMaster> found_;
    bool isSearching_ = false;
    std::optional<phial::FoundMaster> chosen_;
};

} // namespace learning
