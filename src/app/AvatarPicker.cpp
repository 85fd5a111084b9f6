#include "app/AvatarPicker.h"

#include "app/DialogUserDesign.h"
#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/screen/Avatars.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"

#include <algorithm>
#include <cmath>

namespace phial
{

using dialog_user_design::Cell;
using dialog_user_design::Columns;
using dialog_user_design::Marker;

namespace
{

constexpr double DragThreshold = 8; // pixels that a finger may tremble
constexpr double CellInset = 1;

/// The corner of an avatar's cell.
PixelPoint cellOf(std::int32_t index)
{
    const std::int32_t row = (index - 1) / Columns;
    const std::int32_t column = (index - 1) % Columns;
    return {static_cast<double>(column * Cell), static_cast<double>(row * Cell)};
}

} // namespace

AvatarPicker::AvatarPicker(Parts parts) : parts_(std::move(parts))
{
    layOut();
    connect();
    showCellsInView();
}

void AvatarPicker::layOut()
{
    count_ = QVAPP()->USER()->AVATARS();
    parts_.cells->AutoRedraw(false);
    parts_.cells->Height(toWhole(count_ / 2.0 + 0.1) * static_cast<double>(Cell));
    const double hiddenHeight = parts_.cells->Height() - parts_.holder->Height();
    const bool fits = hiddenHeight <= 0;
    parts_.bar->Enabled(!fits);
    parts_.bar->Min(0);
    parts_.bar->Max(fits ? 0 : toWhole(hiddenHeight));
    parts_.bar->SmallChange(Cell);
    parts_.bar->LargeChange(toWhole(parts_.holder->Height()) - Cell);
}

void AvatarPicker::connect()
{
    connections_ += parts_.bar->Change.connect([this] { scrolled(); });
    connections_ += parts_.bar->Scroll.connect([this] { scrolled(); });
    connections_ += parts_.holder->MouseWheel.connect([this](WheelEvent& event) { turn(event); });
    listenToPointer(*parts_.holder);
    listenToPointer(*parts_.cells);
    connections_ += parts_.cells->Paint.connect([this] { paintCells(); });
    connections_ += parts_.cells->Click.connect([this] { click(); });
    connections_ += parts_.cells->KeyDown.connect([this](KeyEvent& event) { keyDown(event); });
}

void AvatarPicker::listenToPointer(PictureBox& box)
{
    connections_ += box.MouseDown.connect(
        [this, &box](const PointerEvent& event) { press(event.X, event.Y + topOf(box)); });
    connections_ +=
        box.MouseMove.connect([this, &box](const PointerEvent& event) { move(event, event.Y + topOf(box)); });
    connections_ += box.MouseUp.connect([this](const PointerEvent&) { hold_.reset(); });
}

/// Where the box begins, in the holder.
double AvatarPicker::topOf(const PictureBox& box) const
{
    return &box == parts_.cells.get() ? box.Top() : 0;
}

void AvatarPicker::select(std::int32_t index)
{
    if (index < 1 || index > count_) {
        return;
    }
    selected_ = index;
    const PixelPoint cell = cellOf(index);
    parts_.marker->Move(cell.x + CellInset, cell.y + CellInset);
    parts_.marker->Visible(true);
    bringIntoView();
    Selected.raise();
}

void AvatarPicker::bringIntoView()
{
    const double top = cellOf(selected_).y;
    const double viewTop = parts_.bar->Value();
    const double viewHeight = parts_.holder->Height();
    if (top < viewTop) {
        scrollTo(top);
    } else if (top + Cell > viewTop + viewHeight) {
        scrollTo(top + Cell - viewHeight);
    }
}

void AvatarPicker::scrollTo(double value)
{
    const double highest = parts_.bar->Max();
    parts_.bar->Value(toWhole(std::clamp(value, 0.0, highest)));
}

void AvatarPicker::scrolled()
{
    parts_.cells->Top(-static_cast<double>(parts_.bar->Value()));
    showCellsInView();
}

void AvatarPicker::showCellsInView()
{
    const double height = std::min(parts_.holder->Height(), parts_.cells->Height());
    parts_.cells->PaintedPart(
        PixelRectangle{0, static_cast<double>(parts_.bar->Value()), parts_.cells->Width(), height});
}

void AvatarPicker::paintCells()
{
    const PixelRectangle part = parts_.cells->PaintedPart();
    const std::int32_t firstRow = static_cast<std::int32_t>(part.top) / Cell;
    const std::int32_t rowBelow = (static_cast<std::int32_t>(part.bottom()) + Cell - 1) / Cell;
    const std::int32_t last = std::min(rowBelow * Columns, count_);
    for (std::int32_t index = firstRow * Columns + 1; index <= last; ++index) {
        const PixelPoint cell = cellOf(index);
        paintAvatar(parts_.cells->device(), QVAPP()->USER()->AVATARICON(index),
                    {cell.x + CellInset - part.left, cell.y + CellInset - part.top, Marker, Marker});
    }
}

void AvatarPicker::press(double x, double y)
{
    hold_ = Hold{y, parts_.bar->Value()};
    pressedAt_ = {x, y - parts_.cells->Top()};
    dragged_ = false;
}

void AvatarPicker::move(const PointerEvent& event, double y)
{
    if (!hold_ || event.Button != PointerButton::Left) {
        return;
    }
    const Hold hold = *hold_;
    dragged_ = dragged_ || std::abs(y - hold.y) > DragThreshold;
    if (dragged_ && parts_.bar->Enabled()) {
        scrollTo(hold.value + hold.y - y);
    }
}

void AvatarPicker::click()
{
    if (!dragged_) {
        const auto column = static_cast<std::int32_t>(pressedAt_.x) / Cell;
        const auto row = static_cast<std::int32_t>(pressedAt_.y) / Cell;
        select(row * Columns + column + 1);
    }
}

void AvatarPicker::turn(WheelEvent& event)
{
    if (parts_.bar->Enabled()) {
        event.used = true;
        scrollTo(parts_.bar->Value() - event.Notches * Cell);
    }
}

void AvatarPicker::keyDown(KeyEvent& event)
{
    const std::int32_t page = static_cast<std::int32_t>(parts_.holder->Height()) / Cell * Columns;
    std::int32_t target = selected_;
    switch (static_cast<Key>(event.KeyCode)) {
    case Key::Left:
        target -= 1;
        break;
    case Key::Right:
        target += 1;
        break;
    case Key::Up:
        target -= Columns;
        break;
    case Key::Down:
        target += Columns;
        break;
    case Key::PageUp:
        target = std::max(target - page, 1);
        break;
    case Key::PageDown:
        target = std::min(target + page, count_);
        break;
    case Key::Home:
        target = 1;
        break;
    case Key::End:
        target = count_;
        break;
    default:
        return;
    }
    event.KeyCode = 0;
    select(target);
}

} // namespace phial
