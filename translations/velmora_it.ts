<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Report</source>
        <translation type="unfinished">Rapporto di importazione</translation>
    </message>
    <message>
        <source>Stops: %1, keys: %2, samples: %3.</source>
        <translation type="unfinished">Registri: %1, tasti: %2, campioni: %3.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished">%1 esiste già. Vuoi sostituirlo?</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) or sample(s) were left out</source>
        <translation type="unfinished">
            <numerusform>%n file o campione è stato tralasciato</numerusform>
            <numerusform>%n file o campioni sono stati tralasciati</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is still sounding. Silence everything (Ctrl+.), then unload it.</source>
        <translation type="unfinished">%1 sta ancora suonando. Silenzia tutto (Ctrl+.), poi rimuovilo dalla memoria.</translation>
    </message>
    <message>
        <source>Velmora cannot draw its windows because OpenGL does not work here. Install libgl1-mesa-dri, which needs no graphics card.</source>
        <translation type="unfinished">Velmora non può disegnare le sue finestre perché qui OpenGL non funziona. Installa libgl1-mesa-dri, che non richiede una scheda grafica.</translation>
    </message>
    <message>
        <source>Instrument in the &amp;File</source>
        <translation type="unfinished">Strumento nel &amp;file</translation>
    </message>
    <message>
        <source>Lay out the instruments of the bank as stops with volumes of their own, instead of its presets</source>
        <translation type="unfinished">Disporre gli strumenti del banco come registri con un volume proprio, invece dei suoi preset</translation>
    </message>
    <message>
        <source>&amp;Plain Reading</source>
        <translation type="unfinished">Lettura &amp;letterale</translation>
    </message>
    <message>
        <source>One sample for each key, as the file lists them</source>
        <translation type="unfinished">Un campione per tasto, come li elenca il file</translation>
    </message>
    <message>
        <source>Samples with more bits take less memory</source>
        <translation type="unfinished">I campioni con più bit occupano meno memoria</translation>
    </message>
    <message>
        <source>Load in &amp;Mono</source>
        <translation type="unfinished">Carica in &amp;mono</translation>
    </message>
    <message>
        <source>Stereo samples take half the memory</source>
        <translation type="unfinished">I campioni stereo occupano metà memoria</translation>
    </message>
    <message>
        <source>Stop %1</source>
        <translation type="unfinished">Registro %1</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished">Volume</translation>
    </message>
    <message>
        <source>Open as S&amp;tops</source>
        <translation type="unfinished">Apri come &amp;registri</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits</source>
        <translation type="unfinished">Carica a 16 &amp;bit</translation>
    </message>
    <message>
        <source>Load as Many Stops as &amp;Fit</source>
        <translation type="unfinished">Carica &amp;quanti registri entrano</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits in Mono</source>
        <translation type="unfinished">Carica a 16 &amp;bit in mono</translation>
    </message>
    <message numerus="yes">
        <source>%n stop(s) were not loaded</source>
        <translation type="unfinished">
            <numerusform>%n registro non è stato caricato</numerusform>
            <numerusform>%n registri non sono stati caricati</numerusform>
        </translation>
    </message>
    <message>
        <source>This stop is being loaded. It sounds as soon as all its pipes are there.</source>
        <translation type="unfinished">Questo registro è in caricamento. Suonerà appena ci saranno tutte le sue canne.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because the loading was stopped.</source>
        <translation type="unfinished">Questo registro non è caricato, perché il caricamento è stato interrotto.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because only the drawn stops were loaded.</source>
        <translation type="unfinished">Questo registro non è caricato, perché sono stati caricati solo i registri inseriti.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because it does not fit into the memory.</source>
        <translation type="unfinished">Questo registro non è caricato, perché non entra nella memoria.</translation>
    </message>
    <message>
        <source>None of the files of this stop can be used. The import report says why.</source>
        <translation type="unfinished">Nessuno dei file di questo registro è utilizzabile. Il rapporto di importazione dice perché.</translation>
    </message>
    <message>
        <source>Load Only the D&amp;rawn Stops</source>
        <translation type="unfinished">Carica solo i &amp;registri inseriti</translation>
    </message>
</context>
<context>
    <name>deviceText</name>
    <message>
        <source>MIDI port %1</source>
        <translation type="unfinished">Porta MIDI %1</translation>
    </message>
</context>
<context>
    <name>velmora::AboutBox</name>
    <message>
        <source>About Velmora</source>
        <translation type="unfinished">Informazioni su Velmora</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Plays keyboard instruments in historical and adaptive tunings.&lt;/p&gt;&lt;p&gt;Velmora uses FluidSynth, the Synthesis ToolKit and OpenAL Soft for sound, libsndfile and WavPack for samples, RtMidi for MIDI, and Qt %2 for its windows.&lt;/p&gt;&lt;p&gt;It is available under the MIT licence.&lt;/p&gt;</source>
        <translation type="unfinished">&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Suona strumenti a tastiera in temperamenti storici e adattivi.&lt;/p&gt;&lt;p&gt;Velmora usa FluidSynth, il Synthesis ToolKit e OpenAL Soft per il suono, libsndfile e WavPack per i campioni, RtMidi per il MIDI e Qt %2 per le finestre.&lt;/p&gt;&lt;p&gt;È disponibile con licenza MIT.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>velmora::AdaptivePane</name>
    <message>
        <source>Correct within</source>
        <translation type="unfinished">Correggere entro</translation>
    </message>
    <message>
        <source>The last note of a chord may still mend the spelling of its first</source>
        <translation type="unfinished">L’ultima nota di un accordo può ancora correggere la grafia della prima</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Tied to A</source>
        <translation type="unfinished">Legata al la</translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished">Libera</translation>
    </message>
    <message>
        <source>Returns in silence</source>
        <translation type="unfinished">Torna nel silenzio</translation>
    </message>
    <message>
        <source>What becomes of the pitch where pure intervals lead it away: it is drawn back at once, stays there, or goes back while nothing sounds</source>
        <translation type="unfinished">Che cosa accade all’altezza quando gli intervalli puri la allontanano: viene subito riportata, resta lì, o torna mentre nulla suona</translation>
    </message>
    <message>
        <source>Drift:</source>
        <translation type="unfinished">Deriva:</translation>
    </message>
    <message>
        <source>Pitch now:</source>
        <translation type="unfinished">Altezza attuale:</translation>
    </message>
</context>
<context>
    <name>velmora::AudioExport</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Caricamento dello strumento</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation type="unfinished">Calcolo del suono</translation>
    </message>
    <message>
        <source>There is not enough memory to load the instrument a second time.</source>
        <translation type="unfinished">Non c’è abbastanza memoria per caricare lo strumento una seconda volta.</translation>
    </message>
    <message>
        <source>Rendering voice %1 of %2</source>
        <translation type="unfinished">Rendering della voce %1 di %2</translation>
    </message>
</context>
<context>
    <name>velmora::CircleTab</name>
    <message>
        <source>Note</source>
        <translation type="unfinished">Nota</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">Cent</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinta</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Battimenti/s</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Terza maggiore</translation>
    </message>
    <message>
        <source>Fifths and thirds</source>
        <translation type="unfinished">Quinte e terze</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation type="unfinished">Grado</translation>
    </message>
    <message>
        <source>Nearest interval</source>
        <translation type="unfinished">Intervallo più vicino</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Dal puro</translation>
    </message>
    <message>
        <source>Degrees of the scale</source>
        <translation type="unfinished">Gradi della scala</translation>
    </message>
    <message>
        <source>Octave %1</source>
        <translation type="unfinished">Ottava %1</translation>
    </message>
    <message>
        <source>Octave of the beats</source>
        <translation type="unfinished">Ottava dei battimenti</translation>
    </message>
    <message>
        <source>Middle C begins octave 4. An octave higher, everything beats twice as fast.</source>
        <translation type="unfinished">Il do centrale inizia l’ottava 4. Un’ottava più su tutto batte due volte più in fretta.</translation>
    </message>
    <message>
        <source>Cents from pure</source>
        <translation type="unfinished">Cent dal puro</translation>
    </message>
    <message>
        <source>Beats per second</source>
        <translation type="unfinished">Battimenti al secondo</translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished">Tabella</translation>
    </message>
    <message>
        <source>What the circle shows</source>
        <translation type="unfinished">Che cosa mostra il circolo</translation>
    </message>
    <message>
        <source>%1 (sounds)</source>
        <translation type="unfinished">%1 (suona)</translation>
    </message>
</context>
<context>
    <name>velmora::CircleView</name>
    <message>
        <source>Circle of the tuning</source>
        <translation type="unfinished">Circolo dell’accordatura</translation>
    </message>
    <message>
        <source>Outside: the fifths. Inside: the major third above each note.
Drag a note outwards to raise it, and inwards to lower it.</source>
        <translation type="unfinished">Fuori: le quinte. Dentro: la terza maggiore sopra ogni nota.
Trascinate una nota verso l’esterno per alzarla e verso l’interno per abbassarla.</translation>
    </message>
    <message>
        <source>The degrees of the scale, each with the nearest pure interval above the first</source>
        <translation type="unfinished">I gradi della scala, ognuno con l’intervallo puro più vicino sopra il primo</translation>
    </message>
</context>
<context>
    <name>velmora::ColorsPane</name>
    <message>
        <source>Keyboard keys</source>
        <translation type="unfinished">Tasti della tastiera</translation>
    </message>
    <message>
        <source>&amp;Played:</source>
        <translation type="unfinished">Suo&amp;nati:</translation>
    </message>
    <message>
        <source>Keys that the sequence plays, or waits for in practice</source>
        <translation type="unfinished">Tasti che il brano suona, o che attende durante lo studio</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation type="unfinished">G&amp;iusti:</translation>
    </message>
    <message>
        <source>Keys that you struck correctly</source>
        <translation type="unfinished">Tasti che hai premuto correttamente</translation>
    </message>
    <message>
        <source>&amp;Held:</source>
        <translation type="unfinished">&amp;Tenuti:</translation>
    </message>
    <message>
        <source>Keys that you keep holding</source>
        <translation type="unfinished">Tasti che continui a tenere premuti</translation>
    </message>
    <message>
        <source>&amp;Wrong:</source>
        <translation type="unfinished">S&amp;bagliati:</translation>
    </message>
    <message>
        <source>Keys that you struck by mistake</source>
        <translation type="unfinished">Tasti che hai premuto per errore</translation>
    </message>
    <message>
        <source>Piano roll notes</source>
        <translation type="unfinished">Note del piano roll</translation>
    </message>
    <message>
        <source>&amp;At rest:</source>
        <translation type="unfinished">A ri&amp;poso:</translation>
    </message>
    <message>
        <source>Notes that are not sounding</source>
        <translation type="unfinished">Note che non suonano</translation>
    </message>
    <message>
        <source>&amp;Sounding:</source>
        <translation type="unfinished">In esecu&amp;zione:</translation>
    </message>
    <message>
        <source>Notes at the play position</source>
        <translation type="unfinished">Note alla posizione di riproduzione</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation type="unfinished">Sobrio</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation type="unfinished">Classico</translation>
    </message>
    <message>
        <source>Calm: soft colours that suit the theme of the desktop. Classic: bright colours on white and black</source>
        <translation type="unfinished">Sobrio: colori tenui, in armonia con il tema del desktop. Classico: colori vivaci su bianco e nero</translation>
    </message>
    <message>
        <source>Sch&amp;eme:</source>
        <translation type="unfinished">Sch&amp;ema:</translation>
    </message>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation type="unfinished">Ripristina valori pre&amp;definiti</translation>
    </message>
    <message>
        <source>Use the colours of the scheme again</source>
        <translation type="unfinished">Torna ai colori dello schema</translation>
    </message>
    <message>
        <source>Reduce motion</source>
        <translation type="unfinished">Riduci le animazioni</translation>
    </message>
    <message>
        <source>Scroll the piano roll at once instead of gliding</source>
        <translation type="unfinished">Fai scorrere il piano roll di scatto anziché gradualmente</translation>
    </message>
</context>
<context>
    <name>velmora::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Comandi</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 – %2</translation>
    </message>
    <message>
        <source>Find a command or a tuning</source>
        <translation type="unfinished">Cerca un comando o un temperamento</translation>
    </message>
    <message>
        <source>Nothing has all these words.</source>
        <translation type="unfinished">Nulla contiene tutte queste parole.</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Temperamento</translation>
    </message>
    <message>
        <source>Tuning – %1</source>
        <translation type="unfinished">Temperamento – %1</translation>
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
        <translation type="unfinished">Le lettere suonano a partire da %1</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleActions</name>
    <message>
        <source>Console</source>
        <translation type="unfinished">Consolle</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished">&amp;Fissa</translation>
    </message>
    <message>
        <source>Keep what is drawn under the registration button that is pressed next</source>
        <translation type="unfinished">Conserva ciò che è tirato nel prossimo pulsante di registrazione premuto</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Annullatore</translation>
    </message>
    <message>
        <source>Push in every stop and coupler</source>
        <translation type="unfinished">Respinge tutti i registri e gli accoppiamenti</translation>
    </message>
    <message>
        <source>&amp;Tutti</source>
        <translation type="unfinished">&amp;Tutti</translation>
    </message>
    <message>
        <source>Draw everything; the next press returns to what was drawn before</source>
        <translation type="unfinished">Tira tutto; premuto di nuovo, torna a ciò che era tirato prima</translation>
    </message>
    <message>
        <source>&amp;Manuals…</source>
        <translation type="unfinished">&amp;Manuali…</translation>
    </message>
    <message>
        <source>Choose which MIDI channels and devices play the manuals and the pedals</source>
        <translation type="unfinished">Scegliere quali canali e dispositivi MIDI suonano i manuali e la pedaliera</translation>
    </message>
    <message>
        <source>&amp;Registrations</source>
        <translation type="unfinished">&amp;Registrazioni</translation>
    </message>
    <message>
        <source>Registration %1</source>
        <translation type="unfinished">Registrazione %1</translation>
    </message>
    <message>
        <source>&amp;Keep as…</source>
        <translation type="unfinished">&amp;Conserva come…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished">Ri&amp;nomina</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished">&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Keep Registration</source>
        <translation type="unfinished">Conserva registrazione</translation>
    </message>
    <message>
        <source>Name of the registration:</source>
        <translation type="unfinished">Nome della registrazione:</translation>
    </message>
    <message>
        <source>Rename Registration</source>
        <translation type="unfinished">Rinomina registrazione</translation>
    </message>
    <message>
        <source>New name of “%1”:</source>
        <translation type="unfinished">Nuovo nome di «%1»:</translation>
    </message>
    <message>
        <source>There is another registration with the name “%1”.</source>
        <translation type="unfinished">Esiste un’altra registrazione con il nome «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::ConsolePanel</name>
    <message>
        <source>Stops</source>
        <translation type="unfinished">Registri</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleView</name>
    <message>
        <source>Find a stop</source>
        <translation type="unfinished">Cerca un registro</translation>
    </message>
    <message>
        <source>Swell:</source>
        <translation type="unfinished">Espressione:</translation>
    </message>
    <message>
        <source>Swell of %1</source>
        <translation type="unfinished">Espressione di %1</translation>
    </message>
    <message>
        <source>How far the swell of %1 is open</source>
        <translation type="unfinished">Quanto è aperta la cassa espressiva di %1</translation>
    </message>
</context>
<context>
    <name>velmora::ControllerLane</name>
    <message>
        <source>Click to draw how %1 moves, and drag what is there. A click with the right button deletes it. What is shown belongs to the chosen channel.</source>
        <translation type="unfinished">Fare clic per disegnare il movimento di «%1» e trascinare ciò che c’è. Un clic destro lo elimina. È mostrato il canale scelto.</translation>
    </message>
    <message>
        <source>Delete Controller</source>
        <translation type="unfinished">Eliminare il controller</translation>
    </message>
    <message>
        <source>Move Controller</source>
        <translation type="unfinished">Spostare il controller</translation>
    </message>
    <message>
        <source>Draw Controller</source>
        <translation type="unfinished">Disegnare il controller</translation>
    </message>
</context>
<context>
    <name>velmora::Desktop</name>
    <message>
        <source>%1: unrecognised file type. Velmora recognises files by their extensions, such as .mid, .scl or .sf2.</source>
        <translation type="unfinished">%1: tipo di file sconosciuto. Velmora riconosce i file dall’estensione, come .mid, .scl o .sf2.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">Apri</translation>
    </message>
    <message>
        <source>Transposition: %1</source>
        <translation type="unfinished">Trasposizione: %1</translation>
    </message>
    <message>
        <source>The General MIDI player is silent because there is no SoundFont for it. Choose one in the preferences.</source>
        <translation type="unfinished">Il sintetizzatore General MIDI è muto perché non ha un SoundFont. Scegline uno nelle preferenze.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>All supported files (%1);;Instruments (%2);;Tunings (%3);;Sequences (%4);;Sessions (%5);;All files (*)</source>
        <translation type="unfinished">Tutti i file supportati (%1);;Strumenti (%2);;Temperamenti (%3);;Brani (%4);;Sessioni (%5);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation type="unfinished">Apri sessione</translation>
    </message>
    <message>
        <source>Sessions (%1)</source>
        <translation type="unfinished">Sessioni (%1)</translation>
    </message>
    <message>
        <source>Save Session</source>
        <translation type="unfinished">Salva sessione</translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished">Sessione</translation>
    </message>
    <message>
        <source>Velmora ended while it was opening what was open last time. Open it again?</source>
        <translation type="unfinished">Velmora si è chiuso mentre riapriva ciò che era aperto l’ultima volta. Riaprirlo?</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation type="unfinished">Riapri</translation>
    </message>
    <message>
        <source>Start Empty</source>
        <translation type="unfinished">Inizia da zero</translation>
    </message>
    <message>
        <source>Unsaved changes are not protected against a crash: %1</source>
        <translation type="unfinished">Le modifiche non salvate non sono protette da un arresto anomalo: %1</translation>
    </message>
    <message>
        <source>Not everything that was open last time could be opened.
%1</source>
        <translation type="unfinished">Non è stato possibile riaprire tutto ciò che era aperto l’ultima volta.
%1</translation>
    </message>
    <message>
        <source>%1 cannot be used as the General MIDI bank. %2 is used instead. Choose another SoundFont in the preferences.</source>
        <translation type="unfinished">%1 non può servire da banco General MIDI. Al suo posto si usa %2. Scegli un altro SoundFont nelle preferenze.</translation>
    </message>
    <message>
        <source>Open Tuning</source>
        <translation type="unfinished">Apri accordatura</translation>
    </message>
    <message>
        <source>Tunings (%1);;All files (*)</source>
        <translation type="unfinished">Accordature (%1);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Save Tuning</source>
        <translation type="unfinished">Salva accordatura</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Scala</translation>
    </message>
    <message>
        <source>Open Instrument</source>
        <translation type="unfinished">Apri strumento</translation>
    </message>
    <message>
        <source>Instruments (%1);;All files (*)</source>
        <translation type="unfinished">Strumenti (%1);;Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>velmora::DivisionChooser</name>
    <message>
        <source>This &amp;keyboard plays:</source>
        <translation type="unfinished">&amp;Questa tastiera suona:</translation>
    </message>
    <message>
        <source>The manual that the keyboard on the screen and the letter keys play</source>
        <translation type="unfinished">Il manuale suonato dalla tastiera sullo schermo e dai tasti delle lettere</translation>
    </message>
</context>
<context>
    <name>velmora::Drawknob</name>
    <message>
        <source>%1, volume %2 %
A click draws it or pushes it in, a right click changes its volume</source>
        <translation type="unfinished">%1, volume %2 %
Un clic lo tira o lo respinge, un clic destro ne cambia il volume</translation>
    </message>
    <message>
        <source>%1
A click draws it or pushes it in</source>
        <translation type="unfinished">%1
Un clic lo tira o lo respinge</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation type="unfinished">&amp;Volume:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1%</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Volume di %1</translation>
    </message>
</context>
<context>
    <name>velmora::DriftMeter</name>
    <message>
        <source>How far the pitch has drifted from where it began</source>
        <translation type="unfinished">Di quanto l’altezza si è allontanata dall’inizio</translation>
    </message>
    <message>
        <source>Drift: %1</source>
        <translation type="unfinished">Deriva: %1</translation>
    </message>
    <message>
        <source>%1 cents</source>
        <translation type="unfinished">%1 cent</translation>
    </message>
</context>
<context>
    <name>velmora::EditingActions</name>
    <message>
        <source>Edit</source>
        <translation type="unfinished">Modifica</translation>
    </message>
    <message>
        <source>Select by Voice or Velocity…</source>
        <translation type="unfinished">Seleziona per voce o velocity…</translation>
    </message>
    <message>
        <source>Select the notes of a voice, of some keys and velocities</source>
        <translation type="unfinished">Seleziona le note di una voce e di certi tasti e velocity</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished">Duplica</translation>
    </message>
    <message>
        <source>Quantise…</source>
        <translation type="unfinished">Quantizza…</translation>
    </message>
    <message>
        <source>Move notes to the grid</source>
        <translation type="unfinished">Sposta le note sulla griglia</translation>
    </message>
    <message>
        <source>Split Notes at the Position</source>
        <translation type="unfinished">Dividi le note alla posizione</translation>
    </message>
    <message>
        <source>Join Notes</source>
        <translation type="unfinished">Unisci note</translation>
    </message>
    <message>
        <source>Connect Notes (Legato)</source>
        <translation type="unfinished">Lega note (legato)</translation>
    </message>
    <message>
        <source>Move Notes an Octave Up</source>
        <translation type="unfinished">Sposta le note un’ottava su</translation>
    </message>
    <message>
        <source>Move Notes an Octave Down</source>
        <translation type="unfinished">Sposta le note un’ottava giù</translation>
    </message>
    <message>
        <source>Nudge Notes Later</source>
        <translation type="unfinished">Ritarda un poco le note</translation>
    </message>
    <message>
        <source>Nudge Notes Earlier</source>
        <translation type="unfinished">Anticipa un poco le note</translation>
    </message>
    <message>
        <source>Make Notes Louder</source>
        <translation type="unfinished">Note più forti</translation>
    </message>
    <message>
        <source>Make Notes Softer</source>
        <translation type="unfinished">Note più piano</translation>
    </message>
    <message>
        <source>Hear Notes</source>
        <translation type="unfinished">Ascolta le note</translation>
    </message>
    <message>
        <source>Sound notes that are pressed or drawn</source>
        <translation type="unfinished">Fa suonare le note premute o disegnate</translation>
    </message>
    <message>
        <source>Drag Selects Notes</source>
        <translation type="unfinished">Trascinare seleziona note</translation>
    </message>
    <message>
        <source>Let a drag across an empty place select notes instead of a time</source>
        <translation type="unfinished">Trascinando su un punto vuoto si selezionano note e non un tempo</translation>
    </message>
</context>
<context>
    <name>velmora::ExportProgress</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Caricamento dello strumento</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Annulla</translation>
    </message>
    <message>
        <source>Export Audio</source>
        <translation type="unfinished">Esporta audio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 esportato</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 non è stato esportato. %2</translation>
    </message>
</context>
<context>
    <name>velmora::FallingNotes</name>
    <message>
        <source>Falling notes</source>
        <translation type="unfinished">Note che cadono</translation>
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
        <translation type="unfinished">sintonico (21,5 cent)</translation>
    </message>
    <message>
        <source>Pythagorean (23.5 cents)</source>
        <translation type="unfinished">pitagorico (23,5 cent)</translation>
    </message>
    <message>
        <source> comma</source>
        <translation type="unfinished"> comma</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished">Unità:</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished">Comma</translation>
    </message>
    <message>
        <source>By which part of the comma this fifth is narrower than a pure one</source>
        <translation type="unfinished">Di quale parte del comma questa quinta è più stretta di una pura</translation>
    </message>
    <message>
        <source>Takes the rest:</source>
        <translation type="unfinished">Prende il resto:</translation>
    </message>
    <message>
        <source>The fifths of this tuning are no parts of a comma. A change here replaces them all.</source>
        <translation type="unfinished">Le quinte di questa accordatura non sono parti di un comma. Una modifica qui le sostituisce tutte.</translation>
    </message>
    <message>
        <source>The fifth %1 differs from a pure one by %2 cents.</source>
        <translation type="unfinished">La quinta %1 differisce da una pura di %2 cent.</translation>
    </message>
</context>
<context>
    <name>velmora::FitDialog</name>
    <message>
        <source>The notes with the bars and beats that were found</source>
        <translation type="unfinished">Le note con le battute e i tempi trovati</translation>
    </message>
    <message>
        <source>Fit to Grid</source>
        <translation type="unfinished">Adattare alla griglia</translation>
    </message>
    <message>
        <source>These bars and beats were found. Correct them if they are not yours; the piece is moved to them only then.</source>
        <translation type="unfinished">Sono state trovate queste battute e questi tempi. Correggerli se non sono i propri; solo allora il brano viene adattato.</translation>
    </message>
    <message>
        <source>&amp;Half as Fast</source>
        <translation type="unfinished">&amp;Metà velocità</translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation type="unfinished">&amp;Doppia velocità</translation>
    </message>
    <message>
        <source>Tempo:</source>
        <translation type="unfinished">Tempo:</translation>
    </message>
    <message>
        <source>&amp;Beats in a bar:</source>
        <translation type="unfinished">&amp;Tempi per battuta:</translation>
    </message>
    <message>
        <source>&amp;First bar begins at beat:</source>
        <translation type="unfinished">La &amp;prima battuta inizia al tempo:</translation>
    </message>
    <message>
        <source>%1 beats per minute</source>
        <translation type="unfinished">%1 battiti al minuto</translation>
    </message>
    <message>
        <source>Velmora finds a tempo in eight notes or more, over four hours at most.</source>
        <translation type="unfinished">Velmora trova un tempo in otto note o più, nell’arco di quattro ore al massimo.</translation>
    </message>
</context>
<context>
    <name>velmora::GlideBar</name>
    <message>
        <source>Only new notes</source>
        <translation type="unfinished">Solo nuove note</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>How long notes that sound take to reach their new pitch when the tuning changes; with 0 they jump</source>
        <translation type="unfinished">Quanto impiegano le note che suonano a raggiungere la nuova altezza quando il temperamento cambia; con 0 saltano</translation>
    </message>
    <message>
        <source>Notes that sound keep their pitch until they are struck again</source>
        <translation type="unfinished">Le note che suonano mantengono la loro altezza finché non vengono risuonate</translation>
    </message>
    <message>
        <source>Glide:</source>
        <translation type="unfinished">Scivolamento:</translation>
    </message>
</context>
<context>
    <name>velmora::GuideWindow</name>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Guida utente</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation type="unfinished">Guida utente</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished">Indice</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished">Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished">Avanti</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished">Occorrenza precedente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished">Occorrenza successiva</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation type="unfinished">&amp;Trova:</translation>
    </message>
    <message>
        <source>Find words in the guide (%1)</source>
        <translation type="unfinished">Cerca parole nella guida (%1)</translation>
    </message>
    <message>
        <source>“%1” is not in the guide.</source>
        <translation type="unfinished">«%1» non compare nella guida.</translation>
    </message>
    <message>
        <source>No program could open %1.</source>
        <translation type="unfinished">Nessun programma ha potuto aprire %1.</translation>
    </message>
</context>
<context>
    <name>velmora::HelpButton</name>
    <message>
        <source>Help</source>
        <translation type="unfinished">Aiuto</translation>
    </message>
    <message>
        <source>Show what the guide says about this</source>
        <translation type="unfinished">Mostra che cosa ne dice la guida</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentMenu</name>
    <message>
        <source>Instrument: %1</source>
        <translation type="unfinished">Strumento: %1</translation>
    </message>
    <message>
        <source>%1
Choose another instrument, open or unload one</source>
        <translation type="unfinished">%1
Scegli un altro strumento, aprine uno o rimuovilo dalla memoria</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">&amp;Apri strumento…</translation>
    </message>
    <message>
        <source>&amp;Unload %1</source>
        <translation type="unfinished">&amp;Rimuovi %1 dalla memoria</translation>
    </message>
    <message>
        <source>Import &amp;Report of %1…</source>
        <translation type="unfinished">Rapporto di &amp;importazione di %1…</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentOpener</name>
    <message>
        <source>%1: Velmora cannot play instruments of this format. Convert it to a SoundFont (.sf2), then open that.</source>
        <translation type="unfinished">%1: Velmora non può suonare strumenti in questo formato. Convertilo in un SoundFont (.sf2), poi apri quello.</translation>
    </message>
    <message>
        <source>%1: %2; see Import Report in the Instruments window</source>
        <translation type="unfinished">%1: %2; vedi «Rapporto di importazione» nella finestra «Strumenti»</translation>
    </message>
    <message numerus="yes">
        <source>%1 holds %n instrument(s). The Instrument menu lists them.</source>
        <translation type="unfinished">
            <numerusform>%1 contiene %n strumento. Il menu Strumento lo elenca.</numerusform>
            <numerusform>%1 contiene %n strumenti. Il menu Strumento li elenca.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentPanel</name>
    <message>
        <source>Memory used by the samples of this instrument</source>
        <translation type="unfinished">Memoria occupata dai campioni di questo strumento</translation>
    </message>
    <message>
        <source>Usage:  %1</source>
        <translation type="unfinished">Memoria:  %1</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Strumento</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsModel</name>
    <message>
        <source>Unloaded: select it to load it again</source>
        <translation type="unfinished">Non in memoria: selezionalo per ricaricarlo</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Strumento</translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished">Dimensione</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsWindow</name>
    <message>
        <source>&amp;Unload</source>
        <translation type="unfinished">&amp;Rimuovi dalla memoria</translation>
    </message>
    <message>
        <source>Import &amp;Report…</source>
        <translation type="unfinished">Rapporto di &amp;importazione…</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation type="unfinished">Strumenti</translation>
    </message>
    <message>
        <source>Loaded instruments</source>
        <translation type="unfinished">Strumenti caricati</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">&amp;Apri…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Apri un SoundFont, un banco GigaSampler o un organo</translation>
    </message>
    <message>
        <source>Free the memory that the samples of this instrument use</source>
        <translation type="unfinished">Libera la memoria occupata dai campioni di questo strumento</translation>
    </message>
    <message>
        <source>Show what was imported and what was left out</source>
        <translation type="unfinished">Mostra che cosa è stato importato e che cosa tralasciato</translation>
    </message>
</context>
<context>
    <name>velmora::Interval</name>
    <message>
        <source>Unison</source>
        <translation type="unfinished">Unisono</translation>
    </message>
    <message>
        <source>Semitone</source>
        <translation type="unfinished">Semitono</translation>
    </message>
    <message>
        <source>Small whole tone</source>
        <translation type="unfinished">Tono minore</translation>
    </message>
    <message>
        <source>Whole tone</source>
        <translation type="unfinished">Tono</translation>
    </message>
    <message>
        <source>Septimal whole tone</source>
        <translation type="unfinished">Tono settimale</translation>
    </message>
    <message>
        <source>Septimal minor third</source>
        <translation type="unfinished">Terza minore settimale</translation>
    </message>
    <message>
        <source>Minor third</source>
        <translation type="unfinished">Terza minore</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Terza maggiore</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation type="unfinished">Quarta</translation>
    </message>
    <message>
        <source>Small tritone</source>
        <translation type="unfinished">Tritono minore</translation>
    </message>
    <message>
        <source>Large tritone</source>
        <translation type="unfinished">Tritono maggiore</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinta</translation>
    </message>
    <message>
        <source>Minor sixth</source>
        <translation type="unfinished">Sesta minore</translation>
    </message>
    <message>
        <source>Major sixth</source>
        <translation type="unfinished">Sesta maggiore</translation>
    </message>
    <message>
        <source>Septimal major sixth</source>
        <translation type="unfinished">Sesta maggiore settimale</translation>
    </message>
    <message>
        <source>Natural seventh</source>
        <translation type="unfinished">Settima naturale</translation>
    </message>
    <message>
        <source>Small minor seventh</source>
        <translation type="unfinished">Settima minore stretta</translation>
    </message>
    <message>
        <source>Minor seventh</source>
        <translation type="unfinished">Settima minore</translation>
    </message>
    <message>
        <source>Major seventh</source>
        <translation type="unfinished">Settima maggiore</translation>
    </message>
    <message>
        <source>Octave</source>
        <translation type="unfinished">Ottava</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 maggiore</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1 minore</translation>
    </message>
    <message>
        <source>%1 diminished</source>
        <translation type="unfinished">%1 diminuito</translation>
    </message>
    <message>
        <source>%1 augmented</source>
        <translation type="unfinished">%1 aumentato</translation>
    </message>
    <message>
        <source>%1 suspended fourth</source>
        <translation type="unfinished">%1 con quarta sospesa</translation>
    </message>
    <message>
        <source>%1 suspended second</source>
        <translation type="unfinished">%1 con seconda sospesa</translation>
    </message>
    <message>
        <source>%1 dominant seventh</source>
        <translation type="unfinished">%1 settima di dominante</translation>
    </message>
    <message>
        <source>%1 major seventh</source>
        <translation type="unfinished">%1 settima maggiore</translation>
    </message>
    <message>
        <source>%1 minor seventh</source>
        <translation type="unfinished">%1 minore settima</translation>
    </message>
    <message>
        <source>%1 minor with a major seventh</source>
        <translation type="unfinished">%1 minore con settima maggiore</translation>
    </message>
    <message>
        <source>%1 half-diminished seventh</source>
        <translation type="unfinished">%1 settima semidiminuita</translation>
    </message>
    <message>
        <source>%1 diminished seventh</source>
        <translation type="unfinished">%1 settima diminuita</translation>
    </message>
    <message>
        <source>%1 augmented sixth</source>
        <translation type="unfinished">%1 sesta aumentata</translation>
    </message>
    <message>
        <source>%1, root position</source>
        <translation type="unfinished">%1, stato fondamentale</translation>
    </message>
    <message>
        <source>%1, first inversion</source>
        <translation type="unfinished">%1, primo rivolto</translation>
    </message>
    <message>
        <source>%1, second inversion</source>
        <translation type="unfinished">%1, secondo rivolto</translation>
    </message>
    <message>
        <source>%1, third inversion</source>
        <translation type="unfinished">%1, terzo rivolto</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation type="unfinished">%1 %2/%3</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n octave(s)</source>
        <translation type="unfinished">
            <numerusform>%1 e %n ottava</numerusform>
            <numerusform>%1 e %n ottave</numerusform>
        </translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">nessuno</translation>
    </message>
    <message>
        <source>nearly pure</source>
        <translation type="unfinished">quasi puro</translation>
    </message>
    <message>
        <source>tempered</source>
        <translation type="unfinished">temperato</translation>
    </message>
    <message>
        <source>rough</source>
        <translation type="unfinished">aspro</translation>
    </message>
</context>
<context>
    <name>velmora::KeyRuler</name>
    <message>
        <source>Key names</source>
        <translation type="unfinished">Nomi dei tasti</translation>
    </message>
</context>
<context>
    <name>velmora::KeyboardView</name>
    <message>
        <source>Piano keyboard</source>
        <translation type="unfinished">Tastiera di pianoforte</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation type="unfinished">sbagliato</translation>
    </message>
    <message>
        <source>to be played</source>
        <translation type="unfinished">da suonare</translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished">giusto</translation>
    </message>
    <message>
        <source>held</source>
        <translation type="unfinished">tenuto</translation>
    </message>
</context>
<context>
    <name>velmora::Lanes</name>
    <message>
        <source>&amp;No Lane</source>
        <translation type="unfinished">&amp;Nessuna corsia</translation>
    </message>
    <message>
        <source>&amp;Velocity</source>
        <translation type="unfinished">&amp;Velocity</translation>
    </message>
    <message>
        <source>&amp;Tempo and Signatures</source>
        <translation type="unfinished">&amp;Tempo e misure</translation>
    </message>
    <message>
        <source>Sustain Pedal</source>
        <translation type="unfinished">Pedale di risonanza</translation>
    </message>
    <message>
        <source>Pitch Wheel</source>
        <translation type="unfinished">Rotella del pitch</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation type="unfinished">Modulazione</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation type="unfinished">Espressione</translation>
    </message>
</context>
<context>
    <name>velmora::LanguageFields</name>
    <message>
        <source>The language changes when you start Velmora again.</source>
        <translation type="unfinished">La lingua cambierà al prossimo avvio di Velmora.</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished">Quella del desktop</translation>
    </message>
    <message>
        <source>The language of all menus and windows</source>
        <translation type="unfinished">La lingua di tutti i menu e di tutte le finestre</translation>
    </message>
    <message>
        <source>As usual in the language</source>
        <translation type="unfinished">Secondo l’uso della lingua</translation>
    </message>
    <message>
        <source>International: C D E F G A B</source>
        <translation type="unfinished">Internazionali: C D E F G A B</translation>
    </message>
    <message>
        <source>German: C D E F G A H</source>
        <translation type="unfinished">Tedeschi: C D E F G A H</translation>
    </message>
    <message>
        <source>Solfège: Do Re Mi Fa Sol La Si</source>
        <translation type="unfinished">Solfeggio: Do Re Mi Fa Sol La Si</translation>
    </message>
    <message>
        <source>The names of the keys and notes in all windows</source>
        <translation type="unfinished">I nomi dei tasti e delle note in tutte le finestre</translation>
    </message>
    <message>
        <source>L&amp;anguage:</source>
        <translation type="unfinished">L&amp;ingua:</translation>
    </message>
    <message>
        <source>Not&amp;e names:</source>
        <translation type="unfinished">Nomi delle no&amp;te:</translation>
    </message>
</context>
<context>
    <name>velmora::LearnMenu</name>
    <message>
        <source>&amp;Learn MIDI Controller…</source>
        <translation type="unfinished">&amp;Apprendi controller MIDI…</translation>
    </message>
    <message>
        <source>Learn MIDI Controller for %1…</source>
        <translation type="unfinished">Apprendi controller MIDI per %1…</translation>
    </message>
    <message>
        <source>&amp;Forget MIDI Controller</source>
        <translation type="unfinished">&amp;Dimentica controller MIDI</translation>
    </message>
    <message>
        <source>Forget MIDI Controller for %1</source>
        <translation type="unfinished">Dimentica controller MIDI di %1</translation>
    </message>
    <message>
        <source>Learn MIDI Controller</source>
        <translation type="unfinished">Apprendi controller MIDI</translation>
    </message>
    <message>
        <source>Waiting for a MIDI controller for “%1”.
Move a controller, or press a button or a key, on a MIDI device.</source>
        <translation type="unfinished">In attesa di un controller MIDI per «%1».
Su un dispositivo MIDI muovi un controller, oppure premi un pulsante o un tasto.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>MIDI key %1 on channel %2</source>
        <translation type="unfinished">Tasto MIDI %1 sul canale %2</translation>
    </message>
    <message>
        <source>MIDI controller %1 on channel %2</source>
        <translation type="unfinished">Controller MIDI %1 sul canale %2</translation>
    </message>
</context>
<context>
    <name>velmora::LevelMeter</name>
    <message>
        <source>Level</source>
        <translation type="unfinished">Livello</translation>
    </message>
</context>
<context>
    <name>velmora::LyricsPanel</name>
    <message>
        <source>Lyrics</source>
        <translation type="unfinished">Testo cantato</translation>
    </message>
</context>
<context>
    <name>velmora::ManualsDialog</name>
    <message>
        <source>Manuals</source>
        <translation type="unfinished">Manuali</translation>
    </message>
    <message>
        <source>What no line names plays the lowest manual. The channels of pieces count as those of all devices.</source>
        <translation type="unfinished">Ciò che nessuna riga nomina suona il manuale più basso. I canali dei brani contano come quelli di tutti i dispositivi.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Dispositivo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canale</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation type="unfinished">Suona</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation type="unfinished">&amp;Aggiungi riga</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation type="unfinished">Tutti i dispositivi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Rimuovi</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation type="unfinished">Tutti i canali</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation type="unfinished">Canale %1</translation>
    </message>
</context>
<context>
    <name>velmora::MetersWindow</name>
    <message>
        <source>Meters</source>
        <translation type="unfinished">Indicatori</translation>
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
        <translation type="unfinished">%1 (%2)</translation>
    </message>
    <message>
        <source>Connect a MIDI device, and it appears here.</source>
        <translation type="unfinished">Collega un dispositivo MIDI e comparirà qui.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Dispositivo</translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished">Attivo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canale</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished">Tasti</translation>
    </message>
    <message>
        <source>MIDI devices</source>
        <translation type="unfinished">Dispositivi MIDI</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation type="unfinished">%1 (non collegato)</translation>
    </message>
    <message>
        <source>Whether the device is heard</source>
        <translation type="unfinished">Determina se il dispositivo viene ascoltato</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Tutti</translation>
    </message>
    <message>
        <source>The MIDI channel to listen to</source>
        <translation type="unfinished">Il canale MIDI da ascoltare</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> semitoni</translation>
    </message>
    <message>
        <source>How much higher the keys sound</source>
        <translation type="unfinished">Di quanto i tasti suonano più in alto</translation>
    </message>
</context>
<context>
    <name>velmora::NowTab</name>
    <message>
        <source>Notes</source>
        <translation type="unfinished">Note</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished">Intervallo</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">Cent</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Dal puro</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Battimenti/s</translation>
    </message>
    <message>
        <source>Sounding intervals</source>
        <translation type="unfinished">Intervalli che suonano</translation>
    </message>
    <message>
        <source>Show on the keys how pure they are</source>
        <translation type="unfinished">Mostrare sui tasti quanto sono puri</translation>
    </message>
    <message>
        <source>Colour each sounding key by its interval that is farthest from pure with another one</source>
        <translation type="unfinished">Colorare ogni tasto che suona secondo il suo intervallo con un altro più lontano dal puro</translation>
    </message>
    <message>
        <source>Play a chord</source>
        <translation type="unfinished">Suonate un accordo</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <translation type="unfinished">%1–%2</translation>
    </message>
    <message>
        <source>The music centres on %1 (%2 fifths from C).</source>
        <translation type="unfinished">La musica gravita attorno a %1 (%2 quinte dal do).</translation>
    </message>
    <message>
        <source>%1, not %2: %3 fifths from the centre instead of %4</source>
        <translation type="unfinished">%1, non %2: a %3 quinte dal centro invece di %4</translation>
    </message>
    <message>
        <source>Each key keeps its usual spelling until another one is forced.</source>
        <translation type="unfinished">Ogni tasto mantiene la grafia abituale finché non se ne impone un’altra.</translation>
    </message>
    <message>
        <source>Drift from the start: %1 cents</source>
        <translation type="unfinished">Deriva dall’inizio: %1 cent</translation>
    </message>
</context>
<context>
    <name>velmora::OutlyingNotes</name>
    <message>
        <source>The keyboard does not show these keys. Click to go to the first note.</source>
        <translation type="unfinished">La tastiera non mostra questi tasti. Fare clic per andare alla prima nota.</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) below %1</source>
        <translation type="unfinished">
            <numerusform>%n nota sotto %1</numerusform>
            <numerusform>%n note sotto %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) above %1</source>
        <translation type="unfinished">
            <numerusform>%n nota sopra %1</numerusform>
            <numerusform>%n note sopra %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::PlayingControls</name>
    <message>
        <source>Transpose down (Ctrl+Shift+Down)</source>
        <translation type="unfinished">Trasponi più in basso (Ctrl+Shift+Giù)</translation>
    </message>
    <message>
        <source>Transpose up (Ctrl+Shift+Up)</source>
        <translation type="unfinished">Trasponi più in alto (Ctrl+Shift+Su)</translation>
    </message>
    <message>
        <source>Linear touch</source>
        <translation type="unfinished">Tocco lineare</translation>
    </message>
    <message>
        <source>Soft touch</source>
        <translation type="unfinished">Tocco morbido</translation>
    </message>
    <message>
        <source>Hard touch</source>
        <translation type="unfinished">Tocco duro</translation>
    </message>
    <message>
        <source>Fixed touch</source>
        <translation type="unfinished">Tocco fisso</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Tocco</translation>
    </message>
    <message>
        <source>How loud your touch on a MIDI keyboard sounds: soft makes a light touch louder, hard asks for a strong one, fixed ignores the touch</source>
        <translation type="unfinished">L’intensità prodotta dal tuo tocco su una tastiera MIDI: morbido rinforza un tocco leggero, duro ne richiede uno energico, fisso ignora il tocco</translation>
    </message>
    <message>
        <source>Transposition</source>
        <translation type="unfinished">Trasposizione</translation>
    </message>
    <message>
        <source>The transposition of the MIDI keyboards in semitones</source>
        <translation type="unfinished">La trasposizione delle tastiere MIDI in semitoni</translation>
    </message>
    <message>
        <source>semitones</source>
        <translation type="unfinished">semitoni</translation>
    </message>
</context>
<context>
    <name>velmora::PlayingPane</name>
    <message>
        <source>How much higher than written the keys of MIDI devices sound</source>
        <translation type="unfinished">Di quanto i tasti dei dispositivi MIDI suonano più in alto della nota scritta</translation>
    </message>
    <message>
        <source>How far the pitch wheel bends up and down; with 0 it does nothing</source>
        <translation type="unfinished">Di quanto la rotella del pitch bend alza e abbassa le note; con 0 non ha effetto</translation>
    </message>
    <message>
        <source>Pl&amp;ain reading of MIDI devices</source>
        <translation type="unfinished">&amp;Lettura semplice dei dispositivi MIDI</translation>
    </message>
    <message>
        <source>Linear: as the keyboard sends it</source>
        <translation type="unfinished">Lineare: come lo invia la tastiera</translation>
    </message>
    <message>
        <source>Soft: a light touch is louder</source>
        <translation type="unfinished">Morbido: un tocco leggero suona più forte</translation>
    </message>
    <message>
        <source>Hard: only a strong touch is loud</source>
        <translation type="unfinished">Duro: solo un tocco energico suona forte</translation>
    </message>
    <message>
        <source>Fixed: always the same</source>
        <translation type="unfinished">Fisso: sempre uguale</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Tocco</translation>
    </message>
    <message>
        <source>Only notes and volumes count: no pedals, wheels, programs or learned controllers, no touch and no transposition</source>
        <translation type="unfinished">Contano solo note e volumi: niente pedali, rotelle, programmi o controller appresi, niente tocco né trasposizione</translation>
    </message>
    <message>
        <source>&amp;Touch:</source>
        <translation type="unfinished">&amp;Tocco:</translation>
    </message>
    <message>
        <source>T&amp;ransposition:</source>
        <translation type="unfinished">Tr&amp;asposizione:</translation>
    </message>
    <message>
        <source>Pitch &amp;wheel:</source>
        <translation type="unfinished">Rotella del &amp;pitch bend:</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> semitoni</translation>
    </message>
    <message>
        <source>Correct the ban&amp;k&apos;s own tuning</source>
        <translation type="unfinished">Correggi l’accordatura propria del &amp;banco</translation>
    </message>
    <message>
        <source>Keys that a SoundFont has out of tune are measured when a program is first used, and corrected</source>
        <translation type="unfinished">I tasti stonati di una SoundFont vengono misurati al primo uso di un programma e corretti</translation>
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
        <translation type="unfinished">Rallenta dopo gli errori</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Repeat bars</source>
        <translation type="unfinished">Ripeti battute</translation>
    </message>
    <message>
        <source>Show falling notes</source>
        <translation type="unfinished">Mostra le note che cadono</translation>
    </message>
    <message>
        <source>Both hands</source>
        <translation type="unfinished">Entrambe le mani</translation>
    </message>
    <message>
        <source>Right hand</source>
        <translation type="unfinished">Mano destra</translation>
    </message>
    <message>
        <source>Left hand</source>
        <translation type="unfinished">Mano sinistra</translation>
    </message>
    <message>
        <source>The lowest key of the right hand</source>
        <translation type="unfinished">Il tasto più grave della mano destra</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voci</translation>
    </message>
    <message>
        <source>The voices that you play; the others play along</source>
        <translation type="unfinished">Le voci che suoni; le altre accompagnano</translation>
    </message>
    <message>
        <source>What a pass without a mistake adds to the speed</source>
        <translation type="unfinished">Quanto un passaggio senza errori aggiunge alla velocità</translation>
    </message>
    <message>
        <source>How early a key may be, and how long a chord may be rolled</source>
        <translation type="unfinished">Di quanto un tasto può essere in anticipo e quanto può durare un accordo arpeggiato</translation>
    </message>
    <message>
        <source>to</source>
        <comment>bars</comment>
        <translation type="unfinished">a</translation>
    </message>
    <message>
        <source>First bar</source>
        <translation type="unfinished">Prima battuta</translation>
    </message>
    <message>
        <source>Last bar</source>
        <translation type="unfinished">Ultima battuta</translation>
    </message>
    <message>
        <source>Play:</source>
        <translation type="unfinished">Suonare:</translation>
    </message>
    <message>
        <source>Split at:</source>
        <translation type="unfinished">Dividi a:</translation>
    </message>
    <message>
        <source>Voices:</source>
        <translation type="unfinished">Voci:</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation type="unfinished">Velocità:</translation>
    </message>
    <message>
        <source>Faster by:</source>
        <translation type="unfinished">Più veloce di:</translation>
    </message>
    <message>
        <source>Tolerance:</source>
        <translation type="unfinished">Tolleranza:</translation>
    </message>
    <message>
        <source>Bars:</source>
        <translation type="unfinished">Battute:</translation>
    </message>
    <message>
        <source>There are no notes to practise. Choose other voices, another hand or other bars.</source>
        <translation type="unfinished">Non ci sono note da esercitare. Scegli altre voci, un’altra mano o altre battute.</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Voce %1</translation>
    </message>
    <message>
        <source>Stop Practising</source>
        <translation type="unfinished">Termina l’esercizio</translation>
    </message>
    <message>
        <source>Practise</source>
        <translation type="unfinished">Esercitati</translation>
    </message>
    <message>
        <source>Wait for missing keys</source>
        <translation type="unfinished">Attendi i tasti mancanti</translation>
    </message>
    <message>
        <source>If it does not wait, the piece goes on, and what you leave out is missed</source>
        <translation type="unfinished">Senza attesa il brano prosegue e ciò che si omette conta come mancato</translation>
    </message>
    <message>
        <source>Right: %1, wrong: %2, missed: %3, passes: %4</source>
        <translation type="unfinished">Giuste: %1, sbagliate: %2, mancate: %3, passaggi: %4</translation>
    </message>
</context>
<context>
    <name>velmora::PracticePicture</name>
    <message>
        <source>early</source>
        <translation type="unfinished">in anticipo</translation>
    </message>
    <message>
        <source>late</source>
        <translation type="unfinished">in ritardo</translation>
    </message>
    <message>
        <source>How early or late the keys were, in ms</source>
        <translation type="unfinished">Anticipo o ritardo dei tasti, in ms</translation>
    </message>
    <message>
        <source>Right, wrong (hatched) and missed (empty) keys by bar</source>
        <translation type="unfinished">Tasti giusti, sbagliati (tratteggiati) e mancati (vuoti) per battuta</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeResults</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Senza titolo</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>The result of the practice was not kept: %1</source>
        <translation type="unfinished">Il risultato dell’esercizio non è stato conservato: %1</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished">Salva immagine</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Esercizio</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeWindow</name>
    <message>
        <source>Practice sessions</source>
        <translation type="unfinished">Sessioni di esercizio</translation>
    </message>
    <message>
        <source>Result by bar and by time</source>
        <translation type="unfinished">Risultato per battuta e per tempo</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation type="unfinished">Salva &amp;immagine…</translation>
    </message>
    <message>
        <source>Practice: %1</source>
        <translation type="unfinished">Esercizio: %1</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <comment>a time, a speed in percent</comment>
        <translation type="unfinished">%1 al %2 %</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms early.</source>
        <translation type="unfinished">Di solito i tasti erano in anticipo di %1 ms.</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms late.</source>
        <translation type="unfinished">Di solito i tasti erano in ritardo di %1 ms.</translation>
    </message>
    <message>
        <source>Right keys: %1 (%2 early, %3 late), wrong keys: %4, missed keys: %5. Passes: %6, without a mistake: %7.</source>
        <translation type="unfinished">Tasti giusti: %1 (%2 in anticipo, %3 in ritardo), sbagliati: %4, mancati: %5. Passaggi: %6, senza errori: %7.</translation>
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
        <translation type="unfinished">Preferenze</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation type="unfinished">Pannelli</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished">&amp;Generale</translation>
    </message>
    <message>
        <source>C&amp;olors</source>
        <translation type="unfinished">&amp;Colori</translation>
    </message>
    <message>
        <source>&amp;MIDI</source>
        <translation type="unfinished">&amp;MIDI</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation type="unfinished">&amp;Suono</translation>
    </message>
    <message>
        <source>Key &amp;width:</source>
        <translation type="unfinished">&amp;Larghezza dei tasti:</translation>
    </message>
    <message>
        <source>The width of a semitone on the keyboard and in the piano roll</source>
        <translation type="unfinished">La larghezza di un semitono sulla tastiera e nel piano roll</translation>
    </message>
    <message>
        <source>&amp;Step height:</source>
        <translation type="unfinished">&amp;Altezza dei passi:</translation>
    </message>
    <message>
        <source>The height of a step, the distance between grid lines, in the piano roll</source>
        <translation type="unfinished">L’altezza di un passo, cioè la distanza fra le linee della griglia, nel piano roll</translation>
    </message>
    <message>
        <source>&amp;Lowest key:</source>
        <translation type="unfinished">Tasto più gra&amp;ve:</translation>
    </message>
    <message>
        <source>The first key of the keyboard: a note name, such as A0, or a MIDI key number</source>
        <translation type="unfinished">Il primo tasto della tastiera: il nome di una nota, come La0, o il numero di un tasto MIDI</translation>
    </message>
    <message>
        <source>&amp;Highest key:</source>
        <translation type="unfinished">Tasto più ac&amp;uto:</translation>
    </message>
    <message>
        <source>The last key of the keyboard: a note name, such as C8, or a MIDI key number</source>
        <translation type="unfinished">L’ultimo tasto della tastiera: il nome di una nota, come Do8, o il numero di un tasto MIDI</translation>
    </message>
    <message>
        <source>Show note &amp;names on the C keys</source>
        <translation type="unfinished">Mostra i &amp;nomi delle note sui tasti del Do</translation>
    </message>
    <message>
        <source>General MIDI bank:</source>
        <translation type="unfinished">Banco General MIDI:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation type="unfinished">Predefinito di sistema</translation>
    </message>
    <message>
        <source>General MIDI bank</source>
        <translation type="unfinished">Banco General MIDI</translation>
    </message>
    <message>
        <source>Choose a SoundFont for the General MIDI player</source>
        <translation type="unfinished">Scegli un SoundFont per il sintetizzatore General MIDI</translation>
    </message>
    <message>
        <source>Use &amp;Default</source>
        <translation type="unfinished">Usa pre&amp;definito</translation>
    </message>
    <message>
        <source>Use the system&apos;s General MIDI bank</source>
        <translation type="unfinished">Usa il banco General MIDI del sistema</translation>
    </message>
    <message>
        <source>Choose a General MIDI Bank</source>
        <translation type="unfinished">Scegli un banco General MIDI</translation>
    </message>
    <message>
        <source>SoundFont banks (*.sf2 *.sf3)</source>
        <translation type="unfinished">Banchi SoundFont (*.sf2 *.sf3)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished">Tutti i file (*)</translation>
    </message>
    <message>
        <source>A&amp;t the start:</source>
        <translation type="unfinished">All’avvi&amp;o:</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation type="unfinished">Inizia da zero</translation>
    </message>
    <message>
        <source>Start as last time</source>
        <translation type="unfinished">Riprendi dall’ultima volta</translation>
    </message>
    <message>
        <source>Whether the instruments, the tuning and the pieces that are open when you quit are opened again</source>
        <translation type="unfinished">Determina se riaprire gli strumenti, il temperamento e i brani aperti all’uscita</translation>
    </message>
    <message>
        <source>Short&amp;cuts</source>
        <translation type="unfinished">Sco&amp;rciatoie</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">S&amp;foglia…</translation>
    </message>
</context>
<context>
    <name>velmora::ProgramList</name>
    <message>
        <source>Piano</source>
        <translation type="unfinished">Pianoforti</translation>
    </message>
    <message>
        <source>Chromatic Percussion</source>
        <translation type="unfinished">Percussioni cromatiche</translation>
    </message>
    <message>
        <source>Organ</source>
        <translation type="unfinished">Organi</translation>
    </message>
    <message>
        <source>Guitar</source>
        <translation type="unfinished">Chitarre</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation type="unfinished">Bassi</translation>
    </message>
    <message>
        <source>Strings</source>
        <translation type="unfinished">Archi</translation>
    </message>
    <message>
        <source>Ensemble</source>
        <translation type="unfinished">Ensemble</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation type="unfinished">Ottoni</translation>
    </message>
    <message>
        <source>Reed</source>
        <translation type="unfinished">Ance</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation type="unfinished">Flauti</translation>
    </message>
    <message>
        <source>Synth Lead</source>
        <translation type="unfinished">Solisti synth</translation>
    </message>
    <message>
        <source>Synth Pad</source>
        <translation type="unfinished">Pad synth</translation>
    </message>
    <message>
        <source>Synth Effects</source>
        <translation type="unfinished">Effetti synth</translation>
    </message>
    <message>
        <source>Ethnic</source>
        <translation type="unfinished">Strumenti etnici</translation>
    </message>
    <message>
        <source>Percussive</source>
        <translation type="unfinished">Percussioni</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation type="unfinished">Effetti sonori</translation>
    </message>
    <message>
        <source>Find a program</source>
        <translation type="unfinished">Cerca un programma</translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished">Programma</translation>
    </message>
    <message>
        <source>Drum kits</source>
        <translation type="unfinished">Batterie</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation type="unfinished">Banco %1</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressWindow</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished">Caricamento</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished">Avanzamento</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished">Annullamento…</translation>
    </message>
</context>
<context>
    <name>velmora::PurityLegend</name>
    <message>
        <source>Legend</source>
        <translation type="unfinished">Legenda</translation>
    </message>
    <message>
        <source>%1: up to %2 cents</source>
        <translation type="unfinished">%1: fino a %2 cent</translation>
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
        <translation type="unfinished">Sposta anche la &amp;fine delle note</translation>
    </message>
    <message>
        <source>Quantise</source>
        <translation type="unfinished">Quantizza</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>1/%1 triplets</source>
        <translation type="unfinished">terzine di 1/%1</translation>
    </message>
    <message>
        <source>Where the second of two units begins: 50 % is even, 67 % triplets</source>
        <translation type="unfinished">Dove comincia la seconda di due unità: 50 % è regolare, 67 % terzine</translation>
    </message>
    <message numerus="yes">
        <source>Moves all %n note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Sposta l’unica nota sulla griglia.</numerusform>
            <numerusform>Sposta tutte le %n note sulla griglia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves %n selected note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Sposta %n nota selezionata sulla griglia.</numerusform>
            <numerusform>Sposta %n note selezionate sulla griglia.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Grid:</source>
        <translation type="unfinished">&amp;Griglia:</translation>
    </message>
    <message>
        <source>&amp;Strength:</source>
        <translation type="unfinished">&amp;Intensità:</translation>
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
        <translation type="unfinished">Brano</translation>
    </message>
    <message>
        <source>&amp;Metronome</source>
        <translation type="unfinished">&amp;Metronomo</translation>
    </message>
    <message>
        <source>Click on the beats</source>
        <translation type="unfinished">Batte i tempi con un clic</translation>
    </message>
    <message>
        <source>P&amp;unch In</source>
        <translation type="unfinished">P&amp;unch-in</translation>
    </message>
    <message>
        <source>Record only in the selected time, and replace what the channel has there</source>
        <translation type="unfinished">Registra solo nel tempo selezionato e sostituisce ciò che il canale vi contiene</translation>
    </message>
    <message>
        <source>Metronome and Count-&amp;In</source>
        <translation type="unfinished">Metronomo e battute d’a&amp;ttacco</translation>
    </message>
    <message>
        <source>&amp;Takes</source>
        <translation type="unfinished">Ri&amp;prese</translation>
    </message>
    <message>
        <source>Metronome</source>
        <translation type="unfinished">Metronomo</translation>
    </message>
    <message>
        <source>While Recording and Playing</source>
        <translation type="unfinished">Durante registrazione e riproduzione</translation>
    </message>
    <message>
        <source>Only While Recording</source>
        <translation type="unfinished">Solo durante la registrazione</translation>
    </message>
    <message>
        <source>Only While Playing</source>
        <translation type="unfinished">Solo durante la riproduzione</translation>
    </message>
    <message>
        <source>Click Between the Beats</source>
        <translation type="unfinished">Clic tra i tempi</translation>
    </message>
    <message>
        <source>Count-In</source>
        <translation type="unfinished">Battute d’attacco</translation>
    </message>
    <message>
        <source>No Count-In</source>
        <translation type="unfinished">Nessuna battuta d’attacco</translation>
    </message>
    <message>
        <source>One Bar</source>
        <translation type="unfinished">Una battuta</translation>
    </message>
    <message>
        <source>Two Bars</source>
        <translation type="unfinished">Due battute</translation>
    </message>
    <message>
        <source>Volume of the metronome</source>
        <translation type="unfinished">Volume del metronomo</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished">&amp;Volume</translation>
    </message>
    <message numerus="yes">
        <source>Take %1: %n note(s)</source>
        <translation type="unfinished">
            <numerusform>Ripresa %1: %n nota</numerusform>
            <numerusform>Ripresa %1: %n note</numerusform>
        </translation>
    </message>
    <message>
        <source>Fit to Grid…</source>
        <translation type="unfinished">Adattare alla griglia…</translation>
    </message>
    <message>
        <source>Find the tempo and the bars of a free recording, and move it to them</source>
        <translation type="unfinished">Trova il tempo e le battute di una registrazione libera e la adatta a esse</translation>
    </message>
    <message>
        <source>Thin Controllers…</source>
        <translation type="unfinished">Sfoltire i controller…</translation>
    </message>
    <message>
        <source>Leave out moves of controllers that nobody hears</source>
        <translation type="unfinished">Omette i movimenti di controller che nessuno sente</translation>
    </message>
    <message>
        <source>Thin Controllers</source>
        <translation type="unfinished">Sfoltire i controller</translation>
    </message>
    <message>
        <source>Leave out changes of at most this many of 127:</source>
        <translation type="unfinished">Omettere le variazioni fino a tanti di 127:</translation>
    </message>
</context>
<context>
    <name>velmora::RollActions</name>
    <message>
        <source>View</source>
        <translation type="unfinished">Visualizza</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation type="unfinished">Corsia</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation type="unfinished">In&amp;grandisci</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation type="unfinished">&amp;Rimpicciolisci</translation>
    </message>
    <message>
        <source>&amp;Wider Keys</source>
        <translation type="unfinished">Tasti più &amp;larghi</translation>
    </message>
    <message>
        <source>N&amp;arrower Keys</source>
        <translation type="unfinished">Tasti p&amp;iù stretti</translation>
    </message>
    <message>
        <source>Zoom to Selection</source>
        <translation type="unfinished">Adatta alla selezione</translation>
    </message>
    <message>
        <source>Zoom to All Notes</source>
        <translation type="unfinished">Adatta a tutte le note</translation>
    </message>
    <message>
        <source>Time Runs Across</source>
        <translation type="unfinished">Il tempo scorre verso destra</translation>
    </message>
    <message>
        <source>Let time run from left to right instead of upwards</source>
        <translation type="unfinished">Fa scorrere il tempo da sinistra a destra e non verso l’alto</translation>
    </message>
</context>
<context>
    <name>velmora::RollPaper</name>
    <message>
        <source>The piece is too long for this. Please take more bars for each line.</source>
        <translation type="unfinished">Il brano è troppo lungo per questo. Scegli più battute per riga.</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The piece is too long for one picture. Please take more bars for each line, or write PDF.</source>
        <translation type="unfinished">Il brano è troppo lungo per una sola immagine. Scegli più battute per riga o scrivi un PDF.</translation>
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
        <translation type="unfinished">Seleziona note</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Tutti</translation>
    </message>
    <message>
        <source>&amp;Voice:</source>
        <translation type="unfinished">&amp;Voce:</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation type="unfinished">&amp;Tasti:</translation>
    </message>
    <message>
        <source>V&amp;elocities:</source>
        <translation type="unfinished">V&amp;elocity:</translation>
    </message>
    <message>
        <source>Lowest key</source>
        <translation type="unfinished">Tasto più grave</translation>
    </message>
    <message>
        <source>Highest key</source>
        <translation type="unfinished">Tasto più acuto</translation>
    </message>
    <message>
        <source>Softest velocity</source>
        <translation type="unfinished">Velocity minima</translation>
    </message>
    <message>
        <source>Loudest velocity</source>
        <translation type="unfinished">Velocity massima</translation>
    </message>
</context>
<context>
    <name>velmora::SendTuningDialog</name>
    <message>
        <source>&amp;Keep sending when the tuning changes</source>
        <translation type="unfinished">&amp;Continua a inviare quando il temperamento cambia</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished">&amp;Invia</translation>
    </message>
    <message>
        <source>Send the Tuning</source>
        <translation type="unfinished">Invia il temperamento</translation>
    </message>
    <message>
        <source>No MIDI output is connected</source>
        <translation type="unfinished">Nessuna uscita MIDI è collegata</translation>
    </message>
    <message>
        <source>MIDI &amp;output:</source>
        <translation type="unfinished">&amp;Uscita MIDI:</translation>
    </message>
    <message>
        <source>The tuning was sent to %1.</source>
        <translation type="unfinished">Il temperamento è stato inviato a %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceActions</name>
    <message>
        <source>&amp;Loop</source>
        <translation type="unfinished">&amp;Loop</translation>
    </message>
    <message>
        <source>Repeat the selected time, or the whole sequence</source>
        <translation type="unfinished">Ripeti l’intervallo selezionato o l’intero brano</translation>
    </message>
    <message>
        <source>Snap to &amp;Grid</source>
        <translation type="unfinished">Aggancia alla &amp;griglia</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished">&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished">&amp;Rifai</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished">&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished">&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished">&amp;Incolla</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Elimina</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished">&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation type="unfinished">&amp;Deseleziona tutto</translation>
    </message>
    <message>
        <source>Go to &amp;Start</source>
        <translation type="unfinished">Vai all’&amp;inizio</translation>
    </message>
    <message>
        <source>Pre&amp;vious Notes</source>
        <translation type="unfinished">Note pr&amp;ecedenti</translation>
    </message>
    <message>
        <source>&amp;Next Notes</source>
        <translation type="unfinished">Note &amp;successive</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">&amp;Canale</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Ferma</translation>
    </message>
    <message>
        <source>Record what you play, starting at the position</source>
        <translation type="unfinished">Registra ciò che suoni a partire dalla posizione</translation>
    </message>
    <message>
        <source>Play from the position</source>
        <translation type="unfinished">Riproduci dalla posizione</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Brano</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished">&amp;Registra</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">Ripro&amp;duci</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt Note</source>
        <translation type="unfinished">Seleziona nota s&amp;uccessiva</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious Note</source>
        <translation type="unfinished">Seleziona nota &amp;precedente</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation type="unfinished">Vai alla &amp;fine</translation>
    </message>
    <message>
        <source>&amp;Selected Notes</source>
        <translation type="unfinished">&amp;Note selezionate</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished">Modifica</translation>
    </message>
    <message>
        <source>Move Notes &amp;Up a Semitone</source>
        <translation type="unfinished">&amp;Alza le note di un semitono</translation>
    </message>
    <message>
        <source>Move Notes &amp;Down a Semitone</source>
        <translation type="unfinished">A&amp;bbassa le note di un semitono</translation>
    </message>
    <message>
        <source>Move Notes &amp;Later</source>
        <translation type="unfinished">&amp;Posticipa le note</translation>
    </message>
    <message>
        <source>Move Notes &amp;Earlier</source>
        <translation type="unfinished">Anti&amp;cipa le note</translation>
    </message>
    <message>
        <source>Make Notes Lon&amp;ger</source>
        <translation type="unfinished">A&amp;llunga le note</translation>
    </message>
    <message>
        <source>Make Notes &amp;Shorter</source>
        <translation type="unfinished">Acco&amp;rcia le note</translation>
    </message>
    <message>
        <source>Align notes and times with the lines of the grid</source>
        <translation type="unfinished">Allinea note e tempi alle linee della griglia</translation>
    </message>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Cronologia delle modifiche</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceDocument</name>
    <message>
        <source>Draw Note</source>
        <translation type="unfinished">disegno di una nota</translation>
    </message>
    <message numerus="yes">
        <source>Record %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>registrazione di %n nota</numerusform>
            <numerusform>registrazione di %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>eliminazione di %n nota</numerusform>
            <numerusform>eliminazione di %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>cambio di durata di %n nota</numerusform>
            <numerusform>cambio di durata di %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>spostamento di %n nota</numerusform>
            <numerusform>spostamento di %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Set Channel of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>cambio di canale di %n nota</numerusform>
            <numerusform>cambio di canale di %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cut %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>taglio di %n nota</numerusform>
            <numerusform>taglio di %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>inserimento di %n nota</numerusform>
            <numerusform>inserimento di %n note</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Take %1</source>
        <translation type="unfinished">Scegliere la ripresa %1</translation>
    </message>
    <message numerus="yes">
        <source>Quantise %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Quantizza %n nota</numerusform>
            <numerusform>Quantizza %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Transpose %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Trasporta %n nota</numerusform>
            <numerusform>Trasporta %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Duplica %n nota</numerusform>
            <numerusform>Duplica %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Dividi %n nota</numerusform>
            <numerusform>Dividi %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Join %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Unisci %n nota</numerusform>
            <numerusform>Unisci %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Connect %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Lega %n nota</numerusform>
            <numerusform>Lega %n note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Change Velocity of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Cambia la velocity di %n nota</numerusform>
            <numerusform>Cambia la velocity di %n note</numerusform>
        </translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Registra</translation>
    </message>
    <message>
        <source>Record Controllers</source>
        <translation type="unfinished">Registrare i controller</translation>
    </message>
</context>
<context>
    <name>velmora::SequencePages</name>
    <message numerus="yes">
        <source>%1, %n note(s), %2</source>
        <translation type="unfinished">
            <numerusform>%1, %n nota, %2</numerusform>
            <numerusform>%1, %n note, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Senza titolo</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>Velmora was not closed properly. Recover the unsaved sequences?</source>
        <translation type="unfinished">Velmora non è stato chiuso correttamente. Recuperare i brani non salvati?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished">Recupera</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished">Scarta</translation>
    </message>
    <message>
        <source>Ask Later</source>
        <translation type="unfinished">Chiedi più tardi</translation>
    </message>
    <message>
        <source>%1 •</source>
        <translation type="unfinished">%1 •</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation type="unfinished">Senza titolo %1</translation>
    </message>
    <message>
        <source>%1 is damaged. Open what could be read?</source>
        <translation type="unfinished">%1 è danneggiato. Aprire ciò che è stato possibile leggere?</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) could be read.</source>
        <translation type="unfinished">
            <numerusform>È stato possibile leggere %n nota.</numerusform>
            <numerusform>È stato possibile leggere %n note.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” has stopped, because the voices of “%2” sound otherwise.</source>
        <translation type="unfinished">«%1» si è fermato, perché le voci di «%2» suonano diversamente.</translation>
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
        <translation type="unfinished">L’esportazione di %1 è ancora in corso. Interromperla?</translation>
    </message>
    <message>
        <source>If you stop it, no sound file is written.</source>
        <translation type="unfinished">Se la interrompi, non verrà creato nessun file audio.</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <translation type="unfinished">Interrompi esportazione</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation type="unfinished">Salvare le modifiche a %1?</translation>
    </message>
    <message>
        <source>If you do not save them, they are lost.</source>
        <translation type="unfinished">Se non le salvi, andranno perse.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished">Salva con nome</translation>
    </message>
    <message>
        <source>An iMelody file holds a single voice and no dynamics. Save it anyway?</source>
        <translation type="unfinished">Un file iMelody contiene una sola voce e nessuna dinamica. Salvarlo comunque?</translation>
    </message>
    <message>
        <source>Velmora cannot open iMelody files. A MIDI file keeps everything that you see.</source>
        <translation type="unfinished">Velmora non può aprire i file iMelody. Un file MIDI conserva tutto ciò che vedi.</translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation type="unfinished">%1 non è stato salvato.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Salva con nome…</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceScrollView</name>
    <message>
        <source>Keys shown</source>
        <translation type="unfinished">Tasti visibili</translation>
    </message>
    <message>
        <source>Time shown</source>
        <translation type="unfinished">Tempo visibile</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceStatus</name>
    <message>
        <source>Practice: play the notes at the position to move on to the next ones</source>
        <translation type="unfinished">Studio: suona le note alla posizione per passare alle successive</translation>
    </message>
    <message>
        <source>Steps %1 to %2</source>
        <translation type="unfinished">Passi da %1 a %2</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished">Riproduzione</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished">Registrazione</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation type="unfinished">In attesa di %1</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) selected</source>
        <translation type="unfinished">
            <numerusform>%n nota selezionata</numerusform>
            <numerusform>%n note selezionate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) in all</source>
        <translation type="unfinished">
            <numerusform>%n nota in tutto</numerusform>
            <numerusform>%n note in tutto</numerusform>
        </translation>
    </message>
    <message>
        <source>Done: all notes played</source>
        <translation type="unfinished">Finito: tutte le note sono state suonate</translation>
    </message>
    <message>
        <source>Release %1</source>
        <translation type="unfinished">Rilascia %1</translation>
    </message>
    <message>
        <source>Waiting for %1; not %2</source>
        <translation type="unfinished">In attesa di %1; non %2</translation>
    </message>
    <message>
        <source>Counting in</source>
        <translation type="unfinished">Battute d’attacco in corso</translation>
    </message>
    <message>
        <source>Bar %1, beat %2 to bar %3, beat %4</source>
        <translation type="unfinished">Da battuta %1, movimento %2 a battuta %3, movimento %4</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation type="unfinished">Prossimo: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceView</name>
    <message>
        <source>Piano roll</source>
        <translation type="unfinished">Piano roll</translation>
    </message>
    <message>
        <source>Velocity %1 %</source>
        <translation type="unfinished">Velocity %1%</translation>
    </message>
    <message>
        <source>%1, bar %2, beat %3, length in beats %4, channel %5</source>
        <translation type="unfinished">%1, battuta %2, movimento %3, durata in movimenti %4, canale %5</translation>
    </message>
</context>
<context>
    <name>velmora::ShapeTab</name>
    <message>
        <source>Hear the Original</source>
        <translation type="unfinished">Ascolta l’originale</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Salva con nome…</translation>
    </message>
    <message>
        <source>Ways to shape the tuning</source>
        <translation type="unfinished">Modi di modellare l’accordatura</translation>
    </message>
    <message>
        <source>By Notes</source>
        <translation type="unfinished">Per note</translation>
    </message>
    <message>
        <source>By Fifths</source>
        <translation type="unfinished">Per quinte</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">Ripeti</translation>
    </message>
    <message>
        <source>Compare the tuning with what it was before you changed it</source>
        <translation type="unfinished">Confrontare l’accordatura con ciò che era prima della modifica</translation>
    </message>
    <message>
        <source>Save the tuning as a scale file, which is then listed</source>
        <translation type="unfinished">Salvare l’accordatura in un file di scala, che compare poi nell’elenco</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished">Descrizione:</translation>
    </message>
    <message>
        <source>Slider of %1</source>
        <translation type="unfinished">Cursore di %1</translation>
    </message>
    <message>
        <source> cents</source>
        <translation type="unfinished"> cent</translation>
    </message>
    <message>
        <source>This tuning finds its pitches while you play, so it has no fixed notes to shape. Choose another one.</source>
        <translation type="unfinished">Questa accordatura trova le sue altezze mentre suonate, quindi non ha note fisse da modellare. Sceglietene un’altra.</translation>
    </message>
    <message>
        <source>You are shaping a copy of %1. Save it to keep it.</source>
        <translation type="unfinished">State modellando una copia di %1. Salvatela per conservarla.</translation>
    </message>
    <message>
        <source>Move a note, and you hear it at once in a copy of this tuning. The first note stays.</source>
        <translation type="unfinished">Spostate una nota e la sentirete subito in una copia di questa accordatura. La prima nota resta ferma.</translation>
    </message>
</context>
<context>
    <name>velmora::ShellActions</name>
    <message>
        <source>File</source>
        <translation type="unfinished">File</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished">Suono</translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished">Visualizza</translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished">Aiuto</translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation type="unfinished">&amp;Nuovo brano</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">&amp;Apri…</translation>
    </message>
    <message>
        <source>Open pieces, instruments and tunings</source>
        <translation type="unfinished">Apri brani, strumenti e temperamenti</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Salva</translation>
    </message>
    <message>
        <source>Save the piece</source>
        <translation type="unfinished">Salva il brano</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished">Salva &amp;con nome…</translation>
    </message>
    <message>
        <source>&amp;Export Audio…</source>
        <translation type="unfinished">Esporta au&amp;dio…</translation>
    </message>
    <message>
        <source>Write a sound file of the piece</source>
        <translation type="unfinished">Crea un file audio del brano</translation>
    </message>
    <message>
        <source>&amp;Close Piece</source>
        <translation type="unfinished">Chi&amp;udi brano</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished">&amp;Preferenze…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Silence Everything</source>
        <translation type="unfinished">Silenzia &amp;tutto</translation>
    </message>
    <message>
        <source>Stop every sound and release every key</source>
        <translation type="unfinished">Ferma tutti i suoni e rilascia tutti i tasti</translation>
    </message>
    <message>
        <source>Transpose &amp;Up</source>
        <translation type="unfinished">Trasponi più in &amp;alto</translation>
    </message>
    <message>
        <source>Transpose &amp;Down</source>
        <translation type="unfinished">Trasponi più in &amp;basso</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation type="unfinished">T&amp;astiera</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation type="unfinished">&amp;Strumento</translation>
    </message>
    <message>
        <source>Show the program or the stops</source>
        <translation type="unfinished">Mostra il programma o i registri</translation>
    </message>
    <message>
        <source>&amp;Tuning</source>
        <translation type="unfinished">&amp;Temperamento</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">Esecu&amp;zione</translation>
    </message>
    <message>
        <source>Arrange the window for playing</source>
        <translation type="unfinished">Disponi la finestra per suonare</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">&amp;Modifica</translation>
    </message>
    <message>
        <source>Arrange the window for editing</source>
        <translation type="unfinished">Disponi la finestra per modificare</translation>
    </message>
    <message>
        <source>&amp;Stage</source>
        <translation type="unfinished">&amp;Palco</translation>
    </message>
    <message>
        <source>Fill the screen with what matters on stage</source>
        <translation type="unfinished">Riempi lo schermo con ciò che conta sul palco</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished">Reimposta &amp;disposizione</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <translation type="unfinished">Pannello s&amp;uccessivo</translation>
    </message>
    <message>
        <source>Pre&amp;vious Panel</source>
        <translation type="unfinished">Pannello pr&amp;ecedente</translation>
    </message>
    <message>
        <source>Piece in Its &amp;Own Window</source>
        <translation type="unfinished">Brano in &amp;finestra propria</translation>
    </message>
    <message>
        <source>&amp;Loaded Instruments…</source>
        <translation type="unfinished">Strumenti &amp;caricati…</translation>
    </message>
    <message>
        <source>&amp;Meters</source>
        <translation type="unfinished">Indicat&amp;ori</translation>
    </message>
    <message>
        <source>Show the delay, the load and the devices of live playing</source>
        <translation type="unfinished">Mostra il ritardo, il carico e i dispositivi dell’esecuzione dal vivo</translation>
    </message>
    <message>
        <source>Note &amp;Names on the Keyboard</source>
        <translation type="unfinished">&amp;Nomi delle note sulla tastiera</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation type="unfinished">&amp;Guida utente</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation type="unfinished">&amp;Informazioni su Velmora</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished">Apri &amp;recenti</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished">&amp;Svuota elenco</translation>
    </message>
    <message>
        <source>Open Sess&amp;ion…</source>
        <translation type="unfinished">Apri sess&amp;ione…</translation>
    </message>
    <message>
        <source>Open the instruments, the tuning and the pieces of a session</source>
        <translation type="unfinished">Apri gli strumenti, il temperamento e i brani di una sessione</translation>
    </message>
    <message>
        <source>Sa&amp;ve Session…</source>
        <translation type="unfinished">Sal&amp;va sessione…</translation>
    </message>
    <message>
        <source>Save which instruments, tuning and pieces are open</source>
        <translation type="unfinished">Salva quali strumenti, temperamento e brani sono aperti</translation>
    </message>
    <message>
        <source>&amp;Find a Command…</source>
        <translation type="unfinished">&amp;Trova un comando…</translation>
    </message>
    <message>
        <source>Find a command by its name and perform it</source>
        <translation type="unfinished">Trova un comando per nome ed eseguilo</translation>
    </message>
    <message>
        <source>&amp;Console</source>
        <translation type="unfinished">Consolle di &amp;quest’organo</translation>
    </message>
    <message>
        <source>Show the stops of the organ</source>
        <translation type="unfinished">Mostrare i registri dell’organo</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Tralascia i registri non ancora caricati</translation>
    </message>
    <message>
        <source>Stop Loadin&amp;g</source>
        <translation type="unfinished">Interrompi il caricamen&amp;to</translation>
    </message>
    <message>
        <source>Export &amp;MIDI in This Tuning…</source>
        <translation type="unfinished">Esporta &amp;MIDI in questo temperamento…</translation>
    </message>
    <message>
        <source>Write a MIDI file of the piece that other devices play in this tuning</source>
        <translation type="unfinished">Scrive un file MIDI del brano che altri dispositivi suonano in questo temperamento</translation>
    </message>
    <message>
        <source>Export &amp;Tuning…</source>
        <translation type="unfinished">Esporta il &amp;temperamento…</translation>
    </message>
    <message>
        <source>Write what each key sounds like now as a scale and a keyboard mapping</source>
        <translation type="unfinished">Scrive come suona ora ogni tasto, come scala e mappa della tastiera</translation>
    </message>
    <message>
        <source>&amp;Send the Tuning…</source>
        <translation type="unfinished">&amp;Invia il temperamento…</translation>
    </message>
    <message>
        <source>Send the tuning to a MIDI device that is to play in it</source>
        <translation type="unfinished">Invia il temperamento a un dispositivo MIDI che deve usarlo</translation>
    </message>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Modella l’accordatura</translation>
    </message>
    <message>
        <source>Show the circle of fifths, and shape the tuning</source>
        <translation type="unfinished">Mostrare il circolo delle quinte e modellare l’accordatura</translation>
    </message>
    <message>
        <source>E&amp;xport Score…</source>
        <translation type="unfinished">Esporta &amp;la partitura…</translation>
    </message>
    <message>
        <source>Write the piece down for a notation program, spelled as the tuning spells it</source>
        <translation type="unfinished">Scrivere il brano per un programma di notazione, con i nomi che l’accordatura dà alle note</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Esercizio</translation>
    </message>
    <message>
        <source>Practise the piece, a hand or a voice of it</source>
        <translation type="unfinished">Esercitarsi sul brano, su una mano o su una voce</translation>
    </message>
    <message>
        <source>Show who plays the piece</source>
        <translation type="unfinished">Mostra chi suona il brano</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voci</translation>
    </message>
    <message>
        <source>Export Voices…</source>
        <translation type="unfinished">Esporta voci…</translation>
    </message>
    <message>
        <source>Write a sound file of each voice of the piece</source>
        <translation type="unfinished">Scrivi un file audio di ogni voce del brano</translation>
    </message>
    <message>
        <source>Export Roll…</source>
        <translation type="unfinished">Esporta il rullo…</translation>
    </message>
    <message>
        <source>Write the piano roll of the piece for paper, as PDF or PNG</source>
        <translation type="unfinished">Scrivi il piano roll del brano per la carta, come PDF o PNG</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">&amp;Apri strumento…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Apri un SoundFont, un banco GigaSampler o un organo</translation>
    </message>
    <message>
        <source>&amp;Open Tuning…</source>
        <translation type="unfinished">&amp;Apri accordatura…</translation>
    </message>
    <message>
        <source>Open scales and other tunings</source>
        <translation type="unfinished">Apri scale e altre accordature</translation>
    </message>
</context>
<context>
    <name>velmora::ShortcutsPane</name>
    <message>
        <source>Find a command</source>
        <translation type="unfinished">Trova un comando</translation>
    </message>
    <message>
        <source>Use It &amp;Here</source>
        <translation type="unfinished">&amp;Usa qui</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished">R&amp;imuovi</translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished">Comando</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished">Scorciatoia</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Comandi</translation>
    </message>
    <message>
        <source>Press the new keys for the selected command</source>
        <translation type="unfinished">Premi i nuovi tasti per il comando selezionato</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <translation type="unfinished">Nuova scorciatoia</translation>
    </message>
    <message>
        <source>&amp;New shortcut:</source>
        <translation type="unfinished">&amp;Nuova scorciatoia:</translation>
    </message>
    <message>
        <source>Take the shortcut from the other command</source>
        <translation type="unfinished">Togli la scorciatoia all’altro comando</translation>
    </message>
    <message>
        <source>Leave the selected command without a shortcut</source>
        <translation type="unfinished">Lascia il comando selezionato senza scorciatoia</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation type="unfinished">Ripristina valori pre&amp;definiti</translation>
    </message>
    <message>
        <source>Give every command the shortcuts that it had at first</source>
        <translation type="unfinished">Ridai a ogni comando le scorciatoie originali</translation>
    </message>
    <message>
        <source>%1 plays a note. Add Ctrl or Alt, or use a function key.</source>
        <translation type="unfinished">%1 suona una nota. Aggiungi Ctrl o Alt, o usa un tasto funzione.</translation>
    </message>
    <message>
        <source>%1 belongs to “%2”. Press other keys, or use it here instead.</source>
        <translation type="unfinished">%1 appartiene a «%2». Premi altri tasti, o usalo qui al suo posto.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundPane</name>
    <message>
        <source>Ou&amp;tput:</source>
        <translation type="unfinished">&amp;Uscita:</translation>
    </message>
    <message>
        <source>The sound server or driver that Velmora plays through</source>
        <translation type="unfinished">Il server audio o il driver attraverso cui Velmora suona</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation type="unfinished">&amp;Dispositivo:</translation>
    </message>
    <message>
        <source>The device that is heard</source>
        <translation type="unfinished">Il dispositivo da cui esce il suono</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation type="unfinished">&amp;Frequenza di campionamento:</translation>
    </message>
    <message>
        <source>A JACK server determines the sample rate itself</source>
        <translation type="unfinished">Un server JACK stabilisce da sé la frequenza di campionamento</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation type="unfinished">&amp;Periodo:</translation>
    </message>
    <message>
        <source>The shorter the period, the sooner a key sounds, and the more the machine has to do. With JACK, it applies to all programs</source>
        <translation type="unfinished">Più breve è il periodo, prima suona un tasto e più lavora il computer. Con JACK vale per tutti i programmi</translation>
    </message>
    <message>
        <source>Playing:</source>
        <translation type="unfinished">In uso:</translation>
    </message>
    <message>
        <source>Master &amp;volume:</source>
        <translation type="unfinished">&amp;Volume generale:</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation type="unfinished">Livello:</translation>
    </message>
    <message>
        <source>Master volume</source>
        <translation type="unfinished">Volume generale</translation>
    </message>
    <message>
        <source>Play Test To&amp;ne</source>
        <translation type="unfinished">Suona una n&amp;ota di prova</translation>
    </message>
    <message>
        <source>Plays a short, quiet tone</source>
        <translation type="unfinished">Suona una nota breve e piano</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished">Automatico</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation type="unfinished">%1 (assente)</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished">%1 frame</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Predefinito</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1%</translation>
    </message>
    <message>
        <source>%L1 kHz</source>
        <translation type="unfinished">%L1&#xa0;kHz</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 frames (%L4 ms)</source>
        <translation type="unfinished">%1, %L2&#xa0;kHz, %L3 frame (%L4&#xa0;ms)</translation>
    </message>
    <message>
        <source>
To the sound card: %L1 ms. Lost periods: %L2.</source>
        <translation type="unfinished">
Fino alla scheda audio: %L1&#xa0;ms. Periodi persi: %L2.</translation>
    </message>
</context>
<context>
    <name>velmora::StageView</name>
    <message>
        <source>%1 leaves the stage</source>
        <translation type="unfinished">%1 lascia il palco</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>First steps</source>
        <translation type="unfinished">Primi passi</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Guida utente</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation type="unfinished">Apri la guida utente</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation type="unfinished">Che cosa vuoi fare?</translation>
    </message>
    <message>
        <source>Welcome to Velmora! Each card does something at once, and nothing can break.</source>
        <translation type="unfinished">Benvenuto in Velmora! Ogni scheda fa subito qualcosa, e non puoi rompere nulla.</translation>
    </message>
    <message>
        <source>Hear it</source>
        <translation type="unfinished">Ascoltare</translation>
    </message>
    <message>
        <source>C major, whose third beats in equal temperament and is pure in meantone. The tuning that you hear stays selected.</source>
        <translation type="unfinished">Do maggiore: la terza batte nel temperamento equabile ed è pura nel mesotonico. Il temperamento che ascolti resta selezionato.</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Equabile</translation>
    </message>
    <message>
        <source>Hear the chord in equal temperament</source>
        <translation type="unfinished">Ascolta l’accordo nel temperamento equabile</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mesotonico</translation>
    </message>
    <message>
        <source>Hear the chord in quarter-comma meantone</source>
        <translation type="unfinished">Ascolta l’accordo nel mesotonico a un quarto di comma</translation>
    </message>
    <message>
        <source>Choose a Tuning</source>
        <translation type="unfinished">Scegli un temperamento</translation>
    </message>
    <message>
        <source>Choose a tuning</source>
        <translation type="unfinished">Scegli un temperamento</translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation type="unfinished">Accordare</translation>
    </message>
    <message>
        <source>Choose a historical tuning, or one that adapts to what you play.</source>
        <translation type="unfinished">Scegli un temperamento storico, o uno che si adatta a ciò che suoni.</translation>
    </message>
    <message>
        <source>Open an Instrument…</source>
        <translation type="unfinished">Apri uno strumento…</translation>
    </message>
    <message>
        <source>Open an instrument</source>
        <translation type="unfinished">Apri uno strumento</translation>
    </message>
    <message>
        <source>Play it</source>
        <translation type="unfinished">Suonare</translation>
    </message>
    <message>
        <source>Use a MIDI keyboard, the keys below, or the letters of the computer keyboard, from A on.</source>
        <translation type="unfinished">Usa una tastiera MIDI, i tasti qui sotto o le lettere della tastiera del computer, a partire dalla A.</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Registra</translation>
    </message>
    <message>
        <source>Record a new sequence</source>
        <translation type="unfinished">Registra un nuovo brano</translation>
    </message>
    <message>
        <source>Record it</source>
        <translation type="unfinished">Registrare</translation>
    </message>
    <message>
        <source>Play, correct the notes in the piano roll, and export the sound.</source>
        <translation type="unfinished">Suona, correggi le note nel piano roll ed esporta il suono.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished">Apri %1</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished">Esempi</translation>
    </message>
    <message>
        <source>%1 (tuning)</source>
        <translation type="unfinished">%1 (temperamento)</translation>
    </message>
    <message>
        <source>%1 (piece)</source>
        <translation type="unfinished">%1 (brano)</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished">File recenti</translation>
    </message>
</context>
<context>
    <name>velmora::StatusLine</name>
    <message>
        <source>The sound output: its driver, sample rate and period</source>
        <translation type="unfinished">L’uscita audio: driver, frequenza di campionamento e periodo</translation>
    </message>
    <message>
        <source>No MIDI input</source>
        <translation type="unfinished">Nessun ingresso MIDI</translation>
    </message>
    <message>
        <source>A MIDI device is used as soon as it is connected</source>
        <translation type="unfinished">Un dispositivo MIDI viene usato appena lo colleghi</translation>
    </message>
    <message>
        <source>There is no MIDI device. Connect one, or play with the mouse.</source>
        <translation type="unfinished">Non ci sono dispositivi MIDI. Collegane uno o suona con il mouse.</translation>
    </message>
    <message>
        <source>No sound output</source>
        <translation type="unfinished">Nessuna uscita audio</translation>
    </message>
    <message>
        <source>Notices: %1</source>
        <translation type="unfinished">Avvisi: %1</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation type="unfinished">Avvisi</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 ms</source>
        <translation type="unfinished">%1, %L2&#xa0;kHz, %L3&#xa0;ms</translation>
    </message>
    <message>
        <source>Instrument: %1
Click to show its programs or stops</source>
        <translation type="unfinished">Strumento: %1
Fai clic per mostrarne i programmi o i registri</translation>
    </message>
    <message>
        <source>Tuning: %1 (%2)
Click to show all tunings</source>
        <translation type="unfinished">Temperamento: %1 (%2)
Fai clic per mostrare tutti i temperamenti</translation>
    </message>
    <message>
        <source>Plain reading</source>
        <translation type="unfinished">Lettura semplice</translation>
    </message>
    <message>
        <source>MIDI devices are read plainly: no pedals, no touch, no transposition</source>
        <translation type="unfinished">I dispositivi MIDI sono letti in modo semplice: niente pedali, niente tocco, niente trasposizione</translation>
    </message>
    <message>
        <source>Transposed %1</source>
        <translation type="unfinished">Trasposizione %1</translation>
    </message>
    <message>
        <source>MIDI keyboards sound %1 semitones away from their keys</source>
        <translation type="unfinished">Le tastiere MIDI suonano a %1 semitoni dai loro tasti</translation>
    </message>
    <message numerus="yes">
        <source>%n MIDI input(s)</source>
        <translation type="unfinished">
            <numerusform>%n ingresso MIDI</numerusform>
            <numerusform>%n ingressi MIDI</numerusform>
        </translation>
    </message>
    <message>
        <source>MIDI devices:
%1</source>
        <translation type="unfinished">Dispositivi MIDI:
%1</translation>
    </message>
    <message>
        <source>The display may go to sleep while you play because there is no D-Bus session bus. Start Velmora from the desktop, or with dbus-run-session.</source>
        <translation type="unfinished">Lo schermo potrebbe spegnersi mentre suoni perché manca il bus di sessione D-Bus. Avvia Velmora dal desktop, o con dbus-run-session.</translation>
    </message>
    <message>
        <source>What you change in the preferences, and what is open, is forgotten when you quit because nothing can be written to %1. Make that folder writable.</source>
        <translation type="unfinished">Le preferenze modificate e ciò che è aperto andranno persi all’uscita perché non si può scrivere in %1. Rendi scrivibile quella cartella.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Strumento</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Temperamento</translation>
    </message>
    <message>
        <source>Reading of MIDI devices</source>
        <translation type="unfinished">Lettura dei dispositivi MIDI</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation type="unfinished">Uscita audio</translation>
    </message>
    <message>
        <source>MIDI inputs</source>
        <translation type="unfinished">Ingressi MIDI</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation type="unfinished">Caricamento</translation>
    </message>
    <message>
        <source>%1 % loaded</source>
        <translation type="unfinished">%1 % caricato</translation>
    </message>
    <message>
        <source>The stops of %1 that are loaded can be played; the others follow</source>
        <translation type="unfinished">I registri già caricati di %1 si possono suonare; gli altri seguono</translation>
    </message>
    <message>
        <source>Stop Loading</source>
        <translation type="unfinished">Interrompi il caricamento</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Tralascia i registri non ancora caricati</translation>
    </message>
</context>
<context>
    <name>velmora::StemsDialog</name>
    <message>
        <source>Export Voices</source>
        <translation type="unfinished">Esporta voci</translation>
    </message>
    <message>
        <source>Every voice that sounds is written to a sound file of its own. Muted voices are left out. Played together, the files sound like the piece.</source>
        <translation type="unfinished">Ogni voce che suona viene scritta in un file audio proprio. Le voci silenziate vengono tralasciate. Riprodotti insieme, i file suonano come il brano.</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">S&amp;foglia…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished">&amp;Esporta</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation type="unfinished">&amp;Cartella:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished">Fo&amp;rmato:</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation type="unfinished">File:</translation>
    </message>
    <message>
        <source>No voice of the piece sounds.</source>
        <translation type="unfinished">Nessuna voce del brano suona.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) already exist. Do you want to replace them?</source>
        <translation type="unfinished">
            <numerusform>%n file esiste già. Vuoi sostituirlo?</numerusform>
            <numerusform>%n file esistono già. Vuoi sostituirli?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be created.</source>
        <translation type="unfinished">La cartella %1 non esiste e non può essere creata.</translation>
    </message>
</context>
<context>
    <name>velmora::StopRow</name>
    <message>
        <source>%1: turn on or off (Space)</source>
        <translation type="unfinished">%1: attiva o disattiva (Spazio)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1%</translation>
    </message>
</context>
<context>
    <name>velmora::TimeActions</name>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Brano</translation>
    </message>
    <message>
        <source>Ta&amp;p Tempo</source>
        <translation type="unfinished">&amp;Batti il tempo</translation>
    </message>
    <message>
        <source>Tap repeatedly to set the tempo of the piece at the position</source>
        <translation type="unfinished">Batti più volte per impostare il tempo del brano alla posizione</translation>
    </message>
    <message>
        <source>Tempo &amp;and Signatures</source>
        <translation type="unfinished">Temp&amp;o e misure</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation type="unfinished">Batti</translation>
    </message>
    <message>
        <source>Tap Tempo</source>
        <translation type="unfinished">Batti il tempo</translation>
    </message>
</context>
<context>
    <name>velmora::TimeEntryDialog</name>
    <message>
        <source>Add &amp;Tempo…</source>
        <translation type="unfinished">Aggiungi &amp;tempo…</translation>
    </message>
    <message>
        <source>Add Time &amp;Signature…</source>
        <translation type="unfinished">Aggiungi indicazione di mi&amp;sura…</translation>
    </message>
    <message>
        <source>Add &amp;Key Signature…</source>
        <translation type="unfinished">Aggiungi armatura di &amp;chiave…</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation type="unfinished">Aggiungi &amp;marcatore…</translation>
    </message>
    <message>
        <source>Add Tempo</source>
        <translation type="unfinished">Aggiungi tempo</translation>
    </message>
    <message>
        <source>Add Time Signature</source>
        <translation type="unfinished">Aggiungi indicazione di misura</translation>
    </message>
    <message>
        <source>Add Key Signature</source>
        <translation type="unfinished">Aggiungi armatura di chiave</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation type="unfinished">Aggiungi marcatore</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Cambia tempo</translation>
    </message>
    <message>
        <source>Change Time Signature</source>
        <translation type="unfinished">Cambia indicazione di misura</translation>
    </message>
    <message>
        <source>Change Key Signature</source>
        <translation type="unfinished">Cambia armatura di chiave</translation>
    </message>
    <message>
        <source>Change Marker</source>
        <translation type="unfinished">Cambia marcatore</translation>
    </message>
    <message>
        <source>Delete Tempo</source>
        <translation type="unfinished">Elimina tempo</translation>
    </message>
    <message>
        <source>Delete Time Signature</source>
        <translation type="unfinished">Elimina indicazione di misura</translation>
    </message>
    <message>
        <source>Delete Key Signature</source>
        <translation type="unfinished">Elimina armatura di chiave</translation>
    </message>
    <message>
        <source>Delete Marker</source>
        <translation type="unfinished">Elimina marcatore</translation>
    </message>
    <message>
        <source>A♭ E♭ B♭ F C G D A E B F♯ C♯ G♯ D♯ A♯</source>
        <comment>minor keys</comment>
        <translation type="unfinished">La♭ Mi♭ Si♭ Fa Do Sol Re La Mi Si Fa♯ Do♯ Sol♯ Re♯ La♯</translation>
    </message>
    <message>
        <source>C♭ G♭ D♭ A♭ E♭ B♭ F C G D A E B F♯ C♯</source>
        <comment>major keys</comment>
        <translation type="unfinished">Do♭ Sol♭ Re♭ La♭ Mi♭ Si♭ Fa Do Sol Re La Mi Si Fa♯ Do♯</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1 minore</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 maggiore</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">Tempo</translation>
    </message>
    <message>
        <source>Time Signature</source>
        <translation type="unfinished">Indicazione di misura</translation>
    </message>
    <message>
        <source>Key Signature</source>
        <translation type="unfinished">Armatura di chiave</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation type="unfinished">Marcatore</translation>
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
        <translation type="unfinished">&amp;Note per battuta:</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>&amp;Value of a note:</source>
        <translation type="unfinished">&amp;Valore di una nota:</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation type="unfinished">&amp;Tonalità:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished">&amp;Testo:</translation>
    </message>
    <message>
        <source>&amp;Bar:</source>
        <translation type="unfinished">&amp;Battuta:</translation>
    </message>
    <message>
        <source>B&amp;eat:</source>
        <translation type="unfinished">Movi&amp;mento:</translation>
    </message>
</context>
<context>
    <name>velmora::TimeLane</name>
    <message>
        <source>Tempo and signatures</source>
        <translation type="unfinished">Tempo e misure</translation>
    </message>
    <message>
        <source>Tempos, time signatures, key signatures and markers. Double-click to add or change one, drag it to move it, and press Delete to remove it.</source>
        <translation type="unfinished">Tempi, misure, armature di chiave e marcatori. Fai doppio clic per aggiungerne o cambiarne uno, trascinalo per spostarlo e premi Canc per eliminarlo.</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation type="unfinished">&amp;Cambia…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Elimina</translation>
    </message>
</context>
<context>
    <name>velmora::TimeRuler</name>
    <message>
        <source>Bars</source>
        <translation type="unfinished">Battute</translation>
    </message>
    <message>
        <source>Drag the arrow to move the play position. Drag over the ruler to select the time that is looped.</source>
        <translation type="unfinished">Trascina la freccia per spostare la posizione di riproduzione. Trascina sul righello per selezionare il passaggio da ripetere in loop.</translation>
    </message>
</context>
<context>
    <name>velmora::TransportBar</name>
    <message>
        <source>Transport</source>
        <translation type="unfinished">Trasporto</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Ferma</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Registra</translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished">Riproduci</translation>
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
        <translation type="unfinished">&amp;Canale</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canale</translation>
    </message>
    <message>
        <source>The channel of notes that you record or draw. A digit key chooses a channel and selects its notes; with Ctrl it moves the selected notes to that channel.</source>
        <translation type="unfinished">Il canale delle note che registri o disegni. Un tasto numerico sceglie un canale e ne seleziona le note; con Ctrl sposta le note selezionate su quel canale.</translation>
    </message>
    <message>
        <source>%1  ·  step %2</source>
        <translation type="unfinished">%1  ·  passo %2</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> bpm</translation>
    </message>
    <message>
        <source>Takes</source>
        <translation type="unfinished">Riprese</translation>
    </message>
    <message>
        <source>Choose one of the takes that were recorded in the loop</source>
        <translation type="unfinished">Scegliere una delle riprese registrate nel ciclo</translation>
    </message>
    <message>
        <source>Count-in: %1</source>
        <translation type="unfinished">Attacco: %1</translation>
    </message>
    <message>
        <source>The position in minutes and seconds at this speed, and in bars and beats</source>
        <translation type="unfinished">La posizione in minuti e secondi a questa velocità, e in battute e movimenti</translation>
    </message>
    <message>
        <source>The tempo of the piece at the position in beats per minute (Alt+M)</source>
        <translation type="unfinished">Il tempo del brano alla posizione, in battiti al minuto (Alt+M)</translation>
    </message>
    <message>
        <source> %</source>
        <comment>percent</comment>
        <translation type="unfinished"> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished">Velocità</translation>
    </message>
    <message>
        <source>How fast the piece is played, as a part of its tempo. It is not saved with the piece.</source>
        <translation type="unfinished">Quanto velocemente viene suonato il brano rispetto al suo tempo. Non viene salvata con il brano.</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Cambia tempo</translation>
    </message>
    <message>
        <source>%1  ·  bar %2, beat %3</source>
        <translation type="unfinished">%1  ·  battuta %2, movimento %3</translation>
    </message>
</context>
<context>
    <name>velmora::TranspositionBar</name>
    <message>
        <source>A %1 Hz</source>
        <translation type="unfinished">La %1 Hz</translation>
    </message>
    <message>
        <source>A as the Tuning Has It</source>
        <translation type="unfinished">La secondo il temperamento</translation>
    </message>
    <message>
        <source>%1, A %2 Hz</source>
        <translation type="unfinished">%1, la %2 Hz</translation>
    </message>
    <message>
        <source>%1 on %2, A %3 Hz</source>
        <translation type="unfinished">%1 su %2, la %3 Hz</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished">%1 su %2</translation>
    </message>
    <message>
        <source>The key on which the tuning stands: on D, D sounds as C does on C</source>
        <translation type="unfinished">Il tasto su cui poggia il temperamento: su re, il re suona come il do su do</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished"> Hz</translation>
    </message>
    <message>
        <source>As the tuning has it</source>
        <translation type="unfinished">Secondo il temperamento</translation>
    </message>
    <message>
        <source>The pitch of A above middle C, from 380 to 480 Hz</source>
        <translation type="unfinished">L’altezza del la sopra il do centrale, da 380 a 480 Hz</translation>
    </message>
    <message>
        <source>Usual Pitches</source>
        <translation type="unfinished">Altezze consuete</translation>
    </message>
    <message>
        <source>Choose one of the usual pitches of A</source>
        <translation type="unfinished">Scegliere una delle altezze consuete del la</translation>
    </message>
    <message>
        <source>Root:</source>
        <translation type="unfinished">Fondamentale:</translation>
    </message>
    <message>
        <source>Pitch of A:</source>
        <translation type="unfinished">Altezza del la:</translation>
    </message>
    <message>
        <source>Pitch of A</source>
        <translation type="unfinished">Altezza del la</translation>
    </message>
</context>
<context>
    <name>velmora::TranspositionCommands</name>
    <message>
        <source>&amp;Root</source>
        <translation type="unfinished">&amp;Fondamentale</translation>
    </message>
    <message>
        <source>Pitch of &amp;A</source>
        <translation type="unfinished">Altezza del l&amp;a</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Temperamento</translation>
    </message>
    <message>
        <source>Root a &amp;Fifth Up</source>
        <translation type="unfinished">Fondamentale una &amp;quinta sopra</translation>
    </message>
    <message>
        <source>Root a F&amp;ifth Down</source>
        <translation type="unfinished">Fondamentale una quinta s&amp;otto</translation>
    </message>
    <message>
        <source>Root a &amp;Semitone Up</source>
        <translation type="unfinished">Fondamentale un &amp;semitono sopra</translation>
    </message>
    <message>
        <source>Root a S&amp;emitone Down</source>
        <translation type="unfinished">Fondamentale un semi&amp;tono sotto</translation>
    </message>
</context>
<context>
    <name>velmora::TuningExports</name>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 esportato</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 non è stato esportato. %2</translation>
    </message>
    <message>
        <source>Export MIDI in This Tuning</source>
        <translation type="unfinished">Esporta MIDI in questo temperamento</translation>
    </message>
    <message>
        <source>MIDI File</source>
        <translation type="unfinished">File MIDI</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>a piece in a tuning</comment>
        <translation type="unfinished">%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>A MIDI file has only 15 channels for notes of different pitch, so %n note(s) are up to %1 cents out of tune.</source>
        <translation type="unfinished">
            <numerusform>Un file MIDI ha solo 15 canali per note di altezza diversa, quindi %n nota è stonata fino a %1 cent.</numerusform>
            <numerusform>Un file MIDI ha solo 15 canali per note di altezza diversa, quindi %n note sono stonate fino a %1 cent.</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Tuning</source>
        <translation type="unfinished">Esporta il temperamento</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Scala</translation>
    </message>
    <message>
        <source>Export Score</source>
        <translation type="unfinished">Esporta la partitura</translation>
    </message>
    <message>
        <source>Export Roll</source>
        <translation type="unfinished">Esporta il rullo</translation>
    </message>
    <message>
        <source>&amp;Bars in a line:</source>
        <translation type="unfinished">&amp;Battute per riga:</translation>
    </message>
</context>
<context>
    <name>velmora::TuningPanel</name>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Temperamento</translation>
    </message>
    <message>
        <source>Open T&amp;uning…</source>
        <translation type="unfinished">Apri t&amp;emperamento…</translation>
    </message>
    <message>
        <source>Open a tuning file: a scale (.scl) or frequencies (.mtx)</source>
        <translation type="unfinished">Apri un file di temperamento: una scala (.scl) o frequenze (.mtx)</translation>
    </message>
    <message>
        <source>The pitches of middle C and of the A above it in this tuning</source>
        <translation type="unfinished">Le altezze del Do centrale e del La soprastante in questo temperamento</translation>
    </message>
    <message>
        <source>%1 (middle C): %2 Hz
%3: %4 Hz</source>
        <translation type="unfinished">%1 (Do centrale): %2&#xa0;Hz
%3: %4&#xa0;Hz</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Equabile</translation>
    </message>
    <message>
        <source>Twelve equal semitones</source>
        <translation type="unfinished">Dodici semitoni uguali</translation>
    </message>
    <message>
        <source>Quartercomma Meantone</source>
        <translation type="unfinished">Mesotonico a un quarto di comma</translation>
    </message>
    <message>
        <source>Pure major thirds</source>
        <translation type="unfinished">Terze maggiori pure</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation type="unfinished">Dinamico</translation>
    </message>
    <message>
        <source>Adapts its thirds to what you play</source>
        <translation type="unfinished">Adatta le terze a ciò che suoni</translation>
    </message>
    <message>
        <source>Find a tuning</source>
        <translation type="unfinished">Cerca un’accordatura</translation>
    </message>
    <message>
        <source>Tunings</source>
        <translation type="unfinished">Accordature</translation>
    </message>
    <message>
        <source>Pythagorean</source>
        <translation type="unfinished">Pitagorica</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mesotonico</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">Francesi</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">Inglesi</translation>
    </message>
    <message>
        <source>Well temperaments</source>
        <translation type="unfinished">Buoni temperamenti</translation>
    </message>
    <message>
        <source>Just intonation</source>
        <translation type="unfinished">Intonazione giusta</translation>
    </message>
    <message>
        <source>Equal divisions</source>
        <translation type="unfinished">Divisioni uguali</translation>
    </message>
    <message>
        <source>Outside Europe</source>
        <translation type="unfinished">Fuori d’Europa</translation>
    </message>
    <message>
        <source>Following Meantone</source>
        <translation type="unfinished">Mesotonico che segue</translation>
    </message>
    <message>
        <source>Spells each key as the music asks for, with pure thirds</source>
        <translation type="unfinished">Interpreta ogni tasto come chiede la musica, con terze pure</translation>
    </message>
    <message>
        <source>Pure</source>
        <translation type="unfinished">Pura</translation>
    </message>
    <message>
        <source>Makes the chords that you play pure</source>
        <translation type="unfinished">Rende puri gli accordi suonati</translation>
    </message>
    <message>
        <source>Shape…</source>
        <translation type="unfinished">Modella…</translation>
    </message>
    <message>
        <source>Show the circle of fifths and what sounds, and shape the tuning</source>
        <translation type="unfinished">Mostrare il circolo delle quinte e ciò che suona, e modellare l’accordatura</translation>
    </message>
</context>
<context>
    <name>velmora::TuningShaper</name>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Modella l’accordatura</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <translation type="unfinished">%1 (modificata)</translation>
    </message>
    <message>
        <source>%1 (edited, %2)</source>
        <translation type="unfinished">%1 (modificata, %2)</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStrip</name>
    <message>
        <source>Tuning strip</source>
        <translation type="unfinished">Striscia del temperamento</translation>
    </message>
    <message>
        <source>How many cents each note of the tuning lies above or below equal temperament</source>
        <translation type="unfinished">Di quanti cent ogni nota del temperamento sta sopra o sotto quello equabile</translation>
    </message>
    <message>
        <source>%1: %2 cents</source>
        <translation type="unfinished">%1: %2 cent</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStudio</name>
    <message>
        <source>Pages of the tuning studio</source>
        <translation type="unfinished">Pagine dello studio di accordatura</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished">Circolo</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished">Modella</translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished">Adesso</translation>
    </message>
</context>
<context>
    <name>velmora::UndoHistory</name>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Cronologia delle modifiche</translation>
    </message>
    <message>
        <source>Edits of the piece</source>
        <translation type="unfinished">Modifiche del brano</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation type="unfinished">Come aperto</translation>
    </message>
</context>
<context>
    <name>velmora::VelocityLane</name>
    <message>
        <source>Velocities</source>
        <translation type="unfinished">Velocity</translation>
    </message>
    <message>
        <source>Drag over the bars to change velocities. With Shift, they follow a straight line. If notes are selected, only they change.</source>
        <translation type="unfinished">Trascina sulle barre per cambiare le velocity. Con Maiusc seguono una linea retta. Se ci sono note selezionate, cambiano solo quelle.</translation>
    </message>
</context>
<context>
    <name>velmora::VoiceRow</name>
    <message>
        <source>Record and draw on this voice; double-click to select its notes</source>
        <translation type="unfinished">Registra e disegna su questa voce; un doppio clic seleziona le sue note</translation>
    </message>
    <message>
        <source>M</source>
        <comment>mute</comment>
        <translation type="unfinished">M</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished">Muto</translation>
    </message>
    <message>
        <source>S</source>
        <comment>solo</comment>
        <translation type="unfinished">S</translation>
    </message>
    <message>
        <source>Solo: only such voices sound</source>
        <translation type="unfinished">Solo: suonano solo queste voci</translation>
    </message>
    <message>
        <source>L</source>
        <comment>lock</comment>
        <translation type="unfinished">B</translation>
    </message>
    <message>
        <source>Lock: protect its notes from edits</source>
        <translation type="unfinished">Bloccata: protegge le sue note dalle modifiche</translation>
    </message>
    <message>
        <source>Drum kit %1</source>
        <translation type="unfinished">Batteria %1</translation>
    </message>
    <message>
        <source>Program %1 of bank %2</source>
        <translation type="unfinished">Programma %1 del banco %2</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Voce %1</translation>
    </message>
    <message>
        <source>Record and draw on %1</source>
        <translation type="unfinished">Registra e disegna su %1</translation>
    </message>
    <message>
        <source>Name of voice %1</source>
        <translation type="unfinished">Nome della voce %1</translation>
    </message>
    <message>
        <source>Program of %1</source>
        <translation type="unfinished">Programma di %1</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Volume di %1</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation type="unfinished">Rendi muta %1</translation>
    </message>
    <message>
        <source>Solo %1</source>
        <translation type="unfinished">%1 in solo</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation type="unfinished">Blocca %1</translation>
    </message>
    <message>
        <source>What the voice plays</source>
        <translation type="unfinished">Che cosa suona la voce</translation>
    </message>
    <message>
        <source>This instrument plays every voice alike</source>
        <translation type="unfinished">Questo strumento suona tutte le voci allo stesso modo</translation>
    </message>
    <message>
        <source>How loud the voice is, from 0 to 127</source>
        <translation type="unfinished">Quanto è forte la voce, da 0 a 127</translation>
    </message>
    <message>
        <source>Like the instrument</source>
        <translation type="unfinished">Come lo strumento</translation>
    </message>
    <message>
        <source>Select &amp;Notes</source>
        <translation type="unfinished">Seleziona le &amp;note</translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation type="unfinished">&amp;Muto</translation>
    </message>
    <message>
        <source>&amp;Solo</source>
        <translation type="unfinished">&amp;Solo</translation>
    </message>
    <message>
        <source>&amp;Lock</source>
        <translation type="unfinished">&amp;Blocca</translation>
    </message>
</context>
<context>
    <name>velmora::VoicesPanel</name>
    <message>
        <source>Otherwise the instrument plays every voice alike</source>
        <translation type="unfinished">Altrimenti lo strumento suona tutte le voci allo stesso modo</translation>
    </message>
    <message>
        <source>Rename Voice</source>
        <translation type="unfinished">Rinomina la voce</translation>
    </message>
    <message>
        <source>Change Program of Voice</source>
        <translation type="unfinished">Cambia il programma della voce</translation>
    </message>
    <message>
        <source>Change Volume of Voice</source>
        <translation type="unfinished">Cambia il volume della voce</translation>
    </message>
    <message>
        <source>Every voice has its own sound</source>
        <translation type="unfinished">Ogni voce ha il suo suono</translation>
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
        <translation type="unfinished">Brani aperti</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished">Tastiera</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Strumento</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Temperamento</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Piece</source>
        <translation type="unfinished">&amp;Brano</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">&amp;Aiuto</translation>
    </message>
    <message>
        <source>Silence Everything</source>
        <translation type="unfinished">Silenzia tutto</translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished">Consolle</translation>
    </message>
    <message>
        <source>C&amp;onsole</source>
        <translation type="unfinished">Conso&amp;lle</translation>
    </message>
    <message>
        <source>Tuning Studio</source>
        <translation type="unfinished">Studio di accordatura</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Esercizio</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voci</translation>
    </message>
</context>
<context>
    <name>velmora::messages</name>
    <message>
        <source>MIDI Player</source>
        <translation type="unfinished">Lettore MIDI</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation type="unfinished">Campione %1</translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished">Uscita</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation type="unfinished">Frequenza di campionamento</translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished">Periodo</translation>
    </message>
    <message>
        <source>From MIDI to sound</source>
        <translation type="unfinished">Dal MIDI al suono</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voci</translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished">Carico</translation>
    </message>
    <message>
        <source>Lost periods</source>
        <translation type="unfinished">Periodi persi</translation>
    </message>
    <message>
        <source>Instruments in memory</source>
        <translation type="unfinished">Strumenti in memoria</translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">nessuno</translation>
    </message>
    <message>
        <source>%1 frames, %2 ms</source>
        <translation type="unfinished">%1 frame, %2 ms</translation>
    </message>
    <message>
        <source>%1 ms (input %2 ms, period and limiter %3 ms, sound server %4 ms)</source>
        <translation type="unfinished">%1 ms (ingresso %2 ms, periodo e limitatore %3 ms, server audio %4 ms)</translation>
    </message>
    <message>
        <source>%1, released keys are shortened</source>
        <translation type="unfinished">%1, i tasti rilasciati sono accorciati</translation>
    </message>
    <message>
        <source>%1 % of the period, at worst %2 %</source>
        <translation type="unfinished">%1 % del periodo, al massimo %2 %</translation>
    </message>
    <message>
        <source>%1, the last at %2</source>
        <translation type="unfinished">%1, l’ultimo alle %2</translation>
    </message>
    <message>
        <source>%1 messages a second</source>
        <translation type="unfinished">%1 messaggi al secondo</translation>
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
        <translation type="unfinished">%1 byte</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation type="unfinished">Nessun suono</translation>
    </message>
    <message>
        <source>The sound card</source>
        <translation type="unfinished">La scheda audio</translation>
    </message>
    <message>
        <source>The output &quot;%1&quot;</source>
        <translation type="unfinished">L’uscita «%1»</translation>
    </message>
    <message>
        <source>No sound output was found; looking for one.</source>
        <translation type="unfinished">Non è stata trovata un’uscita audio; la ricerca continua.</translation>
    </message>
    <message>
        <source>%1 has gone; waiting for it.</source>
        <translation type="unfinished">%1 non c’è più; in attesa del ritorno.</translation>
    </message>
    <message>
        <source>%1 is missing; waiting for it.</source>
        <translation type="unfinished">%1 manca; in attesa.</translation>
    </message>
    <message>
        <source>%1 has gone; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 non c’è più; fino al ritorno suona %2.</translation>
    </message>
    <message>
        <source>%1 is missing; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 manca; fino al ritorno suona %2.</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished">non può essere letto</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation type="unfinished">non può essere letto (%1)</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished">è vuoto</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation type="unfinished">è troppo grande</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a file</source>
        <translation type="unfinished">è una pipe o un dispositivo, non un file</translation>
    </message>
    <message>
        <source>needs %1 more of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">servono altri %1 di memoria, ma solo %2 sono liberi; rimuovere altri strumenti o chiudere altri programmi</translation>
    </message>
    <message>
        <source>is damaged or cut short</source>
        <translation type="unfinished">è danneggiato o troncato</translation>
    </message>
    <message>
        <source>is cut short</source>
        <translation type="unfinished">è troncato</translation>
    </message>
    <message>
        <source>is damaged and its presets cannot be played; opening it as stops may work</source>
        <translation type="unfinished">è danneggiato e i suoi preset non si possono suonare; aperto come registri potrebbe funzionare</translation>
    </message>
    <message>
        <source>has no presets</source>
        <translation type="unfinished">non ha preset</translation>
    </message>
    <message>
        <source>the file does not contain its data</source>
        <translation type="unfinished">il file non contiene i suoi dati</translation>
    </message>
    <message>
        <source>the file has too many chunks</source>
        <translation type="unfinished">il file ha troppi blocchi</translation>
    </message>
    <message>
        <source>lists are nested too deeply</source>
        <translation type="unfinished">le liste sono annidate troppo in profondità</translation>
    </message>
    <message>
        <source>is not a RIFF file</source>
        <translation type="unfinished">non è un file RIFF</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation type="unfinished">non ha «%1»</translation>
    </message>
    <message>
        <source>this is not a tuning file</source>
        <translation type="unfinished">questo non è un file di accordatura</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation type="unfinished">«%1» non è un numero</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation type="unfinished">«%1» non è un numero finito</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a playable pitch</source>
        <translation type="unfinished">«%1» non è un’altezza suonabile</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a zero denominator</source>
        <translation type="unfinished">«%1» ha denominatore zero</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the number of notes; only scales of 12 notes are supported</source>
        <translation type="unfinished">«%1» è il numero di note; sono ammesse solo scale di 12 note</translation>
    </message>
    <message>
        <source>this is not a Standard MIDI File: &quot;MThd&quot; is missing</source>
        <translation type="unfinished">questo non è uno Standard MIDI File: manca «MThd»</translation>
    </message>
    <message>
        <source>the header is too short</source>
        <translation type="unfinished">l’intestazione è troppo corta</translation>
    </message>
    <message>
        <source>the header announces no tracks</source>
        <translation type="unfinished">l’intestazione non annuncia tracce</translation>
    </message>
    <message>
        <source>an event exceeds the end of its track</source>
        <translation type="unfinished">un evento supera la fine della sua traccia</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 tracks</source>
        <translation type="unfinished">il file finisce dopo %1 di %2 tracce</translation>
    </message>
    <message>
        <source>a chunk of %1 bytes is truncated: the file has only %2 more</source>
        <translation type="unfinished">un blocco di %1 byte è troncato: il file ne ha solo altri %2</translation>
    </message>
    <message>
        <source>this is not a session of Velmora</source>
        <translation type="unfinished">questa non è una sessione di Velmora</translation>
    </message>
    <message>
        <source>a later version of Velmora has written this session</source>
        <translation type="unfinished">una versione successiva di Velmora ha scritto questa sessione</translation>
    </message>
    <message>
        <source>is too large for the free memory; unload other instruments, then open it again</source>
        <translation type="unfinished">è troppo grande per la memoria libera; rimuovere altri strumenti, poi riaprirlo</translation>
    </message>
    <message>
        <source>has no instruments</source>
        <translation type="unfinished">non ha strumenti</translation>
    </message>
    <message>
        <source>has no samples</source>
        <translation type="unfinished">non ha campioni</translation>
    </message>
    <message>
        <source>is not a sound file in a supported format</source>
        <translation type="unfinished">non è un file audio in un formato ammesso</translation>
    </message>
    <message>
        <source>is a damaged WavPack file (%1)</source>
        <translation type="unfinished">è un file WavPack danneggiato (%1)</translation>
    </message>
    <message>
        <source>lies outside the folder of the instrument</source>
        <translation type="unfinished">è fuori dalla cartella dello strumento</translation>
    </message>
    <message>
        <source>names a file outside the folder of the organ: &quot;%1&quot;</source>
        <translation type="unfinished">nomina un file fuori dalla cartella dell’organo: «%1»</translation>
    </message>
    <message>
        <source>names a file outside the folder of its package: &quot;%1&quot;</source>
        <translation type="unfinished">nomina un file fuori dalla cartella del suo pacchetto: «%1»</translation>
    </message>
    <message>
        <source>is longer than a sound may be: it has more than 2 GB of samples</source>
        <translation type="unfinished">è più lungo di quanto un suono possa essere: più di 2 GB di campioni</translation>
    </message>
    <message>
        <source>is damaged: its samples would take %1, but the file holds only %2</source>
        <translation type="unfinished">è danneggiato: i suoi campioni occuperebbero %1, ma il file ha solo %2</translation>
    </message>
    <message>
        <source>is a SoundFont %1 bank with compressed samples; convert it to SoundFont 2</source>
        <translation type="unfinished">è un banco SoundFont %1 con campioni compressi; convertirlo in SoundFont 2</translation>
    </message>
    <message>
        <source>cannot be loaded: its samples are encrypted and need a licence; open an organ without encryption</source>
        <translation type="unfinished">non può essere caricato: i suoi campioni sono cifrati e richiedono una licenza; aprire un organo non cifrato</translation>
    </message>
    <message>
        <source>cannot be played: no pipe has a sample file</source>
        <translation type="unfinished">non può essere suonato: nessuna canna ha un file di campione</translation>
    </message>
    <message>
        <source>cannot be played: none of the %1 sample files can be decoded, for example %2</source>
        <translation type="unfinished">non può essere suonato: nessuno dei %1 file di campioni può essere decodificato, per esempio %2</translation>
    </message>
    <message>
        <source>is not an organ definition: its root element is not &quot;Hauptwerk&quot;</source>
        <translation type="unfinished">non è una definizione di organo: il suo elemento radice non è «Hauptwerk»</translation>
    </message>
    <message>
        <source>is written in UTF-16; save it as UTF-8 in a text editor</source>
        <translation type="unfinished">è scritto in UTF-16; salvarlo come UTF-8 in un editor di testo</translation>
    </message>
    <message>
        <source>cannot be played: it has no stop with pipes</source>
        <translation type="unfinished">non può essere suonato: nessun registro ha canne</translation>
    </message>
    <message>
        <source>holds no organ definition (a file with the extension .organ)</source>
        <translation type="unfinished">non contiene una definizione di organo (un file con estensione .organ)</translation>
    </message>
    <message>
        <source>this package is not in the folder of the organ</source>
        <translation type="unfinished">questo pacchetto non è nella cartella dell’organo</translation>
    </message>
    <message>
        <source>is not a zip archive, or is damaged</source>
        <translation type="unfinished">non è un archivio zip o è danneggiato</translation>
    </message>
    <message>
        <source>is a damaged archive</source>
        <translation type="unfinished">è un archivio danneggiato</translation>
    </message>
    <message>
        <source>is encrypted; only archives without a password can be opened</source>
        <translation type="unfinished">è cifrato; si possono aprire solo archivi senza password</translation>
    </message>
    <message>
        <source>holds a file whose name leads out of the archive: &quot;%1&quot;</source>
        <translation type="unfinished">contiene un file il cui nome porta fuori dall’archivio: «%1»</translation>
    </message>
    <message>
        <source>is not in the archive</source>
        <translation type="unfinished">non è nell’archivio</translation>
    </message>
    <message>
        <source>is damaged in the archive</source>
        <translation type="unfinished">è danneggiato nell’archivio</translation>
    </message>
    <message>
        <source>is larger than the archive says</source>
        <translation type="unfinished">è più grande di quanto dica l’archivio</translation>
    </message>
    <message>
        <source>is cut short in the archive</source>
        <translation type="unfinished">è troncato nell’archivio</translation>
    </message>
    <message>
        <source>an attack has no sample file</source>
        <translation type="unfinished">un attacco non ha file di campione</translation>
    </message>
    <message>
        <source>a release has no sample file</source>
        <translation type="unfinished">un rilascio non ha file di campione</translation>
    </message>
    <message>
        <source>recordings with the tremulant are not played</source>
        <translation type="unfinished">le registrazioni con il tremolo non vengono suonate</translation>
    </message>
    <message>
        <source>recordings for quick repetitions are not played</source>
        <translation type="unfinished">le registrazioni per ripetizioni veloci non vengono suonate</translation>
    </message>
    <message>
        <source>borrowed from pipes that are borrowed from each other</source>
        <translation type="unfinished">presa da canne prese l’una dall’altra</translation>
    </message>
    <message>
        <source>does not say from which manual, stop and pipe it is borrowed</source>
        <translation type="unfinished">non dice da quale manuale, registro e canna è presa</translation>
    </message>
    <message>
        <source>borrowed from stop %1 of manual %2, which does not exist</source>
        <translation type="unfinished">presa dal registro %1 del manuale %2, che non esiste</translation>
    </message>
    <message>
        <source>borrowed from a pipe that does not sound</source>
        <translation type="unfinished">presa da una canna che non suona</translation>
    </message>
    <message>
        <source>is outside the MIDI keys 0 to 127</source>
        <translation type="unfinished">è fuori dai tasti MIDI da 0 a 127</translation>
    </message>
    <message>
        <source>its stop %1 does not exist</source>
        <translation type="unfinished">il suo registro %1 non esiste</translation>
    </message>
    <message>
        <source>its rank %1 does not exist</source>
        <translation type="unfinished">la sua fila %1 non esiste</translation>
    </message>
    <message>
        <source>belongs to no manual</source>
        <translation type="unfinished">non appartiene a nessun manuale</translation>
    </message>
    <message>
        <source>has no pipe that sounds</source>
        <translation type="unfinished">non ha canne che suonano</translation>
    </message>
    <message>
        <source>is a noise or an effect that sounds when its knob is drawn, not when keys are pressed</source>
        <translation type="unfinished">è un rumore o un effetto che suona quando si tira il pomello, non con i tasti</translation>
    </message>
    <message>
        <source>silences its own keys (&quot;unison off&quot;), which is not supported</source>
        <translation type="unfinished">ammutolisce i propri tasti («unison off»), cosa non supportata</translation>
    </message>
    <message>
        <source>couples only the lowest or the highest key, which is not supported</source>
        <translation type="unfinished">accoppia solo il tasto più grave o più acuto, cosa non supportata</translation>
    </message>
    <message>
        <source>couples to a manual that does not exist</source>
        <translation type="unfinished">accoppia a un manuale che non esiste</translation>
    </message>
    <message>
        <source>tremulants are not supported</source>
        <translation type="unfinished">i tremoli non sono supportati</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation type="unfinished">%1, riga %2: %3</translation>
    </message>
    <message>
        <source>%1, byte %2: %3</source>
        <translation type="unfinished">%1, byte %2: %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits, which takes %3</source>
        <translation type="unfinished">servono circa %1 di memoria, ma solo %2 sono liberi; caricarlo a 16 bit, che occupa %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it in mono, which takes %3</source>
        <translation type="unfinished">servono circa %1 di memoria, ma solo %2 sono liberi; caricarlo in mono, che occupa %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits and in mono, which takes %3</source>
        <translation type="unfinished">servono circa %1 di memoria, ma solo %2 sono liberi; caricarlo a 16 bit e in mono, che occupa %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">servono circa %1 di memoria, ma solo %2 sono liberi; rimuovere altri strumenti o chiudere altri programmi</translation>
    </message>
    <message>
        <source>these are not the registrations of an organ</source>
        <translation type="unfinished">queste non sono le registrazioni di un organo</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load fewer of its stops</source>
        <translation type="unfinished">servono circa %1 di memoria, ma solo %2 sono liberi; caricare meno registri</translation>
    </message>
    <message>
        <source>the MIDI output %1 cannot be connected</source>
        <translation type="unfinished">impossibile collegare l’uscita MIDI %1</translation>
    </message>
    <message>
        <source>the MIDI output %1 takes no message</source>
        <translation type="unfinished">l’uscita MIDI %1 non accetta messaggi</translation>
    </message>
    <message>
        <source>the scale has no description and no number of notes</source>
        <translation type="unfinished">la scala non ha né descrizione né numero di note</translation>
    </message>
    <message>
        <source>the scale has no number of notes</source>
        <translation type="unfinished">manca il numero di note della scala</translation>
    </message>
    <message>
        <source>the scale ends after %1 of %2 pitches</source>
        <translation type="unfinished">la scala finisce dopo %1 altezze su %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of notes from 0 to 128</source>
        <translation type="unfinished">«%1» non è un numero di note da 0 a 128</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch: write cents with a point, as in 701.955, or a ratio, as in 3/2</source>
        <translation type="unfinished">«%1» non è un’altezza: scrivere cent con un punto, come 701.955, o un rapporto, come 3/2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch above 0</source>
        <translation type="unfinished">«%1» non è un’altezza maggiore di 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a number that is too large</source>
        <translation type="unfinished">«%1» contiene un numero troppo grande</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an octave, the index of a note and its frequency in hertz, which sounds on a key from 0 to 127</source>
        <translation type="unfinished">«%1» richiede un’ottava, l’indice di una nota e la sua frequenza in hertz, su un tasto da 0 a 127</translation>
    </message>
    <message>
        <source>the mapping ends before the size of the mapping</source>
        <translation type="unfinished">la mappatura finisce prima della sua dimensione</translation>
    </message>
    <message>
        <source>the mapping ends before the first key</source>
        <translation type="unfinished">la mappatura finisce prima del primo tasto</translation>
    </message>
    <message>
        <source>the mapping ends before the last key</source>
        <translation type="unfinished">la mappatura finisce prima dell’ultimo tasto</translation>
    </message>
    <message>
        <source>the mapping ends before the middle key</source>
        <translation type="unfinished">la mappatura finisce prima del tasto centrale</translation>
    </message>
    <message>
        <source>the mapping ends before the reference key</source>
        <translation type="unfinished">la mappatura finisce prima del tasto di riferimento</translation>
    </message>
    <message>
        <source>the mapping ends before the frequency</source>
        <translation type="unfinished">la mappatura finisce prima della frequenza</translation>
    </message>
    <message>
        <source>the mapping ends before the formal octave</source>
        <translation type="unfinished">la mappatura finisce prima dell’ottava formale</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the size of the mapping, a number from 0 to %2</source>
        <translation type="unfinished">«%1» non è la dimensione della mappatura, un numero da 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» non è il primo tasto, un numero da 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the last key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» non è l’ultimo tasto, un numero da 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the middle key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» non è il tasto centrale, un numero da 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the reference key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» non è il tasto di riferimento, un numero da 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the formal octave, a number from 0 to %2</source>
        <translation type="unfinished">«%1» non è l’ottava formale, un numero da 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a degree of the scale or an x, a number from 0 to %2</source>
        <translation type="unfinished">«%1» non è un grado della scala, un numero da 0 a %2, né una x</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a frequency in hertz above 0</source>
        <translation type="unfinished">«%1» non è una frequenza in hertz maggiore di 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no =</source>
        <translation type="unfinished">in «%1» manca un =</translation>
    </message>
    <message>
        <source>the reference key %1 plays no note</source>
        <translation type="unfinished">il tasto di riferimento %1 non suona nessuna nota</translation>
    </message>
    <message>
        <source>the pitch of key %1 is beyond all bounds</source>
        <translation type="unfinished">l’altezza del tasto %1 supera ogni limite</translation>
    </message>
    <message>
        <source>the pitches are only given by formulas, in the section [Functional Tuning]</source>
        <translation type="unfinished">le altezze sono date solo da formule, nella sezione [Functional Tuning]</translation>
    </message>
    <message>
        <source>there is no section [Exact Tuning] or [Tuning]</source>
        <translation type="unfinished">non c’è una sezione [Exact Tuning] o [Tuning]</translation>
    </message>
    <message>
        <source>a keyboard mapping needs a scale, and this tuning has none</source>
        <translation type="unfinished">una mappatura della tastiera richiede una scala, e questa accordatura non ne ha</translation>
    </message>
    <message>
        <source>the scale repeats after %1 cents, but the plain reading repeats it after an octave</source>
        <translation type="unfinished">la scala si ripete dopo %1 cent, ma la lettura semplice la ripete dopo un’ottava</translation>
    </message>
    <message>
        <source>in the plain reading, General MIDI plays some keys of &quot;%1&quot; %2 cents out of tune</source>
        <translation type="unfinished">nella lettura semplice, General MIDI suona alcuni tasti di «%1» stonati di %2 cent</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation type="unfinished">%1, riga %2, colonna %3: %4</translation>
    </message>
    <message>
        <source>the XML is damaged: %1</source>
        <translation type="unfinished">l&apos;XML è danneggiato: %1</translation>
    </message>
    <message>
        <source>The file is damaged, and only a part of it could be read. To keep what may still be in it, save the piece under another name.</source>
        <translation type="unfinished">Il file è danneggiato e se ne è potuta leggere solo una parte. Per conservare ciò che può ancora contenere, salvare il brano con un altro nome.</translation>
    </message>
    <message>
        <source>is not a MusicXML score</source>
        <translation type="unfinished">non è una partitura MusicXML</translation>
    </message>
    <message>
        <source>is an archive, but not of a score</source>
        <translation type="unfinished">è un archivio, ma non di una partitura</translation>
    </message>
    <message>
        <source>the score &quot;%1&quot; is missing from the archive</source>
        <translation type="unfinished">la partitura &quot;%1&quot; manca nell&apos;archivio</translation>
    </message>
    <message>
        <source>the score has no parts</source>
        <translation type="unfinished">la partitura non ha parti</translation>
    </message>
    <message>
        <source>the score has too many parts</source>
        <translation type="unfinished">la partitura ha troppe parti</translation>
    </message>
    <message>
        <source>measure %1 is too long</source>
        <translation type="unfinished">la battuta %1 è troppo lunga</translation>
    </message>
    <message>
        <source>the music is too long</source>
        <translation type="unfinished">la musica è troppo lunga</translation>
    </message>
    <message>
        <source>the MIDI output %1 is gone</source>
        <translation type="unfinished">l’uscita MIDI %1 non è più disponibile</translation>
    </message>
</context>
<context>
    <name>velmora::nameParts</name>
    <message>
        <source>More</source>
        <translation type="unfinished">Altro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished">Cancella</translation>
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
        <translation type="unfinished">1 Pianoforte a coda</translation>
    </message>
    <message>
        <source>2 Bright Acoustic Piano</source>
        <translation type="unfinished">2 Pianoforte brillante</translation>
    </message>
    <message>
        <source>3 Electric Grand Piano</source>
        <translation type="unfinished">3 Pianoforte a coda elettrico</translation>
    </message>
    <message>
        <source>4 Honky-Tonk Piano</source>
        <translation type="unfinished">4 Pianoforte honky-tonk</translation>
    </message>
    <message>
        <source>5 Rhodes Piano</source>
        <translation type="unfinished">5 Piano Rhodes</translation>
    </message>
    <message>
        <source>6 Chorus Piano</source>
        <translation type="unfinished">6 Piano con chorus</translation>
    </message>
    <message>
        <source>7 Harpsichord</source>
        <translation type="unfinished">7 Clavicembalo</translation>
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
        <translation type="unfinished">11 Carillon</translation>
    </message>
    <message>
        <source>12 Vibraphone</source>
        <translation type="unfinished">12 Vibrafono</translation>
    </message>
    <message>
        <source>13 Marimba</source>
        <translation type="unfinished">13 Marimba</translation>
    </message>
    <message>
        <source>14 Xylophone</source>
        <translation type="unfinished">14 Xilofono</translation>
    </message>
    <message>
        <source>15 Tubular Bells</source>
        <translation type="unfinished">15 Campane tubolari</translation>
    </message>
    <message>
        <source>16 Dulcimer</source>
        <translation type="unfinished">16 Salterio</translation>
    </message>
    <message>
        <source>17 Hammond Organ</source>
        <translation type="unfinished">17 Organo Hammond</translation>
    </message>
    <message>
        <source>18 Percusive Organ</source>
        <translation type="unfinished">18 Organo percussivo</translation>
    </message>
    <message>
        <source>19 Rock Organ</source>
        <translation type="unfinished">19 Organo rock</translation>
    </message>
    <message>
        <source>20 Church Organ</source>
        <translation type="unfinished">20 Organo da chiesa</translation>
    </message>
    <message>
        <source>21 Reed Organ</source>
        <translation type="unfinished">21 Armonium</translation>
    </message>
    <message>
        <source>22 Accordion</source>
        <translation type="unfinished">22 Fisarmonica</translation>
    </message>
    <message>
        <source>23 Harmonica</source>
        <translation type="unfinished">23 Armonica a bocca</translation>
    </message>
    <message>
        <source>24 Tango Accordion</source>
        <translation type="unfinished">24 Bandoneon</translation>
    </message>
    <message>
        <source>25 Nylon Guitar</source>
        <translation type="unfinished">25 Chitarra con corde di nylon</translation>
    </message>
    <message>
        <source>26 Steel String Guitar</source>
        <translation type="unfinished">26 Chitarra con corde d’acciaio</translation>
    </message>
    <message>
        <source>27 Jazz Guitar</source>
        <translation type="unfinished">27 Chitarra jazz</translation>
    </message>
    <message>
        <source>28 Clean E. Guitar</source>
        <translation type="unfinished">28 Chitarra elettrica pulita</translation>
    </message>
    <message>
        <source>29 Mute E. Guitar</source>
        <translation type="unfinished">29 Chitarra elettrica stoppata</translation>
    </message>
    <message>
        <source>30 Overdrive Guitar</source>
        <translation type="unfinished">30 Chitarra overdrive</translation>
    </message>
    <message>
        <source>31 Distort Guitar</source>
        <translation type="unfinished">31 Chitarra distorta</translation>
    </message>
    <message>
        <source>32 Harmonics</source>
        <translation type="unfinished">32 Armonici</translation>
    </message>
    <message>
        <source>33 Acoustic Bass</source>
        <translation type="unfinished">33 Basso acustico</translation>
    </message>
    <message>
        <source>34 Finger E. Bass</source>
        <translation type="unfinished">34 Basso elettrico (dita)</translation>
    </message>
    <message>
        <source>35 Picked E. Bass</source>
        <translation type="unfinished">35 Basso elettrico (plettro)</translation>
    </message>
    <message>
        <source>36 Fretless Bass</source>
        <translation type="unfinished">36 Basso fretless</translation>
    </message>
    <message>
        <source>37 Slap Bass 1</source>
        <translation type="unfinished">37 Basso slap 1</translation>
    </message>
    <message>
        <source>38 Slap Bass 2</source>
        <translation type="unfinished">38 Basso slap 2</translation>
    </message>
    <message>
        <source>39 Synth Bass1</source>
        <translation type="unfinished">39 Basso synth 1</translation>
    </message>
    <message>
        <source>40 Synth Bass2</source>
        <translation type="unfinished">40 Basso synth 2</translation>
    </message>
    <message>
        <source>41 Violin</source>
        <translation type="unfinished">41 Violino</translation>
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
        <translation type="unfinished">44 Contrabbasso</translation>
    </message>
    <message>
        <source>45 Tremolo Strings</source>
        <translation type="unfinished">45 Archi in tremolo</translation>
    </message>
    <message>
        <source>46 Pizzicato Strings</source>
        <translation type="unfinished">46 Archi in pizzicato</translation>
    </message>
    <message>
        <source>47 Orchestral Harp</source>
        <translation type="unfinished">47 Arpa</translation>
    </message>
    <message>
        <source>48 Timpani</source>
        <translation type="unfinished">48 Timpani</translation>
    </message>
    <message>
        <source>49 String Ensemble 1</source>
        <translation type="unfinished">49 Ensemble d’archi 1</translation>
    </message>
    <message>
        <source>50 String Ensemble 2</source>
        <translation type="unfinished">50 Ensemble d’archi 2</translation>
    </message>
    <message>
        <source>51 Synth Strings 1</source>
        <translation type="unfinished">51 Archi synth 1</translation>
    </message>
    <message>
        <source>52 Synth Strings 2</source>
        <translation type="unfinished">52 Archi synth 2</translation>
    </message>
    <message>
        <source>53 Choir Aahs</source>
        <translation type="unfinished">53 Coro «aah»</translation>
    </message>
    <message>
        <source>54 Voice Oohs</source>
        <translation type="unfinished">54 Voci «ooh»</translation>
    </message>
    <message>
        <source>55 Synth Voice</source>
        <translation type="unfinished">55 Voce synth</translation>
    </message>
    <message>
        <source>56 Orchestra Hit</source>
        <translation type="unfinished">56 Colpo d’orchestra</translation>
    </message>
    <message>
        <source>57 Trumpet</source>
        <translation type="unfinished">57 Tromba</translation>
    </message>
    <message>
        <source>58 Trombone</source>
        <translation type="unfinished">58 Trombone</translation>
    </message>
    <message>
        <source>59 Tuba</source>
        <translation type="unfinished">59 Tuba</translation>
    </message>
    <message>
        <source>60 Mute Trumpet</source>
        <translation type="unfinished">60 Tromba con sordina</translation>
    </message>
    <message>
        <source>61 French Horn</source>
        <translation type="unfinished">61 Corno</translation>
    </message>
    <message>
        <source>62 Brass Section</source>
        <translation type="unfinished">62 Ottoni</translation>
    </message>
    <message>
        <source>63 Synth Brass 1</source>
        <translation type="unfinished">63 Ottoni synth 1</translation>
    </message>
    <message>
        <source>64 Synth Brass 2</source>
        <translation type="unfinished">64 Ottoni synth 2</translation>
    </message>
    <message>
        <source>65 Soprano Sax</source>
        <translation type="unfinished">65 Sax soprano</translation>
    </message>
    <message>
        <source>66 Alto Sax</source>
        <translation type="unfinished">66 Sax contralto</translation>
    </message>
    <message>
        <source>67 Tenor Sax</source>
        <translation type="unfinished">67 Sax tenore</translation>
    </message>
    <message>
        <source>68 Baritone Sax</source>
        <translation type="unfinished">68 Sax baritono</translation>
    </message>
    <message>
        <source>69 Oboe</source>
        <translation type="unfinished">69 Oboe</translation>
    </message>
    <message>
        <source>70 English Horn</source>
        <translation type="unfinished">70 Corno inglese</translation>
    </message>
    <message>
        <source>71 Bassoon</source>
        <translation type="unfinished">71 Fagotto</translation>
    </message>
    <message>
        <source>72 Clarinet</source>
        <translation type="unfinished">72 Clarinetto</translation>
    </message>
    <message>
        <source>73 Piccolo</source>
        <translation type="unfinished">73 Ottavino</translation>
    </message>
    <message>
        <source>74 Flute</source>
        <translation type="unfinished">74 Flauto traverso</translation>
    </message>
    <message>
        <source>75 Recorder</source>
        <translation type="unfinished">75 Flauto dolce</translation>
    </message>
    <message>
        <source>76 Pan Flute</source>
        <translation type="unfinished">76 Flauto di Pan</translation>
    </message>
    <message>
        <source>77 Bottle Blow</source>
        <translation type="unfinished">77 Soffio di bottiglia</translation>
    </message>
    <message>
        <source>78 Shakuhachi</source>
        <translation type="unfinished">78 Shakuhachi</translation>
    </message>
    <message>
        <source>79 Whistle</source>
        <translation type="unfinished">79 Fischio</translation>
    </message>
    <message>
        <source>80 Ocarina</source>
        <translation type="unfinished">80 Ocarina</translation>
    </message>
    <message>
        <source>81 Square Wave</source>
        <translation type="unfinished">81 Onda quadra</translation>
    </message>
    <message>
        <source>82 Saw Tooth</source>
        <translation type="unfinished">82 Dente di sega</translation>
    </message>
    <message>
        <source>83 Syn Calliope</source>
        <translation type="unfinished">83 Calliope synth</translation>
    </message>
    <message>
        <source>84 Chiffer Lead</source>
        <translation type="unfinished">84 Chiff solista</translation>
    </message>
    <message>
        <source>85 Charang</source>
        <translation type="unfinished">85 Charang</translation>
    </message>
    <message>
        <source>86 Solo Vox</source>
        <translation type="unfinished">86 Voce solista</translation>
    </message>
    <message>
        <source>87 5th Saw Wave</source>
        <translation type="unfinished">87 Dente di sega in quinte</translation>
    </message>
    <message>
        <source>88 Brass &amp; Lead</source>
        <translation type="unfinished">88 Ottoni e solista</translation>
    </message>
    <message>
        <source>89 Fantasia</source>
        <translation type="unfinished">89 Fantasia</translation>
    </message>
    <message>
        <source>90 Warm Pad</source>
        <translation type="unfinished">90 Pad caldo</translation>
    </message>
    <message>
        <source>91 Polysynth</source>
        <translation type="unfinished">91 Polysynth</translation>
    </message>
    <message>
        <source>92 Space Vox</source>
        <translation type="unfinished">92 Voci spaziali</translation>
    </message>
    <message>
        <source>93 Bowed Glass</source>
        <translation type="unfinished">93 Vetro strofinato</translation>
    </message>
    <message>
        <source>94 Metal Pad</source>
        <translation type="unfinished">94 Pad metallico</translation>
    </message>
    <message>
        <source>95 Halo Pad</source>
        <translation type="unfinished">95 Pad aureola</translation>
    </message>
    <message>
        <source>96 Sweep Pad</source>
        <translation type="unfinished">96 Pad sweep</translation>
    </message>
    <message>
        <source>97 Ice Rain</source>
        <translation type="unfinished">97 Pioggia di ghiaccio</translation>
    </message>
    <message>
        <source>98 Soundtrack</source>
        <translation type="unfinished">98 Colonna sonora</translation>
    </message>
    <message>
        <source>99 Crystal</source>
        <translation type="unfinished">99 Cristallo</translation>
    </message>
    <message>
        <source>100 Atmosphere</source>
        <translation type="unfinished">100 Atmosfera</translation>
    </message>
    <message>
        <source>101 Brightness</source>
        <translation type="unfinished">101 Brillantezza</translation>
    </message>
    <message>
        <source>102 Goblin</source>
        <translation type="unfinished">102 Folletto</translation>
    </message>
    <message>
        <source>103 Echo Drops</source>
        <translation type="unfinished">103 Gocce d’eco</translation>
    </message>
    <message>
        <source>104 Star Theme</source>
        <translation type="unfinished">104 Tema stellare</translation>
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
        <translation type="unfinished">110 Cornamusa</translation>
    </message>
    <message>
        <source>111 Fiddle</source>
        <translation type="unfinished">111 Violino folk</translation>
    </message>
    <message>
        <source>112 Shanai</source>
        <translation type="unfinished">112 Shehnai</translation>
    </message>
    <message>
        <source>113 Tinkle Bell</source>
        <translation type="unfinished">113 Campanellini</translation>
    </message>
    <message>
        <source>114 Agogo</source>
        <translation type="unfinished">114 Agogô</translation>
    </message>
    <message>
        <source>115 Steel Drums</source>
        <translation type="unfinished">115 Steel drum</translation>
    </message>
    <message>
        <source>116 Woodblock</source>
        <translation type="unfinished">116 Wood block</translation>
    </message>
    <message>
        <source>117 Taiko Drum</source>
        <translation type="unfinished">117 Taiko</translation>
    </message>
    <message>
        <source>118 Melodic Tom</source>
        <translation type="unfinished">118 Tom melodico</translation>
    </message>
    <message>
        <source>119 Synth Drum</source>
        <translation type="unfinished">119 Tamburo synth</translation>
    </message>
    <message>
        <source>120 Reverse Cymbal</source>
        <translation type="unfinished">120 Piatto inverso</translation>
    </message>
    <message>
        <source>121 Guitar Fret Noise</source>
        <translation type="unfinished">121 Rumore di tasti di chitarra</translation>
    </message>
    <message>
        <source>122 Breath Noise</source>
        <translation type="unfinished">122 Respiro</translation>
    </message>
    <message>
        <source>123 Sea Shore</source>
        <translation type="unfinished">123 Riva del mare</translation>
    </message>
    <message>
        <source>124 Bird Tweet</source>
        <translation type="unfinished">124 Cinguettio</translation>
    </message>
    <message>
        <source>125 Telephone Ring</source>
        <translation type="unfinished">125 Squillo di telefono</translation>
    </message>
    <message>
        <source>126 Helicopter</source>
        <translation type="unfinished">126 Elicottero</translation>
    </message>
    <message>
        <source>127 Applause</source>
        <translation type="unfinished">127 Applauso</translation>
    </message>
    <message>
        <source>128 Gun Shot</source>
        <translation type="unfinished">128 Sparo</translation>
    </message>
</context>
</TS>
