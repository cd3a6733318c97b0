#include "notation/readMusicXml.h"

#include "base/FormatError.h"
#include "base/Numbers.h"
#include "base/parseXml.h"
#include "notation/WrittenPitch.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

namespace velmora {

namespace {

/// Positions beyond this are damage: weeks of music.
constexpr double kLongestPiece = 1e6;

/// The velocity of a "dynamics" of 100, which is forte.
constexpr double kForte = 90.0 / 127.0;

/// Returns the number in an element, or nothing if there is none.
std::optional<double> numberIn(pugi::xml_node element)
{
    const auto number = leadingNumber(element.text().get());
    return number && std::isfinite(*number) ? number : std::nullopt;
}

int integerIn(pugi::xml_node element, int otherwise = 0)
{
    return leadingInteger(element.text().get()).value_or(otherwise);
}

std::optional<WrittenPitch> pitchIn(pugi::xml_node element)
{
    const std::string_view step = element.child("step").text().get();
    const int octave = integerIn(element.child("octave"), -1);
    if (step.size() != 1 || step.front() < 'A' || step.front() > 'G' || octave < 0 || octave > 10)
        return std::nullopt;
    // Quarter tones are rounded: a key has no pitch between two others.
    const double alteration = std::clamp(numberIn(element.child("alter")).value_or(0.0), -3.0, 3.0);
    return WrittenPitch{step.front(), static_cast<int>(std::lround(alteration)), octave};
}

/// Reads the measures of a part one after the other.
class PartReader {
public:
    PartReader(Piece& piece, Piece::Part& part) : piece_(piece), part_(part) {}

    void readMeasure(pugi::xml_node measure)
    {
        barStart_ += longest_ / divisions_;
        position_ = longest_ = chordStart_ = 0.0;
        for (const pugi::xml_node element : measure) {
            const std::string_view name = element.name();
            if (name == "attributes")
                readAttributes(element);
            else if (name == "note")
                readNote(element);
            else if (name == "backup")
                position_ = std::max(position_ - durationOf(element), 0.0);
            else if (name == "forward")
                advance(durationOf(element));
            else if (name == "direction")
                readSound(element.child("sound"), numberIn(element.child("offset")).value_or(0.0));
            else if (name == "sound")
                readSound(element, 0.0);
        }
    }

private:
    double durationOf(pugi::xml_node element) const
    {
        return std::max(numberIn(element.child("duration")).value_or(0.0), 0.0);
    }

    /// Returns the quarter notes from the beginning of the piece to a position in the bar.
    double quarters(double position) const { return barStart_ + position / divisions_; }

    void advance(double duration)
    {
        position_ += duration;
        if (quarters(position_) > kLongestPiece)
            throw FormatError("the music is too long");
        longest_ = std::max(longest_, position_);
    }

    void setDivisions(double divisions)
    {
        for (double* position : {&position_, &longest_, &chordStart_})
            *position *= divisions / divisions_;
        divisions_ = divisions;
    }

    void readAttributes(pugi::xml_node attributes)
    {
        if (const auto divisions = numberIn(attributes.child("divisions")); divisions > 0.0)
            setDivisions(*divisions);
        if (const auto fifths = numberIn(attributes.child("key").child("fifths")))
            piece_.keySignatures.push_back(
                {quarters(position_), static_cast<int>(std::clamp(*fifths, -7.0, 7.0)),
                 std::string_view(attributes.child("key").child("mode").text().get()) == "minor"});
        if (const pugi::xml_node time = attributes.child("time"))
            readTime(time);
        if (const pugi::xml_node transpose = attributes.child("transpose")) {
            const int chromatic = std::clamp(integerIn(transpose.child("chromatic")), -36, 36);
            const int diatonic = std::clamp(integerIn(transpose.child("diatonic")), -21, 21);
            const int octaves = std::clamp(integerIn(transpose.child("octave-change")), -4, 4);
            transposedKeys_ = chromatic + 12 * octaves;
            transposedPlaces_ = transpose.child("diatonic") ? 7 * chromatic - 12 * diatonic : 0;
        }
    }

    void readTime(pugi::xml_node time)
    {
        int beats = 0;
        // A compound signature such as "3+2" is that of a bar of five.
        for (std::string_view text = time.child("beats").text().get(); !text.empty();) {
            beats += leadingInteger(std::string(text)).value_or(0);
            const auto plus = text.find('+');
            text.remove_prefix(plus == std::string_view::npos ? text.size() : plus + 1);
        }
        const int unit = integerIn(time.child("beat-type"));
        if (beats >= 1 && beats <= 64 && unit >= 1 && unit <= 32 && (unit & (unit - 1)) == 0)
            piece_.timeSignatures.push_back({quarters(position_), beats, unit});
    }

    void readSound(pugi::xml_node sound, double offset)
    {
        const double tempo = sound.attribute("tempo").as_double();
        if (tempo >= 1.0 && tempo <= 10000.0)
            piece_.tempos.push_back({std::max(quarters(position_ + offset), 0.0), tempo});
        if (const double dynamics = sound.attribute("dynamics").as_double(); dynamics > 0.0)
            velocity_ = static_cast<float>(std::min(dynamics / 100.0 * kForte, 1.0));
    }

    void readNote(pugi::xml_node note)
    {
        if (note.child("grace") || note.child("cue"))
            return;
        const double length = durationOf(note);
        const double start = note.child("chord") ? chordStart_ : position_;
        if (!note.child("chord")) {
            chordStart_ = position_;
            advance(length);
        }
        const auto pitch = pitchIn(note.child("pitch"));
        if (!pitch || length <= 0.0)
            return;
        const int key = pitch->key() + transposedKeys_;
        if (key < 0 || key > 127)
            return;
        bool startsTie = false, stopsTie = false;
        for (const pugi::xml_node tie : note.children("tie")) {
            const std::string_view type = tie.attribute("type").value();
            startsTie = startsTie || type == "start";
            stopsTie = stopsTie || type == "stop";
        }
        addNote({.start = quarters(start),
                 .length = length / divisions_,
                 .key = static_cast<unsigned>(key),
                 .place = pitch->place() + transposedPlaces_,
                 .velocity = velocity_},
                startsTie, stopsTie);
    }

    void addNote(const Piece::Note& note, bool startsTie, bool stopsTie)
    {
        std::size_t index = part_.notes.size();
        if (const auto tied = stopsTie ? tiedTo(note) : tied_.end(); tied != tied_.end()) {
            index = *tied;
            tied_.erase(tied);
            Piece::Note& earlier = part_.notes[index];
            earlier.length = note.start + note.length - earlier.start;
        } else {
            part_.notes.push_back(note);
        }
        if (startsTie)
            tied_.push_back(index);
    }

    /// Finds the note that a tie leads on from. Voices are read one after the other, so that other
    /// notes of the same key may have begun to be tied meanwhile.
    std::vector<std::size_t>::iterator tiedTo(const Piece::Note& note)
    {
        constexpr double kNear = 1e-6;
        return std::ranges::find_if(tied_, [&](std::size_t index) {
            const Piece::Note& earlier = part_.notes[index];
            return earlier.key == note.key &&
                   std::abs(earlier.start + earlier.length - note.start) < kNear;
        });
    }

    Piece& piece_;
    Piece::Part& part_;
    double divisions_ = 1.0; ///< Of a quarter note; the unit of the positions in the bar.
    double barStart_ = 0.0;  ///< In quarter notes.
    double position_ = 0.0, longest_ = 0.0, chordStart_ = 0.0;
    int transposedKeys_ = 0, transposedPlaces_ = 0;
    float velocity_ = 0.8F;
    std::vector<std::size_t> tied_; ///< The notes that a tie leads on from.
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

/// Puts what the parts say about the whole piece in order, each once.
template <class Mark> void tidy(std::vector<Mark>& marks)
{
    std::ranges::stable_sort(marks, {}, &Mark::start);
    marks.erase(std::unique(marks.begin(), marks.end()), marks.end());
}

} // namespace

Piece readMusicXml(std::string_view text)
{
    const pugi::xml_document document = parseXml(text);
    const pugi::xml_node root = document.document_element();
    const std::string_view kind = root.name();
    if (kind != "score-partwise" && kind != "score-timewise")
        throw FormatError("is not a MusicXML score");
    Piece piece;
    piece.title = root.child("work").child("work-title").text().get();
    if (piece.title.empty())
        piece.title = root.child("movement-title").text().get();
    const auto measures = measuresOf(root);
    for (const pugi::xml_node listed : root.child("part-list").children("score-part")) {
        const auto found = measures.find(listed.attribute("id").value());
        if (found == measures.end())
            continue;
        piece.parts.push_back({listed.child("part-name").text().get(), {}});
        PartReader reader(piece, piece.parts.back());
        for (const pugi::xml_node measure : found->second)
            reader.readMeasure(measure);
    }
    tidy(piece.timeSignatures);
    tidy(piece.keySignatures);
    tidy(piece.tempos);
    return piece;
}

} // namespace velmora
