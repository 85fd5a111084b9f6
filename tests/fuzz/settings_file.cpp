// The entries of a settings file, however the file came about: each line's value is decoded, and what was
// decoded comes back from its own encoded form.

#include "core/SettingsEncoding.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace phial;

namespace
{

void tryLine(StringView line)
{
    const std::size_t sign = line.find(u'=');
    settingKey(line.substr(0, sign));
    const StringView value = sign == StringView::npos ? line : line.substr(sign + 1);
    if (const auto decoded = decodeSetting(value)) {
        if (decodeSetting(encodeSetting(*decoded)) != decoded) {
            std::abort();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const String text = fromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
    for (const StringView line : split(text, u"\n")) {
        tryLine(line);
    }
    return 0;
}
