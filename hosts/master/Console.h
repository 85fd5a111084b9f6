#pragma once

#include "core/FileSystem.h"
#include "core/String.h"
#include "master/Classroom.h"
#include "master/MasterStore.h"

#include <iosfwd>
#include <span>

namespace phial::master
{

/// The teacher's commands, one a line, each answered on the output in the language in force. Words are told
/// apart by blanks and read without regard to case; `help` lists them. Nothing is raised: a command that
/// fails says why.
class Console
{
public:
    enum class Outcome { Done, Failed, Quit };

    /// All must outlive the object.
    Console(Classroom& classroom, MasterStore& store, FileSystem& files, std::ostream& output);

    /// Carries out one line; a blank one does nothing.
    Outcome run(StringView line);

private:
    struct Command;
    static std::span<const Command> commands();

    Outcome help(StringView arguments);
    Outcome pupils(StringView arguments);
    Outcome app(StringView arguments);
    Outcome set(StringView arguments);
    Outcome results(StringView arguments);
    Outcome highscore(StringView arguments);
    Outcome reset(StringView arguments);
    Outcome events(StringView arguments);
    Outcome exportResults(StringView arguments);
    Outcome quit(StringView arguments);

    void showSettings();
    void showModules();
    void tell(StringView german, StringView english, const Variant::Array& values = {});
    Outcome refuse(StringView german, StringView english, const Variant::Array& values = {});

    Classroom& classroom_;
    MasterStore& store_;
    FileSystem& files_;
    std::ostream& output_;
};

} // namespace phial::master
