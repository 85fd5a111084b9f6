#include "term/TermDraw.h"

#include "core/Arithmetic.h"
#include "core/Colour.h"
#include "core/NumberText.h"
#include "term/TermBrackets.h"
#include "term/TermSigns.h"
#include "visual/DrawDevice.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace phial
{

namespace
{

constexpr std::int32_t NoCaret = -1;
constexpr std::size_t LongestNumber = 32; // no number in canonical form has more characters

/// Whether turning the text into a number and back gives the same text.
bool isCanonicalNumber(StringView text)
{
    return !text.empty() && text.size() <= LongestNumber &&
           plainText(numberAtStart(text).value, u'.') == text;
}

/// What is set back when a term or the numerator or denominator of a fraction has been drawn.
struct SavedState {
    Colour foreColor;
    bool fontBold;
    double currentY;
};

/// A fraction whose numerator and denominator are being drawn.
struct PendingFraction {
    TermFraction parts;
    double x;
    std::optional<std::int32_t> numeratorWidth; // none until it has been drawn
};

/// A term, numerator or denominator being drawn. Fractions nest as entries of a list, not as calls, so that
/// no term exhausts the stack.
struct Frame {
    TermLine line;
    double x;
    double y;
    TEXTALIGN align;
    SavedState saved;
    TermWalk walk;
    double width; // of the measuring walk
    PendingFraction fraction;
};

class TermPainter
{
public:
    TermPainter(DrawDevice& device, StringView term, std::int32_t caret)
        : device_(device), term_(term), brackets_(term), signs_(device, term, nullptr), caret_(caret)
    {
    }

    /// Draws nothing: fills the layout.
    TermPainter(DrawDevice& device, StringView term, TermLayout& rLayout)
        : device_(device), term_(term), brackets_(term), signs_(device, term, &rLayout), caret_(NoCaret),
          layout_(&rLayout)
    {
    }

    /// Draws at that anchor point; -1 stands for the device's current position. Gives the width in the
    /// measuring walk, which a layout does without where it can.
    std::int32_t draw(std::int32_t x, std::int32_t y, TEXTALIGN align)
    {
        open({0, term_.size()}, x == -1 ? toWhole(device_.CurrentX()) : x,
             y == -1 ? toWhole(device_.CurrentY()) : y, align);
        while (!frames_.empty()) {
            Frame& frame = frames_.back();
            if (frame.walk.position < frame.line.part.end) {
                step(frame);
            } else if (!frame.walk.drawing) {
                frame.width = device_.CurrentX() - frame.x;
                begin(frame, true);
            } else {
                close(frame);
            }
        }
        return width_;
    }

    // -1 when the caret is not drawn.
    std::int32_t caretX = -1;
    std::int32_t previousIndex = -1;
    std::int32_t nextIndex = -1;

private:
    void open(TermRange part, double x, double y, TEXTALIGN align)
    {
        frames_.push_back({.line = {part, device_.FontName(), device_.FontSize(), device_.TextHeight(u"A")},
                           .x = x,
                           .y = y,
                           .align = align,
                           .saved = {device_.ForeColor(), device_.FontBold(), device_.CurrentY()},
                           .walk = {},
                           .width = {},
                           .fraction = {}});
        begin(frames_.back(), layout_ && isWholeTerm() && placeOf(align).horizontal == TextSide::Near);
    }

    /// Starts the measuring or the drawing walk of a part.
    void begin(Frame& frame, bool drawing)
    {
        device_.ForeColor(frame.saved.foreColor);
        device_.FontBold(frame.saved.fontBold || startsWithCoefficient(frame.line.part));
        const TextPlace anchor = drawing ? placeOf(frame.align) : TextPlace{};
        const double startX = frame.x - along(frame.width, anchor.horizontal);
        const double startY = frame.y - along(frame.line.height, anchor.vertical);
        frame.walk = {.drawing = drawing,
                      .position = frame.line.part.begin,
                      .base = static_cast<double>(toWhole(startY)),
                      .anchor = startX};
        device_.CurrentX(startX);
        placeCaret(frame);
    }

    bool startsWithCoefficient(TermRange part) const
    {
        const std::size_t blank = brackets_.firstBlank(part);
        return blank != part.end && isCanonicalNumber(term_.substr(part.begin, blank - part.begin));
    }

    bool isWholeTerm() const { return frames_.size() == 1; }

    /// Ends the drawing walk of a part and hands its width to the fraction that waits for it.
    void close(Frame& frame)
    {
        if (frame.walk.stroke) {
            drawLine(*frame.walk.stroke, {device_.CurrentX(), device_.CurrentY()});
        }
        device_.FontSize(frame.line.fontSize);
        device_.ForeColor(frame.saved.foreColor);
        device_.FontBold(frame.saved.fontBold);
        device_.CurrentY(frame.saved.currentY);
        const std::int32_t width = toWhole(frame.width);
        frames_.pop_back();
        if (frames_.empty()) {
            width_ = width;
        } else {
            continueFraction(frames_.back(), width);
        }
    }

    /// Draws one character or sign; what it covers is left behind.
    void step(Frame& frame)
    {
        TermWalk& walk = frame.walk;
        device_.FontSize(frame.line.fontSize);
        device_.CurrentY(walk.base);
        if (term_[walk.position] == u'(') {
            const TermFraction fraction = brackets_.fractionAt(walk.position, frame.line.part.end);
            if (fraction.found) {
                startFraction(frame, fraction);
                return;
            }
        }
        walk.position += signs_.write(walk, frame.line);
        placeCaret(frame);
    }

    /// A fraction is passed over while measuring, where it has no width.
    void startFraction(Frame& frame, const TermFraction& fraction)
    {
        if (!frame.walk.drawing) {
            frame.walk.position = fraction.next;
            return;
        }
        const double x = device_.CurrentX();
        frame.fraction = {fraction, x, std::nullopt};
        openPart(fraction.numerator, x, frame.walk.base - frame.line.height / 2);
    }

    void openPart(TermRange part, double x, double y)
    {
        open(part, toWhole(x), toWhole(y), TEXTALIGN::TopLeft);
    }

    void continueFraction(Frame& frame, std::int32_t partWidth)
    {
        PendingFraction& fraction = frame.fraction;
        const double middle = frame.walk.base + frame.line.height / 2;
        if (!fraction.numeratorWidth) {
            fraction.numeratorWidth = partWidth;
            openPart(fraction.parts.denominator, fraction.x, middle);
            return;
        }
        const double endX = fraction.x + std::max(*fraction.numeratorWidth, partWidth);
        drawLine({fraction.x, middle}, {endX, middle});
        frame.walk.position = fraction.parts.next;
        placeCaret(frame);
    }

    /// The current point moves to the end of the line.
    void drawLine(PixelPoint from, PixelPoint to)
    {
        if (layout_) {
            layout_->addLine(device_, from, to);
            device_.CurrentX(to.x);
            device_.CurrentY(to.y);
        } else {
            device_.Line(from.x, from.y, to.x, to.y);
        }
    }

    void placeCaret(const Frame& frame)
    {
        if (!frame.walk.drawing || !isWholeTerm()) {
            return;
        }
        const auto index = static_cast<std::int32_t>(frame.walk.position);
        if (layout_) {
            layout_->addPlace(device_, index);
        } else if (caret_ == index) {
            drawCaret();
        }
    }

    void drawCaret()
    {
        const double x = device_.CurrentX();
        const double y = device_.CurrentY();
        const double gap = device_.ScaleY(3, ScaleUnit::Pixels, device_.ScaleMode());
        device_.Line(x, gap, x, device_.ScaleHeight() - 1 - gap);
        device_.CurrentY(y);
        caretX = toWhole(x);
        previousIndex = caret_ - 1;
        nextIndex = caret_ + 1;
    }

    DrawDevice& device_;
    StringView term_;
    TermBrackets brackets_;
    TermSigns signs_;
    std::int32_t caret_;
    TermLayout* layout_ = nullptr; // null while drawing
    std::int32_t width_ = 0;
    std::vector<Frame> frames_;
};

} // namespace

std::int32_t TermDraw(DrawDevice& pDevice, StringView pText, std::int32_t pX, std::int32_t pY,
                      TEXTALIGN pAlign, bool pCalcOnly, std::int32_t pCaret, std::int32_t& rCaretX,
                      std::int32_t& rPrevIndex, std::int32_t& rNextIndex)
{
    TermPainter painter(pDevice, pText, pCaret);
    const std::int32_t width = pCalcOnly ? 0 : painter.draw(pX, pY, pAlign);
    rCaretX = painter.caretX;
    rPrevIndex = painter.previousIndex;
    rNextIndex = painter.nextIndex;
    return width;
}

std::int32_t TermDraw(DrawDevice& pDevice, StringView pText, std::int32_t pX, std::int32_t pY,
                      TEXTALIGN pAlign)
{
    return TermPainter(pDevice, pText, NoCaret).draw(pX, pY, pAlign);
}

TermLayout layOutTerm(DrawDevice& device, StringView term, std::int32_t x, std::int32_t y, TEXTALIGN align)
{
    const double currentX = device.CurrentX();
    TermLayout layout;
    TermPainter(device, term, layout).draw(x, y, align);
    device.CurrentX(currentX);
    return layout;
}

PixelSize termSize(StringView term, const FontSpec& font)
{
    DrawDevice device(visualHost().createSurface({1, 1}, 1));
    device.font(font);
    const PixelRectangle extent =
        layOutTerm(device, term, 0, 0, TEXTALIGN::MiddleLeft).extent(visualHost().metrics());
    const double aboveOrBelow =
        std::max(-extent.top, extent.bottom()); // a term is aligned by its line's middle
    return {std::ceil(extent.right()), std::ceil(2 * aboveOrBelow)};
}

} // namespace phial
