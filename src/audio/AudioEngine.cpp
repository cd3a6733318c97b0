#include "audio/AudioEngine.h"

#include "base/Clock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numeric>
#include <stdexcept>
#include <thread>

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
    for (const auto& source : sources_)
        if (AudioSource* playing = source.load())
            playing->setRate(rate);
}

void AudioEngine::add(AudioSource& source)
{
    const std::lock_guard lock(changing_);
    source.setRate(rate_);
    for (auto& slot : sources_) {
        AudioSource* free = nullptr;
        if (slot.compare_exchange_strong(free, &source))
            return;
    }
    throw std::length_error("too many instruments are loaded: unload one first");
}

void AudioEngine::remove(AudioSource& source)
{
    const std::lock_guard lock(changing_);
    for (auto& slot : sources_) {
        AudioSource* playing = &source;
        slot.compare_exchange_strong(playing, nullptr);
    }
    // A block that began before may still use it.
    const std::uint64_t block = blocks_;
    while (block % 2 == 1 && blocks_ == block)
        std::this_thread::sleep_for(std::chrono::microseconds(100));
}

double AudioEngine::delay() const
{
    return static_cast<double>(period_ + limiterDelay_) / rate_;
}

std::size_t AudioEngine::voices() const
{
    return std::accumulate(sources_.begin(), sources_.end(), std::size_t{0},
                           [](std::size_t sum, const std::atomic<AudioSource*>& slot) {
                               const AudioSource* source = slot.load();
                               return sum + (source == nullptr ? 0 : source->voices());
                           });
}

bool AudioEngine::savesWork() const
{
    return std::ranges::any_of(sources_, [](const std::atomic<AudioSource*>& slot) {
        const AudioSource* source = slot.load();
        return source != nullptr && source->savesWork();
    });
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
    for (const auto& slot : sources_)
        if (AudioSource* source = slot.load())
            source->setLoad(load_);
    for (std::size_t done = 0; done < frames;) {
        const std::size_t length = std::min(kBlock, frames - done);
        const double late = static_cast<double>(frames - done) / rate_;
        mix(left + done, right + done, length, isLive ? start - late : kOffline);
        done += length;
    }
    finish(left, right, frames);
    ++blocks_;
    period_ = frames;
    if (isLive)
        measure(getTime() - began, frames);
}

void AudioEngine::mix(float* left, float* right, std::size_t frames, double start)
{
    std::fill_n(left, frames, 0.0F);
    std::fill_n(right, frames, 0.0F);
    for (const auto& slot : sources_) {
        AudioSource* source = slot.load();
        if (source == nullptr)
            continue;
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
