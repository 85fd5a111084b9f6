#pragma once

#include "master/MasterStore.h"

#include <functional>
#include <map>
#include <utility>

namespace phial::test
{

/// A store in memory with transactions, which fails when a test wants it to.
class MemoryStore : public master::MasterStore
{
public:
    /// What is kept; a transaction works on a copy.
    struct Content {
        std::map<FrameId, std::pair<Moment, String>> answers;
        std::map<std::int32_t, master::Result> results;
        std::int32_t lastResult = 0;
        struct Submission {
            String module;
            master::Result result;
            String rank;
        };
        std::vector<Submission> submissions;
        std::vector<master::PupilEvent> events;
        std::map<String, String> lists;
        std::map<String, master::ListOrigin> origins;
        std::vector<master::Change> changes;
        std::map<String, String> settings;
        std::map<std::uint64_t, master::LogOn> logOns;
        String app;
    };

    /// As the last commit left it.
    const Content& committed() const { return committed_; }
    int commits() const { return commits_; }
    /// The results of the last commit, in their order.
    std::vector<master::Result> results() const;
    std::size_t resultsBeforeFirstEvent() const { return resultsBeforeFirstEvent_; }

    /// Lets commits fail from now on, or the adding of events alone.
    void failCommits(bool fail) { failCommits_ = fail; }
    void failEvents(bool fail) { failEvents_ = fail; }
    /// Lets everything fail, as a server that is not there.
    void vanish(bool vanish) { hasVanished_ = vanish; }
    /// Called once, in the middle of the next commit.
    void onCommit(std::function<void()> call) { onCommit_ = std::move(call); }

    void commit() override;
    void rollBack() noexcept override { content_ = committed_; }

    std::optional<String> answerTo(const FrameId& id) override;
    void keepAnswer(const FrameId& id, const String& answer, Moment at) override;
    std::size_t forgetAnswers(Moment before, std::size_t keep, std::size_t atMost) override;
    void addResult(const master::Result& result) override
    {
        content_.results[++content_.lastResult] = result;
    }
    void addSubmission(const String& module, const master::Result& result, const String& rank) override;
    void addEvent(const master::PupilEvent& event) override;
    std::vector<master::KeptResult> latestResults(std::size_t atMost) override;
    std::vector<master::PupilEvent> latestEvents(std::size_t atMost) override;
    std::vector<master::Change> latestChanges(std::size_t atMost) override;
    std::vector<master::KeptResult> resultsAfter(std::int32_t number, std::size_t atMost) override;
    std::optional<master::Result> result(std::int32_t number) override;
    void removeResult(std::int32_t number) override { content_.results.erase(number); }
    std::vector<master::HandedIn> handedInSince(Moment since) override;
    std::vector<String> screenNames() override;
    void renamePupil(const String& from, const String& to) override;
    void addChange(const master::Change& change) override { content_.changes.push_back(change); }
    std::vector<String> modules() override;
    std::optional<String> scoreList(const String& module) override;
    void keepScoreList(const String& module, const String& list) override;
    void removeScoreList(const String& module) override;
    std::vector<master::ListOrigin> listOrigins() override;
    void keepListOrigin(const master::ListOrigin& origin) override;
    std::vector<std::pair<String, String>> settings() override;
    void keepSetting(const String& name, const std::optional<String>& value) override;
    String app() override { return content_.app; }
    void keepApp(const String& app) override { content_.app = app; }
    std::vector<master::LogOn> logOns() override;
    void keepLogOn(const master::LogOn& logOn) override { content_.logOns[logOn.client] = logOn; }
    void forgetLogOn(std::uint64_t client) override { content_.logOns.erase(client); }
    void forgetLogOns(Moment before) override;

private:
    Content committed_;
    Content content_;
    int commits_ = 0;
    std::size_t resultsBeforeFirstEvent_ = 0;
    bool failCommits_ = false;
    bool failEvents_ = false;
    bool hasVanished_ = false;
    std::function<void()> onCommit_;
};

} // namespace phial::test
