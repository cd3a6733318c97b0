#include "import/PipeOrgan.h"

#include "base/FormatError.h"
#include "import/Import.h"
#include "import/MemoryNeeds.h"
#include "import/ParallelLoader.h"
#include "import/PipeVoice.h"
#include "import/VoiceList.h"
#include "import/openingStops.h"
#include "import/pipePitch.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <map>
#include <set>
#include <utility>

namespace velmora {

namespace {

/// Approximate number of progress updates.
constexpr std::size_t kUpdatesOfPipeOrgan = 200;

/// More files than this that fail for the same reason are reported as a number.
constexpr std::size_t kFilesNamed = 3;

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

/// Reports a rank as left out.
void leaveOut(ALInstrument& instrument, std::size_t rank, LoadState why, ImportReport& report)
{
    instrument.setLoadState(rank, why);
    report.notLoaded.emplace_back(std::as_const(instrument).stops()[rank].name, why);
}

/// Loads the recordings of an organ on several threads, and enters them rank by rank.
class PipeOrganLoading : public BackgroundLoading {
public:
    /// `order` are the ranks to load.
    PipeOrganLoading(PipeOrgan organ, std::vector<std::size_t> order, Import& import)
        : organ_(std::move(organ)), instrument_(*import.instrument), order_(std::move(order)),
          list_(organ_, order_),
          loader_({list_.pipes.size(),
                   [this, options = import.decoding(),
                    unknownPitch = import.host.correctsTuning()
                                       ? UnknownPitch::Measured
                                       : UnknownPitch::AsExpected](std::size_t voice) {
                       return loadPipeVoice(organ_, *list_.pipes[voice], options, unknownPitch);
                   },
                   [](std::size_t) { return 0; }})
    {
        for (const std::size_t rank : order_) {
            for (const PipeOrgan::Pipe& pipe : organ_.ranks[rank].pipes) {
                for (const PipeOrgan::Attack& attack : pipe.attacks)
                    expected_[attack.file].push_back(expectedNote(pipe));
            }
        }
    }

    const PipeOrgan& organ() const { return organ_; }

    /// The number of recordings, each of which is a step.
    std::size_t voices() const { return list_.pipes.size(); }

    bool isDone() const { return ranks_ == order_.size(); }

    /// Loads the next rank.
    void loadRank(Import& import)
    {
        while (!hasVoices()) {
            if (import.host.isCancelled())
                throw Cancelled{};
            takeVoice(import.report);
            if (voices_.size() % step() == 0)
                import.host.updateProgress(static_cast<unsigned>(step()), lastFile_);
        }
        enterRank(import.report, [](std::size_t, const auto& change) { change(); });
        if (isDone())
            import.host.updateProgress(static_cast<unsigned>(voices_.size() % step()), organ_.name);
    }

    bool advance(ImportReport& report, const Exclusively& exclusively) override
    {
        constexpr std::chrono::milliseconds kLongest{8};
        const auto start = std::chrono::steady_clock::now();
        while (!isDone() && std::chrono::steady_clock::now() - start < kLongest) {
            if (hasVoices())
                enterRank(report, exclusively);
            else if (loader_.isReady())
                takeVoice(report);
            else
                break;
        }
        return !isDone();
    }

    void giveUp(LoadState why, ImportReport& report) override
    {
        for (; !isDone(); ++ranks_)
            leaveOut(instrument_, order_[ranks_], why, report);
    }

    double progress() const override
    {
        return static_cast<double>(voices_.size()) / static_cast<double>(list_.pipes.size());
    }

private:
    /// True if every voice of the next rank is loaded.
    bool hasVoices() const
    {
        const std::vector<std::size_t>& voices = list_.ofPipes[order_[ranks_]];
        return voices.empty() || std::ranges::max(voices) < voices_.size();
    }

    void enterRank(ImportReport& report, const Exclusively& exclusively)
    {
        const std::size_t rank = order_[ranks_];
        const RankPitch pitch = pitchOf(rank);
        exclusively(rank, [&] { enterPipes(rank, pitch, report); });
        reportFiles(rank, report);
        ++ranks_;
    }

    void enterPipes(std::size_t rank, const RankPitch& pitch, ImportReport& report)
    {
        const std::vector<std::size_t>& voices = list_.ofPipes[rank];
        InstrumentStop& stop = instrument_.stops().at(rank);
        for (std::size_t i = 0; i < voices.size(); ++i) {
            const PipeOrgan::Pipe& pipe = organ_.ranks[rank].pipes[i];
            Sample& sample = stop.samples.at(static_cast<std::size_t>(pipe.key));
            if (sample.source() != 0 || voices_[voices[i]].attacks.empty())
                continue;
            enter(pipe, voices_[voices[i]], pitch, sample);
            ++report.pipes;
        }
        const bool isUsable = stop.keysWithSamples() > 0;
        stop.loadState = isUsable ? LoadState::Loaded : LoadState::Unusable;
        report.ranks += isUsable ? 1 : 0;
    }

    /// Waits for the next voice and gives its sounds to the instrument.
    void takeVoice(ImportReport& report)
    {
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
        lastFile_ = organ_.files[pipe.attacks.front().file];
        report.samples = instrument_.sounds.size();
    }

    const Sound& add(const Pcm& pcm, const std::optional<Loop>& loop, const Sound* beside,
                     std::size_t file)
    {
        auto sound = std::make_unique<Sound>(instrument_.renderer(), pcm, loop, beside);
        instrument_.usage += sound->size();
        std::string name = organ_.files[file];
        for (int number = 2; instrument_.sounds.contains(name); ++number)
            name = fmt::format("{} ({})", organ_.files[file], number);
        return *(instrument_.sounds[name] = std::move(sound));
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
    void reportFiles(std::size_t rank, ImportReport& report) const
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
        auto& skipped = report.skipped;
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

    const PipeOrgan organ_;
    ALInstrument& instrument_;
    const std::vector<std::size_t> order_; ///< In which the ranks are loaded.
    const VoiceList list_;
    std::map<std::size_t, std::vector<double>> expected_; ///< The notes expected of each file.
    std::vector<LoadedVoice> voices_;
    std::string lastFile_;             ///< Of the last voice.
    std::size_t ranks_ = 0;            ///< How many have been entered.
    ParallelLoader<PipeVoice> loader_; ///< Last, since its threads use the list.
};

/// Loads all ranks, or only so many that the drawn stops can be played.
void loadRanks(PipeOrganLoading& loading, Import& import)
{
    const ConsoleDefinition& console = loading.organ().console;
    const auto& ranks = std::as_const(*import.instrument).stops();
    const std::size_t drawn = ranksOfDrawnStops(console).size();
    import.host.startProgress(static_cast<long>(loading.voices()));
    for (std::size_t loaded = 0; !loading.isDone(); ++loaded) {
        const bool canBePlayed =
            loaded >= drawn && std::ranges::any_of(console.stops, [&](const auto& stop) {
                return hasSound(stop, ranks);
            });
        if (canBePlayed && import.host.loadsInBackground())
            return;
        loading.loadRank(import);
    }
}

} // namespace

void loadPipeOrgan(PipeOrgan organ, Import& import)
{
    if (organ.files.empty())
        throw FormatError("cannot be played: no pipe has a sample file");
    import.name = organ.name;
    import.report.skipped = organ.skipped;
    import.console = organ.console;
    drawOpeningStops(organ.console, [&](const auto& stop) { return hasFile(stop, organ); });
    const std::vector<PlannedRank> plan = planRanks(organ, import);
    for (const PipeOrgan::Rank& rank : organ.ranks) {
        InstrumentStop& stop = import.instrument->appendStop(rank.name);
        stop.loadState = LoadState::Loading;
        if (rank.division)
            stop.swell = static_cast<std::uint8_t>(std::min<std::size_t>(*rank.division + 1, 255));
    }
    std::vector<std::size_t> order;
    for (const auto& [rank, state] : plan) {
        if (state == LoadState::Loading)
            order.push_back(rank);
        else
            leaveOut(*import.instrument, rank, state, import.report);
    }
    if (import.host.loadsInBackground())
        import.instrument->renderer().reserve(organ.files.size(), packedSize(organ));
    auto loading = std::make_unique<PipeOrganLoading>(std::move(organ), std::move(order), import);
    loadRanks(*loading, import);
    if (import.report.pipes == 0) {
        const auto& [file, reason] = import.report.skipped.back();
        throw FormatError("cannot be played: none of its sample files can be used, for example " +
                          file + ": " + reason);
    }
    std::vector<InstrumentStop>& ranks = import.instrument->stops();
    drawOpeningStops(*import.console, [&](const auto& stop) { return hasSound(stop, ranks); });
    constexpr float kDrawn = 0.5F; // shown as 1: see docs/decisions.md, 22
    for (const std::size_t rank : ranksOfDrawnStops(*import.console))
        ranks.at(rank).volume = kDrawn;
    if (!loading->isDone())
        import.background = std::move(loading);
}

} // namespace velmora
