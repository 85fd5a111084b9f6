#pragma once

#include "master/MasterStore.h"

#include <map>

namespace phial::test
{

/// A store in memory with transactions, which fails when a test wants it to.
class MemoryStore final : public master::MasterStore
{
public:
    /// What is kept; a transaction works on a copy.
    struct Content {
        std::map<FrameId, std::pair<Moment, String>> answers;
        std::vector<master::Result> results;
        struct Submission {
            String module;
            master::Result result;
            String rank;
        };
        std::vector<Submission> submissions;
        std::vector<master::PupilEvent> events;
        std::map<String, String> lists;
        std::map<String, String> settings;
        std::map<std::uint64_t, master::LogOn> logOns;
        String app;
    };

    /// As the last commit left it.
    const Content& committed() const { return committed_; }
    int commits() const { return commits_; }
    std::size_t resultsBeforeFirstEvent() const { return resultsBeforeFirstEvent_; }

    /// Lets commits fail from now on, or the adding of events alone.
    void failCommits(bool fail) { failCommits_ = fail; }
    void failEvents(bool fail) { failEvents_ = fail; }

    void commit() override;
    void rollBack() noexcept override { content_ = committed_; }

    std::optional<String> answerTo(const FrameId& id) override;
    void keepAnswer(const FrameId& id, const String& answer, Moment at) override;
    void forgetAnswers(Moment before, std::size_t keep) override;
    void addResult(const master::Result& result) override { content_.results.push_back(result); }
    void addSubmission(const String& module, const master::Result& result, const String& rank) override;
    void addEvent(const master::PupilEvent& event) override;
    std::vector<master::Result> latestResults(std::size_t atMost) override;
    std::vector<master::PupilEvent> latestEvents(std::size_t atMost) override;
    void visitResults(const std::function<void(const master::Result&)>& visit) override;
    std::vector<String> modules() override;
    std::optional<String> scoreList(const String& module) override;
    void keepScoreList(const String& module, const String& list) override;
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
};

} // namespace phial::test
