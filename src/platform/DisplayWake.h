#pragma once

#include <chrono>
#include <memory>
#include <optional>

class QDBusConnection;

namespace velmora {

/// Keeps the display awake while music is played by reporting user activity to the desktop's screen
/// saver (org.freedesktop.ScreenSaver). Main thread only.
class DisplayWake {
public:
    /// Connects to the session bus. Does nothing if there is no bus or no QCoreApplication.
    DisplayWake();
    ~DisplayWake();

    DisplayWake(const DisplayWake&) = delete;
    DisplayWake& operator=(const DisplayWake&) = delete;

    /// Returns whether there is a session bus.
    bool isConnected() const { return bus_ != nullptr; }

    /// Reports that the user is playing, at most every five seconds. Does not wait for a reply.
    void userActivity();

private:
    std::unique_ptr<QDBusConnection> bus_; ///< Null if there is no session bus.
    std::optional<std::chrono::steady_clock::time_point> lastReport_;
};

} // namespace velmora
