#pragma once

#include "results/Mark.h"
#include "visual/PaintSurface.h"
#include "visual/UserControl.h"
#include "visual/ctl_Label.h"

#include <array>
#include <memory>

namespace phial
{

/// Shows a mark of the German school scale: the whole marks 1 to 6 in a row, each in its colour, with the
/// chosen one raised in a frame, and a plus or a minus beside it. Its size is fixed: whatever size it is
/// given, it takes that of its row.
///
/// The row stands in the container as labels: `NoteAnz` with the indices 0 to 5, `Plus` and `Minus`. A sign
/// that does not hold has the background's colour, so that it cannot be seen.
///
/// The worst mark, 0, reads "6+", and so it is shown. Values outside the scale are shown as far as the same
/// rules carry: -1, which "6-" gives, as a plain 5; 16 as a minus without a whole mark.
class ctl_Mark final : public UserControl
{
public:
    ctl_Mark();

    enm_Mark MARK() const { return mark_; }
    void MARK(enm_Mark value);

    /// Such as "2+": the whole mark, and the sign if there is one.
    String MARKTEXT() const;
    /// The first character is the whole mark and a last "+" or "-" the sign. Without a whole mark from 1 to
    /// 5 in front the text counts like "6".
    void MARKTEXT(StringView value);

    /// The colour of buttons at first.
    Colour BackColor() const { return surface_.BackColor(); }
    void BackColor(Colour value);

    StringView typeName() const override { return u"ctl_Mark"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    bool keepsOwnSize() const override { return true; }
    PartRole role() const override { return PartRole::StaticText; }
    /// Such as "Note 2 plus" or "Mark 2 plus", in the language in force.
    String accessibleText() const override;
    void initProperties() override { resized(); }
    void readProperties(const PropertyBag&) override { resized(); }
    void resized() override;
    void paint() override;

private:
    struct Properties;

    void build();
    void draw();
    void drawWholeMark(std::int32_t wholeMark);
    void drawSign(ctl_Label& sign, bool holds, std::int64_t neighbour);
    void paintBehind(ctl_Label& label);
    void paintFrame(ctl_Label& label);
    Colour edgeColour(const ctl_Label& label) const;

    ControlFrame frame_;
    PaintSurface surface_;
    enm_Mark mark_ = enm_Mark::ID_Mark_6;
    std::array<std::shared_ptr<ctl_Label>, 6> wholeMarks_; ///< the mark 1 comes first
    std::shared_ptr<ctl_Label> plus_;
    std::shared_ptr<ctl_Label> minus_;
};

} // namespace phial
