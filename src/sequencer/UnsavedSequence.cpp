#include "sequencer/UnsavedSequence.h"

#include "audio/Program.h"
#include "base/FormatError.h"
#include "midi/messages.h"
#include "sequencer/SourceFile.h"
#include "sequencer/makeValid.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr quint32 kMagic = 0x56524543; // "VREC"
constexpr quint32 kVersion = 3;

/// The version without musical time. A step was a sixteenth of a second.
constexpr quint32 kVersionInSeconds = 2;
constexpr double kStepsPerOldSecond = 16.0;

/// The size of a note in the file.
constexpr qint64 kNoteBytes = 5 * 8 + 4 * 4;

void setUp(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_6_4);
}

/// Reads values one after the other and throws FormatError at the current byte.
class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes)
        : bytes_(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                         static_cast<qsizetype>(bytes.size()))),
          stream_(bytes_)
    {
        setUp(stream_);
    }

    qint64 offset() const { return stream_.device()->pos(); }
    qint64 left() const { return bytes_.size() - offset(); }

    template <class Value> Value read()
    {
        Value value{};
        stream_ >> value;
        require(stream_.status() == QDataStream::Ok, "the file ends too early");
        return value;
    }

    void require(bool holds, const char* otherwise) const
    {
        if (!holds)
            throw FormatError::atByte(static_cast<std::size_t>(offset()), otherwise);
    }

private:
    QByteArray bytes_;
    QDataStream stream_;
};

Note readNote(Reader& reader)
{
    Note note;
    for (double* time : {&note.start, &note.length, &note.oldStart, &note.oldLength})
        *time = reader.read<double>();
    note.velocity = static_cast<float>(reader.read<double>());
    note.channel = reader.read<quint32>();
    note.key = reader.read<quint32>();
    note.oldKey = reader.read<quint32>();
    note.origin = reader.read<quint32>();
    reader.require(makeValid(note),
                   "a note has an invalid time, a key above 127 or a channel above 255");
    return note;
}

void writeTime(QDataStream& stream, const MusicalTime& time)
{
    stream << static_cast<quint32>(time.tempos().size());
    for (const Tempo& tempo : time.tempos())
        stream << tempo.step << tempo.microsecondsPerBeat;
    stream << static_cast<quint32>(time.timeSignatures().size());
    for (const TimeSignature& signature : time.timeSignatures())
        stream << signature.step << signature.count << signature.unit;
    stream << static_cast<quint32>(time.keySignatures().size());
    for (const KeySignature& signature : time.keySignatures())
        stream << signature.step << signature.sharps << signature.isMinor;
    stream << static_cast<quint32>(time.markers().size());
    for (const Marker& marker : time.markers())
        stream << marker.step << QByteArray::fromStdString(marker.text);
}

/// Reads a list whose entries begin with their step. `readRest` reads one entry behind its step.
template <class Entry, class Rest> std::vector<Entry> readList(Reader& reader, Rest readRest)
{
    std::vector<Entry> entries;
    for (auto left = reader.read<quint32>(); left > 0; --left) {
        const auto step = reader.read<double>();
        reader.require(std::isfinite(step), "a change of tempo or signature has an invalid time");
        entries.push_back(readRest(step));
    }
    return entries;
}

Controllers readControllers(Reader& reader)
{
    auto controllers = readList<ControllerEvent>(reader, [&](double step) {
        const auto channel = reader.read<quint8>(), number = reader.read<quint8>();
        const auto value = reader.read<quint16>();
        reader.require(channel < midi::kChannels && number <= kPressure &&
                           value <= largestValue(number),
                       "a controller is invalid");
        return ControllerEvent{step, channel, number, value};
    });
    std::ranges::stable_sort(controllers, {}, &ControllerEvent::step);
    return controllers;
}

MusicalTime readTime(Reader& reader)
{
    MusicalTime time;
    time.setTempos(readList<Tempo>(reader, [&](double step) {
        return Tempo{step, reader.read<quint32>()};
    }));
    time.setTimeSignatures(readList<TimeSignature>(reader, [&](double step) {
        const int count = reader.read<qint32>(), unit = reader.read<qint32>();
        reader.require(count > 0 && count < 256 && unit > 0 && unit <= 64 && 64 % unit == 0,
                       "a time signature is invalid");
        return TimeSignature{step, count, unit};
    }));
    time.setKeySignatures(readList<KeySignature>(reader, [&](double step) {
        const int sharps = reader.read<qint32>();
        return KeySignature{step, std::clamp(sharps, -7, 7), reader.read<bool>()};
    }));
    time.setMarkers(readList<Marker>(reader, [&](double step) {
        return Marker{step, reader.read<QByteArray>().toStdString()};
    }));
    return time;
}

void writeVoices(QDataStream& stream, const Voices& voices)
{
    stream << voices.arePrograms;
    for (const Voice& voice : voices) {
        const auto preset = voice.sound.preset.value_or(PartSound::Preset{});
        stream << QByteArray::fromStdString(voice.name) << voice.sound.volume
               << voice.sound.preset.has_value() << preset.bank << preset.number
               << preset.isPercussion << voice.isMuted << voice.isSolo << voice.isLocked;
    }
}

Voices readVoices(Reader& reader)
{
    Voices voices;
    voices.arePrograms = reader.read<bool>();
    for (Voice& voice : voices) {
        voice.name = reader.read<QByteArray>().toStdString();
        voice.sound.volume = reader.read<qint32>();
        const auto hasPreset = reader.read<bool>();
        const auto bank = reader.read<qint32>();
        const auto number = reader.read<quint8>();
        const auto isPercussion = reader.read<bool>();
        if (hasPreset)
            voice.sound.preset = {bank, number, isPercussion};
        for (bool* flag : {&voice.isMuted, &voice.isSolo, &voice.isLocked})
            *flag = reader.read<bool>();
        reader.require(voice.sound.volume >= 0 && voice.sound.volume < 128 && number < 128 &&
                           bank >= 0 && bank <= kDrumKits,
                       "a voice has an invalid program or volume");
    }
    return voices;
}

/// Converts a note of the version before.
void convertFromSeconds(Note& note, const MusicalTime& time)
{
    const auto convert = [&](double& start, double& length) {
        const double end = time.stepAt((start + length) / kStepsPerOldSecond);
        start = time.stepAt(start / kStepsPerOldSecond);
        length = end - start;
    };
    convert(note.start, note.length);
    convert(note.oldStart, note.oldLength);
}

QByteArray bytesOf(const SourceFile& source)
{
    return {reinterpret_cast<const char*>(source.bytes().data()),
            static_cast<qsizetype>(source.bytes().size())};
}

} // namespace

std::string encodeUnsaved(const UnsavedSequence& sequence)
{
    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(sequence.notes.size()) * kNoteBytes + 4096);
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    setUp(stream);
    stream << kMagic << kVersion << QByteArray::fromStdString(sequence.path.string())
           << static_cast<qint64>(sequence.time.time_since_epoch().count()) << sequence.isImported
           << (sequence.source ? bytesOf(*sequence.source) : QByteArray());
    writeTime(stream, sequence.musicalTime);
    writeVoices(stream, sequence.voices);
    stream << static_cast<quint32>(sequence.controllers.size());
    for (const ControllerEvent& event : sequence.controllers)
        stream << event.step << event.channel << event.number << event.value;
    stream << static_cast<quint64>(sequence.notes.size());
    for (const Note& note : sequence.notes)
        stream << note.start << note.length << note.oldStart << note.oldLength
               << static_cast<double>(note.velocity) << note.channel << note.key << note.oldKey
               << note.origin;
    return bytes.toStdString();
}

UnsavedSequence decodeUnsaved(std::span<const std::byte> bytes)
{
    Reader reader(bytes);
    reader.require(reader.read<quint32>() == kMagic, "this is not a recovery file");
    const auto version = reader.read<quint32>();
    reader.require(version == kVersion || version == kVersionInSeconds,
                   "another version of Velmora wrote this");
    UnsavedSequence sequence;
    sequence.path = reader.read<QByteArray>().toStdString();
    sequence.time = decltype(sequence.time)(std::chrono::milliseconds(reader.read<qint64>()));
    sequence.isImported = reader.read<bool>();
    if (const auto source = reader.read<QByteArray>(); !source.isEmpty()) {
        const auto sourceBytes = std::as_bytes(std::span(source.begin(), source.end()));
        Sequence notes; // those of the recovery file count
        sequence.source = std::make_shared<SourceFile>(
            std::vector(sourceBytes.begin(), sourceBytes.end()), notes);
        sequence.musicalTime = sequence.source->time();
        sequence.voices = sequence.source->voices();
        sequence.controllers = sequence.source->controllers();
    }
    if (version == kVersion) {
        sequence.musicalTime = readTime(reader);
        sequence.voices = readVoices(reader);
        sequence.controllers = readControllers(reader);
    }

    const auto count = reader.read<quint64>();
    reader.require(count == static_cast<quint64>(reader.left()) / kNoteBytes &&
                       reader.left() % kNoteBytes == 0,
                   "the number of notes does not match the size of the file");
    sequence.notes.reserve(count);
    for (quint64 i = 0; i < count; ++i)
        sequence.notes.push_back(readNote(reader));
    if (version == kVersionInSeconds)
        for (Note& note : sequence.notes)
            convertFromSeconds(note, sequence.musicalTime);
    return sequence;
}

} // namespace velmora
