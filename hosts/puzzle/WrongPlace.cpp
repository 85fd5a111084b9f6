#include "puzzle/WrongPlace.h"

#include "common/FrameTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace puzzle
{

using learning::number;
using learning::translate;
using phial::String;
using phial::StringView;

namespace
{

/// Symbols that are mixed up though neither begins with the other.
constexpr auto LookAlikes = std::to_array<std::pair<StringView, StringView>>({
    {u"Mg", u"Mn"},
    {u"Ag", u"Au"},
    {u"Co", u"Cu"},
    {u"Cl", u"Cr"},
    {u"Sn", u"Sb"},
    {u"Ti", u"Tl"},
    {u"Pb", u"Pd"},
    {u"Ca", u"Cd"},
    {u"Zn", u"Zr"},
    {u"As", u"At"},
    {u"Ra", u"Rn"},
    {u"Ga", u"Ge"},
    {u"Ca", u"Cs"},
    {u"Sr", u"Sn"},
    {u"Hg", u"Ag"},
});

/// So many places within a period are counted rather than taken for a mixed-up symbol.
constexpr int NearPlaces = 2;

/// How many places of its row an element stands from another one of that row. The fourteen below the table
/// stand between two neighbours, and the first period lacks six main groups.
int placesBetween(const ElementFacts& from, const ElementFacts& to)
{
    constexpr int Below = 14;
    constexpr int LanthanumColumn = 2;
    constexpr int MainGroups = 8;
    const int difference = to.protons - from.protons;
    if (from.period() == 1) {
        return difference * (MainGroups - 1);
    }
    const bool isLong = !from.isBelow() && from.period() > 5;
    const bool jumps = (from.place.column > LanthanumColumn) != (to.place.column > LanthanumColumn);
    return isLong && jumps ? difference - (difference > 0 ? Below : -Below) : difference;
}

bool areOrderedAgainstMass(const ElementFacts& one, const ElementFacts& other)
{
    const int protons = other.protons - one.protons;
    return std::abs(protons) == 1 && (other.mass - one.mass) * protons < 0;
}

bool lookAlike(const ElementFacts& one, const ElementFacts& other)
{
    const StringView first = one.symbol;
    const StringView second = other.symbol;
    return first.starts_with(second) || second.starts_with(first) ||
           std::ranges::any_of(LookAlikes, [&](const auto& pair) {
               return pair == std::pair(first, second) || pair == std::pair(second, first);
           });
}

PlaceSlip slipAroundTheRowsBelow(const ElementFacts& element, const ElementFacts& place)
{
    if (element.isBelow() && place.isBelow()) {
        return element.place.row == place.place.row ? PlaceSlip::SamePeriod : PlaceSlip::OtherRowBelow;
    }
    return element.isBelow() ? PlaceSlip::BelongsBelow : PlaceSlip::BelongsAbove;
}

/// What tells most of an element that stands in neither the right group nor the right period.
PlaceSlip slipFarOff(const ElementFacts& element, const ElementFacts& place)
{
    const bool isRightMetal = element.isMainGroup() && element.group() > 2;
    constexpr int Hydrogen = 1;
    if (element.isNonMetal() && !place.isNonMetal() && element.protons != Hydrogen) {
        return PlaceSlip::NonMetal;
    }
    if (!element.isNonMetal() && !isRightMetal && place.isNonMetal()) {
        return PlaceSlip::Metal;
    }
    if (element.isMainGroup() != place.isMainGroup()) {
        return element.isMainGroup() ? PlaceSlip::MainGroup : PlaceSlip::SubGroup;
    }
    return PlaceSlip::Elsewhere;
}

PlaceSlip kindOf(const ElementFacts& element, const ElementFacts& place, int right)
{
    if (areOrderedAgainstMass(element, place)) {
        return PlaceSlip::MassOrder;
    }
    if (element.isBelow() || place.isBelow()) {
        return slipAroundTheRowsBelow(element, place);
    }
    const bool sameGroup = element.group() == place.group();
    const bool samePeriod = element.period() == place.period();
    const bool isNear = (sameGroup && std::abs(element.period() - place.period()) == 1) ||
                        (samePeriod && std::abs(right) <= NearPlaces);
    if (!isNear && lookAlike(element, place)) {
        return PlaceSlip::SimilarSymbol;
    }
    return sameGroup ? PlaceSlip::SameGroup : samePeriod ? PlaceSlip::SamePeriod : slipFarOff(element, place);
}

/// How far off a place is, by a number of steps in one of two directions.
struct StepTexts {
    StringView oneOn;
    StringView oneBack;
    StringView on;
    StringView back;
};

constexpr StepTexts SameGroupTexts{
    .oneOn = u"{1}: gleiche Gruppe, aber eine Periode tiefer.|{1}: same group, but one period lower.",
    .oneBack = u"{1}: gleiche Gruppe, aber eine Periode höher.|{1}: same group, but one period higher.",
    .on = u"{1}: gleiche Gruppe, aber {2} Perioden tiefer.|{1}: same group, but {2} periods lower.",
    .back = u"{1}: gleiche Gruppe, aber {2} Perioden höher.|{1}: same group, but {2} periods higher.",
};

constexpr StepTexts SamePeriodTexts{
    .oneOn = u"{1}: gleiche Periode, aber eine Gruppe weiter rechts.|"
             u"{1}: same period, but one group further right.",
    .oneBack = u"{1}: gleiche Periode, aber eine Gruppe weiter links.|"
               u"{1}: same period, but one group further left.",
    .on = u"{1}: gleiche Periode, aber {2} Gruppen weiter rechts.|"
          u"{1}: same period, but {2} groups further right.",
    .back = u"{1}: gleiche Periode, aber {2} Gruppen weiter links.|"
            u"{1}: same period, but {2} groups further left.",
};

String inSteps(const StepTexts& texts, const String& symbol, int steps)
{
    const StringView text = steps == 1    ? texts.oneOn
                            : steps == -1 ? texts.oneBack
                            : steps > 0   ? texts.on
                                          : texts.back;
    return translate(text, {symbol, number(std::abs(steps))});
}

/// The rows below the table have no groups.
String sameRowBelow(const String& symbol, int right)
{
    return right > 0 ? translate(u"{1}: richtige Reihe, aber weiter rechts.",
                                 u"{1}: the right row, but further right.", {symbol})
                     : translate(u"{1}: richtige Reihe, aber weiter links.",
                                 u"{1}: the right row, but further left.", {symbol});
}

String elsewhere(const ElementFacts& element, const ElementFacts& place)
{
    const bool isLower = element.place.row > place.place.row;
    const bool isRight = element.place.column > place.place.column;
    const phial::Variant::Array symbol{element.symbol};
    if (isLower) {
        return isRight ? translate(u"{1} gehört weiter nach unten und nach rechts.",
                                   u"{1} belongs further down and to the right.", symbol)
                       : translate(u"{1} gehört weiter nach unten und nach links.",
                                   u"{1} belongs further down and to the left.", symbol);
    }
    return isRight ? translate(u"{1} gehört weiter nach oben und nach rechts.",
                               u"{1} belongs further up and to the right.", symbol)
                   : translate(u"{1} gehört weiter nach oben und nach links.",
                               u"{1} belongs further up and to the left.", symbol);
}

String belowTheTable(const ElementFacts& element)
{
    return element.isLanthanide()
               ? translate(u"{1} gehört zu den Lanthaniden unter der Tabelle.",
                           u"{1} is one of the lanthanides below the table.", {element.symbol})
               : translate(u"{1} gehört zu den Actiniden unter der Tabelle.",
                           u"{1} is one of the actinides below the table.", {element.symbol});
}

} // namespace

PlaceDiagnosis slipOf(const ElementFacts& element, const ElementFacts& place)
{
    const int right = element.place.row == place.place.row ? placesBetween(place, element) : 0;
    return {kindOf(element, place, right), element.place.row - place.place.row, right};
}

String explained(const PlaceDiagnosis& diagnosis, const ElementFacts& element, const ElementFacts& place)
{
    const phial::Variant::Array symbol{element.symbol};
    switch (diagnosis.slip) {
    case PlaceSlip::MassOrder:
        return translate(u"{1} und {2}: Hier zählen die Protonen, nicht die Masse.",
                         u"{1} and {2}: here protons count, not the mass.", {element.symbol, place.symbol});
    case PlaceSlip::OtherRowBelow:
    case PlaceSlip::BelongsBelow:
        return belowTheTable(element);
    case PlaceSlip::BelongsAbove:
        return translate(u"{1} gehört nicht in die beiden Reihen unter der Tabelle.",
                         u"{1} does not belong in the two rows below the table.", symbol);
    case PlaceSlip::SameGroup:
        return inSteps(SameGroupTexts, element.symbol, diagnosis.down);
    case PlaceSlip::SamePeriod:
        return element.isBelow() ? sameRowBelow(element.symbol, diagnosis.right)
                                 : inSteps(SamePeriodTexts, element.symbol, diagnosis.right);
    case PlaceSlip::SimilarSymbol:
        return translate(u"Leicht zu verwechseln: {1} ist {2}, {3} ist {4}.",
                         u"Easily mixed up: {1} is {2}, {3} is {4}.",
                         {element.symbol, nameOf(element), place.symbol, nameOf(place)});
    case PlaceSlip::NonMetal:
        return translate(u"{1} ist ein Nichtmetall. Die stehen rechts oben.",
                         u"{1} is a non-metal. Those stand at the upper right.", symbol);
    case PlaceSlip::Metal:
        return translate(u"{1} ist ein Metall. Die meisten stehen links und in der Mitte.",
                         u"{1} is a metal. Most of them stand at the left and in the middle.", symbol);
    case PlaceSlip::SubGroup:
        return translate(u"{1} gehört in eine Nebengruppe, also in die Mitte.",
                         u"{1} belongs in a subgroup, that is in the middle.", symbol);
    case PlaceSlip::MainGroup:
        return translate(u"{1} gehört in eine Hauptgruppe, nicht in die Mitte.",
                         u"{1} belongs in a main group, not in the middle.", symbol);
    case PlaceSlip::Elsewhere:
        break;
    }
    return elsewhere(element, place);
}

} // namespace puzzle
