#include "common/ReviewList.h"

#include "common/FrameDesign.h"
#include "common/FrameTexts.h"
#include "common/OutcomeSigns.h"
#include "common/TermFit.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <utility>

namespace learning
{

using phial::String;
using phial::StringView;

namespace
{

// Pixels of the design; the first column has what they leave.
constexpr double OutcomeColumn = 180;
constexpr double PointsColumn = 90;

/// How a task went.
struct OutcomeLook {
    OutcomeSign sign;
    StringView word; ///< "German|English"
};

OutcomeLook lookOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::AtOnce:
        return {RightSign, u"gleich richtig|right at once"};
    case Outcome::Later:
        return {TryAgainSign, u"später richtig|right later"};
    case Outcome::Missed:
    case Outcome::Open:
        break;
    }
    return {MissedSign, u"nicht gelöst|not solved"};
}

} // namespace

ReviewList::ReviewList(phial::Form& form) : form_(form), list_(form.control<phial::ListView>(u"lst_Review"))
{
    list_->COLUMNHEADERS()->Add(String(), 0);
    list_->COLUMNHEADERS()->Add(String(), OutcomeColumn);
    list_->COLUMNHEADERS()->Add(String(), PointsColumn)->Alignment(phial::Alignment::Right);
    connections_ += list_->Click.connect([this] { showWorking(); });
}

void ReviewList::show(std::vector<ReviewedTask> tasks)
{
    tasks_ = std::move(tasks);
    list_->ITEMS()->Clear();
    for (const ReviewedTask& task : tasks_) {
        list_->ITEMS()->Add(task.title);
    }
    fill();
}

void ReviewList::showAgain(std::vector<ReviewedTask> tasks)
{
    tasks_ = std::move(tasks);
    fill();
}

void ReviewList::fill()
{
    const auto& columns = *list_->COLUMNHEADERS();
    columns.Item(1)->Text(translate(u"Aufgabe", u"Task"));
    columns.Item(2)->Text(translate(u"Ergebnis", u"Result"));
    columns.Item(3)->Text(translate(u"Punkte", u"Points"));
    std::int32_t at = 0;
    for (const ReviewedTask& task : tasks_) {
        const auto row = list_->ITEMS()->Item(++at);
        const OutcomeLook look = lookOf(task.outcome);
        row->Title(task.title);
        row->Cell(2, String(look.sign.sign).append(u" ").append(translate(look.word)));
        row->Cell(3, number(task.points));
        row->ForeColor(look.sign.colour);
    }
    showWorking();
}

void ReviewList::showWorking()
{
    const String text = workingText();
    showFitting(*form_.control<phial::ctl_Label>(u"lab_Working"), text, frame_design::HelpSize);
    if (list_->ListIndex() > 0) {
        list_->frame().announce(phial::plainMarkup(text));
    }
}

String ReviewList::workingText() const
{
    const std::int32_t chosen = list_->ListIndex();
    if (chosen > 0) {
        const ReviewedTask& task = tasks_[static_cast<std::size_t>(chosen - 1)];
        return task.working.empty() ? String() : task.title + u":<br>" + task.working;
    }
    const bool tells =
        std::ranges::any_of(tasks_, [](const ReviewedTask& task) { return !task.working.empty(); });
    return tells ? translate(u"Wähle eine Aufgabe, dann siehst du hier die Lösung.",
                             u"Choose a task to see its solution here.")
                 : String();
}

} // namespace learning
