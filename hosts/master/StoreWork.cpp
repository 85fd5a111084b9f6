#include "master/StoreWork.h"

#include "core/RuntimeError.h"

#include <exception>

namespace phial::master
{

void StoreUnit::carryOut(ClassBook& book) noexcept
{
    bool isCommitting = false;
    try {
        book.takeUp();
        for (const auto& job : jobs_) {
            doJob(*job, book);
        }
        State expected = State::Open;
        if (!state_.compare_exchange_strong(expected, State::Committing)) {
            book.undo();
            return;
        }
        isCommitting = true;
        book.commit();
        newRoomState_ = book.newRoomState();
        return;
    } catch (const StoreError& error) {
        trouble_ = StoreTrouble{error.reason(), error.what()};
    } catch (const std::exception& error) {
        trouble_ = StoreTrouble{StoreError::Reason::Database, error.what()};
    }
    for (const auto& job : jobs_) {
        job->isUncertain = job->isUncertain || isCommitting;
    }
    book.undo();
}

bool StoreUnit::callOff()
{
    State expected = State::Open;
    return state_.compare_exchange_strong(expected, State::CalledOff) || expected == State::CalledOff;
}

void StoreUnit::doJob(StoreJob& job, ClassBook& book)
{
    job.notices.clear();
    if (job.once) {
        job.answer = book.answerTo(*job.once);
        if (job.answer) {
            return;
        }
    }
    job.isUncertain = false; // it has not been done, or the store would know its answer
    job.answer = job.work(book, job.notices);
    if (job.once && job.answer) {
        book.keepAnswer(*job.once, *job.answer, job.at);
    }
}

} // namespace phial::master
