#pragma once

#include "core/Environment.h"

namespace phial::qt
{

/// The environment of the process. A value that is an absolute native path comes as the system writes paths.
/// The two folders of all users that not every desktop names, PUBLIC and ALLUSERPROFILE, stand for the
/// desktop's public folder when they are not set.
class QtEnvironment final : public Environment
{
public:
    String variable(StringView name) const override;
};

} // namespace phial::qt
