#pragma once

#include "common/Round.h"
#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

#include <vector>

namespace learning
{

/// How far a round has come: a disc for each task in a row. A solved one tells its points, filled when it was
/// solved at once; a missed one has a cross; the present one is coloured and has a mark for each try left;
/// those to come are empty.
///
/// A round of more tasks than have room has one disc, for the present task, and a bar: solved tasks fill it
/// to its height, missed ones to a third.
class ctl_RoundDots final : public phial::UserControl
{
public:
    ctl_RoundDots() : frame_(*this), surface_(*this) {}

    /// Shows how the round stands now.
    void show(const Round& round);

    phial::StringView typeName() const override { return u"ctl_RoundDots"; }
    phial::MemberTable members() const override { return {}; }
    phial::ControlFrame& frame() override { return frame_; }
    phial::PaintSurface& surface() override { return surface_; }
    void resized() override { surface_.resized(); }
    void paint() override;
    /// One a task, such as "Aufgabe 3: 7 Punkte", in the language in force. With the bar: the present task,
    /// and what the bar tells.
    std::vector<phial::NamedPart> parts() const override;

private:
    struct Dot {
        Outcome outcome = Outcome::Open;
        int points = 0;
    };

    bool hasRoomForAll() const;
    phial::PixelRectangle place(std::size_t dot) const;
    phial::PixelRectangle presentPlace() const;
    phial::PixelRectangle bar() const;
    void paintDot(std::size_t dot, const phial::PixelRectangle& square);
    void paintBar();
    void paintShare(std::size_t dot);
    void paintTries(const phial::PixelRectangle& place);
    void disc(const phial::PixelRectangle& place, phial::Colour fill, phial::Colour edge);
    void print(const phial::PixelRectangle& place, phial::StringView text, phial::Colour ink);
    phial::String spoken(std::size_t dot) const;
    phial::String spokenBar() const;

    phial::ControlFrame frame_;
    phial::PaintSurface surface_;
    std::vector<Dot> dots_;
    std::size_t present_ = 0; ///< counted from 0
    int triesLeft_ = 0;
};

} // namespace learning
