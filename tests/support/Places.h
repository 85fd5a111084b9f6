#pragma once

#include <filesystem>

namespace phial::test
{

/// Where things lie that tests read. One source file knows it, so that all others compile alike in every
/// checkout.

/// The case tables, with stored files below.
std::filesystem::path vectorsFolder();
/// The installation tree of this build.
std::filesystem::path treeFolder();
/// Files that other tools have written.
std::filesystem::path dataFolder();
/// The inputs of the fuzz targets, a folder each.
std::filesystem::path corpusFolder();
/// The checkout itself: sources and documents.
std::filesystem::path sourceFolder();

} // namespace phial::test
