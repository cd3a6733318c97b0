#include "sequencer/MusicalTime.h"

#include "midi/MidiFileEvents.h"
#include "midi/messages.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <tuple>
#include <utility>

namespace velmora {

namespace {

/// A step this close below a line belongs to the line: the steps of a file are rounded.
constexpr double kBarRounding = 1e-6;

/// The greatest number that a tempo event can hold.
constexpr double kSlowestTempo = 0xFFFFFF;

/// The exponent of the shortest unit of a time signature.
constexpr int kShortestUnit = 6;

constexpr int kMostSharps = 7;

/// Returns the number of a bar. Damaged files have events later than any bar can be counted.
int barNumber(double bars)
{
    constexpr double kMostBars = 1e9;
    return static_cast<int>(std::clamp(bars, -kMostBars, kMostBars));
}

/// Brings a list into the order of time, and keeps the last entry of each step.
template <class Entry> void arrange(std::vector<Entry>& entries)
{
    for (Entry& entry : entries)
        entry.step = std::max(entry.step, 0.0);
    std::ranges::stable_sort(entries, {}, &Entry::step);
    const auto sameStep = [](const Entry& a, const Entry& b) { return a.step == b.step; };
    // Of equal entries `unique` keeps the first one, so it goes through the list backwards.
    const auto last = std::unique(entries.rbegin(), entries.rend(), sameStep);
    entries.erase(entries.begin(), last.base());
}

double partOf(const TimeSignature& signature, Grid grid)
{
    const auto noteOf = [&](int value) {
        return std::min(signature.beatLength(), double{kStepsPerWhole} / value);
    };
    switch (grid) {
    case Grid::Bars:
        return std::numeric_limits<double>::infinity();
    case Grid::Beats:
        return signature.beatLength();
    case Grid::Eighths:
        return noteOf(8);
    case Grid::Sixteenths:
        return noteOf(16);
    case Grid::ThirtySeconds:
        return noteOf(32);
    case Grid::SixtyFourths:
        break;
    }
    return noteOf(64);
}

} // namespace

Grid visibleGrid(double pixelsPerStep)
{
    constexpr double kLeastPixels = 6.0;
    if (pixelsPerStep * kStepsPerWhole / 64 >= kLeastPixels)
        return Grid::SixtyFourths;
    if (pixelsPerStep * kStepsPerWhole / 32 >= kLeastPixels)
        return Grid::ThirtySeconds;
    if (pixelsPerStep * kStepsPerWhole / 16 >= kLeastPixels)
        return Grid::Sixteenths;
    if (pixelsPerStep * kStepsPerWhole / 8 >= kLeastPixels)
        return Grid::Eighths;
    return pixelsPerStep * kStepsPerBeat >= kLeastPixels ? Grid::Beats : Grid::Bars;
}

Tempo Tempo::ofBeats(double step, double beats)
{
    const double microseconds = std::round(60e6 / beats);
    return {step, static_cast<std::uint32_t>(std::clamp(microseconds, 1.0, kSlowestTempo))};
}

double TimeSignature::beatLength() const
{
    const bool isCompound = unit >= 8 && count > 3 && count % 3 == 0;
    return double{kStepsPerWhole} / unit * (isCompound ? 3 : 1);
}

void MusicalTime::setTempos(std::vector<Tempo> tempos)
{
    std::erase_if(tempos, [](const Tempo& tempo) { return tempo.microsecondsPerBeat == 0; });
    arrange(tempos);
    tempos_ = std::move(tempos);
    std::vector<TempoChange> changes(tempos_.size());
    std::ranges::transform(tempos_, changes.begin(), [](const Tempo& tempo) {
        return TempoChange{tempo.step / kStepsPerBeat, tempo.microsecondsPerBeat};
    });
    map_ = TempoMap(std::move(changes));
}

void MusicalTime::changeTempoAt(double step, double beats)
{
    std::vector<Tempo> tempos = tempos_;
    const auto after = std::ranges::upper_bound(tempos, step, {}, &Tempo::step);
    // Before the first change nothing but the default is in force.
    if (after == tempos.begin())
        tempos.push_back(Tempo::ofBeats(0.0, beats));
    else
        *std::prev(after) = Tempo::ofBeats(std::prev(after)->step, beats);
    setTempos(std::move(tempos));
}

void MusicalTime::setTimeSignatures(std::vector<TimeSignature> signatures)
{
    arrange(signatures);
    timeSignatures_ = std::move(signatures);
    stretches_.assign(1, {{0.0, 4, 4}, 1});
    for (const TimeSignature& signature : timeSignatures_) {
        const Stretch& last = stretches_.back();
        const double bars =
            (signature.step - last.signature.step) / last.signature.barLength() - kBarRounding;
        const int next = barNumber(last.firstBar + std::max(0.0, std::ceil(bars)));
        if (next == last.firstBar) // it replaces the one of the same step
            stretches_.pop_back();
        stretches_.push_back({signature, next});
    }
    // See docs/decisions.md, 194.
    if (stretches_.size() < 2 || stretches_[1].firstBar != 2 ||
        !(stretches_[1].signature.step < stretches_[1].signature.barLength() - kBarRounding))
        return;
    for (Stretch& stretch : stretches_)
        --stretch.firstBar;
}

void MusicalTime::setKeySignatures(std::vector<KeySignature> signatures)
{
    arrange(signatures);
    keySignatures_ = std::move(signatures);
}

void MusicalTime::setMarkers(std::vector<Marker> markers)
{
    for (Marker& marker : markers)
        marker.step = std::max(marker.step, 0.0);
    std::ranges::stable_sort(markers, [](const Marker& a, const Marker& b) {
        return std::tie(a.step, a.text) < std::tie(b.step, b.text);
    });
    markers.erase(std::unique(markers.begin(), markers.end()), markers.end());
    markers_ = std::move(markers);
}

const MusicalTime::Stretch& MusicalTime::stretchAt(double step) const
{
    const auto after = std::upper_bound(
        std::next(stretches_.begin()), stretches_.end(), step + kBarRounding,
        [](double before, const Stretch& stretch) { return before < stretch.signature.step; });
    return *std::prev(after);
}

Bar MusicalTime::barAt(double step) const
{
    const Stretch& stretch = stretchAt(step);
    const double length = stretch.signature.barLength();
    const double bars = std::floor((step - stretch.signature.step + kBarRounding) / length);
    Bar bar{barNumber(stretch.firstBar + bars), stretch.signature.step + bars * length, length,
            stretch.signature};
    if (&stretch != &stretches_.back())
        bar.length = std::min(length, std::next(&stretch)->signature.step - bar.start);
    return bar;
}

double MusicalTime::startOfBar(int number) const
{
    const int least = std::max(number, stretches_.front().firstBar);
    const auto after = std::ranges::upper_bound(stretches_, least, {}, &Stretch::firstBar);
    const Stretch& stretch = *std::prev(after);
    return stretch.signature.step + (least - stretch.firstBar) * stretch.signature.barLength();
}

double MusicalTime::gridAt(double step, Grid grid) const
{
    const Bar bar = barAt(step);
    if (grid == Grid::Bars)
        return bar.start;
    const auto floorTo = [](double offset, double part) {
        return std::floor((offset + kBarRounding) / part) * part;
    };
    const double beat = floorTo(step - bar.start, bar.signature.beatLength());
    return bar.start + beat + floorTo(step - bar.start - beat, partOf(bar.signature, grid));
}

double MusicalTime::gridAfter(double step, Grid grid) const
{
    const double line = gridAt(step, grid);
    const Bar bar = barAt(line);
    const double beatLength = bar.signature.beatLength();
    const double beat = std::floor((line - bar.start + kBarRounding) / beatLength) + 1.0;
    const double next = grid == Grid::Bars ? bar.start + bar.length
                                           : std::min(line + partOf(bar.signature, grid),
                                                      bar.start + beat * beatLength);
    return std::min(next, bar.start + bar.length);
}

std::vector<GridLine> MusicalTime::gridLines(double from, double to, Grid grid) const
{
    std::vector<GridLine> lines;
    for (Bar bar = barAt(from); bar.start < to; bar = barAt(bar.start + bar.length)) {
        const double beatLength = bar.signature.beatLength(), part = partOf(bar.signature, grid);
        const auto add = [&](double offset, GridLine::Kind kind) {
            const double step = bar.start + offset;
            if (from <= step && step < to && offset < bar.length - kBarRounding)
                lines.push_back({step, kind});
        };
        add(0.0, GridLine::Kind::Bar);
        if (grid == Grid::Bars)
            continue;
        for (int beat = 0; beat * beatLength < bar.length - kBarRounding; ++beat) {
            if (beat > 0)
                add(beat * beatLength, GridLine::Kind::Beat);
            for (int i = 1; i * part < beatLength - kBarRounding; ++i)
                add(beat * beatLength + i * part, GridLine::Kind::Part);
        }
    }
    return lines;
}

bool MusicalTime::operator==(const MusicalTime& other) const
{
    return tempos_ == other.tempos_ && timeSignatures_ == other.timeSignatures_ &&
           keySignatures_ == other.keySignatures_ && markers_ == other.markers_;
}

void addTimeEvent(const FileEvent& event, const MidiFileHeader& header, TimeLists& lists)
{
    if (event.status != midi::kMetaEvent)
        return;
    const double step = static_cast<double>(event.tick) / header.ticksPerBeat * kStepsPerBeat;
    const auto tempo = metaData(event, midi::kTempo);
    if (tempo.size() == 3 && !header.hasFrames) {
        std::uint32_t microseconds = 0;
        for (const char byte : tempo)
            microseconds = microseconds << 8 | static_cast<std::uint8_t>(byte);
        lists.tempos.push_back({step, microseconds});
    }
    const auto time = metaData(event, midi::kTimeSignature);
    if (time.size() >= 2 && time[0] != 0 && time[1] >= 0 && time[1] <= kShortestUnit)
        lists.timeSignatures.push_back({step, static_cast<std::uint8_t>(time[0]), 1 << time[1]});
    const auto key = metaData(event, midi::kKeySignature);
    if (key.size() >= 2)
        lists.keySignatures.push_back(
            {step, std::clamp<int>(static_cast<signed char>(key[0]), -kMostSharps, kMostSharps),
             key[1] == 1});
    const auto marker = metaData(event, midi::kMarker);
    if (!marker.empty())
        lists.markers.push_back({step, std::string(marker)});
}

MusicalTime musicalTimeOf(const MidiFileEvents& file)
{
    TimeLists lists;
    for (const FileTrack& track : file.tracks)
        for (const FileEvent& event : track.events)
            addTimeEvent(event, file.header, lists);
    MusicalTime time;
    time.setTempos(std::move(lists.tempos));
    time.setTimeSignatures(std::move(lists.timeSignatures));
    time.setKeySignatures(std::move(lists.keySignatures));
    time.setMarkers(std::move(lists.markers));
    return time;
}

} // namespace velmora
