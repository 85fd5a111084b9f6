// Settings texts as masters hand them out: whatever a client has taken from one, a second client takes
// from the first one's text.

#include "FuzzInput.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "server/cls_AppServerConfig.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    const SessionState session{Platform()};
    cls_AppServerConfig config;
    ignoringErrors([&] { config.PACK(fuzz::textOf(data, size)); });
    const String packed = config.PACK();
    cls_AppServerConfig other;
    other.PACK(packed);
    fuzz::require(other.PACK() == packed);
    return 0;
}
