#include "import/bank.h"

#include "import/Import.h"

namespace velmora {

namespace bank {

void finish(Import& import)
{
    ImportReport& report = import.report;
    for (const InstrumentStop& stop : import.instrument->stops())
        report.pipes += stop.soundingKeys();
    report.samples = import.instrument->sounds.size();
    if (report.pipes == 0) {
        std::string message = "has nothing to sound";
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
