#pragma once

namespace phial
{

/// The installation tree that was installed with the library. A session that finds none around its program
/// begins with this one.
///
/// The CMake package names the tree to whatever is linked to it, by the macro PHIAL_INSTALLED_TREE (UTF-8, as
/// the system writes paths); app/Session.h brings it in, so that a program need not do anything for it.
class InstalledTree
{
public:
    /// The text must live as long as the program.
    explicit InstalledTree(const char* folder) noexcept { folder_ = folder; }

    /// Null where the package has named none, as within this repository.
    static const char* folder() noexcept { return folder_; }

private:
    inline static const char* folder_ = nullptr;
};

#ifdef PHIAL_INSTALLED_TREE
namespace
{
[[maybe_unused]] const InstalledTree TreeNamedByPackage(PHIAL_INSTALLED_TREE);
}
#endif

} // namespace phial
