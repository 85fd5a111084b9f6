#pragma once

#include "common/FrameDesign.h"
#include "term/clt_TermInput.h"

#include <memory>

namespace formeln
{

/// A formula as the answer to a task: a field that shows it drawn while it is typed, on the desk's keyboard
/// or on the keyboard for terms, or by elements out of the periodic table.
class TermAnswer
{
public:
    // The rows of the app's table that make it: the frame around the field, and the field.
    static constexpr phial::ControlDesign frame()
    {
        return learning::frame_design::panel(u"pan_Answer", {Place.left, Place.top, Width, Place.height},
                                             phial::Palette::Surface, phial::Palette::ControlBorder)
            .inside(u"pan_Task");
    }
    static constexpr phial::ControlDesign row(phial::StringView spoken)
    {
        return phial::design<phial::clt_TermInput>(
                   u"trm_Answer", {Inset, Inset, Width - 2 * Inset, Place.height - 2 * Inset})
            .inside(u"pan_Answer")
            .focusable()
            .spoken(spoken);
    }

    /// The controls stand on the form. The keyboards open beside `task` where they have room.
    explicit TermAnswer(phial::Form& form);
    TermAnswer(const TermAnswer&) = delete;
    TermAnswer& operator=(const TermAnswer&) = delete;

    void Visible(bool value) { frame_->Visible(value); }
    phial::ControlPtr field() const { return field_; }
    phial::String text() const { return field_->Term(); }
    /// Puts a formula there as if it had been typed.
    void type(const phial::String& term);
    /// What one would touch to type by touch; `title` is what is asked for.
    void openKeyboard(const phial::String& title);
    void openTable(const phial::String& title);
    /// The caret stands behind what was typed.
    void retry();
    /// It can be read and no longer changed, and looks so.
    void close(bool isClosed);

private:
    static constexpr auto Place = learning::frame_design::TaskPlaces::Answer;
    static constexpr double Width = Place.width - 28; // the lock stands behind it
    static constexpr double Margin = 12;              // beside the formula
    static constexpr double Inset = 3;
    static constexpr double Points = 20;

    std::shared_ptr<phial::ctl_Pannel> frame_;
    std::shared_ptr<phial::clt_TermInput> field_;
};

} // namespace formeln
