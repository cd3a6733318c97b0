<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Report</source>
        <translation type="unfinished">インポートの報告</translation>
    </message>
    <message>
        <source>Stops: %1, keys: %2, samples: %3.</source>
        <translation type="unfinished">ストップ: %1、鍵: %2、サンプル: %3。</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished">%1 はすでに存在します。置き換えますか？</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) or sample(s) were left out</source>
        <translation type="unfinished">
            <numerusform>%n 個のファイルまたはサンプルを除外しました</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is still sounding. Silence everything (Ctrl+.), then unload it.</source>
        <translation type="unfinished">%1 はまだ鳴っています。すべて消音 (Ctrl+.) してから解放してください。</translation>
    </message>
    <message>
        <source>Velmora cannot draw its windows because OpenGL does not work here. Install libgl1-mesa-dri, which needs no graphics card.</source>
        <translation type="unfinished">OpenGL が動作しないため、Velmora はウィンドウを描画できません。グラフィックカードの要らない libgl1-mesa-dri をインストールしてください。</translation>
    </message>
    <message>
        <source>Instrument in the &amp;File</source>
        <translation type="unfinished">ファイル内の楽器(&amp;F)</translation>
    </message>
    <message>
        <source>Lay out the instruments of the bank as stops with volumes of their own, instead of its presets</source>
        <translation type="unfinished">バンクのプリセットの代わりに、楽器をそれぞれ音量を持つストップとして並べます</translation>
    </message>
    <message>
        <source>&amp;Plain Reading</source>
        <translation type="unfinished">そのまま読む(&amp;P)</translation>
    </message>
    <message>
        <source>One sample for each key, as the file lists them</source>
        <translation type="unfinished">ファイルに並ぶとおり、鍵盤ごとにサンプル一つ</translation>
    </message>
    <message>
        <source>Samples with more bits take less memory</source>
        <translation type="unfinished">ビット数の多いサンプルの使用メモリが減ります</translation>
    </message>
    <message>
        <source>Load in &amp;Mono</source>
        <translation type="unfinished">モノラルで読み込む(&amp;M)</translation>
    </message>
    <message>
        <source>Stereo samples take half the memory</source>
        <translation type="unfinished">ステレオのサンプルの使用メモリが半分になります</translation>
    </message>
    <message>
        <source>Stop %1</source>
        <translation type="unfinished">ストップ %1</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished">音量</translation>
    </message>
    <message>
        <source>Open as S&amp;tops</source>
        <translation type="unfinished">ストップとして開く(&amp;T)</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits</source>
        <translation type="unfinished">16 ビットで読み込む(&amp;B)</translation>
    </message>
    <message>
        <source>Load as Many Stops as &amp;Fit</source>
        <translation type="unfinished">入るだけのストップを読み込む(&amp;F)</translation>
    </message>
    <message>
        <source>Load with 16 &amp;Bits in Mono</source>
        <translation type="unfinished">16 ビット、モノラルで読み込む(&amp;B)</translation>
    </message>
    <message numerus="yes">
        <source>%n stop(s) were not loaded</source>
        <translation type="unfinished">
            <numerusform>%n 個のストップが読み込まれませんでした</numerusform>
        </translation>
    </message>
    <message>
        <source>This stop is being loaded. It sounds as soon as all its pipes are there.</source>
        <translation type="unfinished">このストップは読み込み中です。すべてのパイプがそろうとすぐに鳴ります。</translation>
    </message>
    <message>
        <source>This stop is not loaded, because the loading was stopped.</source>
        <translation type="unfinished">このストップは、読み込みが中止されたため、読み込まれていません。</translation>
    </message>
    <message>
        <source>This stop is not loaded, because only the drawn stops were loaded.</source>
        <translation type="unfinished">このストップは、引いてあるストップだけを読み込んだため、読み込まれていません。</translation>
    </message>
    <message>
        <source>This stop is not loaded, because it does not fit into the memory.</source>
        <translation type="unfinished">このストップは、メモリに入らないため、読み込まれていません。</translation>
    </message>
    <message>
        <source>None of the files of this stop can be used. The import report says why.</source>
        <translation type="unfinished">このストップのファイルはどれも使えません。理由は「インポートの報告」にあります。</translation>
    </message>
    <message>
        <source>Load Only the D&amp;rawn Stops</source>
        <translation type="unfinished">引いてあるストップだけを読み込む(&amp;R)</translation>
    </message>
</context>
<context>
    <name>deviceText</name>
    <message>
        <source>MIDI port %1</source>
        <translation type="unfinished">MIDI ポート %1</translation>
    </message>
</context>
<context>
    <name>velmora::AboutBox</name>
    <message>
        <source>About Velmora</source>
        <translation type="unfinished">Velmora について</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;Plays keyboard instruments in historical and adaptive tunings.&lt;/p&gt;&lt;p&gt;Velmora uses FluidSynth, the Synthesis ToolKit and OpenAL Soft for sound, libsndfile and WavPack for samples, RtMidi for MIDI, and Qt %2 for its windows.&lt;/p&gt;&lt;p&gt;It is available under the MIT licence.&lt;/p&gt;</source>
        <translation type="unfinished">&lt;h3&gt;Velmora %1&lt;/h3&gt;&lt;p&gt;鍵盤楽器を歴史的な調律や適応型の調律で演奏します。&lt;/p&gt;&lt;p&gt;Velmora は、音に FluidSynth、Synthesis ToolKit、OpenAL Soft を、サンプルに libsndfile と WavPack を、MIDI に RtMidi を、ウィンドウに Qt %2 を使用しています。&lt;/p&gt;&lt;p&gt;MIT ライセンスで提供されています。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>velmora::AdaptivePane</name>
    <message>
        <source>Correct within</source>
        <translation type="unfinished">訂正する時間</translation>
    </message>
    <message>
        <source>The last note of a chord may still mend the spelling of its first</source>
        <translation type="unfinished">和音の最後の音が、最初の音の綴りを訂正できます</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Tied to A</source>
        <translation type="unfinished">A に固定</translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished">自由</translation>
    </message>
    <message>
        <source>Returns in silence</source>
        <translation type="unfinished">無音の間に戻る</translation>
    </message>
    <message>
        <source>What becomes of the pitch where pure intervals lead it away: it is drawn back at once, stays there, or goes back while nothing sounds</source>
        <translation type="unfinished">純正な音程によって高さがずれたときの扱い:すぐに引き戻す、そのままにする、または音が鳴っていない間に戻す</translation>
    </message>
    <message>
        <source>Drift:</source>
        <translation type="unfinished">ずれ:</translation>
    </message>
    <message>
        <source>Pitch now:</source>
        <translation type="unfinished">現在の高さ:</translation>
    </message>
</context>
<context>
    <name>velmora::AudioExport</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">楽器を読み込んでいます</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation type="unfinished">音声を生成しています</translation>
    </message>
    <message>
        <source>There is not enough memory to load the instrument a second time.</source>
        <translation type="unfinished">楽器をもう一つ読み込むためのメモリーが足りません。</translation>
    </message>
    <message>
        <source>Rendering voice %1 of %2</source>
        <translation type="unfinished">声部を書き出し中 (%1/%2)</translation>
    </message>
</context>
<context>
    <name>velmora::CircleTab</name>
    <message>
        <source>Note</source>
        <translation type="unfinished">音</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">セント</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">5度</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">うなり/秒</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">長3度</translation>
    </message>
    <message>
        <source>Fifths and thirds</source>
        <translation type="unfinished">5度と3度</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation type="unfinished">音度</translation>
    </message>
    <message>
        <source>Nearest interval</source>
        <translation type="unfinished">最も近い音程</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">純正との差</translation>
    </message>
    <message>
        <source>Degrees of the scale</source>
        <translation type="unfinished">音階の音度</translation>
    </message>
    <message>
        <source>Octave %1</source>
        <translation type="unfinished">オクターブ%1</translation>
    </message>
    <message>
        <source>Octave of the beats</source>
        <translation type="unfinished">うなりのオクターブ</translation>
    </message>
    <message>
        <source>Middle C begins octave 4. An octave higher, everything beats twice as fast.</source>
        <translation type="unfinished">中央のドはオクターブ4の始まりです。1オクターブ上では、うなりがすべて2倍速くなります。</translation>
    </message>
    <message>
        <source>Cents from pure</source>
        <translation type="unfinished">純正との差(セント)</translation>
    </message>
    <message>
        <source>Beats per second</source>
        <translation type="unfinished">毎秒のうなり</translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished">表</translation>
    </message>
    <message>
        <source>What the circle shows</source>
        <translation type="unfinished">円に表示するもの</translation>
    </message>
    <message>
        <source>%1 (sounds)</source>
        <translation type="unfinished">%1(発音中)</translation>
    </message>
</context>
<context>
    <name>velmora::CircleView</name>
    <message>
        <source>Circle of the tuning</source>
        <translation type="unfinished">調律の円</translation>
    </message>
    <message>
        <source>Outside: the fifths. Inside: the major third above each note.
Drag a note outwards to raise it, and inwards to lower it.</source>
        <translation type="unfinished">外側: 5度。内側: 各音の上の長3度。
音を外へドラッグすると高く、内へドラッグすると低くなります。</translation>
    </message>
    <message>
        <source>The degrees of the scale, each with the nearest pure interval above the first</source>
        <translation type="unfinished">音階の音度と、第1音の上の最も近い純正音程</translation>
    </message>
</context>
<context>
    <name>velmora::ColorsPane</name>
    <message>
        <source>Keyboard keys</source>
        <translation type="unfinished">鍵盤の鍵</translation>
    </message>
    <message>
        <source>&amp;Played:</source>
        <translation type="unfinished">演奏(&amp;P):</translation>
    </message>
    <message>
        <source>Keys that the sequence plays, or waits for in practice</source>
        <translation type="unfinished">曲が弾いている鍵、または練習中に待っている鍵</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation type="unfinished">正解(&amp;R):</translation>
    </message>
    <message>
        <source>Keys that you struck correctly</source>
        <translation type="unfinished">正しく弾いた鍵</translation>
    </message>
    <message>
        <source>&amp;Held:</source>
        <translation type="unfinished">保持(&amp;H):</translation>
    </message>
    <message>
        <source>Keys that you keep holding</source>
        <translation type="unfinished">押さえ続けている鍵</translation>
    </message>
    <message>
        <source>&amp;Wrong:</source>
        <translation type="unfinished">間違い(&amp;W):</translation>
    </message>
    <message>
        <source>Keys that you struck by mistake</source>
        <translation type="unfinished">間違って弾いた鍵</translation>
    </message>
    <message>
        <source>Piano roll notes</source>
        <translation type="unfinished">ピアノロールの音符</translation>
    </message>
    <message>
        <source>&amp;At rest:</source>
        <translation type="unfinished">待機中(&amp;A):</translation>
    </message>
    <message>
        <source>Notes that are not sounding</source>
        <translation type="unfinished">鳴っていない音符</translation>
    </message>
    <message>
        <source>&amp;Sounding:</source>
        <translation type="unfinished">発音中(&amp;S):</translation>
    </message>
    <message>
        <source>Notes at the play position</source>
        <translation type="unfinished">再生位置の音符</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation type="unfinished">穏やか</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation type="unfinished">クラシック</translation>
    </message>
    <message>
        <source>Calm: soft colours that suit the theme of the desktop. Classic: bright colours on white and black</source>
        <translation type="unfinished">穏やか: デスクトップのテーマに合う柔らかい色。クラシック: 白と黒に鮮やかな色</translation>
    </message>
    <message>
        <source>Sch&amp;eme:</source>
        <translation type="unfinished">配色(&amp;E):</translation>
    </message>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation type="unfinished">既定値に戻す(&amp;D)</translation>
    </message>
    <message>
        <source>Use the colours of the scheme again</source>
        <translation type="unfinished">配色の元の色に戻します</translation>
    </message>
    <message>
        <source>Reduce motion</source>
        <translation type="unfinished">動きを減らす</translation>
    </message>
    <message>
        <source>Scroll the piano roll at once instead of gliding</source>
        <translation type="unfinished">ピアノロールを滑らかに動かさず、一度にスクロールします</translation>
    </message>
</context>
<context>
    <name>velmora::CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation type="unfinished">コマンド</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 – %2</translation>
    </message>
    <message>
        <source>Find a command or a tuning</source>
        <translation type="unfinished">コマンドまたは調律を検索</translation>
    </message>
    <message>
        <source>Nothing has all these words.</source>
        <translation type="unfinished">これらの語をすべて含むものはありません。</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">調律</translation>
    </message>
    <message>
        <source>Tuning – %1</source>
        <translation type="unfinished">調律 – %1</translation>
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
        <translation type="unfinished">文字キーは %1 から始まります</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleActions</name>
    <message>
        <source>Console</source>
        <translation type="unfinished">コンソール</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished">セット(&amp;S)</translation>
    </message>
    <message>
        <source>Keep what is drawn under the registration button that is pressed next</source>
        <translation type="unfinished">引かれているものを、次に押すレジストレーションのボタンに保存します</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Push in every stop and coupler</source>
        <translation type="unfinished">すべてのストップとカプラーを戻します</translation>
    </message>
    <message>
        <source>&amp;Tutti</source>
        <translation type="unfinished">トゥッティ(&amp;T)</translation>
    </message>
    <message>
        <source>Draw everything; the next press returns to what was drawn before</source>
        <translation type="unfinished">すべて引きます。もう一度押すと前の状態に戻ります</translation>
    </message>
    <message>
        <source>&amp;Manuals…</source>
        <translation type="unfinished">手鍵盤(&amp;M)…</translation>
    </message>
    <message>
        <source>Choose which MIDI channels and devices play the manuals and the pedals</source>
        <translation type="unfinished">手鍵盤とペダルを演奏する MIDI チャンネルと機器を選びます</translation>
    </message>
    <message>
        <source>&amp;Registrations</source>
        <translation type="unfinished">レジストレーション(&amp;R)</translation>
    </message>
    <message>
        <source>Registration %1</source>
        <translation type="unfinished">レジストレーション %1</translation>
    </message>
    <message>
        <source>&amp;Keep as…</source>
        <translation type="unfinished">名前を付けて保存(&amp;K)…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished">名前の変更(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished">削除(&amp;R)</translation>
    </message>
    <message>
        <source>Keep Registration</source>
        <translation type="unfinished">レジストレーションの保存</translation>
    </message>
    <message>
        <source>Name of the registration:</source>
        <translation type="unfinished">レジストレーションの名前:</translation>
    </message>
    <message>
        <source>Rename Registration</source>
        <translation type="unfinished">レジストレーションの名前の変更</translation>
    </message>
    <message>
        <source>New name of “%1”:</source>
        <translation type="unfinished">「%1」の新しい名前:</translation>
    </message>
    <message>
        <source>There is another registration with the name “%1”.</source>
        <translation type="unfinished">「%1」という名前のレジストレーションがほかにあります。</translation>
    </message>
</context>
<context>
    <name>velmora::ConsolePanel</name>
    <message>
        <source>Stops</source>
        <translation type="unfinished">ストップ</translation>
    </message>
</context>
<context>
    <name>velmora::ConsoleView</name>
    <message>
        <source>Find a stop</source>
        <translation type="unfinished">ストップを検索</translation>
    </message>
    <message>
        <source>Swell:</source>
        <translation type="unfinished">スウェル:</translation>
    </message>
    <message>
        <source>Swell of %1</source>
        <translation type="unfinished">%1 のスウェル</translation>
    </message>
    <message>
        <source>How far the swell of %1 is open</source>
        <translation type="unfinished">%1 のスウェルの開き具合</translation>
    </message>
</context>
<context>
    <name>velmora::ControllerLane</name>
    <message>
        <source>Click to draw how %1 moves, and drag what is there. A click with the right button deletes it. What is shown belongs to the chosen channel.</source>
        <translation type="unfinished">クリックで「%1」の動きを描き、ドラッグで動かします。右クリックで削除します。選んだチャンネルの動きが表示されます。</translation>
    </message>
    <message>
        <source>Delete Controller</source>
        <translation type="unfinished">コントローラーを削除</translation>
    </message>
    <message>
        <source>Move Controller</source>
        <translation type="unfinished">コントローラーを移動</translation>
    </message>
    <message>
        <source>Draw Controller</source>
        <translation type="unfinished">コントローラーを描画</translation>
    </message>
</context>
<context>
    <name>velmora::Desktop</name>
    <message>
        <source>%1: unrecognised file type. Velmora recognises files by their extensions, such as .mid, .scl or .sf2.</source>
        <translation type="unfinished">%1: 不明なファイル形式です。Velmora は .mid、.scl、.sf2 などの拡張子でファイルを見分けます。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">開く</translation>
    </message>
    <message>
        <source>Transposition: %1</source>
        <translation type="unfinished">移調: %1</translation>
    </message>
    <message>
        <source>The General MIDI player is silent because there is no SoundFont for it. Choose one in the preferences.</source>
        <translation type="unfinished">SoundFont がないため、General MIDI プレーヤーは鳴りません。設定で選択してください。</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>All supported files (%1);;Instruments (%2);;Tunings (%3);;Sequences (%4);;Sessions (%5);;All files (*)</source>
        <translation type="unfinished">対応するすべてのファイル (%1);;楽器 (%2);;調律 (%3);;曲 (%4);;セッション (%5);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation type="unfinished">セッションを開く</translation>
    </message>
    <message>
        <source>Sessions (%1)</source>
        <translation type="unfinished">セッション (%1)</translation>
    </message>
    <message>
        <source>Save Session</source>
        <translation type="unfinished">セッションを保存</translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished">セッション</translation>
    </message>
    <message>
        <source>Velmora ended while it was opening what was open last time. Open it again?</source>
        <translation type="unfinished">前回開いていたものを開いている途中で Velmora が終了しました。もう一度開きますか？</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation type="unfinished">もう一度開く</translation>
    </message>
    <message>
        <source>Start Empty</source>
        <translation type="unfinished">何も開かずに始める</translation>
    </message>
    <message>
        <source>Unsaved changes are not protected against a crash: %1</source>
        <translation type="unfinished">保存していない変更は、異常終了から保護されていません: %1</translation>
    </message>
    <message>
        <source>Not everything that was open last time could be opened.
%1</source>
        <translation type="unfinished">前回開いていたものの一部を開けませんでした。
%1</translation>
    </message>
    <message>
        <source>%1 cannot be used as the General MIDI bank. %2 is used instead. Choose another SoundFont in the preferences.</source>
        <translation type="unfinished">%1 は General MIDI バンクとして使用できません。代わりに %2 を使用します。設定で別の SoundFont を選択してください。</translation>
    </message>
    <message>
        <source>Open Tuning</source>
        <translation type="unfinished">調律を開く</translation>
    </message>
    <message>
        <source>Tunings (%1);;All files (*)</source>
        <translation type="unfinished">調律 (%1);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Save Tuning</source>
        <translation type="unfinished">調律を保存</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">音階</translation>
    </message>
    <message>
        <source>Open Instrument</source>
        <translation type="unfinished">楽器を開く</translation>
    </message>
    <message>
        <source>Instruments (%1);;All files (*)</source>
        <translation type="unfinished">楽器 (%1);;すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>velmora::DivisionChooser</name>
    <message>
        <source>This &amp;keyboard plays:</source>
        <translation type="unfinished">この鍵盤で弾く手鍵盤(&amp;K):</translation>
    </message>
    <message>
        <source>The manual that the keyboard on the screen and the letter keys play</source>
        <translation type="unfinished">画面の鍵盤と文字キーで弾く手鍵盤</translation>
    </message>
</context>
<context>
    <name>velmora::Drawknob</name>
    <message>
        <source>%1, volume %2 %
A click draws it or pushes it in, a right click changes its volume</source>
        <translation type="unfinished">%1、音量 %2 %
クリックで引くか戻し、右クリックで音量を変えます</translation>
    </message>
    <message>
        <source>%1
A click draws it or pushes it in</source>
        <translation type="unfinished">%1
クリックで引くか戻します</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation type="unfinished">音量(&amp;V):</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished">%1 %</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">%1 の音量</translation>
    </message>
</context>
<context>
    <name>velmora::DriftMeter</name>
    <message>
        <source>How far the pitch has drifted from where it began</source>
        <translation type="unfinished">始めの高さからのずれ</translation>
    </message>
    <message>
        <source>Drift: %1</source>
        <translation type="unfinished">ずれ: %1</translation>
    </message>
    <message>
        <source>%1 cents</source>
        <translation type="unfinished">%1 セント</translation>
    </message>
</context>
<context>
    <name>velmora::EditingActions</name>
    <message>
        <source>Edit</source>
        <translation type="unfinished">編集</translation>
    </message>
    <message>
        <source>Select by Voice or Velocity…</source>
        <translation type="unfinished">声部またはベロシティで選択…</translation>
    </message>
    <message>
        <source>Select the notes of a voice, of some keys and velocities</source>
        <translation type="unfinished">声部、鍵、ベロシティを指定して音符を選択します</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished">複製</translation>
    </message>
    <message>
        <source>Quantise…</source>
        <translation type="unfinished">クオンタイズ…</translation>
    </message>
    <message>
        <source>Move notes to the grid</source>
        <translation type="unfinished">音符をグリッドに合わせます</translation>
    </message>
    <message>
        <source>Split Notes at the Position</source>
        <translation type="unfinished">現在位置で音符を分割</translation>
    </message>
    <message>
        <source>Join Notes</source>
        <translation type="unfinished">音符を結合</translation>
    </message>
    <message>
        <source>Connect Notes (Legato)</source>
        <translation type="unfinished">音符をつなげる (レガート)</translation>
    </message>
    <message>
        <source>Move Notes an Octave Up</source>
        <translation type="unfinished">音符を 1 オクターブ上げる</translation>
    </message>
    <message>
        <source>Move Notes an Octave Down</source>
        <translation type="unfinished">音符を 1 オクターブ下げる</translation>
    </message>
    <message>
        <source>Nudge Notes Later</source>
        <translation type="unfinished">音符を少し遅らせる</translation>
    </message>
    <message>
        <source>Nudge Notes Earlier</source>
        <translation type="unfinished">音符を少し早める</translation>
    </message>
    <message>
        <source>Make Notes Louder</source>
        <translation type="unfinished">音符を強くする</translation>
    </message>
    <message>
        <source>Make Notes Softer</source>
        <translation type="unfinished">音符を弱くする</translation>
    </message>
    <message>
        <source>Hear Notes</source>
        <translation type="unfinished">音符を鳴らす</translation>
    </message>
    <message>
        <source>Sound notes that are pressed or drawn</source>
        <translation type="unfinished">クリックまたは描画した音符を鳴らします</translation>
    </message>
    <message>
        <source>Drag Selects Notes</source>
        <translation type="unfinished">ドラッグで音符を選択</translation>
    </message>
    <message>
        <source>Let a drag across an empty place select notes instead of a time</source>
        <translation type="unfinished">空いた場所をドラッグすると、時間ではなく音符を選択します</translation>
    </message>
</context>
<context>
    <name>velmora::ExportProgress</name>
    <message>
        <source>Loading the instrument</source>
        <translation type="unfinished">楽器を読み込んでいます</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">キャンセル</translation>
    </message>
    <message>
        <source>Export Audio</source>
        <translation type="unfinished">オーディオのエクスポート</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 をエクスポートしました</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 をエクスポートできませんでした。%2</translation>
    </message>
</context>
<context>
    <name>velmora::FallingNotes</name>
    <message>
        <source>Falling notes</source>
        <translation type="unfinished">落ちてくる音符</translation>
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
        <translation type="unfinished">シントニック(21.5セント)</translation>
    </message>
    <message>
        <source>Pythagorean (23.5 cents)</source>
        <translation type="unfinished">ピタゴラス(23.5セント)</translation>
    </message>
    <message>
        <source> comma</source>
        <translation type="unfinished"> コンマ</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished">単位:</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished">コンマ</translation>
    </message>
    <message>
        <source>By which part of the comma this fifth is narrower than a pure one</source>
        <translation type="unfinished">この5度がコンマの何分の何だけ純正より狭いか</translation>
    </message>
    <message>
        <source>Takes the rest:</source>
        <translation type="unfinished">残りを受ける5度:</translation>
    </message>
    <message>
        <source>The fifths of this tuning are no parts of a comma. A change here replaces them all.</source>
        <translation type="unfinished">この調律の5度はコンマの分数ではありません。ここで変更すると、すべて置き換わります。</translation>
    </message>
    <message>
        <source>The fifth %1 differs from a pure one by %2 cents.</source>
        <translation type="unfinished">5度 %1 は純正と %2 セント異なります。</translation>
    </message>
</context>
<context>
    <name>velmora::FitDialog</name>
    <message>
        <source>The notes with the bars and beats that were found</source>
        <translation type="unfinished">見つかった小節と拍を重ねた音符</translation>
    </message>
    <message>
        <source>Fit to Grid</source>
        <translation type="unfinished">グリッドに合わせる</translation>
    </message>
    <message>
        <source>These bars and beats were found. Correct them if they are not yours; the piece is moved to them only then.</source>
        <translation type="unfinished">見つかった小節と拍です。違う場合は直してください。曲はその後で合わせられます。</translation>
    </message>
    <message>
        <source>&amp;Half as Fast</source>
        <translation type="unfinished">半分の速さ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation type="unfinished">2 倍の速さ(&amp;T)</translation>
    </message>
    <message>
        <source>Tempo:</source>
        <translation type="unfinished">テンポ:</translation>
    </message>
    <message>
        <source>&amp;Beats in a bar:</source>
        <translation type="unfinished">1 小節の拍数(&amp;B):</translation>
    </message>
    <message>
        <source>&amp;First bar begins at beat:</source>
        <translation type="unfinished">最初の小節が始まる拍(&amp;F):</translation>
    </message>
    <message>
        <source>%1 beats per minute</source>
        <translation type="unfinished">毎分 %1 拍</translation>
    </message>
    <message>
        <source>Velmora finds a tempo in eight notes or more, over four hours at most.</source>
        <translation type="unfinished">テンポを見つけるには、4時間以内に8つ以上の音符が必要です。</translation>
    </message>
</context>
<context>
    <name>velmora::GlideBar</name>
    <message>
        <source>Only new notes</source>
        <translation type="unfinished">新しい音だけ</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>How long notes that sound take to reach their new pitch when the tuning changes; with 0 they jump</source>
        <translation type="unfinished">調律が変わったとき、鳴っている音が新しい高さに移るまでの時間。0 ではすぐに移ります</translation>
    </message>
    <message>
        <source>Notes that sound keep their pitch until they are struck again</source>
        <translation type="unfinished">鳴っている音は、次に弾かれるまで高さを保ちます</translation>
    </message>
    <message>
        <source>Glide:</source>
        <translation type="unfinished">移行時間:</translation>
    </message>
</context>
<context>
    <name>velmora::GuideWindow</name>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">ユーザーガイド</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation type="unfinished">ユーザーガイド</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished">目次</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished">%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished">戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished">進む</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished">前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished">次へ</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation type="unfinished">検索(&amp;F):</translation>
    </message>
    <message>
        <source>Find words in the guide (%1)</source>
        <translation type="unfinished">ガイド内の語句を検索 (%1)</translation>
    </message>
    <message>
        <source>“%1” is not in the guide.</source>
        <translation type="unfinished">「%1」はガイドに見つかりません。</translation>
    </message>
    <message>
        <source>No program could open %1.</source>
        <translation type="unfinished">%1 を開けるプログラムがありませんでした。</translation>
    </message>
</context>
<context>
    <name>velmora::HelpButton</name>
    <message>
        <source>Help</source>
        <translation type="unfinished">ヘルプ</translation>
    </message>
    <message>
        <source>Show what the guide says about this</source>
        <translation type="unfinished">これについてのガイドの説明を表示します</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentMenu</name>
    <message>
        <source>Instrument: %1</source>
        <translation type="unfinished">楽器: %1</translation>
    </message>
    <message>
        <source>%1
Choose another instrument, open or unload one</source>
        <translation type="unfinished">%1
別の楽器を選択、または楽器を開く・解放する</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">楽器を開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Unload %1</source>
        <translation type="unfinished">%1 を解放(&amp;U)</translation>
    </message>
    <message>
        <source>Import &amp;Report of %1…</source>
        <translation type="unfinished">%1 のインポートの報告(&amp;R)…</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentOpener</name>
    <message>
        <source>%1: Velmora cannot play instruments of this format. Convert it to a SoundFont (.sf2), then open that.</source>
        <translation type="unfinished">%1: Velmora はこの形式の楽器を演奏できません。SoundFont (.sf2) に変換してから開いてください。</translation>
    </message>
    <message>
        <source>%1: %2; see Import Report in the Instruments window</source>
        <translation type="unfinished">%1: %2。「楽器」ウィンドウの「インポートの報告」を見てください</translation>
    </message>
    <message numerus="yes">
        <source>%1 holds %n instrument(s). The Instrument menu lists them.</source>
        <translation type="unfinished">
            <numerusform>%1 には %n 個の楽器があります。楽器メニューで選べます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentPanel</name>
    <message>
        <source>Memory used by the samples of this instrument</source>
        <translation type="unfinished">この楽器のサンプルが使用しているメモリー</translation>
    </message>
    <message>
        <source>Usage:  %1</source>
        <translation type="unfinished">使用量:  %1</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">楽器</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsModel</name>
    <message>
        <source>Unloaded: select it to load it again</source>
        <translation type="unfinished">解放済み: 選択すると再び読み込みます</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">楽器</translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished">サイズ</translation>
    </message>
</context>
<context>
    <name>velmora::InstrumentsWindow</name>
    <message>
        <source>&amp;Unload</source>
        <translation type="unfinished">解放(&amp;U)</translation>
    </message>
    <message>
        <source>Import &amp;Report…</source>
        <translation type="unfinished">インポートの報告(&amp;R)…</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation type="unfinished">楽器</translation>
    </message>
    <message>
        <source>Loaded instruments</source>
        <translation type="unfinished">読み込まれた楽器</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">SoundFont、GigaSampler バンク、またはオルガンを開きます</translation>
    </message>
    <message>
        <source>Free the memory that the samples of this instrument use</source>
        <translation type="unfinished">この楽器のサンプルが使用しているメモリーを解放します</translation>
    </message>
    <message>
        <source>Show what was imported and what was left out</source>
        <translation type="unfinished">インポートしたものと除外したものを表示します</translation>
    </message>
</context>
<context>
    <name>velmora::Interval</name>
    <message>
        <source>Unison</source>
        <translation type="unfinished">同度</translation>
    </message>
    <message>
        <source>Semitone</source>
        <translation type="unfinished">半音</translation>
    </message>
    <message>
        <source>Small whole tone</source>
        <translation type="unfinished">小全音</translation>
    </message>
    <message>
        <source>Whole tone</source>
        <translation type="unfinished">全音</translation>
    </message>
    <message>
        <source>Septimal whole tone</source>
        <translation type="unfinished">7限界の全音</translation>
    </message>
    <message>
        <source>Septimal minor third</source>
        <translation type="unfinished">7限界の短3度</translation>
    </message>
    <message>
        <source>Minor third</source>
        <translation type="unfinished">短3度</translation>
    </message>
    <message>
        <source>Major third</source>
        <translation type="unfinished">長3度</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation type="unfinished">4度</translation>
    </message>
    <message>
        <source>Small tritone</source>
        <translation type="unfinished">小三全音</translation>
    </message>
    <message>
        <source>Large tritone</source>
        <translation type="unfinished">大三全音</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation type="unfinished">5度</translation>
    </message>
    <message>
        <source>Minor sixth</source>
        <translation type="unfinished">短6度</translation>
    </message>
    <message>
        <source>Major sixth</source>
        <translation type="unfinished">長6度</translation>
    </message>
    <message>
        <source>Septimal major sixth</source>
        <translation type="unfinished">7限界の長6度</translation>
    </message>
    <message>
        <source>Natural seventh</source>
        <translation type="unfinished">自然7度</translation>
    </message>
    <message>
        <source>Small minor seventh</source>
        <translation type="unfinished">小短7度</translation>
    </message>
    <message>
        <source>Minor seventh</source>
        <translation type="unfinished">短7度</translation>
    </message>
    <message>
        <source>Major seventh</source>
        <translation type="unfinished">長7度</translation>
    </message>
    <message>
        <source>Octave</source>
        <translation type="unfinished">オクターブ</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 長三和音</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1 短三和音</translation>
    </message>
    <message>
        <source>%1 diminished</source>
        <translation type="unfinished">%1 減三和音</translation>
    </message>
    <message>
        <source>%1 augmented</source>
        <translation type="unfinished">%1 増三和音</translation>
    </message>
    <message>
        <source>%1 suspended fourth</source>
        <translation type="unfinished">%1 掛留4度</translation>
    </message>
    <message>
        <source>%1 suspended second</source>
        <translation type="unfinished">%1 掛留2度</translation>
    </message>
    <message>
        <source>%1 dominant seventh</source>
        <translation type="unfinished">%1 属七</translation>
    </message>
    <message>
        <source>%1 major seventh</source>
        <translation type="unfinished">%1 長七</translation>
    </message>
    <message>
        <source>%1 minor seventh</source>
        <translation type="unfinished">%1 短七</translation>
    </message>
    <message>
        <source>%1 minor with a major seventh</source>
        <translation type="unfinished">%1 短三和音と長7度</translation>
    </message>
    <message>
        <source>%1 half-diminished seventh</source>
        <translation type="unfinished">%1 半減七</translation>
    </message>
    <message>
        <source>%1 diminished seventh</source>
        <translation type="unfinished">%1 減七</translation>
    </message>
    <message>
        <source>%1 augmented sixth</source>
        <translation type="unfinished">%1 増六</translation>
    </message>
    <message>
        <source>%1, root position</source>
        <translation type="unfinished">%1、基本形</translation>
    </message>
    <message>
        <source>%1, first inversion</source>
        <translation type="unfinished">%1、第1転回形</translation>
    </message>
    <message>
        <source>%1, second inversion</source>
        <translation type="unfinished">%1、第2転回形</translation>
    </message>
    <message>
        <source>%1, third inversion</source>
        <translation type="unfinished">%1、第3転回形</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation type="unfinished">%1 %2/%3</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n octave(s)</source>
        <translation type="unfinished">
            <numerusform>%1と%nオクターブ</numerusform>
        </translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">なし</translation>
    </message>
    <message>
        <source>nearly pure</source>
        <translation type="unfinished">ほぼ純正</translation>
    </message>
    <message>
        <source>tempered</source>
        <translation type="unfinished">平均化</translation>
    </message>
    <message>
        <source>rough</source>
        <translation type="unfinished">荒い</translation>
    </message>
</context>
<context>
    <name>velmora::KeyRuler</name>
    <message>
        <source>Key names</source>
        <translation type="unfinished">鍵の名前</translation>
    </message>
</context>
<context>
    <name>velmora::KeyboardView</name>
    <message>
        <source>Piano keyboard</source>
        <translation type="unfinished">ピアノ鍵盤</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation type="unfinished">間違い</translation>
    </message>
    <message>
        <source>to be played</source>
        <translation type="unfinished">弾く鍵</translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished">正解</translation>
    </message>
    <message>
        <source>held</source>
        <translation type="unfinished">保持</translation>
    </message>
</context>
<context>
    <name>velmora::Lanes</name>
    <message>
        <source>&amp;No Lane</source>
        <translation type="unfinished">レーンなし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Velocity</source>
        <translation type="unfinished">ベロシティ(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Tempo and Signatures</source>
        <translation type="unfinished">テンポと拍子(&amp;T)</translation>
    </message>
    <message>
        <source>Sustain Pedal</source>
        <translation type="unfinished">サステインペダル</translation>
    </message>
    <message>
        <source>Pitch Wheel</source>
        <translation type="unfinished">ピッチホイール</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation type="unfinished">モジュレーション</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation type="unfinished">エクスプレッション</translation>
    </message>
</context>
<context>
    <name>velmora::LanguageFields</name>
    <message>
        <source>The language changes when you start Velmora again.</source>
        <translation type="unfinished">言語は Velmora を再起動すると切り替わります。</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished">デスクトップに合わせる</translation>
    </message>
    <message>
        <source>The language of all menus and windows</source>
        <translation type="unfinished">すべてのメニューとウィンドウの言語</translation>
    </message>
    <message>
        <source>As usual in the language</source>
        <translation type="unfinished">言語の慣習に従う</translation>
    </message>
    <message>
        <source>International: C D E F G A B</source>
        <translation type="unfinished">国際式: C D E F G A B</translation>
    </message>
    <message>
        <source>German: C D E F G A H</source>
        <translation type="unfinished">ドイツ式: C D E F G A H</translation>
    </message>
    <message>
        <source>Solfège: Do Re Mi Fa Sol La Si</source>
        <translation type="unfinished">階名式: ド レ ミ ファ ソ ラ シ</translation>
    </message>
    <message>
        <source>The names of the keys and notes in all windows</source>
        <translation type="unfinished">すべてのウィンドウでの鍵と音の名前</translation>
    </message>
    <message>
        <source>L&amp;anguage:</source>
        <translation type="unfinished">言語(&amp;A):</translation>
    </message>
    <message>
        <source>Not&amp;e names:</source>
        <translation type="unfinished">音名(&amp;E):</translation>
    </message>
</context>
<context>
    <name>velmora::LearnMenu</name>
    <message>
        <source>&amp;Learn MIDI Controller…</source>
        <translation type="unfinished">MIDI コントローラーを学習(&amp;L)…</translation>
    </message>
    <message>
        <source>Learn MIDI Controller for %1…</source>
        <translation type="unfinished">%1 の MIDI コントローラーを学習…</translation>
    </message>
    <message>
        <source>&amp;Forget MIDI Controller</source>
        <translation type="unfinished">MIDI コントローラーの割り当てを解除(&amp;F)</translation>
    </message>
    <message>
        <source>Forget MIDI Controller for %1</source>
        <translation type="unfinished">%1 の MIDI コントローラーの割り当てを解除</translation>
    </message>
    <message>
        <source>Learn MIDI Controller</source>
        <translation type="unfinished">MIDI コントローラーの学習</translation>
    </message>
    <message>
        <source>Waiting for a MIDI controller for “%1”.
Move a controller, or press a button or a key, on a MIDI device.</source>
        <translation type="unfinished">「%1」の MIDI コントローラーを待っています。
MIDI 機器のコントローラーを動かすか、ボタンまたは鍵を押してください。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished">%1: %2</translation>
    </message>
    <message>
        <source>MIDI key %1 on channel %2</source>
        <translation type="unfinished">MIDI キー %1 (チャンネル %2)</translation>
    </message>
    <message>
        <source>MIDI controller %1 on channel %2</source>
        <translation type="unfinished">MIDI コントローラー %1 (チャンネル %2)</translation>
    </message>
</context>
<context>
    <name>velmora::LevelMeter</name>
    <message>
        <source>Level</source>
        <translation type="unfinished">レベル</translation>
    </message>
</context>
<context>
    <name>velmora::LyricsPanel</name>
    <message>
        <source>Lyrics</source>
        <translation type="unfinished">歌詞</translation>
    </message>
</context>
<context>
    <name>velmora::ManualsDialog</name>
    <message>
        <source>Manuals</source>
        <translation type="unfinished">手鍵盤</translation>
    </message>
    <message>
        <source>What no line names plays the lowest manual. The channels of pieces count as those of all devices.</source>
        <translation type="unfinished">どの行にもないものは一番下の手鍵盤を弾きます。曲のチャンネルはすべての機器のものとして扱われます。</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">機器</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">チャンネル</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation type="unfinished">弾くもの</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation type="unfinished">行を追加(&amp;A)</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation type="unfinished">すべての機器</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">削除</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation type="unfinished">すべてのチャンネル</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation type="unfinished">チャンネル %1</translation>
    </message>
</context>
<context>
    <name>velmora::MetersWindow</name>
    <message>
        <source>Meters</source>
        <translation type="unfinished">メーター</translation>
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
        <translation type="unfinished">%2 の %1</translation>
    </message>
    <message>
        <source>Connect a MIDI device, and it appears here.</source>
        <translation type="unfinished">MIDI 機器を接続すると、ここに表示されます。</translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished">機器</translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished">オン</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">チャンネル</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished">鍵</translation>
    </message>
    <message>
        <source>MIDI devices</source>
        <translation type="unfinished">MIDI 機器</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation type="unfinished">%1 (未接続)</translation>
    </message>
    <message>
        <source>Whether the device is heard</source>
        <translation type="unfinished">この機器の演奏を受け取るかどうか</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">すべて</translation>
    </message>
    <message>
        <source>The MIDI channel to listen to</source>
        <translation type="unfinished">受信する MIDI チャンネル</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> 半音</translation>
    </message>
    <message>
        <source>How much higher the keys sound</source>
        <translation type="unfinished">鍵をどれだけ高く鳴らすか</translation>
    </message>
</context>
<context>
    <name>velmora::NowTab</name>
    <message>
        <source>Notes</source>
        <translation type="unfinished">音</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished">音程</translation>
    </message>
    <message>
        <source>Cents</source>
        <translation type="unfinished">セント</translation>
    </message>
    <message>
        <source>From pure</source>
        <translation type="unfinished">純正との差</translation>
    </message>
    <message>
        <source>Beats/s</source>
        <translation type="unfinished">うなり/秒</translation>
    </message>
    <message>
        <source>Sounding intervals</source>
        <translation type="unfinished">鳴っている音程</translation>
    </message>
    <message>
        <source>Show on the keys how pure they are</source>
        <translation type="unfinished">純正の度合いを鍵盤に表示</translation>
    </message>
    <message>
        <source>Colour each sounding key by its interval that is farthest from pure with another one</source>
        <translation type="unfinished">鳴っている各鍵を、他の鍵との音程のうち純正から最も遠いもので色づけします</translation>
    </message>
    <message>
        <source>Play a chord</source>
        <translation type="unfinished">和音を弾いてください</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <translation type="unfinished">%1–%2</translation>
    </message>
    <message>
        <source>The music centres on %1 (%2 fifths from C).</source>
        <translation type="unfinished">音楽の中心は%1です(ドから5度%2個)。</translation>
    </message>
    <message>
        <source>%1, not %2: %3 fifths from the centre instead of %4</source>
        <translation type="unfinished">%2ではなく%1: 中心から5度%4個ではなく%3個</translation>
    </message>
    <message>
        <source>Each key keeps its usual spelling until another one is forced.</source>
        <translation type="unfinished">別の表記が強制されるまで、各鍵は通常の表記を保ちます。</translation>
    </message>
    <message>
        <source>Drift from the start: %1 cents</source>
        <translation type="unfinished">開始時からのずれ: %1 セント</translation>
    </message>
</context>
<context>
    <name>velmora::OutlyingNotes</name>
    <message>
        <source>The keyboard does not show these keys. Click to go to the first note.</source>
        <translation type="unfinished">鍵盤にはこれらの鍵が表示されていません。クリックすると最初の音符に移動します。</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) below %1</source>
        <translation type="unfinished">
            <numerusform>%1 より下に %n 個の音符</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) above %1</source>
        <translation type="unfinished">
            <numerusform>%1 より上に %n 個の音符</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velmora::PlayingControls</name>
    <message>
        <source>Transpose down (Ctrl+Shift+Down)</source>
        <translation type="unfinished">下へ移調 (Ctrl+Shift+下)</translation>
    </message>
    <message>
        <source>Transpose up (Ctrl+Shift+Up)</source>
        <translation type="unfinished">上へ移調 (Ctrl+Shift+上)</translation>
    </message>
    <message>
        <source>Linear touch</source>
        <translation type="unfinished">リニアタッチ</translation>
    </message>
    <message>
        <source>Soft touch</source>
        <translation type="unfinished">ソフトタッチ</translation>
    </message>
    <message>
        <source>Hard touch</source>
        <translation type="unfinished">ハードタッチ</translation>
    </message>
    <message>
        <source>Fixed touch</source>
        <translation type="unfinished">固定タッチ</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">タッチ</translation>
    </message>
    <message>
        <source>How loud your touch on a MIDI keyboard sounds: soft makes a light touch louder, hard asks for a strong one, fixed ignores the touch</source>
        <translation type="unfinished">MIDI キーボードのタッチに対する音の強さ: ソフトは弱いタッチを大きくし、ハードは強いタッチを必要とし、固定はタッチを無視します</translation>
    </message>
    <message>
        <source>Transposition</source>
        <translation type="unfinished">移調</translation>
    </message>
    <message>
        <source>The transposition of the MIDI keyboards in semitones</source>
        <translation type="unfinished">MIDI キーボードの移調 (半音単位)</translation>
    </message>
    <message>
        <source>semitones</source>
        <translation type="unfinished">半音</translation>
    </message>
</context>
<context>
    <name>velmora::PlayingPane</name>
    <message>
        <source>How much higher than written the keys of MIDI devices sound</source>
        <translation type="unfinished">MIDI 機器の鍵を記譜よりどれだけ高く鳴らすか</translation>
    </message>
    <message>
        <source>How far the pitch wheel bends up and down; with 0 it does nothing</source>
        <translation type="unfinished">ピッチホイールで上下する幅。0 では何も起こりません</translation>
    </message>
    <message>
        <source>Pl&amp;ain reading of MIDI devices</source>
        <translation type="unfinished">MIDI 機器をシンプルに読み取る(&amp;A)</translation>
    </message>
    <message>
        <source>Linear: as the keyboard sends it</source>
        <translation type="unfinished">リニア: キーボードが送るとおり</translation>
    </message>
    <message>
        <source>Soft: a light touch is louder</source>
        <translation type="unfinished">ソフト: 弱いタッチが大きくなる</translation>
    </message>
    <message>
        <source>Hard: only a strong touch is loud</source>
        <translation type="unfinished">ハード: 強いタッチだけが大きく鳴る</translation>
    </message>
    <message>
        <source>Fixed: always the same</source>
        <translation type="unfinished">固定: 常に同じ</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation type="unfinished">タッチ</translation>
    </message>
    <message>
        <source>Only notes and volumes count: no pedals, wheels, programs or learned controllers, no touch and no transposition</source>
        <translation type="unfinished">音符と音量だけを使います: ペダル、ホイール、プログラム、学習したコントローラー、タッチ、移調は使いません</translation>
    </message>
    <message>
        <source>&amp;Touch:</source>
        <translation type="unfinished">タッチ(&amp;T):</translation>
    </message>
    <message>
        <source>T&amp;ransposition:</source>
        <translation type="unfinished">移調(&amp;R):</translation>
    </message>
    <message>
        <source>Pitch &amp;wheel:</source>
        <translation type="unfinished">ピッチホイール(&amp;W):</translation>
    </message>
    <message>
        <source> semitones</source>
        <translation type="unfinished"> 半音</translation>
    </message>
    <message>
        <source>Correct the ban&amp;k&apos;s own tuning</source>
        <translation type="unfinished">バンク自体の調律を補正する(&amp;K)</translation>
    </message>
    <message>
        <source>Keys that a SoundFont has out of tune are measured when a program is first used, and corrected</source>
        <translation type="unfinished">SoundFont の中でずれている鍵は、プログラムを初めて使うときに測って補正します</translation>
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
        <translation type="unfinished">間違えたら遅くする</translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"> ms</translation>
    </message>
    <message>
        <source>Repeat bars</source>
        <translation type="unfinished">小節を繰り返す</translation>
    </message>
    <message>
        <source>Show falling notes</source>
        <translation type="unfinished">落ちてくる音符を表示</translation>
    </message>
    <message>
        <source>Both hands</source>
        <translation type="unfinished">両手</translation>
    </message>
    <message>
        <source>Right hand</source>
        <translation type="unfinished">右手</translation>
    </message>
    <message>
        <source>Left hand</source>
        <translation type="unfinished">左手</translation>
    </message>
    <message>
        <source>The lowest key of the right hand</source>
        <translation type="unfinished">右手の一番低い鍵</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">発音数</translation>
    </message>
    <message>
        <source>The voices that you play; the others play along</source>
        <translation type="unfinished">自分が弾く声部。ほかの声部は伴奏します</translation>
    </message>
    <message>
        <source>What a pass without a mistake adds to the speed</source>
        <translation type="unfinished">間違いのない一回ごとに速度に加える量</translation>
    </message>
    <message>
        <source>How early a key may be, and how long a chord may be rolled</source>
        <translation type="unfinished">鍵をどれだけ早く弾いてよいか、和音をどれだけ長く分散してよいか</translation>
    </message>
    <message>
        <source>to</source>
        <comment>bars</comment>
        <translation type="unfinished">～</translation>
    </message>
    <message>
        <source>First bar</source>
        <translation type="unfinished">最初の小節</translation>
    </message>
    <message>
        <source>Last bar</source>
        <translation type="unfinished">最後の小節</translation>
    </message>
    <message>
        <source>Play:</source>
        <translation type="unfinished">弾くパート:</translation>
    </message>
    <message>
        <source>Split at:</source>
        <translation type="unfinished">分割点:</translation>
    </message>
    <message>
        <source>Voices:</source>
        <translation type="unfinished">声部:</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation type="unfinished">速度:</translation>
    </message>
    <message>
        <source>Faster by:</source>
        <translation type="unfinished">加速:</translation>
    </message>
    <message>
        <source>Tolerance:</source>
        <translation type="unfinished">許容:</translation>
    </message>
    <message>
        <source>Bars:</source>
        <translation type="unfinished">小節:</translation>
    </message>
    <message>
        <source>There are no notes to practise. Choose other voices, another hand or other bars.</source>
        <translation type="unfinished">練習する音符がありません。ほかの声部、手、または小節を選んでください。</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">声部 %1</translation>
    </message>
    <message>
        <source>Stop Practising</source>
        <translation type="unfinished">練習をやめる</translation>
    </message>
    <message>
        <source>Practise</source>
        <translation type="unfinished">練習する</translation>
    </message>
    <message>
        <source>Wait for missing keys</source>
        <translation type="unfinished">足りない鍵を待つ</translation>
    </message>
    <message>
        <source>If it does not wait, the piece goes on, and what you leave out is missed</source>
        <translation type="unfinished">待たない場合は曲が進み、弾かなかった音は「抜け」になります</translation>
    </message>
    <message>
        <source>Right: %1, wrong: %2, missed: %3, passes: %4</source>
        <translation type="unfinished">正: %1、誤: %2、抜け: %3、回数: %4</translation>
    </message>
</context>
<context>
    <name>velmora::PracticePicture</name>
    <message>
        <source>early</source>
        <translation type="unfinished">早い</translation>
    </message>
    <message>
        <source>late</source>
        <translation type="unfinished">遅い</translation>
    </message>
    <message>
        <source>How early or late the keys were, in ms</source>
        <translation type="unfinished">鍵の早さ・遅さ (ms)</translation>
    </message>
    <message>
        <source>Right, wrong (hatched) and missed (empty) keys by bar</source>
        <translation type="unfinished">小節ごとの正しい鍵、誤った鍵（斜線）、抜けた鍵（枠）</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeResults</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">無題</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>The result of the practice was not kept: %1</source>
        <translation type="unfinished">練習の結果を保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished">画像を保存</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">練習</translation>
    </message>
</context>
<context>
    <name>velmora::PracticeWindow</name>
    <message>
        <source>Practice sessions</source>
        <translation type="unfinished">練習の記録</translation>
    </message>
    <message>
        <source>Result by bar and by time</source>
        <translation type="unfinished">小節ごと・時間ごとの結果</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation type="unfinished">画像を保存(&amp;P)…</translation>
    </message>
    <message>
        <source>Practice: %1</source>
        <translation type="unfinished">練習: %1</translation>
    </message>
    <message>
        <source>%1 at %2 %</source>
        <comment>a time, a speed in percent</comment>
        <translation type="unfinished">%1（%2 %）</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms early.</source>
        <translation type="unfinished">鍵はおおむね %1 ms 早く弾かれました。</translation>
    </message>
    <message>
        <source>Typically, keys were %1 ms late.</source>
        <translation type="unfinished">鍵はおおむね %1 ms 遅く弾かれました。</translation>
    </message>
    <message>
        <source>Right keys: %1 (%2 early, %3 late), wrong keys: %4, missed keys: %5. Passes: %6, without a mistake: %7.</source>
        <translation type="unfinished">正しい鍵: %1（早い %2、遅い %3）、誤った鍵: %4、抜けた鍵: %5。回数: %6、間違いなし: %7。</translation>
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
        <translation type="unfinished">設定</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation type="unfinished">ページ</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished">全般(&amp;G)</translation>
    </message>
    <message>
        <source>C&amp;olors</source>
        <translation type="unfinished">色(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;MIDI</source>
        <translation type="unfinished">MIDI(&amp;M)</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation type="unfinished">サウンド(&amp;U)</translation>
    </message>
    <message>
        <source>Key &amp;width:</source>
        <translation type="unfinished">鍵の幅(&amp;W):</translation>
    </message>
    <message>
        <source>The width of a semitone on the keyboard and in the piano roll</source>
        <translation type="unfinished">鍵盤とピアノロールでの半音の幅</translation>
    </message>
    <message>
        <source>&amp;Step height:</source>
        <translation type="unfinished">ステップの高さ(&amp;S):</translation>
    </message>
    <message>
        <source>The height of a step, the distance between grid lines, in the piano roll</source>
        <translation type="unfinished">ピアノロールでのステップ (グリッド線の間隔) の高さ</translation>
    </message>
    <message>
        <source>&amp;Lowest key:</source>
        <translation type="unfinished">最低音の鍵(&amp;L):</translation>
    </message>
    <message>
        <source>The first key of the keyboard: a note name, such as A0, or a MIDI key number</source>
        <translation type="unfinished">鍵盤の最初の鍵: A0 のような音名、または MIDI キー番号</translation>
    </message>
    <message>
        <source>&amp;Highest key:</source>
        <translation type="unfinished">最高音の鍵(&amp;H):</translation>
    </message>
    <message>
        <source>The last key of the keyboard: a note name, such as C8, or a MIDI key number</source>
        <translation type="unfinished">鍵盤の最後の鍵: C8 のような音名、または MIDI キー番号</translation>
    </message>
    <message>
        <source>Show note &amp;names on the C keys</source>
        <translation type="unfinished">C の鍵に音名を表示(&amp;N)</translation>
    </message>
    <message>
        <source>General MIDI bank:</source>
        <translation type="unfinished">General MIDI バンク:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation type="unfinished">システムの既定</translation>
    </message>
    <message>
        <source>General MIDI bank</source>
        <translation type="unfinished">General MIDI バンク</translation>
    </message>
    <message>
        <source>Choose a SoundFont for the General MIDI player</source>
        <translation type="unfinished">General MIDI プレーヤーの SoundFont を選択します</translation>
    </message>
    <message>
        <source>Use &amp;Default</source>
        <translation type="unfinished">既定を使用(&amp;D)</translation>
    </message>
    <message>
        <source>Use the system&apos;s General MIDI bank</source>
        <translation type="unfinished">システムの General MIDI バンクを使用します</translation>
    </message>
    <message>
        <source>Choose a General MIDI Bank</source>
        <translation type="unfinished">General MIDI バンクの選択</translation>
    </message>
    <message>
        <source>SoundFont banks (*.sf2 *.sf3)</source>
        <translation type="unfinished">SoundFont バンク (*.sf2 *.sf3)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished">すべてのファイル (*)</translation>
    </message>
    <message>
        <source>A&amp;t the start:</source>
        <translation type="unfinished">起動時(&amp;T):</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation type="unfinished">何も開かずに始める</translation>
    </message>
    <message>
        <source>Start as last time</source>
        <translation type="unfinished">前回の状態で始める</translation>
    </message>
    <message>
        <source>Whether the instruments, the tuning and the pieces that are open when you quit are opened again</source>
        <translation type="unfinished">終了時に開いていた楽器、調律、曲をもう一度開くかどうか</translation>
    </message>
    <message>
        <source>Short&amp;cuts</source>
        <translation type="unfinished">ショートカット(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">参照(&amp;B)…</translation>
    </message>
</context>
<context>
    <name>velmora::ProgramList</name>
    <message>
        <source>Piano</source>
        <translation type="unfinished">ピアノ</translation>
    </message>
    <message>
        <source>Chromatic Percussion</source>
        <translation type="unfinished">クロマチックパーカッション</translation>
    </message>
    <message>
        <source>Organ</source>
        <translation type="unfinished">オルガン</translation>
    </message>
    <message>
        <source>Guitar</source>
        <translation type="unfinished">ギター</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation type="unfinished">ベース</translation>
    </message>
    <message>
        <source>Strings</source>
        <translation type="unfinished">ストリングス</translation>
    </message>
    <message>
        <source>Ensemble</source>
        <translation type="unfinished">アンサンブル</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation type="unfinished">ブラス</translation>
    </message>
    <message>
        <source>Reed</source>
        <translation type="unfinished">リード</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation type="unfinished">パイプ</translation>
    </message>
    <message>
        <source>Synth Lead</source>
        <translation type="unfinished">シンセリード</translation>
    </message>
    <message>
        <source>Synth Pad</source>
        <translation type="unfinished">シンセパッド</translation>
    </message>
    <message>
        <source>Synth Effects</source>
        <translation type="unfinished">シンセエフェクト</translation>
    </message>
    <message>
        <source>Ethnic</source>
        <translation type="unfinished">エスニック</translation>
    </message>
    <message>
        <source>Percussive</source>
        <translation type="unfinished">パーカッシブ</translation>
    </message>
    <message>
        <source>Sound Effects</source>
        <translation type="unfinished">効果音</translation>
    </message>
    <message>
        <source>Find a program</source>
        <translation type="unfinished">プログラムを検索</translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished">プログラム</translation>
    </message>
    <message>
        <source>Drum kits</source>
        <translation type="unfinished">ドラムキット</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation type="unfinished">バンク %1</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressWindow</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished">読み込み</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished">進行状況</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished">キャンセルしています…</translation>
    </message>
</context>
<context>
    <name>velmora::PurityLegend</name>
    <message>
        <source>Legend</source>
        <translation type="unfinished">凡例</translation>
    </message>
    <message>
        <source>%1: up to %2 cents</source>
        <translation type="unfinished">%1: %2セントまで</translation>
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
        <translation type="unfinished">音符の終わりも合わせる(&amp;E)</translation>
    </message>
    <message>
        <source>Quantise</source>
        <translation type="unfinished">クオンタイズ</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>1/%1 triplets</source>
        <translation type="unfinished">1/%1 3連符</translation>
    </message>
    <message>
        <source>Where the second of two units begins: 50 % is even, 67 % triplets</source>
        <translation type="unfinished">2 つの単位の 2 つ目が始まる位置: 50 % は均等、67 % は 3 連符</translation>
    </message>
    <message numerus="yes">
        <source>Moves all %n note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符すべてをグリッドに合わせます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves %n selected note(s) to the grid.</source>
        <translation type="unfinished">
            <numerusform>選択した %n 個の音符をグリッドに合わせます。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Grid:</source>
        <translation type="unfinished">グリッド(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Strength:</source>
        <translation type="unfinished">強さ(&amp;S):</translation>
    </message>
    <message>
        <source>S&amp;wing:</source>
        <translation type="unfinished">スウィング(&amp;W):</translation>
    </message>
</context>
<context>
    <name>velmora::RecordingActions</name>
    <message>
        <source>Piece</source>
        <translation type="unfinished">曲</translation>
    </message>
    <message>
        <source>&amp;Metronome</source>
        <translation type="unfinished">メトロノーム(&amp;M)</translation>
    </message>
    <message>
        <source>Click on the beats</source>
        <translation type="unfinished">拍ごとにクリックを鳴らします</translation>
    </message>
    <message>
        <source>P&amp;unch In</source>
        <translation type="unfinished">パンチイン(&amp;U)</translation>
    </message>
    <message>
        <source>Record only in the selected time, and replace what the channel has there</source>
        <translation type="unfinished">選択した時間だけを録音し、そのチャンネルの内容を置き換えます</translation>
    </message>
    <message>
        <source>Metronome and Count-&amp;In</source>
        <translation type="unfinished">メトロノームとカウントイン(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Takes</source>
        <translation type="unfinished">テイク(&amp;T)</translation>
    </message>
    <message>
        <source>Metronome</source>
        <translation type="unfinished">メトロノーム</translation>
    </message>
    <message>
        <source>While Recording and Playing</source>
        <translation type="unfinished">録音中と再生中</translation>
    </message>
    <message>
        <source>Only While Recording</source>
        <translation type="unfinished">録音中のみ</translation>
    </message>
    <message>
        <source>Only While Playing</source>
        <translation type="unfinished">再生中のみ</translation>
    </message>
    <message>
        <source>Click Between the Beats</source>
        <translation type="unfinished">拍の間でも鳴らす</translation>
    </message>
    <message>
        <source>Count-In</source>
        <translation type="unfinished">カウントイン</translation>
    </message>
    <message>
        <source>No Count-In</source>
        <translation type="unfinished">カウントインなし</translation>
    </message>
    <message>
        <source>One Bar</source>
        <translation type="unfinished">1 小節</translation>
    </message>
    <message>
        <source>Two Bars</source>
        <translation type="unfinished">2 小節</translation>
    </message>
    <message>
        <source>Volume of the metronome</source>
        <translation type="unfinished">メトロノームの音量</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished">音量(&amp;V)</translation>
    </message>
    <message numerus="yes">
        <source>Take %1: %n note(s)</source>
        <translation type="unfinished">
            <numerusform>テイク %1: %n 音</numerusform>
        </translation>
    </message>
    <message>
        <source>Fit to Grid…</source>
        <translation type="unfinished">グリッドに合わせる…</translation>
    </message>
    <message>
        <source>Find the tempo and the bars of a free recording, and move it to them</source>
        <translation type="unfinished">自由な録音のテンポと小節を見つけ、それに合わせます</translation>
    </message>
    <message>
        <source>Thin Controllers…</source>
        <translation type="unfinished">コントローラーを間引く…</translation>
    </message>
    <message>
        <source>Leave out moves of controllers that nobody hears</source>
        <translation type="unfinished">聞こえないコントローラーの動きを省きます</translation>
    </message>
    <message>
        <source>Thin Controllers</source>
        <translation type="unfinished">コントローラーを間引く</translation>
    </message>
    <message>
        <source>Leave out changes of at most this many of 127:</source>
        <translation type="unfinished">127 段階のうち、この値以下の変化を省く:</translation>
    </message>
</context>
<context>
    <name>velmora::RollActions</name>
    <message>
        <source>View</source>
        <translation type="unfinished">表示</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation type="unfinished">レーン</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation type="unfinished">拡大(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation type="unfinished">縮小(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Wider Keys</source>
        <translation type="unfinished">鍵を広く(&amp;W)</translation>
    </message>
    <message>
        <source>N&amp;arrower Keys</source>
        <translation type="unfinished">鍵を狭く(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom to Selection</source>
        <translation type="unfinished">選択範囲に合わせる</translation>
    </message>
    <message>
        <source>Zoom to All Notes</source>
        <translation type="unfinished">すべての音符に合わせる</translation>
    </message>
    <message>
        <source>Time Runs Across</source>
        <translation type="unfinished">時間を右へ進める</translation>
    </message>
    <message>
        <source>Let time run from left to right instead of upwards</source>
        <translation type="unfinished">時間を上ではなく左から右へ進めます</translation>
    </message>
</context>
<context>
    <name>velmora::RollPaper</name>
    <message>
        <source>The piece is too long for this. Please take more bars for each line.</source>
        <translation type="unfinished">曲が長すぎます。1 行の小節数を増やしてください。</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished">%1 / %2</translation>
    </message>
    <message>
        <source>The piece is too long for one picture. Please take more bars for each line, or write PDF.</source>
        <translation type="unfinished">曲が長すぎて 1 枚の画像になりません。1 行の小節数を増やすか、PDF で書き出してください。</translation>
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
        <translation type="unfinished">音符の選択</translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished">すべて</translation>
    </message>
    <message>
        <source>&amp;Voice:</source>
        <translation type="unfinished">声部(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Keys:</source>
        <translation type="unfinished">鍵(&amp;K):</translation>
    </message>
    <message>
        <source>V&amp;elocities:</source>
        <translation type="unfinished">ベロシティ(&amp;E):</translation>
    </message>
    <message>
        <source>Lowest key</source>
        <translation type="unfinished">最低の鍵</translation>
    </message>
    <message>
        <source>Highest key</source>
        <translation type="unfinished">最高の鍵</translation>
    </message>
    <message>
        <source>Softest velocity</source>
        <translation type="unfinished">最小ベロシティ</translation>
    </message>
    <message>
        <source>Loudest velocity</source>
        <translation type="unfinished">最大ベロシティ</translation>
    </message>
</context>
<context>
    <name>velmora::SendTuningDialog</name>
    <message>
        <source>&amp;Keep sending when the tuning changes</source>
        <translation type="unfinished">調律が変わるたびに送信する(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished">送信(&amp;S)</translation>
    </message>
    <message>
        <source>Send the Tuning</source>
        <translation type="unfinished">調律の送信</translation>
    </message>
    <message>
        <source>No MIDI output is connected</source>
        <translation type="unfinished">MIDI出力が接続されていません</translation>
    </message>
    <message>
        <source>MIDI &amp;output:</source>
        <translation type="unfinished">MIDI出力(&amp;O):</translation>
    </message>
    <message>
        <source>The tuning was sent to %1.</source>
        <translation type="unfinished">調律を%1に送信しました。</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceActions</name>
    <message>
        <source>&amp;Loop</source>
        <translation type="unfinished">ループ(&amp;L)</translation>
    </message>
    <message>
        <source>Repeat the selected time, or the whole sequence</source>
        <translation type="unfinished">選択した範囲、または曲全体を繰り返します</translation>
    </message>
    <message>
        <source>Snap to &amp;Grid</source>
        <translation type="unfinished">グリッドに合わせる(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished">元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished">やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished">切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished">コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished">貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">削除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished">すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation type="unfinished">選択を解除(&amp;N)</translation>
    </message>
    <message>
        <source>Go to &amp;Start</source>
        <translation type="unfinished">先頭へ(&amp;S)</translation>
    </message>
    <message>
        <source>Pre&amp;vious Notes</source>
        <translation type="unfinished">前の音符(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Next Notes</source>
        <translation type="unfinished">次の音符(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">チャンネル(&amp;C)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">停止</translation>
    </message>
    <message>
        <source>Record what you play, starting at the position</source>
        <translation type="unfinished">現在の位置から演奏を録音します</translation>
    </message>
    <message>
        <source>Play from the position</source>
        <translation type="unfinished">現在の位置から再生します</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation type="unfinished">曲</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished">録音(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">再生(&amp;P)</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt Note</source>
        <translation type="unfinished">次の音符を選択(&amp;X)</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious Note</source>
        <translation type="unfinished">前の音符を選択(&amp;V)</translation>
    </message>
    <message>
        <source>Go to &amp;End</source>
        <translation type="unfinished">末尾へ(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Selected Notes</source>
        <translation type="unfinished">選択した音符(&amp;S)</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished">編集</translation>
    </message>
    <message>
        <source>Move Notes &amp;Up a Semitone</source>
        <translation type="unfinished">音符を半音上げる(&amp;U)</translation>
    </message>
    <message>
        <source>Move Notes &amp;Down a Semitone</source>
        <translation type="unfinished">音符を半音下げる(&amp;D)</translation>
    </message>
    <message>
        <source>Move Notes &amp;Later</source>
        <translation type="unfinished">音符を後へ移動(&amp;L)</translation>
    </message>
    <message>
        <source>Move Notes &amp;Earlier</source>
        <translation type="unfinished">音符を前へ移動(&amp;E)</translation>
    </message>
    <message>
        <source>Make Notes Lon&amp;ger</source>
        <translation type="unfinished">音符を長くする(&amp;G)</translation>
    </message>
    <message>
        <source>Make Notes &amp;Shorter</source>
        <translation type="unfinished">音符を短くする(&amp;S)</translation>
    </message>
    <message>
        <source>Align notes and times with the lines of the grid</source>
        <translation type="unfinished">音符と時間をグリッドの線に揃えます</translation>
    </message>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">取り消し履歴</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceDocument</name>
    <message>
        <source>Draw Note</source>
        <translation type="unfinished">音符の描画</translation>
    </message>
    <message numerus="yes">
        <source>Record %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の録音</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の削除</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の長さの変更</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の移動</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Set Channel of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符のチャンネルの変更</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cut %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の切り取り</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の貼り付け</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Take %1</source>
        <translation type="unfinished">テイク %1 を選択</translation>
    </message>
    <message numerus="yes">
        <source>Quantise %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符のクオンタイズ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Transpose %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の移調</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の複製</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の分割</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Join %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の結合</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Connect %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符の接続</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Change Velocity of %n Note(s)</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符のベロシティの変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">録音</translation>
    </message>
    <message>
        <source>Record Controllers</source>
        <translation type="unfinished">コントローラーを録音</translation>
    </message>
</context>
<context>
    <name>velmora::SequencePages</name>
    <message numerus="yes">
        <source>%1, %n note(s), %2</source>
        <translation type="unfinished">
            <numerusform>%1、%n 個の音符、%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">無題</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>Velmora was not closed properly. Recover the unsaved sequences?</source>
        <translation type="unfinished">Velmora は正しく終了されませんでした。保存していない曲を復元しますか？</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished">復元</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished">破棄</translation>
    </message>
    <message>
        <source>Ask Later</source>
        <translation type="unfinished">後で確認</translation>
    </message>
    <message>
        <source>%1 •</source>
        <translation type="unfinished">%1 •</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation type="unfinished">無題 %1</translation>
    </message>
    <message>
        <source>%1 is damaged. Open what could be read?</source>
        <translation type="unfinished">%1 は破損しています。読み込めた部分を開きますか?</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) could be read.</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符を読み込めました。</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” has stopped, because the voices of “%2” sound otherwise.</source>
        <translation type="unfinished">「%2」の声部は音色が異なるため、「%1」を停止しました。</translation>
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
        <translation type="unfinished">%1 をまだエクスポートしています。エクスポートを中止しますか？</translation>
    </message>
    <message>
        <source>If you stop it, no sound file is written.</source>
        <translation type="unfinished">中止すると、サウンドファイルは書き出されません。</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <translation type="unfinished">エクスポートを中止</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation type="unfinished">%1 への変更を保存しますか？</translation>
    </message>
    <message>
        <source>If you do not save them, they are lost.</source>
        <translation type="unfinished">保存しないと、変更は失われます。</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished">名前を付けて保存</translation>
    </message>
    <message>
        <source>An iMelody file holds a single voice and no dynamics. Save it anyway?</source>
        <translation type="unfinished">iMelody ファイルには単声しか保存できず、強弱も保存できません。それでも保存しますか？</translation>
    </message>
    <message>
        <source>Velmora cannot open iMelody files. A MIDI file keeps everything that you see.</source>
        <translation type="unfinished">Velmora は iMelody ファイルを開けません。MIDI ファイルなら、表示されているすべてが保たれます。</translation>
    </message>
    <message>
        <source>%1 was not saved.</source>
        <translation type="unfinished">%1 は保存されませんでした。</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">名前を付けて保存…</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceScrollView</name>
    <message>
        <source>Keys shown</source>
        <translation type="unfinished">表示する鍵</translation>
    </message>
    <message>
        <source>Time shown</source>
        <translation type="unfinished">表示する時間</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceStatus</name>
    <message>
        <source>Practice: play the notes at the position to move on to the next ones</source>
        <translation type="unfinished">練習: 現在の位置の音を弾くと、次の音へ進みます</translation>
    </message>
    <message>
        <source>Steps %1 to %2</source>
        <translation type="unfinished">ステップ %1〜%2</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished">再生中</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished">録音中</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation type="unfinished">%1 を待っています</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) selected</source>
        <translation type="unfinished">
            <numerusform>%n 個の音符を選択</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) in all</source>
        <translation type="unfinished">
            <numerusform>全 %n 個の音符</numerusform>
        </translation>
    </message>
    <message>
        <source>Done: all notes played</source>
        <translation type="unfinished">完了: すべての音を弾きました</translation>
    </message>
    <message>
        <source>Release %1</source>
        <translation type="unfinished">%1 を離してください</translation>
    </message>
    <message>
        <source>Waiting for %1; not %2</source>
        <translation type="unfinished">%1 を待っています (%2 ではありません)</translation>
    </message>
    <message>
        <source>Counting in</source>
        <translation type="unfinished">カウントイン中</translation>
    </message>
    <message>
        <source>Bar %1, beat %2 to bar %3, beat %4</source>
        <translation type="unfinished">%1小節 %2拍〜%3小節 %4拍</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation type="unfinished">次: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SequenceView</name>
    <message>
        <source>Piano roll</source>
        <translation type="unfinished">ピアノロール</translation>
    </message>
    <message>
        <source>Velocity %1 %</source>
        <translation type="unfinished">ベロシティ %1 %</translation>
    </message>
    <message>
        <source>%1, bar %2, beat %3, length in beats %4, channel %5</source>
        <translation type="unfinished">%1、小節 %2、拍 %3、長さ (拍) %4、チャンネル %5</translation>
    </message>
</context>
<context>
    <name>velmora::ShapeTab</name>
    <message>
        <source>Hear the Original</source>
        <translation type="unfinished">元の調律を聴く</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished">名前を付けて保存…</translation>
    </message>
    <message>
        <source>Ways to shape the tuning</source>
        <translation type="unfinished">調律の編集方法</translation>
    </message>
    <message>
        <source>By Notes</source>
        <translation type="unfinished">音で</translation>
    </message>
    <message>
        <source>By Fifths</source>
        <translation type="unfinished">5度で</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished">元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished">やり直す</translation>
    </message>
    <message>
        <source>Compare the tuning with what it was before you changed it</source>
        <translation type="unfinished">変更前の調律と聴き比べます</translation>
    </message>
    <message>
        <source>Save the tuning as a scale file, which is then listed</source>
        <translation type="unfinished">調律を音階ファイルとして保存し、一覧に加えます</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished">説明:</translation>
    </message>
    <message>
        <source>Slider of %1</source>
        <translation type="unfinished">%1のスライダー</translation>
    </message>
    <message>
        <source> cents</source>
        <translation type="unfinished"> セント</translation>
    </message>
    <message>
        <source>This tuning finds its pitches while you play, so it has no fixed notes to shape. Choose another one.</source>
        <translation type="unfinished">この調律は演奏中に音高を決めるため、変更できる固定の音がありません。別の調律を選んでください。</translation>
    </message>
    <message>
        <source>You are shaping a copy of %1. Save it to keep it.</source>
        <translation type="unfinished">%1のコピーを編集しています。残すには保存してください。</translation>
    </message>
    <message>
        <source>Move a note, and you hear it at once in a copy of this tuning. The first note stays.</source>
        <translation type="unfinished">音を動かすと、この調律のコピーですぐに聴こえます。最初の音は動きません。</translation>
    </message>
</context>
<context>
    <name>velmora::ShellActions</name>
    <message>
        <source>File</source>
        <translation type="unfinished">ファイル</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished">サウンド</translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished">表示</translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished">ヘルプ</translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation type="unfinished">新しい曲(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished">開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open pieces, instruments and tunings</source>
        <translation type="unfinished">曲、楽器、調律を開きます</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished">保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the piece</source>
        <translation type="unfinished">曲を保存します</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished">名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Export Audio…</source>
        <translation type="unfinished">オーディオのエクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>Write a sound file of the piece</source>
        <translation type="unfinished">曲をサウンドファイルに書き出します</translation>
    </message>
    <message>
        <source>&amp;Close Piece</source>
        <translation type="unfinished">曲を閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished">設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished">終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Silence Everything</source>
        <translation type="unfinished">すべて消音(&amp;S)</translation>
    </message>
    <message>
        <source>Stop every sound and release every key</source>
        <translation type="unfinished">すべての音を止め、すべての鍵を離します</translation>
    </message>
    <message>
        <source>Transpose &amp;Up</source>
        <translation type="unfinished">上へ移調(&amp;U)</translation>
    </message>
    <message>
        <source>Transpose &amp;Down</source>
        <translation type="unfinished">下へ移調(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation type="unfinished">鍵盤(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation type="unfinished">楽器(&amp;I)</translation>
    </message>
    <message>
        <source>Show the program or the stops</source>
        <translation type="unfinished">プログラムまたはストップを表示します</translation>
    </message>
    <message>
        <source>&amp;Tuning</source>
        <translation type="unfinished">調律(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished">演奏(&amp;P)</translation>
    </message>
    <message>
        <source>Arrange the window for playing</source>
        <translation type="unfinished">ウィンドウを演奏用に配置します</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">編集(&amp;E)</translation>
    </message>
    <message>
        <source>Arrange the window for editing</source>
        <translation type="unfinished">ウィンドウを編集用に配置します</translation>
    </message>
    <message>
        <source>&amp;Stage</source>
        <translation type="unfinished">ステージ(&amp;S)</translation>
    </message>
    <message>
        <source>Fill the screen with what matters on stage</source>
        <translation type="unfinished">ステージで必要なものを画面いっぱいに表示します</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished">配置を元に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <translation type="unfinished">次のパネル(&amp;X)</translation>
    </message>
    <message>
        <source>Pre&amp;vious Panel</source>
        <translation type="unfinished">前のパネル(&amp;V)</translation>
    </message>
    <message>
        <source>Piece in Its &amp;Own Window</source>
        <translation type="unfinished">曲を別のウィンドウで表示(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Loaded Instruments…</source>
        <translation type="unfinished">読み込まれた楽器(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Meters</source>
        <translation type="unfinished">メーター(&amp;M)</translation>
    </message>
    <message>
        <source>Show the delay, the load and the devices of live playing</source>
        <translation type="unfinished">演奏時の遅延、負荷、機器を表示します</translation>
    </message>
    <message>
        <source>Note &amp;Names on the Keyboard</source>
        <translation type="unfinished">鍵盤に音名を表示(&amp;N)</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation type="unfinished">ユーザーガイド(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation type="unfinished">Velmora について(&amp;A)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished">最近使ったファイルを開く(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished">一覧を消去(&amp;C)</translation>
    </message>
    <message>
        <source>Open Sess&amp;ion…</source>
        <translation type="unfinished">セッションを開く(&amp;I)…</translation>
    </message>
    <message>
        <source>Open the instruments, the tuning and the pieces of a session</source>
        <translation type="unfinished">セッションの楽器、調律、曲を開きます</translation>
    </message>
    <message>
        <source>Sa&amp;ve Session…</source>
        <translation type="unfinished">セッションを保存(&amp;V)…</translation>
    </message>
    <message>
        <source>Save which instruments, tuning and pieces are open</source>
        <translation type="unfinished">開いている楽器、調律、曲の組み合わせを保存します</translation>
    </message>
    <message>
        <source>&amp;Find a Command…</source>
        <translation type="unfinished">コマンドを検索(&amp;F)…</translation>
    </message>
    <message>
        <source>Find a command by its name and perform it</source>
        <translation type="unfinished">コマンドを名前で検索して実行します</translation>
    </message>
    <message>
        <source>&amp;Console</source>
        <translation type="unfinished">コンソール(&amp;C)</translation>
    </message>
    <message>
        <source>Show the stops of the organ</source>
        <translation type="unfinished">オルガンのストップを表示します</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">まだ読み込まれていないストップを除外します</translation>
    </message>
    <message>
        <source>Stop Loadin&amp;g</source>
        <translation type="unfinished">読み込みを中止(&amp;G)</translation>
    </message>
    <message>
        <source>Export &amp;MIDI in This Tuning…</source>
        <translation type="unfinished">この調律のMIDIをエクスポート(&amp;M)…</translation>
    </message>
    <message>
        <source>Write a MIDI file of the piece that other devices play in this tuning</source>
        <translation type="unfinished">ほかの機器でもこの調律で鳴るMIDIファイルを書き出します</translation>
    </message>
    <message>
        <source>Export &amp;Tuning…</source>
        <translation type="unfinished">調律のエクスポート(&amp;T)…</translation>
    </message>
    <message>
        <source>Write what each key sounds like now as a scale and a keyboard mapping</source>
        <translation type="unfinished">各鍵の現在の音高を音階とキーボードマッピングとして書き出します</translation>
    </message>
    <message>
        <source>&amp;Send the Tuning…</source>
        <translation type="unfinished">調律を送信(&amp;S)…</translation>
    </message>
    <message>
        <source>Send the tuning to a MIDI device that is to play in it</source>
        <translation type="unfinished">この調律で鳴らしたいMIDI機器に調律を送信します</translation>
    </message>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">調律を編集</translation>
    </message>
    <message>
        <source>Show the circle of fifths, and shape the tuning</source>
        <translation type="unfinished">5度圏を表示し、調律を編集します</translation>
    </message>
    <message>
        <source>E&amp;xport Score…</source>
        <translation type="unfinished">楽譜を書き出す(&amp;X)…</translation>
    </message>
    <message>
        <source>Write the piece down for a notation program, spelled as the tuning spells it</source>
        <translation type="unfinished">調律による音名のまま、記譜ソフト用に曲を書き出します</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">練習</translation>
    </message>
    <message>
        <source>Practise the piece, a hand or a voice of it</source>
        <translation type="unfinished">曲、片手、または一つの声部を練習する</translation>
    </message>
    <message>
        <source>Show who plays the piece</source>
        <translation type="unfinished">曲の声部を表示します</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">発音数</translation>
    </message>
    <message>
        <source>Export Voices…</source>
        <translation type="unfinished">声部を書き出し…</translation>
    </message>
    <message>
        <source>Write a sound file of each voice of the piece</source>
        <translation type="unfinished">曲の声部ごとにサウンドファイルを書き出します</translation>
    </message>
    <message>
        <source>Export Roll…</source>
        <translation type="unfinished">ピアノロールを書き出し…</translation>
    </message>
    <message>
        <source>Write the piano roll of the piece for paper, as PDF or PNG</source>
        <translation type="unfinished">曲のピアノロールを印刷用に PDF または PNG で書き出します</translation>
    </message>
    <message>
        <source>&amp;Open Instrument…</source>
        <translation type="unfinished">楽器を開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a SoundFont, a GigaSampler bank or an organ</source>
        <translation type="unfinished">SoundFont、GigaSampler バンク、またはオルガンを開きます</translation>
    </message>
    <message>
        <source>&amp;Open Tuning…</source>
        <translation type="unfinished">調律を開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open scales and other tunings</source>
        <translation type="unfinished">音階などの調律を開きます</translation>
    </message>
</context>
<context>
    <name>velmora::ShortcutsPane</name>
    <message>
        <source>Find a command</source>
        <translation type="unfinished">コマンドを検索</translation>
    </message>
    <message>
        <source>Use It &amp;Here</source>
        <translation type="unfinished">ここで使う(&amp;H)</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished">削除(&amp;V)</translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished">コマンド</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished">ショートカット</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished">コマンド</translation>
    </message>
    <message>
        <source>Press the new keys for the selected command</source>
        <translation type="unfinished">選択したコマンドの新しいキーを押してください</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <translation type="unfinished">新しいショートカット</translation>
    </message>
    <message>
        <source>&amp;New shortcut:</source>
        <translation type="unfinished">新しいショートカット(&amp;N):</translation>
    </message>
    <message>
        <source>Take the shortcut from the other command</source>
        <translation type="unfinished">もう一方のコマンドからショートカットを移します</translation>
    </message>
    <message>
        <source>Leave the selected command without a shortcut</source>
        <translation type="unfinished">選択したコマンドのショートカットをなくします</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation type="unfinished">既定値に戻す(&amp;D)</translation>
    </message>
    <message>
        <source>Give every command the shortcuts that it had at first</source>
        <translation type="unfinished">すべてのコマンドを最初のショートカットに戻します</translation>
    </message>
    <message>
        <source>%1 plays a note. Add Ctrl or Alt, or use a function key.</source>
        <translation type="unfinished">%1 は音を鳴らすキーです。Ctrl か Alt を加えるか、ファンクションキーを使ってください。</translation>
    </message>
    <message>
        <source>%1 belongs to “%2”. Press other keys, or use it here instead.</source>
        <translation type="unfinished">%1 は「%2」に割り当てられています。別のキーを押すか、代わりにここで使ってください。</translation>
    </message>
</context>
<context>
    <name>velmora::SoundPane</name>
    <message>
        <source>Ou&amp;tput:</source>
        <translation type="unfinished">出力(&amp;T):</translation>
    </message>
    <message>
        <source>The sound server or driver that Velmora plays through</source>
        <translation type="unfinished">Velmora が音を出すサウンドサーバーまたはドライバー</translation>
    </message>
    <message>
        <source>&amp;Device:</source>
        <translation type="unfinished">デバイス(&amp;D):</translation>
    </message>
    <message>
        <source>The device that is heard</source>
        <translation type="unfinished">音が出るデバイス</translation>
    </message>
    <message>
        <source>Sample &amp;rate:</source>
        <translation type="unfinished">サンプルレート(&amp;R):</translation>
    </message>
    <message>
        <source>A JACK server determines the sample rate itself</source>
        <translation type="unfinished">JACK サーバーはサンプルレートを自ら決めます</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation type="unfinished">ピリオド(&amp;P):</translation>
    </message>
    <message>
        <source>The shorter the period, the sooner a key sounds, and the more the machine has to do. With JACK, it applies to all programs</source>
        <translation type="unfinished">ピリオドが短いほど鍵は早く鳴り、コンピューターの負荷は高くなります。JACK ではすべてのプログラムに適用されます</translation>
    </message>
    <message>
        <source>Playing:</source>
        <translation type="unfinished">使用中:</translation>
    </message>
    <message>
        <source>Master &amp;volume:</source>
        <translation type="unfinished">マスター音量(&amp;V):</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation type="unfinished">レベル:</translation>
    </message>
    <message>
        <source>Master volume</source>
        <translation type="unfinished">マスター音量</translation>
    </message>
    <message>
        <source>Play Test To&amp;ne</source>
        <translation type="unfinished">テスト音を鳴らす(&amp;N)</translation>
    </message>
    <message>
        <source>Plays a short, quiet tone</source>
        <translation type="unfinished">短く小さな音を鳴らします</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished">自動</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation type="unfinished">%1 (見つかりません)</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished">%1 フレーム</translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished">既定</translation>
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
        <translation type="unfinished">%1、%L2 kHz、%L3 フレーム (%L4 ms)</translation>
    </message>
    <message>
        <source>
To the sound card: %L1 ms. Lost periods: %L2.</source>
        <translation type="unfinished">
サウンドカードまで: %L1 ms。失われたピリオド: %L2。</translation>
    </message>
</context>
<context>
    <name>velmora::StageView</name>
    <message>
        <source>%1 leaves the stage</source>
        <translation type="unfinished">%1 でステージを終了</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>First steps</source>
        <translation type="unfinished">はじめに</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation type="unfinished">ユーザーガイド</translation>
    </message>
    <message>
        <source>Open the user guide</source>
        <translation type="unfinished">ユーザーガイドを開きます</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation type="unfinished">何をしますか？</translation>
    </message>
    <message>
        <source>Welcome to Velmora! Each card does something at once, and nothing can break.</source>
        <translation type="unfinished">Velmora へようこそ！どのカードもすぐに動作し、何かが壊れる心配はありません。</translation>
    </message>
    <message>
        <source>Hear it</source>
        <translation type="unfinished">聴く</translation>
    </message>
    <message>
        <source>C major, whose third beats in equal temperament and is pure in meantone. The tuning that you hear stays selected.</source>
        <translation type="unfinished">ハ長調の和音です。第 3 音は平均律ではうなり、中全音律では純正に響きます。聴いた調律がそのまま選択されます。</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">平均律</translation>
    </message>
    <message>
        <source>Hear the chord in equal temperament</source>
        <translation type="unfinished">和音を平均律で聴きます</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">中全音律</translation>
    </message>
    <message>
        <source>Hear the chord in quarter-comma meantone</source>
        <translation type="unfinished">和音を 1/4 コンマ中全音律で聴きます</translation>
    </message>
    <message>
        <source>Choose a Tuning</source>
        <translation type="unfinished">調律を選択</translation>
    </message>
    <message>
        <source>Choose a tuning</source>
        <translation type="unfinished">調律を選択します</translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation type="unfinished">調律する</translation>
    </message>
    <message>
        <source>Choose a historical tuning, or one that adapts to what you play.</source>
        <translation type="unfinished">歴史的な調律、または演奏に合わせて変わる調律を選びます。</translation>
    </message>
    <message>
        <source>Open an Instrument…</source>
        <translation type="unfinished">楽器を開く…</translation>
    </message>
    <message>
        <source>Open an instrument</source>
        <translation type="unfinished">楽器を開きます</translation>
    </message>
    <message>
        <source>Play it</source>
        <translation type="unfinished">弾く</translation>
    </message>
    <message>
        <source>Use a MIDI keyboard, the keys below, or the letters of the computer keyboard, from A on.</source>
        <translation type="unfinished">MIDI キーボード、下の鍵盤、またはコンピューターのキーボードの A から始まる文字キーで弾けます。</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">録音</translation>
    </message>
    <message>
        <source>Record a new sequence</source>
        <translation type="unfinished">新しい曲を録音します</translation>
    </message>
    <message>
        <source>Record it</source>
        <translation type="unfinished">録音する</translation>
    </message>
    <message>
        <source>Play, correct the notes in the piano roll, and export the sound.</source>
        <translation type="unfinished">演奏し、ピアノロールで音符を直し、音声をエクスポートします。</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished">%1 を開く</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished">例</translation>
    </message>
    <message>
        <source>%1 (tuning)</source>
        <translation type="unfinished">%1 (調律)</translation>
    </message>
    <message>
        <source>%1 (piece)</source>
        <translation type="unfinished">%1 (曲)</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished">最近使ったファイル</translation>
    </message>
</context>
<context>
    <name>velmora::StatusLine</name>
    <message>
        <source>The sound output: its driver, sample rate and period</source>
        <translation type="unfinished">サウンド出力: ドライバー、サンプルレート、ピリオド</translation>
    </message>
    <message>
        <source>No MIDI input</source>
        <translation type="unfinished">MIDI 入力なし</translation>
    </message>
    <message>
        <source>A MIDI device is used as soon as it is connected</source>
        <translation type="unfinished">MIDI 機器は接続するとすぐに使えます</translation>
    </message>
    <message>
        <source>There is no MIDI device. Connect one, or play with the mouse.</source>
        <translation type="unfinished">MIDI 機器がありません。接続するか、マウスで演奏してください。</translation>
    </message>
    <message>
        <source>No sound output</source>
        <translation type="unfinished">サウンド出力なし</translation>
    </message>
    <message>
        <source>Notices: %1</source>
        <translation type="unfinished">お知らせ: %1</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation type="unfinished">お知らせ</translation>
    </message>
    <message>
        <source>%1, %L2 kHz, %L3 ms</source>
        <translation type="unfinished">%1、%L2 kHz、%L3 ms</translation>
    </message>
    <message>
        <source>Instrument: %1
Click to show its programs or stops</source>
        <translation type="unfinished">楽器: %1
クリックするとプログラムまたはストップを表示します</translation>
    </message>
    <message>
        <source>Tuning: %1 (%2)
Click to show all tunings</source>
        <translation type="unfinished">調律: %1 (%2)
クリックするとすべての調律を表示します</translation>
    </message>
    <message>
        <source>Plain reading</source>
        <translation type="unfinished">シンプル読み取り</translation>
    </message>
    <message>
        <source>MIDI devices are read plainly: no pedals, no touch, no transposition</source>
        <translation type="unfinished">MIDI 機器をシンプルに読み取ります: ペダル、タッチ、移調は使いません</translation>
    </message>
    <message>
        <source>Transposed %1</source>
        <translation type="unfinished">移調 %1</translation>
    </message>
    <message>
        <source>MIDI keyboards sound %1 semitones away from their keys</source>
        <translation type="unfinished">MIDI キーボードは鍵から %1 半音ずれて鳴ります</translation>
    </message>
    <message numerus="yes">
        <source>%n MIDI input(s)</source>
        <translation type="unfinished">
            <numerusform>MIDI 入力 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>MIDI devices:
%1</source>
        <translation type="unfinished">MIDI 機器:
%1</translation>
    </message>
    <message>
        <source>The display may go to sleep while you play because there is no D-Bus session bus. Start Velmora from the desktop, or with dbus-run-session.</source>
        <translation type="unfinished">D-Bus のセッションバスがないため、演奏中に画面が消えることがあります。Velmora をデスクトップから、または dbus-run-session で起動してください。</translation>
    </message>
    <message>
        <source>What you change in the preferences, and what is open, is forgotten when you quit because nothing can be written to %1. Make that folder writable.</source>
        <translation type="unfinished">%1 に書き込めないため、設定の変更や開いているものは終了時に失われます。このフォルダーを書き込み可能にしてください。</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">楽器</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">調律</translation>
    </message>
    <message>
        <source>Reading of MIDI devices</source>
        <translation type="unfinished">MIDI 機器の読み取り</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation type="unfinished">サウンド出力</translation>
    </message>
    <message>
        <source>MIDI inputs</source>
        <translation type="unfinished">MIDI 入力</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation type="unfinished">読み込み</translation>
    </message>
    <message>
        <source>%1 % loaded</source>
        <translation type="unfinished">%1 % 読み込み済み</translation>
    </message>
    <message>
        <source>The stops of %1 that are loaded can be played; the others follow</source>
        <translation type="unfinished">%1 の読み込み済みのストップは演奏できます。残りは続けて読み込まれます</translation>
    </message>
    <message>
        <source>Stop Loading</source>
        <translation type="unfinished">読み込みを中止</translation>
    </message>
    <message>
        <source>Leave out the stops that are not loaded yet</source>
        <translation type="unfinished">まだ読み込まれていないストップを除外します</translation>
    </message>
</context>
<context>
    <name>velmora::StemsDialog</name>
    <message>
        <source>Export Voices</source>
        <translation type="unfinished">声部の書き出し</translation>
    </message>
    <message>
        <source>Every voice that sounds is written to a sound file of its own. Muted voices are left out. Played together, the files sound like the piece.</source>
        <translation type="unfinished">鳴る声部をそれぞれ別のサウンドファイルに書き出します。ミュートした声部は除きます。すべて同時に再生すると元の曲になります。</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished">参照(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished">書き出し(&amp;E)</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation type="unfinished">フォルダー(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished">形式(&amp;F):</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation type="unfinished">ファイル:</translation>
    </message>
    <message>
        <source>No voice of the piece sounds.</source>
        <translation type="unfinished">鳴る声部がありません。</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) already exist. Do you want to replace them?</source>
        <translation type="unfinished">
            <numerusform>%n 個のファイルが既に存在します。置き換えますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be created.</source>
        <translation type="unfinished">フォルダー %1 は存在せず、作成できません。</translation>
    </message>
</context>
<context>
    <name>velmora::StopRow</name>
    <message>
        <source>%1: turn on or off (Space)</source>
        <translation type="unfinished">%1: オン/オフ (スペース)</translation>
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
        <translation type="unfinished">曲</translation>
    </message>
    <message>
        <source>Ta&amp;p Tempo</source>
        <translation type="unfinished">テンポをタップ(&amp;P)</translation>
    </message>
    <message>
        <source>Tap repeatedly to set the tempo of the piece at the position</source>
        <translation type="unfinished">繰り返しタップして、その位置の曲のテンポを設定します</translation>
    </message>
    <message>
        <source>Tempo &amp;and Signatures</source>
        <translation type="unfinished">テンポと拍子(&amp;A)</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation type="unfinished">タップ</translation>
    </message>
    <message>
        <source>Tap Tempo</source>
        <translation type="unfinished">テンポをタップ</translation>
    </message>
</context>
<context>
    <name>velmora::TimeEntryDialog</name>
    <message>
        <source>Add &amp;Tempo…</source>
        <translation type="unfinished">テンポを追加(&amp;T)…</translation>
    </message>
    <message>
        <source>Add Time &amp;Signature…</source>
        <translation type="unfinished">拍子記号を追加(&amp;S)…</translation>
    </message>
    <message>
        <source>Add &amp;Key Signature…</source>
        <translation type="unfinished">調号を追加(&amp;K)…</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation type="unfinished">マーカーを追加(&amp;M)…</translation>
    </message>
    <message>
        <source>Add Tempo</source>
        <translation type="unfinished">テンポを追加</translation>
    </message>
    <message>
        <source>Add Time Signature</source>
        <translation type="unfinished">拍子記号を追加</translation>
    </message>
    <message>
        <source>Add Key Signature</source>
        <translation type="unfinished">調号を追加</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation type="unfinished">マーカーを追加</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">テンポを変更</translation>
    </message>
    <message>
        <source>Change Time Signature</source>
        <translation type="unfinished">拍子記号を変更</translation>
    </message>
    <message>
        <source>Change Key Signature</source>
        <translation type="unfinished">調号を変更</translation>
    </message>
    <message>
        <source>Change Marker</source>
        <translation type="unfinished">マーカーを変更</translation>
    </message>
    <message>
        <source>Delete Tempo</source>
        <translation type="unfinished">テンポを削除</translation>
    </message>
    <message>
        <source>Delete Time Signature</source>
        <translation type="unfinished">拍子記号を削除</translation>
    </message>
    <message>
        <source>Delete Key Signature</source>
        <translation type="unfinished">調号を削除</translation>
    </message>
    <message>
        <source>Delete Marker</source>
        <translation type="unfinished">マーカーを削除</translation>
    </message>
    <message>
        <source>A♭ E♭ B♭ F C G D A E B F♯ C♯ G♯ D♯ A♯</source>
        <comment>minor keys</comment>
        <translation type="unfinished">変イ 変ホ 変ロ ヘ ハ ト ニ イ ホ ロ 嬰ヘ 嬰ハ 嬰ト 嬰ニ 嬰イ</translation>
    </message>
    <message>
        <source>C♭ G♭ D♭ A♭ E♭ B♭ F C G D A E B F♯ C♯</source>
        <comment>major keys</comment>
        <translation type="unfinished">変ハ 変ト 変ニ 変イ 変ホ 変ロ ヘ ハ ト ニ イ ホ ロ 嬰ヘ 嬰ハ</translation>
    </message>
    <message>
        <source>%1 minor</source>
        <translation type="unfinished">%1 短三和音</translation>
    </message>
    <message>
        <source>%1 major</source>
        <translation type="unfinished">%1 長三和音</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">テンポ</translation>
    </message>
    <message>
        <source>Time Signature</source>
        <translation type="unfinished">拍子記号</translation>
    </message>
    <message>
        <source>Key Signature</source>
        <translation type="unfinished">調号</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation type="unfinished">マーカー</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> bpm</translation>
    </message>
    <message>
        <source>&amp;Tempo:</source>
        <translation type="unfinished">テンポ(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Notes in a bar:</source>
        <translation type="unfinished">1小節の音符の数(&amp;N):</translation>
    </message>
    <message>
        <source>1/%1</source>
        <translation type="unfinished">1/%1</translation>
    </message>
    <message>
        <source>&amp;Value of a note:</source>
        <translation type="unfinished">音符の長さ(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation type="unfinished">調(&amp;K):</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished">文字(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Bar:</source>
        <translation type="unfinished">小節(&amp;B):</translation>
    </message>
    <message>
        <source>B&amp;eat:</source>
        <translation type="unfinished">拍(&amp;E):</translation>
    </message>
</context>
<context>
    <name>velmora::TimeLane</name>
    <message>
        <source>Tempo and signatures</source>
        <translation type="unfinished">テンポと拍子</translation>
    </message>
    <message>
        <source>Tempos, time signatures, key signatures and markers. Double-click to add or change one, drag it to move it, and press Delete to remove it.</source>
        <translation type="unfinished">テンポ、拍子記号、調号、マーカー。ダブルクリックで追加または変更、ドラッグで移動、Deleteキーで削除します。</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation type="unfinished">変更(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished">削除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>velmora::TimeRuler</name>
    <message>
        <source>Bars</source>
        <translation type="unfinished">小節</translation>
    </message>
    <message>
        <source>Drag the arrow to move the play position. Drag over the ruler to select the time that is looped.</source>
        <translation type="unfinished">矢印をドラッグすると再生位置が動きます。ルーラー上をドラッグすると、ループする範囲を選択します。</translation>
    </message>
</context>
<context>
    <name>velmora::TransportBar</name>
    <message>
        <source>Transport</source>
        <translation type="unfinished">トランスポート</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished">停止</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished">録音</translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished">再生</translation>
    </message>
    <message>
        <source>Te&amp;mpo</source>
        <translation type="unfinished">テンポ(&amp;M)</translation>
    </message>
    <message>
        <source>Tempo</source>
        <translation type="unfinished">テンポ</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation type="unfinished">チャンネル(&amp;C)</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished">チャンネル</translation>
    </message>
    <message>
        <source>The channel of notes that you record or draw. A digit key chooses a channel and selects its notes; with Ctrl it moves the selected notes to that channel.</source>
        <translation type="unfinished">録音または描画する音符のチャンネル。数字キーでチャンネルを選び、その音符を選択します。Ctrl と一緒に押すと、選択した音符をそのチャンネルへ移します。</translation>
    </message>
    <message>
        <source>%1  ·  step %2</source>
        <translation type="unfinished">%1  ·  ステップ %2</translation>
    </message>
    <message>
        <source> bpm</source>
        <translation type="unfinished"> bpm</translation>
    </message>
    <message>
        <source>Takes</source>
        <translation type="unfinished">テイク</translation>
    </message>
    <message>
        <source>Choose one of the takes that were recorded in the loop</source>
        <translation type="unfinished">ループで録音したテイクを選びます</translation>
    </message>
    <message>
        <source>Count-in: %1</source>
        <translation type="unfinished">カウントイン: %1</translation>
    </message>
    <message>
        <source>The position in minutes and seconds at this speed, and in bars and beats</source>
        <translation type="unfinished">この速度での分と秒、および小節と拍による位置</translation>
    </message>
    <message>
        <source>The tempo of the piece at the position in beats per minute (Alt+M)</source>
        <translation type="unfinished">その位置の曲のテンポ(1分あたりの拍数)(Alt+M)</translation>
    </message>
    <message>
        <source> %</source>
        <comment>percent</comment>
        <translation type="unfinished"> %</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished">速度</translation>
    </message>
    <message>
        <source>How fast the piece is played, as a part of its tempo. It is not saved with the piece.</source>
        <translation type="unfinished">曲を演奏する速さ(テンポに対する割合)。曲と一緒には保存されません。</translation>
    </message>
    <message>
        <source>Change Tempo</source>
        <translation type="unfinished">テンポを変更</translation>
    </message>
    <message>
        <source>%1  ·  bar %2, beat %3</source>
        <translation type="unfinished">%1  ·  %2小節 %3拍</translation>
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
        <translation type="unfinished">A は調律のとおり</translation>
    </message>
    <message>
        <source>%1, A %2 Hz</source>
        <translation type="unfinished">%1、A %2 Hz</translation>
    </message>
    <message>
        <source>%1 on %2, A %3 Hz</source>
        <translation type="unfinished">%1(%2 基音)、A %3 Hz</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished">%1(%2 基音)</translation>
    </message>
    <message>
        <source>The key on which the tuning stands: on D, D sounds as C does on C</source>
        <translation type="unfinished">調律の基準となる鍵です。D を選ぶと、D が C のときの C のように鳴ります</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished"> Hz</translation>
    </message>
    <message>
        <source>As the tuning has it</source>
        <translation type="unfinished">調律のとおり</translation>
    </message>
    <message>
        <source>The pitch of A above middle C, from 380 to 480 Hz</source>
        <translation type="unfinished">中央ハの上の A の高さ(380~480 Hz)</translation>
    </message>
    <message>
        <source>Usual Pitches</source>
        <translation type="unfinished">よく使う高さ</translation>
    </message>
    <message>
        <source>Choose one of the usual pitches of A</source>
        <translation type="unfinished">A のよく使う高さから選びます</translation>
    </message>
    <message>
        <source>Root:</source>
        <translation type="unfinished">基音:</translation>
    </message>
    <message>
        <source>Pitch of A:</source>
        <translation type="unfinished">A の高さ:</translation>
    </message>
    <message>
        <source>Pitch of A</source>
        <translation type="unfinished">A の高さ</translation>
    </message>
</context>
<context>
    <name>velmora::TranspositionCommands</name>
    <message>
        <source>&amp;Root</source>
        <translation type="unfinished">基音(&amp;R)</translation>
    </message>
    <message>
        <source>Pitch of &amp;A</source>
        <translation type="unfinished">&amp;A の高さ</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">調律</translation>
    </message>
    <message>
        <source>Root a &amp;Fifth Up</source>
        <translation type="unfinished">基音を 5 度上げる(&amp;F)</translation>
    </message>
    <message>
        <source>Root a F&amp;ifth Down</source>
        <translation type="unfinished">基音を 5 度下げる(&amp;I)</translation>
    </message>
    <message>
        <source>Root a &amp;Semitone Up</source>
        <translation type="unfinished">基音を半音上げる(&amp;S)</translation>
    </message>
    <message>
        <source>Root a S&amp;emitone Down</source>
        <translation type="unfinished">基音を半音下げる(&amp;E)</translation>
    </message>
</context>
<context>
    <name>velmora::TuningExports</name>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished">%1 をエクスポートしました</translation>
    </message>
    <message>
        <source>Velmora</source>
        <translation type="unfinished">Velmora</translation>
    </message>
    <message>
        <source>%1 was not exported. %2</source>
        <translation type="unfinished">%1 をエクスポートできませんでした。%2</translation>
    </message>
    <message>
        <source>Export MIDI in This Tuning</source>
        <translation type="unfinished">この調律のMIDIをエクスポート</translation>
    </message>
    <message>
        <source>MIDI File</source>
        <translation type="unfinished">MIDIファイル</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>a piece in a tuning</comment>
        <translation type="unfinished">%1（%2）</translation>
    </message>
    <message numerus="yes">
        <source>A MIDI file has only 15 channels for notes of different pitch, so %n note(s) are up to %1 cents out of tune.</source>
        <translation type="unfinished">
            <numerusform>MIDIファイルには音高の異なる音のためのチャンネルが15しかないため、%n個の音が最大%1セントずれています。</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Tuning</source>
        <translation type="unfinished">調律のエクスポート</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished">音階</translation>
    </message>
    <message>
        <source>Export Score</source>
        <translation type="unfinished">楽譜を書き出す</translation>
    </message>
    <message>
        <source>Export Roll</source>
        <translation type="unfinished">ピアノロールの書き出し</translation>
    </message>
    <message>
        <source>&amp;Bars in a line:</source>
        <translation type="unfinished">1 行の小節数(&amp;B):</translation>
    </message>
</context>
<context>
    <name>velmora::TuningPanel</name>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">調律</translation>
    </message>
    <message>
        <source>Open T&amp;uning…</source>
        <translation type="unfinished">調律を開く(&amp;U)…</translation>
    </message>
    <message>
        <source>Open a tuning file: a scale (.scl) or frequencies (.mtx)</source>
        <translation type="unfinished">調律ファイルを開きます: 音階 (.scl) または周波数 (.mtx)</translation>
    </message>
    <message>
        <source>The pitches of middle C and of the A above it in this tuning</source>
        <translation type="unfinished">この調律での中央の C とその上の A の音高</translation>
    </message>
    <message>
        <source>%1 (middle C): %2 Hz
%3: %4 Hz</source>
        <translation type="unfinished">%1 (中央の C): %2 Hz
%3: %4 Hz</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation type="unfinished">平均律</translation>
    </message>
    <message>
        <source>Twelve equal semitones</source>
        <translation type="unfinished">12 の等しい半音</translation>
    </message>
    <message>
        <source>Quartercomma Meantone</source>
        <translation type="unfinished">1/4 コンマ中全音律</translation>
    </message>
    <message>
        <source>Pure major thirds</source>
        <translation type="unfinished">純正な長三度</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation type="unfinished">ダイナミック</translation>
    </message>
    <message>
        <source>Adapts its thirds to what you play</source>
        <translation type="unfinished">演奏に合わせて三度を調整します</translation>
    </message>
    <message>
        <source>Find a tuning</source>
        <translation type="unfinished">調律を検索</translation>
    </message>
    <message>
        <source>Tunings</source>
        <translation type="unfinished">調律</translation>
    </message>
    <message>
        <source>Pythagorean</source>
        <translation type="unfinished">ピタゴラス</translation>
    </message>
    <message>
        <source>Meantone</source>
        <translation type="unfinished">中全音律</translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished">フランス</translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished">イギリス</translation>
    </message>
    <message>
        <source>Well temperaments</source>
        <translation type="unfinished">ウェルテンペラメント</translation>
    </message>
    <message>
        <source>Just intonation</source>
        <translation type="unfinished">純正律</translation>
    </message>
    <message>
        <source>Equal divisions</source>
        <translation type="unfinished">等分律</translation>
    </message>
    <message>
        <source>Outside Europe</source>
        <translation type="unfinished">ヨーロッパ以外</translation>
    </message>
    <message>
        <source>Following Meantone</source>
        <translation type="unfinished">追従する中全音律</translation>
    </message>
    <message>
        <source>Spells each key as the music asks for, with pure thirds</source>
        <translation type="unfinished">音楽に応じて各鍵盤の音名を決め、3度を純正にします</translation>
    </message>
    <message>
        <source>Pure</source>
        <translation type="unfinished">純正</translation>
    </message>
    <message>
        <source>Makes the chords that you play pure</source>
        <translation type="unfinished">弾いた和音を純正にします</translation>
    </message>
    <message>
        <source>Shape…</source>
        <translation type="unfinished">編集…</translation>
    </message>
    <message>
        <source>Show the circle of fifths and what sounds, and shape the tuning</source>
        <translation type="unfinished">5度圏と鳴っている音を表示し、調律を編集します</translation>
    </message>
</context>
<context>
    <name>velmora::TuningShaper</name>
    <message>
        <source>Shape the Tuning</source>
        <translation type="unfinished">調律を編集</translation>
    </message>
    <message>
        <source>%1 (edited)</source>
        <translation type="unfinished">%1(編集済み)</translation>
    </message>
    <message>
        <source>%1 (edited, %2)</source>
        <translation type="unfinished">%1(編集済み、%2)</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStrip</name>
    <message>
        <source>Tuning strip</source>
        <translation type="unfinished">調律ストリップ</translation>
    </message>
    <message>
        <source>How many cents each note of the tuning lies above or below equal temperament</source>
        <translation type="unfinished">調律の各音が平均律より何セント高いか、または低いか</translation>
    </message>
    <message>
        <source>%1: %2 cents</source>
        <translation type="unfinished">%1: %2 セント</translation>
    </message>
</context>
<context>
    <name>velmora::TuningStudio</name>
    <message>
        <source>Pages of the tuning studio</source>
        <translation type="unfinished">調律スタジオのページ</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished">円</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished">編集</translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished">今</translation>
    </message>
</context>
<context>
    <name>velmora::UndoHistory</name>
    <message>
        <source>Undo History</source>
        <translation type="unfinished">取り消し履歴</translation>
    </message>
    <message>
        <source>Edits of the piece</source>
        <translation type="unfinished">曲の編集</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation type="unfinished">開いた時の状態</translation>
    </message>
</context>
<context>
    <name>velmora::VelocityLane</name>
    <message>
        <source>Velocities</source>
        <translation type="unfinished">ベロシティ</translation>
    </message>
    <message>
        <source>Drag over the bars to change velocities. With Shift, they follow a straight line. If notes are selected, only they change.</source>
        <translation type="unfinished">バーの上をドラッグしてベロシティを変えます。Shift を押すと直線になります。音符が選択されていれば、それだけが変わります。</translation>
    </message>
</context>
<context>
    <name>velmora::VoiceRow</name>
    <message>
        <source>Record and draw on this voice; double-click to select its notes</source>
        <translation type="unfinished">この声部に録音・記入します。ダブルクリックで音符を選択します</translation>
    </message>
    <message>
        <source>M</source>
        <comment>mute</comment>
        <translation type="unfinished">M</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished">ミュート</translation>
    </message>
    <message>
        <source>S</source>
        <comment>solo</comment>
        <translation type="unfinished">S</translation>
    </message>
    <message>
        <source>Solo: only such voices sound</source>
        <translation type="unfinished">ソロ：ソロの声部だけが鳴ります</translation>
    </message>
    <message>
        <source>L</source>
        <comment>lock</comment>
        <translation type="unfinished">L</translation>
    </message>
    <message>
        <source>Lock: protect its notes from edits</source>
        <translation type="unfinished">ロック：音符を編集から保護します</translation>
    </message>
    <message>
        <source>Drum kit %1</source>
        <translation type="unfinished">ドラムキット %1</translation>
    </message>
    <message>
        <source>Program %1 of bank %2</source>
        <translation type="unfinished">バンク %2 のプログラム %1</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation type="unfinished">声部 %1</translation>
    </message>
    <message>
        <source>Record and draw on %1</source>
        <translation type="unfinished">%1 に録音・記入</translation>
    </message>
    <message>
        <source>Name of voice %1</source>
        <translation type="unfinished">声部 %1 の名前</translation>
    </message>
    <message>
        <source>Program of %1</source>
        <translation type="unfinished">%1 のプログラム</translation>
    </message>
    <message>
        <source>Volume of %1</source>
        <translation type="unfinished">%1 の音量</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation type="unfinished">%1 をミュート</translation>
    </message>
    <message>
        <source>Solo %1</source>
        <translation type="unfinished">%1 をソロ</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation type="unfinished">%1 をロック</translation>
    </message>
    <message>
        <source>What the voice plays</source>
        <translation type="unfinished">声部の音色</translation>
    </message>
    <message>
        <source>This instrument plays every voice alike</source>
        <translation type="unfinished">この楽器はすべての声部を同じ音色で鳴らします</translation>
    </message>
    <message>
        <source>How loud the voice is, from 0 to 127</source>
        <translation type="unfinished">声部の音量（0～127）</translation>
    </message>
    <message>
        <source>Like the instrument</source>
        <translation type="unfinished">楽器と同じ</translation>
    </message>
    <message>
        <source>Select &amp;Notes</source>
        <translation type="unfinished">音符を選択(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation type="unfinished">ミュート(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Solo</source>
        <translation type="unfinished">ソロ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Lock</source>
        <translation type="unfinished">ロック(&amp;L)</translation>
    </message>
</context>
<context>
    <name>velmora::VoicesPanel</name>
    <message>
        <source>Otherwise the instrument plays every voice alike</source>
        <translation type="unfinished">オフのときは、すべての声部が同じ音色で鳴ります</translation>
    </message>
    <message>
        <source>Rename Voice</source>
        <translation type="unfinished">声部の名前を変更</translation>
    </message>
    <message>
        <source>Change Program of Voice</source>
        <translation type="unfinished">声部のプログラムを変更</translation>
    </message>
    <message>
        <source>Change Volume of Voice</source>
        <translation type="unfinished">声部の音量を変更</translation>
    </message>
    <message>
        <source>Every voice has its own sound</source>
        <translation type="unfinished">声部ごとに別の音色</translation>
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
        <translation type="unfinished">開いている曲</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished">鍵盤</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished">楽器</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished">調律</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished">編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Piece</source>
        <translation type="unfinished">曲(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished">表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished">ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Silence Everything</source>
        <translation type="unfinished">すべて消音</translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished">コンソール</translation>
    </message>
    <message>
        <source>C&amp;onsole</source>
        <translation type="unfinished">コンソール(&amp;O)</translation>
    </message>
    <message>
        <source>Tuning Studio</source>
        <translation type="unfinished">調律スタジオ</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation type="unfinished">練習</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">発音数</translation>
    </message>
</context>
<context>
    <name>velmora::messages</name>
    <message>
        <source>MIDI Player</source>
        <translation type="unfinished">MIDI プレーヤー</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation type="unfinished">サンプル %1</translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished">出力</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation type="unfinished">サンプルレート</translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished">ピリオド</translation>
    </message>
    <message>
        <source>From MIDI to sound</source>
        <translation type="unfinished">MIDI から音まで</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished">発音数</translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished">負荷</translation>
    </message>
    <message>
        <source>Lost periods</source>
        <translation type="unfinished">失われたピリオド</translation>
    </message>
    <message>
        <source>Instruments in memory</source>
        <translation type="unfinished">メモリ内の楽器</translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished">なし</translation>
    </message>
    <message>
        <source>%1 frames, %2 ms</source>
        <translation type="unfinished">%1 フレーム、%2 ms</translation>
    </message>
    <message>
        <source>%1 ms (input %2 ms, period and limiter %3 ms, sound server %4 ms)</source>
        <translation type="unfinished">%1 ms (入力 %2 ms、ピリオドとリミッター %3 ms、サウンドサーバー %4 ms)</translation>
    </message>
    <message>
        <source>%1, released keys are shortened</source>
        <translation type="unfinished">%1、離した鍵盤の音を短縮中</translation>
    </message>
    <message>
        <source>%1 % of the period, at worst %2 %</source>
        <translation type="unfinished">ピリオドの %1 %、最大 %2 %</translation>
    </message>
    <message>
        <source>%1, the last at %2</source>
        <translation type="unfinished">%1、最後は %2</translation>
    </message>
    <message>
        <source>%1 messages a second</source>
        <translation type="unfinished">毎秒 %1 メッセージ</translation>
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
        <translation type="unfinished">%1 バイト</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation type="unfinished">音なし</translation>
    </message>
    <message>
        <source>The sound card</source>
        <translation type="unfinished">サウンドカード</translation>
    </message>
    <message>
        <source>The output &quot;%1&quot;</source>
        <translation type="unfinished">出力「%1」</translation>
    </message>
    <message>
        <source>No sound output was found; looking for one.</source>
        <translation type="unfinished">音声出力が見つかりません。探しています。</translation>
    </message>
    <message>
        <source>%1 has gone; waiting for it.</source>
        <translation type="unfinished">%1 がなくなりました。戻るのを待っています。</translation>
    </message>
    <message>
        <source>%1 is missing; waiting for it.</source>
        <translation type="unfinished">%1 がありません。待っています。</translation>
    </message>
    <message>
        <source>%1 has gone; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 がなくなりました。戻るまで %2 で鳴らします。</translation>
    </message>
    <message>
        <source>%1 is missing; playing through %2 until it is back.</source>
        <translation type="unfinished">%1 がありません。戻るまで %2 で鳴らします。</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished">読み込めません</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation type="unfinished">読み込めません (%1)</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished">空です</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation type="unfinished">大きすぎます</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a file</source>
        <translation type="unfinished">ファイルではなくパイプかデバイスです</translation>
    </message>
    <message>
        <source>needs %1 more of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">メモリがさらに %1 必要ですが、空きは %2 だけです。ほかの楽器を解放するか、ほかのプログラムを閉じてください</translation>
    </message>
    <message>
        <source>is damaged or cut short</source>
        <translation type="unfinished">壊れているか途中で切れています</translation>
    </message>
    <message>
        <source>is cut short</source>
        <translation type="unfinished">途中で切れています</translation>
    </message>
    <message>
        <source>is damaged and its presets cannot be played; opening it as stops may work</source>
        <translation type="unfinished">壊れていてプリセットを演奏できません。ストップとして開けば動くかもしれません</translation>
    </message>
    <message>
        <source>has no presets</source>
        <translation type="unfinished">プリセットがありません</translation>
    </message>
    <message>
        <source>the file does not contain its data</source>
        <translation type="unfinished">ファイルにデータがありません</translation>
    </message>
    <message>
        <source>the file has too many chunks</source>
        <translation type="unfinished">ファイルのチャンクが多すぎます</translation>
    </message>
    <message>
        <source>lists are nested too deeply</source>
        <translation type="unfinished">リストの入れ子が深すぎます</translation>
    </message>
    <message>
        <source>is not a RIFF file</source>
        <translation type="unfinished">RIFF ファイルではありません</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation type="unfinished">「%1」がありません</translation>
    </message>
    <message>
        <source>this is not a tuning file</source>
        <translation type="unfinished">調律ファイルではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation type="unfinished">「%1」は数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation type="unfinished">「%1」は有限の数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a playable pitch</source>
        <translation type="unfinished">「%1」は演奏できる音高ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a zero denominator</source>
        <translation type="unfinished">「%1」の分母が 0 です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the number of notes; only scales of 12 notes are supported</source>
        <translation type="unfinished">「%1」は音の数です。12 音の音階だけに対応しています</translation>
    </message>
    <message>
        <source>this is not a Standard MIDI File: &quot;MThd&quot; is missing</source>
        <translation type="unfinished">標準 MIDI ファイルではありません: 「MThd」がありません</translation>
    </message>
    <message>
        <source>the header is too short</source>
        <translation type="unfinished">ヘッダーが短すぎます</translation>
    </message>
    <message>
        <source>the header announces no tracks</source>
        <translation type="unfinished">ヘッダーにトラックがありません</translation>
    </message>
    <message>
        <source>an event exceeds the end of its track</source>
        <translation type="unfinished">イベントがトラックの終わりを越えています</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 tracks</source>
        <translation type="unfinished">ファイルが %2 トラック中 %1 トラックで終わっています</translation>
    </message>
    <message>
        <source>a chunk of %1 bytes is truncated: the file has only %2 more</source>
        <translation type="unfinished">%1 バイトのチャンクが切れています: 残りは %2 だけです</translation>
    </message>
    <message>
        <source>this is not a session of Velmora</source>
        <translation type="unfinished">Velmora のセッションではありません</translation>
    </message>
    <message>
        <source>a later version of Velmora has written this session</source>
        <translation type="unfinished">このセッションは新しい版の Velmora で書かれています</translation>
    </message>
    <message>
        <source>is too large for the free memory; unload other instruments, then open it again</source>
        <translation type="unfinished">空きメモリに入りません。ほかの楽器を解放してから開き直してください</translation>
    </message>
    <message>
        <source>has no instruments</source>
        <translation type="unfinished">楽器がありません</translation>
    </message>
    <message>
        <source>has no samples</source>
        <translation type="unfinished">サンプルがありません</translation>
    </message>
    <message>
        <source>is not a sound file in a supported format</source>
        <translation type="unfinished">対応する形式の音声ファイルではありません</translation>
    </message>
    <message>
        <source>is a damaged WavPack file (%1)</source>
        <translation type="unfinished">壊れた WavPack ファイルです (%1)</translation>
    </message>
    <message>
        <source>lies outside the folder of the instrument</source>
        <translation type="unfinished">楽器のフォルダーの外にあります</translation>
    </message>
    <message>
        <source>names a file outside the folder of the organ: &quot;%1&quot;</source>
        <translation type="unfinished">オルガンのフォルダー外のファイルを指しています: 「%1」</translation>
    </message>
    <message>
        <source>names a file outside the folder of its package: &quot;%1&quot;</source>
        <translation type="unfinished">パッケージのフォルダー外のファイルを指しています: 「%1」</translation>
    </message>
    <message>
        <source>is longer than a sound may be: it has more than 2 GB of samples</source>
        <translation type="unfinished">音が長すぎます: サンプルが 2 GB を超えています</translation>
    </message>
    <message>
        <source>is damaged: its samples would take %1, but the file holds only %2</source>
        <translation type="unfinished">壊れています: サンプルは %1 になるはずですが、ファイルには %2 しかありません</translation>
    </message>
    <message>
        <source>is a SoundFont %1 bank with compressed samples; convert it to SoundFont 2</source>
        <translation type="unfinished">圧縮サンプルの SoundFont %1 バンクです。SoundFont 2 に変換してください</translation>
    </message>
    <message>
        <source>cannot be loaded: its samples are encrypted and need a licence; open an organ without encryption</source>
        <translation type="unfinished">読み込めません: サンプルが暗号化されていてライセンスが必要です。暗号化されていないオルガンを開いてください</translation>
    </message>
    <message>
        <source>cannot be played: no pipe has a sample file</source>
        <translation type="unfinished">演奏できません: サンプルファイルを持つパイプがありません</translation>
    </message>
    <message>
        <source>cannot be played: none of the %1 sample files can be decoded, for example %2</source>
        <translation type="unfinished">演奏できません: %1 個のサンプルファイルをどれもデコードできません。例: %2</translation>
    </message>
    <message>
        <source>is not an organ definition: its root element is not &quot;Hauptwerk&quot;</source>
        <translation type="unfinished">オルガンの定義ではありません: ルート要素が「Hauptwerk」ではありません</translation>
    </message>
    <message>
        <source>is written in UTF-16; save it as UTF-8 in a text editor</source>
        <translation type="unfinished">UTF-16 で書かれています。テキストエディターで UTF-8 として保存してください</translation>
    </message>
    <message>
        <source>cannot be played: it has no stop with pipes</source>
        <translation type="unfinished">演奏できません: パイプを持つストップがありません</translation>
    </message>
    <message>
        <source>holds no organ definition (a file with the extension .organ)</source>
        <translation type="unfinished">オルガンの定義 (.organ ファイル) が入っていません</translation>
    </message>
    <message>
        <source>this package is not in the folder of the organ</source>
        <translation type="unfinished">このパッケージはオルガンのフォルダーにありません</translation>
    </message>
    <message>
        <source>is not a zip archive, or is damaged</source>
        <translation type="unfinished">zip アーカイブではないか、壊れています</translation>
    </message>
    <message>
        <source>is a damaged archive</source>
        <translation type="unfinished">壊れたアーカイブです</translation>
    </message>
    <message>
        <source>is encrypted; only archives without a password can be opened</source>
        <translation type="unfinished">暗号化されています。パスワードのないアーカイブだけを開けます</translation>
    </message>
    <message>
        <source>holds a file whose name leads out of the archive: &quot;%1&quot;</source>
        <translation type="unfinished">アーカイブの外を指す名前のファイルがあります: 「%1」</translation>
    </message>
    <message>
        <source>is not in the archive</source>
        <translation type="unfinished">アーカイブにありません</translation>
    </message>
    <message>
        <source>is damaged in the archive</source>
        <translation type="unfinished">アーカイブの中で壊れています</translation>
    </message>
    <message>
        <source>is larger than the archive says</source>
        <translation type="unfinished">アーカイブの記載より大きいです</translation>
    </message>
    <message>
        <source>is cut short in the archive</source>
        <translation type="unfinished">アーカイブの中で途中で切れています</translation>
    </message>
    <message>
        <source>an attack has no sample file</source>
        <translation type="unfinished">アタックにサンプルファイルがありません</translation>
    </message>
    <message>
        <source>a release has no sample file</source>
        <translation type="unfinished">リリースにサンプルファイルがありません</translation>
    </message>
    <message>
        <source>recordings with the tremulant are not played</source>
        <translation type="unfinished">トレミュラント付きの録音は演奏されません</translation>
    </message>
    <message>
        <source>recordings for quick repetitions are not played</source>
        <translation type="unfinished">速い連打用の録音は演奏されません</translation>
    </message>
    <message>
        <source>borrowed from pipes that are borrowed from each other</source>
        <translation type="unfinished">互いに借り合っているパイプから借りています</translation>
    </message>
    <message>
        <source>does not say from which manual, stop and pipe it is borrowed</source>
        <translation type="unfinished">どの手鍵盤、ストップ、パイプから借りるのか書かれていません</translation>
    </message>
    <message>
        <source>borrowed from stop %1 of manual %2, which does not exist</source>
        <translation type="unfinished">存在しない手鍵盤 %2 のストップ %1 から借りています</translation>
    </message>
    <message>
        <source>borrowed from a pipe that does not sound</source>
        <translation type="unfinished">鳴らないパイプから借りています</translation>
    </message>
    <message>
        <source>is outside the MIDI keys 0 to 127</source>
        <translation type="unfinished">MIDI の鍵 0～127 の外です</translation>
    </message>
    <message>
        <source>its stop %1 does not exist</source>
        <translation type="unfinished">ストップ %1 がありません</translation>
    </message>
    <message>
        <source>its rank %1 does not exist</source>
        <translation type="unfinished">ランク %1 がありません</translation>
    </message>
    <message>
        <source>belongs to no manual</source>
        <translation type="unfinished">どの手鍵盤にも属していません</translation>
    </message>
    <message>
        <source>has no pipe that sounds</source>
        <translation type="unfinished">鳴るパイプがありません</translation>
    </message>
    <message>
        <source>is a noise or an effect that sounds when its knob is drawn, not when keys are pressed</source>
        <translation type="unfinished">鍵盤ではなくノブを引いたときに鳴る雑音または効果です</translation>
    </message>
    <message>
        <source>silences its own keys (&quot;unison off&quot;), which is not supported</source>
        <translation type="unfinished">自分の鍵盤を消音します (「unison off」)。これには対応していません</translation>
    </message>
    <message>
        <source>couples only the lowest or the highest key, which is not supported</source>
        <translation type="unfinished">最低または最高の鍵だけをカップリングします。これには対応していません</translation>
    </message>
    <message>
        <source>couples to a manual that does not exist</source>
        <translation type="unfinished">存在しない手鍵盤にカップリングします</translation>
    </message>
    <message>
        <source>tremulants are not supported</source>
        <translation type="unfinished">トレミュラントには対応していません</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation type="unfinished">%1、%2 行目: %3</translation>
    </message>
    <message>
        <source>%1, byte %2: %3</source>
        <translation type="unfinished">%1、%2 バイト目: %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits, which takes %3</source>
        <translation type="unfinished">メモリが約 %1 必要ですが、空きは %2 だけです。16 ビットで読み込めば %3 で済みます</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it in mono, which takes %3</source>
        <translation type="unfinished">メモリが約 %1 必要ですが、空きは %2 だけです。モノラルで読み込めば %3 で済みます</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load it with 16 bits and in mono, which takes %3</source>
        <translation type="unfinished">メモリが約 %1 必要ですが、空きは %2 だけです。16 ビットとモノラルで読み込めば %3 で済みます</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; unload other instruments or close other programs</source>
        <translation type="unfinished">メモリが約 %1 必要ですが、空きは %2 だけです。ほかの楽器を解放するか、ほかのプログラムを閉じてください</translation>
    </message>
    <message>
        <source>these are not the registrations of an organ</source>
        <translation type="unfinished">オルガンのレジストレーションではありません</translation>
    </message>
    <message>
        <source>needs about %1 of memory, but only %2 are free; load fewer of its stops</source>
        <translation type="unfinished">メモリが約 %1 必要ですが、空きは %2 だけです。ストップを減らして読み込んでください</translation>
    </message>
    <message>
        <source>the MIDI output %1 cannot be connected</source>
        <translation type="unfinished">MIDI出力%1に接続できません</translation>
    </message>
    <message>
        <source>the MIDI output %1 takes no message</source>
        <translation type="unfinished">MIDI出力%1がメッセージを受け付けません</translation>
    </message>
    <message>
        <source>the scale has no description and no number of notes</source>
        <translation type="unfinished">音階に説明も音の数もありません</translation>
    </message>
    <message>
        <source>the scale has no number of notes</source>
        <translation type="unfinished">音階の音の数がありません</translation>
    </message>
    <message>
        <source>the scale ends after %1 of %2 pitches</source>
        <translation type="unfinished">音階は %2 個中 %1 個の音高で終わっています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of notes from 0 to 128</source>
        <translation type="unfinished">「%1」は 0 から 128 までの音の数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch: write cents with a point, as in 701.955, or a ratio, as in 3/2</source>
        <translation type="unfinished">「%1」は音高ではありません。701.955 のように小数点付きのセントか、3/2 のような比で書いてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a pitch above 0</source>
        <translation type="unfinished">「%1」は 0 より大きい音高ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a number that is too large</source>
        <translation type="unfinished">「%1」の数が大きすぎます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs an octave, the index of a note and its frequency in hertz, which sounds on a key from 0 to 127</source>
        <translation type="unfinished">「%1」にはオクターブ、音の番号、0 から 127 の鍵で鳴るその周波数 (Hz) が必要です</translation>
    </message>
    <message>
        <source>the mapping ends before the size of the mapping</source>
        <translation type="unfinished">鍵盤割り当てが大きさの前で終わっています</translation>
    </message>
    <message>
        <source>the mapping ends before the first key</source>
        <translation type="unfinished">鍵盤割り当てが最初の鍵の前で終わっています</translation>
    </message>
    <message>
        <source>the mapping ends before the last key</source>
        <translation type="unfinished">鍵盤割り当てが最後の鍵の前で終わっています</translation>
    </message>
    <message>
        <source>the mapping ends before the middle key</source>
        <translation type="unfinished">鍵盤割り当てが中央の鍵の前で終わっています</translation>
    </message>
    <message>
        <source>the mapping ends before the reference key</source>
        <translation type="unfinished">鍵盤割り当てが基準の鍵の前で終わっています</translation>
    </message>
    <message>
        <source>the mapping ends before the frequency</source>
        <translation type="unfinished">鍵盤割り当てが周波数の前で終わっています</translation>
    </message>
    <message>
        <source>the mapping ends before the formal octave</source>
        <translation type="unfinished">鍵盤割り当てが形式上のオクターブの前で終わっています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the size of the mapping, a number from 0 to %2</source>
        <translation type="unfinished">「%1」は鍵盤割り当ての大きさ (0 から %2 の数) ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first key, a number from 0 to %2</source>
        <translation type="unfinished">「%1」は最初の鍵 (0 から %2 の数) ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the last key, a number from 0 to %2</source>
        <translation type="unfinished">「%1」は最後の鍵 (0 から %2 の数) ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the middle key, a number from 0 to %2</source>
        <translation type="unfinished">「%1」は中央の鍵 (0 から %2 の数) ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the reference key, a number from 0 to %2</source>
        <translation type="unfinished">「%1」は基準の鍵 (0 から %2 の数) ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the formal octave, a number from 0 to %2</source>
        <translation type="unfinished">「%1」は形式上のオクターブ (0 から %2 の数) ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a degree of the scale or an x, a number from 0 to %2</source>
        <translation type="unfinished">「%1」は音階の度数 (0 から %2 の数) でも x でもありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a frequency in hertz above 0</source>
        <translation type="unfinished">「%1」は 0 より大きい周波数 (Hz) ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no =</source>
        <translation type="unfinished">「%1」に = がありません</translation>
    </message>
    <message>
        <source>the reference key %1 plays no note</source>
        <translation type="unfinished">基準の鍵 %1 に音がありません</translation>
    </message>
    <message>
        <source>the pitch of key %1 is beyond all bounds</source>
        <translation type="unfinished">鍵 %1 の音高が範囲をはるかに超えています</translation>
    </message>
    <message>
        <source>the pitches are only given by formulas, in the section [Functional Tuning]</source>
        <translation type="unfinished">音高が [Functional Tuning] の式でしか与えられていません</translation>
    </message>
    <message>
        <source>there is no section [Exact Tuning] or [Tuning]</source>
        <translation type="unfinished">[Exact Tuning] も [Tuning] もありません</translation>
    </message>
    <message>
        <source>a keyboard mapping needs a scale, and this tuning has none</source>
        <translation type="unfinished">鍵盤割り当てには音階が必要ですが、この調律にはありません</translation>
    </message>
    <message>
        <source>the scale repeats after %1 cents, but the plain reading repeats it after an octave</source>
        <translation type="unfinished">音階は %1 セントごとに繰り返しますが、単純な読み方ではオクターブごとに繰り返します</translation>
    </message>
    <message>
        <source>in the plain reading, General MIDI plays some keys of &quot;%1&quot; %2 cents out of tune</source>
        <translation type="unfinished">単純な読み方では、General MIDI は「%1」の一部の鍵を %2 セントずれて鳴らします</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation type="unfinished">%1、%2 行 %3 桁: %4</translation>
    </message>
    <message>
        <source>the XML is damaged: %1</source>
        <translation type="unfinished">XML が壊れています: %1</translation>
    </message>
    <message>
        <source>The file is damaged, and only a part of it could be read. To keep what may still be in it, save the piece under another name.</source>
        <translation type="unfinished">ファイルが壊れており、一部しか読み込めませんでした。残りの内容を失わないように、曲を別の名前で保存してください。</translation>
    </message>
    <message>
        <source>is not a MusicXML score</source>
        <translation type="unfinished">MusicXML の楽譜ではありません</translation>
    </message>
    <message>
        <source>is an archive, but not of a score</source>
        <translation type="unfinished">楽譜のアーカイブではありません</translation>
    </message>
    <message>
        <source>the score &quot;%1&quot; is missing from the archive</source>
        <translation type="unfinished">楽譜「%1」がアーカイブにありません</translation>
    </message>
    <message>
        <source>the score has no parts</source>
        <translation type="unfinished">楽譜にパートがありません</translation>
    </message>
    <message>
        <source>the score has too many parts</source>
        <translation type="unfinished">楽譜のパートが多すぎます</translation>
    </message>
    <message>
        <source>measure %1 is too long</source>
        <translation type="unfinished">小節 %1 が長すぎます</translation>
    </message>
    <message>
        <source>the music is too long</source>
        <translation type="unfinished">曲が長すぎます</translation>
    </message>
    <message>
        <source>the MIDI output %1 is gone</source>
        <translation type="unfinished">MIDI出力%1がなくなりました</translation>
    </message>
</context>
<context>
    <name>velmora::nameParts</name>
    <message>
        <source>More</source>
        <translation type="unfinished">その他</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished">クリア</translation>
    </message>
</context>
<context>
    <name>velmora::noteNames</name>
    <message>
        <source>La</source>
        <translation type="unfinished">ラ</translation>
    </message>
    <message>
        <source>Si</source>
        <translation type="unfinished">シ</translation>
    </message>
    <message>
        <source>Do</source>
        <translation type="unfinished">ド</translation>
    </message>
    <message>
        <source>Re</source>
        <translation type="unfinished">レ</translation>
    </message>
    <message>
        <source>Mi</source>
        <translation type="unfinished">ミ</translation>
    </message>
    <message>
        <source>Fa</source>
        <translation type="unfinished">ファ</translation>
    </message>
    <message>
        <source>Sol</source>
        <translation type="unfinished">ソ</translation>
    </message>
</context>
<context>
    <name>velmora::programNames</name>
    <message>
        <source>1 Acoustic Grand Piano</source>
        <translation type="unfinished">1 アコースティックグランドピアノ</translation>
    </message>
    <message>
        <source>2 Bright Acoustic Piano</source>
        <translation type="unfinished">2 ブライトピアノ</translation>
    </message>
    <message>
        <source>3 Electric Grand Piano</source>
        <translation type="unfinished">3 エレクトリックグランドピアノ</translation>
    </message>
    <message>
        <source>4 Honky-Tonk Piano</source>
        <translation type="unfinished">4 ホンキートンクピアノ</translation>
    </message>
    <message>
        <source>5 Rhodes Piano</source>
        <translation type="unfinished">5 ローズピアノ</translation>
    </message>
    <message>
        <source>6 Chorus Piano</source>
        <translation type="unfinished">6 コーラスピアノ</translation>
    </message>
    <message>
        <source>7 Harpsichord</source>
        <translation type="unfinished">7 ハープシコード</translation>
    </message>
    <message>
        <source>8 Clavinet</source>
        <translation type="unfinished">8 クラビネット</translation>
    </message>
    <message>
        <source>9 Celesta</source>
        <translation type="unfinished">9 チェレスタ</translation>
    </message>
    <message>
        <source>10 Glockenspiel</source>
        <translation type="unfinished">10 グロッケンシュピール</translation>
    </message>
    <message>
        <source>11 Music Box</source>
        <translation type="unfinished">11 オルゴール</translation>
    </message>
    <message>
        <source>12 Vibraphone</source>
        <translation type="unfinished">12 ビブラフォン</translation>
    </message>
    <message>
        <source>13 Marimba</source>
        <translation type="unfinished">13 マリンバ</translation>
    </message>
    <message>
        <source>14 Xylophone</source>
        <translation type="unfinished">14 シロフォン</translation>
    </message>
    <message>
        <source>15 Tubular Bells</source>
        <translation type="unfinished">15 チューブラーベル</translation>
    </message>
    <message>
        <source>16 Dulcimer</source>
        <translation type="unfinished">16 ダルシマー</translation>
    </message>
    <message>
        <source>17 Hammond Organ</source>
        <translation type="unfinished">17 ハモンドオルガン</translation>
    </message>
    <message>
        <source>18 Percusive Organ</source>
        <translation type="unfinished">18 パーカッシブオルガン</translation>
    </message>
    <message>
        <source>19 Rock Organ</source>
        <translation type="unfinished">19 ロックオルガン</translation>
    </message>
    <message>
        <source>20 Church Organ</source>
        <translation type="unfinished">20 チャーチオルガン</translation>
    </message>
    <message>
        <source>21 Reed Organ</source>
        <translation type="unfinished">21 リードオルガン</translation>
    </message>
    <message>
        <source>22 Accordion</source>
        <translation type="unfinished">22 アコーディオン</translation>
    </message>
    <message>
        <source>23 Harmonica</source>
        <translation type="unfinished">23 ハーモニカ</translation>
    </message>
    <message>
        <source>24 Tango Accordion</source>
        <translation type="unfinished">24 タンゴアコーディオン</translation>
    </message>
    <message>
        <source>25 Nylon Guitar</source>
        <translation type="unfinished">25 ナイロン弦ギター</translation>
    </message>
    <message>
        <source>26 Steel String Guitar</source>
        <translation type="unfinished">26 スチール弦ギター</translation>
    </message>
    <message>
        <source>27 Jazz Guitar</source>
        <translation type="unfinished">27 ジャズギター</translation>
    </message>
    <message>
        <source>28 Clean E. Guitar</source>
        <translation type="unfinished">28 クリーンエレキギター</translation>
    </message>
    <message>
        <source>29 Mute E. Guitar</source>
        <translation type="unfinished">29 ミュートエレキギター</translation>
    </message>
    <message>
        <source>30 Overdrive Guitar</source>
        <translation type="unfinished">30 オーバードライブギター</translation>
    </message>
    <message>
        <source>31 Distort Guitar</source>
        <translation type="unfinished">31 ディストーションギター</translation>
    </message>
    <message>
        <source>32 Harmonics</source>
        <translation type="unfinished">32 ギターハーモニクス</translation>
    </message>
    <message>
        <source>33 Acoustic Bass</source>
        <translation type="unfinished">33 アコースティックベース</translation>
    </message>
    <message>
        <source>34 Finger E. Bass</source>
        <translation type="unfinished">34 エレキベース (指弾き)</translation>
    </message>
    <message>
        <source>35 Picked E. Bass</source>
        <translation type="unfinished">35 エレキベース (ピック弾き)</translation>
    </message>
    <message>
        <source>36 Fretless Bass</source>
        <translation type="unfinished">36 フレットレスベース</translation>
    </message>
    <message>
        <source>37 Slap Bass 1</source>
        <translation type="unfinished">37 スラップベース 1</translation>
    </message>
    <message>
        <source>38 Slap Bass 2</source>
        <translation type="unfinished">38 スラップベース 2</translation>
    </message>
    <message>
        <source>39 Synth Bass1</source>
        <translation type="unfinished">39 シンセベース 1</translation>
    </message>
    <message>
        <source>40 Synth Bass2</source>
        <translation type="unfinished">40 シンセベース 2</translation>
    </message>
    <message>
        <source>41 Violin</source>
        <translation type="unfinished">41 バイオリン</translation>
    </message>
    <message>
        <source>42 Viola</source>
        <translation type="unfinished">42 ビオラ</translation>
    </message>
    <message>
        <source>43 Cello</source>
        <translation type="unfinished">43 チェロ</translation>
    </message>
    <message>
        <source>44 Contrabass</source>
        <translation type="unfinished">44 コントラバス</translation>
    </message>
    <message>
        <source>45 Tremolo Strings</source>
        <translation type="unfinished">45 トレモロストリングス</translation>
    </message>
    <message>
        <source>46 Pizzicato Strings</source>
        <translation type="unfinished">46 ピチカートストリングス</translation>
    </message>
    <message>
        <source>47 Orchestral Harp</source>
        <translation type="unfinished">47 オーケストラハープ</translation>
    </message>
    <message>
        <source>48 Timpani</source>
        <translation type="unfinished">48 ティンパニ</translation>
    </message>
    <message>
        <source>49 String Ensemble 1</source>
        <translation type="unfinished">49 ストリングアンサンブル 1</translation>
    </message>
    <message>
        <source>50 String Ensemble 2</source>
        <translation type="unfinished">50 ストリングアンサンブル 2</translation>
    </message>
    <message>
        <source>51 Synth Strings 1</source>
        <translation type="unfinished">51 シンセストリングス 1</translation>
    </message>
    <message>
        <source>52 Synth Strings 2</source>
        <translation type="unfinished">52 シンセストリングス 2</translation>
    </message>
    <message>
        <source>53 Choir Aahs</source>
        <translation type="unfinished">53 合唱「アー」</translation>
    </message>
    <message>
        <source>54 Voice Oohs</source>
        <translation type="unfinished">54 声「ウー」</translation>
    </message>
    <message>
        <source>55 Synth Voice</source>
        <translation type="unfinished">55 シンセボイス</translation>
    </message>
    <message>
        <source>56 Orchestra Hit</source>
        <translation type="unfinished">56 オーケストラヒット</translation>
    </message>
    <message>
        <source>57 Trumpet</source>
        <translation type="unfinished">57 トランペット</translation>
    </message>
    <message>
        <source>58 Trombone</source>
        <translation type="unfinished">58 トロンボーン</translation>
    </message>
    <message>
        <source>59 Tuba</source>
        <translation type="unfinished">59 チューバ</translation>
    </message>
    <message>
        <source>60 Mute Trumpet</source>
        <translation type="unfinished">60 ミュートトランペット</translation>
    </message>
    <message>
        <source>61 French Horn</source>
        <translation type="unfinished">61 フレンチホルン</translation>
    </message>
    <message>
        <source>62 Brass Section</source>
        <translation type="unfinished">62 ブラスセクション</translation>
    </message>
    <message>
        <source>63 Synth Brass 1</source>
        <translation type="unfinished">63 シンセブラス 1</translation>
    </message>
    <message>
        <source>64 Synth Brass 2</source>
        <translation type="unfinished">64 シンセブラス 2</translation>
    </message>
    <message>
        <source>65 Soprano Sax</source>
        <translation type="unfinished">65 ソプラノサックス</translation>
    </message>
    <message>
        <source>66 Alto Sax</source>
        <translation type="unfinished">66 アルトサックス</translation>
    </message>
    <message>
        <source>67 Tenor Sax</source>
        <translation type="unfinished">67 テナーサックス</translation>
    </message>
    <message>
        <source>68 Baritone Sax</source>
        <translation type="unfinished">68 バリトンサックス</translation>
    </message>
    <message>
        <source>69 Oboe</source>
        <translation type="unfinished">69 オーボエ</translation>
    </message>
    <message>
        <source>70 English Horn</source>
        <translation type="unfinished">70 イングリッシュホルン</translation>
    </message>
    <message>
        <source>71 Bassoon</source>
        <translation type="unfinished">71 ファゴット</translation>
    </message>
    <message>
        <source>72 Clarinet</source>
        <translation type="unfinished">72 クラリネット</translation>
    </message>
    <message>
        <source>73 Piccolo</source>
        <translation type="unfinished">73 ピッコロ</translation>
    </message>
    <message>
        <source>74 Flute</source>
        <translation type="unfinished">74 フルート</translation>
    </message>
    <message>
        <source>75 Recorder</source>
        <translation type="unfinished">75 リコーダー</translation>
    </message>
    <message>
        <source>76 Pan Flute</source>
        <translation type="unfinished">76 パンフルート</translation>
    </message>
    <message>
        <source>77 Bottle Blow</source>
        <translation type="unfinished">77 ボトルブロー</translation>
    </message>
    <message>
        <source>78 Shakuhachi</source>
        <translation type="unfinished">78 尺八</translation>
    </message>
    <message>
        <source>79 Whistle</source>
        <translation type="unfinished">79 口笛</translation>
    </message>
    <message>
        <source>80 Ocarina</source>
        <translation type="unfinished">80 オカリナ</translation>
    </message>
    <message>
        <source>81 Square Wave</source>
        <translation type="unfinished">81 矩形波</translation>
    </message>
    <message>
        <source>82 Saw Tooth</source>
        <translation type="unfinished">82 のこぎり波</translation>
    </message>
    <message>
        <source>83 Syn Calliope</source>
        <translation type="unfinished">83 シンセカリオペ</translation>
    </message>
    <message>
        <source>84 Chiffer Lead</source>
        <translation type="unfinished">84 チファーリード</translation>
    </message>
    <message>
        <source>85 Charang</source>
        <translation type="unfinished">85 チャラング</translation>
    </message>
    <message>
        <source>86 Solo Vox</source>
        <translation type="unfinished">86 ソロボイス</translation>
    </message>
    <message>
        <source>87 5th Saw Wave</source>
        <translation type="unfinished">87 5 度のこぎり波</translation>
    </message>
    <message>
        <source>88 Brass &amp; Lead</source>
        <translation type="unfinished">88 ブラスとリード</translation>
    </message>
    <message>
        <source>89 Fantasia</source>
        <translation type="unfinished">89 ファンタジア</translation>
    </message>
    <message>
        <source>90 Warm Pad</source>
        <translation type="unfinished">90 ウォームパッド</translation>
    </message>
    <message>
        <source>91 Polysynth</source>
        <translation type="unfinished">91 ポリシンセ</translation>
    </message>
    <message>
        <source>92 Space Vox</source>
        <translation type="unfinished">92 スペースボイス</translation>
    </message>
    <message>
        <source>93 Bowed Glass</source>
        <translation type="unfinished">93 ボウグラス</translation>
    </message>
    <message>
        <source>94 Metal Pad</source>
        <translation type="unfinished">94 メタルパッド</translation>
    </message>
    <message>
        <source>95 Halo Pad</source>
        <translation type="unfinished">95 ハローパッド</translation>
    </message>
    <message>
        <source>96 Sweep Pad</source>
        <translation type="unfinished">96 スイープパッド</translation>
    </message>
    <message>
        <source>97 Ice Rain</source>
        <translation type="unfinished">97 アイスレイン</translation>
    </message>
    <message>
        <source>98 Soundtrack</source>
        <translation type="unfinished">98 サウンドトラック</translation>
    </message>
    <message>
        <source>99 Crystal</source>
        <translation type="unfinished">99 クリスタル</translation>
    </message>
    <message>
        <source>100 Atmosphere</source>
        <translation type="unfinished">100 アトモスフィア</translation>
    </message>
    <message>
        <source>101 Brightness</source>
        <translation type="unfinished">101 ブライトネス</translation>
    </message>
    <message>
        <source>102 Goblin</source>
        <translation type="unfinished">102 ゴブリン</translation>
    </message>
    <message>
        <source>103 Echo Drops</source>
        <translation type="unfinished">103 エコードロップ</translation>
    </message>
    <message>
        <source>104 Star Theme</source>
        <translation type="unfinished">104 スターテーマ</translation>
    </message>
    <message>
        <source>105 Sitar</source>
        <translation type="unfinished">105 シタール</translation>
    </message>
    <message>
        <source>106 Banjo</source>
        <translation type="unfinished">106 バンジョー</translation>
    </message>
    <message>
        <source>107 Shamisen</source>
        <translation type="unfinished">107 三味線</translation>
    </message>
    <message>
        <source>108 Koto</source>
        <translation type="unfinished">108 箏</translation>
    </message>
    <message>
        <source>109 Kalimba</source>
        <translation type="unfinished">109 カリンバ</translation>
    </message>
    <message>
        <source>110 Bag Pipe</source>
        <translation type="unfinished">110 バグパイプ</translation>
    </message>
    <message>
        <source>111 Fiddle</source>
        <translation type="unfinished">111 フィドル</translation>
    </message>
    <message>
        <source>112 Shanai</source>
        <translation type="unfinished">112 シャナイ</translation>
    </message>
    <message>
        <source>113 Tinkle Bell</source>
        <translation type="unfinished">113 ティンクルベル</translation>
    </message>
    <message>
        <source>114 Agogo</source>
        <translation type="unfinished">114 アゴゴ</translation>
    </message>
    <message>
        <source>115 Steel Drums</source>
        <translation type="unfinished">115 スチールドラム</translation>
    </message>
    <message>
        <source>116 Woodblock</source>
        <translation type="unfinished">116 ウッドブロック</translation>
    </message>
    <message>
        <source>117 Taiko Drum</source>
        <translation type="unfinished">117 太鼓</translation>
    </message>
    <message>
        <source>118 Melodic Tom</source>
        <translation type="unfinished">118 メロディックタム</translation>
    </message>
    <message>
        <source>119 Synth Drum</source>
        <translation type="unfinished">119 シンセドラム</translation>
    </message>
    <message>
        <source>120 Reverse Cymbal</source>
        <translation type="unfinished">120 リバースシンバル</translation>
    </message>
    <message>
        <source>121 Guitar Fret Noise</source>
        <translation type="unfinished">121 ギターフレットノイズ</translation>
    </message>
    <message>
        <source>122 Breath Noise</source>
        <translation type="unfinished">122 ブレスノイズ</translation>
    </message>
    <message>
        <source>123 Sea Shore</source>
        <translation type="unfinished">123 海岸</translation>
    </message>
    <message>
        <source>124 Bird Tweet</source>
        <translation type="unfinished">124 鳥のさえずり</translation>
    </message>
    <message>
        <source>125 Telephone Ring</source>
        <translation type="unfinished">125 電話のベル</translation>
    </message>
    <message>
        <source>126 Helicopter</source>
        <translation type="unfinished">126 ヘリコプター</translation>
    </message>
    <message>
        <source>127 Applause</source>
        <translation type="unfinished">127 拍手</translation>
    </message>
    <message>
        <source>128 Gun Shot</source>
        <translation type="unfinished">128 銃声</translation>
    </message>
</context>
</TS>
