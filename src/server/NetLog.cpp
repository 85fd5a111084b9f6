#include "server/NetLog.h"

#include "core/Clock.h"
#include "core/CoreFiles.h"
#include "core/CoreFolders.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/Format.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

namespace phial
{

NetLog::NetLog()
    : file_(coreRoot().CoreSystem().CoreFolders().CommonAppData() + u"QV Phial\\Logs\\network.log")
{
    ignoringErrors([this] { coreRoot().CoreFiles().CreateFolder(file_, true); });
    ignoringErrors([this] { coreRoot().CoreFiles().Delete(file_); });
}

void NetLog::write(StringView text)
{
    const Moment now = SessionState::current().platform().clock->moment();
    coreRoot().CoreFiles().AppendText(
        file_, formatPattern(now, u"yyyy-mm-dd HH:MM:SS").append(u"|").append(text).append(u"\r\n"));
}

} // namespace phial
