#include "desktop/widgets/scheme.h"

#include "preferences/Preferences.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace velmora {

namespace {

/// The calm colours. Those of the keys differ from a white and from a black key by 3 : 1, and those
/// of the notes from the light and from the dark roll.
struct CalmColor {
    std::string_view key;
    QRgb light;
    QRgb dark;
};

constexpr std::array<CalmColor, 6> kCalmColors = {{
    {"KeyColor", 0xff3b7fc4, 0xff3b7fc4},
    {"KeyColorCorrect", 0xff2b9150, 0xff2b9150},
    {"KeyColorSustain", 0xff8069c0, 0xff8069c0},
    {"KeyColorWrong", 0xffd9423a, 0xffd9423a},
    {"NoteColor", 0xff3b6ea5, 0xff6fa8dc},
    {"NoteColorPlaying", 0xffcf4f00, 0xffffa54a},
}};

/// Returns the relative luminance of a colour, 0 to 1.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

Scheme preferredScheme()
{
    return getPrefString("Scheme") == "Classic" ? Scheme::Classic : Scheme::Calm;
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

Color schemeColor(const char* key, const QPalette& palette)
{
    if (preferredScheme() == Scheme::Calm && !isPrefSet(key))
        for (const CalmColor& color : kCalmColors)
            if (color.key == key)
                return Color(QColor(isDark(palette) ? color.dark : color.light));
    return Color(key);
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, bright] = std::minmax({luminance(one), luminance(other)});
    return (bright + 0.05) / (dark + 0.05);
}

QColor accentOn(std::initializer_list<QColor> backgrounds, const QPalette& palette)
{
    constexpr double kLeastContrast = 3.0;
    constexpr int kShares = 10;
    const QColor own = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    QColor color = own;
    for (int share = 1; share <= kShares; ++share) {
        if (std::ranges::all_of(backgrounds, [&](const QColor& background) {
                return contrast(color, background) >= kLeastContrast;
            }))
            break;
        const auto mixed = [&](int from, int to) { return from + (to - from) * share / kShares; };
        color = QColor(mixed(own.red(), text.red()), mixed(own.green(), text.green()),
                       mixed(own.blue(), text.blue()));
    }
    return color;
}

QColor inkOn(const QColor& background)
{
    return contrast(background, Qt::black) > contrast(background, Qt::white) ? Qt::black
                                                                             : Qt::white;
}

} // namespace velmora
