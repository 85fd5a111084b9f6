#pragma once

#include <QPrinter>

#include <functional>
#include <memory>

namespace phial::qt
{

/// Gives the printer for a document of that title, or null when the user does not want to print.
using PrinterMaker = std::function<std::unique_ptr<QPrinter>(const QString& title)>;

/// The system's default printer; on a computer without printers a PDF file that the user is asked for.
std::unique_ptr<QPrinter> printerOrPdf(const QString& title);

/// A PDF file that the user is asked for, in a window of that title; a file of the document's name among his
/// own documents is proposed. Null when he cancels.
std::unique_ptr<QPrinter> chosenPdfFile(const QString& title, const QString& dialogTitle);

/// A PDF file as a printer.
std::unique_ptr<QPrinter> pdfFile(const QString& file, const QString& title);

} // namespace phial::qt
