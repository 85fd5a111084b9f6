#include "core/Locale.h"

#include "core/Variant.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(LocaleTest, WithoutABindingHabitsAreGerman)
{
    EXPECT_EQ(currentLocale().decimalSign, u',');
    EXPECT_EQ(currentLocale().language, LanguageGerman);
}

TEST(LocaleTest, BindingsNest)
{
    const Locale english{u'.', LanguageEnglish};
    const Locale swiss{u'.'};
    {
        const LocaleBinding outer(english);
        {
            const LocaleBinding inner(swiss);
            EXPECT_EQ(&currentLocale(), &swiss);
        }
        EXPECT_EQ(&currentLocale(), &english);
        EXPECT_EQ(Variant(2.5).toText(), u"2.5");
    }
    EXPECT_EQ(Variant(2.5).toText(), u"2,5");
}

TEST(LocaleTest, EveryLanguageButEnglishIsGerman)
{
    Locale locale;
    CoreLocale facet(locale);
    facet.SetLanguage(LanguageEnglish);
    EXPECT_EQ(locale.language, LanguageEnglish);
    EXPECT_EQ(locale.decimalSign, u',');
    facet.SetLanguage(0);
    EXPECT_EQ(facet.Language(), LanguageGerman);
}

} // namespace
} // namespace phial
