#include "master/ShownText.h"

#include "master/CodePoints.h"
#include "master/SignTables.h"

#include <algorithm>
#include <map>
#include <set>

namespace phial::master
{

namespace
{

using namespace signs;

Alphabet alphabetOf(char32_t point)
{
    const auto* const entry =
        std::ranges::find_if(Alphabets, [&](const AlphabetRange& one) { return one.range.holds(point); });
    return entry == Alphabets.end() ? Alphabet::None : entry->alphabet;
}

/// The plain letter or digit behind one in disguise, where the two run in parallel; others as they are.
char32_t undisguised(char32_t point)
{
    constexpr char32_t WideSigns = 0xFF00 - 0x20;
    if (point >= 0xFF01 && point <= 0xFF5E) {
        return point - WideSigns;
    }
    if (point >= 0x1D400 && point <= 0x1D6A3) { // thirteen alphabets of 52 letters
        const char32_t letter = (point - 0x1D400) % 52;
        return letter < 26 ? U'A' + letter : U'a' + letter - 26;
    }
    return point;
}

constexpr std::size_t MarksInARow = 2;
constexpr char32_t Joiner = 0x200D;
constexpr char32_t PictureForm = 0xFE0F;

bool isPicture(char32_t point)
{
    return (point >= 0x2190 && point <= 0x2BFF) || (point >= 0x1F000 && point <= 0x1FFFF);
}

enum class Sight { Seen, Blank, Hidden, Piled };

/// Goes through the signs of a text and tells how they are seen. What joins the parts of a picture, such as
/// a coloured heart, belongs to it.
template <typename Visit>
void visitSigns(StringView text, Visit visit)
{
    std::size_t marks = 0;
    bool behindPicture = false;
    forEachPoint(text, [&](char32_t point) {
        marks = isIn(Marks, point) ? marks + 1 : 0;
        const bool joins = behindPicture && (point == Joiner || point == PictureForm);
        if (isIn(Blanks, point)) {
            visit(point, Sight::Blank);
        } else if (marks > MarksInARow) {
            visit(point, Sight::Piled);
        } else {
            visit(point, isIn(Hidden, point) && !joins ? Sight::Hidden : Sight::Seen);
        }
        behindPicture = joins || isPicture(point);
    });
}

String numberInQuotes(char32_t point)
{
    constexpr StringView Digits = u"0123456789ABCDEF";
    String digits;
    for (int place = 0; place < 4 || point > 0; ++place, point /= 16) {
        digits.insert(digits.begin(), Digits[point % 16]);
    }
    return u"\u2039" + digits + u"\u203A";
}

std::size_t columnsOfPoint(char32_t point)
{
    if (isIn(Marks, point) || isIn(Hidden, point)) {
        return 0;
    }
    return isIn(Wide, point) ? 2 : 1;
}

/// A letter of U+00C0 to U+00FF comes apart into the plain letter and its mark, as others may write it.
void appendLook(String& look, char32_t point)
{
    const std::size_t marked = point - 0xC0;
    if (point >= 0xC0 && marked < MarkedLetters.size() && MarkedLetters[marked] != U' ') {
        appendPoint(look, MarkedLetters[marked]);
        appendPoint(look, TheirMarks[marked]);
        return;
    }
    const std::size_t at = Alike.find(point);
    appendPoint(look, at == std::u32string_view::npos ? point : Looks[at]);
}

} // namespace

String shownSafely(StringView text)
{
    String shown;
    visitSigns(text, [&](char32_t point, Sight sight) {
        switch (sight) {
        case Sight::Seen:
            appendPoint(shown, point);
            break;
        case Sight::Blank:
            shown += u' ';
            break;
        case Sight::Hidden:
            shown += numberInQuotes(point);
            break;
        case Sight::Piled:
            break;
        }
    });
    return shown;
}

bool isDoubtful(StringView text)
{
    bool doubtful = false;
    Alphabet ofWord = Alphabet::None;
    visitSigns(text, [&](char32_t point, Sight sight) {
        const Alphabet alphabet = alphabetOf(point);
        const bool isLetter = alphabet != Alphabet::None;
        const bool isForeign = isLetter && ofWord != Alphabet::None && alphabet != ofWord;
        doubtful = doubtful || sight != Sight::Seen || isForeign || alphabet == Alphabet::Disguise;
        if (isLetter || !isIn(Marks, point)) {
            ofWord = alphabet;
        }
    });
    return doubtful;
}

String lookOf(StringView text)
{
    String look;
    visitSigns(text, [&](char32_t point, Sight sight) {
        if (sight == Sight::Blank) {
            look += u' ';
        } else if (sight == Sight::Seen) {
            appendLook(look, undisguised(point));
        }
    });
    return trimmed(look);
}

std::vector<bool> doubtfulOf(const std::vector<String>& names)
{
    std::map<String, String> firstOfLook;
    std::set<String> shared;
    for (const String& name : names) {
        const auto [first, isNew] = firstOfLook.try_emplace(lookOf(name), name);
        if (!isNew && !equalsIgnoringCase(trimmed(first->second), trimmed(name))) {
            shared.insert(first->first);
        }
    }
    std::vector<bool> doubtful;
    doubtful.reserve(names.size());
    for (const String& name : names) {
        doubtful.push_back(isDoubtful(name) || shared.contains(lookOf(name)));
    }
    return doubtful;
}

String isolated(StringView shown)
{
    bool turns = false;
    forEachPoint(shown, [&](char32_t point) { turns = turns || isIn(RightToLeft, point); });
    return turns ? u"\u2068" + String(shown) + u"\u2069" : String(shown);
}

std::size_t columnsOf(StringView shown)
{
    std::size_t columns = 0;
    forEachPoint(shown, [&](char32_t point) { columns += columnsOfPoint(point); });
    return columns;
}

StringView firstColumns(StringView shown, std::size_t columns)
{
    std::size_t taken = 0;
    std::size_t units = 0;
    bool isFull = false;
    forEachPoint(shown, [&](char32_t point) {
        taken += columnsOfPoint(point);
        isFull = isFull || taken > columns;
        units += isFull ? 0 : unitsOf(point);
    });
    return shown.substr(0, units);
}

} // namespace phial::master
