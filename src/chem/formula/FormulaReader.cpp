#include "chem/formula/FormulaReader.h"

#include "chem/ElementSymbols.h"
#include "chem/formula/FormulaSuggestion.h"
#include "chem/formula/FormulaText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <utility>

namespace phial
{

namespace
{

constexpr char16_t TextEnd = 0;

struct PhaseName {
    StringView name;
    FormulaPhase phase;
};
constexpr auto PhaseNames = std::to_array<PhaseName>({
    {u"(aq)", FormulaPhase::Dissolved},
    {u"(s)", FormulaPhase::Solid},
    {u"(l)", FormulaPhase::Liquid},
    {u"(g)", FormulaPhase::Gas},
});

constexpr StringView Openings = u"([{";
constexpr StringView Closings = u")]}";

/// Elements by themselves that stand beside each other in no substance, but look like a symbol.
constexpr auto CapitalPairs = std::to_array<StringView>({u"CU", u"NI", u"SN", u"PB", u"BI", u"SI", u"PU"});

bool beginsSymbol(char16_t sign)
{
    return sign >= u'A' && sign <= u'Z';
}
bool endsSymbol(char16_t sign)
{
    return sign >= u'a' && sign <= u'z';
}
bool isSign(char16_t sign)
{
    return sign == u'+' || sign == u'-';
}
bool isBond(char16_t sign)
{
    return sign == u'-' || sign == u'=' || sign == u'≡';
}
bool isArrow(char16_t sign)
{
    return sign == ForwardArrow || sign == BackwardArrow || sign == BothArrows;
}

FormulaArrow arrowOf(char16_t sign)
{
    return sign == BackwardArrow ? FormulaArrow::Backward
           : sign == BothArrows  ? FormulaArrow::Both
                                 : FormulaArrow::Forward;
}

/// Thrown within the reader alone, where the first fault ends it.
struct Refused {
    FormulaRefusal refusal;
};

class Reader
{
public:
    Reader(StringView text, bool isEquation, FormulaTree& tree)
        : text_(text), isEquation_(isEquation), tree_(tree)
    {
        readFormulaUnits(text, units_);
        hasArrow_ = isEquation && std::ranges::any_of(units_, isArrow, &FormulaUnit::sign);
    }

    void read()
    {
        skipBlanks();
        if (isAtEnd()) {
            refuse(FormulaFault::Empty, at_, at_);
        }
        readSpecies();
        for (skipBlanks(); !isAtEnd(); skipBlanks()) {
            readLink();
            skipBlanks();
            if (isAtEnd()) {
                refuse(FormulaFault::SpeciesMissing, at_ - 1, at_);
            }
            readSpecies();
        }
        if (tree_.arrow == FormulaArrow::None) {
            refuseCapitalPair();
            if (isEquation_) {
                refuse(FormulaFault::ArrowMissing, 0, at_);
            }
            tree_.leftCount = tree_.species.size();
        }
    }

private:
    /// A group whose end has not come.
    struct Open {
        std::uint32_t item;
        std::size_t unit;
    };
    /// What has been read of a number.
    struct Digits {
        std::int64_t value = 0;
        std::size_t begin = 0; ///< units
        std::size_t end = 0;
        ScriptLevel level = ScriptLevel::Normal;

        std::size_t size() const { return end - begin; }
    };

    // The text.

    bool isAtEnd() const { return at_ >= units_.size(); }
    char16_t sign(std::size_t at) const { return at < units_.size() ? units_[at].sign : TextEnd; }
    char16_t sign() const { return sign(at_); }
    ScriptLevel level(std::size_t at) const
    {
        return at < units_.size() ? units_[at].level : ScriptLevel::Normal;
    }
    void skipBlanks()
    {
        while (sign() == u' ') {
            ++at_;
        }
    }
    /// Of units that there are, one at least.
    SourceSpan spanOfUnits(std::size_t begin, std::size_t end) const
    {
        const std::uint32_t start = units_[begin].start;
        return {start, units_[end - 1].start + units_[end - 1].length - start};
    }
    SourceSpan spanOf(std::size_t begin, std::size_t end) const
    {
        const auto length = static_cast<std::uint32_t>(text_.size());
        const std::uint32_t start = begin < units_.size() ? units_[begin].start : length;
        const std::uint32_t stop = end == 0 || end > units_.size()
                                       ? length
                                       : std::max(start, units_[end - 1].start + units_[end - 1].length);
        return {start, stop - start};
    }
    [[noreturn]] void refuse(FormulaFault fault, std::size_t begin, std::size_t end,
                             std::vector<String> suggestions = {}) const
    {
        const SourceSpan span = spanOf(begin, end);
        throw Refused{{fault, span, String(text_.substr(span.start, span.length)), std::move(suggestions)}};
    }

    // What was read.

    /// Two capitals and nothing else, such as CU or CU1.
    void refuseCapitalPair() const
    {
        const auto& items = tree_.items;
        if (items.size() != 2 || items[0].isGroup() || items[1].isGroup()) {
            return;
        }
        const FormulaTree pair{
            .items = {{.element = items[0].element, .end = 1}, {.element = items[1].element, .end = 2}},
            .parts = {{.end = 2}},
            .species = {{.end = 1}}};
        const String capitals =
            String(elementOf(items[0].element).symbol).append(elementOf(items[1].element).symbol);
        if (std::ranges::find(CapitalPairs, capitals) != CapitalPairs.end() && tree_ == pair) {
            refuse(FormulaFault::CapitalPair, 0, units_.size(),
                   {String{capitals[0], lowerCase(capitals[1])}});
        }
    }

    // Equations.

    bool isLink(std::size_t at) const
    {
        const bool isPlus = sign(at) == u'+' && level(at) == ScriptLevel::Normal;
        const bool isEquals = sign(at) == u'=';
        return isPlus || isArrow(sign(at)) || isEquals;
    }

    void readLink()
    {
        const char16_t link = sign();
        if (!isLink(at_)) {
            refuse(FormulaFault::SignUnexpected, at_, at_ + 1);
        }
        if (!isEquation_) {
            refuse(FormulaFault::NotOneFormula, at_, at_ + 1);
        }
        if (link != u'+') {
            if (tree_.arrow != FormulaArrow::None) {
                refuse(FormulaFault::ArrowTwice, at_, at_ + 1);
            }
            tree_.arrow = arrowOf(link);
            tree_.leftCount = tree_.species.size();
        }
        ++at_;
    }

    // Species.

    void readSpecies()
    {
        FormulaSpecies& species = tree_.species.append();
        const std::size_t begin = at_;
        species.first = static_cast<std::uint32_t>(tree_.parts.size());
        species.factor = readFactor();
        if (!readParticle(species)) {
            readParts(species);
        }
        readEnd(species);
        species.end = static_cast<std::uint32_t>(tree_.parts.size());
        species.span = spanOf(begin, at_);
    }

    /// `e-` and `n`.
    bool readParticle(FormulaSpecies& species)
    {
        const char16_t behind = sign(at_ + 1);
        if (sign() == u'e' && isSign(behind)) {
            species.particle = FormulaParticle::Electron;
            ++at_;
            readCharge(species);
            if (species.charge != -1) {
                refuse(FormulaFault::SignUnexpected, at_ - 1, at_);
            }
        } else if (sign() == u'n' && !endsSymbol(behind) && !beginsSymbol(behind) && !isDigit(behind)) {
            species.particle = FormulaParticle::Neutron;
            ++at_;
        }
        return species.particle != FormulaParticle::None;
    }

    /// A whole number, a decimal or a fraction before a formula; 1 where there is none.
    Rational readFactor()
    {
        if (!isDigit(sign()) || level(at_) != ScriptLevel::Normal) {
            return {};
        }
        const Digits whole = readDigits();
        Rational factor{whole.value, 1};
        if (const bool isDecimal = sign() == u'.' || sign() == u','; isDecimal && isDigit(sign(at_ + 1))) {
            ++at_;
            const Digits decimals = readDigits();
            for (std::size_t digit = 0; digit < decimals.size(); ++digit) {
                factor.numerator *= 10;
                factor.denominator *= 10;
                if (factor.denominator > FormulaLimits::Count || factor.numerator > FormulaLimits::Count) {
                    refuse(FormulaFault::NumberTooLarge, whole.begin, decimals.end);
                }
            }
            factor.numerator += decimals.value;
        } else if (sign() == u'/' && isDigit(sign(at_ + 1))) {
            ++at_;
            factor.denominator = readDigits().value;
        }
        if (factor.numerator == 0 || factor.denominator == 0) {
            refuse(FormulaFault::ZeroCount, whole.begin, at_);
        }
        const std::int64_t common = std::gcd(factor.numerator, factor.denominator);
        skipBlanks();
        return {factor.numerator / common, factor.denominator / common};
    }

    Digits readDigits()
    {
        Digits digits;
        digits.begin = at_;
        digits.level = level(at_);
        for (; isDigit(sign()) && level(at_) == digits.level; ++at_) {
            digits.value = digits.value * 10 + (sign() - u'0');
            if (digits.value > FormulaLimits::Count) {
                refuse(FormulaFault::NumberTooLarge, digits.begin, at_ + 1);
            }
        }
        digits.end = at_;
        return digits;
    }

    void readParts(FormulaSpecies& species)
    {
        for (;;) {
            const bool isFurther = tree_.parts.size() > species.first;
            FormulaPart& part = tree_.parts.append();
            if (isFurther) {
                part.factor = readFactor();
            }
            part.first = static_cast<std::uint32_t>(tree_.items.size());
            readItems(species);
            part.end = static_cast<std::uint32_t>(tree_.items.size());
            if (part.first == part.end) {
                refuseMissing();
            }
            if (!isDot(at_)) {
                return;
            }
            ++at_;
            if (endsSpecies(at_)) {
                species.isRadical = true;
                return;
            }
        }
    }

    /// Nothing was read where a formula was to begin.
    [[noreturn]] void refuseMissing() const
    {
        if (endsSymbol(sign())) {
            refuse(FormulaFault::SmallLetter, at_, at_ + 1, suggestedFormulas(text_));
        }
        if (isDigit(sign())) {
            refuse(FormulaFault::NumberMisplaced, at_, at_ + 1);
        }
        if (endsSpecies(at_) || isLink(at_)) {
            refuse(FormulaFault::SpeciesMissing, at_ > 0 ? at_ - 1 : at_, std::max<std::size_t>(at_, 1));
        }
        if (const std::size_t closing = Closings.find(sign()); closing != StringView::npos) {
            refuse(FormulaFault::BracketNotOpened, at_, at_ + 1);
        }
        constexpr char16_t FirstHalf = 0xD800;
        constexpr char16_t LastFirstHalf = 0xDBFF;
        const bool isPair = sign() >= FirstHalf && sign() <= LastFirstHalf && at_ + 1 < units_.size();
        refuse(FormulaFault::SignUnexpected, at_, at_ + (isPair ? 2 : 1));
    }

    bool isDot(std::size_t at) const { return sign(at) == u'*' || sign(at) == u'.'; }

    bool endsSpecies(std::size_t at) const
    {
        return at >= units_.size() || sign(at) == u' ' || isArrow(sign(at)) || phaseAt(at) != nullptr;
    }

    /// A state of matter at the end of a species; null for none.
    const PhaseName* phaseAt(std::size_t at) const
    {
        if (sign(at) != u'(') {
            return nullptr;
        }
        for (const PhaseName& phase : PhaseNames) {
            bool isThere = true;
            for (std::size_t unit = 0; unit < phase.name.size(); ++unit) {
                isThere = isThere && sign(at + unit) == phase.name[unit];
            }
            if (isThere) {
                return &phase;
            }
        }
        return nullptr;
    }

    // Atoms and groups.

    void readItems(FormulaSpecies& species)
    {
        open_.clear();
        for (;;) {
            const char16_t now = sign();
            if (beginsSymbol(now)) {
                readAtom(0);
            } else if (isDigit(now)) {
                if (!readNumber(species)) {
                    break;
                }
            } else if (Openings.find(now) != StringView::npos && now != TextEnd && phaseAt(at_) == nullptr) {
                openGroup();
            } else if (Closings.find(now) != StringView::npos && now != TextEnd) {
                closeGroup();
            } else if (isBond(now) && level(at_) == ScriptLevel::Normal && isBondAt(at_)) {
                ++at_;
            } else {
                break;
            }
        }
        if (!open_.empty()) {
            refuseWithin();
        }
    }

    /// A bond stands between two atoms or groups.
    bool isBondAt(std::size_t at) const
    {
        if (sign(at) == u'=' && isEquation_ && !hasArrow_) {
            return false; // it is the arrow
        }
        const char16_t before = at > 0 ? sign(at - 1) : TextEnd;
        const char16_t behind = sign(at + 1);
        const bool isBehindAtom = beginsSymbol(before) || endsSymbol(before) || isDigit(before) ||
                                  (before != TextEnd && Closings.find(before) != StringView::npos);
        const bool isBeforeAtom =
            beginsSymbol(behind) ||
            (behind != TextEnd && Openings.find(behind) != StringView::npos && phaseAt(at + 1) == nullptr);
        return isBehindAtom && isBeforeAtom;
    }

    /// The text goes on in no way that a bracket knows.
    [[noreturn]] void refuseWithin() const
    {
        if (endsSymbol(sign())) {
            refuse(FormulaFault::SmallLetter, at_, at_ + 1, suggestedFormulas(text_));
        }
        if (isSign(sign()) || level(at_) == ScriptLevel::Superscript) {
            refuse(FormulaFault::ChargeNotAtEnd, at_, at_ + 1);
        }
        refuse(FormulaFault::BracketNotClosed, open_.back().unit, open_.back().unit + 1);
    }

    void readAtom(std::int32_t massNumber)
    {
        const std::size_t begin = at_;
        const char16_t first = sign();
        const char16_t second = endsSymbol(sign(at_ + 1)) ? sign(at_ + 1) : TextEnd;
        std::size_t length = second == TextEnd ? 1 : 2;
        int element = atomicNumberOf(first, second);
        if (element == 0 && length == 2) {
            length = 1;
            element = atomicNumberOf(first, TextEnd);
        }
        if (element == 0 && second == TextEnd && (first == u'D' || first == u'T')) {
            element = 1;
            massNumber = first == u'D' ? 2 : 3;
        }
        if (element == 0) {
            const std::size_t end = second == TextEnd ? at_ + 1 : at_ + 2;
            refuse(FormulaFault::UnknownSymbol, at_, end, suggestedFormulas(text_));
        }
        at_ += length;
        FormulaItem& atom = appendItem();
        atom.element = static_cast<std::uint8_t>(element);
        atom.massNumber = massNumber;
        atom.end = static_cast<std::uint32_t>(tree_.items.size());
        atom.span = spanOfUnits(begin, at_);
        if (endsSymbol(sign())) {
            refuse(FormulaFault::SmallLetter, at_, at_ + 1, suggestedFormulas(text_));
        }
    }

    /// To which a number behind it belongs.
    FormulaItem& appendItem()
    {
        last_ = tree_.items.size();
        lastClosing_ = TextEnd;
        return tree_.items.append();
    }

    void openGroup()
    {
        const auto bracket = static_cast<FormulaBracket>(Openings.find(sign()));
        open_.push_back({static_cast<std::uint32_t>(tree_.items.size()), at_});
        tree_.items.append().bracket = bracket;
        last_.reset();
        ++at_;
    }

    void closeGroup()
    {
        if (open_.empty()) {
            refuse(FormulaFault::BracketNotOpened, at_, at_ + 1);
        }
        const Open group = open_.back();
        FormulaItem& item = tree_.items[group.item];
        if (static_cast<std::size_t>(item.bracket) != Closings.find(sign())) {
            refuse(FormulaFault::BracketsMixed, at_, at_ + 1);
        }
        if (tree_.items.size() == group.item + 1) {
            refuse(FormulaFault::EmptyBracket, group.unit, at_ + 1);
        }
        open_.pop_back();
        item.end = static_cast<std::uint32_t>(tree_.items.size());
        item.span = spanOfUnits(group.unit, at_ + 1);
        last_ = group.item;
        lastClosing_ = sign();
        ++at_;
    }

    /// A number behind an atom or group, before an atom, or of a charge; false where it is that of a charge.
    bool readNumber(const FormulaSpecies& species)
    {
        const std::size_t begin = at_;
        const Digits digits = readDigits();
        if (digits.level == ScriptLevel::Superscript) {
            if (!beginsSymbol(sign())) {
                at_ = begin;
                return false;
            }
            if (digits.value == 0 || digits.value > FormulaLimits::MassNumber) {
                refuse(FormulaFault::NumberTooLarge, digits.begin, digits.end);
            }
            readAtom(static_cast<std::int32_t>(digits.value));
            return true;
        }
        if (digits.level == ScriptLevel::Normal && isChargeBehind() && takesCharge(digits, species)) {
            at_ = begin;
            return false;
        }
        setCount(digits);
        return true;
    }

    /// Whether signs follow that end the species.
    bool isChargeBehind() const
    {
        std::size_t at = at_;
        while (isSign(sign(at)) && level(at) == ScriptLevel::Normal) {
            ++at;
        }
        return at > at_ && open_.empty() && (endsSpecies(at) || isDot(at));
    }

    /// Whether digits in front of a sign are those of the charge. Where both readings are as likely they are
    /// refused.
    bool takesCharge(const Digits& digits, const FormulaSpecies& species) const
    {
        const bool isOneAtom = tree_.items.size() == firstItemOf(species) + 1 && last_ &&
                               !tree_.items[*last_].isGroup() && tree_.items[*last_].count == 1;
        if (lastClosing_ == u']' || (isOneAtom && digits.size() == 1) || hasIndexBefore(digits)) {
            return true;
        }
        if (digits.size() > 1) {
            refuseAmbiguous(digits);
        }
        return false;
    }

    /// A lowered number has come before these.
    bool hasIndexBefore(const Digits& digits) const
    {
        return digits.begin > 0 && isDigit(sign(digits.begin - 1)) &&
               level(digits.begin - 1) == ScriptLevel::Subscript;
    }

    std::size_t firstItemOf(const FormulaSpecies& species) const { return tree_.parts[species.first].first; }

    [[noreturn]] void refuseAmbiguous(const Digits& digits) const
    {
        const auto marked = [&](std::size_t before) {
            const std::size_t at = units_[before].start;
            return String(text_.substr(0, at)) + u"^" + String(text_.substr(at));
        };
        refuse(FormulaFault::ChargeAmbiguous, digits.begin, digits.end + 1,
               {marked(digits.end - 1), marked(digits.end)});
    }

    void setCount(const Digits& digits)
    {
        if (!last_) {
            refuse(FormulaFault::NumberMisplaced, digits.begin, digits.end);
        }
        if (digits.value == 0) {
            refuse(FormulaFault::ZeroCount, digits.begin, digits.end);
        }
        FormulaItem& item = tree_.items[*last_];
        item.count = digits.value;
        const SourceSpan whole = spanOfUnits(digits.begin, digits.end);
        item.span.length = whole.start + whole.length - item.span.start;
        last_.reset();
    }

    // The end of a species.

    void readEnd(FormulaSpecies& species)
    {
        if (species.particle == FormulaParticle::None) {
            readCharge(species);
        }
        const std::size_t atPhase = at_;
        if (sign() == u'*' && endsSpecies(at_ + 1)) {
            species.isRadical = true;
            ++at_;
        }
        if (sign() == u' ' && phaseAt(at_ + 1) != nullptr) {
            ++at_;
        }
        if (const PhaseName* phase = phaseAt(at_)) {
            species.phase = phase->phase;
            at_ += phase->name.size();
        }
        if (isAtEnd() || sign() == u' ' || isLink(at_)) {
            return;
        }
        if (species.charge != 0 && atPhase == at_) {
            refuse(FormulaFault::ChargeNotAtEnd, chargeBegin_, at_);
        }
        refuseMissing();
    }

    /// `+`, `2-`, `+2`, `--`, raised or in the line.
    void readCharge(FormulaSpecies& species)
    {
        chargeBegin_ = at_;
        const ScriptLevel level = this->level(at_);
        const bool isInLine = level == ScriptLevel::Normal;
        if (isInLine && isSign(sign()) && !isChargeBehind()) {
            return; // an operator, or a bond that leads nowhere
        }
        std::int64_t size = 0;
        if (isDigit(sign()) && level != ScriptLevel::Subscript) {
            size = readDigits().value;
            if (!isSign(sign())) {
                refuse(isInLine ? FormulaFault::NumberMisplaced : FormulaFault::ChargeWithoutSign,
                       chargeBegin_, at_);
            }
        }
        std::int64_t signs = 0;
        const char16_t first = sign();
        for (; isSign(sign()) && sign() == first && this->level(at_) == level; ++at_) {
            ++signs;
        }
        if (signs == 0) {
            return;
        }
        if (size == 0 && signs == 1 && isDigit(sign()) && !isInLine && this->level(at_) == level) {
            size = readDigits().value;
        }
        if ((size > 0 && signs > 1) || std::max(size, signs) > FormulaLimits::Charge) {
            refuse(FormulaFault::NumberTooLarge, chargeBegin_, at_);
        }
        const auto charge = static_cast<std::int32_t>(size > 0 ? size : signs);
        species.charge = first == u'-' ? -charge : charge;
    }

    StringView text_;
    FormulaUnits units_;
    bool isEquation_;
    bool hasArrow_ = false; ///< of an equation
    std::size_t at_ = 0;
    FormulaTree& tree_;
    ShortList<Open, 4> open_;
    std::optional<std::size_t> last_; ///< the item that a number would belong to
    char16_t lastClosing_ = TextEnd;  ///< the bracket that has ended it
    std::size_t chargeBegin_ = 0;
};

FormulaReading reading(StringView text, bool isEquation)
{
    FormulaReading reading;
    try {
        Reader(text, isEquation, reading.tree).read();
    } catch (Refused& refused) {
        reading.tree = {};
        reading.refusal = std::move(refused.refusal);
    }
    return reading;
}

} // namespace

FormulaReading readFormula(StringView text)
{
    return reading(text, false);
}

FormulaReading readEquation(StringView text)
{
    return reading(text, true);
}

bool operator==(const FormulaTree& one, const FormulaTree& other)
{
    const auto sameItem = [](const FormulaItem& left, const FormulaItem& right) {
        return left.element == right.element && left.massNumber == right.massNumber &&
               left.count == right.count && left.end == right.end &&
               (!left.isGroup() || left.bracket == right.bracket);
    };
    const auto samePart = [](const FormulaPart& left, const FormulaPart& right) {
        return left.factor == right.factor && left.first == right.first && left.end == right.end;
    };
    const auto sameSpecies = [](const FormulaSpecies& left, const FormulaSpecies& right) {
        return left.factor == right.factor && left.first == right.first && left.end == right.end &&
               left.charge == right.charge && left.phase == right.phase && left.particle == right.particle &&
               left.isRadical == right.isRadical;
    };
    return one.arrow == other.arrow && one.leftCount == other.leftCount &&
           std::ranges::equal(one.items, other.items, sameItem) &&
           std::ranges::equal(one.parts, other.parts, samePart) &&
           std::ranges::equal(one.species, other.species, sameSpecies);
}

} // namespace phial
