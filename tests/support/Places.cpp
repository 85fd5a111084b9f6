#include "support/Places.h"

namespace phial::test
{

std::filesystem::path sourceFolder()
{
    return PHIAL_SOURCE_FOLDER;
}

std::filesystem::path treeFolder()
{
    return PHIAL_TREE_FOLDER;
}

std::filesystem::path vectorsFolder()
{
    return sourceFolder() / "tests" / "vectors";
}

std::filesystem::path dataFolder()
{
    return sourceFolder() / "tests" / "data";
}

std::filesystem::path corpusFolder()
{
    return sourceFolder() / "tests" / "fuzz" / "corpus";
}

} // namespace phial::test
