#include "MediaTest.h"
#include "core/CoreFiles.h"

#include <chrono>
#include <gmock/gmock-more-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SoundCache : public MediaTest
{
protected:
    static FileStamp stamp(const String& file) { return coreRoot().CoreFiles().Changed(file); }
    static void setTime(const String& file, std::int64_t time)
    {
        NativeFileSystem().setTime(nativePath(file), time);
    }
    std::string bytes(const String& file) { return NativeFileSystem().read(nativePath(file)); }
    void put(const String& file, const std::string& content)
    {
        NativeFileSystem().write(nativePath(file), content);
    }
    /// Another run with the same files.
    void restart()
    {
        session.reset();
        session.emplace(outside.platform());
        start();
    }
    int played(StringView name)
    {
        const std::size_t before = marks().size();
        media().PLAYWAVE(name, true);
        return marks().size() > before ? marks().back() : 0;
    }
};

TEST_F(SoundCache, CopiesASoundBelowItsFolderWithItsTime)
{
    const String file = sound(u"wrong\\a.wav", 0.5, 5);
    media().CACHE(file);
    const String copy = cached(u"WRONG\\A.WAV");
    ASSERT_TRUE(fileExists(copy));
    EXPECT_EQ(bytes(copy), bytes(file));
    EXPECT_EQ(stamp(copy), stamp(file));
}

TEST_F(SoundCache, PlaysTheCopy)
{
    const String file = sound(u"a.wav", 0.5, 5);
    media().CACHE(file);
    put(file, "no sound any more");
    EXPECT_EQ(played(file), 5);
}

TEST_F(SoundCache, LooksInFourPlacesInTheirOrder)
{
    const String own = appSound(u"own.wav", 1);
    EXPECT_EQ(played(u"own"), 1);
    sound(u"common.wav", 0.5, 2);
    appSound(u"common.wav", 3);
    EXPECT_EQ(played(u"common.wav"), 2);
    makeFolder(u"here");
    goTo(path(u"here"));
    folder.write("here/both.wav", test::markedWave(0.5, 4));
    sound(u"both.wav", 0.5, 5);
    EXPECT_EQ(played(u"both"), 4);
    EXPECT_TRUE(fileExists(cached(u"OWN.WAV")));
}

TEST_F(SoundCache, FindsASoundOfACategoryByItsRelativeName)
{
    sound(u"click\\Tick.wav", 0.5, 6);
    EXPECT_EQ(played(u"CLICK\\tick"), 6);
    EXPECT_EQ(played(u"Tick"), 0); // sounds of categories are not searched
}

TEST_F(SoundCache, TheCommonSoundsAreListedOnce)
{
    sound(u"early.wav", 0.5, 6);
    sound(u"click\\deep.wav", 0.5, 8);
    EXPECT_EQ(played(u"none"), 0); // makes the list
    sound(u"late.wav", 0.5, 7);
    const String folderOfSounds = QVAPP()->URL()->RESOURCESFX();
    QVAPP()->URL()->RESOURCESFX(path(u"elsewhere\\"));
    EXPECT_EQ(played(u"Early"), 6);
    EXPECT_EQ(played(u"late"), 0);
    EXPECT_EQ(played(u"deep"), 0);
    QVAPP()->URL()->RESOURCESFX(folderOfSounds);
    EXPECT_EQ(played(u"late"), 7);
}

TEST_F(SoundCache, OwnSoundsAreListedEachTime)
{
    EXPECT_EQ(played(u"late"), 0);
    appSound(u"late.wav", 8);
    EXPECT_EQ(played(u"LATE"), 8);
}

TEST_F(SoundCache, ANameWithAnotherExtensionStaysAsItIs)
{
    sound(u"a.b.wav", 0.5, 9);
    EXPECT_EQ(played(u"a.b"), 0);
    EXPECT_EQ(played(u"a.b.wav"), 9);
}

TEST_F(SoundCache, AKnownNameIsNotLookedUpOnDisk)
{
    sound(u"a.wav", 0.5, 5);
    media().CACHE(u"a");
    const int steps = outside.files().steps();
    std::filesystem::remove_all(folder.native() / "installed");
    std::filesystem::remove_all(nativePath(QVAPP()->URL()->RESOURCECACHE()));
    media().CACHE(u"A");
    EXPECT_EQ(outside.files().steps(), steps);
    // The name without extension is another one than the name with it.
    media().CACHE(u"a.wav");
    EXPECT_GT(outside.files().steps(), steps);
}

TEST_F(SoundCache, WhatIsNotFoundIsLookedForAgain)
{
    EXPECT_EQ(played(u"a"), 0);
    sound(u"a.wav", 0.5, 5);
    EXPECT_EQ(played(u"a"), 5);
}

TEST_F(SoundCache, AnotherRunTakesTheCopyThatIsThere)
{
    const String file = sound(u"a.wav", 0.5, 5);
    media().CACHE(file);
    const String copy = cached(u"A.WAV");
    const std::int64_t time = stamp(copy).time;
    std::string marked = bytes(copy);
    marked.back() = 'x';
    put(copy, marked);
    setTime(copy, time);
    restart();
    media().CACHE(file);
    EXPECT_EQ(bytes(copy), marked);
}

TEST_F(SoundCache, ACopyIsRenewedWhenTimeOrSizeDiffers)
{
    const String file = sound(u"a.wav", 0.5, 5);
    media().CACHE(file);
    const std::int64_t time = stamp(file).time;
    sound(u"a.wav", 0.5, 6);
    setTime(file, time + 1); // the finest step there is
    restart();
    EXPECT_EQ(played(file), 6);
    sound(u"a.wav", 0.6, 7);
    setTime(file, time + 1);
    restart();
    EXPECT_EQ(played(file), 7);
    EXPECT_EQ(stamp(cached(u"A.WAV")), stamp(file));
}

TEST_F(SoundCache, ACopyWithACoarserTimeIsStillACopy)
{
    using Period = std::filesystem::file_time_type::period;
    constexpr std::int64_t Second = Period::den / Period::num;
    const String file = sound(u"a.wav", 0.5, 5);
    const String copy = cached(u"A.WAV");
    for (const std::int64_t unit : {2 * Second, Second, Second / 100, Second / 1000}) {
        const std::int64_t stored = std::int64_t{700000001} * unit;
        const auto isKept = [&](std::int64_t time) {
            setTime(file, time);
            media().CACHE(file);
            std::string marked = bytes(file);
            marked.back() = 'x';
            put(copy, marked);
            setTime(copy, stored);
            restart();
            media().CACHE(file);
            return bytes(copy) == marked;
        };
        EXPECT_TRUE(isKept(stored + unit - 1)) << unit;
        EXPECT_TRUE(isKept(stored - unit + 1)) << unit; // rounded up
        EXPECT_FALSE(isKept(stored + unit)) << unit;
        EXPECT_FALSE(isKept(stored - unit)) << unit;
    }
}

TEST_F(SoundCache, AFailedCopyLeavesTheSourceToBePlayed)
{
    const String file = sound(u"a.wav", 0.5, 5);
    outside.files().protect(nativePath(QVAPP()->URL()->RESOURCECACHE()));
    EXPECT_EQ(played(file), 5);
    const int steps = outside.files().steps();
    media().CACHE(file);
    EXPECT_EQ(outside.files().steps(), steps); // the entry stays
    EXPECT_FALSE(fileExists(cached(u"A.WAV")));
}

TEST_F(SoundCache, AStaleCopyThatCannotBeRenewedIsNotPlayed)
{
    const String file = sound(u"a.wav", 0.5, 5);
    media().CACHE(file);
    sound(u"a.wav", 0.6, 6);
    restart();
    outside.files().protect(nativePath(QVAPP()->URL()->RESOURCECACHE()));
    EXPECT_EQ(played(file), 6);
}

TEST_F(SoundCache, ACopyThatBreaksOffLeavesNoPartOfIt)
{
    const String file = sound(u"a.wav", 0.5, 5);
    outside.files().freeBytes(100);
    EXPECT_EQ(played(file), 5);
    EXPECT_FALSE(fileExists(cached(u"A.WAV")));
}

TEST_F(SoundCache, MakesTheFoldersThatAreMissing)
{
    std::filesystem::remove_all(nativePath(QVAPP()->URL()->RESOURCECACHE()));
    media().CACHE(sound(u"wrong\\deep\\a.wav"));
    EXPECT_TRUE(fileExists(cached(u"WRONG\\DEEP\\A.WAV")));
}

TEST_F(SoundCache, AFileElsewhereIsPlayedFromWhereItLies)
{
    folder.write("elsewhere/a.wav", test::markedWave(0.5, 3));
    EXPECT_EQ(played(path(u"elsewhere\\a.wav")), 3);
    folder.write("MySFXes/a.wav", test::markedWave(0.5, 4)); // "SFX" without its backslash
    EXPECT_EQ(played(path(u"MySFXes\\a.wav")), 4);
    EXPECT_THAT(folder.names("UserAppData/QV Phial/Cache"), IsEmpty());
}

TEST_F(SoundCache, AFileElsewhereIsStillFoundFromAnotherFolder)
{
    folder.write("elsewhere/a.wav", test::markedWave(0.5, 3));
    goTo(path(u"elsewhere"));
    media().CACHE(u"a.wav");
    goTo(path(u"installed"));
    EXPECT_EQ(played(u"a.wav"), 3);
}

TEST_F(SoundCache, NothingIsCopiedOutOfTheCache)
{
    folder.write("installed/Resources/a.wav", test::markedWave(0.5, 3));
    EXPECT_EQ(played(QVAPP()->URL()->RESOURCESFX() + u"..\\a.wav"), 3);
    EXPECT_EQ(played(u"..\\a.wav"), 3);
    EXPECT_THAT(folder.names("UserAppData/QV Phial/Cache"), IsEmpty());
    EXPECT_THAT(folder.names("UserAppData/QV Phial"), ElementsAre("Cache"));
}

} // namespace
} // namespace phial
