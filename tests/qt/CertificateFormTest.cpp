#include "core/NativePath.h"
#include "qt/DesktopSession.h"
#include "qt/PdfPages.h"
#include "qt/base/QtText.h"
#include "qt/desktop/SvgForm.h"
#include "qt/desktop/SvgFormDocument.h"
#include "support/Places.h"
#include "support/Raises.h"

#include <QFile>

namespace phial::qt
{

namespace
{

/// Forms that are printed into a PDF file, which another program then reads.
class CertificateFormTest : public DesktopSession
{
protected:
    std::shared_ptr<CoreFormDocument> newDocument()
    {
        return newSvgFormDocument([this](const QString& title) { return pdfFile(pdf(), title); });
    }
    std::shared_ptr<CoreFormDocument> installedCertificate()
    {
        return loaded(test::treeFolder() / "Resources" / "Forms" / "Urkunde.zr-frm");
    }
    std::shared_ptr<CoreFormDocument> loaded(const std::filesystem::path& file)
    {
        auto document = newDocument();
        EXPECT_TRUE(document->Load(systemPath(file)));
        return document;
    }
    std::shared_ptr<CoreFormDocument> loadedFrom(const QByteArray& drawing)
    {
        auto document = newDocument();
        EXPECT_TRUE(document->Load(written(drawing)));
        return document;
    }
    String written(const QByteArray& bytes)
    {
        folder_.write("form.zr-frm", bytes.toStdString());
        return folder_.path() + u"form.zr-frm";
    }
    bool loads(const QByteArray& bytes) { return newDocument()->Load(written(bytes)); }

    PdfPages printed(CoreFormDocument& document)
    {
        EXPECT_TRUE(document.Print(1));
        return readPdf(pdf());
    }
    QString pdf() const { return QString::fromStdString((folder_.native() / "printed.pdf").string()); }

    static CoreFormField& field(CoreFormDocument& document, StringView text)
    {
        CoreFormFields& fields = document.Fields(1);
        for (std::int32_t index = 1; index <= fields.Count(); ++index) {
            if (fields.Item(index).Text() == text) {
                return fields.Item(index);
            }
        }
        throw RuntimeError(ErrorNumber::IndexOutOfBounds, u"no field with the text " + String(text));
    }

private:
    test::TemporaryFolder folder_;
};

/// A drawing of one sheet with that content.
QByteArray drawing(const QByteArray& content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' width='210mm' height='297mm' viewBox='0 0 210 297'>" +
           content + "</svg>";
}

TEST_F(CertificateFormTest, EveryTextOfTheDrawingIsAField)
{
    const auto document = loaded(test::dataFolder() / "editor_form.svg");
    CoreFormFields& fields = document->Fields(1);
    ASSERT_EQ(fields.Count(), 2);
    EXPECT_EQ(fields.Item(1).Name(), u"text1232");
    EXPECT_EQ(fields.Item(1).Text(), u"{TEXT}");
    EXPECT_EQ(fields.Item(2).Name(), u"Kopf");
    EXPECT_EQ(fields.Item(2).Text(), u"Diplom für\r\n{NAME}");
}

TEST_F(CertificateFormTest, PositionsOfFieldsAndPagesCountFromOne)
{
    const auto document = loaded(test::dataFolder() / "editor_form.svg");
    EXPECT_RAISES(document->Fields(2), IndexOutOfBounds);
    EXPECT_RAISES(document->Fields(1).Item(0), IndexOutOfBounds);
    EXPECT_RAISES(document->Fields(1).Item(3), IndexOutOfBounds);
}

TEST_F(CertificateFormTest, ADocumentWithoutAFormHasNoFieldsAndDoesNotPrint)
{
    const auto document = newDocument();
    EXPECT_RAISES(document->Fields(1), IndexOutOfBounds);
    EXPECT_FALSE(document->Print(1));
}

TEST_F(CertificateFormTest, ATextInAFrameOfTheEditorFillsIt)
{
    const auto document = loaded(test::dataFolder() / "editor_form.svg");
    field(*document, u"{TEXT}")
        .Text(u"Anfang und so viele weitere Worte, dass die Zeile nicht reicht und Ende");
    const PdfPages pages = printed(*document);
    ASSERT_EQ(pages.sizes.size(), 1U);
    EXPECT_NEAR(pages.sizes.front().width(), 297, 0.5);
    EXPECT_NEAR(pages.sizes.front().height(), 210, 0.5);
    // The frame, under the group's transformation, reaches from (100, 100) to (300, 160).
    EXPECT_NEAR(pages.word(u"Anfang"_qs).area.left(), 100, 0.5);
    EXPECT_GT(pages.word(u"Ende"_qs).area.top(), pages.word(u"Anfang"_qs).area.bottom());
    for (const PdfWord& word : pages.words) {
        EXPECT_LE(word.area.right(), 300.5) << word.text.toStdString();
    }
}

TEST_F(CertificateFormTest, LinesOfACentredTextStandOneBelowTheOther)
{
    const auto document = loaded(test::dataFolder() / "editor_form.svg");
    field(*document, u"Diplom für\r\n{NAME}").Text(u"Diplom\r\nMia");
    const PdfPages pages = printed(*document);
    EXPECT_NEAR(pages.word(u"Diplom"_qs).area.center().x(), 148.5, 0.5);
    EXPECT_NEAR(pages.word(u"Mia"_qs).area.center().x(), 148.5, 0.5);
    EXPECT_NEAR(pages.word(u"Mia"_qs).area.top() - pages.word(u"Diplom"_qs).area.top(), 12.5, 0.5);
}

TEST_F(CertificateFormTest, ALongLineStaysWithinThePage)
{
    const auto document =
        loadedFrom(drawing("<text x='105' y='100' font-size='12' text-anchor='middle'>T</text>"));
    field(*document, u"T").Text(u"Annegret-Friederike Müller-Lüdenscheidt-Rosenzweig");
    for (const PdfWord& word : printed(*document).words) {
        EXPECT_GE(word.area.left(), 10);
        EXPECT_LE(word.area.right(), 200);
    }
}

TEST_F(CertificateFormTest, ATextTooLongForItsBoxIsSmallerAndThenCutAtALine)
{
    const auto document =
        loadedFrom(drawing("<defs><rect id='box' x='20' y='20' width='100' height='30'/></defs>"
                           "<text font-size='8' style='shape-inside:url(#box)'>T</text>"));
    String text;
    for (int word = 0; word < 400; ++word) {
        text += u"Wort ";
    }
    field(*document, u"T").Text(text);
    const PdfPages pages = printed(*document);
    EXPECT_GT(pages.words.size(), 20U);
    EXPECT_LT(pages.words.size(), 400U);
    for (const PdfWord& word : pages.words) {
        EXPECT_LE(word.area.bottom(), 50.5);
    }
}

TEST_F(CertificateFormTest, WhatTheDrawingHidesIsNotPrinted)
{
    const auto document = loadedFrom(drawing("<g style='display:none'><text x='20' y='50'>Ebene</text></g>"
                                             "<text x='20' y='80' style='display:none'>Versteckt</text>"
                                             "<text x='20' y='110' opacity='0'>Durchsichtig</text>"
                                             "<defs><text x='20' y='140'>Vorrat</text></defs>"
                                             "<g opacity='0.5'><text x='20' y='170'>Blass</text></g>"));
    EXPECT_EQ(document->Fields(1).Count(), 5);
    EXPECT_EQ(printed(*document).text().toStdString(), "Blass");
}

TEST_F(CertificateFormTest, ATextIsPrintedWhateverItsColourIsWrittenLike)
{
    const auto document = loadedFrom(drawing("<text x='20' y='50' fill='rgb(20, 83, 45)'>Zahlen</text>"
                                             "<text x='20' y='80' style='fill:url(#Verlauf)'>Verlauf</text>"
                                             "<text x='20' y='110' fill='darkgreen'>Name</text>"
                                             "<text x='20' y='140' fill='none'>Ohne</text>"));
    EXPECT_EQ(printed(*document).text().toStdString(), "Zahlen Verlauf Name");
}

TEST_F(CertificateFormTest, TheInstalledCertificateHasEveryPlaceholder)
{
    const auto document = installedCertificate();
    String all;
    for (std::int32_t index = 1; index <= document->Fields(1).Count(); ++index) {
        all += document->Fields(1).Item(index).Text();
    }
    for (const StringView placeholder : {u"{TITLE}", u"{NAME}", u"{TEXT}", u"{DATUM}", u"{APP}"}) {
        EXPECT_NE(all.find(placeholder), String::npos) << toUtf8(placeholder);
    }
}

TEST_F(CertificateFormTest, TheInstalledCertificatePrintsItsTextsWhole)
{
    const auto document = installedCertificate();
    field(*document, u"{NAME}").Text(u"Jörg Süßmäyer");
    field(*document, u"{TITLE}").Text(u"Molmasse-Diplom");
    field(*document, u"{TEXT}").Text(u"hat die Aufgaben gelöst.\r\n\r\nNote: Gut plus");
    const PdfPages pages = printed(*document);
    ASSERT_EQ(pages.sizes.size(), 1U);
    EXPECT_NEAR(pages.sizes.front().width(), 210, 0.5);
    EXPECT_NEAR(pages.sizes.front().height(), 297, 0.5);
    const QString text = pages.text();
    EXPECT_TRUE(text.contains(u"Jörg Süßmäyer"_qs)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"Molmasse-Diplom"_qs)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"Note: Gut plus"_qs)) << text.toStdString();
}

TEST_F(CertificateFormTest, WhatIsNoDrawingDoesNotLoad)
{
    EXPECT_FALSE(newDocument()->Load(u"C:\\nowhere\\Urkunde.zr-frm"));
    EXPECT_FALSE(loads(""));
    EXPECT_FALSE(loads("no drawing"));
    EXPECT_FALSE(loads("<html/>"));
    EXPECT_FALSE(loads("<svg xmlns='http://www.w3.org/2000/svg'><text>"));
}

TEST_F(CertificateFormTest, ADrawingThatMeansHarmDoesNotLoad)
{
    EXPECT_FALSE(loads("<!DOCTYPE svg [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;'>]><svg>&b;</svg>"));
    EXPECT_FALSE(loads(drawing(QByteArray("<g>").repeated(100'000))));
    EXPECT_FALSE(loads(drawing(QByteArray("<g>").repeated(80) + QByteArray("</g>").repeated(80))));
    EXPECT_FALSE(loads(drawing(QByteArray("<g/>").repeated(30'000))));
    EXPECT_FALSE(loads(drawing(QByteArray(9 * 1024 * 1024, ' '))));
}

TEST_F(CertificateFormTest, AUserWhoDoesNotWantToPrintIsHeard)
{
    const auto document = newSvgFormDocument([](const QString&) { return nullptr; });
    ASSERT_TRUE(document->Load(systemPath(test::dataFolder() / "editor_form.svg")));
    EXPECT_FALSE(document->Print(1));
}

} // namespace

} // namespace phial::qt
