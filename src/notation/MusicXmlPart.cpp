#include "notation/MusicXmlPart.h"

#include "base/FormatError.h"
#include "base/Numbers.h"
#include "notation/WrittenPitch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>

namespace velmora {

namespace {

/// A measure that is longer is damaged.
constexpr double kLongestMeasure = 1e4;

/// The velocity of a "dynamics" of 100, which is forte.
constexpr double kForte = 90.0 / 127.0;

constexpr double kGraceLength = 0.125; ///< In quarter notes.

constexpr int kMostRepeats = 31;

std::optional<double> numberIn(pugi::xml_node element)
{
    const auto number = leadingNumber(element.text().get());
    return number && std::isfinite(*number) ? number : std::nullopt;
}

int integerIn(pugi::xml_node element, int otherwise = 0)
{
    return leadingInteger(element.text().get()).value_or(otherwise);
}

bool isYes(pugi::xml_attribute attribute)
{
    return std::string_view(attribute.value()) == "yes";
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

/// Returns the velocity of a sign such as "mf"; nothing for those that only begin loudly.
std::optional<float> velocityOf(std::string_view sign)
{
    constexpr std::array<std::pair<std::string_view, int>, 8> kSigns = {{{"ppp", 16},
                                                                         {"pp", 33},
                                                                         {"p", 49},
                                                                         {"mp", 64},
                                                                         {"mf", 80},
                                                                         {"f", 96},
                                                                         {"ff", 112},
                                                                         {"fff", 126}}};
    for (const auto& [name, velocity] : kSigns)
        if (name == sign)
            return static_cast<float>(velocity) / 127.0F;
    return std::nullopt;
}

/// Returns the quarter notes a minute of a metronome mark.
std::optional<double> tempoOf(pugi::xml_node metronome)
{
    constexpr std::array<std::pair<std::string_view, double>, 5> kUnits = {
        {{"whole", 4.0}, {"half", 2.0}, {"quarter", 1.0}, {"eighth", 0.5}, {"16th", 0.25}}};
    const std::string_view name = metronome.child("beat-unit").text().get();
    const auto number = numberIn(metronome.child("per-minute"));
    const auto unit = std::ranges::find(kUnits, name, &std::pair<std::string_view, double>::first);
    if (unit == kUnits.end() || !number)
        return std::nullopt;
    return *number * unit->second * (metronome.child("beat-unit-dot") ? 1.5 : 1.0);
}

/// Returns the text of a syllable, with a space behind the last one of a word.
std::string syllableIn(pugi::xml_node lyric)
{
    std::string text;
    for (const pugi::xml_node part : lyric.children()) {
        const std::string_view name = part.name();
        if (name == "text" || name == "elision")
            text += part.text().get();
    }
    const std::string_view syllabic = lyric.child("syllabic").text().get();
    return text.empty() || syllabic == "begin" || syllabic == "middle" ? text : text + ' ';
}

/// Returns the passes that an ending names, as in "1, 2", as bits.
std::uint32_t passesIn(std::string_view numbers)
{
    std::uint32_t passes = 0;
    for (std::size_t at = 0; at < numbers.size(); at = numbers.find(',', at) + 1) {
        const int pass = leadingInteger(numbers.substr(at)).value_or(0);
        if (pass >= 1 && pass <= kMostRepeats)
            passes |= 1U << pass;
        if (numbers.find(',', at) == std::string_view::npos)
            break;
    }
    return passes;
}

} // namespace

MusicXmlMeasure MusicXmlPartReader::read(pugi::xml_node measure)
{
    measure_ = {};
    number_ = measure.attribute("number").value();
    measure_.signs.passes = passes_;
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
            readDirection(element);
        else if (name == "sound")
            readSound(element, 0.0);
        else if (name == "barline")
            readBarLine(element);
    }
    placeGraceNotes(quarters(position_));
    measure_.length = quarters(longest_);
    return std::move(measure_);
}

double MusicXmlPartReader::durationOf(pugi::xml_node element) const
{
    return std::max(numberIn(element.child("duration")).value_or(0.0), 0.0);
}

void MusicXmlPartReader::advance(double duration)
{
    position_ += duration;
    requireInMeasure(position_);
    longest_ = std::max(longest_, position_);
}

void MusicXmlPartReader::requireInMeasure(double position) const
{
    if (!(quarters(position) <= kLongestMeasure))
        throw FormatError("measure " + number_ + " is too long");
}

void MusicXmlPartReader::setDivisions(double divisions)
{
    for (double* position : {&position_, &longest_, &chordStart_})
        *position *= divisions / divisions_;
    divisions_ = divisions;
}

void MusicXmlPartReader::readAttributes(pugi::xml_node attributes)
{
    if (const auto divisions = numberIn(attributes.child("divisions"));
        divisions >= 1.0 && divisions <= 1e6)
        setDivisions(*divisions);
    if (const pugi::xml_node transpose = attributes.child("transpose"))
        readTransposition(transpose);
    if (const auto fifths = numberIn(attributes.child("key").child("fifths")))
        measure_.keySignatures.push_back(
            {quarters(position_),
             static_cast<int>(std::clamp(*fifths + transposedPlaces_, -7.0, 7.0)),
             std::string_view(attributes.child("key").child("mode").text().get()) == "minor"});
    if (const pugi::xml_node time = attributes.child("time"))
        readTime(time);
}

void MusicXmlPartReader::readTransposition(pugi::xml_node transpose)
{
    const int chromatic = std::clamp(integerIn(transpose.child("chromatic")), -36, 36);
    const int diatonic = std::clamp(integerIn(transpose.child("diatonic")), -21, 21);
    const int octaves = std::clamp(integerIn(transpose.child("octave-change")), -4, 4);
    transposedKeys_ = chromatic + 12 * octaves;
    transposedPlaces_ = transpose.child("diatonic") ? 7 * chromatic - 12 * diatonic : 0;
}

void MusicXmlPartReader::readTime(pugi::xml_node time)
{
    int beats = 0;
    // A compound signature such as "3+2" is that of a bar of five.
    for (std::string_view text = time.child("beats").text().get(); !text.empty();) {
        beats += std::clamp(leadingInteger(text).value_or(0), 0, 100);
        const auto plus = text.find('+');
        text.remove_prefix(plus == std::string_view::npos ? text.size() : plus + 1);
    }
    const int unit = integerIn(time.child("beat-type"));
    if (beats >= 1 && beats <= 64 && unit >= 1 && unit <= 32 && (unit & (unit - 1)) == 0)
        measure_.timeSignatures.push_back({quarters(position_), beats, unit});
}

void MusicXmlPartReader::readDirection(pugi::xml_node direction)
{
    const pugi::xml_node sound = direction.child("sound");
    const double offset = numberIn(direction.child("offset")).value_or(0.0);
    for (const pugi::xml_node type : direction.children("direction-type")) {
        const auto tempo = tempoOf(type.child("metronome"));
        if (tempo >= 1.0 && tempo <= 10000.0 && !sound.attribute("tempo"))
            measure_.tempos.push_back({std::max(quarters(position_ + offset), 0.0), *tempo});
        for (const pugi::xml_node sign : type.child("dynamics"))
            velocity_ = velocityOf(sign.name()).value_or(velocity_);
    }
    readSound(sound, offset);
}

void MusicXmlPartReader::readSound(pugi::xml_node sound, double offset)
{
    const double tempo = sound.attribute("tempo").as_double();
    if (tempo >= 1.0 && tempo <= 10000.0)
        measure_.tempos.push_back({std::max(quarters(position_ + offset), 0.0), tempo});
    if (const double dynamics = sound.attribute("dynamics").as_double(); dynamics > 0.0)
        velocity_ = static_cast<float>(std::min(dynamics / 100.0 * kForte, 1.0));
    MeasureSigns& signs = measure_.signs;
    signs.leadsToStart = signs.leadsToStart || isYes(sound.attribute("dacapo"));
    signs.isFine = signs.isFine || isYes(sound.attribute("fine"));
    signs.leadsToSegno = signs.leadsToSegno || sound.attribute("dalsegno");
    signs.isSegno = signs.isSegno || sound.attribute("segno");
    signs.leadsToCoda = signs.leadsToCoda || sound.attribute("tocoda");
    signs.isCoda = signs.isCoda || sound.attribute("coda");
}

void MusicXmlPartReader::readBarLine(pugi::xml_node barLine)
{
    if (const pugi::xml_node ending = barLine.child("ending")) {
        if (std::string_view(ending.attribute("type").value()) == "start") {
            passes_ = measure_.signs.passes = passesIn(ending.attribute("number").value());
        } else {
            passes_ = 0;
        }
    }
    if (const pugi::xml_node repeat = barLine.child("repeat")) {
        if (std::string_view(repeat.attribute("direction").value()) == "forward")
            measure_.signs.beginsRepeat = true;
        else
            measure_.signs.times = std::clamp(repeat.attribute("times").as_int(2), 2, kMostRepeats);
    }
}

std::optional<Piece::Note> MusicXmlPartReader::soundOf(pugi::xml_node note) const
{
    const double dynamics = note.attribute("dynamics").as_double();
    Piece::Note sound{.velocity = dynamics > 0.0
                                      ? static_cast<float>(std::min(dynamics / 100.0 * kForte, 1.0))
                                      : velocity_};
    if (note.child("unpitched")) {
        const auto found = unpitched_.find(note.child("instrument").attribute("id").value());
        if (found == unpitched_.end())
            return std::nullopt;
        sound.key = found->second;
        return sound;
    }
    const auto pitch = pitchIn(note.child("pitch"));
    const int key = pitch ? pitch->key() + transposedKeys_ : -1;
    if (key < 0 || key > 127)
        return std::nullopt;
    sound.key = static_cast<unsigned>(key);
    sound.place = pitch->place() + transposedPlaces_;
    return sound;
}

void MusicXmlPartReader::readNote(pugi::xml_node note)
{
    if (note.child("cue"))
        return;
    const bool isGrace = static_cast<bool>(note.child("grace"));
    const bool isInChord = static_cast<bool>(note.child("chord"));
    const double length = durationOf(note);
    const double start = isInChord ? chordStart_ : position_;
    requireInMeasure(start + length);
    if (!isInChord && !isGrace) {
        placeGraceNotes(quarters(position_));
        chordStart_ = position_;
        advance(length);
    }
    const auto sound = soundOf(note);
    if (!sound || (length <= 0.0 && !isGrace))
        return;
    MusicXmlMeasure::Note played{*sound, integerIn(note.child("staff"), 1), false, false, {}};
    if (isGrace) {
        // A chord of grace notes shares its place.
        played.note.length = isInChord ? 0.0 : kGraceLength;
        grace_.push_back(std::move(played));
        return;
    }
    played.note.start = quarters(start);
    played.note.length = quarters(length);
    for (const pugi::xml_node tie : note.children("tie")) {
        const std::string_view type = tie.attribute("type").value();
        played.startsTie = played.startsTie || type == "start";
        played.stopsTie = played.stopsTie || type == "stop";
    }
    for (const pugi::xml_node lyric : note.children("lyric"))
        if (std::string text = syllableIn(lyric); !text.empty())
            played.lyrics.emplace_back(lyric.attribute("number").as_int(1), std::move(text));
    measure_.notes.push_back(std::move(played));
}

/// Lets the grace notes that wait sound just before a moment.
void MusicXmlPartReader::placeGraceNotes(double start)
{
    for (std::size_t i = grace_.size(); i-- > 0;) {
        Piece::Note& note = grace_[i].note;
        const bool isInChord = note.length == 0.0;
        note.length = kGraceLength;
        note.start = start - kGraceLength;
        if (!isInChord)
            start -= kGraceLength;
    }
    measure_.notes.insert(measure_.notes.end(), grace_.begin(), grace_.end());
    grace_.clear();
}

} // namespace velmora
