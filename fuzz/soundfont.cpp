// Imports the input as a SoundFont bank, plainly and as its maker meant it.

#include "import/sf2.h"

#include "importedBank.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    importBank(readSoundFont, Reading::Plain, {data, size});
    importBank(readSoundFontStops, Reading::Musical, {data, size});
    return 0;
}

} // namespace velmora
