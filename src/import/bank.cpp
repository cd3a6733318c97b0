#include "import/bank.h"

#include "base/Log.h"
#include "import/Import.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>

namespace velmora {

namespace bank {

void reportDone(std::size_t steps, const std::string& text, const Import& import)
{
    // See docs/decisions.md, 76.
    logger("import").debug("Done %k");
    import.host.updateProgress(static_cast<unsigned>(steps), text);
}

void requireMemory(std::uint64_t soundBytes, std::uint64_t poolBytes, const Import& import)
{
    // See docs/decisions.md, 148.
    constexpr std::uint64_t kMostOften = 8, kSmall = std::uint64_t{64} << 20U;
    if (soundBytes > std::max(kMostOften * poolBytes, kSmall))
        throw FormatError(fmt::format("is damaged: its samples would take {}, but the file holds "
                                      "only {}",
                                      memoryText(soundBytes), memoryText(poolBytes)));
    import.memory->require(soundBytes);
}

void finish(Import& import)
{
    ImportReport& report = import.report;
    for (const InstrumentStop& stop : import.instrument->stops())
        report.pipes += stop.keysWithSamples();
    report.samples = import.instrument->sounds.size();
    if (report.pipes == 0) {
        std::string message = "cannot be played: no key has a sound";
        if (!report.skipped.empty()) {
            const auto& [name, why] = report.skipped.front();
            message.append(" (").append(name).append(": ").append(why).append(")");
        }
        throw FormatError(message);
    }
    import.finish();
}

} // namespace bank

} // namespace velmora
