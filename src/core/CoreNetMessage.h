#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// A text message that came in without having been asked for.
class CoreNetMessage
{
public:
    CoreNetMessage(String text, String senderAddress, std::int32_t senderPort)
        : text_(std::move(text)), senderAddress_(std::move(senderAddress)), senderPort_(senderPort)
    {
    }

    const String& Text() const { return text_; }
    /// The sender's address in numbers and dots, and its port.
    const String& SenderAddress() const { return senderAddress_; }
    std::int32_t SenderPort() const { return senderPort_; }

private:
    String text_;
    String senderAddress_;
    std::int32_t senderPort_;
};

} // namespace phial
