#pragma once

#include <jack/jack.h>

#include <functional>
#include <memory>
#include <string>

namespace velmora {

/// A client of the JACK server, which may vanish or hang at any time. Every client of the program
/// is opened here. See docs/decisions.md, 134.
///
/// Functions may be called on any thread except those of libjack's callbacks.
class JackClient {
public:
    /// Opens a client; `name` is changed if another client has it. Returns null if no server
    /// answers within a second, or while a client of a lost server is still open. Call
    /// `quietSoundLibraries` before.
    static std::unique_ptr<JackClient> open(const std::string& name);

    /// Closes the client. If the server does not answer within a second, a thread of its own goes
    /// on waiting, and callbacks may still run.
    ~JackClient();

    JackClient(const JackClient&) = delete;
    JackClient& operator=(const JackClient&) = delete;

    /// The client, for functions of libjack that ask the server for nothing.
    jack_client_t* get() const;

    /// Calls a function that asks the server for something, on a thread of its own. Returns false
    /// if the server does not answer within a few seconds; the client is lost then. Since the
    /// function may still run, it must own what it uses.
    bool call(std::function<void(jack_client_t*)> function);

    /// Keeps what the callbacks use until none can run any more.
    void keep(std::shared_ptr<void> data);

    /// True once the server is gone or does not answer. Destroy the client then, because no other
    /// can be opened before.
    bool isLost() const;

private:
    struct State;

    explicit JackClient(std::shared_ptr<State> state);

    std::shared_ptr<State> state_;
};

} // namespace velmora
