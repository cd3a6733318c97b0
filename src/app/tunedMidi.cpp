#include "app/tunedMidi.h"

#include "app/AppDelegate.h"
#include "sequencer/SequenceTime.h"

namespace velmora {

namespace {

/// What an instrument of stops is most like.
constexpr int kChurchOrgan = 19;

/// The beats a minute of the file at the speed as written.
constexpr double kFileTempo = 120.0;

/// Returns the program that a General MIDI device should play.
Program currentProgram(AppDelegate& application)
{
    Program program{.bank = 0, .number = kChurchOrgan, .name = {}, .isPercussion = false};
    application.player().with([&](const Instrument& instrument, const Temperament&) {
        if (const auto programs = instrument.programs(); !programs.empty())
            program = programs[instrument.program()];
    });
    return program;
}

} // namespace

TunedMidi writeTunedMidi(AppDelegate& application,
                         const std::function<void(SequenceDocument&)>& fill, RenderOptions options)
{
    // A whole number of frames a tick.
    options.rate = 1.0 / kTick.count();
    options.tailSeconds = 0.0;
    std::unique_ptr<Temperament> temperament;
    application.player().with(
        [&](const Instrument&, const Temperament& current) { temperament = current.fresh(); });
    TunedMidiWriter writer(currentProgram(application), kFileTempo * options.speed, options.rate);
    Player player;
    player.setGlide(application.playing().glide());
    player.setTemperament(*temperament);
    player.setInstrument(writer);
    SequenceRenderer renderer(player, *writer.source(), application.playing().reading());
    fill(renderer.document());
    renderer.render(
        options, [](const float*, const float*, std::size_t) {}, [](double) { return true; });
    return {writer.finish(), writer.notes()};
}

} // namespace velmora
