#pragma once

#include "master/ClassBook.h"
#include "master/Roster.h"

#include <iosfwd>
#include <vector>

namespace phial::master
{

/// A text in the language in force.
String translated(StringView german, StringView english);

// What is stored, as tables for the teacher in the language in force. Names that may be meant to deceive and
// points that cannot be reached are marked, and a line below says so.

void writePupils(std::ostream& output, const std::vector<Pupil>& pupils);
void writeMissing(std::ostream& output, const std::vector<Pupil>& pupils);
void writeResults(std::ostream& output, const std::vector<KeptResult>& results);
void writeEvents(std::ostream& output, const std::vector<PupilEvent>& events);
void writeHighscore(std::ostream& output, const std::vector<HighscoreRow>& rows);
void writeLists(std::ostream& output, const std::vector<ListOrigin>& lists);
void writeChanges(std::ostream& output, const std::vector<Change>& changes);
void writeSettings(std::ostream& output, const MasterSettings& settings);
void writeApps(std::ostream& output, const std::vector<LearningApp>& apps);

} // namespace phial::master
