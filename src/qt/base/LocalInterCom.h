#pragma once

#include "core/Event.h"
#include "core/InterCom.h"
#include "qt/base/DispatchGuard.h"

#include <QObject>

#include <memory>

class QLocalServer;
class QLocalSocket;

namespace phial::qt
{

/// Sends to the other programs of this user over local sockets; a program is found by its name, without
/// regard to case.
class LocalInterCom final : public InterCom
{
public:
    /// Returns at once when the target is not running, and after half a second at most when it is but does
    /// not take the message. A text beyond 100 000 units is not sent.
    bool Send(StringView pTarget, std::int32_t pNumber, StringView pText) override;
};

/// The receiving end: a program that makes one is running under that name for the others.
class InterComReceiver
{
public:
    /// A number and a text have come in. Errors of handlers go to the guard.
    Event<std::int32_t, const String&> RECEIVED;

    InterComReceiver(StringView name, std::shared_ptr<DispatchGuard> guard);
    ~InterComReceiver();
    InterComReceiver(const InterComReceiver&) = delete;
    InterComReceiver& operator=(const InterComReceiver&) = delete;

    /// False when another program of this name was first.
    bool listening() const;

private:
    void accept();
    void read(QLocalSocket& socket);

    std::shared_ptr<DispatchGuard> guard_;
    std::unique_ptr<QLocalServer> server_;
};

} // namespace phial::qt
