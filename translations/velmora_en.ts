<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
</context>
</TS>
