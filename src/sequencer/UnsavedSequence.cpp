#include "sequencer/UnsavedSequence.h"

#include "base/FormatError.h"
#include "sequencer/SourceFile.h"
#include "sequencer/makeValid.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

namespace velmora {

namespace {

constexpr quint32 kMagic = 0x56524543; // "VREC"
constexpr quint32 kVersion = 2;

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
           << (sequence.source ? bytesOf(*sequence.source) : QByteArray())
           << static_cast<quint64>(sequence.notes.size());
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
    reader.require(reader.read<quint32>() == kVersion, "another version of Velmora wrote this");
    UnsavedSequence sequence;
    sequence.path = reader.read<QByteArray>().toStdString();
    sequence.time = decltype(sequence.time)(std::chrono::milliseconds(reader.read<qint64>()));
    sequence.isImported = reader.read<bool>();
    if (const auto source = reader.read<QByteArray>(); !source.isEmpty()) {
        const auto sourceBytes = std::as_bytes(std::span(source.begin(), source.end()));
        Sequence notes; // those of the recovery file count
        sequence.source = std::make_shared<SourceFile>(
            std::vector(sourceBytes.begin(), sourceBytes.end()), notes);
    }

    const auto count = reader.read<quint64>();
    reader.require(count == static_cast<quint64>(reader.left()) / kNoteBytes &&
                       reader.left() % kNoteBytes == 0,
                   "the number of notes does not match the size of the file");
    sequence.notes.reserve(count);
    for (quint64 i = 0; i < count; ++i)
        sequence.notes.push_back(readNote(reader));
    return sequence;
}

} // namespace velmora
