<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Report</source>
        <translation type="unfinished">Importbericht</translation>
    </message>
    <message>
        <source>Stops: %1, keys: %2, samples: %3.</source>
        <translation type="unfinished">Register: %1, Tasten: %2, Samples: %3.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished">%1 ist schon vorhanden. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) or sample(s) were left out</source>
        <translation type="unfinished">
            <numerusform>%n Datei oder Sample wurde ausgelassen</numerusform>
            <numerusform>%n Dateien oder Samples wurden ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is still sounding. Silence everything (Ctrl+.), then unload it.</source>
        <translation type="unfinished">%1 klingt noch. Stellen Sie alles still (Strg+.) und entladen Sie es dann.</translation>
    </message>
    <message>
        <source>Velmora cannot draw its windows because OpenGL does not work here. Install libgl1-mesa-dri, which needs no graphics card.</source>
        <translation type="unfinished">Velmora kann seine Fenster nicht zeichnen, weil OpenGL hier nicht funktioniert. Installieren Sie libgl1-mesa-dri, das keine Grafikkarte braucht.</translation>
    </message>
    <message>
        <source>Instrument in the &amp;File</source>
        <translation type="unfinished">Instrument in der &amp;Datei</translation>
    </message>
    <message>
        <source>Lay out the instruments of the bank as stops with volumes of their own, instead of its presets</source>
        <translation type="unfinished">Die Instrumente der Bank als Register mit eigener Lautstärke anordnen, statt ihrer Presets</translation>
    </message>
    <message>
        <source>&amp;Plain Reading</source>
        <translation type="unfinished">&amp;Wörtlich lesen</translation>
    </message>
    <message>
        <source>One sample for each key, as the file lists them</source>
        <translation type="unfinished">Ein Sample je Taste, wie die Datei sie aufführt</translation>
    </message>
    <message>
        <source>Samples with more bits take less memory</source>
        <translation type="unfinished">Samples mit mehr Bits brauchen weniger Speicher</translation>
    </message>
    <message>
        <source>Load in &amp;Mono</source>
        <translation type="unfinished">In &amp;Mono laden</translation>
    </message>
    <message>
        <source>Stereo samples take half the memory</source>
        <translation type="unfinished">Stereo-Samples brauchen die Hälfte des Speichers</translation>
    </message>
    <message>
        <source>Stop %1</source>
        <translation type="unfinished">Register %1</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished">Lautstärke</translation>
    </message>
    <message>
        <source>Open as S&amp;tops</source>
        <translation type="unfinished">Als &amp;Register öffnen</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits</source>
        <translation type="unfinished">Mit 16 &amp;Bit laden</translation>
    </message>
    <message>
        <source>Load as Many Stops as &amp;Fit</source>
        <translation type="unfinished">So viele Register laden, wie &amp;passen</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits in Mono</source>
        <translation type="unfinished">Mit 16 &amp;Bit in Mono laden</translation>
    </message>
    <message numerus="yes">
        <source>%n stop(s) were not loaded</source>
        <translation type="unfinished">
            <numerusform>%n Register wurde nicht geladen</numerusform>
            <numerusform>%n Register wurden nicht geladen</numerusform>
        </translation>
    </message>
    <message>
        <source>This stop is being loaded. It sounds as soon as all its pipes are there.</source>
        <translation type="unfinished">Dieses Register wird geladen. Es erklingt, sobald alle seine Pfeifen da sind.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because the loading was stopped.</source>
        <translation type="unfinished">Dieses Register ist nicht geladen, weil das Laden beendet wurde.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because only the drawn stops were loaded.</source>
        <translation type="unfinished">Dieses Register ist nicht geladen, weil nur die gezogenen Register geladen wurden.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because it does not fit into the memory.</source>
        <translation type="unfinished">Dieses Register ist nicht geladen, weil es nicht in den Speicher passt.</translation>
    </message>
    <message>
        <source>None of the files of this stop can be used. The import report says why.</source>
        <translation type="unfinished">Keine der Dateien dieses Registers ist brauchbar. Der Importbericht sagt, warum.</translation>
    </message>
    <message>
        <source>Load Only the D&amp;rawn Stops</source>
        <translation type="unfinished">Nur die gezogenen &amp;Register laden</translation>
    </message>
</context>
<context>
    <name>deviceText</name>
    <message>
        <source>MIDI port %1</source>
        <translation type="unfinished">MIDI-Anschluss %1</translation>
    </message>
</context>
<context>
    <name>velmora::AboutBox</name>
    <message>
        <source>About Velmora</source>
        <translation type="unfinished">Über Velmora</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Plays keyboard instruments in historical and adaptive tunings.&lt;/p&gt;&lt;p&gt;Velmora uses FluidSynth, the Synthesis ToolKit and OpenAL Soft for sound, libsndfile and WavPack for samples, RtMidi for MIDI, and Qt %2 for its windows.&lt;/p&gt;&lt;p&gt;It is available under the MIT licence.&lt;/p&gt;</source>
        <translation type="unfinished">&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Spielt Tasteninstrumente in historischen und anpassungsfähigen Stimmungen.&lt;/p&gt;&lt;p&gt;Velmora verwendet FluidSynth, das Synthesis ToolKit und OpenAL Soft für den Klang, libsndfile und WavPack für Samples, RtMidi für MIDI und Qt %2 für seine Fenster.&lt;/p&gt;&lt;p&gt;Es steht unter der MIT-Lizenz.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>velmora::AdaptivePane</name>
    <message>
        <source>Correct within</source>
        <translation type="unfinished">Korrigieren innerhalb von</translation>
    </message>
    <message>
        <source>The last note of a chord may still mend the spelling of its first</source>
        <translation type="unfinished">Die letzte Note eines Akkords darf die Schreibung der ersten noch verbessern</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Tied to A</source>
        <translation type="unfinished">An A gebunden</translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished">Frei</translation>
    </message>
    <message>
        <source>Returns in silence</source>
        <translation type="unfinished">Kehrt in der Stille zurück</translation>
    </message>
    <message>
        <source>What becomes of the pitch where pure intervals lead it away: it is drawn back at once, stays there, or goes back while nothing sounds</source>
        <translation type="unfinished">Was aus der Tonhöhe wird, wenn reine Intervalle sie wegführen: Sie wird sogleich zurückgezogen, bleibt dort oder kehrt zurück, während nichts klingt</translation>
    </message>
    <message>
        <source>Drift:</source>
        <translation type="unfinished">Drift:</translation>
    </message>
    <message>
        <source>Pitch now:</source>
        <translation type="unfinished">Tonhöhe jetzt:</translation>
    </message>
</context>
<context>
    <name>velmora::AudioExport</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Instrument wird geladen</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation type="unfinished">Klang wird berechnet</translation>
    </message>
    <message>
        <source>There is not enough memory to load the instrument a second time.</source>
        <translation type="unfinished">Der Speicher reicht nicht aus, um das Instrument ein zweites Mal zu laden.</translation>
    </message>
    <message>
        <source>Rendering voice %1 of %2</source>
        <translation type="unfinished">Stimme %1 von %2 wird gerechnet</translation>
    </message>
</context>
<context>
    <name>velmora::CircleTab</name>
    <message>
        <source>Note</source>
        <translation type="unfinished">Ton</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">Cent</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinte</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Schwebungen/s</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Große Terz</translation>
    </message>
    <message>
        <source>Fifths and thirds</source>
        <translation type="unfinished">Quinten und Terzen</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation type="unfinished">Stufe</translation>
    </message>
    <message>
        <source>Nearest interval</source>
        <translation type="unfinished">Nächstes Intervall</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Von rein</translation>
    </message>
    <message>
        <source>Degrees of the scale</source>
        <translation type="unfinished">Stufen der Skala</translation>
    </message>
    <message>
        <source>Octave %1</source>
        <translation type="unfinished">Oktave %1</translation>
    </message>
    <message>
        <source>Octave of the beats</source>
        <translation type="unfinished">Oktave der Schwebungen</translation>
    </message>
    <message>
        <source>Middle C begins octave 4. An octave higher, everything beats twice as fast.</source>
        <translation type="unfinished">Das mittlere C beginnt die Oktave 4. Eine Oktave höher schwebt alles doppelt so schnell.</translation>
    </message>
    <message>
        <source>Cents from pure</source>
        <translation type="unfinished">Cent von rein</translation>
    </message>
    <message>
        <source>Beats per second</source>
        <translation type="unfinished">Schwebungen pro Sekunde</translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished">Tabelle</translation>
    </message>
    <message>
        <source>What the circle shows</source>
        <translation type="unfinished">Was der Kreis zeigt</translation>
    </message>
    <message>
        <source>%1 (sounds)</source>
        <translation type="unfinished">%1 (klingt)</translation>
    </message>
</context>
<context>
    <name>velmora::CircleView</name>
    <message>
        <source>Circle of the tuning</source>
        <translation type="unfinished">Kreis der Stimmung</translation>
    </message>
    <message>
        <source>Outside: the fifths. Inside: the major third above each note.
Drag a note outwards to raise it, and inwards to lower it.</source>
        <translation type="unfinished">Außen: die Quinten. Innen: die große Terz über jedem Ton.
Ziehen Sie einen Ton nach außen, um ihn zu erhöhen, und nach innen, um ihn zu erniedrigen.</translation>
    </message>
    <message>
        <source>The degrees of the scale, each with the nearest pure interval above the first</source>
        <translation type="unfinished">Die Stufen der Skala, jede mit dem nächsten reinen Intervall über der ersten</translation>
    </message>
</context>
<context>
    <name>velmora::ColorsPane</name>
    <message>
        <source>Keyboard keys</source>
        <translation type="unfinished">Tasten der Klaviatur</translation>
    </message>
    <message>
        <source>&amp;Played:</source>
        <translation type="unfinished">Ge&amp;spielt:</translation>
    </message>
    <message>
        <source>Keys that the sequence plays, or waits for in practice</source>
        <translation type="unfinished">Tasten, die das Stück spielt oder auf die es beim Üben wartet</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation type="unfinished">R&amp;ichtig:</translation>
    </message>
    <message>
        <source>Keys that you struck correctly</source>
        <translation type="unfinished">Tasten, die Sie richtig angeschlagen haben</translation>
    </message>
    <message>
        <source>&amp;Held:</source>
        <translation type="unfinished">&amp;Gehalten:</translation>
    </message>
    <message>
        <source>Keys that you keep holding</source>
        <translation type="unfinished">Tasten, die Sie weiter halten</translation>
    </message>
    <message>
        <source>&amp;Wrong:</source>
        <translation type="unfinished">Fals&amp;ch:</translation>
    </message>
    <message>
        <source>Keys that you struck by mistake</source>
        <translation type="unfinished">Tasten, die Sie versehentlich angeschlagen haben</translation>
    </message>
    <message>
        <source>Piano roll notes</source>
        <translation type="unfinished">Noten der Pianorolle</translation>
    </message>
    <message>
        <source>&amp;At rest:</source>
        <translation type="unfinished">In R&amp;uhe:</translation>
    </message>
    <message>
        <source>Notes that are not sounding</source>
        <translation type="unfinished">Noten, die nicht klingen</translation>
    </message>
    <message>
        <source>&amp;Sounding:</source>
        <translation type="unfinished">K&amp;lingend:</translation>
    </message>
    <message>
        <source>Notes at the play position</source>
        <translation type="unfinished">Noten an der Spielposition</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation type="unfinished">Ruhig</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation type="unfinished">Klassisch</translation>
    </message>
    <message>
        <source>Calm: soft colours that suit the theme of the desktop. Classic: bright colours on white and black</source>
        <translation type="unfinished">Ruhig: sanfte Farben, die zum Design des Desktops passen. Klassisch: kräftige Farben auf Weiß und Schwarz</translation>
    </message>
    <message>
        <source>Sch&amp;eme:</source>
        <translation type="unfinished">Far&amp;bschema:</translation>
    </message>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation type="unfinished">Auf Vorgaben &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Use the colours of the scheme again</source>
        <translation type="unfinished">Wieder die Farben des Schemas verwenden</translation>
    </message>
    <message>
        <source>Reduce motion</source>
        <translation type="unfinished">Bewegung verringern</translation>
    </message>
    <message>
        <source>Scroll the piano roll at once instead of gliding</source>
        <translation type="unfinished">Die Pianorolle springt, statt zu gleiten</translation>
    </message>
</context>
<context>
    <name>velmora::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Befehle</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 – %2</translation>
    </message>
    <message>
        <source>Find a command or a tuning</source>
        <translation type="unfinished">Befehl oder Stimmung suchen</translation>
    </message>
    <message>
        <source>Nothing has all these words.</source>
        <translation type="unfinished">Nichts enthält all diese Wörter.</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Stimmung</translation>
    </message>
    <message>
        <source>Tuning – %1</source>
        <translation type="unfinished">Stimmung – %1</translation>
    </message>
</context>
<context>
    <name>velmora::Commands</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
</context>
<context>
    <name>velmora::ComputerKeyboard</name>
    <message>
        <source>Letters play from %1</source>
        <translation type="unfinished">Die Buchstaben spielen ab %1</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleActions</name>
    <message>
        <source>Console</source>
        <translation type="unfinished">Spieltisch</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished">&amp;Setzer</translation>
    </message>
    <message>
        <source>Keep what is drawn under the registration button that is pressed next</source>
        <translation type="unfinished">Legt, was gezogen ist, auf den Registrierknopf, der als nächster gedrückt wird</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Auslöser</translation>
    </message>
    <message>
        <source>Push in every stop and coupler</source>
        <translation type="unfinished">Stößt alle Register und Koppeln ab</translation>
    </message>
    <message>
        <source>&amp;Tutti</source>
        <translation type="unfinished">&amp;Tutti</translation>
    </message>
    <message>
        <source>Draw everything; the next press returns to what was drawn before</source>
        <translation type="unfinished">Zieht alles; der nächste Druck kehrt zu dem zurück, was vorher gezogen war</translation>
    </message>
    <message>
        <source>&amp;Manuals…</source>
        <translation type="unfinished">&amp;Manuale…</translation>
    </message>
    <message>
        <source>Choose which MIDI channels and devices play the manuals and the pedals</source>
        <translation type="unfinished">Wählt, welche MIDI-Kanäle und Geräte die Manuale und das Pedal spielen</translation>
    </message>
    <message>
        <source>&amp;Registrations</source>
        <translation type="unfinished">&amp;Registrierungen</translation>
    </message>
    <message>
        <source>Registration %1</source>
        <translation type="unfinished">Registrierung %1</translation>
    </message>
    <message>
        <source>&amp;Keep as…</source>
        <translation type="unfinished">&amp;Merken als…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished">&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished">&amp;Entfernen</translation>
    </message>
    <message>
        <source>Keep Registration</source>
        <translation type="unfinished">Registrierung merken</translation>
    </message>
    <message>
        <source>Name of the registration:</source>
        <translation type="unfinished">Name der Registrierung:</translation>
    </message>
    <message>
        <source>Rename Registration</source>
        <translation type="unfinished">Registrierung umbenennen</translation>
    </message>
    <message>
        <source>New name of “%1”:</source>
        <translation type="unfinished">Neuer Name von „%1“:</translation>
    </message>
    <message>
        <source>There is another registration with the name “%1”.</source>
        <translation type="unfinished">Es gibt eine andere Registrierung mit dem Namen „%1“.</translation>
    </message>
</context>
<context>
    <name>velmora::ConsolePanel</name>
    <message>
        <source>Stops</source>
        <translation type="unfinished">Register</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleView</name>
    <message>
        <source>Find a stop</source>
        <translation type="unfinished">Register suchen</translation>
    </message>
    <message>
        <source>Swell:</source>
        <translation type="unfinished">Schweller:</translation>
    </message>
    <message>
        <source>Swell of %1</source>
        <translation type="unfinished">Schweller: %1</translation>
    </message>
    <message>
        <source>How far the swell of %1 is open</source>
        <translation type="unfinished">Wie weit der Schweller von %1 offen ist</translation>
    </message>
</context>
<context>
    <name>velmora::ControllerLane</name>
    <message>
        <source>Click to draw how %1 moves, and drag what is there. A click with the right button deletes it. What is shown belongs to the chosen channel.</source>
        <translation type="unfinished">Klicken zeichnet den Verlauf von „%1“, Ziehen verschiebt, was da ist. Ein Klick mit der rechten Taste löscht es. Gezeigt wird der gewählte Kanal.</translation>
    </message>
    <message>
        <source>Delete Controller</source>
        <translation type="unfinished">Controllerwert löschen</translation>
    </message>
    <message>
        <source>Move Controller</source>
        <translation type="unfinished">Controllerwert verschieben</translation>
    </message>
    <message>
        <source>Draw Controller</source>
        <translation type="unfinished">Controllerwert zeichnen</translation>
    </message>
</context>
<context>
    <name>velmora::Desktop</name>
    <message>
        <source>%1: unrecognised file type. Velmora recognises files by their extensions, such as .mid, .scl or .sf2.</source>
        <translation type="unfinished">%1: unbekannter Dateityp. Velmora erkennt Dateien an ihrer Endung wie .mid, .scl oder .sf2.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">Öffnen</translation>
    </message>
    <message>
        <source>Transposition: %1</source>
        <translation type="unfinished">Transposition: %1</translation>
    </message>
    <message>
        <source>The General MIDI player is silent because there is no SoundFont for it. Choose one in the preferences.</source>
        <translation type="unfinished">Der General-MIDI-Spieler ist stumm, weil es keinen SoundFont für ihn gibt. Wählen Sie einen in den Einstellungen.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>All supported files (%1);;Instruments (%2);;Tunings (%3);;Sequences (%4);;Sessions (%5);;All files (*)</source>
        <translation type="unfinished">Alle unterstützten Dateien (%1);;Instrumente (%2);;Stimmungen (%3);;Stücke (%4);;Sitzungen (%5);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation type="unfinished">Sitzung öffnen</translation>
    </message>
    <message>
        <source>Sessions (%1)</source>
        <translation type="unfinished">Sitzungen (%1)</translation>
    </message>
    <message>
        <source>Save Session</source>
        <translation type="unfinished">Sitzung speichern</translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished">Sitzung</translation>
    </message>
    <message>
        <source>Velmora ended while it was opening what was open last time. Open it again?</source>
        <translation type="unfinished">Velmora wurde beendet, während es öffnete, was beim letzten Mal offen war. Noch einmal öffnen?</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation type="unfinished">Noch einmal öffnen</translation>
    </message>
    <message>
        <source>Start Empty</source>
        <translation type="unfinished">Leer beginnen</translation>
    </message>
    <message>
        <source>Unsaved changes are not protected against a crash: %1</source>
        <translation type="unfinished">Nicht gespeicherte Änderungen sind nicht gegen einen Absturz gesichert: %1</translation>
    </message>
    <message>
        <source>Not everything that was open last time could be opened.
%1</source>
        <translation type="unfinished">Nicht alles, was beim letzten Mal offen war, ließ sich öffnen.
%1</translation>
    </message>
    <message>
        <source>%1 cannot be used as the General MIDI bank. %2 is used instead. Choose another SoundFont in the preferences.</source>
        <translation type="unfinished">%1 kann nicht als General-MIDI-Bank dienen. Stattdessen wird %2 verwendet. Wählen Sie in den Einstellungen einen anderen SoundFont.</translation>
    </message>
    <message>
        <source>Open Tuning</source>
        <translation type="unfinished">Stimmung öffnen</translation>
    </message>
    <message>
        <source>Tunings (%1);;All files (*)</source>
        <translation type="unfinished">Stimmungen (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Tuning</source>
        <translation type="unfinished">Stimmung speichern</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Skala</translation>
    </message>
    <message>
        <source>Open Instrument</source>
        <translation type="unfinished">Instrument öffnen</translation>
    </message>
    <message>
        <source>Instruments (%1);;All files (*)</source>
        <translation type="unfinished">Instrumente (%1);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>velmora::DivisionChooser</name>
    <message>
        <source>This &amp;keyboard plays:</source>
        <translation type="unfinished">Diese Klaviat&amp;ur spielt:</translation>
    </message>
    <message>
        <source>The manual that the keyboard on the screen and the letter keys play</source>
        <translation type="unfinished">Das Manual, das die Klaviatur auf dem Bildschirm und die Buchstabentasten spielen</translation>
    </message>
</context>
<context>
    <name>velmora::Drawknob</name>
    <message>
        <source>%1, volume %2 %
A click draws it or pushes it in, a right click changes its volume</source>
        <translation type="unfinished">%1, Lautstärke %2 %
Ein Klick zieht es oder stößt es ab, ein Rechtsklick ändert die Lautstärke</translation>
    </message>
    <message>
        <source>%1
A click draws it or pushes it in</source>
        <translation type="unfinished">%1
Ein Klick zieht es oder stößt es ab</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation type="unfinished">&amp;Lautstärke:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1 %</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Lautstärke von %1</translation>
    </message>
</context>
<context>
    <name>velmora::DriftMeter</name>
    <message>
        <source>How far the pitch has drifted from where it began</source>
        <translation type="unfinished">Wie weit sich die Tonhöhe vom Anfang entfernt hat</translation>
    </message>
    <message>
        <source>Drift: %1</source>
        <translation type="unfinished">Drift: %1</translation>
    </message>
    <message>
        <source>%1 cents</source>
        <translation type="unfinished">%1 Cent</translation>
    </message>
</context>
<context>
    <name>velmora::EditingActions</name>
    <message>
        <source>Edit</source>
        <translation type="unfinished">Bearbeiten</translation>
    </message>
    <message>
        <source>Select by Voice or Velocity…</source>
        <translation type="unfinished">Nach Stimme oder Anschlag auswählen…</translation>
    </message>
    <message>
        <source>Select the notes of a voice, of some keys and velocities</source>
        <translation type="unfinished">Die Noten einer Stimme und bestimmter Tasten und Anschlagstärken auswählen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished">Verdoppeln</translation>
    </message>
    <message>
        <source>Quantise…</source>
        <translation type="unfinished">Quantisieren…</translation>
    </message>
    <message>
        <source>Move notes to the grid</source>
        <translation type="unfinished">Noten auf das Raster verschieben</translation>
    </message>
    <message>
        <source>Split Notes at the Position</source>
        <translation type="unfinished">Noten an der Position teilen</translation>
    </message>
    <message>
        <source>Join Notes</source>
        <translation type="unfinished">Noten verbinden</translation>
    </message>
    <message>
        <source>Connect Notes (Legato)</source>
        <translation type="unfinished">Noten binden (Legato)</translation>
    </message>
    <message>
        <source>Move Notes an Octave Up</source>
        <translation type="unfinished">Noten eine Oktave höher</translation>
    </message>
    <message>
        <source>Move Notes an Octave Down</source>
        <translation type="unfinished">Noten eine Oktave tiefer</translation>
    </message>
    <message>
        <source>Nudge Notes Later</source>
        <translation type="unfinished">Noten ein wenig später</translation>
    </message>
    <message>
        <source>Nudge Notes Earlier</source>
        <translation type="unfinished">Noten ein wenig früher</translation>
    </message>
    <message>
        <source>Make Notes Louder</source>
        <translation type="unfinished">Noten lauter</translation>
    </message>
    <message>
        <source>Make Notes Softer</source>
        <translation type="unfinished">Noten leiser</translation>
    </message>
    <message>
        <source>Hear Notes</source>
        <translation type="unfinished">Noten hören</translation>
    </message>
    <message>
        <source>Sound notes that are pressed or drawn</source>
        <translation type="unfinished">Noten erklingen lassen, die angeklickt oder gezeichnet werden</translation>
    </message>
    <message>
        <source>Drag Selects Notes</source>
        <translation type="unfinished">Ziehen wählt Noten aus</translation>
    </message>
    <message>
        <source>Let a drag across an empty place select notes instead of a time</source>
        <translation type="unfinished">Lässt Ziehen über eine leere Stelle Noten statt einer Zeit auswählen</translation>
    </message>
</context>
<context>
    <name>velmora::ExportProgress</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Instrument wird geladen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Abbrechen</translation>
    </message>
    <message>
        <source>Export Audio</source>
        <translation type="unfinished">Audio exportieren</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 wurde exportiert</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 wurde nicht exportiert. %2</translation>
    </message>
</context>
<context>
    <name>velmora::FallingNotes</name>
    <message>
        <source>Falling notes</source>
        <translation type="unfinished">Fallende Noten</translation>
    </message>
</context>
<context>
    <name>velmora::FifthsEditor</name>
    <message>
        <source>%1–%2</source>
        <translation type="unfinished">%1–%2</translation>
    </message>
    <message>
        <source>syntonic (21.5 cents)</source>
        <translation type="unfinished">syntonisch (21,5 Cent)</translation>
    </message>
    <message>
        <source>Pythagorean (23.5 cents)</source>
        <translation type="unfinished">pythagoreisch (23,5 Cent)</translation>
    </message>
    <message>
        <source> comma</source>
        <translation type="unfinished"> Komma</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished">Einheit:</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished">Komma</translation>
    </message>
    <message>
        <source>By which part of the comma this fifth is narrower than a pure one</source>
        <translation type="unfinished">Um welchen Teil des Kommas diese Quinte enger als eine reine ist</translation>
    </message>
    <message>
        <source>Takes the rest:</source>
        <translation type="unfinished">Nimmt den Rest auf:</translation>
    </message>
    <message>
        <source>The fifths of this tuning are no parts of a comma. A change here replaces them all.</source>
        <translation type="unfinished">Die Quinten dieser Stimmung sind keine Teile eines Kommas. Eine Änderung hier ersetzt sie alle.</translation>
    </message>
    <message>
        <source>The fifth %1 differs from a pure one by %2 cents.</source>
        <translation type="unfinished">Die Quinte %1 weicht um %2 Cent von einer reinen ab.</translation>
    </message>
</context>
<context>
    <name>velmora::FitDialog</name>
    <message>
        <source>The notes with the bars and beats that were found</source>
        <translation type="unfinished">Die Noten mit den gefundenen Takten und Schlägen</translation>
    </message>
    <message>
        <source>Fit to Grid</source>
        <translation type="unfinished">Ans Raster anpassen</translation>
    </message>
    <message>
        <source>These bars and beats were found. Correct them if they are not yours; the piece is moved to them only then.</source>
        <translation type="unfinished">Diese Takte und Schläge wurden gefunden. Berichtigen Sie sie, wenn es nicht Ihre sind; erst dann wird das Stück danach ausgerichtet.</translation>
    </message>
    <message>
        <source>&amp;Half as Fast</source>
        <translation type="unfinished">&amp;Halb so schnell</translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation type="unfinished">&amp;Doppelt so schnell</translation>
    </message>
    <message>
        <source>Tempo:</source>
        <translation type="unfinished">Tempo:</translation>
    </message>
    <message>
        <source>&amp;Beats in a bar:</source>
        <translation type="unfinished">&amp;Schläge im Takt:</translation>
    </message>
    <message>
        <source>&amp;First bar begins at beat:</source>
        <translation type="unfinished">&amp;Erster Takt beginnt mit Schlag:</translation>
    </message>
    <message>
        <source>%1 beats per minute</source>
        <translation type="unfinished">%1 Schläge pro Minute</translation>
    </message>
    <message>
        <source>Velmora finds a tempo in eight notes or more, over four hours at most.</source>
        <translation type="unfinished">Velmora findet ein Tempo in acht oder mehr Noten, die zusammen höchstens vier Stunden dauern.</translation>
    </message>
</context>
<context>
    <name>velmora::GlideBar</name>
    <message>
        <source>Only new notes</source>
        <translation type="unfinished">Nur neue Noten</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>How long notes that sound take to reach their new pitch when the tuning changes; with 0 they jump</source>
        <translation type="unfinished">Wie lange klingende Noten brauchen, um ihre neue Tonhöhe zu erreichen, wenn sich die Stimmung ändert; bei 0 springen sie</translation>
    </message>
    <message>
        <source>Notes that sound keep their pitch until they are struck again</source>
        <translation type="unfinished">Klingende Noten behalten ihre Tonhöhe, bis sie neu angeschlagen werden</translation>
    </message>
    <message>
        <source>Glide:</source>
        <translation type="unfinished">Gleiten:</translation>
    </message>
</context>
<context>
    <name>velmora::GuideWindow</name>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Handbuch</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation type="unfinished">Handbuch</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished">Inhalt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished">Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished">Vor</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished">Vorherige Stelle</translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished">Nächste Stelle</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation type="unfinished">&amp;Suchen:</translation>
    </message>
    <message>
        <source>Find words in the guide (%1)</source>
        <translation type="unfinished">Wörter im Handbuch suchen (%1)</translation>
    </message>
    <message>
        <source>“%1” is not in the guide.</source>
        <translation type="unfinished">„%1“ steht nicht im Handbuch.</translation>
    </message>
    <message>
        <source>No program could open %1.</source>
        <translation type="unfinished">Kein Programm konnte %1 öffnen.</translation>
    </message>
</context>
<context>
    <name>velmora::HelpButton</name>
    <message>
        <source>Help</source>
        <translation type="unfinished">Hilfe</translation>
    </message>
    <message>
        <source>Show what the guide says about this</source>
        <translation type="unfinished">Zeigt, was das Handbuch dazu sagt</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentMenu</name>
    <message>
        <source>Instrument: %1</source>
        <translation type="unfinished">Instrument: %1</translation>
    </message>
    <message>
        <source>%1
Choose another instrument, open or unload one</source>
        <translation type="unfinished">%1
Ein anderes Instrument wählen, öffnen oder entladen</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">Instrument ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Unload %1</source>
        <translation type="unfinished">%1 &amp;entladen</translation>
    </message>
    <message>
        <source>Import &amp;Report of %1…</source>
        <translation type="unfinished">&amp;Importbericht zu %1…</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentOpener</name>
    <message>
        <source>%1: Velmora cannot play instruments of this format. Convert it to a SoundFont (.sf2), then open that.</source>
        <translation type="unfinished">%1: Velmora kann Instrumente dieses Formats nicht spielen. Wandeln Sie es in einen SoundFont (.sf2) um, und öffnen Sie diesen.</translation>
    </message>
    <message>
        <source>%1: %2; see Import Report in the Instruments window</source>
        <translation type="unfinished">%1: %2; siehe „Importbericht“ im Fenster „Instrumente“</translation>
    </message>
    <message numerus="yes">
        <source>%1 holds %n instrument(s). The Instrument menu lists them.</source>
        <translation type="unfinished">
            <numerusform>%1 enthält %n Instrument. Das Menü Instrument führt es auf.</numerusform>
            <numerusform>%1 enthält %n Instrumente. Das Menü Instrument führt sie auf.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentPanel</name>
    <message>
        <source>Memory used by the samples of this instrument</source>
        <translation type="unfinished">Speicher, den die Samples dieses Instruments belegen</translation>
    </message>
    <message>
        <source>Usage:  %1</source>
        <translation type="unfinished">Belegt:  %1</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrument</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsModel</name>
    <message>
        <source>Unloaded: select it to load it again</source>
        <translation type="unfinished">Entladen: wählen Sie es, um es wieder zu laden</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrument</translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished">Größe</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsWindow</name>
    <message>
        <source>&amp;Unload</source>
        <translation type="unfinished">&amp;Entladen</translation>
    </message>
    <message>
        <source>Import &amp;Report…</source>
        <translation type="unfinished">&amp;Importbericht…</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation type="unfinished">Instrumente</translation>
    </message>
    <message>
        <source>Loaded instruments</source>
        <translation type="unfinished">Geladene Instrumente</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Einen SoundFont, eine GigaSampler-Bank oder eine Orgel öffnen</translation>
    </message>
    <message>
        <source>Free the memory that the samples of this instrument use</source>
        <translation type="unfinished">Den Speicher freigeben, den die Samples dieses Instruments belegen</translation>
    </message>
    <message>
        <source>Show what was imported and what was left out</source>
        <translation type="unfinished">Zeigt, was importiert und was ausgelassen wurde</translation>
    </message>
</context>
<context>
    <name>velmora::Interval</name>
    <message>
        <source>Unison</source>
        <translation type="unfinished">Prime</translation>
    </message>
    <message>
        <source>Semitone</source>
        <translation type="unfinished">Halbton</translation>
    </message>
    <message>
        <source>Small whole tone</source>
        <translation type="unfinished">Kleiner Ganzton</translation>
    </message>
    <message>
        <source>Whole tone</source>
        <translation type="unfinished">Ganzton</translation>
    </message>
    <message>
        <source>Septimal whole tone</source>
        <translation type="unfinished">Septimaler Ganzton</translation>
    </message>
    <message>
        <source>Septimal minor third</source>
        <translation type="unfinished">Septimale kleine Terz</translation>
    </message>
    <message>
        <source>Minor third</source>
        <translation type="unfinished">Kleine Terz</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Große Terz</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation type="unfinished">Quarte</translation>
    </message>
    <message>
        <source>Small tritone</source>
        <translation type="unfinished">Kleiner Tritonus</translation>
    </message>
    <message>
        <source>Large tritone</source>
        <translation type="unfinished">Großer Tritonus</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinte</translation>
    </message>
    <message>
        <source>Minor sixth</source>
        <translation type="unfinished">Kleine Sexte</translation>
    </message>
    <message>
        <source>Major sixth</source>
        <translation type="unfinished">Große Sexte</translation>
    </message>
    <message>
        <source>Septimal major sixth</source>
        <translation type="unfinished">Septimale große Sexte</translation>
    </message>
    <message>
        <source>Natural seventh</source>
        <translation type="unfinished">Naturseptime</translation>
    </message>
    <message>
        <source>Small minor seventh</source>
        <translation type="unfinished">Enge kleine Septime</translation>
    </message>
    <message>
        <source>Minor seventh</source>
        <translation type="unfinished">Kleine Septime</translation>
    </message>
    <message>
        <source>Major seventh</source>
        <translation type="unfinished">Große Septime</translation>
    </message>
    <message>
        <source>Octave</source>
        <translation type="unfinished">Oktave</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1-Dur</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1-Moll</translation>
    </message>
    <message>
        <source>%1 diminished</source>
        <translation type="unfinished">%1 vermindert</translation>
    </message>
    <message>
        <source>%1 augmented</source>
        <translation type="unfinished">%1 übermäßig</translation>
    </message>
    <message>
        <source>%1 suspended fourth</source>
        <translation type="unfinished">%1 mit Quartvorhalt</translation>
    </message>
    <message>
        <source>%1 suspended second</source>
        <translation type="unfinished">%1 mit Sekundvorhalt</translation>
    </message>
    <message>
        <source>%1 dominant seventh</source>
        <translation type="unfinished">%1 Dominantseptakkord</translation>
    </message>
    <message>
        <source>%1 major seventh</source>
        <translation type="unfinished">%1 großer Septakkord</translation>
    </message>
    <message>
        <source>%1 minor seventh</source>
        <translation type="unfinished">%1 Mollseptakkord</translation>
    </message>
    <message>
        <source>%1 minor with a major seventh</source>
        <translation type="unfinished">%1-Moll mit großer Septime</translation>
    </message>
    <message>
        <source>%1 half-diminished seventh</source>
        <translation type="unfinished">%1 halbverminderter Septakkord</translation>
    </message>
    <message>
        <source>%1 diminished seventh</source>
        <translation type="unfinished">%1 verminderter Septakkord</translation>
    </message>
    <message>
        <source>%1 augmented sixth</source>
        <translation type="unfinished">%1 übermäßiger Sextakkord</translation>
    </message>
    <message>
        <source>%1, root position</source>
        <translation type="unfinished">%1, Grundstellung</translation>
    </message>
    <message>
        <source>%1, first inversion</source>
        <translation type="unfinished">%1, erste Umkehrung</translation>
    </message>
    <message>
        <source>%1, second inversion</source>
        <translation type="unfinished">%1, zweite Umkehrung</translation>
    </message>
    <message>
        <source>%1, third inversion</source>
        <translation type="unfinished">%1, dritte Umkehrung</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation type="unfinished">%1 %2/%3</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n octave(s)</source>
        <translation type="unfinished">
            <numerusform>%1 und %n Oktave</numerusform>
            <numerusform>%1 und %n Oktaven</numerusform>
        </translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">keine</translation>
    </message>
    <message>
        <source>nearly pure</source>
        <translation type="unfinished">fast rein</translation>
    </message>
    <message>
        <source>tempered</source>
        <translation type="unfinished">temperiert</translation>
    </message>
    <message>
        <source>rough</source>
        <translation type="unfinished">rau</translation>
    </message>
</context>
<context>
    <name>velmora::KeyRuler</name>
    <message>
        <source>Key names</source>
        <translation type="unfinished">Tastennamen</translation>
    </message>
</context>
<context>
    <name>velmora::KeyboardView</name>
    <message>
        <source>Piano keyboard</source>
        <translation type="unfinished">Klaviatur</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation type="unfinished">falsch</translation>
    </message>
    <message>
        <source>to be played</source>
        <translation type="unfinished">zu spielen</translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished">richtig</translation>
    </message>
    <message>
        <source>held</source>
        <translation type="unfinished">gehalten</translation>
    </message>
</context>
<context>
    <name>velmora::Lanes</name>
    <message>
        <source>&amp;No Lane</source>
        <translation type="unfinished">&amp;Keine Spur</translation>
    </message>
    <message>
        <source>&amp;Velocity</source>
        <translation type="unfinished">&amp;Anschlagstärken</translation>
    </message>
    <message>
        <source>&amp;Tempo and Signatures</source>
        <translation type="unfinished">&amp;Tempo und Vorzeichnung</translation>
    </message>
    <message>
        <source>Sustain Pedal</source>
        <translation type="unfinished">Haltepedal</translation>
    </message>
    <message>
        <source>Pitch Wheel</source>
        <translation type="unfinished">Tonhöhenrad</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation type="unfinished">Modulation</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation type="unfinished">Ausdruck</translation>
    </message>
</context>
<context>
    <name>velmora::LanguageFields</name>
    <message>
        <source>The language changes when you start Velmora again.</source>
        <translation type="unfinished">Die Sprache wechselt, wenn Sie Velmora neu starten.</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished">Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>The language of all menus and windows</source>
        <translation type="unfinished">Die Sprache aller Menüs und Fenster</translation>
    </message>
    <message>
        <source>As usual in the language</source>
        <translation type="unfinished">Wie in der Sprache üblich</translation>
    </message>
    <message>
        <source>International: C D E F G A B</source>
        <translation type="unfinished">International: C D E F G A B</translation>
    </message>
    <message>
        <source>German: C D E F G A H</source>
        <translation type="unfinished">Deutsch: C D E F G A H</translation>
    </message>
    <message>
        <source>Solfège: Do Re Mi Fa Sol La Si</source>
        <translation type="unfinished">Solmisation: Do Re Mi Fa Sol La Si</translation>
    </message>
    <message>
        <source>The names of the keys and notes in all windows</source>
        <translation type="unfinished">Die Namen der Tasten und Noten in allen Fenstern</translation>
    </message>
    <message>
        <source>L&amp;anguage:</source>
        <translation type="unfinished">S&amp;prache:</translation>
    </message>
    <message>
        <source>Not&amp;e names:</source>
        <translation type="unfinished">N&amp;otennamen:</translation>
    </message>
</context>
<context>
    <name>velmora::LearnMenu</name>
    <message>
        <source>&amp;Learn MIDI Controller…</source>
        <translation type="unfinished">MIDI-Regler &amp;lernen…</translation>
    </message>
    <message>
        <source>Learn MIDI Controller for %1…</source>
        <translation type="unfinished">MIDI-Regler für %1 lernen…</translation>
    </message>
    <message>
        <source>&amp;Forget MIDI Controller</source>
        <translation type="unfinished">MIDI-Regler &amp;vergessen</translation>
    </message>
    <message>
        <source>Forget MIDI Controller for %1</source>
        <translation type="unfinished">MIDI-Regler für %1 vergessen</translation>
    </message>
    <message>
        <source>Learn MIDI Controller</source>
        <translation type="unfinished">MIDI-Regler lernen</translation>
    </message>
    <message>
        <source>Waiting for a MIDI controller for “%1”.
Move a controller, or press a button or a key, on a MIDI device.</source>
        <translation type="unfinished">Warte auf einen MIDI-Regler für „%1“.
Bewegen Sie an einem MIDI-Gerät einen Regler, oder drücken Sie einen Knopf oder eine Taste.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>MIDI key %1 on channel %2</source>
        <translation type="unfinished">MIDI-Taste %1 auf Kanal %2</translation>
    </message>
    <message>
        <source>MIDI controller %1 on channel %2</source>
        <translation type="unfinished">MIDI-Regler %1 auf Kanal %2</translation>
    </message>
</context>
<context>
    <name>velmora::LevelMeter</name>
    <message>
        <source>Level</source>
        <translation type="unfinished">Pegel</translation>
    </message>
</context>
<context>
    <name>velmora::LyricsPanel</name>
    <message>
        <source>Lyrics</source>
        <translation type="unfinished">Gesangstext</translation>
    </message>
</context>
<context>
    <name>velmora::ManualsDialog</name>
    <message>
        <source>Manuals</source>
        <translation type="unfinished">Manuale</translation>
    </message>
    <message>
        <source>What no line names plays the lowest manual. The channels of pieces count as those of all devices.</source>
        <translation type="unfinished">Was keine Zeile nennt, spielt das unterste Manual. Die Kanäle von Stücken zählen wie die aller Geräte.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Gerät</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Kanal</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation type="unfinished">Spielt</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation type="unfinished">Zeile &amp;hinzufügen</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation type="unfinished">Alle Geräte</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Entfernen</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation type="unfinished">Alle Kanäle</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation type="unfinished">Kanal %1</translation>
    </message>
</context>
<context>
    <name>velmora::MetersWindow</name>
    <message>
        <source>Meters</source>
        <translation type="unfinished">Messwerte</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished">%1:</translation>
    </message>
</context>
<context>
    <name>velmora::MidiPane</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 von %2</translation>
    </message>
    <message>
        <source>Connect a MIDI device, and it appears here.</source>
        <translation type="unfinished">Schließen Sie ein MIDI-Gerät an, dann erscheint es hier.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Gerät</translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished">An</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Kanal</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished">Tasten</translation>
    </message>
    <message>
        <source>MIDI devices</source>
        <translation type="unfinished">MIDI-Geräte</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation type="unfinished">%1 (nicht verbunden)</translation>
    </message>
    <message>
        <source>Whether the device is heard</source>
        <translation type="unfinished">Ob das Gerät zu hören ist</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Alle</translation>
    </message>
    <message>
        <source>The MIDI channel to listen to</source>
        <translation type="unfinished">Der MIDI-Kanal, auf den gehört wird</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> Halbtöne</translation>
    </message>
    <message>
        <source>How much higher the keys sound</source>
        <translation type="unfinished">Um wie viel höher die Tasten klingen</translation>
    </message>
</context>
<context>
    <name>velmora::NowTab</name>
    <message>
        <source>Notes</source>
        <translation type="unfinished">Töne</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished">Intervall</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">Cent</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Von rein</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Schwebungen/s</translation>
    </message>
    <message>
        <source>Sounding intervals</source>
        <translation type="unfinished">Klingende Intervalle</translation>
    </message>
    <message>
        <source>Show on the keys how pure they are</source>
        <translation type="unfinished">Auf den Tasten zeigen, wie rein sie sind</translation>
    </message>
    <message>
        <source>Colour each sounding key by its interval that is farthest from pure with another one</source>
        <translation type="unfinished">Jede klingende Taste nach ihrem Intervall mit einer anderen färben, das am weitesten von rein entfernt ist</translation>
    </message>
    <message>
        <source>Play a chord</source>
        <translation type="unfinished">Spielen Sie einen Akkord</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <translation type="unfinished">%1–%2</translation>
    </message>
    <message>
        <source>The music centres on %1 (%2 fifths from C).</source>
        <translation type="unfinished">Die Musik bewegt sich um %1 (%2 Quinten von C).</translation>
    </message>
    <message>
        <source>%1, not %2: %3 fifths from the centre instead of %4</source>
        <translation type="unfinished">%1, nicht %2: %3 Quinten von der Mitte statt %4</translation>
    </message>
    <message>
        <source>Each key keeps its usual spelling until another one is forced.</source>
        <translation type="unfinished">Jede Taste behält ihre übliche Schreibweise, bis eine andere erzwungen wird.</translation>
    </message>
    <message>
        <source>Drift from the start: %1 cents</source>
        <translation type="unfinished">Abweichung vom Anfang: %1 Cent</translation>
    </message>
</context>
<context>
    <name>velmora::OutlyingNotes</name>
    <message>
        <source>The keyboard does not show these keys. Click to go to the first note.</source>
        <translation type="unfinished">Die Klaviatur zeigt diese Tasten nicht. Klicken Sie, um zur ersten Note zu gehen.</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) below %1</source>
        <translation type="unfinished">
            <numerusform>%n Note unter %1</numerusform>
            <numerusform>%n Noten unter %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) above %1</source>
        <translation type="unfinished">
            <numerusform>%n Note über %1</numerusform>
            <numerusform>%n Noten über %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::PlayingControls</name>
    <message>
        <source>Transpose down (Ctrl+Shift+Down)</source>
        <translation type="unfinished">Tiefer transponieren (Strg+Umschalt+Ab)</translation>
    </message>
    <message>
        <source>Transpose up (Ctrl+Shift+Up)</source>
        <translation type="unfinished">Höher transponieren (Strg+Umschalt+Auf)</translation>
    </message>
    <message>
        <source>Linear touch</source>
        <translation type="unfinished">Linearer Anschlag</translation>
    </message>
    <message>
        <source>Soft touch</source>
        <translation type="unfinished">Weicher Anschlag</translation>
    </message>
    <message>
        <source>Hard touch</source>
        <translation type="unfinished">Harter Anschlag</translation>
    </message>
    <message>
        <source>Fixed touch</source>
        <translation type="unfinished">Fester Anschlag</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Anschlag</translation>
    </message>
    <message>
        <source>How loud your touch on a MIDI keyboard sounds: soft makes a light touch louder, hard asks for a strong one, fixed ignores the touch</source>
        <translation type="unfinished">Wie laut Ihr Anschlag auf einem MIDI-Keyboard klingt: Weich macht einen leichten Anschlag lauter, hart verlangt einen kräftigen, fest beachtet den Anschlag nicht</translation>
    </message>
    <message>
        <source>Transposition</source>
        <translation type="unfinished">Transposition</translation>
    </message>
    <message>
        <source>The transposition of the MIDI keyboards in semitones</source>
        <translation type="unfinished">Die Transposition der MIDI-Keyboards in Halbtönen</translation>
    </message>
    <message>
        <source>semitones</source>
        <translation type="unfinished">Halbtöne</translation>
    </message>
</context>
<context>
    <name>velmora::PlayingPane</name>
    <message>
        <source>How much higher than written the keys of MIDI devices sound</source>
        <translation type="unfinished">Um wie viel höher als notiert die Tasten der MIDI-Geräte klingen</translation>
    </message>
    <message>
        <source>How far the pitch wheel bends up and down; with 0 it does nothing</source>
        <translation type="unfinished">Wie weit das Tonhöhenrad nach oben und unten zieht; mit 0 bewirkt es nichts</translation>
    </message>
    <message>
        <source>Pl&amp;ain reading of MIDI devices</source>
        <translation type="unfinished">MIDI-Geräte s&amp;chlicht lesen</translation>
    </message>
    <message>
        <source>Linear: as the keyboard sends it</source>
        <translation type="unfinished">Linear: wie das Keyboard ihn sendet</translation>
    </message>
    <message>
        <source>Soft: a light touch is louder</source>
        <translation type="unfinished">Weich: ein leichter Anschlag ist lauter</translation>
    </message>
    <message>
        <source>Hard: only a strong touch is loud</source>
        <translation type="unfinished">Hart: nur ein kräftiger Anschlag ist laut</translation>
    </message>
    <message>
        <source>Fixed: always the same</source>
        <translation type="unfinished">Fest: immer gleich</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Anschlag</translation>
    </message>
    <message>
        <source>Only notes and volumes count: no pedals, wheels, programs or learned controllers, no touch and no transposition</source>
        <translation type="unfinished">Nur Noten und Lautstärken zählen: keine Pedale, Räder, Programme oder gelernten Regler, kein Anschlag und keine Transposition</translation>
    </message>
    <message>
        <source>&amp;Touch:</source>
        <translation type="unfinished">A&amp;nschlag:</translation>
    </message>
    <message>
        <source>T&amp;ransposition:</source>
        <translation type="unfinished">T&amp;ransposition:</translation>
    </message>
    <message>
        <source>Pitch &amp;wheel:</source>
        <translation type="unfinished">Tonhöhenra&amp;d:</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> Halbtöne</translation>
    </message>
    <message>
        <source>Correct the ban&amp;k&apos;s own tuning</source>
        <translation type="unfinished">Ei&amp;gene Verstimmung der Bank korrigieren</translation>
    </message>
    <message>
        <source>Keys that a SoundFont has out of tune are measured when a program is first used, and corrected</source>
        <translation type="unfinished">Tasten, die in einem SoundFont verstimmt sind, werden beim ersten Gebrauch eines Programms gemessen und korrigiert</translation>
    </message>
</context>
<context>
    <name>velmora::PracticePanel</name>
    <message>
        <source> %</source>
        <comment>percent</comment>
        <translation type="unfinished"> %</translation>
    </message>
    <message>
        <source>Slow down after mistakes</source>
        <translation type="unfinished">Nach Fehlern langsamer</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Repeat bars</source>
        <translation type="unfinished">Takte wiederholen</translation>
    </message>
    <message>
        <source>Show falling notes</source>
        <translation type="unfinished">Fallende Noten zeigen</translation>
    </message>
    <message>
        <source>Both hands</source>
        <translation type="unfinished">Beide Hände</translation>
    </message>
    <message>
        <source>Right hand</source>
        <translation type="unfinished">Rechte Hand</translation>
    </message>
    <message>
        <source>Left hand</source>
        <translation type="unfinished">Linke Hand</translation>
    </message>
    <message>
        <source>The lowest key of the right hand</source>
        <translation type="unfinished">Die tiefste Taste der rechten Hand</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Stimmen</translation>
    </message>
    <message>
        <source>The voices that you play; the others play along</source>
        <translation type="unfinished">Die Stimmen, die Sie spielen; die anderen spielen mit</translation>
    </message>
    <message>
        <source>What a pass without a mistake adds to the speed</source>
        <translation type="unfinished">Um wie viel das Tempo nach einem fehlerfreien Durchgang steigt</translation>
    </message>
    <message>
        <source>How early a key may be, and how long a chord may be rolled</source>
        <translation type="unfinished">Wie früh eine Taste sein darf und wie lange ein Akkord gebrochen werden darf</translation>
    </message>
    <message>
        <source>to</source>
        <comment>bars</comment>
        <translation type="unfinished">bis</translation>
    </message>
    <message>
        <source>First bar</source>
        <translation type="unfinished">Erster Takt</translation>
    </message>
    <message>
        <source>Last bar</source>
        <translation type="unfinished">Letzter Takt</translation>
    </message>
    <message>
        <source>Play:</source>
        <translation type="unfinished">Spielen:</translation>
    </message>
    <message>
        <source>Split at:</source>
        <translation type="unfinished">Trennen bei:</translation>
    </message>
    <message>
        <source>Voices:</source>
        <translation type="unfinished">Stimmen:</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation type="unfinished">Tempo:</translation>
    </message>
    <message>
        <source>Faster by:</source>
        <translation type="unfinished">Schneller um:</translation>
    </message>
    <message>
        <source>Tolerance:</source>
        <translation type="unfinished">Toleranz:</translation>
    </message>
    <message>
        <source>Bars:</source>
        <translation type="unfinished">Takte:</translation>
    </message>
    <message>
        <source>There are no notes to practise. Choose other voices, another hand or other bars.</source>
        <translation type="unfinished">Es gibt keine Noten zum Üben. Wählen Sie andere Stimmen, eine andere Hand oder andere Takte.</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Stimme %1</translation>
    </message>
    <message>
        <source>Stop Practising</source>
        <translation type="unfinished">Üben beenden</translation>
    </message>
    <message>
        <source>Practise</source>
        <translation type="unfinished">Üben</translation>
    </message>
    <message>
        <source>Wait for missing keys</source>
        <translation type="unfinished">Auf fehlende Tasten warten</translation>
    </message>
    <message>
        <source>If it does not wait, the piece goes on, and what you leave out is missed</source>
        <translation type="unfinished">Ohne Warten geht das Stück weiter, und was Sie auslassen, zählt als verpasst</translation>
    </message>
    <message>
        <source>Right: %1, wrong: %2, missed: %3, passes: %4</source>
        <translation type="unfinished">Richtig: %1, falsch: %2, verpasst: %3, Durchgänge: %4</translation>
    </message>
</context>
<context>
    <name>velmora::PracticePicture</name>
    <message>
        <source>early</source>
        <translation type="unfinished">früh</translation>
    </message>
    <message>
        <source>late</source>
        <translation type="unfinished">spät</translation>
    </message>
    <message>
        <source>How early or late the keys were, in ms</source>
        <translation type="unfinished">Wie früh oder spät die Tasten waren, in ms</translation>
    </message>
    <message>
        <source>Right, wrong (hatched) and missed (empty) keys by bar</source>
        <translation type="unfinished">Richtige, falsche (schraffierte) und verpasste (leere) Tasten je Takt</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeResults</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Unbenannt</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>The result of the practice was not kept: %1</source>
        <translation type="unfinished">Das Ergebnis des Übens wurde nicht behalten: %1</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished">Bild speichern</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Üben</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeWindow</name>
    <message>
        <source>Practice sessions</source>
        <translation type="unfinished">Übungen</translation>
    </message>
    <message>
        <source>Result by bar and by time</source>
        <translation type="unfinished">Ergebnis nach Takt und Zeit</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation type="unfinished">&amp;Bild speichern…</translation>
    </message>
    <message>
        <source>Practice: %1</source>
        <translation type="unfinished">Üben: %1</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <comment>a time, a speed in percent</comment>
        <translation type="unfinished">%1 mit %2 %</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms early.</source>
        <translation type="unfinished">Meist waren die Tasten etwa %1 ms zu früh.</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms late.</source>
        <translation type="unfinished">Meist waren die Tasten etwa %1 ms zu spät.</translation>
    </message>
    <message>
        <source>Right keys: %1 (%2 early, %3 late), wrong keys: %4, missed keys: %5. Passes: %6, without a mistake: %7.</source>
        <translation type="unfinished">Richtige Tasten: %1 (%2 früh, %3 spät), falsche Tasten: %4, verpasste Tasten: %5. Durchgänge: %6, ohne Fehler: %7.</translation>
    </message>
</context>
<context>
    <name>velmora::PreferencesWindow</name>
    <message>
        <source> px</source>
        <translation type="unfinished"> px</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished">Einstellungen</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation type="unfinished">Bereiche</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished">&amp;Allgemein</translation>
    </message>
    <message>
        <source>C&amp;olors</source>
        <translation type="unfinished">&amp;Farben</translation>
    </message>
    <message>
        <source>&amp;MIDI</source>
        <translation type="unfinished">&amp;MIDI</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation type="unfinished">&amp;Klang</translation>
    </message>
    <message>
        <source>Key &amp;width:</source>
        <translation type="unfinished">Tasten&amp;breite:</translation>
    </message>
    <message>
        <source>The width of a semitone on the keyboard and in the piano roll</source>
        <translation type="unfinished">Die Breite eines Halbtons auf der Klaviatur und in der Pianorolle</translation>
    </message>
    <message>
        <source>&amp;Step height:</source>
        <translation type="unfinished">Schritt&amp;höhe:</translation>
    </message>
    <message>
        <source>The height of a step, the distance between grid lines, in the piano roll</source>
        <translation type="unfinished">Die Höhe eines Schritts, des Abstands der Rasterlinien, in der Pianorolle</translation>
    </message>
    <message>
        <source>&amp;Lowest key:</source>
        <translation type="unfinished">&amp;Tiefste Taste:</translation>
    </message>
    <message>
        <source>The first key of the keyboard: a note name, such as A0, or a MIDI key number</source>
        <translation type="unfinished">Die erste Taste der Klaviatur: ein Notenname wie A0 oder die Nummer einer MIDI-Taste</translation>
    </message>
    <message>
        <source>&amp;Highest key:</source>
        <translation type="unfinished">Hö&amp;chste Taste:</translation>
    </message>
    <message>
        <source>The last key of the keyboard: a note name, such as C8, or a MIDI key number</source>
        <translation type="unfinished">Die letzte Taste der Klaviatur: ein Notenname wie C8 oder die Nummer einer MIDI-Taste</translation>
    </message>
    <message>
        <source>Show note &amp;names on the C keys</source>
        <translation type="unfinished">&amp;Notennamen auf den C-Tasten zeigen</translation>
    </message>
    <message>
        <source>General MIDI bank:</source>
        <translation type="unfinished">General-MIDI-Bank:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation type="unfinished">Vorgabe des Systems</translation>
    </message>
    <message>
        <source>General MIDI bank</source>
        <translation type="unfinished">General-MIDI-Bank</translation>
    </message>
    <message>
        <source>Choose a SoundFont for the General MIDI player</source>
        <translation type="unfinished">Einen SoundFont für den General-MIDI-Spieler wählen</translation>
    </message>
    <message>
        <source>Use &amp;Default</source>
        <translation type="unfinished">&amp;Vorgabe verwenden</translation>
    </message>
    <message>
        <source>Use the system&apos;s General MIDI bank</source>
        <translation type="unfinished">Die General-MIDI-Bank des Systems verwenden</translation>
    </message>
    <message>
        <source>Choose a General MIDI Bank</source>
        <translation type="unfinished">General-MIDI-Bank wählen</translation>
    </message>
    <message>
        <source>SoundFont banks (*.sf2 *.sf3)</source>
        <translation type="unfinished">SoundFont-Bänke (*.sf2 *.sf3)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished">Alle Dateien (*)</translation>
    </message>
    <message>
        <source>A&amp;t the start:</source>
        <translation type="unfinished">Beim Sta&amp;rt:</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation type="unfinished">Leer beginnen</translation>
    </message>
    <message>
        <source>Start as last time</source>
        <translation type="unfinished">Wie beim letzten Mal beginnen</translation>
    </message>
    <message>
        <source>Whether the instruments, the tuning and the pieces that are open when you quit are opened again</source>
        <translation type="unfinished">Ob die Instrumente, die Stimmung und die Stücke, die beim Beenden offen sind, wieder geöffnet werden</translation>
    </message>
    <message>
        <source>Short&amp;cuts</source>
        <translation type="unfinished">Tast&amp;enkürzel</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">&amp;Durchsuchen…</translation>
    </message>
</context>
<context>
    <name>velmora::ProgramList</name>
    <message>
        <source>Piano</source>
        <translation type="unfinished">Klavier</translation>
    </message>
    <message>
        <source>Chromatic Percussion</source>
        <translation type="unfinished">Stabspiele und Glocken</translation>
    </message>
    <message>
        <source>Organ</source>
        <translation type="unfinished">Orgel</translation>
    </message>
    <message>
        <source>Guitar</source>
        <translation type="unfinished">Gitarre</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation type="unfinished">Bass</translation>
    </message>
    <message>
        <source>Strings</source>
        <translation type="unfinished">Streicher</translation>
    </message>
    <message>
        <source>Ensemble</source>
        <translation type="unfinished">Ensemble</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation type="unfinished">Blechbläser</translation>
    </message>
    <message>
        <source>Reed</source>
        <translation type="unfinished">Rohrblattinstrumente</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation type="unfinished">Flöten</translation>
    </message>
    <message>
        <source>Synth Lead</source>
        <translation type="unfinished">Synthesizer-Soli</translation>
    </message>
    <message>
        <source>Synth Pad</source>
        <translation type="unfinished">Synthesizer-Flächen</translation>
    </message>
    <message>
        <source>Synth Effects</source>
        <translation type="unfinished">Synthesizer-Effekte</translation>
    </message>
    <message>
        <source>Ethnic</source>
        <translation type="unfinished">Volksinstrumente</translation>
    </message>
    <message>
        <source>Percussive</source>
        <translation type="unfinished">Schlaginstrumente</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation type="unfinished">Geräusche</translation>
    </message>
    <message>
        <source>Find a program</source>
        <translation type="unfinished">Programm suchen</translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished">Programm</translation>
    </message>
    <message>
        <source>Drum kits</source>
        <translation type="unfinished">Schlagzeuge</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation type="unfinished">Bank %1</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressWindow</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished">Laden</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished">Fortschritt</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished">Wird abgebrochen…</translation>
    </message>
</context>
<context>
    <name>velmora::PurityLegend</name>
    <message>
        <source>Legend</source>
        <translation type="unfinished">Legende</translation>
    </message>
    <message>
        <source>%1: up to %2 cents</source>
        <translation type="unfinished">%1: bis %2 Cent</translation>
    </message>
</context>
<context>
    <name>velmora::QuantiseDialog</name>
    <message>
        <source> %</source>
        <translation type="unfinished"> %</translation>
    </message>
    <message>
        <source>Move the &amp;ends of notes as well</source>
        <translation type="unfinished">Auch die &amp;Enden der Noten verschieben</translation>
    </message>
    <message>
        <source>Quantise</source>
        <translation type="unfinished">Quantisieren</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>1/%1 triplets</source>
        <translation type="unfinished">1/%1-Triolen</translation>
    </message>
    <message>
        <source>Where the second of two units begins: 50 % is even, 67 % triplets</source>
        <translation type="unfinished">Wo die zweite von zwei Einheiten beginnt: 50 % ist gleichmäßig, 67 % sind Triolen</translation>
    </message>
    <message numerus="yes">
        <source>Moves all %n note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Verschiebt die einzige Note auf das Raster.</numerusform>
            <numerusform>Verschiebt alle %n Noten auf das Raster.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves %n selected note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Verschiebt %n ausgewählte Note auf das Raster.</numerusform>
            <numerusform>Verschiebt %n ausgewählte Noten auf das Raster.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Grid:</source>
        <translation type="unfinished">&amp;Raster:</translation>
    </message>
    <message>
        <source>&amp;Strength:</source>
        <translation type="unfinished">&amp;Stärke:</translation>
    </message>
    <message>
        <source>S&amp;wing:</source>
        <translation type="unfinished">S&amp;wing:</translation>
    </message>
</context>
<context>
    <name>velmora::RecordingActions</name>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Stück</translation>
    </message>
    <message>
        <source>&amp;Metronome</source>
        <translation type="unfinished">&amp;Metronom</translation>
    </message>
    <message>
        <source>Click on the beats</source>
        <translation type="unfinished">Auf den Schlägen klicken</translation>
    </message>
    <message>
        <source>P&amp;unch In</source>
        <translation type="unfinished">Ersetzen&amp;d aufnehmen</translation>
    </message>
    <message>
        <source>Record only in the selected time, and replace what the channel has there</source>
        <translation type="unfinished">Nur in der gewählten Zeit aufnehmen und ersetzen, was der Kanal dort hat</translation>
    </message>
    <message>
        <source>Metronome and Count-&amp;In</source>
        <translation type="unfinished">Metronom und Ein&amp;zählen</translation>
    </message>
    <message>
        <source>&amp;Takes</source>
        <translation type="unfinished">A&amp;ufnahmen</translation>
    </message>
    <message>
        <source>Metronome</source>
        <translation type="unfinished">Metronom</translation>
    </message>
    <message>
        <source>While Recording and Playing</source>
        <translation type="unfinished">Beim Aufnehmen und Abspielen</translation>
    </message>
    <message>
        <source>Only While Recording</source>
        <translation type="unfinished">Nur beim Aufnehmen</translation>
    </message>
    <message>
        <source>Only While Playing</source>
        <translation type="unfinished">Nur beim Abspielen</translation>
    </message>
    <message>
        <source>Click Between the Beats</source>
        <translation type="unfinished">Zwischen den Schlägen klicken</translation>
    </message>
    <message>
        <source>Count-In</source>
        <translation type="unfinished">Einzählen</translation>
    </message>
    <message>
        <source>No Count-In</source>
        <translation type="unfinished">Nicht einzählen</translation>
    </message>
    <message>
        <source>One Bar</source>
        <translation type="unfinished">Ein Takt</translation>
    </message>
    <message>
        <source>Two Bars</source>
        <translation type="unfinished">Zwei Takte</translation>
    </message>
    <message>
        <source>Volume of the metronome</source>
        <translation type="unfinished">Lautstärke des Metronoms</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished">&amp;Lautstärke</translation>
    </message>
    <message numerus="yes">
        <source>Take %1: %n note(s)</source>
        <translation type="unfinished">
            <numerusform>Aufnahme %1: %n Note</numerusform>
            <numerusform>Aufnahme %1: %n Noten</numerusform>
        </translation>
    </message>
    <message>
        <source>Fit to Grid…</source>
        <translation type="unfinished">Ans Raster anpassen…</translation>
    </message>
    <message>
        <source>Find the tempo and the bars of a free recording, and move it to them</source>
        <translation type="unfinished">Tempo und Takte einer freien Aufnahme finden und sie danach ausrichten</translation>
    </message>
    <message>
        <source>Thin Controllers…</source>
        <translation type="unfinished">Controller ausdünnen…</translation>
    </message>
    <message>
        <source>Leave out moves of controllers that nobody hears</source>
        <translation type="unfinished">Bewegungen von Controllern weglassen, die niemand hört</translation>
    </message>
    <message>
        <source>Thin Controllers</source>
        <translation type="unfinished">Controller ausdünnen</translation>
    </message>
    <message>
        <source>Leave out changes of at most this many of 127:</source>
        <translation type="unfinished">Änderungen bis zu so vielen von 127 weglassen:</translation>
    </message>
</context>
<context>
    <name>velmora::RollActions</name>
    <message>
        <source>View</source>
        <translation type="unfinished">Ansicht</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation type="unfinished">Spur</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation type="unfinished">Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation type="unfinished">Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Wider Keys</source>
        <translation type="unfinished">B&amp;reitere Tasten</translation>
    </message>
    <message>
        <source>N&amp;arrower Keys</source>
        <translation type="unfinished">S&amp;chmalere Tasten</translation>
    </message>
    <message>
        <source>Zoom to Selection</source>
        <translation type="unfinished">Auf Auswahl zoomen</translation>
    </message>
    <message>
        <source>Zoom to All Notes</source>
        <translation type="unfinished">Auf alle Noten zoomen</translation>
    </message>
    <message>
        <source>Time Runs Across</source>
        <translation type="unfinished">Zeit läuft nach rechts</translation>
    </message>
    <message>
        <source>Let time run from left to right instead of upwards</source>
        <translation type="unfinished">Lässt die Zeit von links nach rechts statt nach oben laufen</translation>
    </message>
</context>
<context>
    <name>velmora::RollPaper</name>
    <message>
        <source>The piece is too long for this. Please take more bars for each line.</source>
        <translation type="unfinished">Das Stück ist dafür zu lang. Bitte nehmen Sie mehr Takte für jede Zeile.</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The piece is too long for one picture. Please take more bars for each line, or write PDF.</source>
        <translation type="unfinished">Das Stück ist zu lang für ein einziges Bild. Bitte nehmen Sie mehr Takte für jede Zeile, oder schreiben Sie PDF.</translation>
    </message>
</context>
<context>
    <name>velmora::SearchField</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
</context>
<context>
    <name>velmora::SelectDialog</name>
    <message>
        <source>Select Notes</source>
        <translation type="unfinished">Noten auswählen</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Alle</translation>
    </message>
    <message>
        <source>&amp;Voice:</source>
        <translation type="unfinished">&amp;Stimme:</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation type="unfinished">&amp;Tasten:</translation>
    </message>
    <message>
        <source>V&amp;elocities:</source>
        <translation type="unfinished">&amp;Anschlagstärken:</translation>
    </message>
    <message>
        <source>Lowest key</source>
        <translation type="unfinished">Tiefste Taste</translation>
    </message>
    <message>
        <source>Highest key</source>
        <translation type="unfinished">Höchste Taste</translation>
    </message>
    <message>
        <source>Softest velocity</source>
        <translation type="unfinished">Kleinste Anschlagstärke</translation>
    </message>
    <message>
        <source>Loudest velocity</source>
        <translation type="unfinished">Größte Anschlagstärke</translation>
    </message>
</context>
<context>
    <name>velmora::SendTuningDialog</name>
    <message>
        <source>&amp;Keep sending when the tuning changes</source>
        <translation type="unfinished">&amp;Weiter senden, wenn sich die Stimmung ändert</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished">&amp;Senden</translation>
    </message>
    <message>
        <source>Send the Tuning</source>
        <translation type="unfinished">Stimmung senden</translation>
    </message>
    <message>
        <source>No MIDI output is connected</source>
        <translation type="unfinished">Kein MIDI-Ausgang ist angeschlossen</translation>
    </message>
    <message>
        <source>MIDI &amp;output:</source>
        <translation type="unfinished">MIDI-&amp;Ausgang:</translation>
    </message>
    <message>
        <source>The tuning was sent to %1.</source>
        <translation type="unfinished">Die Stimmung wurde an %1 gesendet.</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceActions</name>
    <message>
        <source>&amp;Loop</source>
        <translation type="unfinished">&amp;Schleife</translation>
    </message>
    <message>
        <source>Repeat the selected time, or the whole sequence</source>
        <translation type="unfinished">Wiederholt den gewählten Zeitraum oder das ganze Stück</translation>
    </message>
    <message>
        <source>Snap to &amp;Grid</source>
        <translation type="unfinished">Am &amp;Raster ausrichten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished">&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished">&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished">&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished">&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished">&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished">Alle&amp;s auswählen</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation type="unfinished">&amp;Nichts auswählen</translation>
    </message>
    <message>
        <source>Go to &amp;Start</source>
        <translation type="unfinished">Zum An&amp;fang</translation>
    </message>
    <message>
        <source>Pre&amp;vious Notes</source>
        <translation type="unfinished">&amp;Vorherige Noten</translation>
    </message>
    <message>
        <source>&amp;Next Notes</source>
        <translation type="unfinished">&amp;Nächste Noten</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">&amp;Kanal</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Stopp</translation>
    </message>
    <message>
        <source>Record what you play, starting at the position</source>
        <translation type="unfinished">Nimmt auf, was Sie spielen, ab der Position</translation>
    </message>
    <message>
        <source>Play from the position</source>
        <translation type="unfinished">Spielt ab der Position</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Stück</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished">&amp;Aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">S&amp;pielen</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt Note</source>
        <translation type="unfinished">Nä&amp;chste Note auswählen</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious Note</source>
        <translation type="unfinished">&amp;Vorherige Note auswählen</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation type="unfinished">Zum &amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Selected Notes</source>
        <translation type="unfinished">Ausgewählte N&amp;oten</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished">Bearbeiten</translation>
    </message>
    <message>
        <source>Move Notes &amp;Up a Semitone</source>
        <translation type="unfinished">Noten einen Halbton &amp;höher</translation>
    </message>
    <message>
        <source>Move Notes &amp;Down a Semitone</source>
        <translation type="unfinished">Noten einen Halbton &amp;tiefer</translation>
    </message>
    <message>
        <source>Move Notes &amp;Later</source>
        <translation type="unfinished">Noten &amp;später</translation>
    </message>
    <message>
        <source>Move Notes &amp;Earlier</source>
        <translation type="unfinished">Noten &amp;früher</translation>
    </message>
    <message>
        <source>Make Notes Lon&amp;ger</source>
        <translation type="unfinished">Noten &amp;länger</translation>
    </message>
    <message>
        <source>Make Notes &amp;Shorter</source>
        <translation type="unfinished">Noten &amp;kürzer</translation>
    </message>
    <message>
        <source>Align notes and times with the lines of the grid</source>
        <translation type="unfinished">Noten und Zeiten an den Linien des Rasters ausrichten</translation>
    </message>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Verlauf der Bearbeitungen</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceDocument</name>
    <message>
        <source>Draw Note</source>
        <translation type="unfinished">Zeichnen einer Note</translation>
    </message>
    <message numerus="yes">
        <source>Record %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Aufnahme von %n Note</numerusform>
            <numerusform>Aufnahme von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Löschen von %n Note</numerusform>
            <numerusform>Löschen von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Längenänderung von %n Note</numerusform>
            <numerusform>Längenänderung von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Verschieben von %n Note</numerusform>
            <numerusform>Verschieben von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Set Channel of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Kanalwechsel von %n Note</numerusform>
            <numerusform>Kanalwechsel von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cut %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Ausschneiden von %n Note</numerusform>
            <numerusform>Ausschneiden von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Einfügen von %n Note</numerusform>
            <numerusform>Einfügen von %n Noten</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Take %1</source>
        <translation type="unfinished">Aufnahme %1 wählen</translation>
    </message>
    <message numerus="yes">
        <source>Quantise %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Quantisieren von %n Note</numerusform>
            <numerusform>Quantisieren von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Transpose %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Transponieren von %n Note</numerusform>
            <numerusform>Transponieren von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Verdoppeln von %n Note</numerusform>
            <numerusform>Verdoppeln von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Teilen von %n Note</numerusform>
            <numerusform>Teilen von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Join %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Verbinden von %n Note</numerusform>
            <numerusform>Verbinden von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Connect %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Binden von %n Note</numerusform>
            <numerusform>Binden von %n Noten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Change Velocity of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Ändern der Anschlagstärke von %n Note</numerusform>
            <numerusform>Ändern der Anschlagstärke von %n Noten</numerusform>
        </translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Aufnehmen</translation>
    </message>
    <message>
        <source>Record Controllers</source>
        <translation type="unfinished">Controller aufnehmen</translation>
    </message>
</context>
<context>
    <name>velmora::SequencePages</name>
    <message numerus="yes">
        <source>%1, %n note(s), %2</source>
        <translation type="unfinished">
            <numerusform>%1, %n Note, %2</numerusform>
            <numerusform>%1, %n Noten, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Unbenannt</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>Velmora was not closed properly. Recover the unsaved sequences?</source>
        <translation type="unfinished">Velmora wurde nicht richtig beendet. Nicht gespeicherte Stücke wiederherstellen?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished">Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished">Verwerfen</translation>
    </message>
    <message>
        <source>Ask Later</source>
        <translation type="unfinished">Später fragen</translation>
    </message>
    <message>
        <source>%1 •</source>
        <translation type="unfinished">%1 •</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation type="unfinished">Unbenannt %1</translation>
    </message>
    <message>
        <source>%1 is damaged. Open what could be read?</source>
        <translation type="unfinished">%1 ist beschädigt. Soll geöffnet werden, was gelesen werden konnte?</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) could be read.</source>
        <translation type="unfinished">
            <numerusform>%n Note konnte gelesen werden.</numerusform>
            <numerusform>%n Noten konnten gelesen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” has stopped, because the voices of “%2” sound otherwise.</source>
        <translation type="unfinished">„%1“ hat angehalten, weil die Stimmen von „%2“ anders klingen.</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceSaver</name>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 is still being exported. Stop the export?</source>
        <translation type="unfinished">%1 wird noch exportiert. Export beenden?</translation>
    </message>
    <message>
        <source>If you stop it, no sound file is written.</source>
        <translation type="unfinished">Wenn Sie ihn beenden, wird keine Audiodatei geschrieben.</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <translation type="unfinished">Export beenden</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation type="unfinished">Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>If you do not save them, they are lost.</source>
        <translation type="unfinished">Wenn Sie sie nicht speichern, gehen sie verloren.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished">Speichern unter</translation>
    </message>
    <message>
        <source>An iMelody file holds a single voice and no dynamics. Save it anyway?</source>
        <translation type="unfinished">Eine iMelody-Datei enthält nur eine Stimme und keine Dynamik. Trotzdem speichern?</translation>
    </message>
    <message>
        <source>Velmora cannot open iMelody files. A MIDI file keeps everything that you see.</source>
        <translation type="unfinished">Velmora kann iMelody-Dateien nicht öffnen. Eine MIDI-Datei behält alles, was Sie sehen.</translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation type="unfinished">%1 wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Speichern unter…</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceScrollView</name>
    <message>
        <source>Keys shown</source>
        <translation type="unfinished">Sichtbare Tasten</translation>
    </message>
    <message>
        <source>Time shown</source>
        <translation type="unfinished">Sichtbare Zeit</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceStatus</name>
    <message>
        <source>Practice: play the notes at the position to move on to the next ones</source>
        <translation type="unfinished">Üben: Spielen Sie die Noten an der Position, um zu den nächsten zu kommen</translation>
    </message>
    <message>
        <source>Steps %1 to %2</source>
        <translation type="unfinished">Schritte %1 bis %2</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished">Spielt</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished">Nimmt auf</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation type="unfinished">Wartet auf %1</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) selected</source>
        <translation type="unfinished">
            <numerusform>%n Note ausgewählt</numerusform>
            <numerusform>%n Noten ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) in all</source>
        <translation type="unfinished">
            <numerusform>%n Note insgesamt</numerusform>
            <numerusform>%n Noten insgesamt</numerusform>
        </translation>
    </message>
    <message>
        <source>Done: all notes played</source>
        <translation type="unfinished">Fertig: alle Noten gespielt</translation>
    </message>
    <message>
        <source>Release %1</source>
        <translation type="unfinished">Lassen Sie %1 los</translation>
    </message>
    <message>
        <source>Waiting for %1; not %2</source>
        <translation type="unfinished">Wartet auf %1; nicht %2</translation>
    </message>
    <message>
        <source>Counting in</source>
        <translation type="unfinished">Es wird eingezählt</translation>
    </message>
    <message>
        <source>Bar %1, beat %2 to bar %3, beat %4</source>
        <translation type="unfinished">Takt %1, Schlag %2 bis Takt %3, Schlag %4</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation type="unfinished">Als Nächstes: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceView</name>
    <message>
        <source>Piano roll</source>
        <translation type="unfinished">Pianorolle</translation>
    </message>
    <message>
        <source>Velocity %1 %</source>
        <translation type="unfinished">Anschlag %1 %</translation>
    </message>
    <message>
        <source>%1, bar %2, beat %3, length in beats %4, channel %5</source>
        <translation type="unfinished">%1, Takt %2, Schlag %3, Länge in Schlägen %4, Kanal %5</translation>
    </message>
</context>
<context>
    <name>velmora::ShapeTab</name>
    <message>
        <source>Hear the Original</source>
        <translation type="unfinished">Original hören</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Speichern unter…</translation>
    </message>
    <message>
        <source>Ways to shape the tuning</source>
        <translation type="unfinished">Wege, die Stimmung zu formen</translation>
    </message>
    <message>
        <source>By Notes</source>
        <translation type="unfinished">Nach Tönen</translation>
    </message>
    <message>
        <source>By Fifths</source>
        <translation type="unfinished">Nach Quinten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">Wiederholen</translation>
    </message>
    <message>
        <source>Compare the tuning with what it was before you changed it</source>
        <translation type="unfinished">Die Stimmung mit dem vergleichen, was sie vor der Änderung war</translation>
    </message>
    <message>
        <source>Save the tuning as a scale file, which is then listed</source>
        <translation type="unfinished">Die Stimmung als Skalendatei speichern, die dann in der Liste steht</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished">Beschreibung:</translation>
    </message>
    <message>
        <source>Slider of %1</source>
        <translation type="unfinished">Regler für %1</translation>
    </message>
    <message>
        <source> cents</source>
        <translation type="unfinished"> Cent</translation>
    </message>
    <message>
        <source>This tuning finds its pitches while you play, so it has no fixed notes to shape. Choose another one.</source>
        <translation type="unfinished">Diese Stimmung findet ihre Tonhöhen, während Sie spielen. Sie hat also keine festen Töne, die sich formen ließen. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>You are shaping a copy of %1. Save it to keep it.</source>
        <translation type="unfinished">Sie formen eine Kopie von %1. Speichern Sie sie, um sie zu behalten.</translation>
    </message>
    <message>
        <source>Move a note, and you hear it at once in a copy of this tuning. The first note stays.</source>
        <translation type="unfinished">Bewegen Sie einen Ton, und Sie hören ihn sofort in einer Kopie dieser Stimmung. Der erste Ton bleibt.</translation>
    </message>
</context>
<context>
    <name>velmora::ShellActions</name>
    <message>
        <source>File</source>
        <translation type="unfinished">Datei</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished">Klang</translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished">Ansicht</translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished">Hilfe</translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation type="unfinished">&amp;Neues Stück</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open pieces, instruments and tunings</source>
        <translation type="unfinished">Stücke, Instrumente und Stimmungen öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the piece</source>
        <translation type="unfinished">Das Stück speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished">Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Export Audio…</source>
        <translation type="unfinished">Audio e&amp;xportieren…</translation>
    </message>
    <message>
        <source>Write a sound file of the piece</source>
        <translation type="unfinished">Schreibt eine Audiodatei des Stücks</translation>
    </message>
    <message>
        <source>&amp;Close Piece</source>
        <translation type="unfinished">Stück s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished">&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Silence Everything</source>
        <translation type="unfinished">Alles &amp;still</translation>
    </message>
    <message>
        <source>Stop every sound and release every key</source>
        <translation type="unfinished">Beendet jeden Klang und lässt jede Taste los</translation>
    </message>
    <message>
        <source>Transpose &amp;Up</source>
        <translation type="unfinished">&amp;Höher transponieren</translation>
    </message>
    <message>
        <source>Transpose &amp;Down</source>
        <translation type="unfinished">&amp;Tiefer transponieren</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation type="unfinished">Klavia&amp;tur</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation type="unfinished">&amp;Instrument</translation>
    </message>
    <message>
        <source>Show the program or the stops</source>
        <translation type="unfinished">Zeigt das Programm oder die Register</translation>
    </message>
    <message>
        <source>&amp;Tuning</source>
        <translation type="unfinished">Sti&amp;mmung</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">&amp;Spielen</translation>
    </message>
    <message>
        <source>Arrange the window for playing</source>
        <translation type="unfinished">Richtet das Fenster zum Spielen ein</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Arrange the window for editing</source>
        <translation type="unfinished">Richtet das Fenster zum Bearbeiten ein</translation>
    </message>
    <message>
        <source>&amp;Stage</source>
        <translation type="unfinished">Bü&amp;hne</translation>
    </message>
    <message>
        <source>Fill the screen with what matters on stage</source>
        <translation type="unfinished">Füllt den Bildschirm mit dem, was auf der Bühne zählt</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished">Anordnung &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <translation type="unfinished">&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>Pre&amp;vious Panel</source>
        <translation type="unfinished">&amp;Vorheriger Bereich</translation>
    </message>
    <message>
        <source>Piece in Its &amp;Own Window</source>
        <translation type="unfinished">Stück in eigenem &amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Loaded Instruments…</source>
        <translation type="unfinished">Ge&amp;ladene Instrumente…</translation>
    </message>
    <message>
        <source>&amp;Meters</source>
        <translation type="unfinished">Mess&amp;werte</translation>
    </message>
    <message>
        <source>Show the delay, the load and the devices of live playing</source>
        <translation type="unfinished">Zeigt Verzögerung, Last und Geräte beim Spielen</translation>
    </message>
    <message>
        <source>Note &amp;Names on the Keyboard</source>
        <translation type="unfinished">N&amp;otennamen auf der Klaviatur</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation type="unfinished">&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation type="unfinished">Ü&amp;ber Velmora</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished">&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished">Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Open Sess&amp;ion…</source>
        <translation type="unfinished">S&amp;itzung öffnen…</translation>
    </message>
    <message>
        <source>Open the instruments, the tuning and the pieces of a session</source>
        <translation type="unfinished">Die Instrumente, die Stimmung und die Stücke einer Sitzung öffnen</translation>
    </message>
    <message>
        <source>Sa&amp;ve Session…</source>
        <translation type="unfinished">Sitzung s&amp;peichern…</translation>
    </message>
    <message>
        <source>Save which instruments, tuning and pieces are open</source>
        <translation type="unfinished">Speichern, welche Instrumente, Stimmung und Stücke offen sind</translation>
    </message>
    <message>
        <source>&amp;Find a Command…</source>
        <translation type="unfinished">Be&amp;fehl suchen…</translation>
    </message>
    <message>
        <source>Find a command by its name and perform it</source>
        <translation type="unfinished">Einen Befehl nach seinem Namen suchen und ausführen</translation>
    </message>
    <message>
        <source>&amp;Console</source>
        <translation type="unfinished">Spi&amp;eltisch</translation>
    </message>
    <message>
        <source>Show the stops of the organ</source>
        <translation type="unfinished">Die Register der Orgel zeigen</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Lässt die Register weg, die noch nicht geladen sind</translation>
    </message>
    <message>
        <source>Stop Loadin&amp;g</source>
        <translation type="unfinished">Laden b&amp;eenden</translation>
    </message>
    <message>
        <source>Export &amp;MIDI in This Tuning…</source>
        <translation type="unfinished">&amp;MIDI in dieser Stimmung exportieren…</translation>
    </message>
    <message>
        <source>Write a MIDI file of the piece that other devices play in this tuning</source>
        <translation type="unfinished">Eine MIDI-Datei des Stücks schreiben, die andere Geräte in dieser Stimmung spielen</translation>
    </message>
    <message>
        <source>Export &amp;Tuning…</source>
        <translation type="unfinished">S&amp;timmung exportieren…</translation>
    </message>
    <message>
        <source>Write what each key sounds like now as a scale and a keyboard mapping</source>
        <translation type="unfinished">Als Skala und Tastaturbelegung schreiben, wie jede Taste jetzt klingt</translation>
    </message>
    <message>
        <source>&amp;Send the Tuning…</source>
        <translation type="unfinished">Stimmung &amp;senden…</translation>
    </message>
    <message>
        <source>Send the tuning to a MIDI device that is to play in it</source>
        <translation type="unfinished">Die Stimmung an ein MIDI-Gerät senden, das in ihr spielen soll</translation>
    </message>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Stimmung formen</translation>
    </message>
    <message>
        <source>Show the circle of fifths, and shape the tuning</source>
        <translation type="unfinished">Den Quintenzirkel zeigen und die Stimmung formen</translation>
    </message>
    <message>
        <source>E&amp;xport Score…</source>
        <translation type="unfinished">P&amp;artitur exportieren…</translation>
    </message>
    <message>
        <source>Write the piece down for a notation program, spelled as the tuning spells it</source>
        <translation type="unfinished">Das Stück für ein Notensatzprogramm aufschreiben, mit den Namen, die die Stimmung den Noten gibt</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Üben</translation>
    </message>
    <message>
        <source>Practise the piece, a hand or a voice of it</source>
        <translation type="unfinished">Das Stück üben, eine Hand oder eine Stimme davon</translation>
    </message>
    <message>
        <source>Show who plays the piece</source>
        <translation type="unfinished">Zeigt, wer das Stück spielt</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Stimmen</translation>
    </message>
    <message>
        <source>Export Voices…</source>
        <translation type="unfinished">Stimmen exportieren…</translation>
    </message>
    <message>
        <source>Write a sound file of each voice of the piece</source>
        <translation type="unfinished">Von jeder Stimme des Stücks eine Klangdatei schreiben</translation>
    </message>
    <message>
        <source>Export Roll…</source>
        <translation type="unfinished">Pianorolle exportieren…</translation>
    </message>
    <message>
        <source>Write the piano roll of the piece for paper, as PDF or PNG</source>
        <translation type="unfinished">Die Pianorolle des Stücks für Papier schreiben, als PDF oder PNG</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">Instrument ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Einen SoundFont, eine GigaSampler-Bank oder eine Orgel öffnen</translation>
    </message>
    <message>
        <source>&amp;Open Tuning…</source>
        <translation type="unfinished">Stimmung ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open scales and other tunings</source>
        <translation type="unfinished">Skalen und andere Stimmungen öffnen</translation>
    </message>
</context>
<context>
    <name>velmora::ShortcutsPane</name>
    <message>
        <source>Find a command</source>
        <translation type="unfinished">Befehl suchen</translation>
    </message>
    <message>
        <source>Use It &amp;Here</source>
        <translation type="unfinished">&amp;Hier verwenden</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished">En&amp;tfernen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished">Befehl</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished">Tastenkürzel</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Befehle</translation>
    </message>
    <message>
        <source>Press the new keys for the selected command</source>
        <translation type="unfinished">Die neuen Tasten für den gewählten Befehl drücken</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <translation type="unfinished">Neues Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;New shortcut:</source>
        <translation type="unfinished">Ne&amp;ues Tastenkürzel:</translation>
    </message>
    <message>
        <source>Take the shortcut from the other command</source>
        <translation type="unfinished">Das Tastenkürzel dem anderen Befehl wegnehmen</translation>
    </message>
    <message>
        <source>Leave the selected command without a shortcut</source>
        <translation type="unfinished">Den gewählten Befehl ohne Tastenkürzel lassen</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation type="unfinished">&amp;Vorgaben wiederherstellen</translation>
    </message>
    <message>
        <source>Give every command the shortcuts that it had at first</source>
        <translation type="unfinished">Jedem Befehl wieder die Tastenkürzel geben, die er anfangs hatte</translation>
    </message>
    <message>
        <source>%1 plays a note. Add Ctrl or Alt, or use a function key.</source>
        <translation type="unfinished">%1 spielt einen Ton. Nehmen Sie Strg oder Alt dazu, oder eine Funktionstaste.</translation>
    </message>
    <message>
        <source>%1 belongs to “%2”. Press other keys, or use it here instead.</source>
        <translation type="unfinished">%1 gehört zu „%2“. Drücken Sie andere Tasten, oder verwenden Sie es stattdessen hier.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundPane</name>
    <message>
        <source>Ou&amp;tput:</source>
        <translation type="unfinished">A&amp;usgabe:</translation>
    </message>
    <message>
        <source>The sound server or driver that Velmora plays through</source>
        <translation type="unfinished">Der Klangserver oder Treiber, über den Velmora spielt</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation type="unfinished">&amp;Gerät:</translation>
    </message>
    <message>
        <source>The device that is heard</source>
        <translation type="unfinished">Das Gerät, das zu hören ist</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation type="unfinished">Abtast&amp;rate:</translation>
    </message>
    <message>
        <source>A JACK server determines the sample rate itself</source>
        <translation type="unfinished">Ein JACK-Server bestimmt die Abtastrate selbst</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation type="unfinished">&amp;Periode:</translation>
    </message>
    <message>
        <source>The shorter the period, the sooner a key sounds, and the more the machine has to do. With JACK, it applies to all programs</source>
        <translation type="unfinished">Je kürzer die Periode, desto früher klingt eine Taste und desto mehr hat der Rechner zu tun. Mit JACK gilt sie für alle Programme</translation>
    </message>
    <message>
        <source>Playing:</source>
        <translation type="unfinished">Spielt:</translation>
    </message>
    <message>
        <source>Master &amp;volume:</source>
        <translation type="unfinished">Gesamt&amp;lautstärke:</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation type="unfinished">Pegel:</translation>
    </message>
    <message>
        <source>Master volume</source>
        <translation type="unfinished">Gesamtlautstärke</translation>
    </message>
    <message>
        <source>Play Test To&amp;ne</source>
        <translation type="unfinished">&amp;Testton spielen</translation>
    </message>
    <message>
        <source>Plays a short, quiet tone</source>
        <translation type="unfinished">Spielt einen kurzen, leisen Ton</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished">Automatisch</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation type="unfinished">%1 (fehlt)</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished">%1 Frames</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Vorgabe</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1 %</translation>
    </message>
    <message>
        <source>%L1 kHz</source>
        <translation type="unfinished">%L1 kHz</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 frames (%L4 ms)</source>
        <translation type="unfinished">%1, %L2 kHz, %L3 Frames (%L4 ms)</translation>
    </message>
    <message>
        <source>
To the sound card: %L1 ms. Lost periods: %L2.</source>
        <translation type="unfinished">
Bis zur Soundkarte: %L1 ms. Verlorene Perioden: %L2.</translation>
    </message>
</context>
<context>
    <name>velmora::StageView</name>
    <message>
        <source>%1 leaves the stage</source>
        <translation type="unfinished">%1 verlässt die Bühne</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>First steps</source>
        <translation type="unfinished">Erste Schritte</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Handbuch</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation type="unfinished">Das Handbuch öffnen</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation type="unfinished">Was möchten Sie tun?</translation>
    </message>
    <message>
        <source>Welcome to Velmora! Each card does something at once, and nothing can break.</source>
        <translation type="unfinished">Willkommen bei Velmora! Jede Karte tut sofort etwas, und nichts kann kaputtgehen.</translation>
    </message>
    <message>
        <source>Hear it</source>
        <translation type="unfinished">Hören</translation>
    </message>
    <message>
        <source>C major, whose third beats in equal temperament and is pure in meantone. The tuning that you hear stays selected.</source>
        <translation type="unfinished">C-Dur: Die Terz schwebt in gleichstufiger Stimmung und ist mitteltönig rein. Die Stimmung, die Sie hören, bleibt gewählt.</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Gleichstufig</translation>
    </message>
    <message>
        <source>Hear the chord in equal temperament</source>
        <translation type="unfinished">Den Akkord in gleichstufiger Stimmung hören</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mitteltönig</translation>
    </message>
    <message>
        <source>Hear the chord in quarter-comma meantone</source>
        <translation type="unfinished">Den Akkord in Viertelkomma-mitteltöniger Stimmung hören</translation>
    </message>
    <message>
        <source>Choose a Tuning</source>
        <translation type="unfinished">Stimmung wählen</translation>
    </message>
    <message>
        <source>Choose a tuning</source>
        <translation type="unfinished">Eine Stimmung wählen</translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation type="unfinished">Stimmen</translation>
    </message>
    <message>
        <source>Choose a historical tuning, or one that adapts to what you play.</source>
        <translation type="unfinished">Wählen Sie eine historische Stimmung oder eine, die sich Ihrem Spiel anpasst.</translation>
    </message>
    <message>
        <source>Open an Instrument…</source>
        <translation type="unfinished">Instrument öffnen…</translation>
    </message>
    <message>
        <source>Open an instrument</source>
        <translation type="unfinished">Ein Instrument öffnen</translation>
    </message>
    <message>
        <source>Play it</source>
        <translation type="unfinished">Spielen</translation>
    </message>
    <message>
        <source>Use a MIDI keyboard, the keys below, or the letters of the computer keyboard, from A on.</source>
        <translation type="unfinished">Spielen Sie auf einem MIDI-Keyboard, auf den Tasten unten oder mit den Buchstaben der Computertastatur ab A.</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Aufnehmen</translation>
    </message>
    <message>
        <source>Record a new sequence</source>
        <translation type="unfinished">Ein neues Stück aufnehmen</translation>
    </message>
    <message>
        <source>Record it</source>
        <translation type="unfinished">Aufnehmen</translation>
    </message>
    <message>
        <source>Play, correct the notes in the piano roll, and export the sound.</source>
        <translation type="unfinished">Spielen Sie, berichtigen Sie die Noten in der Pianorolle und exportieren Sie den Klang.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished">%1 öffnen</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished">Beispiele</translation>
    </message>
    <message>
        <source>%1 (tuning)</source>
        <translation type="unfinished">%1 (Stimmung)</translation>
    </message>
    <message>
        <source>%1 (piece)</source>
        <translation type="unfinished">%1 (Stück)</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished">Zuletzt geöffnet</translation>
    </message>
</context>
<context>
    <name>velmora::StatusLine</name>
    <message>
        <source>The sound output: its driver, sample rate and period</source>
        <translation type="unfinished">Die Tonausgabe: Treiber, Abtastrate und Periode</translation>
    </message>
    <message>
        <source>No MIDI input</source>
        <translation type="unfinished">Kein MIDI-Eingang</translation>
    </message>
    <message>
        <source>A MIDI device is used as soon as it is connected</source>
        <translation type="unfinished">Ein MIDI-Gerät wird verwendet, sobald es angeschlossen ist</translation>
    </message>
    <message>
        <source>There is no MIDI device. Connect one, or play with the mouse.</source>
        <translation type="unfinished">Es gibt kein MIDI-Gerät. Schließen Sie eines an, oder spielen Sie mit der Maus.</translation>
    </message>
    <message>
        <source>No sound output</source>
        <translation type="unfinished">Keine Tonausgabe</translation>
    </message>
    <message>
        <source>Notices: %1</source>
        <translation type="unfinished">Hinweise: %1</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation type="unfinished">Hinweise</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 ms</source>
        <translation type="unfinished">%1, %L2 kHz, %L3 ms</translation>
    </message>
    <message>
        <source>Instrument: %1
Click to show its programs or stops</source>
        <translation type="unfinished">Instrument: %1
Ein Klick zeigt Programme oder Register</translation>
    </message>
    <message>
        <source>Tuning: %1 (%2)
Click to show all tunings</source>
        <translation type="unfinished">Stimmung: %1 (%2)
Ein Klick zeigt alle Stimmungen</translation>
    </message>
    <message>
        <source>Plain reading</source>
        <translation type="unfinished">Schlichtes Lesen</translation>
    </message>
    <message>
        <source>MIDI devices are read plainly: no pedals, no touch, no transposition</source>
        <translation type="unfinished">MIDI-Geräte werden schlicht gelesen: keine Pedale, kein Anschlag, keine Transposition</translation>
    </message>
    <message>
        <source>Transposed %1</source>
        <translation type="unfinished">Transponiert %1</translation>
    </message>
    <message>
        <source>MIDI keyboards sound %1 semitones away from their keys</source>
        <translation type="unfinished">MIDI-Keyboards klingen %1 Halbtöne neben ihren Tasten</translation>
    </message>
    <message numerus="yes">
        <source>%n MIDI input(s)</source>
        <translation type="unfinished">
            <numerusform>%n MIDI-Eingang</numerusform>
            <numerusform>%n MIDI-Eingänge</numerusform>
        </translation>
    </message>
    <message>
        <source>MIDI devices:
%1</source>
        <translation type="unfinished">MIDI-Geräte:
%1</translation>
    </message>
    <message>
        <source>The display may go to sleep while you play because there is no D-Bus session bus. Start Velmora from the desktop, or with dbus-run-session.</source>
        <translation type="unfinished">Der Bildschirm kann sich beim Spielen abschalten, weil es keinen D-Bus-Sitzungsbus gibt. Starten Sie Velmora aus der Arbeitsumgebung oder mit dbus-run-session.</translation>
    </message>
    <message>
        <source>What you change in the preferences, and what is open, is forgotten when you quit because nothing can be written to %1. Make that folder writable.</source>
        <translation type="unfinished">Was Sie in den Einstellungen ändern und was offen ist, wird beim Beenden vergessen, weil sich nichts nach %1 schreiben lässt. Machen Sie diesen Ordner beschreibbar.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrument</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Stimmung</translation>
    </message>
    <message>
        <source>Reading of MIDI devices</source>
        <translation type="unfinished">Lesart der MIDI-Geräte</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation type="unfinished">Tonausgabe</translation>
    </message>
    <message>
        <source>MIDI inputs</source>
        <translation type="unfinished">MIDI-Eingänge</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation type="unfinished">Laden</translation>
    </message>
    <message>
        <source>%1 % loaded</source>
        <translation type="unfinished">%1 % geladen</translation>
    </message>
    <message>
        <source>The stops of %1 that are loaded can be played; the others follow</source>
        <translation type="unfinished">Die geladenen Register von %1 können gespielt werden; die anderen folgen</translation>
    </message>
    <message>
        <source>Stop Loading</source>
        <translation type="unfinished">Laden beenden</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Lässt die Register weg, die noch nicht geladen sind</translation>
    </message>
</context>
<context>
    <name>velmora::StemsDialog</name>
    <message>
        <source>Export Voices</source>
        <translation type="unfinished">Stimmen exportieren</translation>
    </message>
    <message>
        <source>Every voice that sounds is written to a sound file of its own. Muted voices are left out. Played together, the files sound like the piece.</source>
        <translation type="unfinished">Jede Stimme, die klingt, wird in eine eigene Klangdatei geschrieben. Stumme Stimmen werden ausgelassen. Zusammen gespielt klingen die Dateien wie das Stück.</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished">&amp;Exportieren</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation type="unfinished">&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished">&amp;Format:</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation type="unfinished">Dateien:</translation>
    </message>
    <message>
        <source>No voice of the piece sounds.</source>
        <translation type="unfinished">Keine Stimme des Stücks klingt.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) already exist. Do you want to replace them?</source>
        <translation type="unfinished">
            <numerusform>%n Datei existiert bereits. Möchten Sie sie ersetzen?</numerusform>
            <numerusform>%n Dateien existieren bereits. Möchten Sie sie ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be created.</source>
        <translation type="unfinished">Der Ordner %1 existiert nicht und kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>velmora::StopRow</name>
    <message>
        <source>%1: turn on or off (Space)</source>
        <translation type="unfinished">%1: ein- oder ausschalten (Leertaste)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1 %</translation>
    </message>
</context>
<context>
    <name>velmora::TimeActions</name>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Stück</translation>
    </message>
    <message>
        <source>Ta&amp;p Tempo</source>
        <translation type="unfinished">Tempo &amp;klopfen</translation>
    </message>
    <message>
        <source>Tap repeatedly to set the tempo of the piece at the position</source>
        <translation type="unfinished">Wiederholt klopfen, um das Tempo des Stücks an der Position zu setzen</translation>
    </message>
    <message>
        <source>Tempo &amp;and Signatures</source>
        <translation type="unfinished">&amp;Tempo und Vorzeichnung</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation type="unfinished">Klopfen</translation>
    </message>
    <message>
        <source>Tap Tempo</source>
        <translation type="unfinished">Tempo klopfen</translation>
    </message>
</context>
<context>
    <name>velmora::TimeEntryDialog</name>
    <message>
        <source>Add &amp;Tempo…</source>
        <translation type="unfinished">&amp;Tempo hinzufügen…</translation>
    </message>
    <message>
        <source>Add Time &amp;Signature…</source>
        <translation type="unfinished">T&amp;aktart hinzufügen…</translation>
    </message>
    <message>
        <source>Add &amp;Key Signature…</source>
        <translation type="unfinished">T&amp;onart hinzufügen…</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation type="unfinished">&amp;Marke hinzufügen…</translation>
    </message>
    <message>
        <source>Add Tempo</source>
        <translation type="unfinished">Tempo hinzufügen</translation>
    </message>
    <message>
        <source>Add Time Signature</source>
        <translation type="unfinished">Taktart hinzufügen</translation>
    </message>
    <message>
        <source>Add Key Signature</source>
        <translation type="unfinished">Tonart hinzufügen</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation type="unfinished">Marke hinzufügen</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Tempo ändern</translation>
    </message>
    <message>
        <source>Change Time Signature</source>
        <translation type="unfinished">Taktart ändern</translation>
    </message>
    <message>
        <source>Change Key Signature</source>
        <translation type="unfinished">Tonart ändern</translation>
    </message>
    <message>
        <source>Change Marker</source>
        <translation type="unfinished">Marke ändern</translation>
    </message>
    <message>
        <source>Delete Tempo</source>
        <translation type="unfinished">Tempo löschen</translation>
    </message>
    <message>
        <source>Delete Time Signature</source>
        <translation type="unfinished">Taktart löschen</translation>
    </message>
    <message>
        <source>Delete Key Signature</source>
        <translation type="unfinished">Tonart löschen</translation>
    </message>
    <message>
        <source>Delete Marker</source>
        <translation type="unfinished">Marke löschen</translation>
    </message>
    <message>
        <source>A♭ E♭ B♭ F C G D A E B F♯ C♯ G♯ D♯ A♯</source>
        <comment>minor keys</comment>
        <translation type="unfinished">as es b f c g d a e h fis cis gis dis ais</translation>
    </message>
    <message>
        <source>C♭ G♭ D♭ A♭ E♭ B♭ F C G D A E B F♯ C♯</source>
        <comment>major keys</comment>
        <translation type="unfinished">Ces Ges Des As Es B F C G D A E H Fis Cis</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1-Moll</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1-Dur</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">Tempo</translation>
    </message>
    <message>
        <source>Time Signature</source>
        <translation type="unfinished">Taktart</translation>
    </message>
    <message>
        <source>Key Signature</source>
        <translation type="unfinished">Tonart</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation type="unfinished">Marke</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> bpm</translation>
    </message>
    <message>
        <source>&amp;Tempo:</source>
        <translation type="unfinished">&amp;Tempo:</translation>
    </message>
    <message>
        <source>&amp;Notes in a bar:</source>
        <translation type="unfinished">&amp;Noten im Takt:</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>&amp;Value of a note:</source>
        <translation type="unfinished">&amp;Wert einer Note:</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation type="unfinished">T&amp;onart:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished">Te&amp;xt:</translation>
    </message>
    <message>
        <source>&amp;Bar:</source>
        <translation type="unfinished">Ta&amp;kt:</translation>
    </message>
    <message>
        <source>B&amp;eat:</source>
        <translation type="unfinished">&amp;Schlag:</translation>
    </message>
</context>
<context>
    <name>velmora::TimeLane</name>
    <message>
        <source>Tempo and signatures</source>
        <translation type="unfinished">Tempo und Vorzeichnung</translation>
    </message>
    <message>
        <source>Tempos, time signatures, key signatures and markers. Double-click to add or change one, drag it to move it, and press Delete to remove it.</source>
        <translation type="unfinished">Tempi, Taktarten, Tonarten und Marken. Ein Doppelklick fügt etwas hinzu oder ändert es, Ziehen verschiebt es, und Entf entfernt es.</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation type="unfinished">Ä&amp;ndern…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>velmora::TimeRuler</name>
    <message>
        <source>Bars</source>
        <translation type="unfinished">Takte</translation>
    </message>
    <message>
        <source>Drag the arrow to move the play position. Drag over the ruler to select the time that is looped.</source>
        <translation type="unfinished">Ziehen Sie den Pfeil, um die Spielposition zu bewegen. Ziehen Sie über das Lineal, um die Zeit zu wählen, die sich wiederholt.</translation>
    </message>
</context>
<context>
    <name>velmora::TransportBar</name>
    <message>
        <source>Transport</source>
        <translation type="unfinished">Transport</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Stopp</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Aufnehmen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished">Spielen</translation>
    </message>
    <message>
        <source>Te&amp;mpo</source>
        <translation type="unfinished">Temp&amp;o</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">Tempo</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">&amp;Kanal</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Kanal</translation>
    </message>
    <message>
        <source>The channel of notes that you record or draw. A digit key chooses a channel and selects its notes; with Ctrl it moves the selected notes to that channel.</source>
        <translation type="unfinished">Der Kanal der Noten, die Sie aufnehmen oder zeichnen. Eine Zifferntaste wählt einen Kanal und seine Noten; mit Strg versetzt sie die ausgewählten Noten auf diesen Kanal.</translation>
    </message>
    <message>
        <source>%1  ·  step %2</source>
        <translation type="unfinished">%1  ·  Schritt %2</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> bpm</translation>
    </message>
    <message>
        <source>Takes</source>
        <translation type="unfinished">Aufnahmen</translation>
    </message>
    <message>
        <source>Choose one of the takes that were recorded in the loop</source>
        <translation type="unfinished">Eine der Aufnahmen wählen, die in der Schleife entstanden sind</translation>
    </message>
    <message>
        <source>Count-in: %1</source>
        <translation type="unfinished">Einzählen: %1</translation>
    </message>
    <message>
        <source>The position in minutes and seconds at this speed, and in bars and beats</source>
        <translation type="unfinished">Die Position in Minuten und Sekunden bei dieser Geschwindigkeit und in Takten und Schlägen</translation>
    </message>
    <message>
        <source>The tempo of the piece at the position in beats per minute (Alt+M)</source>
        <translation type="unfinished">Das Tempo des Stücks an der Position in Schlägen pro Minute (Alt+M)</translation>
    </message>
    <message>
        <source> %</source>
        <comment>percent</comment>
        <translation type="unfinished"> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished">Geschwindigkeit</translation>
    </message>
    <message>
        <source>How fast the piece is played, as a part of its tempo. It is not saved with the piece.</source>
        <translation type="unfinished">Wie schnell das Stück gespielt wird, als Anteil seines Tempos. Das wird nicht mit dem Stück gespeichert.</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Tempo ändern</translation>
    </message>
    <message>
        <source>%1  ·  bar %2, beat %3</source>
        <translation type="unfinished">%1  ·  Takt %2, Schlag %3</translation>
    </message>
</context>
<context>
    <name>velmora::TranspositionBar</name>
    <message>
        <source>A %1 Hz</source>
        <translation type="unfinished">A %1 Hz</translation>
    </message>
    <message>
        <source>A as the Tuning Has It</source>
        <translation type="unfinished">A wie in der Stimmung</translation>
    </message>
    <message>
        <source>%1, A %2 Hz</source>
        <translation type="unfinished">%1, A %2 Hz</translation>
    </message>
    <message>
        <source>%1 on %2, A %3 Hz</source>
        <translation type="unfinished">%1 auf %2, A %3 Hz</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished">%1 auf %2</translation>
    </message>
    <message>
        <source>The key on which the tuning stands: on D, D sounds as C does on C</source>
        <translation type="unfinished">Die Taste, auf der die Stimmung steht: Auf D klingt D wie sonst C</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished"> Hz</translation>
    </message>
    <message>
        <source>As the tuning has it</source>
        <translation type="unfinished">Wie in der Stimmung</translation>
    </message>
    <message>
        <source>The pitch of A above middle C, from 380 to 480 Hz</source>
        <translation type="unfinished">Die Tonhöhe des A über dem mittleren C, von 380 bis 480 Hz</translation>
    </message>
    <message>
        <source>Usual Pitches</source>
        <translation type="unfinished">Übliche Tonhöhen</translation>
    </message>
    <message>
        <source>Choose one of the usual pitches of A</source>
        <translation type="unfinished">Wählen Sie eine der üblichen Tonhöhen des A</translation>
    </message>
    <message>
        <source>Root:</source>
        <translation type="unfinished">Grundton:</translation>
    </message>
    <message>
        <source>Pitch of A:</source>
        <translation type="unfinished">Tonhöhe des A:</translation>
    </message>
    <message>
        <source>Pitch of A</source>
        <translation type="unfinished">Tonhöhe des A</translation>
    </message>
</context>
<context>
    <name>velmora::TranspositionCommands</name>
    <message>
        <source>&amp;Root</source>
        <translation type="unfinished">&amp;Grundton</translation>
    </message>
    <message>
        <source>Pitch of &amp;A</source>
        <translation type="unfinished">Tonhöhe des &amp;A</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Stimmung</translation>
    </message>
    <message>
        <source>Root a &amp;Fifth Up</source>
        <translation type="unfinished">Grundton eine &amp;Quinte höher</translation>
    </message>
    <message>
        <source>Root a F&amp;ifth Down</source>
        <translation type="unfinished">Grundton eine Quinte &amp;tiefer</translation>
    </message>
    <message>
        <source>Root a &amp;Semitone Up</source>
        <translation type="unfinished">Grundton einen &amp;Halbton höher</translation>
    </message>
    <message>
        <source>Root a S&amp;emitone Down</source>
        <translation type="unfinished">Grundton einen Halbton t&amp;iefer</translation>
    </message>
</context>
<context>
    <name>velmora::TuningExports</name>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 wurde exportiert</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 wurde nicht exportiert. %2</translation>
    </message>
    <message>
        <source>Export MIDI in This Tuning</source>
        <translation type="unfinished">MIDI in dieser Stimmung exportieren</translation>
    </message>
    <message>
        <source>MIDI File</source>
        <translation type="unfinished">MIDI-Datei</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>a piece in a tuning</comment>
        <translation type="unfinished">%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>A MIDI file has only 15 channels for notes of different pitch, so %n note(s) are up to %1 cents out of tune.</source>
        <translation type="unfinished">
            <numerusform>Eine MIDI-Datei hat nur 15 Kanäle für Noten verschiedener Höhe; daher ist %n Note um bis zu %1 Cent verstimmt.</numerusform>
            <numerusform>Eine MIDI-Datei hat nur 15 Kanäle für Noten verschiedener Höhe; daher sind %n Noten um bis zu %1 Cent verstimmt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Tuning</source>
        <translation type="unfinished">Stimmung exportieren</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Skala</translation>
    </message>
    <message>
        <source>Export Score</source>
        <translation type="unfinished">Partitur exportieren</translation>
    </message>
    <message>
        <source>Export Roll</source>
        <translation type="unfinished">Pianorolle exportieren</translation>
    </message>
    <message>
        <source>&amp;Bars in a line:</source>
        <translation type="unfinished">&amp;Takte in einer Zeile:</translation>
    </message>
</context>
<context>
    <name>velmora::TuningPanel</name>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Stimmung</translation>
    </message>
    <message>
        <source>Open T&amp;uning…</source>
        <translation type="unfinished">Stimmung ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a tuning file: a scale (.scl) or frequencies (.mtx)</source>
        <translation type="unfinished">Eine Stimmungsdatei öffnen: eine Skala (.scl) oder Frequenzen (.mtx)</translation>
    </message>
    <message>
        <source>The pitches of middle C and of the A above it in this tuning</source>
        <translation type="unfinished">Die Tonhöhen des eingestrichenen C und des A darüber in dieser Stimmung</translation>
    </message>
    <message>
        <source>%1 (middle C): %2 Hz
%3: %4 Hz</source>
        <translation type="unfinished">%1 (eingestrichenes C): %2 Hz
%3: %4 Hz</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Gleichstufig</translation>
    </message>
    <message>
        <source>Twelve equal semitones</source>
        <translation type="unfinished">Zwölf gleiche Halbtöne</translation>
    </message>
    <message>
        <source>Quartercomma Meantone</source>
        <translation type="unfinished">Viertelkomma-mitteltönig</translation>
    </message>
    <message>
        <source>Pure major thirds</source>
        <translation type="unfinished">Reine große Terzen</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation type="unfinished">Dynamisch</translation>
    </message>
    <message>
        <source>Adapts its thirds to what you play</source>
        <translation type="unfinished">Passt seine Terzen Ihrem Spiel an</translation>
    </message>
    <message>
        <source>Find a tuning</source>
        <translation type="unfinished">Stimmung suchen</translation>
    </message>
    <message>
        <source>Tunings</source>
        <translation type="unfinished">Stimmungen</translation>
    </message>
    <message>
        <source>Pythagorean</source>
        <translation type="unfinished">Pythagoreisch</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mitteltönig</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">Französisch</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">Englisch</translation>
    </message>
    <message>
        <source>Well temperaments</source>
        <translation type="unfinished">Wohltemperierungen</translation>
    </message>
    <message>
        <source>Just intonation</source>
        <translation type="unfinished">Reine Stimmung</translation>
    </message>
    <message>
        <source>Equal divisions</source>
        <translation type="unfinished">Gleichmäßige Teilungen</translation>
    </message>
    <message>
        <source>Outside Europe</source>
        <translation type="unfinished">Außerhalb Europas</translation>
    </message>
    <message>
        <source>Following Meantone</source>
        <translation type="unfinished">Folgende Mitteltönigkeit</translation>
    </message>
    <message>
        <source>Spells each key as the music asks for, with pure thirds</source>
        <translation type="unfinished">Deutet jede Taste so, wie die Musik es verlangt, mit reinen Terzen</translation>
    </message>
    <message>
        <source>Pure</source>
        <translation type="unfinished">Rein</translation>
    </message>
    <message>
        <source>Makes the chords that you play pure</source>
        <translation type="unfinished">Macht die gespielten Akkorde rein</translation>
    </message>
    <message>
        <source>Shape…</source>
        <translation type="unfinished">Formen…</translation>
    </message>
    <message>
        <source>Show the circle of fifths and what sounds, and shape the tuning</source>
        <translation type="unfinished">Den Quintenzirkel und das Klingende zeigen und die Stimmung formen</translation>
    </message>
</context>
<context>
    <name>velmora::TuningShaper</name>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Stimmung formen</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <translation type="unfinished">%1 (bearbeitet)</translation>
    </message>
    <message>
        <source>%1 (edited, %2)</source>
        <translation type="unfinished">%1 (bearbeitet, %2)</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStrip</name>
    <message>
        <source>Tuning strip</source>
        <translation type="unfinished">Stimmungsleiste</translation>
    </message>
    <message>
        <source>How many cents each note of the tuning lies above or below equal temperament</source>
        <translation type="unfinished">Um wie viele Cent jeder Ton der Stimmung über oder unter der gleichstufigen liegt</translation>
    </message>
    <message>
        <source>%1: %2 cents</source>
        <translation type="unfinished">%1: %2 Cent</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStudio</name>
    <message>
        <source>Pages of the tuning studio</source>
        <translation type="unfinished">Seiten des Stimmstudios</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished">Kreis</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished">Formen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished">Jetzt</translation>
    </message>
</context>
<context>
    <name>velmora::UndoHistory</name>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Verlauf der Bearbeitungen</translation>
    </message>
    <message>
        <source>Edits of the piece</source>
        <translation type="unfinished">Bearbeitungen des Stücks</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation type="unfinished">Wie geöffnet</translation>
    </message>
</context>
<context>
    <name>velmora::VelocityLane</name>
    <message>
        <source>Velocities</source>
        <translation type="unfinished">Anschlagstärken</translation>
    </message>
    <message>
        <source>Drag over the bars to change velocities. With Shift, they follow a straight line. If notes are selected, only they change.</source>
        <translation type="unfinished">Ziehen Sie über die Balken, um die Anschlagstärken zu ändern. Mit der Umschalttaste folgen sie einer geraden Linie. Sind Noten ausgewählt, ändern sich nur diese.</translation>
    </message>
</context>
<context>
    <name>velmora::VoiceRow</name>
    <message>
        <source>Record and draw on this voice; double-click to select its notes</source>
        <translation type="unfinished">Auf dieser Stimme aufnehmen und zeichnen; ein Doppelklick wählt ihre Noten aus</translation>
    </message>
    <message>
        <source>M</source>
        <comment>mute</comment>
        <translation type="unfinished">M</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished">Stumm</translation>
    </message>
    <message>
        <source>S</source>
        <comment>solo</comment>
        <translation type="unfinished">S</translation>
    </message>
    <message>
        <source>Solo: only such voices sound</source>
        <translation type="unfinished">Solo: nur solche Stimmen klingen</translation>
    </message>
    <message>
        <source>L</source>
        <comment>lock</comment>
        <translation type="unfinished">G</translation>
    </message>
    <message>
        <source>Lock: protect its notes from edits</source>
        <translation type="unfinished">Gesperrt: schützt die Noten vor Änderungen</translation>
    </message>
    <message>
        <source>Drum kit %1</source>
        <translation type="unfinished">Schlagzeug %1</translation>
    </message>
    <message>
        <source>Program %1 of bank %2</source>
        <translation type="unfinished">Programm %1 von Bank %2</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Stimme %1</translation>
    </message>
    <message>
        <source>Record and draw on %1</source>
        <translation type="unfinished">Auf %1 aufnehmen und zeichnen</translation>
    </message>
    <message>
        <source>Name of voice %1</source>
        <translation type="unfinished">Name der Stimme %1</translation>
    </message>
    <message>
        <source>Program of %1</source>
        <translation type="unfinished">Programm von %1</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Lautstärke von %1</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation type="unfinished">%1 stumm schalten</translation>
    </message>
    <message>
        <source>Solo %1</source>
        <translation type="unfinished">%1 solo</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation type="unfinished">%1 sperren</translation>
    </message>
    <message>
        <source>What the voice plays</source>
        <translation type="unfinished">Was die Stimme spielt</translation>
    </message>
    <message>
        <source>This instrument plays every voice alike</source>
        <translation type="unfinished">Dieses Instrument spielt alle Stimmen gleich</translation>
    </message>
    <message>
        <source>How loud the voice is, from 0 to 127</source>
        <translation type="unfinished">Wie laut die Stimme ist, von 0 bis 127</translation>
    </message>
    <message>
        <source>Like the instrument</source>
        <translation type="unfinished">Wie das Instrument</translation>
    </message>
    <message>
        <source>Select &amp;Notes</source>
        <translation type="unfinished">&amp;Noten auswählen</translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation type="unfinished">&amp;Stumm</translation>
    </message>
    <message>
        <source>&amp;Solo</source>
        <translation type="unfinished">S&amp;olo</translation>
    </message>
    <message>
        <source>&amp;Lock</source>
        <translation type="unfinished">S&amp;perren</translation>
    </message>
</context>
<context>
    <name>velmora::VoicesPanel</name>
    <message>
        <source>Otherwise the instrument plays every voice alike</source>
        <translation type="unfinished">Sonst spielt das Instrument alle Stimmen gleich</translation>
    </message>
    <message>
        <source>Rename Voice</source>
        <translation type="unfinished">Stimme umbenennen</translation>
    </message>
    <message>
        <source>Change Program of Voice</source>
        <translation type="unfinished">Programm der Stimme ändern</translation>
    </message>
    <message>
        <source>Change Volume of Voice</source>
        <translation type="unfinished">Lautstärke der Stimme ändern</translation>
    </message>
    <message>
        <source>Every voice has its own sound</source>
        <translation type="unfinished">Jede Stimme hat ihren eigenen Klang</translation>
    </message>
</context>
<context>
    <name>velmora::Workspace</name>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>Open pieces</source>
        <translation type="unfinished">Offene Stücke</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished">Klaviatur</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrument</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Stimmung</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Piece</source>
        <translation type="unfinished">&amp;Stück</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">&amp;Hilfe</translation>
    </message>
    <message>
        <source>Silence Everything</source>
        <translation type="unfinished">Alles still</translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished">Spieltisch</translation>
    </message>
    <message>
        <source>C&amp;onsole</source>
        <translation type="unfinished">S&amp;pieltisch</translation>
    </message>
    <message>
        <source>Tuning Studio</source>
        <translation type="unfinished">Stimmstudio</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Üben</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Stimmen</translation>
    </message>
</context>
<context>
    <name>velmora::messages</name>
    <message>
        <source>MIDI Player</source>
        <translation type="unfinished">MIDI-Spieler</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation type="unfinished">Sample %1</translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished">Ausgabe</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation type="unfinished">Abtastrate</translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished">Periode</translation>
    </message>
    <message>
        <source>From MIDI to sound</source>
        <translation type="unfinished">Von MIDI zum Klang</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Stimmen</translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished">Last</translation>
    </message>
    <message>
        <source>Lost periods</source>
        <translation type="unfinished">Verlorene Perioden</translation>
    </message>
    <message>
        <source>Instruments in memory</source>
        <translation type="unfinished">Instrumente im Speicher</translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">keine</translation>
    </message>
    <message>
        <source>%1 frames, %2 ms</source>
        <translation type="unfinished">%1 Frames, %2 ms</translation>
    </message>
    <message>
        <source>%1 ms (input %2 ms, period and limiter %3 ms, sound server %4 ms)</source>
        <translation type="unfinished">%1 ms (Eingang %2 ms, Periode und Limiter %3 ms, Soundserver %4 ms)</translation>
    </message>
    <message>
        <source>%1, released keys are shortened</source>
        <translation type="unfinished">%1, losgelassene Tasten werden gekürzt</translation>
    </message>
    <message>
        <source>%1 % of the period, at worst %2 %</source>
        <translation type="unfinished">%1 % der Periode, höchstens %2 %</translation>
    </message>
    <message>
        <source>%1, the last at %2</source>
        <translation type="unfinished">%1, die letzte um %2</translation>
    </message>
    <message>
        <source>%1 messages a second</source>
        <translation type="unfinished">%1 Nachrichten je Sekunde</translation>
    </message>
    <message>
        <source>%1GB</source>
        <translation type="unfinished">%1 GB</translation>
    </message>
    <message>
        <source>%1MB</source>
        <translation type="unfinished">%1 MB</translation>
    </message>
    <message>
        <source>%1KB</source>
        <translation type="unfinished">%1 KB</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished">%1 Byte</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation type="unfinished">Kein Ton</translation>
    </message>
    <message>
        <source>The sound card</source>
        <translation type="unfinished">Die Soundkarte</translation>
    </message>
    <message>
        <source>The output &quot;%1&quot;</source>
        <translation type="unfinished">Die Ausgabe „%1“</translation>
    </message>
    <message>
        <source>No sound output was found; looking for one.</source>
        <translation type="unfinished">Es wurde keine Tonausgabe gefunden; es wird weiter gesucht.</translation>
    </message>
    <message>
        <source>%1 has gone; waiting for it.</source>
        <translation type="unfinished">%1 ist weg; Velmora wartet darauf.</translation>
    </message>
    <message>
        <source>%1 is missing; waiting for it.</source>
        <translation type="unfinished">%1 fehlt; Velmora wartet darauf.</translation>
    </message>
    <message>
        <source>%1 has gone; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 ist weg; bis zur Rückkehr spielt %2.</translation>
    </message>
    <message>
        <source>%1 is missing; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 fehlt; bis zur Rückkehr spielt %2.</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished">kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation type="unfinished">kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished">ist leer</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation type="unfinished">ist zu groß</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a file</source>
        <translation type="unfinished">ist eine Pipe oder ein Gerät, keine Datei</translation>
    </message>
    <message>
        <source>needs %1 more of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">braucht %1 mehr Speicher, aber nur %2 sind frei; entladen Sie andere Instrumente oder schließen Sie andere Programme</translation>
    </message>
    <message>
        <source>is damaged or cut short</source>
        <translation type="unfinished">ist beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>is cut short</source>
        <translation type="unfinished">ist abgeschnitten</translation>
    </message>
    <message>
        <source>is damaged and its presets cannot be played; opening it as stops may work</source>
        <translation type="unfinished">ist beschädigt, und die Presets können nicht gespielt werden; als Register geöffnet geht es vielleicht</translation>
    </message>
    <message>
        <source>has no presets</source>
        <translation type="unfinished">hat keine Presets</translation>
    </message>
    <message>
        <source>the file does not contain its data</source>
        <translation type="unfinished">die Datei enthält ihre Daten nicht</translation>
    </message>
    <message>
        <source>the file has too many chunks</source>
        <translation type="unfinished">die Datei hat zu viele Blöcke</translation>
    </message>
    <message>
        <source>lists are nested too deeply</source>
        <translation type="unfinished">Listen sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>is not a RIFF file</source>
        <translation type="unfinished">ist keine RIFF-Datei</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation type="unfinished">hat kein „%1“</translation>
    </message>
    <message>
        <source>this is not a tuning file</source>
        <translation type="unfinished">dies ist keine Stimmungsdatei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation type="unfinished">„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation type="unfinished">„%1“ ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a playable pitch</source>
        <translation type="unfinished">„%1“ ist keine spielbare Tonhöhe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a zero denominator</source>
        <translation type="unfinished">„%1“ hat den Nenner null</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the number of notes; only scales of 12 notes are supported</source>
        <translation type="unfinished">„%1“ ist die Zahl der Töne; nur Skalen mit 12 Tönen werden unterstützt</translation>
    </message>
    <message>
        <source>this is not a Standard MIDI File: &quot;MThd&quot; is missing</source>
        <translation type="unfinished">dies ist keine Standard-MIDI-Datei: „MThd“ fehlt</translation>
    </message>
    <message>
        <source>the header is too short</source>
        <translation type="unfinished">der Kopf ist zu kurz</translation>
    </message>
    <message>
        <source>the header announces no tracks</source>
        <translation type="unfinished">der Kopf kündigt keine Spuren an</translation>
    </message>
    <message>
        <source>an event exceeds the end of its track</source>
        <translation type="unfinished">ein Ereignis reicht über das Ende seiner Spur hinaus</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 tracks</source>
        <translation type="unfinished">die Datei endet nach %1 von %2 Spuren</translation>
    </message>
    <message>
        <source>a chunk of %1 bytes is truncated: the file has only %2 more</source>
        <translation type="unfinished">ein Block von %1 Byte ist abgeschnitten: die Datei hat nur noch %2</translation>
    </message>
    <message>
        <source>this is not a session of Velmora</source>
        <translation type="unfinished">dies ist keine Sitzung von Velmora</translation>
    </message>
    <message>
        <source>a later version of Velmora has written this session</source>
        <translation type="unfinished">eine spätere Version von Velmora hat diese Sitzung geschrieben</translation>
    </message>
    <message>
        <source>is too large for the free memory; unload other instruments, then open it again</source>
        <translation type="unfinished">ist zu groß für den freien Speicher; entladen Sie andere Instrumente und öffnen Sie es dann wieder</translation>
    </message>
    <message>
        <source>has no instruments</source>
        <translation type="unfinished">hat keine Instrumente</translation>
    </message>
    <message>
        <source>has no samples</source>
        <translation type="unfinished">hat keine Samples</translation>
    </message>
    <message>
        <source>is not a sound file in a supported format</source>
        <translation type="unfinished">ist keine Klangdatei in einem unterstützten Format</translation>
    </message>
    <message>
        <source>is a damaged WavPack file (%1)</source>
        <translation type="unfinished">ist eine beschädigte WavPack-Datei (%1)</translation>
    </message>
    <message>
        <source>lies outside the folder of the instrument</source>
        <translation type="unfinished">liegt außerhalb des Ordners des Instruments</translation>
    </message>
    <message>
        <source>names a file outside the folder of the organ: &quot;%1&quot;</source>
        <translation type="unfinished">nennt eine Datei außerhalb des Ordners der Orgel: „%1“</translation>
    </message>
    <message>
        <source>names a file outside the folder of its package: &quot;%1&quot;</source>
        <translation type="unfinished">nennt eine Datei außerhalb des Ordners seines Pakets: „%1“</translation>
    </message>
    <message>
        <source>is longer than a sound may be: it has more than 2 GB of samples</source>
        <translation type="unfinished">ist länger, als ein Klang sein darf: mehr als 2 GB Samples</translation>
    </message>
    <message>
        <source>is damaged: its samples would take %1, but the file holds only %2</source>
        <translation type="unfinished">ist beschädigt: die Samples bräuchten %1, aber die Datei hat nur %2</translation>
    </message>
    <message>
        <source>is a SoundFont %1 bank with compressed samples; convert it to SoundFont 2</source>
        <translation type="unfinished">ist eine SoundFont-%1-Bank mit komprimierten Samples; wandeln Sie sie in SoundFont 2 um</translation>
    </message>
    <message>
        <source>cannot be loaded: its samples are encrypted and need a licence; open an organ without encryption</source>
        <translation type="unfinished">kann nicht geladen werden: die Samples sind verschlüsselt und brauchen eine Lizenz; öffnen Sie eine Orgel ohne Verschlüsselung</translation>
    </message>
    <message>
        <source>cannot be played: no pipe has a sample file</source>
        <translation type="unfinished">kann nicht gespielt werden: keine Pfeife hat eine Sample-Datei</translation>
    </message>
    <message>
        <source>cannot be played: none of the %1 sample files can be decoded, for example %2</source>
        <translation type="unfinished">kann nicht gespielt werden: keine der %1 Sample-Dateien kann dekodiert werden, zum Beispiel %2</translation>
    </message>
    <message>
        <source>is not an organ definition: its root element is not &quot;Hauptwerk&quot;</source>
        <translation type="unfinished">ist keine Orgeldefinition: das Wurzelelement ist nicht „Hauptwerk“</translation>
    </message>
    <message>
        <source>is written in UTF-16; save it as UTF-8 in a text editor</source>
        <translation type="unfinished">ist in UTF-16 geschrieben; speichern Sie es in einem Texteditor als UTF-8</translation>
    </message>
    <message>
        <source>cannot be played: it has no stop with pipes</source>
        <translation type="unfinished">kann nicht gespielt werden: kein Register hat Pfeifen</translation>
    </message>
    <message>
        <source>holds no organ definition (a file with the extension .organ)</source>
        <translation type="unfinished">enthält keine Orgeldefinition (eine Datei mit der Endung .organ)</translation>
    </message>
    <message>
        <source>this package is not in the folder of the organ</source>
        <translation type="unfinished">dieses Paket ist nicht im Ordner der Orgel</translation>
    </message>
    <message>
        <source>is not a zip archive, or is damaged</source>
        <translation type="unfinished">ist kein Zip-Archiv oder ist beschädigt</translation>
    </message>
    <message>
        <source>is a damaged archive</source>
        <translation type="unfinished">ist ein beschädigtes Archiv</translation>
    </message>
    <message>
        <source>is encrypted; only archives without a password can be opened</source>
        <translation type="unfinished">ist verschlüsselt; nur Archive ohne Passwort können geöffnet werden</translation>
    </message>
    <message>
        <source>holds a file whose name leads out of the archive: &quot;%1&quot;</source>
        <translation type="unfinished">enthält eine Datei, deren Name aus dem Archiv hinausführt: „%1“</translation>
    </message>
    <message>
        <source>is not in the archive</source>
        <translation type="unfinished">ist nicht im Archiv</translation>
    </message>
    <message>
        <source>is damaged in the archive</source>
        <translation type="unfinished">ist im Archiv beschädigt</translation>
    </message>
    <message>
        <source>is larger than the archive says</source>
        <translation type="unfinished">ist größer, als das Archiv sagt</translation>
    </message>
    <message>
        <source>is cut short in the archive</source>
        <translation type="unfinished">ist im Archiv abgeschnitten</translation>
    </message>
    <message>
        <source>an attack has no sample file</source>
        <translation type="unfinished">ein Einschwingen hat keine Sample-Datei</translation>
    </message>
    <message>
        <source>a release has no sample file</source>
        <translation type="unfinished">ein Ausklang hat keine Sample-Datei</translation>
    </message>
    <message>
        <source>recordings with the tremulant are not played</source>
        <translation type="unfinished">Aufnahmen mit dem Tremulanten werden nicht gespielt</translation>
    </message>
    <message>
        <source>recordings for quick repetitions are not played</source>
        <translation type="unfinished">Aufnahmen für schnelle Wiederholungen werden nicht gespielt</translation>
    </message>
    <message>
        <source>borrowed from pipes that are borrowed from each other</source>
        <translation type="unfinished">von Pfeifen geliehen, die voneinander geliehen sind</translation>
    </message>
    <message>
        <source>does not say from which manual, stop and pipe it is borrowed</source>
        <translation type="unfinished">sagt nicht, von welchem Manual, Register und von welcher Pfeife es geliehen ist</translation>
    </message>
    <message>
        <source>borrowed from stop %1 of manual %2, which does not exist</source>
        <translation type="unfinished">von Register %1 des Manuals %2 geliehen, das es nicht gibt</translation>
    </message>
    <message>
        <source>borrowed from a pipe that does not sound</source>
        <translation type="unfinished">von einer Pfeife geliehen, die nicht klingt</translation>
    </message>
    <message>
        <source>is outside the MIDI keys 0 to 127</source>
        <translation type="unfinished">liegt außerhalb der MIDI-Tasten 0 bis 127</translation>
    </message>
    <message>
        <source>its stop %1 does not exist</source>
        <translation type="unfinished">sein Register %1 gibt es nicht</translation>
    </message>
    <message>
        <source>its rank %1 does not exist</source>
        <translation type="unfinished">seine Pfeifenreihe %1 gibt es nicht</translation>
    </message>
    <message>
        <source>belongs to no manual</source>
        <translation type="unfinished">gehört zu keinem Manual</translation>
    </message>
    <message>
        <source>has no pipe that sounds</source>
        <translation type="unfinished">hat keine Pfeife, die klingt</translation>
    </message>
    <message>
        <source>is a noise or an effect that sounds when its knob is drawn, not when keys are pressed</source>
        <translation type="unfinished">ist ein Geräusch oder Effekt, der beim Ziehen des Knopfes klingt, nicht bei Tasten</translation>
    </message>
    <message>
        <source>silences its own keys (&quot;unison off&quot;), which is not supported</source>
        <translation type="unfinished">bringt die eigenen Tasten zum Schweigen („Unison off“), was nicht unterstützt wird</translation>
    </message>
    <message>
        <source>couples only the lowest or the highest key, which is not supported</source>
        <translation type="unfinished">koppelt nur die tiefste oder höchste Taste, was nicht unterstützt wird</translation>
    </message>
    <message>
        <source>couples to a manual that does not exist</source>
        <translation type="unfinished">koppelt an ein Manual, das es nicht gibt</translation>
    </message>
    <message>
        <source>tremulants are not supported</source>
        <translation type="unfinished">Tremulanten werden nicht unterstützt</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation type="unfinished">%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1, byte %2: %3</source>
        <translation type="unfinished">%1, Byte %2: %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits, which takes %3</source>
        <translation type="unfinished">braucht etwa %1 Speicher, aber nur %2 sind frei; laden Sie es mit 16 Bit, was %3 braucht</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it in mono, which takes %3</source>
        <translation type="unfinished">braucht etwa %1 Speicher, aber nur %2 sind frei; laden Sie es in Mono, was %3 braucht</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits and in mono, which takes %3</source>
        <translation type="unfinished">braucht etwa %1 Speicher, aber nur %2 sind frei; laden Sie es mit 16 Bit und in Mono, was %3 braucht</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">braucht etwa %1 Speicher, aber nur %2 sind frei; entladen Sie andere Instrumente oder schließen Sie andere Programme</translation>
    </message>
    <message>
        <source>these are not the registrations of an organ</source>
        <translation type="unfinished">dies sind keine Registrierungen einer Orgel</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load fewer of its stops</source>
        <translation type="unfinished">braucht etwa %1 Speicher, aber nur %2 sind frei; laden Sie weniger Register</translation>
    </message>
    <message>
        <source>the MIDI output %1 cannot be connected</source>
        <translation type="unfinished">Der MIDI-Ausgang %1 kann nicht verbunden werden</translation>
    </message>
    <message>
        <source>the MIDI output %1 takes no message</source>
        <translation type="unfinished">Der MIDI-Ausgang %1 nimmt keine Nachricht an</translation>
    </message>
    <message>
        <source>the scale has no description and no number of notes</source>
        <translation type="unfinished">die Skala hat weder Beschreibung noch Anzahl der Töne</translation>
    </message>
    <message>
        <source>the scale has no number of notes</source>
        <translation type="unfinished">in der Skala fehlt die Anzahl der Töne</translation>
    </message>
    <message>
        <source>the scale ends after %1 of %2 pitches</source>
        <translation type="unfinished">die Skala endet nach %1 von %2 Tonhöhen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of notes from 0 to 128</source>
        <translation type="unfinished">„%1“ ist keine Anzahl von Tönen von 0 bis 128</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch: write cents with a point, as in 701.955, or a ratio, as in 3/2</source>
        <translation type="unfinished">„%1“ ist keine Tonhöhe: Schreiben Sie Cent mit einem Punkt, wie 701.955, oder ein Verhältnis, wie 3/2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch above 0</source>
        <translation type="unfinished">„%1“ ist keine Tonhöhe über 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a number that is too large</source>
        <translation type="unfinished">„%1“ enthält eine zu große Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an octave, the index of a note and its frequency in hertz, which sounds on a key from 0 to 127</source>
        <translation type="unfinished">„%1“ braucht eine Oktave, die Nummer eines Tons und seine Frequenz in Hertz, der auf einer Taste von 0 bis 127 klingt</translation>
    </message>
    <message>
        <source>the mapping ends before the size of the mapping</source>
        <translation type="unfinished">die Tastenbelegung endet vor ihrer Größe</translation>
    </message>
    <message>
        <source>the mapping ends before the first key</source>
        <translation type="unfinished">die Tastenbelegung endet vor der ersten Taste</translation>
    </message>
    <message>
        <source>the mapping ends before the last key</source>
        <translation type="unfinished">die Tastenbelegung endet vor der letzten Taste</translation>
    </message>
    <message>
        <source>the mapping ends before the middle key</source>
        <translation type="unfinished">die Tastenbelegung endet vor der mittleren Taste</translation>
    </message>
    <message>
        <source>the mapping ends before the reference key</source>
        <translation type="unfinished">die Tastenbelegung endet vor der Bezugstaste</translation>
    </message>
    <message>
        <source>the mapping ends before the frequency</source>
        <translation type="unfinished">die Tastenbelegung endet vor der Frequenz</translation>
    </message>
    <message>
        <source>the mapping ends before the formal octave</source>
        <translation type="unfinished">die Tastenbelegung endet vor der formalen Oktave</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the size of the mapping, a number from 0 to %2</source>
        <translation type="unfinished">„%1“ ist nicht die Größe der Tastenbelegung, eine Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first key, a number from 0 to %2</source>
        <translation type="unfinished">„%1“ ist nicht die erste Taste, eine Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the last key, a number from 0 to %2</source>
        <translation type="unfinished">„%1“ ist nicht die letzte Taste, eine Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the middle key, a number from 0 to %2</source>
        <translation type="unfinished">„%1“ ist nicht die mittlere Taste, eine Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the reference key, a number from 0 to %2</source>
        <translation type="unfinished">„%1“ ist nicht die Bezugstaste, eine Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the formal octave, a number from 0 to %2</source>
        <translation type="unfinished">„%1“ ist nicht die formale Oktave, eine Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a degree of the scale or an x, a number from 0 to %2</source>
        <translation type="unfinished">„%1“ ist weder eine Stufe der Skala, eine Zahl von 0 bis %2, noch ein x</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a frequency in hertz above 0</source>
        <translation type="unfinished">„%1“ ist keine Frequenz in Hertz über 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no =</source>
        <translation type="unfinished">in „%1“ fehlt ein =</translation>
    </message>
    <message>
        <source>the reference key %1 plays no note</source>
        <translation type="unfinished">die Bezugstaste %1 spielt keinen Ton</translation>
    </message>
    <message>
        <source>the pitch of key %1 is beyond all bounds</source>
        <translation type="unfinished">die Tonhöhe der Taste %1 liegt jenseits aller Grenzen</translation>
    </message>
    <message>
        <source>the pitches are only given by formulas, in the section [Functional Tuning]</source>
        <translation type="unfinished">die Tonhöhen sind nur als Formeln gegeben, im Abschnitt [Functional Tuning]</translation>
    </message>
    <message>
        <source>there is no section [Exact Tuning] or [Tuning]</source>
        <translation type="unfinished">es gibt keinen Abschnitt [Exact Tuning] oder [Tuning]</translation>
    </message>
    <message>
        <source>a keyboard mapping needs a scale, and this tuning has none</source>
        <translation type="unfinished">eine Tastenbelegung braucht eine Skala, und diese Stimmung hat keine</translation>
    </message>
    <message>
        <source>the scale repeats after %1 cents, but the plain reading repeats it after an octave</source>
        <translation type="unfinished">die Skala wiederholt sich nach %1 Cent, aber das schlichte Lesen wiederholt sie nach einer Oktave</translation>
    </message>
    <message>
        <source>in the plain reading, General MIDI plays some keys of &quot;%1&quot; %2 cents out of tune</source>
        <translation type="unfinished">beim schlichten Lesen spielt General MIDI manche Tasten von „%1“ um %2 Cent verstimmt</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation type="unfinished">%1, Zeile %2, Spalte %3: %4</translation>
    </message>
    <message>
        <source>the XML is damaged: %1</source>
        <translation type="unfinished">das XML ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The file is damaged, and only a part of it could be read. To keep what may still be in it, save the piece under another name.</source>
        <translation type="unfinished">Die Datei ist beschädigt, und nur ein Teil von ihr konnte gelesen werden. Damit erhalten bleibt, was noch in ihr stehen mag, speichern Sie das Stück unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>is not a MusicXML score</source>
        <translation type="unfinished">ist keine MusicXML-Partitur</translation>
    </message>
    <message>
        <source>is an archive, but not of a score</source>
        <translation type="unfinished">ist ein Archiv, aber nicht das einer Partitur</translation>
    </message>
    <message>
        <source>the score &quot;%1&quot; is missing from the archive</source>
        <translation type="unfinished">die Partitur „%1“ fehlt im Archiv</translation>
    </message>
    <message>
        <source>the score has no parts</source>
        <translation type="unfinished">die Partitur hat keine Stimmen</translation>
    </message>
    <message>
        <source>the score has too many parts</source>
        <translation type="unfinished">die Partitur hat zu viele Stimmen</translation>
    </message>
    <message>
        <source>measure %1 is too long</source>
        <translation type="unfinished">Takt %1 ist zu lang</translation>
    </message>
    <message>
        <source>the music is too long</source>
        <translation type="unfinished">die Musik ist zu lang</translation>
    </message>
    <message>
        <source>the MIDI output %1 is gone</source>
        <translation type="unfinished">Der MIDI-Ausgang %1 ist nicht mehr da</translation>
    </message>
</context>
<context>
    <name>velmora::nameParts</name>
    <message>
        <source>More</source>
        <translation type="unfinished">Mehr</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished">Leeren</translation>
    </message>
</context>
<context>
    <name>velmora::noteNames</name>
    <message>
        <source>La</source>
        <translation type="unfinished">La</translation>
    </message>
    <message>
        <source>Si</source>
        <translation type="unfinished">Si</translation>
    </message>
    <message>
        <source>Do</source>
        <translation type="unfinished">Do</translation>
    </message>
    <message>
        <source>Re</source>
        <translation type="unfinished">Re</translation>
    </message>
    <message>
        <source>Mi</source>
        <translation type="unfinished">Mi</translation>
    </message>
    <message>
        <source>Fa</source>
        <translation type="unfinished">Fa</translation>
    </message>
    <message>
        <source>Sol</source>
        <translation type="unfinished">Sol</translation>
    </message>
</context>
<context>
    <name>velmora::programNames</name>
    <message>
        <source>1 Acoustic Grand Piano</source>
        <translation type="unfinished">1 Konzertflügel</translation>
    </message>
    <message>
        <source>2 Bright Acoustic Piano</source>
        <translation type="unfinished">2 Helles Klavier</translation>
    </message>
    <message>
        <source>3 Electric Grand Piano</source>
        <translation type="unfinished">3 E-Flügel</translation>
    </message>
    <message>
        <source>4 Honky-Tonk Piano</source>
        <translation type="unfinished">4 Honky-Tonk-Klavier</translation>
    </message>
    <message>
        <source>5 Rhodes Piano</source>
        <translation type="unfinished">5 Rhodes-Piano</translation>
    </message>
    <message>
        <source>6 Chorus Piano</source>
        <translation type="unfinished">6 Chorus-Piano</translation>
    </message>
    <message>
        <source>7 Harpsichord</source>
        <translation type="unfinished">7 Cembalo</translation>
    </message>
    <message>
        <source>8 Clavinet</source>
        <translation type="unfinished">8 Clavinet</translation>
    </message>
    <message>
        <source>9 Celesta</source>
        <translation type="unfinished">9 Celesta</translation>
    </message>
    <message>
        <source>10 Glockenspiel</source>
        <translation type="unfinished">10 Glockenspiel</translation>
    </message>
    <message>
        <source>11 Music Box</source>
        <translation type="unfinished">11 Spieldose</translation>
    </message>
    <message>
        <source>12 Vibraphone</source>
        <translation type="unfinished">12 Vibraphon</translation>
    </message>
    <message>
        <source>13 Marimba</source>
        <translation type="unfinished">13 Marimba</translation>
    </message>
    <message>
        <source>14 Xylophone</source>
        <translation type="unfinished">14 Xylophon</translation>
    </message>
    <message>
        <source>15 Tubular Bells</source>
        <translation type="unfinished">15 Röhrenglocken</translation>
    </message>
    <message>
        <source>16 Dulcimer</source>
        <translation type="unfinished">16 Hackbrett</translation>
    </message>
    <message>
        <source>17 Hammond Organ</source>
        <translation type="unfinished">17 Hammond-Orgel</translation>
    </message>
    <message>
        <source>18 Percusive Organ</source>
        <translation type="unfinished">18 Perkussive Orgel</translation>
    </message>
    <message>
        <source>19 Rock Organ</source>
        <translation type="unfinished">19 Rockorgel</translation>
    </message>
    <message>
        <source>20 Church Organ</source>
        <translation type="unfinished">20 Kirchenorgel</translation>
    </message>
    <message>
        <source>21 Reed Organ</source>
        <translation type="unfinished">21 Harmonium</translation>
    </message>
    <message>
        <source>22 Accordion</source>
        <translation type="unfinished">22 Akkordeon</translation>
    </message>
    <message>
        <source>23 Harmonica</source>
        <translation type="unfinished">23 Mundharmonika</translation>
    </message>
    <message>
        <source>24 Tango Accordion</source>
        <translation type="unfinished">24 Bandoneon</translation>
    </message>
    <message>
        <source>25 Nylon Guitar</source>
        <translation type="unfinished">25 Nylongitarre</translation>
    </message>
    <message>
        <source>26 Steel String Guitar</source>
        <translation type="unfinished">26 Stahlsaitengitarre</translation>
    </message>
    <message>
        <source>27 Jazz Guitar</source>
        <translation type="unfinished">27 Jazzgitarre</translation>
    </message>
    <message>
        <source>28 Clean E. Guitar</source>
        <translation type="unfinished">28 Unverzerrte E-Gitarre</translation>
    </message>
    <message>
        <source>29 Mute E. Guitar</source>
        <translation type="unfinished">29 Gedämpfte E-Gitarre</translation>
    </message>
    <message>
        <source>30 Overdrive Guitar</source>
        <translation type="unfinished">30 Overdrive-Gitarre</translation>
    </message>
    <message>
        <source>31 Distort Guitar</source>
        <translation type="unfinished">31 Verzerrte Gitarre</translation>
    </message>
    <message>
        <source>32 Harmonics</source>
        <translation type="unfinished">32 Flageolett</translation>
    </message>
    <message>
        <source>33 Acoustic Bass</source>
        <translation type="unfinished">33 Akustischer Bass</translation>
    </message>
    <message>
        <source>34 Finger E. Bass</source>
        <translation type="unfinished">34 E-Bass (Finger)</translation>
    </message>
    <message>
        <source>35 Picked E. Bass</source>
        <translation type="unfinished">35 E-Bass (Plektrum)</translation>
    </message>
    <message>
        <source>36 Fretless Bass</source>
        <translation type="unfinished">36 Bundloser Bass</translation>
    </message>
    <message>
        <source>37 Slap Bass 1</source>
        <translation type="unfinished">37 Slap-Bass 1</translation>
    </message>
    <message>
        <source>38 Slap Bass 2</source>
        <translation type="unfinished">38 Slap-Bass 2</translation>
    </message>
    <message>
        <source>39 Synth Bass1</source>
        <translation type="unfinished">39 Synthesizer-Bass 1</translation>
    </message>
    <message>
        <source>40 Synth Bass2</source>
        <translation type="unfinished">40 Synthesizer-Bass 2</translation>
    </message>
    <message>
        <source>41 Violin</source>
        <translation type="unfinished">41 Violine</translation>
    </message>
    <message>
        <source>42 Viola</source>
        <translation type="unfinished">42 Viola</translation>
    </message>
    <message>
        <source>43 Cello</source>
        <translation type="unfinished">43 Violoncello</translation>
    </message>
    <message>
        <source>44 Contrabass</source>
        <translation type="unfinished">44 Kontrabass</translation>
    </message>
    <message>
        <source>45 Tremolo Strings</source>
        <translation type="unfinished">45 Streichertremolo</translation>
    </message>
    <message>
        <source>46 Pizzicato Strings</source>
        <translation type="unfinished">46 Streicherpizzicato</translation>
    </message>
    <message>
        <source>47 Orchestral Harp</source>
        <translation type="unfinished">47 Konzertharfe</translation>
    </message>
    <message>
        <source>48 Timpani</source>
        <translation type="unfinished">48 Pauken</translation>
    </message>
    <message>
        <source>49 String Ensemble 1</source>
        <translation type="unfinished">49 Streichensemble 1</translation>
    </message>
    <message>
        <source>50 String Ensemble 2</source>
        <translation type="unfinished">50 Streichensemble 2</translation>
    </message>
    <message>
        <source>51 Synth Strings 1</source>
        <translation type="unfinished">51 Synthesizer-Streicher 1</translation>
    </message>
    <message>
        <source>52 Synth Strings 2</source>
        <translation type="unfinished">52 Synthesizer-Streicher 2</translation>
    </message>
    <message>
        <source>53 Choir Aahs</source>
        <translation type="unfinished">53 Chor „Aah“</translation>
    </message>
    <message>
        <source>54 Voice Oohs</source>
        <translation type="unfinished">54 Stimmen „Ooh“</translation>
    </message>
    <message>
        <source>55 Synth Voice</source>
        <translation type="unfinished">55 Synthesizer-Stimme</translation>
    </message>
    <message>
        <source>56 Orchestra Hit</source>
        <translation type="unfinished">56 Orchesterschlag</translation>
    </message>
    <message>
        <source>57 Trumpet</source>
        <translation type="unfinished">57 Trompete</translation>
    </message>
    <message>
        <source>58 Trombone</source>
        <translation type="unfinished">58 Posaune</translation>
    </message>
    <message>
        <source>59 Tuba</source>
        <translation type="unfinished">59 Tuba</translation>
    </message>
    <message>
        <source>60 Mute Trumpet</source>
        <translation type="unfinished">60 Gedämpfte Trompete</translation>
    </message>
    <message>
        <source>61 French Horn</source>
        <translation type="unfinished">61 Horn</translation>
    </message>
    <message>
        <source>62 Brass Section</source>
        <translation type="unfinished">62 Blechbläser</translation>
    </message>
    <message>
        <source>63 Synth Brass 1</source>
        <translation type="unfinished">63 Synthesizer-Blech 1</translation>
    </message>
    <message>
        <source>64 Synth Brass 2</source>
        <translation type="unfinished">64 Synthesizer-Blech 2</translation>
    </message>
    <message>
        <source>65 Soprano Sax</source>
        <translation type="unfinished">65 Sopransaxophon</translation>
    </message>
    <message>
        <source>66 Alto Sax</source>
        <translation type="unfinished">66 Altsaxophon</translation>
    </message>
    <message>
        <source>67 Tenor Sax</source>
        <translation type="unfinished">67 Tenorsaxophon</translation>
    </message>
    <message>
        <source>68 Baritone Sax</source>
        <translation type="unfinished">68 Baritonsaxophon</translation>
    </message>
    <message>
        <source>69 Oboe</source>
        <translation type="unfinished">69 Oboe</translation>
    </message>
    <message>
        <source>70 English Horn</source>
        <translation type="unfinished">70 Englischhorn</translation>
    </message>
    <message>
        <source>71 Bassoon</source>
        <translation type="unfinished">71 Fagott</translation>
    </message>
    <message>
        <source>72 Clarinet</source>
        <translation type="unfinished">72 Klarinette</translation>
    </message>
    <message>
        <source>73 Piccolo</source>
        <translation type="unfinished">73 Piccoloflöte</translation>
    </message>
    <message>
        <source>74 Flute</source>
        <translation type="unfinished">74 Querflöte</translation>
    </message>
    <message>
        <source>75 Recorder</source>
        <translation type="unfinished">75 Blockflöte</translation>
    </message>
    <message>
        <source>76 Pan Flute</source>
        <translation type="unfinished">76 Panflöte</translation>
    </message>
    <message>
        <source>77 Bottle Blow</source>
        <translation type="unfinished">77 Flaschenblasen</translation>
    </message>
    <message>
        <source>78 Shakuhachi</source>
        <translation type="unfinished">78 Shakuhachi</translation>
    </message>
    <message>
        <source>79 Whistle</source>
        <translation type="unfinished">79 Pfeifen</translation>
    </message>
    <message>
        <source>80 Ocarina</source>
        <translation type="unfinished">80 Okarina</translation>
    </message>
    <message>
        <source>81 Square Wave</source>
        <translation type="unfinished">81 Rechteckwelle</translation>
    </message>
    <message>
        <source>82 Saw Tooth</source>
        <translation type="unfinished">82 Sägezahn</translation>
    </message>
    <message>
        <source>83 Syn Calliope</source>
        <translation type="unfinished">83 Synthesizer-Kalliope</translation>
    </message>
    <message>
        <source>84 Chiffer Lead</source>
        <translation type="unfinished">84 Chiffer-Solo</translation>
    </message>
    <message>
        <source>85 Charang</source>
        <translation type="unfinished">85 Charango-Solo</translation>
    </message>
    <message>
        <source>86 Solo Vox</source>
        <translation type="unfinished">86 Solostimme</translation>
    </message>
    <message>
        <source>87 5th Saw Wave</source>
        <translation type="unfinished">87 Sägezahn in Quinten</translation>
    </message>
    <message>
        <source>88 Brass &amp; Lead</source>
        <translation type="unfinished">88 Blech und Solo</translation>
    </message>
    <message>
        <source>89 Fantasia</source>
        <translation type="unfinished">89 Fantasia</translation>
    </message>
    <message>
        <source>90 Warm Pad</source>
        <translation type="unfinished">90 Warme Fläche</translation>
    </message>
    <message>
        <source>91 Polysynth</source>
        <translation type="unfinished">91 Polysynthesizer</translation>
    </message>
    <message>
        <source>92 Space Vox</source>
        <translation type="unfinished">92 Weltraumstimmen</translation>
    </message>
    <message>
        <source>93 Bowed Glass</source>
        <translation type="unfinished">93 Gestrichenes Glas</translation>
    </message>
    <message>
        <source>94 Metal Pad</source>
        <translation type="unfinished">94 Metallfläche</translation>
    </message>
    <message>
        <source>95 Halo Pad</source>
        <translation type="unfinished">95 Heiligenschein</translation>
    </message>
    <message>
        <source>96 Sweep Pad</source>
        <translation type="unfinished">96 Gleitende Fläche</translation>
    </message>
    <message>
        <source>97 Ice Rain</source>
        <translation type="unfinished">97 Eisregen</translation>
    </message>
    <message>
        <source>98 Soundtrack</source>
        <translation type="unfinished">98 Filmmusik</translation>
    </message>
    <message>
        <source>99 Crystal</source>
        <translation type="unfinished">99 Kristall</translation>
    </message>
    <message>
        <source>100 Atmosphere</source>
        <translation type="unfinished">100 Atmosphäre</translation>
    </message>
    <message>
        <source>101 Brightness</source>
        <translation type="unfinished">101 Helligkeit</translation>
    </message>
    <message>
        <source>102 Goblin</source>
        <translation type="unfinished">102 Kobold</translation>
    </message>
    <message>
        <source>103 Echo Drops</source>
        <translation type="unfinished">103 Echotropfen</translation>
    </message>
    <message>
        <source>104 Star Theme</source>
        <translation type="unfinished">104 Sternenthema</translation>
    </message>
    <message>
        <source>105 Sitar</source>
        <translation type="unfinished">105 Sitar</translation>
    </message>
    <message>
        <source>106 Banjo</source>
        <translation type="unfinished">106 Banjo</translation>
    </message>
    <message>
        <source>107 Shamisen</source>
        <translation type="unfinished">107 Shamisen</translation>
    </message>
    <message>
        <source>108 Koto</source>
        <translation type="unfinished">108 Koto</translation>
    </message>
    <message>
        <source>109 Kalimba</source>
        <translation type="unfinished">109 Kalimba</translation>
    </message>
    <message>
        <source>110 Bag Pipe</source>
        <translation type="unfinished">110 Dudelsack</translation>
    </message>
    <message>
        <source>111 Fiddle</source>
        <translation type="unfinished">111 Fiedel</translation>
    </message>
    <message>
        <source>112 Shanai</source>
        <translation type="unfinished">112 Shanai</translation>
    </message>
    <message>
        <source>113 Tinkle Bell</source>
        <translation type="unfinished">113 Glöckchen</translation>
    </message>
    <message>
        <source>114 Agogo</source>
        <translation type="unfinished">114 Agogo</translation>
    </message>
    <message>
        <source>115 Steel Drums</source>
        <translation type="unfinished">115 Steel Drums</translation>
    </message>
    <message>
        <source>116 Woodblock</source>
        <translation type="unfinished">116 Holzblock</translation>
    </message>
    <message>
        <source>117 Taiko Drum</source>
        <translation type="unfinished">117 Taikotrommel</translation>
    </message>
    <message>
        <source>118 Melodic Tom</source>
        <translation type="unfinished">118 Melodisches Tomtom</translation>
    </message>
    <message>
        <source>119 Synth Drum</source>
        <translation type="unfinished">119 Synthesizer-Trommel</translation>
    </message>
    <message>
        <source>120 Reverse Cymbal</source>
        <translation type="unfinished">120 Becken rückwärts</translation>
    </message>
    <message>
        <source>121 Guitar Fret Noise</source>
        <translation type="unfinished">121 Gitarrenbund-Geräusch</translation>
    </message>
    <message>
        <source>122 Breath Noise</source>
        <translation type="unfinished">122 Atemgeräusch</translation>
    </message>
    <message>
        <source>123 Sea Shore</source>
        <translation type="unfinished">123 Meeresrauschen</translation>
    </message>
    <message>
        <source>124 Bird Tweet</source>
        <translation type="unfinished">124 Vogelgezwitscher</translation>
    </message>
    <message>
        <source>125 Telephone Ring</source>
        <translation type="unfinished">125 Telefonklingeln</translation>
    </message>
    <message>
        <source>126 Helicopter</source>
        <translation type="unfinished">126 Hubschrauber</translation>
    </message>
    <message>
        <source>127 Applause</source>
        <translation type="unfinished">127 Applaus</translation>
    </message>
    <message>
        <source>128 Gun Shot</source>
        <translation type="unfinished">128 Gewehrschuss</translation>
    </message>
</context>
</TS>
