#pragma once

#include "core/CoreParameters.h"
#include "core/String.h"
#include "core/Variant.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace phial::master
{

/// What the teacher has set: named values that clients ask for one by one (`PROPERTIES` `GET`), that go out
/// with the master's settings text (the first two), or that guide the highscores. Names are compared without
/// regard to case.
///
/// | Name | Value |
/// |---|---|
/// | `SCREENNAMES` | Boolean: whether pupils choose their names (they do unless set) |
/// | `WELCOMEMESSAGE` | shown to pupils when they have logged on |
/// | `<module>.MAX` | 1 to 1000: how many entries the module's highscore keeps |
/// | `<module>.ONCE` | Boolean: whether it keeps only the best entry of each name |
/// | any other | what a learning app asks for under that name |
class MasterSettings
{
public:
    static constexpr std::size_t MaxNameLength = 64;
    static constexpr std::size_t MaxValueLength = 500;
    static constexpr std::int32_t MaxCount = 100;
    /// Of what goes out packed, in units: clients keep no more.
    static constexpr std::size_t MaxHandedOut = 1000;
    static constexpr std::int32_t MaxListLength = 1000;
    static constexpr std::int32_t UsualListLength = 10;

    enum class Problem { None, Name, TooLong, TooMany, NoBoolean, NoListLength };

    /// Names and texts as they are kept; nothing is checked again.
    using Texts = std::vector<std::pair<String, String>>;

    MasterSettings() = default;
    explicit MasterSettings(const Texts& kept);

    /// A setting as it would be kept: its name, and its text, which is empty for one that is taken away.
    struct Change {
        String name;
        String text;
        Problem problem = Problem::None;
    };
    /// What becomes of what somebody has typed.
    Change changeTo(StringView name, StringView value) const;

    /// The value as it stands; no value for a setting that is not there.
    std::optional<Variant> value(StringView name) const;
    const CoreParameters& all() const { return values_; }

    /// Whether the teacher has set how a module's list is kept.
    bool hasListRules(StringView module) const;
    /// How many entries a module's list keeps, and whether only the best of each name.
    std::int32_t listLength(StringView module) const;
    bool keepsBestOnly(StringView module) const;

    /// What goes out with the settings text.
    std::shared_ptr<CoreParameters> handedOut() const;

    friend bool operator==(const MasterSettings& left, const MasterSettings& right)
    {
        return left.values_.Pack() == right.values_.Pack();
    }

private:
    Problem problemOf(const String& key, const String& text) const;

    CoreParameters values_;
};

} // namespace phial::master
