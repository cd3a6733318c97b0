#include "import/bank.h"

#include "import/Import.h"

namespace bank {

void finish(Import& import)
{
    ImportReport& report = import.report;
    for (const InstrumentStop& stop : import.instrument->stops()) {
        std::size_t pipes = 0;
        for (const Sample& sample : stop.samples)
            pipes += sample.source() != 0 ? 1 : 0;
        report.pipes += pipes;
        report.ranks += pipes > 0 ? 1 : 0;
    }
    report.samples = import.instrument->sounds.size();
    if (report.pipes == 0) {
        std::string message = "has nothing to sound";
        if (!report.skipped.empty()) {
            const auto& [name, why] = report.skipped.front();
            message.append(" (").append(name).append(": ").append(why).append(")");
        }
        throw FormatError(message);
    }
    import.instrument->stops().front().volume = 0.5F;
}

} // namespace bank
