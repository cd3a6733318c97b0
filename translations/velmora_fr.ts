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
        <source>Find a command</source>
        <translation type="unfinished">Rechercher une commande</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished">Commandes</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 – %2</translation>
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
    <name>velmora::Desktop</name>
    <message>
        <source>%1: unrecognised file type. Velmora recognises files by their extensions, such as .mid, .scl or .sf2.</source>
        <translation type="unfinished">%1&#x202f;: type de fichier inconnu. Velmora reconnaît les fichiers à leur extension, telle que .mid, .scl ou .sf2.</translation>
    </message>
    <message>
        <source>%1: %2; see Import Report in the Instruments window</source>
        <translation type="unfinished">%1&#x202f;: %2&#x202f;; voir «&#x202f;Rapport d’importation&#x202f;» dans la fenêtre «&#x202f;Instruments&#x202f;»</translation>
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
        <source>%1: Velmora cannot play instruments of this format. Convert it to a SoundFont (.sf2), then open that.</source>
        <translation type="unfinished">%1&#x202f;: Velmora ne peut pas jouer les instruments de ce format. Convertissez-le en SoundFont (.sf2), puis ouvrez celle-ci.</translation>
    </message>
    <message>
        <source>%1 cannot be used as the General MIDI bank. %2 is used instead. Choose another SoundFont in the preferences.</source>
        <translation type="unfinished">%1 ne peut pas servir de banque General MIDI. %2 est utilisé à la place. Choisissez une autre SoundFont dans les préférences.</translation>
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
    <name>velmora::InstrumentPanel</name>
    <message>
        <source>Stop %1</source>
        <translation type="unfinished">Jeu %1</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished">Volume</translation>
    </message>
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
    <name>velmora::MetersWindow</name>
    <message>
        <source>Meters</source>
        <translation type="unfinished">Indicateurs</translation>
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
        <source>General MIDI program</source>
        <translation type="unfinished">Programme General MIDI</translation>
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
    <name>velmora::SearchField</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
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
        <source>Align notes and times with whole steps</source>
        <translation type="unfinished">Aligner les notes et les temps sur des pas entiers</translation>
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
        <source>View</source>
        <translation type="unfinished">Affichage</translation>
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
</context>
<context>
    <name>velmora::StopList</name>
    <message>
        <source>Find a stop</source>
        <translation type="unfinished">Rechercher un jeu</translation>
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
        <source>The position in minutes and seconds at this tempo, and in steps</source>
        <translation type="unfinished">La position en minutes et secondes à ce tempo, et en pas</translation>
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
        <source>The tempo of playing and recording in beats per minute (Alt+M)</source>
        <translation type="unfinished">Le tempo de lecture et d’enregistrement en battements par minute (Alt+M)</translation>
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
        <source>%1 leaves the stage</source>
        <translation type="unfinished">%1 quitte la scène</translation>
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
