#include "SoundProgram.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace phial::test
{

namespace
{

constexpr int ProgramPatience = 30'000; // milliseconds

} // namespace

SoundProgram::SoundProgram(const char* name, const QProcessEnvironment& environment,
                           const QStringList& arguments)
{
    process_.setProcessEnvironment(environment);
    process_.start(QCoreApplication::applicationDirPath() + '/' + name, arguments);
}

SoundProgram::~SoundProgram()
{
    process_.kill();
    process_.waitForFinished();
}

bool SoundProgram::hearMore()
{
    const bool more = process_.bytesAvailable() > 0 || process_.waitForReadyRead(ProgramPatience);
    told_ += process_.readAllStandardOutput();
    return more;
}

bool SoundProgram::hasTold(const QByteArray& what)
{
    while (!told_.contains(what) && hearMore()) {
    }
    return told_.contains(what);
}

double SoundProgram::ask(const QByteArray& order)
{
    tell(order);
    return answer();
}

double SoundProgram::answer()
{
    bool isNumber = false;
    const double number = hasTold("\n") ? told_.trimmed().toDouble(&isNumber) : 0;
    return isNumber ? number : -1;
}

void SoundProgram::tell(const QByteArray& order)
{
    told_.clear();
    process_.write(order + '\n');
    process_.waitForBytesWritten(ProgramPatience);
}

bool SoundProgram::ends()
{
    return process_.waitForFinished(ProgramPatience) && process_.exitStatus() == QProcess::NormalExit &&
           process_.exitCode() == 0;
}

std::string SoundProgram::complaints()
{
    std::string rest;
    for (const QByteArray& line : process_.readAllStandardError().split('\n')) {
        if (!line.startsWith("This plugin does not support")) { // a window without a display
            rest += line.toStdString();
        }
    }
    return rest;
}

std::string SoundProgram::toldToTheEnd()
{
    if (!ends()) {
        return "it does not end as it should";
    }
    EXPECT_EQ(complaints(), "");
    return (told_ + process_.readAllStandardOutput()).toStdString();
}

} // namespace phial::test
