#include "notation/Score.h"
#include "notation/makeBars.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace velmora {

namespace {

/// Middle C divides the hands. A part that reaches beyond both limits has two staves.
constexpr unsigned kMiddleC = 60;
constexpr unsigned kBelowTreble = 55, kAboveBass = 65;

struct Chord {
    int start = 0, end = 0;
    std::vector<Piece::Note> notes;
};

/// The chords of a voice of a staff, one after the other.
using Line = std::vector<Chord>;

bool canBeWritten(const Piece::Note& note)
{
    return note.start >= 0.0 && note.length > 0.0 && note.key < 128;
}

/// A part with the grid of its notes.
struct Played {
    std::vector<Piece::Note> notes;
    BeatGrid grid;

    int startOf(const Piece::Note& note) const { return grid.position(note.start); }

    int endOf(const Piece::Note& note) const
    {
        const int start = startOf(note);
        return std::max(grid.position(note.start + note.length), start + grid.unit(start));
    }
};

Played played(const Piece::Part& part)
{
    std::vector<Piece::Note> notes;
    std::ranges::copy_if(part.notes, std::back_inserter(notes), canBeWritten);
    std::vector<double> starts, ends;
    for (const Piece::Note& note : notes) {
        if (note.start + note.length > Piece::kLongest)
            throw std::length_error("the music is too long");
        starts.push_back(note.start);
        ends.push_back(note.start + note.length);
    }
    return {std::move(notes), BeatGrid(starts, ends)};
}

/// Returns notes of a part as chords in order of time, the higher ones first.
std::vector<Chord> chordsOf(const std::vector<Piece::Note>& notes, const Played& part)
{
    std::map<std::pair<int, int>, std::vector<Piece::Note>> found;
    for (const Piece::Note& note : notes)
        found[{part.startOf(note), part.endOf(note)}].push_back(note);
    std::vector<Chord> chords;
    for (auto& [time, members] : found) {
        std::ranges::sort(members, {}, &Piece::Note::key);
        chords.push_back({time.first, time.second, std::move(members)});
    }
    std::ranges::stable_sort(chords, [](const Chord& one, const Chord& other) {
        return one.start != other.start ? one.start < other.start
                                        : one.notes.back().key > other.notes.back().key;
    });
    return chords;
}

int topOf(const Chord& chord)
{
    return static_cast<int>(chord.notes.back().key);
}

/// Finds a voice for a chord: of those that are free, the one that was nearest in pitch. If all are
/// busy, the one that ends first gives way; a chord that started together with it takes its notes
/// instead.
void enter(Chord chord, std::vector<Line>& lines)
{
    Line* nearest = nullptr;
    const auto leap = [&](const Line& line) { return std::abs(topOf(line.back()) - topOf(chord)); };
    for (Line& line : lines)
        if (line.back().end <= chord.start && (nearest == nullptr || leap(line) < leap(*nearest)))
            nearest = &line;
    if (nearest != nullptr)
        return nearest->push_back(std::move(chord));
    if (lines.size() < Score::kVoices)
        return lines.push_back({std::move(chord)});
    Line& line =
        *std::ranges::min_element(lines, {}, [](const Line& busy) { return busy.back().end; });
    Chord& last = line.back();
    if (last.start < chord.start) {
        last.end = chord.start;
        return line.push_back(std::move(chord));
    }
    last.notes.insert(last.notes.end(), chord.notes.begin(), chord.notes.end());
    std::ranges::sort(last.notes, {}, &Piece::Note::key);
}

/// Returns the lines of a staff from the highest to the lowest; at least one, perhaps empty.
std::vector<Line> linesOf(std::vector<Chord> chords)
{
    std::vector<Line> lines;
    for (Chord& chord : chords)
        enter(std::move(chord), lines);
    if (lines.empty())
        lines.emplace_back();
    const auto meanKey = [](const Line& line) {
        double sum = 0.0;
        for (const Chord& chord : line)
            sum += topOf(chord);
        return line.empty() ? 0.0 : sum / static_cast<double>(line.size());
    };
    std::ranges::stable_sort(lines, std::ranges::greater{}, meanKey);
    return lines;
}

/// Writes the lines of a staff into the bars of its part.
class StaffWriter {
public:
    StaffWriter(const std::vector<Score::Bar>& bars, const BeatGrid& grid, unsigned staff)
        : bars_(bars), grid_(grid), staff_(staff)
    {
        for (int fifths = 0; const Score::Bar& bar : bars) {
            if (bar.keySignature)
                fifths = bar.keySignature->fifths;
            fifths_.push_back(fifths);
        }
    }

    void write(const Line& line, unsigned number, std::vector<std::vector<Score::Voice>>& part)
    {
        auto chord = line.begin();
        for (std::size_t i = 0; i < bars_.size(); ++i) {
            const int start = bars_[i].start, end = start + bars_[i].length;
            Score::Voice voice{staff_, number, {}};
            int position = start;
            for (; chord != line.end() && chord->start < end; ++chord) {
                const int from = std::max(chord->start, start);
                fill(voice, position, from, nullptr, i);
                position = std::min(chord->end, end);
                fill(voice, from, position, &*chord, i);
                if (chord->end > end)
                    break;
            }
            if (position == start && number > 0)
                continue;
            fill(voice, position, end, nullptr, i);
            markTriplets(voice);
            part[i].push_back(std::move(voice));
        }
    }

private:
    void fill(Score::Voice& voice, int from, int to, const Chord* chord, std::size_t bar) const
    {
        std::vector<WrittenPitch> pitches;
        if (chord != nullptr)
            for (const Piece::Note& note : chord->notes)
                pitches.push_back(writtenPitch(note.key, note.place, fifths_[bar]));
        for (const NoteValue& value : noteValues(from, to - from, grid_)) {
            const int length = value.length();
            voice.elements.push_back({.position = from,
                                      .value = value,
                                      .pitches = pitches,
                                      .isTied = chord != nullptr && from + length < chord->end,
                                      .continuesTie = chord != nullptr && from > chord->start});
            from += length;
        }
    }

    /// A voice fills each quarter note of triplets, so they begin and end with it.
    static void markTriplets(Score::Voice& voice)
    {
        for (auto element = voice.elements.begin(); element != voice.elements.end(); ++element) {
            if (!element->value.isTriplet)
                continue;
            const auto previous = element == voice.elements.begin() ? element : element - 1;
            const auto next = element + 1;
            element->beginsTriplet = element->position % kScoreDivisions == 0 ||
                                     previous == element || !previous->value.isTriplet;
            element->endsTriplet = next == voice.elements.end() || !next->value.isTriplet ||
                                   next->position % kScoreDivisions == 0;
        }
    }

    const std::vector<Score::Bar>& bars_;
    const BeatGrid& grid_;
    unsigned staff_;
    std::vector<int> fifths_; ///< The key signature of each bar.
};

Score::Part writePart(const std::string& name, const Played& part,
                      const std::vector<Score::Bar>& bars)
{
    const auto& notes = part.notes;
    Score::Part written{name, {false}, {}};
    written.bars.resize(bars.size());
    const auto [lowest, highest] = std::ranges::minmax_element(notes, {}, &Piece::Note::key);
    const bool hasTwoStaves =
        !notes.empty() && lowest->key < kBelowTreble && highest->key > kAboveBass;
    if (hasTwoStaves)
        written.isBass = {false, true};
    else if (!notes.empty() && highest->key <= kAboveBass && lowest->key < kBelowTreble)
        written.isBass = {true};

    for (unsigned staff = 0; staff < written.isBass.size(); ++staff) {
        std::vector<Piece::Note> hand;
        std::ranges::copy_if(notes, std::back_inserter(hand), [&](const Piece::Note& note) {
            return !hasTwoStaves || (note.key < kMiddleC) == (staff == 1);
        });
        const std::vector<Line> lines = linesOf(chordsOf(hand, part));
        StaffWriter writer(bars, part.grid, staff);
        for (unsigned number = 0; number < lines.size(); ++number)
            writer.write(lines[number], number, written.bars);
    }
    return written;
}

} // namespace

Score makeScore(const Piece& piece)
{
    std::vector<Played> parts;
    int end = 0;
    for (const Piece::Part& part : piece.parts) {
        parts.push_back(played(part));
        for (const Piece::Note& note : parts.back().notes)
            end = std::max(end, parts.back().endOf(note));
    }
    Score score{piece.title, makeBars(piece, end), {}};
    for (Played& part : parts)
        for (const Score::Bar& bar : score.bars)
            if (bar.start % (kScoreDivisions / 2) != 0)
                part.grid.avoidTriplets(bar.start);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        score.parts.push_back(writePart(piece.parts[i].name, parts[i], score.bars));
        score.parts.back().program = piece.parts[i].program;
        score.parts.back().isPercussion = piece.parts[i].isPercussion;
    }
    return score;
}

} // namespace velmora
