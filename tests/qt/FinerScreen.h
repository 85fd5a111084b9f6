#pragma once

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

namespace phial::qt
{

inline constexpr auto ScaleVariable = "QT_SCALE_FACTOR";

/// Whether this is a run on a finer screen already.
inline bool isOnFinerScreen()
{
    return qEnvironmentVariableIsSet(ScaleVariable);
}

/// Runs these tests of the program once more, on a screen of which each point has so many pixels.
inline testing::AssertionResult passOnFinerScreen(const char* tests, const char* pixels)
{
    constexpr int Patience = 120000; // milliseconds
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(ScaleVariable), QLatin1String(pixels));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_filter=") + QLatin1String(tests)});
    const bool hasEnded = program.waitForFinished(Patience);
    if (hasEnded && program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << program.readAllStandardOutput().toStdString();
}

} // namespace phial::qt
