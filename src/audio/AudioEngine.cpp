#include "audio/AudioEngine.h"

#include "base/Clock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numeric>
#include <thread>
#include <utility>

namespace velmora {

namespace {

template <class T> void raise(std::atomic<T>& maximum, T value)
{
    T before = maximum.load(std::memory_order_relaxed);
    while (before < value && !maximum.compare_exchange_weak(before, value))
        ;
}

float peakOf(const float* samples, std::size_t frames)
{
    float peak = 0.0F;
    for (std::size_t i = 0; i < frames; ++i)
        peak = std::max(peak, std::fabs(samples[i]));
    return peak;
}

} // namespace

AudioEngine::AudioEngine(double rate) : rate_(rate), limiter_(rate), limiterDelay_(limiter_.delay())
{
}

void AudioEngine::setRate(double rate)
{
    const std::lock_guard lock(changing_);
    rate_ = rate;
    limiter_ = PeakLimiter(rate);
    limiterDelay_ = limiter_.delay();
    for (AudioSource* source : *sources_)
        source->setRate(rate);
}

void AudioEngine::add(AudioSource& source)
{
    const std::lock_guard lock(changing_);
    source.setRate(rate_);
    Sources sources = *sources_;
    sources.push_back(&source);
    play(std::move(sources));
}

void AudioEngine::remove(AudioSource& source)
{
    const std::lock_guard lock(changing_);
    Sources sources = *sources_;
    std::erase(sources, &source);
    play(std::move(sources));
}

void AudioEngine::play(Sources sources)
{
    auto next = std::make_unique<const Sources>(std::move(sources));
    playing_ = next.get();
    // A block that began before may still use the previous list.
    const std::uint64_t block = blocks_;
    while (block % 2 == 1 && blocks_ == block)
        std::this_thread::sleep_for(std::chrono::microseconds(100));
    sources_ = std::move(next);
}

double AudioEngine::delay() const
{
    return static_cast<double>(period_ + limiterDelay_) / rate_;
}

std::size_t AudioEngine::voices() const
{
    const std::lock_guard lock(changing_);
    return std::accumulate(
        sources_->begin(), sources_->end(), std::size_t{0},
        [](std::size_t sum, const AudioSource* source) { return sum + source->voices(); });
}

bool AudioEngine::savesWork() const
{
    const std::lock_guard lock(changing_);
    return std::ranges::any_of(*sources_, &AudioSource::savesWork);
}

std::array<float, 2> AudioEngine::takePeaks()
{
    return {peaks_[0].exchange(0.0F), peaks_[1].exchange(0.0F)};
}

EngineLoad AudioEngine::takeLoad()
{
    const std::size_t count = loads_.exchange(0);
    const double sum = loadSum_.exchange(0.0);
    return {count == 0 ? 0.0 : sum / static_cast<double>(count), worstLoad_.exchange(0.0)};
}

void AudioEngine::render(float* left, float* right, std::size_t frames, double start)
{
    const bool isLive = start != kOffline;
    const double began = isLive ? getTime() : 0.0;
    ++blocks_;
    const Sources& sources = *playing_;
    for (AudioSource* source : sources)
        source->setLoad(load_);
    for (std::size_t done = 0; done < frames;) {
        const std::size_t length = std::min(kBlock, frames - done);
        const double late = static_cast<double>(frames - done) / rate_;
        mix(sources, left + done, right + done, length, isLive ? start - late : kOffline);
        done += length;
    }
    finish(left, right, frames);
    ++blocks_;
    period_ = frames;
    if (isLive)
        measure(getTime() - began, frames);
}

void AudioEngine::mix(const Sources& sources, float* left, float* right, std::size_t frames,
                      double start)
{
    std::fill_n(left, frames, 0.0F);
    std::fill_n(right, frames, 0.0F);
    for (AudioSource* source : sources) {
        source->render(left_.data(), right_.data(), frames, start);
        for (std::size_t i = 0; i < frames; ++i) {
            left[i] += left_[i];
            right[i] += right_[i];
        }
    }
}

void AudioEngine::finish(float* left, float* right, std::size_t frames)
{
    // The volume glides to its new value, so that a moving slider is not heard as steps.
    const float volume = volume_;
    const float step = (volume - appliedVolume_) / static_cast<float>(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        appliedVolume_ += step;
        left[i] *= appliedVolume_;
        right[i] *= appliedVolume_;
    }
    appliedVolume_ = volume;
    limiter_.process(left, right, frames);
    raise(peaks_[0], peakOf(left, frames));
    raise(peaks_[1], peakOf(right, frames));
}

void AudioEngine::measure(double seconds, std::size_t frames)
{
    load_ = seconds * rate_ / static_cast<double>(frames);
    raise(worstLoad_, load_);
    loadSum_ += load_;
    ++loads_;
}

} // namespace velmora
