#pragma once

#include "gallery/Exhibit.h"
#include "gallery/PropertyPanel.h"
#include "gallery/Stage.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/Timer.h"
#include "visual/ctl_Button.h"

#include <memory>
#include <optional>
#include <vector>

namespace gallery
{

/// The gallery's window: on the left everything that there is, in the middle the chosen exhibit with buttons
/// for its states, on the right its properties to edit.
class frm_Gallery
{
public:
    frm_Gallery();
    ~frm_Gallery();
    frm_Gallery(const frm_Gallery&) = delete;
    frm_Gallery& operator=(const frm_Gallery&) = delete;

    phial::Form& form() { return *form_; }
    void Show() { form_->Show(); }
    /// Puts all texts in the language in force; the exhibit is built anew.
    void TRANSLATE();

    const std::vector<Exhibit>& exhibits() const { return exhibits_; }
    /// Shows an exhibit in one of its states, both counted from 0.
    void show(std::size_t exhibit, std::size_t state = 0);

private:
    void buildMenu();
    void connect();

    void markColours();
    void markScan();
    void listExhibits();
    void listChosen();
    void remember(std::size_t exhibit);
    void recentChosen(const phial::String& title);
    void showStates();
    void showState(std::size_t state);

    template <typename Class>
    std::shared_ptr<Class> get(phial::StringView name) const
    {
        return form_->control<Class>(name);
    }

    std::vector<Exhibit> exhibits_;
    phial::DesignedForm form_;
    phial::ControlArray<phial::ctl_Button> states_;
    std::shared_ptr<phial::Timer> watch_; ///< keeps the shown properties up to date
    std::optional<Stage> stage_;
    std::optional<PropertyPanel> properties_;
    std::vector<std::optional<std::size_t>> lines_; ///< the list's lines: exhibit, or none for a heading
    std::int32_t line_ = 0;                         ///< the list's line of the present exhibit
    std::size_t exhibit_ = 0;
    std::size_t state_ = 0;
};

} // namespace gallery
