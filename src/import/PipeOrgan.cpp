#include "import/PipeOrgan.h"

#include "base/FormatError.h"
#include "import/Import.h"
#include "import/MemoryNeeds.h"
#include "import/ParallelLoader.h"
#include "import/PipeVoice.h"
#include "import/pipePitch.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace velmora {

namespace {

/// Approximate number of progress updates.
constexpr std::size_t kUpdatesOfPipeOrgan = 200;

/// More files than this that fail for the same reason are reported as a number.
constexpr std::size_t kFilesNamed = 3;

/// Everything that makes two pipes sound from the same recordings.
using VoiceKey = std::vector<std::uint64_t>;

VoiceKey voiceKeyOf(const PipeOrgan::Pipe& pipe)
{
    constexpr std::uint64_t kNone = UINT64_MAX;
    VoiceKey key{pipe.isPercussive ? 1U : 0U, pipe.attacks.size()};
    for (const PipeOrgan::Attack& attack : pipe.attacks) {
        key.insert(key.end(), {attack.file, attack.hasOwnRelease ? 1U : 0U,
                               attack.cue ? *attack.cue : kNone, attack.loops.size()});
        for (const Loop& loop : attack.loops)
            key.insert(key.end(), {loop.begin, loop.end});
    }
    for (const PipeOrgan::Release& release : pipe.releases)
        key.insert(key.end(), {release.file, release.cue ? *release.cue : kNone});
    return key;
}

/// The recordings of an organ's pipes, each only once, in the order in which ranks need them.
struct VoiceList {
    VoiceList(const PipeOrgan& organ, const std::vector<std::size_t>& order)
    {
        std::map<VoiceKey, std::size_t> known;
        ofPipes.resize(organ.ranks.size());
        for (const std::size_t rank : order) {
            for (const PipeOrgan::Pipe& pipe : organ.ranks[rank].pipes) {
                const auto [voice, isNew] = known.try_emplace(voiceKeyOf(pipe), pipes.size());
                if (isNew)
                    pipes.push_back(&pipe);
                ofPipes[rank].push_back(voice->second);
            }
        }
    }

    std::vector<const PipeOrgan::Pipe*> pipes;     ///< A pipe with each voice.
    std::vector<std::vector<std::size_t>> ofPipes; ///< The voice of each pipe of each rank.
};

/// A voice whose sounds the instrument has.
struct LoadedVoice {
    struct Recording {
        std::size_t index = 0; ///< In the pipe's list.
        const Sound* sound = nullptr;
        std::optional<double> note; ///< In the sample file.
    };
    struct OwnRelease {
        const Sound* sound = nullptr; ///< Null if the attack has none.
        std::shared_ptr<const ReleaseAlignment> alignment;
    };

    std::vector<Recording> attacks;
    std::vector<OwnRelease> ownReleases; ///< Of the attacks.
    std::vector<Recording> releases;
    std::vector<std::vector<std::shared_ptr<const ReleaseAlignment>>> alignments;
    std::vector<std::pair<std::size_t, std::string>> skipped;
};

/// Returns the ranks of the stops that are drawn, then the others.
std::vector<std::size_t> orderOfRanks(const PipeOrgan& organ)
{
    std::set<std::size_t> drawn;
    for (const ConsoleDefinition::Stop& stop : organ.console.stops) {
        for (const ConsoleDefinition::Pipes& pipes : stop.pipes) {
            if (stop.isDrawn)
                drawn.insert(pipes.rank);
        }
    }
    std::vector<std::size_t> result(drawn.begin(), drawn.end());
    for (std::size_t rank = 0; rank < organ.ranks.size(); ++rank) {
        if (!drawn.contains(rank))
            result.push_back(rank);
    }
    return result;
}

class PipeOrganLoading {
public:
    PipeOrganLoading(const PipeOrgan& organ, Import& import)
        : organ_(organ), import_(import), order_(orderOfRanks(organ)), list_(organ, order_),
          loader_({list_.pipes.size(),
                   [this, options = import.decoding()](std::size_t voice) {
                       return loadPipeVoice(organ_, *list_.pipes[voice], options);
                   },
                   [](std::size_t) { return 0; }})
    {
        for (const std::size_t rank : order_) {
            for (const PipeOrgan::Pipe& pipe : organ.ranks[rank].pipes) {
                for (const PipeOrgan::Attack& attack : pipe.attacks)
                    expected_[attack.file].push_back(expectedNote(pipe));
            }
        }
        import.host.startProgress(static_cast<long>(list_.pipes.size()));
    }

    void load()
    {
        for (const std::size_t rank : order_)
            loadRank(rank);
        import_.host.updateProgress(static_cast<unsigned>(voices_.size() % step()), organ_.name);
    }

private:
    void loadRank(std::size_t rank)
    {
        const std::vector<std::size_t>& voices = list_.ofPipes[rank];
        for (const std::size_t voice : voices) {
            if (voice == voices_.size())
                takeVoice();
        }
        const RankPitch pitch = pitchOf(rank);
        InstrumentStop& stop = import_.instrument->stops().at(rank);
        for (std::size_t i = 0; i < voices.size(); ++i) {
            const PipeOrgan::Pipe& pipe = organ_.ranks[rank].pipes[i];
            Sample& sample = stop.samples.at(static_cast<std::size_t>(pipe.key));
            if (sample.source() != 0 || voices_[voices[i]].attacks.empty())
                continue;
            enter(pipe, voices_[voices[i]], pitch, sample);
            ++import_.report.pipes;
        }
        report(rank);
    }

    /// Waits for the next voice and gives its sounds to the instrument.
    void takeVoice()
    {
        if (import_.host.isCancelled())
            throw Cancelled{};
        const PipeOrgan::Pipe& pipe = *list_.pipes[voices_.size()];
        PipeVoice voice = loader_.next();
        LoadedVoice& loaded = voices_.emplace_back();
        loaded.skipped = std::move(voice.skipped);
        const Sound* beside = nullptr;
        for (PipeVoice::Attack& attack : voice.attacks) {
            const std::size_t file = pipe.attacks[attack.index].file;
            const Sound& sound = add(attack.sound.attack, attack.sound.loop, beside, file);
            beside = &sound;
            loaded.attacks.push_back({attack.index, &sound, attack.note});
            LoadedVoice::OwnRelease& own = loaded.ownReleases.emplace_back();
            own.alignment = std::move(attack.alignment);
            if (own.alignment)
                own.sound = &add(attack.sound.release, {}, beside, file);
        }
        for (PipeVoice::Release& release : voice.releases) {
            const std::size_t file = pipe.releases[release.index].file;
            loaded.releases.push_back(
                {release.index, &add(release.sound, {}, beside, file), release.note});
            loaded.alignments.push_back(std::move(release.alignments));
        }
        if (voices_.size() % step() == 0)
            import_.host.updateProgress(static_cast<unsigned>(step()),
                                        organ_.files[pipe.attacks.front().file]);
    }

    const Sound& add(const Pcm& pcm, const std::optional<Loop>& loop, const Sound* beside,
                     std::size_t file)
    {
        auto sound = std::make_unique<Sound>(import_.instrument->renderer(), pcm, loop, beside);
        import_.instrument->usage += sound->size();
        ++import_.report.samples;
        std::string name = organ_.files[file];
        for (int number = 2; import_.instrument->sounds.contains(name); ++number)
            name = fmt::format("{} ({})", organ_.files[file], number);
        return *(import_.instrument->sounds[name] = std::move(sound));
    }

    RankPitch pitchOf(std::size_t rank) const
    {
        std::vector<RecordedPitch> recordings;
        for (std::size_t i = 0; i < organ_.ranks[rank].pipes.size(); ++i) {
            const PipeOrgan::Pipe& pipe = organ_.ranks[rank].pipes[i];
            const LoadedVoice& voice = voices_[list_.ofPipes[rank][i]];
            if (!voice.attacks.empty())
                recordings.push_back(
                    {expectedNote(pipe), voice.attacks.front().note, pipe.harmonicNumber});
        }
        return RankPitch(recordings);
    }

    /// Returns how a recording sounds, in hertz. `take` is the attack or release.
    template <class Take> double hertzOf(const PipeOrgan::Pipe& pipe, const Take& take,
                                         std::optional<double> note, const RankPitch& pitch) const
    {
        if (take.hertz || pipe.hertz)
            return take.hertz ? *take.hertz : *pipe.hertz;
        const auto others = expected_.find(take.file);
        return hertzOfNote(
            pitch.noteOf({expectedNote(pipe), note, pipe.harmonicNumber},
                         others == expected_.end() ? std::span<const double>() : others->second));
    }

    /// Returns the root pitch of a recording: the key plays it with the ratio of the key's pitch to
    /// that. See docs/decisions.md, 31.
    static double rootPitchOf(const PipeOrgan::Pipe& pipe, double hertz)
    {
        constexpr double kOctave = 2.0; // temperaments count an octave higher
        return kOctave * hertz * 8.0 / pipe.harmonicNumber / std::exp2(pipe.cents / 1200.0);
    }

    void enter(const PipeOrgan::Pipe& pipe, const LoadedVoice& voice, const RankPitch& pitch,
               Sample& sample) const
    {
        for (const LoadedVoice::Recording& recording : voice.attacks) {
            const PipeOrgan::Attack& attack = pipe.attacks[recording.index];
            const double hertz = hertzOf(pipe, attack, recording.note, pitch);
            sample.addAttack({recording.sound, rootPitchOf(pipe, hertz), pipe.gain, attack.softest,
                              attack.loudest});
        }
        for (std::size_t i = 0; i < voice.attacks.size(); ++i) {
            if (voice.ownReleases[i].sound == nullptr)
                continue;
            Sample::Release release{voice.ownReleases[i].sound, sample.attacks()[i].rootPitch,
                                    pipe.gain};
            release.alignments.resize(i + 1);
            release.alignments[i] = voice.ownReleases[i].alignment;
            sample.addRelease(release);
        }
        for (std::size_t i = 0; i < voice.releases.size(); ++i) {
            const LoadedVoice::Recording& recording = voice.releases[i];
            const PipeOrgan::Release& release = pipe.releases[recording.index];
            const bool isKnown = release.hertz || pipe.hertz || recording.note;
            const double rootPitch =
                isKnown ? rootPitchOf(pipe, hertzOf(pipe, release, recording.note, pitch))
                        : sample.rootPitch();
            sample.addRelease(
                {recording.sound, rootPitch, pipe.gain, release.longestHeld, voice.alignments[i]});
        }
        if (pipe.isPercussive)
            sample.setPercussive();
    }

    /// Reports which files of a rank could not be used.
    void report(std::size_t rank)
    {
        std::map<std::string, std::set<std::size_t>> files; // by reason
        for (const std::size_t voice : list_.ofPipes[rank]) {
            for (const auto& [file, why] : voices_[voice].skipped)
                files[why].insert(file);
        }
        const auto said = [&](std::size_t file) {
            return fmt::format("{}: {}", organ_.ranks[rank].name,
                               organ_.tree->displayName(organ_.files[file]));
        };
        auto& skipped = import_.report.skipped;
        for (const auto& [why, failed] : files) {
            if (failed.size() > kFilesNamed) {
                skipped.emplace_back(
                    said(*failed.begin()),
                    fmt::format("{}; the same holds for {} other files of this rank", why,
                                failed.size() - 1));
                continue;
            }
            for (const std::size_t file : failed)
                skipped.emplace_back(said(file), why);
        }
    }

    std::size_t step() const { return list_.pipes.size() / kUpdatesOfPipeOrgan + 1; }

    const PipeOrgan& organ_;
    Import& import_;
    const std::vector<std::size_t> order_; ///< In which the ranks are loaded.
    const VoiceList list_;
    std::map<std::size_t, std::vector<double>> expected_; ///< The notes expected of each file.
    std::vector<LoadedVoice> voices_;
    ParallelLoader<PipeVoice> loader_; ///< Last, since its threads use the list.
};

/// True if a key of the stop has a pipe with a sound.
bool canSound(const ConsoleDefinition::Stop& stop, const std::vector<InstrumentStop>& ranks)
{
    return std::ranges::any_of(stop.pipes, [&](const ConsoleDefinition::Pipes& pipes) {
        for (int i = 0; i < pipes.count; ++i) {
            const auto key =
                static_cast<std::size_t>(pipes.firstPipe) + static_cast<std::size_t>(i);
            if (key < kKeys && ranks.at(pipes.rank).samples[key].source() != 0)
                return true;
        }
        return false;
    });
}

/// Unless a stop that can sound is drawn, draws the first one of each division, so that every
/// keyboard sounds.
void drawStops(ConsoleDefinition& console, std::vector<InstrumentStop>& ranks)
{
    const auto sounds = [&](const ConsoleDefinition::Stop& stop) { return canSound(stop, ranks); };
    const auto isDrawn = [&](const ConsoleDefinition::Stop& stop) {
        return stop.isDrawn && sounds(stop);
    };
    if (std::ranges::none_of(console.stops, isDrawn)) {
        std::set<std::size_t> divisions;
        for (ConsoleDefinition::Stop& stop : console.stops)
            if (sounds(stop) && divisions.insert(stop.division).second)
                stop.isDrawn = true;
    }
    constexpr float kDrawn = 0.5F; // shown as 1: see docs/decisions.md, 22
    for (const ConsoleDefinition::Stop& stop : console.stops) {
        for (const ConsoleDefinition::Pipes& pipes : stop.pipes) {
            if (stop.isDrawn)
                ranks.at(pipes.rank).volume = kDrawn;
        }
    }
}

} // namespace

void loadPipeOrgan(const PipeOrgan& organ, Import& import)
{
    if (organ.files.empty())
        throw FormatError("cannot be played: no pipe has a sample file");
    requireMemory(organ, import);
    import.name = organ.name;
    import.report.skipped = organ.skipped;
    for (const PipeOrgan::Rank& rank : organ.ranks) {
        InstrumentStop& stop = import.instrument->appendStop(rank.name);
        if (rank.division)
            stop.swell = static_cast<std::uint8_t>(std::min<std::size_t>(*rank.division + 1, 255));
    }
    PipeOrganLoading(organ, import).load();
    if (import.report.pipes == 0) {
        const auto& [file, reason] = import.report.skipped.back();
        throw FormatError("cannot be played: none of its sample files can be used, for example " +
                          file + ": " + reason);
    }
    import.console = organ.console;
    drawStops(*import.console, import.instrument->stops());
    import.countRanks();
}

} // namespace velmora
