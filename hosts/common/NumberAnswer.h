#pragma once

#include "common/AnswerLock.h"
#include "common/FrameDesign.h"
#include "dialogs/ctl_QVInput.h"

#include <memory>
#include <optional>

namespace learning
{

/// A number as the answer to a task: a field beside the button that checks it, and a button that opens a pad
/// to type it by touch or mouse; in touch mode a press on the field does so too. The pad stands beside the
/// task and hides neither that nor the field. Comma and point are both decimal signs.
///
/// The answer stays as the pupil has typed it: nothing is no answer and not 0, and what is no number is
/// judged as that.
class NumberAnswer
{
public:
    /// The row of the app's table that makes the field; `spoken` is what the pad asks for as well.
    static constexpr phial::ControlDesign row(phial::StringView spoken)
    {
        constexpr auto Place = frame_design::TaskPlaces::Answer;
        return phial::design<phial::ctl_QVInput>(u"txt_Answer",
                                                 {Place.left, Place.top, FieldWidth, Place.height})
            .inside(u"pan_Task")
            .font(24)
            .ground(phial::Palette::Surface)
            .set(u"MODE", phial::ID_InputMode_Double)
            .set(u"AsTyped", true)
            .set(u"MaxLength", static_cast<std::int32_t>(Room))
            .spoken(spoken);
    }
    /// The row of the button that opens the pad.
    static constexpr phial::ControlDesign pad()
    {
        return frame_design::sideButton(u"but_Pad", frame_design::TaskPlaces::Pad, u"Zahlenblock|Number pad")
            .inside(u"pan_Task")
            .unfocusable();
    }
    /// The row of the button that opens the pocket calculator, which an app may leave out. The app calls
    /// `calculate` at its press.
    static constexpr phial::ControlDesign calculator()
    {
        return frame_design::sideButton(u"but_Calculator", frame_design::TaskPlaces::Calculator,
                                        u"Taschenrechner (F4)|Pocket calculator (F4)")
            .inside(u"pan_Task")
            .unfocusable();
    }
    /// The row of the unit beside the field.
    static constexpr phial::ControlDesign unit(phial::StringView text)
    {
        constexpr auto Place = frame_design::TaskPlaces::Answer;
        return phial::design<phial::ctl_Label>(u"lab_Unit",
                                               {Place.left + FieldWidth + 12, Place.top,
                                                Place.width - FieldWidth - 12 - AnswerLock::Width,
                                                Place.height},
                                               text)
            .inside(u"pan_Task")
            .font(18)
            .ink(phial::Palette::Ink)
            .align(phial::TEXTALIGN::MiddleLeft);
    }

    /// The controls stand on the form. The pad opens beside `task`.
    NumberAnswer(phial::Form& form, const phial::ControlPtr& task);
    NumberAnswer(const NumberAnswer&) = delete;
    NumberAnswer& operator=(const NumberAnswer&) = delete;

    /// What one types into.
    phial::ControlPtr field() const { return input_; }
    /// Puts a text there as if it had been typed.
    void type(phial::String text) { input_->Text(std::move(text)); }
    /// What stands there; empty where it is no number.
    std::optional<double> value() const;
    /// The same text for the same number, however it is written; empty where it is none.
    phial::String text() const;

    /// Opens the pocket calculator, over which the task's text stands. The result that the pupil takes there
    /// becomes the answer, with as many digits as the field has room for. It knows no molar masses of
    /// formulas, which could be the solution. Nothing happens once the answer is closed.
    void calculate(const phial::String& task);

    /// Empties the field for a new task.
    void open();
    /// What is typed next replaces what stands there.
    void retry();
    /// It can be read and no longer changed, and looks so.
    void close();
    /// What is told to whom has not typed a number.
    static phial::String unreadable();
    void TRANSLATE();

private:
    static constexpr double FieldWidth = 220;
    static constexpr std::size_t Room = 12; ///< signs

    void look(bool decided);

    AnswerLock lock_;
    std::shared_ptr<phial::ctl_QVInput> field_;
    std::shared_ptr<phial::TextBox> input_; ///< within it
    std::shared_ptr<phial::ctl_Button> pad_;
    std::shared_ptr<phial::ctl_Button> calculator_; ///< null where the app has no row for it
    phial::Connection pressing_;
};

/// A typed number; empty where it is none.
std::optional<double> typedNumber(phial::StringView text);

} // namespace learning
