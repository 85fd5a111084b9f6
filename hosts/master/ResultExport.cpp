#include "master/ResultExport.h"

#include "core/AtomicFile.h"
#include "core/RuntimeError.h"
#include "master/CsvExport.h"

#include <memory>
#include <utility>
#include <vector>

namespace phial::master
{

namespace
{

constexpr std::size_t Piece = 5000;

} // namespace

ResultExport::ResultExport(StoreDesk& desk, FileSystem& files, std::filesystem::path file, Finish finish)
    : desk_(desk), files_(files), file_(std::move(file)), finish_(std::move(finish)), csv_(csvHead())
{
}

void ResultExport::begin(StoreDesk& desk, FileSystem& files, const std::filesystem::path& file, Finish finish)
{
    goOn(std::shared_ptr<ResultExport>(new ResultExport(desk, files, file, std::move(finish))));
}

void ResultExport::goOn(const std::shared_ptr<ResultExport>& self)
{
    const auto piece = std::make_shared<std::vector<KeptResult>>();
    StoreJob job;
    job.work = [piece, last = self->last_](ClassBook& book, auto&) -> AnswerText {
        *piece = book.resultsAfter(last, Piece);
        return nullptr;
    };
    const auto done = [self, piece](const JobOutcome& outcome) {
        if (!outcome.isDone) {
            self->finish_(Outcome::Refused, outcome);
            return;
        }
        for (const KeptResult& kept : *piece) {
            self->csv_ += csvLine(kept.result);
            self->last_ = kept.number;
        }
        if (piece->size() < Piece) {
            self->write();
        } else {
            goOn(self);
        }
    };
    self->desk_.add(std::move(job), 0, done, StoreDesk::Urgency::Impatient);
    self->desk_.start();
}

void ResultExport::write()
{
    const bool isWritten = ignoringErrors([this] { replaceFile(files_, file_, csv_); });
    finish_(isWritten ? Outcome::Written : Outcome::NotWritable, {});
}

} // namespace phial::master
