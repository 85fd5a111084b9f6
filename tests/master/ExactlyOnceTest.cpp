// What pupils were told is stored stays stored, and once, however often the master is killed.

#include "MasterProcess.h"
#include "StoreSamples.h"
#include "master/SqlConnection.h"
#include "support/AppSession.h"

#include <QSqlQuery>
#include <QThread>

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <random>
#include <vector>

using namespace phial;
using namespace phial::master;
using phial::test::MasterProcess;

namespace
{

constexpr int Pupils = 40;
constexpr int Submissions = 50;
constexpr int Kills = 10;
constexpr int Patience = 60000; // milliseconds

/// A pupil's name and an exercise.
using Submission = std::pair<std::string, std::string>;

class ExactlyOnceTest : public phial::test::AppSession
{
protected:
    bool startMaster()
    {
        return master_.start({QStringLiteral("--database"), QString::fromStdString(place_)});
    }

    void startPupils()
    {
        for (int number = 1; number <= Pupils; ++number) {
            auto pupil = std::make_unique<QProcess>();
            pupil->setProcessEnvironment(MasterProcess::environmentIn(folder));
            pupil->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            pupil->start(QStringLiteral(PHIAL_PUPIL),
                         {QString::number(master_.port()), QStringLiteral("pupil%1").arg(number),
                          QString::number(Submissions)});
            pupils_.push_back(std::move(pupil));
        }
    }

    /// Kills the master again and again, from the first answer on.
    void killOftenWhilePupilsWork()
    {
        ASSERT_TRUE(pupils_.front()->waitForReadyRead(Patience));
        std::minstd_rand random(std::random_device{}());
        std::uniform_int_distribution<unsigned long> milliseconds(100, 400);
        for (int kill = 0; kill < Kills; ++kill) {
            QThread::msleep(milliseconds(random)); // the chance of the moment is the point
            master_.kill();
            ASSERT_TRUE(startMaster()) << master_.output();
        }
    }

    /// The lines of each pupil, as exercise and answer.
    std::map<Submission, std::string> confirmed()
    {
        std::map<Submission, std::string> answers;
        for (std::size_t at = 0; at < pupils_.size(); ++at) {
            QProcess& pupil = *pupils_[at];
            EXPECT_TRUE(pupil.state() == QProcess::NotRunning || pupil.waitForFinished(Patience));
            EXPECT_EQ(pupil.exitCode(), 0);
            for (const QByteArray& line : pupil.readAllStandardOutput().trimmed().split('\n')) {
                const QList<QByteArray> words = line.split(' ');
                answers[{"pupil" + std::to_string(at + 1), words.front().toStdString()}] =
                    words.back().toStdString();
            }
        }
        return answers;
    }

    /// How often each submission is stored, and the answer that is stored with it.
    std::map<Submission, std::vector<std::string>> stored() const
    {
        SqlConnection database(*parseStorePlace(place_), StoreUse::Look);
        std::map<Submission, std::vector<std::string>> answers;
        const auto take = [&](const QSqlQuery& row) {
            const auto text = [&](int column) { return row.value(column).toString().toStdString(); };
            answers[{text(0), text(1)}].push_back(text(2));
        };
        database.visit("SELECT screen_name, exercise, answer FROM submissions", {}, take);
        database.visit("SELECT screen_name, exercise, 'OK' FROM results", {}, take);
        return answers;
    }

    const std::string place_ = phial::test::newStorePlace();
    MasterProcess master_{folder};
    std::vector<std::unique_ptr<QProcess>> pupils_;
};

TEST_F(ExactlyOnceTest, WhatWasAnsweredIsStoredOnceThroughTenKills)
{
    ASSERT_TRUE(startMaster()) << master_.output();
    startPupils();
    killOftenWhilePupilsWork();
    const auto answers = confirmed();
    EXPECT_EQ(answers.size(), std::size_t{Pupils} * Submissions);
    master_.kill();

    const auto kept = stored();
    EXPECT_EQ(kept.size(), answers.size());
    for (const auto& [submission, answer] : answers) {
        const auto entry = kept.find(submission);
        ASSERT_NE(entry, kept.end()) << submission.first << " lost " << submission.second;
        EXPECT_EQ(entry->second, std::vector{answer}) << submission.first << ' ' << submission.second;
    }
}

} // namespace
