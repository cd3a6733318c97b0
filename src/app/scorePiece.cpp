#include "app/scorePiece.h"

#include "base/Text.h"
#include "midi/MidiFileEvents.h"
#include "midi/messages.h"
#include "notation/lilyPond.h"
#include "notation/musicXml.h"
#include "platform/writeFile.h"
#include "sequencer/ProgramChanges.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceTime.h"
#include "sequencer/SourceFile.h"
#include "tuning/spellNotes.h"

#include <algorithm>
#include <array>
#include <map>

namespace velmora {

namespace {

/// The shortest unit of a time signature that can be written down.
constexpr int kShortestUnit = 32;

/// Returns the names of the channels of a file, which are those of their first tracks.
std::map<unsigned, std::string> channelNames(const MidiFileEvents& file)
{
    std::map<unsigned, std::string> names;
    for (const FileTrack& track : file.tracks) {
        std::string name;
        for (const FileEvent& event : track.events) {
            if (const auto text = metaData(event, midi::kTrackName); !text.empty())
                name = toUtf8(text);
            if ((event.status & midi::kKindMask) == midi::kNoteOn)
                names.try_emplace(event.status & midi::kChannelMask, name);
        }
    }
    return names;
}

void addTime(const MusicalTime& time, Piece& piece)
{
    for (const auto& [step, count, unit] : time.timeSignatures())
        if (unit <= kShortestUnit)
            piece.timeSignatures.push_back({step / kStepsPerBeat, count, unit});
    for (const auto& [step, sharps, isMinor] : time.keySignatures())
        piece.keySignatures.push_back({step / kStepsPerBeat, sharps, isMinor});
    for (const Tempo& tempo : time.tempos())
        piece.tempos.push_back({tempo.step / kStepsPerBeat, tempo.beats()});
}

} // namespace

Piece pieceOf(const SequenceDocument& document, const std::string& title, Temperament& temperament,
              const ChannelSet& voices)
{
    Piece piece;
    piece.title = title;
    std::map<unsigned, std::string> names;
    if (const SourceFile* source = document.source())
        names = channelNames(readMidiFileEvents(source->bytes()));
    const MusicalTime& time = document.transport().time();
    addTime(time, piece);
    const auto& notes = document.sequence().notes();
    std::vector<TimedKey> keys;
    keys.reserve(notes.size());
    for (const Note& note : notes)
        keys.push_back(
            {time.secondsAt(note.start), time.secondsAt(note.start + note.length), note.key});
    const auto places = spellNotes(keys, temperament);
    std::map<unsigned, Piece::Part> parts;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const unsigned channel = notes[i].channel % midi::kChannels;
        if (!voices[channel])
            continue;
        parts[channel].notes.push_back({.start = notes[i].start / kStepsPerBeat,
                                        .length = notes[i].length / kStepsPerBeat,
                                        .key = notes[i].key,
                                        .place = places[i],
                                        .velocity = notes[i].velocity});
    }
    for (auto& [channel, part] : parts) {
        const Voice& voice = document.voices()[channel];
        part.name = voice.name.empty() ? names[channel] : voice.name;
        part.isPercussion = channel == kDrumChannel;
        if (voice.sound.preset)
            part.program = voice.sound.preset->number;
        if (part.name.empty() && parts.size() > 1)
            part.name = std::to_string(channel + 1);
        piece.parts.push_back(std::move(part));
    }
    return piece;
}

void writeScore(const std::filesystem::path& path, const Piece& piece)
{
    const Score score = makeScore(piece);
    const bool isLilyPond = lowerCase(path.extension().string()) == ".ly";
    writeFile(path, isLilyPond ? writeLilyPond(score) : writeMusicXml(score));
}

bool isScoreFile(const std::filesystem::path& path)
{
    constexpr std::array kExtensions = {".musicxml", ".xml", ".ly"};
    return std::ranges::find(kExtensions, lowerCase(path.extension().string())) !=
           kExtensions.end();
}

} // namespace velmora
