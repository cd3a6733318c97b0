#include "sound/ALInstrument.h"

#include "base/FormatError.h"
#include "tuning/Temperament.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// More than any organ has. It limits the memory that a damaged file can claim, because even an
/// empty stop takes several kilobytes.
constexpr std::size_t kMaximumStops = 4096;

/// What the soft pedal leaves of a gain: −5 dB.
constexpr float kSoftGain = 0.56F;

} // namespace

InstrumentStop& ALInstrument::appendStop(std::string name)
{
    if (stops_.size() == kMaximumStops)
        throw FormatError(fmt::format("has more than {} stops", kMaximumStops));
    InstrumentStop& stop = stops_.emplace_back();
    stop.name = std::move(name);
    pitches_.fill(0.0);
    return stop;
}

std::vector<InstrumentStop>& ALInstrument::stops()
{
    pitches_.fill(0.0);
    return stops_;
}

float ALInstrument::getVolume(std::size_t stop) const
{
    // See docs/decisions.md, 20.
    return stop < stops_.size() ? 2.0F * stops_[stop].volume : 0.0F;
}

void ALInstrument::setVolume(std::size_t stop, float volume)
{
    // See docs/decisions.md, 21.
    if (stop < stops_.size())
        stops_[stop].volume = volume;
}

std::size_t ALInstrument::numStops() const
{
    return stops_.size();
}

std::string ALInstrument::stopName(std::size_t stop) const
{
    return stop < stops_.size() ? stops_[stop].name : "";
}

// See docs/decisions.md, 23 and 24.
void ALInstrument::play(int key, float velocity)
{
    for (std::size_t i = 0; i < stops_.size(); ++i)
        if (stops_[i].volume > 0.0F)
            startPipe(i, key, velocity, stops_[i].volume);
}

void ALInstrument::stop(int key)
{
    for (std::size_t i = 0; i < stops_.size(); ++i)
        stopPipe(i, key);
}

void ALInstrument::startPipe(std::size_t stop, int key, float velocity, float gain)
{
    if (stop >= stops_.size())
        return;
    InstrumentStop& rank = stops_[stop];
    rank.samples[static_cast<std::size_t>(key)].play(isSoft_ ? kSoftGain * gain : gain, velocity,
                                                     rank.swell);
}

void ALInstrument::stopPipe(std::size_t stop, int key)
{
    if (stop >= stops_.size())
        return;
    const auto slot = static_cast<std::size_t>(key);
    stops_[stop].samples[slot].stop();
    released_.set(slot);
}

void ALInstrument::silence()
{
    renderer_.end();
    for (InstrumentStop& stop : stops_)
        for (Sample& sample : stop.samples)
            sample.silence();
    released_.reset();
}

bool ALInstrument::isSounding() const
{
    return std::ranges::any_of(stops_, [](const InstrumentStop& stop) {
        return std::ranges::any_of(stop.samples, &Sample::isPlaying);
    });
}

AudioSource* ALInstrument::source()
{
    renderer_.prepare();
    return &renderer_;
}

void ALInstrument::bend(double cents)
{
    renderer_.bend(static_cast<float>(std::exp2(cents / 1200.0)));
}

void ALInstrument::fade(double factor)
{
    for (std::size_t key = 0; key < kKeys && released_.any(); ++key) {
        if (!released_[key])
            continue;
        bool fading = false;
        for (InstrumentStop& stop : stops_) {
            stop.samples[key].fade(factor);
            fading = fading || stop.samples[key].released();
        }
        released_.set(key, fading);
    }
}

void ALInstrument::tune(const Temperament& temperament, int lo, int hi)
{
    for (int key = lo; key <= hi; ++key) {
        const auto slot = static_cast<std::size_t>(key);
        const double pitch = temperament.getPitch(slot);
        if (pitch == pitches_[slot])
            continue;
        pitches_[slot] = pitch;
        for (InstrumentStop& stop : stops_)
            stop.samples[slot].tune(pitch);
    }
}

} // namespace velmora
