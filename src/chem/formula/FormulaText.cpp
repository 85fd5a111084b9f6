#include "chem/formula/FormulaText.h"

#include <algorithm>
#include <array>
#include <optional>

namespace phial
{

namespace
{

/// What is written in another way for the same sign. What is longer stands first.
struct FormulaSpelling {
    StringView from;
    StringView to;
};
constexpr auto Spellings = std::to_array<FormulaSpelling>({
    {u"<->", u"\u21CC"},
    {u"<=>", u"\u21CC"},
    {u"-->", u"\u2192"},
    {u"->", u"\u2192"},
    {u"=>", u"\u2192"},
    {u"<-", u"\u2190"},
    {u"⇒", u"\u2192"},
    {u"⇄", u"\u21CC"},
    {u"⇋", u"\u21CC"},
    {u"↔", u"\u21CC"},
    {u"§", u""},
    {u"|", u""},
    {u"½", u"1/2"},
    {u"¼", u"1/4"},
    {u"¾", u"3/4"},
    {u"⅓", u"1/3"},
    {u"⅔", u"2/3"},
});

/// What a place of the text has instead of the sign that is meant.
std::optional<FormulaSpelling> spellingAt(StringView rest)
{
    const auto row = std::ranges::find_if(
        Spellings, [&](const FormulaSpelling& each) { return rest.starts_with(each.from); });
    if (row != Spellings.end()) {
        return *row;
    }
    const auto typed = typedForm(rest.front());
    if (!typed) {
        return std::nullopt;
    }
    const auto arrow = std::ranges::find(Spellings, *typed, &FormulaSpelling::from);
    return FormulaSpelling{rest.substr(0, 1), arrow == Spellings.end() ? *typed : arrow->to};
}

struct LevelTag {
    StringView tag;
    ScriptLevel level;
};
constexpr auto LevelTags = std::to_array<LevelTag>({
    {u"<sub>", ScriptLevel::Subscript},
    {u"<sup>", ScriptLevel::Superscript},
    {u"</sub>", ScriptLevel::Normal},
    {u"</sup>", ScriptLevel::Normal},
});

/// What most formulas are made of: each means itself and nothing else.
constexpr auto OrdinarySigns = [] {
    std::array<bool, 0x80> isOrdinary{}; // of ASCII
    for (const char16_t sign :
         StringView(u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789()[]{}*.,/+ ")) {
        isOrdinary.at(sign) = true;
    }
    return isOrdinary;
}();

constexpr bool mayBeSpelled(char16_t sign)
{
    return sign >= OrdinarySigns.size() || !OrdinarySigns[sign];
}

bool isChargeOrIndex(char16_t sign)
{
    return isDigit(sign) || sign == u'+' || sign == u'-';
}

class UnitReader
{
public:
    UnitReader(StringView text, FormulaUnits& units) : text_(text), units_(units)
    {
        units_.reserve(text.size());
    }

    void read()
    {
        while (at_ < text_.size()) {
            const bool isTaken =
                mayBeSpelled(text_[at_]) && (takeMark() || takeTag() || takeSpelling() || takeScript());
            if (!isTaken) {
                take(text_[at_], 1);
            }
        }
    }

private:
    /// Marks of terms count for the digits and signs that follow at once.
    bool takeMark()
    {
        const char16_t sign = text_[at_];
        if (sign != u'^' && sign != u'µ' && sign != u'#') {
            return false;
        }
        level_ = sign == u'^'   ? ScriptLevel::Superscript
                 : sign == u'µ' ? ScriptLevel::Subscript
                                : ScriptLevel::Normal;
        ++at_;
        return true;
    }

    bool takeTag()
    {
        if (text_[at_] != u'<') {
            return false;
        }
        const StringView rest = text_.substr(at_);
        const auto* const tag =
            std::ranges::find_if(LevelTags, [&](const LevelTag& each) { return rest.starts_with(each.tag); });
        if (tag == LevelTags.end()) {
            return false;
        }
        tagged_ = tag->level;
        level_ = tagged_;
        at_ += tag->tag.size();
        return true;
    }

    bool takeSpelling()
    {
        const auto spelling = spellingAt(text_.substr(at_));
        if (!spelling) {
            return false;
        }
        const std::size_t start = at_;
        for (const char16_t sign : spelling->to) {
            at_ = start;
            take(sign, spelling->from.size());
        }
        at_ = start + spelling->from.size();
        return true;
    }

    bool takeScript()
    {
        const auto script = scriptOf(text_[at_]);
        if (!script || !isChargeOrIndex(script->plain)) {
            return false;
        }
        add(script->plain, script->level, 1);
        return true;
    }

    void take(char16_t sign, std::size_t length)
    {
        if (isChargeOrIndex(sign)) {
            add(sign, level_, length);
        } else {
            level_ = tagged_;
            add(sign, ScriptLevel::Normal, length);
        }
    }

    void add(char16_t sign, ScriptLevel level, std::size_t length)
    {
        FormulaUnit& unit = units_.append();
        unit.sign = sign;
        unit.level = level;
        unit.start = static_cast<std::uint32_t>(at_);
        unit.length = static_cast<std::uint32_t>(length);
        at_ += length;
    }

    StringView text_;
    std::size_t at_ = 0;
    ScriptLevel tagged_ = ScriptLevel::Normal; ///< by the last tag
    ScriptLevel level_ = ScriptLevel::Normal;  ///< of digits and signs of charge
    FormulaUnits& units_;
};

} // namespace

void readFormulaUnits(StringView text, FormulaUnits& units)
{
    UnitReader(text, units).read();
}

} // namespace phial
