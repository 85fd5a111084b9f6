#pragma once

#include "core/String.h"
#include "periodic/PeriodicPlaces.h"

#include <optional>
#include <vector>

namespace puzzle
{

/// What the puzzle knows about an element.
struct ElementFacts {
    phial::String symbol;
    phial::String german;  ///< its name
    phial::String english; ///< as within a sentence
    int protons = 0;
    double mass = 0; ///< in g/mol, as the table shows it
    phial::ElementPlace place;

    /// Whether it stands in one of the two rows below the table.
    bool isBelow() const { return place.row > LastRow; }
    bool isLanthanide() const { return place.row == LanthanideRow; }
    /// 1 to 7.
    int period() const { return isBelow() ? place.row - 2 : place.row + 1; }
    /// 1 to 18; 0 below the table.
    int group() const { return isBelow() ? 0 : place.column + 1; }
    bool isMainGroup() const { return !isBelow() && (group() <= 2 || group() >= FirstRightGroup); }
    /// 1 to 8; 0 for elements of no main group, in which that number does not follow from the place.
    int outerElectrons() const;
    bool isNonMetal() const;

    static constexpr int LastRow = 6;
    static constexpr int LanthanideRow = 8;
    static constexpr int FirstRightGroup = 13;
};

/// The elements in the order of their protons.
class ElementBook
{
public:
    /// No elements.
    ElementBook() = default;
    /// Reads the file that the control shows. Nothing is raised: without it there are no elements.
    explicit ElementBook(phial::StringView file);

    const std::vector<ElementFacts>& all() const { return elements_; }
    bool isEmpty() const { return elements_.empty(); }
    /// The element of exactly that symbol; null for none.
    const ElementFacts* find(phial::StringView symbol) const;
    /// The element with so many protons; null for none.
    const ElementFacts* at(int protons) const;
    /// The next one of the same group above it; null for none and below the table's first rows.
    const ElementFacts* above(const ElementFacts& element) const;

private:
    std::vector<ElementFacts> elements_;
};

/// Its name in the language in force.
phial::String nameOf(const ElementFacts& element);
/// "Hauptgruppe VII", "Nebengruppe IVa", "Lanthanide", as the table's captions have it, in the language in
/// force. No line ends within it.
phial::String groupOf(const ElementFacts& element);

} // namespace puzzle
