#pragma once

namespace velmora {

class FileEdits;
struct MidiFileEvents;
struct Voices;

/// Adds to `edits` what gives a file the names, programs and volumes of voices. Voices that are as
/// the file has them keep their events.
void editVoices(const MidiFileEvents& file, const Voices& voices, FileEdits& edits);

} // namespace velmora
