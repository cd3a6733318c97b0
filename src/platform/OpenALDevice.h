#pragma once

#include <memory>

struct ALCcontext_struct;
struct ALCdevice_struct;

/// An OpenAL device with the context that is current for the whole program. Every source and buffer
/// must be gone before it is. To be made on the main thread while no other reads the environment.
class OpenALDevice {
public:
    /// Opens the default device, at the shortest period it offers. Null when there is none: that is
    /// logged.
    static std::unique_ptr<OpenALDevice> open();

    /// Makes a device that gives its sound out block by block, as floats of two channels: see
    /// OpenALLoopback. Null when OpenAL has none.
    static std::unique_ptr<OpenALDevice> openLoopback(int rate);

    ~OpenALDevice();
    OpenALDevice(const OpenALDevice&) = delete;
    OpenALDevice& operator=(const OpenALDevice&) = delete;

    ALCdevice_struct* device() const { return device_; }

private:
    /// Takes the device over. `attributes` are those of alcCreateContext, null for none.
    static std::unique_ptr<OpenALDevice> withContext(ALCdevice_struct* device,
                                                     const int* attributes);

    OpenALDevice(ALCdevice_struct* device, ALCcontext_struct* context);

    ALCdevice_struct* device_;
    ALCcontext_struct* context_;
};
