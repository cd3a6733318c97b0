#pragma once

#include <cstddef>
#include <memory>

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

    /// Sets the rate in hertz. Must not be called while the device renders.
    void setRate(double rate);

    /// Writes the next `frames` frames, left and right samples in turn. The scope of the device is
    /// not needed.
    void render(float* interleaved, std::size_t frames);

private:
    OpenALDevice(ALCdevice_struct* device, ALCcontext_struct* context);

    ALCdevice_struct* device_;
    ALCcontext_struct* context_;
};

} // namespace velmora
