#pragma once

#include "audio/Glide.h"
#include "import/ImportOptions.h"
#include "midi/PlayingSettings.h"
#include "tuning/AdaptiveSettings.h"

#include <QObject>

namespace velmora {

/// How the MIDI devices are played: the reading, the velocity curve, the transposition and the
/// range of the pitch wheel; and how temperaments follow the music. They are remembered in the
/// preferences. Main thread only, except the settings.
class PlayingOptions : public QObject {
    Q_OBJECT

public:
    /// Reads the preferences.
    PlayingOptions();

    /// The settings, for the MIDI receive threads.
    const PlayingSettings& settings() const { return settings_; }

    /// How instruments are read unless the user asks for another reading.
    Reading reading() const { return settings_.isPlain ? Reading::Plain : Reading::Musical; }

    /// True if SoundFonts that are out of tune are corrected, and recordings of pipes without a
    /// pitch measured. The plain reading leaves them alone.
    bool correctsTuning() const { return correctsTuning_ && !settings_.isPlain; }

    /// How sounding notes take over another pitch. In the plain reading they jump there.
    Glide glide() const { return settings_.isPlain ? Glide{} : glide_; }

    /// How the temperaments that follow the music do so.
    const AdaptiveSettings& adaptive() const { return adaptive_; }

    /// Reads the preferences again.
    void read();

    /// Uses the plain reading until the program ends, whatever the preference says.
    void usePlainReading();

    /// Stores a choice. A transposition is clamped to its range.
    void setVelocityCurve(VelocityCurve curve);
    void setTransposition(int semitones);

signals:
    void changed();

private:
    PlayingSettings settings_;
    bool isAlwaysPlain_ = false;
    bool correctsTuning_ = true;
    Glide glide_;
    AdaptiveSettings adaptive_;
};

} // namespace velmora
