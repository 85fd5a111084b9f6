#include "puzzle/Neighbours.h"

#include "common/FrameTexts.h"

#include <algorithm>
#include <span>

namespace puzzle
{

using learning::number;
using learning::translate;
using phial::String;
using phial::StringView;

namespace
{

using Elements = std::vector<const ElementFacts*>;

String belowInMainGroup(const ElementFacts& element, const ElementFacts& above)
{
    if (element.outerElectrons() == 1) {
        return translate(u"{1}: steht unter {2}, also auch ein Außenelektron, aber eine Schale mehr.",
                         u"{1}: stands below {2}, so one outer electron too, but one shell more.",
                         {element.symbol, nameOf(above)});
    }
    return translate(u"{1}: steht unter {2}, also auch {3} Außenelektronen, aber eine Schale mehr.",
                     u"{1}: stands below {2}, so {3} outer electrons too, but one shell more.",
                     {element.symbol, nameOf(above), number(element.outerElectrons())});
}

/// Any two that `holds` is true for.
template <typename Holds>
bool anyPair(const Elements& elements, Holds holds)
{
    return std::ranges::any_of(elements, [&](const ElementFacts* one) {
        return std::ranges::any_of(elements, [&](const ElementFacts* other) { return holds(*one, *other); });
    });
}

template <typename Holds>
bool allLikeTheFirst(const Elements& elements, Holds holds)
{
    return elements.size() > 1 && std::ranges::all_of(elements, [&](const ElementFacts* each) {
               return holds(*elements.front(), *each);
           });
}

template <typename Holds>
bool all(const Elements& elements, Holds holds)
{
    return std::ranges::all_of(elements, [&](const ElementFacts* each) { return holds(*each); });
}

struct PlacePraise {
    bool (*fits)(const Elements& elements);
    StringView text;
};

/// There is room for so many lines.
constexpr std::size_t MostLines = 3;

constexpr PlacePraise Praises[] = {
    {[](const Elements& elements) {
         return anyPair(elements, [](const ElementFacts& one, const ElementFacts& other) {
             return other.protons == one.protons + 1 && other.mass < one.mass;
         });
     },
     u"Von der Masse nicht täuschen lassen.|Not misled by the mass."},
    {[](const Elements& elements) {
         return all(elements, [](const ElementFacts& each) { return each.isBelow(); });
     },
     u"Auch unter der Tabelle findest du dich zurecht.|You find your way below the table too."},
    {[](const Elements& elements) {
         return allLikeTheFirst(elements, [](const ElementFacts& first, const ElementFacts& each) {
             return first.group() == each.group() && first.group() > 0;
         });
     },
     u"Die Gruppe von oben nach unten richtig.|The group is right from top to bottom."},
    {[](const Elements& elements) {
         return allLikeTheFirst(elements, [](const ElementFacts& first, const ElementFacts& each) {
             return first.place.row == each.place.row;
         });
     },
     u"Die Periode der Reihe nach richtig.|The period is right from left to right."},
    {[](const Elements& elements) {
         return all(elements, [](const ElementFacts& each) { return !each.isMainGroup(); });
     },
     u"Auch in den Nebengruppen sicher.|Sure of the subgroups too."},
    {[](const Elements& elements) {
         return std::ranges::any_of(elements, [](const ElementFacts* each) {
             return phial::lowerCase(nameOf(*each).front()) != phial::lowerCase(each->symbol.front());
         });
     },
     u"Auch das Symbol erkannt, das anders klingt als der Name.|"
     u"The symbol that sounds unlike the name was known as well."},
    {[](const Elements&) { return true; },
     u"Jedes Kärtchen am richtigen Platz.|Each tile in its right place."},
};

} // namespace

String trendOf(const ElementFacts& element, const ElementBook& book)
{
    if (const ElementFacts* const above = book.above(element)) {
        if (element.isMainGroup() && element.outerElectrons() == above->outerElectrons()) {
            return belowInMainGroup(element, *above);
        }
        if (!element.isMainGroup()) {
            return translate(u"{1}: steht unter {2} und ist ihm ähnlich.",
                             u"{1}: stands below {2} and is like it.", {element.symbol, nameOf(*above)});
        }
    }
    if (const ElementFacts* const before = book.at(element.protons - 1)) {
        return translate(u"{1}: folgt auf {2}, mit einem Proton mehr.",
                         u"{1}: follows {2}, with one proton more.", {element.symbol, nameOf(*before)});
    }
    return translate(u"{1}: hat die leichtesten Atome von allen.", u"{1}: has the lightest atoms of all.",
                     {element.symbol});
}

String trendsText(const Elements& elements, const ElementBook& book)
{
    String lines;
    for (const ElementFacts* const element :
         std::span(elements).first(std::min(elements.size(), MostLines))) {
        lines += (lines.empty() ? String() : String(u"<br>")) + trendOf(*element, book);
    }
    return lines;
}

String placeText(const ElementFacts& element)
{
    return translate(u"{1}\u00A0({2}): Periode\u00A0{3}, {4}", u"{1}\u00A0({2}): period\u00A0{3}, {4}",
                     {element.symbol, number(element.protons), number(element.period()), groupOf(element)});
}

String placesText(const Elements& elements)
{
    const StringView separator = elements.size() > MostLines ? u"; " : u"<br>";
    String text;
    for (const ElementFacts* const element : elements) {
        text += (text.empty() ? String() : String(separator)) + placeText(*element);
    }
    return text;
}

std::vector<StringView> masteredIn(const Elements& elements)
{
    std::vector<StringView> texts;
    for (const PlacePraise& praise : Praises) {
        if (praise.fits(elements)) {
            texts.push_back(praise.text);
        }
    }
    return texts;
}

} // namespace puzzle
