#pragma once

#include "core/String.h"
#include "core/Variant.h"
#include "headless/ScriptedNetClient.h"
#include "server/WireText.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace phial::test
{

/// A classroom's master as a test wants it: what it knows it answers, and its manners are set by script.
///
/// At first it accepts every logon, has the mode 1, and answers "ERROR" to all else. The texts that came in
/// are found in the network.
class ScriptedMaster
{
public:
    explicit ScriptedMaster(headless::ScriptedNetwork& network);
    ~ScriptedMaster();
    ScriptedMaster(const ScriptedMaster&) = delete;
    ScriptedMaster& operator=(const ScriptedMaster&) = delete;

    /// The value with which it answers requests such as `SERVER:MODE` from now on.
    void knows(const String& request, const Variant& value) { says(request, answerText(value)); }
    /// The same as the answer's whole text, right or wrong.
    void says(const String& request, String answer) { answers_[request] = std::move(answer); }

    /// Whether it is there; one that is not there answers nothing.
    void isThere(bool there) { there_ = there; }
    /// Each answer comes after so many seconds from now on.
    void takes(double seconds) { seconds_ = seconds; }
    /// Each answer comes a second time from now on, as a message ahead of the next answer.
    void repeatsItself() { repeats_ = true; }

    // What happens to the next request that has no such turn yet, one turn each.
    void missesOne();
    /// The connection fails.
    void breaksOne();
    /// It answers with that text, whatever is asked.
    void answersOne(String answer);

    /// Called with each request, before it is answered.
    std::function<void(const WireRequest&)> asked = [](const WireRequest&) {};

    /// The requests that have come, such as `SERVER:LOGON`; those to a master that is not there too.
    std::vector<String> requests() const;
    /// The package of the latest request.
    String package() const;

private:
    using Turn = std::function<std::optional<String>()>;

    std::optional<String> answer(const String& message);
    std::optional<String> known(const WireRequest& request) const;

    headless::ScriptedNetwork& network_;
    std::map<String, String> answers_;
    std::deque<Turn> turns_;
    std::optional<String> repetition_;
    bool there_ = true;
    bool repeats_ = false;
    double seconds_ = 0;
};

} // namespace phial::test
