#include "sequencer/fitToGrid.h"

#include "sequencer/SequenceDocument.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace velmora {

namespace {

/// Onsets are looked at in frames of 5 ms, blurred by 20 ms, as evenly as a musician plays.
constexpr double kOnsetFrame = 0.005, kBlur = 0.02;

constexpr std::size_t kFewestOnsets = 8;

/// What lasts longer, in seconds, is no take, and would take long.
constexpr double kLongestTake = 4 * 3600.0;

/// The beats that are looked for, in seconds, and the one that is preferred.
constexpr double kShortestBeat = 0.25, kLongestBeat = 1.5, kUsualBeat = 0.5;
/// How many octaves from that a beat is half as likely or less.
constexpr double kTempoSpread = 0.9;

/// How much an even beat counts against one on an onset.
constexpr double kEvenness = 60.0;

/// An accent within this time of a beat, in seconds, belongs to it.
constexpr double kNear = 0.07;

struct Onset {
    double time; ///< In seconds.
    double weight;
};

std::vector<Onset> onsetsOf(const std::vector<Note>& notes, const MusicalTime& time)
{
    std::vector<Onset> onsets;
    onsets.reserve(notes.size());
    for (const Note& note : notes)
        onsets.push_back({time.secondsAt(note.start), 0.3 + static_cast<double>(note.velocity)});
    std::ranges::sort(onsets, {}, &Onset::time);
    return onsets;
}

/// Returns how strongly notes begin in each frame from the first onset on.
std::vector<double> envelopeOf(const std::vector<Onset>& onsets)
{
    const double start = onsets.front().time;
    const auto frames = static_cast<std::size_t>((onsets.back().time - start) / kOnsetFrame) + 20;
    std::vector<double> envelope(frames);
    const auto reach = static_cast<std::ptrdiff_t>(4 * kBlur / kOnsetFrame);
    for (const Onset& onset : onsets) {
        const double place = (onset.time - start) / kOnsetFrame;
        const auto middle = static_cast<std::ptrdiff_t>(place);
        const auto last =
            std::min<std::ptrdiff_t>(middle + reach, static_cast<std::ptrdiff_t>(frames) - 1);
        for (auto i = std::max<std::ptrdiff_t>(middle - reach, 0); i <= last; ++i) {
            const double distance = (static_cast<double>(i) - place) * kOnsetFrame / kBlur;
            envelope[static_cast<std::size_t>(i)] +=
                onset.weight * std::exp(-0.5 * distance * distance);
        }
    }
    return envelope;
}

/// Returns the beat, in frames, after which the onsets repeat most strongly.
double periodOf(const std::vector<double>& envelope)
{
    const auto correlation = [&](std::size_t lag) {
        return lag >= envelope.size()
                   ? 0.0
                   : std::inner_product(envelope.begin() + static_cast<std::ptrdiff_t>(lag),
                                        envelope.end(), envelope.begin(), 0.0);
    };
    double best = -1.0, period = kUsualBeat / kOnsetFrame;
    const auto last = static_cast<std::size_t>(kLongestBeat / kOnsetFrame);
    for (auto lag = static_cast<std::size_t>(kShortestBeat / kOnsetFrame); lag <= last; ++lag) {
        const double octaves = std::log2(static_cast<double>(lag) * kOnsetFrame / kUsualBeat);
        const double likely = std::exp(-0.5 * std::pow(octaves / kTempoSpread, 2.0));
        // What repeats after a beat repeats after two as well.
        const double strength = likely * (correlation(lag) + 0.5 * correlation(2 * lag));
        if (strength > best) {
            best = strength;
            period = static_cast<double>(lag);
        }
    }
    return period;
}

/// Returns the beat, in frames, of a number of beats a minute.
double periodAt(double tempo)
{
    return 60.0 / std::clamp(tempo, FoundBeats::kSlowest, FoundBeats::kFastest) / kOnsetFrame;
}

/// Returns the frames of the most even series of beats that falls on onsets.
std::vector<std::size_t> trackBeats(const std::vector<double>& envelope, double period)
{
    const double mean = std::accumulate(envelope.begin(), envelope.end(), 0.0) /
                        static_cast<double>(envelope.size());
    const auto nearest = static_cast<std::size_t>(period / 2);
    const auto farthest = static_cast<std::size_t>(period * 2);
    std::vector<double> penalties(farthest + 1); // of a beat that is so many frames long
    for (std::size_t back = nearest; back <= farthest; ++back)
        penalties[back] =
            kEvenness * mean * std::pow(std::log(static_cast<double>(back) / period), 2.0);
    std::vector<double> score(envelope.size());
    std::vector<std::size_t> previous(envelope.size(), SIZE_MAX);
    for (std::size_t i = 0; i < envelope.size(); ++i) {
        double best = 0.0; // of a series that begins here
        for (std::size_t back = nearest; back <= std::min(farthest, i); ++back) {
            const double before = score[i - back] - penalties[back];
            if (before > best) {
                best = before;
                previous[i] = i - back;
            }
        }
        score[i] = envelope[i] + best;
    }
    const auto tail =
        static_cast<std::ptrdiff_t>(std::min<double>(period, static_cast<double>(score.size())));
    auto last =
        static_cast<std::size_t>(std::max_element(score.end() - tail, score.end()) - score.begin());
    std::vector<std::size_t> beats;
    for (; last != SIZE_MAX; last = previous[last])
        beats.push_back(last);
    std::ranges::reverse(beats);
    return beats;
}

/// Returns the weight of the onsets at a beat. Low notes that begin there are often the bass.
double accentAt(const std::vector<Onset>& onsets, double time)
{
    double accent = 0.0;
    auto onset = std::ranges::lower_bound(onsets, time - kNear, {}, &Onset::time);
    for (; onset != onsets.end() && onset->time <= time + kNear; ++onset)
        accent += onset->weight;
    return accent;
}

/// Finds which beats begin the bars.
void findBars(const std::vector<Onset>& onsets, FoundBeats& beats)
{
    double best = -1.0;
    for (const int count : {4, 3}) {
        for (int first = 0; first < count; ++first) {
            double accents = 0.0, bars = 0.0;
            for (auto i = static_cast<std::size_t>(first); i < beats.times.size();
                 i += static_cast<std::size_t>(count), ++bars)
                accents += accentAt(onsets, beats.times[i]);
            // Four beats are more usual, and three must stand out from them.
            const double strength = accents / std::max(bars, 1.0) * (count == 4 ? 1.15 : 1.0);
            if (strength > best) {
                best = strength;
                beats.beatsPerBar = count;
                beats.firstBar = first;
            }
        }
    }
}

} // namespace

double FoundBeats::tempo() const
{
    return 60.0 * static_cast<double>(times.size() - 1) / (times.back() - times.front());
}

std::optional<FoundBeats> findBeats(const std::vector<Note>& notes, const MusicalTime& time,
                                    std::optional<double> tempo)
{
    const std::vector<Onset> onsets = onsetsOf(notes, time);
    if (onsets.size() < kFewestOnsets)
        return std::nullopt;
    const double start = onsets.front().time, length = onsets.back().time - start;
    if (length < kLongestBeat || length > kLongestTake)
        return std::nullopt;
    const std::vector<double> envelope = envelopeOf(onsets);
    const double period = tempo ? periodAt(*tempo) : periodOf(envelope);
    const double beat = period * kOnsetFrame;
    const std::vector<std::size_t> frames = trackBeats(envelope, period);
    const double first = static_cast<double>(frames.front()) * kOnsetFrame;
    FoundBeats beats;
    for (auto before = static_cast<int>(std::ceil((first - kNear) / beat)); before > 0; --before)
        beats.times.push_back(start + first - before * beat);
    for (const std::size_t frame : frames)
        beats.times.push_back(start + static_cast<double>(frame) * kOnsetFrame);
    while (beats.times.size() < 2 || beats.times.back() < onsets.back().time)
        beats.times.push_back(beats.times.back() + beat);
    findBars(onsets, beats);
    return beats;
}

FittedPiece fitToGrid(const std::vector<Note>& notes, const Controllers& controllers,
                      const MusicalTime& time, const FoundBeats& beats)
{
    const auto perBar = static_cast<std::size_t>(beats.beatsPerBar);
    const auto& times = beats.times;
    // The beats before the first bar are the end of a whole one.
    const std::size_t pickUp =
        beats.firstBar == 0 ? 0 : perBar - static_cast<std::size_t>(beats.firstBar);
    const auto stepOf = [&](double step) {
        const double seconds = time.secondsAt(step);
        const auto next = std::ranges::upper_bound(times, seconds) - times.begin();
        const auto i = static_cast<std::size_t>(
            std::clamp<std::ptrdiff_t>(next - 1, 0, std::ssize(times) - 2));
        const double part = (seconds - times[i]) / (times[i + 1] - times[i]);
        return std::max(0.0, (static_cast<double>(i + pickUp) + part) * kStepsPerBeat);
    };
    FittedPiece fitted;
    for (Note note : notes) {
        const double end = stepOf(note.start + note.length);
        note.start = note.oldStart = stepOf(note.start);
        note.length = note.oldLength = std::max(end - note.start, 1.0 / 64.0);
        fitted.notes.push_back({note.id, note});
    }
    fitted.controllers = controllers;
    for (ControllerEvent& event : fitted.controllers)
        event.step = stepOf(event.step);
    std::vector<Tempo> tempos;
    for (std::size_t i = 0; i + 1 < times.size();) {
        const std::size_t bar =
            std::min(i == 0 && pickUp > 0 ? perBar - pickUp : perBar, times.size() - 1 - i);
        const double beat = (times[i + bar] - times[i]) / static_cast<double>(bar);
        tempos.push_back(Tempo::ofBeats(
            i == 0 ? 0.0 : static_cast<double>(i + pickUp) * kStepsPerBeat, 60.0 / beat));
        i += bar;
    }
    fitted.time.setTempos(std::move(tempos));
    fitted.time.setTimeSignatures({{0.0, beats.beatsPerBar, 4}});
    fitted.time.setKeySignatures(time.keySignatures());
    auto markers = time.markers();
    for (Marker& marker : markers)
        marker.step = stepOf(marker.step);
    fitted.time.setMarkers(std::move(markers));
    return fitted;
}

void fitToGrid(SequenceDocument& document, const FoundBeats& beats, const QString& text)
{
    FittedPiece fitted =
        fitToGrid(document.sequence().notes(), document.controllers(), document.time(), beats);
    document.registerTake();
    document.recorder().forgetTakes(); // they would not fit
    document.undoStack().beginMacro(text);
    document.perform(std::move(fitted.notes), text);
    document.setControllers(std::move(fitted.controllers), text);
    document.setTime(std::move(fitted.time), text);
    document.undoStack().endMacro();
    document.updateExtent();
}

} // namespace velmora
