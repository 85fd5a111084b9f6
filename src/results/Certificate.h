#pragma once

#include "core/String.h"

namespace phial
{

class CoreParameters;

/// Fills in the certificate form and prints it, for `cls_AppRate.PRINTCERTIFICATE`.
bool printCertificate(StringView text, const CoreParameters* more);

} // namespace phial
