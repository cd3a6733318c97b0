#include "import/BankSounds.h"

#include "import/Import.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

const Sound* keep(std::unique_ptr<Sound> sound, const std::string& name, Import& import)
{
    auto& sounds = import.instrument->sounds;
    std::string free = name;
    for (int number = 2; sounds.contains(free); ++number)
        free = name + " #" + std::to_string(number);
    import.instrument->usage += sound->size();
    return (sounds[free] = std::move(sound)).get();
}

/// Returns the velocity between two MIDI velocities that ends the range of the lower one.
float limitOf(int velocity)
{
    return (static_cast<float>(velocity) + 0.5F) / 127.0F;
}

} // namespace

BankSound addBankSound(PipeRecording&& recording, const std::string& name, const Sound* beside,
                       Import& import)
{
    const double pitch = recording.pitch;
    const PipeSound made = makePipeSound(std::move(recording));
    SampleRenderer& renderer = import.instrument->renderer();
    BankSound result;
    result.attack =
        keep(std::make_unique<Sound>(renderer, made.attack, made.loop, beside), name, import);
    if (made.release.size() > 0) {
        result.alignment =
            std::make_shared<ReleaseAlignment>(made.attack, pitch, made.release, pitch);
        result.release =
            keep(std::make_unique<Sound>(renderer, made.release, std::nullopt, result.attack),
                 name + ", release", import);
    }
    return result;
}

void setKey(Sample& key, const std::vector<BankLayer>& attacks,
            const std::vector<BankLayer>& releases)
{
    // Velocities between those of MIDI, which the keyboard on the screen has, have a sound too.
    for (const BankLayer& layer : attacks)
        key.addAttack({layer.sound.attack, layer.rootPitch, layer.gain,
                       layer.softest > 0 ? limitOf(layer.softest - 1) : 0.0F,
                       layer.loudest < 127 ? limitOf(layer.loudest) : 1.0F});
    // A release sounds on the device of what it follows.
    const auto isNear = [&attacks](const Sound* sound) {
        return sound != nullptr && std::ranges::all_of(attacks, [sound](const BankLayer& layer) {
                   return layer.sound.attack->device() == sound->device();
               });
    };
    for (std::size_t i = 0; i < attacks.size(); ++i) {
        const auto& [sound, rootPitch, gain, softest, loudest] = attacks[i];
        if (!isNear(sound.release))
            continue;
        Sample::Release release{sound.release, rootPitch, gain};
        release.alignments.resize(attacks.size());
        release.alignments[i] = sound.alignment;
        key.addRelease(release);
    }
    for (const auto& [sound, rootPitch, gain, softest, loudest] : releases)
        if (isNear(sound.attack))
            key.addRelease({sound.attack, rootPitch, gain});
}

double rootPitchOf(double key)
{
    return equal.getPitch(kMiddleC) * std::exp2((key - kMiddleC) / 12.0);
}

double hertzOf(double key)
{
    constexpr double kA = 440.0;
    constexpr double kKeyOfA = 69.0;
    return kA * std::exp2((key - kKeyOfA) / 12.0);
}

float gainOf(double decibels)
{
    return static_cast<float>(std::pow(10.0, decibels / 20.0));
}

} // namespace velmora
