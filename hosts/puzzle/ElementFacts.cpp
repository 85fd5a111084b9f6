#include "puzzle/ElementFacts.h"

#include "chem/ElementNames.h"
#include "chem/cls_DataElements.h"
#include "common/FrameTexts.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <array>

namespace puzzle
{

using learning::translate;
using phial::String;
using phial::StringView;

namespace
{

/// By the group, from 1.
constexpr auto GroupNumbers =
    std::to_array<StringView>({u"I", u"II", u"IIIa", u"IVa", u"Va", u"VIa", u"VIIa", u"VIIIa", u"VIIIa",
                               u"VIIIa", u"Ia", u"IIa", u"III", u"IV", u"V", u"VI", u"VII", u"VIII"});

constexpr auto NonMetals = std::to_array<StringView>({u"H", u"He", u"C", u"N", u"O", u"F", u"Ne", u"P", u"S",
                                                      u"Cl", u"Ar", u"Se", u"Br", u"Kr", u"I", u"Xe", u"Rn"});

ElementFacts factsOf(phial::cls_DataElement& element, const phial::ElementPlace& place)
{
    return {element.SYMBOL(),  element.NAME(), phial::lowerCase(englishNameOf(element)),
            element.PROTONS(), element.MOL(),  place};
}

} // namespace

int ElementFacts::outerElectrons() const
{
    constexpr int Helium = 2;
    if (!isMainGroup()) {
        return 0;
    }
    return protons == Helium ? Helium : group() > 2 ? group() - 10 : group();
}

bool ElementFacts::isNonMetal() const
{
    return std::ranges::find(NonMetals, StringView(symbol)) != NonMetals.end();
}

ElementBook::ElementBook(StringView file)
{
    phial::cls_DataElements table;
    phial::ignoringErrors([&] { table.IMPORT2(file); });
    for (std::int32_t position = 1; position <= table.COUNT(); ++position) {
        if (const auto place = phial::placeOf(position)) {
            elements_.push_back(factsOf(*table.ITEM(position), *place));
        }
    }
}

const ElementFacts* ElementBook::find(StringView symbol) const
{
    const auto found = std::ranges::find(elements_, symbol, &ElementFacts::symbol);
    return found == elements_.end() ? nullptr : &*found;
}

const ElementFacts* ElementBook::at(int protons) const
{
    const auto found = std::ranges::find(elements_, protons, &ElementFacts::protons);
    return found == elements_.end() ? nullptr : &*found;
}

const ElementFacts* ElementBook::above(const ElementFacts& element) const
{
    const auto found = std::ranges::find_if(elements_, [&](const ElementFacts& other) {
        return other.place.column == element.place.column && other.place.row == element.place.row - 1;
    });
    return found == elements_.end() ? nullptr : &*found;
}

String nameOf(const ElementFacts& element)
{
    return translate(element.german, element.english);
}

String groupOf(const ElementFacts& element)
{
    if (element.isBelow()) {
        return element.isLanthanide() ? translate(u"Lanthanide", u"lanthanides")
                                      : translate(u"Actinide", u"actinides");
    }
    const String group(GroupNumbers.at(static_cast<std::size_t>(element.group() - 1)));
    return element.isMainGroup() ? translate(u"Hauptgruppe\u00A0{1}", u"main\u00A0group\u00A0{1}", {group})
                                 : translate(u"Nebengruppe\u00A0{1}", u"subgroup\u00A0{1}", {group});
}

} // namespace puzzle
