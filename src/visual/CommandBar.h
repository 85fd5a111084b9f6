#pragma once

#include "core/Event.h"
#include "visual/Control.h"

#include <memory>
#include <vector>

namespace phial
{

/// One button of a command bar.
class CommandBarButton final : public Object
{
public:
    /// `key` is the text that the bar reports, such as "DIALOG.OK();".
    CommandBarButton(String key, String caption, std::shared_ptr<const Event<>> changed);

    String Key() const { return key_; }
    void Key(String value) { key_ = std::move(value); }
    String Caption() const { return caption_; }
    void Caption(String value);
    bool Enabled() const { return enabled_; }
    void Enabled(bool value);
    bool Visible() const { return visible_; }
    void Visible(bool value);
    /// Whether the keyboard begins with this button when the bar gets the focus; without such a one that can
    /// be pressed it begins with the first that can.
    bool Default() const { return default_; }
    void Default(bool value);
    PicturePtr Picture() const { return picture_; }
    void Picture(PicturePtr value);
    String ToolTipText() const { return toolTip_; }
    void ToolTipText(String value);

    StringView typeName() const override { return u"CommandBarButton"; }
    MemberTable members() const override;

private:
    struct Properties;
    void tellChanged();

    String key_;
    String caption_;
    bool enabled_ = true;
    bool visible_ = true;
    bool default_ = false;
    PicturePtr picture_;
    String toolTip_;
    std::shared_ptr<const Event<>> changed_; ///< of the bar's buttons
};

/// The buttons of a bar, counted from 1.
class CommandBarButtons final : public Object
{
public:
    std::int32_t Count() const { return static_cast<std::int32_t>(buttons_.size()); }
    /// Raises 9 outside.
    std::shared_ptr<CommandBarButton> Item(std::int32_t index) const;
    /// By key, without regard to case; null when there is none.
    std::shared_ptr<CommandBarButton> find(StringView key) const;
    std::shared_ptr<CommandBarButton> Add(String key, String caption);
    void Clear();
    /// Raised when buttons come, go or look different.
    Event<>& changed() { return *changed_; }

    StringView typeName() const override { return u"CommandBarButtons"; }
    MemberTable members() const override;

private:
    std::shared_ptr<Event<>> changed_ = std::make_shared<Event<>>(); ///< the buttons may live longer
    std::vector<std::shared_ptr<CommandBarButton>> buttons_;
};

/// What the bars have in common, held by each: its buttons, with the bar's widget told when they change.
class CommandBarBody
{
public:
    using ButtonEvent = Event<std::int32_t, const String&>;

    explicit CommandBarBody(ControlFrame& frame);

    const std::shared_ptr<CommandBarButtons>& buttons() const { return buttons_; }
    void refresh() { frame_.report(ControlAspect::Items); }
    /// Raises the bar's event for a button, counted from 1, unless it is disabled or hidden.
    void press(std::int32_t button, const ButtonEvent& event) const;

private:
    ControlFrame& frame_;
    std::shared_ptr<CommandBarButtons> buttons_ = std::make_shared<CommandBarButtons>();
    Connection buttonsChanged_;
};

/// A bar of push buttons: interface of the command bars; the toolkit's own buttons in a row.
class CommandBar : public Control
{
public:
    virtual std::shared_ptr<CommandBarButtons> BUTTONS() const = 0;
    /// Shows the buttons' present state. The bar does so by itself, too.
    virtual void REFRESH() = 0;
    /// The user has pressed a button, counted from 1: raises the bar's event with its own Index and the
    /// button's key. A button that is disabled or hidden does nothing.
    virtual void inputButton(std::int32_t button) = 0;
};

} // namespace phial
