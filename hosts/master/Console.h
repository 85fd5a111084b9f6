#pragma once

#include "core/FileSystem.h"
#include "core/String.h"
#include "core/Variant.h"
#include "master/AppCatalogue.h"
#include "master/Classroom.h"
#include "master/ResultExport.h"
#include "master/StoreDesk.h"

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <span>

namespace phial::master
{

/// The teacher's commands, one a line, each answered on the output in the language in force. Words are told
/// apart by blanks and read without regard to case; `help` lists them. Nothing is raised: a command that
/// fails says why.
///
/// What needs the store is answered when the store has answered, or has not for too long. Commands are begun
/// one after the other, each when the one before has finished.
class Console
{
public:
    enum class Outcome { Done, Failed, Quit };
    using Finish = std::function<void(Outcome)>;

    /// All must outlive the object, and what it has begun.
    Console(Classroom& classroom, StoreDesk& desk, const AppCatalogue& apps, const Clock& clock,
            FileSystem& files, std::ostream& output);

    /// Carries out one line; a blank one does nothing. `finish` is called at its end, which may be now.
    void run(StringView line, Finish finish);

private:
    struct Command;
    static std::span<const Command> commands();

    // A command either returns its outcome, or calls `finish` later and returns nothing.
    using Answer = std::optional<Outcome>;
    Answer help(StringView arguments, const Finish& finish);
    Answer pupils(StringView arguments, const Finish& finish);
    Answer app(StringView arguments, const Finish& finish);
    Answer set(StringView arguments, const Finish& finish);
    Answer results(StringView arguments, const Finish& finish);
    Answer missing(const Finish& finish);
    Answer events(StringView arguments, const Finish& finish);
    Answer highscore(StringView arguments, const Finish& finish);
    Answer reset(StringView arguments, const Finish& finish);
    Answer remove(StringView arguments, const Finish& finish);
    Answer rename(StringView arguments, const Finish& finish);
    Answer changes(StringView arguments, const Finish& finish);
    Answer exportResults(StringView arguments, const Finish& finish);
    Answer quit(StringView arguments, const Finish& finish);

    template <typename Work, typename Then>
    Answer ask(Work work, Then then, const Finish& finish);
    Outcome tellAboutExport(ResultExport::Outcome outcome, const std::filesystem::path& file,
                            const JobOutcome& lastJob);
    Outcome tellAboutSetting(MasterSettings::Problem problem, const String& name);
    void warnOfUnknownApp(const String& chosen);
    Outcome tellApp();
    Outcome storeTroubles(const JobOutcome& outcome);
    void tell(StringView german, StringView english, const Variant::Array& values = {});
    Outcome refuse(StringView german, StringView english, const Variant::Array& values = {});

    Classroom& classroom_;
    StoreDesk& desk_;
    const AppCatalogue& apps_;
    const Clock& clock_;
    FileSystem& files_;
    std::ostream& output_;
};

} // namespace phial::master
