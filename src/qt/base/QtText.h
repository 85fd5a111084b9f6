#pragma once

#include "core/String.h"

#include <QString>
#include <QStringView>

namespace phial::qt
{

/// The system's text as the toolkit's and back; both count the same 16-bit units.
inline QString toQt(StringView text)
{
    return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

inline String fromQt(QStringView text)
{
    return String(text.utf16(), static_cast<std::size_t>(text.size()));
}

} // namespace phial::qt
