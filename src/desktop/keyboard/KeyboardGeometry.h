#pragma once

#include <vector>

namespace velmora {

/// Returns whether a MIDI key is black.
bool isBlackKey(int key);

/// The rectangle of one key, in pixels from the lower left corner of the keyboard.
struct KeyQuad {
    int key;
    bool isBlack;
    float left;
    float right;
    float bottom;
    float top;

    /// The coloured part of a black key, inside its frame.
    KeyQuad inner() const;
};

/// The layout of an on-screen keyboard. Seven white keys are as wide as twelve semitones, so an
/// octave is as wide as in the piano roll. Lengths are in pixels; y grows upwards.
struct KeyboardGeometry {
    /// The width of a semitone.
    double keyWidth;

    /// The first and the last MIDI key; lo < hi.
    int lo;
    int hi;

    /// Returns the layout whose keys fill a width, within the limits of a key that can be played
    /// with the mouse and one that still looks like a key.
    static KeyboardGeometry filling(double width, int lo, int hi);

    /// The smallest width that `filling` can fill.
    static double minWidth(int lo, int hi);

    /// The width of a white key.
    double whiteWidth() const { return 12.0 * keyWidth / 7.0; }

    /// The width of all keys if each were a semitone wide.
    double width() const { return keyWidth * (hi - lo + 1); }

    /// The right edge of the last white key or `width()`, whichever is greater. In the classic
    /// layout keys can be played up to here.
    double extent() const;

    /// The left edge of the first key, which is negative if it is a black key, and the right edge
    /// of the last one.
    double left() const;
    double right() const;

    /// The keys from lo to hi. Black keys overlap the white keys beside them.
    std::vector<KeyQuad> keys(float height) const;

    /// The key at a point. In the upper part of the keyboard every key counts as one semitone wide,
    /// which matches the drawn black keys only roughly. Near the ends, the result can lie outside
    /// lo to hi.
    int keyAt(double x, double y, double height) const;

    /// The key that is drawn at a point, or −1 if there is none.
    int drawnKeyAt(double x, double y, double height) const;

    bool operator==(const KeyboardGeometry&) const = default;
};

} // namespace velmora
