#include "qt/desktop/PrinterChoice.h"

#include "core/CoreDialogs.h"
#include "core/CoreFolders.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/NativePath.h"
#include "qt/base/QtText.h"
#include "qt/desktop/BoxParts.h"

#include <QPrinterInfo>

namespace phial::qt
{

namespace
{

constexpr BoxText PdfFilter{u"PDF-Datei|*.pdf", u"PDF file|*.pdf"};
constexpr BoxText NoPrinter{u"Kein Drucker: als PDF-Datei speichern", u"No printer: save as a PDF file"};

/// A title as a file name: without the signs that file systems refuse.
QString fileNameOf(QString title)
{
    for (QChar& sign : title) {
        if (sign < QLatin1Char(' ') || QStringLiteral("\\/:*?\"<>|").contains(sign)) {
            sign = QLatin1Char('_');
        }
    }
    return title + QStringLiteral(".pdf");
}

} // namespace

std::unique_ptr<QPrinter> pdfFile(const QString& file, const QString& title)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(file);
    printer->setDocName(title);
    return printer;
}

std::unique_ptr<QPrinter> chosenPdfFile(const QString& title, const QString& dialogTitle)
{
    const String place = coreRoot().CoreSystem().CoreFolders().UserDocuments() + fromQt(fileNameOf(title));
    const String file =
        coreRoot().CoreDialogs().SaveFile(place, fromQt(dialogTitle), fromQt(inLanguage(PdfFilter)));
    return file.empty() ? nullptr : pdfFile(toQt(nativePath(file).u16string()), title);
}

std::unique_ptr<QPrinter> printerOrPdf(const QString& title)
{
    if (!QPrinterInfo::defaultPrinter().isNull()) {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setDocName(title);
        return printer;
    }
    return chosenPdfFile(title, inLanguage(NoPrinter));
}

} // namespace phial::qt
