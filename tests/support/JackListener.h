#pragma once

#include "platform/JackClient.h"

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace velmora {

/// Waits up to 20 s until a condition is met, and returns whether it is.
bool waitUntil(const std::function<bool()>& condition);

/// A JACK client that records the program's left output.
class JackListener {
public:
    /// Waits until a server runs and the program plays on it.
    JackListener();

    JackListener(const JackListener&) = delete;
    JackListener& operator=(const JackListener&) = delete;

    /// Records the next frames.
    std::vector<float> listen(std::size_t frames);

private:
    void copyFromJack(jack_nframes_t frames);

    std::vector<float> sound_; ///< Belongs to the callback while frames are missing.
    std::atomic<std::size_t> missing_{0};
    jack_port_t* port_ = nullptr;
    std::unique_ptr<JackClient> client_; ///< Last, because closing it stops the callback.
};

} // namespace velmora
