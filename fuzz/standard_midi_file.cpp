// Reads the input as a MIDI file. The result is a FormatError or a sequence of notes with valid
// times.

#include "base/FormatError.h"
#include "midi/StandardMidiFile.h"
#include "require.h"
#include "sequencer/SequenceFile.h"

#include <cmath>

namespace velmora {

namespace {

void checkTimes(const StandardMidiFile& file)
{
    for (const auto& track : file.tracks) {
        double before = 0.0;
        for (const MidiEvent& event : track) {
            require(event.beats >= before && event.duration >= 0.0F);
            require(event.channel < 16 && event.key < 128 && event.velocity < 128);
            before = event.beats;
            const double seconds = file.secondsForBeats(event.beats);
            require(std::isfinite(seconds) && seconds >= 0.0);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const auto file = readStandardMidiFile(std::as_bytes(std::span(data, size)));
        checkTimes(file);
        Sequence sequence;
        const double extent = readSequence(file, 21, 108, sequence).extent;
        for (const Note& note : sequence.notes())
            require(sequence.find(note.id) == &note && note.start + note.length < extent);
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
