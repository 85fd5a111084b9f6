#include "sealing/PasswordSeal.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

using namespace std::string_literals;

constexpr std::size_t CostAt = 17;
constexpr std::size_t ContentAt = 49;
constexpr std::size_t ProofSize = 16;

/// Cheap enough for many sealings.
PasswordSeal cheapSeal()
{
    return PasswordSeal({1, 8});
}

TEST(PasswordSeal, OpensWhatItSealed)
{
    for (const std::string& bytes : {""s, "x"s, "a\0b"s, std::string(100000, 'y')}) {
        PasswordSeal seal = cheapSeal();
        EXPECT_EQ(seal.open(seal.seal(bytes, u"geheim"), u"geheim"), bytes);
    }
}

TEST(PasswordSeal, TheUsualCostOpensToo)
{
    PasswordSeal seal;
    EXPECT_EQ(cheapSeal().open(seal.seal("Anna", u"Schlüssel"), u"Schlüssel"), "Anna");
}

TEST(PasswordSeal, AnotherPasswordDoesNotOpen)
{
    PasswordSeal seal = cheapSeal();
    const std::string sealedBytes = seal.seal("Anna", u"geheim");
    for (const StringView password : {u"Geheim", u"geheim ", u"", u"geheimer"}) {
        EXPECT_EQ(seal.open(sealedBytes, password), std::nullopt);
    }
}

TEST(PasswordSeal, TheContentIsNotToBeSeen)
{
    const std::string sealedBytes = cheapSeal().seal("Anna Schmidt", u"geheim");
    EXPECT_EQ(sealedBytes.find("Anna"), std::string::npos);
    EXPECT_EQ(sealedBytes.find("geheim"), std::string::npos);
    EXPECT_EQ(sealedBytes.size(), ContentAt + 12 + ProofSize);
}

TEST(PasswordSeal, SealingAgainGivesOtherBytes)
{
    PasswordSeal seal = cheapSeal();
    EXPECT_NE(seal.seal("Anna", u"geheim"), seal.seal("Anna", u"geheim"));
}

TEST(PasswordSeal, EveryChangedBitIsNoticed)
{
    PasswordSeal seal = cheapSeal();
    const std::string sealedBytes = seal.seal("Anna", u"geheim");
    for (std::size_t at = 0; at < sealedBytes.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            std::string changed = sealedBytes;
            changed[at] = static_cast<char>(changed[at] ^ 1 << bit);
            EXPECT_EQ(seal.open(changed, u"geheim"), std::nullopt) << "byte " << at << ", bit " << bit;
        }
    }
}

TEST(PasswordSeal, EveryTruncationIsNoticed)
{
    PasswordSeal seal = cheapSeal();
    const std::string sealedBytes = seal.seal("Anna", u"geheim");
    for (std::size_t size = 0; size < sealedBytes.size(); ++size) {
        EXPECT_EQ(seal.open(std::string_view(sealedBytes).substr(0, size), u"geheim"), std::nullopt) << size;
    }
}

TEST(PasswordSeal, AbsurdCostsAreRefusedAtOnce)
{
    PasswordSeal seal = cheapSeal();
    std::string sealedBytes = seal.seal("Anna", u"geheim");
    sealedBytes.replace(CostAt, 8, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF");
    EXPECT_EQ(seal.open(sealedBytes, u"geheim"), std::nullopt);
    sealedBytes.replace(CostAt, 8, 8, '\0');
    EXPECT_EQ(seal.open(sealedBytes, u"geheim"), std::nullopt);
}

TEST(PasswordSeal, OnlySensibleCostsAreTaken)
{
    EXPECT_RAISES(PasswordSeal({0, 8}), InvalidArgument);
    EXPECT_RAISES(PasswordSeal({1, 7}), InvalidArgument);
    EXPECT_RAISES(PasswordSeal({PasswordSeal::MaxCost.passes + 1, 8}), InvalidArgument);
    EXPECT_RAISES(PasswordSeal({1, PasswordSeal::MaxCost.kibibytes + 1}), InvalidArgument);
}

} // namespace
} // namespace phial
