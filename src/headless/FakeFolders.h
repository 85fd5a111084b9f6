#pragma once

#include "core/CoreFolders.h"

#include <utility>

namespace phial::headless
{

/// The special folders below one root. They are not created.
class FakeFolders : public CoreFolders
{
public:
    /// `root` as the system writes paths, with a backslash at its end.
    explicit FakeFolders(String root) : root_(std::move(root)) {}

    const String& root() const { return root_; }

    String ProgramFiles() const override { return root_ + u"Programs\\"; }
    String UserDocuments() const override { return root_ + u"UserDocuments\\"; }
    String UserAppData() const override { return root_ + u"UserAppData\\"; }
    String CommonAppData() const override { return root_ + u"CommonAppData\\"; }
    String Temp() const override { return root_ + u"Temp\\"; }

private:
    String root_;
};

} // namespace phial::headless
