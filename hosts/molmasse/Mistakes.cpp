#include "molmasse/Mistakes.h"

#include "chem/FormulaAnalysis.h"
#include "common/FrameTexts.h"
#include "core/NumberText.h"
#include "core/Variant.h"
#include "molmasse/MassJudge.h"
#include "molmasse/SaltParts.h"

#include <cmath>
#include <utility>
#include <vector>

namespace molmasse
{

using learning::translate;
using phial::String;
using phial::StringView;

namespace
{

/// The end of the digits that begin at the position.
std::size_t endOfDigits(StringView formula, std::size_t position)
{
    while (position < formula.size() && phial::isDigit(formula[position])) {
        ++position;
    }
    return position;
}

String without(StringView formula, std::size_t from, std::size_t to)
{
    return String(formula.substr(0, from)).append(formula.substr(to));
}

/// Works a formula out with one mistake after the other, and keeps the one that comes nearest to the answer.
class MistakeSearch
{
public:
    MistakeSearch(StringView formula, double answer, const MassSource& source)
        : parts_(saltParts(formula)), formula_(joined(parts_)), atoms_(formula_), answer_(answer),
          source_(source)
    {
    }

    std::optional<Diagnosis> run()
    {
        if (atoms_.size() == 0) {
            return std::nullopt;
        }
        forgetIndices();
        forgetBrackets();
        forgetParts();
        forgetFactors();
        takeOneElement();
        sumUp(Mistake::AtomsCounted, [](const String&) { return 1.0; });
        sumUp(Mistake::AtomicNumbers,
              [this](const String& symbol) { return double(source_.atomicNumber(symbol)); });
        shiftComma();
        sumUp(Mistake::RoundedTooFar,
              [this](const String& symbol) { return std::round(source_.molarMass(symbol)); });
        sumUp(Mistake::RoundedTooFar,
              [this](const String& symbol) { return std::floor(source_.molarMass(symbol)); });
        return best_;
    }

private:
    /// Notes the mistake if the answer is what comes of it, and nearer than what was found before.
    void consider(double outcome, Diagnosis diagnosis)
    {
        if (isRight(answer_, outcome)) {
            note(std::abs(answer_ - outcome), std::move(diagnosis));
        }
    }
    void note(double distance, Diagnosis diagnosis)
    {
        if (!best_ || distance < nearest_ - SameResult) {
            nearest_ = distance;
            best_ = std::move(diagnosis);
        }
    }
    /// So many times a formula, or the mass of one that was misread.
    void considerFormula(const String& misread, const Diagnosis& diagnosis, double times = 1)
    {
        consider(times * source_.molarMass(misread), diagnosis);
        consider(times * source_.exactMass(misread), diagnosis);
    }

    /// Each index left out by itself, then all of them. The numbers behind brackets stay.
    void forgetIndices()
    {
        String bare;
        std::size_t copied = 0;
        int found = 0;
        for (std::size_t position = 0; position < formula_.size();) {
            const String symbol(phial::nextSymbol(formula_, position));
            const std::size_t end = endOfDigits(formula_, position);
            if (end > position) {
                ++found;
                considerFormula(without(formula_, position, end),
                                {Mistake::IndexForgotten, symbol, formula_.substr(position, end - position)});
                bare.append(formula_, copied, position - copied);
                copied = end;
            }
            position = end;
        }
        if (found > 1) {
            considerFormula(bare.append(formula_, copied), {Mistake::IndexForgotten, {}, {}});
        }
    }

    /// Each group counted once; then as if its number stood behind its last atom alone.
    void forgetBrackets()
    {
        for (std::size_t part = 0; part < parts_.size(); ++part) {
            forgetBrackets(part);
        }
    }
    void forgetBrackets(std::size_t part)
    {
        const StringView text = parts_[part].formula;
        std::vector<std::size_t> open;
        for (std::size_t position = 0; position < text.size(); ++position) {
            if (text[position] == u'(') {
                open.push_back(position);
            } else if (text[position] == u')' && !open.empty()) {
                forgetBracket(part, open.back(), position);
                open.pop_back();
            }
        }
    }
    void forgetBracket(std::size_t part, std::size_t opening, std::size_t closing)
    {
        const StringView text = parts_[part].formula;
        const std::size_t end = endOfDigits(text, closing + 1);
        const String number(text.substr(closing + 1, end - closing - 1));
        if (number.empty()) {
            return;
        }
        const Diagnosis diagnosis{Mistake::BracketForgotten, {}, number};
        considerPart(part, without(text, closing + 1, end).insert(closing + 1, u"1"), diagnosis);
        if (!phial::isDigit(text[closing - 1])) {
            const String opened = without(text, closing, closing + 1);
            considerPart(part, without(opened, opening, opening + 1), diagnosis);
        }
    }
    /// The formula with one of its parts misread.
    void considerPart(std::size_t part, String misread, const Diagnosis& diagnosis)
    {
        std::vector<SaltPart> parts = parts_;
        parts[part].formula = std::move(misread);
        considerFormula(joined(parts), diagnosis);
    }

    /// All that stands behind each of the dots.
    void forgetParts()
    {
        for (std::size_t kept = 1; kept < parts_.size(); ++kept) {
            considerFormula(joined({parts_.begin(), parts_.begin() + std::ptrdiff_t(kept)}),
                            {Mistake::PartForgotten, {}, {}});
        }
    }

    /// Each part counted once; then as if its number multiplied its first atom alone.
    void forgetFactors()
    {
        for (std::size_t part = 0; part < parts_.size(); ++part) {
            if (parts_[part].times != 1) {
                forgetFactor(part);
            }
        }
    }
    void forgetFactor(std::size_t part)
    {
        std::vector<SaltPart> parts = parts_;
        const String number = phial::plainText(static_cast<double>(parts[part].times), u',');
        const Diagnosis diagnosis{Mistake::FactorForgotten, {}, number};
        parts[part].times = 1;
        considerFormula(joined(parts), diagnosis);
        String& text = parts[part].formula;
        std::size_t behindSymbol = 0;
        phial::nextSymbol(text, behindSymbol);
        const std::size_t end = endOfDigits(text, behindSymbol);
        text.insert(end, String(u")").append(number)).insert(0, u"(");
        considerFormula(joined(parts), diagnosis);
    }

    void takeOneElement()
    {
        if (atoms_.size() == 1) {
            return;
        }
        for (const phial::AtomCount& atom : atoms_) {
            const String symbol(atom.symbol);
            considerFormula(symbol, {Mistake::OneElementOnly, symbol, {}}, atom.count);
            considerFormula(symbol, {Mistake::OneElementOnly, symbol, {}});
        }
    }

    template <typename Value>
    void sumUp(Mistake mistake, const Value& valueOf)
    {
        double sum = 0;
        for (const phial::AtomCount& atom : atoms_) {
            sum += atom.count * valueOf(String(atom.symbol));
        }
        consider(sum, {mistake, {}, {}});
    }

    void shiftComma()
    {
        const String formula(formula_);
        for (const double mass : {source_.molarMass(formula), source_.exactMass(formula)}) {
            shiftComma(mass);
        }
    }
    void shiftComma(double mass)
    {
        for (const double factor : {10.0, 100.0, 1000.0, 10000.0}) {
            for (const double moved : {answer_ / factor, answer_ * factor}) {
                if (isRight(moved, mass)) {
                    note(std::abs(moved - mass), {Mistake::CommaShifted, {}, {}});
                }
            }
        }
    }

    static constexpr double SameResult = 1e-6; // g/mol

    std::vector<SaltPart> parts_;
    String formula_; // its parts in one, without dots
    phial::AtomCounts atoms_;
    double answer_;
    const MassSource& source_;
    double nearest_ = 0;
    std::optional<Diagnosis> best_;
};

} // namespace

std::optional<Diagnosis> mistakeOf(StringView formula, double answer, const MassSource& source)
{
    return MistakeSearch(formula, answer, source).run();
}

String explained(const Diagnosis& diagnosis)
{
    const phial::Variant symbol = diagnosis.symbol;
    const phial::Variant count = diagnosis.number;
    switch (diagnosis.mistake) {
    case Mistake::IndexForgotten:
        return diagnosis.symbol.empty()
                   ? translate(u"Die kleinen Zahlen zählen mit: So oft kommt das Atom davor vor.",
                               u"The small numbers count: that is how often the atom before them occurs.")
                   : translate(u"Denk an die kleine {2} hinter {1}.", u"Mind the small {2} behind {1}.",
                               {symbol, count});
    case Mistake::BracketForgotten:
        return translate(u"Die {1} hinter der Klammer gilt für alles in der Klammer.",
                         u"The {1} behind the bracket counts for all that is in the bracket.", {count});
    case Mistake::PartForgotten:
        return translate(u"Was hinter dem Punkt steht, gehört dazu. Es fehlt noch.",
                         u"What stands behind the dot belongs to it. It is still missing.");
    case Mistake::FactorForgotten:
        return translate(u"Die {1} hinter dem Punkt gilt für alles, was ihr folgt.",
                         u"The {1} behind the dot counts for all that follows it.", {count});
    case Mistake::OneElementOnly:
        return translate(u"Das ist erst die Masse von {1}. Es fehlen noch Atome.",
                         u"That is the mass of {1} alone. Other atoms are missing.", {symbol});
    case Mistake::AtomsCounted:
        return translate(u"Das ist die Zahl der Atome. Nimm für jedes seine Masse.",
                         u"That is the number of atoms. Take the mass of each.");
    case Mistake::AtomicNumbers:
        return translate(u"Das sind die Ordnungszahlen. Du brauchst die Atommassen.",
                         u"Those are the atomic numbers. You need the atomic masses.");
    case Mistake::CommaShifted:
        return translate(u"Die Ziffern stimmen, aber das Komma steht falsch.",
                         u"The digits are right, but the decimal point is not.");
    case Mistake::RoundedTooFar:
        return translate(u"Fast! Rechne mit einer Stelle hinter dem Komma.",
                         u"Almost! Keep one digit behind the decimal point.");
    }
    return {};
}

} // namespace molmasse
