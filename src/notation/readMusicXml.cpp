#include "notation/readMusicXml.h"

#include "base/FormatError.h"
#include "base/parseXml.h"
#include "notation/MusicXmlPart.h"
#include "notation/musicXml.h"
#include "notation/unpackScore.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

namespace velmora {

namespace {

constexpr int kLastProgram = 127;

constexpr std::size_t kMostParts = 1000;

/// The shortest unit of a time signature.
constexpr int kShortestUnit = 32;

/// A part as it is written.
struct WrittenPart {
    Piece::Part heading; ///< Without notes.
    std::vector<MusicXmlMeasure> measures;
};

/// Returns the measures of each part in order, by the part's identity.
std::map<std::string, std::vector<pugi::xml_node>> measuresOf(pugi::xml_node root)
{
    std::map<std::string, std::vector<pugi::xml_node>> measures;
    const bool isTimewise = std::string_view(root.name()) == "score-timewise";
    for (const pugi::xml_node outer : root.children(isTimewise ? "measure" : "part"))
        for (const pugi::xml_node inner : outer.children(isTimewise ? "part" : "measure"))
            measures[(isTimewise ? inner : outer).attribute("id").value()].push_back(inner);
    return measures;
}

WrittenPart readPart(pugi::xml_node listed, const std::vector<pugi::xml_node>& measures)
{
    WrittenPart part;
    part.heading.name = listed.child("part-name").text().get();
    std::map<std::string, unsigned> unpitched;
    for (const pugi::xml_node instrument : listed.children("midi-instrument")) {
        const int key = instrument.child("midi-unpitched").text().as_int() - 1;
        if (key >= 0 && key <= 127)
            unpitched[instrument.attribute("id").value()] = static_cast<unsigned>(key);
        const int program = instrument.child("midi-program").text().as_int() - 1;
        if (program >= 0 && program <= kLastProgram && !part.heading.program)
            part.heading.program = program;
        part.heading.isPercussion =
            part.heading.isPercussion ||
            instrument.child("midi-channel").text().as_int() == kScorePercussion;
    }
    MusicXmlPartReader reader(std::move(unpitched));
    for (const pugi::xml_node measure : measures)
        part.measures.push_back(reader.read(measure));
    return part;
}

/// True if a mark says the same as another one elsewhere.
template <class Mark> bool repeats(const Mark& mark, Mark other)
{
    other.start = mark.start;
    return mark == other;
}

/// The marks of one kind in the whole piece, as they are written and as they are played.
template <class Mark> class Marks {
public:
    /// Adds the marks of a measure that begins at `start` as it is written. Of several at one
    /// moment the first counts.
    void write(double start, std::vector<Mark> marks)
    {
        std::ranges::stable_sort(marks, {}, &Mark::start);
        for (Mark& mark : marks) {
            mark.start += start;
            if (written_.empty() ||
                (written_.back().start < mark.start && !repeats(written_.back(), mark)))
                written_.push_back(mark);
        }
    }

    /// Plays the marks of a measure, and the one that was in force before it.
    void play(double writtenStart, double length, double start)
    {
        const auto first = std::ranges::lower_bound(written_, writtenStart, {}, &Mark::start);
        Mark before = first == written_.begin() ? Mark{} : *std::prev(first);
        before.start = start;
        if (played_.empty() ? !repeats(before, Mark{}) : !repeats(played_.back(), before))
            played_.push_back(before);
        for (auto mark = first; mark != written_.end() && mark->start < writtenStart + length;
             ++mark) {
            played_.push_back(*mark);
            played_.back().start += start - writtenStart;
        }
    }

    std::vector<Mark> takePlayed()
    {
        // What was in force before may change at once.
        std::vector<Mark> marks;
        for (const Mark& mark : played_) {
            if (!marks.empty() && marks.back().start == mark.start)
                marks.pop_back();
            if (marks.empty() || !repeats(marks.back(), mark))
                marks.push_back(mark);
        }
        return marks;
    }

private:
    std::vector<Mark> written_, played_;
};

/// Writes the notes of a part out as they are played, each staff as a part of its own.
class PartPlayer {
public:
    explicit PartPlayer(const WrittenPart& part) : part_(part) {}

    void play(const PlayedMeasure& played, double start)
    {
        if (played.index >= part_.measures.size())
            return;
        for (const MusicXmlMeasure::Note& written : part_.measures[played.index].notes) {
            Piece::Note note = written.note;
            note.start = std::max(note.start + start, 0.0);
            Staff& staff = staves_[written.staff];
            addLyric(staff, written, played.pass, note.start);
            addNote(staff, note, written);
        }
    }

    void addTo(std::vector<Piece::Part>& parts)
    {
        for (auto& [number, staff] : staves_) {
            Piece::Part& part = parts.emplace_back(part_.heading);
            if (staves_.size() > 1 && !part.name.empty())
                part.name += ' ' + std::to_string(number);
            part.notes = std::move(staff.notes);
            part.lyrics = std::move(staff.lyrics);
            std::ranges::stable_sort(part.lyrics, {}, &Piece::Lyric::start);
        }
    }

private:
    struct Staff {
        std::vector<Piece::Note> notes;
        std::vector<Piece::Lyric> lyrics;
        std::vector<std::size_t> tied; ///< The notes that a tie leads on from.
    };

    /// Adds the syllable of the verse that is sung at a pass.
    static void addLyric(Staff& staff, const MusicXmlMeasure::Note& written, int pass, double start)
    {
        if (written.lyrics.empty())
            return;
        const auto verse =
            std::ranges::find(written.lyrics, pass, &std::pair<int, std::string>::first);
        staff.lyrics.push_back(
            {start, verse == written.lyrics.end() ? written.lyrics.front().second : verse->second});
    }

    static void addNote(Staff& staff, const Piece::Note& note, const MusicXmlMeasure::Note& written)
    {
        std::size_t index = staff.notes.size();
        const auto tied = written.stopsTie ? tiedTo(staff, note) : staff.tied.end();
        if (tied != staff.tied.end()) {
            index = *tied;
            staff.tied.erase(tied);
            Piece::Note& earlier = staff.notes[index];
            earlier.length = note.start + note.length - earlier.start;
        } else {
            staff.notes.push_back(note);
        }
        if (written.startsTie)
            staff.tied.push_back(index);
    }

    /// Finds the note that a tie leads on from. Voices are read one after the other, so that other
    /// notes of the same key may have begun to be tied meanwhile.
    static std::vector<std::size_t>::iterator tiedTo(Staff& staff, const Piece::Note& note)
    {
        constexpr double kNear = 1e-6;
        return std::ranges::find_if(staff.tied, [&](std::size_t index) {
            const Piece::Note& earlier = staff.notes[index];
            return earlier.key == note.key &&
                   std::abs(earlier.start + earlier.length - note.start) < kNear;
        });
    }

    const WrittenPart& part_;
    std::map<int, Staff> staves_;
};

/// A measure of all parts together.
struct WholeMeasure {
    double start = 0.0; ///< As it is written.
    double length = 0.0;
    MeasureSigns signs;
};

void addSigns(MeasureSigns& signs, const MeasureSigns& more)
{
    signs.times = std::max(signs.times, more.times);
    signs.passes |= more.passes;
    for (bool MeasureSigns::*sign :
         {&MeasureSigns::beginsRepeat, &MeasureSigns::isSegno, &MeasureSigns::isCoda,
          &MeasureSigns::isFine, &MeasureSigns::leadsToStart, &MeasureSigns::leadsToSegno,
          &MeasureSigns::leadsToCoda})
        signs.*sign = signs.*sign || more.*sign;
}

/// Writes the parts out as they are played.
class PiecePlayer {
public:
    PiecePlayer(Piece& piece, const std::vector<WrittenPart>& parts) : piece_(piece), parts_(parts)
    {
        std::size_t count = 0;
        for (const WrittenPart& part : parts)
            count = std::max(count, part.measures.size());
        measures_.resize(count);
        double start = 0.0;
        for (std::size_t i = 0; i < count; ++i) {
            measures_[i].start = start;
            addMeasure(i);
            start += measures_[i].length;
        }
    }

    void play()
    {
        std::vector<MeasureSigns> signs;
        for (const WholeMeasure& measure : measures_)
            signs.push_back(measure.signs);
        std::vector<PartPlayer> players(parts_.begin(), parts_.end());
        double start = 0.0;
        for (const PlayedMeasure& played : measureOrder(signs)) {
            const WholeMeasure& measure = measures_[played.index];
            timeSignatures_.play(measure.start, measure.length, start);
            keySignatures_.play(measure.start, measure.length, start);
            tempos_.play(measure.start, measure.length, start);
            for (PartPlayer& player : players)
                player.play(played, start);
            start += measure.length;
            if (start > Piece::kLongest)
                throw FormatError("the music is too long");
        }
        for (PartPlayer& player : players)
            player.addTo(piece_.parts);
        if (piece_.parts.size() > kMostParts)
            throw FormatError("the score has too many parts");
        piece_.timeSignatures = timeSignatures_.takePlayed();
        addPickUp();
        piece_.keySignatures = keySignatures_.takePlayed();
        piece_.tempos = tempos_.takePlayed();
    }

private:
    /// Gives a pick-up measure a time signature of its own, so that the bars begin behind it.
    void addPickUp()
    {
        const double length = measures_.size() < 2 ? 0.0 : measures_.front().length;
        auto& signatures = piece_.timeSignatures;
        const bool isFirst = !signatures.empty() && signatures.front().start == 0.0;
        const Piece::TimeSignature whole = isFirst ? signatures.front() : Piece::TimeSignature{};
        const bool changes = signatures.size() > 1 && signatures[isFirst ? 1 : 0].start <= length;
        if (!(length > 0.0) || length >= 4.0 * whole.beats / whole.unit || changes)
            return;
        for (int unit = whole.unit; unit <= kShortestUnit; unit *= 2) {
            const double beats = length * unit / 4.0;
            if (beats != std::round(beats))
                continue;
            if (isFirst)
                signatures.erase(signatures.begin());
            signatures.insert(signatures.begin(), {{0.0, static_cast<int>(beats), unit},
                                                   {length, whole.beats, whole.unit}});
            return;
        }
    }

    /// Adds what all parts say about a measure.
    void addMeasure(std::size_t index)
    {
        WholeMeasure& whole = measures_[index];
        MusicXmlMeasure all;
        const auto append = [](auto& marks, const auto& more) {
            marks.insert(marks.end(), more.begin(), more.end());
        };
        for (const WrittenPart& part : parts_) {
            if (index >= part.measures.size())
                continue;
            const MusicXmlMeasure& measure = part.measures[index];
            whole.length = std::max(whole.length, measure.length);
            addSigns(whole.signs, measure.signs);
            append(all.timeSignatures, measure.timeSignatures);
            append(all.keySignatures, measure.keySignatures);
            append(all.tempos, measure.tempos);
        }
        timeSignatures_.write(whole.start, std::move(all.timeSignatures));
        keySignatures_.write(whole.start, std::move(all.keySignatures));
        tempos_.write(whole.start, std::move(all.tempos));
    }

    Piece& piece_;
    const std::vector<WrittenPart>& parts_;
    std::vector<WholeMeasure> measures_;
    Marks<Piece::TimeSignature> timeSignatures_;
    Marks<Piece::KeySignature> keySignatures_;
    Marks<Piece::Tempo> tempos_;
};

} // namespace

Piece readMusicXml(std::string_view bytes)
{
    const std::string unpacked = isPackedScore(bytes) ? unpackScore(bytes) : std::string();
    const pugi::xml_document document = parseXml(unpacked.empty() ? bytes : unpacked);
    const pugi::xml_node root = document.document_element();
    const std::string_view kind = root.name();
    if (kind != "score-partwise" && kind != "score-timewise")
        throw FormatError("is not a MusicXML score");
    Piece piece;
    piece.title = root.child("work").child("work-title").text().get();
    if (piece.title.empty())
        piece.title = root.child("movement-title").text().get();
    const auto measures = measuresOf(root);
    std::vector<WrittenPart> parts;
    for (const pugi::xml_node listed : root.child("part-list").children("score-part"))
        if (const auto found = measures.find(listed.attribute("id").value());
            found != measures.end())
            parts.push_back(readPart(listed, found->second));
    if (parts.empty())
        throw FormatError("the score has no parts");
    PiecePlayer(piece, parts).play();
    return piece;
}

} // namespace velmora
