#include "qt/base/SettingsFile.h"

#include "qt/Eventually.h"
#include "qt/base/QtSettingsStore.h"
#include "support/Places.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr StringView SoundPath = u"Software\\QV Brunnhof\\Phial\\Config\\Sound";
constexpr StringView TracePath = u"Software\\QV Brunnhof\\Phial\\DebugPos";
constexpr StringView LanguagePath = u"Software\\QV Brunnhof\\Phial\\Language";

class SettingsFileTest : public testing::Test
{
protected:
    QString file(const QString& name = QStringLiteral("settings.ini")) const
    {
        return folder_.filePath(name);
    }

    QByteArray bytes() const
    {
        QFile stored(file());
        EXPECT_TRUE(stored.open(QIODevice::ReadOnly));
        return stored.readAll();
    }

    void put(const QByteArray& content) const
    {
        QFile stored(file());
        ASSERT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write(content);
    }

    QTemporaryDir folder_;
};

TEST_F(SettingsFileTest, KeepsEveryTypeBeyondItsOwnEnd)
{
    const Variant list(Variant::Array{u"Anna", u"", u"a|b, \"c\"; Größe\r\n"});
    {
        SettingsFile settings(file());
        settings.write(u"A\\Text", String(u"@Grüße, \\ \0 = % \"x\" ; ", 22));
        settings.write(u"A\\Number", -2147483647 - 1);
        settings.write(u"A\\Boolean", true);
        settings.write(u"A\\List", list);
        settings.write(u"A\\Nothing", Variant(Variant::Array{}));
        settings.write(u"A\\Half", String(1, char16_t{0xD800}));
    }
    const SettingsFile settings(file());
    EXPECT_EQ(settings.read(u"A\\Text"), Variant(String(u"@Grüße, \\ \0 = % \"x\" ; ", 22)));
    EXPECT_EQ(settings.read(u"A\\Number"), Variant(-2147483647 - 1));
    EXPECT_EQ(settings.read(u"A\\Boolean"), Variant(true));
    EXPECT_EQ(settings.read(u"A\\List"), list);
    EXPECT_EQ(settings.read(u"A\\Nothing"), Variant(Variant::Array{}));
    EXPECT_EQ(settings.read(u"A\\Half"), Variant(String(1, char16_t{0xD800})));
}

TEST_F(SettingsFileTest, TracesReachTheFileWithTheNextChange)
{
    SettingsFile settings(file());
    for (int mark = 1; mark <= 29; ++mark) {
        settings.writeTrace(TracePath, u"PLAYCATEGORY-" + Variant(mark).toText());
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(settings.read(TracePath), Variant(u"PLAYCATEGORY-29"));
    EXPECT_FALSE(QFile::exists(file()));
    settings.write(SoundPath, false);
    QCoreApplication::processEvents();
    EXPECT_TRUE(bytes().contains("PLAYCATEGORY-29"));
    settings.writeTrace(TracePath, u"PLAYCATEGORY-30");
    QCoreApplication::processEvents();
    EXPECT_TRUE(bytes().contains("PLAYCATEGORY-29"));
    settings.flush();
    EXPECT_TRUE(bytes().contains("PLAYCATEGORY-30"));
}

TEST_F(SettingsFileTest, TracesReachTheFileAtTheEnd)
{
    {
        SettingsFile settings(file());
        settings.writeTrace(TracePath, u"PLAYCATEGORY-1");
        settings.writeTrace({}, u"nowhere");
        settings.writeTrace(LanguagePath, String(MaxSettingLength, u'x'));
    }
    EXPECT_TRUE(bytes().contains("PLAYCATEGORY-1"));
    EXPECT_FALSE(bytes().contains("nowhere"));
    EXPECT_EQ(SettingsFile(file()).read(LanguagePath), std::nullopt);
}

TEST_F(SettingsFileTest, TracesReachTheFileBehindTheirDelay)
{
    SettingsFile settings(file(), std::chrono::milliseconds(1));
    settings.writeTrace(TracePath, u"PLAYCATEGORY-1");
    EXPECT_TRUE(test::eventually([this] { return QFile::exists(file()); }));
    EXPECT_TRUE(bytes().contains("PLAYCATEGORY-1"));
}

TEST_F(SettingsFileTest, AnEntryReplacesItsTrace)
{
    SettingsFile settings(file());
    settings.writeTrace(TracePath, u"trace");
    settings.write(TracePath, u"entry");
    EXPECT_EQ(settings.read(TracePath), Variant(u"entry"));
    settings.flush();
    EXPECT_FALSE(bytes().contains("trace"));
}

TEST_F(SettingsFileTest, DisregardsTheCaseOfAPath)
{
    SettingsFile settings(file());
    settings.write(SoundPath, false);
    EXPECT_EQ(settings.read(upperCase(SoundPath)), Variant(false));
}

TEST_F(SettingsFileTest, TwoProgramsLoseNoValue)
{
    // The second program is played by hand, since two stores of one process share what they have read.
    put("[software]\nold=text:kept\n");
    SettingsFile first(file());
    EXPECT_EQ(first.read(u"Software\\Old"), Variant(u"kept"));

    put("[software]\nold=text:kept\nsecond=number:2\n");
    first.write(u"Software\\First", 1);
    first.flush();

    const QSettings disk(file(), QSettings::IniFormat);
    EXPECT_EQ(disk.value("software/old").toString(), "text:kept");
    EXPECT_EQ(disk.value("software/second").toString(), "number:2");
    EXPECT_EQ(disk.value("software/first").toString(), "number:1");
    EXPECT_EQ(first.read(u"Software\\Second"), Variant(2));
}

TEST_F(SettingsFileTest, AnUnchangedValueIsNotWritten)
{
    {
        SettingsFile settings(file());
        settings.write(SoundPath, true);
    }
    const QDateTime longAgo(QDate(2001, 1, 1), QTime(12, 0));
    {
        QFile stored(file());
        ASSERT_TRUE(stored.open(QIODevice::ReadWrite));
        ASSERT_TRUE(stored.setFileTime(longAgo, QFile::FileModificationTime));
    }
    {
        SettingsFile settings(file());
        settings.write(SoundPath, true);
    }
    EXPECT_EQ(QFileInfo(file()).lastModified(), longAgo);
}

TEST_F(SettingsFileTest, ADamagedFileIsMovedAsideAndNotOverwritten)
{
    const QByteArray damaged = "[software]\nthis line is no entry\n";
    put(damaged);
    {
        SettingsFile settings(file());
        EXPECT_EQ(settings.read(SoundPath), std::nullopt);
        settings.write(SoundPath, true);
    }
    QFile aside(file(QStringLiteral("settings.ini.damaged-1")));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), damaged);
    EXPECT_EQ(SettingsFile(file()).read(SoundPath), Variant(true));
}

TEST_F(SettingsFileTest, EveryDamagedFileKeepsItsPlace)
{
    for (const char* damage : {"first\n", "second\n"}) {
        put(damage);
        const SettingsFile opened{file()};
    }
    EXPECT_TRUE(QFile::exists(file(QStringLiteral("settings.ini.damaged-1"))));
    EXPECT_TRUE(QFile::exists(file(QStringLiteral("settings.ini.damaged-2"))));
}

TEST_F(SettingsFileTest, AFileCutShortIsDamagedWhereverTheCutIsWithinALine)
{
    put("[software]\nlanguage=text:Deutsch");
    EXPECT_EQ(SettingsFile(file()).read(u"Software\\Language"), std::nullopt);
    EXPECT_TRUE(QFile::exists(file(QStringLiteral("settings.ini.damaged-1"))));
}

TEST_F(SettingsFileTest, AnEntryOfNoKnownFormCountsAsMissing)
{
    put("[a]\nplain=Deutsch\nlist=text:a, text:b\nnumber=number:99999999999\n");
    const SettingsFile settings(file());
    EXPECT_EQ(settings.read(u"a\\plain"), std::nullopt);
    EXPECT_EQ(settings.read(u"a\\list"), std::nullopt);
    EXPECT_EQ(settings.read(u"a\\number"), std::nullopt);
}

TEST_F(SettingsFileTest, AStoreThatCannotBeWrittenLastsAsLongAsTheProgram)
{
    // A file where the folder should be: nobody, not even the superuser, can write below it.
    put("");
    SettingsFile settings(file() + QStringLiteral("/below/settings.ini"));
    settings.write(LanguagePath, Variant(u"Deutsch"));
    settings.flush();
    EXPECT_EQ(settings.read(LanguagePath), Variant(u"Deutsch"));
}

TEST_F(SettingsFileTest, ReadsEveryStoredHostileFileWithoutHarm)
{
    QDir corpus(test::corpusFolder() / "settings_file");
    const QStringList names = corpus.entryList(QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        QFile::remove(file());
        ASSERT_TRUE(QFile::copy(corpus.filePath(name), file()));
        SettingsFile settings(file());
        settings.read(SoundPath);
        settings.write(SoundPath, true);
        settings.flush();
        EXPECT_EQ(SettingsFile(file()).read(SoundPath), Variant(true)) << name.toStdString();
    }
}

TEST_F(SettingsFileTest, TheHivesAreTwoFiles)
{
    QtSettingsStore store(file(QStringLiteral("user.ini")), file(QStringLiteral("machine.ini")));
    store.write(SettingsHive::CurrentUser, LanguagePath, Variant(u"Deutsch"));
    store.write(SettingsHive::LocalMachine, LanguagePath, Variant(u"English"));
    store.flush();
    EXPECT_EQ(store.read(SettingsHive::CurrentUser, LanguagePath), Variant(u"Deutsch"));
    EXPECT_EQ(store.read(SettingsHive::LocalMachine, LanguagePath), Variant(u"English"));
    EXPECT_TRUE(QFile::exists(file(QStringLiteral("user.ini"))));
    EXPECT_TRUE(QFile::exists(file(QStringLiteral("machine.ini"))));
}

} // namespace
