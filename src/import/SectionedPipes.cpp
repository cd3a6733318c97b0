#include "import/SectionedPipes.h"

#include "base/Text.h"
#include "import/pipePitch.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace velmora {

namespace {

constexpr double kFullAmplitude = 100.0; // percent
constexpr int kMaximumTakes = 999;       // the numbers have three digits
constexpr double kCents = 100.0;         // in a semitone
constexpr float kLoudest = 127.0F;

/// Returns a frame number of a key, or nothing if the key says that the sample file knows it.
std::optional<std::uint32_t> frame(const OrganSection& section, const std::string& key)
{
    const int value = section.integer(key, -1);
    return value < 0 ? std::nullopt : std::optional(static_cast<std::uint32_t>(value));
}

int count(const OrganSection& section, const std::string& key)
{
    return std::clamp(section.integer(key, 0), 0, kMaximumTakes);
}

/// Returns how long the key may have been held, in seconds.
double longestHeld(const OrganSection& section, const std::string& prefix)
{
    const int milliseconds = section.integer(prefix + "maxkeypresstime", -1);
    return milliseconds < 0 ? std::numeric_limits<double>::infinity() : milliseconds / 1000.0;
}

std::vector<Loop> loops(const OrganSection& section, const std::string& prefix)
{
    std::vector<Loop> result;
    for (int i = 1; i <= count(section, prefix + "loopcount"); ++i) {
        const auto begin = frame(section, fmt::format("{}loop{}start", prefix, i));
        const auto last = frame(section, fmt::format("{}loop{}end", prefix, i));
        if (!last)
            break;
        if (*last > begin.value_or(0))
            result.push_back({begin.value_or(0), *last + 1});
    }
    return result;
}

/// Which of a pipe's recordings is meant.
enum class Take : std::uint8_t {
    Plain,
    Repetition, ///< For keys that are struck again soon.
    Tremulant,
};

Take takeOf(const OrganSection& section, const std::string& prefix)
{
    if (section.integer(prefix + "istremulant", -1) == 1)
        return Take::Tremulant;
    return section.integer(prefix + "maxtimesincelastrelease", -1) < 0 ? Take::Plain
                                                                       : Take::Repetition;
}

/// Gives each attack the velocities from its own lowest one up to the next higher one.
void divideVelocities(std::vector<PipeOrgan::Attack>& attacks)
{
    for (PipeOrgan::Attack& attack : attacks) {
        attack.loudest = 1.0F;
        for (const PipeOrgan::Attack& other : attacks) {
            if (other.softest > attack.softest)
                attack.loudest = std::min(attack.loudest, other.softest);
        }
    }
    const auto softest = std::ranges::min(attacks, {}, &PipeOrgan::Attack::softest).softest;
    for (PipeOrgan::Attack& attack : attacks) {
        if (attack.softest == softest)
            attack.softest = 0.0F;
    }
}

} // namespace

void SectionedPipes::Voicing::add(const OrganSection& section, const std::string& prefix)
{
    const double amplitude = section.number(prefix + "amplitudelevel", kFullAmplitude);
    const double decibels = section.number(prefix + "gain", 0.0);
    gain *= std::max(amplitude, 0.0) / kFullAmplitude * std::pow(10.0, decibels / 20.0);
    retuning += section.number(prefix + "pitchtuning", 0.0);
    correction += section.number(prefix + "pitchcorrection", 0.0);
}

const OrganSection* SectionedPipes::windchest(const OrganSection& section) const
{
    return sections_.find(fmt::format("windchestgroup{}", section.integer("windchestgroup", 0)));
}

SectionedPipes::Voicing SectionedPipes::voicing(const OrganSection& section,
                                                const std::string& pipe) const
{
    Voicing result;
    for (const OrganSection* level : {sections_.find("organ"), windchest(section), &section}) {
        if (level != nullptr)
            result.add(*level, "");
    }
    result.add(section, pipe);
    return result;
}

std::optional<PipeOrgan::Pipe> SectionedPipes::read(const OrganSection& section, int number,
                                                    int key, int octaves)
{
    const std::string prefix = fmt::format("pipe{}", number);
    PipeOrgan::Pipe pipe;
    pipe.key = key;
    pipe.isPercussive = section.isTrue(prefix + "percussive", section.isTrue("percussive", false));
    pipe.harmonicNumber =
        section.number(prefix + "harmonicnumber", section.number("harmonicnumber", 8.0));
    if (!(pipe.harmonicNumber > 0.0) || pipe.harmonicNumber > 1024.0)
        pipe.harmonicNumber = 8.0;
    pipe.harmonicNumber = std::ldexp(pipe.harmonicNumber, octaves);
    setPitch(section, prefix, pipe);
    addAttacks(section, number, pipe);
    if (pipe.attacks.empty())
        return std::nullopt;
    addReleases(section, number, pipe);
    return pipe;
}

void SectionedPipes::setPitch(const OrganSection& section, const std::string& prefix,
                              PipeOrgan::Pipe& pipe) const
{
    const Voicing voicing = this->voicing(section, prefix);
    pipe.gain = static_cast<float>(std::min(voicing.gain, 1e6));
    // See docs/decisions.md, 151.
    pipe.retuning = voicing.retuning;
    pipe.cents = voicing.correction;
    const int recordedKey = section.integer(prefix + "midikeynumber", -1);
    if (!section.isTrue(prefix + "acceptsretuning", section.isTrue("acceptsretuning", true))) {
        pipe.hertz = hertzOfNote(pipe.key - pipe.retuning / kCents) * pipe.harmonicNumber / 8.0;
    } else if (recordedKey >= 0 && recordedKey < static_cast<int>(kKeys)) {
        pipe.hertz =
            hertzOfNote(recordedKey + section.number(prefix + "midipitchfraction", 0.0) / kCents);
    }
}

void SectionedPipes::addAttacks(const OrganSection& section, int number, PipeOrgan::Pipe& pipe)
{
    std::map<Take, std::vector<std::string>> takes;
    const std::string first = fmt::format("pipe{}", number);
    takes[takeOf(section, first)].push_back(first);
    for (int i = 1; i <= count(section, first + "attackcount"); ++i) {
        const std::string prefix = fmt::format("{}attack{}", first, i);
        if (section.text(prefix).empty()) {
            omissions_.addPipe(section, number, "an attack has no sample file");
            break;
        }
        takes[takeOf(section, prefix)].push_back(prefix);
    }
    if (takes.contains(Take::Tremulant))
        omissions_.addPipe(section, number, "recordings with the tremulant are not played");
    if (takes.contains(Take::Plain) && takes.contains(Take::Repetition))
        omissions_.addPipe(section, number, "recordings for quick repetitions are not played");

    const auto chosen = takes.contains(Take::Plain) ? Take::Plain : Take::Repetition;
    for (const std::string& prefix : takes[chosen])
        pipe.attacks.push_back(attack(section, prefix, pipe));
    if (!pipe.attacks.empty())
        divideVelocities(pipe.attacks);
}

PipeOrgan::Attack SectionedPipes::attack(const OrganSection& section, const std::string& prefix,
                                         PipeOrgan::Pipe& pipe)
{
    PipeOrgan::Attack attack;
    attack.file = fileIndex(section.text(prefix));
    attack.loops = loops(section, prefix);
    attack.cue = frame(section, prefix + "cuepoint");
    attack.hasOwnRelease = section.isTrue(prefix + "loadrelease", !pipe.isPercussive);
    const int velocity = std::clamp(section.integer(prefix + "attackvelocity", 0), 0, 127);
    attack.softest = static_cast<float>(velocity) / kLoudest;
    // An attack whose own release is for short notes only is a release of its own for them.
    if (const double held = longestHeld(section, prefix);
        attack.hasOwnRelease && std::isfinite(held)) {
        pipe.releases.push_back({attack.file, attack.cue, held, {}});
        attack.hasOwnRelease = false;
    }
    return attack;
}

void SectionedPipes::addReleases(const OrganSection& section, int number, PipeOrgan::Pipe& pipe)
{
    const std::string first = fmt::format("pipe{}", number);
    for (int i = 1; i <= count(section, first + "releasecount"); ++i) {
        const std::string prefix = fmt::format("{}release{}", first, i);
        const std::string file = section.text(prefix);
        if (file.empty()) {
            omissions_.addPipe(section, number, "a release has no sample file");
            break;
        }
        if (takeOf(section, prefix) != Take::Tremulant)
            pipe.releases.push_back({fileIndex(file),
                                     frame(section, prefix + "cuepoint"),
                                     longestHeld(section, prefix),
                                     {}});
    }
}

std::size_t SectionedPipes::fileIndex(const std::string& name)
{
    std::string spelling = lowerCase(name);
    std::ranges::replace(spelling, '\\', '/');
    const auto [index, isNew] = indices_.try_emplace(spelling, files_.size());
    if (isNew)
        files_.push_back(name);
    return index->second;
}

} // namespace velmora
