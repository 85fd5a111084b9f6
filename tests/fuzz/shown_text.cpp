// Names as pupils send them: what is shown holds nothing hidden, stays on its line and within its columns,
// and showing it once more changes nothing.

#include "FuzzInput.h"
#include "master/ShownText.h"
#include "master/TextTable.h"

#include <algorithm>
#include <sstream>

namespace
{

using namespace phial;

/// Signs that turn the writing direction, of which only our own may be left.
constexpr StringView Turning = u"\u061C\u200E\u200F\u202A\u202B\u202C\u202D\u202E\u2066\u2067";

bool turns(StringView text)
{
    return text.find_first_of(Turning) != StringView::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const String name = fuzz::textOf(data, size);
    const String shown = master::shownSafely(name);
    fuzz::require(!turns(shown) && shown.find_first_of(u"\n\r\u2028\u2029\u2068\u2069") == String::npos);
    fuzz::require(master::shownSafely(shown) == shown);
    fuzz::require(!master::isDoubtful(shown) || master::isDoubtful(name));
    fuzz::require(master::lookOf(name) == master::lookOf(name + u"\u200B"));
    for (const std::size_t columns : {0U, 1U, 7U}) {
        const StringView first = master::firstColumns(shown, columns);
        fuzz::require(shown.starts_with(first) && master::columnsOf(first) <= columns);
    }

    master::TextTable table({u"Name", u"More"});
    table.add({name, name});
    std::ostringstream output;
    table.write(output);
    const std::string written = output.str();
    fuzz::require(std::ranges::count(written, '\n') == 2 && !turns(fromUtf8(written)));
    return 0;
}
