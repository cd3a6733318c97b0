#include "audio/Metronome.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

/// The sound of a click: a tone that dies away at once, as of a wooden block.
struct Tone {
    double hertz;
    double level; ///< The amplitude at its beginning.
};

/// In the order of `Click`. Accents differ in pitch as well, so that they are heard through music.
constexpr std::array<Tone, 3> kTones{{{2093.0, 0.5}, {1568.0, 0.35}, {1568.0, 0.15}}};

/// In which a click falls to 1/e.
constexpr double kDecaySeconds = 0.008;
/// Afterwards it is inaudible.
constexpr double kClickSeconds = 0.1;

} // namespace

void Metronome::click(Click click, double time)
{
    queue_.push({.click = click, .due = time});
}

void Metronome::cancelAfter(double time)
{
    queue_.push({.cancels = true, .due = time});
}

void Metronome::receive()
{
    for (; const Event* event = queue_.front(); queue_.pop()) {
        if (event->cancels)
            pending_.removeIf([due = event->due](const Event& one) { return one.due > due; });
        else if (!pending_.isFull())
            pending_.add(*event);
    }
}

void Metronome::render(float* left, float* right, std::size_t frames, double start)
{
    receive();
    const auto due = pending_.find(frames, start, rate_);
    std::size_t done = 0;
    for (const Event& event : due) {
        sound(left + done, event.frame - done);
        done = event.frame;
        sounding_ = event.click;
        age_ = 0.0;
    }
    sound(left + done, frames - done);
    pending_.removeFirst(due.size());
    std::copy_n(left, frames, right);
}

void Metronome::sound(float* samples, std::size_t frames)
{
    const auto& [hertz, level] = kTones.at(static_cast<std::size_t>(sounding_));
    const double amplitude = level * volume_;
    for (std::size_t i = 0; i < frames; ++i) {
        samples[i] = 0.0F;
        if (age_ >= kClickSeconds)
            continue;
        // A cosine, so that the click is there from its first frame on.
        samples[i] = static_cast<float>(amplitude * std::exp(-age_ / kDecaySeconds) *
                                        std::cos(2.0 * std::numbers::pi * hertz * age_));
        age_ += 1.0 / rate_;
    }
}

} // namespace velmora
