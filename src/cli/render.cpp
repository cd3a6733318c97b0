#include "cli/commands.h"

#include "app/OfflineSound.h"
#include "app/generalMidiBanks.h"
#include "app/renderFiles.h"
#include "app/scorePiece.h"
#include "app/tunedMidi.h"
#include "app/tuningCorrections.h"
#include "app/tuningWarning.h"
#include "audio/AudioFileWriter.h"
#include "base/Text.h"
#include "cli/Interruption.h"
#include "cli/ProgressLine.h"
#include "platform/writeFile.h"

#include <spdlog/fmt/fmt.h>

#include <cmath>
#include <cstdio>

namespace velmora {

namespace {

/// Prepares an application that plays the selection offline. Returns the SoundFont that it plays,
/// if it plays one.
std::filesystem::path selectOffline(const Selection& selection, double rate,
                                    AppDelegate& application)
{
    if (selection.plain)
        application.playing().usePlainReading();
    application.tunings().addBuiltins();
    application.engine().setRate(rate);
    std::filesystem::path bank = selection.instrument;
    if (bank.empty()) {
        auto synthesizer = makeOfflineSynthesizer(rate, generalMidiBanks());
        bank = synthesizer->bank();
        application.makeMIDIPlayer(std::move(synthesizer));
    }
    select(selection, application);
    if (const std::string warning = tuningWarning(application); !warning.empty())
        fmt::print(stderr, "velmora: {}\n", warning);
    return bank;
}

/// Chooses what the voices of a piece play, and brings it into tune.
void prepareVoices(const Selection& selection, const std::filesystem::path& bank,
                   AppDelegate& application, SequenceDocument& document)
{
    Voices voices = document.voices();
    voices.arePrograms = !selection.program && !selection.bank;
    document.mixVoices(voices);
    if (application.playing().correctsTuning())
        application.player().with(
            [&](Instrument& instrument, Temperament&) { correctTuning(instrument, bank); });
}

/// Throws UsageError if the sequence has no notes on one of the chosen channels.
void requireVoices(const SequenceDocument& document, const std::string& name,
                   const ChannelSet& voices)
{
    ChannelSet present;
    for (const Note& note : document.sequence().notes())
        present.set(note.channel % midi::kChannels);
    if (voices.all() || (voices & ~present).none())
        return;
    std::vector<std::size_t> numbers;
    std::size_t missing = 0;
    for (std::size_t channel = 0; channel < present.size(); ++channel) {
        if (present[channel])
            numbers.push_back(channel + 1);
        else if (voices[channel] && missing == 0)
            missing = channel + 1;
    }
    throw UsageError(
        fmt::format("{} has no voice {}; it has {}", name, missing,
                    numbers.empty() ? "none" : fmt::format("{}", fmt::join(numbers, ", "))));
}

void readPiece(const std::filesystem::path& path, const RenderOptions& options,
               SequenceDocument& document)
{
    document.read(path);
    if (!document.errorString().empty())
        throw std::runtime_error(document.errorString());
    if (!document.damage().empty())
        fmt::print(stderr, "velmora: {}\n", document.damage());
    requireVoices(document, path.filename().string(), options.voices);
}

/// Renders to a MIDI file that reproduces the tuning.
void renderMidi(const std::filesystem::path& sequence, const std::filesystem::path& output,
                const Selection& selection, const RenderOptions& options)
{
    AppDelegate application;
    selectOffline(selection, options.rate, application);
    const TunedMidi midi = writeTunedMidi(
        application, [&](SequenceDocument& document) { readPiece(sequence, options, document); },
        options);
    writeFile(output, midi.bytes);
    if (midi.notes.wrong > 0)
        fmt::print(stderr,
                   "velmora: {} of {} notes are up to {:.0f} cents out of tune, because a MIDI "
                   "file has only 15 channels for notes of different pitch\n",
                   midi.notes.wrong, midi.notes.count, std::ceil(midi.notes.worstCents));
}

/// Writes the piece down, spelled as the tuning spells it.
void renderScore(const std::filesystem::path& sequence, const std::filesystem::path& output,
                 const Selection& selection, const RenderOptions& options)
{
    AppDelegate application;
    application.tunings().addBuiltins();
    select(selection, application);
    SequenceDocument document(application.player());
    readPiece(sequence, options, document);
    Piece piece = pieceOf(document, toUtf8(sequence.stem().string()),
                          *application.tunings().fresh(), options.voices);
    if (options.speed != 1.0 && (piece.tempos.empty() || piece.tempos.front().start > 0.0))
        piece.tempos.insert(piece.tempos.begin(), Piece::Tempo{});
    for (Piece::Tempo& tempo : piece.tempos)
        tempo.quartersPerMinute *= options.speed;
    writeScore(output, piece);
}

/// Loads instruments without showing it.
class QuietHost : public InstrumentHost {
public:
    explicit QuietHost(bool correctsTuning) : correctsTuning_(correctsTuning) {}

    void startProgress(long /*steps*/) override {}
    void updateProgress(unsigned /*steps*/, const std::string& /*text*/) override {}
    bool isCancelled() const override { return Interruption::requested(); }
    bool correctsTuning() const override { return correctsTuning_; }

private:
    const bool correctsTuning_;
};

/// The sound that a selection chooses and a piece that it shall play.
struct PreparedPiece {
    SoundSettings sound;
    UnsavedSequence sequence;
};

/// Prepares a piece, and leaves no instrument loaded.
PreparedPiece preparePiece(const std::filesystem::path& path, const Selection& selection,
                           const RenderOptions& options)
{
    AppDelegate application;
    const std::filesystem::path bank = selectOffline(selection, options.rate, application);
    SequenceDocument document(application.player(), application.playing().reading());
    readPiece(path, options, document);
    prepareVoices(selection, bank, application, document);
    return {currentSettings(application), document.snapshot()};
}

} // namespace

double tempoOf(const std::filesystem::path& sequence, bool plain)
{
    Player player;
    SequenceDocument document(player, plain ? Reading::Plain : Reading::Musical);
    document.read(sequence);
    if (!document.errorString().empty())
        throw std::runtime_error(document.errorString());
    return document.transport().time().tempoAt(0.0);
}

void render(const std::filesystem::path& sequence, const std::filesystem::path& output,
            const Selection& selection, const RenderOptions& options)
{
    const Interruption interruption;
    if (sequenceFormatOf(output) == SequenceFormat::MidiFile) {
        renderMidi(sequence, output, selection, options);
        return;
    }
    if (isScoreFile(output)) {
        renderScore(sequence, output, selection, options);
        return;
    }
    AudioFileWriter file(output, options.rate); // first, to fail early if it cannot be written
    AppDelegate application;
    const std::filesystem::path bank = selectOffline(selection, options.rate, application);
    SequenceRenderer renderer(application.player(), application.engine(),
                              application.playing().reading());
    readPiece(sequence, options, renderer.document());
    prepareVoices(selection, bank, application, renderer.document());
    ProgressLine progress("Rendering");
    const bool rendered = renderer.render(
        options,
        [&](const float* left, const float* right, std::size_t frames) {
            file.write(left, right, frames);
        },
        [&](double done) {
            progress.show(done);
            return !Interruption::requested();
        });
    if (!rendered)
        throw std::runtime_error("interrupted: " + output.string() + " was not written");
    file.commit();
}

void renderStems(const std::filesystem::path& sequence, const std::filesystem::path& folder,
                 const std::filesystem::path& output, const Selection& selection,
                 const RenderOptions& options)
{
    const Interruption interruption;
    const PreparedPiece piece = preparePiece(sequence, selection, options);
    auto targets = stemsOf(piece.sequence, folder, sequence.stem().string(),
                           output.empty() ? ".wav" : output.extension().string());
    std::erase_if(targets,
                  [&](const SoundTarget& stem) { return (stem.voices & options.voices).none(); });
    if (targets.empty())
        throw std::runtime_error(sequence.string() + ": no notes, so no voices to render");
    if (!output.empty())
        targets.push_back({output});
    const bool isNew = std::filesystem::create_directories(folder);
    QuietHost host(piece.sound.correctsTuning);
    ProgressLine line("Rendering");
    const auto progress = [&](std::size_t file, double done) {
        line.show((static_cast<double>(file) + done) / static_cast<double>(targets.size()));
        return !Interruption::requested();
    };
    try {
        if (!renderFiles(targets, piece.sound, piece.sequence, options, host, progress))
            throw std::runtime_error("interrupted: nothing was written");
    } catch (...) {
        if (isNew)
            std::filesystem::remove(folder);
        throw;
    }
}

} // namespace velmora
