#include "core/SessionState.h"

#include "core/Clock.h"
#include "support/HeadlessSession.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <optional>

namespace phial
{
namespace
{

TEST(SessionState, WithoutASessionTheRootIsNotSet)
{
    EXPECT_FALSE(SessionState::isOpen());
    EXPECT_RAISES(coreRoot(), ObjectNotSet);
    EXPECT_RAISES(coreTheme(), ObjectNotSet);
}

TEST(SessionState, OneIsOpenAtATime)
{
    const SessionState session{Platform()};
    EXPECT_RAISES(SessionState(Platform()), InvalidArgument);
    EXPECT_EQ(&SessionState::current(), &session);
}

TEST(SessionState, TheNextOneStartsAfresh)
{
    std::optional<SessionState> session;
    session.emplace(Platform());
    const String first = session->currentFolder().path();
    session->locale().language = LanguageEnglish;
    session->theme().SetColour(ThemeSlot::Accent, RGB(1, 2, 3));
    session->currentFolder().change(u"\\");
    session.reset();
    EXPECT_FALSE(SessionState::isOpen());

    session.emplace(Platform());
    EXPECT_EQ(session->locale().language, LanguageGerman);
    EXPECT_EQ(session->theme().Colour(ThemeSlot::Accent), SystemColour::Highlight);
    EXPECT_EQ(session->currentFolder().path(), first);
}

TEST(SessionState, ItsLocaleIsTheOneInForce)
{
    SessionState session{Platform()};
    coreRoot().CoreLocale().SetLanguage(LanguageEnglish);
    EXPECT_EQ(session.locale().language, LanguageEnglish);
    EXPECT_EQ(&currentLocale(), &session.locale());
}

TEST(SessionState, TheRootGivesTheSameFacetsEachTime)
{
    const SessionState session{Platform()};
    EXPECT_EQ(&coreRoot().CoreFiles(), &coreRoot().CoreFiles());
    EXPECT_EQ(&coreRoot().CoreRegistry(), &coreRoot().CoreRegistry());
}

TEST(SessionState, TheOutsideMayGoBeforeTheSession)
{
    std::optional<headless::HeadlessPlatform> outside(std::in_place, u"\\");
    const SessionState session(outside->platform());
    outside.reset();
    EXPECT_EQ(session.platform().clock->seconds(), 0);
}

} // namespace
} // namespace phial
