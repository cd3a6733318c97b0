<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Report</source>
        <translation type="unfinished">Informe de importación</translation>
    </message>
    <message>
        <source>Stops: %1, keys: %2, samples: %3.</source>
        <translation type="unfinished">Registros: %1, teclas: %2, muestras: %3.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished">%1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) or sample(s) were left out</source>
        <translation type="unfinished">
            <numerusform>Se omitió %n archivo o muestra</numerusform>
            <numerusform>Se omitieron %n archivos o muestras</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is still sounding. Silence everything (Ctrl+.), then unload it.</source>
        <translation type="unfinished">%1 todavía suena. Silencie todo (Ctrl+.) y retírelo después.</translation>
    </message>
    <message>
        <source>Velmora cannot draw its windows because OpenGL does not work here. Install libgl1-mesa-dri, which needs no graphics card.</source>
        <translation type="unfinished">Velmora no puede dibujar sus ventanas porque OpenGL no funciona aquí. Instale libgl1-mesa-dri, que no necesita tarjeta gráfica.</translation>
    </message>
    <message>
        <source>Instrument in the &amp;File</source>
        <translation type="unfinished">Instrumento del &amp;archivo</translation>
    </message>
    <message>
        <source>Lay out the instruments of the bank as stops with volumes of their own, instead of its presets</source>
        <translation type="unfinished">Disponer los instrumentos del banco como registros con volumen propio, en vez de sus ajustes</translation>
    </message>
    <message>
        <source>&amp;Plain Reading</source>
        <translation type="unfinished">Lectura &amp;literal</translation>
    </message>
    <message>
        <source>One sample for each key, as the file lists them</source>
        <translation type="unfinished">Una muestra por tecla, como las lista el archivo</translation>
    </message>
    <message>
        <source>Samples with more bits take less memory</source>
        <translation type="unfinished">Las muestras con más bits ocupan menos memoria</translation>
    </message>
    <message>
        <source>Load in &amp;Mono</source>
        <translation type="unfinished">Cargar en &amp;mono</translation>
    </message>
    <message>
        <source>Stereo samples take half the memory</source>
        <translation type="unfinished">Las muestras estéreo ocupan la mitad de memoria</translation>
    </message>
    <message>
        <source>Stop %1</source>
        <translation type="unfinished">Registro %1</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished">Volumen</translation>
    </message>
    <message>
        <source>Open as S&amp;tops</source>
        <translation type="unfinished">Abrir como &amp;registros</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits</source>
        <translation type="unfinished">Cargar con 16 &amp;bits</translation>
    </message>
    <message>
        <source>Load as Many Stops as &amp;Fit</source>
        <translation type="unfinished">Cargar tantos registros como &amp;quepan</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits in Mono</source>
        <translation type="unfinished">Cargar con 16 &amp;bits en mono</translation>
    </message>
    <message numerus="yes">
        <source>%n stop(s) were not loaded</source>
        <translation type="unfinished">
            <numerusform>%n registro no se cargó</numerusform>
            <numerusform>%n registros no se cargaron</numerusform>
        </translation>
    </message>
    <message>
        <source>This stop is being loaded. It sounds as soon as all its pipes are there.</source>
        <translation type="unfinished">Este registro se está cargando. Sonará en cuanto estén todos sus tubos.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because the loading was stopped.</source>
        <translation type="unfinished">Este registro no está cargado, porque se detuvo la carga.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because only the drawn stops were loaded.</source>
        <translation type="unfinished">Este registro no está cargado, porque solo se cargaron los registros sacados.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because it does not fit into the memory.</source>
        <translation type="unfinished">Este registro no está cargado, porque no cabe en la memoria.</translation>
    </message>
    <message>
        <source>None of the files of this stop can be used. The import report says why.</source>
        <translation type="unfinished">Ninguno de los archivos de este registro se puede usar. El informe de importación dice por qué.</translation>
    </message>
    <message>
        <source>Load Only the D&amp;rawn Stops</source>
        <translation type="unfinished">Cargar solo los &amp;registros sacados</translation>
    </message>
</context>
<context>
    <name>deviceText</name>
    <message>
        <source>MIDI port %1</source>
        <translation type="unfinished">Puerto MIDI %1</translation>
    </message>
</context>
<context>
    <name>velmora::AboutBox</name>
    <message>
        <source>About Velmora</source>
        <translation type="unfinished">Acerca de Velmora</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Plays keyboard instruments in historical and adaptive tunings.&lt;/p&gt;&lt;p&gt;Velmora uses FluidSynth, the Synthesis ToolKit and OpenAL Soft for sound, libsndfile and WavPack for samples, RtMidi for MIDI, and Qt %2 for its windows.&lt;/p&gt;&lt;p&gt;It is available under the MIT licence.&lt;/p&gt;</source>
        <translation type="unfinished">&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Toca instrumentos de teclado en afinaciones históricas y adaptativas.&lt;/p&gt;&lt;p&gt;Velmora usa FluidSynth, Synthesis ToolKit y OpenAL Soft para el sonido, libsndfile y WavPack para las muestras, RtMidi para MIDI y Qt %2 para sus ventanas.&lt;/p&gt;&lt;p&gt;Está disponible bajo la licencia MIT.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>velmora::AdaptivePane</name>
    <message>
        <source>Correct within</source>
        <translation type="unfinished">Corregir en</translation>
    </message>
    <message>
        <source>The last note of a chord may still mend the spelling of its first</source>
        <translation type="unfinished">La última nota de un acorde puede corregir aún la grafía de la primera</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Tied to A</source>
        <translation type="unfinished">Ligada al la</translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished">Libre</translation>
    </message>
    <message>
        <source>Returns in silence</source>
        <translation type="unfinished">Vuelve en el silencio</translation>
    </message>
    <message>
        <source>What becomes of the pitch where pure intervals lead it away: it is drawn back at once, stays there, or goes back while nothing sounds</source>
        <translation type="unfinished">Qué pasa con la altura cuando los intervalos puros la alejan: se la devuelve enseguida, se queda allí o vuelve mientras nada suena</translation>
    </message>
    <message>
        <source>Drift:</source>
        <translation type="unfinished">Deriva:</translation>
    </message>
    <message>
        <source>Pitch now:</source>
        <translation type="unfinished">Altura actual:</translation>
    </message>
</context>
<context>
    <name>velmora::AudioExport</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Cargando el instrumento</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation type="unfinished">Generando el sonido</translation>
    </message>
    <message>
        <source>There is not enough memory to load the instrument a second time.</source>
        <translation type="unfinished">No hay memoria suficiente para cargar el instrumento por segunda vez.</translation>
    </message>
    <message>
        <source>Rendering voice %1 of %2</source>
        <translation type="unfinished">Generando la voz %1 de %2</translation>
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
        <translation type="unfinished">Cents</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinta</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Batidos/s</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Tercera mayor</translation>
    </message>
    <message>
        <source>Fifths and thirds</source>
        <translation type="unfinished">Quintas y terceras</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation type="unfinished">Grado</translation>
    </message>
    <message>
        <source>Nearest interval</source>
        <translation type="unfinished">Intervalo más próximo</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Desde puro</translation>
    </message>
    <message>
        <source>Degrees of the scale</source>
        <translation type="unfinished">Grados de la escala</translation>
    </message>
    <message>
        <source>Octave %1</source>
        <translation type="unfinished">Octava %1</translation>
    </message>
    <message>
        <source>Octave of the beats</source>
        <translation type="unfinished">Octava de los batidos</translation>
    </message>
    <message>
        <source>Middle C begins octave 4. An octave higher, everything beats twice as fast.</source>
        <translation type="unfinished">El do central inicia la octava 4. Una octava más arriba, todo bate el doble de rápido.</translation>
    </message>
    <message>
        <source>Cents from pure</source>
        <translation type="unfinished">Cents desde puro</translation>
    </message>
    <message>
        <source>Beats per second</source>
        <translation type="unfinished">Batidos por segundo</translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished">Tabla</translation>
    </message>
    <message>
        <source>What the circle shows</source>
        <translation type="unfinished">Qué muestra el círculo</translation>
    </message>
    <message>
        <source>%1 (sounds)</source>
        <translation type="unfinished">%1 (suena)</translation>
    </message>
</context>
<context>
    <name>velmora::CircleView</name>
    <message>
        <source>Circle of the tuning</source>
        <translation type="unfinished">Círculo de la afinación</translation>
    </message>
    <message>
        <source>Outside: the fifths. Inside: the major third above each note.
Drag a note outwards to raise it, and inwards to lower it.</source>
        <translation type="unfinished">Fuera: las quintas. Dentro: la tercera mayor sobre cada nota.
Arrastre una nota hacia fuera para subirla y hacia dentro para bajarla.</translation>
    </message>
    <message>
        <source>The degrees of the scale, each with the nearest pure interval above the first</source>
        <translation type="unfinished">Los grados de la escala, cada uno con el intervalo puro más próximo sobre el primero</translation>
    </message>
</context>
<context>
    <name>velmora::ColorsPane</name>
    <message>
        <source>Keyboard keys</source>
        <translation type="unfinished">Teclas del teclado</translation>
    </message>
    <message>
        <source>&amp;Played:</source>
        <translation type="unfinished">To&amp;cadas:</translation>
    </message>
    <message>
        <source>Keys that the sequence plays, or waits for in practice</source>
        <translation type="unfinished">Teclas que la pieza toca, o que espera al practicar</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation type="unfinished">Co&amp;rrectas:</translation>
    </message>
    <message>
        <source>Keys that you struck correctly</source>
        <translation type="unfinished">Teclas que usted tocó correctamente</translation>
    </message>
    <message>
        <source>&amp;Held:</source>
        <translation type="unfinished">M&amp;antenidas:</translation>
    </message>
    <message>
        <source>Keys that you keep holding</source>
        <translation type="unfinished">Teclas que usted sigue manteniendo</translation>
    </message>
    <message>
        <source>&amp;Wrong:</source>
        <translation type="unfinished">&amp;Erróneas:</translation>
    </message>
    <message>
        <source>Keys that you struck by mistake</source>
        <translation type="unfinished">Teclas que usted tocó por error</translation>
    </message>
    <message>
        <source>Piano roll notes</source>
        <translation type="unfinished">Notas del piano roll</translation>
    </message>
    <message>
        <source>&amp;At rest:</source>
        <translation type="unfinished">En re&amp;poso:</translation>
    </message>
    <message>
        <source>Notes that are not sounding</source>
        <translation type="unfinished">Notas que no suenan</translation>
    </message>
    <message>
        <source>&amp;Sounding:</source>
        <translation type="unfinished">&amp;Sonando:</translation>
    </message>
    <message>
        <source>Notes at the play position</source>
        <translation type="unfinished">Notas en la posición de reproducción</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation type="unfinished">Sereno</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation type="unfinished">Clásico</translation>
    </message>
    <message>
        <source>Calm: soft colours that suit the theme of the desktop. Classic: bright colours on white and black</source>
        <translation type="unfinished">Sereno: colores suaves que combinan con el tema del escritorio. Clásico: colores vivos sobre blanco y negro</translation>
    </message>
    <message>
        <source>Sch&amp;eme:</source>
        <translation type="unfinished">Es&amp;quema:</translation>
    </message>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation type="unfinished">Restab&amp;lecer los valores predeterminados</translation>
    </message>
    <message>
        <source>Use the colours of the scheme again</source>
        <translation type="unfinished">Volver a usar los colores del esquema</translation>
    </message>
    <message>
        <source>Reduce motion</source>
        <translation type="unfinished">Reducir el movimiento</translation>
    </message>
    <message>
        <source>Scroll the piano roll at once instead of gliding</source>
        <translation type="unfinished">Desplazar el piano roll de golpe en lugar de deslizarlo</translation>
    </message>
</context>
<context>
    <name>velmora::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Órdenes</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 – %2</translation>
    </message>
    <message>
        <source>Find a command or a tuning</source>
        <translation type="unfinished">Buscar una orden o una afinación</translation>
    </message>
    <message>
        <source>Nothing has all these words.</source>
        <translation type="unfinished">Nada contiene todas estas palabras.</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Afinación</translation>
    </message>
    <message>
        <source>Tuning – %1</source>
        <translation type="unfinished">Afinación – %1</translation>
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
        <translation type="unfinished">Las letras tocan a partir de %1</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleActions</name>
    <message>
        <source>Console</source>
        <translation type="unfinished">Consola</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished">&amp;Fijar</translation>
    </message>
    <message>
        <source>Keep what is drawn under the registration button that is pressed next</source>
        <translation type="unfinished">Guarda lo que está sacado en el siguiente botón de registración que se pulse</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Anulador</translation>
    </message>
    <message>
        <source>Push in every stop and coupler</source>
        <translation type="unfinished">Cierra todos los registros y acoplamientos</translation>
    </message>
    <message>
        <source>&amp;Tutti</source>
        <translation type="unfinished">&amp;Tutti</translation>
    </message>
    <message>
        <source>Draw everything; the next press returns to what was drawn before</source>
        <translation type="unfinished">Saca todo; la siguiente pulsación vuelve a lo que estaba sacado antes</translation>
    </message>
    <message>
        <source>&amp;Manuals…</source>
        <translation type="unfinished">&amp;Manuales…</translation>
    </message>
    <message>
        <source>Choose which MIDI channels and devices play the manuals and the pedals</source>
        <translation type="unfinished">Elige qué canales y dispositivos MIDI tocan los manuales y el pedal</translation>
    </message>
    <message>
        <source>&amp;Registrations</source>
        <translation type="unfinished">&amp;Registraciones</translation>
    </message>
    <message>
        <source>Registration %1</source>
        <translation type="unfinished">Registración %1</translation>
    </message>
    <message>
        <source>&amp;Keep as…</source>
        <translation type="unfinished">&amp;Guardar como…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished">Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished">&amp;Quitar</translation>
    </message>
    <message>
        <source>Keep Registration</source>
        <translation type="unfinished">Guardar registración</translation>
    </message>
    <message>
        <source>Name of the registration:</source>
        <translation type="unfinished">Nombre de la registración:</translation>
    </message>
    <message>
        <source>Rename Registration</source>
        <translation type="unfinished">Cambiar el nombre de la registración</translation>
    </message>
    <message>
        <source>New name of “%1”:</source>
        <translation type="unfinished">Nuevo nombre de «%1»:</translation>
    </message>
    <message>
        <source>There is another registration with the name “%1”.</source>
        <translation type="unfinished">Hay otra registración con el nombre «%1».</translation>
    </message>
</context>
<context>
    <name>velmora::ConsolePanel</name>
    <message>
        <source>Stops</source>
        <translation type="unfinished">Registros</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleView</name>
    <message>
        <source>Find a stop</source>
        <translation type="unfinished">Buscar un registro</translation>
    </message>
    <message>
        <source>Swell:</source>
        <translation type="unfinished">Expresión:</translation>
    </message>
    <message>
        <source>Swell of %1</source>
        <translation type="unfinished">Expresión de %1</translation>
    </message>
    <message>
        <source>How far the swell of %1 is open</source>
        <translation type="unfinished">Cuánto está abierta la expresión de %1</translation>
    </message>
</context>
<context>
    <name>velmora::ControllerLane</name>
    <message>
        <source>Click to draw how %1 moves, and drag what is there. A click with the right button deletes it. What is shown belongs to the chosen channel.</source>
        <translation type="unfinished">Haga clic para dibujar el movimiento de «%1» y arrastre lo que hay. Un clic con el botón derecho lo borra. Se muestra el canal elegido.</translation>
    </message>
    <message>
        <source>Delete Controller</source>
        <translation type="unfinished">Borrar el controlador</translation>
    </message>
    <message>
        <source>Move Controller</source>
        <translation type="unfinished">Mover el controlador</translation>
    </message>
    <message>
        <source>Draw Controller</source>
        <translation type="unfinished">Dibujar el controlador</translation>
    </message>
</context>
<context>
    <name>velmora::Desktop</name>
    <message>
        <source>%1: unrecognised file type. Velmora recognises files by their extensions, such as .mid, .scl or .sf2.</source>
        <translation type="unfinished">%1: tipo de archivo desconocido. Velmora reconoce los archivos por su extensión, como .mid, .scl o .sf2.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">Abrir</translation>
    </message>
    <message>
        <source>Transposition: %1</source>
        <translation type="unfinished">Transposición: %1</translation>
    </message>
    <message>
        <source>The General MIDI player is silent because there is no SoundFont for it. Choose one in the preferences.</source>
        <translation type="unfinished">El reproductor General MIDI está en silencio porque no tiene SoundFont. Elija uno en las preferencias.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>All supported files (%1);;Instruments (%2);;Tunings (%3);;Sequences (%4);;Sessions (%5);;All files (*)</source>
        <translation type="unfinished">Todos los archivos compatibles (%1);;Instrumentos (%2);;Afinaciones (%3);;Piezas (%4);;Sesiones (%5);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation type="unfinished">Abrir sesión</translation>
    </message>
    <message>
        <source>Sessions (%1)</source>
        <translation type="unfinished">Sesiones (%1)</translation>
    </message>
    <message>
        <source>Save Session</source>
        <translation type="unfinished">Guardar sesión</translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished">Sesión</translation>
    </message>
    <message>
        <source>Velmora ended while it was opening what was open last time. Open it again?</source>
        <translation type="unfinished">Velmora se cerró mientras abría lo que estaba abierto la última vez. ¿Abrirlo de nuevo?</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation type="unfinished">Abrir de nuevo</translation>
    </message>
    <message>
        <source>Start Empty</source>
        <translation type="unfinished">Empezar sin nada</translation>
    </message>
    <message>
        <source>Unsaved changes are not protected against a crash: %1</source>
        <translation type="unfinished">Los cambios sin guardar no están protegidos contra un fallo: %1</translation>
    </message>
    <message>
        <source>Not everything that was open last time could be opened.
%1</source>
        <translation type="unfinished">No se pudo abrir todo lo que estaba abierto la última vez.
%1</translation>
    </message>
    <message>
        <source>%1 cannot be used as the General MIDI bank. %2 is used instead. Choose another SoundFont in the preferences.</source>
        <translation type="unfinished">%1 no se puede usar como banco General MIDI. En su lugar se usa %2. Elija otro SoundFont en las preferencias.</translation>
    </message>
    <message>
        <source>Open Tuning</source>
        <translation type="unfinished">Abrir afinación</translation>
    </message>
    <message>
        <source>Tunings (%1);;All files (*)</source>
        <translation type="unfinished">Afinaciones (%1);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Tuning</source>
        <translation type="unfinished">Guardar afinación</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Escala</translation>
    </message>
    <message>
        <source>Open Instrument</source>
        <translation type="unfinished">Abrir instrumento</translation>
    </message>
    <message>
        <source>Instruments (%1);;All files (*)</source>
        <translation type="unfinished">Instrumentos (%1);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>velmora::DivisionChooser</name>
    <message>
        <source>This &amp;keyboard plays:</source>
        <translation type="unfinished">Este tec&amp;lado toca:</translation>
    </message>
    <message>
        <source>The manual that the keyboard on the screen and the letter keys play</source>
        <translation type="unfinished">El manual que tocan el teclado de la pantalla y las teclas de letras</translation>
    </message>
</context>
<context>
    <name>velmora::Drawknob</name>
    <message>
        <source>%1, volume %2 %
A click draws it or pushes it in, a right click changes its volume</source>
        <translation type="unfinished">%1, volumen %2 %
Un clic lo saca o lo cierra, un clic derecho cambia su volumen</translation>
    </message>
    <message>
        <source>%1
A click draws it or pushes it in</source>
        <translation type="unfinished">%1
Un clic lo saca o lo cierra</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation type="unfinished">&amp;Volumen:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1 %</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Volumen de %1</translation>
    </message>
</context>
<context>
    <name>velmora::DriftMeter</name>
    <message>
        <source>How far the pitch has drifted from where it began</source>
        <translation type="unfinished">Cuánto se ha alejado la altura de donde empezó</translation>
    </message>
    <message>
        <source>Drift: %1</source>
        <translation type="unfinished">Deriva: %1</translation>
    </message>
    <message>
        <source>%1 cents</source>
        <translation type="unfinished">%1 cents</translation>
    </message>
</context>
<context>
    <name>velmora::EditingActions</name>
    <message>
        <source>Edit</source>
        <translation type="unfinished">Editar</translation>
    </message>
    <message>
        <source>Select by Voice or Velocity…</source>
        <translation type="unfinished">Seleccionar por voz o velocidad…</translation>
    </message>
    <message>
        <source>Select the notes of a voice, of some keys and velocities</source>
        <translation type="unfinished">Seleccionar las notas de una voz y de ciertas teclas y velocidades</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished">Duplicar</translation>
    </message>
    <message>
        <source>Quantise…</source>
        <translation type="unfinished">Cuantizar…</translation>
    </message>
    <message>
        <source>Move notes to the grid</source>
        <translation type="unfinished">Mover las notas a la cuadrícula</translation>
    </message>
    <message>
        <source>Split Notes at the Position</source>
        <translation type="unfinished">Dividir las notas en la posición</translation>
    </message>
    <message>
        <source>Join Notes</source>
        <translation type="unfinished">Unir notas</translation>
    </message>
    <message>
        <source>Connect Notes (Legato)</source>
        <translation type="unfinished">Ligar notas (legato)</translation>
    </message>
    <message>
        <source>Move Notes an Octave Up</source>
        <translation type="unfinished">Subir las notas una octava</translation>
    </message>
    <message>
        <source>Move Notes an Octave Down</source>
        <translation type="unfinished">Bajar las notas una octava</translation>
    </message>
    <message>
        <source>Nudge Notes Later</source>
        <translation type="unfinished">Retrasar un poco las notas</translation>
    </message>
    <message>
        <source>Nudge Notes Earlier</source>
        <translation type="unfinished">Adelantar un poco las notas</translation>
    </message>
    <message>
        <source>Make Notes Louder</source>
        <translation type="unfinished">Notas más fuertes</translation>
    </message>
    <message>
        <source>Make Notes Softer</source>
        <translation type="unfinished">Notas más suaves</translation>
    </message>
    <message>
        <source>Hear Notes</source>
        <translation type="unfinished">Oír las notas</translation>
    </message>
    <message>
        <source>Sound notes that are pressed or drawn</source>
        <translation type="unfinished">Hacer sonar las notas que se pulsan o dibujan</translation>
    </message>
    <message>
        <source>Drag Selects Notes</source>
        <translation type="unfinished">Arrastrar selecciona notas</translation>
    </message>
    <message>
        <source>Let a drag across an empty place select notes instead of a time</source>
        <translation type="unfinished">Hace que arrastrar por un lugar vacío seleccione notas y no un tiempo</translation>
    </message>
</context>
<context>
    <name>velmora::ExportProgress</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Cargando el instrumento</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Cancelar</translation>
    </message>
    <message>
        <source>Export Audio</source>
        <translation type="unfinished">Exportar audio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">Se exportó %1</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">No se exportó %1. %2</translation>
    </message>
</context>
<context>
    <name>velmora::FallingNotes</name>
    <message>
        <source>Falling notes</source>
        <translation type="unfinished">Notas que caen</translation>
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
        <translation type="unfinished">sintónica (21,5 cents)</translation>
    </message>
    <message>
        <source>Pythagorean (23.5 cents)</source>
        <translation type="unfinished">pitagórica (23,5 cents)</translation>
    </message>
    <message>
        <source> comma</source>
        <translation type="unfinished"> coma</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished">Unidad:</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished">Coma</translation>
    </message>
    <message>
        <source>By which part of the comma this fifth is narrower than a pure one</source>
        <translation type="unfinished">En qué parte de la coma es esta quinta más estrecha que una pura</translation>
    </message>
    <message>
        <source>Takes the rest:</source>
        <translation type="unfinished">Toma el resto:</translation>
    </message>
    <message>
        <source>The fifths of this tuning are no parts of a comma. A change here replaces them all.</source>
        <translation type="unfinished">Las quintas de esta afinación no son partes de una coma. Un cambio aquí las sustituye todas.</translation>
    </message>
    <message>
        <source>The fifth %1 differs from a pure one by %2 cents.</source>
        <translation type="unfinished">La quinta %1 difiere de una pura en %2 cents.</translation>
    </message>
</context>
<context>
    <name>velmora::FitDialog</name>
    <message>
        <source>The notes with the bars and beats that were found</source>
        <translation type="unfinished">Las notas con los compases y tiempos encontrados</translation>
    </message>
    <message>
        <source>Fit to Grid</source>
        <translation type="unfinished">Ajustar a la cuadrícula</translation>
    </message>
    <message>
        <source>These bars and beats were found. Correct them if they are not yours; the piece is moved to them only then.</source>
        <translation type="unfinished">Se han encontrado estos compases y tiempos. Corríjalos si no son los suyos; solo entonces se ajusta la pieza.</translation>
    </message>
    <message>
        <source>&amp;Half as Fast</source>
        <translation type="unfinished">A la &amp;mitad</translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation type="unfinished">Al d&amp;oble</translation>
    </message>
    <message>
        <source>Tempo:</source>
        <translation type="unfinished">Tempo:</translation>
    </message>
    <message>
        <source>&amp;Beats in a bar:</source>
        <translation type="unfinished">&amp;Tiempos por compás:</translation>
    </message>
    <message>
        <source>&amp;First bar begins at beat:</source>
        <translation type="unfinished">El &amp;primer compás empieza en el tiempo:</translation>
    </message>
    <message>
        <source>%1 beats per minute</source>
        <translation type="unfinished">%1 pulsaciones por minuto</translation>
    </message>
    <message>
        <source>Velmora finds a tempo in eight notes or more, over four hours at most.</source>
        <translation type="unfinished">Velmora encuentra un tempo en ocho notas o más, a lo largo de cuatro horas como máximo.</translation>
    </message>
</context>
<context>
    <name>velmora::GlideBar</name>
    <message>
        <source>Only new notes</source>
        <translation type="unfinished">Solo notas nuevas</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>How long notes that sound take to reach their new pitch when the tuning changes; with 0 they jump</source>
        <translation type="unfinished">Cuánto tardan las notas que suenan en llegar a su nueva altura cuando cambia la afinación; con 0 saltan</translation>
    </message>
    <message>
        <source>Notes that sound keep their pitch until they are struck again</source>
        <translation type="unfinished">Las notas que suenan conservan su altura hasta que se vuelven a tocar</translation>
    </message>
    <message>
        <source>Glide:</source>
        <translation type="unfinished">Deslizamiento:</translation>
    </message>
</context>
<context>
    <name>velmora::GuideWindow</name>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Guía de usuario</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation type="unfinished">Guía de usuario</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished">Contenido</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished">Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished">Adelante</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished">Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished">Siguiente</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation type="unfinished">&amp;Buscar:</translation>
    </message>
    <message>
        <source>Find words in the guide (%1)</source>
        <translation type="unfinished">Buscar palabras en la guía (%1)</translation>
    </message>
    <message>
        <source>“%1” is not in the guide.</source>
        <translation type="unfinished">«%1» no aparece en la guía.</translation>
    </message>
    <message>
        <source>No program could open %1.</source>
        <translation type="unfinished">Ningún programa pudo abrir %1.</translation>
    </message>
</context>
<context>
    <name>velmora::HelpButton</name>
    <message>
        <source>Help</source>
        <translation type="unfinished">Ayuda</translation>
    </message>
    <message>
        <source>Show what the guide says about this</source>
        <translation type="unfinished">Mostrar lo que dice la guía sobre esto</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentMenu</name>
    <message>
        <source>Instrument: %1</source>
        <translation type="unfinished">Instrumento: %1</translation>
    </message>
    <message>
        <source>%1
Choose another instrument, open or unload one</source>
        <translation type="unfinished">%1
Elegir otro instrumento, abrir uno o retirarlo</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">&amp;Abrir instrumento…</translation>
    </message>
    <message>
        <source>&amp;Unload %1</source>
        <translation type="unfinished">&amp;Retirar %1</translation>
    </message>
    <message>
        <source>Import &amp;Report of %1…</source>
        <translation type="unfinished">&amp;Informe de importación de %1…</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentOpener</name>
    <message>
        <source>%1: Velmora cannot play instruments of this format. Convert it to a SoundFont (.sf2), then open that.</source>
        <translation type="unfinished">%1: Velmora no puede tocar instrumentos de este formato. Conviértalo en un SoundFont (.sf2) y abra este.</translation>
    </message>
    <message>
        <source>%1: %2; see Import Report in the Instruments window</source>
        <translation type="unfinished">%1: %2; consulte el informe de importación en la ventana Instrumentos</translation>
    </message>
    <message numerus="yes">
        <source>%1 holds %n instrument(s). The Instrument menu lists them.</source>
        <translation type="unfinished">
            <numerusform>%1 contiene %n instrumento. El menú Instrumento lo muestra.</numerusform>
            <numerusform>%1 contiene %n instrumentos. El menú Instrumento los muestra.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentPanel</name>
    <message>
        <source>Memory used by the samples of this instrument</source>
        <translation type="unfinished">Memoria que usan las muestras de este instrumento</translation>
    </message>
    <message>
        <source>Usage:  %1</source>
        <translation type="unfinished">En uso:  %1</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrumento</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsModel</name>
    <message>
        <source>Unloaded: select it to load it again</source>
        <translation type="unfinished">Retirado: selecciónelo para volver a cargarlo</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrumento</translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished">Tamaño</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsWindow</name>
    <message>
        <source>&amp;Unload</source>
        <translation type="unfinished">&amp;Retirar</translation>
    </message>
    <message>
        <source>Import &amp;Report…</source>
        <translation type="unfinished">&amp;Informe de importación…</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation type="unfinished">Instrumentos</translation>
    </message>
    <message>
        <source>Loaded instruments</source>
        <translation type="unfinished">Instrumentos cargados</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Abrir un SoundFont, un banco GigaSampler o un órgano</translation>
    </message>
    <message>
        <source>Free the memory that the samples of this instrument use</source>
        <translation type="unfinished">Liberar la memoria que usan las muestras de este instrumento</translation>
    </message>
    <message>
        <source>Show what was imported and what was left out</source>
        <translation type="unfinished">Mostrar lo que se importó y lo que se omitió</translation>
    </message>
</context>
<context>
    <name>velmora::Interval</name>
    <message>
        <source>Unison</source>
        <translation type="unfinished">Unísono</translation>
    </message>
    <message>
        <source>Semitone</source>
        <translation type="unfinished">Semitono</translation>
    </message>
    <message>
        <source>Small whole tone</source>
        <translation type="unfinished">Tono menor</translation>
    </message>
    <message>
        <source>Whole tone</source>
        <translation type="unfinished">Tono</translation>
    </message>
    <message>
        <source>Septimal whole tone</source>
        <translation type="unfinished">Tono septimal</translation>
    </message>
    <message>
        <source>Septimal minor third</source>
        <translation type="unfinished">Tercera menor septimal</translation>
    </message>
    <message>
        <source>Minor third</source>
        <translation type="unfinished">Tercera menor</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Tercera mayor</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation type="unfinished">Cuarta</translation>
    </message>
    <message>
        <source>Small tritone</source>
        <translation type="unfinished">Tritono menor</translation>
    </message>
    <message>
        <source>Large tritone</source>
        <translation type="unfinished">Tritono mayor</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinta</translation>
    </message>
    <message>
        <source>Minor sixth</source>
        <translation type="unfinished">Sexta menor</translation>
    </message>
    <message>
        <source>Major sixth</source>
        <translation type="unfinished">Sexta mayor</translation>
    </message>
    <message>
        <source>Septimal major sixth</source>
        <translation type="unfinished">Sexta mayor septimal</translation>
    </message>
    <message>
        <source>Natural seventh</source>
        <translation type="unfinished">Séptima natural</translation>
    </message>
    <message>
        <source>Small minor seventh</source>
        <translation type="unfinished">Séptima menor pequeña</translation>
    </message>
    <message>
        <source>Minor seventh</source>
        <translation type="unfinished">Séptima menor</translation>
    </message>
    <message>
        <source>Major seventh</source>
        <translation type="unfinished">Séptima mayor</translation>
    </message>
    <message>
        <source>Octave</source>
        <translation type="unfinished">Octava</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 mayor</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1 menor</translation>
    </message>
    <message>
        <source>%1 diminished</source>
        <translation type="unfinished">%1 disminuido</translation>
    </message>
    <message>
        <source>%1 augmented</source>
        <translation type="unfinished">%1 aumentado</translation>
    </message>
    <message>
        <source>%1 suspended fourth</source>
        <translation type="unfinished">%1 con cuarta suspendida</translation>
    </message>
    <message>
        <source>%1 suspended second</source>
        <translation type="unfinished">%1 con segunda suspendida</translation>
    </message>
    <message>
        <source>%1 dominant seventh</source>
        <translation type="unfinished">%1 séptima de dominante</translation>
    </message>
    <message>
        <source>%1 major seventh</source>
        <translation type="unfinished">%1 séptima mayor</translation>
    </message>
    <message>
        <source>%1 minor seventh</source>
        <translation type="unfinished">%1 menor con séptima</translation>
    </message>
    <message>
        <source>%1 minor with a major seventh</source>
        <translation type="unfinished">%1 menor con séptima mayor</translation>
    </message>
    <message>
        <source>%1 half-diminished seventh</source>
        <translation type="unfinished">%1 séptima semidisminuida</translation>
    </message>
    <message>
        <source>%1 diminished seventh</source>
        <translation type="unfinished">%1 séptima disminuida</translation>
    </message>
    <message>
        <source>%1 augmented sixth</source>
        <translation type="unfinished">%1 sexta aumentada</translation>
    </message>
    <message>
        <source>%1, root position</source>
        <translation type="unfinished">%1, estado fundamental</translation>
    </message>
    <message>
        <source>%1, first inversion</source>
        <translation type="unfinished">%1, primera inversión</translation>
    </message>
    <message>
        <source>%1, second inversion</source>
        <translation type="unfinished">%1, segunda inversión</translation>
    </message>
    <message>
        <source>%1, third inversion</source>
        <translation type="unfinished">%1, tercera inversión</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation type="unfinished">%1 %2/%3</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n octave(s)</source>
        <translation type="unfinished">
            <numerusform>%1 y %n octava</numerusform>
            <numerusform>%1 y %n octavas</numerusform>
        </translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">ninguno</translation>
    </message>
    <message>
        <source>nearly pure</source>
        <translation type="unfinished">casi puro</translation>
    </message>
    <message>
        <source>tempered</source>
        <translation type="unfinished">temperado</translation>
    </message>
    <message>
        <source>rough</source>
        <translation type="unfinished">áspero</translation>
    </message>
</context>
<context>
    <name>velmora::KeyRuler</name>
    <message>
        <source>Key names</source>
        <translation type="unfinished">Nombres de las teclas</translation>
    </message>
</context>
<context>
    <name>velmora::KeyboardView</name>
    <message>
        <source>Piano keyboard</source>
        <translation type="unfinished">Teclado de piano</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation type="unfinished">errónea</translation>
    </message>
    <message>
        <source>to be played</source>
        <translation type="unfinished">por tocar</translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished">correcta</translation>
    </message>
    <message>
        <source>held</source>
        <translation type="unfinished">mantenida</translation>
    </message>
</context>
<context>
    <name>velmora::Lanes</name>
    <message>
        <source>&amp;No Lane</source>
        <translation type="unfinished">&amp;Ningún carril</translation>
    </message>
    <message>
        <source>&amp;Velocity</source>
        <translation type="unfinished">&amp;Velocidades</translation>
    </message>
    <message>
        <source>&amp;Tempo and Signatures</source>
        <translation type="unfinished">&amp;Tempo y compases</translation>
    </message>
    <message>
        <source>Sustain Pedal</source>
        <translation type="unfinished">Pedal de resonancia</translation>
    </message>
    <message>
        <source>Pitch Wheel</source>
        <translation type="unfinished">Rueda de afinación</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation type="unfinished">Modulación</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation type="unfinished">Expresión</translation>
    </message>
</context>
<context>
    <name>velmora::LanguageFields</name>
    <message>
        <source>The language changes when you start Velmora again.</source>
        <translation type="unfinished">El idioma cambia cuando vuelva a iniciar Velmora.</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished">El del escritorio</translation>
    </message>
    <message>
        <source>The language of all menus and windows</source>
        <translation type="unfinished">El idioma de todos los menús y ventanas</translation>
    </message>
    <message>
        <source>As usual in the language</source>
        <translation type="unfinished">Como es habitual en el idioma</translation>
    </message>
    <message>
        <source>International: C D E F G A B</source>
        <translation type="unfinished">Internacional: C D E F G A B</translation>
    </message>
    <message>
        <source>German: C D E F G A H</source>
        <translation type="unfinished">Alemán: C D E F G A H</translation>
    </message>
    <message>
        <source>Solfège: Do Re Mi Fa Sol La Si</source>
        <translation type="unfinished">Solfeo: Do Re Mi Fa Sol La Si</translation>
    </message>
    <message>
        <source>The names of the keys and notes in all windows</source>
        <translation type="unfinished">Los nombres de las teclas y las notas en todas las ventanas</translation>
    </message>
    <message>
        <source>L&amp;anguage:</source>
        <translation type="unfinished">&amp;Idioma:</translation>
    </message>
    <message>
        <source>Not&amp;e names:</source>
        <translation type="unfinished">Nombres de la&amp;s notas:</translation>
    </message>
</context>
<context>
    <name>velmora::LearnMenu</name>
    <message>
        <source>&amp;Learn MIDI Controller…</source>
        <translation type="unfinished">A&amp;prender controlador MIDI…</translation>
    </message>
    <message>
        <source>Learn MIDI Controller for %1…</source>
        <translation type="unfinished">Aprender controlador MIDI para %1…</translation>
    </message>
    <message>
        <source>&amp;Forget MIDI Controller</source>
        <translation type="unfinished">&amp;Olvidar controlador MIDI</translation>
    </message>
    <message>
        <source>Forget MIDI Controller for %1</source>
        <translation type="unfinished">Olvidar controlador MIDI de %1</translation>
    </message>
    <message>
        <source>Learn MIDI Controller</source>
        <translation type="unfinished">Aprender controlador MIDI</translation>
    </message>
    <message>
        <source>Waiting for a MIDI controller for “%1”.
Move a controller, or press a button or a key, on a MIDI device.</source>
        <translation type="unfinished">Esperando un controlador MIDI para «%1».
Mueva un controlador, o pulse un botón o una tecla, en un dispositivo MIDI.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>MIDI key %1 on channel %2</source>
        <translation type="unfinished">Tecla MIDI %1 en el canal %2</translation>
    </message>
    <message>
        <source>MIDI controller %1 on channel %2</source>
        <translation type="unfinished">Controlador MIDI %1 en el canal %2</translation>
    </message>
</context>
<context>
    <name>velmora::LevelMeter</name>
    <message>
        <source>Level</source>
        <translation type="unfinished">Nivel</translation>
    </message>
</context>
<context>
    <name>velmora::LyricsPanel</name>
    <message>
        <source>Lyrics</source>
        <translation type="unfinished">Letra</translation>
    </message>
</context>
<context>
    <name>velmora::ManualsDialog</name>
    <message>
        <source>Manuals</source>
        <translation type="unfinished">Manuales</translation>
    </message>
    <message>
        <source>What no line names plays the lowest manual. The channels of pieces count as those of all devices.</source>
        <translation type="unfinished">Lo que ninguna línea nombra toca el manual más bajo. Los canales de las piezas cuentan como los de todos los dispositivos.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Dispositivo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canal</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation type="unfinished">Toca</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation type="unfinished">&amp;Añadir línea</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation type="unfinished">Todos los dispositivos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Quitar</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation type="unfinished">Todos los canales</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation type="unfinished">Canal %1</translation>
    </message>
</context>
<context>
    <name>velmora::MetersWindow</name>
    <message>
        <source>Meters</source>
        <translation type="unfinished">Medidores</translation>
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
        <translation type="unfinished">%1 de %2</translation>
    </message>
    <message>
        <source>Connect a MIDI device, and it appears here.</source>
        <translation type="unfinished">Conecte un dispositivo MIDI y aparecerá aquí.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Dispositivo</translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished">Activo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canal</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished">Teclas</translation>
    </message>
    <message>
        <source>MIDI devices</source>
        <translation type="unfinished">Dispositivos MIDI</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation type="unfinished">%1 (no conectado)</translation>
    </message>
    <message>
        <source>Whether the device is heard</source>
        <translation type="unfinished">Si se escucha el dispositivo</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Todos</translation>
    </message>
    <message>
        <source>The MIDI channel to listen to</source>
        <translation type="unfinished">El canal MIDI que se escucha</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> semitonos</translation>
    </message>
    <message>
        <source>How much higher the keys sound</source>
        <translation type="unfinished">Cuánto más agudas suenan las teclas</translation>
    </message>
</context>
<context>
    <name>velmora::NowTab</name>
    <message>
        <source>Notes</source>
        <translation type="unfinished">Notas</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished">Intervalo</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">Cents</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Desde puro</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Batidos/s</translation>
    </message>
    <message>
        <source>Sounding intervals</source>
        <translation type="unfinished">Intervalos que suenan</translation>
    </message>
    <message>
        <source>Show on the keys how pure they are</source>
        <translation type="unfinished">Mostrar en las teclas lo puras que son</translation>
    </message>
    <message>
        <source>Colour each sounding key by its interval that is farthest from pure with another one</source>
        <translation type="unfinished">Colorear cada tecla que suena según su intervalo con otra que más se aleja del puro</translation>
    </message>
    <message>
        <source>Play a chord</source>
        <translation type="unfinished">Toque un acorde</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <translation type="unfinished">%1–%2</translation>
    </message>
    <message>
        <source>The music centres on %1 (%2 fifths from C).</source>
        <translation type="unfinished">La música gira en torno a %1 (%2 quintas desde do).</translation>
    </message>
    <message>
        <source>%1, not %2: %3 fifths from the centre instead of %4</source>
        <translation type="unfinished">%1, no %2: a %3 quintas del centro en vez de %4</translation>
    </message>
    <message>
        <source>Each key keeps its usual spelling until another one is forced.</source>
        <translation type="unfinished">Cada tecla conserva su grafía habitual hasta que se fuerza otra.</translation>
    </message>
    <message>
        <source>Drift from the start: %1 cents</source>
        <translation type="unfinished">Deriva desde el inicio: %1 cents</translation>
    </message>
</context>
<context>
    <name>velmora::OutlyingNotes</name>
    <message>
        <source>The keyboard does not show these keys. Click to go to the first note.</source>
        <translation type="unfinished">El teclado no muestra estas teclas. Haga clic para ir a la primera nota.</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) below %1</source>
        <translation type="unfinished">
            <numerusform>%n nota por debajo de %1</numerusform>
            <numerusform>%n notas por debajo de %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) above %1</source>
        <translation type="unfinished">
            <numerusform>%n nota por encima de %1</numerusform>
            <numerusform>%n notas por encima de %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::PlayingControls</name>
    <message>
        <source>Transpose down (Ctrl+Shift+Down)</source>
        <translation type="unfinished">Transponer hacia abajo (Ctrl+Mayús+Abajo)</translation>
    </message>
    <message>
        <source>Transpose up (Ctrl+Shift+Up)</source>
        <translation type="unfinished">Transponer hacia arriba (Ctrl+Mayús+Arriba)</translation>
    </message>
    <message>
        <source>Linear touch</source>
        <translation type="unfinished">Pulsación lineal</translation>
    </message>
    <message>
        <source>Soft touch</source>
        <translation type="unfinished">Pulsación suave</translation>
    </message>
    <message>
        <source>Hard touch</source>
        <translation type="unfinished">Pulsación dura</translation>
    </message>
    <message>
        <source>Fixed touch</source>
        <translation type="unfinished">Pulsación fija</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Pulsación</translation>
    </message>
    <message>
        <source>How loud your touch on a MIDI keyboard sounds: soft makes a light touch louder, hard asks for a strong one, fixed ignores the touch</source>
        <translation type="unfinished">La intensidad con que suena su pulsación en un teclado MIDI: la suave hace más fuerte una pulsación ligera, la dura exige una enérgica, la fija no tiene en cuenta la pulsación</translation>
    </message>
    <message>
        <source>Transposition</source>
        <translation type="unfinished">Transposición</translation>
    </message>
    <message>
        <source>The transposition of the MIDI keyboards in semitones</source>
        <translation type="unfinished">La transposición de los teclados MIDI en semitonos</translation>
    </message>
    <message>
        <source>semitones</source>
        <translation type="unfinished">semitonos</translation>
    </message>
</context>
<context>
    <name>velmora::PlayingPane</name>
    <message>
        <source>How much higher than written the keys of MIDI devices sound</source>
        <translation type="unfinished">Cuánto más agudas que lo escrito suenan las teclas de los dispositivos MIDI</translation>
    </message>
    <message>
        <source>How far the pitch wheel bends up and down; with 0 it does nothing</source>
        <translation type="unfinished">Cuánto sube y baja el tono la rueda; con 0 no hace nada</translation>
    </message>
    <message>
        <source>Pl&amp;ain reading of MIDI devices</source>
        <translation type="unfinished">&amp;Lectura simple de los dispositivos MIDI</translation>
    </message>
    <message>
        <source>Linear: as the keyboard sends it</source>
        <translation type="unfinished">Lineal: tal como la envía el teclado</translation>
    </message>
    <message>
        <source>Soft: a light touch is louder</source>
        <translation type="unfinished">Suave: una pulsación ligera suena más fuerte</translation>
    </message>
    <message>
        <source>Hard: only a strong touch is loud</source>
        <translation type="unfinished">Dura: solo una pulsación enérgica suena fuerte</translation>
    </message>
    <message>
        <source>Fixed: always the same</source>
        <translation type="unfinished">Fija: siempre igual</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Pulsación</translation>
    </message>
    <message>
        <source>Only notes and volumes count: no pedals, wheels, programs or learned controllers, no touch and no transposition</source>
        <translation type="unfinished">Solo cuentan las notas y los volúmenes: ni pedales, ruedas, programas o controladores aprendidos, ni pulsación ni transposición</translation>
    </message>
    <message>
        <source>&amp;Touch:</source>
        <translation type="unfinished">&amp;Pulsación:</translation>
    </message>
    <message>
        <source>T&amp;ransposition:</source>
        <translation type="unfinished">T&amp;ransposición:</translation>
    </message>
    <message>
        <source>Pitch &amp;wheel:</source>
        <translation type="unfinished">R&amp;ueda de tono:</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> semitonos</translation>
    </message>
    <message>
        <source>Correct the ban&amp;k&apos;s own tuning</source>
        <translation type="unfinished">Corregir la afinación propia del &amp;banco</translation>
    </message>
    <message>
        <source>Keys that a SoundFont has out of tune are measured when a program is first used, and corrected</source>
        <translation type="unfinished">Las teclas desafinadas de una SoundFont se miden al usar un programa por primera vez y se corrigen</translation>
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
        <translation type="unfinished">Más lento tras errores</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Repeat bars</source>
        <translation type="unfinished">Repetir compases</translation>
    </message>
    <message>
        <source>Show falling notes</source>
        <translation type="unfinished">Mostrar las notas que caen</translation>
    </message>
    <message>
        <source>Both hands</source>
        <translation type="unfinished">Ambas manos</translation>
    </message>
    <message>
        <source>Right hand</source>
        <translation type="unfinished">Mano derecha</translation>
    </message>
    <message>
        <source>Left hand</source>
        <translation type="unfinished">Mano izquierda</translation>
    </message>
    <message>
        <source>The lowest key of the right hand</source>
        <translation type="unfinished">La tecla más grave de la mano derecha</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voces</translation>
    </message>
    <message>
        <source>The voices that you play; the others play along</source>
        <translation type="unfinished">Las voces que toca usted; las demás acompañan</translation>
    </message>
    <message>
        <source>What a pass without a mistake adds to the speed</source>
        <translation type="unfinished">Lo que una pasada sin errores añade a la velocidad</translation>
    </message>
    <message>
        <source>How early a key may be, and how long a chord may be rolled</source>
        <translation type="unfinished">Cuánto puede adelantarse una tecla y cuánto puede durar un acorde arpegiado</translation>
    </message>
    <message>
        <source>to</source>
        <comment>bars</comment>
        <translation type="unfinished">a</translation>
    </message>
    <message>
        <source>First bar</source>
        <translation type="unfinished">Primer compás</translation>
    </message>
    <message>
        <source>Last bar</source>
        <translation type="unfinished">Último compás</translation>
    </message>
    <message>
        <source>Play:</source>
        <translation type="unfinished">Tocar:</translation>
    </message>
    <message>
        <source>Split at:</source>
        <translation type="unfinished">Dividir en:</translation>
    </message>
    <message>
        <source>Voices:</source>
        <translation type="unfinished">Voces:</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation type="unfinished">Velocidad:</translation>
    </message>
    <message>
        <source>Faster by:</source>
        <translation type="unfinished">Más rápido en:</translation>
    </message>
    <message>
        <source>Tolerance:</source>
        <translation type="unfinished">Tolerancia:</translation>
    </message>
    <message>
        <source>Bars:</source>
        <translation type="unfinished">Compases:</translation>
    </message>
    <message>
        <source>There are no notes to practise. Choose other voices, another hand or other bars.</source>
        <translation type="unfinished">No hay notas que practicar. Elija otras voces, otra mano u otros compases.</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Voz %1</translation>
    </message>
    <message>
        <source>Stop Practising</source>
        <translation type="unfinished">Dejar de practicar</translation>
    </message>
    <message>
        <source>Practise</source>
        <translation type="unfinished">Practicar</translation>
    </message>
    <message>
        <source>Wait for missing keys</source>
        <translation type="unfinished">Esperar las teclas que faltan</translation>
    </message>
    <message>
        <source>If it does not wait, the piece goes on, and what you leave out is missed</source>
        <translation type="unfinished">Si no espera, la pieza continúa y lo que usted omite cuenta como perdido</translation>
    </message>
    <message>
        <source>Right: %1, wrong: %2, missed: %3, passes: %4</source>
        <translation type="unfinished">Correctas: %1, incorrectas: %2, perdidas: %3, pasadas: %4</translation>
    </message>
</context>
<context>
    <name>velmora::PracticePicture</name>
    <message>
        <source>early</source>
        <translation type="unfinished">pronto</translation>
    </message>
    <message>
        <source>late</source>
        <translation type="unfinished">tarde</translation>
    </message>
    <message>
        <source>How early or late the keys were, in ms</source>
        <translation type="unfinished">Cuánto se adelantaron o atrasaron las teclas, en ms</translation>
    </message>
    <message>
        <source>Right, wrong (hatched) and missed (empty) keys by bar</source>
        <translation type="unfinished">Teclas correctas, incorrectas (rayadas) y perdidas (vacías) por compás</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeResults</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Sin título</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>The result of the practice was not kept: %1</source>
        <translation type="unfinished">El resultado de la práctica no se guardó: %1</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished">Guardar imagen</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Práctica</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeWindow</name>
    <message>
        <source>Practice sessions</source>
        <translation type="unfinished">Sesiones de práctica</translation>
    </message>
    <message>
        <source>Result by bar and by time</source>
        <translation type="unfinished">Resultado por compás y por tiempo</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation type="unfinished">Guardar &amp;imagen…</translation>
    </message>
    <message>
        <source>Practice: %1</source>
        <translation type="unfinished">Práctica: %1</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <comment>a time, a speed in percent</comment>
        <translation type="unfinished">%1 al %2 %</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms early.</source>
        <translation type="unfinished">Por lo general, las teclas se adelantaron %1 ms.</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms late.</source>
        <translation type="unfinished">Por lo general, las teclas se atrasaron %1 ms.</translation>
    </message>
    <message>
        <source>Right keys: %1 (%2 early, %3 late), wrong keys: %4, missed keys: %5. Passes: %6, without a mistake: %7.</source>
        <translation type="unfinished">Teclas correctas: %1 (%2 adelantadas, %3 atrasadas), incorrectas: %4, perdidas: %5. Pasadas: %6, sin errores: %7.</translation>
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
        <translation type="unfinished">Preferencias</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation type="unfinished">Paneles</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished">&amp;General</translation>
    </message>
    <message>
        <source>C&amp;olors</source>
        <translation type="unfinished">C&amp;olores</translation>
    </message>
    <message>
        <source>&amp;MIDI</source>
        <translation type="unfinished">&amp;MIDI</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation type="unfinished">So&amp;nido</translation>
    </message>
    <message>
        <source>Key &amp;width:</source>
        <translation type="unfinished">&amp;Ancho de tecla:</translation>
    </message>
    <message>
        <source>The width of a semitone on the keyboard and in the piano roll</source>
        <translation type="unfinished">El ancho de un semitono en el teclado y en el piano roll</translation>
    </message>
    <message>
        <source>&amp;Step height:</source>
        <translation type="unfinished">Alt&amp;ura de paso:</translation>
    </message>
    <message>
        <source>The height of a step, the distance between grid lines, in the piano roll</source>
        <translation type="unfinished">La altura de un paso, la distancia entre las líneas de la cuadrícula, en el piano roll</translation>
    </message>
    <message>
        <source>&amp;Lowest key:</source>
        <translation type="unfinished">Tecla más gra&amp;ve:</translation>
    </message>
    <message>
        <source>The first key of the keyboard: a note name, such as A0, or a MIDI key number</source>
        <translation type="unfinished">La primera tecla del teclado: un nombre de nota, como A0, o un número de tecla MIDI</translation>
    </message>
    <message>
        <source>&amp;Highest key:</source>
        <translation type="unfinished">Tecla más agu&amp;da:</translation>
    </message>
    <message>
        <source>The last key of the keyboard: a note name, such as C8, or a MIDI key number</source>
        <translation type="unfinished">La última tecla del teclado: un nombre de nota, como C8, o un número de tecla MIDI</translation>
    </message>
    <message>
        <source>Show note &amp;names on the C keys</source>
        <translation type="unfinished">Mostrar los nombres de las notas en las te&amp;clas do</translation>
    </message>
    <message>
        <source>General MIDI bank:</source>
        <translation type="unfinished">Banco General MIDI:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation type="unfinished">El predeterminado del sistema</translation>
    </message>
    <message>
        <source>General MIDI bank</source>
        <translation type="unfinished">Banco General MIDI</translation>
    </message>
    <message>
        <source>Choose a SoundFont for the General MIDI player</source>
        <translation type="unfinished">Elegir un SoundFont para el reproductor General MIDI</translation>
    </message>
    <message>
        <source>Use &amp;Default</source>
        <translation type="unfinished">Usar el &amp;predeterminado</translation>
    </message>
    <message>
        <source>Use the system&apos;s General MIDI bank</source>
        <translation type="unfinished">Usar el banco General MIDI del sistema</translation>
    </message>
    <message>
        <source>Choose a General MIDI Bank</source>
        <translation type="unfinished">Elegir un banco General MIDI</translation>
    </message>
    <message>
        <source>SoundFont banks (*.sf2 *.sf3)</source>
        <translation type="unfinished">Bancos SoundFont (*.sf2 *.sf3)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished">Todos los archivos (*)</translation>
    </message>
    <message>
        <source>A&amp;t the start:</source>
        <translation type="unfinished">Al inicia&amp;r:</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation type="unfinished">Empezar sin nada</translation>
    </message>
    <message>
        <source>Start as last time</source>
        <translation type="unfinished">Empezar como la última vez</translation>
    </message>
    <message>
        <source>Whether the instruments, the tuning and the pieces that are open when you quit are opened again</source>
        <translation type="unfinished">Si se vuelven a abrir los instrumentos, la afinación y las piezas que están abiertos al salir</translation>
    </message>
    <message>
        <source>Short&amp;cuts</source>
        <translation type="unfinished">A&amp;tajos</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">E&amp;xaminar…</translation>
    </message>
</context>
<context>
    <name>velmora::ProgramList</name>
    <message>
        <source>Piano</source>
        <translation type="unfinished">Piano</translation>
    </message>
    <message>
        <source>Chromatic Percussion</source>
        <translation type="unfinished">Percusión cromática</translation>
    </message>
    <message>
        <source>Organ</source>
        <translation type="unfinished">Órgano</translation>
    </message>
    <message>
        <source>Guitar</source>
        <translation type="unfinished">Guitarra</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation type="unfinished">Bajo</translation>
    </message>
    <message>
        <source>Strings</source>
        <translation type="unfinished">Cuerdas</translation>
    </message>
    <message>
        <source>Ensemble</source>
        <translation type="unfinished">Conjunto</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation type="unfinished">Metales</translation>
    </message>
    <message>
        <source>Reed</source>
        <translation type="unfinished">Lengüeta</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation type="unfinished">Flautas</translation>
    </message>
    <message>
        <source>Synth Lead</source>
        <translation type="unfinished">Solista sintético</translation>
    </message>
    <message>
        <source>Synth Pad</source>
        <translation type="unfinished">Fondo sintético</translation>
    </message>
    <message>
        <source>Synth Effects</source>
        <translation type="unfinished">Efectos sintéticos</translation>
    </message>
    <message>
        <source>Ethnic</source>
        <translation type="unfinished">Étnicos</translation>
    </message>
    <message>
        <source>Percussive</source>
        <translation type="unfinished">Percusivos</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation type="unfinished">Efectos de sonido</translation>
    </message>
    <message>
        <source>Find a program</source>
        <translation type="unfinished">Buscar un programa</translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished">Programa</translation>
    </message>
    <message>
        <source>Drum kits</source>
        <translation type="unfinished">Baterías</translation>
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
        <translation type="unfinished">Carga</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished">Progreso</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished">Cancelando…</translation>
    </message>
</context>
<context>
    <name>velmora::PurityLegend</name>
    <message>
        <source>Legend</source>
        <translation type="unfinished">Leyenda</translation>
    </message>
    <message>
        <source>%1: up to %2 cents</source>
        <translation type="unfinished">%1: hasta %2 cents</translation>
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
        <translation type="unfinished">Mover también los &amp;finales de las notas</translation>
    </message>
    <message>
        <source>Quantise</source>
        <translation type="unfinished">Cuantizar</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>1/%1 triplets</source>
        <translation type="unfinished">tresillos de 1/%1</translation>
    </message>
    <message>
        <source>Where the second of two units begins: 50 % is even, 67 % triplets</source>
        <translation type="unfinished">Dónde empieza la segunda de dos unidades: 50 % es regular, 67 % tresillos</translation>
    </message>
    <message numerus="yes">
        <source>Moves all %n note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Mueve la única nota a la cuadrícula.</numerusform>
            <numerusform>Mueve las %n notas a la cuadrícula.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves %n selected note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Mueve %n nota seleccionada a la cuadrícula.</numerusform>
            <numerusform>Mueve %n notas seleccionadas a la cuadrícula.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Grid:</source>
        <translation type="unfinished">&amp;Cuadrícula:</translation>
    </message>
    <message>
        <source>&amp;Strength:</source>
        <translation type="unfinished">&amp;Intensidad:</translation>
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
        <translation type="unfinished">Pieza</translation>
    </message>
    <message>
        <source>&amp;Metronome</source>
        <translation type="unfinished">&amp;Metrónomo</translation>
    </message>
    <message>
        <source>Click on the beats</source>
        <translation type="unfinished">Marca los tiempos con un clic</translation>
    </message>
    <message>
        <source>P&amp;unch In</source>
        <translation type="unfinished">Grabación por &amp;pinchazo</translation>
    </message>
    <message>
        <source>Record only in the selected time, and replace what the channel has there</source>
        <translation type="unfinished">Graba solo en el tiempo seleccionado y sustituye lo que el canal tiene allí</translation>
    </message>
    <message>
        <source>Metronome and Count-&amp;In</source>
        <translation type="unfinished">Metrónomo y compases de &amp;entrada</translation>
    </message>
    <message>
        <source>&amp;Takes</source>
        <translation type="unfinished">&amp;Tomas</translation>
    </message>
    <message>
        <source>Metronome</source>
        <translation type="unfinished">Metrónomo</translation>
    </message>
    <message>
        <source>While Recording and Playing</source>
        <translation type="unfinished">Al grabar y al reproducir</translation>
    </message>
    <message>
        <source>Only While Recording</source>
        <translation type="unfinished">Solo al grabar</translation>
    </message>
    <message>
        <source>Only While Playing</source>
        <translation type="unfinished">Solo al reproducir</translation>
    </message>
    <message>
        <source>Click Between the Beats</source>
        <translation type="unfinished">Clic entre los tiempos</translation>
    </message>
    <message>
        <source>Count-In</source>
        <translation type="unfinished">Compases de entrada</translation>
    </message>
    <message>
        <source>No Count-In</source>
        <translation type="unfinished">Sin compases de entrada</translation>
    </message>
    <message>
        <source>One Bar</source>
        <translation type="unfinished">Un compás</translation>
    </message>
    <message>
        <source>Two Bars</source>
        <translation type="unfinished">Dos compases</translation>
    </message>
    <message>
        <source>Volume of the metronome</source>
        <translation type="unfinished">Volumen del metrónomo</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished">&amp;Volumen</translation>
    </message>
    <message numerus="yes">
        <source>Take %1: %n note(s)</source>
        <translation type="unfinished">
            <numerusform>Toma %1: %n nota</numerusform>
            <numerusform>Toma %1: %n notas</numerusform>
        </translation>
    </message>
    <message>
        <source>Fit to Grid…</source>
        <translation type="unfinished">Ajustar a la cuadrícula…</translation>
    </message>
    <message>
        <source>Find the tempo and the bars of a free recording, and move it to them</source>
        <translation type="unfinished">Encuentra el tempo y los compases de una grabación libre y la ajusta a ellos</translation>
    </message>
    <message>
        <source>Thin Controllers…</source>
        <translation type="unfinished">Aligerar los controladores…</translation>
    </message>
    <message>
        <source>Leave out moves of controllers that nobody hears</source>
        <translation type="unfinished">Omite los movimientos de controladores que nadie oye</translation>
    </message>
    <message>
        <source>Thin Controllers</source>
        <translation type="unfinished">Aligerar los controladores</translation>
    </message>
    <message>
        <source>Leave out changes of at most this many of 127:</source>
        <translation type="unfinished">Omitir cambios de hasta tantos de 127:</translation>
    </message>
</context>
<context>
    <name>velmora::RollActions</name>
    <message>
        <source>View</source>
        <translation type="unfinished">Ver</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation type="unfinished">Carril</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation type="unfinished">&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation type="unfinished">&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Wider Keys</source>
        <translation type="unfinished">Teclas más anc&amp;has</translation>
    </message>
    <message>
        <source>N&amp;arrower Keys</source>
        <translation type="unfinished">Tec&amp;las más estrechas</translation>
    </message>
    <message>
        <source>Zoom to Selection</source>
        <translation type="unfinished">Ajustar a la selección</translation>
    </message>
    <message>
        <source>Zoom to All Notes</source>
        <translation type="unfinished">Ajustar a todas las notas</translation>
    </message>
    <message>
        <source>Time Runs Across</source>
        <translation type="unfinished">El tiempo avanza hacia la derecha</translation>
    </message>
    <message>
        <source>Let time run from left to right instead of upwards</source>
        <translation type="unfinished">Hace que el tiempo avance de izquierda a derecha y no hacia arriba</translation>
    </message>
</context>
<context>
    <name>velmora::RollPaper</name>
    <message>
        <source>The piece is too long for this. Please take more bars for each line.</source>
        <translation type="unfinished">La pieza es demasiado larga para esto. Elija más compases por línea.</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The piece is too long for one picture. Please take more bars for each line, or write PDF.</source>
        <translation type="unfinished">La pieza es demasiado larga para una sola imagen. Elija más compases por línea o escriba PDF.</translation>
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
        <translation type="unfinished">Seleccionar notas</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Todos</translation>
    </message>
    <message>
        <source>&amp;Voice:</source>
        <translation type="unfinished">&amp;Voz:</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation type="unfinished">&amp;Teclas:</translation>
    </message>
    <message>
        <source>V&amp;elocities:</source>
        <translation type="unfinished">V&amp;elocidades:</translation>
    </message>
    <message>
        <source>Lowest key</source>
        <translation type="unfinished">Tecla más grave</translation>
    </message>
    <message>
        <source>Highest key</source>
        <translation type="unfinished">Tecla más aguda</translation>
    </message>
    <message>
        <source>Softest velocity</source>
        <translation type="unfinished">Velocidad mínima</translation>
    </message>
    <message>
        <source>Loudest velocity</source>
        <translation type="unfinished">Velocidad máxima</translation>
    </message>
</context>
<context>
    <name>velmora::SendTuningDialog</name>
    <message>
        <source>&amp;Keep sending when the tuning changes</source>
        <translation type="unfinished">&amp;Seguir enviando cuando cambie la afinación</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished">&amp;Enviar</translation>
    </message>
    <message>
        <source>Send the Tuning</source>
        <translation type="unfinished">Enviar la afinación</translation>
    </message>
    <message>
        <source>No MIDI output is connected</source>
        <translation type="unfinished">No hay ninguna salida MIDI conectada</translation>
    </message>
    <message>
        <source>MIDI &amp;output:</source>
        <translation type="unfinished">Salida &amp;MIDI:</translation>
    </message>
    <message>
        <source>The tuning was sent to %1.</source>
        <translation type="unfinished">La afinación se ha enviado a %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceActions</name>
    <message>
        <source>&amp;Loop</source>
        <translation type="unfinished">&amp;Bucle</translation>
    </message>
    <message>
        <source>Repeat the selected time, or the whole sequence</source>
        <translation type="unfinished">Repetir el tiempo seleccionado o toda la pieza</translation>
    </message>
    <message>
        <source>Snap to &amp;Grid</source>
        <translation type="unfinished">Ajustar a la &amp;cuadrícula</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished">&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished">&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished">Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished">&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished">&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Eliminar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished">&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation type="unfinished">&amp;No seleccionar nada</translation>
    </message>
    <message>
        <source>Go to &amp;Start</source>
        <translation type="unfinished">Ir al &amp;inicio</translation>
    </message>
    <message>
        <source>Pre&amp;vious Notes</source>
        <translation type="unfinished">Notas &amp;anteriores</translation>
    </message>
    <message>
        <source>&amp;Next Notes</source>
        <translation type="unfinished">Notas &amp;siguientes</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">Ca&amp;nal</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Detener</translation>
    </message>
    <message>
        <source>Record what you play, starting at the position</source>
        <translation type="unfinished">Grabar lo que toque, a partir de la posición</translation>
    </message>
    <message>
        <source>Play from the position</source>
        <translation type="unfinished">Reproducir a partir de la posición</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Pieza</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished">&amp;Grabar</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">&amp;Reproducir</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt Note</source>
        <translation type="unfinished">Seleccionar la nota s&amp;iguiente</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious Note</source>
        <translation type="unfinished">Seleccionar la nota &amp;anterior</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation type="unfinished">Ir al &amp;final</translation>
    </message>
    <message>
        <source>&amp;Selected Notes</source>
        <translation type="unfinished">Notas selecci&amp;onadas</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished">Editar</translation>
    </message>
    <message>
        <source>Move Notes &amp;Up a Semitone</source>
        <translation type="unfinished">&amp;Subir las notas un semitono</translation>
    </message>
    <message>
        <source>Move Notes &amp;Down a Semitone</source>
        <translation type="unfinished">&amp;Bajar las notas un semitono</translation>
    </message>
    <message>
        <source>Move Notes &amp;Later</source>
        <translation type="unfinished">&amp;Retrasar las notas</translation>
    </message>
    <message>
        <source>Move Notes &amp;Earlier</source>
        <translation type="unfinished">&amp;Adelantar las notas</translation>
    </message>
    <message>
        <source>Make Notes Lon&amp;ger</source>
        <translation type="unfinished">Alar&amp;gar las notas</translation>
    </message>
    <message>
        <source>Make Notes &amp;Shorter</source>
        <translation type="unfinished">A&amp;cortar las notas</translation>
    </message>
    <message>
        <source>Align notes and times with the lines of the grid</source>
        <translation type="unfinished">Ajustar notas y tiempos a las líneas de la cuadrícula</translation>
    </message>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Historial de cambios</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceDocument</name>
    <message>
        <source>Draw Note</source>
        <translation type="unfinished">Dibujar nota</translation>
    </message>
    <message numerus="yes">
        <source>Record %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Grabar %n nota</numerusform>
            <numerusform>Grabar %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Eliminar %n nota</numerusform>
            <numerusform>Eliminar %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Cambiar la duración de %n nota</numerusform>
            <numerusform>Cambiar la duración de %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Mover %n nota</numerusform>
            <numerusform>Mover %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Set Channel of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Cambiar el canal de %n nota</numerusform>
            <numerusform>Cambiar el canal de %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cut %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Cortar %n nota</numerusform>
            <numerusform>Cortar %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Pegar %n nota</numerusform>
            <numerusform>Pegar %n notas</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Take %1</source>
        <translation type="unfinished">Elegir la toma %1</translation>
    </message>
    <message numerus="yes">
        <source>Quantise %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Cuantizar %n nota</numerusform>
            <numerusform>Cuantizar %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Transpose %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Transportar %n nota</numerusform>
            <numerusform>Transportar %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Duplicar %n nota</numerusform>
            <numerusform>Duplicar %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Dividir %n nota</numerusform>
            <numerusform>Dividir %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Join %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Unir %n nota</numerusform>
            <numerusform>Unir %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Connect %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Ligar %n nota</numerusform>
            <numerusform>Ligar %n notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Change Velocity of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Cambiar la velocidad de %n nota</numerusform>
            <numerusform>Cambiar la velocidad de %n notas</numerusform>
        </translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Grabar</translation>
    </message>
    <message>
        <source>Record Controllers</source>
        <translation type="unfinished">Grabar controladores</translation>
    </message>
</context>
<context>
    <name>velmora::SequencePages</name>
    <message numerus="yes">
        <source>%1, %n note(s), %2</source>
        <translation type="unfinished">
            <numerusform>%1, %n nota, %2</numerusform>
            <numerusform>%1, %n notas, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Sin título</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>Velmora was not closed properly. Recover the unsaved sequences?</source>
        <translation type="unfinished">Velmora no se cerró correctamente. ¿Recuperar las piezas sin guardar?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished">Recuperar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished">Descartar</translation>
    </message>
    <message>
        <source>Ask Later</source>
        <translation type="unfinished">Preguntar más tarde</translation>
    </message>
    <message>
        <source>%1 •</source>
        <translation type="unfinished">%1 •</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation type="unfinished">Sin título %1</translation>
    </message>
    <message>
        <source>%1 is damaged. Open what could be read?</source>
        <translation type="unfinished">%1 está dañado. ¿Desea abrir lo que se ha podido leer?</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) could be read.</source>
        <translation type="unfinished">
            <numerusform>Se ha podido leer %n nota.</numerusform>
            <numerusform>Se han podido leer %n notas.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” has stopped, because the voices of “%2” sound otherwise.</source>
        <translation type="unfinished">«%1» se ha detenido, porque las voces de «%2» suenan de otro modo.</translation>
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
        <translation type="unfinished">%1 todavía se está exportando. ¿Detener la exportación?</translation>
    </message>
    <message>
        <source>If you stop it, no sound file is written.</source>
        <translation type="unfinished">Si la detiene, no se escribe ningún archivo de sonido.</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <translation type="unfinished">Detener la exportación</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation type="unfinished">¿Guardar los cambios de %1?</translation>
    </message>
    <message>
        <source>If you do not save them, they are lost.</source>
        <translation type="unfinished">Si no los guarda, se pierden.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished">Guardar como</translation>
    </message>
    <message>
        <source>An iMelody file holds a single voice and no dynamics. Save it anyway?</source>
        <translation type="unfinished">Un archivo iMelody contiene una sola voz y ninguna dinámica. ¿Guardarlo de todos modos?</translation>
    </message>
    <message>
        <source>Velmora cannot open iMelody files. A MIDI file keeps everything that you see.</source>
        <translation type="unfinished">Velmora no puede abrir archivos iMelody. Un archivo MIDI conserva todo lo que ve.</translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation type="unfinished">No se guardó %1.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Guardar como…</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceScrollView</name>
    <message>
        <source>Keys shown</source>
        <translation type="unfinished">Teclas visibles</translation>
    </message>
    <message>
        <source>Time shown</source>
        <translation type="unfinished">Tiempo visible</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceStatus</name>
    <message>
        <source>Practice: play the notes at the position to move on to the next ones</source>
        <translation type="unfinished">Práctica: toque las notas de la posición para pasar a las siguientes</translation>
    </message>
    <message>
        <source>Steps %1 to %2</source>
        <translation type="unfinished">Pasos %1 a %2</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished">Reproduciendo</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished">Grabando</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation type="unfinished">Esperando %1</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) selected</source>
        <translation type="unfinished">
            <numerusform>%n nota seleccionada</numerusform>
            <numerusform>%n notas seleccionadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) in all</source>
        <translation type="unfinished">
            <numerusform>%n nota en total</numerusform>
            <numerusform>%n notas en total</numerusform>
        </translation>
    </message>
    <message>
        <source>Done: all notes played</source>
        <translation type="unfinished">Listo: ha tocado todas las notas</translation>
    </message>
    <message>
        <source>Release %1</source>
        <translation type="unfinished">Suelte %1</translation>
    </message>
    <message>
        <source>Waiting for %1; not %2</source>
        <translation type="unfinished">Esperando %1; no %2</translation>
    </message>
    <message>
        <source>Counting in</source>
        <translation type="unfinished">Contando los compases de entrada</translation>
    </message>
    <message>
        <source>Bar %1, beat %2 to bar %3, beat %4</source>
        <translation type="unfinished">Del compás %1, pulso %2 al compás %3, pulso %4</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation type="unfinished">A continuación: %1</translation>
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
        <translation type="unfinished">Intensidad %1 %</translation>
    </message>
    <message>
        <source>%1, bar %2, beat %3, length in beats %4, channel %5</source>
        <translation type="unfinished">%1, compás %2, tiempo %3, duración en tiempos %4, canal %5</translation>
    </message>
</context>
<context>
    <name>velmora::ShapeTab</name>
    <message>
        <source>Hear the Original</source>
        <translation type="unfinished">Oír el original</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Guardar como…</translation>
    </message>
    <message>
        <source>Ways to shape the tuning</source>
        <translation type="unfinished">Maneras de modelar la afinación</translation>
    </message>
    <message>
        <source>By Notes</source>
        <translation type="unfinished">Por notas</translation>
    </message>
    <message>
        <source>By Fifths</source>
        <translation type="unfinished">Por quintas</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">Rehacer</translation>
    </message>
    <message>
        <source>Compare the tuning with what it was before you changed it</source>
        <translation type="unfinished">Comparar la afinación con lo que era antes de cambiarla</translation>
    </message>
    <message>
        <source>Save the tuning as a scale file, which is then listed</source>
        <translation type="unfinished">Guardar la afinación como archivo de escala, que aparece entonces en la lista</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished">Descripción:</translation>
    </message>
    <message>
        <source>Slider of %1</source>
        <translation type="unfinished">Deslizador de %1</translation>
    </message>
    <message>
        <source> cents</source>
        <translation type="unfinished"> cents</translation>
    </message>
    <message>
        <source>This tuning finds its pitches while you play, so it has no fixed notes to shape. Choose another one.</source>
        <translation type="unfinished">Esta afinación encuentra sus alturas mientras usted toca, así que no tiene notas fijas que modelar. Elija otra.</translation>
    </message>
    <message>
        <source>You are shaping a copy of %1. Save it to keep it.</source>
        <translation type="unfinished">Está modelando una copia de %1. Guárdela para conservarla.</translation>
    </message>
    <message>
        <source>Move a note, and you hear it at once in a copy of this tuning. The first note stays.</source>
        <translation type="unfinished">Mueva una nota y la oirá enseguida en una copia de esta afinación. La primera nota no cambia.</translation>
    </message>
</context>
<context>
    <name>velmora::ShellActions</name>
    <message>
        <source>File</source>
        <translation type="unfinished">Archivo</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished">Sonido</translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished">Ver</translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished">Ayuda</translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation type="unfinished">&amp;Nueva pieza</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open pieces, instruments and tunings</source>
        <translation type="unfinished">Abrir piezas, instrumentos y afinaciones</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the piece</source>
        <translation type="unfinished">Guardar la pieza</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished">Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Export Audio…</source>
        <translation type="unfinished">&amp;Exportar audio…</translation>
    </message>
    <message>
        <source>Write a sound file of the piece</source>
        <translation type="unfinished">Escribir un archivo de sonido de la pieza</translation>
    </message>
    <message>
        <source>&amp;Close Piece</source>
        <translation type="unfinished">Cerrar pie&amp;za</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished">&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Silence Everything</source>
        <translation type="unfinished">&amp;Silenciar todo</translation>
    </message>
    <message>
        <source>Stop every sound and release every key</source>
        <translation type="unfinished">Detener todos los sonidos y soltar todas las teclas</translation>
    </message>
    <message>
        <source>Transpose &amp;Up</source>
        <translation type="unfinished">Transponer hacia a&amp;rriba</translation>
    </message>
    <message>
        <source>Transpose &amp;Down</source>
        <translation type="unfinished">Transponer hacia a&amp;bajo</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation type="unfinished">&amp;Teclado</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation type="unfinished">&amp;Instrumento</translation>
    </message>
    <message>
        <source>Show the program or the stops</source>
        <translation type="unfinished">Mostrar el programa o los registros</translation>
    </message>
    <message>
        <source>&amp;Tuning</source>
        <translation type="unfinished">Afi&amp;nación</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">T&amp;ocar</translation>
    </message>
    <message>
        <source>Arrange the window for playing</source>
        <translation type="unfinished">Disponer la ventana para tocar</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">&amp;Editar</translation>
    </message>
    <message>
        <source>Arrange the window for editing</source>
        <translation type="unfinished">Disponer la ventana para editar</translation>
    </message>
    <message>
        <source>&amp;Stage</source>
        <translation type="unfinished">Es&amp;cenario</translation>
    </message>
    <message>
        <source>Fill the screen with what matters on stage</source>
        <translation type="unfinished">Llenar la pantalla con lo que importa en el escenario</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished">Restablecer la &amp;disposición</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <translation type="unfinished">Panel &amp;siguiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious Panel</source>
        <translation type="unfinished">&amp;Panel anterior</translation>
    </message>
    <message>
        <source>Piece in Its &amp;Own Window</source>
        <translation type="unfinished">Pieza en su propia &amp;ventana</translation>
    </message>
    <message>
        <source>&amp;Loaded Instruments…</source>
        <translation type="unfinished">Instrumentos car&amp;gados…</translation>
    </message>
    <message>
        <source>&amp;Meters</source>
        <translation type="unfinished">&amp;Medidores</translation>
    </message>
    <message>
        <source>Show the delay, the load and the devices of live playing</source>
        <translation type="unfinished">Mostrar el retardo, la carga y los dispositivos al tocar en vivo</translation>
    </message>
    <message>
        <source>Note &amp;Names on the Keyboard</source>
        <translation type="unfinished">Nom&amp;bres de las notas en el teclado</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation type="unfinished">&amp;Guía de usuario</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation type="unfinished">&amp;Acerca de Velmora</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished">Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished">&amp;Borrar lista</translation>
    </message>
    <message>
        <source>Open Sess&amp;ion…</source>
        <translation type="unfinished">A&amp;brir sesión…</translation>
    </message>
    <message>
        <source>Open the instruments, the tuning and the pieces of a session</source>
        <translation type="unfinished">Abrir los instrumentos, la afinación y las piezas de una sesión</translation>
    </message>
    <message>
        <source>Sa&amp;ve Session…</source>
        <translation type="unfinished">G&amp;uardar sesión…</translation>
    </message>
    <message>
        <source>Save which instruments, tuning and pieces are open</source>
        <translation type="unfinished">Guardar qué instrumentos, afinación y piezas están abiertos</translation>
    </message>
    <message>
        <source>&amp;Find a Command…</source>
        <translation type="unfinished">&amp;Buscar una orden…</translation>
    </message>
    <message>
        <source>Find a command by its name and perform it</source>
        <translation type="unfinished">Buscar una orden por su nombre y ejecutarla</translation>
    </message>
    <message>
        <source>&amp;Console</source>
        <translation type="unfinished">Consola &amp;y registros</translation>
    </message>
    <message>
        <source>Show the stops of the organ</source>
        <translation type="unfinished">Mostrar los registros del órgano</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Omitir los registros que aún no se han cargado</translation>
    </message>
    <message>
        <source>Stop Loadin&amp;g</source>
        <translation type="unfinished">Detener la car&amp;ga</translation>
    </message>
    <message>
        <source>Export &amp;MIDI in This Tuning…</source>
        <translation type="unfinished">Exportar &amp;MIDI en esta afinación…</translation>
    </message>
    <message>
        <source>Write a MIDI file of the piece that other devices play in this tuning</source>
        <translation type="unfinished">Escribir un archivo MIDI de la pieza que otros aparatos tocan en esta afinación</translation>
    </message>
    <message>
        <source>Export &amp;Tuning…</source>
        <translation type="unfinished">Exportar la a&amp;finación…</translation>
    </message>
    <message>
        <source>Write what each key sounds like now as a scale and a keyboard mapping</source>
        <translation type="unfinished">Escribir cómo suena ahora cada tecla, como escala y asignación del teclado</translation>
    </message>
    <message>
        <source>&amp;Send the Tuning…</source>
        <translation type="unfinished">&amp;Enviar la afinación…</translation>
    </message>
    <message>
        <source>Send the tuning to a MIDI device that is to play in it</source>
        <translation type="unfinished">Enviar la afinación a un aparato MIDI para que toque en ella</translation>
    </message>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Modelar la afinación</translation>
    </message>
    <message>
        <source>Show the circle of fifths, and shape the tuning</source>
        <translation type="unfinished">Mostrar el círculo de quintas y modelar la afinación</translation>
    </message>
    <message>
        <source>E&amp;xport Score…</source>
        <translation type="unfinished">Exportar &amp;la partitura…</translation>
    </message>
    <message>
        <source>Write the piece down for a notation program, spelled as the tuning spells it</source>
        <translation type="unfinished">Escribir la pieza para un programa de notación, con los nombres que la afinación da a las notas</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Práctica</translation>
    </message>
    <message>
        <source>Practise the piece, a hand or a voice of it</source>
        <translation type="unfinished">Practicar la pieza, una mano o una voz</translation>
    </message>
    <message>
        <source>Show who plays the piece</source>
        <translation type="unfinished">Muestra quién toca la pieza</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voces</translation>
    </message>
    <message>
        <source>Export Voices…</source>
        <translation type="unfinished">Exportar voces…</translation>
    </message>
    <message>
        <source>Write a sound file of each voice of the piece</source>
        <translation type="unfinished">Escribir un archivo de sonido de cada voz de la pieza</translation>
    </message>
    <message>
        <source>Export Roll…</source>
        <translation type="unfinished">Exportar el rollo…</translation>
    </message>
    <message>
        <source>Write the piano roll of the piece for paper, as PDF or PNG</source>
        <translation type="unfinished">Escribir el rollo de pianola de la pieza para papel, como PDF o PNG</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">&amp;Abrir instrumento…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Abrir un SoundFont, un banco GigaSampler o un órgano</translation>
    </message>
    <message>
        <source>&amp;Open Tuning…</source>
        <translation type="unfinished">&amp;Abrir afinación…</translation>
    </message>
    <message>
        <source>Open scales and other tunings</source>
        <translation type="unfinished">Abrir escalas y otras afinaciones</translation>
    </message>
</context>
<context>
    <name>velmora::ShortcutsPane</name>
    <message>
        <source>Find a command</source>
        <translation type="unfinished">Buscar una orden</translation>
    </message>
    <message>
        <source>Use It &amp;Here</source>
        <translation type="unfinished">Usar a&amp;quí</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished">Quita&amp;r</translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished">Orden</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished">Atajo</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Órdenes</translation>
    </message>
    <message>
        <source>Press the new keys for the selected command</source>
        <translation type="unfinished">Pulse las teclas nuevas para la orden seleccionada</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <translation type="unfinished">Atajo nuevo</translation>
    </message>
    <message>
        <source>&amp;New shortcut:</source>
        <translation type="unfinished">Atajo nue&amp;vo:</translation>
    </message>
    <message>
        <source>Take the shortcut from the other command</source>
        <translation type="unfinished">Quitar el atajo a la otra orden</translation>
    </message>
    <message>
        <source>Leave the selected command without a shortcut</source>
        <translation type="unfinished">Dejar sin atajo la orden seleccionada</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation type="unfinished">Restaurar los pre&amp;determinados</translation>
    </message>
    <message>
        <source>Give every command the shortcuts that it had at first</source>
        <translation type="unfinished">Devolver a cada orden los atajos que tenía al principio</translation>
    </message>
    <message>
        <source>%1 plays a note. Add Ctrl or Alt, or use a function key.</source>
        <translation type="unfinished">%1 toca una nota. Añada Ctrl o Alt, o use una tecla de función.</translation>
    </message>
    <message>
        <source>%1 belongs to “%2”. Press other keys, or use it here instead.</source>
        <translation type="unfinished">%1 pertenece a «%2». Pulse otras teclas o úselo aquí en su lugar.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundPane</name>
    <message>
        <source>Ou&amp;tput:</source>
        <translation type="unfinished">&amp;Salida:</translation>
    </message>
    <message>
        <source>The sound server or driver that Velmora plays through</source>
        <translation type="unfinished">El servidor de sonido o el controlador con el que suena Velmora</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation type="unfinished">&amp;Dispositivo:</translation>
    </message>
    <message>
        <source>The device that is heard</source>
        <translation type="unfinished">El dispositivo que se oye</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation type="unfinished">&amp;Frecuencia de muestreo:</translation>
    </message>
    <message>
        <source>A JACK server determines the sample rate itself</source>
        <translation type="unfinished">Un servidor JACK determina por sí mismo la frecuencia de muestreo</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation type="unfinished">P&amp;eriodo:</translation>
    </message>
    <message>
        <source>The shorter the period, the sooner a key sounds, and the more the machine has to do. With JACK, it applies to all programs</source>
        <translation type="unfinished">Cuanto más corto es el periodo, antes suena una tecla y más trabaja el equipo. Con JACK, se aplica a todos los programas</translation>
    </message>
    <message>
        <source>Playing:</source>
        <translation type="unfinished">En uso:</translation>
    </message>
    <message>
        <source>Master &amp;volume:</source>
        <translation type="unfinished">&amp;Volumen general:</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation type="unfinished">Nivel:</translation>
    </message>
    <message>
        <source>Master volume</source>
        <translation type="unfinished">Volumen general</translation>
    </message>
    <message>
        <source>Play Test To&amp;ne</source>
        <translation type="unfinished">Tocar un tono de pr&amp;ueba</translation>
    </message>
    <message>
        <source>Plays a short, quiet tone</source>
        <translation type="unfinished">Toca un tono breve y suave</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished">Automático</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation type="unfinished">%1 (no disponible)</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished">%1 tramas</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Predeterminado</translation>
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
        <translation type="unfinished">%1, %L2 kHz, %L3 tramas (%L4 ms)</translation>
    </message>
    <message>
        <source>
To the sound card: %L1 ms. Lost periods: %L2.</source>
        <translation type="unfinished">
Hasta la tarjeta de sonido: %L1 ms. Periodos perdidos: %L2.</translation>
    </message>
</context>
<context>
    <name>velmora::StageView</name>
    <message>
        <source>%1 leaves the stage</source>
        <translation type="unfinished">%1 sale del escenario</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>First steps</source>
        <translation type="unfinished">Primeros pasos</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Guía de usuario</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation type="unfinished">Abrir la guía de usuario</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation type="unfinished">¿Qué le gustaría hacer?</translation>
    </message>
    <message>
        <source>Welcome to Velmora! Each card does something at once, and nothing can break.</source>
        <translation type="unfinished">¡Le damos la bienvenida a Velmora! Cada tarjeta hace algo al instante y nada puede estropearse.</translation>
    </message>
    <message>
        <source>Hear it</source>
        <translation type="unfinished">Escuchar</translation>
    </message>
    <message>
        <source>C major, whose third beats in equal temperament and is pure in meantone. The tuning that you hear stays selected.</source>
        <translation type="unfinished">Do mayor, cuya tercera bate en el temperamento igual y es pura en el mesotónico. La afinación que oye queda seleccionada.</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Igual</translation>
    </message>
    <message>
        <source>Hear the chord in equal temperament</source>
        <translation type="unfinished">Escuchar el acorde en temperamento igual</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mesotónico</translation>
    </message>
    <message>
        <source>Hear the chord in quarter-comma meantone</source>
        <translation type="unfinished">Escuchar el acorde en temperamento mesotónico de un cuarto de coma</translation>
    </message>
    <message>
        <source>Choose a Tuning</source>
        <translation type="unfinished">Elegir una afinación</translation>
    </message>
    <message>
        <source>Choose a tuning</source>
        <translation type="unfinished">Elegir una afinación</translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation type="unfinished">Afinar</translation>
    </message>
    <message>
        <source>Choose a historical tuning, or one that adapts to what you play.</source>
        <translation type="unfinished">Elija una afinación histórica o una que se adapte a lo que toca.</translation>
    </message>
    <message>
        <source>Open an Instrument…</source>
        <translation type="unfinished">Abrir un instrumento…</translation>
    </message>
    <message>
        <source>Open an instrument</source>
        <translation type="unfinished">Abrir un instrumento</translation>
    </message>
    <message>
        <source>Play it</source>
        <translation type="unfinished">Tocar</translation>
    </message>
    <message>
        <source>Use a MIDI keyboard, the keys below, or the letters of the computer keyboard, from A on.</source>
        <translation type="unfinished">Use un teclado MIDI, las teclas de abajo o las letras del teclado del ordenador, a partir de la A.</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Grabar</translation>
    </message>
    <message>
        <source>Record a new sequence</source>
        <translation type="unfinished">Grabar una pieza nueva</translation>
    </message>
    <message>
        <source>Record it</source>
        <translation type="unfinished">Grabar</translation>
    </message>
    <message>
        <source>Play, correct the notes in the piano roll, and export the sound.</source>
        <translation type="unfinished">Toque, corrija las notas en el piano roll y exporte el sonido.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished">Abrir %1</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished">Ejemplos</translation>
    </message>
    <message>
        <source>%1 (tuning)</source>
        <translation type="unfinished">%1 (afinación)</translation>
    </message>
    <message>
        <source>%1 (piece)</source>
        <translation type="unfinished">%1 (pieza)</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished">Archivos recientes</translation>
    </message>
</context>
<context>
    <name>velmora::StatusLine</name>
    <message>
        <source>The sound output: its driver, sample rate and period</source>
        <translation type="unfinished">La salida de sonido: su controlador, frecuencia de muestreo y periodo</translation>
    </message>
    <message>
        <source>No MIDI input</source>
        <translation type="unfinished">Sin entrada MIDI</translation>
    </message>
    <message>
        <source>A MIDI device is used as soon as it is connected</source>
        <translation type="unfinished">Los dispositivos MIDI se usan en cuanto se conectan</translation>
    </message>
    <message>
        <source>There is no MIDI device. Connect one, or play with the mouse.</source>
        <translation type="unfinished">No hay ningún dispositivo MIDI. Conecte uno o toque con el ratón.</translation>
    </message>
    <message>
        <source>No sound output</source>
        <translation type="unfinished">Sin salida de sonido</translation>
    </message>
    <message>
        <source>Notices: %1</source>
        <translation type="unfinished">Avisos: %1</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation type="unfinished">Avisos</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 ms</source>
        <translation type="unfinished">%1, %L2 kHz, %L3 ms</translation>
    </message>
    <message>
        <source>Instrument: %1
Click to show its programs or stops</source>
        <translation type="unfinished">Instrumento: %1
Haga clic para ver sus programas o registros</translation>
    </message>
    <message>
        <source>Tuning: %1 (%2)
Click to show all tunings</source>
        <translation type="unfinished">Afinación: %1 (%2)
Haga clic para ver todas las afinaciones</translation>
    </message>
    <message>
        <source>Plain reading</source>
        <translation type="unfinished">Lectura simple</translation>
    </message>
    <message>
        <source>MIDI devices are read plainly: no pedals, no touch, no transposition</source>
        <translation type="unfinished">Los dispositivos MIDI se leen de forma simple: sin pedales, pulsación ni transposición</translation>
    </message>
    <message>
        <source>Transposed %1</source>
        <translation type="unfinished">Transposición: %1</translation>
    </message>
    <message>
        <source>MIDI keyboards sound %1 semitones away from their keys</source>
        <translation type="unfinished">Los teclados MIDI suenan a %1 semitonos de sus teclas</translation>
    </message>
    <message numerus="yes">
        <source>%n MIDI input(s)</source>
        <translation type="unfinished">
            <numerusform>%n entrada MIDI</numerusform>
            <numerusform>%n entradas MIDI</numerusform>
        </translation>
    </message>
    <message>
        <source>MIDI devices:
%1</source>
        <translation type="unfinished">Dispositivos MIDI:
%1</translation>
    </message>
    <message>
        <source>The display may go to sleep while you play because there is no D-Bus session bus. Start Velmora from the desktop, or with dbus-run-session.</source>
        <translation type="unfinished">La pantalla puede apagarse mientras toca porque no hay bus de sesión D-Bus. Inicie Velmora desde el escritorio o con dbus-run-session.</translation>
    </message>
    <message>
        <source>What you change in the preferences, and what is open, is forgotten when you quit because nothing can be written to %1. Make that folder writable.</source>
        <translation type="unfinished">Lo que cambie en las preferencias y lo que esté abierto se olvida al salir porque no se puede escribir en %1. Permita la escritura en esa carpeta.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrumento</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Afinación</translation>
    </message>
    <message>
        <source>Reading of MIDI devices</source>
        <translation type="unfinished">Lectura de los dispositivos MIDI</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation type="unfinished">Salida de sonido</translation>
    </message>
    <message>
        <source>MIDI inputs</source>
        <translation type="unfinished">Entradas MIDI</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation type="unfinished">Carga</translation>
    </message>
    <message>
        <source>%1 % loaded</source>
        <translation type="unfinished">%1 % cargado</translation>
    </message>
    <message>
        <source>The stops of %1 that are loaded can be played; the others follow</source>
        <translation type="unfinished">Los registros ya cargados de %1 se pueden tocar; los demás seguirán</translation>
    </message>
    <message>
        <source>Stop Loading</source>
        <translation type="unfinished">Detener la carga</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Omitir los registros que aún no se han cargado</translation>
    </message>
</context>
<context>
    <name>velmora::StemsDialog</name>
    <message>
        <source>Export Voices</source>
        <translation type="unfinished">Exportar voces</translation>
    </message>
    <message>
        <source>Every voice that sounds is written to a sound file of its own. Muted voices are left out. Played together, the files sound like the piece.</source>
        <translation type="unfinished">Cada voz que suena se escribe en su propio archivo de sonido. Las voces silenciadas se omiten. Reproducidos juntos, los archivos suenan como la pieza.</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">E&amp;xaminar…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished">&amp;Exportar</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation type="unfinished">&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished">&amp;Formato:</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation type="unfinished">Archivos:</translation>
    </message>
    <message>
        <source>No voice of the piece sounds.</source>
        <translation type="unfinished">Ninguna voz de la pieza suena.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) already exist. Do you want to replace them?</source>
        <translation type="unfinished">
            <numerusform>%n archivo ya existe. ¿Desea reemplazarlo?</numerusform>
            <numerusform>%n archivos ya existen. ¿Desea reemplazarlos?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be created.</source>
        <translation type="unfinished">La carpeta %1 no existe y no se puede crear.</translation>
    </message>
</context>
<context>
    <name>velmora::StopRow</name>
    <message>
        <source>%1: turn on or off (Space)</source>
        <translation type="unfinished">%1: activar o desactivar (Espacio)</translation>
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
        <translation type="unfinished">Pieza</translation>
    </message>
    <message>
        <source>Ta&amp;p Tempo</source>
        <translation type="unfinished">Marcar el tem&amp;po</translation>
    </message>
    <message>
        <source>Tap repeatedly to set the tempo of the piece at the position</source>
        <translation type="unfinished">Pulse varias veces para fijar el tempo de la pieza en la posición</translation>
    </message>
    <message>
        <source>Tempo &amp;and Signatures</source>
        <translation type="unfinished">Tempo &amp;y compases</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation type="unfinished">Marcar</translation>
    </message>
    <message>
        <source>Tap Tempo</source>
        <translation type="unfinished">Marcar el tempo</translation>
    </message>
</context>
<context>
    <name>velmora::TimeEntryDialog</name>
    <message>
        <source>Add &amp;Tempo…</source>
        <translation type="unfinished">Añadir &amp;tempo…</translation>
    </message>
    <message>
        <source>Add Time &amp;Signature…</source>
        <translation type="unfinished">Añadir &amp;compás…</translation>
    </message>
    <message>
        <source>Add &amp;Key Signature…</source>
        <translation type="unfinished">Añadir &amp;armadura…</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation type="unfinished">Añadir &amp;marca…</translation>
    </message>
    <message>
        <source>Add Tempo</source>
        <translation type="unfinished">Añadir tempo</translation>
    </message>
    <message>
        <source>Add Time Signature</source>
        <translation type="unfinished">Añadir compás</translation>
    </message>
    <message>
        <source>Add Key Signature</source>
        <translation type="unfinished">Añadir armadura</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation type="unfinished">Añadir marca</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Cambiar tempo</translation>
    </message>
    <message>
        <source>Change Time Signature</source>
        <translation type="unfinished">Cambiar compás</translation>
    </message>
    <message>
        <source>Change Key Signature</source>
        <translation type="unfinished">Cambiar armadura</translation>
    </message>
    <message>
        <source>Change Marker</source>
        <translation type="unfinished">Cambiar marca</translation>
    </message>
    <message>
        <source>Delete Tempo</source>
        <translation type="unfinished">Eliminar tempo</translation>
    </message>
    <message>
        <source>Delete Time Signature</source>
        <translation type="unfinished">Eliminar compás</translation>
    </message>
    <message>
        <source>Delete Key Signature</source>
        <translation type="unfinished">Eliminar armadura</translation>
    </message>
    <message>
        <source>Delete Marker</source>
        <translation type="unfinished">Eliminar marca</translation>
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
        <translation type="unfinished">%1 menor</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 mayor</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">Tempo</translation>
    </message>
    <message>
        <source>Time Signature</source>
        <translation type="unfinished">Compás</translation>
    </message>
    <message>
        <source>Key Signature</source>
        <translation type="unfinished">Armadura</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation type="unfinished">Marca</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> ppm</translation>
    </message>
    <message>
        <source>&amp;Tempo:</source>
        <translation type="unfinished">&amp;Tempo:</translation>
    </message>
    <message>
        <source>&amp;Notes in a bar:</source>
        <translation type="unfinished">&amp;Notas por compás:</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>&amp;Value of a note:</source>
        <translation type="unfinished">&amp;Valor de una nota:</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation type="unfinished">&amp;Tonalidad:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished">&amp;Texto:</translation>
    </message>
    <message>
        <source>&amp;Bar:</source>
        <translation type="unfinished">&amp;Compás:</translation>
    </message>
    <message>
        <source>B&amp;eat:</source>
        <translation type="unfinished">&amp;Pulso:</translation>
    </message>
</context>
<context>
    <name>velmora::TimeLane</name>
    <message>
        <source>Tempo and signatures</source>
        <translation type="unfinished">Tempo y compases</translation>
    </message>
    <message>
        <source>Tempos, time signatures, key signatures and markers. Double-click to add or change one, drag it to move it, and press Delete to remove it.</source>
        <translation type="unfinished">Tempos, compases, armaduras y marcas. Haga doble clic para añadir o cambiar uno, arrástrelo para moverlo y pulse Supr para eliminarlo.</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation type="unfinished">Ca&amp;mbiar…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Eliminar</translation>
    </message>
</context>
<context>
    <name>velmora::TimeRuler</name>
    <message>
        <source>Bars</source>
        <translation type="unfinished">Compases</translation>
    </message>
    <message>
        <source>Drag the arrow to move the play position. Drag over the ruler to select the time that is looped.</source>
        <translation type="unfinished">Arrastre la flecha para mover la posición de reproducción. Arrastre sobre la regla para seleccionar el tiempo que se repite en bucle.</translation>
    </message>
</context>
<context>
    <name>velmora::TransportBar</name>
    <message>
        <source>Transport</source>
        <translation type="unfinished">Transporte</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Detener</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Grabar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished">Reproducir</translation>
    </message>
    <message>
        <source>Te&amp;mpo</source>
        <translation type="unfinished">Te&amp;mpo</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">Tempo</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">&amp;Canal</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canal</translation>
    </message>
    <message>
        <source>The channel of notes that you record or draw. A digit key chooses a channel and selects its notes; with Ctrl it moves the selected notes to that channel.</source>
        <translation type="unfinished">El canal de las notas que graba o dibuja. Una tecla numérica elige un canal y selecciona sus notas; con Ctrl traslada las notas seleccionadas a ese canal.</translation>
    </message>
    <message>
        <source>%1  ·  step %2</source>
        <translation type="unfinished">%1  ·  paso %2</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> ppm</translation>
    </message>
    <message>
        <source>Takes</source>
        <translation type="unfinished">Tomas</translation>
    </message>
    <message>
        <source>Choose one of the takes that were recorded in the loop</source>
        <translation type="unfinished">Elija una de las tomas grabadas en el bucle</translation>
    </message>
    <message>
        <source>Count-in: %1</source>
        <translation type="unfinished">Entrada: %1</translation>
    </message>
    <message>
        <source>The position in minutes and seconds at this speed, and in bars and beats</source>
        <translation type="unfinished">La posición en minutos y segundos a esta velocidad, y en compases y pulsos</translation>
    </message>
    <message>
        <source>The tempo of the piece at the position in beats per minute (Alt+M)</source>
        <translation type="unfinished">El tempo de la pieza en la posición, en pulsos por minuto (Alt+M)</translation>
    </message>
    <message>
        <source> %</source>
        <comment>percent</comment>
        <translation type="unfinished"> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished">Velocidad</translation>
    </message>
    <message>
        <source>How fast the piece is played, as a part of its tempo. It is not saved with the piece.</source>
        <translation type="unfinished">A qué velocidad se toca la pieza, en relación con su tempo. No se guarda con la pieza.</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Cambiar tempo</translation>
    </message>
    <message>
        <source>%1  ·  bar %2, beat %3</source>
        <translation type="unfinished">%1  ·  compás %2, pulso %3</translation>
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
        <translation type="unfinished">La según la afinación</translation>
    </message>
    <message>
        <source>%1, A %2 Hz</source>
        <translation type="unfinished">%1, la %2 Hz</translation>
    </message>
    <message>
        <source>%1 on %2, A %3 Hz</source>
        <translation type="unfinished">%1 en %2, la %3 Hz</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished">%1 en %2</translation>
    </message>
    <message>
        <source>The key on which the tuning stands: on D, D sounds as C does on C</source>
        <translation type="unfinished">La tecla sobre la que se apoya la afinación: en re, el re suena como el do en do</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished"> Hz</translation>
    </message>
    <message>
        <source>As the tuning has it</source>
        <translation type="unfinished">Según la afinación</translation>
    </message>
    <message>
        <source>The pitch of A above middle C, from 380 to 480 Hz</source>
        <translation type="unfinished">La altura del la sobre el do central, de 380 a 480 Hz</translation>
    </message>
    <message>
        <source>Usual Pitches</source>
        <translation type="unfinished">Alturas habituales</translation>
    </message>
    <message>
        <source>Choose one of the usual pitches of A</source>
        <translation type="unfinished">Elija una de las alturas habituales del la</translation>
    </message>
    <message>
        <source>Root:</source>
        <translation type="unfinished">Fundamental:</translation>
    </message>
    <message>
        <source>Pitch of A:</source>
        <translation type="unfinished">Altura del la:</translation>
    </message>
    <message>
        <source>Pitch of A</source>
        <translation type="unfinished">Altura del la</translation>
    </message>
</context>
<context>
    <name>velmora::TranspositionCommands</name>
    <message>
        <source>&amp;Root</source>
        <translation type="unfinished">&amp;Fundamental</translation>
    </message>
    <message>
        <source>Pitch of &amp;A</source>
        <translation type="unfinished">Altura del l&amp;a</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Afinación</translation>
    </message>
    <message>
        <source>Root a &amp;Fifth Up</source>
        <translation type="unfinished">Fundamental una &amp;quinta más alta</translation>
    </message>
    <message>
        <source>Root a F&amp;ifth Down</source>
        <translation type="unfinished">Fundamental una quinta más &amp;baja</translation>
    </message>
    <message>
        <source>Root a &amp;Semitone Up</source>
        <translation type="unfinished">Fundamental un &amp;semitono más alta</translation>
    </message>
    <message>
        <source>Root a S&amp;emitone Down</source>
        <translation type="unfinished">Fundamental un se&amp;mitono más baja</translation>
    </message>
</context>
<context>
    <name>velmora::TuningExports</name>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">Se exportó %1</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">No se exportó %1. %2</translation>
    </message>
    <message>
        <source>Export MIDI in This Tuning</source>
        <translation type="unfinished">Exportar MIDI en esta afinación</translation>
    </message>
    <message>
        <source>MIDI File</source>
        <translation type="unfinished">Archivo MIDI</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>a piece in a tuning</comment>
        <translation type="unfinished">%1 en %2</translation>
    </message>
    <message numerus="yes">
        <source>A MIDI file has only 15 channels for notes of different pitch, so %n note(s) are up to %1 cents out of tune.</source>
        <translation type="unfinished">
            <numerusform>Un archivo MIDI solo tiene 15 canales para notas de distinta altura, así que %n nota está desafinada hasta %1 cents.</numerusform>
            <numerusform>Un archivo MIDI solo tiene 15 canales para notas de distinta altura, así que %n notas están desafinadas hasta %1 cents.</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Tuning</source>
        <translation type="unfinished">Exportar la afinación</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Escala</translation>
    </message>
    <message>
        <source>Export Score</source>
        <translation type="unfinished">Exportar la partitura</translation>
    </message>
    <message>
        <source>Export Roll</source>
        <translation type="unfinished">Exportar el rollo</translation>
    </message>
    <message>
        <source>&amp;Bars in a line:</source>
        <translation type="unfinished">&amp;Compases por línea:</translation>
    </message>
</context>
<context>
    <name>velmora::TuningPanel</name>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Afinación</translation>
    </message>
    <message>
        <source>Open T&amp;uning…</source>
        <translation type="unfinished">Abrir a&amp;finación…</translation>
    </message>
    <message>
        <source>Open a tuning file: a scale (.scl) or frequencies (.mtx)</source>
        <translation type="unfinished">Abrir un archivo de afinación: una escala (.scl) o frecuencias (.mtx)</translation>
    </message>
    <message>
        <source>The pitches of middle C and of the A above it in this tuning</source>
        <translation type="unfinished">La altura del do central y del la superior en esta afinación</translation>
    </message>
    <message>
        <source>%1 (middle C): %2 Hz
%3: %4 Hz</source>
        <translation type="unfinished">%1 (do central): %2 Hz
%3: %4 Hz</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Igual</translation>
    </message>
    <message>
        <source>Twelve equal semitones</source>
        <translation type="unfinished">Doce semitonos iguales</translation>
    </message>
    <message>
        <source>Quartercomma Meantone</source>
        <translation type="unfinished">Mesotónico de un cuarto de coma</translation>
    </message>
    <message>
        <source>Pure major thirds</source>
        <translation type="unfinished">Terceras mayores puras</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation type="unfinished">Dinámico</translation>
    </message>
    <message>
        <source>Adapts its thirds to what you play</source>
        <translation type="unfinished">Adapta sus terceras a lo que usted toca</translation>
    </message>
    <message>
        <source>Find a tuning</source>
        <translation type="unfinished">Buscar una afinación</translation>
    </message>
    <message>
        <source>Tunings</source>
        <translation type="unfinished">Afinaciones</translation>
    </message>
    <message>
        <source>Pythagorean</source>
        <translation type="unfinished">Pitagórica</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mesotónico</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">Francesas</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">Inglesas</translation>
    </message>
    <message>
        <source>Well temperaments</source>
        <translation type="unfinished">Buenos temperamentos</translation>
    </message>
    <message>
        <source>Just intonation</source>
        <translation type="unfinished">Entonación justa</translation>
    </message>
    <message>
        <source>Equal divisions</source>
        <translation type="unfinished">Divisiones iguales</translation>
    </message>
    <message>
        <source>Outside Europe</source>
        <translation type="unfinished">Fuera de Europa</translation>
    </message>
    <message>
        <source>Following Meantone</source>
        <translation type="unfinished">Mesotónico que sigue</translation>
    </message>
    <message>
        <source>Spells each key as the music asks for, with pure thirds</source>
        <translation type="unfinished">Escribe cada tecla según pide la música, con terceras puras</translation>
    </message>
    <message>
        <source>Pure</source>
        <translation type="unfinished">Pura</translation>
    </message>
    <message>
        <source>Makes the chords that you play pure</source>
        <translation type="unfinished">Hace puros los acordes que se tocan</translation>
    </message>
    <message>
        <source>Shape…</source>
        <translation type="unfinished">Modelar…</translation>
    </message>
    <message>
        <source>Show the circle of fifths and what sounds, and shape the tuning</source>
        <translation type="unfinished">Mostrar el círculo de quintas y lo que suena, y modelar la afinación</translation>
    </message>
</context>
<context>
    <name>velmora::TuningShaper</name>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Modelar la afinación</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <translation type="unfinished">%1 (modificada)</translation>
    </message>
    <message>
        <source>%1 (edited, %2)</source>
        <translation type="unfinished">%1 (modificada, %2)</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStrip</name>
    <message>
        <source>Tuning strip</source>
        <translation type="unfinished">Tira de afinación</translation>
    </message>
    <message>
        <source>How many cents each note of the tuning lies above or below equal temperament</source>
        <translation type="unfinished">Cuántos cents está cada nota de la afinación por encima o por debajo del temperamento igual</translation>
    </message>
    <message>
        <source>%1: %2 cents</source>
        <translation type="unfinished">%1: %2 cents</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStudio</name>
    <message>
        <source>Pages of the tuning studio</source>
        <translation type="unfinished">Páginas del estudio de afinación</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished">Círculo</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished">Modelar</translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished">Ahora</translation>
    </message>
</context>
<context>
    <name>velmora::UndoHistory</name>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Historial de cambios</translation>
    </message>
    <message>
        <source>Edits of the piece</source>
        <translation type="unfinished">Cambios de la pieza</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation type="unfinished">Como se abrió</translation>
    </message>
</context>
<context>
    <name>velmora::VelocityLane</name>
    <message>
        <source>Velocities</source>
        <translation type="unfinished">Velocidades</translation>
    </message>
    <message>
        <source>Drag over the bars to change velocities. With Shift, they follow a straight line. If notes are selected, only they change.</source>
        <translation type="unfinished">Arrastre sobre las barras para cambiar las velocidades. Con Mayús siguen una línea recta. Si hay notas seleccionadas, solo cambian ellas.</translation>
    </message>
</context>
<context>
    <name>velmora::VoiceRow</name>
    <message>
        <source>Record and draw on this voice; double-click to select its notes</source>
        <translation type="unfinished">Graba y dibuja en esta voz; un doble clic selecciona sus notas</translation>
    </message>
    <message>
        <source>M</source>
        <comment>mute</comment>
        <translation type="unfinished">M</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished">Silenciar</translation>
    </message>
    <message>
        <source>S</source>
        <comment>solo</comment>
        <translation type="unfinished">S</translation>
    </message>
    <message>
        <source>Solo: only such voices sound</source>
        <translation type="unfinished">Solo: solo suenan estas voces</translation>
    </message>
    <message>
        <source>L</source>
        <comment>lock</comment>
        <translation type="unfinished">B</translation>
    </message>
    <message>
        <source>Lock: protect its notes from edits</source>
        <translation type="unfinished">Bloquear: protege sus notas de los cambios</translation>
    </message>
    <message>
        <source>Drum kit %1</source>
        <translation type="unfinished">Batería %1</translation>
    </message>
    <message>
        <source>Program %1 of bank %2</source>
        <translation type="unfinished">Programa %1 del banco %2</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Voz %1</translation>
    </message>
    <message>
        <source>Record and draw on %1</source>
        <translation type="unfinished">Grabar y dibujar en %1</translation>
    </message>
    <message>
        <source>Name of voice %1</source>
        <translation type="unfinished">Nombre de la voz %1</translation>
    </message>
    <message>
        <source>Program of %1</source>
        <translation type="unfinished">Programa de %1</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Volumen de %1</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation type="unfinished">Silenciar %1</translation>
    </message>
    <message>
        <source>Solo %1</source>
        <translation type="unfinished">Solo de %1</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation type="unfinished">Bloquear %1</translation>
    </message>
    <message>
        <source>What the voice plays</source>
        <translation type="unfinished">Lo que toca la voz</translation>
    </message>
    <message>
        <source>This instrument plays every voice alike</source>
        <translation type="unfinished">Este instrumento toca todas las voces igual</translation>
    </message>
    <message>
        <source>How loud the voice is, from 0 to 127</source>
        <translation type="unfinished">La fuerza de la voz, de 0 a 127</translation>
    </message>
    <message>
        <source>Like the instrument</source>
        <translation type="unfinished">Como el instrumento</translation>
    </message>
    <message>
        <source>Select &amp;Notes</source>
        <translation type="unfinished">Seleccionar las &amp;notas</translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation type="unfinished">&amp;Silenciar</translation>
    </message>
    <message>
        <source>&amp;Solo</source>
        <translation type="unfinished">S&amp;olo</translation>
    </message>
    <message>
        <source>&amp;Lock</source>
        <translation type="unfinished">&amp;Bloquear</translation>
    </message>
</context>
<context>
    <name>velmora::VoicesPanel</name>
    <message>
        <source>Otherwise the instrument plays every voice alike</source>
        <translation type="unfinished">Si no, el instrumento toca todas las voces igual</translation>
    </message>
    <message>
        <source>Rename Voice</source>
        <translation type="unfinished">Cambiar el nombre de la voz</translation>
    </message>
    <message>
        <source>Change Program of Voice</source>
        <translation type="unfinished">Cambiar el programa de la voz</translation>
    </message>
    <message>
        <source>Change Volume of Voice</source>
        <translation type="unfinished">Cambiar el volumen de la voz</translation>
    </message>
    <message>
        <source>Every voice has its own sound</source>
        <translation type="unfinished">Cada voz tiene su propio sonido</translation>
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
        <translation type="unfinished">Piezas abiertas</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished">Teclado</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrumento</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Afinación</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Piece</source>
        <translation type="unfinished">&amp;Pieza</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">A&amp;yuda</translation>
    </message>
    <message>
        <source>Silence Everything</source>
        <translation type="unfinished">Silenciar todo</translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished">Consola</translation>
    </message>
    <message>
        <source>C&amp;onsole</source>
        <translation type="unfinished">C&amp;onsola</translation>
    </message>
    <message>
        <source>Tuning Studio</source>
        <translation type="unfinished">Estudio de afinación</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Práctica</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voces</translation>
    </message>
</context>
<context>
    <name>velmora::messages</name>
    <message>
        <source>MIDI Player</source>
        <translation type="unfinished">Reproductor MIDI</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation type="unfinished">Muestra %1</translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished">Salida</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation type="unfinished">Frecuencia de muestreo</translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished">Periodo</translation>
    </message>
    <message>
        <source>From MIDI to sound</source>
        <translation type="unfinished">De MIDI al sonido</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voces</translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished">Carga</translation>
    </message>
    <message>
        <source>Lost periods</source>
        <translation type="unfinished">Periodos perdidos</translation>
    </message>
    <message>
        <source>Instruments in memory</source>
        <translation type="unfinished">Instrumentos en memoria</translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">ninguno</translation>
    </message>
    <message>
        <source>%1 frames, %2 ms</source>
        <translation type="unfinished">%1 tramas, %2 ms</translation>
    </message>
    <message>
        <source>%1 ms (input %2 ms, period and limiter %3 ms, sound server %4 ms)</source>
        <translation type="unfinished">%1 ms (entrada %2 ms, periodo y limitador %3 ms, servidor de sonido %4 ms)</translation>
    </message>
    <message>
        <source>%1, released keys are shortened</source>
        <translation type="unfinished">%1, las teclas soltadas se acortan</translation>
    </message>
    <message>
        <source>%1 % of the period, at worst %2 %</source>
        <translation type="unfinished">%1 % del periodo, %2 % como máximo</translation>
    </message>
    <message>
        <source>%1, the last at %2</source>
        <translation type="unfinished">%1, el último a las %2</translation>
    </message>
    <message>
        <source>%1 messages a second</source>
        <translation type="unfinished">%1 mensajes por segundo</translation>
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
        <translation type="unfinished">%1 bytes</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation type="unfinished">Sin sonido</translation>
    </message>
    <message>
        <source>The sound card</source>
        <translation type="unfinished">La tarjeta de sonido</translation>
    </message>
    <message>
        <source>The output &quot;%1&quot;</source>
        <translation type="unfinished">La salida «%1»</translation>
    </message>
    <message>
        <source>No sound output was found; looking for one.</source>
        <translation type="unfinished">No se encontró ninguna salida de sonido; se sigue buscando.</translation>
    </message>
    <message>
        <source>%1 has gone; waiting for it.</source>
        <translation type="unfinished">%1 ha desaparecido; se espera su regreso.</translation>
    </message>
    <message>
        <source>%1 is missing; waiting for it.</source>
        <translation type="unfinished">%1 falta; se espera su llegada.</translation>
    </message>
    <message>
        <source>%1 has gone; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 ha desaparecido; suena %2 hasta que vuelva.</translation>
    </message>
    <message>
        <source>%1 is missing; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 falta; suena %2 hasta que vuelva.</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished">no se puede leer</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation type="unfinished">no se puede leer (%1)</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished">está vacío</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation type="unfinished">es demasiado grande</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a file</source>
        <translation type="unfinished">es una tubería o un dispositivo, no un archivo</translation>
    </message>
    <message>
        <source>needs %1 more of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">necesita %1 más de memoria, pero solo hay %2 libres; retire otros instrumentos o cierre otros programas</translation>
    </message>
    <message>
        <source>is damaged or cut short</source>
        <translation type="unfinished">está dañado o cortado</translation>
    </message>
    <message>
        <source>is cut short</source>
        <translation type="unfinished">está cortado</translation>
    </message>
    <message>
        <source>is damaged and its presets cannot be played; opening it as stops may work</source>
        <translation type="unfinished">está dañado y sus ajustes no se pueden tocar; abrirlo como registros puede funcionar</translation>
    </message>
    <message>
        <source>has no presets</source>
        <translation type="unfinished">no tiene ajustes</translation>
    </message>
    <message>
        <source>the file does not contain its data</source>
        <translation type="unfinished">el archivo no contiene sus datos</translation>
    </message>
    <message>
        <source>the file has too many chunks</source>
        <translation type="unfinished">el archivo tiene demasiados bloques</translation>
    </message>
    <message>
        <source>lists are nested too deeply</source>
        <translation type="unfinished">las listas están anidadas con demasiada profundidad</translation>
    </message>
    <message>
        <source>is not a RIFF file</source>
        <translation type="unfinished">no es un archivo RIFF</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation type="unfinished">no tiene «%1»</translation>
    </message>
    <message>
        <source>this is not a tuning file</source>
        <translation type="unfinished">no es un archivo de afinación</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation type="unfinished">«%1» no es un número</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation type="unfinished">«%1» no es un número finito</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a playable pitch</source>
        <translation type="unfinished">«%1» no es una altura que se pueda tocar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a zero denominator</source>
        <translation type="unfinished">«%1» tiene denominador cero</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the number of notes; only scales of 12 notes are supported</source>
        <translation type="unfinished">«%1» es el número de notas; solo se admiten escalas de 12 notas</translation>
    </message>
    <message>
        <source>this is not a Standard MIDI File: &quot;MThd&quot; is missing</source>
        <translation type="unfinished">no es un archivo MIDI estándar: falta «MThd»</translation>
    </message>
    <message>
        <source>the header is too short</source>
        <translation type="unfinished">la cabecera es demasiado corta</translation>
    </message>
    <message>
        <source>the header announces no tracks</source>
        <translation type="unfinished">la cabecera no anuncia pistas</translation>
    </message>
    <message>
        <source>an event exceeds the end of its track</source>
        <translation type="unfinished">un evento rebasa el final de su pista</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 tracks</source>
        <translation type="unfinished">el archivo termina tras %1 de %2 pistas</translation>
    </message>
    <message>
        <source>a chunk of %1 bytes is truncated: the file has only %2 more</source>
        <translation type="unfinished">un bloque de %1 bytes está cortado: al archivo solo le quedan %2</translation>
    </message>
    <message>
        <source>this is not a session of Velmora</source>
        <translation type="unfinished">no es una sesión de Velmora</translation>
    </message>
    <message>
        <source>a later version of Velmora has written this session</source>
        <translation type="unfinished">una versión posterior de Velmora escribió esta sesión</translation>
    </message>
    <message>
        <source>is too large for the free memory; unload other instruments, then open it again</source>
        <translation type="unfinished">no cabe en la memoria libre; retire otros instrumentos y ábralo de nuevo</translation>
    </message>
    <message>
        <source>has no instruments</source>
        <translation type="unfinished">no tiene instrumentos</translation>
    </message>
    <message>
        <source>has no samples</source>
        <translation type="unfinished">no tiene muestras</translation>
    </message>
    <message>
        <source>is not a sound file in a supported format</source>
        <translation type="unfinished">no es un archivo de sonido en un formato admitido</translation>
    </message>
    <message>
        <source>is a damaged WavPack file (%1)</source>
        <translation type="unfinished">es un archivo WavPack dañado (%1)</translation>
    </message>
    <message>
        <source>lies outside the folder of the instrument</source>
        <translation type="unfinished">está fuera de la carpeta del instrumento</translation>
    </message>
    <message>
        <source>names a file outside the folder of the organ: &quot;%1&quot;</source>
        <translation type="unfinished">nombra un archivo fuera de la carpeta del órgano: «%1»</translation>
    </message>
    <message>
        <source>names a file outside the folder of its package: &quot;%1&quot;</source>
        <translation type="unfinished">nombra un archivo fuera de la carpeta de su paquete: «%1»</translation>
    </message>
    <message>
        <source>is longer than a sound may be: it has more than 2 GB of samples</source>
        <translation type="unfinished">es más largo de lo que puede ser un sonido: más de 2 GB de muestras</translation>
    </message>
    <message>
        <source>is damaged: its samples would take %1, but the file holds only %2</source>
        <translation type="unfinished">está dañado: sus muestras ocuparían %1, pero el archivo solo tiene %2</translation>
    </message>
    <message>
        <source>is a SoundFont %1 bank with compressed samples; convert it to SoundFont 2</source>
        <translation type="unfinished">es un banco SoundFont %1 con muestras comprimidas; conviértalo a SoundFont 2</translation>
    </message>
    <message>
        <source>cannot be loaded: its samples are encrypted and need a licence; open an organ without encryption</source>
        <translation type="unfinished">no se puede cargar: sus muestras están cifradas y necesitan una licencia; abra un órgano sin cifrar</translation>
    </message>
    <message>
        <source>cannot be played: no pipe has a sample file</source>
        <translation type="unfinished">no se puede tocar: ningún tubo tiene un archivo de muestra</translation>
    </message>
    <message>
        <source>cannot be played: none of the %1 sample files can be decoded, for example %2</source>
        <translation type="unfinished">no se puede tocar: ninguno de los %1 archivos de muestras se puede decodificar, por ejemplo %2</translation>
    </message>
    <message>
        <source>is not an organ definition: its root element is not &quot;Hauptwerk&quot;</source>
        <translation type="unfinished">no es una definición de órgano: su elemento raíz no es «Hauptwerk»</translation>
    </message>
    <message>
        <source>is written in UTF-16; save it as UTF-8 in a text editor</source>
        <translation type="unfinished">está escrito en UTF-16; guárdelo como UTF-8 en un editor de textos</translation>
    </message>
    <message>
        <source>cannot be played: it has no stop with pipes</source>
        <translation type="unfinished">no se puede tocar: ningún registro tiene tubos</translation>
    </message>
    <message>
        <source>holds no organ definition (a file with the extension .organ)</source>
        <translation type="unfinished">no contiene una definición de órgano (un archivo con la extensión .organ)</translation>
    </message>
    <message>
        <source>this package is not in the folder of the organ</source>
        <translation type="unfinished">este paquete no está en la carpeta del órgano</translation>
    </message>
    <message>
        <source>is not a zip archive, or is damaged</source>
        <translation type="unfinished">no es un archivo zip o está dañado</translation>
    </message>
    <message>
        <source>is a damaged archive</source>
        <translation type="unfinished">es un archivo comprimido dañado</translation>
    </message>
    <message>
        <source>is encrypted; only archives without a password can be opened</source>
        <translation type="unfinished">está cifrado; solo se pueden abrir archivos sin contraseña</translation>
    </message>
    <message>
        <source>holds a file whose name leads out of the archive: &quot;%1&quot;</source>
        <translation type="unfinished">contiene un archivo cuyo nombre lleva fuera: «%1»</translation>
    </message>
    <message>
        <source>is not in the archive</source>
        <translation type="unfinished">no está en el archivo comprimido</translation>
    </message>
    <message>
        <source>is damaged in the archive</source>
        <translation type="unfinished">está dañado en el archivo comprimido</translation>
    </message>
    <message>
        <source>is larger than the archive says</source>
        <translation type="unfinished">es mayor de lo que dice el archivo comprimido</translation>
    </message>
    <message>
        <source>is cut short in the archive</source>
        <translation type="unfinished">está cortado en el archivo comprimido</translation>
    </message>
    <message>
        <source>an attack has no sample file</source>
        <translation type="unfinished">un ataque no tiene archivo de muestra</translation>
    </message>
    <message>
        <source>a release has no sample file</source>
        <translation type="unfinished">una extinción no tiene archivo de muestra</translation>
    </message>
    <message>
        <source>recordings with the tremulant are not played</source>
        <translation type="unfinished">las grabaciones con trémolo no se tocan</translation>
    </message>
    <message>
        <source>recordings for quick repetitions are not played</source>
        <translation type="unfinished">las grabaciones para repeticiones rápidas no se tocan</translation>
    </message>
    <message>
        <source>borrowed from pipes that are borrowed from each other</source>
        <translation type="unfinished">tomado de tubos que se toman unos de otros</translation>
    </message>
    <message>
        <source>does not say from which manual, stop and pipe it is borrowed</source>
        <translation type="unfinished">no dice de qué manual, registro y tubo se toma</translation>
    </message>
    <message>
        <source>borrowed from stop %1 of manual %2, which does not exist</source>
        <translation type="unfinished">tomado del registro %1 del manual %2, que no existe</translation>
    </message>
    <message>
        <source>borrowed from a pipe that does not sound</source>
        <translation type="unfinished">tomado de un tubo que no suena</translation>
    </message>
    <message>
        <source>is outside the MIDI keys 0 to 127</source>
        <translation type="unfinished">está fuera de las teclas MIDI 0 a 127</translation>
    </message>
    <message>
        <source>its stop %1 does not exist</source>
        <translation type="unfinished">su registro %1 no existe</translation>
    </message>
    <message>
        <source>its rank %1 does not exist</source>
        <translation type="unfinished">su hilera %1 no existe</translation>
    </message>
    <message>
        <source>belongs to no manual</source>
        <translation type="unfinished">no pertenece a ningún manual</translation>
    </message>
    <message>
        <source>has no pipe that sounds</source>
        <translation type="unfinished">no tiene ningún tubo que suene</translation>
    </message>
    <message>
        <source>is a noise or an effect that sounds when its knob is drawn, not when keys are pressed</source>
        <translation type="unfinished">es un ruido o efecto que suena al sacar su tirador, no al pulsar teclas</translation>
    </message>
    <message>
        <source>silences its own keys (&quot;unison off&quot;), which is not supported</source>
        <translation type="unfinished">silencia sus propias teclas («unison off»), lo que no se admite</translation>
    </message>
    <message>
        <source>couples only the lowest or the highest key, which is not supported</source>
        <translation type="unfinished">acopla solo la tecla más grave o la más aguda, lo que no se admite</translation>
    </message>
    <message>
        <source>couples to a manual that does not exist</source>
        <translation type="unfinished">acopla a un manual que no existe</translation>
    </message>
    <message>
        <source>tremulants are not supported</source>
        <translation type="unfinished">los trémolos no se admiten</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation type="unfinished">%1, línea %2: %3</translation>
    </message>
    <message>
        <source>%1, byte %2: %3</source>
        <translation type="unfinished">%1, byte %2: %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits, which takes %3</source>
        <translation type="unfinished">necesita unos %1 de memoria, pero solo hay %2 libres; cárguelo con 16 bits, que ocupa %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it in mono, which takes %3</source>
        <translation type="unfinished">necesita unos %1 de memoria, pero solo hay %2 libres; cárguelo en mono, que ocupa %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits and in mono, which takes %3</source>
        <translation type="unfinished">necesita unos %1 de memoria, pero solo hay %2 libres; cárguelo con 16 bits y en mono, que ocupa %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">necesita unos %1 de memoria, pero solo hay %2 libres; retire otros instrumentos o cierre otros programas</translation>
    </message>
    <message>
        <source>these are not the registrations of an organ</source>
        <translation type="unfinished">no son las registraciones de un órgano</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load fewer of its stops</source>
        <translation type="unfinished">necesita unos %1 de memoria, pero solo hay %2 libres; cargue menos registros</translation>
    </message>
    <message>
        <source>the MIDI output %1 cannot be connected</source>
        <translation type="unfinished">no se puede conectar la salida MIDI %1</translation>
    </message>
    <message>
        <source>the MIDI output %1 takes no message</source>
        <translation type="unfinished">la salida MIDI %1 no acepta mensajes</translation>
    </message>
    <message>
        <source>the scale has no description and no number of notes</source>
        <translation type="unfinished">la escala no tiene descripción ni número de notas</translation>
    </message>
    <message>
        <source>the scale has no number of notes</source>
        <translation type="unfinished">falta el número de notas de la escala</translation>
    </message>
    <message>
        <source>the scale ends after %1 of %2 pitches</source>
        <translation type="unfinished">la escala termina tras %1 de %2 alturas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of notes from 0 to 128</source>
        <translation type="unfinished">«%1» no es un número de notas de 0 a 128</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch: write cents with a point, as in 701.955, or a ratio, as in 3/2</source>
        <translation type="unfinished">«%1» no es una altura: escriba cents con un punto, como 701.955, o una razón, como 3/2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch above 0</source>
        <translation type="unfinished">«%1» no es una altura mayor que 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a number that is too large</source>
        <translation type="unfinished">«%1» contiene un número demasiado grande</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an octave, the index of a note and its frequency in hertz, which sounds on a key from 0 to 127</source>
        <translation type="unfinished">«%1» necesita una octava, el índice de una nota y su frecuencia en hercios, que suene en una tecla de 0 a 127</translation>
    </message>
    <message>
        <source>the mapping ends before the size of the mapping</source>
        <translation type="unfinished">la asignación termina antes de su tamaño</translation>
    </message>
    <message>
        <source>the mapping ends before the first key</source>
        <translation type="unfinished">la asignación termina antes de la primera tecla</translation>
    </message>
    <message>
        <source>the mapping ends before the last key</source>
        <translation type="unfinished">la asignación termina antes de la última tecla</translation>
    </message>
    <message>
        <source>the mapping ends before the middle key</source>
        <translation type="unfinished">la asignación termina antes de la tecla central</translation>
    </message>
    <message>
        <source>the mapping ends before the reference key</source>
        <translation type="unfinished">la asignación termina antes de la tecla de referencia</translation>
    </message>
    <message>
        <source>the mapping ends before the frequency</source>
        <translation type="unfinished">la asignación termina antes de la frecuencia</translation>
    </message>
    <message>
        <source>the mapping ends before the formal octave</source>
        <translation type="unfinished">la asignación termina antes de la octava formal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the size of the mapping, a number from 0 to %2</source>
        <translation type="unfinished">«%1» no es el tamaño de la asignación, un número de 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» no es la primera tecla, un número de 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the last key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» no es la última tecla, un número de 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the middle key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» no es la tecla central, un número de 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the reference key, a number from 0 to %2</source>
        <translation type="unfinished">«%1» no es la tecla de referencia, un número de 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the formal octave, a number from 0 to %2</source>
        <translation type="unfinished">«%1» no es la octava formal, un número de 0 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a degree of the scale or an x, a number from 0 to %2</source>
        <translation type="unfinished">«%1» no es un grado de la escala, un número de 0 a %2, ni una x</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a frequency in hertz above 0</source>
        <translation type="unfinished">«%1» no es una frecuencia en hercios mayor que 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no =</source>
        <translation type="unfinished">en «%1» falta un =</translation>
    </message>
    <message>
        <source>the reference key %1 plays no note</source>
        <translation type="unfinished">la tecla de referencia %1 no toca ninguna nota</translation>
    </message>
    <message>
        <source>the pitch of key %1 is beyond all bounds</source>
        <translation type="unfinished">la altura de la tecla %1 está fuera de todo límite</translation>
    </message>
    <message>
        <source>the pitches are only given by formulas, in the section [Functional Tuning]</source>
        <translation type="unfinished">las alturas solo se dan con fórmulas, en la sección [Functional Tuning]</translation>
    </message>
    <message>
        <source>there is no section [Exact Tuning] or [Tuning]</source>
        <translation type="unfinished">no hay ninguna sección [Exact Tuning] ni [Tuning]</translation>
    </message>
    <message>
        <source>a keyboard mapping needs a scale, and this tuning has none</source>
        <translation type="unfinished">una asignación de teclas necesita una escala, y esta afinación no tiene ninguna</translation>
    </message>
    <message>
        <source>the scale repeats after %1 cents, but the plain reading repeats it after an octave</source>
        <translation type="unfinished">la escala se repite tras %1 cents, pero la lectura simple la repite tras una octava</translation>
    </message>
    <message>
        <source>in the plain reading, General MIDI plays some keys of &quot;%1&quot; %2 cents out of tune</source>
        <translation type="unfinished">en la lectura simple, General MIDI toca algunas teclas de «%1» desafinadas en %2 cents</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation type="unfinished">%1, línea %2, columna %3: %4</translation>
    </message>
    <message>
        <source>the XML is damaged: %1</source>
        <translation type="unfinished">el XML está dañado: %1</translation>
    </message>
    <message>
        <source>The file is damaged, and only a part of it could be read. To keep what may still be in it, save the piece under another name.</source>
        <translation type="unfinished">El archivo está dañado y solo se pudo leer una parte. Para conservar lo que aún pueda contener, guarde la pieza con otro nombre.</translation>
    </message>
    <message>
        <source>is not a MusicXML score</source>
        <translation type="unfinished">no es una partitura MusicXML</translation>
    </message>
    <message>
        <source>is an archive, but not of a score</source>
        <translation type="unfinished">es un archivo comprimido, pero no de una partitura</translation>
    </message>
    <message>
        <source>the score &quot;%1&quot; is missing from the archive</source>
        <translation type="unfinished">falta la partitura «%1» en el archivo comprimido</translation>
    </message>
    <message>
        <source>the score has no parts</source>
        <translation type="unfinished">la partitura no tiene partes</translation>
    </message>
    <message>
        <source>the score has too many parts</source>
        <translation type="unfinished">la partitura tiene demasiadas partes</translation>
    </message>
    <message>
        <source>measure %1 is too long</source>
        <translation type="unfinished">el compás %1 es demasiado largo</translation>
    </message>
    <message>
        <source>the music is too long</source>
        <translation type="unfinished">la música es demasiado larga</translation>
    </message>
    <message>
        <source>the MIDI output %1 is gone</source>
        <translation type="unfinished">la salida MIDI %1 ya no está disponible</translation>
    </message>
</context>
<context>
    <name>velmora::nameParts</name>
    <message>
        <source>More</source>
        <translation type="unfinished">Más</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished">Borrar</translation>
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
        <translation type="unfinished">1 Piano de cola</translation>
    </message>
    <message>
        <source>2 Bright Acoustic Piano</source>
        <translation type="unfinished">2 Piano brillante</translation>
    </message>
    <message>
        <source>3 Electric Grand Piano</source>
        <translation type="unfinished">3 Piano de cola eléctrico</translation>
    </message>
    <message>
        <source>4 Honky-Tonk Piano</source>
        <translation type="unfinished">4 Piano honky-tonk</translation>
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
        <translation type="unfinished">7 Clave</translation>
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
        <translation type="unfinished">11 Caja de música</translation>
    </message>
    <message>
        <source>12 Vibraphone</source>
        <translation type="unfinished">12 Vibráfono</translation>
    </message>
    <message>
        <source>13 Marimba</source>
        <translation type="unfinished">13 Marimba</translation>
    </message>
    <message>
        <source>14 Xylophone</source>
        <translation type="unfinished">14 Xilófono</translation>
    </message>
    <message>
        <source>15 Tubular Bells</source>
        <translation type="unfinished">15 Campanas tubulares</translation>
    </message>
    <message>
        <source>16 Dulcimer</source>
        <translation type="unfinished">16 Dulcémele</translation>
    </message>
    <message>
        <source>17 Hammond Organ</source>
        <translation type="unfinished">17 Órgano Hammond</translation>
    </message>
    <message>
        <source>18 Percusive Organ</source>
        <translation type="unfinished">18 Órgano percusivo</translation>
    </message>
    <message>
        <source>19 Rock Organ</source>
        <translation type="unfinished">19 Órgano de rock</translation>
    </message>
    <message>
        <source>20 Church Organ</source>
        <translation type="unfinished">20 Órgano de iglesia</translation>
    </message>
    <message>
        <source>21 Reed Organ</source>
        <translation type="unfinished">21 Armonio</translation>
    </message>
    <message>
        <source>22 Accordion</source>
        <translation type="unfinished">22 Acordeón</translation>
    </message>
    <message>
        <source>23 Harmonica</source>
        <translation type="unfinished">23 Armónica</translation>
    </message>
    <message>
        <source>24 Tango Accordion</source>
        <translation type="unfinished">24 Bandoneón</translation>
    </message>
    <message>
        <source>25 Nylon Guitar</source>
        <translation type="unfinished">25 Guitarra de nailon</translation>
    </message>
    <message>
        <source>26 Steel String Guitar</source>
        <translation type="unfinished">26 Guitarra de cuerdas de acero</translation>
    </message>
    <message>
        <source>27 Jazz Guitar</source>
        <translation type="unfinished">27 Guitarra de jazz</translation>
    </message>
    <message>
        <source>28 Clean E. Guitar</source>
        <translation type="unfinished">28 Guitarra eléctrica limpia</translation>
    </message>
    <message>
        <source>29 Mute E. Guitar</source>
        <translation type="unfinished">29 Guitarra eléctrica apagada</translation>
    </message>
    <message>
        <source>30 Overdrive Guitar</source>
        <translation type="unfinished">30 Guitarra saturada</translation>
    </message>
    <message>
        <source>31 Distort Guitar</source>
        <translation type="unfinished">31 Guitarra distorsionada</translation>
    </message>
    <message>
        <source>32 Harmonics</source>
        <translation type="unfinished">32 Armónicos de guitarra</translation>
    </message>
    <message>
        <source>33 Acoustic Bass</source>
        <translation type="unfinished">33 Contrabajo pulsado</translation>
    </message>
    <message>
        <source>34 Finger E. Bass</source>
        <translation type="unfinished">34 Bajo eléctrico (dedos)</translation>
    </message>
    <message>
        <source>35 Picked E. Bass</source>
        <translation type="unfinished">35 Bajo eléctrico (púa)</translation>
    </message>
    <message>
        <source>36 Fretless Bass</source>
        <translation type="unfinished">36 Bajo sin trastes</translation>
    </message>
    <message>
        <source>37 Slap Bass 1</source>
        <translation type="unfinished">37 Bajo slap 1</translation>
    </message>
    <message>
        <source>38 Slap Bass 2</source>
        <translation type="unfinished">38 Bajo slap 2</translation>
    </message>
    <message>
        <source>39 Synth Bass1</source>
        <translation type="unfinished">39 Bajo sintético 1</translation>
    </message>
    <message>
        <source>40 Synth Bass2</source>
        <translation type="unfinished">40 Bajo sintético 2</translation>
    </message>
    <message>
        <source>41 Violin</source>
        <translation type="unfinished">41 Violín</translation>
    </message>
    <message>
        <source>42 Viola</source>
        <translation type="unfinished">42 Viola</translation>
    </message>
    <message>
        <source>43 Cello</source>
        <translation type="unfinished">43 Violonchelo</translation>
    </message>
    <message>
        <source>44 Contrabass</source>
        <translation type="unfinished">44 Contrabajo</translation>
    </message>
    <message>
        <source>45 Tremolo Strings</source>
        <translation type="unfinished">45 Cuerdas en trémolo</translation>
    </message>
    <message>
        <source>46 Pizzicato Strings</source>
        <translation type="unfinished">46 Cuerdas en pizzicato</translation>
    </message>
    <message>
        <source>47 Orchestral Harp</source>
        <translation type="unfinished">47 Arpa</translation>
    </message>
    <message>
        <source>48 Timpani</source>
        <translation type="unfinished">48 Timbales</translation>
    </message>
    <message>
        <source>49 String Ensemble 1</source>
        <translation type="unfinished">49 Conjunto de cuerdas 1</translation>
    </message>
    <message>
        <source>50 String Ensemble 2</source>
        <translation type="unfinished">50 Conjunto de cuerdas 2</translation>
    </message>
    <message>
        <source>51 Synth Strings 1</source>
        <translation type="unfinished">51 Cuerdas sintéticas 1</translation>
    </message>
    <message>
        <source>52 Synth Strings 2</source>
        <translation type="unfinished">52 Cuerdas sintéticas 2</translation>
    </message>
    <message>
        <source>53 Choir Aahs</source>
        <translation type="unfinished">53 Coro «aah»</translation>
    </message>
    <message>
        <source>54 Voice Oohs</source>
        <translation type="unfinished">54 Voces «ooh»</translation>
    </message>
    <message>
        <source>55 Synth Voice</source>
        <translation type="unfinished">55 Voz sintética</translation>
    </message>
    <message>
        <source>56 Orchestra Hit</source>
        <translation type="unfinished">56 Golpe de orquesta</translation>
    </message>
    <message>
        <source>57 Trumpet</source>
        <translation type="unfinished">57 Trompeta</translation>
    </message>
    <message>
        <source>58 Trombone</source>
        <translation type="unfinished">58 Trombón</translation>
    </message>
    <message>
        <source>59 Tuba</source>
        <translation type="unfinished">59 Tuba</translation>
    </message>
    <message>
        <source>60 Mute Trumpet</source>
        <translation type="unfinished">60 Trompeta con sordina</translation>
    </message>
    <message>
        <source>61 French Horn</source>
        <translation type="unfinished">61 Trompa</translation>
    </message>
    <message>
        <source>62 Brass Section</source>
        <translation type="unfinished">62 Sección de metales</translation>
    </message>
    <message>
        <source>63 Synth Brass 1</source>
        <translation type="unfinished">63 Metales sintéticos 1</translation>
    </message>
    <message>
        <source>64 Synth Brass 2</source>
        <translation type="unfinished">64 Metales sintéticos 2</translation>
    </message>
    <message>
        <source>65 Soprano Sax</source>
        <translation type="unfinished">65 Saxofón soprano</translation>
    </message>
    <message>
        <source>66 Alto Sax</source>
        <translation type="unfinished">66 Saxofón alto</translation>
    </message>
    <message>
        <source>67 Tenor Sax</source>
        <translation type="unfinished">67 Saxofón tenor</translation>
    </message>
    <message>
        <source>68 Baritone Sax</source>
        <translation type="unfinished">68 Saxofón barítono</translation>
    </message>
    <message>
        <source>69 Oboe</source>
        <translation type="unfinished">69 Oboe</translation>
    </message>
    <message>
        <source>70 English Horn</source>
        <translation type="unfinished">70 Corno inglés</translation>
    </message>
    <message>
        <source>71 Bassoon</source>
        <translation type="unfinished">71 Fagot</translation>
    </message>
    <message>
        <source>72 Clarinet</source>
        <translation type="unfinished">72 Clarinete</translation>
    </message>
    <message>
        <source>73 Piccolo</source>
        <translation type="unfinished">73 Flautín</translation>
    </message>
    <message>
        <source>74 Flute</source>
        <translation type="unfinished">74 Flauta travesera</translation>
    </message>
    <message>
        <source>75 Recorder</source>
        <translation type="unfinished">75 Flauta dulce</translation>
    </message>
    <message>
        <source>76 Pan Flute</source>
        <translation type="unfinished">76 Flauta de Pan</translation>
    </message>
    <message>
        <source>77 Bottle Blow</source>
        <translation type="unfinished">77 Soplo de botella</translation>
    </message>
    <message>
        <source>78 Shakuhachi</source>
        <translation type="unfinished">78 Shakuhachi</translation>
    </message>
    <message>
        <source>79 Whistle</source>
        <translation type="unfinished">79 Silbido</translation>
    </message>
    <message>
        <source>80 Ocarina</source>
        <translation type="unfinished">80 Ocarina</translation>
    </message>
    <message>
        <source>81 Square Wave</source>
        <translation type="unfinished">81 Onda cuadrada</translation>
    </message>
    <message>
        <source>82 Saw Tooth</source>
        <translation type="unfinished">82 Diente de sierra</translation>
    </message>
    <message>
        <source>83 Syn Calliope</source>
        <translation type="unfinished">83 Calíope sintético</translation>
    </message>
    <message>
        <source>84 Chiffer Lead</source>
        <translation type="unfinished">84 Solista chiffer</translation>
    </message>
    <message>
        <source>85 Charang</source>
        <translation type="unfinished">85 Solista charang</translation>
    </message>
    <message>
        <source>86 Solo Vox</source>
        <translation type="unfinished">86 Voz solista</translation>
    </message>
    <message>
        <source>87 5th Saw Wave</source>
        <translation type="unfinished">87 Sierra en quintas</translation>
    </message>
    <message>
        <source>88 Brass &amp; Lead</source>
        <translation type="unfinished">88 Metales y solista</translation>
    </message>
    <message>
        <source>89 Fantasia</source>
        <translation type="unfinished">89 Fantasía</translation>
    </message>
    <message>
        <source>90 Warm Pad</source>
        <translation type="unfinished">90 Fondo cálido</translation>
    </message>
    <message>
        <source>91 Polysynth</source>
        <translation type="unfinished">91 Polisintetizador</translation>
    </message>
    <message>
        <source>92 Space Vox</source>
        <translation type="unfinished">92 Voces espaciales</translation>
    </message>
    <message>
        <source>93 Bowed Glass</source>
        <translation type="unfinished">93 Cristal frotado</translation>
    </message>
    <message>
        <source>94 Metal Pad</source>
        <translation type="unfinished">94 Fondo metálico</translation>
    </message>
    <message>
        <source>95 Halo Pad</source>
        <translation type="unfinished">95 Fondo de halo</translation>
    </message>
    <message>
        <source>96 Sweep Pad</source>
        <translation type="unfinished">96 Fondo de barrido</translation>
    </message>
    <message>
        <source>97 Ice Rain</source>
        <translation type="unfinished">97 Lluvia de hielo</translation>
    </message>
    <message>
        <source>98 Soundtrack</source>
        <translation type="unfinished">98 Banda sonora</translation>
    </message>
    <message>
        <source>99 Crystal</source>
        <translation type="unfinished">99 Cristal</translation>
    </message>
    <message>
        <source>100 Atmosphere</source>
        <translation type="unfinished">100 Atmósfera</translation>
    </message>
    <message>
        <source>101 Brightness</source>
        <translation type="unfinished">101 Brillo</translation>
    </message>
    <message>
        <source>102 Goblin</source>
        <translation type="unfinished">102 Duende</translation>
    </message>
    <message>
        <source>103 Echo Drops</source>
        <translation type="unfinished">103 Gotas de eco</translation>
    </message>
    <message>
        <source>104 Star Theme</source>
        <translation type="unfinished">104 Tema estelar</translation>
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
        <translation type="unfinished">110 Gaita</translation>
    </message>
    <message>
        <source>111 Fiddle</source>
        <translation type="unfinished">111 Violín folclórico</translation>
    </message>
    <message>
        <source>112 Shanai</source>
        <translation type="unfinished">112 Shanai</translation>
    </message>
    <message>
        <source>113 Tinkle Bell</source>
        <translation type="unfinished">113 Campanilla</translation>
    </message>
    <message>
        <source>114 Agogo</source>
        <translation type="unfinished">114 Agogó</translation>
    </message>
    <message>
        <source>115 Steel Drums</source>
        <translation type="unfinished">115 Tambores metálicos</translation>
    </message>
    <message>
        <source>116 Woodblock</source>
        <translation type="unfinished">116 Caja china</translation>
    </message>
    <message>
        <source>117 Taiko Drum</source>
        <translation type="unfinished">117 Tambor taiko</translation>
    </message>
    <message>
        <source>118 Melodic Tom</source>
        <translation type="unfinished">118 Tom melódico</translation>
    </message>
    <message>
        <source>119 Synth Drum</source>
        <translation type="unfinished">119 Tambor sintético</translation>
    </message>
    <message>
        <source>120 Reverse Cymbal</source>
        <translation type="unfinished">120 Platillo invertido</translation>
    </message>
    <message>
        <source>121 Guitar Fret Noise</source>
        <translation type="unfinished">121 Ruido de trastes de guitarra</translation>
    </message>
    <message>
        <source>122 Breath Noise</source>
        <translation type="unfinished">122 Ruido de respiración</translation>
    </message>
    <message>
        <source>123 Sea Shore</source>
        <translation type="unfinished">123 Orilla del mar</translation>
    </message>
    <message>
        <source>124 Bird Tweet</source>
        <translation type="unfinished">124 Canto de pájaro</translation>
    </message>
    <message>
        <source>125 Telephone Ring</source>
        <translation type="unfinished">125 Timbre de teléfono</translation>
    </message>
    <message>
        <source>126 Helicopter</source>
        <translation type="unfinished">126 Helicóptero</translation>
    </message>
    <message>
        <source>127 Applause</source>
        <translation type="unfinished">127 Aplausos</translation>
    </message>
    <message>
        <source>128 Gun Shot</source>
        <translation type="unfinished">128 Disparo</translation>
    </message>
</context>
</TS>
