#include "import/sf2Presets.h"

#include "audio/Synthesizer.h"
#include "base/FormatError.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "import/bank.h"
#include "import/sf2Bank.h"
#include "sound/MIDIInstrument.h"

#include <spdlog/fmt/fmt.h>

namespace velmora {

namespace {

/// The rate until the instrument is added to an engine, which has one of its own.
constexpr double kRate = 48000.0;

} // namespace

void readSoundFontPresets(const std::filesystem::path& path, Import& import)
{
    const RIFF::File file(path);
    file.check();
    if (file.length() + sizeof(std::uint32_t) < file.size()) // the size counts the list type
        throw FormatError("is cut short");
    const sf2::Bank bank = sf2::readBank(file);
    const std::uint64_t bytes =
        std::uint64_t{bank.pool.length()} + (bank.lowBytes ? bank.lowBytes->length() : 0);
    bank::requireMemory(bytes, bytes, import);

    import.host.startProgress(1);
    auto synthesizer = std::make_unique<Synthesizer>(kRate, std::vector{path});
    std::vector<Program> programs = synthesizer->programs();
    if (synthesizer->bank().empty())
        throw FormatError("is damaged and its presets cannot be played; opening it as stops "
                          "may work");
    if (programs.empty())
        throw FormatError("has no presets");
    if (import.host.isCancelled())
        throw Cancelled{};
    import.host.updateProgress(1, fmt::format("Done: {} presets", programs.size()));

    import.name = bank.name;
    import.report.samples = bank.samples.size() - 1;
    import.presets = std::make_unique<MIDIInstrument>(std::move(synthesizer), std::move(programs));
    import.presets->usage = static_cast<std::int64_t>(bytes);
}

} // namespace velmora
