#include "app/preferredOutput.h"

#include "preferences/Preferences.h"

namespace velmora {

OutputSettings preferredOutput()
{
    return {getPrefString("Output"), getPrefString("OutputDevice"),
            static_cast<double>(getPrefInt("OutputRate")),
            static_cast<std::size_t>(getPrefInt("OutputPeriod"))};
}

void setPreferredOutput(const OutputSettings& output)
{
    setPrefString("Output", output.driver);
    setPrefString("OutputDevice", output.device);
    setPrefInt("OutputRate", static_cast<int>(output.rate));
    setPrefInt("OutputPeriod", static_cast<int>(output.period));
}

float preferredVolume()
{
    return static_cast<float>(getPrefInt("MasterVolume")) / 100.0F;
}

} // namespace velmora
