#include "visual/ctl_UICommandbar.h"

#include "visual/PropertyRows.h"

namespace phial
{

struct ctl_UICommandbar::Properties {
    static constexpr rows::Table Table{
        rows::readOnly<u"BUTTONS">(&ctl_UICommandbar::BUTTONS),
        rows::readOnly<u"PANELS">(&ctl_UICommandbar::PANELS),
        rows::operation<u"REFRESH">(&ctl_UICommandbar::REFRESH),
    };
};

MemberTable ctl_UICommandbar::members() const
{
    return rows::membersOf<Properties>();
}

} // namespace phial
