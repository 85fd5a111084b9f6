#pragma once

#include "common/TaskList.h"
#include "puzzle/ElementFacts.h"

#include <set>

namespace puzzle
{

/// The tiles to place, among the program's own data.
inline constexpr phial::StringView TaskFileName = u"kaertchen.txt";

/// So many tiles a task has at most: what explains them has no room for more.
inline constexpr std::size_t MostTiles = 6;

/// What is seen of the table, besides the places that are to be filled. A level's key tells it.
enum class Guides : std::uint8_t {
    Neighbours, ///< all elements but some others of the level; tiles tell their protons. For any key.
    Tops,       ///< "gruppen": the uppermost element of each group, and the lanthanides
    None,       ///< "leer"
};
Guides guidesOf(phial::StringView key);

/// The elements that a task names, divided by blanks or commas, each one once; empty for one that names
/// anything else.
std::vector<const ElementFacts*> elementsOf(phial::StringView task, const ElementBook& book);

/// What keeps a line of the file from being a task; empty for nothing.
std::optional<learning::TaskFault> faultOf(const phial::String& task, const ElementBook& book);

/// The protons of the elements whose places are empty while these tiles are to be placed: their own, and
/// others as the guides tell. With neighbours as guides these are drawn from the level's, as many again as
/// there are tiles, at least four.
std::set<int> emptyPlaces(const std::vector<const ElementFacts*>& tiles, const learning::TaskLevel& level,
                          const ElementBook& book);

/// What the puzzle works with, read from the installation tree.
struct PuzzleData {
    phial::String elementFile;
    ElementBook elements;
    learning::TaskList tasks;
};

/// The root must have been started; nothing is raised.
PuzzleData loadPuzzleData();

} // namespace puzzle
