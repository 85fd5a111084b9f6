#include "term/TermSpeech.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "support/AppSession.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

using TermSpeech = AppSession;

TEST_F(TermSpeech, ReadsFormulasAndEquationsInTheLanguageInForce)
{
    LNG()->CURRENT(ID_Language_German);
    EXPECT_EQ(spokenTerm(u"SO4^2-"), u"Sulfat: S O vier, zweifach negativ geladen");
    EXPECT_EQ(spokenTerm(u"2H2 + O2 -> 2H2O"), u"zwei H zwei plus O zwei reagiert zu zwei H zwei O");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(spokenTerm(u"SO4^2-"), u"sulfate: S O four, charge two minus");
}

TEST_F(TermSpeech, ReadsInTheSystemsLanguageWhereNoneIsChosen)
{
    outside.environment().set(u"LANG", u"en_GB.UTF-8");
    LNG()->CURRENT(ID_Language_System);
    EXPECT_EQ(spokenTerm(u"SO4^2-"), u"sulfate: S O four, charge two minus");
}

TEST_F(TermSpeech, SpellsWithoutTheName)
{
    LNG()->CURRENT(ID_Language_German);
    EXPECT_EQ(spelledTerm(u"SO4^2-"), u"S O vier, zweifach negativ geladen");
    EXPECT_EQ(spelledTerm(u"XeF4"), u"X e F vier");
    EXPECT_EQ(spelledTerm(u"M: 2"), u"M: 2");
}

TEST_F(TermSpeech, LeavesOtherTermsAsTheyAre)
{
    EXPECT_EQ(spokenTerm(u"M(H2O) = 2*M(H) + M(O)"), u"M(H2O) = 2*M(H) + M(O)");
    EXPECT_EQ(spokenTerm({}), u"");
}

} // namespace
} // namespace phial::test
