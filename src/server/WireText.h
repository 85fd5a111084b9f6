#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <cstddef>
#include <optional>

namespace phial
{

/// The texts that clients and master exchange (docs/protocol.md).
///
/// A request is module, command and package with "::" between them, as in `SERVER::LOGON::Anna`; an empty
/// package leaves the "::" at the end. An answer is the value's type in three digits, one separator, and the
/// payload from the fifth unit on, as in `008:LOGON:OK`.

/// What a request asks for.
struct WireRequest {
    String module;
    String command;
    String package;

    friend bool operator==(const WireRequest&, const WireRequest&) = default;
};

/// A result whose package is longer than so many units is not handed in: a master refuses it.
inline constexpr std::size_t MaxResultUnits = 65'536;

String requestText(StringView module, StringView command, StringView package);

/// The parts of a request's text. The first two "::" divide it, so that a package may hold further ones; no
/// value for a text with fewer.
std::optional<WireRequest> parseRequest(StringView text);

/// The answer that hands out a value: whole numbers, doubles, texts and Booleans have types of their own,
/// every other value is packed. Raises what CoreValuePacker::Pack raises.
String answerText(const Variant& value);

/// The value of an answer. Raises 13 for a payload that is no number where the type wants one, 6 for a number
/// beyond the type's range, and what CoreValuePacker::unpackAll raises; 5 for a packed text that does not
/// hold exactly one value.
Variant answerValue(StringView answer);

/// Whether a value is the word with which a master refuses: an answer that says nothing.
bool isRefusal(const Variant& value);

/// What follows the type and the separator.
StringView answerPayload(StringView answer);

} // namespace phial
