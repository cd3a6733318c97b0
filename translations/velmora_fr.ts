<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Report</source>
        <translation type="unfinished">Rapport d’importation</translation>
    </message>
    <message>
        <source>Stops: %1, keys: %2, samples: %3.</source>
        <translation type="unfinished">Jeux&#x202f;: %1, touches&#x202f;: %2, échantillons&#x202f;: %3.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished">%1 existe déjà. Voulez-vous le remplacer&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) or sample(s) were left out</source>
        <translation type="unfinished">
            <numerusform>%n fichier ou échantillon a été ignoré</numerusform>
            <numerusform>%n fichiers ou échantillons ont été ignorés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is still sounding. Silence everything (Ctrl+.), then unload it.</source>
        <translation type="unfinished">%1 sonne encore. Coupez tous les sons (Ctrl+.), puis déchargez-le.</translation>
    </message>
    <message>
        <source>Velmora cannot draw its windows because OpenGL does not work here. Install libgl1-mesa-dri, which needs no graphics card.</source>
        <translation type="unfinished">Velmora ne peut pas dessiner ses fenêtres, car OpenGL ne fonctionne pas ici. Installez libgl1-mesa-dri, qui ne demande pas de carte graphique.</translation>
    </message>
    <message>
        <source>Instrument in the &amp;File</source>
        <translation type="unfinished">Instrument du &amp;fichier</translation>
    </message>
    <message>
        <source>Lay out the instruments of the bank as stops with volumes of their own, instead of its presets</source>
        <translation type="unfinished">Disposer les instruments de la banque en jeux avec leur propre volume, au lieu de ses préréglages</translation>
    </message>
    <message>
        <source>&amp;Plain Reading</source>
        <translation type="unfinished">Lecture &amp;littérale</translation>
    </message>
    <message>
        <source>One sample for each key, as the file lists them</source>
        <translation type="unfinished">Un échantillon par touche, dans l’ordre du fichier</translation>
    </message>
    <message>
        <source>Samples with more bits take less memory</source>
        <translation type="unfinished">Les échantillons de plus de bits prennent moins de mémoire</translation>
    </message>
    <message>
        <source>Load in &amp;Mono</source>
        <translation type="unfinished">Charger en &amp;mono</translation>
    </message>
    <message>
        <source>Stereo samples take half the memory</source>
        <translation type="unfinished">Les échantillons stéréo prennent moitié moins de mémoire</translation>
    </message>
    <message>
        <source>Stop %1</source>
        <translation type="unfinished">Jeu %1</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished">Volume</translation>
    </message>
    <message>
        <source>Open as S&amp;tops</source>
        <translation type="unfinished">Ouvrir en &amp;jeux</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits</source>
        <translation type="unfinished">Charger en 16 &amp;bits</translation>
    </message>
    <message>
        <source>Load as Many Stops as &amp;Fit</source>
        <translation type="unfinished">Charger autant de &amp;jeux que possible</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits in Mono</source>
        <translation type="unfinished">Charger en 16 &amp;bits et en mono</translation>
    </message>
    <message numerus="yes">
        <source>%n stop(s) were not loaded</source>
        <translation type="unfinished">
            <numerusform>%n jeu n’a pas été chargé</numerusform>
            <numerusform>%n jeux n’ont pas été chargés</numerusform>
        </translation>
    </message>
    <message>
        <source>This stop is being loaded. It sounds as soon as all its pipes are there.</source>
        <translation type="unfinished">Ce jeu est en cours de chargement. Il sonnera dès que tous ses tuyaux seront là.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because the loading was stopped.</source>
        <translation type="unfinished">Ce jeu n’est pas chargé, car le chargement a été arrêté.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because only the drawn stops were loaded.</source>
        <translation type="unfinished">Ce jeu n’est pas chargé, car seuls les jeux tirés ont été chargés.</translation>
    </message>
    <message>
        <source>This stop is not loaded, because it does not fit into the memory.</source>
        <translation type="unfinished">Ce jeu n’est pas chargé, car il ne tient pas en mémoire.</translation>
    </message>
    <message>
        <source>None of the files of this stop can be used. The import report says why.</source>
        <translation type="unfinished">Aucun des fichiers de ce jeu n’est utilisable. Le rapport d’importation dit pourquoi.</translation>
    </message>
    <message>
        <source>Load Only the D&amp;rawn Stops</source>
        <translation type="unfinished">Charger seulement les jeux ti&amp;rés</translation>
    </message>
</context>
<context>
    <name>deviceText</name>
    <message>
        <source>MIDI port %1</source>
        <translation type="unfinished">Port MIDI %1</translation>
    </message>
</context>
<context>
    <name>velmora::AboutBox</name>
    <message>
        <source>About Velmora</source>
        <translation type="unfinished">À propos de Velmora</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Plays keyboard instruments in historical and adaptive tunings.&lt;/p&gt;&lt;p&gt;Velmora uses FluidSynth, the Synthesis ToolKit and OpenAL Soft for sound, libsndfile and WavPack for samples, RtMidi for MIDI, and Qt %2 for its windows.&lt;/p&gt;&lt;p&gt;It is available under the MIT licence.&lt;/p&gt;</source>
        <translation type="unfinished">&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Joue des instruments à clavier dans des tempéraments historiques et adaptatifs.&lt;/p&gt;&lt;p&gt;Velmora utilise FluidSynth, le Synthesis ToolKit et OpenAL Soft pour le son, libsndfile et WavPack pour les échantillons, RtMidi pour le MIDI et Qt %2 pour ses fenêtres.&lt;/p&gt;&lt;p&gt;Il est disponible sous licence MIT.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>velmora::AdaptivePane</name>
    <message>
        <source>Correct within</source>
        <translation type="unfinished">Corriger dans les</translation>
    </message>
    <message>
        <source>The last note of a chord may still mend the spelling of its first</source>
        <translation type="unfinished">La dernière note d’un accord peut encore corriger l’orthographe de la première</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Tied to A</source>
        <translation type="unfinished">Liée au la</translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished">Libre</translation>
    </message>
    <message>
        <source>Returns in silence</source>
        <translation type="unfinished">Revient dans le silence</translation>
    </message>
    <message>
        <source>What becomes of the pitch where pure intervals lead it away: it is drawn back at once, stays there, or goes back while nothing sounds</source>
        <translation type="unfinished">Ce que devient la hauteur quand des intervalles purs l’éloignent : elle est aussitôt ramenée, reste là, ou revient pendant que rien ne sonne</translation>
    </message>
    <message>
        <source>Drift:</source>
        <translation type="unfinished">Dérive :</translation>
    </message>
    <message>
        <source>Pitch now:</source>
        <translation type="unfinished">Hauteur actuelle :</translation>
    </message>
</context>
<context>
    <name>velmora::AudioExport</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Chargement de l’instrument</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation type="unfinished">Calcul du son</translation>
    </message>
    <message>
        <source>There is not enough memory to load the instrument a second time.</source>
        <translation type="unfinished">Il n’y a pas assez de mémoire pour charger l’instrument une seconde fois.</translation>
    </message>
    <message>
        <source>Rendering voice %1 of %2</source>
        <translation type="unfinished">Rendu de la voix %1 sur %2</translation>
    </message>
</context>
<context>
    <name>velmora::CircleTab</name>
    <message>
        <source>Note</source>
        <translation type="unfinished">Note</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">Cents</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinte</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Battements/s</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Tierce majeure</translation>
    </message>
    <message>
        <source>Fifths and thirds</source>
        <translation type="unfinished">Quintes et tierces</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation type="unfinished">Degré</translation>
    </message>
    <message>
        <source>Nearest interval</source>
        <translation type="unfinished">Intervalle le plus proche</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Écart au pur</translation>
    </message>
    <message>
        <source>Degrees of the scale</source>
        <translation type="unfinished">Degrés de la gamme</translation>
    </message>
    <message>
        <source>Octave %1</source>
        <translation type="unfinished">Octave %1</translation>
    </message>
    <message>
        <source>Octave of the beats</source>
        <translation type="unfinished">Octave des battements</translation>
    </message>
    <message>
        <source>Middle C begins octave 4. An octave higher, everything beats twice as fast.</source>
        <translation type="unfinished">Le do central commence l’octave 4. Une octave plus haut, tout bat deux fois plus vite.</translation>
    </message>
    <message>
        <source>Cents from pure</source>
        <translation type="unfinished">Cents d’écart au pur</translation>
    </message>
    <message>
        <source>Beats per second</source>
        <translation type="unfinished">Battements par seconde</translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished">Tableau</translation>
    </message>
    <message>
        <source>What the circle shows</source>
        <translation type="unfinished">Ce que montre le cercle</translation>
    </message>
    <message>
        <source>%1 (sounds)</source>
        <translation type="unfinished">%1 (sonne)</translation>
    </message>
</context>
<context>
    <name>velmora::CircleView</name>
    <message>
        <source>Circle of the tuning</source>
        <translation type="unfinished">Cercle de l’accord</translation>
    </message>
    <message>
        <source>Outside: the fifths. Inside: the major third above each note.
Drag a note outwards to raise it, and inwards to lower it.</source>
        <translation type="unfinished">À l’extérieur : les quintes. À l’intérieur : la tierce majeure sur chaque note.
Tirez une note vers l’extérieur pour la hausser, vers l’intérieur pour la baisser.</translation>
    </message>
    <message>
        <source>The degrees of the scale, each with the nearest pure interval above the first</source>
        <translation type="unfinished">Les degrés de la gamme, chacun avec l’intervalle pur le plus proche au-dessus du premier</translation>
    </message>
</context>
<context>
    <name>velmora::ColorsPane</name>
    <message>
        <source>Keyboard keys</source>
        <translation type="unfinished">Touches du clavier</translation>
    </message>
    <message>
        <source>&amp;Played:</source>
        <translation type="unfinished">&amp;Jouées&#x202f;:</translation>
    </message>
    <message>
        <source>Keys that the sequence plays, or waits for in practice</source>
        <translation type="unfinished">Touches que le morceau joue, ou qu’il attend pendant le travail</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation type="unfinished">J&amp;ustes&#x202f;:</translation>
    </message>
    <message>
        <source>Keys that you struck correctly</source>
        <translation type="unfinished">Touches que vous avez frappées correctement</translation>
    </message>
    <message>
        <source>&amp;Held:</source>
        <translation type="unfinished">&amp;Tenues&#x202f;:</translation>
    </message>
    <message>
        <source>Keys that you keep holding</source>
        <translation type="unfinished">Touches que vous maintenez enfoncées</translation>
    </message>
    <message>
        <source>&amp;Wrong:</source>
        <translation type="unfinished">&amp;Fausses&#x202f;:</translation>
    </message>
    <message>
        <source>Keys that you struck by mistake</source>
        <translation type="unfinished">Touches que vous avez frappées par erreur</translation>
    </message>
    <message>
        <source>Piano roll notes</source>
        <translation type="unfinished">Notes du piano roll</translation>
    </message>
    <message>
        <source>&amp;At rest:</source>
        <translation type="unfinished">Au re&amp;pos&#x202f;:</translation>
    </message>
    <message>
        <source>Notes that are not sounding</source>
        <translation type="unfinished">Notes qui ne sonnent pas</translation>
    </message>
    <message>
        <source>&amp;Sounding:</source>
        <translation type="unfinished">Qui &amp;sonnent&#x202f;:</translation>
    </message>
    <message>
        <source>Notes at the play position</source>
        <translation type="unfinished">Notes à la position de lecture</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation type="unfinished">Calme</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation type="unfinished">Classique</translation>
    </message>
    <message>
        <source>Calm: soft colours that suit the theme of the desktop. Classic: bright colours on white and black</source>
        <translation type="unfinished">Calme&#x202f;: couleurs douces, assorties au thème du bureau. Classique&#x202f;: couleurs vives sur blanc et noir</translation>
    </message>
    <message>
        <source>Sch&amp;eme:</source>
        <translation type="unfinished">Pal&amp;ette&#x202f;:</translation>
    </message>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation type="unfinished">Rétablir les valeurs par &amp;défaut</translation>
    </message>
    <message>
        <source>Use the colours of the scheme again</source>
        <translation type="unfinished">Revenir aux couleurs de la palette</translation>
    </message>
    <message>
        <source>Reduce motion</source>
        <translation type="unfinished">Réduire les animations</translation>
    </message>
    <message>
        <source>Scroll the piano roll at once instead of gliding</source>
        <translation type="unfinished">Faire défiler le piano roll d’un coup au lieu de le faire glisser</translation>
    </message>
</context>
<context>
    <name>velmora::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Commandes</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 – %2</translation>
    </message>
    <message>
        <source>Find a command or a tuning</source>
        <translation type="unfinished">Rechercher une commande ou un tempérament</translation>
    </message>
    <message>
        <source>Nothing has all these words.</source>
        <translation type="unfinished">Rien ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Tempérament</translation>
    </message>
    <message>
        <source>Tuning – %1</source>
        <translation type="unfinished">Tempérament – %1</translation>
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
        <translation type="unfinished">Les lettres jouent à partir de %1</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleActions</name>
    <message>
        <source>Console</source>
        <translation type="unfinished">Console</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished">&amp;Fixer</translation>
    </message>
    <message>
        <source>Keep what is drawn under the registration button that is pressed next</source>
        <translation type="unfinished">Garder ce qui est tiré sous le prochain bouton de registration pressé</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Annulateur</translation>
    </message>
    <message>
        <source>Push in every stop and coupler</source>
        <translation type="unfinished">Repousser tous les jeux et accouplements</translation>
    </message>
    <message>
        <source>&amp;Tutti</source>
        <translation type="unfinished">&amp;Tutti</translation>
    </message>
    <message>
        <source>Draw everything; the next press returns to what was drawn before</source>
        <translation type="unfinished">Tirer tout ; la pression suivante revient à ce qui était tiré avant</translation>
    </message>
    <message>
        <source>&amp;Manuals…</source>
        <translation type="unfinished">&amp;Claviers…</translation>
    </message>
    <message>
        <source>Choose which MIDI channels and devices play the manuals and the pedals</source>
        <translation type="unfinished">Choisir quels canaux et appareils MIDI jouent les claviers et le pédalier</translation>
    </message>
    <message>
        <source>&amp;Registrations</source>
        <translation type="unfinished">&amp;Registrations</translation>
    </message>
    <message>
        <source>Registration %1</source>
        <translation type="unfinished">Registration %1</translation>
    </message>
    <message>
        <source>&amp;Keep as…</source>
        <translation type="unfinished">&amp;Garder sous…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished">Re&amp;nommer</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished">&amp;Supprimer</translation>
    </message>
    <message>
        <source>Keep Registration</source>
        <translation type="unfinished">Garder la registration</translation>
    </message>
    <message>
        <source>Name of the registration:</source>
        <translation type="unfinished">Nom de la registration :</translation>
    </message>
    <message>
        <source>Rename Registration</source>
        <translation type="unfinished">Renommer la registration</translation>
    </message>
    <message>
        <source>New name of “%1”:</source>
        <translation type="unfinished">Nouveau nom de « %1 » :</translation>
    </message>
    <message>
        <source>There is another registration with the name “%1”.</source>
        <translation type="unfinished">Une autre registration porte le nom « %1 ».</translation>
    </message>
</context>
<context>
    <name>velmora::ConsolePanel</name>
    <message>
        <source>Stops</source>
        <translation type="unfinished">Jeux</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleView</name>
    <message>
        <source>Find a stop</source>
        <translation type="unfinished">Rechercher un jeu</translation>
    </message>
    <message>
        <source>Swell:</source>
        <translation type="unfinished">Expression :</translation>
    </message>
    <message>
        <source>Swell of %1</source>
        <translation type="unfinished">Expression : %1</translation>
    </message>
    <message>
        <source>How far the swell of %1 is open</source>
        <translation type="unfinished">Ouverture de la boîte expressive : %1</translation>
    </message>
</context>
<context>
    <name>velmora::ControllerLane</name>
    <message>
        <source>Click to draw how %1 moves, and drag what is there. A click with the right button deletes it. What is shown belongs to the chosen channel.</source>
        <translation type="unfinished">Cliquez pour dessiner le mouvement de « %1 » et faites glisser ce qui est là. Un clic droit l’efface. Le canal choisi est affiché.</translation>
    </message>
    <message>
        <source>Delete Controller</source>
        <translation type="unfinished">Supprimer le contrôleur</translation>
    </message>
    <message>
        <source>Move Controller</source>
        <translation type="unfinished">Déplacer le contrôleur</translation>
    </message>
    <message>
        <source>Draw Controller</source>
        <translation type="unfinished">Dessiner le contrôleur</translation>
    </message>
</context>
<context>
    <name>velmora::Desktop</name>
    <message>
        <source>%1: unrecognised file type. Velmora recognises files by their extensions, such as .mid, .scl or .sf2.</source>
        <translation type="unfinished">%1&#x202f;: type de fichier inconnu. Velmora reconnaît les fichiers à leur extension, telle que .mid, .scl ou .sf2.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">Ouvrir</translation>
    </message>
    <message>
        <source>Transposition: %1</source>
        <translation type="unfinished">Transposition&#x202f;: %1</translation>
    </message>
    <message>
        <source>The General MIDI player is silent because there is no SoundFont for it. Choose one in the preferences.</source>
        <translation type="unfinished">Le synthétiseur General MIDI est muet, faute de SoundFont. Choisissez-en une dans les préférences.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>All supported files (%1);;Instruments (%2);;Tunings (%3);;Sequences (%4);;Sessions (%5);;All files (*)</source>
        <translation type="unfinished">Tous les fichiers pris en charge (%1);;Instruments (%2);;Tempéraments (%3);;Morceaux (%4);;Sessions (%5);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation type="unfinished">Ouvrir une session</translation>
    </message>
    <message>
        <source>Sessions (%1)</source>
        <translation type="unfinished">Sessions (%1)</translation>
    </message>
    <message>
        <source>Save Session</source>
        <translation type="unfinished">Enregistrer la session</translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished">Session</translation>
    </message>
    <message>
        <source>Velmora ended while it was opening what was open last time. Open it again?</source>
        <translation type="unfinished">Velmora s’est arrêté pendant la réouverture des éléments de la dernière fois. Les rouvrir&#x202f;?</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation type="unfinished">Rouvrir</translation>
    </message>
    <message>
        <source>Start Empty</source>
        <translation type="unfinished">Démarrer à vide</translation>
    </message>
    <message>
        <source>Unsaved changes are not protected against a crash: %1</source>
        <translation type="unfinished">Les modifications non enregistrées ne sont pas protégées en cas de plantage&#x202f;: %1</translation>
    </message>
    <message>
        <source>Not everything that was open last time could be opened.
%1</source>
        <translation type="unfinished">Tout ce qui était ouvert la dernière fois n’a pas pu être rouvert.
%1</translation>
    </message>
    <message>
        <source>%1 cannot be used as the General MIDI bank. %2 is used instead. Choose another SoundFont in the preferences.</source>
        <translation type="unfinished">%1 ne peut pas servir de banque General MIDI. %2 est utilisé à la place. Choisissez une autre SoundFont dans les préférences.</translation>
    </message>
    <message>
        <source>Open Tuning</source>
        <translation type="unfinished">Ouvrir un accord</translation>
    </message>
    <message>
        <source>Tunings (%1);;All files (*)</source>
        <translation type="unfinished">Accords (%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Tuning</source>
        <translation type="unfinished">Enregistrer l’accord</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Gamme</translation>
    </message>
    <message>
        <source>Open Instrument</source>
        <translation type="unfinished">Ouvrir un instrument</translation>
    </message>
    <message>
        <source>Instruments (%1);;All files (*)</source>
        <translation type="unfinished">Instruments (%1);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>velmora::DivisionChooser</name>
    <message>
        <source>This &amp;keyboard plays:</source>
        <translation type="unfinished">Ce cla&amp;vier joue :</translation>
    </message>
    <message>
        <source>The manual that the keyboard on the screen and the letter keys play</source>
        <translation type="unfinished">Le clavier que jouent le clavier à l’écran et les touches de lettres</translation>
    </message>
</context>
<context>
    <name>velmora::Drawknob</name>
    <message>
        <source>%1, volume %2 %
A click draws it or pushes it in, a right click changes its volume</source>
        <translation type="unfinished">%1, volume %2 %
Un clic le tire ou le repousse, un clic droit change son volume</translation>
    </message>
    <message>
        <source>%1
A click draws it or pushes it in</source>
        <translation type="unfinished">%1
Un clic le tire ou le repousse</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation type="unfinished">&amp;Volume :</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1&#x202f;%</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Volume de %1</translation>
    </message>
</context>
<context>
    <name>velmora::DriftMeter</name>
    <message>
        <source>How far the pitch has drifted from where it began</source>
        <translation type="unfinished">De combien la hauteur s’est éloignée de son départ</translation>
    </message>
    <message>
        <source>Drift: %1</source>
        <translation type="unfinished">Dérive : %1</translation>
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
        <translation type="unfinished">Édition</translation>
    </message>
    <message>
        <source>Select by Voice or Velocity…</source>
        <translation type="unfinished">Sélectionner par voix ou vélocité…</translation>
    </message>
    <message>
        <source>Select the notes of a voice, of some keys and velocities</source>
        <translation type="unfinished">Sélectionner les notes d’une voix, de certaines touches et vélocités</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished">Dupliquer</translation>
    </message>
    <message>
        <source>Quantise…</source>
        <translation type="unfinished">Quantifier…</translation>
    </message>
    <message>
        <source>Move notes to the grid</source>
        <translation type="unfinished">Déplacer les notes sur la grille</translation>
    </message>
    <message>
        <source>Split Notes at the Position</source>
        <translation type="unfinished">Couper les notes à la position</translation>
    </message>
    <message>
        <source>Join Notes</source>
        <translation type="unfinished">Joindre les notes</translation>
    </message>
    <message>
        <source>Connect Notes (Legato)</source>
        <translation type="unfinished">Lier les notes (legato)</translation>
    </message>
    <message>
        <source>Move Notes an Octave Up</source>
        <translation type="unfinished">Monter les notes d’une octave</translation>
    </message>
    <message>
        <source>Move Notes an Octave Down</source>
        <translation type="unfinished">Descendre les notes d’une octave</translation>
    </message>
    <message>
        <source>Nudge Notes Later</source>
        <translation type="unfinished">Retarder un peu les notes</translation>
    </message>
    <message>
        <source>Nudge Notes Earlier</source>
        <translation type="unfinished">Avancer un peu les notes</translation>
    </message>
    <message>
        <source>Make Notes Louder</source>
        <translation type="unfinished">Notes plus fortes</translation>
    </message>
    <message>
        <source>Make Notes Softer</source>
        <translation type="unfinished">Notes plus douces</translation>
    </message>
    <message>
        <source>Hear Notes</source>
        <translation type="unfinished">Entendre les notes</translation>
    </message>
    <message>
        <source>Sound notes that are pressed or drawn</source>
        <translation type="unfinished">Faire sonner les notes cliquées ou dessinées</translation>
    </message>
    <message>
        <source>Drag Selects Notes</source>
        <translation type="unfinished">Glisser sélectionne des notes</translation>
    </message>
    <message>
        <source>Let a drag across an empty place select notes instead of a time</source>
        <translation type="unfinished">Fait que glisser sur un endroit vide sélectionne des notes et non un temps</translation>
    </message>
</context>
<context>
    <name>velmora::ExportProgress</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">Chargement de l’instrument</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Annuler</translation>
    </message>
    <message>
        <source>Export Audio</source>
        <translation type="unfinished">Exporter l’audio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1&#x202f;: %2</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 a été exporté</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 n’a pas été exporté. %2</translation>
    </message>
</context>
<context>
    <name>velmora::FallingNotes</name>
    <message>
        <source>Falling notes</source>
        <translation type="unfinished">Notes qui tombent</translation>
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
        <translation type="unfinished">syntonique (21,5 cents)</translation>
    </message>
    <message>
        <source>Pythagorean (23.5 cents)</source>
        <translation type="unfinished">pythagoricien (23,5 cents)</translation>
    </message>
    <message>
        <source> comma</source>
        <translation type="unfinished"> comma</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished">Unité :</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished">Comma</translation>
    </message>
    <message>
        <source>By which part of the comma this fifth is narrower than a pure one</source>
        <translation type="unfinished">De quelle fraction du comma cette quinte est plus étroite qu’une quinte pure</translation>
    </message>
    <message>
        <source>Takes the rest:</source>
        <translation type="unfinished">Prend le reste :</translation>
    </message>
    <message>
        <source>The fifths of this tuning are no parts of a comma. A change here replaces them all.</source>
        <translation type="unfinished">Les quintes de cet accord ne sont pas des fractions de comma. Une modification ici les remplace toutes.</translation>
    </message>
    <message>
        <source>The fifth %1 differs from a pure one by %2 cents.</source>
        <translation type="unfinished">La quinte %1 s’écarte de %2 cents d’une quinte pure.</translation>
    </message>
</context>
<context>
    <name>velmora::FitDialog</name>
    <message>
        <source>The notes with the bars and beats that were found</source>
        <translation type="unfinished">Les notes avec les mesures et les temps trouvés</translation>
    </message>
    <message>
        <source>Fit to Grid</source>
        <translation type="unfinished">Ajuster à la grille</translation>
    </message>
    <message>
        <source>These bars and beats were found. Correct them if they are not yours; the piece is moved to them only then.</source>
        <translation type="unfinished">Ces mesures et ces temps ont été trouvés. Corrigez-les si ce ne sont pas les vôtres ; le morceau n’y est ajusté qu’ensuite.</translation>
    </message>
    <message>
        <source>&amp;Half as Fast</source>
        <translation type="unfinished">&amp;Deux fois moins vite</translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation type="unfinished">Deux fois plus &amp;vite</translation>
    </message>
    <message>
        <source>Tempo:</source>
        <translation type="unfinished">Tempo :</translation>
    </message>
    <message>
        <source>&amp;Beats in a bar:</source>
        <translation type="unfinished">&amp;Temps par mesure :</translation>
    </message>
    <message>
        <source>&amp;First bar begins at beat:</source>
        <translation type="unfinished">La &amp;première mesure commence au temps :</translation>
    </message>
    <message>
        <source>%1 beats per minute</source>
        <translation type="unfinished">%1 battements par minute</translation>
    </message>
    <message>
        <source>Velmora finds a tempo in eight notes or more, over four hours at most.</source>
        <translation type="unfinished">Velmora trouve un tempo dans huit notes ou plus, sur quatre heures au plus.</translation>
    </message>
</context>
<context>
    <name>velmora::GlideBar</name>
    <message>
        <source>Only new notes</source>
        <translation type="unfinished">Seulement les nouvelles notes</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>How long notes that sound take to reach their new pitch when the tuning changes; with 0 they jump</source>
        <translation type="unfinished">Le temps que mettent les notes qui sonnent à atteindre leur nouvelle hauteur quand le tempérament change ; avec 0, elles sautent</translation>
    </message>
    <message>
        <source>Notes that sound keep their pitch until they are struck again</source>
        <translation type="unfinished">Les notes qui sonnent gardent leur hauteur jusqu’à ce qu’elles soient rejouées</translation>
    </message>
    <message>
        <source>Glide:</source>
        <translation type="unfinished">Glissement :</translation>
    </message>
</context>
<context>
    <name>velmora::GuideWindow</name>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation type="unfinished">Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished">Sommaire</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished">Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished">Suivant</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished">Occurrence précédente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished">Occurrence suivante</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation type="unfinished">&amp;Rechercher&#x202f;:</translation>
    </message>
    <message>
        <source>Find words in the guide (%1)</source>
        <translation type="unfinished">Rechercher des mots dans le guide (%1)</translation>
    </message>
    <message>
        <source>“%1” is not in the guide.</source>
        <translation type="unfinished">«&#x202f;%1&#x202f;» ne figure pas dans le guide.</translation>
    </message>
    <message>
        <source>No program could open %1.</source>
        <translation type="unfinished">Aucun programme n’a pu ouvrir %1.</translation>
    </message>
</context>
<context>
    <name>velmora::HelpButton</name>
    <message>
        <source>Help</source>
        <translation type="unfinished">Aide</translation>
    </message>
    <message>
        <source>Show what the guide says about this</source>
        <translation type="unfinished">Afficher ce qu’en dit le guide</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentMenu</name>
    <message>
        <source>Instrument: %1</source>
        <translation type="unfinished">Instrument&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1
Choose another instrument, open or unload one</source>
        <translation type="unfinished">%1
Choisir un autre instrument, en ouvrir ou en décharger un</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">&amp;Ouvrir un instrument…</translation>
    </message>
    <message>
        <source>&amp;Unload %1</source>
        <translation type="unfinished">&amp;Décharger %1</translation>
    </message>
    <message>
        <source>Import &amp;Report of %1…</source>
        <translation type="unfinished">&amp;Rapport d’importation de %1…</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentOpener</name>
    <message>
        <source>%1: Velmora cannot play instruments of this format. Convert it to a SoundFont (.sf2), then open that.</source>
        <translation type="unfinished">%1&#x202f;: Velmora ne peut pas jouer les instruments de ce format. Convertissez-le en SoundFont (.sf2), puis ouvrez celle-ci.</translation>
    </message>
    <message>
        <source>%1: %2; see Import Report in the Instruments window</source>
        <translation type="unfinished">%1&#x202f;: %2&#x202f;; voir «&#x202f;Rapport d’importation&#x202f;» dans la fenêtre «&#x202f;Instruments&#x202f;»</translation>
    </message>
    <message numerus="yes">
        <source>%1 holds %n instrument(s). The Instrument menu lists them.</source>
        <translation type="unfinished">
            <numerusform>%1 contient %n instrument. Le menu Instrument le montre.</numerusform>
            <numerusform>%1 contient %n instruments. Le menu Instrument les montre.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentPanel</name>
    <message>
        <source>Memory used by the samples of this instrument</source>
        <translation type="unfinished">Mémoire occupée par les échantillons de cet instrument</translation>
    </message>
    <message>
        <source>Usage:  %1</source>
        <translation type="unfinished">Mémoire&#x202f;:  %1</translation>
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
        <translation type="unfinished">Déchargé&#x202f;: sélectionnez-le pour le recharger</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrument</translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished">Taille</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsWindow</name>
    <message>
        <source>&amp;Unload</source>
        <translation type="unfinished">&amp;Décharger</translation>
    </message>
    <message>
        <source>Import &amp;Report…</source>
        <translation type="unfinished">&amp;Rapport d’importation…</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation type="unfinished">Instruments</translation>
    </message>
    <message>
        <source>Loaded instruments</source>
        <translation type="unfinished">Instruments chargés</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Ouvrir une SoundFont, une banque GigaSampler ou un orgue</translation>
    </message>
    <message>
        <source>Free the memory that the samples of this instrument use</source>
        <translation type="unfinished">Libérer la mémoire occupée par les échantillons de cet instrument</translation>
    </message>
    <message>
        <source>Show what was imported and what was left out</source>
        <translation type="unfinished">Afficher ce qui a été importé et ce qui a été ignoré</translation>
    </message>
</context>
<context>
    <name>velmora::Interval</name>
    <message>
        <source>Unison</source>
        <translation type="unfinished">Unisson</translation>
    </message>
    <message>
        <source>Semitone</source>
        <translation type="unfinished">Demi-ton</translation>
    </message>
    <message>
        <source>Small whole tone</source>
        <translation type="unfinished">Ton mineur</translation>
    </message>
    <message>
        <source>Whole tone</source>
        <translation type="unfinished">Ton</translation>
    </message>
    <message>
        <source>Septimal whole tone</source>
        <translation type="unfinished">Ton septimal</translation>
    </message>
    <message>
        <source>Septimal minor third</source>
        <translation type="unfinished">Tierce mineure septimale</translation>
    </message>
    <message>
        <source>Minor third</source>
        <translation type="unfinished">Tierce mineure</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">Tierce majeure</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation type="unfinished">Quarte</translation>
    </message>
    <message>
        <source>Small tritone</source>
        <translation type="unfinished">Petit triton</translation>
    </message>
    <message>
        <source>Large tritone</source>
        <translation type="unfinished">Grand triton</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">Quinte</translation>
    </message>
    <message>
        <source>Minor sixth</source>
        <translation type="unfinished">Sixte mineure</translation>
    </message>
    <message>
        <source>Major sixth</source>
        <translation type="unfinished">Sixte majeure</translation>
    </message>
    <message>
        <source>Septimal major sixth</source>
        <translation type="unfinished">Sixte majeure septimale</translation>
    </message>
    <message>
        <source>Natural seventh</source>
        <translation type="unfinished">Septième naturelle</translation>
    </message>
    <message>
        <source>Small minor seventh</source>
        <translation type="unfinished">Petite septième mineure</translation>
    </message>
    <message>
        <source>Minor seventh</source>
        <translation type="unfinished">Septième mineure</translation>
    </message>
    <message>
        <source>Major seventh</source>
        <translation type="unfinished">Septième majeure</translation>
    </message>
    <message>
        <source>Octave</source>
        <translation type="unfinished">Octave</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 majeur</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1 mineur</translation>
    </message>
    <message>
        <source>%1 diminished</source>
        <translation type="unfinished">%1 diminué</translation>
    </message>
    <message>
        <source>%1 augmented</source>
        <translation type="unfinished">%1 augmenté</translation>
    </message>
    <message>
        <source>%1 suspended fourth</source>
        <translation type="unfinished">%1 avec quarte suspendue</translation>
    </message>
    <message>
        <source>%1 suspended second</source>
        <translation type="unfinished">%1 avec seconde suspendue</translation>
    </message>
    <message>
        <source>%1 dominant seventh</source>
        <translation type="unfinished">%1 septième de dominante</translation>
    </message>
    <message>
        <source>%1 major seventh</source>
        <translation type="unfinished">%1 septième majeure</translation>
    </message>
    <message>
        <source>%1 minor seventh</source>
        <translation type="unfinished">%1 mineur septième</translation>
    </message>
    <message>
        <source>%1 minor with a major seventh</source>
        <translation type="unfinished">%1 mineur avec septième majeure</translation>
    </message>
    <message>
        <source>%1 half-diminished seventh</source>
        <translation type="unfinished">%1 septième demi-diminuée</translation>
    </message>
    <message>
        <source>%1 diminished seventh</source>
        <translation type="unfinished">%1 septième diminuée</translation>
    </message>
    <message>
        <source>%1 augmented sixth</source>
        <translation type="unfinished">%1 sixte augmentée</translation>
    </message>
    <message>
        <source>%1, root position</source>
        <translation type="unfinished">%1, état fondamental</translation>
    </message>
    <message>
        <source>%1, first inversion</source>
        <translation type="unfinished">%1, premier renversement</translation>
    </message>
    <message>
        <source>%1, second inversion</source>
        <translation type="unfinished">%1, deuxième renversement</translation>
    </message>
    <message>
        <source>%1, third inversion</source>
        <translation type="unfinished">%1, troisième renversement</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation type="unfinished">%1 %2/%3</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n octave(s)</source>
        <translation type="unfinished">
            <numerusform>%1 et %n octave</numerusform>
            <numerusform>%1 et %n octaves</numerusform>
        </translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">aucun</translation>
    </message>
    <message>
        <source>nearly pure</source>
        <translation type="unfinished">presque pur</translation>
    </message>
    <message>
        <source>tempered</source>
        <translation type="unfinished">tempéré</translation>
    </message>
    <message>
        <source>rough</source>
        <translation type="unfinished">rude</translation>
    </message>
</context>
<context>
    <name>velmora::KeyRuler</name>
    <message>
        <source>Key names</source>
        <translation type="unfinished">Noms des touches</translation>
    </message>
</context>
<context>
    <name>velmora::KeyboardView</name>
    <message>
        <source>Piano keyboard</source>
        <translation type="unfinished">Clavier de piano</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation type="unfinished">fausse</translation>
    </message>
    <message>
        <source>to be played</source>
        <translation type="unfinished">à jouer</translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished">juste</translation>
    </message>
    <message>
        <source>held</source>
        <translation type="unfinished">tenue</translation>
    </message>
</context>
<context>
    <name>velmora::Lanes</name>
    <message>
        <source>&amp;No Lane</source>
        <translation type="unfinished">&amp;Aucune piste</translation>
    </message>
    <message>
        <source>&amp;Velocity</source>
        <translation type="unfinished">&amp;Vélocités</translation>
    </message>
    <message>
        <source>&amp;Tempo and Signatures</source>
        <translation type="unfinished">&amp;Tempo et mesures</translation>
    </message>
    <message>
        <source>Sustain Pedal</source>
        <translation type="unfinished">Pédale forte</translation>
    </message>
    <message>
        <source>Pitch Wheel</source>
        <translation type="unfinished">Molette de hauteur</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation type="unfinished">Modulation</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation type="unfinished">Expression</translation>
    </message>
</context>
<context>
    <name>velmora::LanguageFields</name>
    <message>
        <source>The language changes when you start Velmora again.</source>
        <translation type="unfinished">La langue changera au prochain démarrage de Velmora.</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished">Celle du bureau</translation>
    </message>
    <message>
        <source>The language of all menus and windows</source>
        <translation type="unfinished">La langue de tous les menus et fenêtres</translation>
    </message>
    <message>
        <source>As usual in the language</source>
        <translation type="unfinished">Selon l’usage de la langue</translation>
    </message>
    <message>
        <source>International: C D E F G A B</source>
        <translation type="unfinished">Internationaux&#x202f;: C D E F G A B</translation>
    </message>
    <message>
        <source>German: C D E F G A H</source>
        <translation type="unfinished">Allemands&#x202f;: C D E F G A H</translation>
    </message>
    <message>
        <source>Solfège: Do Re Mi Fa Sol La Si</source>
        <translation type="unfinished">Solfège&#x202f;: Do Ré Mi Fa Sol La Si</translation>
    </message>
    <message>
        <source>The names of the keys and notes in all windows</source>
        <translation type="unfinished">Les noms des touches et des notes dans toutes les fenêtres</translation>
    </message>
    <message>
        <source>L&amp;anguage:</source>
        <translation type="unfinished">Lang&amp;ue&#x202f;:</translation>
    </message>
    <message>
        <source>Not&amp;e names:</source>
        <translation type="unfinished">Noms des no&amp;tes&#x202f;:</translation>
    </message>
</context>
<context>
    <name>velmora::LearnMenu</name>
    <message>
        <source>&amp;Learn MIDI Controller…</source>
        <translation type="unfinished">&amp;Apprendre un contrôleur MIDI…</translation>
    </message>
    <message>
        <source>Learn MIDI Controller for %1…</source>
        <translation type="unfinished">Apprendre un contrôleur MIDI pour %1…</translation>
    </message>
    <message>
        <source>&amp;Forget MIDI Controller</source>
        <translation type="unfinished">&amp;Oublier le contrôleur MIDI</translation>
    </message>
    <message>
        <source>Forget MIDI Controller for %1</source>
        <translation type="unfinished">Oublier le contrôleur MIDI de %1</translation>
    </message>
    <message>
        <source>Learn MIDI Controller</source>
        <translation type="unfinished">Apprendre un contrôleur MIDI</translation>
    </message>
    <message>
        <source>Waiting for a MIDI controller for “%1”.
Move a controller, or press a button or a key, on a MIDI device.</source>
        <translation type="unfinished">En attente d’un contrôleur MIDI pour «&#x202f;%1&#x202f;».
Sur un appareil MIDI, actionnez un contrôleur ou appuyez sur un bouton ou une touche.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1&#x202f;: %2</translation>
    </message>
    <message>
        <source>MIDI key %1 on channel %2</source>
        <translation type="unfinished">Touche MIDI %1 sur le canal %2</translation>
    </message>
    <message>
        <source>MIDI controller %1 on channel %2</source>
        <translation type="unfinished">Contrôleur MIDI %1 sur le canal %2</translation>
    </message>
</context>
<context>
    <name>velmora::LevelMeter</name>
    <message>
        <source>Level</source>
        <translation type="unfinished">Niveau</translation>
    </message>
</context>
<context>
    <name>velmora::LyricsPanel</name>
    <message>
        <source>Lyrics</source>
        <translation type="unfinished">Paroles</translation>
    </message>
</context>
<context>
    <name>velmora::ManualsDialog</name>
    <message>
        <source>Manuals</source>
        <translation type="unfinished">Claviers</translation>
    </message>
    <message>
        <source>What no line names plays the lowest manual. The channels of pieces count as those of all devices.</source>
        <translation type="unfinished">Ce qu’aucune ligne ne nomme joue le clavier le plus bas. Les canaux des morceaux comptent comme ceux de tous les appareils.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Appareil</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canal</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation type="unfinished">Joue</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation type="unfinished">&amp;Ajouter une ligne</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation type="unfinished">Tous les appareils</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Supprimer</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation type="unfinished">Tous les canaux</translation>
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
        <translation type="unfinished">Indicateurs</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished">%1 :</translation>
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
        <translation type="unfinished">Branchez un appareil MIDI et il apparaîtra ici.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">Appareil</translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished">Actif</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">Canal</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished">Touches</translation>
    </message>
    <message>
        <source>MIDI devices</source>
        <translation type="unfinished">Appareils MIDI</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation type="unfinished">%1 (non connecté)</translation>
    </message>
    <message>
        <source>Whether the device is heard</source>
        <translation type="unfinished">Détermine si l’appareil est écouté</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Tous</translation>
    </message>
    <message>
        <source>The MIDI channel to listen to</source>
        <translation type="unfinished">Le canal MIDI à écouter</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> demi-tons</translation>
    </message>
    <message>
        <source>How much higher the keys sound</source>
        <translation type="unfinished">De combien les touches sonnent plus haut</translation>
    </message>
</context>
<context>
    <name>velmora::NowTab</name>
    <message>
        <source>Notes</source>
        <translation type="unfinished">Notes</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished">Intervalle</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">Cents</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">Écart au pur</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">Battements/s</translation>
    </message>
    <message>
        <source>Sounding intervals</source>
        <translation type="unfinished">Intervalles qui sonnent</translation>
    </message>
    <message>
        <source>Show on the keys how pure they are</source>
        <translation type="unfinished">Montrer sur les touches leur pureté</translation>
    </message>
    <message>
        <source>Colour each sounding key by its interval that is farthest from pure with another one</source>
        <translation type="unfinished">Colorer chaque touche qui sonne selon son intervalle avec une autre le plus éloigné du pur</translation>
    </message>
    <message>
        <source>Play a chord</source>
        <translation type="unfinished">Jouez un accord</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <translation type="unfinished">%1–%2</translation>
    </message>
    <message>
        <source>The music centres on %1 (%2 fifths from C).</source>
        <translation type="unfinished">La musique est centrée sur %1 (%2 quintes de do).</translation>
    </message>
    <message>
        <source>%1, not %2: %3 fifths from the centre instead of %4</source>
        <translation type="unfinished">%1, non %2 : à %3 quintes du centre au lieu de %4</translation>
    </message>
    <message>
        <source>Each key keeps its usual spelling until another one is forced.</source>
        <translation type="unfinished">Chaque touche garde son orthographe habituelle jusqu’à ce qu’une autre soit imposée.</translation>
    </message>
    <message>
        <source>Drift from the start: %1 cents</source>
        <translation type="unfinished">Dérive depuis le début : %1 cents</translation>
    </message>
</context>
<context>
    <name>velmora::OutlyingNotes</name>
    <message>
        <source>The keyboard does not show these keys. Click to go to the first note.</source>
        <translation type="unfinished">Le clavier ne montre pas ces touches. Cliquez pour aller à la première note.</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) below %1</source>
        <translation type="unfinished">
            <numerusform>%n note au-dessous de %1</numerusform>
            <numerusform>%n notes au-dessous de %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) above %1</source>
        <translation type="unfinished">
            <numerusform>%n note au-dessus de %1</numerusform>
            <numerusform>%n notes au-dessus de %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::PlayingControls</name>
    <message>
        <source>Transpose down (Ctrl+Shift+Down)</source>
        <translation type="unfinished">Transposer plus bas (Ctrl+Maj+Bas)</translation>
    </message>
    <message>
        <source>Transpose up (Ctrl+Shift+Up)</source>
        <translation type="unfinished">Transposer plus haut (Ctrl+Maj+Haut)</translation>
    </message>
    <message>
        <source>Linear touch</source>
        <translation type="unfinished">Toucher linéaire</translation>
    </message>
    <message>
        <source>Soft touch</source>
        <translation type="unfinished">Toucher doux</translation>
    </message>
    <message>
        <source>Hard touch</source>
        <translation type="unfinished">Toucher dur</translation>
    </message>
    <message>
        <source>Fixed touch</source>
        <translation type="unfinished">Toucher fixe</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Toucher</translation>
    </message>
    <message>
        <source>How loud your touch on a MIDI keyboard sounds: soft makes a light touch louder, hard asks for a strong one, fixed ignores the touch</source>
        <translation type="unfinished">Intensité que produit votre toucher sur un clavier MIDI&#x202f;: doux renforce un toucher léger, dur en demande un vigoureux, fixe ignore le toucher</translation>
    </message>
    <message>
        <source>Transposition</source>
        <translation type="unfinished">Transposition</translation>
    </message>
    <message>
        <source>The transposition of the MIDI keyboards in semitones</source>
        <translation type="unfinished">La transposition des claviers MIDI en demi-tons</translation>
    </message>
    <message>
        <source>semitones</source>
        <translation type="unfinished">demi-tons</translation>
    </message>
</context>
<context>
    <name>velmora::PlayingPane</name>
    <message>
        <source>How much higher than written the keys of MIDI devices sound</source>
        <translation type="unfinished">De combien les touches des appareils MIDI sonnent plus haut que la note écrite</translation>
    </message>
    <message>
        <source>How far the pitch wheel bends up and down; with 0 it does nothing</source>
        <translation type="unfinished">Étendue de la molette de pitch bend vers le haut et vers le bas&#x202f;; à 0, elle est sans effet</translation>
    </message>
    <message>
        <source>Pl&amp;ain reading of MIDI devices</source>
        <translation type="unfinished">&amp;Lecture simple des appareils MIDI</translation>
    </message>
    <message>
        <source>Linear: as the keyboard sends it</source>
        <translation type="unfinished">Linéaire&#x202f;: tel que le clavier l’envoie</translation>
    </message>
    <message>
        <source>Soft: a light touch is louder</source>
        <translation type="unfinished">Doux&#x202f;: un toucher léger sonne plus fort</translation>
    </message>
    <message>
        <source>Hard: only a strong touch is loud</source>
        <translation type="unfinished">Dur&#x202f;: seul un toucher vigoureux sonne fort</translation>
    </message>
    <message>
        <source>Fixed: always the same</source>
        <translation type="unfinished">Fixe&#x202f;: toujours le même</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">Toucher</translation>
    </message>
    <message>
        <source>Only notes and volumes count: no pedals, wheels, programs or learned controllers, no touch and no transposition</source>
        <translation type="unfinished">Seuls comptent les notes et les volumes&#x202f;: ni pédales, ni molettes, ni programmes, ni contrôleurs appris, ni toucher, ni transposition</translation>
    </message>
    <message>
        <source>&amp;Touch:</source>
        <translation type="unfinished">&amp;Toucher&#x202f;:</translation>
    </message>
    <message>
        <source>T&amp;ransposition:</source>
        <translation type="unfinished">T&amp;ransposition&#x202f;:</translation>
    </message>
    <message>
        <source>Pitch &amp;wheel:</source>
        <translation type="unfinished">Molette de &amp;pitch bend&#x202f;:</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> demi-tons</translation>
    </message>
    <message>
        <source>Correct the ban&amp;k&apos;s own tuning</source>
        <translation type="unfinished">Corriger l’accord propre de la &amp;banque</translation>
    </message>
    <message>
        <source>Keys that a SoundFont has out of tune are measured when a program is first used, and corrected</source>
        <translation type="unfinished">Les touches désaccordées d’une SoundFont sont mesurées à la première utilisation d’un programme, puis corrigées</translation>
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
        <translation type="unfinished">Ralentir après des fautes</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Repeat bars</source>
        <translation type="unfinished">Répéter des mesures</translation>
    </message>
    <message>
        <source>Show falling notes</source>
        <translation type="unfinished">Afficher les notes qui tombent</translation>
    </message>
    <message>
        <source>Both hands</source>
        <translation type="unfinished">Les deux mains</translation>
    </message>
    <message>
        <source>Right hand</source>
        <translation type="unfinished">Main droite</translation>
    </message>
    <message>
        <source>Left hand</source>
        <translation type="unfinished">Main gauche</translation>
    </message>
    <message>
        <source>The lowest key of the right hand</source>
        <translation type="unfinished">La touche la plus grave de la main droite</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voix</translation>
    </message>
    <message>
        <source>The voices that you play; the others play along</source>
        <translation type="unfinished">Les voix que vous jouez ; les autres vous accompagnent</translation>
    </message>
    <message>
        <source>What a pass without a mistake adds to the speed</source>
        <translation type="unfinished">Ce qu’un passage sans faute ajoute à la vitesse</translation>
    </message>
    <message>
        <source>How early a key may be, and how long a chord may be rolled</source>
        <translation type="unfinished">De combien une touche peut être en avance, et combien de temps un accord peut être arpégé</translation>
    </message>
    <message>
        <source>to</source>
        <comment>bars</comment>
        <translation type="unfinished">à</translation>
    </message>
    <message>
        <source>First bar</source>
        <translation type="unfinished">Première mesure</translation>
    </message>
    <message>
        <source>Last bar</source>
        <translation type="unfinished">Dernière mesure</translation>
    </message>
    <message>
        <source>Play:</source>
        <translation type="unfinished">Jouer :</translation>
    </message>
    <message>
        <source>Split at:</source>
        <translation type="unfinished">Diviser à :</translation>
    </message>
    <message>
        <source>Voices:</source>
        <translation type="unfinished">Voix :</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation type="unfinished">Vitesse :</translation>
    </message>
    <message>
        <source>Faster by:</source>
        <translation type="unfinished">Plus rapide de :</translation>
    </message>
    <message>
        <source>Tolerance:</source>
        <translation type="unfinished">Tolérance :</translation>
    </message>
    <message>
        <source>Bars:</source>
        <translation type="unfinished">Mesures :</translation>
    </message>
    <message>
        <source>There are no notes to practise. Choose other voices, another hand or other bars.</source>
        <translation type="unfinished">Il n’y a pas de notes à exercer. Choisissez d’autres voix, une autre main ou d’autres mesures.</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Voix %1</translation>
    </message>
    <message>
        <source>Stop Practising</source>
        <translation type="unfinished">Arrêter l’exercice</translation>
    </message>
    <message>
        <source>Practise</source>
        <translation type="unfinished">S’exercer</translation>
    </message>
    <message>
        <source>Wait for missing keys</source>
        <translation type="unfinished">Attendre les touches manquantes</translation>
    </message>
    <message>
        <source>If it does not wait, the piece goes on, and what you leave out is missed</source>
        <translation type="unfinished">Sans attente, le morceau continue et ce que vous omettez compte comme manqué</translation>
    </message>
    <message>
        <source>Right: %1, wrong: %2, missed: %3, passes: %4</source>
        <translation type="unfinished">Justes : %1, fausses : %2, manquées : %3, passages : %4</translation>
    </message>
</context>
<context>
    <name>velmora::PracticePicture</name>
    <message>
        <source>early</source>
        <translation type="unfinished">en avance</translation>
    </message>
    <message>
        <source>late</source>
        <translation type="unfinished">en retard</translation>
    </message>
    <message>
        <source>How early or late the keys were, in ms</source>
        <translation type="unfinished">Avance ou retard des touches, en ms</translation>
    </message>
    <message>
        <source>Right, wrong (hatched) and missed (empty) keys by bar</source>
        <translation type="unfinished">Touches justes, fausses (hachurées) et manquées (vides) par mesure</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeResults</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Sans titre</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>The result of the practice was not kept: %1</source>
        <translation type="unfinished">Le résultat de l’exercice n’a pas été conservé : %1</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished">Enregistrer l’image</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Exercice</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeWindow</name>
    <message>
        <source>Practice sessions</source>
        <translation type="unfinished">Séances d’exercice</translation>
    </message>
    <message>
        <source>Result by bar and by time</source>
        <translation type="unfinished">Résultat par mesure et par temps</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation type="unfinished">Enregistrer l’&amp;image…</translation>
    </message>
    <message>
        <source>Practice: %1</source>
        <translation type="unfinished">Exercice : %1</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <comment>a time, a speed in percent</comment>
        <translation type="unfinished">%1 à %2 %</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms early.</source>
        <translation type="unfinished">Le plus souvent, les touches étaient en avance de %1 ms.</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms late.</source>
        <translation type="unfinished">Le plus souvent, les touches étaient en retard de %1 ms.</translation>
    </message>
    <message>
        <source>Right keys: %1 (%2 early, %3 late), wrong keys: %4, missed keys: %5. Passes: %6, without a mistake: %7.</source>
        <translation type="unfinished">Touches justes : %1 (%2 en avance, %3 en retard), fausses : %4, manquées : %5. Passages : %6, sans faute : %7.</translation>
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
        <translation type="unfinished">Préférences</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation type="unfinished">Volets</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished">&amp;Général</translation>
    </message>
    <message>
        <source>C&amp;olors</source>
        <translation type="unfinished">&amp;Couleurs</translation>
    </message>
    <message>
        <source>&amp;MIDI</source>
        <translation type="unfinished">&amp;MIDI</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation type="unfinished">S&amp;on</translation>
    </message>
    <message>
        <source>Key &amp;width:</source>
        <translation type="unfinished">&amp;Largeur des touches&#x202f;:</translation>
    </message>
    <message>
        <source>The width of a semitone on the keyboard and in the piano roll</source>
        <translation type="unfinished">La largeur d’un demi-ton sur le clavier et dans le piano roll</translation>
    </message>
    <message>
        <source>&amp;Step height:</source>
        <translation type="unfinished">&amp;Hauteur des pas&#x202f;:</translation>
    </message>
    <message>
        <source>The height of a step, the distance between grid lines, in the piano roll</source>
        <translation type="unfinished">La hauteur d’un pas, l’écart entre deux lignes de la grille, dans le piano roll</translation>
    </message>
    <message>
        <source>&amp;Lowest key:</source>
        <translation type="unfinished">Touche la plus gra&amp;ve&#x202f;:</translation>
    </message>
    <message>
        <source>The first key of the keyboard: a note name, such as A0, or a MIDI key number</source>
        <translation type="unfinished">La première touche du clavier&#x202f;: un nom de note, tel que La0, ou un numéro de touche MIDI</translation>
    </message>
    <message>
        <source>&amp;Highest key:</source>
        <translation type="unfinished">Touche la plus &amp;aiguë&#x202f;:</translation>
    </message>
    <message>
        <source>The last key of the keyboard: a note name, such as C8, or a MIDI key number</source>
        <translation type="unfinished">La dernière touche du clavier&#x202f;: un nom de note, tel que Do8, ou un numéro de touche MIDI</translation>
    </message>
    <message>
        <source>Show note &amp;names on the C keys</source>
        <translation type="unfinished">Afficher les &amp;noms de notes sur les touches de do</translation>
    </message>
    <message>
        <source>General MIDI bank:</source>
        <translation type="unfinished">Banque General MIDI&#x202f;:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation type="unfinished">Par défaut du système</translation>
    </message>
    <message>
        <source>General MIDI bank</source>
        <translation type="unfinished">Banque General MIDI</translation>
    </message>
    <message>
        <source>Choose a SoundFont for the General MIDI player</source>
        <translation type="unfinished">Choisir une SoundFont pour le synthétiseur General MIDI</translation>
    </message>
    <message>
        <source>Use &amp;Default</source>
        <translation type="unfinished">Par &amp;défaut</translation>
    </message>
    <message>
        <source>Use the system&apos;s General MIDI bank</source>
        <translation type="unfinished">Utiliser la banque General MIDI du système</translation>
    </message>
    <message>
        <source>Choose a General MIDI Bank</source>
        <translation type="unfinished">Choisir une banque General MIDI</translation>
    </message>
    <message>
        <source>SoundFont banks (*.sf2 *.sf3)</source>
        <translation type="unfinished">Banques SoundFont (*.sf2 *.sf3)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished">Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>A&amp;t the start:</source>
        <translation type="unfinished">Au déma&amp;rrage&#x202f;:</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation type="unfinished">Démarrer à vide</translation>
    </message>
    <message>
        <source>Start as last time</source>
        <translation type="unfinished">Reprendre comme la dernière fois</translation>
    </message>
    <message>
        <source>Whether the instruments, the tuning and the pieces that are open when you quit are opened again</source>
        <translation type="unfinished">Détermine si les instruments, le tempérament et les morceaux ouverts en quittant sont rouverts</translation>
    </message>
    <message>
        <source>Short&amp;cuts</source>
        <translation type="unfinished">Raccourc&amp;is</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">&amp;Parcourir…</translation>
    </message>
</context>
<context>
    <name>velmora::ProgramList</name>
    <message>
        <source>Piano</source>
        <translation type="unfinished">Pianos</translation>
    </message>
    <message>
        <source>Chromatic Percussion</source>
        <translation type="unfinished">Percussions mélodiques</translation>
    </message>
    <message>
        <source>Organ</source>
        <translation type="unfinished">Orgues</translation>
    </message>
    <message>
        <source>Guitar</source>
        <translation type="unfinished">Guitares</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation type="unfinished">Basses</translation>
    </message>
    <message>
        <source>Strings</source>
        <translation type="unfinished">Cordes</translation>
    </message>
    <message>
        <source>Ensemble</source>
        <translation type="unfinished">Ensembles</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation type="unfinished">Cuivres</translation>
    </message>
    <message>
        <source>Reed</source>
        <translation type="unfinished">Anches</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation type="unfinished">Flûtes</translation>
    </message>
    <message>
        <source>Synth Lead</source>
        <translation type="unfinished">Solos de synthé</translation>
    </message>
    <message>
        <source>Synth Pad</source>
        <translation type="unfinished">Nappes de synthé</translation>
    </message>
    <message>
        <source>Synth Effects</source>
        <translation type="unfinished">Effets de synthé</translation>
    </message>
    <message>
        <source>Ethnic</source>
        <translation type="unfinished">Instruments du monde</translation>
    </message>
    <message>
        <source>Percussive</source>
        <translation type="unfinished">Percussions</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation type="unfinished">Bruitages</translation>
    </message>
    <message>
        <source>Find a program</source>
        <translation type="unfinished">Rechercher un programme</translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished">Programme</translation>
    </message>
    <message>
        <source>Drum kits</source>
        <translation type="unfinished">Batteries</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation type="unfinished">Banque %1</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressWindow</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished">Chargement</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished">Progression</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished">Annulation…</translation>
    </message>
</context>
<context>
    <name>velmora::PurityLegend</name>
    <message>
        <source>Legend</source>
        <translation type="unfinished">Légende</translation>
    </message>
    <message>
        <source>%1: up to %2 cents</source>
        <translation type="unfinished">%1 : jusqu’à %2 cents</translation>
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
        <translation type="unfinished">Déplacer aussi les f&amp;ins des notes</translation>
    </message>
    <message>
        <source>Quantise</source>
        <translation type="unfinished">Quantifier</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>1/%1 triplets</source>
        <translation type="unfinished">triolets de 1/%1</translation>
    </message>
    <message>
        <source>Where the second of two units begins: 50 % is even, 67 % triplets</source>
        <translation type="unfinished">Où commence la seconde de deux unités : 50 % est régulier, 67 % des triolets</translation>
    </message>
    <message numerus="yes">
        <source>Moves all %n note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Déplace la seule note sur la grille.</numerusform>
            <numerusform>Déplace les %n notes sur la grille.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves %n selected note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>Déplace %n note sélectionnée sur la grille.</numerusform>
            <numerusform>Déplace %n notes sélectionnées sur la grille.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Grid:</source>
        <translation type="unfinished">&amp;Grille :</translation>
    </message>
    <message>
        <source>&amp;Strength:</source>
        <translation type="unfinished">&amp;Force :</translation>
    </message>
    <message>
        <source>S&amp;wing:</source>
        <translation type="unfinished">S&amp;wing :</translation>
    </message>
</context>
<context>
    <name>velmora::RecordingActions</name>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Morceau</translation>
    </message>
    <message>
        <source>&amp;Metronome</source>
        <translation type="unfinished">&amp;Métronome</translation>
    </message>
    <message>
        <source>Click on the beats</source>
        <translation type="unfinished">Bat les temps par un clic</translation>
    </message>
    <message>
        <source>P&amp;unch In</source>
        <translation type="unfinished">P&amp;unch-in</translation>
    </message>
    <message>
        <source>Record only in the selected time, and replace what the channel has there</source>
        <translation type="unfinished">N’enregistre que dans le temps sélectionné et remplace ce que le canal y contient</translation>
    </message>
    <message>
        <source>Metronome and Count-&amp;In</source>
        <translation type="unfinished">Métronome et déc&amp;ompte</translation>
    </message>
    <message>
        <source>&amp;Takes</source>
        <translation type="unfinished">Pr&amp;ises</translation>
    </message>
    <message>
        <source>Metronome</source>
        <translation type="unfinished">Métronome</translation>
    </message>
    <message>
        <source>While Recording and Playing</source>
        <translation type="unfinished">À l’enregistrement et à la lecture</translation>
    </message>
    <message>
        <source>Only While Recording</source>
        <translation type="unfinished">Seulement à l’enregistrement</translation>
    </message>
    <message>
        <source>Only While Playing</source>
        <translation type="unfinished">Seulement à la lecture</translation>
    </message>
    <message>
        <source>Click Between the Beats</source>
        <translation type="unfinished">Clic entre les temps</translation>
    </message>
    <message>
        <source>Count-In</source>
        <translation type="unfinished">Décompte</translation>
    </message>
    <message>
        <source>No Count-In</source>
        <translation type="unfinished">Sans décompte</translation>
    </message>
    <message>
        <source>One Bar</source>
        <translation type="unfinished">Une mesure</translation>
    </message>
    <message>
        <source>Two Bars</source>
        <translation type="unfinished">Deux mesures</translation>
    </message>
    <message>
        <source>Volume of the metronome</source>
        <translation type="unfinished">Volume du métronome</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished">&amp;Volume</translation>
    </message>
    <message numerus="yes">
        <source>Take %1: %n note(s)</source>
        <translation type="unfinished">
            <numerusform>Prise %1 : %n note</numerusform>
            <numerusform>Prise %1 : %n notes</numerusform>
        </translation>
    </message>
    <message>
        <source>Fit to Grid…</source>
        <translation type="unfinished">Ajuster à la grille…</translation>
    </message>
    <message>
        <source>Find the tempo and the bars of a free recording, and move it to them</source>
        <translation type="unfinished">Trouve le tempo et les mesures d’un enregistrement libre et l’y ajuste</translation>
    </message>
    <message>
        <source>Thin Controllers…</source>
        <translation type="unfinished">Alléger les contrôleurs…</translation>
    </message>
    <message>
        <source>Leave out moves of controllers that nobody hears</source>
        <translation type="unfinished">Omet les mouvements de contrôleurs que personne n’entend</translation>
    </message>
    <message>
        <source>Thin Controllers</source>
        <translation type="unfinished">Alléger les contrôleurs</translation>
    </message>
    <message>
        <source>Leave out changes of at most this many of 127:</source>
        <translation type="unfinished">Omettre les changements d’au plus tant sur 127 :</translation>
    </message>
</context>
<context>
    <name>velmora::RollActions</name>
    <message>
        <source>View</source>
        <translation type="unfinished">Affichage</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation type="unfinished">Piste</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation type="unfinished">&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation type="unfinished">Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>&amp;Wider Keys</source>
        <translation type="unfinished">Touches plus &amp;larges</translation>
    </message>
    <message>
        <source>N&amp;arrower Keys</source>
        <translation type="unfinished">Touches plus étr&amp;oites</translation>
    </message>
    <message>
        <source>Zoom to Selection</source>
        <translation type="unfinished">Zoomer sur la sélection</translation>
    </message>
    <message>
        <source>Zoom to All Notes</source>
        <translation type="unfinished">Zoomer sur toutes les notes</translation>
    </message>
    <message>
        <source>Time Runs Across</source>
        <translation type="unfinished">Le temps va vers la droite</translation>
    </message>
    <message>
        <source>Let time run from left to right instead of upwards</source>
        <translation type="unfinished">Fait aller le temps de gauche à droite et non vers le haut</translation>
    </message>
</context>
<context>
    <name>velmora::RollPaper</name>
    <message>
        <source>The piece is too long for this. Please take more bars for each line.</source>
        <translation type="unfinished">La pièce est trop longue pour cela. Veuillez mettre plus de mesures par ligne.</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The piece is too long for one picture. Please take more bars for each line, or write PDF.</source>
        <translation type="unfinished">La pièce est trop longue pour une seule image. Veuillez mettre plus de mesures par ligne, ou écrire un PDF.</translation>
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
        <translation type="unfinished">Sélectionner des notes</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">Tous</translation>
    </message>
    <message>
        <source>&amp;Voice:</source>
        <translation type="unfinished">&amp;Voix :</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation type="unfinished">&amp;Touches :</translation>
    </message>
    <message>
        <source>V&amp;elocities:</source>
        <translation type="unfinished">V&amp;élocités :</translation>
    </message>
    <message>
        <source>Lowest key</source>
        <translation type="unfinished">Touche la plus grave</translation>
    </message>
    <message>
        <source>Highest key</source>
        <translation type="unfinished">Touche la plus aiguë</translation>
    </message>
    <message>
        <source>Softest velocity</source>
        <translation type="unfinished">Vélocité minimale</translation>
    </message>
    <message>
        <source>Loudest velocity</source>
        <translation type="unfinished">Vélocité maximale</translation>
    </message>
</context>
<context>
    <name>velmora::SendTuningDialog</name>
    <message>
        <source>&amp;Keep sending when the tuning changes</source>
        <translation type="unfinished">&amp;Continuer d’envoyer quand le tempérament change</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished">&amp;Envoyer</translation>
    </message>
    <message>
        <source>Send the Tuning</source>
        <translation type="unfinished">Envoyer le tempérament</translation>
    </message>
    <message>
        <source>No MIDI output is connected</source>
        <translation type="unfinished">Aucune sortie MIDI n’est connectée</translation>
    </message>
    <message>
        <source>MIDI &amp;output:</source>
        <translation type="unfinished">S&amp;ortie MIDI :</translation>
    </message>
    <message>
        <source>The tuning was sent to %1.</source>
        <translation type="unfinished">Le tempérament a été envoyé à %1.</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceActions</name>
    <message>
        <source>&amp;Loop</source>
        <translation type="unfinished">&amp;Boucle</translation>
    </message>
    <message>
        <source>Repeat the selected time, or the whole sequence</source>
        <translation type="unfinished">Répéter l’intervalle sélectionné ou tout le morceau</translation>
    </message>
    <message>
        <source>Snap to &amp;Grid</source>
        <translation type="unfinished">Aligner sur la &amp;grille</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished">&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished">&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished">Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished">&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished">C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished">&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation type="unfinished">&amp;Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Go to &amp;Start</source>
        <translation type="unfinished">Aller au &amp;début</translation>
    </message>
    <message>
        <source>Pre&amp;vious Notes</source>
        <translation type="unfinished">Notes &amp;précédentes</translation>
    </message>
    <message>
        <source>&amp;Next Notes</source>
        <translation type="unfinished">Notes &amp;suivantes</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">&amp;Canal</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">Arrêter</translation>
    </message>
    <message>
        <source>Record what you play, starting at the position</source>
        <translation type="unfinished">Enregistrer ce que vous jouez à partir de la position</translation>
    </message>
    <message>
        <source>Play from the position</source>
        <translation type="unfinished">Lire à partir de la position</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Morceau</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished">&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">&amp;Lire</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt Note</source>
        <translation type="unfinished">Sélectionner la note sui&amp;vante</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious Note</source>
        <translation type="unfinished">Sélectionner la note &amp;précédente</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation type="unfinished">Aller à la &amp;fin</translation>
    </message>
    <message>
        <source>&amp;Selected Notes</source>
        <translation type="unfinished">Notes sé&amp;lectionnées</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished">Édition</translation>
    </message>
    <message>
        <source>Move Notes &amp;Up a Semitone</source>
        <translation type="unfinished">&amp;Monter les notes d’un demi-ton</translation>
    </message>
    <message>
        <source>Move Notes &amp;Down a Semitone</source>
        <translation type="unfinished">&amp;Descendre les notes d’un demi-ton</translation>
    </message>
    <message>
        <source>Move Notes &amp;Later</source>
        <translation type="unfinished">&amp;Retarder les notes</translation>
    </message>
    <message>
        <source>Move Notes &amp;Earlier</source>
        <translation type="unfinished">&amp;Avancer les notes</translation>
    </message>
    <message>
        <source>Make Notes Lon&amp;ger</source>
        <translation type="unfinished">A&amp;llonger les notes</translation>
    </message>
    <message>
        <source>Make Notes &amp;Shorter</source>
        <translation type="unfinished">Ra&amp;ccourcir les notes</translation>
    </message>
    <message>
        <source>Align notes and times with the lines of the grid</source>
        <translation type="unfinished">Aligner les notes et les temps sur les lignes de la grille</translation>
    </message>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Historique des modifications</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceDocument</name>
    <message>
        <source>Draw Note</source>
        <translation type="unfinished">le tracé d’une note</translation>
    </message>
    <message numerus="yes">
        <source>Record %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>l’enregistrement de %n note</numerusform>
            <numerusform>l’enregistrement de %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>la suppression de %n note</numerusform>
            <numerusform>la suppression de %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>le changement de durée de %n note</numerusform>
            <numerusform>le changement de durée de %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>le déplacement de %n note</numerusform>
            <numerusform>le déplacement de %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Set Channel of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>le changement de canal de %n note</numerusform>
            <numerusform>le changement de canal de %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cut %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>la coupe de %n note</numerusform>
            <numerusform>la coupe de %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>le collage de %n note</numerusform>
            <numerusform>le collage de %n notes</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Take %1</source>
        <translation type="unfinished">Choisir la prise %1</translation>
    </message>
    <message numerus="yes">
        <source>Quantise %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Quantifier %n note</numerusform>
            <numerusform>Quantifier %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Transpose %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Transposer %n note</numerusform>
            <numerusform>Transposer %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Dupliquer %n note</numerusform>
            <numerusform>Dupliquer %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Couper %n note</numerusform>
            <numerusform>Couper %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Join %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Joindre %n note</numerusform>
            <numerusform>Joindre %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Connect %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Lier %n note</numerusform>
            <numerusform>Lier %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Change Velocity of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>Changer la vélocité de %n note</numerusform>
            <numerusform>Changer la vélocité de %n notes</numerusform>
        </translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Enregistrer</translation>
    </message>
    <message>
        <source>Record Controllers</source>
        <translation type="unfinished">Enregistrer les contrôleurs</translation>
    </message>
</context>
<context>
    <name>velmora::SequencePages</name>
    <message numerus="yes">
        <source>%1, %n note(s), %2</source>
        <translation type="unfinished">
            <numerusform>%1, %n note, %2</numerusform>
            <numerusform>%1, %n notes, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Sans titre</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>Velmora was not closed properly. Recover the unsaved sequences?</source>
        <translation type="unfinished">Velmora ne s’est pas fermé correctement. Récupérer les morceaux non enregistrés&#x202f;?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished">Récupérer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished">Abandonner</translation>
    </message>
    <message>
        <source>Ask Later</source>
        <translation type="unfinished">Demander plus tard</translation>
    </message>
    <message>
        <source>%1 •</source>
        <translation type="unfinished">%1 •</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation type="unfinished">Sans titre %1</translation>
    </message>
    <message>
        <source>%1 is damaged. Open what could be read?</source>
        <translation type="unfinished">%1 est endommagé. Ouvrir ce qui a pu être lu ?</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) could be read.</source>
        <translation type="unfinished">
            <numerusform>%n note a pu être lue.</numerusform>
            <numerusform>%n notes ont pu être lues.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” has stopped, because the voices of “%2” sound otherwise.</source>
        <translation type="unfinished">« %1 » s’est arrêté, car les voix de « %2 » sonnent autrement.</translation>
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
        <translation type="unfinished">L’exportation de %1 est en cours. L’arrêter&#x202f;?</translation>
    </message>
    <message>
        <source>If you stop it, no sound file is written.</source>
        <translation type="unfinished">Si vous l’arrêtez, aucun fichier audio ne sera créé.</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <translation type="unfinished">Arrêter l’exportation</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation type="unfinished">Enregistrer les modifications de %1&#x202f;?</translation>
    </message>
    <message>
        <source>If you do not save them, they are lost.</source>
        <translation type="unfinished">Si vous ne les enregistrez pas, elles seront perdues.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished">Enregistrer sous</translation>
    </message>
    <message>
        <source>An iMelody file holds a single voice and no dynamics. Save it anyway?</source>
        <translation type="unfinished">Un fichier iMelody ne contient qu’une seule voix et aucune nuance. L’enregistrer quand même&#x202f;?</translation>
    </message>
    <message>
        <source>Velmora cannot open iMelody files. A MIDI file keeps everything that you see.</source>
        <translation type="unfinished">Velmora ne peut pas ouvrir les fichiers iMelody. Un fichier MIDI conserve tout ce que vous voyez.</translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation type="unfinished">%1 n’a pas été enregistré.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Enregistrer sous…</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceScrollView</name>
    <message>
        <source>Keys shown</source>
        <translation type="unfinished">Touches affichées</translation>
    </message>
    <message>
        <source>Time shown</source>
        <translation type="unfinished">Temps affiché</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceStatus</name>
    <message>
        <source>Practice: play the notes at the position to move on to the next ones</source>
        <translation type="unfinished">Travail&#x202f;: jouez les notes à la position pour passer aux suivantes</translation>
    </message>
    <message>
        <source>Steps %1 to %2</source>
        <translation type="unfinished">Pas %1 à %2</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished">Lecture</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished">Enregistrement</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation type="unfinished">En attente de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) selected</source>
        <translation type="unfinished">
            <numerusform>%n note sélectionnée</numerusform>
            <numerusform>%n notes sélectionnées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) in all</source>
        <translation type="unfinished">
            <numerusform>%n note en tout</numerusform>
            <numerusform>%n notes en tout</numerusform>
        </translation>
    </message>
    <message>
        <source>Done: all notes played</source>
        <translation type="unfinished">Terminé&#x202f;: toutes les notes ont été jouées</translation>
    </message>
    <message>
        <source>Release %1</source>
        <translation type="unfinished">Relâchez %1</translation>
    </message>
    <message>
        <source>Waiting for %1; not %2</source>
        <translation type="unfinished">En attente de %1&#x202f;; pas %2</translation>
    </message>
    <message>
        <source>Counting in</source>
        <translation type="unfinished">Décompte en cours</translation>
    </message>
    <message>
        <source>Bar %1, beat %2 to bar %3, beat %4</source>
        <translation type="unfinished">De la mesure %1, temps %2 à la mesure %3, temps %4</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation type="unfinished">Ensuite : %1</translation>
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
        <translation type="unfinished">Vélocité %1&#x202f;%</translation>
    </message>
    <message>
        <source>%1, bar %2, beat %3, length in beats %4, channel %5</source>
        <translation type="unfinished">%1, mesure %2, temps %3, durée en temps %4, canal %5</translation>
    </message>
</context>
<context>
    <name>velmora::ShapeTab</name>
    <message>
        <source>Hear the Original</source>
        <translation type="unfinished">Écouter l’original</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">Enregistrer sous…</translation>
    </message>
    <message>
        <source>Ways to shape the tuning</source>
        <translation type="unfinished">Façons de modifier l’accord</translation>
    </message>
    <message>
        <source>By Notes</source>
        <translation type="unfinished">Par notes</translation>
    </message>
    <message>
        <source>By Fifths</source>
        <translation type="unfinished">Par quintes</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">Rétablir</translation>
    </message>
    <message>
        <source>Compare the tuning with what it was before you changed it</source>
        <translation type="unfinished">Comparer l’accord avec ce qu’il était avant la modification</translation>
    </message>
    <message>
        <source>Save the tuning as a scale file, which is then listed</source>
        <translation type="unfinished">Enregistrer l’accord dans un fichier de gamme, qui figure ensuite dans la liste</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished">Description :</translation>
    </message>
    <message>
        <source>Slider of %1</source>
        <translation type="unfinished">Curseur de %1</translation>
    </message>
    <message>
        <source> cents</source>
        <translation type="unfinished"> cents</translation>
    </message>
    <message>
        <source>This tuning finds its pitches while you play, so it has no fixed notes to shape. Choose another one.</source>
        <translation type="unfinished">Cet accord trouve ses hauteurs pendant que vous jouez : il n’a donc pas de notes fixes à façonner. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>You are shaping a copy of %1. Save it to keep it.</source>
        <translation type="unfinished">Vous façonnez une copie de %1. Enregistrez-la pour la garder.</translation>
    </message>
    <message>
        <source>Move a note, and you hear it at once in a copy of this tuning. The first note stays.</source>
        <translation type="unfinished">Déplacez une note : vous l’entendez aussitôt dans une copie de cet accord. La première note reste.</translation>
    </message>
</context>
<context>
    <name>velmora::ShellActions</name>
    <message>
        <source>File</source>
        <translation type="unfinished">Fichier</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished">Son</translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished">Affichage</translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished">Aide</translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation type="unfinished">&amp;Nouveau morceau</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open pieces, instruments and tunings</source>
        <translation type="unfinished">Ouvrir des morceaux, des instruments et des tempéraments</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the piece</source>
        <translation type="unfinished">Enregistrer le morceau</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished">Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Export Audio…</source>
        <translation type="unfinished">E&amp;xporter l’audio…</translation>
    </message>
    <message>
        <source>Write a sound file of the piece</source>
        <translation type="unfinished">Créer un fichier audio du morceau</translation>
    </message>
    <message>
        <source>&amp;Close Piece</source>
        <translation type="unfinished">&amp;Fermer le morceau</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished">&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Silence Everything</source>
        <translation type="unfinished">Couper tous les &amp;sons</translation>
    </message>
    <message>
        <source>Stop every sound and release every key</source>
        <translation type="unfinished">Arrêter tous les sons et relâcher toutes les touches</translation>
    </message>
    <message>
        <source>Transpose &amp;Up</source>
        <translation type="unfinished">Transposer plus &amp;haut</translation>
    </message>
    <message>
        <source>Transpose &amp;Down</source>
        <translation type="unfinished">Transposer plus &amp;bas</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation type="unfinished">&amp;Clavier</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation type="unfinished">&amp;Instrument</translation>
    </message>
    <message>
        <source>Show the program or the stops</source>
        <translation type="unfinished">Afficher le programme ou les jeux</translation>
    </message>
    <message>
        <source>&amp;Tuning</source>
        <translation type="unfinished">&amp;Tempérament</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">&amp;Jouer</translation>
    </message>
    <message>
        <source>Arrange the window for playing</source>
        <translation type="unfinished">Disposer la fenêtre pour jouer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">É&amp;diter</translation>
    </message>
    <message>
        <source>Arrange the window for editing</source>
        <translation type="unfinished">Disposer la fenêtre pour éditer</translation>
    </message>
    <message>
        <source>&amp;Stage</source>
        <translation type="unfinished">Scè&amp;ne</translation>
    </message>
    <message>
        <source>Fill the screen with what matters on stage</source>
        <translation type="unfinished">Remplir l’écran avec ce qui compte sur scène</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished">Réinitialiser l&amp;a disposition</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <translation type="unfinished">Panneau &amp;suivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious Panel</source>
        <translation type="unfinished">Panneau &amp;précédent</translation>
    </message>
    <message>
        <source>Piece in Its &amp;Own Window</source>
        <translation type="unfinished">Morceau dans sa propre &amp;fenêtre</translation>
    </message>
    <message>
        <source>&amp;Loaded Instruments…</source>
        <translation type="unfinished">Instruments char&amp;gés…</translation>
    </message>
    <message>
        <source>&amp;Meters</source>
        <translation type="unfinished">Indicate&amp;urs</translation>
    </message>
    <message>
        <source>Show the delay, the load and the devices of live playing</source>
        <translation type="unfinished">Afficher le délai, la charge et les appareils du jeu en direct</translation>
    </message>
    <message>
        <source>Note &amp;Names on the Keyboard</source>
        <translation type="unfinished">Noms des notes sur le cla&amp;vier</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation type="unfinished">&amp;Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation type="unfinished">À &amp;propos de Velmora</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished">Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished">&amp;Effacer la liste</translation>
    </message>
    <message>
        <source>Open Sess&amp;ion…</source>
        <translation type="unfinished">Ouvrir une sess&amp;ion…</translation>
    </message>
    <message>
        <source>Open the instruments, the tuning and the pieces of a session</source>
        <translation type="unfinished">Ouvrir les instruments, le tempérament et les morceaux d’une session</translation>
    </message>
    <message>
        <source>Sa&amp;ve Session…</source>
        <translation type="unfinished">Enre&amp;gistrer la session…</translation>
    </message>
    <message>
        <source>Save which instruments, tuning and pieces are open</source>
        <translation type="unfinished">Enregistrer quels instruments, tempérament et morceaux sont ouverts</translation>
    </message>
    <message>
        <source>&amp;Find a Command…</source>
        <translation type="unfinished">&amp;Rechercher une commande…</translation>
    </message>
    <message>
        <source>Find a command by its name and perform it</source>
        <translation type="unfinished">Rechercher une commande par son nom et l’exécuter</translation>
    </message>
    <message>
        <source>&amp;Console</source>
        <translation type="unfinished">Consol&amp;e</translation>
    </message>
    <message>
        <source>Show the stops of the organ</source>
        <translation type="unfinished">Afficher les jeux de l’orgue</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Omettre les jeux qui ne sont pas encore chargés</translation>
    </message>
    <message>
        <source>Stop Loadin&amp;g</source>
        <translation type="unfinished">Arrêter le char&amp;gement</translation>
    </message>
    <message>
        <source>Export &amp;MIDI in This Tuning…</source>
        <translation type="unfinished">Exporter le &amp;MIDI dans ce tempérament…</translation>
    </message>
    <message>
        <source>Write a MIDI file of the piece that other devices play in this tuning</source>
        <translation type="unfinished">Écrire un fichier MIDI du morceau que d’autres appareils jouent dans ce tempérament</translation>
    </message>
    <message>
        <source>Export &amp;Tuning…</source>
        <translation type="unfinished">Exporter le &amp;tempérament…</translation>
    </message>
    <message>
        <source>Write what each key sounds like now as a scale and a keyboard mapping</source>
        <translation type="unfinished">Écrire le son actuel de chaque touche sous forme de gamme et d’affectation du clavier</translation>
    </message>
    <message>
        <source>&amp;Send the Tuning…</source>
        <translation type="unfinished">&amp;Envoyer le tempérament…</translation>
    </message>
    <message>
        <source>Send the tuning to a MIDI device that is to play in it</source>
        <translation type="unfinished">Envoyer le tempérament à un appareil MIDI qui doit l’utiliser</translation>
    </message>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Façonner l’accord</translation>
    </message>
    <message>
        <source>Show the circle of fifths, and shape the tuning</source>
        <translation type="unfinished">Afficher le cycle des quintes et façonner l’accord</translation>
    </message>
    <message>
        <source>E&amp;xport Score…</source>
        <translation type="unfinished">Exporter l&amp;a partition…</translation>
    </message>
    <message>
        <source>Write the piece down for a notation program, spelled as the tuning spells it</source>
        <translation type="unfinished">Écrire le morceau pour un logiciel de notation, avec les noms que l’accord donne aux notes</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Exercice</translation>
    </message>
    <message>
        <source>Practise the piece, a hand or a voice of it</source>
        <translation type="unfinished">S’exercer au morceau, à une main ou à une voix</translation>
    </message>
    <message>
        <source>Show who plays the piece</source>
        <translation type="unfinished">Montre qui joue la pièce</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voix</translation>
    </message>
    <message>
        <source>Export Voices…</source>
        <translation type="unfinished">Exporter les voix…</translation>
    </message>
    <message>
        <source>Write a sound file of each voice of the piece</source>
        <translation type="unfinished">Écrire un fichier son de chaque voix de la pièce</translation>
    </message>
    <message>
        <source>Export Roll…</source>
        <translation type="unfinished">Exporter le rouleau…</translation>
    </message>
    <message>
        <source>Write the piano roll of the piece for paper, as PDF or PNG</source>
        <translation type="unfinished">Écrire le piano roll de la pièce pour le papier, en PDF ou PNG</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">&amp;Ouvrir un instrument…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">Ouvrir une SoundFont, une banque GigaSampler ou un orgue</translation>
    </message>
    <message>
        <source>&amp;Open Tuning…</source>
        <translation type="unfinished">&amp;Ouvrir un accord…</translation>
    </message>
    <message>
        <source>Open scales and other tunings</source>
        <translation type="unfinished">Ouvrir des gammes et d’autres accords</translation>
    </message>
</context>
<context>
    <name>velmora::ShortcutsPane</name>
    <message>
        <source>Find a command</source>
        <translation type="unfinished">Rechercher une commande</translation>
    </message>
    <message>
        <source>Use It &amp;Here</source>
        <translation type="unfinished">&amp;Utiliser ici</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished">&amp;Supprimer</translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished">Commande</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished">Raccourci</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Commandes</translation>
    </message>
    <message>
        <source>Press the new keys for the selected command</source>
        <translation type="unfinished">Appuyez sur les nouvelles touches de la commande sélectionnée</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <translation type="unfinished">Nouveau raccourci</translation>
    </message>
    <message>
        <source>&amp;New shortcut:</source>
        <translation type="unfinished">&amp;Nouveau raccourci&#x202f;:</translation>
    </message>
    <message>
        <source>Take the shortcut from the other command</source>
        <translation type="unfinished">Retirer le raccourci à l’autre commande</translation>
    </message>
    <message>
        <source>Leave the selected command without a shortcut</source>
        <translation type="unfinished">Laisser la commande sélectionnée sans raccourci</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation type="unfinished">Rétablir les valeurs par &amp;défaut</translation>
    </message>
    <message>
        <source>Give every command the shortcuts that it had at first</source>
        <translation type="unfinished">Rendre à chaque commande ses raccourcis d’origine</translation>
    </message>
    <message>
        <source>%1 plays a note. Add Ctrl or Alt, or use a function key.</source>
        <translation type="unfinished">%1 joue une note. Ajoutez Ctrl ou Alt, ou prenez une touche de fonction.</translation>
    </message>
    <message>
        <source>%1 belongs to “%2”. Press other keys, or use it here instead.</source>
        <translation type="unfinished">%1 appartient à «&#x202f;%2&#x202f;». Appuyez sur d’autres touches, ou utilisez-le plutôt ici.</translation>
    </message>
</context>
<context>
    <name>velmora::SoundPane</name>
    <message>
        <source>Ou&amp;tput:</source>
        <translation type="unfinished">&amp;Sortie&#x202f;:</translation>
    </message>
    <message>
        <source>The sound server or driver that Velmora plays through</source>
        <translation type="unfinished">Le serveur de son ou le pilote par lequel Velmora joue</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation type="unfinished">&amp;Périphérique&#x202f;:</translation>
    </message>
    <message>
        <source>The device that is heard</source>
        <translation type="unfinished">Le périphérique que l’on entend</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation type="unfinished">&amp;Fréquence d’échantillonnage&#x202f;:</translation>
    </message>
    <message>
        <source>A JACK server determines the sample rate itself</source>
        <translation type="unfinished">Un serveur JACK détermine lui-même la fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation type="unfinished">Pério&amp;de&#x202f;:</translation>
    </message>
    <message>
        <source>The shorter the period, the sooner a key sounds, and the more the machine has to do. With JACK, it applies to all programs</source>
        <translation type="unfinished">Plus la période est courte, plus vite une touche sonne et plus l’ordinateur a de travail. Avec JACK, elle vaut pour tous les programmes</translation>
    </message>
    <message>
        <source>Playing:</source>
        <translation type="unfinished">En cours&#x202f;:</translation>
    </message>
    <message>
        <source>Master &amp;volume:</source>
        <translation type="unfinished">&amp;Volume général&#x202f;:</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation type="unfinished">Niveau&#x202f;:</translation>
    </message>
    <message>
        <source>Master volume</source>
        <translation type="unfinished">Volume général</translation>
    </message>
    <message>
        <source>Play Test To&amp;ne</source>
        <translation type="unfinished">Jouer un son d’&amp;essai</translation>
    </message>
    <message>
        <source>Plays a short, quiet tone</source>
        <translation type="unfinished">Joue un son bref et doux</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished">Automatique</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation type="unfinished">%1 (absent)</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished">%1 trames</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">Par défaut</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1&#x202f;%</translation>
    </message>
    <message>
        <source>%L1 kHz</source>
        <translation type="unfinished">%L1&#xa0;kHz</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 frames (%L4 ms)</source>
        <translation type="unfinished">%1, %L2&#xa0;kHz, %L3 trames (%L4&#xa0;ms)</translation>
    </message>
    <message>
        <source>
To the sound card: %L1 ms. Lost periods: %L2.</source>
        <translation type="unfinished">
Jusqu’à la carte son&#x202f;: %L1&#xa0;ms. Périodes perdues&#x202f;: %L2.</translation>
    </message>
</context>
<context>
    <name>velmora::StageView</name>
    <message>
        <source>%1 leaves the stage</source>
        <translation type="unfinished">%1 quitte la scène</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>First steps</source>
        <translation type="unfinished">Premiers pas</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation type="unfinished">Ouvrir le guide de l’utilisateur</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation type="unfinished">Que souhaitez-vous faire&#x202f;?</translation>
    </message>
    <message>
        <source>Welcome to Velmora! Each card does something at once, and nothing can break.</source>
        <translation type="unfinished">Bienvenue dans Velmora&#x202f;! Chaque carte agit tout de suite, et vous ne risquez rien.</translation>
    </message>
    <message>
        <source>Hear it</source>
        <translation type="unfinished">Écouter</translation>
    </message>
    <message>
        <source>C major, whose third beats in equal temperament and is pure in meantone. The tuning that you hear stays selected.</source>
        <translation type="unfinished">Do majeur&#x202f;: sa tierce bat en tempérament égal et elle est pure en mésotonique. Le tempérament que vous entendez reste sélectionné.</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Égal</translation>
    </message>
    <message>
        <source>Hear the chord in equal temperament</source>
        <translation type="unfinished">Écouter l’accord en tempérament égal</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mésotonique</translation>
    </message>
    <message>
        <source>Hear the chord in quarter-comma meantone</source>
        <translation type="unfinished">Écouter l’accord en mésotonique au quart de comma</translation>
    </message>
    <message>
        <source>Choose a Tuning</source>
        <translation type="unfinished">Choisir un tempérament</translation>
    </message>
    <message>
        <source>Choose a tuning</source>
        <translation type="unfinished">Choisir un tempérament</translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation type="unfinished">Accorder</translation>
    </message>
    <message>
        <source>Choose a historical tuning, or one that adapts to what you play.</source>
        <translation type="unfinished">Choisissez un tempérament historique, ou un tempérament qui s’adapte à votre jeu.</translation>
    </message>
    <message>
        <source>Open an Instrument…</source>
        <translation type="unfinished">Ouvrir un instrument…</translation>
    </message>
    <message>
        <source>Open an instrument</source>
        <translation type="unfinished">Ouvrir un instrument</translation>
    </message>
    <message>
        <source>Play it</source>
        <translation type="unfinished">Jouer</translation>
    </message>
    <message>
        <source>Use a MIDI keyboard, the keys below, or the letters of the computer keyboard, from A on.</source>
        <translation type="unfinished">Utilisez un clavier MIDI, les touches ci-dessous ou les lettres du clavier de l’ordinateur, à partir de Q (AZERTY) ou de A (QWERTY, QWERTZ).</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Enregistrer</translation>
    </message>
    <message>
        <source>Record a new sequence</source>
        <translation type="unfinished">Enregistrer un nouveau morceau</translation>
    </message>
    <message>
        <source>Record it</source>
        <translation type="unfinished">Enregistrer</translation>
    </message>
    <message>
        <source>Play, correct the notes in the piano roll, and export the sound.</source>
        <translation type="unfinished">Jouez, corrigez les notes dans le piano roll et exportez le son.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished">Ouvrir %1</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished">Exemples</translation>
    </message>
    <message>
        <source>%1 (tuning)</source>
        <translation type="unfinished">%1 (tempérament)</translation>
    </message>
    <message>
        <source>%1 (piece)</source>
        <translation type="unfinished">%1 (morceau)</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished">Fichiers récents</translation>
    </message>
</context>
<context>
    <name>velmora::StatusLine</name>
    <message>
        <source>The sound output: its driver, sample rate and period</source>
        <translation type="unfinished">La sortie audio&#x202f;: pilote, fréquence d’échantillonnage et période</translation>
    </message>
    <message>
        <source>No MIDI input</source>
        <translation type="unfinished">Pas d’entrée MIDI</translation>
    </message>
    <message>
        <source>A MIDI device is used as soon as it is connected</source>
        <translation type="unfinished">Un appareil MIDI est utilisé dès qu’il est branché</translation>
    </message>
    <message>
        <source>There is no MIDI device. Connect one, or play with the mouse.</source>
        <translation type="unfinished">Il n’y a pas d’appareil MIDI. Branchez-en un, ou jouez à la souris.</translation>
    </message>
    <message>
        <source>No sound output</source>
        <translation type="unfinished">Pas de sortie audio</translation>
    </message>
    <message>
        <source>Notices: %1</source>
        <translation type="unfinished">Avis&#x202f;: %1</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation type="unfinished">Avis</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 ms</source>
        <translation type="unfinished">%1, %L2&#xa0;kHz, %L3&#xa0;ms</translation>
    </message>
    <message>
        <source>Instrument: %1
Click to show its programs or stops</source>
        <translation type="unfinished">Instrument&#x202f;: %1
Cliquez pour afficher ses programmes ou ses jeux</translation>
    </message>
    <message>
        <source>Tuning: %1 (%2)
Click to show all tunings</source>
        <translation type="unfinished">Tempérament&#x202f;: %1 (%2)
Cliquez pour afficher tous les tempéraments</translation>
    </message>
    <message>
        <source>Plain reading</source>
        <translation type="unfinished">Lecture simple</translation>
    </message>
    <message>
        <source>MIDI devices are read plainly: no pedals, no touch, no transposition</source>
        <translation type="unfinished">Les appareils MIDI sont lus simplement&#x202f;: ni pédales, ni toucher, ni transposition</translation>
    </message>
    <message>
        <source>Transposed %1</source>
        <translation type="unfinished">Transposition %1</translation>
    </message>
    <message>
        <source>MIDI keyboards sound %1 semitones away from their keys</source>
        <translation type="unfinished">Les claviers MIDI sonnent à %1 demi-tons de leurs touches</translation>
    </message>
    <message numerus="yes">
        <source>%n MIDI input(s)</source>
        <translation type="unfinished">
            <numerusform>%n entrée MIDI</numerusform>
            <numerusform>%n entrées MIDI</numerusform>
        </translation>
    </message>
    <message>
        <source>MIDI devices:
%1</source>
        <translation type="unfinished">Appareils MIDI&#x202f;:
%1</translation>
    </message>
    <message>
        <source>The display may go to sleep while you play because there is no D-Bus session bus. Start Velmora from the desktop, or with dbus-run-session.</source>
        <translation type="unfinished">L’écran peut se mettre en veille pendant que vous jouez, faute de bus de session D-Bus. Lancez Velmora depuis le bureau, ou avec dbus-run-session.</translation>
    </message>
    <message>
        <source>What you change in the preferences, and what is open, is forgotten when you quit because nothing can be written to %1. Make that folder writable.</source>
        <translation type="unfinished">Les préférences modifiées et ce qui est ouvert seront oubliés à la fermeture, car rien ne peut être écrit dans %1. Rendez ce dossier accessible en écriture.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrument</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Tempérament</translation>
    </message>
    <message>
        <source>Reading of MIDI devices</source>
        <translation type="unfinished">Lecture des appareils MIDI</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation type="unfinished">Sortie audio</translation>
    </message>
    <message>
        <source>MIDI inputs</source>
        <translation type="unfinished">Entrées MIDI</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation type="unfinished">Chargement</translation>
    </message>
    <message>
        <source>%1 % loaded</source>
        <translation type="unfinished">%1&#x202f;% chargé</translation>
    </message>
    <message>
        <source>The stops of %1 that are loaded can be played; the others follow</source>
        <translation type="unfinished">Les jeux déjà chargés de %1 peuvent être joués&#x202f;; les autres suivent</translation>
    </message>
    <message>
        <source>Stop Loading</source>
        <translation type="unfinished">Arrêter le chargement</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">Omettre les jeux qui ne sont pas encore chargés</translation>
    </message>
</context>
<context>
    <name>velmora::StemsDialog</name>
    <message>
        <source>Export Voices</source>
        <translation type="unfinished">Exporter les voix</translation>
    </message>
    <message>
        <source>Every voice that sounds is written to a sound file of its own. Muted voices are left out. Played together, the files sound like the piece.</source>
        <translation type="unfinished">Chaque voix qui sonne est écrite dans son propre fichier son. Les voix muettes sont omises. Joués ensemble, les fichiers sonnent comme la pièce.</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">&amp;Parcourir…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished">&amp;Exporter</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation type="unfinished">&amp;Dossier :</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished">&amp;Format :</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation type="unfinished">Fichiers :</translation>
    </message>
    <message>
        <source>No voice of the piece sounds.</source>
        <translation type="unfinished">Aucune voix de la pièce ne sonne.</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) already exist. Do you want to replace them?</source>
        <translation type="unfinished">
            <numerusform>%n fichier existe déjà. Voulez-vous le remplacer ?</numerusform>
            <numerusform>%n fichiers existent déjà. Voulez-vous les remplacer ?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be created.</source>
        <translation type="unfinished">Le dossier %1 n’existe pas et ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>velmora::StopRow</name>
    <message>
        <source>%1: turn on or off (Space)</source>
        <translation type="unfinished">%1&#x202f;: activer ou désactiver (Espace)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1&#x202f;%</translation>
    </message>
</context>
<context>
    <name>velmora::TimeActions</name>
    <message>
        <source>Piece</source>
        <translation type="unfinished">Morceau</translation>
    </message>
    <message>
        <source>Ta&amp;p Tempo</source>
        <translation type="unfinished">Ta&amp;per le tempo</translation>
    </message>
    <message>
        <source>Tap repeatedly to set the tempo of the piece at the position</source>
        <translation type="unfinished">Tapez plusieurs fois pour fixer le tempo du morceau à la position</translation>
    </message>
    <message>
        <source>Tempo &amp;and Signatures</source>
        <translation type="unfinished">&amp;Tempo et mesures</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation type="unfinished">Taper</translation>
    </message>
    <message>
        <source>Tap Tempo</source>
        <translation type="unfinished">Taper le tempo</translation>
    </message>
</context>
<context>
    <name>velmora::TimeEntryDialog</name>
    <message>
        <source>Add &amp;Tempo…</source>
        <translation type="unfinished">Ajouter un &amp;tempo…</translation>
    </message>
    <message>
        <source>Add Time &amp;Signature…</source>
        <translation type="unfinished">Ajouter une me&amp;sure…</translation>
    </message>
    <message>
        <source>Add &amp;Key Signature…</source>
        <translation type="unfinished">Ajouter une &amp;armure…</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation type="unfinished">Ajouter un &amp;repère…</translation>
    </message>
    <message>
        <source>Add Tempo</source>
        <translation type="unfinished">Ajouter un tempo</translation>
    </message>
    <message>
        <source>Add Time Signature</source>
        <translation type="unfinished">Ajouter une mesure</translation>
    </message>
    <message>
        <source>Add Key Signature</source>
        <translation type="unfinished">Ajouter une armure</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation type="unfinished">Ajouter un repère</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Modifier le tempo</translation>
    </message>
    <message>
        <source>Change Time Signature</source>
        <translation type="unfinished">Modifier la mesure</translation>
    </message>
    <message>
        <source>Change Key Signature</source>
        <translation type="unfinished">Modifier l’armure</translation>
    </message>
    <message>
        <source>Change Marker</source>
        <translation type="unfinished">Modifier le repère</translation>
    </message>
    <message>
        <source>Delete Tempo</source>
        <translation type="unfinished">Supprimer le tempo</translation>
    </message>
    <message>
        <source>Delete Time Signature</source>
        <translation type="unfinished">Supprimer la mesure</translation>
    </message>
    <message>
        <source>Delete Key Signature</source>
        <translation type="unfinished">Supprimer l’armure</translation>
    </message>
    <message>
        <source>Delete Marker</source>
        <translation type="unfinished">Supprimer le repère</translation>
    </message>
    <message>
        <source>A♭ E♭ B♭ F C G D A E B F♯ C♯ G♯ D♯ A♯</source>
        <comment>minor keys</comment>
        <translation type="unfinished">La♭ Mi♭ Si♭ Fa Do Sol Ré La Mi Si Fa♯ Do♯ Sol♯ Ré♯ La♯</translation>
    </message>
    <message>
        <source>C♭ G♭ D♭ A♭ E♭ B♭ F C G D A E B F♯ C♯</source>
        <comment>major keys</comment>
        <translation type="unfinished">Do♭ Sol♭ Ré♭ La♭ Mi♭ Si♭ Fa Do Sol Ré La Mi Si Fa♯ Do♯</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1 mineur</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 majeur</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">Tempo</translation>
    </message>
    <message>
        <source>Time Signature</source>
        <translation type="unfinished">Mesure</translation>
    </message>
    <message>
        <source>Key Signature</source>
        <translation type="unfinished">Armure</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation type="unfinished">Repère</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> bpm</translation>
    </message>
    <message>
        <source>&amp;Tempo:</source>
        <translation type="unfinished">&amp;Tempo :</translation>
    </message>
    <message>
        <source>&amp;Notes in a bar:</source>
        <translation type="unfinished">&amp;Notes par mesure :</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>&amp;Value of a note:</source>
        <translation type="unfinished">&amp;Valeur d’une note :</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation type="unfinished">To&amp;nalité :</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished">&amp;Texte :</translation>
    </message>
    <message>
        <source>&amp;Bar:</source>
        <translation type="unfinished">&amp;Mesure :</translation>
    </message>
    <message>
        <source>B&amp;eat:</source>
        <translation type="unfinished">T&amp;emps :</translation>
    </message>
</context>
<context>
    <name>velmora::TimeLane</name>
    <message>
        <source>Tempo and signatures</source>
        <translation type="unfinished">Tempo et mesures</translation>
    </message>
    <message>
        <source>Tempos, time signatures, key signatures and markers. Double-click to add or change one, drag it to move it, and press Delete to remove it.</source>
        <translation type="unfinished">Tempos, mesures, armures et repères. Double-cliquez pour en ajouter ou en modifier un, faites-le glisser pour le déplacer, et appuyez sur Suppr pour l’enlever.</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation type="unfinished">&amp;Modifier…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>velmora::TimeRuler</name>
    <message>
        <source>Bars</source>
        <translation type="unfinished">Mesures</translation>
    </message>
    <message>
        <source>Drag the arrow to move the play position. Drag over the ruler to select the time that is looped.</source>
        <translation type="unfinished">Faites glisser la flèche pour déplacer la position de lecture. Glissez sur la règle pour sélectionner le passage à lire en boucle.</translation>
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
        <translation type="unfinished">Arrêter</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">Enregistrer</translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished">Lire</translation>
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
        <translation type="unfinished">Le canal des notes que vous enregistrez ou tracez. Une touche de chiffre choisit un canal et sélectionne ses notes&#x202f;; avec Ctrl, elle déplace les notes sélectionnées vers ce canal.</translation>
    </message>
    <message>
        <source>%1  ·  step %2</source>
        <translation type="unfinished">%1  ·  pas %2</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> bpm</translation>
    </message>
    <message>
        <source>Takes</source>
        <translation type="unfinished">Prises</translation>
    </message>
    <message>
        <source>Choose one of the takes that were recorded in the loop</source>
        <translation type="unfinished">Choisissez une des prises enregistrées dans la boucle</translation>
    </message>
    <message>
        <source>Count-in: %1</source>
        <translation type="unfinished">Décompte : %1</translation>
    </message>
    <message>
        <source>The position in minutes and seconds at this speed, and in bars and beats</source>
        <translation type="unfinished">La position en minutes et secondes à cette vitesse, et en mesures et temps</translation>
    </message>
    <message>
        <source>The tempo of the piece at the position in beats per minute (Alt+M)</source>
        <translation type="unfinished">Le tempo du morceau à la position, en battements par minute (Alt+M)</translation>
    </message>
    <message>
        <source> %</source>
        <comment>percent</comment>
        <translation type="unfinished"> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished">Vitesse</translation>
    </message>
    <message>
        <source>How fast the piece is played, as a part of its tempo. It is not saved with the piece.</source>
        <translation type="unfinished">À quelle vitesse le morceau est joué, par rapport à son tempo. Elle n’est pas enregistrée avec le morceau.</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">Modifier le tempo</translation>
    </message>
    <message>
        <source>%1  ·  bar %2, beat %3</source>
        <translation type="unfinished">%1  ·  mesure %2, temps %3</translation>
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
        <translation type="unfinished">La selon le tempérament</translation>
    </message>
    <message>
        <source>%1, A %2 Hz</source>
        <translation type="unfinished">%1, la %2 Hz</translation>
    </message>
    <message>
        <source>%1 on %2, A %3 Hz</source>
        <translation type="unfinished">%1 sur %2, la %3 Hz</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished">%1 sur %2</translation>
    </message>
    <message>
        <source>The key on which the tuning stands: on D, D sounds as C does on C</source>
        <translation type="unfinished">La touche sur laquelle repose le tempérament : sur ré, le ré sonne comme le do sur do</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished"> Hz</translation>
    </message>
    <message>
        <source>As the tuning has it</source>
        <translation type="unfinished">Selon le tempérament</translation>
    </message>
    <message>
        <source>The pitch of A above middle C, from 380 to 480 Hz</source>
        <translation type="unfinished">La hauteur du la au-dessus du do central, de 380 à 480 Hz</translation>
    </message>
    <message>
        <source>Usual Pitches</source>
        <translation type="unfinished">Hauteurs usuelles</translation>
    </message>
    <message>
        <source>Choose one of the usual pitches of A</source>
        <translation type="unfinished">Choisissez une des hauteurs usuelles du la</translation>
    </message>
    <message>
        <source>Root:</source>
        <translation type="unfinished">Fondamentale :</translation>
    </message>
    <message>
        <source>Pitch of A:</source>
        <translation type="unfinished">Hauteur du la :</translation>
    </message>
    <message>
        <source>Pitch of A</source>
        <translation type="unfinished">Hauteur du la</translation>
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
        <translation type="unfinished">Hauteur du l&amp;a</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Tempérament</translation>
    </message>
    <message>
        <source>Root a &amp;Fifth Up</source>
        <translation type="unfinished">Fondamentale une &amp;quinte plus haut</translation>
    </message>
    <message>
        <source>Root a F&amp;ifth Down</source>
        <translation type="unfinished">Fondamentale une quinte plus &amp;bas</translation>
    </message>
    <message>
        <source>Root a &amp;Semitone Up</source>
        <translation type="unfinished">Fondamentale un &amp;demi-ton plus haut</translation>
    </message>
    <message>
        <source>Root a S&amp;emitone Down</source>
        <translation type="unfinished">Fondamentale un demi-ton plus b&amp;as</translation>
    </message>
</context>
<context>
    <name>velmora::TuningExports</name>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 a été exporté</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 n’a pas été exporté. %2</translation>
    </message>
    <message>
        <source>Export MIDI in This Tuning</source>
        <translation type="unfinished">Exporter le MIDI dans ce tempérament</translation>
    </message>
    <message>
        <source>MIDI File</source>
        <translation type="unfinished">Fichier MIDI</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>a piece in a tuning</comment>
        <translation type="unfinished">%1 en %2</translation>
    </message>
    <message numerus="yes">
        <source>A MIDI file has only 15 channels for notes of different pitch, so %n note(s) are up to %1 cents out of tune.</source>
        <translation type="unfinished">
            <numerusform>Un fichier MIDI n’a que 15 canaux pour des notes de hauteurs différentes : %n note est fausse de %1 cents au plus.</numerusform>
            <numerusform>Un fichier MIDI n’a que 15 canaux pour des notes de hauteurs différentes : %n notes sont fausses de %1 cents au plus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Tuning</source>
        <translation type="unfinished">Exporter le tempérament</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">Gamme</translation>
    </message>
    <message>
        <source>Export Score</source>
        <translation type="unfinished">Exporter la partition</translation>
    </message>
    <message>
        <source>Export Roll</source>
        <translation type="unfinished">Exporter le rouleau</translation>
    </message>
    <message>
        <source>&amp;Bars in a line:</source>
        <translation type="unfinished">&amp;Mesures par ligne :</translation>
    </message>
</context>
<context>
    <name>velmora::TuningPanel</name>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Tempérament</translation>
    </message>
    <message>
        <source>Open T&amp;uning…</source>
        <translation type="unfinished">O&amp;uvrir un tempérament…</translation>
    </message>
    <message>
        <source>Open a tuning file: a scale (.scl) or frequencies (.mtx)</source>
        <translation type="unfinished">Ouvrir un fichier de tempérament&#x202f;: une gamme (.scl) ou des fréquences (.mtx)</translation>
    </message>
    <message>
        <source>The pitches of middle C and of the A above it in this tuning</source>
        <translation type="unfinished">Les hauteurs du do central et du la qui le surmonte dans ce tempérament</translation>
    </message>
    <message>
        <source>%1 (middle C): %2 Hz
%3: %4 Hz</source>
        <translation type="unfinished">%1 (do central)&#x202f;: %2&#xa0;Hz
%3&#x202f;: %4&#xa0;Hz</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">Égal</translation>
    </message>
    <message>
        <source>Twelve equal semitones</source>
        <translation type="unfinished">Douze demi-tons égaux</translation>
    </message>
    <message>
        <source>Quartercomma Meantone</source>
        <translation type="unfinished">Mésotonique au quart de comma</translation>
    </message>
    <message>
        <source>Pure major thirds</source>
        <translation type="unfinished">Tierces majeures pures</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation type="unfinished">Dynamique</translation>
    </message>
    <message>
        <source>Adapts its thirds to what you play</source>
        <translation type="unfinished">Adapte ses tierces à votre jeu</translation>
    </message>
    <message>
        <source>Find a tuning</source>
        <translation type="unfinished">Chercher un tempérament</translation>
    </message>
    <message>
        <source>Tunings</source>
        <translation type="unfinished">Tempéraments</translation>
    </message>
    <message>
        <source>Pythagorean</source>
        <translation type="unfinished">Pythagoricien</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">Mésotonique</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">Français</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">Anglais</translation>
    </message>
    <message>
        <source>Well temperaments</source>
        <translation type="unfinished">Tempéraments inégaux circulants</translation>
    </message>
    <message>
        <source>Just intonation</source>
        <translation type="unfinished">Intonation juste</translation>
    </message>
    <message>
        <source>Equal divisions</source>
        <translation type="unfinished">Divisions égales</translation>
    </message>
    <message>
        <source>Outside Europe</source>
        <translation type="unfinished">Hors d’Europe</translation>
    </message>
    <message>
        <source>Following Meantone</source>
        <translation type="unfinished">Mésotonique suiveur</translation>
    </message>
    <message>
        <source>Spells each key as the music asks for, with pure thirds</source>
        <translation type="unfinished">Orthographie chaque touche selon la musique, avec des tierces pures</translation>
    </message>
    <message>
        <source>Pure</source>
        <translation type="unfinished">Pur</translation>
    </message>
    <message>
        <source>Makes the chords that you play pure</source>
        <translation type="unfinished">Rend purs les accords joués</translation>
    </message>
    <message>
        <source>Shape…</source>
        <translation type="unfinished">Façonner…</translation>
    </message>
    <message>
        <source>Show the circle of fifths and what sounds, and shape the tuning</source>
        <translation type="unfinished">Afficher le cycle des quintes et ce qui sonne, et façonner l’accord</translation>
    </message>
</context>
<context>
    <name>velmora::TuningShaper</name>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">Façonner l’accord</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <translation type="unfinished">%1 (modifié)</translation>
    </message>
    <message>
        <source>%1 (edited, %2)</source>
        <translation type="unfinished">%1 (modifié, %2)</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStrip</name>
    <message>
        <source>Tuning strip</source>
        <translation type="unfinished">Réglette du tempérament</translation>
    </message>
    <message>
        <source>How many cents each note of the tuning lies above or below equal temperament</source>
        <translation type="unfinished">De combien de cents chaque note du tempérament s’écarte du tempérament égal, vers le haut ou vers le bas</translation>
    </message>
    <message>
        <source>%1: %2 cents</source>
        <translation type="unfinished">%1&#x202f;: %2 cents</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStudio</name>
    <message>
        <source>Pages of the tuning studio</source>
        <translation type="unfinished">Pages de l’atelier d’accord</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished">Cercle</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished">Façonner</translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished">Maintenant</translation>
    </message>
</context>
<context>
    <name>velmora::UndoHistory</name>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">Historique des modifications</translation>
    </message>
    <message>
        <source>Edits of the piece</source>
        <translation type="unfinished">Modifications du morceau</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation type="unfinished">Tel qu’ouvert</translation>
    </message>
</context>
<context>
    <name>velmora::VelocityLane</name>
    <message>
        <source>Velocities</source>
        <translation type="unfinished">Vélocités</translation>
    </message>
    <message>
        <source>Drag over the bars to change velocities. With Shift, they follow a straight line. If notes are selected, only they change.</source>
        <translation type="unfinished">Faites glisser sur les barres pour changer les vélocités. Avec Maj, elles suivent une ligne droite. Si des notes sont sélectionnées, elles seules changent.</translation>
    </message>
</context>
<context>
    <name>velmora::VoiceRow</name>
    <message>
        <source>Record and draw on this voice; double-click to select its notes</source>
        <translation type="unfinished">Enregistre et dessine sur cette voix ; un double-clic sélectionne ses notes</translation>
    </message>
    <message>
        <source>M</source>
        <comment>mute</comment>
        <translation type="unfinished">M</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished">Muet</translation>
    </message>
    <message>
        <source>S</source>
        <comment>solo</comment>
        <translation type="unfinished">S</translation>
    </message>
    <message>
        <source>Solo: only such voices sound</source>
        <translation type="unfinished">Solo : seules ces voix sonnent</translation>
    </message>
    <message>
        <source>L</source>
        <comment>lock</comment>
        <translation type="unfinished">V</translation>
    </message>
    <message>
        <source>Lock: protect its notes from edits</source>
        <translation type="unfinished">Verrouiller : protège ses notes des modifications</translation>
    </message>
    <message>
        <source>Drum kit %1</source>
        <translation type="unfinished">Batterie %1</translation>
    </message>
    <message>
        <source>Program %1 of bank %2</source>
        <translation type="unfinished">Programme %1 de la banque %2</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">Voix %1</translation>
    </message>
    <message>
        <source>Record and draw on %1</source>
        <translation type="unfinished">Enregistrer et dessiner sur %1</translation>
    </message>
    <message>
        <source>Name of voice %1</source>
        <translation type="unfinished">Nom de la voix %1</translation>
    </message>
    <message>
        <source>Program of %1</source>
        <translation type="unfinished">Programme de %1</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">Volume de %1</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation type="unfinished">Rendre %1 muette</translation>
    </message>
    <message>
        <source>Solo %1</source>
        <translation type="unfinished">%1 en solo</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation type="unfinished">Verrouiller %1</translation>
    </message>
    <message>
        <source>What the voice plays</source>
        <translation type="unfinished">Ce que joue la voix</translation>
    </message>
    <message>
        <source>This instrument plays every voice alike</source>
        <translation type="unfinished">Cet instrument joue toutes les voix de la même façon</translation>
    </message>
    <message>
        <source>How loud the voice is, from 0 to 127</source>
        <translation type="unfinished">Le niveau de la voix, de 0 à 127</translation>
    </message>
    <message>
        <source>Like the instrument</source>
        <translation type="unfinished">Comme l’instrument</translation>
    </message>
    <message>
        <source>Select &amp;Notes</source>
        <translation type="unfinished">Sélectionner les &amp;notes</translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation type="unfinished">&amp;Muet</translation>
    </message>
    <message>
        <source>&amp;Solo</source>
        <translation type="unfinished">&amp;Solo</translation>
    </message>
    <message>
        <source>&amp;Lock</source>
        <translation type="unfinished">&amp;Verrouiller</translation>
    </message>
</context>
<context>
    <name>velmora::VoicesPanel</name>
    <message>
        <source>Otherwise the instrument plays every voice alike</source>
        <translation type="unfinished">Sinon, l’instrument joue toutes les voix de la même façon</translation>
    </message>
    <message>
        <source>Rename Voice</source>
        <translation type="unfinished">Renommer la voix</translation>
    </message>
    <message>
        <source>Change Program of Voice</source>
        <translation type="unfinished">Changer le programme de la voix</translation>
    </message>
    <message>
        <source>Change Volume of Voice</source>
        <translation type="unfinished">Changer le volume de la voix</translation>
    </message>
    <message>
        <source>Every voice has its own sound</source>
        <translation type="unfinished">Chaque voix a son propre son</translation>
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
        <translation type="unfinished">Morceaux ouverts</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished">Clavier</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">Instrument</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">Tempérament</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Piece</source>
        <translation type="unfinished">M&amp;orceau</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">Aid&amp;e</translation>
    </message>
    <message>
        <source>Silence Everything</source>
        <translation type="unfinished">Couper tous les sons</translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished">Console</translation>
    </message>
    <message>
        <source>C&amp;onsole</source>
        <translation type="unfinished">Conso&amp;le</translation>
    </message>
    <message>
        <source>Tuning Studio</source>
        <translation type="unfinished">Atelier d’accord</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">Exercice</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voix</translation>
    </message>
</context>
<context>
    <name>velmora::messages</name>
    <message>
        <source>MIDI Player</source>
        <translation type="unfinished">Lecteur MIDI</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation type="unfinished">Échantillon %1</translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished">Sortie</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation type="unfinished">Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished">Période</translation>
    </message>
    <message>
        <source>From MIDI to sound</source>
        <translation type="unfinished">Du MIDI au son</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">Voix</translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished">Charge</translation>
    </message>
    <message>
        <source>Lost periods</source>
        <translation type="unfinished">Périodes perdues</translation>
    </message>
    <message>
        <source>Instruments in memory</source>
        <translation type="unfinished">Instruments en mémoire</translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">aucun</translation>
    </message>
    <message>
        <source>%1 frames, %2 ms</source>
        <translation type="unfinished">%1 trames, %2 ms</translation>
    </message>
    <message>
        <source>%1 ms (input %2 ms, period and limiter %3 ms, sound server %4 ms)</source>
        <translation type="unfinished">%1 ms (entrée %2 ms, période et limiteur %3 ms, serveur de son %4 ms)</translation>
    </message>
    <message>
        <source>%1, released keys are shortened</source>
        <translation type="unfinished">%1, les touches relâchées sont écourtées</translation>
    </message>
    <message>
        <source>%1 % of the period, at worst %2 %</source>
        <translation type="unfinished">%1 % de la période, au pire %2 %</translation>
    </message>
    <message>
        <source>%1, the last at %2</source>
        <translation type="unfinished">%1, la dernière à %2</translation>
    </message>
    <message>
        <source>%1 messages a second</source>
        <translation type="unfinished">%1 messages par seconde</translation>
    </message>
    <message>
        <source>%1GB</source>
        <translation type="unfinished">%1 Go</translation>
    </message>
    <message>
        <source>%1MB</source>
        <translation type="unfinished">%1 Mo</translation>
    </message>
    <message>
        <source>%1KB</source>
        <translation type="unfinished">%1 Ko</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished">%1 octets</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation type="unfinished">Pas de son</translation>
    </message>
    <message>
        <source>The sound card</source>
        <translation type="unfinished">La carte son</translation>
    </message>
    <message>
        <source>The output &quot;%1&quot;</source>
        <translation type="unfinished">La sortie « %1 »</translation>
    </message>
    <message>
        <source>No sound output was found; looking for one.</source>
        <translation type="unfinished">Aucune sortie son n’a été trouvée ; recherche en cours.</translation>
    </message>
    <message>
        <source>%1 has gone; waiting for it.</source>
        <translation type="unfinished">%1 a disparu ; en attente de son retour.</translation>
    </message>
    <message>
        <source>%1 is missing; waiting for it.</source>
        <translation type="unfinished">%1 manque ; en attente.</translation>
    </message>
    <message>
        <source>%1 has gone; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 a disparu ; %2 joue jusqu’à son retour.</translation>
    </message>
    <message>
        <source>%1 is missing; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 manque ; %2 joue jusqu’à son retour.</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished">lecture impossible</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation type="unfinished">lecture impossible (%1)</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished">le fichier est vide</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation type="unfinished">le fichier est trop grand</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a file</source>
        <translation type="unfinished">c’est un tube ou un périphérique, pas un fichier</translation>
    </message>
    <message>
        <source>needs %1 more of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">il faut %1 de mémoire en plus, mais seuls %2 sont libres ; retirez d’autres instruments ou fermez d’autres programmes</translation>
    </message>
    <message>
        <source>is damaged or cut short</source>
        <translation type="unfinished">le fichier est endommagé ou tronqué</translation>
    </message>
    <message>
        <source>is cut short</source>
        <translation type="unfinished">le fichier est tronqué</translation>
    </message>
    <message>
        <source>is damaged and its presets cannot be played; opening it as stops may work</source>
        <translation type="unfinished">le fichier est endommagé et ses préréglages ne peuvent pas être joués ; l’ouvrir en jeux peut réussir</translation>
    </message>
    <message>
        <source>has no presets</source>
        <translation type="unfinished">aucun préréglage</translation>
    </message>
    <message>
        <source>the file does not contain its data</source>
        <translation type="unfinished">le fichier ne contient pas ses données</translation>
    </message>
    <message>
        <source>the file has too many chunks</source>
        <translation type="unfinished">le fichier a trop de blocs</translation>
    </message>
    <message>
        <source>lists are nested too deeply</source>
        <translation type="unfinished">listes imbriquées trop profondément</translation>
    </message>
    <message>
        <source>is not a RIFF file</source>
        <translation type="unfinished">ce n’est pas un fichier RIFF</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation type="unfinished">« %1 » manque</translation>
    </message>
    <message>
        <source>this is not a tuning file</source>
        <translation type="unfinished">ce n’est pas un fichier d’accord</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation type="unfinished">« %1 » n’est pas un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation type="unfinished">« %1 » n’est pas un nombre fini</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a playable pitch</source>
        <translation type="unfinished">« %1 » n’est pas une hauteur jouable</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a zero denominator</source>
        <translation type="unfinished">« %1 » a un dénominateur nul</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the number of notes; only scales of 12 notes are supported</source>
        <translation type="unfinished">« %1 » est le nombre de notes ; seules les gammes de 12 notes sont acceptées</translation>
    </message>
    <message>
        <source>this is not a Standard MIDI File: &quot;MThd&quot; is missing</source>
        <translation type="unfinished">ce n’est pas un fichier MIDI standard : « MThd » manque</translation>
    </message>
    <message>
        <source>the header is too short</source>
        <translation type="unfinished">l’en-tête est trop court</translation>
    </message>
    <message>
        <source>the header announces no tracks</source>
        <translation type="unfinished">l’en-tête n’annonce aucune piste</translation>
    </message>
    <message>
        <source>an event exceeds the end of its track</source>
        <translation type="unfinished">un événement dépasse la fin de sa piste</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 tracks</source>
        <translation type="unfinished">le fichier finit après %1 pistes sur %2</translation>
    </message>
    <message>
        <source>a chunk of %1 bytes is truncated: the file has only %2 more</source>
        <translation type="unfinished">un bloc de %1 octets est tronqué : le fichier n’en a plus que %2</translation>
    </message>
    <message>
        <source>this is not a session of Velmora</source>
        <translation type="unfinished">ce n’est pas une session de Velmora</translation>
    </message>
    <message>
        <source>a later version of Velmora has written this session</source>
        <translation type="unfinished">une version plus récente de Velmora a écrit cette session</translation>
    </message>
    <message>
        <source>is too large for the free memory; unload other instruments, then open it again</source>
        <translation type="unfinished">le fichier dépasse la mémoire libre ; retirez d’autres instruments, puis ouvrez-le de nouveau</translation>
    </message>
    <message>
        <source>has no instruments</source>
        <translation type="unfinished">aucun instrument</translation>
    </message>
    <message>
        <source>has no samples</source>
        <translation type="unfinished">aucun échantillon</translation>
    </message>
    <message>
        <source>is not a sound file in a supported format</source>
        <translation type="unfinished">ce n’est pas un fichier son d’un format accepté</translation>
    </message>
    <message>
        <source>is a damaged WavPack file (%1)</source>
        <translation type="unfinished">fichier WavPack endommagé (%1)</translation>
    </message>
    <message>
        <source>lies outside the folder of the instrument</source>
        <translation type="unfinished">hors du dossier de l’instrument</translation>
    </message>
    <message>
        <source>names a file outside the folder of the organ: &quot;%1&quot;</source>
        <translation type="unfinished">nomme un fichier hors du dossier de l’orgue : « %1 »</translation>
    </message>
    <message>
        <source>names a file outside the folder of its package: &quot;%1&quot;</source>
        <translation type="unfinished">nomme un fichier hors du dossier de son paquet : « %1 »</translation>
    </message>
    <message>
        <source>is longer than a sound may be: it has more than 2 GB of samples</source>
        <translation type="unfinished">plus long qu’un son ne peut l’être : plus de 2 Go d’échantillons</translation>
    </message>
    <message>
        <source>is damaged: its samples would take %1, but the file holds only %2</source>
        <translation type="unfinished">fichier endommagé : ses échantillons prendraient %1, mais il n’a que %2</translation>
    </message>
    <message>
        <source>is a SoundFont %1 bank with compressed samples; convert it to SoundFont 2</source>
        <translation type="unfinished">banque SoundFont %1 aux échantillons compressés ; convertissez-la en SoundFont 2</translation>
    </message>
    <message>
        <source>cannot be loaded: its samples are encrypted and need a licence; open an organ without encryption</source>
        <translation type="unfinished">chargement impossible : ses échantillons sont chiffrés et exigent une licence ; ouvrez un orgue sans chiffrement</translation>
    </message>
    <message>
        <source>cannot be played: no pipe has a sample file</source>
        <translation type="unfinished">jeu impossible : aucun tuyau n’a de fichier d’échantillon</translation>
    </message>
    <message>
        <source>cannot be played: none of the %1 sample files can be decoded, for example %2</source>
        <translation type="unfinished">jeu impossible : aucun des %1 fichiers d’échantillons ne peut être décodé, par exemple %2</translation>
    </message>
    <message>
        <source>is not an organ definition: its root element is not &quot;Hauptwerk&quot;</source>
        <translation type="unfinished">ce n’est pas une définition d’orgue : l’élément racine n’est pas « Hauptwerk »</translation>
    </message>
    <message>
        <source>is written in UTF-16; save it as UTF-8 in a text editor</source>
        <translation type="unfinished">écrit en UTF-16 ; enregistrez-le en UTF-8 dans un éditeur de texte</translation>
    </message>
    <message>
        <source>cannot be played: it has no stop with pipes</source>
        <translation type="unfinished">jeu impossible : aucun jeu n’a de tuyaux</translation>
    </message>
    <message>
        <source>holds no organ definition (a file with the extension .organ)</source>
        <translation type="unfinished">aucune définition d’orgue (fichier d’extension .organ)</translation>
    </message>
    <message>
        <source>this package is not in the folder of the organ</source>
        <translation type="unfinished">ce paquet n’est pas dans le dossier de l’orgue</translation>
    </message>
    <message>
        <source>is not a zip archive, or is damaged</source>
        <translation type="unfinished">ce n’est pas une archive zip, ou elle est endommagée</translation>
    </message>
    <message>
        <source>is a damaged archive</source>
        <translation type="unfinished">archive endommagée</translation>
    </message>
    <message>
        <source>is encrypted; only archives without a password can be opened</source>
        <translation type="unfinished">archive chiffrée ; seules les archives sans mot de passe peuvent être ouvertes</translation>
    </message>
    <message>
        <source>holds a file whose name leads out of the archive: &quot;%1&quot;</source>
        <translation type="unfinished">contient un fichier dont le nom mène hors de l’archive : « %1 »</translation>
    </message>
    <message>
        <source>is not in the archive</source>
        <translation type="unfinished">absent de l’archive</translation>
    </message>
    <message>
        <source>is damaged in the archive</source>
        <translation type="unfinished">endommagé dans l’archive</translation>
    </message>
    <message>
        <source>is larger than the archive says</source>
        <translation type="unfinished">plus grand que ne le dit l’archive</translation>
    </message>
    <message>
        <source>is cut short in the archive</source>
        <translation type="unfinished">tronqué dans l’archive</translation>
    </message>
    <message>
        <source>an attack has no sample file</source>
        <translation type="unfinished">une attaque n’a pas de fichier d’échantillon</translation>
    </message>
    <message>
        <source>a release has no sample file</source>
        <translation type="unfinished">une extinction n’a pas de fichier d’échantillon</translation>
    </message>
    <message>
        <source>recordings with the tremulant are not played</source>
        <translation type="unfinished">les enregistrements avec tremblant ne sont pas joués</translation>
    </message>
    <message>
        <source>recordings for quick repetitions are not played</source>
        <translation type="unfinished">les enregistrements pour répétitions rapides ne sont pas joués</translation>
    </message>
    <message>
        <source>borrowed from pipes that are borrowed from each other</source>
        <translation type="unfinished">emprunté à des tuyaux empruntés l’un à l’autre</translation>
    </message>
    <message>
        <source>does not say from which manual, stop and pipe it is borrowed</source>
        <translation type="unfinished">ne dit pas à quel clavier, jeu et tuyau il est emprunté</translation>
    </message>
    <message>
        <source>borrowed from stop %1 of manual %2, which does not exist</source>
        <translation type="unfinished">emprunté au jeu %1 du clavier %2, qui n’existe pas</translation>
    </message>
    <message>
        <source>borrowed from a pipe that does not sound</source>
        <translation type="unfinished">emprunté à un tuyau qui ne sonne pas</translation>
    </message>
    <message>
        <source>is outside the MIDI keys 0 to 127</source>
        <translation type="unfinished">hors des touches MIDI 0 à 127</translation>
    </message>
    <message>
        <source>its stop %1 does not exist</source>
        <translation type="unfinished">son jeu %1 n’existe pas</translation>
    </message>
    <message>
        <source>its rank %1 does not exist</source>
        <translation type="unfinished">son rang %1 n’existe pas</translation>
    </message>
    <message>
        <source>belongs to no manual</source>
        <translation type="unfinished">n’appartient à aucun clavier</translation>
    </message>
    <message>
        <source>has no pipe that sounds</source>
        <translation type="unfinished">aucun tuyau qui sonne</translation>
    </message>
    <message>
        <source>is a noise or an effect that sounds when its knob is drawn, not when keys are pressed</source>
        <translation type="unfinished">bruit ou effet qui sonne quand on tire son bouton, non avec les touches</translation>
    </message>
    <message>
        <source>silences its own keys (&quot;unison off&quot;), which is not supported</source>
        <translation type="unfinished">rend muettes ses propres touches (« unison off »), ce qui n’est pas pris en charge</translation>
    </message>
    <message>
        <source>couples only the lowest or the highest key, which is not supported</source>
        <translation type="unfinished">n’accouple que la touche la plus grave ou la plus aiguë, ce qui n’est pas pris en charge</translation>
    </message>
    <message>
        <source>couples to a manual that does not exist</source>
        <translation type="unfinished">accouple à un clavier qui n’existe pas</translation>
    </message>
    <message>
        <source>tremulants are not supported</source>
        <translation type="unfinished">les tremblants ne sont pas pris en charge</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation type="unfinished">%1, ligne %2 : %3</translation>
    </message>
    <message>
        <source>%1, byte %2: %3</source>
        <translation type="unfinished">%1, octet %2 : %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits, which takes %3</source>
        <translation type="unfinished">il faut environ %1 de mémoire, mais seuls %2 sont libres ; chargez-le en 16 bits, ce qui prend %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it in mono, which takes %3</source>
        <translation type="unfinished">il faut environ %1 de mémoire, mais seuls %2 sont libres ; chargez-le en mono, ce qui prend %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits and in mono, which takes %3</source>
        <translation type="unfinished">il faut environ %1 de mémoire, mais seuls %2 sont libres ; chargez-le en 16 bits et en mono, ce qui prend %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">il faut environ %1 de mémoire, mais seuls %2 sont libres ; retirez d’autres instruments ou fermez d’autres programmes</translation>
    </message>
    <message>
        <source>these are not the registrations of an organ</source>
        <translation type="unfinished">ce ne sont pas les registrations d’un orgue</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load fewer of its stops</source>
        <translation type="unfinished">il faut environ %1 de mémoire, mais seuls %2 sont libres ; chargez moins de jeux</translation>
    </message>
    <message>
        <source>the MIDI output %1 cannot be connected</source>
        <translation type="unfinished">impossible de connecter la sortie MIDI %1</translation>
    </message>
    <message>
        <source>the MIDI output %1 takes no message</source>
        <translation type="unfinished">la sortie MIDI %1 n’accepte aucun message</translation>
    </message>
    <message>
        <source>the scale has no description and no number of notes</source>
        <translation type="unfinished">la gamme n’a ni description ni nombre de notes</translation>
    </message>
    <message>
        <source>the scale has no number of notes</source>
        <translation type="unfinished">il manque le nombre de notes de la gamme</translation>
    </message>
    <message>
        <source>the scale ends after %1 of %2 pitches</source>
        <translation type="unfinished">la gamme s’arrête après %1 hauteurs sur %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of notes from 0 to 128</source>
        <translation type="unfinished">« %1 » n’est pas un nombre de notes de 0 à 128</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch: write cents with a point, as in 701.955, or a ratio, as in 3/2</source>
        <translation type="unfinished">« %1 » n’est pas une hauteur : écrivez des cents avec un point, comme 701.955, ou un rapport, comme 3/2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch above 0</source>
        <translation type="unfinished">« %1 » n’est pas une hauteur supérieure à 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a number that is too large</source>
        <translation type="unfinished">« %1 » contient un nombre trop grand</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an octave, the index of a note and its frequency in hertz, which sounds on a key from 0 to 127</source>
        <translation type="unfinished">« %1 » exige une octave, l’indice d’une note et sa fréquence en hertz, sur une touche de 0 à 127</translation>
    </message>
    <message>
        <source>the mapping ends before the size of the mapping</source>
        <translation type="unfinished">l’affectation s’arrête avant sa taille</translation>
    </message>
    <message>
        <source>the mapping ends before the first key</source>
        <translation type="unfinished">l’affectation s’arrête avant la première touche</translation>
    </message>
    <message>
        <source>the mapping ends before the last key</source>
        <translation type="unfinished">l’affectation s’arrête avant la dernière touche</translation>
    </message>
    <message>
        <source>the mapping ends before the middle key</source>
        <translation type="unfinished">l’affectation s’arrête avant la touche centrale</translation>
    </message>
    <message>
        <source>the mapping ends before the reference key</source>
        <translation type="unfinished">l’affectation s’arrête avant la touche de référence</translation>
    </message>
    <message>
        <source>the mapping ends before the frequency</source>
        <translation type="unfinished">l’affectation s’arrête avant la fréquence</translation>
    </message>
    <message>
        <source>the mapping ends before the formal octave</source>
        <translation type="unfinished">l’affectation s’arrête avant l’octave formelle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the size of the mapping, a number from 0 to %2</source>
        <translation type="unfinished">« %1 » n’est pas la taille de l’affectation, un nombre de 0 à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first key, a number from 0 to %2</source>
        <translation type="unfinished">« %1 » n’est pas la première touche, un nombre de 0 à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the last key, a number from 0 to %2</source>
        <translation type="unfinished">« %1 » n’est pas la dernière touche, un nombre de 0 à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the middle key, a number from 0 to %2</source>
        <translation type="unfinished">« %1 » n’est pas la touche centrale, un nombre de 0 à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the reference key, a number from 0 to %2</source>
        <translation type="unfinished">« %1 » n’est pas la touche de référence, un nombre de 0 à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the formal octave, a number from 0 to %2</source>
        <translation type="unfinished">« %1 » n’est pas l’octave formelle, un nombre de 0 à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a degree of the scale or an x, a number from 0 to %2</source>
        <translation type="unfinished">« %1 » n’est ni un degré de la gamme, un nombre de 0 à %2, ni un x</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a frequency in hertz above 0</source>
        <translation type="unfinished">« %1 » n’est pas une fréquence en hertz supérieure à 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no =</source>
        <translation type="unfinished">il manque un = dans « %1 »</translation>
    </message>
    <message>
        <source>the reference key %1 plays no note</source>
        <translation type="unfinished">la touche de référence %1 ne joue aucune note</translation>
    </message>
    <message>
        <source>the pitch of key %1 is beyond all bounds</source>
        <translation type="unfinished">la hauteur de la touche %1 dépasse toute limite</translation>
    </message>
    <message>
        <source>the pitches are only given by formulas, in the section [Functional Tuning]</source>
        <translation type="unfinished">les hauteurs ne sont données que par des formules, dans la section [Functional Tuning]</translation>
    </message>
    <message>
        <source>there is no section [Exact Tuning] or [Tuning]</source>
        <translation type="unfinished">il n’y a pas de section [Exact Tuning] ou [Tuning]</translation>
    </message>
    <message>
        <source>a keyboard mapping needs a scale, and this tuning has none</source>
        <translation type="unfinished">une affectation des touches exige une gamme, et cet accord n’en a pas</translation>
    </message>
    <message>
        <source>the scale repeats after %1 cents, but the plain reading repeats it after an octave</source>
        <translation type="unfinished">la gamme se répète après %1 cents, mais la lecture simple la répète après une octave</translation>
    </message>
    <message>
        <source>in the plain reading, General MIDI plays some keys of &quot;%1&quot; %2 cents out of tune</source>
        <translation type="unfinished">dans la lecture simple, General MIDI joue certaines touches de « %1 » fausses de %2 cents</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation type="unfinished">%1, ligne %2, colonne %3 : %4</translation>
    </message>
    <message>
        <source>the XML is damaged: %1</source>
        <translation type="unfinished">le XML est endommagé : %1</translation>
    </message>
    <message>
        <source>The file is damaged, and only a part of it could be read. To keep what may still be in it, save the piece under another name.</source>
        <translation type="unfinished">Le fichier est endommagé et n&apos;a pu être lu qu&apos;en partie. Pour garder ce qu&apos;il contient peut-être encore, enregistrez le morceau sous un autre nom.</translation>
    </message>
    <message>
        <source>is not a MusicXML score</source>
        <translation type="unfinished">n&apos;est pas une partition MusicXML</translation>
    </message>
    <message>
        <source>is an archive, but not of a score</source>
        <translation type="unfinished">est une archive, mais pas celle d&apos;une partition</translation>
    </message>
    <message>
        <source>the score &quot;%1&quot; is missing from the archive</source>
        <translation type="unfinished">la partition « %1 » manque dans l&apos;archive</translation>
    </message>
    <message>
        <source>the score has no parts</source>
        <translation type="unfinished">la partition n&apos;a pas de parties</translation>
    </message>
    <message>
        <source>the score has too many parts</source>
        <translation type="unfinished">la partition a trop de parties</translation>
    </message>
    <message>
        <source>measure %1 is too long</source>
        <translation type="unfinished">la mesure %1 est trop longue</translation>
    </message>
    <message>
        <source>the music is too long</source>
        <translation type="unfinished">la musique est trop longue</translation>
    </message>
    <message>
        <source>the MIDI output %1 is gone</source>
        <translation type="unfinished">la sortie MIDI %1 a disparu</translation>
    </message>
</context>
<context>
    <name>velmora::nameParts</name>
    <message>
        <source>More</source>
        <translation type="unfinished">Plus</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished">Effacer</translation>
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
        <translation type="unfinished">Ré</translation>
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
        <translation type="unfinished">1 Piano à queue</translation>
    </message>
    <message>
        <source>2 Bright Acoustic Piano</source>
        <translation type="unfinished">2 Piano brillant</translation>
    </message>
    <message>
        <source>3 Electric Grand Piano</source>
        <translation type="unfinished">3 Piano à queue électrique</translation>
    </message>
    <message>
        <source>4 Honky-Tonk Piano</source>
        <translation type="unfinished">4 Piano bastringue</translation>
    </message>
    <message>
        <source>5 Rhodes Piano</source>
        <translation type="unfinished">5 Piano Rhodes</translation>
    </message>
    <message>
        <source>6 Chorus Piano</source>
        <translation type="unfinished">6 Piano chorus</translation>
    </message>
    <message>
        <source>7 Harpsichord</source>
        <translation type="unfinished">7 Clavecin</translation>
    </message>
    <message>
        <source>8 Clavinet</source>
        <translation type="unfinished">8 Clavinet</translation>
    </message>
    <message>
        <source>9 Celesta</source>
        <translation type="unfinished">9 Célesta</translation>
    </message>
    <message>
        <source>10 Glockenspiel</source>
        <translation type="unfinished">10 Glockenspiel</translation>
    </message>
    <message>
        <source>11 Music Box</source>
        <translation type="unfinished">11 Boîte à musique</translation>
    </message>
    <message>
        <source>12 Vibraphone</source>
        <translation type="unfinished">12 Vibraphone</translation>
    </message>
    <message>
        <source>13 Marimba</source>
        <translation type="unfinished">13 Marimba</translation>
    </message>
    <message>
        <source>14 Xylophone</source>
        <translation type="unfinished">14 Xylophone</translation>
    </message>
    <message>
        <source>15 Tubular Bells</source>
        <translation type="unfinished">15 Cloches tubulaires</translation>
    </message>
    <message>
        <source>16 Dulcimer</source>
        <translation type="unfinished">16 Tympanon</translation>
    </message>
    <message>
        <source>17 Hammond Organ</source>
        <translation type="unfinished">17 Orgue Hammond</translation>
    </message>
    <message>
        <source>18 Percusive Organ</source>
        <translation type="unfinished">18 Orgue percussif</translation>
    </message>
    <message>
        <source>19 Rock Organ</source>
        <translation type="unfinished">19 Orgue rock</translation>
    </message>
    <message>
        <source>20 Church Organ</source>
        <translation type="unfinished">20 Orgue d’église</translation>
    </message>
    <message>
        <source>21 Reed Organ</source>
        <translation type="unfinished">21 Harmonium</translation>
    </message>
    <message>
        <source>22 Accordion</source>
        <translation type="unfinished">22 Accordéon</translation>
    </message>
    <message>
        <source>23 Harmonica</source>
        <translation type="unfinished">23 Harmonica</translation>
    </message>
    <message>
        <source>24 Tango Accordion</source>
        <translation type="unfinished">24 Bandonéon</translation>
    </message>
    <message>
        <source>25 Nylon Guitar</source>
        <translation type="unfinished">25 Guitare à cordes en nylon</translation>
    </message>
    <message>
        <source>26 Steel String Guitar</source>
        <translation type="unfinished">26 Guitare à cordes en acier</translation>
    </message>
    <message>
        <source>27 Jazz Guitar</source>
        <translation type="unfinished">27 Guitare jazz</translation>
    </message>
    <message>
        <source>28 Clean E. Guitar</source>
        <translation type="unfinished">28 Guitare électrique claire</translation>
    </message>
    <message>
        <source>29 Mute E. Guitar</source>
        <translation type="unfinished">29 Guitare électrique étouffée</translation>
    </message>
    <message>
        <source>30 Overdrive Guitar</source>
        <translation type="unfinished">30 Guitare saturée</translation>
    </message>
    <message>
        <source>31 Distort Guitar</source>
        <translation type="unfinished">31 Guitare distorsion</translation>
    </message>
    <message>
        <source>32 Harmonics</source>
        <translation type="unfinished">32 Harmoniques</translation>
    </message>
    <message>
        <source>33 Acoustic Bass</source>
        <translation type="unfinished">33 Basse acoustique</translation>
    </message>
    <message>
        <source>34 Finger E. Bass</source>
        <translation type="unfinished">34 Basse électrique aux doigts</translation>
    </message>
    <message>
        <source>35 Picked E. Bass</source>
        <translation type="unfinished">35 Basse électrique au médiator</translation>
    </message>
    <message>
        <source>36 Fretless Bass</source>
        <translation type="unfinished">36 Basse sans frettes</translation>
    </message>
    <message>
        <source>37 Slap Bass 1</source>
        <translation type="unfinished">37 Basse slap 1</translation>
    </message>
    <message>
        <source>38 Slap Bass 2</source>
        <translation type="unfinished">38 Basse slap 2</translation>
    </message>
    <message>
        <source>39 Synth Bass1</source>
        <translation type="unfinished">39 Basse synthé 1</translation>
    </message>
    <message>
        <source>40 Synth Bass2</source>
        <translation type="unfinished">40 Basse synthé 2</translation>
    </message>
    <message>
        <source>41 Violin</source>
        <translation type="unfinished">41 Violon</translation>
    </message>
    <message>
        <source>42 Viola</source>
        <translation type="unfinished">42 Alto</translation>
    </message>
    <message>
        <source>43 Cello</source>
        <translation type="unfinished">43 Violoncelle</translation>
    </message>
    <message>
        <source>44 Contrabass</source>
        <translation type="unfinished">44 Contrebasse</translation>
    </message>
    <message>
        <source>45 Tremolo Strings</source>
        <translation type="unfinished">45 Cordes trémolo</translation>
    </message>
    <message>
        <source>46 Pizzicato Strings</source>
        <translation type="unfinished">46 Cordes pizzicato</translation>
    </message>
    <message>
        <source>47 Orchestral Harp</source>
        <translation type="unfinished">47 Harpe</translation>
    </message>
    <message>
        <source>48 Timpani</source>
        <translation type="unfinished">48 Timbales</translation>
    </message>
    <message>
        <source>49 String Ensemble 1</source>
        <translation type="unfinished">49 Ensemble à cordes 1</translation>
    </message>
    <message>
        <source>50 String Ensemble 2</source>
        <translation type="unfinished">50 Ensemble à cordes 2</translation>
    </message>
    <message>
        <source>51 Synth Strings 1</source>
        <translation type="unfinished">51 Cordes synthé 1</translation>
    </message>
    <message>
        <source>52 Synth Strings 2</source>
        <translation type="unfinished">52 Cordes synthé 2</translation>
    </message>
    <message>
        <source>53 Choir Aahs</source>
        <translation type="unfinished">53 Chœur «&#x202f;aah&#x202f;»</translation>
    </message>
    <message>
        <source>54 Voice Oohs</source>
        <translation type="unfinished">54 Voix «&#x202f;ooh&#x202f;»</translation>
    </message>
    <message>
        <source>55 Synth Voice</source>
        <translation type="unfinished">55 Voix synthé</translation>
    </message>
    <message>
        <source>56 Orchestra Hit</source>
        <translation type="unfinished">56 Coup d’orchestre</translation>
    </message>
    <message>
        <source>57 Trumpet</source>
        <translation type="unfinished">57 Trompette</translation>
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
        <translation type="unfinished">60 Trompette bouchée</translation>
    </message>
    <message>
        <source>61 French Horn</source>
        <translation type="unfinished">61 Cor</translation>
    </message>
    <message>
        <source>62 Brass Section</source>
        <translation type="unfinished">62 Cuivres</translation>
    </message>
    <message>
        <source>63 Synth Brass 1</source>
        <translation type="unfinished">63 Cuivres synthé 1</translation>
    </message>
    <message>
        <source>64 Synth Brass 2</source>
        <translation type="unfinished">64 Cuivres synthé 2</translation>
    </message>
    <message>
        <source>65 Soprano Sax</source>
        <translation type="unfinished">65 Saxophone soprano</translation>
    </message>
    <message>
        <source>66 Alto Sax</source>
        <translation type="unfinished">66 Saxophone alto</translation>
    </message>
    <message>
        <source>67 Tenor Sax</source>
        <translation type="unfinished">67 Saxophone ténor</translation>
    </message>
    <message>
        <source>68 Baritone Sax</source>
        <translation type="unfinished">68 Saxophone baryton</translation>
    </message>
    <message>
        <source>69 Oboe</source>
        <translation type="unfinished">69 Hautbois</translation>
    </message>
    <message>
        <source>70 English Horn</source>
        <translation type="unfinished">70 Cor anglais</translation>
    </message>
    <message>
        <source>71 Bassoon</source>
        <translation type="unfinished">71 Basson</translation>
    </message>
    <message>
        <source>72 Clarinet</source>
        <translation type="unfinished">72 Clarinette</translation>
    </message>
    <message>
        <source>73 Piccolo</source>
        <translation type="unfinished">73 Piccolo</translation>
    </message>
    <message>
        <source>74 Flute</source>
        <translation type="unfinished">74 Flûte traversière</translation>
    </message>
    <message>
        <source>75 Recorder</source>
        <translation type="unfinished">75 Flûte à bec</translation>
    </message>
    <message>
        <source>76 Pan Flute</source>
        <translation type="unfinished">76 Flûte de Pan</translation>
    </message>
    <message>
        <source>77 Bottle Blow</source>
        <translation type="unfinished">77 Souffle de bouteille</translation>
    </message>
    <message>
        <source>78 Shakuhachi</source>
        <translation type="unfinished">78 Shakuhachi</translation>
    </message>
    <message>
        <source>79 Whistle</source>
        <translation type="unfinished">79 Sifflement</translation>
    </message>
    <message>
        <source>80 Ocarina</source>
        <translation type="unfinished">80 Ocarina</translation>
    </message>
    <message>
        <source>81 Square Wave</source>
        <translation type="unfinished">81 Onde carrée</translation>
    </message>
    <message>
        <source>82 Saw Tooth</source>
        <translation type="unfinished">82 Dents de scie</translation>
    </message>
    <message>
        <source>83 Syn Calliope</source>
        <translation type="unfinished">83 Calliope synthé</translation>
    </message>
    <message>
        <source>84 Chiffer Lead</source>
        <translation type="unfinished">84 Solo chiff</translation>
    </message>
    <message>
        <source>85 Charang</source>
        <translation type="unfinished">85 Charang</translation>
    </message>
    <message>
        <source>86 Solo Vox</source>
        <translation type="unfinished">86 Voix solo</translation>
    </message>
    <message>
        <source>87 5th Saw Wave</source>
        <translation type="unfinished">87 Dents de scie en quintes</translation>
    </message>
    <message>
        <source>88 Brass &amp; Lead</source>
        <translation type="unfinished">88 Cuivres et solo</translation>
    </message>
    <message>
        <source>89 Fantasia</source>
        <translation type="unfinished">89 Fantasia</translation>
    </message>
    <message>
        <source>90 Warm Pad</source>
        <translation type="unfinished">90 Nappe chaude</translation>
    </message>
    <message>
        <source>91 Polysynth</source>
        <translation type="unfinished">91 Polysynthé</translation>
    </message>
    <message>
        <source>92 Space Vox</source>
        <translation type="unfinished">92 Voix de l’espace</translation>
    </message>
    <message>
        <source>93 Bowed Glass</source>
        <translation type="unfinished">93 Verre frotté</translation>
    </message>
    <message>
        <source>94 Metal Pad</source>
        <translation type="unfinished">94 Nappe métallique</translation>
    </message>
    <message>
        <source>95 Halo Pad</source>
        <translation type="unfinished">95 Nappe halo</translation>
    </message>
    <message>
        <source>96 Sweep Pad</source>
        <translation type="unfinished">96 Nappe balayée</translation>
    </message>
    <message>
        <source>97 Ice Rain</source>
        <translation type="unfinished">97 Pluie de glace</translation>
    </message>
    <message>
        <source>98 Soundtrack</source>
        <translation type="unfinished">98 Bande originale</translation>
    </message>
    <message>
        <source>99 Crystal</source>
        <translation type="unfinished">99 Cristal</translation>
    </message>
    <message>
        <source>100 Atmosphere</source>
        <translation type="unfinished">100 Atmosphère</translation>
    </message>
    <message>
        <source>101 Brightness</source>
        <translation type="unfinished">101 Brillance</translation>
    </message>
    <message>
        <source>102 Goblin</source>
        <translation type="unfinished">102 Gobelins</translation>
    </message>
    <message>
        <source>103 Echo Drops</source>
        <translation type="unfinished">103 Gouttes d’écho</translation>
    </message>
    <message>
        <source>104 Star Theme</source>
        <translation type="unfinished">104 Thème des étoiles</translation>
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
        <translation type="unfinished">110 Cornemuse</translation>
    </message>
    <message>
        <source>111 Fiddle</source>
        <translation type="unfinished">111 Violon folk</translation>
    </message>
    <message>
        <source>112 Shanai</source>
        <translation type="unfinished">112 Shehnai</translation>
    </message>
    <message>
        <source>113 Tinkle Bell</source>
        <translation type="unfinished">113 Clochettes</translation>
    </message>
    <message>
        <source>114 Agogo</source>
        <translation type="unfinished">114 Agogô</translation>
    </message>
    <message>
        <source>115 Steel Drums</source>
        <translation type="unfinished">115 Steel drums</translation>
    </message>
    <message>
        <source>116 Woodblock</source>
        <translation type="unfinished">116 Wood-block</translation>
    </message>
    <message>
        <source>117 Taiko Drum</source>
        <translation type="unfinished">117 Taiko</translation>
    </message>
    <message>
        <source>118 Melodic Tom</source>
        <translation type="unfinished">118 Tom mélodique</translation>
    </message>
    <message>
        <source>119 Synth Drum</source>
        <translation type="unfinished">119 Tambour synthé</translation>
    </message>
    <message>
        <source>120 Reverse Cymbal</source>
        <translation type="unfinished">120 Cymbale inversée</translation>
    </message>
    <message>
        <source>121 Guitar Fret Noise</source>
        <translation type="unfinished">121 Bruit de frettes</translation>
    </message>
    <message>
        <source>122 Breath Noise</source>
        <translation type="unfinished">122 Souffle</translation>
    </message>
    <message>
        <source>123 Sea Shore</source>
        <translation type="unfinished">123 Bord de mer</translation>
    </message>
    <message>
        <source>124 Bird Tweet</source>
        <translation type="unfinished">124 Chant d’oiseau</translation>
    </message>
    <message>
        <source>125 Telephone Ring</source>
        <translation type="unfinished">125 Sonnerie de téléphone</translation>
    </message>
    <message>
        <source>126 Helicopter</source>
        <translation type="unfinished">126 Hélicoptère</translation>
    </message>
    <message>
        <source>127 Applause</source>
        <translation type="unfinished">127 Applaudissements</translation>
    </message>
    <message>
        <source>128 Gun Shot</source>
        <translation type="unfinished">128 Coup de feu</translation>
    </message>
</context>
</TS>
