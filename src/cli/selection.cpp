#include "cli/selection.h"

#include "base/Text.h"
#include "cli/Interruption.h"
#include "cli/ProgressLine.h"
#include "cli/commands.h"
#include "cli/names.h"
#include "tuning/historicalTemperaments.h"

#include <algorithm>

namespace velmora {

namespace {

std::unique_ptr<TuningDocument> tuningNamed(const std::string& name, const PlayingOptions& playing)
{
    const auto format = tuningFormatOf(name);
    if (!format) {
        // "meantone" alone stands for the first of them.
        std::vector<std::string> historical;
        for (const HistoricalTemperament& each : historicalTemperaments())
            historical.emplace_back(each.name);
        for (const auto& names : {std::vector<std::string>{"Equal", "Quartercomma Meantone"},
                                  TuningDocument::adaptiveNames(), historical})
            if (const auto builtin = findName(names, name))
                return TuningDocument::makeBuiltin(names[*builtin], playing.adaptive());
        throw UsageError("there is no tuning \"" + name +
                         "\"; use the name of one, such as Equal, \"Following Meantone\" or "
                         "\"Werckmeister III\", or a .scl, .ascl, .tun or .mtx file");
    }
    auto document = std::make_unique<TuningDocument>();
    if (!document->read(name, *format, playing.reading()))
        throw std::runtime_error(document->errorString());
    return document;
}

} // namespace

std::unique_ptr<InstrumentDocument> readInstrument(const std::filesystem::path& path, bool asStops,
                                                   AppDelegate& application)
{
    const auto format = instrumentFormatOf(path);
    if (!format)
        throw UsageError("\"" + path.string() +
                         "\" is not an instrument; use a .sf2, .gig, .organ_hauptwerk_xml, .xml, "
                         ".organ or .orgue file");
    ProgressLine progress("Loading");
    double steps = 1.0;
    double done = 0.0;
    QObject listener;
    QObject::connect(&application, &AppDelegate::progressStarted, &listener,
                     [&](long count) { steps = std::max(1.0, static_cast<double>(count)); });
    QObject::connect(&application, &AppDelegate::progressed, &listener, [&](unsigned count) {
        progress.show((done += count) / steps);
        if (Interruption::requested())
            application.cancelImport();
    });
    auto document = std::make_unique<InstrumentDocument>();
    const ImportOptions options{.reading = application.playing().reading(), .asStops = asStops};
    if (!document->read(path, *format, options, application))
        throw std::runtime_error(document->errorString().empty() ? "interrupted"
                                                                 : document->errorString());
    if (document->instrument() == nullptr)
        throw std::runtime_error(path.filename().string() + ": contains no playable instrument");
    return document;
}

void select(const Selection& selection, AppDelegate& application)
{
    auto tuning = tuningNamed(selection.tuning, application.playing());
    if (!selection.instrument.empty())
        application.addInstrument(
            readInstrument(selection.instrument, selection.asStops, application));
    const std::string name = tuning->name();
    application.tunings().put(std::move(tuning));
    application.tunings().setTransposition(selection.transposition);
    application.tunings().select(name);
    if (!selection.mapping.empty())
        if (const std::string error = application.tunings().setMapping(selection.mapping);
            !error.empty())
            throw std::runtime_error(error);

    if (selection.program || selection.bank) {
        std::size_t position = 0;
        application.player().with([&](const Instrument& instrument, Temperament&) {
            position = findProgram(instrument, selection.bank, selection.program.value_or(""));
        });
        application.selectProgram(position);
    }
    application.player().with([&](Instrument& instrument, Temperament&) {
        for (const auto& [stop, gain] : selection.stops) {
            if (stop >= instrument.numStops())
                throw UsageError("the instrument has no stop " + std::to_string(stop) +
                                 "; its stops are numbered from 0 to " +
                                 std::to_string(instrument.numStops() - 1));
            instrument.setVolume(stop, gain);
        }
    });
}

} // namespace velmora
