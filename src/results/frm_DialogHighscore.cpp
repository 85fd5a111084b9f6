#include "results/frm_DialogHighscore.h"

#include "app/FormTexts.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/Format.h"
#include "results/ListRecord.h"
#include "results/cls_DataScores.h"

#include <algorithm>

namespace phial
{

namespace highscore_design = dialog_highscore_design;

namespace
{

constexpr StringView ResetQuestion = u"Bist Du sicher, daß Du die Highscore-Liste zurücksetzen möchtest?";

constexpr int LightRed = 12; // of the classic table of colours

/// Points as a whole number.
String wholePoints(double points)
{
    return Variant(roundToDecimals(points, 0)).toText();
}

String shortMoment(Moment moment)
{
    const Locale& locale = currentLocale();
    return momentText(moment, locale.shortDate + u" " + locale.shortTime);
}

} // namespace

frm_DialogHighscore::frm_DialogHighscore()
    : form_(highscore_design::Design), ranks_(*form_, u"lab_Rank"), names_(*form_, u"lab_Name"),
      exercises_(*form_, u"lab_Ueb"), points_(*form_, u"lab_Points"), times_(*form_, u"lab_time"),
      more_(form_->control<ctl_Button>(u"but_mehr")), less_(form_->control<ctl_Button>(u"but_weniger"))
{
    for (auto* labels : {&ranks_, &names_, &exercises_, &points_, &times_}) {
        labels->adopt();
    }
    connect();
    TRANSLATE();
}

void frm_DialogHighscore::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogHighscore::connect()
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) { keyDown(event); });
    form_.on(more_->CLICK, [this] { nextPage(); });
    form_.on(less_->CLICK, [this] { previousPage(); });
    form_.command(u"bar_Buttons", highscore_design::Reset, [this] { askForReset(); });
    for (const StringView closing : {highscore_design::Accept, highscore_design::Confirm}) {
        form_.command(u"bar_Buttons", closing, [this] { form_->Unload(); });
    }
}

void frm_DialogHighscore::TRANSLATE()
{
    translateForm(form_);
    showTitle();
    showWhyEmpty();
}

void frm_DialogHighscore::showTitle()
{
    if (!title_.empty()) {
        form_->control<ctl_Title>(u"bar_Header")->Title(title_);
    }
}

/// A list that could not be read is not empty.
void frm_DialogHighscore::showWhyEmpty()
{
    if (scores_ && scores_->DATA()->loadedFile().state == LoadedFile::State::Partly) {
        form_->control<ctl_Pannel>(u"bar_Empty")
            ->Caption(LNG()->TRANSLATE(u"Diese Liste lässt sich nicht lesen. Sie bleibt, wie sie ist.",
                                       u"This list cannot be read. It stays as it is."));
    }
}

void frm_DialogHighscore::load()
{
    const auto list = copyOfList();
    showTitle();
    showWhyEmpty();
    more_->Enabled(false);
    less_->Enabled(false);
    clearRows();
    list->MODE(enm_ScoreListMode::ID_ScoreList_Highscore);
    list->SORT();
    const std::int32_t count = list->COUNT();
    more_->Enabled(count > highscore_design::Rows);
    for (std::int32_t position = 1; position <= std::min(count, highscore_design::Rows); ++position) {
        fillRow(*list, position);
    }
    form_->control<ctl_Pannel>(u"bar_Empty")->Visible(count == 0);
    const auto commands = form_->control<ctl_CmdBar>(u"bar_Buttons");
    commands->BUTTONS()->Item(1)->Enabled(count > 0 && local_);
    commands->REFRESH();
}

void frm_DialogHighscore::nextPage()
{
    const auto list = copyOfList();
    clearRows();
    ++page_;
    less_->Enabled(true);
    const std::int32_t count = list->COUNT();
    if (rowsBefore() > count) {
        --page_;
    }
    const std::int32_t first = rowsBefore() + 1;
    for (std::int32_t position = first; position < first + highscore_design::Rows; ++position) {
        if (position > count) {
            more_->Enabled(false);
            break;
        }
        fillRow(*list, position);
    }
    keepFocus(*less_);
}

/// The page before is full as long as nobody shortens the list meanwhile; then the missing entry is raised.
void frm_DialogHighscore::previousPage()
{
    const auto list = copyOfList();
    clearRows();
    --page_;
    more_->Enabled(true);
    if (page_ < 0) {
        page_ = 0;
        less_->Enabled(false);
    }
    const std::int32_t first = rowsBefore() + 1;
    for (std::int32_t position = first; position < first + highscore_design::Rows; ++position) {
        fillRow(*list, position);
    }
    keepFocus(*more_);
}

std::shared_ptr<cls_DataScores> frm_DialogHighscore::copyOfList() const
{
    if (!scores_) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    auto copy = std::make_shared<cls_DataScores>();
    copy->DATA()->Copy(*scores_);
    return copy;
}

/// How many entries stand on the pages before this one.
std::int32_t frm_DialogHighscore::rowsBefore() const
{
    return highscore_design::Rows * page_;
}

void frm_DialogHighscore::clearRows()
{
    for (const auto* labels : {&ranks_, &names_, &exercises_, &points_, &times_}) {
        labels->each([](Label& label, std::int32_t) { label.Caption({}); });
    }
    for (std::int32_t row = 0; row < highscore_design::Rows; ++row) {
        stressRow(row, false);
    }
}

void frm_DialogHighscore::fillRow(cls_DataScores& list, std::int32_t position)
{
    const auto entry = list.ITEM(position);
    const std::int32_t row = position - 1 - rowsBefore();
    names_(row)->Caption(entry->SCREENNAME());
    ranks_(row)->Caption(Variant(position).toText());
    exercises_(row)->Caption(entry->UEBM());
    points_(row)->Caption(wholePoints(entry->POINTS()));
    times_(row)->Caption(shortMoment(entry->TIMESTAMP()));
    if (position == rank_) {
        stressRow(row, true);
    }
}

void frm_DialogHighscore::stressRow(std::int32_t row, bool stressed)
{
    const auto rowFont =
        std::make_shared<Font>(FontSpec{.size = highscore_design::RowSize, .bold = stressed});
    for (const auto* labels : {&ranks_, &names_, &points_}) {
        (*labels)(row)->ForeColor(stressed ? QBColor(LightRed) : Palette::Ink);
        (*labels)(row)->Font(rowFont);
    }
}

/// The button that was pressed may have been disabled by it; the keyboard goes on with the other one.
void frm_DialogHighscore::keepFocus(ctl_Button& other)
{
    if (form_->Visible() && !form_->ActiveControl()) {
        other.SetFocus();
    }
}

void frm_DialogHighscore::askForReset()
{
    if (coreRoot().CoreDialogs().YesNo(ResetQuestion) == DialogAnswer::Yes) {
        reset_ = true;
        form_->Unload();
    }
}

/// A button hears Return itself.
void frm_DialogHighscore::keyDown(KeyEvent& event)
{
    if (turnsPage(event)) {
        event.KeyCode = 0;
    } else if (event.is(Key::Escape) || (event.is(Key::Return) && !form_->ActiveControl())) {
        event.KeyCode = 0;
        form_->Unload();
    }
}

bool frm_DialogHighscore::turnsPage(const KeyEvent& event)
{
    if (event.is(Key::PageDown) && more_->Enabled()) {
        nextPage();
        return true;
    }
    if (event.is(Key::PageUp) && less_->Enabled()) {
        previousPage();
        return true;
    }
    return false;
}

} // namespace phial
