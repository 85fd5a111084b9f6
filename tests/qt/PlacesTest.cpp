#include "FreshProgram.h"
#include "ScopedVariable.h"
#include "core/Locale.h"
#include "qt/base/QtEnvironment.h"
#include "qt/base/QtFolders.h"
#include "qt/base/QtMachine.h"

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

using namespace phial;
using namespace phial::qt;

namespace
{

TEST(QtFolders, TheEnvironmentHasTheFirstWord)
{
    const ScopedVariable programs("PROGRAMFILES", "/srv/programs");
    const ScopedVariable profile("USERPROFILE", "/home/anna/");
    const ScopedVariable appData("APPDATA", "/home/anna/data");
    const ScopedVariable common("PROGRAMDATA", "/srv/common");
    const ScopedVariable temp("TEMP", "/srv/temp");

    const QtFolders folders;
    EXPECT_EQ(folders.ProgramFiles(), u"\\srv\\programs\\");
    EXPECT_EQ(folders.UserDocuments(), u"\\home\\anna\\Documents\\");
    EXPECT_EQ(folders.UserAppData(), u"\\home\\anna\\data\\");
    EXPECT_EQ(folders.CommonAppData(), u"\\srv\\common\\");
    EXPECT_EQ(folders.Temp(), u"\\srv\\temp\\");
}

TEST(QtFolders, TheDesktopsFoldersStandInForWhatTheEnvironmentDoesNotSay)
{
    const ScopedVariable appData("APPDATA", {});
    const ScopedVariable home("HOME", "/home/anna");
    const ScopedVariable data("XDG_DATA_HOME", "/home/anna/.local/share");
    EXPECT_EQ(QtFolders().UserAppData(), u"\\home\\anna\\.local\\share\\");
}

TEST(QtFolders, NoFolderIsTheBareRoot)
{
    for (const char* value : {"", "/", "//", "/..", "relative"}) {
        const ScopedVariable programs("PROGRAMFILES", value);
        const ScopedVariable profile("USERPROFILE", value);
        const ScopedVariable appData("APPDATA", value);
        const ScopedVariable temp("TEMP", value);
        const ScopedVariable home("HOME", value);
        const ScopedVariable shared("PUBLIC", {});
        const QtFolders folders;
        for (const String& folder :
             {folders.ProgramFiles(), folders.UserDocuments(), folders.UserAppData(), folders.CommonAppData(),
              folders.Temp(), QtEnvironment().variable(u"PUBLIC")}) {
            EXPECT_GT(folder.size(), 1U) << value;
            EXPECT_EQ(folder.front(), u'\\') << value;
        }
    }
}

TEST(QtEnvironment, GivesFoldersAsTheSystemWritesThem)
{
    const ScopedVariable shared("PUBLIC", "/srv/Öffentlich");
    EXPECT_EQ(QtEnvironment().variable(u"PUBLIC"), u"\\srv\\Öffentlich");
}

TEST(QtEnvironment, GivesOtherValuesAsTheyAreAndNothingForWhatIsNotSet)
{
    const ScopedVariable value("PHIAL_TEST_VALUE", "a/b c");
    const ScopedVariable missing("PHIAL_TEST_MISSING", {});
    EXPECT_EQ(QtEnvironment().variable(u"PHIAL_TEST_VALUE"), u"a/b c");
    EXPECT_EQ(QtEnvironment().variable(u"PHIAL_TEST_MISSING"), u"");
}

TEST(QtEnvironment, ThePublicFolderIsNeverUnknown)
{
    const ScopedVariable shared("PUBLIC", {});
    const ScopedVariable all("ALLUSERPROFILE", {});
    EXPECT_GT(QtEnvironment().variable(u"PUBLIC").size(), 1U);
    EXPECT_GT(QtEnvironment().variable(u"ALLUSERPROFILE").size(), 1U);
}

TEST(QtMachine, KnowsTheUser)
{
    const ScopedVariable windowsName("USERNAME", {});
    const ScopedVariable name("USER", "anna");
    EXPECT_EQ(QtMachine().UserName(), u"anna");
}

/// What a program says that is started with this LANG.
int languageFor(const QString& lang)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : environment.keys()) {
        if (name.startsWith(QLatin1String("LC_")) || name == QLatin1String("LANGUAGE")) {
            environment.remove(name);
        }
    }
    environment.insert(QStringLiteral("LANG"), lang);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QLatin1String(TellLanguage)});
    EXPECT_TRUE(program.waitForFinished());
    bool said = false;
    const int language = program.readAllStandardOutput().trimmed().toInt(&said);
    EXPECT_TRUE(said);
    return language;
}

TEST(QtMachine, KnowsInWhichLanguageTheDesktopSpeaks)
{
    EXPECT_EQ(languageFor(QStringLiteral("de_AT.UTF-8")), LanguageGerman);
    EXPECT_EQ(languageFor(QStringLiteral("en_GB.UTF-8")), LanguageEnglish);
    EXPECT_EQ(languageFor(QStringLiteral("fr_FR.UTF-8")), 0);
    EXPECT_NE(languageFor({}), LanguageGerman);
}

TEST(QtMachine, AnswersOneVersionOutsideOfWindows)
{
#ifndef Q_OS_WIN
    EXPECT_EQ(QtMachine().OSVersion(), u"6.1");
#else
    EXPECT_FALSE(QtMachine().OSVersion().empty());
#endif
}

TEST(QtMachine, NeverGivesAnIdentifierTwice)
{
    QtMachine machine;
    EXPECT_NE(machine.NewUniqueID(), machine.NewUniqueID());
}

} // namespace
