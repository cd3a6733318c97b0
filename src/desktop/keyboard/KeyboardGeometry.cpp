#include "desktop/keyboard/KeyboardGeometry.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

/// Black keys reach down to this fraction of the height.
constexpr double kBlackEnd = 0.4;

/// The range of the width of a white key that fills a window.
constexpr double kMinWhiteWidth = 8.0;
constexpr double kMaxWhiteWidth = 64.0;

/// The distance from the left edge of the next white key to the left edge of a black key.
double blackOffset(int key, double semitone, double white)
{
    switch (key % 12) {
    case 1:
    case 6:
        return semitone - white;
    case 8:
        return -semitone / 2;
    default: // 3 and 10
        return white - 2 * semitone;
    }
}

/// Returns the number of white keys from `lo` to `hi`.
int whiteKeys(int lo, int hi)
{
    int whites = 0;
    for (int key = lo; key <= hi; ++key)
        whites += isBlackKey(key) ? 0 : 1;
    return whites;
}

} // namespace

bool isBlackKey(int key)
{
    const int pitchClass = key % 12;
    return pitchClass == 1 || pitchClass == 3 || pitchClass == 6 || pitchClass == 8 ||
           pitchClass == 10;
}

KeyQuad KeyQuad::inner() const
{
    return {key, isBlack, left + 2, right - 2, bottom + 2, top};
}

KeyboardGeometry KeyboardGeometry::filling(double width, int lo, int hi)
{
    const KeyboardGeometry unit{1.0, lo, hi};
    const double keyWidth = width / (unit.right() - unit.left());
    return {std::clamp(keyWidth, kMinWhiteWidth * 7 / 12, kMaxWhiteWidth * 7 / 12), lo, hi};
}

double KeyboardGeometry::minWidth(int lo, int hi)
{
    const KeyboardGeometry narrowest{kMinWhiteWidth * 7 / 12, lo, hi};
    return narrowest.right() - narrowest.left();
}

double KeyboardGeometry::extent() const
{
    return std::max(width(), whiteKeys(lo, hi) * whiteWidth());
}

double KeyboardGeometry::left() const
{
    return isBlackKey(lo) ? blackOffset(lo, keyWidth, whiteWidth()) : 0.0;
}

double KeyboardGeometry::right() const
{
    const double whites = whiteKeys(lo, hi) * whiteWidth();
    return isBlackKey(hi) ? whites + blackOffset(hi, keyWidth, whiteWidth()) + keyWidth : whites;
}

std::vector<KeyQuad> KeyboardGeometry::keys(float height) const
{
    const auto semitone = static_cast<float>(keyWidth);
    const auto white = static_cast<float>(whiteWidth());
    std::vector<KeyQuad> quads;
    int whites = 0;
    for (int key = lo; key <= hi; ++key) {
        float left = static_cast<float>(whites) * white;
        if (isBlackKey(key)) {
            left += static_cast<float>(blackOffset(key, keyWidth, whiteWidth()));
            const float bottom = static_cast<float>(kBlackEnd) * height;
            quads.push_back({key, true, left, left + semitone, bottom, height});
        } else {
            quads.push_back({key, false, left + 1, left + white - 1, 0, height});
            ++whites;
        }
    }
    return quads;
}

int KeyboardGeometry::drawnKeyAt(double x, double y, double height) const
{
    int found = -1;
    for (const KeyQuad& quad : keys(static_cast<float>(height))) {
        const double gap = quad.isBlack ? 0.0 : 1.0; // belongs to the keys beside it
        if (x >= quad.left - gap && x < quad.right + gap && y >= quad.bottom &&
            (found < 0 || quad.isBlack))
            found = quad.key;
    }
    return found;
}

int KeyboardGeometry::keyAt(double x, double y, double height) const
{
    // Corrections in semitones, by the pitch class of the first key: only an octave that starts at
    // a C is aligned with the grid of semitones (docs/decisions.md, 109).
    static constexpr std::array kShifts{0.0,    0.625,   -0.375, 0.375,  -0.625, 0.1875,
                                        0.8125, -0.1875, 0.625,  -0.375, 0.1875, -0.8125};
    const double semitone = keyWidth;
    const double shifted = x + kShifts[static_cast<std::size_t>(lo % 12)] * semitone;
    if (y > kBlackEnd * height)
        return static_cast<int>(lo + shifted / semitone);

    const double place = lo * semitone + shifted;
    const int octave = std::max(0, static_cast<int>(place / (12 * semitone)));
    const int white = static_cast<int>((place - 12 * semitone * octave) * (7.0 / 12) / semitone);
    return 12 * octave + 2 * white - (white >= 3 ? 1 : 0);
}

} // namespace velmora
