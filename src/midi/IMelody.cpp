#include "midi/IMelody.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <tuple>
#include <vector>

namespace velmora {

namespace {

/// Every length that the format can express is a whole number of these units.
constexpr double kUnitsPerBeat = 96.0;
constexpr double kSixteenth = kUnitsPerBeat / 4.0;

constexpr int kRest = -1;

/// A part of the melody on one key. Times are in units.
struct Stretch {
    double begin;
    double end;
    int key; ///< Never a rest; the gaps between stretches are rests.
};

struct Length {
    int units;
    std::string text;
};

/// The lengths that the format can express, the shortest first.
const std::vector<Length>& lengths()
{
    static const std::vector<Length> all = [] {
        std::vector<Length> result;
        for (int digit = 0; digit <= 5; ++digit) {
            const int plain = 384 >> digit;
            const std::string text = std::to_string(digit);
            result.insert(result.end(), {{plain, text},
                                         {plain * 3 / 2, text + "."},
                                         {plain * 7 / 4, text + ":"},
                                         {plain * 2 / 3, text + ";"}});
        }
        std::sort(result.begin(), result.end(),
                  [](const Length& a, const Length& b) { return a.units < b.units; });
        return result;
    }();
    return all;
}

const double kHalfShortest = lengths().front().units / 2.0;

/// Returns the length nearest to `units` among those up to `most`, or else the shortest.
const Length& nearestLength(double units, double most)
{
    const Length* nearest = &lengths().front();
    for (const Length& length : lengths()) {
        if (length.units <= most &&
            std::abs(length.units - units) < std::abs(nearest->units - units))
            nearest = &length;
    }
    return *nearest;
}

/// Traces the highest sounding note.
/// See docs/decisions.md, 124.
class HighestLine {
public:
    explicit HighestLine(std::span<const MidiEvent> notes)
    {
        struct Change {
            double at;
            bool begins;
            int key;
        };
        std::vector<Change> changes;
        changes.reserve(2 * notes.size());
        for (const MidiEvent& note : notes) {
            const double begin = note.beats * kUnitsPerBeat;
            changes.push_back({begin, true, note.key});
            changes.push_back(
                {begin + static_cast<double>(note.duration) * kUnitsPerBeat, false, note.key});
        }
        std::sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) {
            return std::tie(a.at, a.begins) < std::tie(b.at, b.begins);
        });
        for (const Change& change : changes) {
            if (change.begins)
                begin(change.key, change.at);
            else
                end(change.key, change.at);
        }
    }

    std::vector<Stretch> takeStretches() { return std::move(stretches_); }

private:
    void begin(int key, double at)
    {
        ++sounding_[static_cast<std::size_t>(key)];
        started_[static_cast<std::size_t>(key)] = at;
        if (key >= highest_)
            continueWith(key, at);
    }

    void end(int key, double at)
    {
        if (--sounding_[static_cast<std::size_t>(key)] > 0 || key != highest_)
            return;
        int next = key;
        while (next > kRest && (next == key || sounding_[static_cast<std::size_t>(next)] == 0))
            --next;
        continueWith(next, at);
    }

    void continueWith(int key, double at)
    {
        if (highest_ != kRest && at > since_ && isLongEnough(at))
            stretches_.push_back({since_, at, highest_});
        highest_ = key;
        since_ = at;
    }

    /// Returns false for a short part of a lower note between higher ones.
    bool isLongEnough(double until) const
    {
        const double started = started_[static_cast<std::size_t>(highest_)];
        return until - since_ >= std::min(kSixteenth, (until - started) / 2.0);
    }

    std::array<int, 128> sounding_{};   ///< Number of sounding notes of each key.
    std::array<double, 128> started_{}; ///< When the last note of each key started.
    int highest_ = kRest;
    double since_ = 0.0; ///< When `highest_` became the highest.
    std::vector<Stretch> stretches_;
};

std::string nameOf(int key)
{
    constexpr std::array kNames = {"c", "#c", "d", "#d", "e", "f", "#f", "g", "#g", "a", "#a", "b"};
    constexpr int kDefaultOctave = 4;
    // *3 is the octave of A = 440 Hz, MIDI key 69.
    const int octave = std::max(key / 12 - 2, 0);
    const char* name = kNames[static_cast<std::size_t>(key % 12)];
    return octave == kDefaultOctave ? name : fmt::format("*{}{}", octave, name);
}

/// Returns the text of each note and rest.
std::vector<std::string> melodyOf(const std::vector<Stretch>& stretches)
{
    std::vector<std::string> melody;
    double written = 0.0;
    for (auto stretch = stretches.begin(); stretch != stretches.end(); ++stretch) {
        if (written >= stretch->end)
            continue; // earlier notes were lengthened to the shortest length and took its time
        while (stretch->begin - written > kHalfShortest) {
            const double rest = stretch->begin - written;
            const Length& length = nearestLength(rest, rest);
            melody.push_back("r" + length.text);
            written += length.units;
        }
        const auto next = std::next(stretch);
        const double most = next == stretches.end() ? std::numeric_limits<double>::infinity()
                                                    : next->begin - written + kHalfShortest;
        const Length& length = nearestLength(stretch->end - written, most);
        melody.push_back(nameOf(stretch->key) + length.text);
        written += length.units;
    }
    if (melody.empty())
        melody.emplace_back("r2"); // the format requires at least one note or rest
    return melody;
}

/// Joins the texts into a line and folds it: continuation lines start with a space.
std::string folded(std::string_view head, const std::vector<std::string>& texts)
{
    constexpr std::size_t kLine = 75;
    std::string lines(head);
    std::size_t length = head.size();
    for (const std::string& text : texts) {
        if (length + text.size() > kLine) {
            lines += "\r\n ";
            length = 1;
        }
        lines += text;
        length += text.size();
    }
    return lines + "\r\n";
}

} // namespace

std::string writeIMelody(std::span<const MidiEvent> notes)
{
    return "BEGIN:IMELODY\r\n"
           "VERSION:1.2\r\n"
           "FORMAT:CLASS1.0\r\n"
           "BEAT:120\r\n"
           "STYLE:S0\r\n"
           "VOLUME:V7\r\n" +
           folded("MELODY:", melodyOf(HighestLine(notes).takeStretches())) + "END:IMELODY\r\n";
}

} // namespace velmora
