#include "base/MemoryGuard.h"

#include "base/freeMemory.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>

namespace velmora {

namespace {

/// Finding out what is free takes a while, so it is done once for so many bytes.
constexpr std::uint64_t kStep = std::uint64_t{32} << 20U;

/// The most that is left to other programs.
constexpr std::uint64_t kMaximumReserve = std::uint64_t{512} << 20U;

} // namespace

MemoryGuard::MemoryGuard(std::function<std::uint64_t()> free) : free_(std::move(free)) {}

MemoryGuard& MemoryGuard::machine()
{
    static MemoryGuard guard([] { return freeMemory(); });
    return guard;
}

std::uint64_t MemoryGuard::available()
{
    const std::lock_guard lock(mutex_);
    refresh();
    return available_;
}

void MemoryGuard::require(std::uint64_t bytes)
{
    const std::lock_guard lock(mutex_);
    if (bytes > kStep || granted_ > kStep - bytes || bytes > available_ - granted_)
        refresh();
    if (bytes > available_)
        throw MemoryShortage(fmt::format("needs {} more of memory, but only {} are free; unload "
                                         "other instruments or close other programs",
                                         memoryText(bytes), memoryText(available_)));
    granted_ += bytes;
}

void MemoryGuard::refresh()
{
    const std::uint64_t free = free_();
    available_ = free - std::min(free / 8, kMaximumReserve);
    granted_ = 0;
}

std::string memoryText(std::uint64_t bytes)
{
    // See docs/decisions.md, 115.
    constexpr std::uint64_t kMega = 1U << 20U, kGiga = 1U << 30U;
    if (bytes >= kGiga)
        return fmt::format("{:.1f} GB", static_cast<double>(bytes) / static_cast<double>(kGiga));
    return fmt::format("{} MB", (bytes + kMega - 1) / kMega);
}

} // namespace velmora
