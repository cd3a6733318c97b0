#pragma once

#include "sound/ALInstrument.h"
#include "support/Sine.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <string>

namespace velmora {

/// Adds stops to an organ, all drawn, with 61 pipes each from key 36 on; the other keys are
/// extended. The pipes of an octave share a sine of the given length, sampled at 44,100 Hz.
inline void fillWithSines(ALInstrument& organ, int stops, double seconds)
{
    constexpr std::size_t kLowest = 36;
    constexpr std::size_t kHighest = 96;
    for (int i = 0; i < stops; ++i) {
        InstrumentStop& stop = organ.appendStop("Stop " + std::to_string(i));
        stop.volume = 0.01F;
        for (std::size_t key = 0; key < kKeys; ++key) {
            const std::size_t pipe = std::clamp(key, kLowest, kHighest);
            const std::size_t root = pipe - pipe % 12 + static_cast<std::size_t>(i) % 12;
            auto& sound = organ.sounds[std::to_string(root)];
            if (!sound)
                sound = std::make_unique<Sound>(organ.renderer(),
                                                sine(equal.getPitch(root), seconds, 44100.0));
            if (pipe == key)
                stop.samples[key].setBuffer(*sound, equal.getPitch(root));
            else
                stop.extend(static_cast<int>(key), *sound, equal.getPitch(root));
        }
    }
}

} // namespace velmora
