#include "chem/formula/FormulaPrinter.h"

#include "chem/ElementSymbols.h"
#include "core/ScriptCharacters.h"

#include <array>
#include <string>

namespace phial
{

namespace
{

enum class Style : std::uint8_t { Plain, Unicode, Markup, Term };

String digitsOf(std::int64_t value)
{
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

class Printer
{
public:
    Printer(const FormulaTree& tree, Style style) : tree_(tree), style_(style) {}

    String print()
    {
        for (std::size_t at = 0; at < tree_.species.size(); ++at) {
            if (at > 0) {
                text_ += at == tree_.leftCount && tree_.arrow != FormulaArrow::None ? arrow() : u" + ";
            }
            printSpecies(tree_.species[at]);
        }
        return std::move(text_);
    }

private:
    /// Whether it is made of what a keyboard has.
    bool isTyped() const { return style_ == Style::Plain || style_ == Style::Term; }
    StringView dot() const { return isTyped() ? u"*" : u"·"; }
    String arrow() const
    {
        switch (tree_.arrow) {
        case FormulaArrow::Backward:
            return isTyped() ? u" <- " : u" ← ";
        case FormulaArrow::Both:
            return style_ == Style::Plain ? u" <-> " : u" ⇌ ";
        case FormulaArrow::None:
        case FormulaArrow::Forward:
            break;
        }
        return isTyped() ? u" -> " : u" → ";
    }

    void printSpecies(const FormulaSpecies& species)
    {
        printFactor(species.factor);
        for (std::uint32_t part = species.first; part < species.end; ++part) {
            if (part > species.first) {
                text_ += dot();
                printFactor(tree_.parts[part].factor);
            }
            printItems(tree_.parts[part], species.charge != 0);
        }
        if (species.particle == FormulaParticle::Electron) {
            text_ += u'e';
        } else if (species.particle == FormulaParticle::Neutron) {
            text_ += u'n';
        }
        printCharge(species.charge);
        if (species.isRadical) {
            text_ += dot();
        }
        printPhase(species.phase);
    }

    void printFactor(const Rational& factor)
    {
        if (factor == Rational{}) {
            return;
        }
        text_ += digitsOf(factor.numerator);
        if (factor.denominator != 1) {
            text_ += u"/" + digitsOf(factor.denominator) + u" "; // else its digits would be lowered
        }
    }

    /// Groups that have begun are closed before what stands behind them.
    void printItems(const FormulaPart& part, bool hasCharge)
    {
        constexpr StringView Opening = u"([{";
        open_.clear();
        for (std::uint32_t at = part.first; at < part.end; ++at) {
            closeGroups(at, hasCharge);
            const FormulaItem& item = tree_.items[at];
            if (item.isGroup()) {
                text_ += Opening[static_cast<std::size_t>(item.bracket)];
                open_.push_back(at);
                continue;
            }
            printAtom(item);
            printCount(item.count);
        }
        closeGroups(part.end, hasCharge);
    }

    void closeGroups(std::uint32_t at, bool hasCharge)
    {
        constexpr StringView Closing = u")]}";
        while (!open_.empty() && tree_.items[open_.back()].end <= at) {
            const FormulaItem& group = tree_.items[open_.back()];
            open_.pop_back();
            text_ += Closing[static_cast<std::size_t>(group.bracket)];
            if (style_ == Style::Term && hasCharge && group.bracket == FormulaBracket::Round) {
                text_ += u'#'; // the charge would go back before a round bracket
            }
            printCount(group.count);
        }
    }

    void printAtom(const FormulaItem& item)
    {
        constexpr int Deuterium = 2;
        constexpr int Tritium = 3;
        if (item.element == 1 && (item.massNumber == Deuterium || item.massNumber == Tritium)) {
            text_ += item.massNumber == Deuterium ? u'D' : u'T';
            return;
        }
        if (item.massNumber > 0) {
            printMassNumber(digitsOf(item.massNumber));
        }
        text_ += elementOf(item.element).symbol;
    }

    /// Where digits are ordinary ones a term raises each by itself.
    void printMassNumber(const String& digits)
    {
        if (style_ != Style::Term) {
            printRaised(digits);
            return;
        }
        for (std::size_t at = 0; at < digits.size(); ++at) {
            text_ += at == 0 && text_.empty() ? u"^" : u"#^";
            text_ += digits[at];
        }
    }

    void printCount(std::int64_t count)
    {
        if (count == 1) {
            return;
        }
        const String digits = digitsOf(count);
        switch (style_) {
        case Style::Plain:
        case Style::Term:
            text_ += digits;
            return;
        case Style::Unicode:
            text_ += scriptForms(digits, ScriptLevel::Subscript);
            return;
        case Style::Markup:
            text_ += u"<sub>" + digits + u"</sub>";
            return;
        }
    }

    void printRaised(const String& signs)
    {
        switch (style_) {
        case Style::Plain:
        case Style::Term:
            text_ += u"^" + signs;
            return;
        case Style::Unicode:
            text_ += scriptForms(signs, ScriptLevel::Superscript);
            return;
        case Style::Markup:
            text_ += u"<sup>" + signs + u"</sup>";
            return;
        }
    }

    void printCharge(std::int32_t charge)
    {
        if (charge == 0) {
            return;
        }
        const std::int32_t size = charge < 0 ? -charge : charge;
        printRaised((size > 1 ? digitsOf(size) : String()) + (charge < 0 ? u"-" : u"+"));
    }

    void printPhase(FormulaPhase phase)
    {
        constexpr auto States = std::to_array<StringView>({u"", u"(s)", u"(l)", u"(g)", u"(aq)"});
        text_ += States.at(static_cast<std::size_t>(phase));
    }

    const FormulaTree& tree_;
    Style style_;
    String text_;
    std::vector<std::uint32_t> open_; ///< groups that have begun
};

} // namespace

String plainFormula(const FormulaTree& tree)
{
    return Printer(tree, Style::Plain).print();
}

String unicodeFormula(const FormulaTree& tree)
{
    return Printer(tree, Style::Unicode).print();
}

String formulaMarkup(const FormulaTree& tree)
{
    return Printer(tree, Style::Markup).print();
}

String formulaTerm(const FormulaTree& tree)
{
    return Printer(tree, Style::Term).print();
}

} // namespace phial
