#include "core/SessionState.h"

#include "core/Clock.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "support/HeadlessSession.h"

#include <gtest/gtest.h>
#include <optional>

namespace phial
{
namespace
{

int raisedNumber(const std::function<void()>& action)
{
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(SessionState, WithoutASessionTheRootIsNotSet)
{
    EXPECT_FALSE(SessionState::isOpen());
    EXPECT_EQ(raisedNumber([] { coreRoot(); }), 91);
    EXPECT_EQ(raisedNumber([] { coreTheme(); }), 91);
}

TEST(SessionState, OneIsOpenAtATime)
{
    const SessionState session{Platform()};
    EXPECT_EQ(raisedNumber([] { const SessionState second{Platform()}; }), 5);
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
