#pragma once

#include "app/UserTest.h"
#include "app/frm_DialogUser.h"
#include "headless/Hand.h"
#include "visual/ScrollBar.h"
#include "visual/Shape.h"
#include "visual/ctl_CmdBar.h"

namespace phial
{

/// The dialog for name and picture, played by a pupil.
class DialogUserTest : public UserTest
{
protected:
    /// Opens the dialog and plays the pupil before it; gives what SCREENNAMEINPUT answers.
    bool play(const std::function<void()>& pupil)
    {
        outside.visual().onModal(u"frm_DialogUser", [&](Form& form) {
            dialog = form.shared_from_this();
            pupil();
        });
        return QVAPP()->USER()->SCREENNAMEINPUT();
    }
    /// The same with the abort that ends most tests.
    void look(const std::function<void()>& pupil)
    {
        play([&] {
            pupil();
            abort();
        });
    }

    template <typename Class>
    std::shared_ptr<Class> get(StringView name, std::int32_t index = -1)
    {
        return dialog->control<Class>(name, index);
    }
    String name() { return get<TextBox>(u"txt_Screenname")->Text(); }
    void enter(const String& text) { get<TextBox>(u"txt_Screenname")->Text(text); }
    void confirm() { headless::clickButton(*get<ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.OK();"); }
    void abort() { headless::clickButton(*get<ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.ABORT();"); }

    std::shared_ptr<PictureBox> avatars() { return get<PictureBox>(u"pic_Avatars"); }
    std::shared_ptr<ScrollBar> bar() { return get<ScrollBar>(u"srl_Avatars"); }
    void clickCell(std::int32_t column, std::int32_t row)
    {
        headless::click(*avatars(), column * 50 + 25, row * 50 + 25);
    }
    PixelPoint marker()
    {
        const auto shape = get<Shape>(u"shp_Avatar");
        return {shape->Left(), shape->Top()};
    }
    /// The avatar that a confirmation takes over.
    String confirmedAvatar()
    {
        enter(u"Maxi");
        confirm();
        return QVAPP()->USER()->AVATAR();
    }
    bool isInView(std::int32_t row)
    {
        const double top = row * 50 + avatars()->Top();
        return top >= 0 && top + 50 <= get<PictureBox>(u"pic_AvatarHolder")->Height();
    }

    std::shared_ptr<Form> dialog;
};

} // namespace phial
