#pragma once

#include "common/NumberPad.h"

#include <optional>

namespace learning
{

/// A number as the answer to a task: a field beside the button that checks it, with a pad to type it by
/// touch. Comma and point are both decimal signs.
class NumberAnswer
{
public:
    /// The row of the app's table that makes the field; the pad's is NumberPad::row.
    static constexpr phial::ControlDesign row(phial::StringView spoken)
    {
        constexpr auto Place = frame_design::TaskPlaces::Answer;
        return phial::design<phial::TextBox>(u"txt_Answer", {Place.left, Place.top, FieldWidth, Place.height})
            .inside(u"pan_Task")
            .font(24)
            .ground(phial::Palette::Surface)
            .align(phial::Alignment::Right)
            .set(u"MaxLength", 12)
            .spoken(spoken);
    }
    /// The row of the unit beside the field.
    static constexpr phial::ControlDesign unit(phial::StringView text)
    {
        constexpr auto Place = frame_design::TaskPlaces::Answer;
        return phial::design<phial::ctl_Label>(u"lab_Unit",
                                               {Place.left + FieldWidth + 12, Place.top,
                                                Place.width - FieldWidth - 12 - LockWidth, Place.height},
                                               text)
            .inside(u"pan_Task")
            .font(18)
            .ink(phial::Palette::Ink)
            .align(phial::TEXTALIGN::MiddleLeft);
    }

    explicit NumberAnswer(phial::Form& form);

    const std::shared_ptr<phial::TextBox>& field() const { return field_; }
    /// What stands there; empty where it is no number.
    std::optional<double> value() const;
    /// The same text for the same number, however it is written; empty where it is none.
    phial::String text() const;

    /// Empties the field for a new task.
    void open();
    /// What is typed next replaces what stands there.
    void retry();
    /// It can be read and no longer changed, and looks so.
    void close();
    /// What is told to whom has not typed a number.
    static phial::String unreadable();
    void TRANSLATE() { pad_.TRANSLATE(); }

private:
    static constexpr double FieldWidth = 220;
    static constexpr double LockWidth = 24; ///< left free by the unit

    void look(bool decided);

    phial::Form& form_;
    std::shared_ptr<phial::TextBox> field_;
    NumberPad pad_;
};

/// A typed number; empty where it is none.
std::optional<double> typedNumber(phial::StringView text);

} // namespace learning
