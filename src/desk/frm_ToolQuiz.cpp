#include "desk/frm_ToolQuiz.h"

#include "app/FormTexts.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NumberText.h"
#include "core/Palette.h"
#include "desk/QuizDesign.h"
#include "desk/SheetDesign.h"

#include <utility>

namespace phial
{

namespace
{

constexpr StringView RightSign = u"\u2713 ";
constexpr StringView WrongSign = u"\u2717 ";

String textOf(std::size_t number)
{
    return plainText(static_cast<std::int32_t>(number));
}

} // namespace

frm_ToolQuiz::frm_ToolQuiz(std::function<std::vector<QuizQuestion>()> make)
    : make_(std::move(make)), form_(tool_quiz_design::Design), choices_(*form_, u"but_Choice"),
      progress_(form_->control<ctl_Label>(u"lab_Progress")),
      asked_(form_->control<ctl_Label>(u"lab_Question")), verdict_(form_->control<ctl_Label>(u"lab_Verdict")),
      bar_(form_->control<ctl_CmdBar>(u"bar_Buttons"))
{
    choices_.adopt();
    choices_.connectEach([this](ctl_Button& button, std::int32_t choice) {
        return button.CLICK.connect([this, choice] { choose(static_cast<std::size_t>(choice)); });
    });
    form_.on(form_->Load, [this] { begin(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) { keyDown(event); });
    form_.command(u"bar_Buttons", tool_quiz_design::GoesOn, [this] { goOn(); });
    form_.command(u"bar_Buttons", sheet_design::Confirm, [this] { form_->Unload(); });
}

void frm_ToolQuiz::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_ToolQuiz::TRANSLATE()
{
    translateForm(form_);
    show();
}

void frm_ToolQuiz::begin()
{
    questions_ = make_();
    at_ = 0;
    right_ = 0;
    chosen_.reset();
    TRANSLATE();
}

bool frm_ToolQuiz::isOver() const
{
    return at_ >= questions_.size();
}

void frm_ToolQuiz::keyDown(KeyEvent& event)
{
    const std::int32_t choice = event.KeyCode - u'1';
    if (event.Shift == 0 && choice >= 0 && choice < static_cast<std::int32_t>(QuizChoices)) {
        event.KeyCode = 0;
        choose(static_cast<std::size_t>(choice));
    }
}

void frm_ToolQuiz::choose(std::size_t choice)
{
    if (isOver() || chosen_) {
        return;
    }
    chosen_ = choice;
    right_ += choice == question().right ? 1U : 0U;
    show();
    verdict_->frame().announce(verdict_->Caption());
    bar_->frame().SetFocus();
}

void frm_ToolQuiz::goOn()
{
    if (isOver()) {
        begin();
    } else if (chosen_) {
        ++at_;
        chosen_.reset();
        show();
    }
    asked_->frame().announce(asked_->Caption());
    if (!isOver()) {
        choices_(0)->frame().SetFocus();
    }
}

void frm_ToolQuiz::show()
{
    const auto next = bar_->BUTTONS()->Item(1);
    next->Enabled(isOver() || chosen_);
    next->Default(true);
    next->Text(isOver() ? LNG()->TRANSLATE(u"Noch einmal", u"Again") : LNG()->TRANSLATE(u"Weiter", u"Next"));
    choices_.each([this](ctl_Button& button, std::int32_t) { button.Visible(!isOver()); });
    if (isOver()) {
        showEnd();
    } else {
        showQuestion();
    }
}

void frm_ToolQuiz::showEnd()
{
    progress_->Caption(String());
    asked_->Caption(LNG()->TRANSLATE(u"{1} von {2} richtig.", u"{1} of {2} right.",
                                     {Variant(textOf(right_)), Variant(textOf(questions_.size()))}));
    verdict_->Caption(String());
}

void frm_ToolQuiz::showQuestion()
{
    progress_->Caption(LNG()->TRANSLATE(u"Frage {1} von {2}", u"Question {1} of {2}",
                                        {Variant(textOf(at_ + 1)), Variant(textOf(questions_.size()))}));
    asked_->Caption(question().question);
    choices_.each([this](ctl_Button& button, std::int32_t number) {
        const auto choice = static_cast<std::size_t>(number);
        const auto& [text, spoken] = question().choices[choice];
        String sign;
        if (chosen_ && (choice == question().right || choice == *chosen_)) {
            sign = choice == question().right ? RightSign : WrongSign;
        }
        button.Caption(sign + text);
        button.frame().AccessibleName(spoken.empty() ? text : spoken);
        button.Accent(chosen_ && choice == question().right);
    });
    if (!chosen_) {
        verdict_->Caption(String());
    } else if (*chosen_ == question().right) {
        verdict_->ForeColor(Palette::Right);
        verdict_->Caption(String(RightSign) + LNG()->TRANSLATE(u"Richtig.", u"Right."));
    } else {
        verdict_->ForeColor(Palette::TryAgain);
        verdict_->Caption(LNG()->TRANSLATE(u"Noch nicht. Richtig ist {1}.", u"Not yet. Right is {1}.",
                                           {Variant(question().answer().text)}));
    }
}

} // namespace phial
