#include "dialogs/ctl_Offers.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/formula/FormulaNames.h"
#include "core/Palette.h"
#include "term/TermSpeech.h"
#include "visual/PropertyRows.h"

#include <utility>

namespace phial
{

struct ctl_Offers::Properties {
    static constexpr rows::Table Table{
        rows::property<u"BackColor">(&ctl_Offers::surface_, &PaintSurface::BackColor,
                                     &PaintSurface::BackColor, Palette::Ground),
    };
};

ctl_Offers::ctl_Offers() : frame_(*this), surface_(*this)
{
    frame_.takesTouch(true);
    rows::start<Properties>(*this);
}

MemberTable ctl_Offers::members() const
{
    return rows::membersOf<Properties>();
}

void ctl_Offers::cells(std::size_t columns, std::size_t rows)
{
    columns_ = columns;
    rows_ = rows;
    surface_.invalidate();
}

void ctl_Offers::offer(std::vector<const FormulaName*> formulas)
{
    choose({});
    if (formulas != formulas_) {
        formulas_ = std::move(formulas);
        press_.reset();
        frame_.report(ControlAspect::Accessibility);
        surface_.invalidate();
    }
}

PixelRectangle ctl_Offers::cell(std::size_t at) const
{
    const PixelSize size = surface_.size();
    const double width = size.width / static_cast<double>(columns_);
    const double height = size.height / static_cast<double>(rows_);
    const std::size_t row = at / columns_;
    const std::size_t column = at % columns_;
    return {width * static_cast<double>(column), height * static_cast<double>(row), width, height};
}

std::optional<std::size_t> ctl_Offers::cellAt(PixelPoint point) const
{
    for (std::size_t at = 0; at < count(); ++at) {
        if (cell(at).contains(point)) {
            return at;
        }
    }
    return std::nullopt;
}

// Fingers.

void ctl_Offers::pointerDown(const PointerEvent& event)
{
    if (event.Button != PointerButton::Left || press_) {
        return;
    }
    if (const auto at = cellAt({event.X, event.Y})) {
        press_ = Press{event.Touch, *at};
        surface_.invalidate();
    }
    PRESSED.raise(event);
}

void ctl_Offers::pointerMove(const PointerEvent& event)
{
    MOVED.raise(event);
}

void ctl_Offers::pointerUp(const PointerEvent& event)
{
    if (event.Button != PointerButton::Left) {
        return;
    }
    const auto self = weak_from_this().lock();
    RELEASED.raise(event.Touch);
    if (!press_ || press_->finger != event.Touch) {
        return;
    }
    const std::size_t at = press_->cell;
    cancelPress();
    if (!event.isCancelled && cellAt({event.X, event.Y}) == at) {
        TAKEN.raise(at);
    }
}

void ctl_Offers::cancelPress()
{
    if (press_) {
        press_.reset();
        surface_.invalidate();
    }
}

void ctl_Offers::hidden()
{
    cancelPress();
}

// Keys.

void ctl_Offers::choose(std::optional<std::size_t> at)
{
    if (at == chosen_) {
        return;
    }
    chosen_ = at;
    if (chosen_) {
        frame_.announce(spokenTerm(formulas_[*chosen_]->formula));
    }
    frame_.report(ControlAspect::Accessibility);
    surface_.invalidate();
}

/// Gives whether the key leads from one offer to another, or back to the field.
bool ctl_Offers::step(const KeyEvent& event)
{
    const std::size_t at = *chosen_;
    if (event.is(Key::Left) || event.is(Key::Right)) {
        choose((at + (event.is(Key::Right) ? 1 : count() - 1)) % count());
    } else if (event.is(Key::Down)) {
        choose(at + columns_ < count() ? at + columns_ : at);
    } else if (event.is(Key::Up)) {
        choose(at >= columns_ ? std::optional(at - columns_) : std::nullopt);
    } else {
        return false;
    }
    return true;
}

void ctl_Offers::previewKey(KeyEvent& event)
{
    if (!frame_.Visible() || formulas_.empty() || event.isSent || event.Shift != 0) {
        return;
    }
    const auto self = weak_from_this().lock();
    bool isUsed = true;
    if (!chosen_) {
        isUsed = event.is(Key::Down);
        if (isUsed) {
            choose(0);
        }
    } else if (!step(event)) {
        const std::size_t at = *chosen_;
        const bool isChoice = event.is(Key::Return);
        isUsed = isChoice || event.is(Key::Escape);
        choose({});
        if (isChoice) {
            TAKEN.raise(at);
        }
    }
    if (isUsed) {
        event.KeyCode = 0;
    }
}

// What is seen and told.

void ctl_Offers::resized()
{
    surface_.resized();
    surface_.invalidate();
}

void ctl_Offers::paint()
{
    surface_.device().Cls();
    for (std::size_t at = 0; at < count(); ++at) {
        paintOffer(at);
    }
}

/// The formula, and its name in small letters.
void ctl_Offers::paintOffer(std::size_t at)
{
    constexpr double Pitch = 48;
    constexpr double TermPart = 0.58;
    constexpr double NameScale = 0.8;
    const FormulaName& offered = *formulas_[at];
    const PixelRectangle area = cell(at);
    KeyLook look;
    look.area = area;
    look.scale = area.height / Pitch;
    look.isPressed = chosen_ == at || (press_ && press_->cell == at);
    look.face = {.text = String(offered.formula), .isTerm = true};
    paintCap(surface_.device(), look);
    look.area.height = area.height * TermPart;
    paintFace(surface_.device(), look);
    look.area = {area.left, area.top + look.area.height - 3 * look.scale, area.width,
                 area.height - look.area.height};
    look.scale *= NameScale;
    look.face = {.text = LNG()->TRANSLATE(offered.german, offered.english)};
    paintFace(surface_.device(), look);
}

std::vector<NamedPart> ctl_Offers::parts() const
{
    std::vector<NamedPart> all;
    for (std::size_t at = 0; at < count(); ++at) {
        all.push_back({.area = cell(at),
                       .role = PartRole::Button,
                       .name = spokenTerm(formulas_[at]->formula),
                       .action = LNG()->TRANSLATE(u"Einsetzen", u"Insert"),
                       .state = {.pressed = chosen_ == at}});
    }
    return all;
}

void ctl_Offers::activatePart(std::size_t part)
{
    if (part < count()) {
        TAKEN.raise(part);
    }
}

} // namespace phial
