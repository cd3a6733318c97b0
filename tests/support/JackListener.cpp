#include "support/JackListener.h"

#include "base/Clock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace velmora {

bool waitUntil(const std::function<bool()>& condition)
{
    for (const double end = getTime() + 20.0; getTime() < end;) {
        if (condition())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
}

JackListener::JackListener()
{
    EXPECT_TRUE(waitUntil([this] { return (client_ = JackClient::open("listener")) != nullptr; }));
    jack_client_t* jack = client_->get();
    port_ = jack_port_register(jack, "in", JACK_DEFAULT_AUDIO_TYPE, JackPortIsInput, 0);
    const auto process = [](jack_nframes_t frames, void* self) {
        static_cast<JackListener*>(self)->copyFromJack(frames);
        return 0;
    };
    jack_set_process_callback(jack, process, this);
    jack_activate(jack);
    EXPECT_TRUE(waitUntil([&] { return jack_connect(jack, "velmora:left", "listener:in") == 0; }));
}

std::vector<float> JackListener::listen(std::size_t frames)
{
    sound_.assign(frames, 0.0F);
    missing_ = frames;
    EXPECT_TRUE(waitUntil([this] { return missing_ == 0; }));
    return sound_;
}

void JackListener::copyFromJack(jack_nframes_t frames)
{
    const std::size_t missing = missing_, count = std::min<std::size_t>(frames, missing);
    const auto* heard = static_cast<const float*>(jack_port_get_buffer(port_, frames));
    if (count > 0)
        std::copy_n(heard, count, &sound_[sound_.size() - missing]);
    missing_ -= count;
}

} // namespace velmora
