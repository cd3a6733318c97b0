#pragma once

#include "base/FormatError.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "platform/OpenALLoopback.h"
#include "support/Pitch.h"
#include "support/RecordingHost.h"
#include "support/RiffBytes.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <al.h>
#include <gmock/gmock.h>
#include <spdlog/fmt/fmt.h>

#include <cmath>

/// What a reader of sample banks makes of a file in memory, in an OpenAL of its own.
template <void (*reader)(const RIFF::File&, Import&)> class ImportedBank {
    static constexpr double kRate = 48'000.0;
    OpenALLoopback loopback_{kRate}; // first, and so gone last

public:
    explicit ImportedBank(const std::string& bytes, std::size_t cancelAfter = SIZE_MAX)
        : host(cancelAfter)
    {
        try {
            reader(RIFF::File(riff::view(bytes)), import);
        } catch (const FormatError& wrong) {
            error = wrong.inFile("f");
        } catch (const Cancelled&) {
            error = "cancelled";
        }
    }

    /// The sounding keys of a stop, as in "36-37 Flute 60": keys, name of the sound, root key.
    std::vector<std::string> keys(std::size_t stop) const
    {
        std::vector<std::string> result;
        std::string last;
        std::size_t first = 0;
        const auto& samples = import.instrument->stops().at(stop).samples;
        for (std::size_t key = 0; key < samples.size(); ++key) {
            const std::string sound = shown(samples[key]);
            if (sound == last && !sound.empty())
                result.back() = fmt::format("{}-{}{}", first, key, sound);
            else if (first = key; !sound.empty())
                result.push_back(std::to_string(key) + sound);
            last = sound;
        }
        return result;
    }

    /// "mono" or "stereo", hertz and bytes of a sound.
    std::string sound(const std::string& name) const
    {
        const Sound& found = *import.instrument->sounds.at(name);
        const auto property = [&found](ALenum which) {
            ALint value = 0;
            alGetBufferi(found.buffer(), which, &value);
            return value;
        };
        return fmt::format("{} {} {}", property(AL_CHANNELS) == 2 ? "stereo" : "mono",
                           property(AL_FREQUENCY), property(AL_SIZE));
    }

    /// Names of what was left out, and why.
    std::vector<std::string> skipped() const
    {
        std::vector<std::string> result;
        for (const auto& [name, why] : import.report.skipped)
            result.push_back(fmt::format("{}: {}", name, why));
        return result;
    }

    /// The cents by which a key of the first stop is off `hertz` in a tuning.
    double centsOff(const Temperament& temperament, int key, double hertz)
    {
        import.instrument->tune(temperament, 0, 127);
        import.instrument->play(key, 1.0F);
        const Stereo sound = rendered(loopback_, 24'000);
        return cents(measuredHertz(std::span(sound.left).subspan(4'000), kRate, hertz), hertz);
    }

    RecordingHost host;
    std::string error = "none";
    Import import{host};

private:
    std::string shown(const Sample& sample) const
    {
        ALint buffer = 0;
        if (sample.source() != 0)
            alGetSourcei(sample.source(), AL_BUFFER, &buffer);
        const double root = 12 * std::log2(sample.rootPitch() / equal.getPitch(0));
        for (const auto& [name, sound] : import.instrument->sounds) {
            if (sound->buffer() == static_cast<unsigned>(buffer))
                return fmt::format(" {} {:.6g}", name, root);
        }
        return "";
    }
};
