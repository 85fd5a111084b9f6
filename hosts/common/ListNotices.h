#pragma once

#include "results/HandedIn.h"

namespace learning
{

/// What pupils are told about the lists on their computer, each thing once.

/// That the shared lists have refused this user, so that results lie in a folder of his own; once, until the
/// shared lists have taken him again.
void tellAboutOwnFolder();

/// That a result could not be saved, and which lists were set aside meanwhile.
void tellAboutLists(const phial::HandedIn& result);
/// Which lists were set aside since that was told last.
void tellAboutKeptLists();

} // namespace learning
