#include "formula_page/FormulaPage.h"

#include "core/Colour.h"
#include "term/TermDraw.h"
#include "visual/DrawDevice.h"

namespace formula_page
{

using phial::DrawDevice;
using phial::StringView;

namespace
{

/// A formula, or with an empty term a heading.
struct Row {
    StringView term;
    StringView remark;
};

constexpr Row Rows[] = {
    {{}, u"Indices"},
    {u"H2O", u"a digit behind a symbol is lowered"},
    {u"C6H12O6", u"so are several"},
    {u"Ca(OH)2", u"and one behind a bracket"},
    {u"Al2(SO4)3", u"inside and behind a bracket"},
    {u"2H2O", u"but not one at the start"},
    {u"CuSO4*5H2O", u"nor behind the dot of a hydrate"},
    {u"pKµS", u"µ lowers any sign"},
    {{}, u"Charges"},
    {u"Na+", u"a sign that nothing follows is raised"},
    {u"Cl-", u"minus as well"},
    {u"NH4+", u"behind an index"},
    {u"Fe^3+", u"^ raises a number with its sign"},
    {u"SO4^2-", u"index and charge one above the other"},
    {u"S2O3^2-", u"from the last letter in the line"},
    {u"[Cu(NH3)4]^2+", u"behind a complex"},
    {u"Fe(OH)2#^+", u"#^ raises from where the line ends"},
    {u"^1#^4C", u"each further digit needs one"},
    {{}, u"Equations"},
    {u"2H2 + O2 -> 2H2O", u"the arrow of a reaction"},
    {u"2 Al + 3 CuO -> Al2O3 + 3 Cu", u"a number and a blank in front: bold"},
    {u"N2 + 3H2 <- 2NH3", u"the arrow to the left"},
    {u"N2O4 <--> 2NO2", u"both arrows of an equilibrium"},
    {u"Ag^+ + Cl- -> AgCl", u"a plus that something follows needs ^"},
    {u"MnO4- + 8H^+ + 5e- -> Mn^2+ + 4H2O", u"a half equation"},
    {{}, u"Quantities"},
    {u"M(H2O) ~~ 18,02 g/mol", u"approximately"},
    {u"V = 22,4 L =^ n = 1 mol", u"corresponds to"},
    {u"c(H3O+) = 10^-7 mol/L", u"a raised power"},
    {u"NµA = 6,022*10^2#^3 mol^-1", u"of two digits without a sign"},
    {u"n = (m)/(M)", u"a fraction"},
    {u"w = (m(NaCl))/(m(H2O) + m(NaCl))", u"brackets within a fraction"},
    {u"K = (c(NH3)#^2)/(c(N2)*c(H2)#^3)", u"powers behind brackets"},
    {{}, u"Marks of the teacher"},
    {u"HCl + §NaOH", u"§ makes what follows red"},
    {u"m = n*|M", u"| strikes through what follows"},
    {u"K = §(c(A))/(c(B))", u"a red fraction"},
};

constexpr double Margin = 24;
constexpr double RemarkColumn = 380;
constexpr double NotationColumn = 630;
constexpr double Width = 910;
constexpr double HeadingHeight = 44;
constexpr double LineHeight = 34;
constexpr double FractionHeight = 58;

constexpr double FormulaSize = 14; // points, as are the following
constexpr double HeadingSize = 12;
constexpr double NoteSize = 9;

constexpr phial::Colour Ink = phial::RGB(0, 0, 0);
constexpr phial::Colour NoteInk = phial::RGB(80, 88, 96);
constexpr phial::Colour HeadingInk = phial::RGB(0, 96, 48);
constexpr phial::Colour Rule = phial::RGB(220, 224, 228);

double heightOf(const Row& row)
{
    if (row.term.empty()) {
        return HeadingHeight;
    }
    return row.term.find(u")/(") == StringView::npos ? LineHeight : FractionHeight;
}

void useFont(DrawDevice& device, StringView name, double size, bool bold, phial::Colour colour)
{
    device.FontName(name);
    device.FontSize(size);
    device.FontBold(bold);
    device.ForeColor(colour);
}

void printMiddle(DrawDevice& device, StringView text, double x, double middle)
{
    device.CurrentX(x);
    device.CurrentY(middle - device.TextHeight(text) / 2);
    device.Print(text);
}

void drawHeading(DrawDevice& device, const Row& row, double top)
{
    const double line = top + HeadingHeight - 6;
    useFont(device, u"Tahoma", HeadingSize, true, HeadingInk);
    printMiddle(device, row.remark, Margin, line - 12);
    device.Line(Margin, line, Width - Margin, line, Rule);
}

void drawFormula(DrawDevice& device, const Row& row, double top)
{
    const double middle = top + heightOf(row) / 2;
    useFont(device, u"Tahoma", FormulaSize, false, Ink);
    phial::TermDraw(device, row.term, static_cast<std::int32_t>(Margin), static_cast<std::int32_t>(middle),
                    phial::TEXTALIGN::MiddleLeft);
    useFont(device, u"Tahoma", NoteSize, false, NoteInk);
    printMiddle(device, row.remark, RemarkColumn, middle);
    useFont(device, u"Courier New", NoteSize, false, NoteInk);
    printMiddle(device, row.term, NotationColumn, middle);
}

} // namespace

phial::PixelSize pageSize()
{
    double height = 2 * Margin;
    for (const Row& row : Rows) {
        height += heightOf(row);
    }
    return {Width, height};
}

void drawPage(DrawDevice& device)
{
    device.Cls();
    double top = Margin;
    for (const Row& row : Rows) {
        if (row.term.empty()) {
            drawHeading(device, row, top);
        } else {
            drawFormula(device, row, top);
        }
        top += heightOf(row);
    }
}

} // namespace formula_page
