#pragma once

#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QStringList>

#include <cstdint>
#include <string>

namespace phial::test
{

/// The real program, serving from a database in a folder. It ends with the object.
class MasterProcess
{
public:
    /// Whatever the program finds out about its user lies in the folder too.
    explicit MasterProcess(const TemporaryFolder& folder);
    ~MasterProcess();
    MasterProcess(const MasterProcess&) = delete;
    MasterProcess& operator=(const MasterProcess&) = delete;

    /// Starts it and waits until it serves; false when it does not. It keeps the port over further starts.
    bool start(const QStringList& more = {});
    /// Ends it as a power failure would.
    void kill();
    /// Asks it to end by a signal and gives its exit status.
    int end(int signal);

    std::uint16_t port() const { return port_; }
    /// What it has written since its start.
    std::string output();

    /// Runs the program to its end, and gives its exit status.
    int run(const QStringList& arguments, const QByteArray& input = {});
    /// What that run has written, the error stream included.
    const std::string& ranOutput() const { return ranOutput_; }

    /// The environment that keeps a program within the folder.
    static QProcessEnvironment environmentIn(const TemporaryFolder& folder);

private:
    QString folder_;
    QProcessEnvironment environment_;
    QProcess process_;
    std::string ranOutput_;
    std::uint16_t port_ = 0;
};

} // namespace phial::test
