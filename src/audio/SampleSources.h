#pragma once

#include "audio/OpenALDevice.h"
#include "audio/SampleVoice.h"
#include "platform/PriorityMutex.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <span>
#include <utility>
#include <vector>

namespace velmora {

/// The samples on one OpenAL device. A sample has two sources, so that a restart need not cut off
/// what still sounds.
///
/// Samples may be added and removed on one thread while another one plays them. A mutex lends the
/// priority of the thread that plays to the other one for that short time.
class SampleSources {
public:
    /// So many sources may be started at once. OpenAL enlarges its list of voices if that has no
    /// room for them behind all voices that have ever been used.
    static constexpr std::size_t kBatch = 64;

    explicit SampleSources(std::unique_ptr<OpenALDevice> device) : device_(std::move(device)) {}

    OpenALDevice& device() { return *device_; }

    /// Makes the device's context current as long as the result exists.
    OpenALDevice::Scope scope() const { return OpenALDevice::Scope(*device_); }

    /// Keeps samples from being added and removed as long as the result exists.
    std::unique_lock<PriorityMutex> lock() { return std::unique_lock(mutex_); }

    /// The bytes of the sounds in the device's buffers, which the caller keeps.
    std::size_t bytes = 0;

    /// How loud a sample can be.
    enum class Use : std::uint8_t {
        Plain,   ///< A gain of at most 1, and mono softer than stereo, as OpenAL plays them.
        Musical, ///< A gain of at most 16, and mono as loud as stereo.
    };

    /// Adds a sample that plays an OpenAL buffer, whose loop it repeats if `loops` is true, and
    /// returns its number. Throws FormatError if there are no sources left.
    std::uint32_t add(unsigned buffer, bool loops = false, Use use = Use::Plain);

    /// Removes a sample, which must be silent.
    void remove(std::uint32_t number);

    /// The first OpenAL source of a sample.
    unsigned source(std::uint32_t number) const { return voices_[std::size_t{2} * number].source; }

    /// Prepares for as many voices as may sound together, so that playing neither allocates nor
    /// hesitates. Must be called after samples have been added, unless `reserve` was. Returns
    /// whether `limit` has changed.
    bool prepare();

    /// Prepares for samples of about so many bytes that will be added while the device plays.
    void reserve(std::size_t expectedBytes);

    /// The number of voices that may sound together.
    std::size_t limit() const { return limit_; }

    /// Returns when a sample's event happens that is due at `due`: not before earlier ones.
    double order(std::uint32_t number, double due);

    // While the lock is held:

    /// A voice by its index: samples have two each.
    SampleVoice& voice(std::uint32_t index) { return voices_[index]; }

    /// The index of the voice of a sample that was started last.
    std::uint32_t current(std::uint32_t number) const { return 2 * number + second_[number]; }

    /// Makes the other voice of a sample the current one.
    void swap(std::uint32_t number) { second_[number] ^= 1; }

private:
    void makeLimit(std::span<const unsigned> sources);

    PriorityMutex mutex_;
    std::unique_ptr<OpenALDevice> device_;
    std::deque<SampleVoice> voices_;  ///< Two for each sample.
    std::deque<std::uint8_t> second_; ///< By sample: 1 if the second voice was started last.
    std::deque<double> dues_;         ///< By sample: when its last event was due.
    std::vector<std::uint32_t> free_; ///< Numbers of removed samples.
    bool isPrepared_ = true;
    bool isReserved_ = false;
    std::size_t limit_ = 0;
};

} // namespace velmora
