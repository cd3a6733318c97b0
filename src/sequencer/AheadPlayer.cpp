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

void perform(SequenceHost& host, const KeyAction& action)
{
    const int key = static_cast<int>(action.key);
    if (action.click)
        host.click(*action.click, action.time);
    else if (const auto& change = action.program)
        host.setProgram(change->channel, change->preset, action.time);
    else if (const auto& event = action.controller)
        host.control(event->number, event->value, event->channel, action.time);
    else if (action.starts)
        host.play(key, action.velocity, action.channel, action.time);
    else
        host.stop(key, action.channel, action.time);
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

void AheadPlayer::plan(std::vector<KeyAction>& actions)
{
    {
        const std::lock_guard lock(mutex_);
        actions_.swap(actions);
        next_ = 0;
    }
    changed_.notify_one();
}

std::optional<double> AheadPlayer::cancel()
{
    const std::lock_guard lock(mutex_);
    const auto last = next_ > 0 ? std::optional(actions_[next_ - 1].step) : std::nullopt;
    actions_.clear();
    next_ = 0;
    return last;
}

void AheadPlayer::run()
{
    requestRealtime();
    std::unique_lock lock(mutex_);
    while (!ends_) {
        if (next_ == actions_.size()) {
            changed_.wait(lock);
            continue;
        }
        // Actions that are due together are performed together.
        const double due = actions_[next_].time;
        const double wait = due - getTime();
        if (wait > 0.0) {
            changed_.wait_for(lock, std::chrono::duration<double>(wait));
            continue;
        }
        for (; next_ < actions_.size() && actions_[next_].time == due; ++next_)
            perform(host_, actions_[next_]);
    }
}

} // namespace velmora
