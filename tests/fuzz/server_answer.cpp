// Texts that come over the wire, each read as an answer and as a request: a value that was read comes back
// from the answer that hands it out, and the parts of a request make the same text again.

#include "FuzzInput.h"
#include "core/RuntimeError.h"
#include "server/WireText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    const String text = fuzz::textOf(data, size);
    if (const auto request = parseRequest(text)) {
        fuzz::require(requestText(request->module, request->command, request->package) == text);
    }
    fuzz::require(answerPayload(text).size() <= text.size());
    Variant value;
    if (ignoringErrors([&] { value = answerValue(text); })) {
        const String answer = answerText(value);
        fuzz::require(answerText(answerValue(answer)) == answer);
    }
    return 0;
}
