#pragma once

#include "core/FileSystem.h"
#include "master/StoreDesk.h"

#include <filesystem>
#include <functional>
#include <string>

namespace phial::master
{

/// Writes all results into a CSV file. They are fetched piece by piece, so that pupils who hand in meanwhile
/// do not wait for all of them, and the file is replaced in one step at the end.
class ResultExport
{
public:
    enum class Outcome { Written, NotWritable, Refused };
    using Finish = std::function<void(Outcome, const JobOutcome& lastJob)>;

    /// Begins; desk and files must outlive what has begun.
    static void begin(StoreDesk& desk, FileSystem& files, const std::filesystem::path& file, Finish finish);

private:
    ResultExport(StoreDesk& desk, FileSystem& files, std::filesystem::path file, Finish finish);
    static void goOn(const std::shared_ptr<ResultExport>& self);
    void write();

    StoreDesk& desk_;
    FileSystem& files_;
    std::filesystem::path file_;
    Finish finish_;
    std::string csv_;
    std::int32_t last_ = 0;
};

} // namespace phial::master
