#include "sealing/PasswordSeal.h"

#include "core/RuntimeError.h"

#include <array>
#include <sodium.h>

namespace phial
{

namespace
{

using Byte = unsigned char;
using Cost = PasswordSeal::Cost;

constexpr Cost MinCost{1, crypto_pwhash_MEMLIMIT_MIN / 1024};

constexpr Byte SealVersion = 1;
constexpr std::size_t SaltAt = 1;
constexpr std::size_t PassesAt = SaltAt + crypto_pwhash_SALTBYTES;
constexpr std::size_t KibibytesAt = PassesAt + 4;
constexpr std::size_t NonceAt = KibibytesAt + 4;
constexpr std::size_t HeadSize = NonceAt + crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr std::size_t ProofSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;

const Byte* bytesOf(std::string_view text)
{
    return reinterpret_cast<const Byte*>(text.data());
}

Byte* bytesOf(std::string& text, std::size_t at = 0)
{
    return reinterpret_cast<Byte*>(text.data() + at);
}

std::uint32_t numberAt(std::string_view head, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t byte = 4; byte > 0; --byte) {
        number = number << 8 | static_cast<Byte>(head[at + byte - 1]);
    }
    return number;
}

void putNumber(std::string& head, std::size_t at, std::uint32_t number)
{
    for (std::size_t byte = 0; byte < 4; ++byte) {
        head[at + byte] = static_cast<char>(number >> (8 * byte) & 0xFF);
    }
}

bool isAllowed(const Cost& cost)
{
    return cost.passes >= MinCost.passes && cost.passes <= PasswordSeal::MaxCost.passes &&
           cost.kibibytes >= MinCost.kibibytes && cost.kibibytes <= PasswordSeal::MaxCost.kibibytes;
}

/// The key of a password, wiped from memory with the object.
class Key
{
public:
    Key() = default;
    ~Key() { sodium_memzero(bytes_.data(), bytes_.size()); }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    /// False when there is not the memory that the cost asks for.
    bool make(StringView password, std::string_view head)
    {
        std::string text = toUtf8(password);
        const std::size_t memory = std::size_t{1024} * numberAt(head, KibibytesAt);
        const int result =
            crypto_pwhash(bytes_.data(), bytes_.size(), text.data(), text.size(), bytesOf(head) + SaltAt,
                          numberAt(head, PassesAt), memory, crypto_pwhash_ALG_ARGON2ID13);
        sodium_memzero(text.data(), text.size());
        return result == 0;
    }

    const Byte* data() const { return bytes_.data(); }

private:
    std::array<Byte, crypto_aead_xchacha20poly1305_ietf_KEYBYTES> bytes_ = {};
};

std::string newHead(const Cost& cost)
{
    std::string head(HeadSize, '\0');
    head[0] = static_cast<char>(SealVersion);
    randombytes_buf(bytesOf(head, SaltAt), crypto_pwhash_SALTBYTES);
    putNumber(head, PassesAt, cost.passes);
    putNumber(head, KibibytesAt, cost.kibibytes);
    randombytes_buf(bytesOf(head, NonceAt), crypto_aead_xchacha20poly1305_ietf_NPUBBYTES);
    return head;
}

bool isHead(std::string_view head)
{
    return static_cast<Byte>(head[0]) == SealVersion &&
           isAllowed({numberAt(head, PassesAt), numberAt(head, KibibytesAt)});
}

} // namespace

PasswordSeal::PasswordSeal(Cost cost) : cost_(cost)
{
    if (sodium_init() < 0 || !isAllowed(cost)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
}

std::string PasswordSeal::seal(std::string_view bytes, StringView password)
{
    const std::string head = newHead(cost_);
    Key key;
    if (!key.make(password, head)) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"not enough memory to seal a file");
    }
    std::string sealedBytes = head;
    sealedBytes.resize(HeadSize + bytes.size() + ProofSize);
    crypto_aead_xchacha20poly1305_ietf_encrypt(bytesOf(sealedBytes, HeadSize), nullptr, bytesOf(bytes),
                                               bytes.size(), bytesOf(head), head.size(), nullptr,
                                               bytesOf(head) + NonceAt, key.data());
    return sealedBytes;
}

std::optional<std::string> PasswordSeal::open(std::string_view sealedBytes, StringView password)
{
    if (sealedBytes.size() < HeadSize + ProofSize || !isHead(sealedBytes)) {
        return std::nullopt;
    }
    const std::string_view head = sealedBytes.substr(0, HeadSize);
    const std::string_view content = sealedBytes.substr(HeadSize);
    Key key;
    if (!key.make(password, head)) {
        return std::nullopt;
    }
    std::string bytes(content.size() - ProofSize, '\0');
    const int result = crypto_aead_xchacha20poly1305_ietf_decrypt(
        bytesOf(bytes), nullptr, nullptr, bytesOf(content), content.size(), bytesOf(head), head.size(),
        bytesOf(head) + NonceAt, key.data());
    return result == 0 ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace phial
