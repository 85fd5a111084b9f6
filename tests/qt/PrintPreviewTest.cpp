#include "qt/desktop/PrintPreview.h"

#include "qt/DesktopSession.h"
#include "qt/PdfPages.h"
#include "qt/base/QtText.h"
#include "qt/desktop/PrinterChoice.h"
#include "support/Raises.h"
#include "visual/Printer.h"

#include <QDialog>
#include <QFile>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTimer>

namespace phial::qt
{

namespace
{

constexpr std::int32_t PrinterError = 482;

/// The way from a drawn document over its preview to a file.
class PrintPreviewTest : public DesktopSession
{
protected:
    /// Two pages with a word each.
    static void print(Printer& printer)
    {
        printer.Title(u"Liste 9a/b");
        DrawDevice& page = printer.device();
        page.ScaleMode(ScaleUnit::Millimetres);
        page.FontName(u"Arial");
        page.CurrentX(20);
        page.CurrentY(30);
        page.Print(u"Vorn");
        printer.NewPage();
        page.Print(u"Hinten");
        printer.EndDoc();
    }

    /// Does what a user would do with the preview when it has come up.
    static void whenShown(const std::function<void(QDialog& preview)>& act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto* preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(preview);
            act(*preview);
        });
    }

    static QPushButton& button(const QDialog& preview, const char* text)
    {
        for (QPushButton* each : preview.findChildren<QPushButton*>()) {
            if (each->text() == QString::fromUtf8(text)) {
                return *each;
            }
        }
        throw std::runtime_error(std::string("no button ") + text);
    }

    String pdf() const { return folder_.path() + u"liste.pdf"; }
    QString nativePdf() const { return QString::fromStdString((folder_.native() / "liste.pdf").string()); }

private:
    test::TemporaryFolder folder_;
};

TEST_F(PrintPreviewTest, ShowsThePagesBeforeAnythingIsPrinted)
{
    whenShown([](QDialog& preview) {
        auto* pages = preview.findChild<QPrintPreviewWidget*>();
        ASSERT_TRUE(pages);
        EXPECT_EQ(pages->pageCount(), 2);
        EXPECT_TRUE(preview.windowTitle().contains(QStringLiteral("Liste 9a/b")));
        EXPECT_FALSE(button(preview, "Vorige Seite").isEnabled());
        button(preview, "Nächste Seite").click();
        EXPECT_EQ(pages->currentPage(), 2);
        EXPECT_FALSE(button(preview, "Nächste Seite").isEnabled());
        button(preview, "Schließen").click();
    });
    Printer printer;
    print(printer);
}

TEST_F(PrintPreviewTest, SavesAPdfWhoseTextsStandWhereTheyWereDrawn)
{
    outside().dialogs().expectSaveFile(pdf());
    outside().dialogs().expect(headless::Box::Done, u"Gespeichert");
    whenShown([](QDialog& preview) { button(preview, "Als PDF speichern …").click(); });
    Printer printer;
    print(printer);
    EXPECT_EQ(outside().dialogs().shown().front().text,
              outside().folders().UserDocuments() + u"Liste 9a_b.pdf");

    const PdfPages pages = readPdf(nativePdf());
    ASSERT_EQ(pages.sizes.size(), 2U);
    EXPECT_NEAR(pages.sizes.front().width(), 210, 0.5);
    EXPECT_EQ(pages.text(1), QStringLiteral("Vorn"));
    EXPECT_EQ(pages.text(2), QStringLiteral("Hinten"));
    // Places count from the margin of 5 mm.
    EXPECT_NEAR(pages.word(QStringLiteral("Vorn")).area.left(), 25, 0.3);
    EXPECT_NEAR(pages.word(QStringLiteral("Vorn")).area.top(), 35, 0.8);
}

TEST_F(PrintPreviewTest, StaysWhenTheUserChoosesNoFile)
{
    outside().dialogs().expectSaveFile({});
    whenShown([](QDialog& preview) {
        button(preview, "Als PDF speichern …").click();
        EXPECT_TRUE(preview.isVisible());
        preview.reject();
    });
    Printer printer;
    print(printer);
}

TEST_F(PrintPreviewTest, RaisesThePrintersErrorToWhoPrints)
{
    outside().dialogs().expectSaveFile(pdf() + u"\\kein\\Ordner.pdf");
    whenShown([](QDialog& preview) { button(preview, "Als PDF speichern …").click(); });
    Printer printer;
    EXPECT_EQ(test::raisedBy([&] { print(printer); }), PrinterError);
}

TEST_F(PrintPreviewTest, SpeaksTheLanguageOfTheSession)
{
    SessionState::current().locale().language = LanguageEnglish;
    whenShown([](QDialog& preview) {
        button(preview, "Print…");
        button(preview, "Save as PDF…");
        button(preview, "Close").click();
    });
    Printer printer;
    print(printer);
}

TEST_F(PrintPreviewTest, AsksForThePrinterAndGoesBackToThePages)
{
    whenShown([](QDialog& preview) {
        QTimer::singleShot(0, qApp, [] {
            auto* choice = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(choice);
            choice->reject();
        });
        button(preview, "Drucken …").click();
        EXPECT_TRUE(preview.isVisible());
        preview.reject();
    });
    Printer printer;
    print(printer);
}

} // namespace

} // namespace phial::qt
