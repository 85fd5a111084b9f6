#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace phial::qt
{

/// Sets a variable of the process's environment, or takes it away, for the length of a test.
class ScopedVariable
{
public:
    ScopedVariable(const char* name, const QByteArray& value)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), old_(qgetenv(name))
    {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    ~ScopedVariable() { wasSet_ ? qputenv(name_, old_) : qunsetenv(name_); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const char* name_;
    bool wasSet_;
    QByteArray old_;
};

} // namespace phial::qt
