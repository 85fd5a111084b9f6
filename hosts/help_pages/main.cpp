// Paints a help book: `help_pages SOURCE FOLDER` writes the menu, its map (as menu_choice.ppm) and the pages
// of each chapter (K1 to K6) with their texts. Needs neither a display nor the installation tree.

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

constexpr int JpegQuality = 92;

QString said(const phial::String& text)
{
    return QString::fromStdU16String(text);
}

void save(const QString& file, double ratio, const Paint& paint)
{
    const auto picture = std::make_shared<phial::Picture>(help_pages::PageSize, ratio);
    const auto metrics = std::make_shared<phial::qt::QtTextMetrics>();
    phial::DrawDevice device(std::make_shared<phial::qt::PictureBackend>(picture, metrics));
    paint(device, *metrics);
    const QImage image = phial::qt::imageOf(*picture).convertToFormat(QImage::Format_RGB32);
    if (!image.save(file, nullptr, file.endsWith(QStringLiteral(".jpg")) ? JpegQuality : -1)) {
        throw std::runtime_error("cannot write " + file.toStdString());
    }
}

/// The picture in its own size, and twice as fine beside it.
void savePage(const QString& path, const Paint& paint)
{
    save(path + QStringLiteral(".jpg"), 1, paint);
    save(path + QStringLiteral("@2x.png"), 2, paint);
}

void saveText(const QString& path, const phial::String& text)
{
    QFile file(path + QStringLiteral(".txt"));
    if (!file.open(QIODevice::WriteOnly) || file.write(said(text).toUtf8()) < 0) {
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
    }
}

void saveChapter(const QDir& folder, const help_pages::Chapter& chapter)
{
    for (std::size_t at = 0; at < chapter.pages.size(); ++at) {
        const help_pages::Page& page = chapter.pages[at];
        const QString path = folder.filePath(QStringLiteral("%1").arg(at + 1, 2, 10, QLatin1Char('0')));
        savePage(path, [&](phial::DrawDevice& device, phial::TextMetrics& metrics) {
            if (!help_pages::drawPage(device, metrics, page)) {
                throw std::runtime_error("too long: " + phial::toUtf8(page.title));
            }
        });
        saveText(path, page.spoken());
    }
}

void saveBook(const QDir& folder, const help_pages::Book& book)
{
    folder.mkpath(QStringLiteral("."));
    savePage(folder.filePath(QStringLiteral("menu")),
             [&](auto& device, auto& metrics) { help_pages::drawMenu(device, metrics, book); });
    save(folder.filePath(QStringLiteral("menu_choice.ppm")), 1,
         [&](auto& device, auto&) { help_pages::drawMap(device, book); });
    phial::String text = book.title + u".";
    for (std::size_t at = 0; at < book.chapters.size(); ++at) {
        const QDir chapter(folder.filePath(QStringLiteral("K%1").arg(at + 1)));
        chapter.mkpath(QStringLiteral("."));
        saveChapter(chapter, book.chapters[at]);
        text += u"\n" + book.chapters[at].title;
    }
    saveText(folder.filePath(QStringLiteral("menu")), text + u"\n");
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
