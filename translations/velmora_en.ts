<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message numerus="yes">
        <source>%n file(s) or sample(s) were left out</source>
        <translation>
            <numerusform>%n file or sample was left out</numerusform>
            <numerusform>%n files or samples were left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stop(s) were not loaded</source>
        <translation>
            <numerusform>%n stop was not loaded</numerusform>
            <numerusform>%n stops were not loaded</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentOpener</name>
    <message numerus="yes">
        <source>%1 holds %n instrument(s). The Instrument menu lists them.</source>
        <translation type="unfinished">
            <numerusform>%1 holds %n instrument. The Instrument menu lists it.</numerusform>
            <numerusform>%1 holds %n instruments. The Instrument menu lists them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::Interval</name>
    <message numerus="yes">
        <source>%1 and %n octave(s)</source>
        <translation type="unfinished">
            <numerusform>%1 and %n octave</numerusform>
            <numerusform>%1 and %n octaves</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::OutlyingNotes</name>
    <message numerus="yes">
        <source>%n note(s) below %1</source>
        <translation>
            <numerusform>%n note below %1</numerusform>
            <numerusform>%n notes below %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) above %1</source>
        <translation>
            <numerusform>%n note above %1</numerusform>
            <numerusform>%n notes above %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::QuantiseDialog</name>
    <message numerus="yes">
        <source>Moves all %n note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Moves the only note to the grid.</numerusform>
            <numerusform>Moves all %n notes to the grid.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves %n selected note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Moves %n selected note to the grid.</numerusform>
            <numerusform>Moves %n selected notes to the grid.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::RecordingActions</name>
    <message numerus="yes">
        <source>Take %1: %n note(s)</source>
        <translation type="unfinished">
            <numerusform>Take %1: %n note</numerusform>
            <numerusform>Take %1: %n notes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::SequenceDocument</name>
    <message numerus="yes">
        <source>Record %n Note(s)</source>
        <translation>
            <numerusform>Record %n Note</numerusform>
            <numerusform>Record %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Note(s)</source>
        <translation>
            <numerusform>Delete %n Note</numerusform>
            <numerusform>Delete %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Note(s)</source>
        <translation>
            <numerusform>Resize %n Note</numerusform>
            <numerusform>Resize %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n Note(s)</source>
        <translation>
            <numerusform>Move %n Note</numerusform>
            <numerusform>Move %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Set Channel of %n Note(s)</source>
        <translation>
            <numerusform>Set Channel of %n Note</numerusform>
            <numerusform>Set Channel of %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cut %n Note(s)</source>
        <translation>
            <numerusform>Cut %n Note</numerusform>
            <numerusform>Cut %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Note(s)</source>
        <translation>
            <numerusform>Paste %n Note</numerusform>
            <numerusform>Paste %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Quantise %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Quantise %n Note</numerusform>
            <numerusform>Quantise %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Transpose %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Transpose %n Note</numerusform>
            <numerusform>Transpose %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Duplicate %n Note</numerusform>
            <numerusform>Duplicate %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Split %n Note</numerusform>
            <numerusform>Split %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Join %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Join %n Note</numerusform>
            <numerusform>Join %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Connect %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Connect %n Note</numerusform>
            <numerusform>Connect %n Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Change Velocity of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Change Velocity of %n Note</numerusform>
            <numerusform>Change Velocity of %n Notes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::SequencePages</name>
    <message numerus="yes">
        <source>%1, %n note(s), %2</source>
        <translation>
            <numerusform>%1, %n note, %2</numerusform>
            <numerusform>%1, %n notes, %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) could be read.</source>
        <translation>
            <numerusform>%n note could be read.</numerusform>
            <numerusform>%n notes could be read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::SequenceStatus</name>
    <message numerus="yes">
        <source>%n note(s) selected</source>
        <translation>
            <numerusform>%n note selected</numerusform>
            <numerusform>%n notes selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) in all</source>
        <translation>
            <numerusform>%n note in all</numerusform>
            <numerusform>%n notes in all</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::StatusLine</name>
    <message numerus="yes">
        <source>%n MIDI input(s)</source>
        <translation>
            <numerusform>%n MIDI input</numerusform>
            <numerusform>%n MIDI inputs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::StemsDialog</name>
    <message numerus="yes">
        <source>%n file(s) already exist. Do you want to replace them?</source>
        <translation>
            <numerusform>%n file already exists. Do you want to replace it?</numerusform>
            <numerusform>%n files already exist. Do you want to replace them?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::TuningExports</name>
    <message numerus="yes">
        <source>A MIDI file has only 15 channels for notes of different pitch, so %n note(s) are up to %1 cents out of tune.</source>
        <translation>
            <numerusform>A MIDI file has only 15 channels for notes of different pitch, so %n note is up to %1 cents out of tune.</numerusform>
            <numerusform>A MIDI file has only 15 channels for notes of different pitch, so %n notes are up to %1 cents out of tune.</numerusform>
        </translation>
    </message>
</context>
</TS>
