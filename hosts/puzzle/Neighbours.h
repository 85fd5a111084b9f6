#pragma once

#include "puzzle/ElementFacts.h"

#include <vector>

namespace puzzle
{

/// What an element's neighbours tell about its place, one line in the language in force: "Cl: steht unter
/// Fluor, also auch 7 Außenelektronen, aber eine Schale mehr."
phial::String trendOf(const ElementFacts& element, const ElementBook& book);

/// The same for the first three of them, a line each, divided by "<br>".
phial::String trendsText(const std::vector<const ElementFacts*>& elements, const ElementBook& book);

/// How its place is come by: "Cl (17): Periode 3, Hauptgruppe VII".
phial::String placeText(const ElementFacts& element);

/// The same for some of them, up to three with a line each.
phial::String placesText(const std::vector<const ElementFacts*>& elements);

/// What a pupil has mastered who has put all these where they belong, each "German|English" and one short
/// sentence about the work; the rarest first, at least one.
std::vector<phial::StringView> masteredIn(const std::vector<const ElementFacts*>& elements);

} // namespace puzzle
