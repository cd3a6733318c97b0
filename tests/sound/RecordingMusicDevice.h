#pragma once

#include "platform/MusicDevice.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

using MidiMessages = std::vector<std::array<int, 3>>;

/// Keeps every message in a list that outlives it.
class RecordingMusicDevice : public MusicDevice {
public:
    explicit RecordingMusicDevice(std::shared_ptr<MidiMessages> messages)
        : messages_(std::move(messages))
    {
    }

    void midiEvent(int status, int data1, int data2) override
    {
        messages_->push_back({status, data1, data2});
    }

private:
    std::shared_ptr<MidiMessages> messages_;
};
