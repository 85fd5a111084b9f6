// The one-text forms of score lists, event logs and their entries, of which the first byte chooses one: what
// can be unpacked is packed, and stays the same from then on.

#include "FuzzInput.h"
#include "core/RuntimeError.h"
#include "results/cls_DataEvents.h"
#include "results/cls_DataScores.h"

namespace
{

using namespace phial;

template <typename Record>
void unpackAndPack(StringView text)
{
    Record record;
    if (!ignoringErrors([&] { record.DATA()->Unpack(text); })) {
        return;
    }
    const String packed = record.DATA()->Pack();
    fuzz::require(packed.find_first_of(u"{|:\r\n") == String::npos);
    Record same;
    same.DATA()->Unpack(packed);
    fuzz::require(same.DATA()->Pack() == packed);
    Record copy;
    fuzz::require(copy.DATA()->Copy(same) && copy.DATA()->Pack() == packed);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const String text = fuzz::textOf(data + 1, size - 1);
    switch (data[0] % 4) {
    case 0:
        unpackAndPack<cls_DataScores>(text);
        break;
    case 1:
        unpackAndPack<cls_DataScore>(text);
        break;
    case 2:
        unpackAndPack<cls_DataEvents>(text);
        break;
    default:
        unpackAndPack<cls_DataEvent>(text);
        break;
    }
    return 0;
}
