#include "AppRateTest.h"

namespace phial
{

namespace
{

using headless::Box;

/// A certificate form with one field a text, the first being `Title`.
class CertificateTest : public AppRateTest
{
protected:
    void form(headless::FakeForms::NamedTexts fields, StringView file = u"Urkunde.zr-frm")
    {
        outside.forms().add(path(u"tree\\Resources\\Forms\\" + String(file)), std::move(fields));
    }
    std::vector<String> printedTexts() { return printed().back().texts; }
    const std::vector<headless::PrintedForm>& printed() { return outside.forms().printed(); }
};

TEST_F(CertificateTest, EveryPlaceholderIsFilledIn)
{
    QVAPP()->CONFIG()->NAME(u"Molmasse");
    form({{u"a", u"{NAME} ({USER}, {COMPUTER})"},
          {u"b", u"{DATUM}, {ZEIT}"},
          {u"c", u"{TITLE} {APP} {FILE}"},
          {u"d", u"{TEXT}"}});
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"Bravo"));
    EXPECT_EQ(printedTexts(), (std::vector<String>{u"Mia (pupil, DESK-1)", u"02. März 2026, 08:00",
                                                   u"Molmasse-Diplom Molmasse Urkunde.zr-frm", u"Bravo"}));
    EXPECT_EQ(printed().back().copies, 1);
}

TEST_F(CertificateTest, LineEndsOfTheTextAreDoubled)
{
    form({{u"a", u"{TEXT}"}});
    rate().PRINTCERTIFICATE(u"one\r\ntwo");
    EXPECT_EQ(printedTexts().front(), u"one\r\n\r\ntwo");
}

TEST_F(CertificateTest, TheCallerReplacesWhatHeWantsButTheText)
{
    form({{u"a", u"{NAME}/{TEXT}/{KLASSE}"}}, u"Andere.zr-frm");
    CoreParameters more;
    more.Set(u"NAME", u"Tom");
    more.Set(u"TEXT", u"mine");
    more.Set(u"KLASSE", u"9b");
    more.Set(u"FILE", u"Andere.zr-frm");
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"given", &more));
    EXPECT_EQ(printedTexts().front(), u"Tom/given/9b");
}

TEST_F(CertificateTest, NoSpellingOfItsNameReplacesTheText)
{
    form({{u"a", u"{TEXT}{B}"}});
    CoreParameters more;
    more.Set(u"text", u"of the caller");
    more.Set(u"Text", u"of the caller");
    more.Set(u"B", u"!");
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"given", &more));
    EXPECT_EQ(printedTexts().front(), u"given!");
}

TEST_F(CertificateTest, TheTextStandsBehindAllOtherValues)
{
    form({{u"a", u"{TEXT}"}});
    CoreParameters more;
    more.Set(u"text", u"of the caller");
    more.Set(u"later", u"filled in");
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"{later}", &more));
    EXPECT_EQ(printedTexts().front(), u"{later}");
}

TEST_F(CertificateTest, NamesOfPlaceholdersCountTheirCase)
{
    form({{u"a", u"{name} {NAME}"}});
    rate().PRINTCERTIFICATE(u"");
    EXPECT_EQ(printedTexts().front(), u"{name} Mia");
}

TEST_F(CertificateTest, AValueBringsInThePlaceholderOfALaterOneOnly)
{
    form({{u"a", u"{NAME}"}, {u"b", u"{TEXT}"}});
    QVAPP()->USER()->SCREENNAME(u"{APP}");
    QVAPP()->CONFIG()->NAME(u"Molmasse");
    rate().PRINTCERTIFICATE(u"{NAME}");
    EXPECT_EQ(printedTexts(), (std::vector<String>{u"Molmasse", u"{NAME}"}));
}

TEST_F(CertificateTest, FieldsWithoutABraceStay)
{
    form({{u"a", u"Diplom NAME"}});
    rate().PRINTCERTIFICATE(u"");
    EXPECT_EQ(printedTexts().front(), u"Diplom NAME");
}

TEST_F(CertificateTest, AMissingFormIsTold)
{
    outside.dialogs().expect(Box::Error, u"Leider konnte ich die Urkunden-Datei nicht finden, daher kann ich "
                                         u"die Urkunde nicht drucken!");
    EXPECT_FALSE(rate().PRINTCERTIFICATE(u"Bravo"));
}

TEST_F(CertificateTest, TheAnswerIsWhetherItWasPrinted)
{
    form({{u"a", u"{TEXT}"}});
    outside.forms().printAnswer(false);
    EXPECT_FALSE(rate().PRINTCERTIFICATE(u"Bravo"));
}

} // namespace

} // namespace phial
