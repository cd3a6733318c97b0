#pragma once

#include "audio/ReleaseAlignment.h"
#include "sound/PipeSound.h"
#include "sound/Sample.h"

#include <memory>
#include <string>
#include <vector>

namespace velmora {

struct Import;

/// A recording of a bank in the import's instrument.
struct BankSound {
    const Sound* attack = nullptr;
    const Sound* release = nullptr; ///< What follows when the key is released, or null.
    std::shared_ptr<const ReleaseAlignment> alignment; ///< Of the release, if there is one.
};

/// Prepares a recording, and adds its sounds to the import's instrument and their size to its
/// usage. They get the name `name`, or a similar one if that is taken, and are held by the same
/// device as `beside`, unless that is null. Throws FormatError if it cannot be played, and
/// std::bad_alloc.
BankSound addBankSound(PipeRecording&& recording, const std::string& name, const Sound* beside,
                       Import& import);

/// How a recording sounds on a key.
struct BankLayer {
    BankSound sound;
    double rootPitch = 0.0; ///< As `Sample` has it.
    float gain = 1.0F;
    int softest = 0; ///< MIDI velocity.
    int loudest = 127;
};

/// Gives a key its recordings, with their own releases and those that sound at every release.
void setKey(Sample& key, const std::vector<BankLayer>& attacks,
            const std::vector<BankLayer>& releases);

/// Returns the root pitch of a sample that sounds like a MIDI key, with a fraction, in equal
/// temperament.
double rootPitchOf(double key);

/// Returns the physical pitch of a MIDI key, with a fraction, in hertz: 440 for 69.
double hertzOf(double key);

/// Returns the gain that a number of decibels stands for.
float gainOf(double decibels);

} // namespace velmora
