#include "chem/formula/FormulaSpeech.h"

#include "chem/ElementSymbols.h"
#include "chem/formula/FormulaNames.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaTongue.h"

#include <array>
#include <string>
#include <vector>

namespace phial
{

namespace
{

// What is said for the signs of a formula, each as "German|English".
constexpr auto Numbers = std::to_array<StringView>(
    {u"null|zero", u"eins|one", u"zwei|two", u"drei|three", u"vier|four", u"fünf|five", u"sechs|six",
     u"sieben|seven", u"acht|eight", u"neun|nine", u"zehn|ten", u"elf|eleven", u"zwölf|twelve"});
/// By bracket.
constexpr auto SpokenOpenings =
    std::to_array<StringView>({u"Klammer auf|open bracket", u"eckige Klammer auf|open square bracket",
                               u"geschweifte Klammer auf|open curly bracket"});
constexpr auto SpokenClosings =
    std::to_array<StringView>({u"Klammer zu|close bracket", u"eckige Klammer zu|close square bracket",
                               u"geschweifte Klammer zu|close curly bracket"});
constexpr auto Phases = std::to_array<StringView>(
    {u"|", u"fest|solid", u"flüssig|liquid", u"gasförmig|gas", u"gelöst|in solution"});
constexpr auto Arrows =
    std::to_array<StringView>({u"|", u"reagiert zu|reacts to", u"entsteht aus|is formed from",
                               u"steht im Gleichgewicht mit|is in equilibrium with"});
constexpr char16_t Plus[] = u"plus"; // in both languages
/// Of charges in German; larger ones are told as in English.
constexpr auto Sizes = std::to_array<StringView>({u"", u"einfach", u"zweifach", u"dreifach", u"vierfach"});
constexpr StringView Positive = u"{1} positiv geladen|charge {1} plus";
constexpr StringView Negative = u"{1} negativ geladen|charge {1} minus";
constexpr StringView LargePositive = u"Ladung {1} plus|charge {1} plus";
constexpr StringView LargeNegative = u"Ladung {1} minus|charge {1} minus";

String digitsSpoken(std::int64_t value)
{
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

class Speaker
{
public:
    Speaker(const FormulaTree& tree, FormulaTongue tongue) : tree_(tree), tongue_(tongue) {}

    String speak()
    {
        for (std::size_t at = 0; at < tree_.species.size(); ++at) {
            if (at > 0) {
                const bool isArrow = at == tree_.leftCount && tree_.arrow != FormulaArrow::None;
                say(isArrow ? inTongue(Arrows[static_cast<std::size_t>(tree_.arrow)], tongue_)
                            : StringView(Plus));
            }
            speakSpecies(tree_.species[at]);
        }
        return std::move(text_);
    }

private:
    void say(StringView word)
    {
        if (word.empty()) {
            return;
        }
        if (!text_.empty()) {
            text_ += u' ';
        }
        text_ += word;
    }
    /// One half of both.
    void tell(StringView both) { say(inTongue(both, tongue_)); }
    /// Behind a short pause.
    void add(StringView words)
    {
        if (!text_.empty()) {
            text_ += u',';
        }
        say(words);
    }

    String number(std::int64_t value) const
    {
        return value >= 0 && value < static_cast<std::int64_t>(Numbers.size())
                   ? String(inTongue(Numbers[static_cast<std::size_t>(value)], tongue_))
                   : digitsSpoken(value);
    }

    void speakSpecies(const FormulaSpecies& species)
    {
        speakFactor(species.factor);
        for (std::uint32_t part = species.first; part < species.end; ++part) {
            if (part > species.first) {
                tell(u"mal|dot");
                speakFactor(tree_.parts[part].factor);
            }
            speakItems(tree_.parts[part]);
        }
        if (species.particle == FormulaParticle::Electron) {
            tell(u"Elektron|electron");
        } else {
            tell(species.particle == FormulaParticle::Neutron ? u"Neutron|neutron" : u"|");
            speakCharge(species.charge);
        }
        if (species.isRadical) {
            add(inTongue(u"Radikal|radical", tongue_));
        }
        if (species.phase != FormulaPhase::None) {
            add(inTongue(Phases[static_cast<std::size_t>(species.phase)], tongue_));
        }
    }

    void speakFactor(const Rational& factor)
    {
        if (factor == Rational{1, 2}) {
            tell(u"ein halb|one half");
        } else if (factor != Rational{}) {
            say(number(factor.numerator));
            if (factor.denominator != 1) {
                tell(u"durch|over");
                say(number(factor.denominator));
            }
        }
    }

    void speakItems(const FormulaPart& part)
    {
        open_.clear();
        for (std::uint32_t at = part.first; at < part.end; ++at) {
            closeGroups(at);
            const FormulaItem& item = tree_.items[at];
            if (item.isGroup()) {
                tell(SpokenOpenings[static_cast<std::size_t>(item.bracket)]);
                open_.push_back(at);
            } else {
                for (const char16_t letter : elementOf(item.element).symbol) {
                    say(StringView(&letter, 1));
                }
                if (item.massNumber > 0) {
                    say(digitsSpoken(item.massNumber));
                }
                speakCount(item.count);
            }
        }
        closeGroups(part.end);
    }

    void closeGroups(std::uint32_t at)
    {
        while (!open_.empty() && tree_.items[open_.back()].end <= at) {
            const FormulaItem& group = tree_.items[open_.back()];
            open_.pop_back();
            tell(SpokenClosings[static_cast<std::size_t>(group.bracket)]);
            speakCount(group.count);
        }
    }

    void speakCount(std::int64_t count)
    {
        if (count != 1) {
            say(number(count));
        }
    }

    void speakCharge(std::int32_t charge)
    {
        if (charge == 0) {
            return;
        }
        const std::int32_t size = charge < 0 ? -charge : charge;
        const bool isSmall = size < static_cast<std::int32_t>(Sizes.size());
        const StringView both =
            isSmall ? (charge < 0 ? Negative : Positive) : (charge < 0 ? LargeNegative : LargePositive);
        const bool isAdverb = isSmall && tongue_ == FormulaTongue::German;
        add(replaced(inTongue(both, tongue_), u"{1}",
                     isAdverb ? String(Sizes[static_cast<std::size_t>(size)]) : number(size)));
    }

    const FormulaTree& tree_;
    FormulaTongue tongue_;
    String text_;
    std::vector<std::uint32_t> open_;
};

String spoken(const FormulaTree& tree, FormulaTongue tongue)
{
    const String reading = Speaker(tree, tongue).speak();
    const FormulaName* known = tree.species.size() == 1 ? nameOfFormula(plainFormula(tree)) : nullptr;
    if (!known) {
        return reading;
    }
    return String(tongue == FormulaTongue::German ? known->german : known->english) + u": " + reading;
}

} // namespace

String spokenInGerman(const FormulaTree& tree)
{
    return spoken(tree, FormulaTongue::German);
}

String spokenInEnglish(const FormulaTree& tree)
{
    return spoken(tree, FormulaTongue::English);
}

} // namespace phial
