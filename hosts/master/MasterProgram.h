#pragma once

#include <span>
#include <string>

namespace phial::master
{

/// The program between its command line and its exit status: 0, 1 when something failed, 2 for arguments that
/// make no sense, 3 when the database cannot be used, 4 when the port cannot be opened.
int runMaster(std::span<const std::string> arguments);

} // namespace phial::master
