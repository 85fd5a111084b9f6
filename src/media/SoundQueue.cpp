#include "media/SoundQueue.h"

#include "app/Session.h"
#include "app/screen/frm_Resource.h"
#include "core/CoreRoot.h"
#include "core/CoreSoundFacet.h"

#include <utility>

namespace phial
{

SoundQueue::SoundQueue()
    : delay_(Session::current().sharedForm<frm_Resource>()->part<Timer>(u"tmr_SoundDelay"))
{
    constexpr std::int32_t Delay = 25;
    delay_->Interval(Delay);
    delay_->Enabled(true);
    ticking_ = delay_->Tick.connect([this] { tick(); });
}

void SoundQueue::add(String path)
{
    paths_.Add(std::move(path));
    delay_->Enabled(true);
}

void SoundQueue::tick()
{
    delay_->Enabled(false);
    if (paths_.Count() == 0) {
        return;
    }
    const String path = paths_.First();
    paths_.RemoveAt(1);
    coreRoot().CoreSoundFacet().Play(path, false);
    delay_->Enabled(true);
}

} // namespace phial
