#pragma once

#include "midi/TempoMap.h"
#include "sequencer/SequenceTime.h"

#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

struct FileEvent;
struct MidiFileEvents;
struct MidiFileHeader;

/// The tempo from a step on. A beat of the tempo is a quarter note.
struct Tempo {
    double step;
    std::uint32_t microsecondsPerBeat; ///< Above 0.

    /// Beats a minute.
    double beats() const { return 60e6 / microsecondsPerBeat; }

    /// Returns the tempo with a number of beats a minute, as exactly as a file can hold it.
    static Tempo ofBeats(double step, double beats);

    bool operator==(const Tempo&) const = default;
};

/// The time signature from a step on, such as 6/8.
struct TimeSignature {
    double step;
    int count; ///< How many notes of the unit fill a bar, at least 1.
    int unit;  ///< A power of 2 from 1, a whole note, to 64.

    /// The steps of a bar, and those of a beat. Compound signatures such as 6/8 and 12/16 have
    /// beats of three units.
    double barLength() const { return kStepsPerWhole * static_cast<double>(count) / unit; }
    double beatLength() const;

    bool operator==(const TimeSignature&) const = default;
};

/// The key signature from a step on.
struct KeySignature {
    double step;
    int sharps; ///< -7 to 7; negative for flats.
    bool isMinor;

    bool operator==(const KeySignature&) const = default;
};

/// A named place in a piece.
struct Marker {
    double step;
    std::string text; ///< As it stands in the file, usually UTF-8 or Latin-1.

    bool operator==(const Marker&) const = default;
};

/// Tempos, signatures and markers in any order.
struct TimeLists {
    std::vector<Tempo> tempos;
    std::vector<TimeSignature> timeSignatures;
    std::vector<KeySignature> keySignatures;
    std::vector<Marker> markers;
};

/// A bar of a piece.
struct Bar {
    int number; ///< The first bar is 1; a pick-up bar before it is 0.
    double start;
    double length; ///< Shorter than the signature says if the next signature cuts the bar.
    TimeSignature signature;

    /// Returns how far a step is in the bar, in beats; 1 at its start.
    double beatAt(double step) const { return 1.0 + (step - start) / signature.beatLength(); }
};

/// The lines of a grid: the bars, the beats, or the notes of a value within the beats.
enum class Grid : std::uint8_t { Bars, Beats, Eighths, Sixteenths, ThirtySeconds, SixtyFourths };

/// Returns the finest grid whose lines are not too close to be seen, for the height of a step in
/// pixels.
Grid visibleGrid(double pixelsPerStep);

/// A line of a grid, by what begins there.
struct GridLine {
    enum class Kind : std::uint8_t { Bar, Beat, Part };

    double step;
    Kind kind;
};

/// The tempos, signatures and markers of a piece. Relates the steps of its notes to seconds, bars
/// and beats. Without any, a piece has 120 beats a minute and bars of four beats.
class MusicalTime {
public:
    /// In order of time. Of several tempos or signatures at one step the last one counts.
    const std::vector<Tempo>& tempos() const { return tempos_; }
    const std::vector<TimeSignature>& timeSignatures() const { return timeSignatures_; }
    const std::vector<KeySignature>& keySignatures() const { return keySignatures_; }
    const std::vector<Marker>& markers() const { return markers_; }

    /// Replace the lists, which may be in any order. What begins before step 0 is moved there.
    void setTempos(std::vector<Tempo> tempos);
    void setTimeSignatures(std::vector<TimeSignature> signatures);
    void setKeySignatures(std::vector<KeySignature> signatures);
    void setMarkers(std::vector<Marker> markers);

    /// The time of a step from the start of the piece, and the inverse.
    double secondsAt(double step) const { return map_.secondsForBeats(step / kStepsPerBeat); }
    double stepAt(double seconds) const { return map_.beatsForSeconds(seconds) * kStepsPerBeat; }

    const TempoMap& tempoMap() const { return map_; }

    /// Returns the beats a minute at a step.
    double tempoAt(double step) const { return 60.0 / map_.secondsPerBeatAt(step / kStepsPerBeat); }

    /// Changes the tempo in force at a step to a number of beats a minute, where it begins.
    void changeTempoAt(double step, double beats);

    /// Returns the bar that contains a step. Before step 0, bars go on backwards.
    Bar barAt(double step) const;

    /// Returns where a bar with a number starts; the first one if the number is lower than its own.
    double startOfBar(int number) const;

    /// Returns the last line of a grid at or before a step.
    double gridAt(double step, Grid grid) const;

    /// Returns the first line of a grid after a step.
    double gridAfter(double step, Grid grid) const;

    /// Returns the lines of a grid from a step up to, but not including, another one.
    std::vector<GridLine> gridLines(double from, double to, Grid grid) const;

    bool operator==(const MusicalTime& other) const;

private:
    /// Bars with one signature.
    struct Stretch {
        TimeSignature signature;
        int firstBar;
    };

    const Stretch& stretchAt(double step) const;

    std::vector<Tempo> tempos_;
    std::vector<TimeSignature> timeSignatures_;
    std::vector<KeySignature> keySignatures_;
    std::vector<Marker> markers_;
    TempoMap map_;
    std::vector<Stretch> stretches_{{{0.0, 4, 4}, 1}}; ///< In order of time; the first starts at 0.
};

/// Reads the tempos, signatures and markers of a file. Tempos of a file with SMPTE time are left
/// out, because they have no effect there.
MusicalTime musicalTimeOf(const MidiFileEvents& file);

/// Adds what one event of such a file says, if it is a tempo, a signature or a marker.
void addTimeEvent(const FileEvent& event, const MidiFileHeader& header, TimeLists& lists);

} // namespace velmora
