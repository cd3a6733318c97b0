#include "app/tunedMidi.h"

#include "app/AppDelegate.h"
#include "sequencer/Pace.h"
#include "sequencer/SequenceTime.h"
#include "sequencer/editTime.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// What an instrument of stops is most like.
constexpr int kChurchOrgan = 19;

/// The beats a minute of the plain reading at the speed as written.
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

/// Returns the beats of a piece, and of a loop those of every pass.
TunedMidiWriter::Beats beatsOf(SequenceDocument& document, const RenderOptions& options)
{
    if (document.reading() == Reading::Plain)
        return TunedMidiWriter::steadyBeats(kFileTempo * options.speed);
    const MusicalTime& time = document.time(); // copied by the function below
    const double start = options.loop ? options.loop->start : 0.0;
    const double end = options.loop ? options.loop->end : HUGE_VAL;
    const int times = options.loop ? options.loop->times : 1;
    const double speed = options.speed;
    const double length = end - start;
    const double seconds = options.loop ? Pace(time, speed).secondsBetween(start, end) : HUGE_VAL;

    TunedMidiWriter::Beats beats;
    beats.at = [=](double moment) {
        const double pass = times > 1 ? std::min(std::floor(moment / seconds), times - 1.0) : 0.0;
        const double rest = pass > 0.0 ? moment - pass * seconds : moment;
        const double steps = Pace(time, speed).stepAfter(start, rest) - start;
        return (steps + (pass > 0.0 ? pass * length : 0.0)) / kStepsPerBeat;
    };
    for (int pass = 0; pass < times; ++pass) {
        const double moved = (pass > 0 ? pass * length : 0.0) - start;
        beats.tempos.push_back({(start + moved) / kStepsPerBeat, time.tempoAt(start) * speed});
        for (const Tempo& tempo : time.tempos())
            if (start < tempo.step && tempo.step < end)
                beats.tempos.push_back(
                    {(tempo.step + moved) / kStepsPerBeat, tempo.beats() * speed});
        for (const TimeSignature& signature : time.timeSignatures())
            if (start <= signature.step && signature.step < end)
                beats.signatures.push_back(
                    {(signature.step + moved) / kStepsPerBeat, dataOf(signature)});
    }
    return beats;
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
    TunedMidiWriter writer(currentProgram(application), options.rate);
    Player player;
    player.setGlide(application.playing().glide());
    player.setTemperament(*temperament);
    player.setInstrument(writer);
    SequenceRenderer renderer(player, *writer.source(), application.playing().reading());
    fill(renderer.document());
    writer.setBeats(beatsOf(renderer.document(), options));
    renderer.render(
        options, [](const float*, const float*, std::size_t) {}, [](double) { return true; });
    return {writer.finish(), writer.notes()};
}

} // namespace velmora
