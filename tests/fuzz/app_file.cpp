// What an installed learning app tells the master of itself.

#include "FuzzInput.h"
#include "master/AppCatalogue.h"
#include "master/HighscoreLists.h"
#include "master/Packages.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    const master::LearningApp app = master::AppCatalogue::read(u"Wasser", fuzz::textOf(data, size));
    fuzz::require(!app.name.empty() && app.name == master::cleaned(app.name, master::MaxNameLength));
    fuzz::require(app.modules.size() <= master::AppCatalogue::MaxModules);
    fuzz::require(std::ranges::all_of(app.modules, [](const String& module) {
        return !module.empty() && module == master::HighscoreLists::nameOf(module) &&
               module.size() <= master::HighscoreLists::MaxModuleLength;
    }));
    return 0;
}
