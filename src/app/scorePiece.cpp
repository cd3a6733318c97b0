#include "app/scorePiece.h"

#include "base/Text.h"
#include "midi/MidiFileEvents.h"
#include "midi/messages.h"
#include "notation/lilyPond.h"
#include "notation/musicXml.h"
#include "platform/writeFile.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceTime.h"
#include "sequencer/SourceFile.h"
#include "tuning/spellNotes.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace velmora {

namespace {

/// What follows the type and the length of a meta event; empty if it is another one or cut short.
std::string_view metaText(const FileEvent& event, std::uint8_t type)
{
    std::string_view data = event.data;
    if (event.status != midi::kMetaEvent || data.empty() ||
        static_cast<std::uint8_t>(data.front()) != type)
        return {};
    data.remove_prefix(1);
    // The length takes as many bytes as have their highest bit set, and one more.
    while (!data.empty() && static_cast<std::uint8_t>(data.front()) >= midi::kStatusBit)
        data.remove_prefix(1);
    return data.empty() ? data : data.substr(1);
}

/// Adds the signatures and tempos of a file, and returns the names of its channels.
std::map<unsigned, std::string> addFile(const MidiFileEvents& file, Piece& piece)
{
    std::map<unsigned, std::string> names;
    for (const FileTrack& track : file.tracks) {
        std::string name;
        for (const FileEvent& event : track.events) {
            const double start = static_cast<double>(event.tick) / file.header.ticksPerBeat;
            if (const auto text = metaText(event, midi::kTrackName); !text.empty())
                name = toUtf8(text);
            if (const auto time = metaText(event, midi::kTimeSignature);
                time.size() >= 2 && time[0] > 0 && time[1] >= 0 && time[1] <= 5)
                piece.timeSignatures.push_back({start, time[0], 1 << time[1]});
            if (const auto key = metaText(event, midi::kKeySignature); key.size() >= 2)
                piece.keySignatures.push_back(
                    {start, std::clamp<int>(static_cast<signed char>(key[0]), -7, 7), key[1] == 1});
            if (const auto tempo = metaText(event, midi::kTempo); tempo.size() == 3) {
                double microseconds = 0.0;
                for (const char byte : tempo)
                    microseconds = 256.0 * microseconds + static_cast<std::uint8_t>(byte);
                if (microseconds > 0.0 && !file.header.hasFrames)
                    piece.tempos.push_back({start, 60e6 / microseconds});
            }
            if ((event.status & midi::kKindMask) == midi::kNoteOn)
                names.try_emplace(event.status & midi::kChannelMask, name);
        }
    }
    std::ranges::stable_sort(piece.timeSignatures, {}, &Piece::TimeSignature::start);
    std::ranges::stable_sort(piece.keySignatures, {}, &Piece::KeySignature::start);
    std::ranges::stable_sort(piece.tempos, {}, &Piece::Tempo::start);
    return names;
}

} // namespace

Piece pieceOf(const SequenceDocument& document, const std::string& title, Temperament& temperament)
{
    Piece piece;
    piece.title = title;
    std::map<unsigned, std::string> names;
    TempoMap tempoMap;
    if (const SourceFile* source = document.source()) {
        const MidiFileEvents file = readMidiFileEvents(source->bytes());
        tempoMap = file.tempoMap;
        names = addFile(file, piece);
    }

    const auto& notes = document.sequence().notes();
    std::vector<TimedKey> keys;
    keys.reserve(notes.size());
    for (const Note& note : notes)
        keys.push_back({note.start / kStepsPerFileSecond,
                        (note.start + note.length) / kStepsPerFileSecond, note.key});
    const auto places = spellNotes(keys, temperament);
    std::map<unsigned, Piece::Part> parts;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const unsigned channel = notes[i].channel % midi::kChannels;
        const double start = tempoMap.beatsForSeconds(keys[i].start);
        parts[channel].notes.push_back({.start = start,
                                        .length = tempoMap.beatsForSeconds(keys[i].end) - start,
                                        .key = notes[i].key,
                                        .place = places[i],
                                        .velocity = notes[i].velocity});
    }
    for (auto& [channel, part] : parts) {
        part.name = names[channel];
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
