#pragma once

#include <cstddef>
#include <memory>
#include <span>

struct ALCcontext_struct;
struct ALCdevice_struct;

namespace velmora {

/// An OpenAL device that renders stereo sound on request, with a context. It needs no sound server
/// and no sound card. Sources and buffers that still exist are freed with it.
class OpenALDevice {
public:
    /// Makes the context of a device current on the calling thread as long as it exists. OpenAL's
    /// functions, except those of a device, need it.
    class Scope {
    public:
        explicit Scope(const OpenALDevice& device);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        ALCcontext_struct* before_;
    };

    /// Opens a device that renders at `rate` hertz, rounded to a whole number. Logs a failure and
    /// returns null.
    static std::unique_ptr<OpenALDevice> open(double rate);

    ~OpenALDevice();
    OpenALDevice(const OpenALDevice&) = delete;
    OpenALDevice& operator=(const OpenALDevice&) = delete;

    /// Sets the rate in hertz, and returns the one at which it renders from now on: rounded to a
    /// whole number, or still the former one if OpenAL refuses, which is logged. Must not be called
    /// while the device renders.
    double setRate(double rate);

    /// Makes room for the voices of `sources`, of which up to `batch` are started at once, so that
    /// starting and rendering them neither allocates nor takes long. Their gains become 0. Needs
    /// the scope, and buffers in the sources.
    void prepare(std::span<const unsigned> sources, std::size_t batch);

    enum class Resampler { Best, Linear };

    /// Sets how a source is resampled. Needs the scope.
    void setResampler(unsigned source, Resampler resampler) const;

    /// How loud a mono sound is in each channel; a stereo sound is as loud as it is recorded.
    float monoLevel() const { return monoLevel_; }

    /// Writes the next `frames` frames, left and right samples in turn. The scope of the device is
    /// not needed.
    void render(float* interleaved, std::size_t frames);

private:
    OpenALDevice(ALCdevice_struct* device, ALCcontext_struct* context, double rate);

    float measureMonoLevel();

    ALCdevice_struct* device_;
    ALCcontext_struct* context_;
    double rate_;
    int best_ = 0, linear_ = 0; ///< OpenAL's numbers of the resamplers.
    float monoLevel_ = 1.0F;
};

} // namespace velmora
