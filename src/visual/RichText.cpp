#include "visual/RichText.h"

#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace phial
{

namespace
{

constexpr StringView LineEnd = u"\r\n";

/// The signs of bytes 0x80 to 0x9F in the Western code page; the others equal their code.
constexpr std::array<char16_t, 32> WesternSigns = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178,
};

constexpr std::array<StringView, 9> Destinations = {
    u"fonttbl", u"colortbl", u"stylesheet", u"info", u"pict", u"header", u"footer", u"object", u"generator"};

bool isWordLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

int hexValue(char16_t c)
{
    const auto at = StringView(u"0123456789abcdef").find(lowerCase(c));
    return at == StringView::npos ? 0 : static_cast<int>(at);
}

/// Reads a document once from front to end; groups are entries of a list.
class RichTextReader
{
public:
    explicit RichTextReader(StringView document) : document_(document) {}

    String read()
    {
        while (at_ < document_.size()) {
            const char16_t c = document_[at_++];
            switch (c) {
            case u'{':
                groups_.push_back(groups_.empty() ? Group() : groups_.back());
                break;
            case u'}':
                closeGroup();
                break;
            case u'\\':
                readControl();
                break;
            case u'\r':
            case u'\n':
                break;
            default:
                put(c);
            }
        }
        return std::move(text_);
    }

private:
    struct Group {
        bool skipped = false;
        int replacements = 1; // signs that stand in for a code unit, to be passed over
    };

    void closeGroup()
    {
        if (!groups_.empty()) {
            groups_.pop_back();
        }
        passOver_ = 0;
    }

    Group& group()
    {
        if (groups_.empty()) {
            groups_.emplace_back();
        }
        return groups_.back();
    }

    void put(char16_t c)
    {
        if (passOver_ > 0) {
            --passOver_;
        } else if (!group().skipped) {
            text_ += c;
        }
    }

    void putLineEnd()
    {
        if (!group().skipped) {
            text_ += LineEnd;
        }
    }

    void readControl()
    {
        if (at_ == document_.size()) {
            return;
        }
        if (!isWordLetter(document_[at_])) {
            readSymbol(document_[at_++]);
            return;
        }
        const std::size_t start = at_;
        while (at_ < document_.size() && isWordLetter(document_[at_])) {
            ++at_;
        }
        const StringView word = document_.substr(start, at_ - start);
        applyWord(word, readParameter());
    }

    /// The number behind a control word, and the one blank that ends it.
    int readParameter()
    {
        constexpr int Largest = 1'000'000;
        const bool negative = at_ < document_.size() && document_[at_] == u'-';
        at_ += negative ? 1 : 0;
        int value = 0;
        while (at_ < document_.size() && isDigit(document_[at_])) {
            value = std::min(Largest, value * 10 + (document_[at_++] - u'0'));
        }
        if (at_ < document_.size() && document_[at_] == u' ') {
            ++at_;
        }
        return negative ? -value : value;
    }

    void readSymbol(char16_t c)
    {
        switch (c) {
        case u'\'':
            if (at_ + 1 < document_.size()) {
                putByte(hexValue(document_[at_]) * 16 + hexValue(document_[at_ + 1]));
                at_ += 2;
            }
            break;
        case u'*':
            group().skipped = true;
            break;
        case u'~':
            put(u'\u00A0');
            break;
        case u'\r':
        case u'\n':
            putLineEnd();
            break;
        case u'\\':
        case u'{':
        case u'}':
            put(c);
            break;
        default:
            break;
        }
    }

    void putByte(int byte)
    {
        constexpr int First = 0x80;
        const bool special = byte >= First && byte < First + static_cast<int>(WesternSigns.size());
        put(special ? WesternSigns[static_cast<std::size_t>(byte - First)] : static_cast<char16_t>(byte));
    }

    void applyWord(StringView word, int parameter)
    {
        if (word == u"par" || word == u"line") {
            putLineEnd();
        } else if (word == u"tab") {
            put(u'\t');
        } else if (word == u"u") {
            put(static_cast<char16_t>(parameter));
            passOver_ = group().replacements;
        } else if (word == u"uc") {
            group().replacements = std::max(0, parameter);
        } else if (std::find(Destinations.begin(), Destinations.end(), word) != Destinations.end()) {
            group().skipped = true;
        }
    }

    StringView document_;
    std::size_t at_ = 0;
    std::vector<Group> groups_;
    int passOver_ = 0;
    String text_;
};

String codeUnit(char16_t c)
{
    return u"\\u" + plainText(static_cast<std::int32_t>(static_cast<std::int16_t>(c))) + u"?";
}

} // namespace

String toRichText(StringView plain, const FontSpec& font)
{
    String document = u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 " + font.name + u";}}\\f0\\fs" +
                      plainText(static_cast<std::int32_t>(std::lround(font.size * 2))) + u" ";
    for (const char16_t c : plain) {
        if (c == u'\\' || c == u'{' || c == u'}') {
            document.append(1, u'\\').append(1, c);
        } else if (c == u'\n') {
            document += u"\\par\r\n";
        } else if (c == u'\t') {
            document += u"\\tab ";
        } else if (c >= 0x80) {
            document += codeUnit(c);
        } else if (c != u'\r') {
            document += c;
        }
    }
    return document + u"}";
}

bool isRichText(StringView text)
{
    return text.starts_with(u"{\\rtf");
}

String richTextToPlain(StringView document)
{
    return RichTextReader(document).read();
}

} // namespace phial
