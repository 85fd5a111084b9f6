#include "chem/formula/FormulaText.h"

#include <algorithm>
#include <array>
#include <optional>

namespace phial
{

namespace
{

struct ScriptSigns {
    FormulaLevel level;
    StringView plain;
    StringView forms; ///< of each of them
};
constexpr auto Scripts = std::to_array<ScriptSigns>({
    {FormulaLevel::High, u"0123456789+-", u"⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻"},
    {FormulaLevel::Low, u"0123456789+-", u"₀₁₂₃₄₅₆₇₈₉₊₋"},
});

/// What is written in another way for the same sign. What is longer stands first.
struct FormulaSpelling {
    StringView from;
    StringView to;
};
constexpr auto Spellings = std::to_array<FormulaSpelling>({
    {u"<->", u"\u21CC"}, {u"<=>", u"\u21CC"}, {u"-->", u"\u2192"}, {u"->", u"\u2192"}, {u"=>", u"\u2192"},
    {u"<-", u"\u2190"},  {u"⟶", u"\u2192"},   {u"⇒", u"\u2192"},   {u"⟵", u"\u2190"},  {u"⇄", u"\u21CC"},
    {u"⇋", u"\u21CC"},   {u"↔", u"\u21CC"},   {u"·", u"*"},        {u"•", u"*"},       {u"⋅", u"*"},
    {u"∙", u"*"},        {u"−", u"-"},        {u"–", u"-"},        {u"‐", u"-"},       {u"‑", u"-"},
    {u"\u00A0", u" "},   {u"\u2009", u" "},   {u"\u202F", u" "},   {u"\t", u" "},      {u"\r", u" "},
    {u"\n", u" "},       {u"\u00AD", u""},    {u"\u200B", u""},    {u"\uFEFF", u""},   {u"§", u""},
    {u"|", u""},         {u"½", u"1/2"},      {u"¼", u"1/4"},      {u"¾", u"3/4"},     {u"⅓", u"1/3"},
    {u"⅔", u"2/3"},
});
/// All of them begin with one of these.
constexpr bool mayBeSpelled(char16_t sign)
{
    return sign > 0x7F || sign < u' ' || sign == u'<' || sign == u'-' || sign == u'=' || sign == u'|';
}

struct LevelTag {
    StringView tag;
    FormulaLevel level;
};
constexpr auto LevelTags = std::to_array<LevelTag>({
    {u"<sub>", FormulaLevel::Low},
    {u"<sup>", FormulaLevel::High},
    {u"</sub>", FormulaLevel::Line},
    {u"</sup>", FormulaLevel::Line},
});

/// What most formulas are made of: it means itself and nothing else.
constexpr bool isOrdinary(char16_t sign)
{
    return (sign >= u'A' && sign <= u'Z') || (sign >= u'a' && sign <= u'z') ||
           (sign >= u'0' && sign <= u'9') || sign == u'(' || sign == u')' || sign == u' ' || sign == u'+';
}

bool isChargeOrIndex(char16_t sign)
{
    return isDigit(sign) || sign == u'+' || sign == u'-';
}

class UnitReader
{
public:
    UnitReader(StringView text, std::pmr::vector<FormulaUnit>& units) : text_(text), units_(units)
    {
        units_.reserve(units_.size() + text.size());
    }

    void read()
    {
        while (at_ < text_.size()) {
            const bool isTaken =
                !isOrdinary(text_[at_]) && (takeMark() || takeTag() || takeSpelling() || takeScript());
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
        marked_ = sign == u'^' ? FormulaLevel::High : sign == u'µ' ? FormulaLevel::Low : FormulaLevel::Line;
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
        at_ += tag->tag.size();
        return true;
    }

    bool takeSpelling()
    {
        if (!mayBeSpelled(text_[at_])) {
            return false;
        }
        const StringView rest = text_.substr(at_);
        const auto* const spelling = std::ranges::find_if(
            Spellings, [&](const FormulaSpelling& each) { return rest.starts_with(each.from); });
        if (spelling == Spellings.end()) {
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
        if (text_[at_] <= 0x7F) {
            return false;
        }
        for (const ScriptSigns& script : Scripts) {
            if (const std::size_t found = script.forms.find(text_[at_]); found != StringView::npos) {
                add(script.plain[found], script.level, 1);
                return true;
            }
        }
        return false;
    }

    void take(char16_t sign, std::size_t length)
    {
        if (!isChargeOrIndex(sign)) {
            marked_.reset();
        }
        add(sign, marked_.value_or(isChargeOrIndex(sign) ? tagged_ : FormulaLevel::Line), length);
    }

    void add(char16_t sign, FormulaLevel level, std::size_t length)
    {
        units_.push_back({sign, level, static_cast<std::uint32_t>(at_), static_cast<std::uint32_t>(length)});
        at_ += length;
    }

    StringView text_;
    std::size_t at_ = 0;
    std::optional<FormulaLevel> marked_;
    FormulaLevel tagged_ = FormulaLevel::Line;
    std::pmr::vector<FormulaUnit>& units_;
};

} // namespace

void readFormulaUnits(StringView text, std::pmr::vector<FormulaUnit>& units)
{
    UnitReader(text, units).read();
}

} // namespace phial
