#include "desk/SheetPrint.h"

#include "core/NumberText.h"
#include "core/Palette.h"
#include "visual/Markup.h"
#include "visual/Printer.h"

#include <algorithm>

namespace phial
{

namespace
{

// Pixels of the page, 96 to an inch.
constexpr double PageMargin = 56;
constexpr double BelowTitle = 16;
constexpr double RowMargin = 4; // above and below a row's text
constexpr double ColumnGap = 16;
constexpr double SubjectShare = 0.36; // of the page's width
constexpr double NumberHeight = 28;

constexpr FontDesign TitleFont{.size = 16, .bold = true};
constexpr FontDesign RowFont{.size = 11};

/// Writes from above to below, and goes to the next page where one is full.
class SheetPages
{
public:
    explicit SheetPages(DrawDevice& page) : page_(page)
    {
        page_.ScaleMode(ScaleUnit::Pixels);
        page_.ForeColor(RGB(0, 0, 0));
    }

    void title(const String& text)
    {
        const MarkupLayout layout = broken(text, TitleFont, width());
        draw(layout, PageMargin, width());
        top_ += layout.size().height + BelowTitle;
    }

    void row(const SheetEntry& entry)
    {
        const double subjectWidth = SubjectShare * width();
        const double contentWidth = width() - subjectWidth - ColumnGap;
        const MarkupLayout subject = broken(entry.subject, RowFont, subjectWidth);
        const MarkupLayout content = broken(entry.content, RowFont, contentWidth);
        const double height = std::max(subject.size().height, content.size().height) + 2 * RowMargin;
        if (top_ + height > page_.ScaleHeight() - PageMargin - NumberHeight) {
            endPage();
            page_.NewPage();
            top_ = PageMargin;
        }
        page_.Line(PageMargin, top_, PageMargin + width(), top_, Palette::Divider);
        top_ += RowMargin;
        draw(subject, PageMargin, subjectWidth);
        draw(content, PageMargin + subjectWidth + ColumnGap, contentWidth);
        top_ += height - RowMargin;
    }

    void endPage()
    {
        ++number_;
        top_ = page_.ScaleHeight() - PageMargin;
        const MarkupLayout number = broken(plainText(number_), RowFont, width());
        number.draw(page_, {PageMargin, top_, width(), number.size().height}, TextSide::Middle,
                    TextSide::Near);
    }

private:
    double width() { return page_.ScaleWidth() - 2 * PageMargin; }

    MarkupLayout broken(const String& text, const FontDesign& font, double room)
    {
        return {text, font.traits(), visualHost().metrics(), room, TextForm::Plain};
    }

    void draw(const MarkupLayout& layout, double left, double room)
    {
        layout.draw(page_, {left, top_, room, layout.size().height}, TextSide::Near, TextSide::Near);
    }

    DrawDevice& page_;
    double top_ = PageMargin;
    std::int32_t number_ = 0;
};

} // namespace

void printEntries(const String& title, std::span<const SheetEntry> entries)
{
    if (entries.empty()) {
        return;
    }
    Printer printer;
    printer.Title(title);
    SheetPages pages(printer.device());
    pages.title(title);
    for (const SheetEntry& entry : entries) {
        pages.row(entry);
    }
    pages.endPage();
    printer.EndDoc();
}

} // namespace phial
