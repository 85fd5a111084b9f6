#pragma once

#include "results/DialogHighscoreDesign.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"

#include <memory>

namespace phial
{

class cls_DataScore;
class cls_DataScores;

/// Shows a score list, ten rows a page. PageDown and PageUp turn the pages as the two buttons do; Return,
/// Escape and closing the frame accept. A list of this computer can be reset, after a question; the list that
/// was handed over is never changed here.
///
/// The first page as it is opened shows the order of a highscore, all later ones the order of the list as it
/// was handed over. Coming back, the button to the page before stays enabled on the first page until it is
/// pressed once more.
///
/// An object serves for one dialog.
class frm_DialogHighscore
{
public:
    frm_DialogHighscore();

    /// Modal: returns when the user has closed the window. Raises 91 without a list.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    // What is set before it is shown.
    /// In place of the usual title; empty for that.
    const String& DialogTitle() const { return title_; }
    void DialogTitle(String value) { title_ = std::move(value); }
    /// The list; pages are read from it as they are turned.
    const std::shared_ptr<cls_DataScores>& DialogScores() const { return scores_; }
    void DialogScores(std::shared_ptr<cls_DataScores> value) { scores_ = std::move(value); }
    /// The position of the row to stress; -1 or 0 for none.
    std::int32_t DialogRank() const { return rank_; }
    void DialogRank(std::int32_t value) { rank_ = value; }
    /// Kept for who asks; the window does not depend on it.
    bool DialogShowScore() const { return showScore_; }
    void DialogShowScore(bool value) { showScore_ = value; }
    /// Whether the list is one of this computer, which may be reset.
    bool DialogLocal() const { return local_; }
    void DialogLocal(bool value) { local_ = value; }

    /// Afterwards: whether the user wants the list to be reset.
    bool DialogReset() const { return reset_; }

    Form& form() { return *form_; }

private:
    void connect();
    void load();
    void showTitle();
    void showWhyEmpty();
    void nextPage();
    void previousPage();
    std::shared_ptr<cls_DataScores> copyOfList() const;
    std::int32_t rowsBefore() const;
    void clearRows();
    void fillRow(cls_DataScores& list, std::int32_t position);
    void stressRow(std::int32_t row, bool stressed);
    void keepFocus(ctl_Button& other);
    void askForReset();
    void keyDown(KeyEvent& event);
    bool turnsPage(const KeyEvent& event);

    String title_;
    std::shared_ptr<cls_DataScores> scores_;
    std::int32_t rank_ = 0;
    bool showScore_ = false;
    bool local_ = false;
    bool reset_ = false;

    DesignedForm form_;
    ControlArray<Label> ranks_;
    ControlArray<Label> names_;
    ControlArray<Label> exercises_;
    ControlArray<Label> points_;
    ControlArray<Label> times_;
    std::shared_ptr<ctl_Button> more_;
    std::shared_ptr<ctl_Button> less_;
    std::int32_t page_ = 0;
};

} // namespace phial
