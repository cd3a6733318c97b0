#include "audio/OutputKeeper.h"

#include "audio/AlsaOutput.h"
#include "audio/outputDrivers.h"
#include "base/Log.h"

#include <chrono>
#include <utility>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr auto kWatchInterval = 100ms;
constexpr auto kRetryInterval = 1s;

/// How often an output is closed in case it keeps a device busy that is wanted more.
constexpr auto kBusyInterval = 5s;

/// The longest time between two periods of an output that is not stuck. A sink of PulseAudio may
/// let a new stream wait for two seconds.
constexpr auto kStuck = 3s;

constexpr const char* kNone = "none";

/// Returns how a sentence names an output.
std::string subject(const OutputSettings& output)
{
    if (!output.device.empty())
        return "The output \"" + output.device + "\"";
    return output.driver == "alsa" ? "The sound card" : driverTitle(output.driver);
}

} // namespace

OutputKeeper::OutputKeeper(AudioSource& source, OutputSettings wanted, Callbacks callbacks)
    : source_(source), callbacks_(std::move(callbacks)), wanted_(std::move(wanted)),
      thread_([this] { run(); })
{
}

OutputKeeper::~OutputKeeper()
{
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    wakeUp_.notify_all();
    thread_.join();
}

void OutputKeeper::want(const OutputSettings& settings)
{
    const std::lock_guard lock(mutex_);
    if (settings == wanted_)
        return;
    wanted_ = settings;
    isNew_ = true;
    wakeUp_.notify_all();
}

OutputStatus OutputKeeper::status() const
{
    const std::lock_guard lock(mutex_);
    OutputStatus status;
    status.missing = missing_;
    if (output_) {
        status.driver = output_->driver();
        status.device = output_->device();
        status.rate = output_->rate();
        status.period = output_->period();
        status.latency = output_->latency();
        status.lostPeriods = output_->lostPeriods().count();
        status.lastLoss = output_->lostPeriods().lastTime();
    }
    return status;
}

OutputStatus OutputKeeper::waitForOutput() const
{
    {
        std::unique_lock lock(mutex_);
        opened_.wait(lock, [this] { return output_ != nullptr; });
    }
    return status();
}

void OutputKeeper::run()
{
    auto retry = Clock::now();
    std::unique_lock lock(mutex_);
    while (!isEnding_) {
        const bool isNew = std::exchange(isNew_, false);
        if (isNew) {
            home_ = wanted_;
            hasPlayed_ = false;
        }
        lock.unlock();
        if (isNew || isGone()) {
            openBest();
            retry = Clock::now() + kRetryInterval;
        } else if (Clock::now() >= retry) {
            output_->reconnect();
            findBetter();
            retry = Clock::now() + kRetryInterval;
        }
        lock.lock();
        wakeUp_.wait_for(lock, kWatchInterval, [this] { return isNew_ || isEnding_; });
    }
    lock.unlock();
    close();
}

bool OutputKeeper::isGone()
{
    const std::uint64_t periods = output_->periods();
    const auto now = Clock::now();
    if (periods != periods_) {
        periods_ = periods;
        advanced_ = now;
    }
    return output_->isLost() || now - advanced_ > kStuck;
}

std::vector<OutputSettings> OutputKeeper::candidates() const
{
    const bool isOpen = home_.driver.empty();
    std::vector<OutputSettings> candidates;
    if (!isOpen)
        candidates.push_back(home_);
    if (home_.driver == kNone)
        return candidates;
    if (!home_.device.empty()) {
        candidates.push_back(home_);
        candidates.back().device.clear();
    }
    for (const std::string& driver : outputDrivers()) {
        const bool needsCard = driver == "alsa" && hasPlayed_; // a lost server may need it itself
        if (driver != home_.driver && !needsCard)
            candidates.push_back(isOpen ? OutputSettings{driver, {}, home_.rate, home_.period}
                                        : OutputSettings{driver, {}, 0.0, 0});
    }
    return candidates;
}

void OutputKeeper::openBest()
{
    close();
    candidates_ = candidates();
    for (std::size_t i = 0; i < candidates_.size(); ++i) {
        if (auto output = AudioOutput::open(candidates_[i])) {
            play(std::move(output), i);
            return;
        }
    }
}

void OutputKeeper::findBetter()
{
    for (std::size_t i = 0; i < playing_; ++i) {
        const auto canReach = candidates_[i].driver == output_->driver()
                                  ? output_->canReach(candidates_[i].device)
                                  : std::nullopt;
        if (canReach == false)
            continue;
        if (canReach == true) {
            openBest(); // the two outputs would be in each other's way
            return;
        }
        if (auto output = AudioOutput::open(candidates_[i])) {
            close();
            play(std::move(output), i);
            return;
        }
        if (mayBlock(candidates_[i])) {
            unblocked_ = Clock::now();
            openBest();
            return;
        }
    }
}

/// Returns true if the output that plays may itself keep a card busy that is wanted more, and can
/// be closed without being missed.
bool OutputKeeper::mayBlock(const OutputSettings& candidate)
{
    return candidate.driver == "alsa" && output_->driver() == candidate.driver &&
           Clock::now() - unblocked_ > kBusyInterval && source_.voices() == 0 &&
           isAlsaDeviceBusy(candidate.device);
}

void OutputKeeper::play(std::unique_ptr<AudioOutput> output, std::size_t candidate)
{
    playing_ = candidate;
    if (home_.driver.empty() && output->driver() != kNone) {
        home_.driver = output->driver();
        candidates_ = candidates();
        playing_ = 0;
    }
    hasPlayed_ = hasPlayed_ || (playing_ == 0 && !home_.driver.empty());
    periods_ = 0;
    advanced_ = Clock::now();
    callbacks_.starting(output->rate());
    output->start(source_);
    const std::string missing = describeMissing(output->driver());
    if (!missing.empty())
        logger("audio").info("{}", missing);
    {
        const std::lock_guard lock(mutex_);
        output_ = std::move(output);
        missing_ = missing;
    }
    opened_.notify_all();
    callbacks_.changed();
}

/// Returns a sentence about the wanted output while `driver` plays instead; empty while it plays.
std::string OutputKeeper::describeMissing(const std::string& driver) const
{
    if (home_.driver.empty())
        return "No sound output was found; looking for one.";
    if (playing_ == 0)
        return {};
    return subject(home_) + (hasPlayed_ ? " has gone; " : " is missing; ") +
           (driver == kNone ? "waiting for it."
                            : "playing through " + driverTitle(driver) + " until it is back.");
}

void OutputKeeper::close()
{
    std::unique_ptr<AudioOutput> closing;
    const std::lock_guard lock(mutex_);
    closing = std::move(output_);
}

} // namespace velmora
