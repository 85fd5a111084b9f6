// Parameters out of a text: what can be read can be written again in every form, and stays the same from then
// on.

#include "FuzzInput.h"
#include "core/CoreParameters.h"
#include "core/RuntimeError.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    CoreParameters parameters;
    try {
        parameters.Unpack(fuzz::textOf(data, size), 0, 1);
    } catch (const RuntimeError&) {
        fuzz::require(parameters.Count() == 0);
        return 0;
    }
    const String packed = parameters.Pack();
    const String line = parameters.TextLine();
    fuzz::require(line.find_first_of(u"\r\n") == String::npos);
    for (const String& text : {packed, parameters.Text(), line}) {
        CoreParameters again;
        again.Unpack(text, 0, 1);
        fuzz::require(again.Count() == parameters.Count() && again.Pack() == packed);
    }
    return 0;
}
