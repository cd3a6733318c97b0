#pragma once

#include "base/FormatError.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "support/Pitch.h"
#include "support/RecordingHost.h"
#include "support/RiffBytes.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <gmock/gmock.h>
#include <spdlog/fmt/fmt.h>

#include <cmath>
#include <map>

namespace velmora {

/// Lists each key of a stop at which the sound changes, with the new sound and its root key, as in
/// "0 -, 36 Flute 60,".
inline std::string keysOf(const ALInstrument& instrument, std::size_t stop)
{
    std::map<const Sound*, std::string> names;
    for (const auto& [name, sound] : instrument.sounds)
        names[sound.get()] = std::filesystem::path(name).filename();
    std::string result;
    for (std::size_t key = 0; const Sample& one : instrument.stops().at(stop).samples) {
        const double root = 12 * std::log2(one.rootPitch() / equal.getPitch(0));
        const std::string sound =
            one.source() == 0 ? " -," : fmt::format(" {} {:.6g},", names.at(one.sound()), root);
        if (!result.ends_with(sound))
            result += (result.empty() ? "" : " ") + std::to_string(key) + sound;
        ++key;
    }
    return result;
}

/// Describes what a key of a stop starts, as in "Flute 60.5 -6dB 0-63 stereo 10~90;": the sound,
/// the key at which it sounds as recorded, its gain, velocities, channels and loop.
inline std::string attacksOf(const ALInstrument& instrument, std::size_t stop, std::size_t key)
{
    std::map<const Sound*, std::string> names;
    for (const auto& [name, sound] : instrument.sounds)
        names[sound.get()] = name;
    std::string result;
    for (const Sample::Attack& one : instrument.stops().at(stop).samples.at(key).attacks()) {
        const double root = 12 * std::log2(one.rootPitch / equal.getPitch(0));
        result += fmt::format("{} {:.6g}", names.at(one.sound), root);
        if (one.gain != 1.0F)
            result += fmt::format(" {:.3g}dB", 20 * std::log10(one.gain));
        if (one.softest > 0.0F || one.loudest < 1.0F)
            result += fmt::format(" {}-{}", std::lround(127 * one.softest + 0.01F),
                                  std::lround(127 * one.loudest - 0.01F));
        result += one.sound->channels() == 2 ? " stereo" : "";
        if (const auto loop = one.sound->loop())
            result += fmt::format(" {}~{}", loop->begin, loop->end);
        result += ";";
    }
    return result;
}

/// Returns the error, in cents, of a key of the first stop in meantone. In equal temperament key 69
/// should sound at `hertzOfA`.
inline double centsOff(ALInstrument& instrument, std::size_t key, double hertzOfA)
{
    const Temperament meantone = Temperament::Meantone();
    const double hertz = hertzOfA * meantone.getPitch(key) / equal.getPitch(69);
    instrument.tune(meantone, 0, 127);
    instrument.play(static_cast<int>(key), 1.0F);
    const Stereo sound = rendered(*instrument.source(), 24'000);
    instrument.silence();
    return cents(measuredHertz(std::span(sound.left).subspan(4'000), 48'000, hertz), hertz);
}

/// The result of importing a sample bank from memory.
template <void (*reader)(const RIFF::File&, Import&)> class ImportedBank {
public:
    explicit ImportedBank(const std::string& bytes, std::size_t cancelAfter = SIZE_MAX,
                          const ImportOptions& options = {Reading::Plain})
        : host(cancelAfter), import(host, options)
    {
        try {
            reader(RIFF::File(std::as_bytes(std::span(bytes))), import);
        } catch (const FormatError& wrong) {
            error = wrong.inFile("f");
        }
        for (const auto& [name, why] : import.report.skipped)
            skipped += fmt::format("{}: {}. ", name, why);
        for (const auto& [name, one] : import.instrument->sounds)
            sounds +=
                fmt::format("{}: {} {} {}. ", name, one->channels(), one->rate(), one->size());
    }

    std::string keys(std::size_t stop) const { return keysOf(*import.instrument, stop); }

    std::string attacks(std::size_t stop, std::size_t key) const
    {
        return attacksOf(*import.instrument, stop, key);
    }

    double centsOff(std::size_t key, double hertzOfA)
    {
        return velmora::centsOff(*import.instrument, key, hertzOfA);
    }

    RecordingHost host;
    std::string error = "none";
    std::string sounds;  ///< The name, channels, sample rate and bytes of each sound.
    std::string skipped; ///< What was skipped, and why.
    Import import;
};

} // namespace velmora
