#pragma once

#include "core/CoreParameters.h"
#include "core/Moment.h"
#include "core/String.h"
#include "core/Variant.h"

#include <memory>
#include <span>

namespace phial
{

/// What the records of the result lists have in common.

/// Names under which an entry stands in a list.
struct EntryNames {
    String user; ///< the login
    String computer;
    String screen; ///< the name shown in lists
};

/// The names as given; in place of an empty one that of the login, of the computer, and of `cls_AppUser`.
EntryNames completed(EntryNames given);

/// Raises 5 for points that are no finite number: no list could rank them.
void requireFinite(double points, double pointsMax);

/// Date and time on the session's clock.
Moment presentMoment();

/// An entry's further values, made when they are first needed.
const std::shared_ptr<CoreParameters>& madeIfMissing(std::shared_ptr<CoreParameters>& additional);

/// A moment of an entry by a pattern; empty for one that the calendar does not have.
String momentText(Moment moment, StringView pattern);
/// Day and time of an entry: "dd.mm.yyyy", "HH:MM:SS".
String dayText(Moment moment);
String timeText(Moment moment);

/// What is searched in a list. Texts are compared without regard to case and outer blanks, the empty value
/// counting as the empty text; other values as they stand.
class SearchKey
{
public:
    explicit SearchKey(const Variant& key);

    bool fits(const Variant& value) const;
    bool fitsText(StringView text) const;

private:
    const Variant* key_;
    String text_;
};

/// The fields of a line, each with a tab behind it, the last one too. Line ends, tabs and other controls
/// within a field are blanks.
String tabbed(std::span<const String> fields);
/// The titles of the columns with tabs between them, and a line end.
String headerLine(std::span<const StringView> titles);

} // namespace phial
