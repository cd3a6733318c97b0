#include "desktop/roll/RollColors.h"

#include "preferences/Preferences.h"
#include "sequencer/Sequence.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

RollShade shade(const Color& color, float alpha = 1.0F)
{
    const auto byte = [](float part) { return static_cast<std::uint8_t>(std::lround(255 * part)); };
    return {byte(color.red), byte(color.green), byte(color.blue), byte(alpha)};
}

RollShade shade(const QColor& color)
{
    return shade(Color(color));
}

QColor opaque(RollShade shade)
{
    return {shade[0], shade[1], shade[2]};
}

/// Returns a gray of level 0, black, to 255, white.
constexpr RollShade gray(std::uint8_t level)
{
    return {level, level, level, 255};
}

/// Returns an opaque colour between two; `part` is the share of the second one. Uses whole numbers,
/// because it is called for every visible note.
RollShade mixed(RollShade one, RollShade other, float part)
{
    const int share = static_cast<int>(part * 256);
    const auto mix = [&](std::size_t i) {
        return static_cast<std::uint8_t>((one[i] * (256 - share) + other[i] * share) / 256);
    };
    return {mix(0), mix(1), mix(2), 255};
}

/// Returns the colour half-way between `color` and white.
QColor light(const QColor& color)
{
    return QColor::fromRgbF((color.redF() + 1) / 2, (color.greenF() + 1) / 2,
                            (color.blueF() + 1) / 2);
}

/// The colours of the channels on a light and on a dark roll: equally bright, so that none stands
/// out.
constexpr std::array<QRgb, 16> kLightChannels = {
    0x2d5b88, 0x266344, 0x734395, 0x96355d, 0x1e6167, 0x67571a, 0x4c4cb1, 0x41612a,
    0x843e7e, 0x8d422f, 0x216255, 0x535d1f, 0x7f4c20, 0x495781, 0x804851, 0x376237};
constexpr std::array<QRgb, 16> kDarkChannels = {
    0x87b2dc, 0x4bc287, 0xc2a1d9, 0xe099b6, 0x32becb, 0xcbab2a, 0xa9a9de, 0x81be57,
    0xd49bcf, 0xde9e8e, 0x38c2a6, 0xa2b835, 0xe0a068, 0xa2adce, 0xcea2aa, 0x80bc80};

/// The share of the background in the colour of the softest note.
constexpr float kPaleness = 0.25F;

/// The shares of the text colour in the lines and columns of the roll.
constexpr float kBlackColumn = 0.05F;
constexpr float kBlackColumnInDark = 0.2F; ///< Of black.
constexpr float kColumnLine = 0.09F;
constexpr float kOctaveLine = 0.28F;
constexpr float kStepLine = 0.06F;
constexpr float kBeatLine = 0.16F;
constexpr float kBarLine = 0.40F;
constexpr float kOnset = 0.35F;
constexpr float kLeftOut = 0.58F;

constexpr float kClassicIntervalOpacity = 0.5F;
constexpr float kIntervalOpacity = 0.25F;

constexpr QRgb kMiddleCTint = 0xffc83d;
constexpr float kMiddleCPart = 0.16F;
constexpr float kMiddleCPartInDark = 0.07F;

constexpr QRgb kRecordedOnLight = 0xc62f2f;
constexpr QRgb kRecordedOnDark = 0xff7a70;

} // namespace

RollColors::RollColors(const QPalette& palette) : RollColors(palette, preferredScheme()) {}

RollColors::RollColors(const QPalette& palette, Scheme which)
    : scheme(which), whiteColumn(gray(255)), blackColumn(gray(179)),             // 70 %
      middleC{255, 255, 179, 255}, columnLine(gray(77)), octaveLine(columnLine), // 30 %
      stepLine(gray(204)), beatLine(gray(153)), barLine(beatLine),               // 80 % and 60 %
      selected(shade(palette.color(QPalette::Active, QPalette::Highlight))),
      // The roll is white in every theme, so the selected time is a light tint of the selection
      // colour, against which selected notes stand out.
      interval(shade(Color(light(palette.color(QPalette::Active, QPalette::Highlight))),
                     kClassicIntervalOpacity)),
      outline(selected), playing(shade(schemeColor("NoteColorPlaying", palette))),
      text_(shade(palette.color(QPalette::Active, QPalette::Text)))
{
    const Color note = schemeColor("NoteColor", palette);
    if (scheme == Scheme::Classic || isPrefSet("NoteColor"))
        note_ = shade(note, note.alpha);
    recorded = playing;
    leftOut = mixed(whiteColumn, gray(0), kLeftOut);
    if (scheme == Scheme::Calm)
        setCalm(palette);
}

void RollColors::setCalm(const QPalette& palette)
{
    const bool dark = isDark(palette);
    whiteColumn = shade(palette.color(QPalette::Active, QPalette::Base));
    blackColumn = dark ? mixed(whiteColumn, gray(0), kBlackColumnInDark)
                       : mixed(whiteColumn, text_, kBlackColumn);
    middleC =
        mixed(whiteColumn, shade(QColor(kMiddleCTint)), dark ? kMiddleCPartInDark : kMiddleCPart);
    columnLine = mixed(whiteColumn, text_, kColumnLine);
    octaveLine = mixed(whiteColumn, text_, kOctaveLine);
    stepLine = mixed(whiteColumn, text_, kStepLine);
    beatLine = mixed(whiteColumn, text_, kBeatLine);
    barLine = mixed(whiteColumn, text_, kBarLine);
    interval = shade(Color(palette.color(QPalette::Active, QPalette::Highlight)), kIntervalOpacity);
    outline = text_;
    selected =
        shade(accentOn({opaque(whiteColumn), opaque(blackColumn), opaque(middleC)}, palette));
    leftOut = mixed(whiteColumn, text_, kLeftOut);
    recorded = shade(QColor(dark ? kRecordedOnDark : kRecordedOnLight));
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
        const RollShade loud = shade(QColor((dark ? kDarkChannels : kLightChannels)[channel]));
        for (std::size_t level = 0; level < kVelocities; ++level)
            notes_[channel][level] =
                mixed(loud, whiteColumn,
                      kPaleness * (1.0F - static_cast<float>(level) / (kVelocities - 1)));
    }
}

RollShade RollColors::atRest(const Note& note) const
{
    if (practised && !practised->contains(note))
        return leftOut;
    if (note_)
        return *note_;
    const float level = std::clamp(note.velocity, 0.0F, 1.0F) * (kVelocities - 1) + 0.5F;
    return notes_[note.channel % kChannels][static_cast<std::size_t>(level)];
}

QColor RollColors::of(const Note& note) const
{
    return opaque(note.selected ? selected : note.active ? playing : atRest(note));
}

RollShade RollColors::onset(RollShade note) const
{
    return mixed(note, text_, kOnset);
}

} // namespace velmora
