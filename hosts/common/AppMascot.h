#pragma once

#include "common/Round.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "visual/DesignedForm.h"
#include "visual/Timer.h"
#include "visual/ctl_Label.h"

#include <memory>

namespace learning
{

/// The mascot at the lower left of an app's window, beside its page, with its balloon above it: so neither
/// ever covers anything of the page, and both are away where the window leaves too little room there. It is
/// no stop of the Tab key.
///
/// It smiles and wonders, and says at four moments what stands on the page as well: when a round begins, at
/// the second wrong try, behind three tasks solved at once, and when the round is over. Whoever types ends
/// its text, and a click on it or F3 brings the last one back. The switch `but_Mascot` in the footer tells
/// how much of it there is; the choice is the user's, for all apps.
class AppMascot
{
public:
    /// How much there is of it.
    enum class Choice : std::uint8_t {
        On,
        LongReading, ///< its texts stay twice as long
        Still,       ///< it does not move
        Off,
    };

    /// Takes up the choice that was made last. Of the page it may stand on what that leaves empty at its
    /// left.
    AppMascot(phial::DesignedForm& form, double pageMargin);

    static Choice choice();

    /// The window has another size.
    void follow();
    /// Says on the switch what is chosen, in the language in force.
    void TRANSLATE();

    /// The window stands, with someone before it.
    void greet();
    /// A round begins, or is over, and the page says that.
    void says(const phial::String& word);
    /// Another task is shown.
    void taskShown();
    /// An answer has been judged, and the page says that of it; empty for what it does not speak of.
    void judged(Verdict verdict, const Round& round, const phial::String& word);
    void hintTaken();
    /// No task is shown any more.
    void leaveTask();
    /// A key has gone down.
    void typed();
    /// The answer reads otherwise, by whatever it was entered.
    void answerChanged();
    /// Another pupil sits before it.
    void forgetText();
    void sayLastAgain();

private:
    /// Whether the page has told screen readers of it.
    enum class Source { Page, Request };

    void sayText(const phial::String& text, Source source);
    void fitBalloon(const phial::String& text);
    double textSizeFor(const phial::String& text, double width) const;
    void mood(phial::enm_DrAtomMood value);
    void startThinking();
    void offerPatience();
    void nameSwitch();
    void chooseNext();
    void applyChoice();

    phial::DesignedForm& form_;
    double pageMargin_;
    std::shared_ptr<phial::ctl_Bubble> balloon_;
    std::shared_ptr<phial::ctl_DrAtom> atom_;
    std::shared_ptr<phial::ctl_Label> measure_; ///< stands nowhere and tells how high a text is
    phial::Timer thinking_;
    phial::PixelRectangle column_; ///< beside the page; empty without room
    bool isAnswerAwaited_ = false;
};

} // namespace learning
