#include "cli/commands.h"

#include "app/OfflineSound.h"
#include "audio/AudioFileWriter.h"
#include "audio/OpenALLoopback.h"
#include "cli/Interruption.h"
#include "cli/ProgressLine.h"

#include <optional>

namespace velmora {

namespace {

/// Makes the General MIDI player, to be rendered.
AudioSource& addSynthesizer(double rate, AppDelegate& application)
{
    auto synthesizer = makeOfflineSynthesizer(rate, generalMidiBanks());
    AudioSource& source = *synthesizer;
    application.makeMIDIPlayer(std::move(synthesizer));
    return source;
}

} // namespace

void render(const std::filesystem::path& sequence, const std::filesystem::path& output,
            const Selection& selection, const RenderOptions& options)
{
    const Interruption interruption;
    AudioFileWriter file(output, options.rate); // first: it tells at once where it cannot be
    // Before the application: its sources and buffers go before their device.
    std::optional<OpenALLoopback> loopback;
    if (!selection.instrument.empty())
        loopback.emplace(options.rate);
    AppDelegate application;
    application.makeBuiltinTunings();
    AudioSource& source = loopback ? *loopback : addSynthesizer(options.rate, application);
    select(selection, application);

    SequenceRenderer renderer(application.player(), source);
    renderer.document().readFromURL(sequence);
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
