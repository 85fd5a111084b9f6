#pragma once

#include "app/AvatarPicker.h"
#include "app/DialogUserDesign.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Label.h"

#include <array>
#include <memory>
#include <optional>

namespace phial
{

/// The dialog in which a pupil chooses name and avatar, afresh or out of the six latest entries; where there
/// is none yet, out of some friendly names too, so that a name can be had without typing. Return confirms and
/// Escape aborts, as the two buttons do; closing its frame aborts too. An object serves for one dialog.
class frm_DialogUser
{
public:
    frm_DialogUser();

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
    void connect();
    void connectLast();
    void load();
    void fillLast();
    void offerNames();
    void fillNames();
    void takeName();
    void fillPlace(std::int32_t place, const String& name, const String& avatar);
    void drawPlace(std::int32_t place);
    void takeLast(std::int32_t place);
    void selectAvatar(const String& avatar);
    void openKeyboard();
    void confirm();
    void abort();
    void keyDown(KeyEvent& event);
    std::optional<std::int32_t> focusedPlace() const;

    String userResult_ = u"False";
    String userAvatar_;
    DesignedForm form_;
    std::shared_ptr<TextBox> screenName_;
    std::shared_ptr<ComboBox> names_;
    ControlArray<PictureBox> lastPictures_;
    ControlArray<ctl_Label> lastNames_;
    std::array<std::optional<String>, dialog_user_design::LastPlaces>
        lastShown_; ///< by place, an entry's name
    std::unique_ptr<AvatarPicker> picker_;
};

} // namespace phial
