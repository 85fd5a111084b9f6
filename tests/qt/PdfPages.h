#pragma once

#include <QRectF>
#include <QString>

#include <vector>

namespace phial::qt
{

/// A word of a PDF file and where it stands on its page, in millimetres from the upper left corner.
struct PdfWord {
    QString text;
    QRectF area;
    int page = 1;
};

/// What another program reads in a PDF file.
struct PdfPages {
    std::vector<QSizeF> sizes; ///< in millimetres, one a page
    std::vector<PdfWord> words;

    /// All words of a page, in the reader's order.
    QString text(int page = 1) const;
    /// The first word of that text; a word without text when there is none.
    PdfWord word(const QString& text, int page = 1) const;
};

/// Reads a PDF file with poppler's pdftotext; a file that it cannot read has no pages.
PdfPages readPdf(const QString& file);

} // namespace phial::qt
