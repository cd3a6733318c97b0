#pragma once

#include <mutex>

namespace velmora {

class Instrument;
class Temperament;

/// What a sequence document asks of the application: who sounds its notes now. Both are asked for
/// anew at each use and reached only under the lock, since another thread may exchange them.
class SequenceHost {
public:
    virtual ~SequenceHost() = default;

    /// The current instrument; null when there is none.
    virtual Instrument* getInstrument() = 0;

    /// The current temperament; not null where there is an instrument.
    virtual Temperament* getTemperament() = 0;

    /// Guards the instrument and the temperament.
    virtual std::mutex& soundLock() = 0;
};

} // namespace velmora
