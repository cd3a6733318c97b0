#pragma once

#include "platform/MusicDevice.h"
#include "sound/Instrument.h"

#include <memory>
#include <string>

/// An instrument and its display name.
class InstrumentDocument {
public:
    /// The built-in General MIDI player on a synthesizer, which it takes over.
    static std::unique_ptr<InstrumentDocument>
    initWithMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer);

    Instrument& getInstrument() const { return *instrument_; }
    const std::string& getName() const { return name_; }

private:
    InstrumentDocument(std::unique_ptr<Instrument> instrument, std::string name);

    std::unique_ptr<Instrument> instrument_;
    std::string name_;
};
