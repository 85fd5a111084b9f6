#pragma once

#include "core/Object.h"
#include "core/Variant.h"

namespace phial::test
{

/// A text within that many arrays.
inline Variant nested(int depth)
{
    Variant value = u"innermost";
    for (int level = 0; level < depth; ++level) {
        value = Variant::Array{value};
    }
    return value;
}

/// An object that is no record.
class Something : public Object
{
public:
    StringView typeName() const override { return u"Something"; }
    MemberTable members() const override { return {}; }
};

} // namespace phial::test
