#include "visual/Markup.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

constexpr double SmallSize = 0.75;   // of raised and lowered text, by the font's size
constexpr double LoweredShare = 0.3; // of the line's height, from the line's top

enum class MarkupTag : std::int32_t { LineEnd, Bold, Italic, Lowered, Raised };

struct TagName {
    StringView name;
    MarkupTag tag;
};

constexpr auto TagNames = std::to_array<TagName>({
    {u"br", MarkupTag::LineEnd},
    {u"br/", MarkupTag::LineEnd},
    {u"b", MarkupTag::Bold},
    {u"i", MarkupTag::Italic},
    {u"sub", MarkupTag::Lowered},
    {u"sup", MarkupTag::Raised},
});

/// Reads markup into runs: a run goes on as long as its look does.
class MarkupReader
{
public:
    explicit MarkupReader(StringView text, TextForm form = TextForm::Markup) : rest_(text), form_(form) {}

    std::vector<MarkupRun> read()
    {
        while (!rest_.empty()) {
            readOne();
        }
        endRun(false);
        return std::move(runs_);
    }

private:
    void readOne()
    {
        const char16_t unit = rest_.front();
        if (unit == u'<' && form_ != TextForm::Plain && readTag()) {
            return;
        }
        rest_.remove_prefix(1);
        if (unit == u'\r' || unit == u'\n') {
            if (unit == u'\r' && rest_.starts_with(u'\n')) {
                rest_.remove_prefix(1);
            }
            endRun(true);
        } else {
            text_ += unit;
        }
    }

    /// False: what follows is no tag.
    bool readTag()
    {
        constexpr std::size_t LongestTag = 6; // "</sub>"
        const auto end = rest_.substr(0, LongestTag).find(u'>');
        if (end == StringView::npos) {
            return false;
        }
        StringView name = rest_.substr(1, end - 1);
        const bool closing = name.starts_with(u'/');
        name.remove_prefix(closing ? 1 : 0);
        const auto known = std::ranges::find_if(
            TagNames, [name](const TagName& entry) { return equalsIgnoringCase(entry.name, name); });
        if (known == TagNames.end()) {
            return false;
        }
        rest_.remove_prefix(end + 1);
        if (known->tag == MarkupTag::LineEnd) {
            endRun(true);
        } else {
            endRun(false);
            closing ? close(known->tag) : open_.push_back(known->tag);
        }
        return true;
    }

    void close(MarkupTag tag)
    {
        const auto last = std::ranges::find(open_.rbegin(), open_.rend(), tag);
        if (last != open_.rend()) {
            open_.erase(std::next(last).base());
        }
    }

    void endRun(bool lineEnd)
    {
        if (text_.empty() && !lineEnd) {
            return;
        }
        MarkupRun run{std::exchange(text_, {}), false, false, 0, lineEnd};
        for (const MarkupTag tag : open_) {
            run.bold = run.bold || tag == MarkupTag::Bold;
            run.italic = run.italic || tag == MarkupTag::Italic;
            run.level = tag == MarkupTag::Lowered ? -1 : tag == MarkupTag::Raised ? 1 : run.level;
        }
        runs_.push_back(std::move(run));
    }

    StringView rest_;
    TextForm form_;
    std::vector<MarkupTag> open_;
    String text_;
    std::vector<MarkupRun> runs_;
};

FontSpec fontOf(const MarkupRun& run, const FontSpec& base)
{
    FontSpec font = base;
    font.bold = font.bold || run.bold;
    font.italic = font.italic || run.italic;
    font.size = run.level == 0 ? font.size : font.size * SmallSize;
    return font;
}

} // namespace

std::vector<MarkupRun> parseMarkup(StringView text)
{
    return MarkupReader(text).read();
}

String plainMarkup(StringView text)
{
    String plain;
    for (const MarkupRun& run : parseMarkup(text)) {
        plain += run.text;
        if (run.lineEnd) {
            plain += u'\n';
        }
    }
    return plain;
}

/// Sets runs in lines, word by word. A word is what stands between blanks, whatever its looks, and carries
/// the blanks behind it.
class MarkupLayout::Setter
{
public:
    Setter(MarkupLayout& layout, TextMetrics& metrics, std::optional<double> wrapWidth, TextForm form)
        : layout_(layout), metrics_(metrics), wrapWidth_(wrapWidth), form_(form)
    {
    }

    void add(const MarkupRun& run)
    {
        look_ = {{}, fontOf(run, layout_.font_), 0, 0, 0};
        look_.y = run.level < 0 ? layout_.lineHeight_ * LoweredShare : 0;
        face_ = metrics_.face(look_.font);
        for (StringView rest = run.text; !rest.empty();) {
            const bool blank = rest.front() == u' ';
            const auto end = blank ? rest.find_first_not_of(u' ') : rest.find(u' ');
            addChunk(rest.substr(0, end), blank);
            rest.remove_prefix(std::min(end, rest.size()));
        }
        if (run.lineEnd) {
            endLine();
        }
    }

    void finish()
    {
        endLine();
        for (const Line& line : layout_.lines_) {
            layout_.size_.width = std::max(layout_.size_.width, line.width);
        }
        layout_.size_.height = layout_.lineHeight_ * static_cast<double>(layout_.lines_.size());
    }

private:
    void addChunk(StringView text, bool blank)
    {
        if (!blank && blankWidth_ > 0) {
            placeWord();
        }
        Piece piece = look_;
        piece.text = text;
        piece.width = face_->width(text);
        (blank ? blankWidth_ : wordWidth_) += piece.width;
        word_.push_back(std::move(piece));
    }

    void placeWord()
    {
        if (wrapWidth_ && !line_.pieces.empty() && end_ + wordWidth_ > *wrapWidth_) {
            breakLine();
        }
        for (Piece& piece : word_) {
            if (form_ != TextForm::Markup) {
                breakWithin(piece);
            }
            piece.x = end_;
            end_ += piece.width;
            append(std::move(piece));
        }
        line_.width = end_ - blankWidth_;
        word_.clear();
        wordWidth_ = blankWidth_ = 0;
    }

    /// Sets as much of a piece that is too wide as makes full lines, and leaves the rest of it.
    void breakWithin(Piece& piece)
    {
        while (wrapWidth_ && piece.text.front() != u' ' && end_ + piece.width > *wrapWidth_) {
            const std::size_t length = fitting(piece.text);
            if (length >= piece.text.size()) {
                return;
            }
            Piece head = piece;
            head.text.resize(length);
            head.width = face_->width(head.text);
            head.x = end_;
            line_.width = end_ + head.width;
            append(std::move(head));
            breakLine();
            piece.text.erase(0, length);
            piece.width = face_->width(piece.text);
        }
    }

    /// How many units of the text have room on the line, at least one letter. The length is doubled and then
    /// halved in on, since a long text is dear to measure.
    std::size_t fitting(StringView text) const
    {
        const auto fits = [&](std::size_t length) {
            return end_ + face_->width(text.substr(0, length)) <= *wrapWidth_;
        };
        std::size_t above = 1;
        while (above < text.size() && fits(above)) {
            above *= 2;
        }
        std::size_t below = above / 2;
        above = std::min(above, text.size());
        while (above - below > 1) {
            const std::size_t middle = below + (above - below) / 2;
            (fits(middle) ? below : above) = middle;
        }
        return wholeLetters(text, std::max<std::size_t>(below, 1));
    }

    /// The length, with the second half of a pair of units if it would be parted.
    static std::size_t wholeLetters(StringView text, std::size_t length)
    {
        const bool parts = length < text.size() && isLowSurrogate(text[length]);
        return !parts ? length : length > 1 ? length - 1 : length + 1;
    }

    void append(Piece piece)
    {
        if (!line_.pieces.empty()) {
            Piece& last = line_.pieces.back();
            if (last.font == piece.font && last.y == piece.y) {
                last.text += piece.text;
                last.width += piece.width;
                return;
            }
        }
        line_.pieces.push_back(std::move(piece));
    }

    void endLine()
    {
        placeWord();
        breakLine();
    }

    void breakLine()
    {
        layout_.lines_.push_back(std::exchange(line_, {}));
        end_ = 0;
    }

    MarkupLayout& layout_;
    TextMetrics& metrics_;
    std::optional<double> wrapWidth_;
    TextForm form_;
    Piece look_; ///< of the run at hand
    std::shared_ptr<const FontFace> face_;
    std::vector<Piece> word_;
    double wordWidth_ = 0;
    double blankWidth_ = 0; ///< of the blanks behind the word
    Line line_;
    double end_ = 0;
};

MarkupLayout::MarkupLayout(StringView text, const FontSpec& font, TextMetrics& metrics,
                           std::optional<double> wrapWidth, TextForm form)
    : font_(font), lineHeight_(metrics.face(font)->height())
{
    Setter setter(*this, metrics, wrapWidth, form);
    for (const MarkupRun& run : MarkupReader(text, form).read()) {
        setter.add(run);
    }
    setter.finish();
}

void MarkupLayout::draw(DrawDevice& device, const PixelRectangle& box, TextSide horizontal,
                        TextSide vertical) const
{
    double top = box.top + along(box.height - size_.height, vertical);
    for (const Line& line : lines_) {
        const double left = box.left + along(box.width - line.width, horizontal);
        for (const Piece& piece : line.pieces) {
            device.font(piece.font);
            device.CurrentX(left + piece.x);
            device.CurrentY(top + piece.y);
            device.Print(piece.text);
        }
        top += lineHeight_;
    }
    device.font(font_);
}

} // namespace phial
