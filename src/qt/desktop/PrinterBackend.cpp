#include "qt/desktop/PrinterBackend.h"

#include "core/RuntimeError.h"

namespace phial::qt
{

namespace
{

constexpr double LogicalDotsPerInch = 96;
constexpr std::int32_t PrinterError = 482;

double ratioOf(const QPrinter& printer)
{
    return printer.resolution() / LogicalDotsPerInch;
}

PixelSize pageSize(const QPrinter& printer)
{
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    return {page.width() / ratioOf(printer), page.height() / ratioOf(printer)};
}

} // namespace

PrinterBackend::PrinterBackend(QPrinter& printer, std::shared_ptr<TextMetrics> metrics)
    : PainterBackend(pageSize(printer), ratioOf(printer), std::move(metrics)), printer_(printer)
{
    begin(printer_);
    if (!painter().isActive()) {
        throw RuntimeError(PrinterError, u"Printer error");
    }
}

PrinterBackend::~PrinterBackend()
{
    endDocument();
}

void PrinterBackend::newPage()
{
    if (!printer_.newPage()) {
        throw RuntimeError(PrinterError, u"Printer error");
    }
}

void PrinterBackend::endDocument()
{
    if (painter().isActive()) {
        painter().end();
    }
}

} // namespace phial::qt
