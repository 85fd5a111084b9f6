// Any text is an element file: the first byte chooses the format, the rest is read line by line into a table,
// which then answers, packs and unpacks.

#include "chem/ElementFileReader.h"
#include "chem/cls_DataElements.h"
#include "core/RuntimeError.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{

using namespace phial;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void fill(cls_DataElements& table, ElementFileReader reader, StringView text)
{
    std::int32_t protons = 0;
    for (const StringView line : split(text, u"\n")) {
        if (const auto record = reader.take(line)) {
            table.CREATE2(record->symbol, record->names, ++protons, record->period, record->group,
                          record->mass);
        }
    }
}

void useEachElement(cls_DataElements& table)
{
    for (std::int32_t index = 1; index <= table.COUNT(); ++index) {
        const auto element = table.ITEM(index);
        require(element->PROTONS() == index);
        require(element->MATCH(element->NAME()) && element->MATCH(element->NAME(), true));
        require(table.EXISTS(element->SYMBOL()));
    }
}

void packAndUnpack(cls_DataElements& table)
{
    cls_DataElements copy;
    copy.DATA()->Unpack(table.DATA()->Pack());
    require(copy.COUNT() == table.COUNT());
    for (std::int32_t index = 1; index <= table.COUNT(); ++index) {
        require(copy.ITEM(index)->NAMELIST() == table.ITEM(index)->NAMELIST());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const auto format =
        data[0] % 2 == 0 ? ElementFileReader::Format::ThreeLines : ElementFileReader::Format::FiveLines;
    const String text = fromUtf8({reinterpret_cast<const char*>(data) + 1, size - 1});
    cls_DataElements table;
    try {
        fill(table, ElementFileReader(format), text);
    } catch (const RuntimeError& error) {
        require(error.Number() == static_cast<std::int32_t>(ErrorNumber::Overflow));
    }
    useEachElement(table);
    packAndUnpack(table);
    return 0;
}
