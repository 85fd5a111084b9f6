#pragma once

#include "MemoryStore.h"
#include "master/ClassBook.h"
#include "master/Classroom.h"
#include "master/Notices.h"
#include "master/StoreDesk.h"
#include "master/StoreWork.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace phial::test
{

/// Carries units out at once, on the thread that brings them, or when a test lets it.
class InlineHand final : public master::StoreHand
{
public:
    InlineHand(MemoryStore& store, const master::AppCatalogue& apps) : store_(store), apps_(apps) {}

    /// A store that does not answer, until it goes on.
    void freeze() { isFrozen_ = true; }
    void thaw()
    {
        isFrozen_ = false;
        if (auto held = std::exchange(held_, nullptr)) {
            held();
        }
    }

    master::ClassBook& book()
    {
        if (!book_) {
            book_ = std::make_unique<master::ClassBook>(store_, apps_);
        }
        return *book_;
    }

    void begin(std::shared_ptr<master::StoreUnit> unit, std::function<void()> finished) override
    {
        const auto carryOut = [this, unit = std::move(unit), finished = std::move(finished)] {
            unit->carryOut(book());
            finished();
        };
        if (isFrozen_) {
            held_ = carryOut;
        } else {
            carryOut();
        }
    }

private:
    MemoryStore& store_;
    const master::AppCatalogue& apps_;
    std::unique_ptr<master::ClassBook> book_;
    std::function<void()> held_;
    bool isFrozen_ = false;
};

/// A classroom whose store lies in memory and answers at once. Its catalogue holds one learning app.
struct TestRoom {
    explicit TestRoom(const Clock& clock, master::StoreDesk::Limits limits = {})
        : notices(clock, [this](const String& line) { said.push_back(line); }),
          desk(hand, clock, limits, notices),
          classroom(desk, clock, notices, hand.book().room(), hand.book().logOns())
    {
    }

    MemoryStore store;
    std::vector<String> said;
    master::AppCatalogue apps{{{u"Molmasse", u"Molmassen-Trainer", {u"SALZE"}}}};
    InlineHand hand{store, apps};
    master::Notices notices;
    master::StoreDesk desk;
    master::Classroom classroom;

    /// Has something done with the class book; false when it is refused, or not done yet.
    bool change(std::function<void(master::ClassBook&)> work)
    {
        const auto isDone = std::make_shared<bool>(false);
        master::StoreJob job;
        job.work = [work = std::move(work)](master::ClassBook& book, auto&) -> master::AnswerText {
            work(book);
            return nullptr;
        };
        desk.add(
            std::move(job), 0, [isDone](const master::JobOutcome& outcome) { *isDone = outcome.isDone; },
            master::StoreDesk::Urgency::Impatient);
        desk.start();
        return *isDone;
    }
    void set(StringView name, StringView value)
    {
        change(
            [name = String(name), value = String(value)](master::ClassBook& book) { book.set(name, value); });
    }
    void chooseApp(StringView app)
    {
        change([app = String(app)](master::ClassBook& book) { book.chooseApp(app); });
    }
};

} // namespace phial::test
