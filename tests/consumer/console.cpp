// A program without windows, outside the repository: the installed headers and libraries are all it has. It
// takes the installation tree and a folder for its files, and prints the molar mass of water.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/NativePath.h"
#include "headless/HeadlessPlatform.h"

#include <cstdio>
#include <filesystem>

namespace
{

phial::String folder(const char* path)
{
    std::filesystem::create_directories(path);
    return phial::systemPath(path) + u"\\";
}

double molarMass(phial::StringView formula)
{
    phial::cls_DataElements elements;
    elements.IMPORT2(phial::QVAPP()->URL()->DATASHARED() + u"elements2.dat");
    return elements.MOL(formula);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        return 2;
    }
    phial::headless::HeadlessPlatform outside(folder(argv[2]));
    outside.environment().set(u"PUBLIC", folder(argv[2]));
    const phial::Session session(outside.platform());
    phial::QVAPP()->CONFIG()->IDENT(u"Consumer");
    phial::QVAPP()->URL()->INITROOT(folder(argv[1]));
    phial::QVAPP()->INITSTANDALONE(u"");

    const double water = molarMass(u"H2O");
    std::printf("H2O: %.1f g/mol\n", water);
    return water > 17.9 && water < 18.1 ? 0 : 1;
}
