#pragma once

#include "core/Clock.h"
#include "core/String.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <vector>

namespace phial::master
{

/// What a teacher is told of without asking.
enum class Notice : std::uint8_t {
    ManyConnections,
    NoMoreConnections,
    NoRequest,
    TooLong,
    TooSlow,
    SaysNothing,
    AnswersUntaken,
    MemoryShort,
    ManyLogOns,
    ManyPupils,
    ManyQuestions,
    UnknownRequest,
    NoPackage,
    ImpossiblePoints,
    ImplausiblePoints,
    ListBegun,
    ListsOfComputer,
    NoMoreLists,
    EntryShortened,
    EntryTooLong,
    ManyRequests,
    StoreSilent,
    StoreFails,
    StoreBack,
};

/// One such thing, with the names that stand in its text, which are shown safely.
struct NoticeCase {
    Notice kind;
    std::vector<String> about = {};
};

/// Tells the teacher what was cut off, refused, full or invented: one line, and at most one a minute for each
/// kind. What comes in between is counted, and the next line says how much it was.
class Notices
{
public:
    static constexpr double SecondsBetween = 60;

    /// `say` takes a line in the language in force. The clock must outlive the object.
    Notices(const Clock& clock, std::function<void(const String&)> say);

    void tell(const NoticeCase& what);
    /// Tells what has been held back, as soon as its minute is over.
    void tick();

private:
    struct Told {
        double at = 0;
        std::size_t heldBack = 0;
        NoticeCase latest;
    };
    void say(Told& told);

    const Clock& clock_;
    std::function<void(const String&)> say_;
    std::map<Notice, Told> told_;
};

} // namespace phial::master
