#pragma once

#include "core/String.h"
#include "qt/base/QtText.h"

#include <QHostAddress>

namespace phial::qt
{

/// The address as people write it: in numbers and dots, also when it came in the long form of a newer one.
inline String addressText(const QHostAddress& address)
{
    bool isOld = false;
    const QHostAddress old(address.toIPv4Address(&isOld));
    return fromQt((isOld ? old : address).toString());
}

} // namespace phial::qt
