#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace phial::test
{

/// A program that runs beside the test and talks with it in lines. It is killed with the object.
class ChildProgram
{
public:
    /// Starts it; the test fails in `readLine` when it cannot be started.
    ChildProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments);
    ~ChildProgram();
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;

    /// Waits for the next line that it writes, and gives it without its end; empty when it has ended.
    std::string readLine();
    /// Closes its input, which the programs of the tests take as the wish to end, and waits for its end.
    /// Gives its exit code; -1 when it was killed.
    int finish();
    /// Ends it where it stands, as a power switch would, and waits for its end.
    void kill();

private:
    std::int64_t process_ = -1;
    int input_ = -1;
    int output_ = -1;
};

} // namespace phial::test
