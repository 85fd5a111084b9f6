#include "app/sys_Global.h"

#include "app/Session.h"

namespace phial::sys_Global
{

const std::shared_ptr<cls_App>& QVAPP()
{
    return Session::current().root();
}

const std::shared_ptr<cls_Language>& LNG()
{
    return Session::current().language();
}

} // namespace phial::sys_Global
