#pragma once

#include "core/String.h"

namespace phial
{

/// The log of what went over the network in this run: `QV Phial\Logs\network.log` in the application data of
/// all users. Each entry is date, "|", text, CR LF in UTF-8, such as
/// `2026-03-02 08:00:00|REQUEST: SERVER:LOGON`; an answer stands in it as it came.
///
/// Nothing is raised: a log that cannot be written loses its line.
class NetLog
{
public:
    /// Makes the folder and gives up the log of the run before.
    NetLog();

    void write(StringView text);

private:
    String file_;
};

} // namespace phial
