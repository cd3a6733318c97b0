#include "sequencer/NoteClipboard.h"

#include "sound/KeyTables.h"

#include <QDataStream>
#include <QIODevice>

#include <cmath>

namespace {

constexpr std::uint32_t kLastChannel = 255;

/// Steps that no sequence comes near, and from which no sum runs out of the numbers.
constexpr double kFar = 1e12;

bool isValid(const Note& note)
{
    return std::abs(note.start) < kFar && note.length >= 0.0 && note.length < kFar &&
           note.velocity >= 0.0F && note.velocity <= 1.0F && note.channel <= kLastChannel &&
           note.key < kKeys;
}

} // namespace

QByteArray encodeNotes(const std::vector<Note>& notes)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const Note& note : notes)
        stream << note.start << note.length << static_cast<double>(note.velocity) << note.channel
               << note.key;
    return bytes;
}

std::vector<Note> decodeNotes(const QByteArray& bytes)
{
    std::vector<Note> notes;
    QDataStream stream(bytes);
    while (!stream.atEnd()) {
        Note note;
        double velocity = 0.0;
        stream >> note.start >> note.length >> velocity >> note.channel >> note.key;
        note.velocity = static_cast<float>(velocity);
        if (stream.status() != QDataStream::Ok || !isValid(note))
            return {};
        notes.push_back(note);
    }
    return notes;
}
