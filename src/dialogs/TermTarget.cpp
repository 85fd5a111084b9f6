#include "dialogs/TermTarget.h"

#include "core/RuntimeError.h"
#include "core/Variant.h"

namespace phial
{

namespace
{

StringView termPropertyOf(const Object& control)
{
    return equalsIgnoringCase(control.typeName(), u"clt_TermInput") ? u"Term" : u"TEXT";
}

} // namespace

String readTerm(const ObjectPtr& control)
{
    String term;
    if (control) {
        ignoringErrors(
            [&] { term = tryGet(*control, termPropertyOf(*control)).value_or(Variant(u"")).toText(); });
    }
    return term;
}

void writeTerm(const ObjectPtr& control, const String& term)
{
    if (control) {
        ignoringErrors([&] { trySet(*control, termPropertyOf(*control), term); });
    }
}

} // namespace phial
