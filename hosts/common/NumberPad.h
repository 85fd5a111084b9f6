#pragma once

#include "common/FrameDesign.h"
#include "visual/ControlArray.h"
#include "visual/TextBox.h"

#include <memory>

namespace learning
{

/// A pad of large keys below which a number is typed by touch: digits, the decimal sign of the language in
/// force, and a key that takes the last character away. The answer keeps the focus, and with it its
/// selection, while the pad is touched.
///
/// The keys stand on the form by `row`, in the app's table of controls, under the name `but_Key`.
class NumberPad
{
public:
    /// The row of the app's table that makes the keys.
    static constexpr phial::ControlDesign row()
    {
        return phial::design<phial::ctl_Button>(
                   u"but_Key",
                   {frame_design::TaskPlaces::Pad.left, frame_design::TaskPlaces::Pad.top, KeySize, KeySize})
            .repeated(static_cast<std::int32_t>(std::size(Faces)), Columns, Step, Step)
            .inside(u"pan_Task")
            .font(18)
            .unfocusable();
    }

    /// Joins the keys to the field that they type into.
    NumberPad(phial::Form& form, std::shared_ptr<phial::TextBox> answer);
    NumberPad(const NumberPad&) = delete;
    NumberPad& operator=(const NumberPad&) = delete;

    /// Whether its keys can be pressed.
    void Enabled(bool value);
    void TRANSLATE();

private:
    /// Row by row. The comma stands for the decimal sign; the last key takes a character away.
    static constexpr phial::StringView Faces[] = {u"7", u"8", u"9", u"4", u"5", u"6",
                                                  u"1", u"2", u"3", u",", u"0", u"\u232B"};
    static constexpr int Columns = 3;
    static constexpr double KeySize = 68;
    static constexpr double Step = 80;

    void press(std::int32_t index);

    std::shared_ptr<phial::TextBox> answer_;
    phial::ControlArray<phial::ctl_Button> keys_;
};

} // namespace learning
