#pragma once

#include "core/String.h"

namespace phial
{

class cls_DataScores;

/// The result lists in files of this computer.

/// All results, and the highscore of a module.
String resultsFile();
String highscoreFile(StringView module);

/// Loads a list. One whose load fails half way counts as empty, whatever it holds by then.
void loadOrEmpty(cls_DataScores& scores, StringView file);

} // namespace phial
