// Packed values: what can be read can be packed again, and stays the same from then on.

#include "FuzzInput.h"
#include "core/CoreValuePacker.h"
#include "core/RuntimeError.h"

namespace
{

std::vector<phial::Variant> valuesIn(phial::StringView text)
{
    try {
        return phial::CoreValuePacker::unpackAll(text);
    } catch (const phial::RuntimeError&) {
        return {};
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    const String packed = CoreValuePacker::Pack(valuesIn(fuzz::textOf(data, size)));
    fuzz::require(packed.find_first_of(u"{|:\r\n") == String::npos);
    fuzz::require(CoreValuePacker::Pack(CoreValuePacker::unpackAll(packed)) == packed);
    return 0;
}
