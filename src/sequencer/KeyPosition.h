#pragma once

#include <QKeyEvent>

#include <optional>

namespace velmora {

/// Returns the unshifted character at a key's position on the standard US keyboard, or 0 if the key
/// is outside the row of digits and the three rows of letters. If the platform reports no scan
/// code, uses the position of the typed character on a US keyboard.
char usCharacter(const QKeyEvent& event);

/// Returns the number of a key in the isomorphic layout, by its US character. The numbers zigzag
/// over the three rows of letters, column by column, from -1 at the key above Tab.
std::optional<int> isomorphNumber(char usCharacter);

/// Returns the channel of a key in the row of digits, 0 to 9 from left to right, by its US
/// character.
std::optional<int> channelNumber(char usCharacter);

} // namespace velmora
