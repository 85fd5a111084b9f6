#pragma once

#include "core/Colour.h"
#include "visual/Container.h"
#include "visual/KeyboardFocus.h"
#include "visual/Menu.h"
#include "visual/NamedObjects.h"
#include "visual/Timer.h"
#include "visual/UserControl.h"

#include <memory>
#include <optional>
#include <vector>

namespace phial
{

enum class WindowState : std::int32_t { Normal = 0, Minimized = 1, Maximized = 2 };
enum class BorderStyle : std::int32_t { None = 0, FixedSingle = 1, Sizable = 2, FixedDialog = 3 };
enum class FormShow : std::int32_t { Modeless = 0, Modal = 1 };

/// How a window is seen through.
struct Translucency {
    /// 0 (invisible) to 255 (solid), for the whole window.
    std::int32_t opacity = 255;
    /// Pixels of this colour are holes.
    std::optional<Colour> colourKey;
    /// The holes of this picture are holes of the window.
    PicturePtr mask;
};

/// A window's model. The window exists while the form is shown; the form outlives it, and its results are
/// read after it has closed. A `frm_…` class holds one and discards it in its destructor: a loaded form stays
/// in Forms.
///
/// Left, Top, Width and Height are twips and those of the whole window on the desktop; ScaleWidth and
/// ScaleHeight measure its inside in the scale unit. Setters take effect, and raise their events, at once.
class Form final : public ControlParent, public std::enable_shared_from_this<Form>
{
public:
    explicit Form(String name);
    ~Form() override;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    String NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }
    String Tag() const { return tag_; }
    void Tag(String value) { tag_ = std::move(value); }
    String Caption() const { return caption_; }
    void Caption(String value);

    // Geometry.
    double Left() const { return left_; }
    void Left(double value) { Move(value, top_, width_, height_); }
    double Top() const { return top_; }
    void Top(double value) { Move(left_, value, width_, height_); }
    double Width() const { return width_; }
    void Width(double value) { take(left_, top_, value, height_); }
    double Height() const { return height_; }
    void Height(double value) { take(left_, top_, width_, value); }
    /// Raises Resize when the size changes; a negative size raises 5.
    void Move(double left, double top, double width, double height);
    void Move(double left, double top) { Move(left, top, width_, height_); }
    /// Whether it has been given a place. Without one the desktop puts a window with a frame where it sees
    /// fit.
    bool hasPlace() const { return hasPlace_; }
    /// Twips or pixels.
    ScaleUnit ScaleMode() const override { return container_.ScaleMode(); }
    void ScaleMode(ScaleUnit value) { container_.ScaleMode(value); }
    double ScaleWidth() const;
    double ScaleHeight() const;
    PixelSize innerSize() const;
    /// Size of the inside, in pixels; the window is made as large as it needs.
    void innerSize(PixelSize value);
    /// How many pixels of the desktop a pixel of the inside takes in each direction; 1 at first. The window
    /// keeps its size, so that ScaleWidth, ScaleHeight and innerSize change, and Resize is raised; all that
    /// stands on the form keeps its place there and is shown larger. Raises 5 unless it is above 0. A window
    /// with holes stays at 1.
    double Zoom() const { return zoom_; }
    void Zoom(double value);
    /// The smallest inside that the user can give the window, in pixels of the desktop; 0 at first.
    PixelSize leastSize() const { return least_; }
    void leastSize(PixelSize value);
    /// For the adapter: what title and borders take, in pixels. Width and Height follow.
    void decoration(PixelSize value);
    /// In the middle of the screen when it is shown: that of the form that is active then, or the first one.
    bool centred() const { return centred_; }
    void centred(bool value) { centred_ = value; }

    // Look.
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour value);
    /// The picture behind the controls, from the corner; null for none.
    PicturePtr Picture() const { return picture_; }
    void Picture(PicturePtr value);
    PicturePtr Icon() const { return icon_; }
    void Icon(PicturePtr value);
    phial::BorderStyle BorderStyle() const { return border_; }
    void BorderStyle(phial::BorderStyle value);
    phial::WindowState WindowState() const { return state_; }
    void WindowState(phial::WindowState value);
    phial::MousePointer MousePointer() const { return pointer_; }
    void MousePointer(phial::MousePointer value);
    const phial::Translucency& translucency() const { return translucency_; }
    void translucency(phial::Translucency value);
    bool Enabled() const { return enabled_; }
    void Enabled(bool value);
    /// It lies behind the program's other windows: it never is the active form, whoever activates it gets the
    /// others back in front, and the program ends without waiting for it. Set before it is shown.
    bool backdrop() const { return backdrop_; }
    void backdrop(bool value) { backdrop_ = value; }

    // What stands on it.
    phial::Container& container() { return container_; }
    /// Puts a control on the form itself, or into a container on it, under its NAME.
    template <typename Class>
    std::shared_ptr<Class> add(std::shared_ptr<Class> control, phial::Container* into = nullptr)
    {
        place(control, into ? *into : container_);
        return control;
    }
    /// Makes a control and puts it on the form.
    template <typename Class>
    std::shared_ptr<Class> add(StringView name, phial::Container* into = nullptr);
    /// Takes a control, timer or image list away.
    void remove(const Object& object);
    /// Timers, image lists and the like: named, without a place.
    void addComponent(ObjectPtr component);
    /// The entries of the menu bar, each before those below it, follow what stands on the form.
    std::size_t controlCount() const override;
    ObjectPtr controlAt(std::size_t index) const override;
    /// A control or menu entry by name, and Index in an array; null when there is none.
    ObjectPtr find(StringView name, std::int32_t index = -1) const;
    /// The same with its class; raises 438 when there is none of that name and class.
    template <typename Class>
    std::shared_ptr<Class> control(StringView name, std::int32_t index = -1) const
    {
        auto found = std::dynamic_pointer_cast<Class>(find(name, index));
        if (!found) {
            throw noSuchMember(name, NAME());
        }
        return found;
    }
    /// The controls as one object.
    ObjectPtr Controls() const;
    /// The menu bar's entries stand below this one. Empty: no bar.
    Menu& menu() { return *menu_; }

    // Life.
    /// Raises Load once, before the first Show; nothing when the form is loaded.
    void load();
    bool isLoaded() const { return loaded_; }
    /// Loads, opens the window and raises Resize and Activate. Modal: returns when the form has been hidden
    /// or unloaded; it is shown as large as the form that is active, as far as the screen has room. A form
    /// that is shown already just comes to the front (modal: raises 400). An error that leaves a modal form's
    /// handlers closes its window and passes on.
    void Show(FormShow how = FormShow::Modeless);
    /// Closes the window and keeps everything; a modal Show returns.
    void Hide();
    /// Raises QueryUnload and Unload, either of which can refuse; then the window closes and the form is no
    /// longer loaded. Gives whether it was unloaded. What was set in the controls stays readable.
    bool Unload();
    /// Unloads without asking; for the destructor of whoever holds the form. Safe behind the session's end.
    void discard();
    /// Whether its window is open.
    bool Visible() const { return peer_ != nullptr; }
    /// Whether a modal Show is running.
    bool isModal() const { return modal_; }
    void SetFocus();
    void ZOrder(std::int32_t position = 0);
    /// From here on a deactivation is not told: the user has begun to abort.
    void abortBegun() { aborting_ = true; }
    WindowHandle hWnd() const { return handle_; }

    // Focus and keys.
    /// The form's control that has the focus, or that holds the field that has it; null when none has.
    ControlPtr ActiveControl() const { return focus_.control(); }
    KeyboardFocus* keyboardFocus() override { return &focus_; }
    /// The form hears keys before its controls do.
    bool KeyPreview() const { return keyPreview_; }
    void KeyPreview(bool value) { keyPreview_ = value; }
    /// The control that Return and Escape click.
    ControlPtr DefaultControl() const { return default_.lock(); }
    void DefaultControl(const ControlPtr& value) { default_ = value; }
    ControlPtr CancelControl() const { return cancel_.lock(); }
    void CancelControl(const ControlPtr& value) { cancel_ = value; }
    /// The controls that Tab reaches, in its order; the fields of a painted control at its place.
    std::vector<ControlPtr> tabOrder() const;
    /// The control's SetFocus.
    void focus(const ControlPtr& control);

    /// The language has changed: the handler puts the form's texts in the one in force. By name, as the
    /// member TRANSLATE, it is an operation that a form without handler does not have (438).
    Event<> TRANSLATE;
    Event<> Load;
    Event<> Activate;
    Event<> Deactivate;
    /// A handler that sets the flag keeps the form.
    Event<bool&> QueryUnload;
    Event<bool&> Unloading;
    /// The form has been unloaded.
    Event<> Unloaded;
    Event<> Resize;
    Event<KeyEvent&> KeyDown;
    Event<KeyPressEvent&> KeyPress;
    Event<KeyEvent&> KeyUp;
    Event<const PointerEvent&> MouseDown;
    Event<const PointerEvent&> MouseMove;
    Event<const PointerEvent&> MouseUp;
    Event<> Click;
    Event<> DblClick;

    // Input, called by the adapter or a test.
    /// The window has become active, or a window in front of it or another program has. Deactivate is told
    /// for others of the program and for other programs; never while the form closes, after abortBegun, or
    /// for a dialog that the form itself has opened.
    void inputActivate();
    void inputDeactivate();
    /// The user has moved, resized or restated the window: twips, of the whole window.
    void inputGeometry(double left, double top, double width, double height);
    void inputWindowState(phial::WindowState value);
    /// The user wants to close the window.
    void inputClose() { Unload(); }
    /// The focus has gone to a control by the user's hand; null: to none.
    void inputFocus(const ControlPtr& control);
    /// Keys for the control that has the focus: the form's preview, the control, then the default and cancel
    /// controls. False: the key goes no further.
    bool inputKeyDown(KeyEvent& event);
    bool inputKeyPress(KeyPressEvent& event);
    bool inputKeyUp(KeyEvent& event);
    void inputPointerDown(const PointerEvent& event) { MouseDown.raise(event); }
    void inputPointerMove(const PointerEvent& event) { MouseMove.raise(event); }
    void inputPointerUp(const PointerEvent& event) { MouseUp.raise(event); }
    void inputClick() { Click.raise(); }
    void inputDoubleClick() { DblClick.raise(); }

    FormPeer* peer() const { return peer_.get(); }

    StringView typeName() const override { return u"Form"; }
    MemberTable members() const override;

private:
    friend class Forms;
    class OwnDialog;

    template <typename Value>
    void change(Value& field, Value value, FormAspect aspect);
    /// Gives whether the size differs.
    bool place(double left, double top, double width, double height);
    /// `place` by the program: tells the window and raises Resize.
    void take(double left, double top, double width, double height);
    void takeZoomOf(const Form& opener);
    /// This form; raises 91 where no shared pointer holds it.
    std::shared_ptr<Form> shared();
    void centre();
    void place(const ControlPtr& control, phial::Container& into);
    void removeControl(Control& control);
    void report(FormAspect aspect) const;
    void openWindow(FormShow how);
    void showModal();
    void closeWindow();
    void tellSeen();
    void finishUnload();
    /// Drops the window and all that ties the form to the host, without any event.
    void hostEnds();
    void focusFirst();
    bool isWanted(const KeyEvent& event) const;
    bool pressDefault(const KeyEvent& event);

    String name_;
    String tag_;
    String caption_;
    double left_ = 0;
    double top_ = 0;
    double width_ = 4800;
    double height_ = 3600;
    PixelSize decoration_;
    PixelSize least_;
    double zoom_ = 1;
    bool hasPlace_ = false;
    bool centred_ = false;
    Colour backColor_ = SystemColour::ButtonFace;
    PicturePtr picture_;
    PicturePtr icon_;
    phial::BorderStyle border_ = phial::BorderStyle::Sizable;
    phial::WindowState state_ = phial::WindowState::Normal;
    phial::MousePointer pointer_ = phial::MousePointer::Default;
    phial::Translucency translucency_;
    bool enabled_ = true;
    bool backdrop_ = false;
    bool keyPreview_ = false;

    phial::Container container_;
    NamedObjects objects_;
    std::shared_ptr<Menu> menu_ = std::make_shared<Menu>();
    KeyboardFocus focus_;
    std::weak_ptr<Control> default_;
    std::weak_ptr<Control> cancel_;

    bool loaded_ = false;
    bool closing_ = false;
    bool aborting_ = false;
    bool modal_ = false;
    bool isActive_ = false;
    bool activateTold_ = false;   ///< Activate has been raised, and no Deactivate since
    std::int32_t ownDialogs_ = 0; ///< modal forms opened from this one
    std::unique_ptr<FormPeer> peer_;
    Connection menuChanged_;
    WindowHandle handle_;
};

template <typename Class>
std::shared_ptr<Class> Form::add(StringView name, phial::Container* into)
{
    return add(makeNamed<Class>(name), into);
}

} // namespace phial
