#include "master/AppCatalogue.h"

#include "core/CoreParameters.h"
#include "core/RuntimeError.h"
#include "core/Utf8Text.h"
#include "master/HighscoreLists.h"
#include "master/Packages.h"

#include <algorithm>
#include <system_error>

namespace phial::master
{

namespace fs = std::filesystem;

namespace
{

constexpr StringView AppFile = u"app.txt";

/// The file's beginning; empty for one that cannot be read.
String textOf(FileSystem& files, const fs::path& file)
{
    std::string bytes;
    std::error_code error;
    if (const auto size = fs::file_size(file, error); !error && size <= AppCatalogue::MaxFileBytes) {
        ignoringErrors([&] { bytes = files.read(file); });
    }
    return fromUtf8(withoutMark(std::move(bytes)));
}

} // namespace

AppCatalogue AppCatalogue::inFolder(FileSystem& files, const fs::path& folder)
{
    std::vector<LearningApp> apps;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end && apps.size() < MaxApps;
         entry.increment(error)) {
        const fs::path file = entry->path() / "data" / toUtf8(AppFile);
        if (std::error_code ignored; fs::is_regular_file(file, ignored)) {
            apps.push_back(read(fromUtf8(entry->path().filename().string()), textOf(files, file)));
        }
    }
    std::ranges::sort(apps, {}, &LearningApp::ident);
    return AppCatalogue(std::move(apps));
}

LearningApp AppCatalogue::read(StringView ident, StringView text)
{
    LearningApp app{cleaned(ident, MaxNameLength), {}, {}};
    app.name = app.ident;
    CoreParameters values;
    ignoringErrors([&] { values.Unpack(text); });
    if (const Variant name = values.Get(u"Name");
        name.isText() && !cleaned(name.text(), MaxNameLength).empty()) {
        app.name = cleaned(name.text(), MaxNameLength);
    }
    const Variant modules = values.Get(u"Modules");
    for (const StringView module :
         split(modules.isText() ? StringView(modules.text()) : StringView(), u",")) {
        const String key = HighscoreLists::nameOf(module);
        if (!key.empty() && key.size() <= HighscoreLists::MaxModuleLength &&
            app.modules.size() < MaxModules) {
            app.modules.push_back(key);
        }
    }
    return app;
}

const LearningApp* AppCatalogue::find(StringView identOrName) const
{
    const auto app = std::ranges::find_if(apps_, [&](const LearningApp& one) {
        return equalsIgnoringCase(one.ident, identOrName) || equalsIgnoringCase(one.name, identOrName);
    });
    return app == apps_.end() ? nullptr : &*app;
}

std::set<String> AppCatalogue::modulesOf(StringView chosen) const
{
    std::set<String> modules{String(UsualModule)};
    const auto add = [&](StringView module) {
        if (const String key = HighscoreLists::nameOf(module); !key.empty()) {
            modules.insert(key);
        }
    };
    add(chosen);
    if (const LearningApp* app = find(chosen)) {
        add(app->ident);
        add(app->name);
        modules.insert(app->modules.begin(), app->modules.end());
    }
    return modules;
}

} // namespace phial::master
