#pragma once

#include <QPageLayout>
#include <QString>

#include <functional>

class QPrinter;

namespace phial::qt
{

/// A finished document on its way to paper or into a file.
struct PrintJob {
    QString title;
    QPageLayout layout;
    /// Paints all pages on a printer that has the layout; can be called again. Raises 482 when the printer
    /// refuses.
    std::function<void(QPrinter&)> paint;
};

/// Takes finished documents. Raises 482 when one could not be printed.
using PrintOutlet = std::function<void(const PrintJob&)>;

/// Prints the document. Raises 482 when the printer refuses.
void printOn(QPrinter& printer, const PrintJob& job);

} // namespace phial::qt
