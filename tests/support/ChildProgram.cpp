#include "support/ChildProgram.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace phial::test
{

namespace
{

/// A pipe whose ends no other program started by this one inherits.
struct Pipe {
    Pipe()
    {
        std::array<int, 2> ends = {-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC) == 0) {
            reading = ends[0];
            writing = ends[1];
        }
    }

    int reading = -1;
    int writing = -1;
};

} // namespace

ChildProgram::ChildProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments)
{
    std::vector<std::string> words = {program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);

    const Pipe toChild;
    const Pipe fromChild;
    posix_spawn_file_actions_t actions = {};
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, toChild.reading, STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, fromChild.writing, STDOUT_FILENO);
    pid_t process = -1;
    if (::posix_spawn(&process, program.c_str(), &actions, nullptr, pointers.data(), environ) == 0) {
        process_ = process;
    }
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(toChild.reading);
    ::close(fromChild.writing);
    input_ = toChild.writing;
    output_ = fromChild.reading;
}

ChildProgram::~ChildProgram()
{
    kill();
    ::close(output_);
}

std::string ChildProgram::readLine()
{
    std::string line;
    char sign = 0;
    while (::read(output_, &sign, 1) == 1 && sign != '\n') {
        line += sign;
    }
    return line;
}

void ChildProgram::kill()
{
    if (process_ > 0) {
        ::kill(static_cast<pid_t>(process_), SIGKILL);
    }
    finish();
}

int ChildProgram::finish()
{
    if (input_ >= 0) {
        ::close(input_);
        input_ = -1;
    }
    if (process_ <= 0) {
        return -1;
    }
    int status = 0;
    ::waitpid(static_cast<pid_t>(process_), &status, 0);
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace phial::test
