#include "app/fading.h"

#include "sound/Instrument.h"
#include "tuning/Temperament.h"

namespace velmora {

void fadeOnce(SequenceHost& host)
{
    const std::lock_guard lock(host.soundLock());
    if (Instrument* instrument = host.getInstrument())
        instrument->fade(kFadeFactor);
    if (Temperament* temperament = host.getTemperament())
        temperament->fade(kFadeFactor);
}

} // namespace velmora
