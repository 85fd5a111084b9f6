#pragma once

#include <cstdint>

namespace phial
{

/// The number of this process.
std::int64_t currentProcess();

/// Whether a process of that number runs on this computer. Where systems cannot tell, only this one does.
bool isRunningProcess(std::int64_t process);

} // namespace phial
