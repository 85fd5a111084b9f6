// The page of school formulas as a picture file: `formula_page [--out DIR] [--scale N]` writes formulas.png,
// with N pixels for each logical one (1). Needs neither a display nor the installation tree.

#include "formula_page/FormulaPage.h"
#include "qt/desktop/PictureBackend.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/QtTextMetrics.h"
#include "visual/DrawDevice.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

namespace
{

phial::PicturePtr drawnPage(double scale)
{
    const auto picture = std::make_shared<phial::Picture>(formula_page::pageSize(), scale);
    const auto metrics = std::make_shared<phial::qt::QtTextMetrics>();
    phial::DrawDevice device(std::make_shared<phial::qt::PictureBackend>(picture, metrics));
    formula_page::drawPage(device);
    return picture;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Draws a page of school formulas into formulas.png."));
    parser.addHelpOption();
    const QCommandLineOption out(QStringLiteral("out"), QStringLiteral("The folder to write to."),
                                 QStringLiteral("folder"), QStringLiteral("."));
    const QCommandLineOption scale(QStringLiteral("scale"), QStringLiteral("Pixels for a logical one."),
                                   QStringLiteral("number"), QStringLiteral("1"));
    parser.addOptions({out, scale});
    parser.process(application);

    constexpr double LargestScale = 8;
    const double ratio = parser.value(scale).toDouble();
    const QDir folder(parser.value(out));
    const QString file = folder.filePath(QStringLiteral("formulas.png"));
    if (!(ratio > 0 && ratio <= LargestScale)) {
        QTextStream(stderr) << "formula_page: the scale is a number up to " << LargestScale << '\n';
        return 2;
    }
    if (!folder.mkpath(QStringLiteral(".")) || !phial::qt::imageOf(*drawnPage(ratio)).save(file)) {
        QTextStream(stderr) << "formula_page: cannot write " << file << '\n';
        return 1;
    }
    return 0;
}
