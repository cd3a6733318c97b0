#pragma once

#include <optional>
#include <vector>

namespace velmora {

/// Which degree of a scale each key plays, and the frequency on which that is based.
struct KeyMapping {
    /// The keys that are mapped, 0…127. All others keep the pitch of equal temperament.
    int firstKey = 0, lastKey = 127;

    int middleKey = 60; ///< Plays degree 0, or what `degrees` begins with.

    /// A key, 0…127, that plays a degree, and its frequency in hertz.
    int referenceKey = 60;
    double referenceHertz = 261.6255653006;

    /// The degrees of the keys from the middle one up, which repeat in both directions; keys
    /// without a degree are silent. If there are none, each key plays the next degree.
    std::vector<std::optional<int>> degrees;

    /// The degree by whose pitch the repetitions differ; 0 for the period of the scale. It only
    /// counts if there are `degrees`.
    int octaveDegree = 0;

    bool operator==(const KeyMapping&) const = default;
};

} // namespace velmora
