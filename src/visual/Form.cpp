#include "visual/Form.h"

#include "core/Members.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "visual/Controls.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

/// The entries below a menu, each before those below itself.
void collectEntries(const Menu& menu, std::vector<ObjectPtr>& entries)
{
    for (const auto& entry : menu.entries()) {
        entries.push_back(entry);
        collectEntries(*entry, entries);
    }
}

} // namespace

/// Counts a dialog for the form that has opened it, as long as this object lives.
class Form::OwnDialog
{
public:
    explicit OwnDialog(std::shared_ptr<Form> opener) : opener_(std::move(opener)) { count(1); }
    ~OwnDialog() { count(-1); }
    OwnDialog(const OwnDialog&) = delete;
    OwnDialog& operator=(const OwnDialog&) = delete;

private:
    void count(std::int32_t step) const
    {
        if (opener_) {
            opener_->ownDialogs_ += step;
        }
    }

    std::shared_ptr<Form> opener_;
};

Form::Form(String name)
    : name_(std::move(name)),
      container_(ScaleUnit::Twips,
                 [this](ControlAspect aspect) {
                     report(aspect == ControlAspect::ZOrder ? FormAspect::ZOrder : FormAspect::Children);
                 }),
      handle_(newWindowHandle())
{
    menuChanged_ = menu_->changed.connect([this] { report(FormAspect::Menu); });
}

Form::~Form()
{
    for (const ObjectPtr& object : objects_) {
        if (auto* control = dynamic_cast<Control*>(object.get())) {
            ignoringErrors([control] { control->frame().tellEnded(); });
        }
    }
}

template <typename Value>
void Form::change(Value& field, Value value, FormAspect aspect)
{
    if (field != value) {
        field = std::move(value);
        report(aspect);
    }
}

void Form::Caption(String value)
{
    change(caption_, std::move(value), FormAspect::Caption);
}

void Form::BackColor(Colour value)
{
    change(backColor_, value, FormAspect::Style);
}

void Form::Picture(PicturePtr value)
{
    change(picture_, std::move(value), FormAspect::Style);
}

void Form::Icon(PicturePtr value)
{
    change(icon_, std::move(value), FormAspect::Style);
}

void Form::BorderStyle(phial::BorderStyle value)
{
    change(border_, value, FormAspect::Style);
}

void Form::MousePointer(phial::MousePointer value)
{
    change(pointer_, value, FormAspect::Style);
}

void Form::translucency(phial::Translucency value)
{
    translucency_ = std::move(value);
    report(FormAspect::Style);
}

void Form::Enabled(bool value)
{
    change(enabled_, value, FormAspect::Enabled);
}

void Form::WindowState(phial::WindowState value)
{
    change(state_, value, FormAspect::WindowState);
}

void Form::Move(double left, double top, double width, double height)
{
    hasPlace_ = true;
    take(left, top, width, height);
}

void Form::take(double left, double top, double width, double height)
{
    if (!(width >= 0 && height >= 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    if (place(left, top, width, height)) {
        report(FormAspect::Geometry);
        Resize.raise();
    } else {
        report(FormAspect::Geometry);
    }
}

bool Form::place(double left, double top, double width, double height)
{
    const bool resized = width != width_ || height != height_;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    return resized;
}

double Form::ScaleWidth() const
{
    return innerSize().width * TwipsPerPixel / container_.twipsPerUnit();
}

double Form::ScaleHeight() const
{
    return innerSize().height * TwipsPerPixel / container_.twipsPerUnit();
}

PixelSize Form::innerSize() const
{
    return {std::max(0.0, width_ / TwipsPerPixel - decoration_.width) / zoom_,
            std::max(0.0, height_ / TwipsPerPixel - decoration_.height) / zoom_};
}

void Form::innerSize(PixelSize value)
{
    take(left_, top_, (value.width * zoom_ + decoration_.width) * TwipsPerPixel,
         (value.height * zoom_ + decoration_.height) * TwipsPerPixel);
}

void Form::Zoom(double value)
{
    if (!(value > 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const bool hasHoles = translucency_.colourKey || translucency_.mask;
    if (value == zoom_ || hasHoles) {
        return;
    }
    zoom_ = value;
    report(FormAspect::Zoom);
    Resize.raise();
}

void Form::leastSize(PixelSize value)
{
    change(least_, value, FormAspect::Geometry);
}

void Form::decoration(PixelSize value)
{
    const PixelSize inner = innerSize();
    decoration_ = value;
    place(left_, top_, (inner.width * zoom_ + value.width) * TwipsPerPixel,
          (inner.height * zoom_ + value.height) * TwipsPerPixel);
}

void Form::place(const ControlPtr& control, phial::Container& into)
{
    if (control && objects_.find(control->NAME(), control->Index())) {
        throw RuntimeError(ErrorNumber::InvalidArgument, NAME() + u" has a control already that is called " +
                                                             control->NAME() +
                                                             u"; an Index tells several apart.");
    }
    into.add(control);
    control->frame().Parent(shared());
    objects_.add(control);
    control->frame().tellSeen();
}

void Form::remove(const Object& object)
{
    const ObjectPtr removed = objects_.remove(object);
    if (auto* control = dynamic_cast<Control*>(removed.get())) {
        removeControl(*control);
    }
}

void Form::removeControl(Control& control)
{
    if (phial::Container* holder = control.frame().container()) {
        holder->remove(control);
    }
    control.frame().Parent(nullptr);
    control.frame().tellSeen();
    control.frame().tellEnded();
}

void Form::addComponent(ObjectPtr component)
{
    if (!component) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    objects_.add(std::move(component));
}

std::size_t Form::controlCount() const
{
    std::vector<ObjectPtr> entries;
    collectEntries(*menu_, entries);
    return objects_.size() + entries.size();
}

ObjectPtr Form::controlAt(std::size_t index) const
{
    if (index < objects_.size()) {
        return objects_[index];
    }
    std::vector<ObjectPtr> entries;
    collectEntries(*menu_, entries);
    if (index >= objects_.size() + entries.size()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return entries[index - objects_.size()];
}

ObjectPtr Form::find(StringView name, std::int32_t index) const
{
    if (ObjectPtr control = objects_.find(name, index)) {
        return control;
    }
    return menu_->findBelow(name, index);
}

ObjectPtr Form::Controls() const
{
    return std::make_shared<phial::Controls>(
        std::static_pointer_cast<const ControlParent>(shared_from_this()));
}

void Form::load()
{
    if (loaded_) {
        return;
    }
    loaded_ = true;
    aborting_ = false;
    visualHost().forms().loaded(shared());
    Load.raise();
}

std::shared_ptr<Form> Form::shared()
{
    auto self = weak_from_this().lock();
    if (!self) {
        throw RuntimeError(ErrorNumber::ObjectNotSet,
                           u"A form is held by a shared pointer: std::make_shared<phial::Form>(u\"" + NAME() +
                               u"\").");
    }
    return self;
}

void Form::Show(FormShow how)
{
    const auto self = shared();
    if (how == FormShow::Modal && Visible()) {
        throw RuntimeError(400, u"Form already displayed; can't show modally");
    }
    load();
    if (!loaded_) {
        return; // a handler of Load has unloaded it
    }
    if (Visible()) {
        ZOrder(0);
        SetFocus();
        return;
    }
    if (how == FormShow::Modal) {
        showModal();
    } else {
        openWindow(how);
    }
}

void Form::showModal()
{
    const auto opener = visualHost().forms().ActiveForm();
    const OwnDialog dialog(opener);
    Connections following;
    if (opener) {
        takeZoomOf(*opener);
        // At a program's start the desktop may give the opener its size only while the dialog is there.
        following += opener->Resize.connect([this, &opener] {
            const double before = zoom_;
            takeZoomOf(*opener);
            if (zoom_ != before) { // where it stood it might reach out of the screen
                centre();
                report(FormAspect::Geometry);
            }
        });
    }
    modal_ = true;
    try {
        openWindow(FormShow::Modal);
        if (modal_) { // no handler has closed it yet
            visualHost().runModal(*this);
        }
    } catch (...) {
        closeWindow();
        throw;
    }
    if (opener && opener->Visible()) {
        opener->inputActivate();
    }
}

void Form::openWindow(FormShow how)
{
    VisualHost& host = visualHost();
    if (how == FormShow::Modal) {
        host.forms().modalBegun(shared_from_this());
    }
    if (centred_) {
        centre();
    }
    peer_ = host.openWindow(*this, how == FormShow::Modal);
    Resize.raise();
    tellSeen();
    inputActivate();
    focusFirst();
}

/// A dialog is read from where its opener is read, so it is no smaller. What has its own zoom keeps it.
void Form::takeZoomOf(const Form& opener)
{
    const PixelRectangle screen = visualHost().screen().of(opener);
    const PixelSize inner = innerSize();
    if (zoom_ != 1 || opener.Zoom() <= 1 || inner.isEmpty() || screen.isEmpty()) {
        return;
    }
    constexpr double Room = 0.9; // of the screen, since title and borders take some
    const double fitting = Room * std::min(screen.width / inner.width, screen.height / inner.height);
    const double zoom = std::min(opener.Zoom(), fitting);
    if (zoom > 1) {
        Zoom(zoom);
        innerSize(inner);
    }
}

void Form::centre()
{
    const auto target = visualHost().forms().ActiveForm();
    const PixelRectangle screen = target ? visualHost().screen().of(*target) : visualHost().screen().first();
    // One that is larger than the screen begins at its corner, so that its title can be reached.
    const auto start = [](double corner, double room, double length) {
        return corner * TwipsPerPixel + std::max(0.0, (room * TwipsPerPixel - length) / 2);
    };
    hasPlace_ = true;
    place(start(screen.left, screen.width, width_), start(screen.top, screen.height, height_), width_,
          height_);
}

void Form::focusFirst()
{
    if (!Visible()) {
        return;
    }
    ControlPtr first = focus_.field();
    if (!first || !first->frame().isReachable()) {
        const auto order = tabOrder();
        first = order.empty() ? nullptr : order.front();
    }
    focus_.choose(nullptr);
    focus(first);
}

void Form::tellSeen()
{
    const auto controls = container_.controls(); // a handler may add or remove
    for (const ControlPtr& control : controls) {
        control->frame().tellSeen();
    }
}

void Form::Hide()
{
    const auto self = shared_from_this();
    closeWindow();
}

void Form::closeWindow()
{
    if (!peer_) {
        return;
    }
    focus_.forget();
    peer_.reset();
    tellSeen();
    isActive_ = activateTold_ = false;
    modal_ = false;
    visualHost().forms().deactivated(*this);
    visualHost().forms().modalEnded(*this);
}

bool Form::Unload()
{
    if (!loaded_ || closing_) {
        return !loaded_;
    }
    const auto self = shared_from_this();
    closing_ = true;
    bool refused = false;
    QueryUnload.raise(refused);
    if (!refused) {
        Unloading.raise(refused);
    }
    if (!refused) {
        finishUnload();
    }
    closing_ = false;
    return !refused;
}

void Form::discard()
{
    if (!SessionState::isOpen()) {
        hostEnds();
    } else if (loaded_) {
        const auto self = shared_from_this();
        closing_ = true;
        finishUnload();
        closing_ = false;
    }
}

void Form::finishUnload()
{
    closeWindow();
    loaded_ = false;
    visualHost().forms().unloaded(*this);
    for (const ObjectPtr& object : objects_) {
        if (auto* timer = dynamic_cast<Timer*>(object.get())) {
            timer->Enabled(false);
        }
    }
    Unloaded.raise();
}

void Form::hostEnds()
{
    peer_.reset();
    loaded_ = modal_ = isActive_ = activateTold_ = false;
}

void Form::SetFocus()
{
    report(FormAspect::Focus);
    inputActivate();
}

void Form::ZOrder(std::int32_t position)
{
    if (position == 0) {
        report(FormAspect::ZOrder);
    }
}

void Form::report(FormAspect aspect) const
{
    if (peer_) {
        peer_->modelChanged(aspect);
    }
}

namespace
{

/// Operations by name; what they are given is not looked at.
Variant show(Object& form, std::span<const Variant> /*arguments*/)
{
    static_cast<Form&>(form).Show();
    return {};
}

Variant translate(Object& form, std::span<const Variant> /*arguments*/)
{
    const Event<>& handlers = static_cast<Form&>(form).TRANSLATE;
    if (!handlers.hasHandlers()) {
        throw noSuchMember(u"TRANSLATE", form.typeName());
    }
    handlers.raise();
    return {};
}

} // namespace

MemberTable Form::members() const
{
    using members::property;
    using members::readOnly;
    static constexpr auto Table = std::to_array<Member>({
        property<Form, String, &Form::NAME, &Form::NAME>(u"NAME"),
        property<Form, String, &Form::Tag, &Form::Tag>(u"Tag"),
        property<Form, String, &Form::Caption, &Form::Caption>(u"Caption"),
        property<Form, double, &Form::Left, &Form::Left>(u"Left"),
        property<Form, double, &Form::Top, &Form::Top>(u"Top"),
        property<Form, double, &Form::Width, &Form::Width>(u"Width"),
        property<Form, double, &Form::Height, &Form::Height>(u"Height"),
        property<Form, ScaleUnit, &Form::ScaleMode, &Form::ScaleMode>(u"ScaleMode"),
        readOnly<Form, double, &Form::ScaleWidth>(u"ScaleWidth"),
        readOnly<Form, double, &Form::ScaleHeight>(u"ScaleHeight"),
        property<Form, double, &Form::Zoom, &Form::Zoom>(u"Zoom"),
        property<Form, Colour, &Form::BackColor, &Form::BackColor>(u"BackColor"),
        property<Form, PicturePtr, &Form::Picture, &Form::Picture>(u"Picture"),
        property<Form, PicturePtr, &Form::Icon, &Form::Icon>(u"Icon"),
        property<Form, phial::BorderStyle, &Form::BorderStyle, &Form::BorderStyle>(u"BorderStyle"),
        property<Form, phial::WindowState, &Form::WindowState, &Form::WindowState>(u"WindowState"),
        property<Form, phial::MousePointer, &Form::MousePointer, &Form::MousePointer>(u"MousePointer"),
        property<Form, bool, &Form::Enabled, &Form::Enabled>(u"Enabled"),
        property<Form, bool, &Form::KeyPreview, &Form::KeyPreview>(u"KeyPreview"),
        readOnly<Form, bool, &Form::Visible>(u"Visible"),
        readOnly<Form, WindowHandle, &Form::hWnd>(u"hWnd"),
        readOnly<Form, ObjectPtr, &Form::Controls>(u"Controls"),
        Member{u"Show", nullptr, nullptr, show},
        members::operation<Form, &Form::Hide>(u"Hide"),
        Member{u"TRANSLATE", nullptr, nullptr, translate},
    });
    return Table;
}

} // namespace phial
