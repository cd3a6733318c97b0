#pragma once

#include <memory>

struct ALCcontext_struct;
struct ALCdevice_struct;

namespace velmora {

/// An OpenAL device with a context that is current. Every source and buffer must be gone before it
/// is. The first one is to be made on the main thread while no other reads the environment.
class OpenALDevice {
public:
    /// Opens the default device, at the shortest period it offers, for the whole program. Null when
    /// there is none or it gives no context: that is logged.
    static std::unique_ptr<OpenALDevice> open();

    /// Makes a device that gives its sound out block by block, as floats of two channels: see
    /// OpenALLoopback. It is current on the calling thread alone, which goes on to use it and ends
    /// it; the others keep the device that they have. Null when OpenAL has none.
    static std::unique_ptr<OpenALDevice> openLoopback(int rate);

    ~OpenALDevice();
    OpenALDevice(const OpenALDevice&) = delete;
    OpenALDevice& operator=(const OpenALDevice&) = delete;

    ALCdevice_struct* device() const { return device_; }

private:
    enum class Reach { Program, Thread };

    /// Takes the device over. `attributes` are those of alcCreateContext, null for none.
    static std::unique_ptr<OpenALDevice> withContext(ALCdevice_struct* device,
                                                     const int* attributes, Reach reach);

    OpenALDevice(ALCdevice_struct* device, ALCcontext_struct* context, Reach reach);

    ALCdevice_struct* device_;
    ALCcontext_struct* context_;
    Reach reach_;
};

} // namespace velmora
