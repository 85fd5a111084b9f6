#pragma once

#include "core/CoreParameters.h"
#include "core/String.h"
#include "core/Variant.h"
#include "master/MasterStore.h"

#include <memory>
#include <optional>

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

    enum class Problem { None, Name, TooLong, TooMany, NoBoolean, NoListLength };

    /// The store must outlive the object.
    explicit MasterSettings(MasterStore& store);

    /// Sets a value, or with the empty text takes it away. The change is the store's to commit.
    Problem set(StringView name, StringView value);

    /// The value as it stands; no value for a setting that is not there.
    std::optional<Variant> value(StringView name) const;
    const CoreParameters& all() const { return values_; }

    /// What goes out with the settings text.
    std::shared_ptr<CoreParameters> handedOut() const;

    /// Reads all from the store.
    void load();

private:
    Problem problemOf(const String& key, const String& text) const;

    MasterStore& store_;
    CoreParameters values_;
};

} // namespace phial::master
