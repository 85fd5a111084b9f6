// Shows the periodic table: table_window ELEMENTS LANGUAGE [TILE...]. With tiles they are to be placed. Tells
// what the table tells, a line each, and ends with its window.

#include "app/Session.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElement.h"
#include "core/NativePath.h"
#include "periodic/ctl_PSE.h"
#include "qt/desktop/DesktopApplication.h"
#include "visual/Form.h"

#include <iostream>

int main(int argc, char** argv)
{
    constexpr int FirstTile = 3;
    const phial::qt::DesktopApplication application(argc, argv, u"Table");
    const phial::Session session(application.platform());
    if (argc < FirstTile) {
        return 1;
    }
    const bool isGerman = phial::fromUtf8(argv[2]) == u"de";
    phial::LNG()->CURRENT(isGerman ? phial::ID_Language_German : phial::ID_Language_English);
    const auto form = std::make_shared<phial::Form>(u"frm_Table");
    form->ScaleMode(phial::ScaleUnit::Pixels);
    form->innerSize({640, 420});
    const auto table = form->add<phial::ctl_PSE>(u"frm_P");
    phial::Connections connections;
    connections += table->CLICK.connect(
        [](const auto& element) { std::cout << "click " << phial::toUtf8(element->SYMBOL()) << std::endl; });
    connections += table->DROPPED.connect([&](std::int32_t slot) {
        std::cout << "dropped " << phial::toUtf8(table->DRAGSYMBOL(slot)) << " on "
                  << phial::toUtf8(table->DRAGSYMBOLDROP(slot)) << std::endl;
    });
    table->LOAD(phial::systemPath(argv[1]));
    if (argc > FirstTile) {
        table->MODE(phial::enm_PSEMode::ID_PSEMode_Place);
    }
    for (int tile = FirstTile; tile < argc; ++tile) {
        table->DRAGADD(phial::fromUtf8(argv[tile]));
    }
    form->Show();
    table->SetFocus();
    return application.run();
}
