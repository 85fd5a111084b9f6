// The command line: every parameter has a name of its own and one text.

#include "FuzzInput.h"
#include "core/CoreCmdParser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    const CoreTokenList tokens = CoreCmdParser::Parse(fuzz::textOf(data, size));
    for (std::int32_t i = 1; i <= tokens.Count(); ++i) {
        const CoreToken& token = tokens.Item(i);
        fuzz::require(!token.Name().empty());
        fuzz::require(tokens.IndexOf(token.Name()) == i);
        fuzz::require(token.Values().Count() == 1 && token.Values().Item(1).isText());
    }
    return 0;
}
