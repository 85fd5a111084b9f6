#pragma once

#include "core/FileSystem.h"
#include "core/String.h"

#include <filesystem>
#include <set>
#include <vector>

namespace phial::master
{

/// A learning app that is installed on this computer.
struct LearningApp {
    String ident;
    String name;
    /// The highscores that it hands results in to.
    std::vector<String> modules;

    friend bool operator==(const LearningApp&, const LearningApp&) = default;
};

/// The learning apps of an installation. Each tells of itself in `apps/<identifier>/data/app.txt`, in the
/// readable form of parameters (docs/formats.md):
///
///     Name = "Molmassen-Trainer"
///     Modules = "HIGHSCORE, SALZE"
class AppCatalogue
{
public:
    /// What is read of a file, in bytes, and how many apps and modules of an app are known, at most.
    static constexpr std::size_t MaxFileBytes = 16384;
    static constexpr std::size_t MaxApps = 200;
    static constexpr std::size_t MaxModules = 100;
    /// The module of apps that name none.
    static constexpr StringView UsualModule = u"HIGHSCORE";

    AppCatalogue() = default;
    explicit AppCatalogue(std::vector<LearningApp> apps) : apps_(std::move(apps)) {}
    /// Those below the folder `apps`; none where it cannot be read.
    static AppCatalogue inFolder(FileSystem& files, const std::filesystem::path& folder);
    /// What an app's file says; an app that says no name is called by its identifier.
    static LearningApp read(StringView ident, StringView text);

    /// Sorted by identifier.
    const std::vector<LearningApp>& apps() const { return apps_; }
    /// The app with that identifier or name; null for none.
    const LearningApp* find(StringView identOrName) const;
    /// The modules whose lists the chosen app can always begin, in capitals: the usual one, those it tells,
    /// and those called as it is called itself.
    std::set<String> modulesOf(StringView chosen) const;

private:
    std::vector<LearningApp> apps_;
};

} // namespace phial::master
