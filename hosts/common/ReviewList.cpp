#include "common/ReviewList.h"

#include "common/FrameTexts.h"
#include "core/Palette.h"
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
    StringView sign;
    StringView word; ///< "German|English"
    phial::Colour colour;
};

OutcomeLook lookOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::AtOnce:
        return {u"\u2713", u"gleich richtig|right at once", phial::Palette::Right};
    case Outcome::Later:
        return {u"\u21BB", u"später richtig|right later", phial::Palette::TryAgain};
    case Outcome::Missed:
    case Outcome::Open:
        break;
    }
    return {u"\u2715", u"nicht gelöst|not solved", phial::Palette::Failure};
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
        row->Cell(2, String(look.sign).append(u" ").append(translate(look.word)));
        row->Cell(3, number(task.points));
        row->ForeColor(look.colour);
    }
    showWorking();
}

void ReviewList::showWorking()
{
    const String text = workingText();
    caption(form_, u"lab_Working", text);
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
    return tells ? translate(u"Wähle eine Aufgabe, dann siehst du hier den Rechenweg.",
                             u"Choose a task to see here how it is worked out.")
                 : String();
}

} // namespace learning
