#include "chem/formula/OxidationNumbers.h"

#include "chem/ElementSymbols.h"
#include "chem/formula/CheckedRational.h"
#include "chem/formula/FormulaTongue.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>

namespace phial
{

namespace
{

namespace number
{
constexpr int Hydrogen = 1;
constexpr int Boron = 5;
constexpr int Carbon = 6;
constexpr int Nitrogen = 7;
constexpr int Oxygen = 8;
constexpr int Fluorine = 9;
constexpr int Aluminium = 13;
constexpr int Silicon = 14;
constexpr int Sulfur = 16;
constexpr int Manganese = 25;
constexpr int Nickel = 28;
} // namespace number

struct NonMetal {
    int element;
    int lowest;
    int highest;
};
/// With the oxidation numbers that they can have, most electronegative first (Pauling's scale).
constexpr auto NonMetals = std::to_array<NonMetal>({
    {number::Fluorine, -1, 0},
    {number::Oxygen, -2, 2},
    {17, -1, 7}, // chlorine
    {number::Nitrogen, -3, 5},
    {35, -1, 7}, // bromine
    {53, -1, 7}, // iodine
    {number::Sulfur, -2, 6},
    {34, -2, 6}, // selenium
    {number::Carbon, -4, 4},
    {number::Hydrogen, -1, 1},
    {15, -3, 5}, // phosphorus
    {33, -3, 5}, // arsenic
    {52, -2, 6}, // tellurium
    {85, -1, 7}, // astatine
    {number::Boron, -3, 3},
    {number::Silicon, -4, 4},
    {2, 0, 0}, // the noble gases
    {10, 0, 0},
    {18, 0, 0},
    {36, 0, 2},
    {54, 0, 8},
    {86, 0, 2},
});
constexpr int HighestOfMetals = 9;
constexpr int LowestOfMetals = -4;

/// Those that get the charge of their simple ion where several elements are open, in this order.
constexpr std::size_t FirstDrawing = 2;
constexpr auto LastDrawing =
    static_cast<std::size_t>(std::ranges::find(NonMetals, 33, &NonMetal::element) - NonMetals.begin());

constexpr const NonMetal* nonMetal(int element)
{
    const auto* const found = std::ranges::find(NonMetals, element, &NonMetal::element);
    return found == NonMetals.end() ? nullptr : found;
}

bool isAmong(int element, std::initializer_list<int> elements)
{
    return std::ranges::find(elements, element) != elements.end();
}

/// Of a metal that has no other in its compounds; 0 for others.
int fixedOfMetal(int element)
{
    if (isAmong(element, {3, 11, 19, 37, 55, 87})) {
        return 1;
    }
    if (isAmong(element, {4, 12, 20, 38, 56, 88})) {
        return 2;
    }
    return element == number::Aluminium ? 3 : 0;
}

struct KnownAtom {
    int element;
    int count;
};
struct KnownIon {
    int charge; ///< 0 for a ligand
    std::size_t size;
    std::array<KnownAtom, 5> atoms;
};
/// The longest first, so that the end of KHCO3 is hydrogencarbonate. Manganate is missing, since MnO4 has two
/// charges.
constexpr auto KnownIons = std::to_array<KnownIon>({
    {-1, 5, {{{6, 1}, {1, 3}, {6, 1}, {8, 1}, {8, 1}}}}, // CH3COO
    {-1, 3, {{{1, 1}, {6, 1}, {8, 3}}}},                 // HCO3
    {-1, 3, {{{1, 1}, {16, 1}, {8, 4}}}},                // HSO4
    {-1, 3, {{{1, 1}, {16, 1}, {8, 3}}}},                // HSO3
    {-2, 3, {{{1, 1}, {15, 1}, {8, 4}}}},                // HPO4
    {-1, 3, {{{1, 2}, {15, 1}, {8, 4}}}},                // H2PO4
    {-1, 3, {{{16, 1}, {6, 1}, {7, 1}}}},                // SCN
    {-1, 2, {{{8, 1}, {1, 1}}}},                         // OH
    {-1, 2, {{{7, 1}, {8, 3}}}},                         // NO3
    {-1, 2, {{{7, 1}, {8, 2}}}},                         // NO2
    {-2, 2, {{{16, 1}, {8, 4}}}},                        // SO4
    {-2, 2, {{{16, 1}, {8, 3}}}},                        // SO3
    {-2, 2, {{{16, 2}, {8, 3}}}},                        // S2O3
    {-2, 2, {{{6, 1}, {8, 3}}}},                         // CO3
    {-2, 2, {{{6, 2}, {8, 4}}}},                         // C2O4
    {-3, 2, {{{15, 1}, {8, 4}}}},                        // PO4
    {-1, 2, {{{17, 1}, {8, 4}}}},                        // ClO4
    {-1, 2, {{{17, 1}, {8, 3}}}},                        // ClO3
    {-1, 2, {{{17, 1}, {8, 2}}}},                        // ClO2
    {-1, 2, {{{17, 1}, {8, 1}}}},                        // ClO
    {-2, 2, {{{24, 1}, {8, 4}}}},                        // CrO4
    {-2, 2, {{{24, 2}, {8, 7}}}},                        // Cr2O7
    {-1, 2, {{{6, 1}, {7, 1}}}},                         // CN
    {1, 2, {{{7, 1}, {1, 4}}}},                          // NH4
    {0, 2, {{{7, 1}, {1, 3}}}},                          // NH3
    {0, 2, {{{1, 2}, {8, 1}}}},                          // H2O
    {0, 2, {{{6, 1}, {8, 1}}}},                          // CO
});

/// The known ion that items from `first` up to `end` are; null for none.
const KnownIon* ionOf(const FormulaTree& tree, std::uint32_t first, std::uint32_t end)
{
    const auto isThere = [&](const KnownIon& ion) {
        if (ion.size != end - first) {
            return false;
        }
        for (std::size_t at = 0; at < ion.size; ++at) {
            const FormulaItem& item = tree.items[first + at];
            if (item.element != ion.atoms[at].element || item.count != ion.atoms[at].count) {
                return false;
            }
        }
        return true;
    };
    const auto* const found = std::ranges::find_if(KnownIons, isThere);
    return found == KnownIons.end() ? nullptr : found;
}

/// Thrown within the solver alone, where the first fault ends it.
struct Unsolved {
    OxidationFault fault;
};

Rational present(const std::optional<Rational>& result)
{
    if (!result) {
        throw Unsolved{OxidationFault::TooLarge};
    }
    return *result;
}
Rational sum(const Rational& one, const Rational& other)
{
    return present(sumOf(one, other));
}
Rational product(const Rational& one, const Rational& other)
{
    return present(productOf(one, other));
}
Rational less(const Rational& one, const Rational& other)
{
    return sum(one, {-other.numerator, other.denominator});
}

struct PlacedAtom {
    std::uint32_t item;
    Rational count;
};

/// An element of what is balanced together: an ion, or what no ion is part of.
struct Portion {
    int element = 0;
    Rational count{0, 1};
    Rational number{0, 1};
    OxidationRule rule = OxidationRule::Sum;
    bool isKnown = false;

    void set(const Rational& value, OxidationRule why)
    {
        number = value;
        rule = why;
        isKnown = true;
    }
    void set(int value, OxidationRule why) { set(Rational{value, 1}, why); }
};

/// Finds the numbers of atoms that are balanced together.
class UnitSolver
{
public:
    UnitSolver(const FormulaTree& tree, const std::vector<PlacedAtom>& atoms, const Rational& charge)
        : tree_(tree), atoms_(atoms), charge_(charge)
    {
        for (const PlacedAtom& atom : atoms) {
            Portion& portion = portionOf(tree.items[atom.item].element);
            portion.count = sum(portion.count, atom.count);
        }
    }

    void solve(std::vector<OxidationNumber>& numbers)
    {
        if (portions_.size() == 1) {
            const bool isElement = charge_.numerator == 0;
            portions_.front().set(present(quotientOf(charge_, portions_.front().count)),
                                  isElement ? OxidationRule::Element : OxidationRule::SimpleIon);
        } else {
            setFixed();
            setDrawing();
            setRest();
            std::ranges::for_each(portions_, requireUsual);
        }
        for (const PlacedAtom& atom : atoms_) {
            const Portion& portion = portionOf(tree_.items[atom.item].element);
            const bool areCarbons = portion.element == number::Carbon && portion.count.numerator > 1;
            const bool isMean = portion.number.denominator > 1 || areCarbons;
            numbers.push_back({atom.item, portion.number, portion.rule,
                               isMean && portion.rule != OxidationRule::Peroxide && portions_.size() > 1});
        }
    }

private:
    Portion& portionOf(int element)
    {
        const auto found = std::ranges::find(portions_, element, &Portion::element);
        if (found != portions_.end()) {
            return *found;
        }
        portions_.push_back({element});
        return portions_.back();
    }
    Portion* find(int element)
    {
        const auto found = std::ranges::find(portions_, element, &Portion::element);
        return found == portions_.end() ? nullptr : &*found;
    }
    std::size_t openCount() const
    {
        return static_cast<std::size_t>(std::ranges::count(portions_, false, &Portion::isKnown));
    }

    /// Whether hydrogen draws the electrons here.
    bool isHydride() const
    {
        return std::ranges::all_of(portions_, [](const Portion& portion) {
            return nonMetal(portion.element) == nullptr ||
                   isAmong(portion.element, {number::Hydrogen, number::Boron, number::Silicon});
        });
    }

    void setFixed()
    {
        for (Portion& portion : portions_) {
            if (portion.element == number::Fluorine) {
                portion.set(-1, OxidationRule::Fluorine);
            } else if (portion.element == number::Oxygen) {
                portion.set(-2, OxidationRule::Oxygen);
            } else if (portion.element == number::Hydrogen) {
                const bool isBase = isHydride();
                portion.set(isBase ? -1 : 1, isBase ? OxidationRule::Hydride : OxidationRule::Hydrogen);
            } else if (const int fixed = fixedOfMetal(portion.element); fixed != 0) {
                portion.set(fixed, OxidationRule::Metal);
            }
        }
    }

    void setDrawing()
    {
        for (std::size_t at = FirstDrawing; at <= LastDrawing && openCount() > 1; ++at) {
            Portion* const portion = find(NonMetals[at].element);
            if (portion != nullptr && !portion->isKnown) {
                portion->set(isPyrite() ? -1 : NonMetals[at].lowest, OxidationRule::Electronegative);
            }
        }
    }

    /// Whether two sulfurs are bound to each other, as in FeS2; beside other metals they are not.
    bool isPyrite()
    {
        const Portion* const sulfur = find(number::Sulfur);
        return portions_.size() == 2 && sulfur != nullptr && sulfur->count == Rational{2, 1} &&
               std::ranges::any_of(portions_, [](const Portion& portion) {
                   return portion.element >= number::Manganese && portion.element <= number::Nickel &&
                          portion.count == Rational{1, 1};
               });
    }

    void setRest()
    {
        if (openCount() > 1) {
            throw Unsolved{OxidationFault::SeveralOpen};
        }
        if (openCount() == 0) {
            if (missing().numerator == 0) {
                return;
            }
            Portion* const oxygen = find(number::Oxygen);
            if (oxygen == nullptr) {
                throw Unsolved{OxidationFault::Unusual};
            }
            oxygen->isKnown = false;
        }
        const auto open = std::ranges::find(portions_, false, &Portion::isKnown);
        const Rational number = present(quotientOf(missing(), open->count));
        const bool isPeroxide = number == Rational{-1, 1} || number == Rational{-1, 2};
        const bool isOxygen = open->element == number::Oxygen;
        if (isOxygen && !isPeroxide && find(number::Fluorine) == nullptr) {
            throw Unsolved{OxidationFault::Unusual};
        }
        open->set(number, isOxygen && isPeroxide ? OxidationRule::Peroxide : OxidationRule::Sum);
    }

    /// What the numbers that are known leave of the charge.
    Rational missing() const
    {
        Rational rest = charge_;
        for (const Portion& portion : portions_) {
            rest = portion.isKnown ? less(rest, product(portion.count, portion.number)) : rest;
        }
        return rest;
    }

    static void requireUsual(const Portion& portion)
    {
        const NonMetal* const known = nonMetal(portion.element);
        const int lowest = known != nullptr ? known->lowest : LowestOfMetals;
        const int highest = known != nullptr ? known->highest : HighestOfMetals;
        const Rational& number = portion.number;
        if (number.numerator < lowest * number.denominator ||
            number.numerator > highest * number.denominator) {
            throw Unsolved{OxidationFault::Unusual};
        }
    }

    const FormulaTree& tree_;
    const std::vector<PlacedAtom>& atoms_;
    Rational charge_;
    std::vector<Portion> portions_;
};

/// Parts a formula into ions and what is left, and solves each by itself.
class SpeciesSolver
{
public:
    SpeciesSolver(const FormulaTree& tree, std::vector<OxidationNumber>& numbers)
        : tree_(tree), numbers_(numbers)
    {
    }

    void solve(const FormulaPart& part, std::int32_t charge)
    {
        rest_.clear();
        left_ = {charge, 1};
        std::uint32_t first = part.first;
        const auto ammonium = first + 2;
        if (ammonium <= part.end && isIonAt(first, ammonium, 1)) {
            takeIon(first, ammonium, {1, 1});
            first = ammonium;
        }
        const std::uint32_t anion = anionOf(part, first);
        collect(first, anion);
        const bool isSalt = (!rest_.empty() || first != part.first) &&
                            std::ranges::all_of(rest_, [&](const PlacedAtom& atom) {
                                const int element = tree_.items[atom.item].element;
                                return element == number::Hydrogen || nonMetal(element) == nullptr;
                            });
        if (anion < part.end && isSalt) {
            takeIon(anion, part.end, {1, 1});
        } else {
            collect(anion, part.end);
        }
        if (!rest_.empty()) {
            UnitSolver(tree_, rest_, left_).solve(numbers_);
        } else if (left_.numerator != 0) {
            throw Unsolved{OxidationFault::Unusual};
        }
    }

private:
    bool isIonAt(std::uint32_t first, std::uint32_t end, int sign) const
    {
        const KnownIon* const ion = ionOf(tree_, first, end);
        return ion != nullptr && ion->charge * sign > 0;
    }

    /// Where the anion begins with which a part ends; the part's end for none.
    std::uint32_t anionOf(const FormulaPart& part, std::uint32_t first) const
    {
        std::uint32_t begin = first; // behind the last group
        for (std::uint32_t at = first; at < part.end; at = tree_.items[at].end) {
            begin = tree_.items[at].isGroup() ? tree_.items[at].end : begin;
        }
        constexpr std::uint32_t Longest = 5;
        for (std::uint32_t size = std::min(Longest, part.end - begin); size > 1; --size) {
            if (isIonAt(part.end - size, part.end, -1)) {
                return part.end - size;
            }
        }
        return part.end;
    }

    /// Takes ions in brackets by themselves, everything else to the rest.
    void collect(std::uint32_t first, std::uint32_t end)
    {
        struct Group {
            Rational factor;
            std::uint32_t end;
        };
        std::vector<Group> groups{{{1, 1}, end}};
        for (std::uint32_t at = first; at < end;) {
            while (groups.size() > 1 && groups.back().end <= at) {
                groups.pop_back();
            }
            const FormulaItem& item = tree_.items[at];
            const Rational count = product(groups.back().factor, {item.count, 1});
            ++at;
            if (!item.isGroup()) {
                rest_.push_back({at - 1, count});
            } else if (ionOf(tree_, at, item.end) != nullptr) {
                takeIon(at, item.end, count);
                at = item.end;
            } else {
                groups.push_back({count, item.end});
            }
        }
    }

    void takeIon(std::uint32_t first, std::uint32_t end, const Rational& times)
    {
        const Rational charge{ionOf(tree_, first, end)->charge, 1};
        left_ = less(left_, product(charge, times));
        std::vector<PlacedAtom> atoms;
        for (std::uint32_t at = first; at < end; ++at) {
            atoms.push_back({at, {tree_.items[at].count, 1}});
        }
        UnitSolver(tree_, atoms, charge).solve(numbers_);
    }

    const FormulaTree& tree_;
    std::vector<OxidationNumber>& numbers_;
    std::vector<PlacedAtom> rest_;
    Rational left_{0, 1}; ///< of the charge
};

/// By rule.
constexpr auto RuleSentences = std::to_array<StringView>({
    u"Elemente haben die Oxidationszahl 0.|Elements by themselves have the oxidation number 0.",
    u"Bei einatomigen Ionen ist die Oxidationszahl gleich der Ladung.|"
    u"In ions of one element the oxidation number is the charge of each atom.",
    u"Fluor hat in Verbindungen immer -I.|Fluorine always has -I in compounds.",
    u"Alkalimetalle haben +I, Erdalkalimetalle +II, Aluminium +III.|"
    u"Alkali metals have +I, alkaline earth metals +II, aluminium +III.",
    u"Wasserstoff hat meist +I.|Hydrogen mostly has +I.",
    u"In Hydriden hat Wasserstoff -I.|In hydrides hydrogen has -I.",
    u"Sauerstoff hat meist -II.|Oxygen mostly has -II.",
    u"In Peroxiden hat Sauerstoff -I, in Hyperoxiden -1/2.|"
    u"In peroxides oxygen has -I, in superoxides -1/2.",
    u"Der elektronegativere Partner erhält die Ladung seines einfachen Ions.|"
    u"The more electronegative partner has the charge of its simple ion.",
    u"Die Summe aller Oxidationszahlen ist gleich der Ladung.|"
    u"All oxidation numbers add up to the charge.",
});
/// By fault.
constexpr auto FaultSentences = std::to_array<StringView>({
    u"Ein Teilchen ohne Atome hat keine Oxidationszahl.|"
    u"A particle without atoms has no oxidation number.",
    u"Die Regeln reichen hier nicht aus. Zeichne die Strukturformel.|"
    u"The rules are not enough here. Draw the structural formula.",
    u"Die Regeln führen hier zu keiner möglichen Oxidationszahl. Prüfe Formel und Ladung.|"
    u"The rules lead to no possible oxidation number here. Check formula and charge.",
    u"Die Zahlen dieser Formel sind zu groß. Schreibe kleinere.|"
    u"The numbers of this formula are too large. Write smaller ones.",
});

String oxidationSentence(StringView both, FormulaTongue tongue)
{
    return String(inTongue(both, tongue));
}

} // namespace

OxidationNumbers oxidationNumbersOf(const FormulaTree& tree, const FormulaSpecies& species)
{
    if (species.particle != FormulaParticle::None) {
        return {{}, OxidationFault::NoAtoms};
    }
    OxidationNumbers found;
    try {
        SpeciesSolver solver(tree, found.numbers);
        for (std::uint32_t part = species.first; part < species.end; ++part) {
            solver.solve(tree.parts[part], part == species.first ? species.charge : 0);
        }
    } catch (const Unsolved& unsolved) {
        return {{}, unsolved.fault};
    }
    std::ranges::sort(found.numbers, {}, &OxidationNumber::item);
    return found;
}

String writtenOxidationNumber(const Rational& number)
{
    constexpr auto Romans =
        std::to_array<StringView>({u"0", u"I", u"II", u"III", u"IV", u"V", u"VI", u"VII", u"VIII", u"IX"});
    const std::int64_t size = number.numerator < 0 ? -number.numerator : number.numerator;
    const String sign = number.numerator == 0 ? u"" : number.numerator < 0 ? u"-" : u"+";
    if (number.denominator == 1 && size < static_cast<std::int64_t>(Romans.size())) {
        return sign + String(Romans[static_cast<std::size_t>(size)]);
    }
    const std::string digits =
        std::to_string(size) + (number.denominator == 1 ? "" : "/" + std::to_string(number.denominator));
    return sign + String(digits.begin(), digits.end());
}

String germanSentence(OxidationRule rule)
{
    return oxidationSentence(RuleSentences[static_cast<std::size_t>(rule)], FormulaTongue::German);
}

String englishSentence(OxidationRule rule)
{
    return oxidationSentence(RuleSentences[static_cast<std::size_t>(rule)], FormulaTongue::English);
}

String germanSentence(OxidationFault fault)
{
    return oxidationSentence(FaultSentences[static_cast<std::size_t>(fault)], FormulaTongue::German);
}

String englishSentence(OxidationFault fault)
{
    return oxidationSentence(FaultSentences[static_cast<std::size_t>(fault)], FormulaTongue::English);
}

} // namespace phial
