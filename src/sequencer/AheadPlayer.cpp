#include "sequencer/AheadPlayer.h"

#include "base/Clock.h"

#include <pthread.h>
#include <sched.h>

#include <chrono>

namespace velmora {

namespace {

/// Requests real-time scheduling, if permitted.
void requestRealtime()
{
    const sched_param parameters{.sched_priority = 1};
    pthread_setschedparam(pthread_self(), SCHED_RR, &parameters);
}

} // namespace

void sound(SequenceHost& host, const KeySound& keySound)
{
    const int key = static_cast<int>(keySound.key);
    if (keySound.starts)
        host.play(key, keySound.velocity);
    else
        host.stop(key);
}

AheadPlayer::AheadPlayer(SequenceHost& host) : host_(host), thread_([this] { run(); }) {}

AheadPlayer::~AheadPlayer()
{
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void AheadPlayer::plan(std::vector<KeySound>& sounds)
{
    {
        const std::lock_guard lock(mutex_);
        sounds_.swap(sounds);
        next_ = 0;
    }
    changed_.notify_one();
}

std::optional<double> AheadPlayer::takeBack()
{
    const std::lock_guard lock(mutex_);
    const auto last = next_ > 0 ? std::optional(sounds_[next_ - 1].step) : std::nullopt;
    sounds_.clear();
    next_ = 0;
    return last;
}

void AheadPlayer::run()
{
    requestRealtime();
    std::unique_lock lock(mutex_);
    while (!ends_) {
        if (next_ == sounds_.size()) {
            changed_.wait(lock);
            continue;
        }
        // Sounds that are due together are sounded together.
        const double due = sounds_[next_].time;
        const double wait = due - getTime();
        if (wait > 0.0) {
            changed_.wait_for(lock, std::chrono::duration<double>(wait));
            continue;
        }
        for (; next_ < sounds_.size() && sounds_[next_].time == due; ++next_)
            sound(host_, sounds_[next_]);
    }
}

} // namespace velmora
