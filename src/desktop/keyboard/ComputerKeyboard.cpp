#include "desktop/keyboard/ComputerKeyboard.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/noteNames.h"
#include "sequencer/KeyPosition.h"
#include "tuning/DynamicTemperament.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace velmora {

namespace {

/// The US characters of the keys in semitones from A. The last three reach beyond the letters, and
/// the backslash stands for the key left of Return on many layouts.
constexpr std::string_view kPiano = "awsedftgyhujkolp;']\\";

/// What Shift adds to the number of a spelling.
constexpr int kShiftedOctave = 36;

constexpr int kHighestStart = 108; // C8

} // namespace

ComputerKeyboard::ComputerKeyboard(AppDelegate& application) : application_(application) {}

bool ComputerKeyboard::keyDown(const QKeyEvent& event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const char character = usCharacter(event);
    if (pressed_.contains(character)) // repeated while it is held
        return true;
    if (event.isAutoRepeat())
        return kPiano.find(character) != std::string_view::npos || isomorphNumber(character);
    return press(character, event.modifiers().testFlag(Qt::ShiftModifier));
}

bool ComputerKeyboard::press(char character, bool shift)
{
    Player& player = application_.player();
    if (hasSpellings()) {
        const auto number = isomorphNumber(character);
        if (!number)
            return false;
        const int shifted = *number + (shift ? kShiftedOctave : 0);
        pressed_[character] = {true, Temperament::isomorphKey(shifted)};
        player.isomorph(shifted);
        return true;
    }
    if (character == 'z' || character == 'x') {
        moveOctave(character == 'z' ? -1 : 1);
        return true;
    }
    const auto semitone = kPiano.find(character);
    if (character == 0 || semitone == std::string_view::npos)
        return false;
    const int key = lowest_ + static_cast<int>(semitone);
    pressed_[character] = {false, key};
    player.keyOn(key, 1.0F, kLetters); // docs/decisions.md, 43
    application_.midiInput();
    return true;
}

bool ComputerKeyboard::keyUp(const QKeyEvent& event)
{
    const char character = usCharacter(event);
    if (event.isAutoRepeat())
        return pressed_.contains(character);
    const auto pressed = pressed_.extract(character);
    if (!pressed)
        return false;
    release(pressed.mapped());
    return true;
}

void ComputerKeyboard::releaseKeys()
{
    for (const auto& [character, pressed] : std::exchange(pressed_, {}))
        release(pressed);
}

void ComputerKeyboard::release(const Pressed& pressed)
{
    if (pressed.isSpelling) {
        application_.player().stop(pressed.key, kEveryChannel, getTime());
        return;
    }
    application_.player().keyOff(pressed.key, kLetters);
    application_.midiInput();
}

bool ComputerKeyboard::hasSpellings() const
{
    return dynamic_cast<const DynamicTemperament*>(application_.tunings().untransposed()) !=
           nullptr;
}

void ComputerKeyboard::moveOctave(int octaves)
{
    lowest_ = std::clamp(lowest_ + 12 * octaves, 0, kHighestStart);
    emit octaveMoved(tr("Letters play from %1").arg(noteText(static_cast<unsigned>(lowest_))));
}

} // namespace velmora
