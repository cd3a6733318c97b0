#include "sequencer/Metre.h"

#include "sequencer/MusicalTime.h"

namespace velmora {

namespace {

Click clickAt(const GridLine& line)
{
    switch (line.kind) {
    case GridLine::Kind::Bar:
        return Click::Bar;
    case GridLine::Kind::Beat:
        return Click::Beat;
    case GridLine::Kind::Part:
        break;
    }
    return Click::Division;
}

} // namespace

std::vector<Beat> beatsBetween(const MusicalTime& time, double from, double to, bool divides)
{
    std::vector<Beat> beats;
    for (const GridLine& line : time.gridLines(from, to, divides ? Grid::Eighths : Grid::Beats))
        beats.push_back({line.step, clickAt(line)});
    return beats;
}

CountIn countInTo(const MusicalTime& time, double step, int bars, bool divides)
{
    TimeSignature signature = time.barAt(step).signature;
    signature.step = 0.0;
    MusicalTime counted;
    counted.setTimeSignatures({signature});
    const double length = bars * signature.barLength();
    return {beatsBetween(counted, 0.0, length, divides), length};
}

} // namespace velmora
