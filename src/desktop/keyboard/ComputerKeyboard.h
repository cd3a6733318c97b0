#pragma once

#include <QKeyEvent>
#include <QObject>

#include <map>

namespace velmora {

class AppDelegate;

/// Plays the current instrument with the letter keys of the computer keyboard, which are identified
/// by their position. The row of A holds the white keys and the row above it the black ones; Z and
/// X move both by an octave. In "Dynamic" the letters play its spellings instead: see
/// `DynamicTemperament::isomorph`.
class ComputerKeyboard : public QObject {
    Q_OBJECT

public:
    /// The application must outlive it.
    explicit ComputerKeyboard(AppDelegate& application);

    /// Handles a key that was pressed or released. Returns false if it has no part in playing, as
    /// with Ctrl, Alt or the Windows key.
    bool keyDown(const QKeyEvent& event);
    bool keyUp(const QKeyEvent& event);

    /// Releases the pressed keys. Call this when their release may go to another program or
    /// dialog.
    void releaseKeys();

signals:
    /// The letters play from another octave; `text` says from which key.
    void octaveMoved(const QString& text);

private:
    /// What a pressed letter plays.
    struct Pressed {
        bool isSpelling;
        int key; ///< The key that stops when the letter is released.
    };

    bool hasSpellings() const;
    bool press(char character, bool shift);
    void release(const Pressed& pressed);
    void moveOctave(int octaves);

    AppDelegate& application_;
    int lowest_ = 60;                 ///< The key of the letter A, middle C at first.
    std::map<char, Pressed> pressed_; ///< By US character.
};

} // namespace velmora
