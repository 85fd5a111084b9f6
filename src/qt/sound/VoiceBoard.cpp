#include "qt/sound/VoiceBoard.h"

#include <algorithm>

namespace phial::qt
{

AudioOutput::Voice VoiceBoard::add(std::shared_ptr<const Sound> sound, double now)
{
    const std::lock_guard lock(mutex_);
    forgetOver(now);
    endOldest(now);
    endWaiting();
    const double end = now + sound->seconds();
    entries_.push_back({{Voice{++lastVoice_}, std::move(sound), now}, end});
    return entries_.back().voice();
}

/// Makes room for one more that mixes.
void VoiceBoard::endOldest(double now)
{
    const auto isPlaying = [now](const Entry& entry) { return now < entry.end; };
    if (std::count_if(entries_.begin(), entries_.end(), isPlaying) >= AudioOutput::MostVoices) {
        erase(std::find_if(entries_.begin(), entries_.end(), isPlaying));
    }
}

/// Makes room for one more that waits.
void VoiceBoard::endWaiting()
{
    const auto isWaiting = [](const Entry& entry) { return entry.isWaiting(); };
    if (static_cast<std::size_t>(std::count_if(entries_.begin(), entries_.end(), isWaiting)) >= MostWaiting) {
        erase(std::find_if(entries_.begin(), entries_.end(), isWaiting));
    }
}

/// What is over by the clock has still to begin, if it has not, and to ring out, if it has.
void VoiceBoard::forgetOver(double now)
{
    std::erase_if(entries_, [now](const Entry& entry) { return !entry.isWaiting() && now >= entry.end; });
}

void VoiceBoard::erase(std::vector<Entry>::iterator entry)
{
    if (!entry->isWaiting()) {
        stopped_.push_back(entry->voice());
    }
    entries_.erase(entry);
}

std::vector<VoiceBoard::Entry>::const_iterator VoiceBoard::find(Voice voice) const
{
    return std::find_if(entries_.begin(), entries_.end(),
                        [voice](const Entry& entry) { return entry.voice() == voice; });
}

void VoiceBoard::stop(Voice voice)
{
    const std::lock_guard lock(mutex_);
    if (const auto found = find(voice); found != entries_.end()) {
        erase(entries_.begin() + (found - entries_.cbegin()));
    }
}

bool VoiceBoard::isPlaying(Voice voice, double now) const
{
    const std::optional<double> over = end(voice);
    return over && now < *over;
}

std::optional<double> VoiceBoard::end(Voice voice) const
{
    const std::lock_guard lock(mutex_);
    const auto found = find(voice);
    return found == entries_.end() ? std::nullopt : std::optional(found->end);
}

void VoiceBoard::gain(double value)
{
    const std::lock_guard lock(mutex_);
    gain_ = value;
}

double VoiceBoard::gain() const
{
    const std::lock_guard lock(mutex_);
    return gain_;
}

void VoiceBoard::close()
{
    const std::lock_guard lock(mutex_);
    entries_.clear();
    isClosed_ = true;
}

std::optional<bool> VoiceBoard::hasDevice() const
{
    const std::lock_guard lock(mutex_);
    return hasDevice_;
}

std::optional<bool> VoiceBoard::hasDeviceWithin(std::chrono::milliseconds patience) const
{
    std::unique_lock lock(mutex_);
    looked_.wait_for(lock, patience, [this] { return hasDevice_.has_value(); });
    return hasDevice_;
}

VoiceBoard::Work VoiceBoard::take(double now)
{
    const std::lock_guard lock(mutex_);
    std::erase_if(entries_,
                  [now](const Entry& entry) { return entry.isWaiting() && entry.waiting.isTooLate(now); });
    Work work{{}, std::exchange(stopped_, {}), isClosed_};
    for (Entry& entry : entries_) {
        if (entry.isWaiting()) {
            work.begun.push_back(entry.waiting);
            entry.waiting.sound.reset();
        }
    }
    return work;
}

void VoiceBoard::hasDevice(bool value)
{
    const std::lock_guard lock(mutex_);
    hasDevice_ = value;
    looked_.notify_all();
}

void VoiceBoard::lose(Voice voice)
{
    const std::lock_guard lock(mutex_);
    hasDevice_ = false;
    std::erase_if(entries_, [voice](const Entry& entry) { return entry.voice() == voice; });
    looked_.notify_all();
}

} // namespace phial::qt
