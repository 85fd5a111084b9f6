#pragma once

#include "qt/sound/Loudspeakers.h"

#include <QThread>

#include <memory>

namespace phial::qt
{

/// The thread of sounds. A server of sounds that has come to a halt without ending is waited for by the
/// toolkit's sound module, for half a minute or for good; here it holds up no one else.
///
/// It is the program's, since what the module sets up for itself lives in the thread that asks first. It ends
/// with the application object. If it is held up then, it is left behind, and the process ends without
/// tidying up what belongs to the module, which would wait too.
class SoundThread final : private QThread
{
public:
    /// The program's thread. Begins it if there is none.
    static std::shared_ptr<SoundThread> shared();

    SoundThread();
    ~SoundThread() override;

    Loudspeakers& loudspeakers() { return loudspeakers_; }

private:
    void run() override;
    static void endShared();

    Loudspeakers loudspeakers_;
};

} // namespace phial::qt
