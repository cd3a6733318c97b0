#pragma once

#include "audio/AudioSource.h"
#include "audio/LostPeriods.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace velmora {

/// The sound output that the user wants. An empty text or 0 leaves the choice to the program.
struct OutputSettings {
    std::string driver;     ///< The name of a driver, as `outputDrivers` gives it.
    std::string device;     ///< The name of one of the driver's devices.
    double rate = 0.0;      ///< In hertz. A sound server has its own.
    std::size_t period = 0; ///< In frames.

    bool operator==(const OutputSettings& other) const = default;
};

/// A sound output of the machine. What it tells about itself may be asked on any thread.
class AudioOutput {
public:
    /// Opens the output that `settings` describe, without another driver or device in its stead.
    /// If no driver is given, opens the first one that can be opened; "none" always can. Returns
    /// null if that fails. Call `quietSoundLibraries` before.
    static std::unique_ptr<AudioOutput> open(const OutputSettings& settings);

    /// Ends playing. The source is no longer used and may be destroyed. Returns soon, even if the
    /// sound server hangs.
    virtual ~AudioOutput() = default;

    /// Begins to play `source`. Called once.
    virtual void start(AudioSource& source) = 0;

    /// Connects to the device if it has come back and the driver does not do so itself. Called now
    /// and then on the thread that opened the output.
    virtual void reconnect() {}

    /// "jack", "pulseaudio", "alsa" or "none".
    virtual const std::string& driver() const = 0;

    /// The name of the device; empty for the driver's usual one.
    virtual const std::string& device() const = 0;

    /// The sample rate in hertz.
    virtual double rate() const = 0;

    /// The length of a period in frames.
    virtual std::size_t period() const = 0;

    /// The seconds from the moment for which a frame is rendered until it leaves the sound server
    /// or the card, as far as that is known.
    virtual double latency() const = 0;

    /// How many periods have been rendered. An output that has stopped counting is stuck.
    virtual std::uint64_t periods() const = 0;

    /// How often sound was interrupted because a period came too late.
    virtual const LostPeriods& lostPeriods() const = 0;

    /// True once the sound server or the device is gone or has another rate.
    virtual bool isLost() const = 0;

    /// Returns whether the driver has a device of that name at the moment, or nothing if only
    /// opening the device shows it, which does not disturb this output.
    virtual std::optional<bool> canReach(const std::string& /*device*/) const
    {
        return std::nullopt;
    }
};

} // namespace velmora
