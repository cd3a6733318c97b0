#pragma once

#include <QKeyEvent>

#include <optional>

namespace velmora {

/// The character that a key's position has on the standard US keyboard, without shift: a key of the
/// digits' row or of the three rows of letters. 0 for any other key. Where the platform gives no
/// scan code, the position is the one at which a US keyboard has the character that was typed.
char usCharacter(const QKeyEvent& event);

/// The number of a key of the isomorphic layout, by its US character. The numbers zigzag over the
/// three rows of letters, column by column, from -1 at the key above the tabulator.
std::optional<int> isomorphNumber(char usCharacter);

/// The channel of a key of the digits' row, 0 to 9 from left to right, by its US character.
std::optional<int> channelNumber(char usCharacter);

} // namespace velmora
