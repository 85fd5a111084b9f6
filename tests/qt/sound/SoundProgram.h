#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

#include <string>

namespace phial::test
{

/// A program that plays, beside the test, and tells in lines how it goes.
class SoundProgram
{
public:
    /// Starts one of the programs that lie beside the test's.
    SoundProgram(const char* name, const QProcessEnvironment& environment, const QStringList& arguments);
    ~SoundProgram();

    /// Whether it comes to tell this.
    bool hasTold(const QByteArray& what);
    /// Its answer to an order: the number in the next line; below 0 for none.
    double ask(const QByteArray& order);
    /// Gives an order that has no answer, or one for later: the number that `answer` waits for.
    void tell(const QByteArray& order);
    double answer();

    /// Whether it comes to end as it should.
    bool ends();
    /// What it has written to the error stream, and was not asked for yet, in one line; without what the
    /// toolkit says of windows that nobody sees.
    std::string complaints();
    /// All that it has told, when it has ended as it should and without a word on the error stream.
    std::string toldToTheEnd();

private:
    bool hearMore();

    QProcess process_;
    QByteArray told_;
};

} // namespace phial::test
