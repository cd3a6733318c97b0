#include "cli/commands.h"

#include "app/OfflineSound.h"
#include "app/generalMidiBanks.h"
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

#include <spdlog/fmt/fmt.h>

#include <cstdio>

namespace velmora {

namespace {

/// Prepares an application that plays the selection offline.
void selectOffline(const Selection& selection, double rate, AppDelegate& application)
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
    if (application.playing().correctsTuning())
        application.player().with(
            [&](Instrument& instrument, Temperament&) { correctTuning(instrument, bank); });
}

void readPiece(const std::filesystem::path& path, SequenceDocument& document)
{
    document.read(path);
    if (!document.errorString().empty())
        throw std::runtime_error(document.errorString());
    if (!document.damage().empty())
        fmt::print(stderr, "velmora: {}\n", document.damage());
}

/// Renders to a MIDI file that reproduces the tuning.
void renderMidi(const std::filesystem::path& sequence, const std::filesystem::path& output,
                const Selection& selection, const RenderOptions& options)
{
    AppDelegate application;
    selectOffline(selection, options.rate, application);
    const TunedMidi midi = writeTunedMidi(
        application, [&](SequenceDocument& document) { readPiece(sequence, document); }, options);
    writeFile(output, midi.bytes);
    if (midi.notes.wrong > 0)
        fmt::print(stderr,
                   "velmora: {} of {} notes are up to {:.0f} cents out of tune, because a MIDI "
                   "file has only 15 channels for notes of different pitch\n",
                   midi.notes.wrong, midi.notes.count, std::ceil(midi.notes.worstCents));
}

/// Writes the piece down, spelled as the tuning spells it.
void renderScore(const std::filesystem::path& sequence, const std::filesystem::path& output,
                 const Selection& selection)
{
    AppDelegate application;
    application.tunings().addBuiltins();
    select(selection, application);
    SequenceDocument document(application.player());
    readPiece(sequence, document);
    writeScore(output,
               pieceOf(document, toUtf8(sequence.stem().string()), *application.tunings().fresh()));
}

} // namespace

void render(const std::filesystem::path& sequence, const std::filesystem::path& output,
            const Selection& selection, const RenderOptions& options)
{
    const Interruption interruption;
    if (sequenceFormatOf(output) == SequenceFormat::MidiFile) {
        renderMidi(sequence, output, selection, options);
        return;
    }
    if (isScoreFile(output)) {
        renderScore(sequence, output, selection);
        return;
    }
    AudioFileWriter file(output, options.rate); // first, to fail early if it cannot be written
    AppDelegate application;
    selectOffline(selection, options.rate, application);
    SequenceRenderer renderer(application.player(), application.engine(),
                              application.playing().reading());
    readPiece(sequence, renderer.document());
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

} // namespace velmora
