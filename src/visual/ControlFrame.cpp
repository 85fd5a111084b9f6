#include "visual/ControlFrame.h"

#include "core/RuntimeError.h"
#include "visual/Form.h"
#include "visual/KeyboardFocus.h"
#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

namespace phial
{

namespace
{

/// The frame of the control that holds another one; null on the form itself.
const ControlFrame* holderOf(const ControlFrame& frame)
{
    const Container* container = frame.container();
    const Control* holder = container ? container->owner() : nullptr;
    return holder ? &holder->frame() : nullptr;
}

} // namespace

WindowHandle newWindowHandle()
{
    static std::int32_t last = 0;
    return static_cast<WindowHandle>(++last);
}

ControlFrame::ControlFrame(Control& control) : control_(control), handle_(newWindowHandle()) {}

double ControlFrame::fromTwips(double twips) const
{
    return twips / (container_ ? container_->twipsPerUnit() : TwipsPerPixel);
}

double ControlFrame::toTwips(double value) const
{
    return value * (container_ ? container_->twipsPerUnit() : TwipsPerPixel);
}

void ControlFrame::Move(double left, double top, double width, double height)
{
    if (!(width >= 0 && height >= 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    place({toTwips(left), toTwips(top), toTwips(width), toTwips(height)});
}

PixelRectangle ControlFrame::pixelRectangle() const
{
    return {left_ / TwipsPerPixel, top_ / TwipsPerPixel, width_ / TwipsPerPixel, height_ / TwipsPerPixel};
}

void ControlFrame::pixelRectangle(const PixelRectangle& value)
{
    place({value.left * TwipsPerPixel, value.top * TwipsPerPixel, value.width * TwipsPerPixel,
           value.height * TwipsPerPixel});
}

void ControlFrame::place(const PixelRectangle& twips)
{
    const bool sizeDiffers = twips.width != width_ || twips.height != height_;
    if (!sizeDiffers && twips.left == left_ && twips.top == top_) {
        return;
    }
    left_ = twips.left;
    top_ = twips.top;
    width_ = twips.width;
    height_ = twips.height;
    report(ControlAspect::Geometry);
    if (sizeDiffers) {
        control_.resized();
    }
}

void ControlFrame::Visible(bool value)
{
    if (visible_ == value) {
        return;
    }
    visible_ = value;
    report(ControlAspect::Visibility);
    tellSeen();
    leaveFocusIfUnreachable();
}

void ControlFrame::Enabled(bool value)
{
    if (enabled_ == value) {
        return;
    }
    enabled_ = value;
    report(ControlAspect::Enabled);
    leaveFocusIfUnreachable();
}

void ControlFrame::TabStop(bool value)
{
    if (tabStop_ != value) {
        tabStop_ = value;
        report(ControlAspect::Enabled);
    }
}

void ControlFrame::canFocus(bool value)
{
    if (canFocus_ != value || tabStop_ != value) {
        canFocus_ = tabStop_ = value;
        report(ControlAspect::Enabled);
    }
}

void ControlFrame::leaveFocusIfUnreachable()
{
    const auto parentForm = form();
    if (!parentForm) {
        return;
    }
    const ControlPtr focused = parentForm->keyboardFocus()->field();
    if (focused && !focused->frame().isReachable()) {
        parentForm->focus(nullptr);
    }
}

/// Before the control is taken away.
void ControlFrame::leaveFocus()
{
    const auto parent = Parent();
    KeyboardFocus* focus = parent ? parent->keyboardFocus() : nullptr;
    if (!focus || !(focus->isAt(control_) || focus->isInside(control_))) {
        return;
    }
    if (const auto parentForm = form()) {
        parentForm->focus(nullptr);
    } else {
        focus->moveTo(nullptr);
    }
}

bool ControlFrame::isReachable() const
{
    for (const ControlFrame* frame = this; frame; frame = holderOf(*frame)) {
        if (!frame->visible_ || !frame->enabled_) {
            return false;
        }
    }
    return true;
}

bool ControlFrame::isSeen() const
{
    for (const ControlFrame* frame = this; frame; frame = holderOf(*frame)) {
        if (!frame->visible_) {
            return false;
        }
    }
    const auto parentForm = form();
    return parentForm && parentForm->Visible();
}

void ControlFrame::tellSeen()
{
    const ControlPtr self = control_.weak_from_this().lock(); // a handler may take the control away
    const bool seen = isSeen();
    UserControl* painted = control_.painted();
    if (seen != seen_) {
        seen_ = seen;
        if (painted) {
            seen ? painted->shown() : painted->hidden();
        }
        if (painted && !isSeen()) { // a handler may have shown it again
            painted->surface().forgetImage();
        }
    }
    if (Container* inner = control_.containerInUse()) {
        const auto within = inner->controls(); // a handler may add or remove
        for (const ControlPtr& control : within) {
            control->frame().tellSeen();
        }
    }
}

void ControlFrame::tellEnded()
{
    if (const Container* inner = control_.containerInUse()) {
        const auto within = inner->controls(); // a handler may add or remove
        for (const ControlPtr& control : within) {
            if (control->frame().privateHolder() == &control_) {
                control->frame().tellEnded();
            }
        }
    }
    if (UserControl* painted = control_.painted()) {
        painted->ended();
    }
}

void ControlFrame::SetFocus()
{
    const ControlPtr self = control_.shared_from_this();
    const auto parent = Parent();
    if (const auto parentForm = form()) {
        parentForm->focus(self);
        return;
    }
    KeyboardFocus* focus = parent ? parent->keyboardFocus() : nullptr;
    const ControlPtr field = focus ? focus->fieldOf(self) : nullptr;
    if (!field || !field->frame().peer()) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    field->frame().report(ControlAspect::Focus); // its widget takes it, and says so
}

void ControlFrame::focusChanged(bool focused)
{
    if (focused_ == focused) {
        return;
    }
    focused_ = focused;
    if (focused) {
        ++focusTurn_;
        control_.gotFocus();
    } else {
        inputComposition({});
        control_.lostFocus();
    }
}

void ControlFrame::textEntry(std::optional<phial::TextEntry> value)
{
    if (textEntry_ == value) {
        return;
    }
    textEntry_ = std::move(value);
    report(ControlAspect::TextEntry);
    if (!takesText()) {
        inputComposition({});
    }
}

void ControlFrame::inputComposition(Composition value)
{
    if (!takesText()) {
        value = {};
    }
    if (composition_ != value) {
        composition_ = std::move(value);
        control_.composing();
    }
}

void ControlFrame::ownKeyboard(bool value)
{
    if (ownKeyboard_ != value) {
        ownKeyboard_ = value;
        report(ControlAspect::TextEntry);
    }
}

void ControlFrame::takesTouch(bool value)
{
    if (takesTouch_ != value) {
        takesTouch_ = value;
        report(ControlAspect::Touch);
    }
}

void ControlFrame::ToolTipText(String value)
{
    if (toolTip_ != value) {
        toolTip_ = std::move(value);
        report(ControlAspect::ToolTip);
    }
}

void ControlFrame::MousePointer(phial::MousePointer value)
{
    if (pointer_ != value) {
        pointer_ = value;
        report(ControlAspect::Pointer);
    }
}

void ControlFrame::MouseIcon(PicturePtr value)
{
    if (pointerIcon_ != value) {
        pointerIcon_ = std::move(value);
        report(ControlAspect::Pointer);
    }
}

/// The fields that it holds for itself may be called so too.
void ControlFrame::AccessibleName(String value)
{
    if (accessibleName_ == value) {
        return;
    }
    accessibleName_ = std::move(value);
    report(ControlAspect::Accessibility);
    if (const Container* inner = control_.containerInUse()) {
        for (const ControlPtr& field : inner->controls()) {
            if (field->frame().privateHolder() == &control_) {
                field->frame().report(ControlAspect::Accessibility);
            }
        }
    }
}

void ControlFrame::HelpText(String value)
{
    if (helpText_ != value) {
        helpText_ = std::move(value);
        report(ControlAspect::Accessibility);
    }
}

void ControlFrame::AccessibleRole(std::optional<PartRole> value)
{
    if (accessibleRole_ != value) {
        accessibleRole_ = value;
        report(ControlAspect::Accessibility);
    }
}

void ControlFrame::AccessibleState(PartState value)
{
    if (accessibleState_ != value) {
        accessibleState_ = value;
        report(ControlAspect::Accessibility);
    }
}

void ControlFrame::announce(String text)
{
    announcement_ = std::move(text);
    report(ControlAspect::Announcement);
}

void ControlFrame::ZOrder(std::int32_t position)
{
    if (!container_) {
        return;
    }
    if (position == 0) {
        container_->toFront(control_);
    } else {
        container_->toBack(control_);
    }
}

ObjectPtr ControlFrame::ContainerObject() const
{
    if (!container_) {
        return nullptr;
    }
    if (Control* holder = container_->owner()) {
        return holder->shared_from_this();
    }
    return Parent();
}

void ControlFrame::container(Container& value)
{
    if (container_ == &value) {
        return;
    }
    const ControlPtr self = control_.shared_from_this();
    if (container_) {
        container_->release(control_);
    }
    value.add(self);
}

bool ControlFrame::standsIn(const Control& control) const
{
    for (const ControlFrame* holder = holderOf(*this); holder; holder = holderOf(*holder)) {
        if (&holder->control_ == &control) {
            return true;
        }
    }
    return false;
}

const Control* ControlFrame::privateHolder() const
{
    return parent_.expired() && container_ ? container_->owner() : nullptr;
}

std::shared_ptr<ControlParent> ControlFrame::Parent() const
{
    for (const ControlFrame* frame = this; frame; frame = holderOf(*frame)) {
        if (auto parent = frame->parent_.lock()) {
            return parent;
        }
    }
    return nullptr;
}

std::shared_ptr<Form> ControlFrame::form() const
{
    return std::dynamic_pointer_cast<Form>(Parent());
}

PixelPoint ControlFrame::originOnForm() const
{
    PixelPoint origin;
    for (const ControlFrame* frame = this; frame; frame = holderOf(*frame)) {
        origin.x += frame->left_ / TwipsPerPixel;
        origin.y += frame->top_ / TwipsPerPixel;
    }
    return origin;
}

void ControlFrame::Drag()
{
    report(ControlAspect::Drag);
}

void ControlFrame::report(ControlAspect aspect) const
{
    if (peer_) {
        peer_->modelChanged(aspect);
    }
}

} // namespace phial
