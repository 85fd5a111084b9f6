#include "qt/PdfPages.h"

#include <QProcess>
#include <QStringList>
#include <QXmlStreamReader>

namespace phial::qt
{

namespace
{

constexpr double MillimetresPerPoint = 25.4 / 72;

double number(const QXmlStreamReader& reader, const char* name)
{
    return reader.attributes().value(QLatin1String(name)).toDouble() * MillimetresPerPoint;
}

} // namespace

QString PdfPages::text(int page) const
{
    QStringList texts;
    for (const PdfWord& word : words) {
        if (word.page == page) {
            texts += word.text;
        }
    }
    return texts.join(QChar(u' '));
}

PdfWord PdfPages::word(const QString& text, int page) const
{
    for (const PdfWord& word : words) {
        if (word.page == page && word.text == text) {
            return word;
        }
    }
    return {};
}

PdfPages readPdf(const QString& file)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), file, QStringLiteral("-")});
    reader.waitForFinished();

    PdfPages pages;
    QXmlStreamReader answer(reader.readAllStandardOutput());
    while (!answer.atEnd()) {
        answer.readNext();
        if (!answer.isStartElement()) {
            continue;
        }
        if (answer.name() == QLatin1String("page")) {
            pages.sizes.emplace_back(number(answer, "width"), number(answer, "height"));
        } else if (answer.name() == QLatin1String("word")) {
            const QPointF topLeft(number(answer, "xMin"), number(answer, "yMin"));
            const QPointF bottomRight(number(answer, "xMax"), number(answer, "yMax"));
            pages.words.push_back(
                {answer.readElementText(), {topLeft, bottomRight}, static_cast<int>(pages.sizes.size())});
        }
    }
    return pages;
}

} // namespace phial::qt
