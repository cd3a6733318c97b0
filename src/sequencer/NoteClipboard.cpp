#include "sequencer/NoteClipboard.h"

#include "sequencer/makeValid.h"

#include <QDataStream>
#include <QIODevice>

namespace velmora {

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
        if (stream.status() != QDataStream::Ok || !makeValid(note))
            return {};
        notes.push_back(note);
    }
    return notes;
}

} // namespace velmora
