#pragma once

#include "core/RecordSeal.h"

#include <cstdint>

namespace phial
{

/// Seals with a key made from the password by Argon2id, and XChaCha20-Poly1305 for encryption and proof; both
/// are libsodium's. docs/formats.md describes the bytes.
///
/// Each sealing draws a new salt and nonce. Salt, cost and nonce are stored and proven with the content, so
/// that a later version can raise the cost and still open what was sealed before.
class PasswordSeal : public RecordSeal
{
public:
    /// What making a key from a password costs, for us and for whoever tries passwords.
    struct Cost {
        std::uint32_t passes = 2;
        std::uint32_t kibibytes = 65536;
    };

    /// Stored costs beyond these are refused before memory or time is spent on them.
    static constexpr Cost MaxCost{16, 262144};

    /// Raises 5 when the library does not work on this computer, and for a cost that is not from 1 pass and 8
    /// kibibytes to `MaxCost`.
    explicit PasswordSeal(Cost cost);
    /// With the usual cost, some tenths of a second.
    PasswordSeal() : PasswordSeal(Cost{}) {}

    std::string seal(std::string_view bytes, StringView password) override;
    std::optional<std::string> open(std::string_view sealedBytes, StringView password) override;

private:
    Cost cost_;
};

} // namespace phial
