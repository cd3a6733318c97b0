#include "app/AppDelegate.h"

#include "base/Log.h"
#include "platform/Synthesizer.h"
#include "preferences/Preferences.h"
#include "sound/KeyTables.h"

#include <cassert>
#include <chrono>

namespace {

constexpr std::chrono::nanoseconds kFadeInterval{16'666'000};
constexpr double kFadeFactor = 0.9;

/// The rate of a synthesizer that nothing plays.
constexpr double kUsualRate = 48000.0;

bool isKey(int key)
{
    return key >= 0 && key < static_cast<int>(kKeys);
}

} // namespace

std::vector<std::filesystem::path> generalMidiBanks()
{
    std::vector<std::filesystem::path> banks;
    const std::string preferred = getPrefString("GMBank");
    if (!preferred.empty())
        banks.emplace_back(preferred);
    for (const char* name : {"default-GM.sf2", "TimGM6mb.sf2"}) {
        const auto path = std::filesystem::path("/usr/share/sounds/sf2") / name;
        std::error_code error;
        if (std::filesystem::exists(path, error))
            banks.push_back(path);
    }
    return banks;
}

AppDelegate::AppDelegate() : queue_([this](const InputEvent& event) { take(event); }) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    openAL_ = OpenALDevice::open();
    output_ = AudioOutput::open();
    auto synthesizer =
        std::make_unique<Synthesizer>(output_ ? output_->rate() : kUsualRate, generalMidiBanks());
    Synthesizer* sounding = synthesizer.get();
    inputs_ = std::make_unique<MidiInputs>([this](MidiPacket packet) { received(packet); });
    makeBuiltinTunings();
    makeMIDIPlayer(std::move(synthesizer));
    if (output_)
        output_->play(sounding);
    fadeTimer_ = std::make_unique<IntervalTimer>(kFadeInterval, [this] {
        loop();
        if (userIsActive_.exchange(false))
            displayWake_.userActivity();
    });
}

void AppDelegate::makeBuiltinTunings()
{
    auto equalTuning = TuningDocument::initBuiltin("Equal");
    temperament_ = &equalTuning->getTemperament();
    putTuning(std::move(equalTuning));
    putTuning(TuningDocument::initBuiltin("Quartercomma Meantone"));
}

void AppDelegate::makeMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer)
{
    addInstrument(InstrumentDocument::initWithMIDIPlayer(std::move(synthesizer)));
}

void AppDelegate::addInstrument(std::unique_ptr<InstrumentDocument> document)
{
    if (document->getInstrument() == nullptr)
        return;
    setInstrument(*document->getInstrument());
    instruments_.push_back(std::move(document));
}

void AppDelegate::setInstrument(Instrument& instrument)
{
    const std::lock_guard lock(soundLock_);
    assert(temperament_ != nullptr);
    instrument_ = &instrument;
    instrument_->tune(*temperament_, 0, static_cast<int>(kKeys) - 1);
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

void AppDelegate::putTuning(std::unique_ptr<TuningDocument> document)
{
    tunings_[document->getName()] = document.get();
    tuningDocuments_.push_back(std::move(document));
}

bool AppDelegate::selectTuning(const std::string& name)
{
    const auto found = tunings_.find(name);
    if (found != tunings_.end()) {
        const std::lock_guard lock(soundLock_);
        temperament_ = &found->second->getTemperament();
        if (instrument_ != nullptr)
            instrument_->tune(*temperament_, 0, static_cast<int>(kKeys) - 1);
    }
    if (found == tunings_.end() || instrument_ == nullptr)
        logger("app").warn("Tuning or instrument not found '{}'", name);
    return found != tunings_.end();
}

void AppDelegate::loop()
{
    const std::lock_guard lock(soundLock_);
    if (instrument_ != nullptr)
        instrument_->fade(kFadeFactor);
    if (temperament_ != nullptr)
        temperament_->fade(kFadeFactor);
}

void AppDelegate::keyOn(int key, float velocity)
{
    if (!isKey(key))
        return;
    const std::lock_guard lock(soundLock_);
    noteStates[static_cast<std::size_t>(key)] = 1;
    noteVelocities[static_cast<std::size_t>(key)] = velocity;
    if (instrument_ == nullptr)
        return;
    temperament_->setup(*instrument_, static_cast<unsigned char>(key), velocity);
    instrument_->play(key, velocity);
}

void AppDelegate::keyOff(int key)
{
    if (!isKey(key))
        return;
    const std::lock_guard lock(soundLock_);
    noteStates[static_cast<std::size_t>(key)] = 0;
    if (instrument_ != nullptr)
        instrument_->stop(key);
}

void AppDelegate::setVolume(float volume, std::size_t slider)
{
    // Of two devices that move the same slider, the one that moves it last does so in both places.
    const std::lock_guard lock(soundLock_);
    queue_.post({InputEvent::Kind::Volume, slider, volume});
    if (instrument_ != nullptr)
        instrument_->setVolume(slider, volume);
}

void AppDelegate::midiInput()
{
    queue_.post({});
}

void AppDelegate::received(MidiPacket packet)
{
    userIsActive_ = true;
    midiRead({&packet, 1}, *this);
}

void AppDelegate::take(const InputEvent& event)
{
    switch (event.kind) {
    case InputEvent::Kind::MidiInput:
        emit midiInputReceived();
        break;
    case InputEvent::Kind::Volume:
        emit volumeMoved(event.slider, event.volume);
        break;
    }
}
