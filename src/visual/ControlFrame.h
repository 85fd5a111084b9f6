#pragma once

#include "core/Event.h"
#include "core/Variant.h"
#include "core/WindowHandle.h"
#include "visual/ControlPeer.h"
#include "visual/Geometry.h"
#include "visual/Input.h"
#include "visual/Picture.h"
#include "visual/TextEntry.h"

#include <memory>
#include <optional>

namespace phial
{

class Container;
class Control;
class ControlParent;
class Form;

/// A handle that no form or control has had yet.
WindowHandle newWindowHandle();

/// What every control has in common: its name, its place in a container, whether it is seen and reached, and
/// the link to its widget. A control holds one; for a painted control it is the extender that the host sees.
///
/// Left, Top, Width and Height are in the container's scale unit (pixels without container). They are kept as
/// twips, so values of either unit come back as they were set. Setters tell the control and its peer and
/// return when nothing has changed.
class ControlFrame
{
public:
    /// The control is the one that holds this frame.
    explicit ControlFrame(Control& control);
    ControlFrame(const ControlFrame&) = delete;
    ControlFrame& operator=(const ControlFrame&) = delete;

    String NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }
    /// Place in a control array, -1 outside one.
    std::int32_t Index() const { return index_; }
    void Index(std::int32_t value) { index_ = value; }
    /// Whether it bears that name, without regard to case, at that place in an array.
    bool isCalled(StringView name, std::int32_t index) const
    {
        return index_ == index && equalsIgnoringCase(name_, name);
    }
    String Tag() const { return tag_; }
    void Tag(String value) { tag_ = std::move(value); }

    double Left() const { return fromTwips(left_); }
    void Left(double value) { Move(value, Top(), Width(), Height()); }
    double Top() const { return fromTwips(top_); }
    void Top(double value) { Move(Left(), value, Width(), Height()); }
    double Width() const { return fromTwips(width_); }
    void Width(double value) { Move(Left(), Top(), value, Height()); }
    double Height() const { return fromTwips(height_); }
    void Height(double value) { Move(Left(), Top(), Width(), value); }
    /// One change for all four. A negative size raises 5.
    void Move(double left, double top, double width, double height);
    void Move(double left, double top) { Move(left, top, Width(), Height()); }
    /// The same rectangle in pixels of the container.
    PixelRectangle pixelRectangle() const;
    void pixelRectangle(const PixelRectangle& value);

    /// Whether it is to be seen when its container is. A fresh control is visible and enabled.
    bool Visible() const { return visible_; }
    void Visible(bool value);
    bool Enabled() const { return enabled_; }
    void Enabled(bool value);
    /// Visible and enabled up to the form.
    bool isReachable() const;
    /// Visible up to the form, and the form is shown.
    bool isSeen() const;
    /// For the form and the containers: calls the painted control's `shown` or `hidden`, and that of the
    /// controls within, where isSeen has changed since the last time.
    void tellSeen();
    /// For whoever takes the control away for good: tells the painted control, and those that it holds for
    /// itself before it, that they have ended.
    void tellEnded();

    /// Place in the order of the Tab key; controls of equal index follow the order in which they were added.
    std::int32_t TabIndex() const { return tabIndex_; }
    void TabIndex(std::int32_t value) { tabIndex_ = value; }
    bool TabStop() const { return tabStop_; }
    void TabStop(bool value);
    /// Whether it can take the focus at all, by a press or a key; a control's constructor sets it.
    bool canFocus() const { return canFocus_; }
    void canFocus(bool value);
    /// Takes the focus: the one that had it hears LostFocus, this one GotFocus, before the call returns. A
    /// painted control that holds fields hands it to one of them. Raises 5 for a control that cannot be
    /// reached or stands on no form.
    void SetFocus();
    /// Whether it, or a field that it holds for itself, has the focus.
    bool hasFocus() const { return focused_; }
    /// For KeyboardFocus: the control has got or lost the focus, and hears so.
    void focusChanged(bool focused);
    /// The same without telling the control.
    void forgetFocus() { focused_ = false; }
    /// Counts how often it has got the focus.
    std::uint32_t focusTurn() const { return focusTurn_; }

    /// What one types into a control that paints itself; none, as at first, for one that takes no text. An
    /// adapter brings input methods to it.
    const std::optional<phial::TextEntry>& textEntry() const { return textEntry_; }
    void textEntry(std::optional<phial::TextEntry> value);
    bool takesText() const { return textEntry_ && !textEntry_->locked; }
    /// What is being composed for that text.
    const Composition& composition() const { return composition_; }
    /// For the adapter: the user is composing; the control hears so. Ends by itself when the focus leaves and
    /// when the control takes no text any more.
    void inputComposition(Composition value);

    /// Its form brings a keyboard for it: the desktop's touch keyboard stays away.
    bool ownKeyboard() const { return ownKeyboard_; }
    void ownKeyboard(bool value);
    /// Each touch point on it is a press of its own, as on a keyboard where the second key goes down before
    /// the first is let go; no double clicks then. Of painted controls; false at first: one finger is the
    /// mouse.
    bool takesTouch() const { return takesTouch_; }
    void takesTouch(bool value);

    String ToolTipText() const { return toolTip_; }
    void ToolTipText(String value);
    phial::MousePointer MousePointer() const { return pointer_; }
    void MousePointer(phial::MousePointer value);
    /// The cursor's picture for MousePointer::Custom.
    PicturePtr MouseIcon() const { return pointerIcon_; }
    void MouseIcon(PicturePtr value);
    /// What a screen reader says; the control's caption or text when it is empty.
    String AccessibleName() const { return accessibleName_; }
    void AccessibleName(String value);
    String HelpText() const { return helpText_; }
    void HelpText(String value);
    /// What a painted control is for screen readers, such as a picture that is a key; none: what it says.
    std::optional<PartRole> AccessibleRole() const { return accessibleRole_; }
    void AccessibleRole(std::optional<PartRole> value);
    PartState AccessibleState() const { return accessibleState_; }
    void AccessibleState(PartState value);
    /// Screen readers say the text at once, wherever the focus is: what a pupil who sees would notice.
    void announce(String text);
    /// The last one.
    String announcement() const { return announcement_; }

    /// To the front (0) or the back (1) of the container's controls.
    void ZOrder(std::int32_t position = 0);

    /// What holds the control: the form or another control; null before it is added.
    ObjectPtr ContainerObject() const;
    Container* container() const { return container_; }
    /// Moves the control into another container of the same form.
    void container(Container& value);
    /// Whether it stands, at any depth, in that control.
    bool standsIn(const Control& control) const;
    /// The painted control that holds this one for itself: its name is known there only, and focus and keys
    /// reach it through its holder. Null for what belongs to the form.
    const Control* privateHolder() const;
    /// The form, or what stands for it in a foreign window: it gives the siblings. A control that another one
    /// holds for itself has its holder's. Null before it is added.
    std::shared_ptr<ControlParent> Parent() const;
    void Parent(const std::shared_ptr<ControlParent>& value) { parent_ = value; }
    /// The parent as form; null in a foreign window.
    std::shared_ptr<Form> form() const;

    /// A number that names the control's window, unique in the process.
    WindowHandle hWnd() const { return handle_; }
    /// The place of the control's corner on its form, in pixels.
    PixelPoint originOnForm() const;

    /// Begins a drag out of the control by drag and drop; a control on which it ends hears dragDrop.
    void Drag();

    Control& control() const { return control_; }

    /// The adapter's link; null while there is no widget.
    ControlPeer* peer() const { return peer_; }
    void peer(ControlPeer* value) { peer_ = value; }
    /// Tells the peer, if there is one.
    void report(ControlAspect aspect) const;

private:
    friend class Container;
    double fromTwips(double twips) const;
    double toTwips(double value) const;
    /// `twips` is in twips.
    void place(const PixelRectangle& twips);
    void leaveFocus();
    void leaveFocusIfUnreachable();

    Control& control_;
    String name_;
    std::int32_t index_ = -1;
    String tag_;
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double height_ = 0;
    bool visible_ = true;
    bool enabled_ = true;
    std::int32_t tabIndex_ = 0;
    bool tabStop_ = false;
    bool canFocus_ = false;
    bool focused_ = false;
    std::uint32_t focusTurn_ = 0;
    bool seen_ = false; ///< as last told
    std::optional<phial::TextEntry> textEntry_;
    Composition composition_;
    bool ownKeyboard_ = false;
    bool takesTouch_ = false;
    String toolTip_;
    phial::MousePointer pointer_ = phial::MousePointer::Default;
    PicturePtr pointerIcon_;
    String accessibleName_;
    String helpText_;
    std::optional<PartRole> accessibleRole_;
    PartState accessibleState_;
    String announcement_;
    Container* container_ = nullptr;
    std::weak_ptr<ControlParent> parent_;
    WindowHandle handle_;
    ControlPeer* peer_ = nullptr;
};

} // namespace phial
