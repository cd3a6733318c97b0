#include "app/AppDelegate.h"

#include "app/TuningCorrector.h"
#include "app/generalMidiBanks.h"
#include "app/programNames.h"
#include "audio/Synthesizer.h"
#include "audio/openALSettings.h"
#include "base/Log.h"
#include "platform/quiet.h"
#include "preferences/Preferences.h"

#include <QCoreApplication>

#include <algorithm>
#include <cassert>
#include <chrono>
#include <cmath>

namespace velmora {

namespace {

/// The rate of the engine if there is no output.
constexpr double kDefaultRate = 48000.0;

/// Takes the synthesizer's place until its bank is loaded.
class SilentDevice : public MusicDevice {
public:
    void midiEvent(int /*status*/, int /*data1*/, int /*data2*/) override {}
};

} // namespace

AppDelegate::AppDelegate()
    : engine_(kDefaultRate), queue_([this](const InputEvent& event) { handle(event); })
{
    engine_.add(metronome_);
    player_.setMetronome(metronome_);
    connect(this, &AppDelegate::loadingFinished, this, &AppDelegate::takeSynthesizer,
            Qt::QueuedConnection);
    connect(&loader_, &InstrumentLoader::finished, this, &AppDelegate::instrumentsChanged);
    connect(&playing_, &PlayingOptions::changed, this, &AppDelegate::followOptions);
    player_.tellVoices([this] { emit voicesUsed(); });
    followOptions();
}

void AppDelegate::followOptions()
{
    player_.setGlide(playing_.glide());
    tunings_.setAdaptive(playing_.adaptive());
    takeReading();
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::takeReading()
{
    player_.with([&](Instrument& /*current*/, Temperament& temperament) {
        if (midiPlayer_ == nullptr)
            return;
        midiPlayer_->setReading(playing_.reading());
        midiPlayer_->tune(temperament, 0, kLastKey);
    });
}

void AppDelegate::start(const OutputSettings& output)
{
    quietSoundLibraries();
    setUpOpenAL();
    keepPlaying(output);
    inputs_ = std::make_unique<MidiInputs>(devices_);
    tunings().addBuiltins();
    makeMIDIPlayer(std::make_unique<SilentDevice>());
    tuningCorrector_ = std::make_unique<TuningCorrector>(*this);
    loadBank();
    fadeTimer_ = std::make_unique<IntervalTimer>(kFadeInterval, [this] {
        player_.fade();
        if (userIsActive_.exchange(false))
            displayWake_.userActivity();
    });
}

void AppDelegate::keepPlaying(const OutputSettings& output)
{
    engine_.setVolume(preferredVolume());
    metronome_.setVolume(static_cast<float>(getPrefInt("MetronomeVolume")) / 100.0F);
    const auto prepare = [this](double rate) {
        silenceAll(); // a note that was held when the sound was lost would go on
        engine_.setRate(rate);
    };
    output_ = std::make_unique<OutputKeeper>(
        engine_, output, OutputKeeper::Callbacks{prepare, [this] { emit outputChanged(); }});
}

void AppDelegate::makeMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer)
{
    auto document = InstrumentDocument::makeMIDIPlayer(std::move(synthesizer));
    midiPlayer_ = &dynamic_cast<MIDIInstrument&>(*document->instrument());
    midiPlayer_->setReading(playing_.reading());
    addInstrument(std::move(document));
}

void AppDelegate::loadBank()
{
    loadsAgain_ = loading_.valid();
    if (loadsAgain_)
        return;
    loading_ = std::async(std::launch::async, [this, rate = engine_.rate(),
                                               banks = generalMidiBanks()] {
        std::unique_ptr<Synthesizer> synthesizer;
        try {
            synthesizer = std::make_unique<Synthesizer>(rate, banks);
        } catch (const std::exception& error) {
            logger("app").error("the General MIDI synthesizer cannot be created: {}", error.what());
        }
        emit loadingFinished();
        return synthesizer;
    });
}

void AppDelegate::waitForBank()
{
    while (loading_.valid())
        takeSynthesizer();
}

void AppDelegate::takeSynthesizer()
{
    if (!loading_.valid())
        return;
    auto synthesizer = loading_.get();
    // A silent one never takes the place of one that plays.
    if (synthesizer && (bank_.empty() || !synthesizer->bank().empty()))
        playThrough(std::move(synthesizer));
    emit bankLoaded();
    if (loadsAgain_)
        loadBank();
}

void AppDelegate::playThrough(std::unique_ptr<Synthesizer> synthesizer)
{
    bank_ = synthesizer->bank();
    engine_.add(*synthesizer);
    std::unique_ptr<MusicDevice> before;
    player_.with([&](Instrument& /*current*/, Temperament& temperament) {
        before = midiPlayer_->exchangeDevice(std::move(synthesizer));
        midiPlayer_->tune(temperament, 0, kLastKey);
    });
    if (before->source() != nullptr)
        engine_.remove(*before->source());
}

void AppDelegate::addInstrument(std::unique_ptr<InstrumentDocument> document)
{
    if (document->instrument() == nullptr)
        return;
    if (AudioSource* source = document->instrument()->source())
        engine_.add(*source);
    loader_.add(*document);
    instruments_.push_back(std::move(document));
    const InstrumentDocument& added = *instruments_.back();
    setInstrument(*added.instrument(), added.title());
    emit instrumentsChanged();
}

void AppDelegate::setInstrument(Instrument& instrument, const std::string& name)
{
    player_.setInstrument(instrument);
    organ_.takeInstrument(instrument);
    instrumentName_ = name;
    emit instrumentChanged();
}

bool AppDelegate::isCurrent(const InstrumentDocument& document) const
{
    const Instrument* instrument = document.instrument();
    return instrument != nullptr && player_.isCurrent(*instrument);
}

bool AppDelegate::selectInstrument(std::size_t position)
{
    InstrumentDocument& document = *instruments_.at(position);
    if (document.instrument() == nullptr) {
        if (!document.reload(*this))
            return false;
        if (AudioSource* source = document.instrument()->source())
            engine_.add(*source);
        loader_.add(document);
        emit instrumentsChanged();
    }
    setInstrument(*document.instrument(), document.title());
    return true;
}

void AppDelegate::replaceInstrument(std::size_t position,
                                    std::unique_ptr<InstrumentDocument> document)
{
    if (document->instrument() == nullptr)
        return;
    if (AudioSource* source = document->instrument()->source())
        engine_.add(*source);
    std::swap(instruments_.at(position), document);
    const InstrumentDocument& added = *instruments_[position];
    setInstrument(*added.instrument(), added.title());
    loader_.remove(*document);
    loader_.add(*instruments_[position]);
    if (Instrument* before = document->instrument()) {
        player_.remove(*before);
        if (AudioSource* source = before->source())
            engine_.remove(*source);
    }
    emit instrumentsChanged();
}

bool AppDelegate::unloadInstrument(std::size_t position)
{
    InstrumentDocument& document = *instruments_.at(position);
    if (document.instrument() == nullptr || !document.canUnload())
        return false;
    if (isCurrent(document))
        selectInstrument(0);
    player_.remove(*document.instrument());
    if (AudioSource* source = document.instrument()->source())
        engine_.remove(*source);
    loader_.remove(document);
    document.unload();
    emit instrumentsChanged();
    return true;
}

void AppDelegate::setMIDIProgram(std::uint8_t program)
{
    player_.with([&](Instrument& instrument, Temperament&) { instrument.setInstrument(program); });
    announceProgram();
}

void AppDelegate::selectProgram(std::size_t position)
{
    player_.with([&](Instrument& instrument, Temperament&) { instrument.setProgram(position); });
    announceProgram();
}

void AppDelegate::announceProgram()
{
    int position = 0;
    player_.with([&](const Instrument& instrument, Temperament&) {
        position = static_cast<int>(instrument.program());
    });
    emit programSelected(position);
}

std::string AppDelegate::soundName()
{
    bool isGeneralMidi = false;
    std::string preset;
    player_.with([&](const Instrument& instrument, Temperament&) {
        isGeneralMidi = instrument.hasSubMenu();
        if (const auto programs = instrument.programs(); !programs.empty())
            preset = programs[instrument.program()].name;
    });
    if (!isGeneralMidi)
        return preset.empty() ? instrumentName_ : preset;
    const QString name = QCoreApplication::translate("velmora::programNames",
                                                     kMIDIInstrumentNames.at(midiProgram()));
    return name.section(' ', 1).toStdString(); // behind its number
}

std::uint8_t AppDelegate::midiProgram()
{
    std::size_t program = 0;
    player_.with([&](Instrument&, Temperament&) { program = midiPlayer_->program(); });
    return static_cast<std::uint8_t>(program);
}

void AppDelegate::receiveProgram(std::uint8_t program)
{
    if (organ_.receiveProgram(program))
        return;
    player_.with([&](Instrument& instrument, Temperament&) {
        if (instrument.programs().empty())
            return;
        queue_.post({.kind = InputEvent::Kind::Program, .program = program});
        instrument.setInstrument(program);
    });
}

void AppDelegate::setVolumeOfStop(std::size_t stop, float volume)
{
    player_.with([&](Instrument& instrument, Temperament&) { instrument.setVolume(stop, volume); });
}

void AppDelegate::silenceAll()
{
    player_.silence();
    midiInput();
}

void AppDelegate::startProgress(long steps)
{
    isCancelled_ = false;
    emit progressStarted(steps);
}

void AppDelegate::updateProgress(unsigned steps, const std::string& text)
{
    if (steps > 0)
        emit progressed(steps, text);
}

void AppDelegate::setVolume(float volume, std::size_t slider)
{
    // Posted under the lock: if two devices move a slider, both places keep the later value.
    player_.with([&](Instrument& instrument, Temperament&) {
        queue_.post({InputEvent::Kind::Volume, slider, volume});
        instrument.setVolume(slider, volume);
    });
}

void AppDelegate::toggleVolume(std::size_t stop)
{
    player_.with([&](Instrument& instrument, Temperament&) {
        if (stop >= instrument.numStops())
            return;
        const float volume = instrument.getVolume(stop) > 0.0F ? 0.0F : 1.0F;
        queue_.post({InputEvent::Kind::Volume, stop, volume});
        instrument.setVolume(stop, volume);
    });
}

void AppDelegate::moveMasterVolume(float volume)
{
    engine_.setVolume(volume);
    queue_.post({.kind = InputEvent::Kind::MasterVolume, .volume = volume});
}

void AppDelegate::announceMidiDevices()
{
    QMetaObject::invokeMethod(this, &AppDelegate::midiDevicesChanged, Qt::QueuedConnection);
}

void AppDelegate::handle(const InputEvent& event)
{
    switch (event.kind) {
    case InputEvent::Kind::MidiInput:
        emit midiInputReceived();
        break;
    case InputEvent::Kind::Volume:
        emit volumeMoved(event.slider, event.volume);
        [[fallthrough]];
    case InputEvent::Kind::Console:
        organ_.announceMove();
        break;
    case InputEvent::Kind::MasterVolume:
        setPrefInt("MasterVolume", static_cast<int>(std::lround(100.0F * event.volume)));
        emit masterVolumeMoved();
        break;
    case InputEvent::Kind::Program:
        announceProgram();
        break;
    case InputEvent::Kind::Action:
        emit controlUsed(event.action);
        break;
    case InputEvent::Kind::Learned:
        learning_.keep(event.control);
        break;
    case InputEvent::Kind::Tuning:
        receivedTunings_.take();
        break;
    }
}

} // namespace velmora
