#pragma once

#include "headless/CrashingFileSystem.h"
#include "support/TemporaryFolder.h"

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace phial::test
{

/// Tries a save again and again, with a power cut at every step of it, and looks at the folder in every state
/// in which the disk can be then.
class PowerCuts
{
public:
    /// The folder's files by name.
    using Files = std::map<std::string, std::string>;
    /// Saves by means of that file system.
    using Save = std::function<void(const std::shared_ptr<FileSystem>&)>;
    /// Looks at the folder; told whether the save had ended before the power went.
    using Check = std::function<void(bool wasSaved)>;

    explicit PowerCuts(const TemporaryFolder& folder) : folder_(&folder) {}

    /// Begins each time with these files, and ends with the save that is cut nowhere.
    void everywhere(const Files& before, const Save& save, const Check& check)
    {
        End end = End::InWrite;
        for (int step = 0; end != End::Saved; ++step) {
            for (const double share : Shares) {
                end = at(step, share, before, save, check);
                ++stops_;
                if (end != End::InWrite) {
                    break;
                }
            }
        }
    }

    /// Power cuts at different points, and states of the disk that were looked at.
    int stops() const { return stops_; }
    int states() const { return states_; }

private:
    enum class End : std::uint8_t { InWrite, AtStep, Saved };

    /// How much of a write was done when the power went.
    static constexpr std::array Shares = {0.0, 0.01, 0.2, 0.5, 0.8, 0.99, 1.0};

    End at(int step, double share, const Files& before, const Save& save, const Check& check)
    {
        End end = End::Saved;
        int outcomes = 1;
        for (int outcome = 0; outcome < outcomes; ++outcome) {
            lay(before);
            const auto files = std::make_shared<headless::CrashingFileSystem>(folder_->native());
            files->cutPowerAt(step, share);
            try {
                save(files);
            } catch (const headless::PowerCut& cut) {
                end = cut.isInWrite ? End::InWrite : End::AtStep;
            }
            outcomes = files->outcomes();
            files->restart(outcome);
            ++states_;
            check(end == End::Saved);
        }
        return end;
    }

    void lay(const Files& files) const
    {
        for (const std::string& name : folder_->names()) {
            std::filesystem::remove(folder_->native() / name);
        }
        for (const auto& [name, bytes] : files) {
            folder_->write(name, bytes);
        }
    }

    const TemporaryFolder* folder_;
    int stops_ = 0;
    int states_ = 0;
};

} // namespace phial::test
