#pragma once

#include "gallery/Exhibit.h"

#include <vector>

namespace gallery
{

// The exhibits of the sections; each builds upon models alone.
std::vector<Exhibit> shownExhibits();
std::vector<Exhibit> inputExhibits();
std::vector<Exhibit> barExhibits();
std::vector<Exhibit> partExhibits();
std::vector<Exhibit> userExhibits();
std::vector<Exhibit> windowExhibits();
std::vector<Exhibit> keyboardExhibits();
std::vector<Exhibit> deskExhibits();
std::vector<Exhibit> markupExhibits();
std::vector<Exhibit> helpExhibits();
std::vector<Exhibit> resultExhibits();
std::vector<Exhibit> formulaExhibits();
std::vector<Exhibit> soundExhibits();
std::vector<Exhibit> mascotExhibits();
std::vector<Exhibit> periodicExhibits();

/// All exhibits, section by section.
std::vector<Exhibit> catalogue();

} // namespace gallery
