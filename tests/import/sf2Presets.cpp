// Renders the presets of a SoundFont as the desktop plays them, and measures their pitch.

#include "import/sf2Presets.h"

#include "import/Import.h"
#include "sound/MIDIInstrument.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/RecordingHost.h"
#include "support/SineBank.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {

TEST(SoundFontPresets, LieWithinATwentiethOfACentOfTheTemperament)
{
    const OrganFolder folder;
    RecordingHost host;
    Import import(host, {});
    readSoundFontPresets(folder.write("sines.sf2", sineBank([](int) { return 0; })), import);
    Instrument& instrument = *import.presets;
    const Temperament meantone = Temperament::Meantone();
    instrument.tune(meantone, 0, 127);
    std::vector<double> errors;
    for (int key = 36; key <= 96; ++key) {
        instrument.play(key, 0.6F);
        rendered(*instrument.source(), 4'800);
        const Stereo sound = rendered(*instrument.source(), 24'000);
        instrument.silence();
        rendered(*instrument.source(), 4'800);
        // Key 60 sounds as middle C, an octave below `getPitch`: see docs/decisions.md, 1.
        const double hertz = meantone.getPitch(static_cast<unsigned long>(key)) / 2.0;
        errors.push_back(std::fabs(cents(measuredHertz(sound.left, 48'000, hertz), hertz)));
        EXPECT_LT(errors.back(), 0.2) << "key " << key;
    }
    std::ranges::nth_element(errors, errors.begin() + 30);
    EXPECT_LT(errors[30], 0.05);
}

} // namespace velmora
