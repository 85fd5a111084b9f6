#include "FreshProgram.h"
#include "qt/base/QtMachine.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(QLatin1String(phial::qt::TellLanguage))) {
        std::printf("%d\n", static_cast<int>(phial::qt::QtMachine().UserLanguage()));
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
