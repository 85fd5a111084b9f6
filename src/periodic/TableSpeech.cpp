#include "periodic/TableSpeech.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/ElementNames.h"
#include "chem/cls_DataElement.h"
#include "core/Format.h"
#include "core/Locale.h"
#include "core/NumberText.h"

namespace phial
{

namespace
{

constexpr std::int32_t Periods = 7; // behind them is the row for tiles
constexpr std::int32_t LanthanideRow = 8;
constexpr std::int32_t ActinideRow = 9;
constexpr std::int32_t FirstColumnBelow = 4; // of those two rows

String stateOf(const cls_DataElement& element)
{
    return element.GAS()      ? LNG()->TRANSLATE(u"Gas", u"gas")
           : element.LIQUID() ? LNG()->TRANSLATE(u"Flüssigkeit", u"liquid")
                              : LNG()->TRANSLATE(u"Feststoff", u"solid");
}

/// With the decimal sign of the language, since its voice reads the number aloud.
String massOf(const cls_DataElement& element)
{
    Locale spoken = currentLocale();
    spoken.decimalSign = LNG()->TRANSLATE(u",", u".").front();
    return formatPattern(element.MOL(), u"#0.0", spoken) + u" " +
           LNG()->TRANSLATE(u"Gramm pro Mol", u"grams per mole");
}

/// A text with numbers or words for its placeholders.
String filled(StringView german, StringView english, const Variant::Array& values)
{
    return LNG()->TRANSLATE(german, english, values);
}

String placeBelow(StringView german, StringView english, std::int32_t column)
{
    return filled(german, english, {plainText(column - FirstColumnBelow + 1)});
}

} // namespace

String spokenElement(const cls_DataElement& element)
{
    return LNG()->TRANSLATE(element.NAME(), englishNameOf(element)) + u", " + element.SYMBOL() + u", " +
           plainText(element.PROTONS()) + u", " + massOf(element) + u", " + stateOf(element);
}

String spokenPlace(DragTile::Target place)
{
    if (place.row >= 0 && place.row < Periods) {
        return filled(u"Gruppe {1}, Periode {2}", u"group {1}, period {2}",
                      {plainText(place.column + 1), plainText(place.row + 1)});
    }
    if (place.row == LanthanideRow && place.column >= FirstColumnBelow) {
        return placeBelow(u"Lanthanide, Platz {1}", u"lanthanides, place {1}", place.column);
    }
    if (place.row == ActinideRow && place.column >= FirstColumnBelow) {
        return placeBelow(u"Actinide, Platz {1}", u"actinides, place {1}", place.column);
    }
    return LNG()->TRANSLATE(u"ein Feld neben den Elementen", u"a place beside the elements");
}

String spokenCell(DragTile::Target place, const DragTiles& tiles)
{
    const auto slot = tiles.slotOn(place);
    return spokenPlace(place) + u", " + (slot ? tiles.at(*slot).symbol : LNG()->TRANSLATE(u"leer", u"empty"));
}

String spokenTile(const DragTile& tile)
{
    return tile.target ? filled(u"{1} auf {2}", u"{1} on {2}", {tile.symbol, spokenPlace(*tile.target)})
                       : filled(u"{1}, noch nicht eingeordnet", u"{1}, not placed yet", {tile.symbol});
}

String spokenAct(const TileHand::Act& act, const DragTiles& tiles)
{
    const DragTile& tile = tiles.at(act.slot);
    switch (act.deed) {
    case TileHand::Deed::Nothing:
        break;
    case TileHand::Deed::Taken:
        return filled(u"{1} genommen", u"{1} taken", {tile.symbol});
    case TileHand::Deed::LetGo:
        return filled(u"{1} losgelassen", u"{1} let go", {tile.symbol});
    case TileHand::Deed::Dropped:
        return spokenTile(tile);
    case TileHand::Deed::SentHome:
        return filled(u"{1} zurückgelegt", u"{1} put back", {tile.symbol});
    }
    return {};
}

} // namespace phial
