// Paints a help book: `help_pages SOURCE FOLDER` writes the menu, its map and the pages of each chapter (K1
// to K6), as PPM files, with their texts. Needs neither a display nor the installation tree.

#include "core/RuntimeError.h"
#include "help_pages/HelpPainting.h"
#include "qt/desktop/PictureBackend.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/QtTextMetrics.h"
#include "visual/DrawDevice.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>

#include <functional>
#include <stdexcept>

namespace
{

using Paint = std::function<void(phial::DrawDevice&, phial::TextMetrics&)>;

QString said(const phial::String& text)
{
    return QString::fromStdU16String(text);
}

void save(const QString& path, double ratio, const Paint& paint)
{
    const QString file = path + QStringLiteral(".ppm");
    const auto picture = std::make_shared<phial::Picture>(help_pages::PageSize, ratio);
    const auto metrics = std::make_shared<phial::qt::QtTextMetrics>();
    phial::DrawDevice device(std::make_shared<phial::qt::PictureBackend>(picture, metrics));
    paint(device, *metrics);
    if (!phial::qt::imageOf(*picture).convertToFormat(QImage::Format_RGB32).save(file)) {
        throw std::runtime_error("cannot write " + file.toStdString());
    }
}

/// The picture in its own size, and twice as fine beside it.
void savePage(const QString& path, const Paint& paint)
{
    save(path, 1, paint);
    save(path + QStringLiteral("@2x"), 2, paint);
}

void saveText(const QString& path, const phial::String& text)
{
    QFile file(path + QStringLiteral(".txt"));
    if (!file.open(QIODevice::WriteOnly) || file.write(said(text).toUtf8()) < 0) {
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
    }
}

void saveChapter(const QDir& folder, const help_pages::Book& book, std::size_t chapter)
{
    folder.mkpath(QStringLiteral("."));
    const auto& pages = book.chapters[chapter].pages;
    for (std::size_t at = 0; at < pages.size(); ++at) {
        const QString path = folder.filePath(QStringLiteral("%1").arg(at + 1, 2, 10, QLatin1Char('0')));
        savePage(path, [&](phial::DrawDevice& device, phial::TextMetrics& metrics) {
            if (!help_pages::drawPage(device, metrics, book, chapter, at)) {
                throw std::runtime_error("too long: " + phial::toUtf8(pages[at].title));
            }
        });
        saveText(path, pages[at].spoken());
    }
}

void saveBook(const QDir& folder, const help_pages::Book& book)
{
    folder.mkpath(QStringLiteral("."));
    savePage(folder.filePath(QStringLiteral("menu")),
             [&](auto& device, auto& metrics) { help_pages::drawMenu(device, metrics, book); });
    save(folder.filePath(QStringLiteral("menu_choice")), 1,
         [&](auto& device, auto&) { help_pages::drawMap(device, book); });
    saveText(folder.filePath(QStringLiteral("menu")), book.spoken());
    for (std::size_t at = 0; at < book.chapters.size(); ++at) {
        saveChapter(QDir(folder.filePath(QStringLiteral("K%1").arg(at + 1))), book, at);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QFile source(arguments.value(1));
    if (arguments.size() != 3 || !source.open(QIODevice::ReadOnly)) {
        QTextStream(stderr) << "usage: help_pages SOURCE FOLDER\n";
        return 2;
    }
    try {
        saveBook(QDir(arguments.at(2)),
                 help_pages::Book::read(QString::fromUtf8(source.readAll()).toStdU16String()));
    } catch (const phial::RuntimeError& error) {
        QTextStream(stderr) << "help_pages: " << said(error.Description()) << '\n';
        return 1;
    } catch (const std::exception& error) {
        QTextStream(stderr) << "help_pages: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
