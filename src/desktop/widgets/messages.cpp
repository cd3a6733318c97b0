#include "desktop/widgets/messages.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

namespace velmora {

namespace {

// NOLINTBEGIN(bugprone-suspicious-missing-comma): long messages take several lines

/// The messages with their arguments, those with a fixed text first.
constexpr const char* kMessages[] = {
    // Instruments and their progress
    QT_TRANSLATE_NOOP("velmora::messages", "MIDI Player"),
    QT_TRANSLATE_NOOP("velmora::messages", "Sample %1"),
    // Meters
    QT_TRANSLATE_NOOP("velmora::messages", "Output"),
    QT_TRANSLATE_NOOP("velmora::messages", "Sample rate"),
    QT_TRANSLATE_NOOP("velmora::messages", "Period"),
    QT_TRANSLATE_NOOP("velmora::messages", "From MIDI to sound"),
    QT_TRANSLATE_NOOP("velmora::messages", "Voices"),
    QT_TRANSLATE_NOOP("velmora::messages", "Load"),
    QT_TRANSLATE_NOOP("velmora::messages", "Lost periods"),
    QT_TRANSLATE_NOOP("velmora::messages", "Instruments in memory"),
    QT_TRANSLATE_NOOP("velmora::messages", "none"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 frames, %2 ms"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "%1 ms (input %2 ms, period and limiter %3 ms, sound server %4 ms)"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1, released keys are shortened"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 % of the period, at worst %2 %"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1, the last at %2"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 messages a second"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1GB"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1MB"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1KB"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 bytes"),
    // Outputs
    QT_TRANSLATE_NOOP("velmora::messages", "No sound"),
    QT_TRANSLATE_NOOP("velmora::messages", "The sound card"),
    QT_TRANSLATE_NOOP("velmora::messages", "The output \"%1\""),
    QT_TRANSLATE_NOOP("velmora::messages", "No sound output was found; looking for one."),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 has gone; waiting for it."),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 is missing; waiting for it."),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 has gone; playing through %2 until it is back."),
    QT_TRANSLATE_NOOP("velmora::messages", "%1 is missing; playing through %2 until it is back."),
    // Files of any kind
    QT_TRANSLATE_NOOP("velmora::messages", "cannot be read"),
    QT_TRANSLATE_NOOP("velmora::messages", "cannot be read (%1)"),
    QT_TRANSLATE_NOOP("velmora::messages", "is empty"),
    QT_TRANSLATE_NOOP("velmora::messages", "is too large"),
    QT_TRANSLATE_NOOP("velmora::messages", "is a pipe or a device, not a file"),
    QT_TRANSLATE_NOOP("velmora::messages", "needs %1 more of memory, but only %2 are free; "
                                           "unload other instruments or close other programs"),
    QT_TRANSLATE_NOOP("velmora::messages", "needs about %1 of memory, but only %2 are free; "
                                           "load it with 16 bits, which takes %3"),
    QT_TRANSLATE_NOOP("velmora::messages", "needs about %1 of memory, but only %2 are free; "
                                           "load it in mono, which takes %3"),
    QT_TRANSLATE_NOOP("velmora::messages", "needs about %1 of memory, but only %2 are free; "
                                           "load it with 16 bits and in mono, which takes %3"),
    QT_TRANSLATE_NOOP("velmora::messages", "needs about %1 of memory, but only %2 are free; "
                                           "load fewer of its stops"),
    QT_TRANSLATE_NOOP("velmora::messages", "needs about %1 of memory, but only %2 are free; "
                                           "unload other instruments or close other programs"),
    QT_TRANSLATE_NOOP("velmora::messages", "is damaged or cut short"),
    QT_TRANSLATE_NOOP("velmora::messages", "is cut short"),
    QT_TRANSLATE_NOOP("velmora::messages", "is damaged and its presets cannot be played; opening "
                                           "it as stops may work"),
    QT_TRANSLATE_NOOP("velmora::messages", "has no presets"),
    QT_TRANSLATE_NOOP("velmora::messages", "the file does not contain its data"),
    QT_TRANSLATE_NOOP("velmora::messages", "the file has too many chunks"),
    QT_TRANSLATE_NOOP("velmora::messages", "lists are nested too deeply"),
    QT_TRANSLATE_NOOP("velmora::messages", "is not a RIFF file"),
    QT_TRANSLATE_NOOP("velmora::messages", "has no \"%1\""),
    // Tunings
    QT_TRANSLATE_NOOP("velmora::messages", "this is not a tuning file"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not a number"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not a finite number"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not a playable pitch"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" has a zero denominator"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "\"%1\" is the number of notes; only scales of 12 notes are supported"),
    QT_TRANSLATE_NOOP("velmora::messages", "the scale has no description and no number of notes"),
    QT_TRANSLATE_NOOP("velmora::messages", "the scale has no number of notes"),
    QT_TRANSLATE_NOOP("velmora::messages", "the scale ends after %1 of %2 pitches"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not a number of notes from 0 to 128"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "\"%1\" is not a pitch: write cents with a point, as in 701.955, or a ratio, "
                      "as in 3/2"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not a pitch above 0"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" has a number that is too large"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "\"%1\" needs an octave, the index of a note and its frequency in hertz, "
                      "which sounds on a key from 0 to 127"),
    QT_TRANSLATE_NOOP("velmora::messages", "the mapping ends before the size of the mapping"),
    QT_TRANSLATE_NOOP("velmora::messages", "the mapping ends before the first key"),
    QT_TRANSLATE_NOOP("velmora::messages", "the mapping ends before the last key"),
    QT_TRANSLATE_NOOP("velmora::messages", "the mapping ends before the middle key"),
    QT_TRANSLATE_NOOP("velmora::messages", "the mapping ends before the reference key"),
    QT_TRANSLATE_NOOP("velmora::messages", "the mapping ends before the frequency"),
    QT_TRANSLATE_NOOP("velmora::messages", "the mapping ends before the formal octave"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "\"%1\" is not the size of the mapping, a number from 0 to %2"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not the first key, a number from 0 to %2"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not the last key, a number from 0 to %2"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not the middle key, a number from 0 to %2"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "\"%1\" is not the reference key, a number from 0 to %2"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "\"%1\" is not the formal octave, a number from 0 to %2"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "\"%1\" is not a degree of the scale or an x, a number from 0 to %2"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" is not a frequency in hertz above 0"),
    QT_TRANSLATE_NOOP("velmora::messages", "\"%1\" has no ="),
    QT_TRANSLATE_NOOP("velmora::messages", "the reference key %1 plays no note"),
    QT_TRANSLATE_NOOP("velmora::messages", "the pitch of key %1 is beyond all bounds"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "the pitches are only given by formulas, in the section [Functional Tuning]"),
    QT_TRANSLATE_NOOP("velmora::messages", "there is no section [Exact Tuning] or [Tuning]"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "a keyboard mapping needs a scale, and this tuning has none"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "the scale repeats after %1 cents, but the plain reading repeats it after an "
                      "octave"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "in the plain reading, General MIDI plays some keys of \"%1\" %2 cents out "
                      "of tune"),
    // Pieces and sessions
    QT_TRANSLATE_NOOP("velmora::messages", "this is not a Standard MIDI File: \"MThd\" is missing"),
    QT_TRANSLATE_NOOP("velmora::messages", "the header is too short"),
    QT_TRANSLATE_NOOP("velmora::messages", "the header announces no tracks"),
    QT_TRANSLATE_NOOP("velmora::messages", "an event exceeds the end of its track"),
    QT_TRANSLATE_NOOP("velmora::messages", "the file ends after %1 of %2 tracks"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "a chunk of %1 bytes is truncated: the file has only %2 more"),
    QT_TRANSLATE_NOOP("velmora::messages", "this is not a session of Velmora"),
    QT_TRANSLATE_NOOP("velmora::messages", "these are not the registrations of an organ"),
    QT_TRANSLATE_NOOP("velmora::messages", "a later version of Velmora has written this session"),
    // Instruments
    QT_TRANSLATE_NOOP(
        "velmora::messages",
        "is too large for the free memory; unload other instruments, then open it again"),
    QT_TRANSLATE_NOOP("velmora::messages", "has no instruments"),
    QT_TRANSLATE_NOOP("velmora::messages", "has no samples"),
    QT_TRANSLATE_NOOP("velmora::messages", "is not a sound file in a supported format"),
    QT_TRANSLATE_NOOP("velmora::messages", "is a damaged WavPack file (%1)"),
    QT_TRANSLATE_NOOP("velmora::messages", "lies outside the folder of the instrument"),
    QT_TRANSLATE_NOOP("velmora::messages", "names a file outside the folder of the organ: \"%1\""),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "names a file outside the folder of its package: \"%1\""),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "is longer than a sound may be: it has more than 2 GB of samples"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "is damaged: its samples would take %1, but the file holds only %2"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "is a SoundFont %1 bank with compressed samples; convert it to SoundFont 2"),
    QT_TRANSLATE_NOOP("velmora::messages", "cannot be loaded: its samples are encrypted and need a "
                                           "licence; open an organ without encryption"),
    QT_TRANSLATE_NOOP("velmora::messages", "cannot be played: no pipe has a sample file"),
    QT_TRANSLATE_NOOP(
        "velmora::messages",
        "cannot be played: none of the %1 sample files can be decoded, for example %2"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "is not an organ definition: its root element is not \"Hauptwerk\""),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "is written in UTF-16; save it as UTF-8 in a text editor"),
    QT_TRANSLATE_NOOP("velmora::messages", "cannot be played: it has no stop with pipes"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "holds no organ definition (a file with the extension .organ)"),
    QT_TRANSLATE_NOOP("velmora::messages", "this package is not in the folder of the organ"),
    QT_TRANSLATE_NOOP("velmora::messages", "is not a zip archive, or is damaged"),
    QT_TRANSLATE_NOOP("velmora::messages", "is a damaged archive"),
    QT_TRANSLATE_NOOP("velmora::messages", "the XML is damaged: %1"),
    // Pieces
    QT_TRANSLATE_NOOP("velmora::messages",
                      "The file is damaged, and only a part of it could be read. To keep what may "
                      "still be in it, save the piece under another name."),
    QT_TRANSLATE_NOOP("velmora::messages", "is not a MusicXML score"),
    QT_TRANSLATE_NOOP("velmora::messages", "is an archive, but not of a score"),
    QT_TRANSLATE_NOOP("velmora::messages", "the score \"%1\" is missing from the archive"),
    QT_TRANSLATE_NOOP("velmora::messages", "the score has no parts"),
    QT_TRANSLATE_NOOP("velmora::messages", "the score has too many parts"),
    QT_TRANSLATE_NOOP("velmora::messages", "measure %1 is too long"),
    QT_TRANSLATE_NOOP("velmora::messages", "the music is too long"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "is encrypted; only archives without a password can be opened"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "holds a file whose name leads out of the archive: \"%1\""),
    QT_TRANSLATE_NOOP("velmora::messages", "is not in the archive"),
    QT_TRANSLATE_NOOP("velmora::messages", "is damaged in the archive"),
    QT_TRANSLATE_NOOP("velmora::messages", "is larger than the archive says"),
    QT_TRANSLATE_NOOP("velmora::messages", "is cut short in the archive"),
    QT_TRANSLATE_NOOP("velmora::messages", "an attack has no sample file"),
    QT_TRANSLATE_NOOP("velmora::messages", "a release has no sample file"),
    QT_TRANSLATE_NOOP("velmora::messages", "recordings with the tremulant are not played"),
    QT_TRANSLATE_NOOP("velmora::messages", "recordings for quick repetitions are not played"),
    QT_TRANSLATE_NOOP("velmora::messages", "borrowed from pipes that are borrowed from each other"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "does not say from which manual, stop and pipe it is borrowed"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "borrowed from stop %1 of manual %2, which does not exist"),
    QT_TRANSLATE_NOOP("velmora::messages", "borrowed from a pipe that does not sound"),
    QT_TRANSLATE_NOOP("velmora::messages", "is outside the MIDI keys 0 to 127"),
    QT_TRANSLATE_NOOP("velmora::messages", "its stop %1 does not exist"),
    QT_TRANSLATE_NOOP("velmora::messages", "its rank %1 does not exist"),
    QT_TRANSLATE_NOOP("velmora::messages", "belongs to no manual"),
    QT_TRANSLATE_NOOP("velmora::messages", "has no pipe that sounds"),
    QT_TRANSLATE_NOOP("velmora::messages", "is a noise or an effect that sounds when its knob is "
                                           "drawn, not when keys are pressed"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "silences its own keys (\"unison off\"), which is not supported"),
    QT_TRANSLATE_NOOP("velmora::messages",
                      "couples only the lowest or the highest key, which is not supported"),
    QT_TRANSLATE_NOOP("velmora::messages", "couples to a manual that does not exist"),
    QT_TRANSLATE_NOOP("velmora::messages", "tremulants are not supported"),
    // Sending a tuning
    QT_TRANSLATE_NOOP("velmora::messages", "the MIDI output %1 cannot be connected"),
    QT_TRANSLATE_NOOP("velmora::messages", "the MIDI output %1 takes no message"),
    QT_TRANSLATE_NOOP("velmora::messages", "the MIDI output %1 is gone"),
    // Places in files
    QT_TRANSLATE_NOOP("velmora::messages", "%1, line %2, column %3: %4"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1, line %2: %3"),
    QT_TRANSLATE_NOOP("velmora::messages", "%1, byte %2: %3"),
};

// NOLINTEND(bugprone-suspicious-missing-comma)

QString translation(const char* message)
{
    return QCoreApplication::translate("velmora::messages", message);
}

/// Returns what finds a message, with a group for each argument. Arguments follow each other in
/// English.
QRegularExpression patternOf(const char* message)
{
    QString pattern = QRegularExpression::escape(message);
    for (int argument = 1; argument <= 4; ++argument)
        pattern.replace(QString("\\%%1").arg(argument), "(.+?)");
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::DotMatchesEverythingOption);
}

const std::vector<QRegularExpression>& patterns()
{
    static const auto patterns = [] {
        std::vector<QRegularExpression> result;
        for (const char* message : kMessages)
            result.push_back(patternOf(message));
        return result;
    }();
    return patterns;
}

QString translatedText(const QString& text)
{
    for (std::size_t i = 0; i < patterns().size(); ++i) {
        const QRegularExpressionMatch match = patterns()[i].match(text);
        if (!match.hasMatch())
            continue;
        QString result;
        const QString form = translation(kMessages[i]);
        for (qsizetype at = 0; at < form.size(); ++at) {
            const int argument = form[at] == '%' ? form.mid(at + 1, 1).toInt() : 0;
            if (argument > 0 && argument <= match.lastCapturedIndex()) {
                result += translatedText(match.captured(argument));
                ++at;
            } else {
                result += form[at];
            }
        }
        return result;
    }
    // A file or a device with what there is to say about it
    const qsizetype colon = text.indexOf(": ");
    return colon < 0 ? text : text.left(colon + 2) + translatedText(text.mid(colon + 2));
}

} // namespace

QString translated(const std::string& message)
{
    return translatedText(QString::fromStdString(message));
}

QString translatedTitle(const std::string& title)
{
    return translation(title.c_str());
}

} // namespace velmora
