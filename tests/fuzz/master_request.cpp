// Requests to the classroom master: whatever comes, there is an answer that a client can read, what is kept
// can be shown on a line and is no impossible result, lists stay within their bounds, and the same message
// again, also by another master on the same store, changes nothing.

#include "FuzzInput.h"
#include "app/Session.h"
#include "core/CoreParameters.h"
#include "core/RuntimeError.h"
#include "headless/HeadlessPlatform.h"
#include "master/Classroom.h"
#include "master/MemoryStore.h"
#include "master/Packages.h"
#include "master/TestRoom.h"
#include "results/cls_DataScores.h"

#include <cmath>

namespace
{

using namespace phial;

bool isShowable(const String& text, std::size_t maxLength)
{
    return text == master::cleaned(text, maxLength);
}

void requireKept(const test::MemoryStore::Content& content)
{
    for (const auto& [number, result] : content.results) {
        fuzz::require(isShowable(result.sender.screenName, master::MaxNameLength));
        fuzz::require(isShowable(result.exercise, master::MaxLabelLength));
        fuzz::require(std::abs(result.points) <= master::MaxPoints);
        fuzz::require(result.pointsMax >= 0 && result.pointsMax <= master::MaxPoints);
        CoreParameters additional;
        additional.Unpack(result.additional);
    }
    for (const auto& [module, list] : content.lists) {
        fuzz::require(module.size() <= master::HighscoreLists::MaxModuleLength);
        cls_DataScores scores;
        scores.DATA()->Unpack(list);
        fuzz::require(scores.COUNT() >= 1);
        fuzz::require(toUtf8(list).size() <=
                      static_cast<std::size_t>(scores.COUNT()) * master::HighscoreLists::MaxEntryBytes);
    }
}

String answerOf(master::Classroom& classroom, master::StoreDesk& desk, const FrameId& id, StringView text)
{
    String answer;
    classroom.receive({id, u"::1", {u"::1", 10049, 10050}}, text,
                      [&answer](const master::AnswerText& given) { answer = *given; });
    desk.start();
    return answer;
}

} // namespace

/// The bytes are requests, one a line, all from one client.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    headless::HeadlessPlatform outside(u"\\nowhere\\");
    const Session session(outside.platform());
    test::TestRoom room(outside.clock());
    master::Notices silent(outside.clock(), [](const String&) {});

    const String input = fuzz::textOf(data, size);
    std::uint64_t number = 0;
    for (const StringView line : split(input, u"\n")) {
        const FrameId id{1, ++number};
        const String answer = answerOf(room.classroom, room.desk, id, line);
        fuzz::require(answer.starts_with(u"008:") && answerValue(answer).isText());

        const std::size_t results = room.store.committed().results.size();
        const std::size_t submissions = room.store.committed().submissions.size();
        answerOf(room.classroom, room.desk, id, line);
        master::StoreDesk nextDesk(room.hand, outside.clock(), {}, silent);
        master::Classroom next(nextDesk, outside.clock(), silent, {}, {});
        answerOf(next, nextDesk, id, line);
        fuzz::require(room.store.committed().results.size() == results);
        fuzz::require(room.store.committed().submissions.size() == submissions);
    }
    requireKept(room.store.committed());
    return 0;
}
