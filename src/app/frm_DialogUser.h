#pragma once

#include "app/AvatarPicker.h"
#include "app/DialogUserLayout.h"
#include "core/CoreTokenList.h"
#include "visual/ControlArray.h"
#include "visual/Form.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Label.h"

#include <array>
#include <memory>
#include <optional>

namespace phial
{

/// The dialog in which a pupil chooses name and avatar, afresh or out of the six latest entries. Return
/// confirms and Escape aborts, as the two buttons do; closing its frame aborts too. An object serves for one
/// dialog.
class frm_DialogUser
{
public:
    frm_DialogUser();
    ~frm_DialogUser();
    frm_DialogUser(const frm_DialogUser&) = delete;
    frm_DialogUser& operator=(const frm_DialogUser&) = delete;

    /// Modal: returns when the pupil has confirmed or aborted.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    /// "True" when the pupil has confirmed, otherwise "False".
    const String& UserResult() const { return userResult_; }
    /// The chosen avatar's ID; empty when there is no avatar to choose.
    const String& UserAvatar() const { return userAvatar_; }

    Form& form() { return *form_; }

private:
    void build();
    void style();
    void connect();
    void load();
    void fillLast();
    void fillPlace(std::int32_t place, const String& name, const String& avatar);
    void drawPlace(std::int32_t place);
    void takeLast(std::int32_t place);
    void selectAvatar(const String& avatar);
    void openKeyboard();
    void command(const String& key);
    void confirm();
    void abort();
    void keyDown(KeyEvent& event);
    std::optional<std::int32_t> focusedPlace() const;

    String userResult_ = u"False";
    String userAvatar_;
    std::shared_ptr<Form> form_;
    std::shared_ptr<TextBox> screenName_;
    ControlArray<PictureBox> lastPictures_;
    ControlArray<ctl_Label> lastNames_;
    std::array<std::optional<String>, dialog_user_layout::LastPlaces>
        lastShown_; ///< by place, an entry's name
    CoreTokenList texts_;
    std::unique_ptr<AvatarPicker> picker_;
    Connections connections_;
};

} // namespace phial
