#pragma once

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "gallery/Catalogue.h"
#include "gallery/frm_Gallery.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "support/Places.h"

#include <filesystem>
#include <memory>

namespace gallery
{

/// The gallery's window with a user before it, in German.
class GalleryTest : public phial::test::AppSession
{
protected:
    GalleryTest() { outside.environment().set(u"LANG", u"de_DE.UTF-8"); }
    void TearDown() override
    {
        gallery.reset();
        AppSession::TearDown();
    }

    void open()
    {
        gallery = std::make_unique<frm_Gallery>();
        gallery->Show();
    }

    /// Installs the table of the elements; without it the periodic keyboard tells that it is missing.
    void installElements()
    {
        makeTree(u"installed\\");
        const auto data = folder.native() / "installed/Resources/data";
        std::filesystem::create_directories(data);
        std::filesystem::copy_file(phial::test::treeFolder() / "Resources/data/elements2.dat",
                                   data / "elements2.dat", std::filesystem::copy_options::overwrite_existing);
        phial::QVAPP()->URL()->INITROOT(path(u"installed\\"));
    }

    phial::Form& form() { return gallery->form(); }
    template <typename Class>
    std::shared_ptr<Class> get(phial::StringView name, std::int32_t index = -1)
    {
        return form().control<Class>(name, index);
    }
    phial::String caption(phial::StringView label) { return get<phial::ctl_Label>(label)->Caption(); }

    /// The position of the exhibit of that name.
    std::size_t exhibit(phial::StringView title)
    {
        const auto& all = gallery->exhibits();
        const auto found = std::ranges::find(all, title, &Exhibit::title);
        EXPECT_NE(found, all.end()) << phial::toUtf8(title);
        return static_cast<std::size_t>(found - all.begin());
    }
    void show(phial::StringView title, std::size_t state = 0) { gallery->show(exhibit(title), state); }

    /// The line of the property list that begins with the name; -1 when there is none.
    std::int32_t propertyLine(phial::StringView name)
    {
        const auto list = get<phial::ListBox>(u"lst_Properties");
        for (std::int32_t line = 0; line < list->ListCount(); ++line) {
            const phial::String text = list->List(line);
            if (text.substr(0, text.find_first_of(u" (")) == name) {
                return line;
            }
        }
        return -1;
    }
    phial::String propertyText(phial::StringView name)
    {
        const std::int32_t line = propertyLine(name);
        return line < 0 ? phial::String() : get<phial::ListBox>(u"lst_Properties")->List(line);
    }
    void choose(phial::StringView property)
    {
        get<phial::ListBox>(u"lst_Properties")->inputChoice(propertyLine(property));
    }
    /// Chooses a property, types a value over its text and presses the button.
    void set(phial::StringView property, phial::StringView value)
    {
        choose(property);
        const auto box = get<phial::TextBox>(u"txt_Value");
        box->inputText(phial::String(value), 0, 0);
        phial::headless::click(*get<phial::ctl_Button>(u"but_Set"));
    }

    std::unique_ptr<frm_Gallery> gallery;
};

} // namespace gallery
