#include "common/AppMascot.h"

#include "app/Settings.h"
#include "common/FrameDesign.h"
#include "common/FrameLayout.h"
#include "common/FrameTexts.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Button.h"

#include <algorithm>
#include <cmath>

namespace learning
{

using phial::String;
using phial::StringView;

namespace
{

constexpr StringView MascotSetting = u"Config\\Mascot";
constexpr std::int32_t ThinkingTime = 45'000; // milliseconds
constexpr double SlowReading = 0.5;           // speed of texts that stay twice as long

constexpr double AtomSize = 100;
constexpr double ColumnEdge = 4;
constexpr double BalloonMargin = 6;
constexpr double BalloonTailLength = 14;
constexpr double BalloonTailWidth = 16;
constexpr double BalloonShadow = 4;
constexpr double BalloonText = 10; // points
constexpr double LeastBalloonText = 7.5;
constexpr double BalloonStep = 0.5;

constexpr auto ChoiceTexts = std::to_array<StringView>({
    u"Maskottchen: an|Mascot: on",
    u"Maskottchen: langsam|Mascot: slow texts",
    u"Maskottchen: ruhig|Mascot: still",
    u"Maskottchen: aus|Mascot: off",
});

/// How it looks when nothing happens: attentive, and designed so, so that each text comes back to it.
phial::PropertyBag attentiveLook(const String& balloon)
{
    using phial::enm_DrAtomEyeMove;
    phial::PropertyBag look;
    look.WriteProperty(u"BUBLE", balloon);
    look.WriteProperty(u"MOOD", static_cast<std::int32_t>(phial::enm_DrAtomMood::ID_DrAtomMood_Neutral));
    look.WriteProperty(u"EYEMOVE",
                       static_cast<std::int32_t>(enm_DrAtomEyeMove::ID_DrAtomEyeMove_MouseTracking));
    look.WriteProperty(u"MOUTHOPEN", 1.0);
    look.WriteProperty(u"MOUTHSIZE", 8);
    return look;
}

} // namespace

AppMascot::AppMascot(phial::DesignedForm& form, double pageMargin)
    : form_(form), pageMargin_(pageMargin), balloon_(form->add<phial::ctl_Bubble>(u"bub_Mascot")),
      atom_(form->add<phial::ctl_DrAtom>(u"atm_Mascot")), measure_(phial::makeControl<phial::ctl_Label>()),
      thinking_(u"tmr_Thinking", ThinkingTime)
{
    balloon_->Visible(false);
    balloon_->ZIPSIDE(phial::enm_BallonZipSide::ID_BallonZipSide_BottomLeft);
    balloon_->ZIPDISTANCE(static_cast<std::int32_t>(BalloonTailLength));
    balloon_->ZIPSIZE(static_cast<std::int32_t>(BalloonTailWidth));
    balloon_->BORDERROUND(8);
    balloon_->TEXTMARGIN(static_cast<std::int32_t>(BalloonMargin));
    balloon_->SHADOWOFFX(static_cast<std::int32_t>(BalloonShadow));
    balloon_->SHADOWOFFY(static_cast<std::int32_t>(BalloonShadow));
    balloon_->TEXTFONT()->Size(BalloonText);
    measure_->BreaksWords(true);
    measure_->Font(balloon_->TEXTFONT());
    measure_->AutoSize(true);
    atom_->readProperties(attentiveLook(balloon_->NAME()));
    form_.on(atom_->CLICK, [this] { sayLastAgain(); });
    form_.on(thinking_.Tick, [this] { offerPatience(); });
    form_.on(form_->Unloaded, [this] { leaveTask(); });
    form_.press(u"but_Mascot", [this] { chooseNext(); });
    applyChoice();
}

AppMascot::Choice AppMascot::choice()
{
    const std::int32_t kept = phial::coreRoot().CoreRegistry().CoreRegistryRead().ReadLong(
        phial::SettingsHive::CurrentUser, phial::settings::path(MascotSetting), 0);
    return kept >= 0 && kept < std::ssize(ChoiceTexts) ? static_cast<Choice>(kept) : Choice::On;
}

void AppMascot::follow()
{
    const phial::PixelSize inner = form_->innerSize();
    const double zoom = form_->Zoom();
    const Arrangement now = arrange({inner.width * zoom, inner.height * zoom});
    const double bottom = now.page.y + frame_design::PageHeight - ColumnEdge;
    column_ = {ColumnEdge, now.header + ColumnEdge, now.page.x + pageMargin_ - 2 * ColumnEdge,
               bottom - now.header - ColumnEdge};
    if (column_.width < AtomSize) {
        column_ = {};
    } else {
        atom_->frame().pixelRectangle({column_.left, column_.bottom() - AtomSize, AtomSize, AtomSize});
        fitBalloon(balloon_->TEXT());
    }
    applyChoice();
}

/// As wide as the column, and as high as the text needs. Where the column is too narrow for a word, the text
/// is smaller.
void AppMascot::fitBalloon(const String& text)
{
    const double width = column_.width - BalloonShadow - 2 * BalloonMargin;
    balloon_->TEXTFONT()->Size(textSizeFor(text, width));
    measure_->Width(width);
    measure_->Caption(text);
    const double height =
        std::ceil(measure_->Height()) + 2 * BalloonMargin + BalloonTailLength + BalloonShadow;
    const double top = column_.bottom() - AtomSize - height;
    balloon_->frame().pixelRectangle({column_.left, std::max(top, column_.top), column_.width, height});
}

/// In points.
double AppMascot::textSizeFor(const String& text, double width) const
{
    phial::FontSpec font = balloon_->TEXTFONT()->traits();
    const auto hasRoom = [&] {
        const auto face = phial::visualHost().metrics().face(font);
        return std::ranges::all_of(phial::split(phial::replaced(text, u"<br>", u" "), u" "),
                                   [&](StringView word) { return face->width(word) <= width; });
    };
    for (font.size = BalloonText; font.size > LeastBalloonText && !hasRoom();) {
        font.size -= BalloonStep;
    }
    return font.size;
}

void AppMascot::TRANSLATE()
{
    forgetText();
    nameSwitch();
}

void AppMascot::nameSwitch()
{
    const String chosen = translate(ChoiceTexts.at(static_cast<std::size_t>(choice())));
    form_->control<phial::ctl_Button>(u"but_Mascot")->Caption(chosen);
    atom_->frame().AccessibleName(translate(u"Maskottchen|Mascot"));
    atom_->frame().ToolTipText(translate(u"Letzten Text noch einmal (F3)|Last text again (F3)"));
}

void AppMascot::forgetText()
{
    atom_->BUBBLECANCEL = true;
    atom_->BUBBLETEXTLAST.clear();
}

void AppMascot::chooseNext()
{
    const auto next = (static_cast<std::int32_t>(choice()) + 1) % std::ssize(ChoiceTexts);
    phial::coreRoot().CoreRegistry().CoreRegistryWrite().WriteLong(phial::SettingsHive::CurrentUser,
                                                                   phial::settings::path(MascotSetting),
                                                                   static_cast<std::int32_t>(next));
    nameSwitch();
    applyChoice();
    const auto button = form_->control<phial::ctl_Button>(u"but_Mascot");
    button->frame().announce(button->Caption());
}

void AppMascot::applyChoice()
{
    const bool isThere = choice() != Choice::Off && !column_.isEmpty();
    atom_->moves(choice() != Choice::Still);
    atom_->BUBBLECANCEL = atom_->BUBBLECANCEL || choice() == Choice::Off;
    atom_->Visible(isThere);
    balloon_->Visible(isThere && atom_->BUSY() && !atom_->BUBBLECANCEL);
}

void AppMascot::sayText(const String& text, Source source)
{
    if (choice() == Choice::Off || column_.isEmpty() || text.empty()) {
        atom_->BUBBLECANCEL = true; // what was said before is over as well
        return;
    }
    fitBalloon(text);
    atom_->announces(source == Source::Request);
    atom_->BUBBLESAYSPEED(nullptr, text, false, choice() == Choice::LongReading ? SlowReading : 1);
}

void AppMascot::sayLastAgain()
{
    if (!atom_->BUSY()) {
        sayText(String(atom_->BUBBLETEXTLAST), Source::Request);
    }
}

void AppMascot::greet()
{
    mood(phial::enm_DrAtomMood::ID_DrAtomMood_Happy);
}

void AppMascot::says(const String& word)
{
    sayText(word, Source::Page);
}

void AppMascot::taskShown()
{
    isAnswerAwaited_ = true;
    mood(phial::enm_DrAtomMood::ID_DrAtomMood_Neutral);
    startThinking();
}

/// A repaint lets it move, and nobody would see that while it is away.
void AppMascot::mood(phial::enm_DrAtomMood value)
{
    atom_->MOOD(value);
    if (!atom_->frame().isSeen()) {
        atom_->DEINIT();
    }
}

void AppMascot::startThinking()
{
    thinking_.Enabled(false);
    thinking_.Enabled(isAnswerAwaited_);
}

/// Whoever is in another window does not think about the task; the time begins anew.
void AppMascot::offerPatience()
{
    if (phial::visualHost().screen().ActiveForm() == atom_->frame().form()) {
        thinking_.Enabled(false);
        mood(phial::enm_DrAtomMood::ID_DrAtomMood_Happy);
    }
}

void AppMascot::judged(Verdict verdict, const Round& round, const String& word)
{
    using enum phial::enm_DrAtomMood;
    isAnswerAwaited_ = !round.decided();
    startThinking();
    switch (verdict) {
    case Verdict::Right:
        mood(ID_DrAtomMood_Happy);
        break;
    case Verdict::Wrong:
        mood(ID_DrAtomMood_Surprised);
        break;
    case Verdict::Missed:
        mood(ID_DrAtomMood_Neutral);
        break;
    case Verdict::Unreadable:
        break;
    }
    if (!word.empty()) {
        says(word);
    }
}

void AppMascot::hintTaken()
{
    mood(phial::enm_DrAtomMood::ID_DrAtomMood_Happy);
    startThinking();
}

void AppMascot::leaveTask()
{
    isAnswerAwaited_ = false;
    thinking_.Enabled(false);
    atom_->BUBBLECANCEL = true;
}

void AppMascot::answerChanged()
{
    if (isAnswerAwaited_) { // the page empties the field for the next task
        typed();
    }
}

void AppMascot::typed()
{
    atom_->BUBBLECANCEL = true;
    startThinking();
}

} // namespace learning
