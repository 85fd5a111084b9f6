#pragma once

#include "visual/Control.h"
#include "visual/PartList.h"

namespace phial
{

/// One button of a command bar, or one of its panels, which looks alike and is not pressed.
class CommandBarButton final : public Object
{
public:
    static constexpr StringView ListName = u"CommandBarButtons";

    /// `key` is the text that the bar reports, such as "DIALOG.OK();".
    CommandBarButton(String key, String caption, std::shared_ptr<const Event<>> changed);

    String Key() const { return key_; }
    void Key(String value);
    String Caption() const { return caption_; }
    void Caption(String value);
    /// Shown in place of the caption, unless it is blank.
    String Text() const { return text_; }
    void Text(String value);
    /// What it says on its face: Text or Caption.
    String face() const { return trimmed(text_).empty() ? caption_ : text_; }
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
    /// What a screen reader adds to the face.
    String Description() const { return description_; }
    void Description(String value);
    String Tag() const { return tag_; }
    void Tag(String value);

    StringView typeName() const override { return u"CommandBarButton"; }
    MemberTable members() const override;

private:
    struct Properties;
    void tellChanged();

    String key_;
    String caption_;
    String text_;
    bool enabled_ = true;
    bool visible_ = true;
    bool default_ = false;
    PicturePtr picture_;
    String toolTip_;
    String description_;
    String tag_;
    std::shared_ptr<const Event<>> changed_; ///< of the bar's buttons
};

using CommandBarButtons = PartList<CommandBarButton>;

/// What the bars have in common, held by each: buttons and panels, with the bar's widget told when they
/// change.
class CommandBarBody
{
public:
    using ButtonEvent = Event<std::int32_t, const String&>;

    explicit CommandBarBody(ControlFrame& frame);

    const std::shared_ptr<CommandBarButtons>& buttons() const { return buttons_; }
    const std::shared_ptr<CommandBarButtons>& panels() const { return panels_; }
    void refresh() { frame_.report(ControlAspect::Items); }
    /// Raises the bar's event for a button, counted from 1, unless it is disabled or hidden.
    void press(std::int32_t button, const ButtonEvent& event) const;

private:
    ControlFrame& frame_;
    std::shared_ptr<CommandBarButtons> buttons_ = std::make_shared<CommandBarButtons>();
    std::shared_ptr<CommandBarButtons> panels_ = std::make_shared<CommandBarButtons>();
    Connections changes_;
};

/// A bar of push buttons: interface of the command bars; the toolkit's own buttons in a row.
class CommandBar : public Control
{
public:
    virtual std::shared_ptr<CommandBarButtons> BUTTONS() const = 0;
    /// Texts at the left of the buttons.
    virtual std::shared_ptr<CommandBarButtons> PANELS() const = 0;
    /// Shows the present state of buttons and panels. The bar does so by itself, too.
    virtual void REFRESH() = 0;
    /// The user has pressed a button, counted from 1: raises the bar's event with its own Index and the
    /// button's key. A button that is disabled or hidden does nothing.
    virtual void inputButton(std::int32_t button) = 0;
};

} // namespace phial
