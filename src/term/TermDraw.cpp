#include "term/TermDraw.h"

#include "core/Arithmetic.h"
#include "core/Colour.h"
#include "core/NumberText.h"
#include "term/TermBrackets.h"
#include "visual/DrawDevice.h"

#include <algorithm>
#include <vector>

namespace phial
{

namespace
{

constexpr int Red = 12;                   // of the classic table of colours
constexpr double IndexSize = 0.9;         // of the base font size
constexpr double IndexShift = 0.3;        // of the line height, down or up
constexpr std::size_t LongestNumber = 32; // no number in canonical form has more characters

enum class Mode : std::int8_t { Superscript = -1, Normal = 0, Subscript = 1 };

bool isIndexSign(char16_t unit)
{
    return StringView(u"0123456789,.").find(unit) != StringView::npos;
}

/// Whether turning the text into a number and back gives the same text.
bool isCanonicalNumber(StringView text)
{
    return !text.empty() && text.size() <= LongestNumber &&
           plainText(numberAtStart(text).value, u'.') == text;
}

/// What is set back when a term or the numerator or denominator of a fraction has been drawn.
struct SavedState {
    String fontName;
    double fontSize;
    Colour foreColor;
    bool fontBold;
    double currentY;
};

/// One walk through a term or a part of it.
struct Walk {
    bool drawing = false; // the first walk measures, the second draws
    std::size_t position = 0;
    double base = 0; // top of the line, a whole number
    Mode mode = Mode::Normal;
    bool forced = false;
    bool plain = true;
    double anchor = 0; // X behind the last character in normal mode
    bool stroke = false;
    double strokeX = -1;
    double strokeY = -1;
};

/// A term, numerator or denominator being drawn. Fractions nest as entries of a list, not as calls, so that
/// no term exhausts the stack.
struct Frame {
    TermRange part;
    double x = 0;
    double y = 0;
    TEXTALIGN align = TEXTALIGN::TopLeft;
    SavedState saved;
    double lineHeight = 0;
    double width = 0;
    Walk walk;
    // The fraction that this part waits for.
    TermFraction fraction;
    double fractionX = 0;
    std::int32_t numeratorWidth = 0;
    bool numeratorDone = false;
};

class TermPainter
{
public:
    TermPainter(DrawDevice& device, StringView term, std::int32_t caret)
        : device_(device), term_(term), brackets_(term), caret_(caret)
    {
    }

    std::int32_t draw(double x, double y, TEXTALIGN align)
    {
        open({0, term_.size()}, x, y, align);
        while (!frames_.empty()) {
            Frame& frame = frames_.back();
            if (frame.walk.position < frame.part.end) {
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

    std::int32_t caretX = -1;
    std::int32_t previousIndex = -1;
    std::int32_t nextIndex = -1;

private:
    void open(TermRange part, double x, double y, TEXTALIGN align)
    {
        Frame frame;
        frame.part = part;
        frame.saved = {device_.FontName(), device_.FontSize(), device_.ForeColor(), device_.FontBold(),
                       device_.CurrentY()};
        frame.lineHeight = device_.TextHeight(u"A");
        frame.x = x;
        frame.y = y;
        frame.align = align;
        frames_.push_back(std::move(frame));
        begin(frames_.back(), false);
    }

    /// Starts the measuring or the drawing walk of a part.
    void begin(Frame& frame, bool drawing)
    {
        device_.FontName(frame.saved.fontName);
        device_.ForeColor(frame.saved.foreColor);
        device_.FontBold(frame.saved.fontBold || startsWithCoefficient(frame.part));
        const double startX = drawing ? alignedX(frame) : frame.x;
        frame.walk = Walk();
        frame.walk.drawing = drawing;
        frame.walk.position = frame.part.begin;
        frame.walk.base = toWhole(drawing ? alignedY(frame) : frame.y);
        frame.walk.anchor = startX;
        device_.CurrentX(startX);
        device_.CurrentY(frame.walk.base);
        if (drawing && isWholeTerm() && caret_ == 0) {
            drawCaret();
        }
    }

    bool startsWithCoefficient(TermRange part) const
    {
        const std::size_t blank = brackets_.firstBlank(part);
        return blank != part.end && isCanonicalNumber(term_.substr(part.begin, blank - part.begin));
    }

    static double alignedX(const Frame& frame)
    {
        switch (frame.align) {
        case TEXTALIGN::MiddleCentre:
        case TEXTALIGN::TopCentre:
        case TEXTALIGN::BottomCentre:
            return frame.x - frame.width / 2;
        case TEXTALIGN::MiddleRight:
        case TEXTALIGN::TopRight:
        case TEXTALIGN::BottomRight:
            return frame.x - frame.width;
        default:
            return frame.x;
        }
    }

    static double alignedY(const Frame& frame)
    {
        switch (frame.align) {
        case TEXTALIGN::MiddleLeft:
        case TEXTALIGN::MiddleCentre:
        case TEXTALIGN::MiddleRight:
            return frame.y - frame.lineHeight / 2;
        case TEXTALIGN::BottomLeft:
        case TEXTALIGN::BottomCentre:
        case TEXTALIGN::BottomRight:
            return frame.y - frame.lineHeight;
        default:
            return frame.y;
        }
    }

    bool isWholeTerm() const { return frames_.size() == 1; }

    /// Ends the drawing walk of a part and hands its width to the fraction that waits for it.
    void close(Frame& frame)
    {
        if (frame.walk.stroke) {
            const double endX = device_.CurrentX();
            device_.Line(frame.walk.strokeX, frame.walk.strokeY, endX, device_.CurrentY());
            device_.CurrentX(endX);
        }
        device_.FontSize(frame.saved.fontSize);
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
        Walk& walk = frame.walk;
        const char16_t c = term_[walk.position];
        device_.FontSize(frame.saved.fontSize);
        device_.CurrentY(walk.base);
        if (c == u'(') {
            const TermFraction fraction = brackets_.fractionAt(walk.position, frame.part.end);
            if (fraction.found) {
                startFraction(frame, fraction);
                return;
            }
        }
        walk.position += drawSign(frame, c);
        placeCaret(frame);
    }

    /// Applies the first rule that fits; gives the number of characters used.
    std::size_t drawSign(Frame& frame, char16_t c)
    {
        Walk& walk = frame.walk;
        const char16_t next = neighbour(frame, 1);
        switch (c) {
        case u'§':
            device_.ForeColor(QBColor(Red));
            return 1;
        case u' ':
            walk.mode = Mode::Normal;
            return printPlain(walk, c);
        case u'^':
            return jumpToAnchor(walk, Mode::Superscript);
        case u'µ':
            return jumpToAnchor(walk, Mode::Subscript);
        case u'#':
            walk.mode = Mode::Normal;
            walk.anchor = device_.CurrentX();
            return 1;
        case u'|':
            return next == End ? printPlain(walk, c) : startStroke(walk);
        case u'~':
            return next == u'~' ? drawApproximately(frame) : drawIndexed(frame, c);
        case u'*':
            return drawMiddleDot(frame);
        case u',':
        case u'(':
        case u'/':
            return printPlain(walk, c);
        case u'+':
            return walk.mode != Mode::Superscript && next != End && next != u')' ? printPlain(walk, c)
                                                                                 : drawIndexed(frame, c);
        case u')':
            walk.plain = false;
            put(walk, c);
            return 1;
        case u'=':
            return next == u'^' ? drawCorrespondence(frame) : drawIndexed(frame, c);
        case u'-':
            return next == u'>' ? drawArrow(frame, u'\u00E0') : drawIndexed(frame, c);
        case u'<':
            return next == u'-' ? drawArrow(frame, u'\u00DF') : drawIndexed(frame, c);
        default:
            return drawIndexed(frame, c);
        }
    }

    /// The character `offset` places on within the part; End outside of it.
    char16_t neighbour(const Frame& frame, std::ptrdiff_t offset) const
    {
        const auto place = static_cast<std::ptrdiff_t>(frame.walk.position) + offset;
        const bool inside = place >= static_cast<std::ptrdiff_t>(frame.part.begin) &&
                            place < static_cast<std::ptrdiff_t>(frame.part.end);
        return inside ? term_[static_cast<std::size_t>(place)] : End;
    }

    void put(const Walk& walk, char16_t c)
    {
        const StringView text(&c, 1);
        if (walk.drawing) {
            device_.Print(text);
        } else {
            device_.CurrentX(device_.CurrentX() + device_.TextWidth(text));
        }
    }

    std::size_t printPlain(Walk& walk, char16_t c)
    {
        walk.plain = true;
        put(walk, c);
        return 1;
    }

    std::size_t jumpToAnchor(Walk& walk, Mode mode)
    {
        device_.CurrentX(walk.anchor);
        walk.mode = mode;
        walk.forced = true;
        return 1;
    }

    std::size_t startStroke(Walk& walk)
    {
        walk.stroke = true;
        walk.strokeX = device_.CurrentX();
        walk.strokeY = device_.CurrentY() + device_.TextHeight(u"|");
        return 1;
    }

    void moveX(double distance) { device_.CurrentX(device_.CurrentX() + distance); }

    std::size_t drawApproximately(Frame& frame)
    {
        device_.FontName(u"Symbol");
        device_.CurrentY(frame.walk.base + frame.lineHeight / 2 - 0.6 * device_.TextHeight(u"i"));
        printPlain(frame.walk, u'\u00BB');
        moveX(-2);
        device_.FontName(frame.saved.fontName);
        return 2;
    }

    std::size_t drawMiddleDot(Frame& frame)
    {
        device_.FontName(u"Marlett");
        device_.FontSize(0.6 * frame.saved.fontSize);
        moveX(-2);
        device_.CurrentY(frame.walk.base + frame.lineHeight / 2 - device_.TextHeight(u"i") / 2);
        printPlain(frame.walk, u'i');
        device_.FontSize(frame.saved.fontSize);
        moveX(-2);
        device_.FontName(frame.saved.fontName);
        return 1;
    }

    std::size_t drawArrow(Frame& frame, char16_t arrow)
    {
        device_.FontName(u"Wingdings");
        moveX(10);
        device_.CurrentY(frame.walk.base + 0.1 * frame.lineHeight);
        device_.FontSize(0.8 * frame.saved.fontSize);
        printPlain(frame.walk, arrow);
        device_.FontSize(frame.saved.fontSize);
        moveX(10);
        device_.FontName(frame.saved.fontName);
        return 2;
    }

    std::size_t drawCorrespondence(Frame& frame)
    {
        const double startX = device_.CurrentX();
        printPlain(frame.walk, u'=');
        device_.CurrentY(device_.CurrentY() + frame.lineHeight / 10);
        device_.FontSize(0.5 * frame.saved.fontSize);
        device_.CurrentX((device_.CurrentX() + startX) / 2 - device_.TextWidth(u"^") / 2);
        put(frame.walk, u'^');
        device_.FontSize(frame.saved.fontSize);
        device_.CurrentY(device_.CurrentY() - frame.lineHeight / 10);
        device_.CurrentX(startX + device_.TextWidth(u"="));
        return 2;
    }

    /// A sign is a charge when nothing of the formula follows it, and never behind a blank.
    bool isCharge(const Frame& frame) const
    {
        const char16_t next = neighbour(frame, 1);
        const bool formulaFollows =
            next != End && next != u' ' && next != u'|' && next != u')' && !isIndexSign(next);
        return !formulaFollows && neighbour(frame, -1) != u' ';
    }

    std::size_t drawIndexed(Frame& frame, char16_t c)
    {
        Walk& walk = frame.walk;
        bool isIndex = isIndexSign(c);
        if (!isIndex) {
            walk.plain = false;
        }
        if (walk.plain) {
            isIndex = false;
        }
        if ((c == u'+' || c == u'-') && isCharge(frame)) {
            walk.mode = Mode::Superscript;
            isIndex = true;
        }
        if (walk.forced) {
            walk.forced = false;
        } else if (walk.mode == Mode::Normal && isIndex) {
            walk.mode = Mode::Subscript;
        } else if (walk.mode != Mode::Normal && !isIndex) {
            walk.mode = Mode::Normal;
        }
        if (walk.mode != Mode::Normal) {
            device_.FontSize(IndexSize * frame.saved.fontSize);
            device_.CurrentY(walk.base + static_cast<int>(walk.mode) * IndexShift * frame.lineHeight);
        }
        put(walk, c);
        if (walk.mode == Mode::Normal) {
            walk.anchor = device_.CurrentX();
        }
        return 1;
    }

    /// A fraction is passed over while measuring, where it has no width.
    void startFraction(Frame& frame, const TermFraction& fraction)
    {
        if (!frame.walk.drawing) {
            frame.walk.position = fraction.next;
            return;
        }
        frame.fraction = fraction;
        frame.fractionX = device_.CurrentX();
        frame.numeratorDone = false;
        openPart(fraction.numerator, frame.fractionX, frame.walk.base - frame.lineHeight / 2);
    }

    void openPart(TermRange part, double x, double y)
    {
        open(part, toWhole(x), toWhole(y), TEXTALIGN::TopLeft);
    }

    void continueFraction(Frame& frame, std::int32_t partWidth)
    {
        const double middle = frame.walk.base + frame.lineHeight / 2;
        if (!frame.numeratorDone) {
            frame.numeratorDone = true;
            frame.numeratorWidth = partWidth;
            device_.CurrentX(frame.fractionX);
            openPart(frame.fraction.denominator, frame.fractionX, middle);
            return;
        }
        const double endX = frame.fractionX + std::max(frame.numeratorWidth, partWidth);
        device_.Line(frame.fractionX, middle, endX, middle);
        device_.CurrentX(endX);
        frame.walk.position = frame.fraction.next;
        placeCaret(frame);
    }

    void placeCaret(const Frame& frame)
    {
        if (frame.walk.drawing && isWholeTerm() && caret_ > 0 &&
            static_cast<std::size_t>(caret_) == frame.walk.position) {
            drawCaret();
        }
    }

    void drawCaret()
    {
        const double x = device_.CurrentX();
        const double y = device_.CurrentY();
        const double gap = device_.ScaleY(3, ScaleUnit::Pixels, device_.ScaleMode());
        device_.Line(x, gap, x, device_.ScaleHeight() - 1 - gap);
        device_.CurrentX(x);
        device_.CurrentY(y);
        caretX = toWhole(x);
        previousIndex = caret_ - 1;
        nextIndex = caret_ + 1;
    }

    static constexpr char16_t End = u'\uFFFF'; // no neighbour: no character has this code

    DrawDevice& device_;
    StringView term_;
    TermBrackets brackets_;
    std::int32_t caret_;
    std::int32_t width_ = 0;
    std::vector<Frame> frames_;
};

} // namespace

std::int32_t TermDraw(DrawDevice& pDevice, StringView pText, std::int32_t pX, std::int32_t pY,
                      TEXTALIGN pAlign, bool pCalcOnly, std::int32_t pCaret, std::int32_t& rCaretX,
                      std::int32_t& rPrevIndex, std::int32_t& rNextIndex)
{
    rCaretX = rPrevIndex = rNextIndex = -1;
    if (pCalcOnly) {
        return 0;
    }
    const double x = pX == -1 ? toWhole(pDevice.CurrentX()) : pX;
    const double y = pY == -1 ? toWhole(pDevice.CurrentY()) : pY;
    TermPainter painter(pDevice, pText, pCaret);
    const std::int32_t width = painter.draw(x, y, pAlign);
    rCaretX = painter.caretX;
    rPrevIndex = painter.previousIndex;
    rNextIndex = painter.nextIndex;
    return width;
}

std::int32_t TermDraw(DrawDevice& pDevice, StringView pText, std::int32_t pX, std::int32_t pY,
                      TEXTALIGN pAlign)
{
    std::int32_t caretX = -1;
    std::int32_t previousIndex = -1;
    std::int32_t nextIndex = -1;
    return TermDraw(pDevice, pText, pX, pY, pAlign, false, -1, caretX, previousIndex, nextIndex);
}

} // namespace phial
