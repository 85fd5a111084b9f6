#include "qt/desktop/PrinterChoice.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "qt/base/QtText.h"

#include <QPrinterInfo>

namespace phial::qt
{

std::unique_ptr<QPrinter> pdfFile(const QString& file, const QString& title)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(file);
    printer->setDocName(title);
    return printer;
}

std::unique_ptr<QPrinter> printerOrPdf(const QString& title)
{
    if (!QPrinterInfo::defaultPrinter().isNull()) {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setDocName(title);
        return printer;
    }
    const String file = coreRoot().CoreDialogs().SaveFile(
        u"", LNG()->TRANSLATE(u"Kein Drucker: als PDF-Datei speichern", u"No printer: save as a PDF file"),
        LNG()->TRANSLATE(u"PDF-Datei|*.pdf", u"PDF file|*.pdf"));
    return file.empty() ? nullptr : pdfFile(toQt(nativePath(file).u16string()), title);
}

} // namespace phial::qt
