// Certificate forms, which teachers make with programs of all kinds: whatever is taken for one has named
// fields with numbers to draw with, and what is left of the drawing is one again without texts.

#include "FuzzInput.h"
#include "qt/desktop/SvgForm.h"

#include <cmath>

using namespace phial;

namespace
{

void checkField(const qt::SvgField& field)
{
    fuzz::require(!field.placeholder.isEmpty());
    fuzz::require(std::isfinite(field.x) && std::isfinite(field.y));
    fuzz::require(field.style.size > 0 && field.style.lineHeight > 0);
    fuzz::require(field.style.opacity >= 0 && field.style.opacity <= 1);
    fuzz::require(!field.box || field.box->isValid());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto form =
        qt::readSvgForm(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (form) {
        for (const qt::SvgField& field : form->fields) {
            checkField(field);
        }
        const auto again = qt::readSvgForm(form->drawing);
        fuzz::require(again && again->fields.empty());
    }
    return 0;
}
