// Requests to the classroom master: whatever comes, the answer is one that a client can read, what is kept
// can be shown on a line, and the same message again changes nothing.

#include "FuzzInput.h"
#include "app/Session.h"
#include "core/CoreParameters.h"
#include "core/RuntimeError.h"
#include "headless/HeadlessPlatform.h"
#include "master/Classroom.h"
#include "master/MemoryStore.h"
#include "master/Packages.h"
#include "results/cls_DataScores.h"

#include <algorithm>

namespace
{

using namespace phial;

bool isShowable(const String& text, std::size_t maxLength)
{
    return text == master::cleaned(text, maxLength);
}

void requireKept(const test::MemoryStore::Content& content)
{
    for (const master::Result& result : content.results) {
        fuzz::require(isShowable(result.sender.screenName, master::MaxNameLength));
        fuzz::require(isShowable(result.exercise, master::MaxLabelLength));
        CoreParameters additional;
        additional.Unpack(result.additional);
    }
    for (const auto& [module, list] : content.lists) {
        fuzz::require(module.size() <= master::HighscoreLists::MaxModuleLength);
        cls_DataScores scores;
        scores.DATA()->Unpack(list);
        fuzz::require(scores.COUNT() >= 1);
    }
}

} // namespace

/// The bytes are requests, one a line, all from one client.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    headless::HeadlessPlatform outside(u"\\nowhere\\");
    const Session session(outside.platform());
    test::MemoryStore store;
    master::Classroom classroom(store, outside.clock());

    const String input = fuzz::textOf(data, size);
    std::uint64_t number = 0;
    for (const StringView line : split(input, u"\n")) {
        const master::Envelope envelope{{1, ++number}, u"::1", {u"::1", 10049, 10050}};
        const String answer = classroom.answer(envelope, line);
        classroom.commit();
        fuzz::require(answer.starts_with(u"008:") && answerValue(answer).isText());

        const std::size_t results = store.committed().results.size();
        const std::size_t submissions = store.committed().submissions.size();
        classroom.answer(envelope, line);
        classroom.commit();
        fuzz::require(store.committed().results.size() == results);
        fuzz::require(store.committed().submissions.size() == submissions);
    }
    requireKept(store.committed());
    return 0;
}
