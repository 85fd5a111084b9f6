#pragma once

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "headless/Hand.h"
#include "support/AppSession.h"

#include <string>
#include <vector>

namespace phial
{

inline constexpr PixelSize HelpPageSize{300, 200};
inline constexpr double HelpViewWidth = 1000;
inline constexpr double HelpViewHeight = 418;
inline constexpr double HelpSlideTime = 0.4; // seconds, more than any slide takes

/// A book below the temporary folder, with the pages that a test puts there, in a window without a screen.
class DialogHelpImages : public test::AppSession
{
protected:
    DialogHelpImages() { LNG()->CURRENT(ID_Language_German); }

    String at(StringView relative) const { return path(u"Hilfe\\") + String(relative); }

    /// A page of that size.
    PicturePtr put(const std::string& file, PixelSize size = HelpPageSize)
    {
        const std::string relative = "Hilfe/" + file;
        folder.write(relative, "a picture");
        auto picture = std::make_shared<Picture>(size);
        outside.visual().addPicture(folder.native() / relative, picture);
        return picture;
    }
    /// A file that is no picture.
    void putBroken(const std::string& file) const { folder.write("Hilfe/" + file, "no picture"); }
    void putPages(int count)
    {
        for (int page = 1; page <= count; ++page) {
            put(std::string(page < 10 ? "0" : "") + std::to_string(page) + ".gif");
        }
    }
    /// A menu picture and its map, whose left half is blue and whose right half is as it is given.
    void putMenu(const std::string& in = {}, std::uint32_t right = 0xFF00FFFD)
    {
        put(in + "menu.gif");
        const PicturePtr map = put(in + "menu_choice.gif", {30, 20});
        for (std::size_t pixel = 0; pixel < map->pixels().size(); ++pixel) {
            map->pixels()[pixel] = pixel % 30 < 15 ? 0xFF0000FF : right;
        }
    }

    void open()
    {
        dialog.Folder(path(u"Hilfe\\"));
        form.Show();
    }
    /// Until the pages beside the one in view have been read.
    void waitForNeighbours() { outside.advance(0.1); }
    PictureBox& page(std::int32_t index) { return *form.control<PictureBox>(u"pic_Viewer", index); }
    PictureBox& view() { return *form.control<PictureBox>(u"pic_ViewHolder"); }
    ctl_Button& button(StringView name) { return *form.control<ctl_Button>(name); }
    Label& segment(std::int32_t index) { return *form.control<Label>(u"bar_Progress", index); }
    std::shared_ptr<Timer> animation() { return form.control<Timer>(u"tmr_Animation"); }
    void press(StringView name)
    {
        headless::click(button(name));
        outside.advance(HelpSlideTime);
    }
    void strike(Key key) { headless::strike(form, {.key = key}); }
    void strikeAndWait(Key key)
    {
        strike(key);
        outside.advance(HelpSlideTime);
    }
    /// A swipe over the view, begun beside the page.
    void swipe(double distance)
    {
        headless::drag(view(), {500, 10}, {500 + distance, 10});
        outside.advance(HelpSlideTime);
    }
    void allowDeletion() { dialog.More().Set(u"Delete", true); }
    void answer(DialogAnswer choice)
    {
        outside.dialogs().expectYesNo(choice, u"Wollen Sie die Lösung wirklich löschen?");
    }
    String shownPage() { return form.control<ctl_Title>(u"bar_Header")->TextRight(); }
    std::vector<bool> pressable()
    {
        return {button(u"but_Back").Enabled(), button(u"but_Next").Enabled(), button(u"but_Menu").Enabled()};
    }
    static PointerEvent touch(std::int32_t number, double x, double y)
    {
        return {.Button = PointerButton::Left, .X = x, .Y = y, .Touch = number};
    }

    frm_DialogHelpImages dialog;
    Form& form = dialog.form();
};

} // namespace phial
