#include "DesktopRun.h"
#include "qt/desktop/DesktopDialogs.h"
#include "qt/desktop/ShotBook.h"
#include "qt/desktop/ShotDialogs.h"

#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr int German = 7;
constexpr int English = 9;

class DialogsTest : public DesktopSession
{
protected:
    // Does what a user would do with the box that comes up next.
    static void whenShown(const std::function<void(QDialog& box)>& act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            act(*box);
        });
    }

    static QPushButton& button(QDialog& box, const QString& text)
    {
        const auto buttons = box.findChildren<QPushButton*>();
        const auto found = std::find_if(buttons.begin(), buttons.end(),
                                        [&](const QPushButton* entry) { return entry->text() == text; });
        if (found == buttons.end()) {
            throw std::runtime_error("no button " + text.toStdString());
        }
        return **found;
    }

    DesktopDialogs dialogs_;
};

TEST_F(DialogsTest, AQuestionIsAnsweredInTheLanguageOfTheSession)
{
    SessionState::current().locale().language = German;
    whenShown([](QDialog& box) { button(box, QStringLiteral("Ja")).click(); });
    EXPECT_EQ(dialogs_.YesNo(u"Weiter?", {}), DialogAnswer::Yes);
    SessionState::current().locale().language = English;
    whenShown([](QDialog& box) { button(box, QStringLiteral("No")).click(); });
    EXPECT_EQ(dialogs_.YesNo(u"Go on?", {}), DialogAnswer::No);
}

TEST_F(DialogsTest, AShortMessageLeavesRoomForItsTitle)
{
    int room = 0;
    whenShown([&](QDialog& box) {
        room = box.width() - QFontMetrics(box.font()).horizontalAdvance(box.windowTitle());
        box.close();
    });
    dialogs_.Info(u"Ja.", u"Ein Titel, der viel länger ist als der Text darunter", {});
    EXPECT_GE(room, 120) << "for an icon and three buttons";
}

TEST_F(DialogsTest, AMessageOfSeveralLinesIsShownWhole)
{
    const auto missing = [](QDialog& box) {
        const auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        return text->minimumSizeHint().width() - text->width();
    };
    int hidden = 1;
    whenShown([&](QDialog& box) {
        hidden = missing(box);
        box.close();
    });
    dialogs_.Info(u"Herzlichen Glückwunsch!\r\nDu hast es auf den 1. Platz der Bestenliste geschafft!",
                  u"Ja!", {});
    EXPECT_LE(hidden, 0);
}

class RunDialogsTest : public DesktopRun
{
protected:
    /// The icon of the information box that comes up with it, as it is painted.
    QImage shownIcon(StringView icon)
    {
        QImage shown;
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            shown = box->iconPixmap().toImage();
            box->close();
        });
        DesktopDialogs().Info(u"Willkommen!", {}, icon);
        return shown;
    }

    void saveIcon(const char* place, Qt::GlobalColor colour) const
    {
        QImage icon(32, 32, QImage::Format_RGB32);
        icon.fill(colour);
        const auto file = folder().native() / place;
        std::filesystem::create_directories(file.parent_path());
        ASSERT_TRUE(icon.save(QString::fromStdU16String(file.u16string())));
    }
};

TEST_F(RunDialogsTest, AnIconLiesBelowTheResourcesPicturesWhateverTheCurrentFolderIs)
{
    saveIcon("tree/Resources/gfx/ico/32/Sign.png", Qt::red);
    saveIcon("elsewhere/Ico/32/Sign.png", Qt::blue);
    SessionState::current().currentFolder().change(folder().path() + u"elsewhere\\");
    EXPECT_EQ(shownIcon(u"Ico\\32\\Sign.png").pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(shownIcon(folder().path() + u"elsewhere\\Ico\\32\\Sign.png").pixelColor(5, 5),
              QColor(Qt::blue));
}

TEST_F(RunDialogsTest, WithoutATitleTheAppsNameIsSeen)
{
    QVAPP()->CONFIG()->NAME(u"Elemente-Puzzle");
    QString title;
    QTimer::singleShot(0, qApp, [&] {
        title = QApplication::activeModalWidget()->windowTitle();
        QApplication::activeModalWidget()->close();
    });
    DesktopDialogs().Error(u"Das ging nicht.", {});
    EXPECT_EQ(title, QStringLiteral("Elemente-Puzzle"));
}

TEST_F(RunDialogsTest, TheUsualSignStandsInForAnIconThatIsNotThere)
{
    const QImage usual = shownIcon({});
    EXPECT_FALSE(usual.isNull());
    EXPECT_EQ(shownIcon(u"Ico\\32\\Missing.ico"), usual);
}

// They are a package of their own; without it file dialogs are half English.
TEST_F(DialogsTest, TheToolkitsOwnTextsAreThereInGerman)
{
    SessionState::current().locale().language = German;
    whenShown([](QDialog& box) { box.reject(); });
    dialogs_.SaveFile({}, {}, u"Text|*.txt");
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Look in:"), QStringLiteral("Suchen in:"));
}

TEST_F(DialogsTest, ReturnAnswersAQuestionWithNo)
{
    whenShown([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(dialogs_.YesNo(u"Löschen?", {}), DialogAnswer::No);
}

TEST_F(DialogsTest, ABoxIsNotAnsweredByTheRepeatsOfAHeldKey)
{
    whenShown([](QDialog& box) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
            QApplication::sendEvent(&button(box, QStringLiteral("Nein")), &repeat);
            EXPECT_TRUE(box.isVisible());
        }
        button(box, QStringLiteral("Ja")).click();
    });
    EXPECT_EQ(dialogs_.YesNo(u"Weiter?", {}), DialogAnswer::Yes);
}

TEST_F(DialogsTest, ClosingAQuestionAnswersNo)
{
    whenShown([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs_.YesNo(u"Weiter?", {}), DialogAnswer::No);
}

TEST_F(DialogsTest, EscapeAndTheFramesCloseAbortEachBox)
{
    const std::function<void(QDialog&)> ways[] = {
        [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); },
        [](QDialog& box) { box.close(); },
    };
    for (const auto& way : ways) {
        const auto abort = [&] {
            whenShown([&way](QDialog& box) {
                way(box);
                EXPECT_FALSE(box.isVisible());
            });
        };
        abort();
        dialogs_.Info(u"Fertig", {}, {});
        abort();
        dialogs_.Error(u"Falsch", {});
        abort();
        EXPECT_EQ(dialogs_.YesNo(u"Weiter?", {}), DialogAnswer::No);
        abort();
        dialogs_.Text(u"Protokoll", {});
        abort();
        EXPECT_EQ(dialogs_.Input(u"Formel", {}, u"H2O"), u"");
        abort();
        EXPECT_EQ(dialogs_.SaveFile({}, {}, u"Text|*.txt"), u"");
        abort();
        dialogs_.Done(u"Gespeichert");
    }
}

TEST_F(DialogsTest, ALongTextIsScrolledSidewaysInsteadOfBroken)
{
    whenShown([](QDialog& box) {
        const auto* text = box.findChild<QPlainTextEdit*>();
        ASSERT_TRUE(text);
        EXPECT_EQ(text->document()->firstBlock().layout()->lineCount(), 1);
        EXPECT_GT(text->horizontalScrollBar()->maximum(), 0);
        box.close();
    });
    dialogs_.Text(replaced(String(300, u'x'), u"x", u"Maxi 12 "), {});
}

TEST_F(DialogsTest, TextsAreShownAsTheyAre)
{
    whenShown([](QDialog& box) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), QStringLiteral("2 < 3 & <b>wahr</b>"));
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Hinweis"));
        box.accept();
    });
    dialogs_.Info(u"2 < 3 & <b>wahr</b>", u"Hinweis", {});
}

TEST_F(DialogsTest, AnInputGivesTheLineOrNothing)
{
    whenShown([](QDialog& box) {
        auto* line = box.findChild<QLineEdit*>();
        EXPECT_EQ(line->text(), QStringLiteral("H2O"));
        EXPECT_TRUE(line->hasSelectedText());
        QTest::keyClicks(line, QStringLiteral("CO2"));
        QTest::keyClick(line, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs_.Input(u"Formel", {}, u"H2O"), u"CO2");
    whenShown([](QDialog& box) { box.reject(); });
    EXPECT_EQ(dialogs_.Input(u"Formel", {}, u"H2O"), u"");
}

TEST_F(DialogsTest, AConfirmationGoesByAPress)
{
    whenShown([](QDialog& box) { QTest::mouseClick(&box, Qt::LeftButton); });
    dialogs_.Done(u"Gespeichert");
}

TEST_F(DialogsTest, ASystemBoxDeactivatesNoForm)
{
    const auto form = std::make_shared<Form>(u"frm_Test");
    int deactivated = 0;
    const auto connection = form->Deactivate.connect([&] { ++deactivated; });
    form->Show();
    QApplication::processEvents();
    whenShown([](QDialog& box) { box.accept(); });
    dialogs_.Info(u"Hallo", {}, {});
    EXPECT_EQ(deactivated, 0);
}

TEST_F(DialogsTest, TheFileDialogGivesThePathAsTheSystemWritesIt)
{
    whenShown([](QDialog& box) {
        auto& files = dynamic_cast<QFileDialog&>(box);
        EXPECT_EQ(files.nameFilters(), QStringList{QStringLiteral("Textdatei (*.txt)")});
        EXPECT_EQ(files.defaultSuffix(), QStringLiteral("txt"));
        box.reject();
    });
    EXPECT_EQ(dialogs_.SaveFile(u"\\tmp\\", u"Speichern", u"Textdatei|*.txt"), u"");
}

TEST_F(DialogsTest, TheFileDialogProposesANameButNoPattern)
{
    const auto proposed = [this](StringView place) {
        QString name;
        whenShown([&](QDialog& box) {
            name = box.findChild<QLineEdit*>()->text();
            EXPECT_EQ(dynamic_cast<QFileDialog&>(box).directory(), QDir::root());
            box.reject();
        });
        dialogs_.SaveFile(place, u"Speichern", u"Textdatei|*.txt");
        return name;
    };
    EXPECT_EQ(proposed(u"\\Klasse 9.txt"), QStringLiteral("Klasse 9.txt"));
    EXPECT_EQ(proposed(u"\\*.txt"), QString());
    EXPECT_EQ(proposed(u"\\"), QString());
}

TEST_F(DialogsTest, TheFileDialogIsLabelledInTheLanguageOfTheSession)
{
    SessionState::current().locale().language = German;
    whenShown([](QDialog& box) {
        auto& files = dynamic_cast<QFileDialog&>(box);
        EXPECT_EQ(files.labelText(QFileDialog::Accept), QStringLiteral("Speichern"));
        EXPECT_EQ(files.labelText(QFileDialog::Reject), QStringLiteral("Abbrechen"));
        EXPECT_EQ(files.labelText(QFileDialog::FileName), QStringLiteral("Dateiname:"));
        box.reject();
    });
    dialogs_.SaveFile({}, u"Speichern", u"Textdatei|*.txt");
}

TEST_F(DialogsTest, AllPartsOfABoxHaveItsTextSize)
{
    whenShown([](QDialog& box) {
        EXPECT_EQ(button(box, QStringLiteral("Ja")).font().pointSizeF(), 10);
        EXPECT_EQ(button(box, QStringLiteral("Nein")).font().pointSizeF(), 10);
        box.reject();
    });
    SessionState::current().locale().language = German;
    dialogs_.YesNo(u"Weiter?", {});
}

TEST_F(DialogsTest, ABookTakesABoxInPlaceOfAUserAndClosesIt)
{
    const test::TemporaryFolder pictures;
    ShotBook book(pictures.native(), 2);
    ShotDialogs boxes;

    book.takeModal(u"frage", [&] { EXPECT_EQ(boxes.YesNo(u"Weiter?", {}), DialogAnswer::No); });

    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(pictures.has("frage@2x.png"));
    EXPECT_FALSE(ShotBook::isTakingModal());
}

TEST(ToolkitFilter, PairsNamesWithPatterns)
{
    EXPECT_EQ(toolkitFilter(u"Textdatei|*.txt"), u"Textdatei (*.txt)");
    EXPECT_EQ(toolkitFilter(u"Text|*.txt;*.csv|Alle|*.*"), u"Text (*.txt *.csv);;Alle (*.*)");
    EXPECT_EQ(toolkitFilter(u"Textdatei"), u"");
    EXPECT_EQ(toolkitFilter(u""), u"");
}

} // namespace
