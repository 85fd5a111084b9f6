#include "visual/Printer.h"

#include "core/Palette.h"
#include "core/SessionState.h"
#include "support/HeadlessSession.h"
#include "support/Raises.h"

namespace phial::test
{

namespace
{

using PrinterTest = HeadlessSession;

TEST_F(PrinterTest, SendsNothingBeforeSomethingIsDrawn)
{
    Printer printer;
    printer.device().FontSize(14);
    printer.EndDoc();
    EXPECT_TRUE(outside.visual().printed().empty());
}

TEST_F(PrinterTest, PrintsPagesInTheUnitItIsTold)
{
    Printer printer;
    printer.Title(u"Bestenliste");
    printer.Orientation(PageOrientation::Landscape);
    DrawDevice& page = printer.device();
    page.ScaleMode(ScaleUnit::Millimetres);
    page.FontName(u"Arial");
    page.CurrentX(25.4);
    page.CurrentY(25.4);
    page.Print(u"Rang");
    printer.NewPage();
    page.PrintLine(u"2");
    printer.EndDoc();
    ASSERT_EQ(outside.visual().printed().size(), 1U);
    const auto& document = outside.visual().printed().front();
    EXPECT_EQ(document.title, u"Bestenliste");
    EXPECT_EQ(document.orientation, PageOrientation::Landscape);
    EXPECT_EQ(document.page->text(), "text 96,96 \"Rang\" Arial 8 #000000\n"
                                     "page\n"
                                     "text 0,0 \"2\" Arial 8 #000000\n"
                                     "end\n");
    EXPECT_GT(document.page->size().width, document.page->size().height);
}

TEST_F(PrinterTest, PaperIsWhiteWhateverTheScreenShows)
{
    coreTheme().SetColours(ColourSet::Dark);
    Printer printer;
    DrawDevice& page = printer.device();
    page.ForeColor(Palette::Ink);
    page.Print(u"a");
    page.Line(0, 0, 15, 15, SystemColour::WindowText, LineShape::Filled);
    page.Gradient(0, 0, 15, 15, Palette::Ground, Palette::Surface, 0, 2);
    printer.EndDoc();
    const std::string text = outside.visual().printed().front().page->text();
    EXPECT_NE(text.find("#1C2836"), std::string::npos) << text;
    EXPECT_NE(text.find("#000000"), std::string::npos) << text;
    EXPECT_NE(text.find("#F6F9FC"), std::string::npos) << text;
    EXPECT_EQ(text.find("#EDF3F8"), std::string::npos) << text;
}

TEST_F(PrinterTest, OrientationIsSetBeforeTheFirstDrawingAndAgainBehindTheEnd)
{
    Printer printer;
    printer.device().Print(u"a");
    EXPECT_EQ(raisedBy([&] { printer.Orientation(PageOrientation::Landscape); }), 396);
    printer.EndDoc();
    printer.Orientation(PageOrientation::Landscape);
    printer.device().Print(u"b");
    EXPECT_EQ(outside.visual().printed().size(), 2U);
}

TEST_F(PrinterTest, RaisesWhenThereIsNone)
{
    outside.visual().hasPrinter(false);
    Printer printer;
    EXPECT_EQ(raisedBy([&] { printer.device().Print(u"a"); }), 482);
    EXPECT_EQ(raisedBy([&] { static_cast<void>(printer.device().TextWidth(u"a")); }), 482);
}

} // namespace

} // namespace phial::test
