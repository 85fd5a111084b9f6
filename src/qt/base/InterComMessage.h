#pragma once

#include "core/String.h"

#include <QByteArray>

#include <cstdint>
#include <optional>

namespace phial::qt
{

/// One message between programs as it goes over the socket: four letters, the length of the rest, the number,
/// the text in UTF-8; numbers with the highest byte first.
struct InterComMessage {
    std::int32_t number = 0;
    String text;
};

/// A message may take this many bytes after its head.
inline constexpr std::uint32_t MaxInterComBytes = 300'000;

/// What is known of the bytes that have come so far.
enum class InterComState { Incomplete, Complete, Malformed };

QByteArray packInterCom(const InterComMessage& message);

/// Takes one message from the front of the bytes. Without regard to what else follows; `rMessage` is set when
/// the answer is Complete, and its bytes are removed.
InterComState takeInterCom(QByteArray& bytes, InterComMessage& rMessage);

/// The name of the local socket on which a program of that name listens; it differs between users.
QString interComAddress(StringView program);

} // namespace phial::qt
