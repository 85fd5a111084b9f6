#include "dialogs/KeySheet.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Palette.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial
{

namespace
{

KeyKind kindOfKey(const KeyBoard& board, const KeyDesign& key)
{
    const String& base = board.base(key.index);
    if (base == u"ENTER" || base == u"OK") {
        return KeyKind::Accept;
    }
    const bool isCharacter = key.tag.empty() || key.tag.size() == 1 || key.tag.starts_with(u'{');
    return isCharacter ? KeyKind::Character : KeyKind::Function;
}

PixelRectangle areaOfAll(std::span<const KeyDesign> keys)
{
    if (keys.empty()) {
        return {};
    }
    double left = keys.front().left;
    double top = keys.front().top;
    double right = left;
    double bottom = top;
    for (const KeyDesign& key : keys) {
        left = std::min(left, key.left);
        top = std::min(top, key.top);
        right = std::max(right, key.left + key.width);
        bottom = std::max(bottom, key.top + key.height);
    }
    return {left, top, right - left, bottom - top};
}

/// Where the key is itself and no notch.
bool covers(const KeyLook& look, PixelPoint point)
{
    const bool isInNotch =
        point.x < look.area.left + look.notch && point.y >= look.area.top + look.area.height / 2;
    return look.area.contains(point) && !isInNotch;
}

} // namespace

void KeySheet::layout(const KeyBoard& board, const KeyHand& hand)
{
    board_ = &board;
    hand_ = &hand;
    design_ = areaOfAll(board.keys());
    resized();
}

double KeySheet::scale() const
{
    return design_.isEmpty() ? 1 : surface_.size().width / (design_.width / TwipsPerPixel);
}

/// Where a key stands. Edges are those of the device's pixels, so that neighbours meet and caps are not
/// blurred.
KeyLook KeySheet::placed(const KeyDesign& key) const
{
    const double pixels = scale() / TwipsPerPixel;
    const auto edge = [&](double twips) { return std::round(twips * pixels * ratio_) / ratio_; };
    KeyLook look;
    const double left = edge(key.left - design_.left);
    const double top = edge(key.top - design_.top);
    look.area = {left, top, edge(key.left + key.width - design_.left) - left,
                 edge(key.top + key.height - design_.top) - top};
    look.notch = key.notch * pixels;
    look.scale = scale();
    look.kind = kindOfKey(*board_, key);
    return look;
}

/// What changes of a look while one types. Gives whether it has.
bool KeySheet::take(KeyLook& look, const KeyDesign& key) const
{
    KeyFace face = board_->face(key.index);
    if (face.text.find(u'|') != String::npos) {
        face.text = LNG()->TRANSLATEAUTO(face.text);
    }
    const KeyState state = board_->state(key.index);
    const bool isPressed = hand_->isDown(key.index) && !board_->modifier(key.index);
    if (face == look.face && state == look.state && isPressed == look.isPressed) {
        return false;
    }
    look.face = std::move(face);
    look.state = state;
    look.isPressed = isPressed;
    return true;
}

void KeySheet::place()
{
    looks_.clear();
    for (const KeyDesign& key : board_->keys()) {
        looks_.push_back(placed(key));
    }
}

void KeySheet::resized()
{
    place();
    isPainted_ = false;
}

std::size_t KeySheet::positionOf(std::int32_t index) const
{
    const auto keys = board_->keys();
    const auto key = std::ranges::find(keys, index, &KeyDesign::index);
    if (key == keys.end()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return static_cast<std::size_t>(key - keys.begin());
}

std::optional<std::int32_t> KeySheet::keyAt(PixelPoint point) const
{
    const auto look = std::ranges::find_if(looks_, [&](const KeyLook& each) { return covers(each, point); });
    return look == looks_.end()
               ? std::nullopt
               : std::optional(board_->keys()[static_cast<std::size_t>(look - looks_.begin())].index);
}

void KeySheet::paint()
{
    DrawDevice& device = surface_.device();
    const PicturePtr image = device.Image();
    ratio_ = image ? image->pixelRatio() : 1;
    place();
    device.Cls();
    const auto keys = board_->keys();
    for (std::size_t at = 0; at < keys.size(); ++at) {
        take(looks_[at], keys[at]);
        painter_.paint(device, looks_[at]);
    }
    isPainted_ = true;
    stale_.clear();
}

void KeySheet::paintLight(std::span<const std::int32_t> lit)
{
    constexpr double Width = 4;
    if (lit.empty()) {
        return;
    }
    const PixelRectangle first = areaOf(lit.front());
    const PixelRectangle last = areaOf(lit.back());
    const double inset = Width / 2;
    DrawDevice& device = surface_.device();
    device.DrawWidth(Width);
    device.Line(first.left + inset, first.top + inset, last.right() - 1 - inset, first.bottom() - 1 - inset,
                Palette::FocusRing, LineShape::Box);
    device.DrawWidth(1);
}

void KeySheet::paintStrip(const VariantStrip& strip)
{
    DrawDevice& device = surface_.device();
    const PixelRectangle& all = strip.area();
    device.Line(all.left, all.top, all.right() - 1, all.bottom() - 1, Palette::AccentSoft, LineShape::Filled);
    device.Line(all.left, all.top, all.right() - 1, all.bottom() - 1, Palette::Accent, LineShape::Box);
    for (std::size_t at = 0; at < strip.count(); ++at) {
        KeyLook look;
        look.area = strip.cell(at);
        look.scale = scale();
        look.face.text = strip.variant(at).shown;
        look.face.isTerm = strip.variant(at).isTerm;
        look.isPressed = at == strip.chosen();
        painter_.paint(device, look);
    }
}

bool KeySheet::refresh()
{
    if (!isPainted_) {
        return false;
    }
    const auto keys = board_->keys();
    std::optional<PixelRectangle> changed;
    for (std::size_t at = 0; at < keys.size(); ++at) {
        if (take(looks_[at], keys[at])) {
            changed = changed ? changed->united(looks_[at].area) : looks_[at].area;
            if (std::ranges::find(stale_, at) == stale_.end()) {
                stale_.push_back(at);
            }
        }
    }
    if (changed) {
        surface_.drawLater(areaAround(*changed), [this] { repaint(); });
    }
    return changed.has_value();
}

/// With the keys whose boxes meet it.
PixelRectangle KeySheet::areaAround(const PixelRectangle& area) const
{
    PixelRectangle all = area;
    for (const KeyLook& look : looks_) {
        if (look.area.meets(area)) {
            all = all.united(look.area);
        }
    }
    return all;
}

/// Those that have changed, and whatever their boxes meet.
void KeySheet::repaint()
{
    DrawDevice& device = surface_.device();
    for (const std::size_t at : stale_) {
        const PixelRectangle& erased = looks_[at].area;
        device.Line(erased.left, erased.top, erased.right() - 1, erased.bottom() - 1, surface_.BackColor(),
                    LineShape::Filled);
    }
    for (const KeyLook& look : looks_) {
        const auto meetsLook = [&](std::size_t at) { return look.area.meets(looks_[at].area); };
        if (std::ranges::any_of(stale_, meetsLook)) {
            painter_.paint(device, look);
        }
    }
    stale_.clear();
}

} // namespace phial
