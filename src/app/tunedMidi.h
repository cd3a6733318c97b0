#pragma once

#include "app/SequenceRenderer.h"
#include "sound/TunedMidiWriter.h"

#include <functional>
#include <string>

namespace velmora {

class AppDelegate;

/// A piece as a MIDI file that sounds in a temperament on every General MIDI device.
struct TunedMidi {
    std::string bytes;
    TunedMidiWriter::Notes notes;
};

/// Plays a sequence in the current tuning, as `SequenceRenderer` does, into a MIDI file with its
/// tempos and the programs of its voices. Those without one get the current program, or a church
/// organ if the instrument has no programs. `fill` fills the document with the sequence. Of the
/// options, the speed, the loop and the voices count. Throws what `fill` throws, and
/// std::length_error if there are too many notes.
TunedMidi writeTunedMidi(AppDelegate& application,
                         const std::function<void(SequenceDocument&)>& fill, RenderOptions options);

} // namespace velmora
