#include "master/CsvExport.h"

#include "core/Format.h"
#include "core/NumberText.h"
#include "core/Utf8Text.h"
#include "master/Packages.h"
#include "master/ShownText.h"
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

/// What a teacher should look at.
String remarkOn(const Result& result)
{
    String remark = isImplausible(result.points, result.pointsMax) ? u"mehr Punkte als erreichbar" : u"";
    if (isDoubtful(result.sender.screenName)) {
        remark.append(remark.empty() ? u"" : u", ").append(u"Name fraglich");
    }
    return remark;
}

} // namespace

String csvCell(StringView text)
{
    const String shown = shownSafely(text);
    const bool isFormula = !shown.empty() && FormulaSigns.find(shown.front()) != StringView::npos;
    return u"\"" + String(isFormula ? u"'" : u"") + replaced(shown, u"\"", u"\"\"") + u"\"";
}

std::string csvHead()
{
    return std::string(Utf8Mark) +
           toUtf8(line({u"Datum", u"Zeit", u"Name", u"Login", u"Computer", u"\u00DCbung", u"Punkte",
                        u"Erreichbar", u"Note", u"Zusatz", u"Hinweis"}));
}

std::string csvLine(const Result& result)
{
    const MarkRow& mark = markFor(result.points, result.pointsMax);
    const Sender& sender = result.sender;
    return toUtf8(
        line({formatPattern(result.at, u"dd.mm.yyyy"), formatPattern(result.at, u"hh:nn:ss"),
              csvCell(sender.screenName), csvCell(sender.userName), csvCell(sender.computer),
              csvCell(result.exercise), number(result.points), number(result.pointsMax), csvCell(mark.words),
              csvCell(shownAdditional(result.additional)), csvCell(remarkOn(result))}));
}

} // namespace phial::master
