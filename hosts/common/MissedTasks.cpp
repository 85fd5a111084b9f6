#include "common/MissedTasks.h"

#include "common/PupilSetting.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "core/RuntimeError.h"

#include <algorithm>

namespace learning
{

using phial::String;
using phial::StringView;

namespace
{

constexpr auto Hive = phial::SettingsHive::CurrentUser;

} // namespace

MissedTasks::MissedTasks(StringView pupil) : path_(pupilSetting(u"Missed", pupil))
{
    phial::ignoringErrors([&] {
        for (const String& task : phial::coreRoot().CoreRegistry().CoreRegistryRead().ReadList(Hive, path_)) {
            if (tasks_.size() < Most) {
                tasks_.push_back(task);
            }
        }
    });
}

bool MissedTasks::has(StringView task) const
{
    return std::find(tasks_.begin(), tasks_.end(), task) != tasks_.end();
}

std::size_t MissedTasks::count(const std::function<bool(StringView task)>& counts) const
{
    return static_cast<std::size_t>(std::ranges::count_if(tasks_, counts));
}

void MissedTasks::missed(StringView task)
{
    std::erase(tasks_, task);
    if (tasks_.size() == Most) {
        tasks_.erase(tasks_.begin());
    }
    tasks_.emplace_back(task);
    save();
}

void MissedTasks::solved(StringView task)
{
    if (std::erase(tasks_, task) > 0) {
        save();
    }
}

void MissedTasks::forget()
{
    if (!tasks_.empty()) {
        tasks_.clear();
        save();
    }
}

void MissedTasks::save() const
{
    phial::ignoringErrors([&] {
        phial::CoreStringList list;
        for (const String& task : tasks_) {
            list.Add(task);
        }
        phial::coreRoot().CoreRegistry().CoreRegistryWrite().WriteList(Hive, path_, list);
    });
}

} // namespace learning
