#pragma once

#include <memory>

namespace phial
{

class cls_App;
class cls_Language;

/// The two global objects of a run. They belong to the open session (see app/Session.h), which makes each
/// when it is first asked for; without a session asking raises 91.
namespace sys_Global
{

/// The one root.
const std::shared_ptr<cls_App>& QVAPP();
/// The one language object.
const std::shared_ptr<cls_Language>& LNG();

} // namespace sys_Global

using sys_Global::LNG;
using sys_Global::QVAPP;

} // namespace phial
