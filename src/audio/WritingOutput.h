#pragma once

#include "audio/AudioOutput.h"

#include <cstddef>
#include <memory>
#include <string>

namespace velmora {

/// A device that takes sound by calls that wait until it has room. Used on one thread at a time.
class SoundWriter {
public:
    /// What has become of a period.
    enum class Written { InTime, TooLate, NotAtAll };

    virtual ~SoundWriter() = default;

    /// The sample rate in hertz.
    virtual double rate() const = 0;

    /// The length of a period in frames.
    virtual std::size_t period() const = 0;

    /// How many periods the device holds.
    virtual std::size_t periodsAhead() const = 0;

    /// Writes a period of interleaved stereo samples. `TooLate` if the device had run dry before,
    /// `NotAtAll` if it is gone.
    virtual Written write(const float* samples) = 0;

    /// The seconds until a frame that is written now is heard.
    virtual double delay() = 0;
};

/// Returns an output that plays through `writer` on a thread of its own.
std::unique_ptr<AudioOutput> makeWritingOutput(const std::string& driver, const std::string& device,
                                               std::unique_ptr<SoundWriter> writer);

/// Opens an output that is not heard but keeps time, so that recording and the meters go on.
std::unique_ptr<AudioOutput> openSilentOutput(const OutputSettings& settings);

} // namespace velmora
