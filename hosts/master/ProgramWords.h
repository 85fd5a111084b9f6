#pragma once

#include "core/String.h"
#include "core/Variant.h"
#include "master/MasterServer.h"
#include "master/MasterStore.h"
#include "master/Options.h"

#include <iosfwd>

namespace phial::master
{

// What the program says beside the answers to commands, in the language in force.

void tell(std::ostream& output, StringView german, StringView english, const Variant::Array& values = {});
void tellHelp(std::ostream& output);

/// What is said goes to the error stream, with the program's name in front.
void complain(StringView german, StringView english, const Variant::Array& values = {});
void complain(const OptionProblem& problem);
void complain(const StoreError& error);
/// Why the port cannot be opened.
void complain(const MasterServer& server, const MasterServer::Address& address);

} // namespace phial::master
