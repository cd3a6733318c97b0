#include "tuning/spelling.h"

#include "tuning/meantoneGamut.h"

namespace velmora {

std::string placeName(int place)
{
    const int fromF = place + 1 + 3 * 7;
    std::string name(1, "FCGDAEB"[fromF % 7]);
    for (int sharps = fromF / 7 - 3; sharps != 0; sharps += sharps > 0 ? -1 : 1)
        name += sharps > 0 ? '#' : 'b';
    return name;
}

std::string rootName(int pitchClass)
{
    return placeName(meantone::kHomePlaces.at(static_cast<std::size_t>(pitchClass)));
}

} // namespace velmora
