#include "qt/DesktopSession.h"
#include "qt/PdfPages.h"
#include "qt/base/QtText.h"
#include "qt/desktop/PrinterChoice.h"
#include "results/cls_DataScores.h"

#include <QImage>
#include <QProcess>

namespace phial::qt
{

namespace
{

// Millimetres: the page's margin, and what the list leaves blank within it.
constexpr double Margin = 5;
constexpr double Blank = 10;
constexpr double Width = 287;

constexpr int Resolution = 150; // pixels an inch, of a page's picture

/// Score lists printed into a PDF file, as another program reads it.
class PrintedListTest : public DesktopSession
{
protected:
    PrintedListTest()
        : DesktopSession([this](const PrintJob& job) {
              const auto printer = pdfFile(pdf(), job.title);
              printOn(*printer, job);
          })
    {
    }

    void add(const String& name, const String& computer, double points)
    {
        const auto score = std::make_shared<cls_DataScore>();
        score->SCREENNAME(name);
        score->USERNAME(u"login");
        score->COMPUTER(computer);
        score->POINTS(points);
        score->POINTSMAX(100);
        score->RANK(list.COUNT() + 1);
        score->TIMESTAMP(Moment::fromCalendar({2026, 3, 2, 18, 5, 9}));
        list.DATABASE()->Import(score);
    }

    PdfPages printed()
    {
        list.PRINTOUT(u"Bestenliste");
        return readPdf(pdf());
    }

    /// The first page as it is seen.
    QImage pagePicture() const
    {
        QProcess painter;
        painter.start(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-gray"), QStringLiteral("-r"), QString::number(Resolution), pdf()});
        painter.waitForFinished();
        return QImage::fromData(painter.readAllStandardOutput());
    }

    /// Whether nothing is printed there; millimetres.
    static bool isBlank(const QImage& page, const QRectF& area)
    {
        constexpr double Pixels = Resolution / 25.4;
        const QRect pixels(QPointF(area.topLeft() * Pixels).toPoint(), QSizeF(area.size() * Pixels).toSize());
        for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
            for (int x = pixels.left(); x <= pixels.right(); ++x) {
                if (qGray(page.pixel(x, y)) < 200) {
                    return false;
                }
            }
        }
        return !page.isNull();
    }

    static double column(double factor) { return Margin + Blank + (Width - 2 * Blank) * factor; }

    cls_DataScores list;

private:
    QString pdf() const { return QString::fromStdString((folder_.native() / "list.pdf").string()); }

    test::TemporaryFolder folder_;
};

TEST_F(PrintedListTest, LiesAcrossAnA4Sheet)
{
    const PdfPages pages = printed();
    ASSERT_EQ(pages.sizes.size(), 1U);
    EXPECT_NEAR(pages.sizes.front().width(), 297, 0.5);
    EXPECT_NEAR(pages.sizes.front().height(), 210, 0.5);
    EXPECT_TRUE(pages.text().startsWith(QStringLiteral("Bestenliste Gedruckt am ")));
}

TEST_F(PrintedListTest, HasItsColumnsWhereTheyBelong)
{
    add(u"Änne", u"PC-07", 75);
    const PdfPages pages = printed();
    const auto left = [&](const char* word) { return pages.word(QString::fromUtf8(word)).area.left(); };
    const auto right = [&](const char* word) { return pages.word(QString::fromUtf8(word)).area.right(); };
    EXPECT_NEAR(left("Bestenliste"), column(0), 0.5);
    EXPECT_NEAR(left("Rang"), column(0), 0.5);
    EXPECT_NEAR(left("Änne"), column(0.05), 0.5);
    EXPECT_NEAR(left("login"), column(0.25), 0.5);
    EXPECT_NEAR(left("PC-07"), column(0.35), 0.5);
    EXPECT_NEAR(right("75"), column(0.55), 0.5);
    EXPECT_NEAR(right("100"), column(0.65), 0.5);
    EXPECT_NEAR(left("Gut"), column(0.67), 0.5);
    EXPECT_NEAR(left("18:05:09"), column(0.75), 0.5);
    EXPECT_NEAR(left("Zusatz"), column(0.9), 0.5);
    EXPECT_NEAR(pages.word(QStringLiteral("Rang")).area.top(), Margin + 30, 1);
    EXPECT_LT(right("Score"), column(0.55) - 0.5);
}

TEST_F(PrintedListTest, HoldsTheWholeTextOfAColumnThatIsClipped)
{
    add(u"Anna", u"RechnerImChemieraumInDerZweitenReiheAmFenster", 75);
    const PdfPages pages = printed();
    const PdfWord computer = pages.word(QStringLiteral("RechnerImChemieraumInDerZweitenReiheAmFenster"));
    EXPECT_FALSE(computer.text.isEmpty());
    EXPECT_GT(computer.area.right(), column(0.55));
    EXPECT_NEAR(pages.word(QStringLiteral("75")).area.right(), column(0.55), 0.5);
}

TEST_F(PrintedListTest, PrintsNothingOverAnything)
{
    CoreParameters more;
    more.Set(u"Bemerkung", String(80, u'W'));
    for (int row = 0; row < 3; ++row) {
        list.ADD(55, 100, u"", &more, String(60, u'M'), String(60, u'W'), String(60, u'M'));
    }
    const PdfPages pages = printed();
    const QImage page = pagePicture();
    const double rows = pages.word(QStringLiteral("Rang")).area.bottom() + 2;
    for (const double factor : {0.05, 0.25, 0.35, 0.67, 0.75, 0.9}) {
        const double edge = column(factor);
        EXPECT_TRUE(isBlank(page, {edge - 0.8, rows, 0.5, 20})) << factor;
        EXPECT_FALSE(isBlank(page, {edge, rows, 5, 20})) << factor;
    }
    EXPECT_TRUE(isBlank(page, {column(1) + 0.5, rows, Blank - 1, 20}));
}

TEST_F(PrintedListTest, RepeatsItsColumnsOnEveryPage)
{
    for (int number = 1; number <= 100; ++number) {
        add(u"N" + Variant(number).toText(), u"PC", number);
    }
    const PdfPages pages = printed();
    ASSERT_GE(pages.sizes.size(), 3U);
    for (int page = 1; page <= static_cast<int>(pages.sizes.size()); ++page) {
        EXPECT_NEAR(pages.word(QStringLiteral("Erreichbar"), page).area.top(), Margin + 30, 1);
    }
    EXPECT_FALSE(pages.word(QStringLiteral("N100"), static_cast<int>(pages.sizes.size())).text.isEmpty());
    for (const PdfWord& word : pages.words) {
        EXPECT_LT(word.area.bottom(), 210 - Margin) << word.text.toStdString();
    }
}

} // namespace

} // namespace phial::qt
