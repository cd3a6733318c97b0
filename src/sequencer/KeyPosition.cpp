#include "sequencer/KeyPosition.h"

#include <array>
#include <string_view>

namespace velmora {

namespace {

/// Keys with successive scan codes.
struct Row {
    unsigned firstScanCode; ///< On X11 and Wayland: the evdev code plus 8.
    std::string_view plain, shifted;
};

constexpr std::array<Row, 4> kRows = {{
    {10, "1234567890", "!@#$%^&*()"},
    {24, "qwertyuiop[]", "QWERTYUIOP{}"},
    {38, "asdfghjkl;'`", "ASDFGHJKL:\"~"},
    {51, "\\zxcvbnm,./", "|ZXCVBNM<>?"},
}};

/// The US characters in order of their number, from -1. The space stands for 32, which no key has.
/// See docs/decisions.md, 14.
constexpr std::string_view kIsomorph = "`awzsexdrcftvgybhunjimko,lp.;[/'] \\q";

constexpr std::string_view kChannels = "1234567890";

std::optional<int> placeIn(std::string_view characters, char character)
{
    const auto place = characters.find(character);
    return place == std::string_view::npos ? std::nullopt : std::optional(static_cast<int>(place));
}

/// Returns the index of the key in a row.
std::optional<int> placeIn(const Row& row, const QKeyEvent& event)
{
    if (const unsigned scanCode = event.nativeScanCode(); scanCode != 0)
        return scanCode >= row.firstScanCode && scanCode - row.firstScanCode < row.plain.size()
                   ? std::optional(static_cast<int>(scanCode - row.firstScanCode))
                   : std::nullopt;
    if (event.key() <= Qt::Key_Space || event.key() > Qt::Key_AsciiTilde)
        return std::nullopt;
    const auto typed = static_cast<char>(event.key());
    const auto plain = placeIn(row.plain, typed);
    return plain ? plain : placeIn(row.shifted, typed);
}

} // namespace

// See docs/decisions.md, 117.
char usCharacter(const QKeyEvent& event)
{
    for (const Row& row : kRows)
        if (const auto place = placeIn(row, event))
            return row.plain[static_cast<std::size_t>(*place)];
    return 0;
}

std::optional<int> isomorphNumber(char usCharacter)
{
    const auto place = placeIn(kIsomorph, usCharacter);
    return place ? std::optional(*place - 1) : std::nullopt;
}

std::optional<int> channelNumber(char usCharacter)
{
    return placeIn(kChannels, usCharacter);
}

} // namespace velmora
