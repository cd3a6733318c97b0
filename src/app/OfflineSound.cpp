#include "app/OfflineSound.h"

#include "app/AppDelegate.h"
#include "app/generalMidiBanks.h"
#include "app/tuningCorrections.h"
#include "sound/MIDIInstrument.h"
#include "sound/OrganInstrument.h"

#include <stdexcept>
#include <utility>

namespace velmora {

std::vector<float> gainsOf(const Instrument& instrument)
{
    const auto* sampled = dynamic_cast<const ALInstrument*>(&instrument);
    std::vector<float> gains;
    for (std::size_t stop = 0; stop < instrument.numStops(); ++stop)
        gains.push_back(sampled != nullptr ? sampled->stops()[stop].volume
                                           : instrument.getVolume(stop));
    return gains;
}

std::optional<ConsoleState> consoleStateOf(const Instrument& instrument)
{
    if (const auto* organ = dynamic_cast<const OrganInstrument*>(&instrument))
        return organ->console().state();
    return std::nullopt;
}

SoundSettings currentSettings(AppDelegate& application)
{
    SoundSettings settings;
    application.player().with([&](const Instrument& instrument, const Temperament& temperament) {
        settings.temperament = temperament.fresh();
        settings.gains = gainsOf(instrument);
        settings.console = consoleStateOf(instrument);
        settings.program = instrument.program();
    });
    settings.divisions = application.player().divisions();
    settings.banks = generalMidiBanks();
    settings.reading = application.playing().reading();
    settings.correctsTuning = application.playing().correctsTuning();
    settings.glide = application.playing().glide();
    for (const auto& document : application.instruments()) {
        if (application.isCurrent(*document)) {
            settings.instrument = document->path();
            settings.format = document->format();
            settings.options = document->options();
        }
    }
    return settings;
}

std::unique_ptr<Synthesizer> makeOfflineSynthesizer(double rate,
                                                    const std::vector<std::filesystem::path>& banks)
{
    auto synthesizer = std::make_unique<Synthesizer>(rate, banks);
    if (synthesizer->bank().empty())
        throw std::runtime_error("there is no SoundFont for the General MIDI synthesizer: install "
                                 "the package timgm6mb-soundfont");
    return synthesizer;
}

OfflineSound::OfflineSound(const SoundSettings& settings, double rate, InstrumentHost& host)
    : temperament_(settings.temperament->fresh()), engine_(rate)
{
    std::filesystem::path bank = settings.instrument;
    if (bank.empty()) {
        auto synthesizer = makeOfflineSynthesizer(rate, settings.banks);
        bank = synthesizer->bank();
        document_ = InstrumentDocument::makeMIDIPlayer(std::move(synthesizer));
        dynamic_cast<MIDIInstrument&>(*document_->instrument()).setReading(settings.reading);
    } else {
        document_ = std::make_unique<InstrumentDocument>();
        if (!document_->read(settings.instrument, settings.format, settings.options, host))
            throw std::runtime_error(document_->errorString());
    }
    Instrument& instrument = *document_->instrument();
    engine_.add(*instrument.source());
    instrument.setProgram(settings.program);
    if (settings.correctsTuning)
        bank_ = bank;
    if (auto* organ = dynamic_cast<OrganInstrument*>(&instrument); organ && settings.console)
        organ->console().setState(*settings.console);
    else
        for (std::size_t stop = 0; stop < settings.gains.size(); ++stop)
            instrument.setVolume(stop, settings.gains[stop]);
    player_.setGlide(settings.glide);
    player_.setTemperament(*temperament_);
    player_.setInstrument(instrument);
    player_.setDivisions(instrument, settings.divisions);
}

void OfflineSound::correctTuning()
{
    velmora::correctTuning(*document_->instrument(), bank_);
}

} // namespace velmora
