#include "app/LiveDevice.h"

#include "app/AppDelegate.h"
#include "midi/messages.h"

namespace velmora {

LiveDevice::LiveDevice(AppDelegate& application, std::size_t number)
    : application_(application), number_(number)
{
}

void LiveDevice::receive(MidiPacket message, double time)
{
    time_ = time;
    midiRead({&message, 1}, *this);
}

void LiveDevice::releaseKeys()
{
    for (std::size_t channel = 0; channel < midi::kChannels; ++channel)
        application_.player().releaseAll(deviceSource(number_, channel));
    application_.midiInput();
}

void LiveDevice::keyOn(int key, float velocity)
{
    application_.player().keyOn(key, velocity, deviceSource(number_, 0), time_);
}

void LiveDevice::keyOff(int key)
{
    application_.player().keyOff(key, deviceSource(number_, 0), time_);
}

void LiveDevice::setVolume(float volume, std::size_t slider)
{
    application_.setVolume(volume, slider);
}

void LiveDevice::midiInput()
{
    application_.midiInput();
}

} // namespace velmora
