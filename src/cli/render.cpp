#include "cli/commands.h"

#include "app/OfflineSound.h"
#include "app/generalMidiBanks.h"
#include "app/tuningCorrections.h"
#include "audio/AudioFileWriter.h"
#include "cli/Interruption.h"
#include "cli/ProgressLine.h"

namespace velmora {

void render(const std::filesystem::path& sequence, const std::filesystem::path& output,
            const Selection& selection, const RenderOptions& options)
{
    const Interruption interruption;
    AudioFileWriter file(output, options.rate); // first, to fail early if it cannot be written
    AppDelegate application;
    if (selection.plain)
        application.playing().usePlainReading();
    application.tunings().addBuiltins();
    application.engine().setRate(options.rate);
    std::filesystem::path bank = selection.instrument;
    if (bank.empty()) {
        auto synthesizer = makeOfflineSynthesizer(options.rate, generalMidiBanks());
        bank = synthesizer->bank();
        application.makeMIDIPlayer(std::move(synthesizer));
    }
    select(selection, application);
    if (application.playing().correctsTuning())
        application.player().with(
            [&](Instrument& instrument, Temperament&) { correctTuning(instrument, bank); });

    SequenceRenderer renderer(application.player(), application.engine(),
                              application.playing().reading());
    renderer.document().read(sequence);
    if (!renderer.document().errorString().empty())
        throw std::runtime_error(renderer.document().errorString());
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
