#include "import/InstrumentDocument.h"

#include "sound/MIDIInstrument.h"

InstrumentDocument::InstrumentDocument(std::unique_ptr<Instrument> instrument, std::string name)
    : instrument_(std::move(instrument)), name_(std::move(name))
{
}

std::unique_ptr<InstrumentDocument>
InstrumentDocument::initWithMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer)
{
    auto instrument = std::make_unique<MIDIInstrument>(std::move(synthesizer));
    return std::unique_ptr<InstrumentDocument>(
        new InstrumentDocument(std::move(instrument), "MIDI Player"));
}
