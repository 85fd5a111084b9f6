#include "master/CsvExport.h"

#include "core/Format.h"
#include "core/NumberText.h"
#include "core/Utf8Text.h"
#include "master/Packages.h"
#include "results/Mark.h"

#include <initializer_list>

namespace phial::master
{

namespace
{

constexpr StringView LineEnd = u"\r\n";
// Their wide forms count as well in some spreadsheets.
constexpr StringView FormulaSigns = u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20";

String line(std::initializer_list<String> cells)
{
    String text;
    for (const String& cell : cells) {
        text.append(text.empty() ? u"" : u";").append(cell);
    }
    return text.append(LineEnd);
}

/// Numbers stand without quotation marks, so that they can be worked with.
String number(double value)
{
    return plainText(value, u',');
}

String lineOf(const Result& result)
{
    const MarkRow& mark = markFor(result.points, result.pointsMax);
    return line({formatPattern(result.at, u"dd.mm.yyyy"), formatPattern(result.at, u"hh:nn:ss"),
                 csvCell(result.sender.screenName), csvCell(result.sender.userName),
                 csvCell(result.sender.computer), csvCell(result.exercise), number(result.points),
                 number(result.pointsMax), csvCell(mark.words), csvCell(shownAdditional(result.additional))});
}

} // namespace

String csvCell(StringView text)
{
    const bool isFormula = !text.empty() && FormulaSigns.find(text.front()) != StringView::npos;
    return u"\"" + String(isFormula ? u"'" : u"") + replaced(text, u"\"", u"\"\"") + u"\"";
}

std::string resultsAsCsv(MasterStore& store)
{
    std::string csv(Utf8Mark);
    csv += toUtf8(line({u"Datum", u"Zeit", u"Name", u"Login", u"Computer", u"\u00DCbung", u"Punkte",
                        u"Erreichbar", u"Note", u"Zusatz"}));
    store.visitResults([&](const Result& result) { csv += toUtf8(lineOf(result)); });
    return csv;
}

} // namespace phial::master
