#include "qt/desktop/PrintJob.h"

#include <QPrinter>

namespace phial::qt
{

void printOn(QPrinter& printer, const PrintJob& job)
{
    printer.setDocName(job.title);
    printer.setPageLayout(job.layout);
    job.paint(printer);
}

} // namespace phial::qt
