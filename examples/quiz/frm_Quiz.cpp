#include "frm_Quiz.h"

#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NumberText.h"
#include "core/Palette.h"
#include "core/RuntimeError.h"
#include "results/cls_AppRate.h"

using namespace phial;

namespace
{

// Places are pixels of the design.
constexpr ControlDesign Controls[] = {
    design<ctl_Label>(u"lab_Title", {24, 16, 432, 28},
                      u"Wie heißt dieser Stoff?|What is this substance called?")
        .font(14),
    design<ctl_TermLabel>(u"trm_Formula", {24, 56, 432, 72})
        .font(28)
        .set(u"TEXTALIGN", TEXTALIGN::MiddleCentre),
    design<ctl_Button>(u"but_Name", {24, 144, 432, 48}).repeated(quiz::Choices, 1, 0, 56).font(13),
    design<ctl_Label>(u"lab_Said", {24, 376, 300, 48}).font(13),
    design<ctl_Button>(u"but_Again", {336, 376, 120, 48}, u"Noch einmal|Again"),
};
constexpr FormDesign Design{.name = u"frm_Quiz",
                            .caption = u"Stoff-Quiz|Substance quiz",
                            .size = {480, 440},
                            .border = BorderStyle::FixedSingle,
                            .controls = Controls};

} // namespace

frm_Quiz::frm_Quiz()
    : form_(Design), names_(*form_, u"but_Name"), formula_(form_->control<ctl_TermLabel>(u"trm_Formula")),
      said_(form_->control<ctl_Label>(u"lab_Said"))
{
    names_.adopt();
    names_.connectEach([this](ctl_Button& button, std::int32_t choice) {
        return button.CLICK.connect([this, choice] { choose(static_cast<std::size_t>(choice)); });
    });
    form_.press(u"but_Again", [this] { begin(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    begin();
}

void frm_Quiz::TRANSLATE()
{
    translateForm(form_);
    show();
}

void frm_Quiz::begin()
{
    String text;
    ignoringErrors(
        [&] { text = coreRoot().CoreFiles().ReadText(QVAPP()->URL()->DATAAPP() + u"stoffe.txt", u"UTF-8"); });
    questions_ = quiz::questionsOf(text);
    at_ = 0;
    right_ = 0;
    remark_ = questions_.empty() ? u"Die Datei stoffe.txt fehlt.|The file stoffe.txt is missing." : u"";
    TRANSLATE();
}

void frm_Quiz::choose(std::size_t choice)
{
    const bool isRight = choice == question().right;
    right_ += isRight ? 1 : 0;
    remark_ = isRight ? u"Richtig!|Right!" : u"Leider nicht.|No, sorry.";
    if (++at_ == questions_.size()) {
        QVAPP()->RATE()->handIn(static_cast<double>(right_), static_cast<double>(questions_.size()));
    }
    show();
}

void frm_Quiz::show()
{
    const bool isOver = at_ == questions_.size();
    formula_->Term(isOver ? String() : question().formula);
    for (std::size_t name = 0; name < quiz::Choices; ++name) {
        const auto button = names_(static_cast<std::int32_t>(name));
        button->Enabled(!isOver);
        button->Caption(isOver ? String() : LNG()->TRANSLATEAUTO(question().names[name]));
    }
    const auto number = [](std::size_t value) { return plainText(static_cast<std::int32_t>(value)); };
    said_->Caption(
        LNG()->TRANSLATEAUTO(remark_) + u"<br>" +
        LNG()->TRANSLATE(u"{1} von {2} richtig", u"{1} of {2} right", {number(right_), number(at_)}));
}
