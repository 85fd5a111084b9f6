#pragma once

#include "core/MemorySettingsStore.h"

#include <vector>

namespace phial::headless
{

/// Settings in memory that remember which paths were written, each time.
class RecordingSettings : public SettingsStore
{
public:
    std::optional<Variant> read(SettingsHive hive, StringView path) const override
    {
        return store_.read(hive, path);
    }
    void write(SettingsHive hive, StringView path, const Variant& value) override
    {
        written_.emplace_back(path);
        if (!refuses_) {
            store_.write(hive, path, value);
        }
    }

    void writeTrace(SettingsHive hive, StringView path, const Variant& value) override
    {
        traces_.push_back(value.toText());
        write(hive, path, value);
    }

    /// From now on nothing that is written stays, as on a full or locked disk.
    void refuseWrites() { refuses_ = true; }

    /// Puts a value there as an earlier run would have left it; it does not count as written.
    void prepare(SettingsHive hive, StringView path, const Variant& value)
    {
        store_.write(hive, path, value);
    }

    const std::vector<String>& written() const { return written_; }
    void forgetWritten() { written_.clear(); }

    /// The traces that were left, whatever their path.
    const std::vector<String>& traces() const { return traces_; }
    void forgetTraces() { traces_.clear(); }

private:
    MemorySettingsStore store_;
    std::vector<String> written_;
    std::vector<String> traces_;
    bool refuses_ = false;
};

} // namespace phial::headless
