#pragma once

#include "core/String.h"

namespace learning
{

/// Where this program keeps something of the pupil of that name, in the settings of this account. What would
/// open another folder there becomes a blank.
phial::String pupilSetting(phial::StringView what, phial::StringView pupil);

} // namespace learning
