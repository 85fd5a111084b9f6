#include "chem/ElementFileReader.h"

#include "core/Arithmetic.h"
#include "core/CoreNumbers.h"
#include "core/CoreTextFilter.h"

#include <utility>

namespace phial
{

namespace
{

double number(StringView text)
{
    double value = 0;
    CoreNumbers::ToDouble(text, value);
    return value;
}

// The small addition lifts a value that stands as an exact second decimal 5 in the file but lies a little
// lower, or on the tie, in binary.
double schoolMass(double mass)
{
    return roundToDecimals(mass + 0.0000001, 1);
}

} // namespace

std::optional<ElementRecord> ElementFileReader::take(StringView line)
{
    if (line.empty() || line.front() == u'#') {
        return std::nullopt;
    }
    fields_[filled_++] = String(line);
    if (filled_ < fieldCount_) {
        return std::nullopt;
    }
    filled_ = 0;
    return record();
}

ElementRecord ElementFileReader::record() const
{
    const auto& [symbol, names, mass, period, group] = fields_;
    ElementRecord result{CoreTextFilter::Clean(symbol), CoreTextFilter::Clean(names),
                         schoolMass(number(mass)), number(mass)};
    if (fieldCount_ == static_cast<std::size_t>(Format::FiveLines)) {
        result.period = toWhole(number(period));
        result.group = toWhole(number(group));
    }
    return result;
}

} // namespace phial
