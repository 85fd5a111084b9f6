#include "molmasse/Mistakes.h"

#include "chem/FormulaAnalysis.h"
#include "common/FrameTexts.h"
#include "core/Variant.h"
#include "molmasse/MassJudge.h"

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
        : formula_(formula), atoms_(formula), answer_(answer), source_(source)
    {
    }

    std::optional<Diagnosis> run()
    {
        if (atoms_.size() == 0) {
            return std::nullopt;
        }
        forgetIndices();
        forgetBrackets();
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
                const StringView number = formula_.substr(position, end - position);
                considerFormula(without(formula_, position, end),
                                {Mistake::IndexForgotten, symbol, String(number)});
                bare.append(formula_.substr(copied, position - copied));
                copied = end;
            }
            position = end;
        }
        if (found > 1) {
            considerFormula(bare.append(formula_.substr(copied)), {Mistake::IndexForgotten, {}, {}});
        }
    }

    /// Each group counted once; then as if its number stood behind its last atom alone.
    void forgetBrackets()
    {
        std::vector<std::size_t> open;
        for (std::size_t position = 0; position < formula_.size(); ++position) {
            if (formula_[position] == u'(') {
                open.push_back(position);
            } else if (formula_[position] == u')' && !open.empty()) {
                forgetBracket(open.back(), position);
                open.pop_back();
            }
        }
    }
    void forgetBracket(std::size_t opening, std::size_t closing)
    {
        const std::size_t end = endOfDigits(formula_, closing + 1);
        const String number(formula_.substr(closing + 1, end - closing - 1));
        if (number.empty()) {
            return;
        }
        const Diagnosis diagnosis{Mistake::BracketForgotten, {}, number};
        considerFormula(without(formula_, closing + 1, end).insert(closing + 1, u"1"), diagnosis);
        if (!phial::isDigit(formula_[closing - 1])) {
            const String opened = without(formula_, closing, closing + 1);
            considerFormula(without(opened, opening, opening + 1), diagnosis);
        }
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

    StringView formula_;
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
