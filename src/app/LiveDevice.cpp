#include "app/LiveDevice.h"

#include "app/AppDelegate.h"

#include <utility>

namespace velmora {

LiveDevice::LiveDevice(AppDelegate& application, std::size_t number)
    : application_(application), number_(number),
      translator_(application.playing().settings(), application.learning().controls(), *this)
{
}

void LiveDevice::receive(MidiPacket message, double time)
{
    time_ = time;
    const bool isPlain = application_.playing().settings().isPlain;
    if (isPlain != std::exchange(wasPlain_, isPlain))
        releaseKeys(); // the other reading does not know what is held
    if (isPlain)
        midiRead({&message, 1}, *this);
    else
        translator_.read(message);
}

void LiveDevice::releaseKeys()
{
    translator_.reset();
    Player& player = application_.player();
    for (int channel = 0; channel < midi::kChannels; ++channel)
        player.releaseAll(source(channel));
    if (std::exchange(isSoft_, false))
        player.setSoft(false);
    if (std::exchange(isBent_, false))
        player.bend(0.0, getTime());
    application_.midiInput();
}

KeySource LiveDevice::source(int channel) const
{
    return deviceSource(number_, static_cast<std::size_t>(channel));
}

void LiveDevice::keyOn(int key, float velocity, int channel)
{
    application_.player().keyOn(key, velocity, source(channel), time_);
}

void LiveDevice::keyOff(int key, int channel)
{
    application_.player().keyOff(key, source(channel), time_);
}

void LiveDevice::setSustain(bool isDown, int channel)
{
    application_.player().setSustain(source(channel), isDown, time_);
}

void LiveDevice::setSostenuto(bool isDown, int channel)
{
    application_.player().setSostenuto(source(channel), isDown, time_);
}

void LiveDevice::setSoft(bool isDown)
{
    if (std::exchange(isSoft_, isDown) != isDown)
        application_.player().setSoft(isDown);
}

void LiveDevice::bend(double cents)
{
    isBent_ = cents != 0.0;
    application_.player().bend(cents, time_);
}

void LiveDevice::controlled(int number, int value)
{
    application_.player().liveKeys().control(number, value, time_);
}

void LiveDevice::silence()
{
    application_.silenceAll();
}

void LiveDevice::setProgram(std::uint8_t program)
{
    application_.receiveProgram(program);
}

void LiveDevice::setVolume(float volume, std::size_t slider)
{
    application_.setVolume(volume, slider);
}

bool LiveDevice::moveConsole(std::uint8_t controller, float value, int channel)
{
    return application_.organ().receiveVolume(controller, value, source(channel));
}

void LiveDevice::toggleVolume(std::size_t slider)
{
    application_.toggleVolume(slider);
}

void LiveDevice::setMasterVolume(float volume)
{
    application_.moveMasterVolume(volume);
}

void LiveDevice::toggleMasterVolume()
{
    application_.moveMasterVolume(application_.engine().volume() > 0.0F ? 0.0F : 1.0F);
}

void LiveDevice::perform(LearnedAction::Kind action)
{
    if (action == LearnedAction::Kind::Silence)
        application_.silenceAll(); // does not wait for the main thread
    application_.post({.kind = InputEvent::Kind::Action, .action = action});
}

void LiveDevice::learned(MidiControl control)
{
    application_.post({.kind = InputEvent::Kind::Learned, .control = control});
}

void LiveDevice::midiInput()
{
    application_.midiInput();
}

} // namespace velmora
