#pragma once

#include "base/FormatError.h"
#include "base/Log.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "require.h"
#include "tuning/Temperament.h"

#include <span>

namespace velmora {

/// Checks that the steps of an import add up to the announced number.
class CheckingHost : public InstrumentHost {
public:
    void startProgress(long steps) override { steps_ = steps; }

    void updateProgress(unsigned steps, const std::string& /*text*/) override { done_ += steps; }

    bool isCancelled() const override { return false; }

    bool isDone() const { return done_ == steps_; }

private:
    long steps_ = -1;
    long done_ = 0;
};

using BankReader = void(const RIFF::File&, Import&);

/// Imports a bank from memory. If it is accepted, the instrument must be playable.
inline void importBank(BankReader* reader, Reading reading, std::span<const std::uint8_t> bytes)
{
    setLogLevel(spdlog::level::off);
    CheckingHost host;
    Import import(host, {reading});
    constexpr std::uint64_t kMemory = std::uint64_t{512} << 20U;
    MemoryGuard memory([] { return kMemory; });
    import.memory = &memory;
    try {
        reader(RIFF::File(std::as_bytes(bytes)), import);
    } catch (const FormatError&) {
        return;
    } catch (const MemoryShortage&) {
        return;
    }
    const auto& stops = import.instrument->stops();
    bool sounds = false;
    for (const InstrumentStop& stop : stops) {
        for (const Sample& sample : stop.samples)
            sounds = sounds || (sample.source() != 0 && sample.rootPitch() > 0.0);
    }
    require(sounds && host.isDone());
    require(stops.front().volume == 0.5F && import.instrument->usage > 0);
    import.instrument->tune(equal, 0, 127);
}

} // namespace velmora
