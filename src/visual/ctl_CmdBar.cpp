#include "visual/ctl_CmdBar.h"

#include "visual/PropertyRows.h"

namespace phial
{

struct ctl_CmdBar::Properties {
    static constexpr rows::Table Table{
        rows::readOnly<u"BUTTONS">(&ctl_CmdBar::BUTTONS),
        rows::readOnly<u"PANELS">(&ctl_CmdBar::PANELS),
        rows::operation<u"REFRESH">(&ctl_CmdBar::REFRESH),
    };
};

MemberTable ctl_CmdBar::members() const
{
    return rows::membersOf<Properties>();
}

} // namespace phial
