// Record files: a whole file's body, or anything as a body. What can be read is written again byte for byte,
// and the records that read its values store what they read.

#include "FuzzInput.h"
#include "core/RecordFormat.h"
#include "core/RuntimeError.h"
#include "results/cls_DataEvents.h"
#include "results/cls_DataScores.h"
#include "support/MemoryStream.h"
#include "support/RecordOf.h"

#include <optional>

namespace
{

using namespace phial;
using Values = std::vector<Variant>;

std::optional<Values> valuesIn(std::string_view body)
{
    try {
        return record_format::valuesOf(body);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

template <typename Record>
std::string storedBody(Record& record)
{
    test::MemoryStream stream;
    record.DATA()->Store(stream);
    return test::recordOf(stream.values).body();
}

template <typename Record>
void readAndStore(const Values& values)
{
    Record record;
    test::MemoryStream stream(values);
    if (!ignoringErrors([&] { record.DATA()->Read(stream); })) {
        return;
    }
    const std::string body = storedBody(record);
    test::MemoryStream again(record_format::valuesOf(body));
    Record same;
    same.DATA()->Read(again);
    fuzz::require(storedBody(same) == body);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const record_format::Frame frame = record_format::frameOf(bytes);
    const bool isFile = frame.state == record_format::State::Whole;
    if (isFile) {
        fuzz::require(record_format::framed(frame.body, frame.isSealed) == bytes);
    }
    const std::string_view body = isFile ? frame.body : bytes;
    const auto values = valuesIn(body);
    fuzz::require(values.has_value() == ignoringErrors([&] { record_format::firstValueOf(body); }));
    if (values) {
        fuzz::require(test::recordOf(*values).body() == body);
        readAndStore<cls_DataScores>(*values);
        readAndStore<cls_DataEvents>(*values);
    }
    return 0;
}
