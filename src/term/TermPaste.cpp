#include "term/TermPaste.h"

#include "term/OutsideText.h"
#include "visual/Input.h"

#include <algorithm>
#include <optional>
#include <span>

namespace phial
{

namespace
{

constexpr std::size_t LongestRead = 100'000; // far more than a term can hold

constexpr char16_t markOf(ScriptLevel level)
{
    return level == ScriptLevel::Superscript ? u'^' : u'µ';
}

/// Writes units so that the rules of terms read them at the levels that they have.
class TermWriter
{
public:
    String write(std::span<const OutsideUnit> units)
    {
        for (std::size_t at = 0; at < units.size(); ++at) {
            const OutsideUnit& unit = units[at];
            next_.reset();
            goesOn_ = false;
            if (at + 1 < units.size()) {
                const OutsideUnit& behind = units[at + 1];
                const bool isMarked = behind.level != ScriptLevel::Normal && behind.level != unit.level;
                goesOn_ = behind.level == unit.level;
                next_ = isMarked ? markOf(behind.level) : behind.unit;
            }
            add(unit);
            last_ = unit.level;
        }
        return std::move(term_);
    }

private:
    void add(const OutsideUnit& unit)
    {
        if (read_ > term_.size()) {
            term_ += unit.unit; // the second half of a sign
        } else if (unit.level == ScriptLevel::Normal) {
            addOrdinary(unit.unit);
        } else {
            addSmall(unit);
        }
    }

    void addOrdinary(char16_t unit)
    {
        const bool staysRaised =
            last_ == ScriptLevel::Superscript && levelOf({unit}) == ScriptLevel::Superscript;
        append(staysRaised ? String{u'#', unit} : String{unit});
    }

    /// A charge behind a letter or bracket is raised by itself; behind an index a mark sets it above that.
    /// What goes on in a level has no way back to the anchor, which would lay
    /// it upon what stands there.
    void addSmall(const OutsideUnit& unit)
    {
        const bool begins = last_ != unit.level;
        const bool needsMark =
            unit.level == ScriptLevel::Superscript && begins && (goesOn_ || last_ == ScriptLevel::Subscript);
        const String alone{unit.unit};
        const String marked{markOf(unit.level), unit.unit};
        if (!needsMark && levelOf(alone) == unit.level) {
            append(alone);
        } else if (begins && levelOf(marked) == unit.level) {
            append(marked);
        } else if (levelOf(u"#" + marked) == unit.level) {
            append(u"#" + marked);
        } else {
            append(alone);
        }
    }

    /// The level of the last sign of a piece, if it were written now.
    ScriptLevel levelOf(const String& piece) { return tried(piece).level; }

    void append(const String& piece)
    {
        const Trial trial = tried(piece);
        term_ += piece;
        rules_ = trial.rules;
        read_ = trial.read;
    }

    struct Trial {
        TermRules rules;
        std::size_t read;
        ScriptLevel level;
    };

    Trial tried(const String& piece)
    {
        const std::size_t before = term_.size();
        const std::size_t end = before + piece.size();
        term_ += piece;
        if (next_) {
            term_ += *next_;
        }
        Trial trial{rules_, before, ScriptLevel::Normal};
        while (trial.read < end) {
            const TermSign sign = trial.rules.read(term_, trial.read);
            trial.level = sign.level;
            trial.read += sign.length;
        }
        term_.resize(before);
        return trial;
    }

    String term_;
    TermRules rules_;      // behind what has been read
    std::size_t read_ = 0; // one more than there is while a sign of two units is written
    ScriptLevel last_ = ScriptLevel::Normal;
    std::optional<char16_t> next_; // as far as it is known
    bool goesOn_ = false;          // the next unit has the same level
};

bool isLevelled(const OutsideUnit& unit)
{
    return unit.level != ScriptLevel::Normal;
}

/// The term that a term field has put into its HTML.
std::optional<String> ownTerm(StringView html)
{
    constexpr StringView Mark = u"data-term=\"";
    const std::size_t found = html.find(Mark);
    const std::size_t begin = found + Mark.size();
    const std::size_t end = found == StringView::npos ? found : html.find(u'"', begin);
    if (end == StringView::npos) {
        return std::nullopt;
    }
    return withoutEntities(html.substr(begin, end - begin));
}

/// The term without what no line holds.
String cleaned(StringView term)
{
    String line;
    for (std::size_t at = 0; at < term.size(); ++at) {
        const bool isPair = isHighSurrogate(term[at]) && at + 1 < term.size() && isLowSurrogate(term[at + 1]);
        if (isPair) {
            line += term.substr(at++, 2);
        } else if (isPrintable(term[at]) && !isHighSurrogate(term[at]) && !isLowSurrogate(term[at])) {
            line += term[at];
        }
    }
    return line;
}

} // namespace

String termOfText(StringView text)
{
    return TermWriter().write(readOutsideText(text.substr(0, LongestRead)));
}

String termOfClipboard(StringView text, StringView html)
{
    const StringView read = html.substr(0, LongestRead);
    if (const auto term = ownTerm(read)) {
        return cleaned(*term);
    }
    const std::vector<OutsideUnit> units = readOutsideHtml(read);
    return std::ranges::any_of(units, isLevelled) ? TermWriter().write(units) : termOfText(text);
}

} // namespace phial
