#include "app/sizeString.h"

#include <spdlog/fmt/fmt.h>

namespace velmora {

std::string sizeString(std::uint64_t bytes)
{
    // See docs/decisions.md, 115.
    constexpr std::uint64_t kKilo = 1U << 10U, kMega = 1U << 20U, kGiga = 1U << 30U;
    const auto in = [bytes](std::uint64_t unit) {
        return static_cast<double>(bytes) / static_cast<double>(unit);
    };
    if (bytes >= kGiga)
        return fmt::format("{:.3f}GB", in(kGiga));
    if (bytes >= kMega)
        return fmt::format("{:.2f}MB", in(kMega));
    if (bytes >= kKilo)
        return fmt::format("{:.1f}KB", in(kKilo));
    return bytes > 0 ? fmt::format("{} bytes", bytes) : "";
}

} // namespace velmora
