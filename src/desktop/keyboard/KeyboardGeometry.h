#pragma once

#include <vector>

namespace velmora {

/// Whether a MIDI key is a black one.
bool isBlackKey(int key);

/// Where one key of the keyboard is drawn, in pixels from its lower left corner.
struct KeyQuad {
    int key;
    bool isBlack;
    float left;
    float right;
    float bottom;
    float top;

    /// The part of a black key that its frame leaves to a colour.
    KeyQuad inner() const;
};

/// The keys of an on-screen keyboard: seven white ones are as wide as twelve semitones, so that an
/// octave is as wide as one of the piano roll. Lengths are in pixels, y grows upwards.
struct KeyboardGeometry {
    /// The width of a semitone.
    int keyWidth;

    /// The MIDI keys at both ends, lo < hi.
    int lo;
    int hi;

    /// One semitone for each key.
    int width() const { return keyWidth * (hi - lo + 1); }

    /// The right end of the last white key, or `width()`: keys are drawn, and played, up to there.
    float extent() const;

    /// From lo to hi. Black keys lie over the white ones beside them.
    std::vector<KeyQuad> keys(float height) const;

    /// The key at a point. Above the white keys' free ends a key is as wide as a semitone, which
    /// matches black keys only nearly; at the very ends that can give a key outside lo to hi.
    int keyAt(double x, double y, double height) const;

    bool operator==(const KeyboardGeometry&) const = default;

private:
    float whiteWidth() const { return 12.0F * static_cast<float>(keyWidth) / 7.0F; }
};

} // namespace velmora
