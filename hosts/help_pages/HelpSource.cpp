#include "help_pages/HelpSource.h"

#include "core/RuntimeError.h"
#include "core/Variant.h"
#include "visual/Markup.h"

#include <optional>

namespace help_pages
{

using phial::String;
using phial::StringView;

namespace
{

constexpr std::size_t MostChapters = 6;

/// What stands behind the sign at the start of a line.
String behind(StringView line, std::size_t sign)
{
    return phial::trimmed(String(line.substr(sign)));
}

[[noreturn]] void refuse(StringView line)
{
    throw phial::RuntimeError(phial::ErrorNumber::InvalidArgument,
                              u"A help book cannot have this line here: " + String(line));
}

/// Of a line that begins so.
std::optional<Block::Kind> kindOf(StringView sign)
{
    if (sign == u"> ") {
        return Block::Kind::Term;
    }
    if (sign == u"* ") {
        return Block::Kind::Step;
    }
    if (sign == u"! ") {
        return Block::Kind::Note;
    }
    if (sign == u"% ") {
        return Block::Kind::Picture;
    }
    return std::nullopt;
}

/// What a screen reader says of a block; empty for a picture, which shows what the text tells.
String saidOf(const Block& block, int step)
{
    switch (block.kind) {
    case Block::Kind::Picture:
        return {};
    case Block::Kind::Term:
        return block.text;
    case Block::Kind::Step:
        return phial::Variant(step).toText() + u". " + phial::plainMarkup(block.text);
    case Block::Kind::Key:
        return block.key + u": " + phial::plainMarkup(block.text);
    case Block::Kind::Paragraph:
    case Block::Kind::Note:
        break;
    }
    return phial::plainMarkup(block.text);
}

class Reader
{
public:
    void take(StringView line)
    {
        if (line.starts_with(u"# ")) {
            book_.title = behind(line, 1);
        } else if (line.starts_with(u"== ")) {
            begin(line);
        } else if (line.starts_with(u"= ")) {
            book_.chapters.push_back({behind(line, 1), {}});
        } else if (phial::trimmed(String(line)).empty()) {
            isWithin_ = false;
        } else if (const auto kind = kindOf(line.substr(0, 2))) {
            page(line).blocks.push_back({*kind, behind(line, 1), {}});
            isWithin_ = *kind == Block::Kind::Step || *kind == Block::Kind::Note;
        } else if (const std::size_t end = line.find(u"] "); line.starts_with(u'[') && end != line.npos) {
            page(line).blocks.push_back(
                {Block::Kind::Key, behind(line, end + 1), String(line.substr(1, end - 1))});
            isWithin_ = true;
        } else {
            addToParagraph(line);
        }
    }

    Book book()
    {
        bool isWhole =
            !book_.title.empty() && !book_.chapters.empty() && book_.chapters.size() <= MostChapters;
        for (const Chapter& chapter : book_.chapters) {
            isWhole = isWhole && !chapter.pages.empty();
        }
        if (!isWhole) {
            refuse(u"(the end)");
        }
        return std::move(book_);
    }

private:
    void begin(StringView line)
    {
        if (book_.chapters.empty()) {
            refuse(line);
        }
        book_.chapters.back().pages.push_back({behind(line, 2), {}});
        isWithin_ = false;
    }

    Page& page(StringView line)
    {
        if (book_.chapters.empty() || book_.chapters.back().pages.empty()) {
            refuse(line);
        }
        return book_.chapters.back().pages.back();
    }

    void addToParagraph(StringView line)
    {
        Page& current = page(line);
        if (isWithin_) {
            current.blocks.back().text += u" " + String(line);
        } else {
            current.blocks.push_back({Block::Kind::Paragraph, String(line), {}});
        }
        isWithin_ = true;
    }

    Book book_;
    bool isWithin_ = false; ///< a paragraph goes on
};

} // namespace

String Page::spoken() const
{
    String text = title + u".";
    int steps = 0;
    for (const Block& block : blocks) {
        steps += block.kind == Block::Kind::Step ? 1 : 0;
        if (const String said = saidOf(block, steps); !said.empty()) {
            text += u"\n" + said;
        }
    }
    return text + u"\n";
}

String Book::spoken() const
{
    String text = title + u".";
    std::int32_t number = 0;
    for (const Chapter& chapter : chapters) {
        text += u"\n" + phial::Variant(++number).toText() + u": " + chapter.title;
    }
    return text + u"\n";
}

Book Book::read(StringView source)
{
    Reader reader;
    while (!source.empty()) {
        const std::size_t end = source.find(u'\n');
        StringView line = source.substr(0, end);
        if (line.ends_with(u'\r')) {
            line.remove_suffix(1);
        }
        reader.take(line);
        source.remove_prefix(end == StringView::npos ? source.size() : end + 1);
    }
    return reader.book();
}

} // namespace help_pages
