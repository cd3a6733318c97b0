#pragma once

#include <memory>

struct ALCcontext_struct;
struct ALCdevice_struct;

namespace velmora {

/// An OpenAL device with a current context. All sources and buffers must be deleted before it is
/// destroyed. The first device must be opened on the main thread while no other thread reads
/// environment variables.
class OpenALDevice {
public:
    /// Opens the default device for all threads, with the shortest period that it offers. If there
    /// is no device or it has no context, logs that and returns null.
    static std::unique_ptr<OpenALDevice> open();

    /// Opens a device that renders stereo float samples on request; see OpenALLoopback. It is
    /// current only on the calling thread, which must also use and destroy it. Returns null if
    /// OpenAL has no such device.
    static std::unique_ptr<OpenALDevice> openLoopback(int rate);

    ~OpenALDevice();
    OpenALDevice(const OpenALDevice&) = delete;
    OpenALDevice& operator=(const OpenALDevice&) = delete;

    ALCdevice_struct* device() const { return device_; }

private:
    enum class Reach { Program, Thread };

    /// Takes ownership of `device` and creates a context with `attributes`, which may be null.
    static std::unique_ptr<OpenALDevice> withContext(ALCdevice_struct* device,
                                                     const int* attributes, Reach reach);

    OpenALDevice(ALCdevice_struct* device, ALCcontext_struct* context, Reach reach);

    ALCdevice_struct* device_;
    ALCcontext_struct* context_;
    Reach reach_;
};

} // namespace velmora
