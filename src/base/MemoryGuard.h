#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <new>
#include <string>
#include <utility>

namespace velmora {

/// There is not enough free memory for something; `what` says so in a sentence without a subject.
class MemoryShortage : public std::bad_alloc {
public:
    explicit MemoryShortage(std::string message) : message_(std::move(message)) {}
    const char* what() const noexcept override { return message_.c_str(); }

private:
    std::string message_;
};

/// Refuses memory before the machine runs out of it, since the system would then stop programs. May
/// be used on several threads at once.
class MemoryGuard {
public:
    /// `free` returns how many bytes of memory are free.
    explicit MemoryGuard(std::function<std::uint64_t()> free);

    /// The guard of this machine's memory.
    static MemoryGuard& machine();

    /// How many bytes may be taken now. A part of what is free is left to other programs.
    std::uint64_t available();

    /// Throws MemoryShortage unless so many more bytes may be taken. The caller takes them next.
    void require(std::uint64_t bytes);

private:
    void refresh();

    const std::function<std::uint64_t()> free_;
    std::mutex mutex_; ///< Guards the members below.
    std::uint64_t available_ = 0;
    std::uint64_t granted_ = 0; ///< The bytes granted since `available_` was found out.
};

/// Returns a number of bytes in words, such as "5.3 GB".
std::string memoryText(std::uint64_t bytes);

} // namespace velmora
