#pragma once

#include <chrono>
#include <memory>
#include <optional>

class QDBusConnection;

namespace velmora {

/// Keeps the display from going to sleep while music is played, by telling the desktop's screen
/// saver of the user's activity (org.freedesktop.ScreenSaver). Main thread only.
class DisplayWake {
public:
    /// Connects to the session bus. Without one, or without a QCoreApplication, nothing is told.
    DisplayWake();
    ~DisplayWake();

    DisplayWake(const DisplayWake&) = delete;
    DisplayWake& operator=(const DisplayWake&) = delete;

    /// Whether there is a session bus.
    bool isConnected() const { return bus_ != nullptr; }

    /// The user is playing. Told at most once in five seconds, without waiting for an answer.
    void userActivity();

private:
    std::unique_ptr<QDBusConnection> bus_; // null where there is none
    std::optional<std::chrono::steady_clock::time_point> told_;
};

} // namespace velmora
