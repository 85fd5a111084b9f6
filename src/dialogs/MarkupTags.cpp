#include "dialogs/MarkupTags.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <vector>

namespace phial
{

namespace
{

constexpr StringView LineEndTag = u"br";

/// A tag as it stands in a text: `<name>` or `</name>`.
struct PlacedTag {
    std::size_t begin;
    std::size_t end;
    String name; ///< in lower case
    bool isClosing;
};

bool isNameUnit(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || (unit >= u'0' && unit <= u'9');
}

/// The tag that begins there; none where what follows is plain text.
std::optional<PlacedTag> tagAt(StringView text, std::size_t begin)
{
    std::size_t at = begin + 1;
    const bool isClosing = at < text.size() && text[at] == u'/';
    at += isClosing ? 1 : 0;
    const std::size_t name = at;
    while (at < text.size() && isNameUnit(text[at])) {
        ++at;
    }
    if (at == name || at == text.size() || text[at] != u'>') {
        return std::nullopt;
    }
    return PlacedTag{begin, at + 1, lowerCase(text.substr(name, at - name)), isClosing};
}

/// All tags but line ends, which enclose nothing.
std::vector<PlacedTag> tagsOf(StringView text)
{
    std::vector<PlacedTag> tags;
    for (std::size_t at = text.find(u'<'); at != StringView::npos; at = text.find(u'<', at)) {
        const auto tag = tagAt(text, at);
        at = tag ? tag->end : at + 1;
        if (tag && tag->name != LineEndTag) {
            tags.push_back(*tag);
        }
    }
    return tags;
}

struct TagPair {
    PlacedTag opening;
    PlacedTag closing;
};

/// The tags of a text and how they belong together.
class TagPairs
{
public:
    explicit TagPairs(StringView text) : tags_(tagsOf(text)), partners_(tags_.size())
    {
        std::map<String, std::vector<std::size_t>> open;
        for (std::size_t at = 0; at < tags_.size(); ++at) {
            auto& sameName = open[tags_[at].name];
            if (!tags_[at].isClosing) {
                sameName.push_back(at);
            } else if (!sameName.empty()) {
                partners_[sameName.back()] = at;
                sameName.pop_back();
            }
        }
    }

    /// The pair of that name which just encloses the range, see markupEdit; the innermost of several.
    std::optional<TagPair> around(TextRange range, StringView name) const
    {
        const TextRange core = withoutOuterTags(range);
        const std::size_t behind = lastBehind(core.start + core.length);
        std::size_t begin = core.start;
        for (std::size_t at = firstFrom(core.start); at > 0 && joinsOn(tags_[at - 1], begin); --at) {
            const PlacedTag& opening = tags_[at - 1];
            begin = opening.begin;
            const auto partner = partners_[at - 1];
            if (opening.name == name && partner && tags_[*partner].begin >= core.start + core.length &&
                *partner < behind) {
                return TagPair{opening, tags_[*partner]};
            }
        }
        return std::nullopt;
    }

private:
    static bool joinsOn(const PlacedTag& tag, std::size_t begin)
    {
        return !tag.isClosing && tag.end == begin;
    }

    /// The first tag that begins there or later.
    std::size_t firstFrom(std::size_t place) const
    {
        const auto found = std::ranges::lower_bound(tags_, place, {}, &PlacedTag::begin);
        return static_cast<std::size_t>(found - tags_.begin());
    }

    /// The range without the opening tags at its start and the closing ones at its end.
    TextRange withoutOuterTags(TextRange range) const
    {
        std::size_t start = range.start;
        std::size_t end = range.start + range.length;
        for (std::size_t at = firstFrom(start); at < tags_.size(); ++at) {
            const PlacedTag& tag = tags_[at];
            if (tag.begin != start || tag.isClosing || tag.end > end) {
                break;
            }
            start = tag.end;
        }
        for (std::size_t at = firstFrom(end); at > 0; --at) {
            const PlacedTag& tag = tags_[at - 1];
            if (tag.end != end || !tag.isClosing || tag.begin < start) {
                break;
            }
            end = tag.begin;
        }
        return {start, end - start};
    }

    /// Behind the last one of the closing tags that follow there upon each other.
    std::size_t lastBehind(std::size_t place) const
    {
        std::size_t at = firstFrom(place);
        for (; at < tags_.size() && tags_[at].begin == place && tags_[at].isClosing; ++at) {
            place = tags_[at].end;
        }
        return at;
    }

    std::vector<PlacedTag> tags_;
    std::vector<std::optional<std::size_t>> partners_; ///< of opening tags
};

MarkupEdit withoutTags(StringView text, TextRange selection, const TagPair& pair)
{
    const auto moved = [&](std::size_t place) {
        const auto taken = [&](const PlacedTag& tag) {
            return place <= tag.begin ? 0 : std::min(place, tag.end) - tag.begin;
        };
        return place - taken(pair.opening) - taken(pair.closing);
    };
    const std::size_t start = moved(selection.start);
    const std::size_t end = moved(selection.start + selection.length);
    return {{pair.opening.begin, pair.closing.end - pair.opening.begin},
            String(text.substr(pair.opening.end, pair.closing.begin - pair.opening.end)),
            {start, end - start}};
}

/// The tags by which labels change the look of a text.
enum class LookTag : std::uint8_t { Bold, Italic, Lowered, Raised };
constexpr auto LookTagNames = std::to_array<StringView>({u"b", u"i", u"sub", u"sup"});

constexpr StringView nameOf(LookTag tag)
{
    return LookTagNames[static_cast<std::size_t>(tag)];
}

std::optional<LookTag> lookTag(const PlacedTag& tag)
{
    const auto found = std::ranges::find(LookTagNames, StringView(tag.name));
    return found == LookTagNames.end() ? std::nullopt
                                       : std::optional(static_cast<LookTag>(found - LookTagNames.begin()));
}

/// Writes a text anew, with the tags that its looks need at each place, well nested.
class MarkupRepair
{
public:
    explicit MarkupRepair(StringView text) : text_(text) {}

    String run()
    {
        std::size_t done = 0;
        for (const PlacedTag& tag : tagsOf(text_)) {
            const auto look = lookTag(tag);
            if (look) {
                write(text_.substr(done, tag.begin - done));
                done = tag.end;
                tag.isClosing ? close(*look) : open_.push_back(*look);
            }
        }
        write(text_.substr(done));
        hasFaults_ = hasFaults_ || !open_.empty();
        closeDownTo(0);
        return hasFaults_ ? written_ : String(text_);
    }

private:
    void close(LookTag tag)
    {
        const auto last = std::ranges::find(open_.rbegin(), open_.rend(), tag);
        hasFaults_ = hasFaults_ || last != open_.rbegin() || last == open_.rend();
        if (last != open_.rend()) {
            open_.erase(std::next(last).base());
        }
    }

    void write(StringView part)
    {
        if (!part.empty()) {
            writeTags();
            written_ += part;
        }
    }

    void writeTags()
    {
        const std::vector<LookTag> wanted = looks();
        const auto isWanted = [&](LookTag tag) { return std::ranges::find(wanted, tag) != wanted.end(); };
        const auto gone = std::ranges::find_if_not(standing_, isWanted);
        closeDownTo(static_cast<std::size_t>(gone - standing_.begin()));
        for (const LookTag tag : wanted) {
            if (std::ranges::find(standing_, tag) == standing_.end()) {
                written_ += u"<" + String(nameOf(tag)) + u">";
                standing_.push_back(tag);
            }
        }
    }

    /// What is seen of the open tags: of those for the height only the last.
    std::vector<LookTag> looks() const
    {
        std::vector<LookTag> seen;
        for (const LookTag tag : open_) {
            if (tag == LookTag::Lowered || tag == LookTag::Raised) {
                std::erase(seen, LookTag::Lowered);
                std::erase(seen, LookTag::Raised);
            }
            if (std::ranges::find(seen, tag) == seen.end()) {
                seen.push_back(tag);
            }
        }
        return seen;
    }

    void closeDownTo(std::size_t count)
    {
        for (; standing_.size() > count; standing_.pop_back()) {
            written_ += u"</" + String(nameOf(standing_.back())) + u">";
        }
    }

    StringView text_;
    std::vector<LookTag> open_; ///< as the text has it
    bool hasFaults_ = false;
    std::vector<LookTag> standing_; ///< as it has been written
    String written_;
};

} // namespace

String MarkupEdit::applied(StringView whole) const
{
    String changed(whole);
    return changed.replace(range.start, range.length, text);
}

MarkupEdit markupEdit(StringView text, TextRange selection, StringView format)
{
    const String tag = lowerCase(format);
    if (const auto pair = TagPairs(text).around(selection, tag)) {
        return withoutTags(text, selection, *pair);
    }
    const String opening = u"<" + tag + u">";
    return {selection,
            opening + String(text.substr(selection.start, selection.length)) + u"</" + tag + u">",
            {selection.start + opening.size(), selection.length}};
}

String repairedMarkup(StringView text)
{
    return MarkupRepair(text).run();
}

} // namespace phial
