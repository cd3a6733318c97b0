// How far the General MIDI instrument is from the pitches of a scale, for scales of several kinds
// and for the voices of an ensemble. It plays a bank of sines that is exactly in tune, so that the
// figures show the instrument alone.

#include "audio/Synthesizer.h"
#include "sound/MIDIInstrument.h"
#include "support/Pitch.h"
#include "support/SineBank.h"
#include "support/Stereo.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/TuningDocument.h"

#include <QTemporaryDir>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

namespace velmora {

namespace {

constexpr std::size_t kPitchRate = 48'000;
constexpr int kLowestKey = 36, kHighestKey = 96;

/// Returns a scale of equal steps. Its first note is so many cents above that of other scales.
ScaleTemperament equalSteps(int notes, double period = 1200.0, double offset = 0.0)
{
    Scale scale;
    for (int i = 1; i <= notes; ++i)
        scale.pitches.emplace_back(Cent(period * i / notes));
    KeyMapping mapping;
    mapping.referenceHertz *= std::exp2(offset / 1200.0);
    return ScaleTemperament(scale, mapping);
}

/// Measures a part whose program is so many cents higher than the first one.
void measure(const std::string& name, const Temperament& temperament, MIDIInstrument& instrument,
             std::size_t part = 0, double higher = 0.0)
{
    instrument.silence();
    instrument.tune(temperament, 0, 127);
    std::vector<double> errors;
    for (int key = kLowestKey; key <= kHighestKey; ++key) {
        // An octave below `getPitch`: see docs/decisions.md, 1.
        const double hertz = temperament.getPitch(static_cast<unsigned long>(key)) / 2.0 *
                             std::exp2(higher / 1200.0);
        instrument.playOn(part, key, 0.6F);
        rendered(*instrument.source(), kPitchRate / 4);
        const Stereo sound = rendered(*instrument.source(), kPitchRate);
        instrument.stopOn(part, key);
        rendered(*instrument.source(), kPitchRate / 2);
        errors.push_back(std::fabs(cents(measuredHertz(sound.left, kPitchRate, hertz), hertz)));
    }
    std::ranges::sort(errors);
    fmt::print("{:<24} median {:.3f} cents, worst {:.3f} cents\n", name, errors[errors.size() / 2],
               errors.back());
}

} // namespace

} // namespace velmora

int main()
{
    using namespace velmora;
    const QTemporaryDir folder;
    const std::filesystem::path bank = folder.filePath("sines.sf2").toStdString();
    std::ofstream(bank, std::ios::binary) << sineBank([](int) { return 0; });
    MIDIInstrument instrument(std::make_unique<Synthesizer>(kPitchRate, std::vector{bank}));
    instrument.setReading(Reading::Musical);
    instrument.setInstrument(0);
    const auto meantone = TuningDocument::makeBuiltin("Quartercomma Meantone");
    measure("Quartercomma Meantone", meantone->temperament(), instrument);
    for (std::size_t voice = 1; voice <= 5; ++voice)
        instrument.setPart(voice,
                           {PartSound::Preset{.number = static_cast<std::uint8_t>(voice % 2)},
                            90 + static_cast<int>(voice)});
    for (std::size_t voice = 1; voice <= 5; ++voice)
        measure(fmt::format("Meantone, voice {}", voice), meantone->temperament(), instrument,
                voice, voice % 2 == 0 ? 0.0 : 10.0);
    for (const int notes : {19, 31, 53})
        measure(fmt::format("{} equal steps", notes), equalSteps(notes), instrument);
    measure("13 steps of 3/1", equalSteps(13, 1200.0 * std::log2(3.0)), instrument);
    measure("12 steps, 600 cents up", equalSteps(12, 1200.0, 600.0), instrument);
}
